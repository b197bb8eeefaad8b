#include "template/ParcoursCreation.h"

#include <algorithm>

#include "frame/Encodage.h"
#include "template/Interpreteur.h"

namespace norvane {
namespace {

constexpr std::size_t kLimiteCollage = 20000;

}  // namespace

Suite ParcoursCreation::Tour(std::size_t i) {
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
  g_.etat.DernierResultat = Interpreter(code, debut);
  progression_.CodeTraite();
  sortie_.Ecrire(code, true);
  morceau_.Avancer(fin + 2);
  return morceau_.Vide() ? Suite::PieceSuivante : Suite::MemePiece;
}

int16_t ParcoursCreation::Interpreter(std::string& code, std::size_t /*debut*/) {
  return InterpreterPortion(g_, code, false);
}

void ParcoursCreation::SignalerSansFin(const std::string& extrait, std::size_t /*debut*/) {
  g_.messages.AfficherMessage("CreationDoc", "Le modèle de document comporte une erreur !",
                              "Norvane ne trouve pas la balise de fin d'un code à interpréter dans le modèle de "
                              "document utilisé pour la création.",
                              "Le code concerné est : " + Cp1252VersUtf8(extrait) +
                                  "\nModifier le modèle de document en conséquence \npour ne plus voir apparaître "
                                  "cette erreur.",
                              "");
}

// After a false condition the next paragraph mark loses "ar" and the
// character behind it, so that the hidden text runs on.
void ParcoursCreation::CouperParagrapheCache() {
  if (g_.etat.DernierResultat != 0) return;
  g_.etat.DernierResultat = -1;
  const std::size_t p = morceau_.Trouver(paragraphe_);
  if (p == std::string::npos) return;
  morceau_.Retoucher(p + 2, std::min(p + 5, morceau_.Texte().size()), {});
}

void ParcoursCreation::EtendreTables() {
  EtendrePolices(morceau_, tables_);
  EtendreCouleurs(morceau_, tables_, g_.etat.ProchaineCouleur);
}

// Bookmarks inside a start mark are moved out, once for each form a round;
// the text keeps its length, so the edit is made where it stands.
void ParcoursCreation::ReparerSignets() {
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
Suite ParcoursCreation::SansCode(std::size_t i) {
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
Suite ParcoursCreation::SansFin(std::size_t i) {
  if (!Dernier(i) && morceaux_[i + 1].size() < kLimiteCollage) return Suite::Coller;
  const std::string reste(morceau_.Reste());
  if (i == pieceSignalee_) {
    // The same fault met again in the piece that carries its notice: it
    // has been reported once, its text stands as it is.
    sortie_.Ecrire(reste, true);
    return Dernier(i) ? Suite::Fin : Suite::PieceSuivante;
  }
  SignalerSansFin(reste.size() < 66 ? reste : reste.substr(0, 62) + "...", morceau_.Debut());
  const std::string avis = Utf8VersCp1252(
      "Norvane n'a pas pû interpréter le code qui suit car il n'a pas trouvé la balise de fin \")#\" : ");
  if (Dernier(i)) {
    sortie_.Ecrire(avis + reste, true);
    return Suite::Fin;
  }
  if (origines_ != nullptr) origines_->AnnoncerTete(avis.size(), origines_->Origine(morceau_.Debut()), reste.size());
  morceaux_[i + 1] = avis + reste + morceaux_[i + 1];
  pieceSignalee_ = i + 1;
  return Suite::PieceSuivante;
}

}  // namespace norvane
