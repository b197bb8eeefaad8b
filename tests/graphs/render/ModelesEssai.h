// Models and data grids for the drawing tests: one chart of each type on
// figures of a farm over five years, each with its own settings.
#pragma once

#include <cmath>
#include <string>

#include "frame/Encodage.h"
#include "graphs/DessinGraphique.h"

namespace norvane::test {

inline SerieGraphique SerieEssai(const std::string& nom, int16_t rouge, int16_t vert, int16_t bleu,
                                 int16_t type = kSerieBarre, int16_t brosse = kBrosseSolide) {
  SerieGraphique serie;
  serie.NomSerie = Utf8VersCp1252(nom);
  serie.TypeSerie = type;
  serie.Rouge = rouge;
  serie.Vert = vert;
  serie.Bleu = bleu;
  serie.EpaisseurSerie = 30;
  serie.BrosseSerie = brosse;
  return serie;
}

// A model as a new one would be, with three series and a legend.
inline ModeleGraphique ModeleEssai(int16_t type) {
  ModeleGraphique m;
  m.Titre = Utf8VersCp1252("Résultats de l'exploitation");
  m.TypeGraph = type;
  m.Legende = 1;
  m.NbSeries = 3;
  m.Commentaire = Utf8VersCp1252("Source : dossier d'étude, valeurs en euros");
  m.TailleTitre = 14;
  m.TexteTitre = {1, 1, 0};
  m.TexteNote = {1, 1, 0};
  m.EspaceAnnees = 2;
  m.EspaceSeries = 5;
  for (AxeGraphique* axe : {&m.AxeX, &m.AxeY, &m.AxeY2, &m.AxeZ}) {
    axe->TailleAxe = 10;
    axe->EpaisseurAxe = 20;
  }
  m.AxeX.Libelle = Utf8VersCp1252("Années");
  m.AxeY.Libelle = "Euros";
  m.Series[0] = SerieEssai("Produit brut", 47, 93, 138);
  m.Series[1] = SerieEssai("Charges", 200, 85, 61, kSerieCourbe);
  m.Series[2] = SerieEssai("EBE", 91, 142, 76, kSerieAire, kBrosseHachuree);
  return m;
}

// `lignes` years from 2025, one column a series of the model, with values
// that rise and fall like a farm's figures.
inline GrilleGraphique GrilleEssai(const ModeleGraphique& modele, int lignes = 5) {
  GrilleGraphique grille;
  const int colonnes = modele.SeriesUtilisees();
  grille.Dimensionner(lignes, colonnes);
  for (int r = 0; r < lignes; ++r) {
    grille.LibellesLignes[static_cast<std::size_t>(r)] = std::to_string(2025 + r);
    for (int c = 0; c < colonnes; ++c) {
      const double base = 180000.0 / (c + 1);
      grille.Valeurs[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)] =
          std::round(base * (1 + 0.12 * std::sin(r * 1.3 + c)));
    }
  }
  for (int c = 0; c < colonnes; ++c) {
    grille.LibellesColonnes[static_cast<std::size_t>(c)] = modele.Series[static_cast<std::size_t>(c)].NomSerie;
  }
  return grille;
}

}  // namespace norvane::test
