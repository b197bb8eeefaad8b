#include "study/Session.h"
