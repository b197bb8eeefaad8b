// The line form of the table editor over plain values: the fields the user
// fills for a line, written into the definition text of that line, and read
// back from it to fill the form again.
//
//   Intitulé            entete:<kind>:<start text>&<end text>
//   Série               serie:<reference>:<decimales>:<affichage>
//   Espace              espace
//   Calcul              totalS:LG<a><op>LG<b>:<d>:<a>   or   totalC:<FORMULA>:<d>:<a>
//   Lignes pré-définies <group>:<item>:<d>:<a>
//   scult, scltp, ALani <kind>:<reference>:<d>:<a>
//   Saut de page        newpg
// decimales: 0 to 6, 7 for automatic; affichage: the zero-line option 0 to 3.
// On reading, the last two fields are optional (7 and 2).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "tables/FormatsLigne.h"

namespace norvane {

struct FormulaireLigne {
  TypeLigne type = TypeLigne::Serie;
  // Heading: its kind ("1" to "7"); series kinds: the reference; calculation:
  // the formula; pre-defined lines: "<group>:<item>".
  std::string contenu;
  std::string texteDebut;   // heading texts, used when ModeAnnees is 2
  std::string texteFin;
  bool formuleSimple = false;  // calculation: totalS rather than totalC
  int16_t decimales = 7;
  int16_t affichage = 2;
};

// The definition text of the form's fields. In the simple form of a
// calculation "x" is stored as "*"; the free form is stored in upper case.
std::string FormaterDefinition(const FormulaireLigne& formulaire);
// The form's fields from a definition text; a text of no known kind reads as
// a series with that whole text as reference.
FormulaireLigne LireFormulaire(std::string_view definition);

}  // namespace norvane
