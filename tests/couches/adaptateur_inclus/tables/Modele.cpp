#include "tables/ui/Editeur.h"
