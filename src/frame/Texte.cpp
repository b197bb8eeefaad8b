#include "frame/Texte.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace norvane {

char MinusculeCp1252(char c) {
  auto u = static_cast<unsigned char>(c);
  if (u >= 'A' && u <= 'Z') return static_cast<char>(u + 32);
  if (u >= 0xC0 && u <= 0xDE && u != 0xD7) return static_cast<char>(u + 32);
  if (u == 0x8A || u == 0x8C || u == 0x8E) return static_cast<char>(u + 16);
  if (u == 0x9F) return static_cast<char>(0xFF);
  return c;
}

char MajusculeCp1252(char c) {
  auto u = static_cast<unsigned char>(c);
  if (u >= 'a' && u <= 'z') return static_cast<char>(u - 32);
  if (u >= 0xE0 && u <= 0xFE && u != 0xF7) return static_cast<char>(u - 32);
  if (u == 0x9A || u == 0x9C || u == 0x9E) return static_cast<char>(u - 16);
  if (u == 0xFF) return static_cast<char>(0x9F);
  return c;
}

std::string Minuscules(std::string_view texte) {
  std::string r(texte);
  std::transform(r.begin(), r.end(), r.begin(), MinusculeCp1252);
  return r;
}

std::string Majuscules(std::string_view texte) {
  std::string r(texte);
  std::transform(r.begin(), r.end(), r.begin(), MajusculeCp1252);
  return r;
}

std::string TrimDroite(std::string_view texte) {
  auto fin = texte.find_last_not_of(' ');
  return fin == std::string_view::npos ? std::string() : std::string(texte.substr(0, fin + 1));
}

std::string TrimGauche(std::string_view texte) {
  auto debut = texte.find_first_not_of(' ');
  return debut == std::string_view::npos ? std::string() : std::string(texte.substr(debut));
}

std::string Trim(std::string_view texte) { return TrimGauche(TrimDroite(texte)); }

bool EstBlanc(std::string_view texte) { return texte.find_first_not_of(' ') == std::string_view::npos; }

namespace {

struct TableMinuscules {
  unsigned char t[256];
  constexpr TableMinuscules() : t() {
    for (int c = 0; c < 256; ++c) t[c] = static_cast<unsigned char>(c);
    for (int c = 'A'; c <= 'Z'; ++c) t[c] = static_cast<unsigned char>(c + 32);
    for (int c = 0xC0; c <= 0xDE; ++c) t[c] = static_cast<unsigned char>(c == 0xD7 ? c : c + 32);
    t[0x8A] = 0x9A;
    t[0x8C] = 0x9C;
    t[0x8E] = 0x9E;
    t[0x9F] = 0xFF;
  }
};
constexpr TableMinuscules kMinuscules;

inline unsigned char Plier(char c) { return kMinuscules.t[static_cast<unsigned char>(c)]; }

bool SuiteEgale(const char* a, std::string_view motif) {
  for (std::size_t k = 1; k < motif.size(); ++k) {
    if (Plier(a[k]) != Plier(motif[k])) return false;
  }
  return true;
}

}  // namespace

std::size_t Chercher(std::string_view texte, std::string_view motif, std::size_t depart, bool sansCasse) {
  if (!sansCasse) return texte.find(motif, depart);
  if (motif.empty()) return depart <= texte.size() ? depart : std::string_view::npos;
  if (depart >= texte.size() || motif.size() > texte.size() - depart) return std::string_view::npos;
  const char* debut = texte.data();
  const char* dernier = debut + (texte.size() - motif.size());
  const unsigned char premier = Plier(motif[0]);
  const bool sansVariante = MajusculeCp1252(motif[0]) == MinusculeCp1252(motif[0]);
  for (const char* p = debut + depart; p <= dernier; ++p) {
    if (sansVariante) {
      // A first character with no case of its own: jump to it at memchr speed.
      p = static_cast<const char*>(std::memchr(p, motif[0], static_cast<std::size_t>(dernier - p) + 1));
      if (p == nullptr) break;
    } else if (Plier(*p) != premier) {
      continue;
    }
    if (SuiteEgale(p, motif)) return static_cast<std::size_t>(p - debut);
  }
  return std::string_view::npos;
}

std::size_t ChercherSansCasse(std::string_view texte, std::string_view motif, std::size_t depart) {
  return Chercher(texte, motif, depart, true);
}

bool EgalSansCasse(std::string_view a, std::string_view b) {
  return a.size() == b.size() && Chercher(a, b, 0, true) == 0;
}

bool CommencePar(std::string_view texte, std::string_view debut, bool sansCasse) {
  if (debut.size() > texte.size()) return false;
  return sansCasse ? EgalSansCasse(texte.substr(0, debut.size()), debut) : texte.substr(0, debut.size()) == debut;
}

bool FinitPar(std::string_view texte, std::string_view fin, bool sansCasse) {
  if (fin.size() > texte.size()) return false;
  auto queue = texte.substr(texte.size() - fin.size());
  return sansCasse ? EgalSansCasse(queue, fin) : queue == fin;
}

int32_t EntierDe(std::string_view texte) {
  std::size_t i = texte.find_first_not_of(" \t");
  if (i == std::string_view::npos) return 0;
  bool negatif = false;
  if (texte[i] == '-' || texte[i] == '+') negatif = texte[i++] == '-';
  int64_t valeur = 0;
  while (i < texte.size() && texte[i] >= '0' && texte[i] <= '9') {
    valeur = std::min<int64_t>(valeur * 10 + (texte[i++] - '0'), int64_t{1} << 40);
  }
  if (negatif) valeur = -valeur;
  return static_cast<int32_t>(std::clamp<int64_t>(valeur, std::numeric_limits<int32_t>::min(),
                                                  std::numeric_limits<int32_t>::max()));
}

int16_t Entier16De(std::string_view texte) {
  return static_cast<int16_t>(std::clamp<int32_t>(EntierDe(texte), -32768, 32767));
}

double NombreDe(std::string_view texte) {
  std::string t = Trim(texte);
  std::replace(t.begin(), t.end(), ',', '.');
  std::size_t n = 0;
  if (n < t.size() && (t[n] == '-' || t[n] == '+')) ++n;
  while (n < t.size() && ((t[n] >= '0' && t[n] <= '9') || t[n] == '.')) ++n;
  t.resize(n);
  if (t.empty() || t[0] == '+') t = t.empty() ? t : t.substr(1);
  double valeur = 0;
  auto res = std::from_chars(t.data(), t.data() + t.size(), valeur);
  return res.ec == std::errc() ? valeur : 0.0;
}

std::string RemplacerTout(std::string_view texte, std::string_view cherche, std::string_view remplace,
                          bool sansCasse) {
  if (cherche.empty()) return std::string(texte);
  std::string r;
  r.reserve(texte.size());
  std::size_t pos = 0;
  for (std::size_t p; (p = Chercher(texte, cherche, pos, sansCasse)) != std::string_view::npos;
       pos = p + cherche.size()) {
    r.append(texte.substr(pos, p - pos));
    r.append(remplace);
  }
  r.append(texte.substr(pos));
  return r;
}

}  // namespace norvane
