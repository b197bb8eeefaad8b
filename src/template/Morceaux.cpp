#include "template/Morceaux.h"

#include <algorithm>

#include "frame/Texte.h"

namespace norvane {
namespace {

int32_t CompterMarques(std::string_view ligne) {
  int32_t n = 0;
  for (std::size_t p = 0; (p = ChercherSansCasse(ligne, "#tvl(", p)) != std::string_view::npos; p += 5) ++n;
  return n;
}

}  // namespace

ModeleDecoupe DecouperEnMorceaux(std::string_view contenu) {
  ModeleDecoupe d;
  d.morceaux.emplace_back();
  std::size_t p = 0;
  while (p < contenu.size()) {
    std::size_t fin = contenu.find_first_of("\r\n", p);
    if (fin == std::string_view::npos) fin = contenu.size();
    std::string_view ligne = contenu.substr(p, fin - p);
    if (d.morceaux.back().size() > kTailleMorceau) d.morceaux.emplace_back();
    d.morceaux.back().append(ligne);
    d.nbCodes += CompterMarques(ligne);
    p = fin;
    if (p < contenu.size() && contenu[p] == '\r') ++p;
    if (p < contenu.size() && contenu[p] == '\n' && (p == fin || contenu[fin] == '\r')) ++p;
  }
  return d;
}

std::size_t RechercheMemorisee::Trouver(const std::string& texte, std::size_t depuis, uint64_t version) {
  const bool memeTexte = version == version_ && depuis >= depuis_ && texte.size() >= taille_;
  if (memeTexte && trouve_ != std::string::npos && trouve_ >= depuis) return trouve_;
  std::size_t reprise = depuis;
  if (memeTexte && trouve_ == std::string::npos) {
    // Nothing up to the old end: only the glued text, and the seam, need a look.
    std::size_t couture = taille_ >= motif_.size() ? taille_ - motif_.size() + 1 : 0;
    reprise = std::max(depuis, couture);
  }
  trouve_ = Chercher(texte, motif_, reprise, sansCasse_);
  version_ = version;
  depuis_ = depuis;
  taille_ = texte.size();
  return trouve_;
}

void MorceauCourant::Charger(std::string texte) {
  texte_ = std::move(texte);
  debut_ = 0;
  ++version_;
}

void MorceauCourant::Avancer(std::size_t position) {
  debut_ = std::min(position, texte_.size());
  // Drop a long consumed head now and then, so that memory stays bounded
  // while the cost of the copies stays linear overall.
  if (debut_ > 65536 && debut_ > texte_.size() / 2) {
    texte_.erase(0, debut_);
    debut_ = 0;
    ++version_;
  }
}

void MorceauCourant::Remplacer(std::string nouveau) {
  texte_ = std::move(nouveau);
  debut_ = 0;
  ++version_;
}

}  // namespace norvane
