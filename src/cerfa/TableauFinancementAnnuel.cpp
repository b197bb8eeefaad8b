#include "cerfa/TableauFinancementAnnuel.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <functional>
#include <vector>

#include "cerfa/PlanCerfa.h"
#include "cerfa/TableCerfa.h"
#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "study/TexteEtude.h"
#include "tables/BlocsImmoEmprunts.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"

namespace norvane {
namespace {

constexpr std::array<int32_t, 7> kBords = {2400, 3400, 5200, 7200, 7900, 8700, 9400};
constexpr int32_t kLargeurAnnee = 950;
constexpr int32_t kDebutAnneesResume = 7500;

int32_t FinAnnee(int n) { return kBords.back() + kLargeurAnnee * n; }

std::string Entetes(const TableCerfa& table, int annees) {
  std::string rtf;
  {
    RangeeBloc r = table.Rangee();
    r.Cellule("INVESTISSEMENTS", kBords[1], "c", std::nullopt, true)
        .Cellule("FINANCEMENTS", FinAnnee(annees), "c", std::nullopt, true);
    rtf += r.Fermer();
  }
  constexpr std::array<const char*, 7> kTitres = {" libellé des investissements", "montant", "type de financement",
                                                  "libellé du financement", "taux", "durée", "différé"};
  RangeeBloc r = table.Rangee();
  for (std::size_t i = 0; i < kBords.size(); ++i) r.Cellule(TexteCerfa(kTitres[i]), kBords[i], "c", std::nullopt, true);
  for (int n = 1; n <= annees; ++n) r.Cellule("exercice " + std::to_string(n), FinAnnee(n), "c", std::nullopt, true);
  return rtf + r.Fermer();
}

// A financing row: its type, label, rate, duration, deferral and the
// amount of each year.
struct Financement {
  const char* type;
  std::string libelle, taux, duree, differe;
  std::vector<double> annees;
};

std::string RangeeFinancement(const TableCerfa& table, const Financement& f) {
  RangeeBloc r = table.Rangee();
  r.Cellule("", kBords[0], "l")
      .Cellule("", kBords[1], "r")
      .Cellule(f.type, kBords[2], "l")
      .Cellule(f.libelle, kBords[3], "l")
      .Cellule(f.taux, kBords[4], "c")
      .Cellule(f.duree, kBords[5], "c")
      .Cellule(f.differe, kBords[6], "c");
  for (std::size_t n = 0; n < f.annees.size(); ++n) {
    r.Cellule(table.Montant(f.annees[n]), FinAnnee(static_cast<int>(n) + 1), "r", table.Couleur(f.annees[n]));
  }
  return r.Fermer();
}

std::string Entree(const TableCerfa& table, const EntreeCerfa& e, int annees, std::string_view debutEtude,
                   int& lignes) {
  std::string rtf;
  {
    RangeeBloc r = table.Rangee();
    r.Cellule(e.libelle, kBords[0], "l").Cellule(table.Montant(e.montant), kBords[1], "r", table.Couleur(e.montant));
    for (std::size_t i = 2; i < kBords.size(); ++i) r.Cellule("", kBords[i], "c");
    for (int n = 1; n <= annees; ++n) r.Cellule("", FinAnnee(n), "c");
    rtf += r.Fermer();
    ++lignes;
  }
  const auto nombre = static_cast<std::size_t>(annees);
  for (const FicheEmprunt* emprunt : e.emprunts) {
    // A loan weighs its annuity on each year.
    Financement f{"Emprunt", TexteEtudePourRtf(Trim(emprunt->LibelleEmprunt)),
                  emprunt->Taux1 == 0 ? std::string() : FormatNombre(emprunt->Taux1, kDecimalesAuto, false) + " %",
                  TexteDuree(emprunt->Duree1 + emprunt->Duree2 + emprunt->Duree3, true, emprunt->Periode),
                  TexteDuree(emprunt->DiffereEmprunt, true, emprunt->Periode), std::vector<double>(nombre)};
    for (std::size_t n = 1; n <= nombre && n < kExercicesEmprunt; ++n) f.annees[n - 1] = emprunt->Annuite[n];
    rtf += RangeeFinancement(table, f);
    ++lignes;
  }
  for (const FicheImmo* subvention : e.subventions) {
    // A grant is received once, in the exercise of its date.
    Financement f{"Subvention", TexteEtudePourRtf(Trim(subvention->Libelle)), "",
                  TexteDuree(subvention->Duree, true, 0), TexteDuree(subvention->Differe, true, 0),
                  std::vector<double>(nombre)};
    const int exercice = ExerciceDeDate(subvention->DateRealisation, debutEtude);
    if (exercice >= 1 && exercice <= annees) f.annees[static_cast<std::size_t>(exercice - 1)] = subvention->Montant;
    rtf += RangeeFinancement(table, f);
    ++lignes;
  }
  return rtf;
}

// One summary row: label, amount (the sum of the years unless `montant`
// is given), an empty gap up to the years, then each year.
std::string LigneResume(const TableCerfa& table, const char* libelle, int annees, const std::function<float(int)>& s,
                        std::optional<double> montant = std::nullopt) {
  std::vector<float> v(static_cast<std::size_t>(annees));
  float somme = 0;
  for (int c = 1; c <= annees; ++c) somme += v[static_cast<std::size_t>(c - 1)] = s(c);
  const double total = montant.value_or(somme);
  RangeeBloc r = table.Rangee();
  r.Cellule(TexteCerfa(libelle), kBords[0], "l", std::nullopt, true)
      .Cellule(table.Montant(total), 4000, "r", table.Couleur(total), true);
  r.Cellule("", kDebutAnneesResume, "c");
  for (int c = 1; c <= annees; ++c) {
    const float x = v[static_cast<std::size_t>(c - 1)];
    r.Cellule(table.Montant(x), kDebutAnneesResume + kLargeurAnnee * c, "r", table.Couleur(x));
  }
  return r.Fermer();
}

std::string Resume(const TableCerfa& table, bool varianteA, int annees, double totalPlan) {
  const auto corrige = [&](int ligne) {
    return [&table, ligne](int c) {
      return table.SerieImmo(c, ligne) - table.SerieImmo(c, 38) + table.SerieImmo(c, 53) + table.SerieImmo(c, 54);
    };
  };
  const auto zero = [](int) { return 0.0f; };
  std::string rtf = LigneResume(table, "TOTAL INVESTISSEMENTS", annees, corrige(44), totalPlan);
  // Both variants show line 45, all loans; only the label differs.
  rtf += LigneResume(table, varianteA ? "TOTAL PRETS" : "TOTAL PRETS MTS-JA", annees,
                     [&](int c) { return table.SerieImmo(c, 45); });
  if (!varianteA) rtf += LigneResume(table, "TOTAL PSM - PSE", annees, zero);
  rtf += LigneResume(table, "TOTAL SUBVENTIONS", annees, [&](int c) { return table.SerieImmo(c, 41); });
  if (!varianteA) rtf += LigneResume(table, "TOTAL AUTRES PRETS", annees, zero);
  return rtf + LigneResume(table, "TOTAL AUTOFINANCEMENT", annees, corrige(64));
}

}  // namespace

std::string TableauFinancementAnnuel(const TableCerfa& table, bool varianteA, double& totalGeneral) {
  Generation& generation = table.contexte.generation;
  const int annees = std::clamp<int>(generation.session.InfoDossier.NbAnEtude, 0,
                                     static_cast<int>(kExercicesEmprunt) - 1);
  // The variant "a" draws the plan without its year columns.
  const int anneesPlan = varianteA ? 0 : annees;
  const std::string& debutEtude = generation.session.InfoDossier.DateDebut;
  const DossierPlan dossier = ChargerDossierPlan(DossierDuSlot(generation.session, 0), generation.messages);
  std::string rtf = Entetes(table, anneesPlan);
  int lignes = 0;
  double totalPlan = 0;
  for (const EntreeCerfa& e : EntreesCerfa(dossier, debutEtude)) {
    rtf += Entree(table, e, anneesPlan, debutEtude, lignes);
    totalPlan += e.montant;
  }
  totalGeneral += totalPlan;
  if (!varianteA) {
    std::vector<int32_t> bords(kBords.begin(), kBords.end());
    for (int n = 1; n <= anneesPlan; ++n) bords.push_back(FinAnnee(n));
    rtf += BourrageCerfa(table, lignes, bords);
  }
  rtf += "\\par\\plain ";
  return rtf + Resume(table, varianteA, annees, totalPlan);
}

}  // namespace norvane
