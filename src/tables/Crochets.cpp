#include "tables/Crochets.h"

namespace norvane {

std::string_view ExtraireCrochets(std::string_view& texte) {
  const std::size_t ouvrant = texte.find('[');
  if (ouvrant == std::string_view::npos) return kErreurCrochets;
  texte.remove_prefix(ouvrant + 1);
  const std::size_t fermant = texte.find(']');
  if (fermant == std::string_view::npos) return kErreurCrochets;
  const std::string_view dedans = texte.substr(0, fermant);
  texte.remove_prefix(fermant + 1);
  return dedans;
}

std::string ExtraireCrochets(std::string& texte) {
  std::string_view reste = texte;
  std::string dedans(ExtraireCrochets(reste));
  texte = std::string(reste);
  return dedans;
}

namespace {

// Position of the n-th occurrence, npos when there are fewer.
std::size_t PositionOccurrence(std::string_view texte, std::string_view separateur, int n) {
  if (n < 1 || separateur.empty()) return std::string_view::npos;
  std::size_t position = std::string_view::npos;
  std::size_t depart = 0;
  for (int i = 0; i < n; ++i) {
    position = texte.find(separateur, depart);
    if (position == std::string_view::npos) return position;
    depart = position + separateur.size();
  }
  return position;
}

}  // namespace

std::string GaucheDe(std::string_view texte, std::string_view separateur, int n) {
  const std::size_t position = PositionOccurrence(texte, separateur, n);
  if (position == std::string_view::npos) return "-1";
  return std::string(texte.substr(0, position));
}

std::string DroiteDe(std::string_view texte, std::string_view separateur, int n) {
  const std::size_t position = PositionOccurrence(texte, separateur, n);
  if (position == std::string_view::npos) return "-1";
  return std::string(texte.substr(position + separateur.size()));
}

}  // namespace norvane
