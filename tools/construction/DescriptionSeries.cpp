#include <algorithm>

#include "construction/DescriptionInterne.h"
#include "frame/Texte.h"

namespace norvane::construction {
namespace {

const char* const kSansNom = "[ sans nom ]";

std::string CodeSansDecimales(const std::string& code) { return Trim(code.substr(0, code.find(':'))); }

void Placer(std::vector<SerieDonnees>& series, int numero, SerieDonnees serie) {
  if (numero < 1) return;
  if (series.size() < static_cast<std::size_t>(numero)) series.resize(static_cast<std::size_t>(numero));
  series[static_cast<std::size_t>(numero) - 1] = std::move(serie);
}

// One record a series of the model, with the values given by code.
void SeriesDuModele(ObjetJson& o, const Modeles& modeles, std::vector<SerieDonnees>& series) {
  const std::string nom = o.TexteUtf8("modele");
  if (nom.empty()) return;
  auto modele = modeles.find(Majuscules(nom));
  if (modele == modeles.end()) throw ErreurDescription(o.Lieu() + " : modèle de séries « " + nom + " » inconnu");
  const Json* valeurs = o.Valeur("valeurs");
  ObjetJson parCode(valeurs ? *valeurs : ObjetVide(), o.Lieu() + ", valeurs", o.Notes());
  for (const SerieModele& s : modele->second) {
    const std::string code = CodeSansDecimales(s.entree.CodeCatalogue);
    SerieDonnees serie;
    if (Trim(s.entree.Intitule) != kSansNom) {
      serie.CodeSerie = s.entree.CodeCatalogue;
      serie.Intitule = LargeurVerifiee(s.entree.Intitule + (s.unite.empty() ? "" : "|" + s.unite), 22,
                                       o.Lieu() + ", série " + code, o.Notes());
      serie.Valeur = parCode.Flottants<14>(code.c_str());
    }
    Placer(series, NumeroDeCode(code), std::move(serie));
  }
  parCode.Terminer();
}

void SeriesExplicites(ObjetJson& o, std::vector<SerieDonnees>& series) {
  for (const Json* element : o.Elements("enregistrements")) {
    ObjetJson e(*element, o.Lieu() + ", enregistrement " + std::to_string(series.size() + 1), o.Notes());
    const int numero = e.Entier32("numero", static_cast<int32_t>(series.size()) + 1);
    if (numero < 1) throw ErreurDescription(e.Lieu() + " : « numero » doit valoir 1 ou plus");
    SerieDonnees serie{e.Texte("CodeSerie", 12), e.Texte("Intitule", 22), e.Flottants<14>("Valeurs")};
    Placer(series, numero, std::move(serie));
    e.Terminer();
  }
}

}  // namespace

int NumeroDeCode(const std::string& code) {
  const std::string sansDecimales = CodeSansDecimales(code);
  const std::size_t tiret = sansDecimales.rfind('-');
  return tiret == std::string::npos ? 0 : EntierDe(std::string_view(sansDecimales).substr(tiret + 1));
}

std::vector<SerieModele> SeriesModele(ObjetJson& o) {
  std::vector<SerieModele> series;
  for (const Json* element : o.Elements("series")) {
    ObjetJson e(*element, o.Lieu() + ", série " + std::to_string(series.size() + 1), o.Notes());
    SerieModele s;
    s.entree.CodeCatalogue = e.Texte("CodeCatalogue", 12);
    s.entree.Intitule = e.Texte("Intitule", 22);
    s.entree.Groupe1 = e.Texte("Groupe1", 40);
    s.entree.Groupe2 = e.Texte("Groupe2", 40);
    s.entree.Sorte = e.Entier16("Sorte", 1);
    s.entree.Reserve116 = e.Entier16("Reserve116", 0);
    s.unite = e.Texte("Unite", 0);
    if (NumeroDeCode(s.entree.CodeCatalogue) < 1) {
      o.Notes().avertissements.push_back(e.Lieu() + " : le code « " + s.entree.CodeCatalogue +
                                         " » ne finit pas par un numéro d'enregistrement");
    }
    e.Terminer();
    series.push_back(std::move(s));
  }
  return series;
}

std::vector<SerieDonnees> SeriesDe(const Json& description, const std::string& lieu, const Modeles& modeles,
                                   Journal& journal) {
  ObjetJson o(description, lieu, journal);
  o.Valeur("fichier");  // read by the caller
  std::vector<SerieDonnees> series;
  SeriesDuModele(o, modeles, series);
  SeriesExplicites(o, series);
  o.Terminer();
  return series;
}

}  // namespace norvane::construction
