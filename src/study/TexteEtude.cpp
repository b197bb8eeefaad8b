#include "study/TexteEtude.h"

namespace norvane {

std::string TexteEtudePourRtf(std::string_view texte) {
  std::string sur;
  sur.reserve(texte.size());
  for (const char c : texte) {
    const auto octet = static_cast<unsigned char>(c);
    if (c == '\\' || c == '{' || c == '}') {
      sur += '\\';
      sur += c;
    } else if ((octet >= 0x20 && octet != 0x7F) || c == '\r' || c == '\n') {
      sur += c;
    }
  }
  return sur;
}

}  // namespace norvane
