// Fuzz target of the table store reader: the input is the bytes of a
// tableaux.txt. It is read with and without lines, written back silently,
// and its folder tree built.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "tables/ArbreTableaux.h"
#include "tables/StockTableaux.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  using namespace norvane;
  const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
  StockTableaux stock;
  LireStockTableaux(octets, false, stock);
  const Resultat<void> lu = LireStockTableaux(octets, true, stock);
  if (!lu && lu.Erreur().octet > octets.size()) __builtin_trap();
  std::string texte;
  for (std::size_t i = 0; i < stock.modeles.size(); ++i) {
    texte += TexteModeleStock(stock.modeles[i], static_cast<int>(i + 1), nullptr);
  }
  StockTableaux relu;
  LireStockTableaux(texte, true, relu);
  ArbreTableaux arbre;
  ConstruireArbre(arbre, stock.modeles);
  return 0;
}
