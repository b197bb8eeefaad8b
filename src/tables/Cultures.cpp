// cult.clt, annual crops, records of 1674 bytes, numbered from 1:
//
//   OFFSET SIZE      MEANING
//   0      4         NumCulture, float: names "Cult" + number + ".don"
//   4      23        NomCulture
//   27     6         kept
//   33     1         UniteRendement: "0" q, "1" t, "2" kg, "3" unit
//   34     2         kept
//   36     2         kept
//   38     2         Derobee, 16-bit: not 0 for a catch crop
//   40     2         TypeCulture, 16-bit: 1 sale, 2 sale with feed taken
//                    out, 3 fodder, 4 market garden; below 1 ends the list
//   42     15 x 44   rendement ... varstock: eleven floats each, exercise
//                    n at + 4n (names in kNomsValeursCulture)
//   702    4         kept
//   706    5 x 44    valeurstock, prixmoyen, prixvente, prixachat, prixcession
//   926    2 x 44    kept
//   1014   7 x 44    varinv, engrais, semence, traitement, travaux, taxe1,
//                    autrecharge
//   1322   7 x 44    kept
//   1630   44        creance
//
// CltP.cpD, perennial crops, records of 52 bytes:
//
//   OFFSET SIZE MEANING
//   0      2    NumCultureP: names "CltP" + number + ".don" (and "t.don")
//   2      30   NomCultureP
//   32     2    TypeCultureP: below 1 ends the list
//   34     2    UniteSurface: 0 ha, 1 are, 2 m², other "autre"
//   36     4    UniteRendementP, a 32-bit number: 0 hl, 1 T, 2 kg, 3 q
//   40     2    kept
//   42     2    PleineProduction, years
//   44     2    kept
//   46     2    DureeAmortissement, years
//   48     4    kept
#include "tables/Cultures.h"

#include <cmath>

#include "frame/Disposition.h"
#include "frame/Encodage.h"
#include "frame/LecteurBinaire.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr std::size_t kOctetsTableau = 4 * kExercicesCulture;

namespace cult {
constexpr ChampDisposition NumCulture{"NumCulture", 0, 4};
constexpr ChampDisposition NomCulture{"NomCulture", 4, 23};
constexpr ChampDisposition Garde27{"(27)", 27, 6};
constexpr ChampDisposition UniteRendement{"UniteRendement", 33, 1};
constexpr ChampDisposition Garde34{"(34)", 34, 2, 2};
constexpr ChampDisposition Derobee{"Derobee", 38, 2};
constexpr ChampDisposition TypeCulture{"TypeCulture", 40, 2};
constexpr ChampDisposition Tableaux1{"Tableaux1", 42, kOctetsTableau, 15};
constexpr ChampDisposition Garde702{"(702)", 702, 4};
constexpr ChampDisposition Tableaux2{"Tableaux2", 706, kOctetsTableau, 5};
constexpr ChampDisposition Garde926{"(926)", 926, kOctetsTableau, 2};
constexpr ChampDisposition Tableaux3{"Tableaux3", 1014, kOctetsTableau, 7};
constexpr ChampDisposition Garde1322{"(1322)", 1322, kOctetsTableau, 7};
constexpr ChampDisposition Creance{"creance", 1630, kOctetsTableau};
constexpr ChampDisposition kChamps[] = {NumCulture, NomCulture, Garde27,  UniteRendement, Garde34,
                                        Derobee,    TypeCulture, Tableaux1, Garde702,      Tableaux2,
                                        Garde926,   Tableaux3,  Garde1322, Creance};
static_assert(PaveEnregistrement(kChamps, kLongueurCulture), "a crop record's fields tile 1674 bytes");
// The named arrays, in kNomsValeursCulture order, as runs of the layout.
constexpr ChampDisposition kTableauxNommes[] = {Tableaux1, Tableaux2, Tableaux3, Creance};
}  // namespace cult

namespace cltp {
constexpr ChampDisposition NumCultureP{"NumCultureP", 0, 2};
constexpr ChampDisposition NomCultureP{"NomCultureP", 2, 30};
constexpr ChampDisposition TypeCultureP{"TypeCultureP", 32, 2};
constexpr ChampDisposition UniteSurface{"UniteSurface", 34, 2};
constexpr ChampDisposition UniteRendementP{"UniteRendementP", 36, 4};
constexpr ChampDisposition Garde40{"(40)", 40, 2};
constexpr ChampDisposition PleineProduction{"PleineProduction", 42, 2};
constexpr ChampDisposition Garde44{"(44)", 44, 2};
constexpr ChampDisposition DureeAmortissement{"DureeAmortissement", 46, 2};
constexpr ChampDisposition Garde48{"(48)", 48, 2, 2};
constexpr ChampDisposition kChamps[] = {NumCultureP, NomCultureP, TypeCultureP, UniteSurface,
                                        UniteRendementP, Garde40, PleineProduction, Garde44,
                                        DureeAmortissement, Garde48};
static_assert(PaveEnregistrement(kChamps, kLongueurCulturePerenne), "a perennial crop record's fields tile 52 bytes");
}  // namespace cltp

