#include "app/OptionsLigne.h"

#include <algorithm>

#include "cerfa/ChoixPDE.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

// Value of "--nom=valeur" when `argument` is that option, else nullopt.
std::optional<std::string> Valeur(const std::string& argument, std::string_view nom) {
  const std::string prefixe = "--" + std::string(nom) + "=";
  if (!CommencePar(argument, prefixe)) return std::nullopt;
  return argument.substr(prefixe.size());
}

bool Lire(OptionsLigne& o, const std::string& a) {
  if (a == "--remplacer") return o.remplacer = true;
  if (a == "--ouvrir") return o.ouvrir = true;
  if (a == "--help" || a == "--aide") return o.aide = true;
  if (a == "--version") return o.version = true;
  if (auto v = Valeur(a, "reponse")) {
    const std::string r = Minuscules(*v);
    if (r == "oui") o.reponse = Reponse::Oui;
    else if (r == "non") o.reponse = Reponse::Non;
    return r == "oui" || r == "non";
  }
  if (auto v = Valeur(a, "comparer")) {
    o.comparer.push_back(*v);
    return !v->empty();
  }
  if (auto v = Valeur(a, "format")) {
    o.format = Minuscules(*v);
    return o.format == "doc" || o.format == "odt" || o.format == "pdf" || o.format == "rtf" ||
           o.format == "json";
  }
  if (auto v = Valeur(a, "dossier-sortie")) {
    o.dossierSortie = *v;
    return !v->empty();
  }
  // Taken as the years box of the Cerfa frame takes its text: 0 or a text
  // that is no number gives five years.
  if (auto v = Valeur(a, "annees")) {
    o.annees = *v;
    return true;
  }
  if (auto v = Valeur(a, "page")) {
    o.page = EntierDe(*v);
    return !v->empty() && v->find_first_not_of("0123456789") == std::string::npos && o.page < kPagesPDE;
  }
  return false;
}

}  // namespace

OptionsLigne ExtraireOptions(std::vector<std::string>& arguments) {
  OptionsLigne o;
  auto fin = std::remove_if(arguments.begin(), arguments.end(), [&o](const std::string& a) {
    if (!CommencePar(a, "--")) return false;
    if (!Lire(o, a)) o.inconnues.push_back(a);
    return true;
  });
  arguments.erase(fin, arguments.end());
  return o;
}

}  // namespace norvane
