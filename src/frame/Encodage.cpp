#include "frame/Encodage.h"

#include <array>
#include <cstdint>

namespace norvane {
namespace {

// Code points of bytes 0x80 to 0x9F; 0 for the five bytes the code page leaves unassigned.
constexpr std::array<char32_t, 32> kZone80 = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

void AjouterUtf8(std::string& sortie, char32_t cp) {
  if (cp < 0x80) {
    sortie += static_cast<char>(cp);
  } else if (cp < 0x800) {
    sortie += static_cast<char>(0xC0 | (cp >> 6));
    sortie += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    sortie += static_cast<char>(0xE0 | (cp >> 12));
    sortie += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    sortie += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    sortie += static_cast<char>(0xF0 | (cp >> 18));
    sortie += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    sortie += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    sortie += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

char VersOctet(char32_t cp) {
  if (cp < 0x80 || (cp >= 0xA0 && cp <= 0xFF)) return static_cast<char>(cp);
  // The five unassigned bytes travel as the control characters of the same
  // number, both ways, so that every byte survives a round trip.
  if (cp >= 0x80 && cp < 0xA0 && kZone80[cp - 0x80] == 0) return static_cast<char>(cp);
  for (std::size_t i = 0; i < kZone80.size(); ++i) {
    if (kZone80[i] == cp && cp != 0) return static_cast<char>(0x80 + i);
  }
  return '?';
}

// Decodes one UTF-8 sequence at `i`; returns its length, 0 when it is not valid.
std::size_t DecoderUtf8(std::string_view t, std::size_t i, char32_t& cp) {
  auto u = static_cast<unsigned char>(t[i]);
  std::size_t n = u >= 0xF0 && u < 0xF5 ? 4 : u >= 0xE0 ? 3 : u >= 0xC2 && u < 0xE0 ? 2 : 0;
  if (n == 0 || i + n > t.size()) return 0;
  cp = u & (0x7F >> n);
  for (std::size_t k = 1; k < n; ++k) {
    auto c = static_cast<unsigned char>(t[i + k]);
    if ((c & 0xC0) != 0x80) return 0;
    cp = (cp << 6) | (c & 0x3F);
  }
  return n;
}

}  // namespace

std::string Cp1252VersUtf8(std::string_view texte) {
  std::string sortie;
  sortie.reserve(texte.size() + texte.size() / 8);
  for (char c : texte) {
    auto u = static_cast<unsigned char>(c);
    char32_t cp = u;
    if (u >= 0x80 && u < 0xA0) cp = kZone80[u - 0x80] ? kZone80[u - 0x80] : u;
    AjouterUtf8(sortie, cp);
  }
  return sortie;
}

std::string Utf8VersCp1252(std::string_view texte) {
  std::string sortie;
  sortie.reserve(texte.size());
  for (std::size_t i = 0; i < texte.size();) {
    auto u = static_cast<unsigned char>(texte[i]);
    char32_t cp = 0;
    std::size_t n = u < 0x80 ? 0 : DecoderUtf8(texte, i, cp);
    if (n == 0) {
      sortie += texte[i++];
    } else {
      sortie += VersOctet(cp);
      i += n;
    }
  }
  return sortie;
}

}  // namespace norvane
