// The user's preferences, as held in Editeur.svg (see Parametres.h for the file).
// Texts are Windows-1252 bytes, as in the file: convert with Encodage.h where
// they meet the user (UTF-8) or the file system.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace norvane {

struct Options {
  std::string CheminEditeur;
  int16_t OublierRepModeles = 0;
  int16_t BarreMasquable = 0;
  int16_t ModeInsertion = 0;
  int16_t MasquerPopup = 0;
  // [line kind 0..5][0 = first cell, 1 = other cells]; blank reads as "1;1;1;1;8" at use.
  std::array<std::array<std::string, 2>, 6> FormatLigne;
  int16_t SansAnnotation = 1;
  int16_t CouleurMarqueur = 0;
  int16_t OptimisationOOo = 0;
  std::string RepModeles;
  int16_t DelaiSvgAuto = 0;
  int16_t TailleCellule = 0;
  std::string AlignCellule;
};

}  // namespace norvane
