// The definition text of a table line, as the generator reads it.
//
//   entete:<heading kind>[:<start text>&<end text>]
//   serie:<file>+<name>-<record>[:<decimals>[:<display>]]
//   totalS:<LGa op LGb>[:<decimals>[:<display>]]    totalC:<formula>[...]
//   scult: scltp: ALani: <reference>[:<decimals>[:<display>]]
//   cultu: cultp: imemp: prime: <item>[:<decimals>[:<display>]]
//   espace    newpg
// <decimals> is 0 to 6, or 7 for automatic; <display> is the zero-line
// option 0 to 3 (2 when absent).
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace norvane {

inline constexpr char kValeursNulles[] = "VALEURS NULLES";
inline constexpr int16_t kDecimalesAuto = 7;

// What to do with a line whose values are all zero.
enum class AffichageZeros {
  Toujours = 0,   // always printed
  Masquer = 1,    // dropped without a word
  Demander = 2,   // the user is asked
  Jamais = 3,     // never printed; its values still count for totals
};

struct DefinitionLue {
  std::string sorte;     // the text before the first ":" (the whole text without one)
  std::string reste;     // behind the first ":", the display option cut off
  std::string affichage = "2";  // the display option, "2" when none
  bool deuxPoints = false;       // the text holds a ":"
};

// Splits a definition at its first ":". For the kinds that carry a display
// option (serie, totalS, totalC, scult, scltp, ALani, cultu, cultp, imemp),
// a rest holding two ":" or more loses what follows the second one, which is
// the option.
DefinitionLue LireDefinition(std::string_view definition);

// The kinds whose all-zero lines follow the display option.
bool SuitOptionZeros(std::string_view sorte);

// "reference[:decimals]": the reference, and the decimals (7 when absent).
struct ReferenceDecimales {
  std::string reference;
  int16_t decimales = kDecimalesAuto;
};
ReferenceDecimales LireReferenceDecimales(std::string_view reste);

// The zero-line option of a display text: "1", "2" and "3" as they stand,
// anything else always shows the line.
AffichageZeros OptionZeros(std::string_view affichage);

}  // namespace norvane
