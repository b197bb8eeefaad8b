#include "template/Generation.h"
#include <vector>
