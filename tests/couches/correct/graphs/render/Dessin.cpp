#include <QPainter>
#include "graphs/render/Dessin.h"
#include "template/Generation.h"
