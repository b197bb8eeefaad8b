#include <com/sun/star/uno/Reference.hxx>
#include "graphs/render/Dessin.h"
#include "tables/Modele.h"
