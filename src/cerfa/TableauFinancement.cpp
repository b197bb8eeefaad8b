#include "cerfa/TableauFinancement.h"

#include <array>
#include <cstdint>

#include "cerfa/PlanCerfa.h"
#include "cerfa/TableCerfa.h"
#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "study/TexteEtude.h"
#include "tables/BlocsImmoEmprunts.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"

namespace norvane {
namespace {

constexpr int kExercices = 5;

// Right edges of the fourteen columns of the body.
enum Colonne : std::size_t {
  kExercice, kCodeBien, kDestination, kLibelle, kInvestissement, kMtsJa, kAutresPrets, kPve, kAutresAides,
  kTaux, kDuree, kDiffere, kTotalAide, kAutofinancement, kNombreColonnes
};
constexpr std::array<int32_t, kNombreColonnes> kBords = {700,  1200, 2100,  4200,  5500,  6900,  8000,
                                                         9000, 10400, 11000, 11800, 12500, 13700, 15000};
constexpr std::array<const char*, kNombreColonnes> kTitres = {
    "Exercice", "Code bien", "Code destination", "Libellé de l'investissement", "Montant de l'investissement",
    "Prêts bonifiés - MTS-JA", "Autres prêts", "PVE-PMBE", "Autres aides (PIDIL, Collectivités...)", "Taux",
    "Durée", "Différé", "Montant total de l'aide (1)", "Montant autofinancement"};

// The texts of one body row, column by column.
using Cellules = std::array<std::string, kNombreColonnes>;

std::string Rangee(const TableCerfa& table, const Cellules& textes, const std::array<double, kNombreColonnes>& valeurs,
                   bool gras = false) {
  RangeeBloc r = table.Rangee();
  for (std::size_t i = 0; i < kNombreColonnes; ++i) {
    const bool texte = i == kLibelle;
    r.Cellule(textes[i], kBords[i], texte ? "l" : (i <= kDestination || i >= kTaux ? "c" : "r"),
              table.Couleur(valeurs[i]), gras);
  }
  // Rate, duration and deferral are centred; amounts stand right.
  return r.Fermer();
}

std::string Entetes(const TableCerfa& table) {
  std::string rtf;
  {
    RangeeBloc r = table.Rangee();
    r.Cellule(TexteCerfa("Investissements"), 5500, "c", std::nullopt, true)
        .Cellule(TexteCerfa("Financements"), 15000, "c", std::nullopt, true);
    rtf += r.Fermer();
  }
  {
    // The heading over the four columns of financings; the other cells
    // stay empty, without the rule under them, so that the titles below
    // read as one box.
    RangeeBloc r = table.Rangee(true, false);
    for (std::size_t i = 0; i < kNombreColonnes; ++i) {
      r.Cellule(i == kAutresAides ? TexteCerfa("Type de financement") : std::string(), kBords[i], "c", std::nullopt,
                true);
    }
    rtf += r.Fermer();
  }
  RangeeBloc r = table.Rangee(false, true);
  for (std::size_t i = 0; i < kNombreColonnes; ++i) r.Cellule(TexteCerfa(kTitres[i]), kBords[i], "c", std::nullopt, true);
  return rtf + r.Fermer();
}

// An amount and its value for the colour of its cell.
void Placer(const TableCerfa& table, Cellules& textes, std::array<double, kNombreColonnes>& valeurs, Colonne colonne,
            double valeur) {
  textes[colonne] = table.Montant(valeur);
  valeurs[colonne] = valeur;
}

std::string Taux(float taux) { return taux == 0 ? std::string() : FormatNombre(taux, kDecimalesAuto, false) + " %"; }

// The rows of one entry; `lignes` counts them.
std::string Entree(const TableCerfa& table, const EntreeCerfa& e, int& lignes) {
  Cellules textes{};
  std::array<double, kNombreColonnes> valeurs{};
  textes[kExercice] = e.exercice == 0 ? std::string() : std::to_string(e.exercice);
  textes[kCodeBien] = e.codeBien;
  // Code destination: no record of the dossier holds one; the adviser
  // writes it by hand on the printed form.
  textes[kLibelle] = e.libelle;
  Placer(table, textes, valeurs, kInvestissement, e.montant);
  std::string rtf = Rangee(table, textes, valeurs);
  ++lignes;
  double mtsJa = 0, autresPrets = 0, aides = 0;
  for (const FicheEmprunt* emprunt : e.emprunts) {
    Cellules t{};
    std::array<double, kNombreColonnes> v{};
    // A financing row names its loan in the label column, so that the
    // reader sees which loan the figures are.
    t[kLibelle] = TexteEtudePourRtf(Trim(emprunt->LibelleEmprunt));
    const bool ja = emprunt->PretMtsJa == -1;
    Placer(table, t, v, ja ? kMtsJa : kAutresPrets, emprunt->MontantEmprunt);
    (ja ? mtsJa : autresPrets) += emprunt->MontantEmprunt;
    t[kTaux] = Taux(emprunt->Taux1);
    t[kDuree] = TexteDuree(emprunt->Duree1 + emprunt->Duree2 + emprunt->Duree3, true, emprunt->Periode);
    t[kDiffere] = TexteDuree(emprunt->DiffereEmprunt, true, emprunt->Periode);
    rtf += Rangee(table, t, v);
    ++lignes;
  }
  for (const FicheImmo* subvention : e.subventions) {
    Cellules t{};
    std::array<double, kNombreColonnes> v{};
    t[kLibelle] = TexteEtudePourRtf(Trim(subvention->Libelle));
    // A grant of the dossier does not say its scheme: it stands with the
    // other aids, and its amount is the whole aid.
    Placer(table, t, v, kAutresAides, subvention->Montant);
    Placer(table, t, v, kTotalAide, subvention->Montant);
    aides += subvention->Montant;
    t[kDuree] = TexteDuree(subvention->Duree, true, 0);
    t[kDiffere] = TexteDuree(subvention->Differe, true, 0);
    rtf += Rangee(table, t, v);
    ++lignes;
  }
  if (e.emprunts.size() + e.subventions.size() > 1) {
    Cellules t{};
    std::array<double, kNombreColonnes> v{};
    t[kLibelle] = " totaux ";
    Placer(table, t, v, kMtsJa, mtsJa);
    Placer(table, t, v, kAutresPrets, autresPrets);
    Placer(table, t, v, kAutresAides, aides);
    Placer(table, t, v, kTotalAide, aides);
    Placer(table, t, v, kAutofinancement, e.montant - mtsJa - autresPrets - aides);
    rtf += Rangee(table, t, v, true);
    ++lignes;
  }
  return rtf;
}

// Summary columns: label, amount, five exercises, beyond.
constexpr std::array<int32_t, 9> kBordsResume = {1400, 4700, 6100, 7500, 8900, 10300, 11700, 13100, 15300};

std::string TitresResume(const TableCerfa& table, const char* libelle, const char* audela) {
  RangeeBloc r = table.Rangee();
  r.Cellule("", kBordsResume[0], "c", std::nullopt, false)
      .Cellule(TexteCerfa(libelle), kBordsResume[1], "l", std::nullopt, true)
      .Cellule("Montant", kBordsResume[2], "c", std::nullopt, true);
  for (int c = 1; c <= kExercices; ++c) {
    r.Cellule("exercice " + std::to_string(c), kBordsResume[static_cast<std::size_t>(c) + 2], "c", std::nullopt, true);
  }
  return r.Cellule(TexteCerfa(audela), kBordsResume[8], "c", std::nullopt, true).Fermer();
}

// One figure row: the five exercises by `valeur`, their sum added up in
// 32-bit floats, and PDE.DON's line `lignePde` beyond them.
template <typename F>
std::string LigneResume(const TableCerfa& table, const char* libelle, F valeur, int lignePde) {
  std::array<float, kExercices> v{};
  float somme = 0;
  for (int c = 1; c <= kExercices; ++c) {
    v[static_cast<std::size_t>(c - 1)] = valeur(c);
    somme += v[static_cast<std::size_t>(c - 1)];
  }
  RangeeBloc r = table.Rangee();
  r.Cellule("", kBordsResume[0], "c").Cellule(TexteCerfa(libelle), kBordsResume[1], "l");
  r.Cellule(table.Montant(somme), kBordsResume[2], "r", table.Couleur(somme));
  for (std::size_t c = 0; c < v.size(); ++c) r.Cellule(table.Montant(v[c]), kBordsResume[c + 3], "r", table.Couleur(v[c]));
  const float audela = table.SeriePde(lignePde);
  return r.Cellule(table.Montant(audela), kBordsResume[8], "r", table.Couleur(audela)).Fermer();
}

std::string Resume(const TableCerfa& table) {
  const auto s = [&](int ligne) { return [&table, ligne](int c) { return table.SerieImmo(c, ligne); }; };
  const auto corrige = [&](int ligne) {
    return [&table, ligne](int c) {
      return table.SerieImmo(c, ligne) - table.SerieImmo(c, 38) + table.SerieImmo(c, 53) + table.SerieImmo(c, 54);
    };
  };
  std::string rtf = TitresResume(table, "Financement", "au-delà de l'exercice 5 (2)");
  rtf += LigneResume(table, "Total prêts MTS-JA", s(122), 3);
  rtf += LigneResume(
      table, "Total autres prêts", [&](int c) { return table.SerieImmo(c, 45) - table.SerieImmo(c, 122); }, 4);
  rtf += LigneResume(table, "Total autres financements", s(41), 5);
  rtf += LigneResume(table, "Total autofinancement", corrige(64), 6);
  {
    // The gap between the two boxes of the summary carries no rule.
    RangeeBloc r = table.Rangee(false, false, false);
    for (int32_t bord : kBordsResume) r.Cellule("", bord, "c");
    rtf += r.Fermer();
  }
  rtf += TitresResume(table, "Investissement", "au-delà de l'exercice 5");
  rtf += LigneResume(table, "Volume total des investissements", corrige(44), 7);
  return rtf;
}

}  // namespace

std::string TableauFinancement(const TableCerfa& table, double& totalGeneral) {
  Generation& generation = table.contexte.generation;
  const DossierPlan dossier = ChargerDossierPlan(DossierDuSlot(generation.session, 0), generation.messages);
  std::string rtf = Entetes(table);
  int lignes = 0;
  for (const EntreeCerfa& e : EntreesCerfa(dossier, generation.session.InfoDossier.DateDebut)) {
    rtf += Entree(table, e, lignes);
    totalGeneral += e.montant;
  }
  rtf += BourrageCerfa(table, lignes, kBords);
  rtf += "\\par\\plain \\par\\plain ";
  return rtf + Resume(table);
}

}  // namespace norvane
