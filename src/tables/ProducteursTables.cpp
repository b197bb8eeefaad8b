#include "tables/LignesCultures.h"
#include "tables/ProducteursTables.h"

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "tables/DefinitionLigne.h"
#include "tables/BlocsImmoEmprunts.h"
#include "tables/GenerationTableau.h"
#include "tables/TableauxActivites.h"
#include "tables/TableauxCultures.h"

namespace norvane {

std::string ProducteursTables::TableauxParEntite(Generation& generation, TableauxDocument& tableaux,
                                                 const std::string& code) {
  if (CommencePar(code, "actlibr")) return GenererTableauxActivites(*this, generation, tableaux, code);
  return GenererTableauxCulture(*this, generation, tableaux, code);
}

std::string ProducteursTables::LignesPredefinies(ContexteTableau& contexte, std::string_view sorte,
                                                 const std::string& debutLigne) {
  if (sorte == "cultu") return LignesCultures(*this, contexte, debutLigne);
  if (sorte == "cultp") return LignesCulturesPerennes(*this, contexte, debutLigne);
  if (sorte == "imemp") return LignesImmoEmprunts(contexte, debutLigne);
  return {};
}

std::string ProducteursTables::ValeurSpeciale(ContexteTableau& contexte, std::string_view sorte,
                                              const std::string& reste, int c) {
  Generation& generation = contexte.generation;
  if (sorte == "cultu") return culture ? ValeurCulture(*culture, totaux, reste, c) : ValeurCulture({}, totaux, reste, c);
  if (sorte == "cultp") return culturePerenne ? ValeurCulturePerenne(generation, *culturePerenne, reste, c) : "0";
  if (sorte == "scult") return culture ? ValeurSerieCulture(generation, *this, false, reste, c) : std::string();
  if (sorte == "scltp") return culturePerenne ? ValeurSerieCulture(generation, *this, true, reste, c) : std::string();
  if (sorte == "ALani") return ValeurActivite(generation, *this, reste, c, activitesSignalees);
  return {};
}

std::string ProducteursTables::LibelleSerieCulture(ContexteTableau& contexte, const std::string& libelle) {
  const DefinitionLue lue = LireDefinition(contexte.LigneEnCours().Definition.Texte);
  const std::string reference = LireReferenceDecimales(lue.reste).reference;
  const bool marge = reference == "@14" || reference == "@15";
  return marge && culture && culture->TypeCulture == 3 ? Utf8VersCp1252("Coût net op.") : libelle;
}

std::string ProducteursTables::NumCultureCourante() const { return culture ? culture->Numero() : std::string(); }

std::string ProducteursTables::NumCulturePCourante() const {
  return culturePerenne ? std::to_string(culturePerenne->NumCultureP) : std::string();
}

std::string ProducteursTables::NumActivite2Chiffres() const {
  return activite ? NumeroDeuxChiffres(activite->numero) : std::string();
}

// Annual crops are counted in hectares.
std::string ProducteursTables::TitreCultureCourante() const { return culture ? "ha" : std::string(); }

std::string ProducteursTables::NomCultureCourante() const {
  return culture ? Trim(culture->NomCulture) : std::string();
}

std::string ProducteursTables::TitreCulturePCourante() const {
  return culturePerenne ? TexteUniteSurface(culturePerenne->UniteSurface) : std::string();
}

std::string ProducteursTables::NomCulturePCourante() const {
  return culturePerenne ? Trim(culturePerenne->NomCultureP) : std::string();
}

std::string ProducteursTables::NomActivite() const { return activite ? activite->nom : std::string(); }

}  // namespace norvane
