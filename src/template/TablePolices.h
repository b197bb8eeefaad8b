// The fixed font and colour sets that every result document carries, so that
// generated tables may refer to fonts 5000 to 5156 and to 16 known colours.
#pragma once

#include <cstdint>
#include <string>

namespace norvane {

constexpr int kPremierePolice = 5000;
constexpr int kDernierePolice = 5156;

// Name of font 5000..5156; "Arial" for any other number.
std::string NomPolice(int numero);
// Number (as text) of the font with that name, "5006" when it is in no row.
std::string NumeroPolice(const std::string& nom);

// Puts the 157 fonts behind "{\fonttbl" of the text, when there is one.
void EtendrePolices(std::string& texte);
// Counts the template's colours into `prochaineCouleur` and appends the 16
// program colours to "{\colortbl;...;}", when there is one.
void EtendreCouleurs(std::string& texte, int16_t& prochaineCouleur);

}  // namespace norvane
