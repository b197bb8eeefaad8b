// Fuzz target of the dossier files of the special tables: the same bytes read
// as the two crop catalogues, the asset, grant, loan and plan files, as the
// text of ModAniLib.ini, and as a crop series reference.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "frame/ProfilIni.h"
#include "tables/ActivitesLibres.h"
#include "tables/Cultures.h"
#include "tables/ImmoEmprunts.h"
#include "tables/ReferencesCultures.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  using namespace norvane;
  const std::string_view octets(reinterpret_cast<const char*>(donnees), taille);
  for (const FicheCulture& f : LireCultures(octets)) {
    for (std::string_view nom : kNomsValeursCulture) (void)f.Tableau(nom);
    (void)f.Numero();
  }
  for (const FicheCulturePerenne& f : LireCulturesPerennes(octets)) {
    (void)TexteUniteSurface(f.UniteSurface);
    (void)TexteUniteRendementP(f.UniteRendementP);
  }
  (void)LireImmos(octets);
  (void)LireEmprunts(octets);
  for (const FichePlan& f : LirePlan(octets)) (void)f.Utilisee();
  (void)LireModulesActivites(ProfilIni::DepuisTexte(octets));
  const LectureRecord lire = [](int32_t numero, int annee, bool t) {
    return static_cast<float>(numero % 7) - static_cast<float>(annee) + (t ? 0.5f : 0.0f);
  };
  const auto type = static_cast<int16_t>(taille % 5);
  (void)EvaluerReferenceCulture(octets.substr(0, 64), 1, type, lire);
  return 0;
}
