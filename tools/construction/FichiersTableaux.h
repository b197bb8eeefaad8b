// Writers of the dossier files that the crop, asset and loan tables read:
// cult.clt, CltP.cpD, Immo.imm, Sub.sub, Emprunt.emp and PlanF.fin. Each
// structure holds the fields that the program uses; the fields it keeps
// without using are written as zeros (numbers) and blanks (texts). Texts are
// Windows-1252 bytes, dates the fixed text "JJ/MM/AAAA".
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace norvane::construction {

// cult.clt, annual crops, records of 1674 bytes.
struct CultureAnnuelle {
  float NumCulture = 0;       // names the series file "Cult" + number + ".don"
  std::string NomCulture;     // 23
  char UniteRendement = '0';  // '0' quintals, '1' tonnes, '2' kilograms, '3' unit
  int16_t Derobee = 0;        // not 0 for a catch crop
  int16_t TypeCulture = 1;    // 1 sale, 2 sale with feed taken out, 3 fodder, 4 market garden; < 1 ends the list
  // Arrays of eleven values, exercise 0 to 10, by lower-case value name
  // ("rendement", "assolement", "margeglobale"...: see kTableauxCulture).
  std::map<std::string, std::array<float, 11>> Valeurs;
};
constexpr std::size_t kLongueurCulture = 1674;

struct TableauCulture {
  const char* nom;
  std::size_t position;
};
// The value names of a crop record and where their eleven floats start.
constexpr TableauCulture kTableauxCulture[] = {
    {"rendement", 42},     {"assolement", 86},    {"qterecolte", 130},  {"qtepreleve", 174},  {"prixunitaire", 218},
    {"autreproduit", 262}, {"primeetdiv", 306},   {"produitunit", 350}, {"chargeunit", 394},  {"margeunit", 438},
    {"margeglobale", 482}, {"stockfin", 526},     {"qtevendue", 570},   {"qteachat", 614},    {"varstock", 658},
    {"valeurstock", 706},  {"prixmoyen", 750},    {"prixvente", 794},   {"prixachat", 838},   {"prixcession", 882},
    {"varinv", 1014},      {"engrais", 1058},     {"semence", 1102},    {"traitement", 1146}, {"travaux", 1190},
    {"taxe1", 1234},       {"autrecharge", 1278}, {"creance", 1630},
};
// Position of a value name's array, or -1 for a name that is none of them.
long PositionTableauCulture(const std::string& nom);

std::string OctetsCultureAnnuelle(const CultureAnnuelle& culture);
void EcrireCulturesAnnuelles(const std::string& chemin, const std::vector<CultureAnnuelle>& cultures);

// CltP.cpD, perennial crops, records of 52 bytes.
struct CulturePerenne {
  int16_t NumCultureP = 0;       // names "CltP" + number + ".don" (and "t.don")
  std::string NomCultureP;       // 30
  int16_t TypeCultureP = 1;      // < 1 ends the list
  int16_t UniteSurface = 0;      // 0 ha, 1 are, 2 m², other "autre"
  int32_t UniteRendementP = 0;   // 4 bytes, a number: 0 hl, 1 T, 2 kg, 3 q
  int16_t PleineProduction = 0;  // years to full production
  int16_t DureeAmortissement = 0;
};
constexpr std::size_t kLongueurCulturePerenne = 52;
std::string OctetsCulturePerenne(const CulturePerenne& culture);
void EcrireCulturesPerennes(const std::string& chemin, const std::vector<CulturePerenne>& cultures);

// Immo.imm (fixed assets) and Sub.sub (grants), records of 3096 bytes.
struct Immobilisation {
  float Nouveau = 0;            // 0 existing, 1 new item of the plan
  float TypeImmo = 0;           // assets: 0 F, 1 A, 2 C, 3 I, 4 M, 5 S, 6 D; grants: 0 "Lin.", other "A terme"
  std::string Libelle;          // 40
  std::string DateRealisation;  // 10
  float Montant = 0;
  float Duree = 0;
  float TypeAmort = 0;      // 0 Lin., 1 Dég., 2 Dér., 3 Lib.
  std::string DateRevente;  // 10; DateEcheance in Sub.sub
  float MontantRevente = 0;
  float NumEntreePlan = 0;
  float Differe = 0;
  float LSM = 0;
  double PlusValue1 = 0;  // the two halves of the capital gain
  double PlusValue2 = 0;
  std::array<float, 26> MontantsAnnuels{};  // amounts of exercises 0 to 25, from offset 390
};
constexpr std::size_t kLongueurImmobilisation = 3096;
std::string OctetsImmobilisation(const Immobilisation& immobilisation);
void EcrireImmobilisations(const std::string& chemin, const std::vector<Immobilisation>& immobilisations);

// Emprunt.emp, loans, records of 1096 bytes.
struct Emprunt {
  float Nouveau = 0;           // 0 existing, 1 new, 2 a category of its own
  int16_t TypeEmprunt = 0;     // 0 F, 1 M, 2 CT
  std::string LibelleEmprunt;  // 40
  int16_t PretMtsJa = 0;       // -1 for an MTS-JA loan
  std::string DateRealisationEmprunt;
  std::string DateFin;
  float MontantEmprunt = 0;
  float Taux1 = 0, Duree1 = 0, Taux2 = 0, Duree2 = 0, Taux3 = 0, Duree3 = 0;
  float Periode = 0;
  float DiffereEmprunt = 0;
  int16_t NumEntreePlan = 0;
  std::array<float, 27> Annuite{};
  std::array<float, 27> Interets{};
  std::array<float, 27> CapitalRestant{};  // index 0 at the start of the study
  float Differe1 = 0;
  float Echeance1 = 0;
  float Echeance2 = 0;
};
constexpr std::size_t kLongueurEmprunt = 1096;
std::string OctetsEmprunt(const Emprunt& emprunt);
void EcrireEmprunts(const std::string& chemin, const std::vector<Emprunt>& emprunts);

// PlanF.fin, financing plan: always 20 records of 116 bytes.
struct LignePlanFinancement {
  float NumEntree = 0;
  std::string ObjetInvestissement;  // 50; blank: the entry is unused
  float Pourcentage = 0;
  float MontantPlan = 0;
  std::string ObjetFinancement;  // 50
};
constexpr std::size_t kLongueurLignePlan = 116;
constexpr std::size_t kLignesPlan = 20;
std::string OctetsLignePlan(const LignePlanFinancement& ligne);
// The given lines, then unused ones up to 20 (more than 20 are cut).
void EcrirePlanFinancement(const std::string& chemin, const std::vector<LignePlanFinancement>& lignes);

}  // namespace norvane::construction
