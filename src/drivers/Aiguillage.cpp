#include "drivers/Aiguillage.h"

#include "template/Editeurs.h"

namespace norvane {
namespace {

constexpr char kAutreChoix[] = "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\"";

struct LigneDemande {
  Demande demande;
  const char* conseil;
  bool choixEditeur;
};

std::string Conseil(Demande demande, bool& choixEditeur) {
  static const LigneDemande table[] = {
      {Demande::Nouveau, " puis cliquez à nouveau sur \"DOCUMENT\" -> \"NOUVEAU\".", true},
      {Demande::Fermeture, ".", true},
      {Demande::Sauvegarde, ".", false},
      {Demande::OuvertureListe, " puis cliquez à nouveau sur \"DOCUMENT\" -> \"OUVRIR\".", false},
      {Demande::Creation, " puis cliquez à nouveau sur \"CREER DOC\".", false},
  };
  if (demande == Demande::OuvertureGenerateur) {
    choixEditeur = true;
    return "Sélectionnez un traitement de texte dans \"PROPRIETES\" puis cliquez à nouveau sur \"DOCUMENT\" -> "
           "\"OUVRIR\".";
  }
  for (const LigneDemande& ligne : table) {
    if (ligne.demande == demande) {
      choixEditeur = ligne.choixEditeur;
      return std::string(kAutreChoix) + ligne.conseil;
    }
  }
  return {};
}

}  // namespace

bool SignalerAucunEditeur(PortMessages& messages, Demande demande) {
  bool choixEditeur = false;
  const std::string conseil = Conseil(demande, choixEditeur);
  SignalerAucunEditeur(messages, conseil);
  return choixEditeur;
}

void Pilotes::Brancher(int editeur, Pilote* pilote) {
  if (editeur >= 1 && editeur <= 3) pilotes_[editeur] = pilote;
}

Pilote* Pilotes::DeCode(int editeur) const { return editeur >= 1 && editeur <= 3 ? pilotes_[editeur] : nullptr; }

Pilote* Pilotes::Servir(Demande demande, bool* choixEditeur) const {
  Pilote* pilote = DeCode(IndexEditeur(options_));
  const bool choix = pilote == nullptr && SignalerAucunEditeur(messages_, demande);
  if (choixEditeur) *choixEditeur = choix;
  return pilote;
}

}  // namespace norvane
