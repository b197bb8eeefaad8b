// The pieces of the code interpreter, one header a topic, for the files that
// use many of them.
#pragma once

#include "template/Associes.h"
#include "template/ChampsGeneraux.h"
#include "template/Conditions.h"
#include "template/Dates.h"
#include "template/DatesExercice.h"
#include "template/Explication.h"
#include "template/InfoBulle.h"
#include "template/IssueCode.h"
#include "template/Nettoyage.h"
#include "template/NumerosPage.h"
#include "template/Organisations.h"
#include "template/Textes.h"
