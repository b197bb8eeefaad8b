// Immo.imm (fixed assets) and Sub.sub (grants), records of 3096 bytes:
//
//   OFFSET SIZE     MEANING
//   0      4        Nouveau, float: 0 existing, 1 new item of the plan
//   4      2 x 4    kept
//   12     4        TypeImmo, float
//   16     40       Libelle
//   56     10       DateRealisation "JJ/MM/AAAA"
//   66     4        Montant
//   70     4        Duree
//   74     4        TypeAmort
//   78     10       DateRevente (DateEcheance of a grant)
//   88     4        MontantRevente
//   92     4        NumEntreePlan: the PlanF.fin entry of the item
//   96     4        Differe
//   100    4        LSM
//   104    10       kept
//   114    2 x 8    the two halves of the capital gain, 64-bit floats
//   130    26 x 10  kept (texts, one per exercise 0 to 25)
//   390    26 x 4   MontantsAnnuels(0..25): the amount of each exercise
//   494    2602     rest of the yearly schedule, kept
//
// The yearly schedule that starts at 390 opens with the amounts of the item
// by exercise, 0 to 25, as 32-bit floats like every other amount of the
// record: one per exercise, as the 26 texts before it are. What the schedule
// holds past these 104 bytes is not read.
// Emprunt.emp, loans, records of 1096 bytes:
//
//   OFFSET SIZE     MEANING
//   0      4        Nouveau, float: 0 existing, 1 new, other its own category
//   4      8        kept
//   12     2        TypeEmprunt, 16-bit: 0 F, 1 M, 2 CT
//   14     40       LibelleEmprunt
//   54     2        kept
//   56     2        PretMtsJa, 16-bit: -1 for an MTS-JA loan
//   58     10       DateRealisationEmprunt
//   68     2 x 10   kept (dates)
//   88     10       DateFin
//   98     4        MontantEmprunt
//   102    2        kept
//   104    6 x 4    Taux1, Duree1, Taux2, Duree2, Taux3, Duree3
//   128    8        kept
//   136    4        Periode
//   140    4        DiffereEmprunt
//   144    16       kept
//   160    2        NumEntreePlan, 16-bit
//   162    30       kept
//   192    27 x 4   Annuite(0..26)
//   300    27 x 4   Interets(0..26)
//   408    81 x 4   kept (three arrays of 27)
//   732    27 x 4   CapitalRestant(0..26)
//   840    54 x 4   kept (two arrays of 27)
//   1056   4        Differe1
//   1060   4        Echeance1
//   1064   4        Echeance2
//   1068   28       kept
//
// PlanF.fin, financing plan, 20 records of 116 bytes:
//
//   OFFSET SIZE MEANING
//   0      4    NumEntree, float
//   4      50   ObjetInvestissement; blank: the entry is unused
//   54     4    Pourcentage
//   58     4    MontantPlan
//   62     4    kept
//   66     50   ObjetFinancement
#include "tables/ImmoEmprunts.h"

#include <filesystem>

#include "frame/Disposition.h"
#include "frame/Encodage.h"
#include "frame/LecteurBinaire.h"
#include "frame/EcritureAtomique.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

namespace immo {
constexpr ChampDisposition Nouveau{"Nouveau", 0, 4};
constexpr ChampDisposition Garde4{"(4)", 4, 4, 2};
constexpr ChampDisposition TypeImmo{"TypeImmo", 12, 4};
constexpr ChampDisposition Libelle{"Libelle", 16, 40};
constexpr ChampDisposition DateRealisation{"DateRealisation", 56, 10};
constexpr ChampDisposition Montant{"Montant", 66, 4};
constexpr ChampDisposition Duree{"Duree", 70, 4};
constexpr ChampDisposition TypeAmort{"TypeAmort", 74, 4};
constexpr ChampDisposition DateRevente{"DateRevente", 78, 10};
constexpr ChampDisposition MontantRevente{"MontantRevente", 88, 4};
constexpr ChampDisposition NumEntreePlan{"NumEntreePlan", 92, 4};
constexpr ChampDisposition Differe{"Differe", 96, 4};
constexpr ChampDisposition LSM{"LSM", 100, 4};
constexpr ChampDisposition Garde104{"(104)", 104, 10};
constexpr ChampDisposition PlusValues{"PlusValues", 114, 8, 2};
constexpr ChampDisposition Garde130{"(130)", 130, 10, 26};
constexpr ChampDisposition MontantsAnnuels{"MontantsAnnuels", 390, 4, kExercicesImmo};
constexpr ChampDisposition Garde494{"(494)", 494, 2602};
constexpr ChampDisposition kChamps[] = {Nouveau,  Garde4,    TypeImmo,   Libelle,  DateRealisation, Montant,
                                        Duree,    TypeAmort, DateRevente, MontantRevente, NumEntreePlan,
                                        Differe,  LSM,       Garde104,   PlusValues, Garde130, MontantsAnnuels,
                                        Garde494};
static_assert(PaveEnregistrement(kChamps, kLongueurImmo), "an asset record's fields tile 3096 bytes");
}  // namespace immo

