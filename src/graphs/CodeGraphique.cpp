#include "graphs/CodeGraphique.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

#include "frame/Encodage.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr char kTitreErreurCode[] = "Code d'un graphique erroné dans le modèle TVM";

// A number field as the conversion of the old runtime took it: the whole
// trimmed text must be a decimal number, with "," or "." as separator.
template <typename T>
std::optional<T> Nombre(std::string_view texte) {
  std::string t = Trim(texte);
  if (!t.empty() && t[0] == '+') t.erase(0, 1);
  for (char& c : t) {
    if (c == ',') c = '.';
  }
  T valeur = 0;
  const auto [fin, erreur] = std::from_chars(t.data(), t.data() + t.size(), valeur, std::chars_format::general);
  if (t.empty() || erreur != std::errc() || fin != t.data() + t.size() || !std::isfinite(valeur)) return std::nullopt;
  return valeur;
}

// 16-bit field: rounded half to even, refused beyond the 16-bit range.
bool Entier(std::string_view texte, int16_t& champ) {
  const auto valeur = Nombre<double>(texte);
  if (!valeur) return false;
  const double arrondi = std::nearbyint(*valeur);
  if (arrondi < std::numeric_limits<int16_t>::min() || arrondi > std::numeric_limits<int16_t>::max()) return false;
  champ = static_cast<int16_t>(arrondi);
  return true;
}

bool Flottant(std::string_view texte, float& champ) {
  const auto valeur = Nombre<float>(texte);
  if (!valeur) return false;
  champ = *valeur;
  return true;
}

bool Texte(std::string_view texte, std::string& champ, std::size_t largeur) {
  champ = std::string(texte.substr(0, largeur));
  return true;
}

// The fields of the head and of a series group, each with its reader and its
// writer, in code order.
template <typename Cible>
struct Champ {
  bool (*lire)(Cible&, std::string_view);
  std::string (*ecrire)(const Cible&);
};

#define NORVANE_TEXTE(T, membre, largeur)                                          \
  Champ<T> {                                                                       \
    [](T& c, std::string_view t) { return Texte(t, c.membre, largeur); },          \
        [](const T& c) { return Trim(c.membre); }                                  \
  }
#define NORVANE_ENTIER(T, membre)                                                  \
  Champ<T> {                                                                       \
    [](T& c, std::string_view t) { return Entier(t, c.membre); },                  \
        [](const T& c) { return std::to_string(c.membre); }                        \
  }
#define NORVANE_FLOTTANT(T, membre)                                                \
  Champ<T> {                                                                       \
    [](T& c, std::string_view t) { return Flottant(t, c.membre); },                \
        [](const T& c) { return TexteFlottantCode(c.membre); }                     \
  }

using M = ModeleGraphique;
using S = SerieGraphique;

