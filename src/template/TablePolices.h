// The fixed font and colour sets that every result document carries, so that
// generated tables may refer to fonts 5000 to 5156 and to 16 known colours.
#pragma once

#include <cstdint>
#include <string>

#include "template/Morceaux.h"

namespace norvane {

constexpr int kPremierePolice = 5000;
constexpr int kDernierePolice = 5156;

// Name of font 5000..5156; "Arial" for any other number.
std::string NomPolice(int numero);
// Number (as text) of the font with that name, "5006" when it is in no row.
std::string NumeroPolice(const std::string& nom);

// The searches that extending the tables of a piece needs, kept from round
// to round so that a long piece is looked through once.
struct RecherchesTables {
  RechercheMemorisee polices{"{\\fonttbl", true};
  RechercheMemorisee couleurs{"{\\colortbl;", false};
  RechercheMemorisee finCouleurs{";}", false};
  CompteMemorise separateurs{";\\"};
};

// Puts the 157 fonts behind the first "{\fonttbl" of the piece's remainder,
// when there is one.
void EtendrePolices(MorceauCourant& morceau, RecherchesTables& recherches);
// Counts the template's colours into `prochaineCouleur` and appends the 16
// program colours to the first "{\colortbl;...;}" of the piece's remainder,
// when there is one.
void EtendreCouleurs(MorceauCourant& morceau, RecherchesTables& recherches, int16_t& prochaineCouleur);

// The same on a whole text.
void EtendrePolices(std::string& texte);
void EtendreCouleurs(std::string& texte, int16_t& prochaineCouleur);

}  // namespace norvane
