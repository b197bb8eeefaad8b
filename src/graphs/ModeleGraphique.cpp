#include "graphs/ModeleGraphique.h"

#include <type_traits>

namespace norvane {
namespace {

constexpr std::string_view kNomsTypes[] = {
    "Graphique à barres 3D",      "Graphique à barres 2D",     "Graphique en courbes 3D",
    "Graphique en courbes 2D",    "Graphique en aires 3D",     "Graphique en aires 2D",
    "Graphique en escaliers 3D",  "Graphique en escaliers 2D", "Graphique combinaison 3D",
    "Graphique combinaison 2D",   "Graphique en secteurs 2D",  "Graphique XY 2D",
};
constexpr std::string_view kNomsCourts[] = {
    "barres 3D",   "barres 2D",   "courbes 3D", "courbes 2D", "aires 3D",    "aires 2D",
    "escalier 3D", "escalier 2D", "combi 3D",   "combi 2D",   "secteurs 2D", "XY 2D",
};

// The record's fields in file order, walked once for reading and once for
// writing, so that the layout is written down in one place.
class Lecture {
 public:
  explicit Lecture(LecteurBinaire& l) : l_(l) {}
  void Entier(int16_t& v) { l_.Lire(v); }
  void Flottant(float& v) { l_.Lire(v); }
  void Texte(std::string& v, std::size_t largeur) { l_.LireTexte(v, largeur); }

 private:
  LecteurBinaire& l_;
};

class Ecriture {
 public:
  explicit Ecriture(std::string& s) : s_(s) {}
  void Entier(int16_t v) { EcrireEntier16(s_, v); }
  void Flottant(float v) { EcrireFlottant(s_, v); }
  void Texte(const std::string& v, std::size_t largeur) { EcrireTexteFixe(s_, v, largeur); }

 private:
  std::string& s_;
};

template <typename Flux, typename R>
void Rect(Flux& f, R& r) {
  f.Flottant(r.MinX);
  f.Flottant(r.MaxX);
  f.Flottant(r.MinY);
  f.Flottant(r.MaxY);
}

template <typename Flux, typename T>
void Texte(Flux& f, T& t) {
  f.Entier(t.RetourTexte);
  f.Entier(t.Orientation);
  f.Entier(t.Reserve);
}

template <typename Flux, typename A>
void Axe(Flux& f, A& a) {
  f.Texte(a.Libelle, kLargeurLibelleAxe);
  f.Entier(a.TailleAxe);
  f.Entier(a.EpaisseurAxe);
}

template <typename Flux, typename S>
void Serie(Flux& f, S& s) {
  f.Texte(s.CodeSerie, kLargeurCodeSerie);
  f.Texte(s.NomSerie, kLargeurNomSerie);
  f.Entier(s.TypeSerie);
  f.Texte(s.FichierSerie, kLargeurFichierSerie);
  f.Entier(s.AxeYSerie);
  f.Entier(s.Rouge);
  f.Entier(s.Vert);
  f.Entier(s.Bleu);
  f.Entier(s.EpaisseurSerie);
  f.Entier(s.BrosseSerie);
  f.Texte(s.Reserve60, 10);
  for (auto& v : s.Reserve70) f.Entier(v);
}

template <typename Flux, typename M>
void Modele(Flux& f, M& m) {
  f.Entier(m.Reserve0);
  f.Texte(m.Titre, kLargeurTitre);
  f.Entier(m.TypeGraph);
  f.Entier(m.Legende);
  f.Entier(m.NbSeries);
  f.Entier(m.Empile);
  f.Texte(m.Commentaire, kLargeurCommentaire);
  for (auto& s : m.Series) Serie(f, s);
  f.Entier(m.InversionDataSeries);
  f.Entier(m.EspaceBarres);
  f.Entier(m.EspaceAnnees);
  f.Entier(m.EspaceSeries);
  Rect(f, m.RectTitre);
  Rect(f, m.RectPlot);
  Rect(f, m.RectLegende);
  Rect(f, m.RectNote);
  f.Flottant(m.Elevation);
  f.Flottant(m.Rotation);
  Texte(f, m.TexteTitre);
  Texte(f, m.TexteNote);
  Axe(f, m.AxeX);
  Axe(f, m.AxeY);
  Axe(f, m.AxeY2);
  Axe(f, m.AxeZ);
  f.Entier(m.TailleTitre);
  f.Texte(m.Reserve1200, 18);
  for (auto& v : m.Reserve1218) f.Entier(v);
}

}  // namespace

std::string_view NomTypeGraphique(int type) {
  return type >= 1 && type <= 12 ? kNomsTypes[type - 1] : std::string_view();
}

std::string_view NomCourtTypeGraphique(int type) {
  return type >= 1 && type <= 12 ? kNomsCourts[type - 1] : std::string_view();
}

bool EstGraphique3D(int type) { return type >= 1 && type <= 9 && type % 2 == 1; }

bool LireModeleGraphique(LecteurBinaire& lecteur, ModeleGraphique& modele) {
  Lecture flux(lecteur);
  Modele(flux, modele);
  return lecteur.Ok();
}

void EcrireModeleGraphique(std::string& sortie, const ModeleGraphique& modele) {
  Ecriture flux(sortie);
  Modele(flux, modele);
}

}  // namespace norvane
