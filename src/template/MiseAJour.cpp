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
    const std::size_t fin =
        code == std::string::npos ? code : finCode_.Trouver(morceau_.Texte(), code, morceau_.Version());
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

}  // namespace

ResultatDocument MettreAJourDocument(Generation& g, const std::string& document, const std::string& resultat,
                                     bool sansOuvrir) {
  ResultatDocument r;
  if (FinitPar(document, ".doc", true)) {
    g.messages.AfficherMessage("MiseAJour", kTitreErreurDetectee,
                               "La mise à jour d'un document MS Word demande sa conversion au RTF par le traitement "
                               "de texte.",
                               "Enregistrez d'abord le document au format RTF, puis mettez à jour cette copie.", "");
    return r;
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
  if (!sansOuvrir) OuvrirDocument(g, document);
  // An RTF result is final as written; any other format goes back through
  // the word processor.
  if (!resultat.empty() && !FinitPar(resultat, ".rtf", true)) {
    SauvegarderParEditeur(g, resultat,
                          "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\" puis cliquez à "
                          "nouveau sur \"CREER DOC\".");
  }
  if (FinitPar(resultat, ".doc", true)) SupprimeFichier(resultat.substr(0, resultat.size() - 3) + "rtf");
  return r;
}

}  // namespace norvane