namespace empr {
constexpr ChampDisposition Nouveau{"Nouveau", 0, 4};
constexpr ChampDisposition Garde4{"(4)", 4, 8};
constexpr ChampDisposition TypeEmprunt{"TypeEmprunt", 12, 2};
constexpr ChampDisposition LibelleEmprunt{"LibelleEmprunt", 14, 40};
constexpr ChampDisposition Garde54{"(54)", 54, 2};
constexpr ChampDisposition PretMtsJa{"PretMtsJa", 56, 2};
constexpr ChampDisposition DateRealisation{"DateRealisationEmprunt", 58, 10};
constexpr ChampDisposition Garde68{"(68)", 68, 10, 2};
constexpr ChampDisposition DateFin{"DateFin", 88, 10};
constexpr ChampDisposition MontantEmprunt{"MontantEmprunt", 98, 4};
constexpr ChampDisposition Garde102{"(102)", 102, 2};
constexpr ChampDisposition TauxDurees{"TauxDurees", 104, 4, 6};
constexpr ChampDisposition Garde128{"(128)", 128, 8};
constexpr ChampDisposition Periode{"Periode", 136, 4};
constexpr ChampDisposition DiffereEmprunt{"DiffereEmprunt", 140, 4};
constexpr ChampDisposition Garde144{"(144)", 144, 16};
constexpr ChampDisposition NumEntreePlan{"NumEntreePlan", 160, 2};
constexpr ChampDisposition Garde162{"(162)", 162, 30};
constexpr ChampDisposition Annuite{"Annuite", 192, 4, kExercicesEmprunt};
constexpr ChampDisposition Interets{"Interets", 300, 4, kExercicesEmprunt};
constexpr ChampDisposition Garde408{"(408)", 408, 4, 3 * kExercicesEmprunt};
constexpr ChampDisposition CapitalRestant{"CapitalRestant", 732, 4, kExercicesEmprunt};
constexpr ChampDisposition Garde840{"(840)", 840, 4, 2 * kExercicesEmprunt};
constexpr ChampDisposition Differe1{"Differe1", 1056, 4};
constexpr ChampDisposition Echeance1{"Echeance1", 1060, 4};
constexpr ChampDisposition Echeance2{"Echeance2", 1064, 4};
constexpr ChampDisposition Garde1068{"(1068)", 1068, 28};
constexpr ChampDisposition kChamps[] = {
    Nouveau,  Garde4,         TypeEmprunt, LibelleEmprunt, Garde54,  PretMtsJa, DateRealisation,
    Garde68,  DateFin,        MontantEmprunt, Garde102,    TauxDurees, Garde128, Periode,
    DiffereEmprunt, Garde144, NumEntreePlan, Garde162,     Annuite,  Interets,  Garde408,
    CapitalRestant, Garde840, Differe1,    Echeance1,      Echeance2, Garde1068};
static_assert(PaveEnregistrement(kChamps, kLongueurEmprunt), "a loan record's fields tile 1096 bytes");
}  // namespace empr

namespace plan {
constexpr ChampDisposition NumEntree{"NumEntree", 0, 4};
constexpr ChampDisposition ObjetInvestissement{"ObjetInvestissement", 4, 50};
constexpr ChampDisposition Pourcentage{"Pourcentage", 54, 4};
constexpr ChampDisposition MontantPlan{"MontantPlan", 58, 4};
constexpr ChampDisposition Garde62{"(62)", 62, 4};
constexpr ChampDisposition ObjetFinancement{"ObjetFinancement", 66, 50};
constexpr ChampDisposition kChamps[] = {NumEntree, ObjetInvestissement, Pourcentage,
                                        MontantPlan, Garde62,           ObjetFinancement};
static_assert(PaveEnregistrement(kChamps, kLongueurPlan), "a plan record's fields tile 116 bytes");
}  // namespace plan

