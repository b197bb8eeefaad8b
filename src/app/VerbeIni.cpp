// INI <template> <result> [ouvrir] [remplacer]: a document made without a dossier.
#include "app/Verbes.h"

namespace norvane {

int VerbeIni(Application&) { return 0; }

}  // namespace norvane
