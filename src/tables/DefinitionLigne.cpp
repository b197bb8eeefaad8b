#include "tables/DefinitionLigne.h"

#include <array>

#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr std::array<std::string_view, 9> kSortesAvecOption = {"serie", "totalS", "totalC", "scult", "scltp",
                                                               "ALani", "cultu",  "cultp",  "imemp"};
constexpr std::array<std::string_view, 6> kSortesOptionZeros = {"serie", "totalS", "totalC", "scult", "scltp", "ALani"};

template <std::size_t N>
bool Parmi(const std::array<std::string_view, N>& liste, std::string_view sorte) {
  for (std::string_view s : liste) {
    if (s == sorte) return true;
  }
  return false;
}

}  // namespace

DefinitionLue LireDefinition(std::string_view definition) {
  DefinitionLue lue;
  const std::size_t deuxPoints = definition.find(':');
  lue.deuxPoints = deuxPoints != std::string_view::npos;
  lue.sorte = std::string(definition.substr(0, deuxPoints));
  if (!lue.deuxPoints) return lue;
  std::string_view reste = definition.substr(deuxPoints + 1);
  if (Parmi(kSortesAvecOption, lue.sorte)) {
    const std::size_t premier = reste.find(':');
    const std::size_t second = premier == std::string_view::npos ? premier : reste.find(':', premier + 1);
    if (second != std::string_view::npos) {
      lue.affichage = std::string(reste.substr(second + 1));
      reste = reste.substr(0, second);
    }
  }
  lue.reste = std::string(reste);
  return lue;
}

bool SuitOptionZeros(std::string_view sorte) { return Parmi(kSortesOptionZeros, sorte); }

ReferenceDecimales LireReferenceDecimales(std::string_view reste) {
  ReferenceDecimales r;
  const std::size_t deuxPoints = reste.find(':');
  r.reference = std::string(reste.substr(0, deuxPoints));
  if (deuxPoints != std::string_view::npos) r.decimales = Entier16De(reste.substr(deuxPoints + 1));
  return r;
}

AffichageZeros OptionZeros(std::string_view affichage) {
  if (affichage == "1") return AffichageZeros::Masquer;
  if (affichage == "2") return AffichageZeros::Demander;
  if (affichage == "3") return AffichageZeros::Jamais;
  return AffichageZeros::Toujours;
}

}  // namespace norvane
