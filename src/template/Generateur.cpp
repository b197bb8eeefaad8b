#include "template/Generateur.h"

#include <algorithm>
#include <utility>

#include "frame/Encodage.h"
#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"
#include "study/DossierGeneral.h"
#include "template/Editeurs.h"
#include "template/Interpreteur.h"
#include "template/MiseAJour.h"
#include "template/Passes.h"
#include "template/TablePolices.h"

namespace norvane {
namespace {

constexpr std::size_t kLimiteCollage = 20000;

// A bookmark end that a word processor put inside the start mark, and the
// text it becomes: the bookmark moved in front of the mark.
constexpr std::pair<std::string_view, std::string_view> kSignetsDansMarque[] = {
    {"#tvl{\\*\\bkmkend DDE_LINK}(", "{\\*\\bkmkend DDE_LINK}#tvl("},
    {"#tvl{\\*\\bkmkend DDE_LINK1}(", "{\\*\\bkmkend DDE_LINK1}#tvl("},
    {"#tvl{\\*\\bkmkend DDE_LINK2}(", "{\\*\\bkmkend DDE_LINK2}#tvl("},
};

class Creation : public ParcoursMorceaux {
 public:
  using ParcoursMorceaux::ParcoursMorceaux;

 private:
  Suite Tour(std::size_t i) override {
    CouperParagrapheCache();
    if (proprietes_.Passer(morceau_, sortie_)) return Suite::PieceSuivante;
    EtendreTables();
    ReparerSignets();
    const std::size_t marque = morceau_.Trouver(debutCode_);
    if (marque == std::string::npos) return SansCode(i);
    EcrireJusqua(marque);
    // Writing may have dropped the consumed head: the code starts the piece.
    const std::size_t debut = morceau_.Debut();
    const std::size_t fin = morceau_.Trouver(finCode_);
    if (fin == std::string::npos) return SansFin(i);
    std::string code = morceau_.Texte().substr(debut, fin + 2 - debut);
    g_.etat.DernierResultat = InterpreterPortion(g_, code, false);
    progression_.CodeTraite();
    sortie_.Ecrire(code, true);
    morceau_.Avancer(fin + 2);
    return morceau_.Vide() ? Suite::PieceSuivante : Suite::MemePiece;
  }

  // After a false condition the next paragraph mark loses "ar" and the
  // character behind it, so that the hidden text runs on.
  void CouperParagrapheCache() {
    if (g_.etat.DernierResultat != 0) return;
    g_.etat.DernierResultat = -1;
    const std::size_t p = morceau_.Trouver(paragraphe_);
    if (p == std::string::npos) return;
    morceau_.Retoucher(p + 2, std::min(p + 5, morceau_.Texte().size()), {});
  }

  void EtendreTables() {
    EtendrePolices(morceau_, tables_);
    EtendreCouleurs(morceau_, tables_, g_.etat.ProchaineCouleur);
  }

  // Bookmarks inside a start mark are moved out, once for each form a round;
  // the text keeps its length, so the edit is made where it stands.
  void ReparerSignets() {
    for (std::size_t k = 0; k < 3; ++k) {
      const std::size_t p = morceau_.Trouver(signets_[k]);
      if (p == std::string::npos) continue;
      const auto& [forme, reparee] = kSignetsDansMarque[k];
      morceau_.Retoucher(p, p + forme.size(), reparee);
    }
  }

  // No start mark in the piece: it is written, unless a "#" in its tail may
  // be the head of a torn mark, in which case it is glued to the next piece.
  // The last piece has nothing to be glued to, and such a tail is lost.
  Suite SansCode(std::size_t i) {
    const std::string_view reste = morceau_.Reste();
    const std::string_view queue = reste.substr(reste.size() > 6 ? reste.size() - 6 : 0);
    if (queue.find('#') == std::string_view::npos) {
      sortie_.Ecrire(reste, true);
      return Suite::PieceSuivante;
    }
    return Dernier(i) ? Suite::Fin : Suite::Coller;
  }

  // A start mark with no end mark in the piece: glue on while the next piece
  // is short, else report the fault and let its text stand in the result.
  Suite SansFin(std::size_t i) {
    if (!Dernier(i) && morceaux_[i + 1].size() < kLimiteCollage) return Suite::Coller;
    const std::string reste(morceau_.Reste());
    if (i == pieceSignalee_) {
      // The same fault met again in the piece that carries its notice: it
      // has been reported once, its text stands as it is.
      sortie_.Ecrire(reste, true);
      return Dernier(i) ? Suite::Fin : Suite::PieceSuivante;
    }
    const std::string extrait = reste.size() < 66 ? reste : reste.substr(0, 62) + "...";
    g_.messages.AfficherMessage("CreationDoc", "Le modèle de document comporte une erreur !",
                                "Norvane ne trouve pas la balise de fin d'un code à interpréter dans le modèle de "
                                "document utilisé pour la création.",
                                "Le code concerné est : " + Cp1252VersUtf8(extrait) +
                                    "\nModifier le modèle de document en conséquence \npour ne plus voir apparaître "
                                    "cette erreur.",
                                "");
    std::string avis = Utf8VersCp1252(
                           "Norvane n'a pas pû interpréter le code qui suit car il n'a pas trouvé la balise de fin "
                           "\")#\" : ") +
                       reste;
    if (Dernier(i)) {
      sortie_.Ecrire(avis, true);
      return Suite::Fin;
    }
    morceaux_[i + 1] = avis + morceaux_[i + 1];
    pieceSignalee_ = i + 1;
    return Suite::PieceSuivante;
  }

