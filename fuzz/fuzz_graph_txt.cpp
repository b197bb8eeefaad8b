// Fuzz target of the graph store: the input is the bytes of a graph.txt. The
// store loads them, shows its tree, builds the code of each model; written
// back, a file of whole records (no duplicate titles) gives its own bytes.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>

#include "frame/Texte.h"
#include "graphs/CodeGraphique.h"
#include "graphs/StockGraphiques.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  using namespace norvane;
  const std::string octets(reinterpret_cast<const char*>(donnees), taille);
  auto stock = std::make_unique<StockGraphiques>();
  MessagesMuets silence;
  ChargerGraphiquesOctets(*stock, octets, silence);
  RemplirArbreGraphiques(*stock);
  for (int i = 1; i <= stock->NbGraphiques; ++i) {
    ModeleGraphique relu;
    const std::string code = ConstruireCodeGraphique(stock->Slot(i));
    LireCodeGraphique(relu, code.substr(4, code.size() - 5));
  }
  std::string titres;
  for (int i = 1; i <= stock->NbGraphiques; ++i) titres += Trim(stock->Slot(i).Titre) + '\n';
  RendreTitresUniques(*stock);
  std::string apres;
  for (int i = 1; i <= stock->NbGraphiques; ++i) apres += Trim(stock->Slot(i).Titre) + '\n';
  if (taille % kLongueurModeleGraphique == 0 && titres == apres && OctetsGraphiques(*stock) != octets) std::abort();
  if (AjouterGraphique(*stock, silence)) {
    stock->GraphiqueCourant = 1;
    SupprimerGraphique(*stock);
  }
  return 0;
}