const std::array<Champ<M>, kChampsEnteteGraphique> kEntete = {
    NORVANE_TEXTE(M, Titre, kLargeurTitre),
    NORVANE_ENTIER(M, TypeGraph),
    NORVANE_ENTIER(M, Legende),
    // The number of groups that follow: NbSeries held to 0..10.
    Champ<M>{[](M& c, std::string_view t) { return Entier(t, c.NbSeries); },
             [](const M& c) { return std::to_string(c.SeriesUtilisees()); }},
    NORVANE_ENTIER(M, Empile),
    NORVANE_TEXTE(M, Commentaire, kLargeurCommentaire),
    NORVANE_ENTIER(M, InversionDataSeries),
    NORVANE_ENTIER(M, EspaceBarres),
    NORVANE_ENTIER(M, EspaceAnnees),
    NORVANE_ENTIER(M, EspaceSeries),
    NORVANE_FLOTTANT(M, RectTitre.MinX),
    NORVANE_FLOTTANT(M, RectTitre.MaxX),
    NORVANE_FLOTTANT(M, RectTitre.MinY),
    NORVANE_FLOTTANT(M, RectTitre.MaxY),
    NORVANE_FLOTTANT(M, RectPlot.MinX),
    NORVANE_FLOTTANT(M, RectPlot.MaxX),
    NORVANE_FLOTTANT(M, RectPlot.MinY),
    NORVANE_FLOTTANT(M, RectPlot.MaxY),
    NORVANE_FLOTTANT(M, RectLegende.MinX),
    NORVANE_FLOTTANT(M, RectLegende.MaxX),
    NORVANE_FLOTTANT(M, RectLegende.MinY),
    NORVANE_FLOTTANT(M, RectLegende.MaxY),
    NORVANE_FLOTTANT(M, RectNote.MinX),
    NORVANE_FLOTTANT(M, RectNote.MaxX),
    NORVANE_FLOTTANT(M, RectNote.MinY),
    NORVANE_FLOTTANT(M, RectNote.MaxY),
    NORVANE_FLOTTANT(M, Elevation),
    NORVANE_FLOTTANT(M, Rotation),
    NORVANE_ENTIER(M, TexteTitre.RetourTexte),
    NORVANE_ENTIER(M, TexteTitre.Orientation),
    NORVANE_ENTIER(M, TexteNote.RetourTexte),
    NORVANE_ENTIER(M, TexteNote.Orientation),
    NORVANE_TEXTE(M, AxeX.Libelle, kLargeurLibelleAxe),
    NORVANE_ENTIER(M, AxeX.TailleAxe),
    NORVANE_ENTIER(M, AxeX.EpaisseurAxe),
    NORVANE_TEXTE(M, AxeY.Libelle, kLargeurLibelleAxe),
    NORVANE_ENTIER(M, AxeY.TailleAxe),
    NORVANE_ENTIER(M, AxeY.EpaisseurAxe),
    NORVANE_TEXTE(M, AxeY2.Libelle, kLargeurLibelleAxe),
    NORVANE_ENTIER(M, AxeY2.TailleAxe),
    NORVANE_ENTIER(M, AxeY2.EpaisseurAxe),
    NORVANE_TEXTE(M, AxeZ.Libelle, kLargeurLibelleAxe),
    NORVANE_ENTIER(M, AxeZ.TailleAxe),
    NORVANE_ENTIER(M, AxeZ.EpaisseurAxe),
    NORVANE_ENTIER(M, TailleTitre),
};

// The nine ";"-ended fields of a group; the brush follows as one character.
const std::array<Champ<S>, kChampsSerieGraphique - 1> kSerie = {
    NORVANE_TEXTE(S, CodeSerie, kLargeurCodeSerie),
    NORVANE_TEXTE(S, NomSerie, kLargeurNomSerie),
    NORVANE_ENTIER(S, TypeSerie),
    NORVANE_TEXTE(S, FichierSerie, kLargeurFichierSerie),
    NORVANE_ENTIER(S, AxeYSerie),
    NORVANE_ENTIER(S, Rouge),
    NORVANE_ENTIER(S, Vert),
    NORVANE_ENTIER(S, Bleu),
    NORVANE_ENTIER(S, EpaisseurSerie),
};

#undef NORVANE_TEXTE
#undef NORVANE_ENTIER
#undef NORVANE_FLOTTANT

template <typename Cible, std::size_t N>
std::string Ecrire(const std::array<Champ<Cible>, N>& champs, const Cible& cible) {
  std::string texte;
  for (const auto& champ : champs) texte += champ.ecrire(cible) + ";";
  return texte;
}

// Takes ";"-ended fields off the front of `reste` while one is left and
// fewer than N were read. Returns the position of a field that is no number.
template <typename Cible, std::size_t N>
std::optional<std::pair<int, std::string>> Lire(const std::array<Champ<Cible>, N>& champs, Cible& cible,
                                                std::string& reste) {
  std::size_t debut = 0;
  std::optional<std::pair<int, std::string>> faute;
  for (std::size_t n = 0; n < N; ++n) {
    const std::size_t pointVirgule = reste.find(';', debut);
    if (pointVirgule == std::string::npos) break;
    const std::string_view champ(reste.data() + debut, pointVirgule - debut);
    debut = pointVirgule + 1;
    if (!champs[n].lire(cible, champ)) {
      faute = std::pair<int, std::string>(static_cast<int>(n), std::string(champ));
      break;
    }
  }
  reste.erase(0, debut);
  return faute;
}

IssueLectureCode NonNumerique(int serie, const std::pair<int, std::string>& faute) {
  return {LectureCode::ChampNonNumerique, serie, faute.first, faute.second};
}

// The letters that a template's "\'xx" escape may stand for in a code.
char LettreEchappee(std::string_view hex) {
  static constexpr std::array<std::pair<std::string_view, char>, 10> kLettres = {{
      {"e0", '\xE0'}, {"e2", '\xE2'}, {"e7", '\xE7'}, {"e8", '\xE8'}, {"e9", '\xE9'},
      {"ea", '\xEA'}, {"ee", '\xEE'}, {"f4", '\xF4'}, {"f9", '\xF9'}, {"fb", '\xFB'},
  }};
  for (const auto& [code, lettre] : kLettres) {
    if (hex == code) return lettre;
  }
  return '\0';
}

}  // namespace

