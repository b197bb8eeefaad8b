// The two crop catalogues of a dossier: cult.clt (annual crops) and CltP.cpD
// (perennial crops), fixed records read with their record length (layouts in
// Cultures.cpp). Decoding works on bytes in memory; a record cut by the end
// of the data keeps what it has, the rest reads as zeros and blanks.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

inline constexpr std::size_t kLongueurCulture = 1674;
inline constexpr std::size_t kLongueurCulturePerenne = 52;
inline constexpr std::size_t kExercicesCulture = 11;  // exercises 0 to 10

using ValeursCulture = std::array<float, kExercicesCulture>;

// The value names of an annual crop, in the order of their arrays in the
// record (lower case, as `cultu` items name them).
inline constexpr std::array<std::string_view, 28> kNomsValeursCulture = {
    "rendement",    "assolement", "qterecolte", "qtepreleve", "prixunitaire", "autreproduit", "primeetdiv",
    "produitunit",  "chargeunit", "margeunit",  "margeglobale", "stockfin",   "qtevendue",    "qteachat",
    "varstock",     "valeurstock", "prixmoyen", "prixvente",  "prixachat",    "prixcession",  "varinv",
    "engrais",      "semence",    "traitement", "travaux",    "taxe1",        "autrecharge",  "creance"};

struct FicheCulture {
  float NumCulture = 0;
  std::string NomCulture;           // 23 bytes, padded
  char UniteRendement = ' ';        // '0' quintals, '1' tonnes, '2' kilograms, '3' unit
  int16_t Derobee = 0;              // not 0 for a catch crop
  int16_t TypeCulture = 0;          // 1..4; below 1 ends the list
  std::array<ValeursCulture, kNomsValeursCulture.size()> Valeurs{};

  // The array of a value name (any case); null for a name that is none.
  const ValeursCulture* Tableau(std::string_view nom) const;
  // "Cult" + this number + ".don" names the crop's series file.
  std::string Numero() const;
};

struct FicheCulturePerenne {
  int16_t NumCultureP = 0;
  std::string NomCultureP;          // 30 bytes, padded
  int16_t TypeCultureP = 0;         // below 1 ends the list
  int16_t UniteSurface = 0;         // 0 ha, 1 are, 2 m², other "autre"
  int32_t UniteRendementP = 0;      // 0 hl, 1 T, 2 kg, 3 q
  int16_t PleineProduction = 0;     // years
  int16_t DureeAmortissement = 0;   // years
};

// Number of records in `taille` bytes: a record cut short counts.
std::size_t NombreFichesCatalogue(std::size_t taille, std::size_t longueur);

FicheCulture DecoderCulture(std::string_view octets);
FicheCulturePerenne DecoderCulturePerenne(std::string_view octets);

// Every record of a catalogue's bytes, in file order, the end-of-list
// records included.
std::vector<FicheCulture> LireCultures(std::string_view octets);
std::vector<FicheCulturePerenne> LireCulturesPerennes(std::string_view octets);

// The records of `cult.clt` / `CltP.cpD` in `dossier` (a folder ending "/"),
// found without regard to case, up to the first one that ends the list.
// Empty when the file is missing or cannot be read.
std::vector<FicheCulture> ChargerCultures(const std::string& dossier);
std::vector<FicheCulturePerenne> ChargerCulturesPerennes(const std::string& dossier);

// Texts of the units: "ha", "are", "m²" (Windows-1252), "autre"; and "hl",
// "T", "kg", "q" (empty for another number).
std::string TexteUniteSurface(int16_t unite);
std::string TexteUniteRendementP(int32_t unite);

}  // namespace norvane
