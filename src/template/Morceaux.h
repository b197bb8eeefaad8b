// A template is handled as a list of text pieces of a little over 1000
// characters, cut at line ends: the searches and cuts of the generator then
// work on short texts, and a code torn across two pieces is mended by gluing
// them. The file's line breaks are not kept inside a piece.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

constexpr std::size_t kTailleMorceau = 1000;

struct ModeleDecoupe {
  std::vector<std::string> morceaux;  // never empty: starts with one empty piece
  int32_t nbCodes = 0;                // "#tvl(" marks in the whole file, any case
};

// Lines end with CR LF, LF or CR; a final line end makes no extra line.
ModeleDecoupe DecouperEnMorceaux(std::string_view contenu);

// Index of the first occurrence of `motif` at or after `depuis`, remembered
// between calls so that scanning a long piece code after code stays linear.
// The text may grow at its end between calls; any other change must come
// with a new `version`.
class RechercheMemorisee {
 public:
  RechercheMemorisee(std::string_view motif, bool sansCasse) : motif_(motif), sansCasse_(sansCasse) {}
  std::size_t Trouver(const std::string& texte, std::size_t depuis, uint64_t version);

 private:
  std::string motif_;
  bool sansCasse_;
  uint64_t version_ = ~uint64_t{0};
  std::size_t depuis_ = 0;
  std::size_t trouve_ = std::string::npos;
  std::size_t taille_ = 0;
};

// The piece in hand: a text of which the part before `debut` is consumed.
// Cutting its head only moves `debut`, so that the generator never copies
// the remainder of a long piece at each code.
class MorceauCourant {
 public:
  void Charger(std::string texte);
  // Glues the next piece behind the remainder.
  void Coller(const std::string& suivant) { texte_ += suivant; }
  void Avancer(std::size_t position);  // the piece becomes what stands from `position` on
  // Replaces the remainder by `nouveau` (an edit in the middle of the piece).
  void Remplacer(std::string nouveau);

  const std::string& Texte() const { return texte_; }
  std::size_t Debut() const { return debut_; }
  std::string_view Reste() const { return std::string_view(texte_).substr(debut_); }
  bool Vide() const { return debut_ >= texte_.size(); }
  uint64_t Version() const { return version_; }
  std::size_t Trouver(RechercheMemorisee& recherche) const { return recherche.Trouver(texte_, debut_, version_); }

 private:
  std::string texte_;
  std::size_t debut_ = 0;
  uint64_t version_ = 0;
};

}  // namespace norvane
