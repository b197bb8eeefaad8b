#include "drivers/PiloteOpenOffice.h"

#include <filesystem>

#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"

namespace norvane {
namespace {

constexpr char kAppelant[] = "PiloteOpenOffice";
constexpr char kAucunDocument[] = "Aucun document n'est actuellement ouvert dans OpenOffice avec Norvane.";

// The read-only mark of a file is taken off before it is opened for editing.
void EffacerAttributs(const std::string& chemin) {
  std::error_code ec;
  std::filesystem::permissions(chemin, std::filesystem::perms::owner_write, std::filesystem::perm_options::add, ec);
}

}  // namespace

std::string FiltreOpenOffice(const std::string& extension) {
  if (extension == "RTF") return "Rich Text Format";
  if (extension == "ODT") return "writer8";
  if (extension == "PDF") return "writer_pdf_Export";
  return "MS Word 97";
}

void PiloteOpenOffice::NouveauDocument() { office_.Charger("private:factory/swriter"); }

void PiloteOpenOffice::OuvrirDocument(const std::string& chemin) {
  const std::string reel = CheminReel(chemin);
  EffacerAttributs(reel);
  office_.Charger(CheminVersUrl(reel));
}

void PiloteOpenOffice::SauvegarderDocument(bool sousAutreNom, bool confirmer) {
  try {
    if (office_.NombreCadres() <= 0 || !office_.DocumentCourant()) return;
    if (office_.LectureSeule()) {
      contexte_.messages.AfficherMessage(kAppelant, "Sauvegarde du document impossible !",
                                         "Le document en cours est ouvert en lecture seule !",
                                         "Vos modifications ne peuvent donc pas être sauvegardées dans le document "
                                         "en cours !",
                                         "");
      return;
    }
    if (!office_.ALocation() || sousAutreNom) {
      SauvegarderSous(contexte_, 0, kEditeurOpenOffice, "", confirmer ? -1 : 0);
    } else if (!office_.EstModifie()) {
      contexte_.messages.AfficherMessage(kAppelant, "Sauvegarde du document inutile !",
                                         "Vous n'avez pas modifié le document depuis sa dernière ouverture !",
                                         "Sa sauvegarde est donc inutile.", "");
    } else {
      office_.Enregistrer();
    }
  } catch (const ErreurAutomation&) {
  }
}

void PiloteOpenOffice::FermerDocument(int16_t reponse) {
  try {
    if (office_.NombreCadres() <= 0 || !office_.DocumentCourant()) return;
    if (reponse != kFermerForcer && !office_.EstModifie()) reponse = kFermerSansEnregistrer;
    if (reponse == kFermerDemander) {
      const Reponse r = contexte_.messages.PoserQuestion(
          "Fermeture du document", "Voulez-vous enregistrer les changements apportés au document en cours ?",
          Boutons::OuiNonAnnuler, Icone::Information, 0);
      reponse = r == Reponse::Oui ? kFermerEnregistrer : r == Reponse::Non ? kFermerSansEnregistrer : 2;
    }
    if (reponse == kFermerForcer || reponse == kFermerEnregistrer) {
      if (!office_.ALocation()) SauvegarderDocument(true, true);
      else if (reponse == kFermerEnregistrer) office_.Enregistrer();
      else contexte_.messages.AfficherMessage(kAppelant, "A faire !", "", "", "seule");
    } else if (reponse != kFermerSansEnregistrer) {
      return;
    }
    office_.FermerDocumentCourant();
    if (office_.NombreCadres() < 1) office_.Liberer();
  } catch (const ErreurAutomation&) {
  }
}

void PiloteOpenOffice::InsererTexte(const std::string& texte, const FormatInsertion& format, int16_t modeInsertion) {
  try {
    if (office_.NombreCadres() == 0 || !office_.DocumentCourant()) {
      contexte_.messages.AfficherMessage(kAppelant, "Erreur : insertion impossible.", kAucunDocument, "", "");
      return;
    }
    office_.InsererTexte(modeInsertion == 1 ? "\n" + texte : texte, format.police, format.taille);
  } catch (const ErreurAutomation&) {
  }
}

std::string PiloteOpenOffice::LireSelection() {
  try {
    if (office_.NombreCadres() > 0 && office_.DocumentCourant()) return office_.TexteSelection();
    contexte_.messages.AfficherMessage(kAppelant, "Erreur : récupération de la sélection impossible.",
                                       kAucunDocument, "", "");
  } catch (const ErreurAutomation&) {
  }
  return {};
}

// RTF, ODT and PDF are stored in their format; any other extension is Word,
// asked for when the document stays open and confirmation is wanted, and
// left in RTF when it is not.
bool PiloteOpenOffice::Enregistrer(ContexteSauvegarde& c, int16_t fermer, const std::string& chemin,
                                   int16_t confirmer) {
  const std::string extension = ExtensionDe(chemin);
  if (extension == "LWP") {
    RefuserFormatLwp(c.messages);
    return false;
  }
  std::string filtre = FiltreOpenOffice(extension);
  const bool word = filtre == FiltreOpenOffice("DOC");
  if (word && fermer != -1) {
    if (confirmer != -1) filtre = FiltreOpenOffice("RTF");
    else if (!ConfirmerFormat(c.messages, fermer, confirmer, false)) return false;
  }
  if (!office_.DocumentCourant()) throw ErreurAutomation("aucun document courant");
  office_.EnregistrerSous(CheminVersUrl(CheminReel(chemin)), filtre);
  if (fermer == -1) FermerDocument(kFermerSansEnregistrer);
  return true;
}

}  // namespace norvane
