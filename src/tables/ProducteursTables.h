// The producers that the table engine fills from the dossier's own lists:
// per-crop, per-perennial-crop and per-activity tables, crop rows and
// values, and the asset, grant and loan blocks. While a per-crop or
// per-activity table is generated this object is also the generation's
// current entity, so that series codes "@c...", "@p...", "@a..." and the
// name selectors read the crop or module in hand.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "study/EntitesCourantes.h"
#include "tables/ActivitesLibres.h"
#include "tables/Cultures.h"
#include "tables/LignesCultures.h"
#include "tables/ProducteursDedies.h"
#include "tables/TableauxCultures.h"

namespace norvane {

class ProducteursTables : public ProducteursSpeciaux, public EntitesCourantes {
 public:
  std::string TableauxParEntite(Generation& generation, TableauxDocument& tableaux, const std::string& code) override;
  std::string LignesPredefinies(ContexteTableau& contexte, std::string_view sorte,
                                const std::string& debutLigne) override;
  std::string ValeurSpeciale(ContexteTableau& contexte, std::string_view sorte, const std::string& reste,
                             int c) override;
  // "Coût net op." for the margins (@14, @15) of a fodder crop, which has a
  // net cost instead.
  std::string LibelleSerieCulture(ContexteTableau& contexte, const std::string& libelle) override;

  std::string NumCultureCourante() const override;
  std::string NumCulturePCourante() const override;
  std::string NumActivite2Chiffres() const override;
  std::string TitreCultureCourante() const override;
  std::string NomCultureCourante() const override;
  std::string TitreCulturePCourante() const override;
  std::string NomCulturePCourante() const override;
  std::string NomActivite() const override;

  // Running number of the per-entity tables of the document.
  int16_t CompteurTableaux = 0;
  // The crop, perennial crop or module in hand.
  std::optional<FicheCulture> culture;
  std::optional<FicheCulturePerenne> culturePerenne;
  std::optional<ModuleActivite> activite;
  // The "assolement" sums of the last "cultu" line.
  TotauxAssolement totaux;
  // Series files of modules already said to be missing.
  std::set<std::string> activitesSignalees;
};

}  // namespace norvane
