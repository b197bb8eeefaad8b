#include "template/SeriesFormules.h"
#include "verification/VerificationCode.h"

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "tables/CodeTableau.h"
#include "tables/GenerationTableau.h"
#include "template/Interpreteur.h"
#include "template/Nettoyage.h"
#include "template/Textes.h"

namespace norvane {
namespace {

constexpr std::string_view kAlors = ")alors:";

// A box as one line of the report.
std::string LigneMessage(const std::string& texte, const std::string& conseil) {
  std::string ligne = conseil.empty() ? texte : texte + " " + conseil;
  return Trim(RemplacerTout(ligne, "\n", " "));
}

// The code behind a "si(...)alors:" prefix; the interpreter itself tells a
// condition that is never closed.
std::string SansCondition(const std::string& code) {
  if (!CommencePar(code, "si(", true)) return code;
  const std::size_t alors = ChercherSansCasse(code, kAlors);
  return alors == std::string::npos ? std::string() : code.substr(alors + kAlors.size());
}

}  // namespace

void MessagesEnregistres::AfficherMessage(const std::string& /*appelant*/, const std::string& titre,
                                          const std::string& texte, const std::string& conseil,
                                          const std::string& style) {
  if (syntaxeSeule && titre == kTitreDossierAbsent) return;
  if (style == "Aide") {
    sens = Trim(RemplacerTout(texte, "\n", " "));
  } else {
    fautes.push_back(LigneMessage(texte, conseil));
  }
}

Reponse MessagesEnregistres::PoserQuestion(const std::string& /*titre*/, const std::string& /*texte*/,
                                           Boutons /*boutons*/, Icone /*icone*/, int /*boutonParDefaut*/) {
  return Reponse::Non;
}

void MessagesEnregistres::Vider() {
  sens.clear();
  fautes.clear();
}

CodeVerifie VerificateurCode::Verifier(std::string_view tranche) {
  messages_.Vider();
  CodeVerifie resultat;
  std::string code(tranche.substr(kMarqueDebut.size(), tranche.size() - kMarqueDebut.size() - kMarqueFin.size()));
  NettoyerCode(code);
  resultat.code = Cp1252VersUtf8(std::string(kMarqueDebut) + code + std::string(kMarqueFin));
  std::string texte(tranche);
  InterpreterPortion(g_, texte, true);
  if (texte != tranche) resultat.valeur = Cp1252VersUtf8(Trim(RemplacerTout(texte, "\\par ", " ")));
  VerifierDecodeurs(code);
  resultat.sens = messages_.sens;
  for (const std::string& faute : messages_.fautes) {
    resultat.message += (resultat.message.empty() ? "" : " | ") + faute;
  }
  resultat.valide = messages_.fautes.empty();
  return resultat;
}

// Explain mode does not read tables and graphs: their codes go through the
// generator's decoders here.
void VerificateurCode::VerifierDecodeurs(std::string code) {
  code = SansCondition(code);
  if (EstCodeTableau(code)) {
    const std::string texte = NettoyerCodeTableau(code);
    ModeleTableau modele;
    const Resultat<void> lu = LireCodeTableau(texte, modele);
    if (!lu) messages_.fautes.push_back(MessageLectureTableau(texte, lu.Erreur()));
  } else if (CommencePar(code, "gph(")) {
    graphiques_.GenererGraphique(g_, code);
  }
}

}  // namespace norvane