std::string TexteFlottantCode(float valeur) {
  if (!std::isfinite(valeur)) return "0";  // a damaged record must still give a code that reads back
  char tampon[64];
  const auto resultat = std::to_chars(tampon, tampon + sizeof tampon, valeur);
  std::string texte(tampon, resultat.ptr);
  for (char& c : texte) {
    if (c == '.') c = ',';
    if (c == 'e') c = 'E';
  }
  return texte;
}

std::string ConstruireCodeGraphique(const ModeleGraphique& modele) {
  std::string corps = Ecrire(kEntete, modele);
  for (int k = 0; k < modele.SeriesUtilisees(); ++k) {
    const SerieGraphique& serie = modele.Series[static_cast<std::size_t>(k)];
    corps += "[" + Ecrire(kSerie, serie) + std::to_string(serie.BrosseSerie) + "]";
  }
  return "gph(" + corps + ")";
}

std::string CorpsCodeGraphique(const std::string& code) {
  return code.size() > 5 ? code.substr(4, code.size() - 5) : std::string();
}

std::string CodeGraphiqueInsere(const ModeleGraphique& modele) {
  return "#tvl(" + RemplacerTout(ConstruireCodeGraphique(modele), " ", "_") + ")#";
}

IssueLectureCode LireCodeGraphique(ModeleGraphique& modele, std::string corps) {
  if (auto faute = Lire(kEntete, modele, corps)) return NonNumerique(0, *faute);
  modele.NbSeries = static_cast<int16_t>(modele.SeriesUtilisees());
  for (int k = 1; k <= modele.NbSeries; ++k) {
    if (corps.empty() || corps[0] != '[') return {LectureCode::CrochetManquant, k, -1, {}};
    corps.erase(0, 1);
    SerieGraphique& serie = modele.Series[static_cast<std::size_t>(k - 1)];
    if (auto faute = Lire(kSerie, serie, corps)) return NonNumerique(k, *faute);
    const std::string brosse = corps.substr(0, 1);
    if (!Entier(brosse, serie.BrosseSerie)) return {LectureCode::ChampNonNumerique, k, kChampsSerieGraphique - 1, brosse};
    corps.erase(0, std::min<std::size_t>(2, corps.size()));
  }
  return {};
}

void SignalerLectureCode(PortMessages& messages, const ModeleGraphique& modele, const IssueLectureCode& issue) {
  if (issue.etat == LectureCode::Complete) return;
  const std::string texte = "Le code du graphique \"" + Cp1252VersUtf8(Trim(modele.Titre)) +
                            "\" comporte des erreurs dans le modèle de document en cours d'analyse.";
  std::string conseil = "Description technique de l'erreur : ";
  if (issue.etat == LectureCode::CrochetManquant) {
    conseil += "Le crochet \"[\", annonçant une série de données pour le graphique, n'apparaît pas à l'endroit "
               "demandé.\nLa série de données n°" +
               std::to_string(issue.serie) +
               " (et suivante(s) s'il y en a) n'a (n'ont) donc pas été correctement récupérée(s).";
  } else {
    const std::string ou = issue.serie == 0 ? "le champ n°" + std::to_string(issue.champ + 1) + " du graphique"
                                            : "le champ n°" + std::to_string(issue.champ + 1) +
                                                  " de la série de données n°" + std::to_string(issue.serie);
    conseil += ou + " (\"" + Cp1252VersUtf8(issue.texte) + "\") devrait être un nombre.\nLe graphique est laissé vide.";
  }
  messages.AfficherMessage("gestGraph", kTitreErreurCode, texte, conseil, "");
}

std::string PreparerCodeGraphique(std::string code) {
  code = RemplacerTout(code, " ", "");
  std::string sortie;
  sortie.reserve(code.size());
  for (std::size_t i = 0; i < code.size(); ++i) {
    if (code.compare(i, 2, "\\'") != 0) {
      sortie.push_back(code[i] == '_' ? ' ' : code[i]);
      continue;
    }
    const std::string_view hex = std::string_view(code).substr(i + 2, 2);
    if (const char lettre = LettreEchappee(hex)) sortie.push_back(lettre);
    i += 1 + hex.size();
  }
  return sortie;
}

}  // namespace norvane
