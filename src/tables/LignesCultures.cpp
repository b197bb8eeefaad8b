// Rows of "cultu" and "cultp" lines, one a crop, and the crop values of
// cells ("cultu", "cultp", "scult", "scltp").
#include "tables/LignesCultures.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "study/TexteEtude.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"
#include "tables/LignesRtf.h"
#include "tables/ProducteursTables.h"
#include "tables/ReferencesCultures.h"
#include "tables/TableauxCultures.h"

namespace norvane {
namespace {

constexpr std::array<std::string_view, 3> kTotaux = {"totalvente", "totalfourr", "totalmarai"};
constexpr std::array<const char*, 3> kLibellesTotaux = {"Cultures de vente", "Cult. fourragères", "Cult. maraîchères"};

// The line in hand changed for one row, and put back as it was.
class LigneRemplacee {
 public:
  explicit LigneRemplacee(ContexteTableau& contexte)
      : ligne_(const_cast<LigneTableau&>(contexte.LigneEnCours())), sauve_(ligne_) {}
  ~LigneRemplacee() { ligne_ = sauve_; }
  LigneRemplacee(const LigneRemplacee&) = delete;
  LigneRemplacee& operator=(const LigneRemplacee&) = delete;
  LigneTableau& ligne() { return ligne_; }