template <typename Fiche, typename Decodeur>
std::vector<Fiche> LireFiches(std::string_view octets, std::size_t longueur, Decodeur decoder) {
  std::vector<Fiche> fiches;
  const std::size_t nombre = NombreFichesCatalogue(octets.size(), longueur);
  fiches.reserve(nombre);
  for (std::size_t i = 0; i < nombre; ++i) fiches.push_back(decoder(octets.substr(i * longueur, longueur)));
  return fiches;
}

// The records of a catalogue file up to the first that ends the list.
template <typename Fiche, typename Lecteur, typename Fin>
std::vector<Fiche> ChargerCatalogue(const std::string& chemin, Lecteur lire, Fin finDeListe) {
  const auto reel = ResoudreChemin(chemin);
  if (!reel) return {};
  const auto octets = LireFichier(*reel);
  if (!octets) return {};
  std::vector<Fiche> fiches = lire(*octets);
  for (std::size_t i = 0; i < fiches.size(); ++i) {
    if (finDeListe(fiches[i])) {
      fiches.resize(i);
      break;
    }
  }
  return fiches;
}

}  // namespace

const ValeursCulture* FicheCulture::Tableau(std::string_view nom) const {
  const std::string minuscule = Minuscules(nom);
  for (std::size_t i = 0; i < kNomsValeursCulture.size(); ++i) {
    if (kNomsValeursCulture[i] == minuscule) return &Valeurs[i];
  }
  return nullptr;
}

std::string FicheCulture::Numero() const {
  if (!std::isfinite(NumCulture) || std::fabs(NumCulture) > 1e9f) return "0";
  return std::to_string(static_cast<long>(std::lround(NumCulture)));
}

std::size_t NombreFichesCatalogue(std::size_t taille, std::size_t longueur) {
  return longueur == 0 ? 0 : (taille + longueur - 1) / longueur;
}

FicheCulture DecoderCulture(std::string_view octets) {
  FicheCulture f;
  f.NomCulture.assign(cult::NomCulture.largeur, ' ');
  LecteurBinaire l(octets.substr(0, kLongueurCulture));
  l.Lire(f.NumCulture, cult::NumCulture);
  l.LireTexte(f.NomCulture, cult::NomCulture);
  l.Sauter(cult::Garde27);
  std::string unite;
  if (l.LireTexte(unite, cult::UniteRendement) && !unite.empty()) f.UniteRendement = unite[0];
  l.Sauter(cult::Garde34);
  l.Lire(f.Derobee, cult::Derobee);
  l.Lire(f.TypeCulture, cult::TypeCulture);
  std::size_t rang = 0;
  for (const ChampDisposition& bloc : cult::kTableauxNommes) {
    for (std::size_t t = 0; t < bloc.nombre; ++t, ++rang) {
      l.Aller(bloc.debut + t * kOctetsTableau);
      for (float& v : f.Valeurs[rang]) l.Lire(v);
    }
  }
  return f;
}

FicheCulturePerenne DecoderCulturePerenne(std::string_view octets) {
  FicheCulturePerenne f;
  f.NomCultureP.assign(cltp::NomCultureP.largeur, ' ');
  LecteurBinaire l(octets.substr(0, kLongueurCulturePerenne));
  l.Lire(f.NumCultureP, cltp::NumCultureP);
  l.LireTexte(f.NomCultureP, cltp::NomCultureP);
  l.Lire(f.TypeCultureP, cltp::TypeCultureP);
  l.Lire(f.UniteSurface, cltp::UniteSurface);
  l.Lire(f.UniteRendementP, cltp::UniteRendementP);
  l.Sauter(cltp::Garde40);
  l.Lire(f.PleineProduction, cltp::PleineProduction);
  l.Sauter(cltp::Garde44);
  l.Lire(f.DureeAmortissement, cltp::DureeAmortissement);
  return f;
}

std::vector<FicheCulture> LireCultures(std::string_view octets) {
  return LireFiches<FicheCulture>(octets, kLongueurCulture, DecoderCulture);
}

std::vector<FicheCulturePerenne> LireCulturesPerennes(std::string_view octets) {
  return LireFiches<FicheCulturePerenne>(octets, kLongueurCulturePerenne, DecoderCulturePerenne);
}

std::vector<FicheCulture> ChargerCultures(const std::string& dossier) {
  return ChargerCatalogue<FicheCulture>(dossier + "cult.clt", LireCultures,
                                        [](const FicheCulture& f) { return f.TypeCulture < 1; });
}

std::vector<FicheCulturePerenne> ChargerCulturesPerennes(const std::string& dossier) {
  return ChargerCatalogue<FicheCulturePerenne>(dossier + "CltP.cpD", LireCulturesPerennes,
                                               [](const FicheCulturePerenne& f) { return f.TypeCultureP < 1; });
}

std::string TexteUniteSurface(int16_t unite) {
  switch (unite) {
    case 0:
      return "ha";
    case 1:
      return "are";
    case 2:
      return Utf8VersCp1252("m²");
    default:
      return "autre";
  }
}

std::string TexteUniteRendementP(int32_t unite) {
  switch (unite) {
    case 0:
      return "hl";
    case 1:
      return "T";
    case 2:
      return "kg";
    case 3:
      return "q";
    default:
      return {};
  }
}

}  // namespace norvane
