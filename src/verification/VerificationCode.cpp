#include "verification/VerificationCode.h"

#include <algorithm>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "tables/CodeTableau.h"
#include "tables/GenerationTableau.h"
#include "template/Interpreteur.h"
#include "template/Nettoyage.h"
#include "template/SeriesFormules.h"
#include "template/Textes.h"
#include "verification/VerificationTableau.h"

namespace norvane {
namespace {

constexpr std::string_view kAlors = ")alors:";

using Dit = MessagesEnregistres::Dit;

void AjouterUneFois(std::vector<Dit>& dits, const std::string& texte, int ligne) {
  auto dit = std::find_if(dits.begin(), dits.end(), [&texte](const Dit& d) { return d.texte == texte; });
  if (dit == dits.end()) dit = dits.insert(dits.end(), Dit{texte, {}});
  if (ligne > 0 && std::find(dit->lignes.begin(), dit->lignes.end(), ligne) == dit->lignes.end()) {
    dit->lignes.push_back(ligne);
  }
}

// " (ligne 2 du tableau)", " (lignes 2, 3 et 5 du tableau)".
std::string Lignes(const std::vector<int>& lignes) {
  if (lignes.empty()) return {};
  std::string texte = lignes.size() == 1 ? " (ligne " : " (lignes ";
  for (std::size_t i = 0; i < lignes.size(); ++i) {
    if (i > 0) texte += i + 1 == lignes.size() ? " et " : ", ";
    texte += std::to_string(lignes[i]);
  }
  return texte + " du tableau)";
}

// A box as one line of the report.
std::string LigneMessage(const std::string& texte, const std::string& conseil) {
  std::string ligne = conseil.empty() ? texte : texte + " " + conseil;
  return Trim(RemplacerTout(RemplacerTout(ligne, " \n", "\n"), "\n", " "));
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
    AjouterFaute(LigneMessage(texte, conseil));
  }
}

void MessagesEnregistres::AjouterFaute(const std::string& texte) { AjouterUneFois(fautes, texte, ligneTableau); }

void MessagesEnregistres::Constater(Constat sorte, const std::string& texte) {
  if (syntaxeSeule && sorte != Constat::FormuleIllisible) return;
  if (calculsIgnores && sorte == Constat::CalculImpossible) return;
  AjouterUneFois(avertissements, texte, ligneTableau);
}

std::string MessagesEnregistres::Joindre(const std::vector<Dit>& dits) {
  std::string texte;
  for (const Dit& dit : dits) texte += (texte.empty() ? "" : " | ") + dit.texte + Lignes(dit.lignes);
  return texte;
}

Reponse MessagesEnregistres::PoserQuestion(const std::string& /*titre*/, const std::string& /*texte*/,
                                           Boutons /*boutons*/, Icone /*icone*/, int /*boutonParDefaut*/) {
  return Reponse::Non;
}

void MessagesEnregistres::Vider() {
  sens.clear();
  fautes.clear();
  avertissements.clear();
  ligneTableau = 0;
  calculsIgnores = false;
}

CodeVerifie VerificateurCode::Verifier(std::string_view tranche) {
  messages_.Vider();
  CodeVerifie resultat;
  std::string code(tranche.substr(kMarqueDebut.size(), tranche.size() - kMarqueDebut.size() - kMarqueFin.size()));
  NettoyerCode(code);
  resultat.code = Cp1252VersUtf8(std::string(kMarqueDebut) + code + std::string(kMarqueFin));
  std::string texte(tranche);
  dernierResultat_ = InterpreterPortion(g_, texte, true);
  if (texte != tranche) resultat.valeur = Cp1252VersUtf8(Trim(RemplacerTout(texte, "\\par ", " ")));
  VerifierDecodeurs(code);
  resultat.sens = messages_.sens;
  resultat.message = MessagesEnregistres::Joindre(messages_.fautes);
  if (!messages_.avertissements.empty()) {
    resultat.message += (resultat.message.empty() ? "" : " | ") + MessagesEnregistres::Joindre(messages_.avertissements);
  }
  resultat.statut = !messages_.fautes.empty()           ? Statut::Erreur
                    : !messages_.avertissements.empty() ? Statut::Avertissement
                                                        : Statut::Valide;
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
    if (!lu) {
      messages_.AjouterFaute(MessageLectureTableau(texte, lu.Erreur()));
      return;
    }
    VerifierLignesTableau(g_, messages_, modele);
  } else if (CommencePar(code, "gph(")) {
    graphiques_.GenererGraphique(g_, code);
  }
}

}  // namespace norvane
