// The references of crop series ("scult:@<reference>", "scltp:@<reference>"):
// short arithmetic over record numbers of the crop's series file, each record
// read for the exercise in hand.
//
//   n        record n                 nt      record n of the transformation file
//   na-1     record n, year before    a+b, a+b+c, a-b, 75-85+87   sums and differences
//   axb      product                  .../c, .../c/d, .../d+e+f   quotients; a zero divisor gives 0
//
// Annual crops read some records by their type ("18" is record 17 of a
// type 1 crop); perennial crops give 0 for the references that only annual
// crops have.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

namespace norvane {

// Value of record `numero` for exercise `annee`; `transformation` reads the
// "t" file of a perennial crop.
using LectureRecord = std::function<float(int32_t numero, int annee, bool transformation)>;

// `reference` without its "@". `typeCulture` is the annual crop's type
// (1 to 4), or 0 for a perennial crop.
double EvaluerReferenceCulture(std::string_view reference, int annee, int16_t typeCulture, const LectureRecord& lire);

}  // namespace norvane
