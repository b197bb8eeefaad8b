// The codes that do more than show a field, as other parts of the engine
// reach them, one header a topic.
#pragma once

#include "template/Cellules.h"
#include "template/Dates.h"
#include "template/DonneesIni.h"
#include "template/Images.h"