 private:
  LigneTableau& ligne_;
  LigneTableau sauve_;
};

// The row of the line with `libelle` in its first label cell.
std::string Rangee(ContexteTableau& contexte, const std::string& debut, const std::string& libelle) {
  std::string rtf = LigneOrdinaire(contexte, debut, libelle);
  return rtf == kValeursNulles ? std::string() : rtf;
}

// Group of a crop type: 0 sale, 1 fodder, 2 market garden.
std::size_t Groupe(int16_t type) { return type == 3 ? 1 : type == 4 ? 2 : 0; }

// The Police text with its fourth field, bold, set to 1.
std::string AvecGras(std::string police) {
  std::size_t debut = 0;
  for (int champ = 0; champ < 3; ++champ) {
    const std::size_t point = police.find(';', debut);
    if (point == std::string::npos) {
      police += ';';
      debut = police.size();
    } else {
      debut = point + 1;
    }
  }
  const std::size_t fin = std::min(police.find(';', debut), police.size());
  return police.replace(debut, fin - debut, "1");
}

// The total row of group g: its label, bold values, item "total" + group.
std::string RangeeTotal(ContexteTableau& contexte, const std::string& debut, std::size_t g) {
  LigneRemplacee remplacee(contexte);
  LigneTableau& ligne = remplacee.ligne();
  ligne.Definition.Police = AvecGras(ligne.Definition.Police);
  const DefinitionLue lue = LireDefinition(ligne.Definition.Texte);
  const int16_t decimales = LireReferenceDecimales(lue.reste).decimales;
  ligne.Definition.Texte =
      "cultu:" + std::string(kTotaux[g]) + ":" + std::to_string(decimales) + ":" + lue.affichage;
  ligne.Cellules[0].Texte = Utf8VersCp1252(kLibellesTotaux[g]);
  std::string rtf = LigneOrdinaire(contexte, debut);
  return rtf == kValeursNulles ? std::string() : rtf;
}

std::string Formater(double valeur, int16_t decimales) {
  return FormatNombre(std::isfinite(valeur) ? static_cast<float>(valeur) : 0.0f, decimales, false);
}

}  // namespace

std::string LignesCultures(ProducteursTables& p, ContexteTableau& contexte, const std::string& debut) {
  p.totaux = {};
  const std::string item = Minuscules(LireReferenceDecimales(LireDefinition(contexte.LigneEnCours().Definition.Texte).reste).reference);
  std::array<std::string, 3> groupes;
  const std::optional<FicheCulture> avant = p.culture;
  for (const FicheCulture& c : ChargerCultures(DossierDuSlot(contexte.generation.session, 0))) {
    p.culture = c;
    const std::size_t g = Groupe(c.TypeCulture);
    groupes[g] += Rangee(contexte, debut, TexteEtudePourRtf(Trim(c.NomCulture)));
    const ValeursCulture& assolement = *c.Tableau("assolement");
    for (std::size_t n = 1; n <= 9; ++n) p.totaux.groupes[g][n - 1] += assolement[n];
  }
  p.culture = avant;
  std::string rtf;
  for (std::size_t g = 0; g < groupes.size(); ++g) {
    rtf += groupes[g];
    if (CommencePar(item, "assol")) rtf += RangeeTotal(contexte, debut, g);
  }
  return rtf;
}

std::string LignesCulturesPerennes(ProducteursTables& p, ContexteTableau& contexte, const std::string& debut) {
  std::string rtf;
  const std::optional<FicheCulturePerenne> avant = p.culturePerenne;
  for (const FicheCulturePerenne& c : ChargerCulturesPerennes(DossierDuSlot(contexte.generation.session, 0))) {
    p.culturePerenne = c;
    rtf += Rangee(contexte, debut, TexteEtudePourRtf(Trim(c.NomCultureP)));
  }
  p.culturePerenne = avant;
  return rtf;
}

std::string ValeurCulture(const FicheCulture& culture, const TotauxAssolement& totaux, const std::string& reste,
                          int annee) {
  const ReferenceDecimales lu = LireReferenceDecimales(reste);
  const std::string nom = Minuscules(lu.reference);
  for (std::size_t g = 0; g < kTotaux.size(); ++g) {
    if (nom != kTotaux[g]) continue;
    if (annee < 1 || annee > 9) return {};
    return Formater(totaux.groupes[g][static_cast<std::size_t>(annee - 1)], lu.decimales);
  }
  const ValeursCulture* valeurs = culture.Tableau(nom);
  if (valeurs == nullptr || annee < 0 || annee >= static_cast<int>(kExercicesCulture)) return {};
  return Formater((*valeurs)[static_cast<std::size_t>(annee)], lu.decimales);
}

std::string ValeurCulturePerenne(Generation& generation, const FicheCulturePerenne& culture,
                                 const std::string& reste, int annee) {
  const ReferenceDecimales lu = LireReferenceDecimales(reste);
  if (Minuscules(lu.reference) != "assolemper" || annee < 0 || annee > 13) return "0";
  const std::string fichier =
      DossierDuSlot(generation.session, 0) + "CltP" + std::to_string(culture.NumCultureP) + ".don";
  const SerieDonnees serie = LireEnregistrementSerie(generation.Series(), fichier, 1);
  return Formater(serie.Valeur[static_cast<std::size_t>(annee)], lu.decimales);
}

std::string ValeurSerieCulture(Generation& generation, const ProducteursTables& p, bool perenne,
                               const std::string& reste, int annee) {
  const ReferenceDecimales lu = LireReferenceDecimales(reste);
  std::string_view reference = lu.reference;
  if (!reference.empty() && reference[0] == '@') reference.remove_prefix(1);
  const std::string dossier = DossierDuSlot(generation.session, 0);
  const std::string racine = perenne ? dossier + "CltP" + p.NumCulturePCourante() : dossier + "Cult" + p.NumCultureCourante();
  const ContexteSeries series = generation.Series();
  const LectureRecord lire = [&](int32_t numero, int an, bool transformation) {
    if (an < 0 || an > 13) return 0.0f;
    const SerieDonnees s = LireEnregistrementSerie(series, racine + (transformation ? "t.don" : ".don"), numero);
    return s.Valeur[static_cast<std::size_t>(an)];
  };
  const int16_t type = perenne || !p.culture ? int16_t{0} : p.culture->TypeCulture;
  return Formater(EvaluerReferenceCulture(reference, annee, type, lire), lu.decimales);
}

}  // namespace norvane
