// Fuzz target of the table code decoder: the input is the body of a code
// (what stands between "#tvl(" and ")#"). It is decoded whole, then step by
// step as the generator does, written back in both modes, and the written
// code decoded again.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Ports.h"
#include "tables/CodeTableau.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  using namespace norvane;
  const std::string_view corps(reinterpret_cast<const char*>(donnees), taille);
  static ModeleTableau modele;
  const Resultat<void> lu = LireCodeTableau(corps, modele);
  if (!lu && lu.Erreur().octet > corps.size()) __builtin_trap();

  static ModeleTableau pasAPas;
  std::string_view reste = corps;
  LireTypeTableau(reste, pasAPas);
  if (LireEnteteCode(reste, pasAPas)) LireLignesCode(reste, pasAPas);

  MessagesMuets messages;
  const std::string silencieux = EcrireCodeTableau(modele);
  const std::string averti = EcrireCodeTableau(modele, 1, messages);
  static ModeleTableau relu;
  LireCodeTableau(silencieux, relu);
  LireCodeTableau(averti, relu);
  ReparerFormats(relu);
  return 0;
}
