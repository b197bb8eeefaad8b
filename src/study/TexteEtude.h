// Texts read from study files, made safe before they meet the RTF that the
// system builds: a farm name "A}}}{\rtf1 B" must print as it reads, not close
// the document's groups. The bytes stay Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace norvane {

// "\", "{" and "}" escaped with a "\"; control bytes (below 32, and 127)
// dropped, except CR and LF, the line ends that the system itself turns into
// paragraphs; bytes above 127 kept as they are.
std::string TexteEtudePourRtf(std::string_view texte);

}  // namespace norvane
