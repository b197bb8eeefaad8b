#include "tables/FormatsLigne.h"

#include <utility>

#include "frame/Parametres.h"

namespace norvane {

const std::array<const char*, kNombreTypesLigne> kTextesTypesLigne = {
    "    Intitulé   (de chaque colonne de valeurs)",
    "    Série          (de données Win-Tervol 2008)",
    "    Espace       (avec ou sans commentaire)",
    "    Calcul  (sur des séries de données Tervol)",
    "    Lignes pré-définies      (cultures, immo,...)",
    "    Série de données pour tableau de culture",
    "    Série de données pour cultures pérennes",
    "    Série de données pour activités libres ani.",
    "    Saut à la page suivante",
};

const std::array<const char*, 4> kTextesAffichage = {
    "Toujours afficher la ligne quelquesoit ses valeurs",
    "Ne pas l'afficher si toutes ses valeurs sont nulles",
    "Message de choix si toutes ses valeurs sont nulles",
    "Ne jamais afficher la ligne quelquesoit ses valeurs",
};

const char kDefinitionIntituleParDefaut[] = "entete:1:1\xE8re ann\xE9" "e de pr\xE9vision&Fin de pr\xE9vision";

const std::array<uint32_t, 16> kPaletteCouleurs = {
    0x000000, 0x0000FF, 0x00FFFF, 0x00FF00, 0xFF00FF, 0xFF0000, 0xFFFF00, 0xFFFFFF,
    0x000080, 0x008080, 0x008000, 0x800080, 0x800000, 0x808000, 0x808080, 0xC0C0C0,
};

DefautsCellule DefautsDesOptions(const Options& options) {
  DefautsCellule defauts;
  if (options.TailleCellule != 0) defauts.Taille = options.TailleCellule;
  if (!options.AlignCellule.empty()) defauts.Alignement = options.AlignCellule.substr(0, 1);
  return defauts;
}

namespace {

// "5006;<size>;1;<flags>;<alignment>" with the five flags given.
std::string Police(const DefautsCellule& defauts, std::string_view drapeaux) {
  return "5006;" + std::to_string(defauts.Taille) + ";1;" + std::string(drapeaux) + ";" + defauts.Alignement;
}

constexpr char kGras[] = "1;0;0;0;0";
constexpr char kItalique[] = "0;1;0;0;0";
constexpr char kNormal[] = "0;0;0;0;0";

// What each kind sets besides the label texts: which settings pair gives the
// frames (-1 none), the definition's text and flags (null: empty format).
struct DefautsType {
  int paire;
  const char* definition;
  const char* drapeaux;
};

DefautsType DefautsDuType(TypeLigne type) {
  switch (type) {
    case TypeLigne::Intitule: return {0, kDefinitionIntituleParDefaut, kItalique};
    case TypeLigne::Serie: return {1, "", kNormal};
    case TypeLigne::Espace: return {-1, "espace", nullptr};
    case TypeLigne::Calcul: return {2, "", kGras};
    case TypeLigne::Predefinie: return {3, "", kNormal};
    case TypeLigne::SerieCulture:
    case TypeLigne::SerieCulturePerenne: return {4, "", kNormal};
    case TypeLigne::SerieActiviteLibre: return {5, "", kNormal};
    case TypeLigne::SautPage: return {-1, "newpg", nullptr};
  }
  return {-1, "", nullptr};
}

}  // namespace

void AppliquerTypeLigne(LigneTableau& ligne, TypeLigne type, const Options& options) {
  const DefautsCellule defauts = DefautsDesOptions(options);
  const DefautsType d = DefautsDuType(type);
  std::string texte = ligne.Cellules[0].Texte;
  const std::string police = type == TypeLigne::SautPage ? std::string() : Police(defauts, kGras);
  const std::string cadreCellules = d.paire < 0 ? std::string() : FormatLigneEffectif(options, d.paire, 0);
  for (std::size_t k = 0; k < ligne.Cellules.size(); ++k) {
    if (type == TypeLigne::Calcul) texte = k == 0 ? "TOTAL" : "";
    if (type == TypeLigne::Predefinie) texte.clear();
    ligne.Cellules[k] = CelluleTableau{texte, police, cadreCellules};
  }
  ligne.Definition.Texte = d.definition;
  ligne.Definition.Police = d.drapeaux == nullptr ? std::string() : Police(defauts, d.drapeaux);
  ligne.Definition.Cadre = d.paire < 0 ? std::string() : FormatLigneEffectif(options, d.paire, 1);
}

int16_t NumeroCouleur(uint32_t rgb) {
  for (std::size_t i = 0; i < kPaletteCouleurs.size(); ++i) {
    if (kPaletteCouleurs[i] == rgb) return static_cast<int16_t>(i + 1);
  }
  // Screen shades that the colour dialogs offer beside the palette's own.
  static constexpr std::pair<uint32_t, int16_t> kNuances[] = {
      {0xCFCFCF, 16}, {0xD4D0C8, 16}, {0xDFDFDF, 8},  {0xEFEFEF, 8},  {0xF0F0F0, 8},  {0x404040, 15},
      {0xA0A0A4, 15}, {0x000040, 9},  {0x0000C0, 2},  {0x00C0C0, 10}, {0x00C000, 11}, {0xC000C0, 12},
      {0xC00000, 13}, {0xC0C000, 14},
  };
  for (const auto& [nuance, numero] : kNuances) {
    if (nuance == rgb) return numero;
  }
  return kCouleurHorsPalette;
}

}  // namespace norvane
