// Fuzz target of the dossier's fixed records: the general record and the
// parameter file's stream read from raw bytes, of any length.
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "study/DossierGeneral.h"
#include "study/ParamLog.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  using namespace norvane;
  const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
  DossierGeneral dossier;
  LireDossierGeneral(octets, dossier);
  ChampDossierGeneral(taille);
  std::array<Organisation, 20> organisations;
  int16_t paramFinal = 0;
  LireParamLogOctets(octets, organisations, paramFinal);
  return 0;
}
