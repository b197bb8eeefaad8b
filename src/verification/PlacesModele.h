// Where a code stands in a template: the generator works on the file's text
// with its line breaks taken out, and this maps a position in that text back
// to the line and column of the file, and to the page and paragraph of the
// document that the RTF's \page and \par marks make.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

struct PlaceCode {
  int ligne = 1;        // 1-based line of the file
  int colonne = 1;      // 1-based character of that line (Windows-1252: one byte a character)
  int page = 1;         // 1 + the \page marks before the code
  int paragraphe = 1;   // 1 + the \par marks before the code since the last \page
};

class PlacesModele {
 public:
  // `contenu`: the file as it was read. Positions given to Situer are in the
  // same text without its line breaks (CR LF, LF or CR), as the generator's
  // pieces hold it; the RTF marks are read in the file, where a line break
  // ends a control word.
  explicit PlacesModele(std::string_view contenu);
  PlaceCode Situer(std::size_t position) const;

 private:
  std::vector<std::size_t> debutsLignes_;  // in `texte`
  std::vector<std::size_t> pages_;
  std::vector<std::size_t> paragraphes_;
};

// The control word `mot` ("\par") at `p` of `texte`, not the head of a
// longer word ("\pard").
bool MotControle(std::string_view texte, std::size_t p, std::string_view mot);

}  // namespace norvane
