// Assets, grants and loans, each a block: a heading, the column header, the
// old items, the new ones, and a closing row.
#include "tables/BlocsImmoEmprunts.h"

#include <array>
#include <cctype>
#include <optional>
#include <cmath>
#include <functional>
#include <vector>

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "study/TexteEtude.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"
#include "tables/ImmoEmprunts.h"
#include "tables/InvestissementsFinancements.h"
#include "tables/RangeeBloc.h"

namespace norvane {
namespace {

constexpr int kCouleurTexte = 1;
constexpr int kCouleurRouge = 6;
constexpr std::size_t kLibelleEmpruntMax = 22;

struct Colonne {
  const char* titre;
  int32_t droite;
  const char* alignement;
};

constexpr std::array<Colonne, 11> kColonnesImmo = {{{"Libellé", 1500, "l"},
                                                    {"Date réalisat.", 2400, "c"},
                                                    {"Montant", 3300, "r"},
                                                    {"Type", 4000, "c"},
                                                    {"Durée", 4700, "c"},
                                                    {"Type amort.", 5500, "c"},
                                                    {"Diff.", 6100, "c"},
                                                    {"LSM", 6900, "r"},
                                                    {"Date Revente", 7800, "c"},
                                                    {"Montant Revente", 8700, "r"},
                                                    {"Plus values", 9500, "r"}}};

constexpr std::array<Colonne, 7> kColonnesSubventions = {{{"Libellé", 2200, "l"},
                                                          {"Date réalisat.", 3100, "c"},
                                                          {"Montant", 4200, "r"},
                                                          {"Type", 5100, "c"},
                                                          {"Durée", 5800, "c"},
                                                          {"Date Echéance", 6800, "c"},
                                                          {"", 9500, "c"}}};

constexpr std::array<Colonne, 9> kEnteteEmprunts1 = {{{"", 1600, "c"},
                                                      {"Date", 2400, "c"},
                                                      {"", 3300, "c"},
                                                      {"", 3700, "c"},
                                                      {"", 4200, "c"},
                                                      {"", 4700, "c"},
                                                      {"Taux : 1", 7600, "c"},
                                                      {"Taux : 2", 9650, "c"},
                                                      {"Date", 10400, "c"}}};

constexpr std::array<Colonne, 14> kEnteteEmprunts2 = {{{"Libellé", 1600, "c"},
                                                       {"réalisat.", 2400, "c"},
                                                       {"Montant", 3250, "c"},
                                                       {" Type", 3700, "c"},
                                                       {"Per.", 4200, "c"},
                                                       {"Diff.", 4700, "c"},
                                                       {"Taux", 5350, "c"},
                                                       {"Durée", 5950, "c"},
                                                       {"Diff.", 6600, "c"},
                                                       {"Echéance", 7600, "c"},
                                                       {"Taux", 8250, "c"},
                                                       {"Durée", 8800, "c"},
                                                       {"Echéance", 9650, "c"},
                                                       {"fin", 10400, "c"}}};

// Rows share the loan header's edges but for the amount, which ends at 3300.
constexpr std::array<int32_t, 14> kBordsEmprunts = {1600, 2400, 3300, 3700, 4200, 4700, 5350,
                                                    5950, 6600, 7600, 8250, 8800, 9650, 10400};

// What every row of a block is made with.
struct Bloc {
  ContexteTableau& contexte;
  CelluleRtf format;
  std::string debut;
  int16_t decimales;

