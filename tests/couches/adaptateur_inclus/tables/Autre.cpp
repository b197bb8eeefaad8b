#include "graphs/render/Dessin.h"
