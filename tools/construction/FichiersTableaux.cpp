#include "construction/FichiersTableaux.h"

#include <algorithm>
#include <stdexcept>

#include "construction/EnregistrementFixe.h"

namespace norvane::construction {
namespace {

template <typename T, typename F>
void EcrireEnregistrements(const std::string& chemin, const std::vector<T>& elements, F octetsDe) {
  std::string octets;
  for (const T& element : elements) octets += octetsDe(element);
  EcrireOctets(chemin, octets);
}

}  // namespace

long PositionTableauCulture(const std::string& nom) {
  for (const TableauCulture& tableau : kTableauxCulture) {
    if (nom == tableau.nom) return static_cast<long>(tableau.position);
  }
  return -1;
}

// Kept fields: text 6 at 27, two 16-bit at 34 and 36, 4 bytes at 702, arrays
// at 926, 970 and 1322 to 1586: blanks and zeros.
std::string OctetsCultureAnnuelle(const CultureAnnuelle& c) {
  EnregistrementFixe e(kLongueurCulture);
  e.Flottant(0, c.NumCulture)
      .Texte(4, c.NomCulture, 23)
      .Blancs(27, 6)
      .Texte(33, std::string(1, c.UniteRendement), 1)
      .Entier16(38, c.Derobee)
      .Entier16(40, c.TypeCulture);
  for (const auto& [nom, valeurs] : c.Valeurs) {
    const long position = PositionTableauCulture(nom);
    if (position < 0) throw std::invalid_argument("valeur de culture inconnue : " + nom);
    e.Flottants(static_cast<std::size_t>(position), valeurs.data(), valeurs.size());
  }
  return e.Octets();
}

void EcrireCulturesAnnuelles(const std::string& chemin, const std::vector<CultureAnnuelle>& cultures) {
  EcrireEnregistrements(chemin, cultures, OctetsCultureAnnuelle);
}

std::string OctetsCulturePerenne(const CulturePerenne& c) {
  EnregistrementFixe e(kLongueurCulturePerenne);
  e.Entier16(0, c.NumCultureP)
      .Texte(2, c.NomCultureP, 30)
      .Entier16(32, c.TypeCultureP)
      .Entier16(34, c.UniteSurface)
      .Entier32(36, c.UniteRendementP)
      .Entier16(42, c.PleineProduction)
      .Entier16(46, c.DureeAmortissement);
  return e.Octets();
}

void EcrireCulturesPerennes(const std::string& chemin, const std::vector<CulturePerenne>& cultures) {
  EcrireEnregistrements(chemin, cultures, OctetsCulturePerenne);
}

// Kept: two floats at 4, 10 bytes at 104, 26 texts of 10 at 130 (blanks), the
// rest of the yearly schedule after its amounts, from 494 (zeros).
std::string OctetsImmobilisation(const Immobilisation& i) {
  EnregistrementFixe e(kLongueurImmobilisation);
  e.Flottant(0, i.Nouveau)
      .Flottant(12, i.TypeImmo)
      .Texte(16, i.Libelle, 40)
      .Texte(56, i.DateRealisation, 10)
      .Flottant(66, i.Montant)
      .Flottant(70, i.Duree)
      .Flottant(74, i.TypeAmort)
      .Texte(78, i.DateRevente, 10)
      .Flottant(88, i.MontantRevente)
      .Flottant(92, i.NumEntreePlan)
      .Flottant(96, i.Differe)
      .Flottant(100, i.LSM)
      .Double(114, i.PlusValue1)
      .Double(122, i.PlusValue2)
      .Blancs(130, 26 * 10);
  for (std::size_t n = 0; n < i.MontantsAnnuels.size(); ++n) e.Flottant(390 + 4 * n, i.MontantsAnnuels[n]);
  return e.Octets();
}

void EcrireImmobilisations(const std::string& chemin, const std::vector<Immobilisation>& immobilisations) {
  EcrireEnregistrements(chemin, immobilisations, OctetsImmobilisation);
}

// Kept: 8 bytes at 4, 2 at 54, two dates at 68 and 78 (blanks), 2 bytes at
// 102, 8 at 128, 16 at 144, 30 at 162, arrays at 408, 516, 624, 840, 948,
// 28 bytes at 1068.
std::string OctetsEmprunt(const Emprunt& p) {
  EnregistrementFixe e(kLongueurEmprunt);
  e.Flottant(0, p.Nouveau)
      .Entier16(12, p.TypeEmprunt)
      .Texte(14, p.LibelleEmprunt, 40)
      .Entier16(56, p.PretMtsJa)
      .Texte(58, p.DateRealisationEmprunt, 10)
      .Blancs(68, 10)
      .Blancs(78, 10)
      .Texte(88, p.DateFin, 10)
      .Flottant(98, p.MontantEmprunt)
      .Flottant(104, p.Taux1)
      .Flottant(108, p.Duree1)
      .Flottant(112, p.Taux2)
      .Flottant(116, p.Duree2)
      .Flottant(120, p.Taux3)
      .Flottant(124, p.Duree3)
      .Flottant(136, p.Periode)
      .Flottant(140, p.DiffereEmprunt)
      .Entier16(160, p.NumEntreePlan)
      .Flottants(192, p.Annuite.data(), 27)
      .Flottants(300, p.Interets.data(), 27)
      .Flottants(732, p.CapitalRestant.data(), 27)
      .Flottant(1056, p.Differe1)
      .Flottant(1060, p.Echeance1)
      .Flottant(1064, p.Echeance2);
  return e.Octets();
}

void EcrireEmprunts(const std::string& chemin, const std::vector<Emprunt>& emprunts) {
  EcrireEnregistrements(chemin, emprunts, OctetsEmprunt);
}

std::string OctetsLignePlan(const LignePlanFinancement& l) {
  EnregistrementFixe e(kLongueurLignePlan);
  e.Flottant(0, l.NumEntree)
      .Texte(4, l.ObjetInvestissement, 50)
      .Flottant(54, l.Pourcentage)
      .Flottant(58, l.MontantPlan)
      .Texte(66, l.ObjetFinancement, 50);
  return e.Octets();
}

void EcrirePlanFinancement(const std::string& chemin, const std::vector<LignePlanFinancement>& lignes) {
  std::vector<LignePlanFinancement> plan(lignes.begin(),
                                         lignes.begin() + static_cast<long>(std::min(lignes.size(), kLignesPlan)));
  plan.resize(kLignesPlan);
  EcrireEnregistrements(chemin, plan, OctetsLignePlan);
}

}  // namespace norvane::construction
