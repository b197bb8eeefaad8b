// Models for the graph tests: a full one with every field set, and random
// ones for the property tests.
#pragma once

#include <random>
#include <string>

#include "graphs/ModeleGraphique.h"

namespace norvane::test {

// Every field set to a distinct value, reserved bytes included.
inline ModeleGraphique ModeleComplet() {
  ModeleGraphique m;
  m.Reserve0 = 7;
  m.Titre = "R\xE9sultats de l'exploitation";
  m.TypeGraph = kCombinaison2D;
  m.Legende = 1;
  m.NbSeries = 2;
  m.Empile = -1;
  m.Commentaire = "Source : dossier d'\xE9tude";
  for (int k = 0; k < 2; ++k) {
    SerieGraphique& s = m.Series[static_cast<std::size_t>(k)];
    s.CodeSerie = "RES-" + std::to_string(17 + k) + ":0";
    s.NomSerie = k == 0 ? "EBE" : "Annuit\xE9s";
    s.TypeSerie = static_cast<int16_t>(k + 1);
    s.FichierSerie = "RES.DON";
    s.AxeYSerie = static_cast<int16_t>(k);
    s.Rouge = static_cast<int16_t>(10 + k);
    s.Vert = 120;
    s.Bleu = 250;
    s.EpaisseurSerie = 30;
    s.BrosseSerie = static_cast<int16_t>(k + 1);
    s.Reserve60 = "reserve-" + std::to_string(k);
    s.Reserve70 = {1, 2, static_cast<int16_t>(3 + k)};
  }
  m.InversionDataSeries = 1;
  m.EspaceBarres = 3;
  m.EspaceAnnees = 2;
  m.EspaceSeries = 5;
  m.RectTitre = {100.5f, 7800, 5000, 5800};
  m.RectPlot = {200, 7000.25f, 600, 4900};
  m.RectLegende = {7000, 7800, 1000, 2000};
  m.RectNote = {100, 4000, 0, 500};
  m.Elevation = 20.5f;
  m.Rotation = -35;
  m.TexteTitre = {1, 2, 9};
  m.TexteNote = {0, 4, 8};
  m.AxeX = {"Ann\xE9" "es", 12, 30};
  m.AxeY = {"Euros", 11, 20};
  m.AxeY2 = {"Pourcentage", 10, 15};
  m.AxeZ = {"S\xE9ries", 9, 10};
  m.TailleTitre = 16;
  m.Reserve1200 = "reserve-1200-abcde";
  m.Reserve1218 = {-1, 0, 32767};
  return m;
}

// A random model whose texts can travel in a code: no ";", "[", "]", "_" and
// no blank at either end; floats of any finite value.
class ModelesAleatoires {
 public:
  explicit ModelesAleatoires(unsigned graine) : hasard_(graine) {}

  ModeleGraphique Suivant() {
    ModeleGraphique m;
    m.Titre = Texte(60);
    m.TypeGraph = Entier();
    m.Legende = Entier();
    m.NbSeries = static_cast<int16_t>(std::uniform_int_distribution<int>(0, 10)(hasard_));
    m.Empile = Entier();
    m.Commentaire = Texte(100);
    for (auto& s : m.Series) {
      s.CodeSerie = Texte(12);
      s.NomSerie = Texte(22);
      s.TypeSerie = Entier();
      s.FichierSerie = Texte(12);
      s.AxeYSerie = Entier();
      s.Rouge = Entier();
      s.Vert = Entier();
      s.Bleu = Entier();
      s.EpaisseurSerie = Entier();
      s.BrosseSerie = static_cast<int16_t>(std::uniform_int_distribution<int>(0, 9)(hasard_));
    }
    for (int16_t* v : {&m.InversionDataSeries, &m.EspaceBarres, &m.EspaceAnnees, &m.EspaceSeries, &m.TailleTitre,
                       &m.TexteTitre.RetourTexte, &m.TexteTitre.Orientation, &m.TexteNote.RetourTexte,
                       &m.TexteNote.Orientation}) {
      *v = Entier();
    }
    for (RectGraphique* r : {&m.RectTitre, &m.RectPlot, &m.RectLegende, &m.RectNote}) {
      *r = {Flottant(), Flottant(), Flottant(), Flottant()};
    }
    m.Elevation = Flottant();
    m.Rotation = Flottant();
    for (AxeGraphique* a : {&m.AxeX, &m.AxeY, &m.AxeY2, &m.AxeZ}) *a = {Texte(40), Entier(), Entier()};
    return m;
  }

 private:
  int16_t Entier() { return static_cast<int16_t>(std::uniform_int_distribution<int>(-32768, 32767)(hasard_)); }

  float Flottant() {
    switch (std::uniform_int_distribution<int>(0, 3)(hasard_)) {
      case 0: return 0.0f;
      case 1: return static_cast<float>(std::uniform_int_distribution<int>(-9000, 9000)(hasard_));
      case 2: return std::uniform_real_distribution<float>(-10000.0f, 10000.0f)(hasard_);
      default: return std::uniform_real_distribution<float>(-1.0f, 1.0f)(hasard_) * 1e30f;
    }
  }

  // Letters, digits, blanks inside, and Windows-1252 accented letters.
  std::string Texte(std::size_t largeur) {
    static const std::string kLettres = "abcdeXYZ0189 ,.'-()/%&\xE9\xE8\xE0\xE7\xF4";
    std::string t;
    const auto longueur = std::uniform_int_distribution<std::size_t>(0, largeur)(hasard_);
    for (std::size_t i = 0; i < longueur; ++i) {
      t += kLettres[std::uniform_int_distribution<std::size_t>(0, kLettres.size() - 1)(hasard_)];
    }
    while (!t.empty() && t.back() == ' ') t.pop_back();
    while (!t.empty() && t.front() == ' ') t.erase(0, 1);
    return t;
  }

  std::mt19937 hasard_;
};

}  // namespace norvane::test
