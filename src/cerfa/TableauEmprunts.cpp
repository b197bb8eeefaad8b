#include "cerfa/TableauEmprunts.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "cerfa/TableCerfa.h"
#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "study/TexteEtude.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"

namespace norvane {
namespace {

constexpr std::size_t kObjetMax = 16;
// Right edges of the characteristics and of the capital at the start; each
// year then takes 1200 twips, its annuity and its interest half each.
constexpr std::array<int32_t, 7> kBords = {1700, 2550, 3050, 3400, 4000, 4550, 5750};
constexpr int32_t kLargeurAnnee = 1200;
constexpr int32_t kDemiAnnee = kLargeurAnnee / 2;

int32_t FinAnnee(int n) { return kBords.back() + kLargeurAnnee * n; }

std::string Entetes(const TableCerfa& table, int annees) {
  const int32_t fin = FinAnnee(annees) + kLargeurAnnee;
  std::string rtf;
  {
    RangeeBloc r = table.Rangee(true, false);
    r.Cellule(TexteCerfa(" caractéristiques"), kBords[5], "c", std::nullopt, true)
        .Cellule("capital restant", kBords[6], "c", std::nullopt, true);
    if (annees > 0) r.Cellule("remboursement", FinAnnee(annees), "c", std::nullopt, true);
    rtf += r.Cellule("capital restant", fin, "c", std::nullopt, true).Fermer();
  }
  {
    RangeeBloc r = table.Rangee(false, false);
    r.Cellule("", kBords[5], "c").Cellule(TexteCerfa("dû en début"), kBords[6], "c", std::nullopt, true);
    for (int n = 1; n <= annees; ++n) {
      r.Cellule("exercice " + std::to_string(n), FinAnnee(n), "c", std::nullopt, true);
    }
    rtf += r.Cellule(TexteCerfa("dû en fin"), fin, "c", std::nullopt, true).Fermer();
  }
  RangeeBloc r = table.Rangee(false, true);
  constexpr std::array<const char*, 7> kTitres = {" objet", " montant", "durée", "diff", " taux", "année",
                                                  "de prévision"};
  for (std::size_t i = 0; i < kBords.size(); ++i) r.Cellule(TexteCerfa(kTitres[i]), kBords[i], "c", std::nullopt, true);
  for (int n = 1; n <= annees; ++n) {
    r.Cellule(TexteCerfa("annuité"), FinAnnee(n) - kDemiAnnee, "c", std::nullopt, true)
        .Cellule(TexteCerfa("intérêts"), FinAnnee(n), "c", std::nullopt, true);
  }
  return rtf + r.Cellule(TexteCerfa("de prévision"), fin, "c", std::nullopt, true).Fermer();
}

// Sums of the "TOTAL GENERAL" row, by year.
struct Totaux {
  double montant = 0;
  std::vector<double> capital, annuites, interets;  // capital: start, then end of each year
  explicit Totaux(int annees)
      : capital(static_cast<std::size_t>(annees) + 1), annuites(capital.size()), interets(capital.size()) {}
};

std::string Nombre(float valeur) { return valeur == 0 ? std::string() : FormatNombre(valeur, kDecimalesAuto, false); }

// The year of "JJ/MM/AAAA": the column is too narrow for the whole date.
std::string Annee(std::string_view date) {
  const std::string texte = Trim(date);
  return texte.size() == 10 && texte[2] == '/' ? texte.substr(6) : TexteEtudePourRtf(texte);
}

std::string Emprunt(const TableCerfa& table, const FicheEmprunt& e, int annees, Totaux& t) {
  const auto montant = [&](RangeeBloc& r, double valeur, int32_t bord) {
    r.Cellule(table.Montant(valeur), bord, "r", table.Couleur(valeur));
  };
  RangeeBloc r = table.Rangee();
  std::string objet = Trim(e.LibelleEmprunt);
  if (objet.size() > kObjetMax) objet.resize(kObjetMax);
  r.Cellule(TexteEtudePourRtf(objet), kBords[0], "l");
  montant(r, e.MontantEmprunt, kBords[1]);
  r.Cellule(Nombre(e.Duree1), kBords[2], "c")
      .Cellule(Nombre(e.DiffereEmprunt), kBords[3], "c")
      .Cellule(e.Taux1 == 0 ? std::string() : FormatNombre(e.Taux1, kDecimalesAuto, false) + " %", kBords[4], "c")
      .Cellule(Annee(e.DateRealisationEmprunt), kBords[5], "c");
  montant(r, e.CapitalRestant[0], kBords[6]);
  t.montant += e.MontantEmprunt;
  t.capital[0] += e.CapitalRestant[0];
  for (int n = 1; n <= annees; ++n) {
    const auto i = static_cast<std::size_t>(n);
    montant(r, e.Annuite[i], FinAnnee(n) - kDemiAnnee);
    montant(r, e.Interets[i], FinAnnee(n));
    t.annuites[i] += e.Annuite[i];
    t.interets[i] += e.Interets[i];
  }
  const float fin = e.CapitalRestant[static_cast<std::size_t>(annees)];
  t.capital[static_cast<std::size_t>(annees)] += fin;
  montant(r, fin, FinAnnee(annees) + kLargeurAnnee);
  return r.Fermer();
}

std::string Total(const TableCerfa& table, const Totaux& t, int annees) {
  const auto montant = [&](RangeeBloc& r, double valeur, int32_t bord) {
    r.Cellule(table.Montant(valeur), bord, "r", table.Couleur(valeur), true);
  };
  RangeeBloc r = table.Rangee();
  r.Cellule("TOTAL GENERAL", kBords[0], "l", std::nullopt, true);
  montant(r, t.montant, kBords[1]);
  for (std::size_t i = 2; i < 6; ++i) r.Cellule("", kBords[i], "c");
  montant(r, t.capital[0], kBords[6]);
  for (int n = 1; n <= annees; ++n) {
    montant(r, t.annuites[static_cast<std::size_t>(n)], FinAnnee(n) - kDemiAnnee);
    montant(r, t.interets[static_cast<std::size_t>(n)], FinAnnee(n));
  }
  montant(r, t.capital[static_cast<std::size_t>(annees)], FinAnnee(annees) + kLargeurAnnee);
  return r.Fermer();
}

}  // namespace

bool EmpruntRetenu(const FicheEmprunt& emprunt, bool jeuneAgriculteur) {
  if (!jeuneAgriculteur) return emprunt.Nouveau != 2;
  return emprunt.Nouveau != 0 && emprunt.Nouveau != 1 && emprunt.PretMtsJa != 0;
}

std::string TableauEmprunts(const TableCerfa& table, bool jeuneAgriculteur) {
  Generation& generation = table.contexte.generation;
  // The study's years; the loan records hold 27 exercises, the first being
  // the start of the study.
  const int annees = std::clamp<int>(generation.session.InfoDossier.NbAnEtude, 0,
                                     static_cast<int>(kExercicesEmprunt) - 1);
  std::string rtf = Entetes(table, annees);
  Totaux t(annees);
  for (const FicheEmprunt& e : ChargerEmprunts(DossierDuSlot(generation.session, 0))) {
    if (EmpruntRetenu(e, jeuneAgriculteur)) rtf += Emprunt(table, e, annees, t);
  }
  return rtf + Total(table, t, annees);
}

}  // namespace norvane
