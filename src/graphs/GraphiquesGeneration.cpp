#include "graphs/GraphiquesGeneration.h"

#include "graphs/CodeGraphique.h"
#include "graphs/SeriesGraphique.h"

namespace norvane {
namespace {

void SignalerAncienCode(PortMessages& messages) {
  messages.AfficherMessage(
      "CreationDoc", "Code d'un graphique erroné dans le modèle TVM",
      "Le code balisé #tvl(gph(...))# est mal renseigné dans le modèle de document.",
      "Il se peut que ce modèle de document ait été construit avec la version 2003 de Norvane, auquel cas son code "
      "concernant les graphiques doit être mis à jour avec Norvane 2004 ou ultérieur. Pour cela, ouvrez le modèle TVM "
      "et rechercher les codes pour les graphiques. Ré-éditer ces codes avec Norvane grâce au menu \"Insertion\" -> "
      "\"Graphique\". Enfin, sauvegardez votre modèle TVM, et lancez à nouveau la création d'un document résultat.",
      "");
}

}  // namespace

GraphiquesGeneration::GraphiquesGeneration(PortDessinGraphique* dessin, std::function<double()> hasard)
    : dessin_(dessin), hasard_(std::move(hasard)), generateur_(std::random_device{}()) {}

double GraphiquesGeneration::Hasard() {
  if (hasard_) return hasard_();
  return std::uniform_real_distribution<double>(0.0, 1.0)(generateur_);
}

std::optional<std::string> GraphiquesGeneration::GenererGraphique(Generation& generation, const std::string& code) {
  const std::string corps = CorpsCodeGraphique(code);
  if (corps.find(';') == std::string::npos) {
    SignalerAncienCode(generation.messages);
    return std::string();
  }
  const IssueLectureCode issue = LireCodeGraphique(slot1_, PreparerCodeGraphique(corps));
  SignalerLectureCode(generation.messages, slot1_, issue);
  CompleterCouleurs(slot1_, [this] { return Hasard(); });
  GrilleGraphique grille;
  const bool rempli = issue.etat != LectureCode::ChampNonNumerique &&
                      RemplirGrille(slot1_, SourceDeSession(generation.session, false), grille, generation.messages);
  if (dessin_ == nullptr) return std::string();
  if (rempli) return dessin_->ImageGraphique(slot1_, grille);
  ModeleGraphique vide = slot1_;
  vide.NbSeries = 0;
  return dessin_->ImageGraphique(vide, GrilleGraphique{});
}

}  // namespace norvane
