#include "tables/FormulaireLigne.h"

#include <array>
#include <utility>

#include "frame/Texte.h"

namespace norvane {

namespace {

// First word of each kind that carries ":decimales:affichage".
constexpr std::array<std::pair<std::string_view, TypeLigne>, 8> kSortes = {{
    {"serie", TypeLigne::Serie},
    {"totalS", TypeLigne::Calcul},
    {"totalC", TypeLigne::Calcul},
    {"scult", TypeLigne::SerieCulture},
    {"scltp", TypeLigne::SerieCulturePerenne},
    {"ALani", TypeLigne::SerieActiviteLibre},
    {"cultu", TypeLigne::Predefinie},
    {"cultp", TypeLigne::Predefinie},
}};
constexpr std::array<std::string_view, 2> kGroupesPredefinis = {"imemp", "prime"};

std::string Queue(const FormulaireLigne& f) {
  return ":" + std::to_string(f.decimales) + ":" + std::to_string(f.affichage);
}

bool EstChiffre(std::string_view texte) { return texte.size() == 1 && texte[0] >= '0' && texte[0] <= '9'; }

}  // namespace

std::string FormaterDefinition(const FormulaireLigne& f) {
  switch (f.type) {
    case TypeLigne::Intitule: return "entete:" + f.contenu + ":" + f.texteDebut + "&" + f.texteFin;
    case TypeLigne::Serie: return "serie:" + f.contenu + Queue(f);
    case TypeLigne::Espace: return "espace";
    case TypeLigne::Calcul:
      return f.formuleSimple ? "totalS:" + RemplacerTout(f.contenu, "x", "*") + Queue(f)
                             : "totalC:" + Majuscules(f.contenu) + Queue(f);
    case TypeLigne::Predefinie: return f.contenu + Queue(f);
    case TypeLigne::SerieCulture: return "scult:" + f.contenu + Queue(f);
    case TypeLigne::SerieCulturePerenne: return "scltp:" + f.contenu + Queue(f);
    case TypeLigne::SerieActiviteLibre: return "ALani:" + f.contenu + Queue(f);
    case TypeLigne::SautPage: return "newpg";
  }
  return {};
}

FormulaireLigne LireFormulaire(std::string_view definition) {
  FormulaireLigne f;
  if (definition.starts_with("espace")) f.type = TypeLigne::Espace;
  if (definition.starts_with("newpg")) f.type = TypeLigne::SautPage;
  if (f.type != TypeLigne::Serie) return f;
  const std::size_t deuxPoints = definition.find(':');
  const std::string_view sorte = definition.substr(0, deuxPoints);
  std::string reste(deuxPoints == std::string_view::npos ? std::string_view() : definition.substr(deuxPoints + 1));
  if (sorte == "entete") {
    f.type = TypeLigne::Intitule;
    const std::size_t p = reste.find(':');
    f.contenu = reste.substr(0, p);
    if (p != std::string::npos) {
      const std::string textes = reste.substr(p + 1);
      const std::size_t et = textes.find('&');
      f.texteDebut = textes.substr(0, et);
      if (et != std::string::npos) f.texteFin = textes.substr(et + 1);
    }
    return f;
  }
  bool connue = false;
  for (const auto& [mot, type] : kSortes) {
    if (sorte == mot) {
      f.type = type;
      connue = true;
    }
  }
  for (std::string_view groupe : kGroupesPredefinis) {
    if (sorte == groupe) {
      f.type = TypeLigne::Predefinie;
      connue = true;
    }
  }
  if (!connue) {
    f.contenu = std::string(definition);
    return f;
  }
  // As the generator reads it: the content up to the first ":", the
  // decimals up to the second, the zero-line option behind it.
  const std::size_t premier = reste.find(':');
  if (premier != std::string::npos) {
    const std::size_t second = reste.find(':', premier + 1);
    const std::string decimales = reste.substr(premier + 1, second == std::string::npos ? second : second - premier - 1);
    if (EstChiffre(decimales)) f.decimales = static_cast<int16_t>(decimales[0] - '0');
    if (second != std::string::npos && EstChiffre(std::string_view(reste).substr(second + 1))) {
      f.affichage = static_cast<int16_t>(reste[second + 1] - '0');
    }
    reste.erase(premier);
  }
  f.formuleSimple = sorte == "totalS";
  f.contenu = f.type == TypeLigne::Predefinie ? std::string(sorte) + ":" + reste : reste;
  return f;
}

}  // namespace norvane
