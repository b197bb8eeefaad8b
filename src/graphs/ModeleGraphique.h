// The graph model: the reusable description of one chart (type, title, note,
// axes, layout and up to ten series, each naming one record of a .DON file),
// and its fixed 1224-byte record of graph.txt.
//
// Texts are held as Windows-1252 bytes. A text read from the store keeps its
// blank padding; callers trim at use. A text of any length may be set: the
// writer cuts it at its field's width and pads it with blanks.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "frame/LecteurBinaire.h"

namespace norvane {

inline constexpr std::size_t kLongueurModeleGraphique = 1224;
inline constexpr std::size_t kLongueurSerieGraphique = 76;
inline constexpr int kSeriesParGraphique = 10;

// Widths of the text fields.
inline constexpr std::size_t kLargeurTitre = 60;
inline constexpr std::size_t kLargeurCommentaire = 100;
inline constexpr std::size_t kLargeurCodeSerie = 12;
inline constexpr std::size_t kLargeurNomSerie = 22;
inline constexpr std::size_t kLargeurFichierSerie = 12;
inline constexpr std::size_t kLargeurLibelleAxe = 40;

// Chart types (TypeGraph). Any other value draws as 2D XY.
enum TypeGraphique : int16_t {
  kBarres3D = 1,
  kBarres2D = 2,
  kCourbes3D = 3,
  kCourbes2D = 4,
  kAires3D = 5,
  kAires2D = 6,
  kEscaliers3D = 7,
  kEscaliers2D = 8,
  kCombinaison3D = 9,
  kCombinaison2D = 10,
  kSecteurs2D = 11,
  kXY2D = 12,
};

// Kind of one series in a combination chart (TypeSerie).
enum TypeSerieGraphique : int16_t { kSerieBarre = 1, kSerieCourbe = 2, kSerieAire = 3, kSerieEscalier = 4 };

// Brush of a series (BrosseSerie).
enum BrosseGraphique : int16_t { kBrosseVide = 0, kBrosseSolide = 1, kBrosseHachuree = 2 };

// Text orientation (TexteGraphique::Orientation).
enum OrientationTexte : int16_t {
  kHorizontal = 1,
  kVerticalEmpile = 2,
  kVerticalPivote1 = 3,
  kVerticalPivote2 = 4,
};

// "Graphique à barres 3D"... for types 1 to 12 (UTF-8); empty otherwise.
std::string_view NomTypeGraphique(int type);
// "barres 3D"... the short form of the lists (UTF-8); empty outside 1 to 12.
std::string_view NomCourtTypeGraphique(int type);
// True for the types drawn in 3D (odd types 1 to 9).
bool EstGraphique3D(int type);

// A place on the chart, in the chart's own coordinates (twips of the
// 7905 x 5865 chart), as the editor read it back from the drawn chart.
struct RectGraphique {
  float MinX = 0;
  float MaxX = 0;
  float MinY = 0;
  float MaxY = 0;

  // All four zero: no place stored.
  bool EstVide() const { return MinX == 0 && MaxX == 0 && MinY == 0 && MaxY == 0; }
};

// Layout of the title or of the note.
struct TexteGraphique {
  int16_t RetourTexte = 0;  // 1: automatic word wrap
  int16_t Orientation = 0;  // OrientationTexte, 1 to 4
  int16_t Reserve = 0;      // kept as read
};

// One axis: X, first Y, second Y or Z.
struct AxeGraphique {
  std::string Libelle;       // title of the axis (40)
  int16_t TailleAxe = 0;     // font size of the axis title, points
  int16_t EpaisseurAxe = 0;  // width of the axis pen
};

// One series of a chart: a record of a .DON file of the current dossier.
// A colour of 0, 0, 0 means that none has been chosen yet: a colour is drawn
// at random before the chart is drawn (CompleterCouleurs).
struct SerieGraphique {
  std::string CodeSerie;     // code of the SerieDonnees in its file (12)
  std::string NomSerie;      // label shown in the legend (22)
  int16_t TypeSerie = 0;     // TypeSerieGraphique, in a combination chart
  std::string FichierSerie;  // name of the .DON file, with its extension (12)
  int16_t AxeYSerie = 0;     // 1: the series uses the second Y axis
  int16_t Rouge = 0;
  int16_t Vert = 0;
  int16_t Bleu = 0;
  int16_t EpaisseurSerie = 0;  // width of the series' pen
  int16_t BrosseSerie = 0;     // BrosseGraphique
  std::string Reserve60 = std::string(10, '\0');  // kept as read
  std::array<int16_t, 3> Reserve70{};              // kept as read

