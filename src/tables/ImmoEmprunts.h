// The asset, grant, loan and financing-plan files of a dossier: Immo.imm,
// Sub.sub (same record), Emprunt.emp and PlanF.fin (layouts in
// ImmoEmprunts.cpp). Decoding works on bytes in memory. The number of
// records of the first three files is the length over the record length,
// rounded to the nearest integer; a last record cut short keeps what it has.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Ports.h"

namespace norvane {

inline constexpr std::size_t kLongueurImmo = 3096;
inline constexpr std::size_t kLongueurEmprunt = 1096;
inline constexpr std::size_t kLongueurPlan = 116;
inline constexpr std::size_t kFichesPlan = 20;
inline constexpr std::size_t kExercicesEmprunt = 27;
// Exercises 0 to 25 of an asset's yearly amounts.
inline constexpr std::size_t kExercicesImmo = 26;

// A fixed asset (Immo.imm) or a grant (Sub.sub).
struct FicheImmo {
  float Nouveau = 0;        // 0 existing, 1 new item of the plan
  float TypeImmo = 0;
  std::string Libelle;      // 40
  std::string DateRealisation;  // "JJ/MM/AAAA"
  float Montant = 0;
  float Duree = 0;
  float TypeAmort = 0;
  std::string DateRevente;  // DateEcheance of a grant
  float MontantRevente = 0;
  float NumEntreePlan = 0;
  float Differe = 0;
  float LSM = 0;
  std::array<double, 2> PlusValues{};  // the two halves of the capital gain
  std::array<float, kExercicesImmo> MontantsAnnuels{};  // exercise n at index n
};

struct FicheEmprunt {
  float Nouveau = 0;        // 0 existing, 1 new, any other a category of its own
  int16_t TypeEmprunt = 0;
  std::string LibelleEmprunt;   // 40
  int16_t PretMtsJa = 0;        // -1 for an MTS-JA loan
  std::string DateRealisationEmprunt;
  std::string DateFin;
  float MontantEmprunt = 0;
  float Taux1 = 0, Duree1 = 0, Taux2 = 0, Duree2 = 0, Taux3 = 0, Duree3 = 0;
  float Periode = 0;
  float DiffereEmprunt = 0;
  int16_t NumEntreePlan = 0;
  std::array<float, kExercicesEmprunt> Annuite{};
  std::array<float, kExercicesEmprunt> Interets{};
  std::array<float, kExercicesEmprunt> CapitalRestant{};
  float Differe1 = 0;
  float Echeance1 = 0;
  float Echeance2 = 0;
};

struct FichePlan {
  float NumEntree = 0;
  std::string ObjetInvestissement;  // 50; blank: the entry is unused
  float Pourcentage = 0;
  float MontantPlan = 0;
  std::string ObjetFinancement;     // 50

  bool Utilisee() const;
};

// `taille` / `longueur`, rounded to the nearest integer.
std::size_t NombreFichesArrondi(std::size_t taille, std::size_t longueur);

FicheImmo DecoderImmo(std::string_view octets);
FicheEmprunt DecoderEmprunt(std::string_view octets);
FichePlan DecoderPlan(std::string_view octets);

std::vector<FicheImmo> LireImmos(std::string_view octets);
std::vector<FicheEmprunt> LireEmprunts(std::string_view octets);
// Always 20 entries: those of the bytes, then empty ones.
std::vector<FichePlan> LirePlan(std::string_view octets);

// The bytes of an empty plan: 20 records of zeros and blanks.
std::string OctetsPlanVide();

// The files of `dossier` (a folder ending "/"), found without regard to
// case; a missing file gives no record.
std::vector<FicheImmo> ChargerImmos(const std::string& dossier);
std::vector<FicheImmo> ChargerSubventions(const std::string& dossier);
std::vector<FicheEmprunt> ChargerEmprunts(const std::string& dossier);
// PlanF.fin; a missing file is first created empty (the one file of a
// dossier the program ever writes). When it cannot be, the user is told and
// an empty plan is read.
std::vector<FichePlan> ChargerPlan(const std::string& dossier, PortMessages& messages);

}  // namespace norvane
