// The blocks of a line of kind "imemp": the dossier's fixed assets, grants
// and loans listed with their own columns, and the investments and
// financing table. Such a line ignores the model's columns and only borrows
// the format (Police, Cadre) of its definition cell.
//
//   imemp:<item>[:<decimals>[:<display>]]
//   item: immos immo0 immo1 immo2 | subvt subv0 subv1 subv2 |
//         emprt empt0 empt1 empt2 | inves
// The last letter of the item is the variant: "0" new items, "1" old ones,
// anything else both (old first).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Ports.h"

namespace norvane {

struct ContexteTableau;

// The RTF of the block of the line in hand; `debutLigne` is the row start
// ("\plain \trowd..."), whose gap becomes 5 twips. Empty for an item that
// makes no block here.
std::string LignesImmoEmprunts(ContexteTableau& contexte, const std::string& debutLigne);

// A thin closing row `largeur` twips wide.
std::string LigneSeparation(int32_t largeur);

// A duration: "1 an", "2 ans"; with a period code of months (1, 2, 3, 6)
// "<n> mois", "<n> bimestre", "<n> trimestre", "<n> semestre". Empty when
// `afficher` is false or the value is 0.
std::string TexteDuree(float valeur, bool afficher, float periode);

// "JJ/MM/AAAA" as "dd/mm/yy"; empty when the text is no such date.
std::string DateCourte(std::string_view date);

// The row start with its gap cut to "\trgaph5".
std::string DebutLigneSerree(std::string_view debutLigne);

}  // namespace norvane