  bool SansCouleur() const { return Rouge == 0 && Vert == 0 && Bleu == 0; }
};

struct ModeleGraphique {
  int16_t Reserve0 = 0;      // kept as read
  std::string Titre;         // title of the chart and name of the model (60)
  int16_t TypeGraph = 0;     // TypeGraphique
  int16_t Legende = 0;       // 1: the legend is shown
  int16_t NbSeries = 0;      // series in use, 0 to 10
  int16_t Empile = 0;        // not 0: series are stacked
  std::string Commentaire;   // the note printed under the chart (100)
  std::array<SerieGraphique, kSeriesParGraphique> Series;  // only the first NbSeries mean anything
  int16_t InversionDataSeries = 0;  // 1: years and series swap between the X and Z axes
  int16_t EspaceBarres = 0;         // gap between the bars of a group
  int16_t EspaceAnnees = 0;         // gap between years (groups of bars)
  int16_t EspaceSeries = 0;         // gap between series in a 3D chart
  RectGraphique RectTitre;
  RectGraphique RectPlot;           // all zero: no layout stored, every rectangle and the 3D view ignored
  RectGraphique RectLegende;
  RectGraphique RectNote;
  float Elevation = 0;              // 3D view
  float Rotation = 0;               // 3D view
  TexteGraphique TexteTitre;
  TexteGraphique TexteNote;         // its wrap flag applies to the legend, not to the note
  AxeGraphique AxeX;
  AxeGraphique AxeY;
  AxeGraphique AxeY2;
  AxeGraphique AxeZ;
  int16_t TailleTitre = 0;          // font size of the title, points
  std::string Reserve1200 = std::string(18, '\0');  // kept as read
  std::array<int16_t, 3> Reserve1218{};             // kept as read

  // Series in use, NbSeries held to 0..10.
  int SeriesUtilisees() const { return NbSeries < 0 ? 0 : (NbSeries > kSeriesParGraphique ? kSeriesParGraphique : NbSeries); }
};

// Record of graph.txt, 1224 bytes, little-endian, texts in Windows-1252
// left-justified and padded with blanks:
//
//   OFFSET SIZE MEANING
//   0      2    reserved, 16-bit
//   2      60   Titre
//   62     2    TypeGraph, 1 to 12
//   64     2    Legende, 1: shown
//   66     2    NbSeries, 0 to 10
//   68     2    Empile, not 0: stacked
//   70     100  Commentaire
//   170    760  Series(1..10), 76 bytes each:
//                 +0  12  CodeSerie
//                 +12 22  NomSerie
//                 +34 2   TypeSerie, 1 bar 2 line 3 area 4 step
//                 +36 12  FichierSerie
//                 +48 2   AxeYSerie, 1: second Y axis
//                 +50 2   Rouge   +52 2 Vert   +54 2 Bleu
//                 +56 2   EpaisseurSerie
//                 +58 2   BrosseSerie, 0 none 1 solid 2 hatched
//                 +60 10  reserved text
//                 +70 6   reserved, 3 x 16-bit
//   930    2    InversionDataSeries
//   932    2    EspaceBarres
//   934    2    EspaceAnnees
//   936    2    EspaceSeries
//   938    16   RectTitre:   min X, max X, min Y, max Y, 32-bit floats
//   954    16   RectPlot:    same
//   970    16   RectLegende: same
//   986    16   RectNote:    same
//   1002   4    Elevation, 32-bit float
//   1006   4    Rotation, 32-bit float
//   1010   6    TexteTitre: RetourTexte, Orientation, reserved (3 x 16-bit)
//   1016   6    TexteNote:  same
//   1022   44   AxeX:  Libelle (40), TailleAxe (2), EpaisseurAxe (2)
//   1066   44   AxeY:  same
//   1110   44   AxeY2: same
//   1154   44   AxeZ:  same
//   1198   2    TailleTitre, points
//   1200   18   reserved text
//   1218   6    reserved, 3 x 16-bit
//
// Reads one record at the reader's position. A field that runs past the end
// of the data keeps what `modele` held; returns false in that case.
bool LireModeleGraphique(LecteurBinaire& lecteur, ModeleGraphique& modele);

// Appends the 1224 bytes of the record to `sortie`.
void EcrireModeleGraphique(std::string& sortie, const ModeleGraphique& modele);

}  // namespace norvane
