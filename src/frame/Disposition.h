// On-disk record layouts as data: each field of a fixed record with its
// offset, the width of one element and the number of elements. Readers take
// the widths from here, so that a layout is written once; PaveEnregistrement
// lets a static_assert prove that the fields tile the record.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace norvane {

struct ChampDisposition {
  std::string_view nom;
  std::size_t debut;    // offset in the record
  std::size_t largeur;  // of one element
  std::size_t nombre = 1;
  // Above 0: a two-dimensional array stored with its first index (0 to
  // lignes - 1) running fastest, named "(i, j)".
  std::size_t lignes = 0;

  constexpr std::size_t Fin() const { return debut + largeur * nombre; }
};

// True when the fields follow each other from byte 0 without gap or overlap
// and the last one ends at `longueur`.
constexpr bool PaveEnregistrement(std::span<const ChampDisposition> champs, std::size_t longueur) {
  std::size_t attendu = 0;
  for (const ChampDisposition& champ : champs) {
    if (champ.debut != attendu || champ.largeur == 0 || champ.nombre == 0) return false;
    attendu = champ.Fin();
  }
  return attendu == longueur;
}

// "Fax", "NomAssocie(2)", "ModeCom(3, 1)": element `rang` of the field.
std::string NomElement(const ChampDisposition& champ, std::size_t rang);

// Name of the element that covers byte `position` of the record; empty past
// the last field.
std::string ChampA(std::span<const ChampDisposition> champs, std::size_t position);

}  // namespace norvane
