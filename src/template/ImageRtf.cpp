#include "template/ImageRtf.h"

namespace norvane {
namespace {

std::string Hexadecimal(std::string_view donnees) {
  constexpr char chiffres[] = "0123456789abcdef";
  std::string r;
  r.reserve(donnees.size() * 2);
  for (const char octet : donnees) {
    const auto c = static_cast<unsigned char>(octet);
    r += chiffres[c >> 4];
    r += chiffres[c & 0x0F];
  }
  return r;
}

}  // namespace

std::string GroupeImageRtf(std::string_view sorte, const TailleImageRtf& taille, std::string_view donnees) {
  std::string groupe = "{\\pict\\" + std::string(sorte);
  groupe += "\\picw" + std::to_string(taille.largeurPixels) + "\\pich" + std::to_string(taille.hauteurPixels);
  groupe += "\\picwgoal" + std::to_string(taille.largeurTwips) + "\\pichgoal" + std::to_string(taille.hauteurTwips);
  groupe += ' ';
  groupe += Hexadecimal(donnees);
  groupe += '}';
  return groupe;
}

}  // namespace norvane
