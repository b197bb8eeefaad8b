// MODELES [<magasin> <nom>]: what the model stores hold, for users and scripts.
//   norvane MODELES                      the tree of each store, one node a line,
//                                        indented by two blanks a level
//   norvane MODELES TABLEAUX "<nom>"     the code of that table model, on one
//                                        line, as it goes into a template
//   norvane MODELES GRAPHIQUES "<titre>" the code of that graph model, likewise
// Each store is one row of kMagasins: its tree, and the code of one model.
#include "app/VerbeModeles.h"

#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include "app/ModelesGraphiques.h"
#include "frame/Encodage.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "study/Catalogues.h"
#include "tables/ArbreTableaux.h"
#include "tables/CodeTableau.h"
#include "tables/FormatsLigne.h"
#include "tables/StockTableaux.h"

namespace norvane {

namespace {

// The nodes depth first, children in the order they were added.
void EcrireNoeuds(const std::vector<NoeudArbre>& noeuds, const std::string& cleParent, int profondeur,
                  std::ostream& sortie) {
  for (const NoeudArbre& noeud : noeuds) {
    if (noeud.cleParent != cleParent) continue;
    sortie << std::string(static_cast<std::size_t>(2 * profondeur), ' ') << noeud.texte << '\n';
    EcrireNoeuds(noeuds, noeud.cle, profondeur + 1, sortie);
  }
}

// A store read only in part still shows what was read, and says where it stopped.
void SignalerLecture(const Resultat<void>& lecture) {
  if (lecture) return;
  std::cerr << lecture.Erreur().Position() << " : " << lecture.Erreur().texte << " ; la suite du fichier est ignorée.\n";
}

std::string CheminStockTableaux(const Session& session) {
  return JoindreChemin(session.RepNorvane, kNomStockTableaux);
}

void ArbreTableauxVersSortie(Application& application, std::ostream& sortie) {
  const std::string chemin = CheminStockTableaux(application.session);
  StockTableaux stock;
  SignalerLecture(ChargerTableaux(chemin, false, stock));
  ArbreTableaux arbre;
  ConstruireArbre(arbre, stock.modeles);
  EcrireNoeuds(arbre.Noeuds(), "", 0, sortie);
}

// "#tvl(...)#" of the first model of that name (trimmed, compared as typed).
std::optional<std::string> CodeTableau(Application& application, const std::string& nomUtf8) {
  const std::string chemin = CheminStockTableaux(application.session);
  StockTableaux stock;
  SignalerLecture(ChargerTableaux(chemin, true, stock));
  for (std::size_t i = 0; i < stock.modeles.size(); ++i) {
    const ModeleTableau& modele = stock.modeles[i];
    if (Cp1252VersUtf8(Trim(modele.Nom)) != Trim(nomUtf8)) continue;
    const DefautsCellule defauts = DefautsDesOptions(application.session.options);
    return "#tvl(" + EcrireCodeTableau(modele, static_cast<int>(i + 1), application.messages, defauts) + ")#";
  }
  return std::nullopt;
}

struct Magasin {
  const char* nom;         // the second argument, in upper case
  const char* sorte;       // "modèle de tableau", for the message of a missing model
  void (*arbre)(Application&, std::ostream&);
  std::optional<std::string> (*code)(Application&, const std::string&);
};

const std::vector<Magasin>& Magasins() {
  static const std::vector<Magasin> magasins = {
      {"TABLEAUX", "modèle de tableau", ArbreTableauxVersSortie, CodeTableau},
      {"GRAPHIQUES", "modèle de graphique", ArbreGraphiquesVersSortie, CodeModeleGraphique},
  };
  return magasins;
}

}  // namespace

int VerbeModeles(Application& application) {
  const std::string quoi = Majuscules(application.Param(2));
  if (quoi.empty()) {
    for (const Magasin& magasin : Magasins()) magasin.arbre(application, std::cout);
    return 0;
  }
  const std::string nom = application.Param(3);
  for (const Magasin& magasin : Magasins()) {
    if (quoi != magasin.nom) continue;
    if (EstBlanc(nom)) break;
    const std::optional<std::string> code = magasin.code(application, nom);
    if (!code) {
      std::cerr << "Aucun " << magasin.sorte << " nommé « " << nom << " » dans le magasin " << magasin.nom << ".\n";
      return 1;
    }
    std::cout << Cp1252VersUtf8(*code) << '\n';
    return 0;
  }
  std::cerr << "Usage : norvane MODELES [<magasin> \"<nom du modèle>\"] ; magasins :";
  for (const Magasin& magasin : Magasins()) std::cerr << ' ' << magasin.nom;
  std::cerr << '\n';
  return 2;
}

}  // namespace norvane
