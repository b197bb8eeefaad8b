#include "graphs/render/Scene.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "frame/Encodage.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr double kEpaisseurParDefaut = 30;  // twips, the pen of a new series

// Colours for shown series that the model does not describe.
constexpr std::array<QRgb, 8> kPalette = {0x2F5D8A, 0xC8553D, 0x5B8E4C, 0xE0A030,
                                          0x7A5195, 0x3A9AA8, 0x8C6D46, 0x9E9E9E};

int Composante(int16_t valeur) { return std::clamp<int>(valeur, 0, 255); }

Forme FormeDuType(int type, int16_t typeSerie) {
  switch (type) {
    case kBarres3D: case kBarres2D: return Forme::Barre;
    case kCourbes3D: case kCourbes2D: return Forme::Courbe;
    case kAires3D: case kAires2D: return Forme::Aire;
    case kEscaliers3D: case kEscaliers2D: return Forme::Escalier;
    case kCombinaison3D: case kCombinaison2D:
      switch (typeSerie) {
        case kSerieBarre: return Forme::Barre;
        case kSerieCourbe: return Forme::Courbe;
        case kSerieAire: return Forme::Aire;
        default: return Forme::Escalier;
      }
    case kSecteurs2D: return Forme::Barre;  // slices: filled
    default: return Forme::Courbe;
  }
}

SerieDessinee StyleSerie(const ModeleGraphique& modele, int type, int indice, const Mesures& mesures) {
  SerieDessinee serie;
  if (indice < modele.SeriesUtilisees()) {
    const SerieGraphique& s = modele.Series[static_cast<std::size_t>(indice)];
    serie.couleur = QColor(Composante(s.Rouge), Composante(s.Vert), Composante(s.Bleu));
    serie.forme = FormeDuType(type, s.TypeSerie);
    serie.axeSecondaire = s.AxeYSerie == 1;
    serie.epaisseur = mesures.Trait(s.EpaisseurSerie);
    serie.brosse = s.BrosseSerie;
  } else {
    serie.couleur = QColor(kPalette[static_cast<std::size_t>(indice) % kPalette.size()]);
    serie.forme = FormeDuType(type, kSerieBarre);
    serie.epaisseur = mesures.Trait(kEpaisseurParDefaut);
  }
  return serie;
}

double Fini(double valeur) { return std::isfinite(valeur) ? valeur : 0.0; }

// XY: series 1 gives the X of series 2, series 3 those of series 4... A last
// series without a partner takes the categories (years) as its X.
void ApparierXY(Scene& scene) {
  std::vector<SerieDessinee> paires;
  for (std::size_t k = 0; k < scene.series.size(); k += 2) {
    if (k + 1 < scene.series.size()) {
      SerieDessinee y = std::move(scene.series[k + 1]);
      y.abscisses = std::move(scene.series[k].valeurs);
      paires.push_back(std::move(y));
      continue;
    }
    SerieDessinee seule = std::move(scene.series[k]);
    for (std::size_t c = 0; c < scene.categories.size(); ++c) {
      bool lu = false;
      const double annee = scene.categories[c].toDouble(&lu);
      seule.abscisses.push_back(lu ? annee : static_cast<double>(c + 1));
    }
    paires.push_back(std::move(seule));
  }
  scene.series = std::move(paires);
}

}  // namespace

bool Scene::UtiliseAxeSecondaire() const {
  return std::any_of(series.begin(), series.end(), [](const SerieDessinee& s) { return s.axeSecondaire; });
}

double Mesures::Trait(double twips) const { return std::max(1.0, Twips(std::clamp(twips, 0.0, 300.0))); }

QFont PoliceGraphique(double points, bool gras) {
  QFont police(QStringLiteral("Liberation Sans"));
  police.setFamilies({QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
  police.setPointSizeF(std::clamp(points, 4.0, 99.0));
  police.setBold(gras);
  police.setStyleStrategy(QFont::PreferAntialias);
  return police;
}

QString TexteAffiche(const std::string& texteCp1252) {
  return QString::fromStdString(Cp1252VersUtf8(Trim(texteCp1252)));
}

Scene PreparerScene(const ModeleGraphique& modele, const GrilleGraphique& grille, const Mesures& mesures) {
  Scene scene;
  scene.type = (modele.TypeGraph >= kBarres3D && modele.TypeGraph <= kXY2D) ? static_cast<int>(modele.TypeGraph) : static_cast<int>(kXY2D);
  scene.troisD = EstGraphique3D(scene.type);
  scene.empile = modele.Empile != 0;
  scene.espaceBarres = std::clamp<int>(modele.EspaceBarres, -10, 50) / 10.0;
  scene.espaceAnnees = std::clamp<int>(modele.EspaceAnnees, 0, 40) / 2.0;
  scene.espaceSeries = std::clamp<int>(modele.EspaceSeries, 0, 40) / 10.0;

  const bool inverse = modele.InversionDataSeries == 1;
  const int nbCategories = inverse ? grille.NbColonnes() : grille.NbLignes();
  const int nbSeries = inverse ? grille.NbLignes() : grille.NbColonnes();
  for (int c = 0; c < nbCategories; ++c) {
    const auto& libelles = inverse ? grille.LibellesColonnes : grille.LibellesLignes;
    scene.categories.push_back(TexteAffiche(libelles[static_cast<std::size_t>(c)]));
  }
  for (int k = 0; k < nbSeries; ++k) {
    SerieDessinee serie = StyleSerie(modele, scene.type, k, mesures);
    const auto& noms = inverse ? grille.LibellesLignes : grille.LibellesColonnes;
    serie.nom = TexteAffiche(noms[static_cast<std::size_t>(k)]);
    for (int c = 0; c < nbCategories; ++c) {
      serie.valeurs.push_back(Fini(inverse ? grille.Valeur(k, c) : grille.Valeur(c, k)));
    }
    scene.series.push_back(std::move(serie));
  }
  if (scene.type == kXY2D) ApparierXY(scene);
  return scene;
}

}  // namespace norvane
