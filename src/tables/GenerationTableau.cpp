// The table as a whole: the code cleaned and decoded, the dossiers of a
// comparison made sure of, then each line dispatched by its kind.
#include "tables/GenerationTableau.h"

#include <algorithm>
#include <array>
#include <exception>
#include <utility>

#include "frame/Texte.h"
#include "tables/CodeTableau.h"
#include "tables/DefinitionLigne.h"
#include "tables/LignesRtf.h"
#include "tables/MultiDossier.h"
#include "template/Textes.h"

namespace norvane {
namespace {

constexpr std::array<std::pair<std::string_view, char>, 10> kAccents = {{{"e0", '\xE0'},
                                                                        {"e2", '\xE2'},
                                                                        {"e7", '\xE7'},
                                                                        {"e8", '\xE8'},
                                                                        {"e9", '\xE9'},
                                                                        {"ea", '\xEA'},
                                                                        {"ee", '\xEE'},
                                                                        {"f4", '\xF4'},
                                                                        {"f9", '\xF9'},
                                                                        {"fb", '\xFB'}}};

// The letter of an escape "\'xx", or '\0' when the escape is to be dropped.
char LettreAccent(std::string_view hexa) {
  for (const auto& [code, lettre] : kAccents) {
    if (code == hexa) return lettre;
  }
  return '\0';
}

// Keeps generation.lignes on the table in hand while it is generated. A
// table met inside a label of another (a %tvl(tab...)% code) gives the outer
// table back its model and its line when it ends.
class TableEnCours {
 public:
  TableEnCours(Generation& generation, EtatTableaux& etat, const ModeleTableau& modele)
      : generation_(generation),
        etat_(etat),
        ancienModele_(etat.ModeleEnCours),
        anciennesLignes_(generation.lignes),
        ancienneLigne_(etat.LigneCourante) {
    etat.ModeleEnCours = &modele;
    generation.lignes = &etat;
  }
  ~TableEnCours() {
    if (ancienModele_ != nullptr) etat_.LigneCourante = ancienneLigne_;
    etat_.ModeleEnCours = ancienModele_;
    generation_.lignes = anciennesLignes_;
  }
  TableEnCours(const TableEnCours&) = delete;
  TableEnCours& operator=(const TableEnCours&) = delete;

 private:
  Generation& generation_;
  EtatTableaux& etat_;
  const ModeleTableau* ancienModele_;
  const LignesTableau* anciennesLignes_;
  int16_t ancienneLigne_;
};

// One line under a guard: a line that fails is left out, the table goes on.
std::string LigneGardee(ContexteTableau& contexte) {
  try {
    return LigneRTF(contexte);
  } catch (const std::exception&) {
    return kValeursNulles;
  }
}

}  // namespace

const LigneTableau& ContexteTableau::LigneEnCours() const {
  const int n = tableaux.etat.LigneCourante;
  return modele.Lignes[static_cast<std::size_t>(n >= 1 && n <= kLignesMax ? n - 1 : 0)];
}

std::string NettoyerCodeTableau(std::string_view code) {
  std::string sansBlancs;
  sansBlancs.reserve(code.size());
  for (char c : code) {
    if (c != ' ') sansBlancs += c;
  }
  std::string r;
  r.reserve(sansBlancs.size());
  for (std::size_t i = 0; i < sansBlancs.size(); ++i) {
    if (sansBlancs[i] == '\\' && i + 1 < sansBlancs.size() && sansBlancs[i + 1] == '\'') {
      if (const char lettre = LettreAccent(std::string_view(sansBlancs).substr(i + 2, 2)); lettre != '\0') r += lettre;
      i += 3;
      continue;
    }
    r += sansBlancs[i];
  }
  return r;
}

std::string DebutLigne(const ModeleTableau& modele, const LigneTableau& ligne) {
  std::string entete = "\\plain \\trowd";
  if (ligne.Marge > 10) entete += "\\trgaph" + std::to_string(ligne.Marge);
  if (ligne.Hauteur > 10) entete += "\\trrh" + std::to_string(ligne.Hauteur);
  entete += modele.Centre == 1 ? "\\trqc" : "\\trleft0";
  return entete;
}

std::string LigneRTF(ContexteTableau& contexte) {
  const LigneTableau& ligne = contexte.LigneEnCours();
  const std::string entete = DebutLigne(contexte.modele, ligne);
  const std::string_view sorte = std::string_view(ligne.Definition.Texte).substr(0, 5);
  if (sorte == "espac") return LigneEspace(contexte);
  if (sorte == "cultu" || sorte == "cultp" || sorte == "imemp") {
    return contexte.tableaux.producteurs.LignesPredefinies(contexte, sorte, entete);
  }
  if (sorte == "prime") return LignesPrimes(contexte, entete);
  if (sorte == "newpg") return "}\\page {";
  return LigneOrdinaire(contexte, entete);
}

std::string GenererTableau(Generation& generation, TableauxDocument& tableaux, const std::string& code,
                           int16_t styleTitre) {
  const std::string texte = NettoyerCodeTableau(code);
  std::string_view reste = texte;
  ModeleTableau modele;
  LireEnteteCode(reste, modele);
  modele.StyleTitre = styleTitre;
  EtatTableaux& etat = tableaux.etat;
  if (modele.MultiDossier == 1 && !PreparerMultiDossier(generation, etat, tableaux.choix, modele)) return {};
  LireLignesCode(reste, modele);
  etat.BaseCouleurs = generation.etat.ProchaineCouleur;
  TableEnCours enCours(generation, etat, modele);
  ContexteTableau contexte{generation, tableaux, modele};
  std::string resultat;
  const int nbLignes = std::min<int>(modele.NbLignes, kLignesMax);
  for (int n = 1; n <= nbLignes; ++n) {
    etat.LigneCourante = static_cast<int16_t>(n);
    const std::string ligne = LigneGardee(contexte);
    if (EgalSansCasse(ligne, kValeursNulles)) continue;
    // Room for the lines to come, sized on the first one, so that a long
    // table is not copied again and again as it grows.
    if (resultat.empty()) resultat.reserve(ligne.size() * static_cast<std::size_t>(nbLignes - n + 1) * 3 / 2);
    resultat += ligne;
  }
  return resultat;
}

namespace {

// A code the decoder cannot read to its end still gives what was read, and
// the user is told once, where the reading stopped.
void SignalerCodeIlisible(Generation& generation, const std::string& code) {
  const std::string texte = NettoyerCodeTableau(code);
  ModeleTableau modele;
  const Resultat<void> lu = LireCodeTableau(texte, modele);
  if (lu) return;
  generation.messages.AfficherMessage(std::string(kAppelant), std::string(kTitreErreur),
                                      MessageLectureTableau(texte, lu.Erreur()), std::string(kConseilModifier), "");
}

}  // namespace

std::optional<std::string> TableauxDocument::GenererTableau(Generation& generation, const std::string& code) {
  if (!EstCodeTableau(code)) return std::nullopt;
  SignalerCodeIlisible(generation, code);
  if (!CommencePar(code, "tab")) return producteurs.TableauxParEntite(generation, *this, code);
  return norvane::GenererTableau(generation, *this, code);
}

}  // namespace norvane
