#include "drivers/SauvegarderSous.h"

#include <filesystem>

#include "frame/Editeur.h"
#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr char kAppelant[] = "PiloteMSWord";

std::string FiltreDialogue(const Options& options) {
  std::string filtre = "Modèle document Norvane (*.tvm)|*.tvm|Document Rich Text Format (*.rtf)|*.rtf";
  if (NomEditeur(options) == "wordpro.exe") filtre += "|Document Lotus Word Pro (*.lwp)|*.lwp";
  return filtre;
}

// The template written as RTF becomes the .tvm itself, and is reopened so
// that the user goes on working in it.
void RenommerModele(Pilote& pilote, const std::string& cheminRtf) {
  pilote.FermerSansEnregistrer();
  const std::string final = cheminRtf.substr(0, cheminRtf.size() - 3) + "tvm";
  SupprimeFichier(final);
  std::error_code ec;
  std::filesystem::rename(cheminRtf, final, ec);
  if (ec) throw ErreurAutomation(ec.message());
  pilote.OuvrirDocument(final);
}

}  // namespace

std::string ExtensionDe(const std::string& chemin) {
  return Majuscules(chemin.size() >= 3 ? chemin.substr(chemin.size() - 3) : chemin);
}

void RefuserFormatLwp(PortMessages& messages) {
  messages.AfficherMessage(kAppelant, "Sauvegarde impossible dans le format demandé",
                           "Pour pouvoir sauvegarder au format LWP, Norvane doit être lié à l'éditeur de texte Lotus "
                           "Word Pro.",
                           "Cliquez le menu \"PROPRIETES\" -> \"AUTRE CHOIX\" pour sélectionner Lotus Word Pro à "
                           "condition qu'il soit installé sur votre ordinateur.",
                           "");
}

void ConseilFormatRtf(PortMessages& messages, const std::string& formulaire) {
  messages.AfficherMessage(formulaire, "Préférer le format RTF à tout autre format !",
                           "Attention : vos docs doivent être au format RTF si vous souhaitez par la suite mettre à "
                           "jour leurs données avec le menu \"Mise à jour\" de Norvane.",
                           "La conversion au format DOC ou LWP est effectuée en arrière-plan par le traitement de "
                           "texte lui-même qui modifie le code RTF présent dans le document. Le code concernant la "
                           "mise à jour des données Tervol inscrit dans le code RTF risque d'être alors illisible par "
                           "Norvane, même si entre-temps vous convertissez de nouveau le .DOC/.LWP en .RTF !",
                           "");
}

bool ConfirmerFormat(PortMessages& messages, int16_t fermer, int16_t confirmer, bool lotus) {
  if (fermer == -1 || confirmer != -1) return true;
  ConseilFormatRtf(messages, "frmBarre");
  const Reponse r = lotus ? messages.PoserQuestion("Sauvegarde au format LWP",
                                                   "Confirmer la sauvegarde au format Lotus Word Pro", Boutons::OuiNon,
                                                   Icone::Question, 0)
                          : messages.PoserQuestion("Sauvegarde au format DOC",
                                                   "Confirmer la sauvegarde au format Microsoft Word", Boutons::OuiNon,
                                                   Icone::Question, 0);
  if (r == Reponse::Oui) return true;
  messages.AfficherMessage(kAppelant, "Sauvegarde annulée", "", "", "seule");
  return false;
}

bool SauvegarderSous(ContexteSauvegarde& c, int16_t fermer, int editeur, std::string chemin, int16_t confirmer) {
  try {
    if (chemin.empty()) {
      if (c.choix) chemin = Trim(c.choix->ChoisirFichier(c.repModlDocs, FiltreDialogue(c.options), 2));
      if (chemin.empty()) return false;
    }
    if (chemin.back() == '\\' || chemin.back() == '/') chemin.pop_back();
    const bool modele = ExtensionDe(chemin) == "TVM";
    if (modele) chemin = chemin.substr(0, chemin.size() - 3) + "rtf";
    if (chemin.find_last_of("/\\") == std::string::npos) {
      c.messages.AfficherMessage(kAppelant, "Erreur : sauvegarde impossible.",
                                 "Le chemin du document à sauvegarder est erroné.", "", "");
      return false;
    }
    Pilote* pilote = c.pilote ? c.pilote(editeur) : nullptr;
    if (pilote == nullptr) return false;
    const bool ecrit = pilote->Enregistrer(c, fermer, chemin, confirmer);
    if (ecrit && modele) RenommerModele(*pilote, chemin);
    return ecrit;
  } catch (const std::exception& e) {
    c.messages.AfficherMessage(kAppelant, "Erreur du traitement de texte lors de la sauvegarde du document en cours :",
                               std::string("Description technique de l'erreur : ") + e.what(), "", "");
    return false;
  }
}

}  // namespace norvane
