// The walk of creation over the pieces of a template: the paragraph cut
// after a false condition, the property block passed, the font and colour
// tables extended, bookmarks moved out of start marks, then each code found,
// glued whole when torn, and handed on. The generator interprets each code;
// a checker of templates takes the same walk and looks at the codes instead,
// so that both meet exactly the same codes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "template/Morceaux.h"
#include "template/Passes.h"
#include "template/TablePolices.h"

namespace norvane {

// Bookmark ends that a word processor may put inside the start mark, and
// the text each becomes: the bookmark moved in front of the mark.
inline constexpr std::pair<std::string_view, std::string_view> kSignetsDansMarque[] = {
    {"#tvl{\\*\\bkmkend DDE_LINK}(", "{\\*\\bkmkend DDE_LINK}#tvl("},
    {"#tvl{\\*\\bkmkend DDE_LINK1}(", "{\\*\\bkmkend DDE_LINK1}#tvl("},
    {"#tvl{\\*\\bkmkend DDE_LINK2}(", "{\\*\\bkmkend DDE_LINK2}#tvl("},
};

class ParcoursCreation : public ParcoursMorceaux {
 public:
  using ParcoursMorceaux::ParcoursMorceaux;

 protected:
  // One code, marks included, at `debut` of the piece in hand: rewritten in
  // place by its value. Returns the result of the interpretation (0 after a
  // false condition).
  virtual int16_t Interpreter(std::string& code, std::size_t debut);
  // A start mark at `debut` of the piece in hand whose end mark cannot be
  // found; `extrait` is the head of the code as the box shows it.
  virtual void SignalerSansFin(const std::string& extrait, std::size_t debut);

 private:
  Suite Tour(std::size_t i) override;
  void CouperParagrapheCache();
  void EtendreTables();
  void ReparerSignets();
  Suite SansCode(std::size_t i);
  Suite SansFin(std::size_t i);

  std::size_t pieceSignalee_ = std::string::npos;
  RechercheMemorisee debutCode_{"#tvl(", true};
  RechercheMemorisee finCode_{")#", false};
  RechercheMemorisee paragraphe_{"\\par", true};
  RecherchesTables tables_;
  RechercheMemorisee signets_[3] = {
      {kSignetsDansMarque[0].first, false}, {kSignetsDansMarque[1].first, false}, {kSignetsDansMarque[2].first, false}};
};

}  // namespace norvane
