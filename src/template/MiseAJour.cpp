#include "template/MiseAJour.h"


#include "frame/Encodage.h"
#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"
#include "template/Editeurs.h"
#include "template/Interpreteur.h"
#include "template/Morceaux.h"
#include "template/Passes.h"

namespace norvane {
namespace {

constexpr std::size_t kLimiteCollageChamp = 200000;

class MiseAJour : public ParcoursMorceaux {
 public:
  using ParcoursMorceaux::ParcoursMorceaux;
  int32_t NbChamps() const { return nbChamps_; }

 private:
  // One field a piece: what stands behind it in the piece is not written.
  Suite Tour(std::size_t i) override {
    if (proprietes_.Passer(morceau_, sortie_)) return Suite::PieceSuivante;
    const std::size_t debut = morceau_.Trouver(marqueDebut_);
    if (debut == std::string::npos) {
      sortie_.Ecrire(morceau_.Reste(), true);
      return Suite::PieceSuivante;
    }
    EcrireJusqua(debut);
    const std::size_t code = morceau_.Trouver(marqueCode_);
    // The end mark is looked for behind the code's start, so that a ")#" in
    // the shown value cannot cut the field short.
    const std::size_t fin = code == std::string::npos ? code : morceau_.TrouverDepuis(finCode_, code);
    if (fin == std::string::npos) return Incomplet(i);
    std::string champ = morceau_.Texte().substr(code, fin + 2 - code);
    InterpreterPortion(g_, champ, false);
    progression_.CodeTraite();
    sortie_.Ecrire(champ + "}", true);
    ++nbChamps_;
    return Suite::PieceSuivante;
  }

  // A field whose code has not ended in this piece: glued on while the piece
  // is under 200000 characters, else written as it stands.
  Suite Incomplet(std::size_t i) {
    if (Dernier(i) || morceau_.Reste().size() >= kLimiteCollageChamp) {
      sortie_.Ecrire(morceau_.Reste(), true);
      return Suite::PieceSuivante;
    }
    return Suite::Coller;
  }

  int32_t nbChamps_ = 0;
  RechercheMemorisee marqueDebut_{"{\\v #debdata#}", true};
  RechercheMemorisee marqueCode_{"{\\v #findata=#tvl(", true};
  RechercheMemorisee finCode_{")#", false};
};

// A Word document cannot be read as text: an RTF copy is made by the word
// processor, and the update works on that copy. Empty when it could not be.
std::string CopieRtf(Generation& g, const std::string& document) {
  const std::string copie = document.substr(0, document.size() - 4) + ".rtf";
  g.messages.PoserQuestion("Norvane utilise le format texte enrichi ( RTF ) !",
                           "Pour mettre à jour votre document MS Word, Norvane va devoir créer une copie convertie au "
                           "RTF.\nSouhaitez-vous continuer en autorisant la création de \n" +
                               document.substr(0, document.size() - 4) +
                               ".rtf ?\n( si un fichier de ce nom existe déjà dans ce répertoire, il sera alors "
                               "perdu ! )",
                           Boutons::Ok, Icone::Information, 0);
  if (!SauvegarderParEditeur(g, document, copie, kConseilCreerDoc)) return {};
  g.messages.AfficherMessage("MiseAJour", "Cliquez OK pour lancer la mise à jour !",
                             "Norvane a terminé la conversion au RTF de votre document MS Word.",
                             "La mise à jour du document MS Word va pouvoir se faire à partir de la copie RTF.", "seule");
  return copie;
}

}  // namespace

ResultatDocument MettreAJourDocument(Generation& g, const std::string& aMettreAJour, const std::string& resultat,
                                     bool sansOuvrir) {
  ResultatDocument r;
  std::string document = aMettreAJour;
  if (FinitPar(document, ".doc", true)) {
    document = CopieRtf(g, document);
    if (document.empty()) return r;
  }
  auto contenu = LireDocument(g, document, "Le document", "Vérifiez le chemin du document à mettre à jour.");
  if (!contenu) return r;
  ModeleDecoupe decoupe = DecouperEnMorceaux(*contenu);
  contenu.reset();
  r.nbCodes = decoupe.nbCodes;
  MiseAJour miseAJour(g, std::move(decoupe), document);
  const std::string texte = miseAJour.Executer();
  r.nbChampsMisAJour = miseAJour.NbChamps();
  r.ecrit = EcrireDocument(g, document, texte);
  miseAJour.Progression().Terminer("        " + std::to_string(r.nbChampsMisAJour) + " champs mis à jour !");
  // An RTF result is final as written; any other format goes back through
  // the word processor, before the user sees it.
  if (!resultat.empty() && !FinitPar(resultat, ".rtf", true)) {
    SauvegarderParEditeur(g, document, resultat, kConseilCreerDoc);
  }
  if (!sansOuvrir) OuvrirDocument(g, FinitPar(resultat, ".rtf", true) ? document : resultat);
  if (FinitPar(resultat, ".doc", true)) SupprimeFichier(resultat.substr(0, resultat.size() - 3) + "rtf");
  return r;
}

}  // namespace norvane
