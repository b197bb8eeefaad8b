// What the tables of one generation share: the values each cell printed (read
// by total lines), the line in hand, the place of the program's colours in the
// document, and the dossiers chosen for the tables that compare dossiers.
// One object lives as long as one generation of a document.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "tables/ModeleTableau.h"
#include "template/Generation.h"

namespace norvane {

inline constexpr int kColonnesValeursMax = 16;  // column indexes 0 to 15

class EtatTableaux : public LignesTableau {
 public:
  // 1-based number of the line being generated; 0 outside a table.
  int16_t LigneCourante = 0;
  // ValeursLignes[column][line]: the value shown in each cell so far, column
  // 0 to 15 (year or dossier), line 1 to 511. Kept from one table to the
  // next: each line rewrites the columns it prints.
  std::array<std::array<float, kLignesMax + 1>, kColonnesValeursMax> ValeursLignes{};
  // Added to every colour number of a model: the program's 16 colours follow
  // the template's own in the document's colour table.
  int16_t BaseCouleurs = 0;
  // Dossiers chosen for the last multi-dossier table; 0 before any. Index 0
  // is the dossier of the document.
  int16_t NbDossiersChoisis = 0;
  std::array<std::string, 10> CheminsDossiers;
  std::array<std::string, 10> NomsDossiers;

  // The model being generated (null between tables), for total formulas.
  const ModeleTableau* ModeleEnCours = nullptr;

  // A stored value; 0 outside the table's bounds.
  float Valeur(int ligne, int annee) const override;
  void Stocker(int ligne, int annee, float valeur);
  // The first of the line's three label texts that is not blank.
  std::string Texte(int ligne) const override;
  // True unless the model in hand starts at the year before the study.
  bool DebuteAnneeUn() const override;
};

}  // namespace norvane