// A text field read as it stands; blanks when the record is cut before it.
std::string Texte(LecteurBinaire& l, const ChampDisposition& champ) {
  std::string texte(champ.largeur, ' ');
  l.LireTexte(texte, champ);
  return texte;
}

template <typename Fiche, typename Decodeur>
std::vector<Fiche> LireFiches(std::string_view octets, std::size_t longueur, Decodeur decoder) {
  std::vector<Fiche> fiches;
  const std::size_t nombre = NombreFichesArrondi(octets.size(), longueur);
  fiches.reserve(nombre);
  for (std::size_t i = 0; i < nombre; ++i) {
    const std::size_t debut = std::min(i * longueur, octets.size());
    fiches.push_back(decoder(octets.substr(debut, longueur)));
  }
  return fiches;
}

std::string OctetsDe(const std::string& dossier, const char* nom) {
  const auto reel = ResoudreChemin(dossier + nom);
  if (!reel) return {};
  return LireFichier(*reel).value_or(std::string());
}

}  // namespace

bool FichePlan::Utilisee() const { return !EstBlanc(ObjetInvestissement); }

std::size_t NombreFichesArrondi(std::size_t taille, std::size_t longueur) {
  return longueur == 0 ? 0 : (taille + longueur / 2) / longueur;
}

FicheImmo DecoderImmo(std::string_view octets) {
  FicheImmo f;
  LecteurBinaire l(octets.substr(0, kLongueurImmo));
  l.Lire(f.Nouveau, immo::Nouveau);
  l.Aller(immo::TypeImmo.debut);
  l.Lire(f.TypeImmo, immo::TypeImmo);
  f.Libelle = Texte(l, immo::Libelle);
  f.DateRealisation = Texte(l, immo::DateRealisation);
  l.Lire(f.Montant, immo::Montant);
  l.Lire(f.Duree, immo::Duree);
  l.Lire(f.TypeAmort, immo::TypeAmort);
  f.DateRevente = Texte(l, immo::DateRevente);
  l.Lire(f.MontantRevente, immo::MontantRevente);
  l.Lire(f.NumEntreePlan, immo::NumEntreePlan);
  l.Lire(f.Differe, immo::Differe);
  l.Lire(f.LSM, immo::LSM);
  l.Aller(immo::PlusValues.debut);
  l.Lire(f.PlusValues[0]);
  l.Lire(f.PlusValues[1]);
  l.Aller(immo::MontantsAnnuels.debut);
  for (std::size_t n = 0; n < kExercicesImmo; ++n) l.Lire(f.MontantsAnnuels[n], immo::MontantsAnnuels, n);
  return f;
}

FicheEmprunt DecoderEmprunt(std::string_view octets) {
  FicheEmprunt f;
  LecteurBinaire l(octets.substr(0, kLongueurEmprunt));
  l.Lire(f.Nouveau, empr::Nouveau);
  l.Aller(empr::TypeEmprunt.debut);
  l.Lire(f.TypeEmprunt, empr::TypeEmprunt);
  f.LibelleEmprunt = Texte(l, empr::LibelleEmprunt);
  l.Aller(empr::PretMtsJa.debut);
  l.Lire(f.PretMtsJa, empr::PretMtsJa);
  f.DateRealisationEmprunt = Texte(l, empr::DateRealisation);
  l.Aller(empr::DateFin.debut);
  f.DateFin = Texte(l, empr::DateFin);
  l.Lire(f.MontantEmprunt, empr::MontantEmprunt);
  l.Aller(empr::TauxDurees.debut);
  for (float* v : {&f.Taux1, &f.Duree1, &f.Taux2, &f.Duree2, &f.Taux3, &f.Duree3}) l.Lire(*v);
  l.Aller(empr::Periode.debut);
  l.Lire(f.Periode, empr::Periode);
  l.Lire(f.DiffereEmprunt, empr::DiffereEmprunt);
  l.Aller(empr::NumEntreePlan.debut);
  l.Lire(f.NumEntreePlan, empr::NumEntreePlan);
  l.Aller(empr::Annuite.debut);
  for (std::size_t i = 0; i < kExercicesEmprunt; ++i) l.Lire(f.Annuite[i], empr::Annuite, i);
  for (std::size_t i = 0; i < kExercicesEmprunt; ++i) l.Lire(f.Interets[i], empr::Interets, i);
  l.Aller(empr::CapitalRestant.debut);
  for (std::size_t i = 0; i < kExercicesEmprunt; ++i) l.Lire(f.CapitalRestant[i], empr::CapitalRestant, i);
  l.Aller(empr::Differe1.debut);
  l.Lire(f.Differe1, empr::Differe1);
  l.Lire(f.Echeance1, empr::Echeance1);
  l.Lire(f.Echeance2, empr::Echeance2);
  return f;
}