  std::size_t pieceSignalee_ = std::string::npos;
  RechercheMemorisee debutCode_{"#tvl(", true};
  RechercheMemorisee finCode_{")#", false};
  RechercheMemorisee paragraphe_{"\\par", true};
  RecherchesTables tables_;
  RechercheMemorisee signets_[3] = {
      {kSignetsDansMarque[0].first, false}, {kSignetsDansMarque[1].first, false}, {kSignetsDansMarque[2].first, false}};
};

void PreparerGeneration(Generation& g) {
  ChargerInfoDossier(g.session);
  if (g.AnneesCerfa) g.session.InfoDossier.NbAnEtude = *g.AnneesCerfa > 0 ? *g.AnneesCerfa : 5;
  g.etat = EtatGeneration{};
  if (Trim(g.session.RepDossier[1]).empty()) g.session.RepDossier[1] = g.session.RepDossier[0];
  if (Trim(g.session.NomDossier[1]).empty()) g.session.NomDossier[1] = g.session.NomDossier[0];
}

bool RemplacementRefuse(Generation& g, const std::string& resultat) {
  if (FichierExiste(resultat) == 0) return false;
  const Reponse r = g.messages.PoserQuestion("Norvane", "Le document demandé existe déjà !\nVoulez-vous le remplacer ?",
                                             Boutons::OuiNon, Icone::Exclamation, 1);
  return r != Reponse::Oui;
}

// Steps after the writing: conversion, opening, and the removal of the RTF
// twin of a .doc result. A result that is not RTF is converted before it is
// opened, so that the user never sees RTF under another format's name.
void Finir(Generation& g, std::string resultat, bool sansOuvrir) {
  if (g.session.options.OptimisationOOo == 1 && g.editeur && resultat.size() >= 3) {
    // The OpenOffice driver loads the result itself to save it as .doc; it
    // stays open when OpenOffice is the bound editor.
    const std::string doc = resultat.substr(0, resultat.size() - 3) + "doc";
    const bool ouvertDansEditeur = IndexEditeur(g.session.options) == kEditeurOpenOffice;
    if (g.editeur->SauvegarderSous(!ouvertDansEditeur, kEditeurOpenOffice, resultat, doc) && ouvertDansEditeur) {
      sansOuvrir = true;
    }
    resultat = doc;
  }
  if (!FinitPar(resultat, ".RTF", true)) SauvegarderParEditeur(g, resultat, resultat, kConseilCreerDoc);
  if (!sansOuvrir) OuvrirDocument(g, resultat);
  if (FinitPar(resultat, ".doc", true)) SupprimeFichier(resultat.substr(0, resultat.size() - 3) + "rtf");
}

}  // namespace

ResultatDocument CreerDocument(Generation& g, const std::string& modele, const std::string& resultat,
                               const OptionsCreation& options) {
  const auto [miseAJour, sansOuvrir, demanderRemplacement] = options;
  ResultatDocument r;
  PreparerGeneration(g);
  // The files this generation read are let go when it ends, whichever way it ends.
  struct FinLectures {
    Generation& generation;
    ~FinLectures() { generation.etat.Fichiers = CacheEtude(); }
  } finLectures{g};
  if (!Trim(modele).empty() && EcritureRefusee(g, miseAJour ? std::string() : modele, resultat)) return r;
  if (Trim(modele).empty() || (!miseAJour && demanderRemplacement && RemplacementRefuse(g, resultat))) {
    r.abandonne = true;
    return r;
  }
  if (miseAJour) return MettreAJourDocument(g, modele, resultat, sansOuvrir);
  auto contenu =
      LireDocument(g, modele, "Le modèle de document", "Vérifiez le chemin du modèle choisi pour la création.");
  if (!contenu) return r;
  ModeleDecoupe decoupe = DecouperEnMorceaux(*contenu);
  contenu.reset();
  r.nbCodes = decoupe.nbCodes;
  Creation creation(g, std::move(decoupe), resultat);
  const std::string texte = creation.Executer();
  r.ecrit = EcrireDocument(g, resultat, texte);
  creation.Progression().Terminer("            Création terminée !");
  if (r.ecrit) Finir(g, resultat, sansOuvrir);
  return r;
}

}  // namespace norvane
