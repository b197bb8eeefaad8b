#include "verification/PlacesModele.h"

#include <algorithm>
#include <cctype>

namespace norvane {
namespace {

// Number of entries of a sorted list lying before `position`.
int Avant(const std::vector<std::size_t>& liste, std::size_t position) {
  return static_cast<int>(std::lower_bound(liste.begin(), liste.end(), position) - liste.begin());
}

}  // namespace

bool MotControle(std::string_view texte, std::size_t p, std::string_view mot) {
  if (texte.compare(p, mot.size(), mot) != 0) return false;
  const std::size_t apres = p + mot.size();
  return apres >= texte.size() || std::isalpha(static_cast<unsigned char>(texte[apres])) == 0;
}

PlacesModele::PlacesModele(std::string_view contenu) {
  debutsLignes_.push_back(0);
  std::size_t retires = 0;  // line-break bytes seen so far
  for (std::size_t i = 0; i < contenu.size(); ++i) {
    if (contenu[i] == '\\') {
      if (MotControle(contenu, i, "\\page")) pages_.push_back(i - retires);
      if (MotControle(contenu, i, "\\par")) paragraphes_.push_back(i - retires);
      continue;
    }
    if (contenu[i] != '\r' && contenu[i] != '\n') continue;
    const bool crlf = contenu[i] == '\r' && i + 1 < contenu.size() && contenu[i + 1] == '\n';
    const std::size_t fin = crlf ? i + 2 : i + 1;
    retires += fin - i;
    if (fin < contenu.size()) debutsLignes_.push_back(fin - retires);
    i = fin - 1;
  }
}

PlaceCode PlacesModele::Situer(std::size_t position) const {
  PlaceCode place;
  const int ligne = static_cast<int>(std::upper_bound(debutsLignes_.begin(), debutsLignes_.end(), position) -
                                     debutsLignes_.begin());
  place.ligne = ligne;
  place.colonne = static_cast<int>(position - debutsLignes_[static_cast<std::size_t>(ligne - 1)]) + 1;
  const int pages = Avant(pages_, position);
  place.page = pages + 1;
  const std::size_t debutPage = pages == 0 ? 0 : pages_[static_cast<std::size_t>(pages - 1)];
  place.paragraphe = Avant(paragraphes_, position) - Avant(paragraphes_, debutPage) + 1;
  return place;
}

}  // namespace norvane
