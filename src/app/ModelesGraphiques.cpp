#include "app/ModelesGraphiques.h"

#include <memory>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "graphs/CodeGraphique.h"
#include "graphs/StockGraphiques.h"

namespace norvane {
namespace {

std::unique_ptr<StockGraphiques> Charger(Application& application) {
  auto stock = std::make_unique<StockGraphiques>();
  ChargerGraphiques(*stock, application.session.RepModelGraph, application.messages);
  return stock;
}

// Depth of a node of a tree whose parents come first.
int Profondeur(const std::vector<NoeudArbre>& arbre, std::size_t indice) {
  int profondeur = 0;
  for (std::string parent = arbre[indice].cleParent; !parent.empty(); ++profondeur) {
    std::string suivant;
    for (const NoeudArbre& noeud : arbre) {
      if (noeud.cle == parent) suivant = noeud.cleParent;
    }
    parent = suivant;
  }
  return profondeur;
}

}  // namespace

void ArbreGraphiquesVersSortie(Application& application, std::ostream& sortie) {
  const std::vector<NoeudArbre> arbre = RemplirArbreGraphiques(*Charger(application));
  for (std::size_t i = 0; i < arbre.size(); ++i) {
    sortie << std::string(static_cast<std::size_t>(2 * Profondeur(arbre, i)), ' ') << Cp1252VersUtf8(arbre[i].texte)
           << '\n';
  }
}

std::optional<std::string> CodeModeleGraphique(Application& application, const std::string& nomUtf8) {
  const auto stock = Charger(application);
  for (int i = 1; i <= stock->NbGraphiques; ++i) {
    const ModeleGraphique& modele = stock->Slot(i);
    if (Cp1252VersUtf8(Trim(modele.Titre)) == Trim(nomUtf8)) return CodeGraphiqueInsere(modele);
  }
  return std::nullopt;
}

}  // namespace norvane