FichePlan DecoderPlan(std::string_view octets) {
  FichePlan f;
  LecteurBinaire l(octets.substr(0, kLongueurPlan));
  l.Lire(f.NumEntree, plan::NumEntree);
  f.ObjetInvestissement = Texte(l, plan::ObjetInvestissement);
  l.Lire(f.Pourcentage, plan::Pourcentage);
  l.Lire(f.MontantPlan, plan::MontantPlan);
  l.Aller(plan::ObjetFinancement.debut);
  f.ObjetFinancement = Texte(l, plan::ObjetFinancement);
  return f;
}

std::vector<FicheImmo> LireImmos(std::string_view octets) {
  return LireFiches<FicheImmo>(octets, kLongueurImmo, DecoderImmo);
}

std::vector<FicheEmprunt> LireEmprunts(std::string_view octets) {
  return LireFiches<FicheEmprunt>(octets, kLongueurEmprunt, DecoderEmprunt);
}

std::vector<FichePlan> LirePlan(std::string_view octets) {
  std::vector<FichePlan> fiches;
  fiches.reserve(kFichesPlan);
  for (std::size_t i = 0; i < kFichesPlan; ++i) {
    const std::size_t debut = std::min(i * kLongueurPlan, octets.size());
    fiches.push_back(DecoderPlan(octets.substr(debut, kLongueurPlan)));
  }
  return fiches;
}

std::string OctetsPlanVide() {
  std::string fiche;
  EcrireFlottant(fiche, 0.0f);
  EcrireTexteFixe(fiche, "", plan::ObjetInvestissement.largeur);
  EcrireFlottant(fiche, 0.0f);
  EcrireFlottant(fiche, 0.0f);
  EcrireFlottant(fiche, 0.0f);
  EcrireTexteFixe(fiche, "", plan::ObjetFinancement.largeur);
  std::string octets;
  for (std::size_t i = 0; i < kFichesPlan; ++i) octets += fiche;
  return octets;
}

std::vector<FicheImmo> ChargerImmos(const std::string& dossier) { return LireImmos(OctetsDe(dossier, "Immo.imm")); }

std::vector<FicheImmo> ChargerSubventions(const std::string& dossier) {
  return LireImmos(OctetsDe(dossier, "Sub.sub"));
}

std::vector<FicheEmprunt> ChargerEmprunts(const std::string& dossier) {
  return LireEmprunts(OctetsDe(dossier, "Emprunt.emp"));
}

std::vector<FichePlan> ChargerPlan(const std::string& dossier, PortMessages& messages) {
  if (ResoudreChemin(dossier + "PlanF.fin")) return LirePlan(OctetsDe(dossier, "PlanF.fin"));
  // Only a dossier that is there gets the file; a missing folder is not made.
  if (DossierExiste(dossier) && !EcrireFichierAtomique(dossier + "PlanF.fin", OctetsPlanVide())) {
    messages.AfficherMessage(
        "TabsImmoEmpr", "Plan de financement",
        "Le fichier PlanF.fin est absent du dossier et n'a pas pu y être créé.\nRépertoire : " + Cp1252VersUtf8(dossier),
        "Le dossier est peut-être en lecture seule : le plan de financement est lu vide.", "seule");
  }
  return LirePlan(OctetsPlanVide());
}

}  // namespace norvane
