// Fuzz target of the cleaning of a code: the RTF that word processors leave
// inside "#tvl(...)#" is taken out of any bytes in bounded time, and the
// removal of one mark (its first byte chosen by the input) never reads out
// of the text.
#include <cstddef>
#include <cstdint>
#include <string>

#include "template/Nettoyage.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  using namespace norvane;
  std::string texte(reinterpret_cast<const char*>(donnees), taille);
  std::string marque = texte.substr(0, texte.find('\n'));
  NettoyerCode(texte);
  if (!marque.empty()) EnleverMarque(texte, marque);
  return 0;
}
