// The one way a number becomes text, in French marks: decimal comma and the
// no-break space (byte 0xA0 of Windows-1252) between groups of three digits.
#pragma once

#include <cstdint>
#include <string>

namespace norvane {

// `decimales` 0 to 6: that many decimals, rounded. Any other value (7 is the
// usual one) is automatic: at most two decimals, chosen from the number's
// shortest text. `videSiZero`: a zero value gives a single blank.
// The value is a 32-bit float, as study figures are: a double given here is
// first narrowed to it. The result is Windows-1252.
std::string FormatNombre(float valeur, int16_t decimales, bool videSiZero);

}  // namespace norvane