  int32_t Base() const { return contexte.etat().BaseCouleurs; }
  RangeeBloc Rangee() const { return RangeeBloc(format, Base(), debut); }
  bool Rouges() const { return contexte.modele.NegatifsRouges == 1; }
  // The colour of an amount: red when negative and the model asks it.
  std::optional<int> Couleur(double valeur, std::optional<int> sinon = std::nullopt) const {
    return valeur < 0 && Rouges() ? std::optional<int>(kCouleurRouge) : sinon;
  }
};

std::string Texte(const char* utf8) { return Utf8VersCp1252(utf8); }

// A number, empty for 0.
std::string Nombre(double valeur, int16_t decimales = kDecimalesAuto) {
  if (!std::isfinite(valeur)) return {};
  return valeur == 0 ? std::string() : FormatNombre(static_cast<float>(valeur), decimales, true);
}

template <std::size_t N>
std::string LigneTitres(const Bloc& bloc, const std::array<Colonne, N>& colonnes) {
  RangeeBloc rangee = bloc.Rangee();
  for (const Colonne& c : colonnes) rangee.Cellule(Texte(c.titre), c.droite, "c", std::nullopt, true);
  return rangee.Fermer();
}

std::string Titre(const Bloc& bloc, const char* titre) {
  return "\\ql\\fs20\\cf" + std::to_string(bloc.Base() + 1) + "\\b\\i\\ul " + Texte(titre);
}

// A study label, trimmed, cut to `maximum` characters with "." behind when
// the cut leaves no blank at its end; RTF-safe.
std::string Libelle(std::string_view libelle, std::size_t maximum) {
  std::string texte = Trim(libelle);
  if (texte.size() > maximum) {
    texte.resize(maximum);
    if (texte.back() != ' ') texte += '.';
  }
  return TexteEtudePourRtf(texte);
}

std::string LettreType(float type, const std::vector<const char*>& lettres) {
  for (std::size_t i = 0; i < lettres.size(); ++i) {
    if (type == static_cast<float>(i)) return Texte(lettres[i]);
  }
  return {};
}

std::string RangeeImmo(const Bloc& b, const FicheImmo& f) {
  const double plusValues = f.PlusValues[0] + f.PlusValues[1];
  RangeeBloc r = b.Rangee();
  const auto& k = kColonnesImmo;
  r.Cellule(Libelle(f.Libelle, kLibelleEmpruntMax), k[0].droite, "l")
      .Cellule(DateCourte(f.DateRealisation), k[1].droite, "c")
      .Cellule(Nombre(f.Montant, b.decimales), k[2].droite, "r", b.Couleur(f.Montant))
      .Cellule(LettreType(f.TypeImmo, {"F", "A", "C", "I", "M", "S", "D"}), k[3].droite, "c")
      .Cellule(Nombre(f.Duree), k[4].droite, "c")
      .Cellule(LettreType(f.TypeAmort, {"Lin.", "Dég.", "Dér.", "Lib."}), k[5].droite, "c")
      .Cellule(Nombre(f.Differe), k[6].droite, "c")
      .Cellule(Nombre(f.LSM, b.decimales), k[7].droite, "r", b.Couleur(f.LSM))
      .Cellule(DateCourte(f.DateRevente), k[8].droite, "c")
      .Cellule(Nombre(f.MontantRevente, b.decimales), k[9].droite, "r", b.Couleur(f.MontantRevente))
      .Cellule(Nombre(plusValues, b.decimales), k[10].droite, "r", b.Couleur(plusValues));
  return r.Fermer();
}

std::string RangeeSubvention(const Bloc& b, const FicheImmo& f) {
  RangeeBloc r = b.Rangee();
  const auto& k = kColonnesSubventions;
  r.Cellule(Libelle(f.Libelle, kLibelleEmpruntMax), k[0].droite, "l")
      .Cellule(DateCourte(f.DateRealisation), k[1].droite, "c")
      .Cellule(Nombre(f.Montant, b.decimales), k[2].droite, "r", b.Couleur(f.Montant))
      .Cellule(Texte(f.TypeImmo == 0 ? "Lin." : "A terme"), k[3].droite, "c")
      .Cellule(Nombre(f.Duree), k[4].droite, "c")
      .Cellule(DateCourte(f.DateRevente), k[5].droite, "c")
      .Cellule("", k[6].droite, "c");
  return r.Fermer();
}

std::string RangeeEmprunt(const Bloc& b, const FicheEmprunt& f) {
  const auto taux = [](float t) { return t == 0 ? std::string() : Nombre(t) + " %"; };
  const auto echeance = [&b](float e) { return e == 0 ? std::string() : "    " + Nombre(e, b.decimales); };
  const std::string montant = f.MontantEmprunt == 0 ? std::string() : Nombre(f.MontantEmprunt, b.decimales) + "  ";
  const auto& k = kBordsEmprunts;
  RangeeBloc r = b.Rangee();
  r.Cellule(" " + Libelle(Minuscules(f.LibelleEmprunt), kLibelleEmpruntMax), k[0], "l")
      .Cellule(DateCourte(f.DateRealisationEmprunt), k[1], "c")
      .Cellule(montant, k[2], "r", b.Couleur(f.MontantEmprunt, kCouleurTexte))
      .Cellule(LettreType(static_cast<float>(f.TypeEmprunt), {"F", "M", "CT"}), k[3], "c")
      .Cellule(Nombre(f.Periode), k[4], "c")
      .Cellule(Nombre(f.DiffereEmprunt), k[5], "c")
      .Cellule(taux(f.Taux1), k[6], "c")
      .Cellule(Nombre(f.Duree1), k[7], "c")
      .Cellule(Nombre(f.Differe1, b.decimales), k[8], "r")
      .Cellule(echeance(f.Echeance1), k[9], "r")
      .Cellule(taux(f.Taux2), k[10], "c")
      .Cellule(Nombre(f.Duree2), k[11], "c")
      .Cellule(echeance(f.Echeance2), k[12], "r")
      .Cellule(DateCourte(f.DateFin), k[13], "c");
  return r.Fermer();
}

// The rows of the records whose Nouveau is `passe`, in file order.
template <typename Fiche, typename Faire>
std::string Rangees(const Bloc& bloc, const std::vector<Fiche>& fiches, float passe, Faire faire) {
  std::string rtf;
  for (const Fiche& f : fiches) {
    if (f.Nouveau == passe) rtf += faire(bloc, f);
  }
  return rtf;
}

// Heading, header rows, old then new items, closing row.
template <typename Fiche, typename Faire>
std::string Assembler(const Bloc& bloc, char variante, const char* anciens, const char* nouveaux,
                      const std::string& titres, const std::vector<Fiche>& fiches, Faire faire, int32_t largeur) {
  const bool avecAnciens = variante != '0';
  const bool avecNouveaux = variante != '1';
  std::string rtf = Titre(bloc, avecAnciens ? anciens : nouveaux) + "\\par \\plain \\par \\plain " + titres;
  if (avecAnciens) rtf += Rangees(bloc, fiches, 0.0f, faire);
  if (avecAnciens && avecNouveaux) rtf += "\\par \\plain " + Titre(bloc, nouveaux) + "\\par \\plain ";
  if (avecNouveaux) rtf += Rangees(bloc, fiches, 1.0f, faire);
  return rtf + LigneSeparation(largeur);
}

std::string Dossier(const ContexteTableau& contexte) { return DossierDuSlot(contexte.generation.session, 0); }

}  // namespace

std::string DebutLigneSerree(std::string_view debutLigne) {
  std::string debut(debutLigne);
  const std::size_t gap = debut.find("\\trgaph");
  if (gap == std::string::npos) {
    const std::size_t trowd = debut.find("\\trowd");
    if (trowd != std::string::npos) debut.insert(trowd + 6, "\\trgaph5");
    return debut;
  }
  std::size_t fin = gap + 7;
  while (fin < debut.size() && (std::isdigit(static_cast<unsigned char>(debut[fin])) || debut[fin] == '-')) ++fin;
  debut.replace(gap, fin - gap, "\\trgaph5");
  return debut;
}

std::string LigneSeparation(int32_t largeur) {
  return "\\trowd\\trgaph5\\trrh50\\trqc\\clbrdrt\\brdrs\\cellx" + std::to_string(largeur) +
         "\\intbl{}\\cell\\row\\pard \\plain ";
}

std::string TexteDuree(float valeur, bool afficher, float periode) {
  if (!afficher || valeur == 0 || !std::isfinite(valeur)) return {};
  const std::string n = FormatNombre(valeur, kDecimalesAuto, false);
  if (periode == 1) return n + " mois";
  if (periode == 2) return n + " bimestre";
  if (periode == 3) return n + " trimestre";
  if (periode == 6) return n + " semestre";
  return valeur == 1 ? "1 an" : n + " ans";
}

std::string DateCourte(std::string_view date) {
  const std::string d = Trim(date);
  if (d.size() != 10 || d[2] != '/' || d[5] != '/') return {};
  for (std::size_t i : {0u, 1u, 3u, 4u, 6u, 7u, 8u, 9u}) {
    if (!std::isdigit(static_cast<unsigned char>(d[i]))) return {};
  }
  return d.substr(0, 6) + d.substr(8, 2);
}

std::string LignesImmoEmprunts(ContexteTableau& contexte, const std::string& debutLigne) {
  const LigneTableau& ligne = contexte.LigneEnCours();
  const DefinitionLue definition = LireDefinition(ligne.Definition.Texte);
  const ReferenceDecimales lu = LireReferenceDecimales(definition.reste);
  const std::string item = lu.reference.substr(0, 5);
  const Bloc bloc{contexte, FormatBloc(ligne.Definition.Police, ligne.Definition.Cadre), DebutLigneSerree(debutLigne),
                  lu.decimales};
  const char variante = item.size() == 5 ? item[4] : 's';
  const std::string_view famille = std::string_view(item).substr(0, 4);
  if (item == "inves") {
    return InvestissementsFinancements(contexte, bloc.format, bloc.debut, bloc.decimales);
  }
  if (famille == "immo") {
    return Assembler(bloc, variante, "Immobilisations anciennes", "Immobilisations nouvelles",
                     LigneTitres(bloc, kColonnesImmo), ChargerImmos(Dossier(contexte)), RangeeImmo, 9500);
  }
  if (famille == "subv") {
    return Assembler(bloc, variante, "Subventions anciennes", "Subventions nouvelles",
                     LigneTitres(bloc, kColonnesSubventions), ChargerSubventions(Dossier(contexte)),
                     RangeeSubvention, 9500);
  }
  if (famille == "empr" || famille == "empt") {
    if (item == "empr2" || item == "empr3") return {};  // the Cerfa report's own loan tables
    return Assembler(bloc, variante, "Emprunts anciens", "Emprunts nouveaux",
                     LigneTitres(bloc, kEnteteEmprunts1) + LigneTitres(bloc, kEnteteEmprunts2),
                     ChargerEmprunts(Dossier(contexte)), RangeeEmprunt, 10400);
  }
  return {};
}

}  // namespace norvane
