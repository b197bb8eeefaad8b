// Fuzz target of the dossier's fixed records: the general record and the
// parameter file's stream read from raw bytes, of any length, and study text
// made safe for RTF. A read fails exactly when the bytes are short, and its
// error names the field that covers the failing byte; safe text never holds
// an unescaped brace or a stray control byte.
#include <stdlib.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "study/DossierGeneral.h"
#include "study/ParamLog.h"
#include "study/TexteEtude.h"

namespace {

using namespace norvane;

void VerifierTexteSur(std::string_view brut) {
  const std::string sur = TexteEtudePourRtf(brut);
  for (std::size_t i = 0; i < sur.size(); ++i) {
    const auto c = static_cast<unsigned char>(sur[i]);
    if (sur[i] == '\\') {
      if (i + 1 >= sur.size() || (sur[i + 1] != '\\' && sur[i + 1] != '{' && sur[i + 1] != '}')) abort();
      ++i;
    } else if (sur[i] == '{' || sur[i] == '}' || c == 0x7F || (c < 0x20 && c != '\r' && c != '\n')) {
      abort();
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
  DossierGeneral dossier;
  const Resultat<void> general = LireDossierGeneral(octets, dossier, "X.TVL");
  if (general.Ok() != (taille >= kLongueurDossierGeneral)) abort();
  if (!general && (general.Erreur().octet > taille || general.Erreur().champ.empty() ||
                   general.Erreur().champ != ChampDossierGeneral(general.Erreur().octet))) {
    abort();
  }
  ChampDossierGeneral(taille);
  std::array<Organisation, 20> organisations;
  int16_t paramFinal = 0;
  const Resultat<void> parametres = LireParamLogOctets(octets, organisations, paramFinal);
  if (parametres.Ok() != (taille >= 8276) || (!parametres && parametres.Erreur().octet > taille)) abort();
  VerifierTexteSur(octets);
  return 0;
}
