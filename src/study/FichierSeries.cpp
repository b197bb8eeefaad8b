// .DON record, 90 bytes, numbered from 1; record n starts at (n - 1) * 90:
//
//   OFFSET SIZE MEANING
//   0      12   CodeSerie  "<name>-<number>:<decimals>"; the text behind the
//                          first ":" is the default number of decimals
//   12     22   Intitule   "<label>|<unit>"
//   34     56   Valeur(0..13), 32-bit little-endian floats; column 0 is the
//               year before the study, column 1 study year 1
#include "study/FichierSeries.h"

#include <algorithm>
#include <fstream>

#include "frame/Disposition.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

namespace champ {
constexpr ChampDisposition CodeSerie{"CodeSerie", 0, 12};
constexpr ChampDisposition Intitule{"Intitule", 12, 22};
constexpr ChampDisposition Valeur{"Valeur", 34, 4, 14};
}  // namespace champ

constexpr ChampDisposition kChamps[] = {champ::CodeSerie, champ::Intitule, champ::Valeur};
static_assert(PaveEnregistrement(kChamps, kLongueurSerie), "a series record's fields tile 90 bytes");

}  // namespace

SerieDonnees SerieVide() {
  SerieDonnees serie;
  serie.CodeSerie.assign(champ::CodeSerie.largeur, ' ');
  serie.Intitule.assign(champ::Intitule.largeur, ' ');
  return serie;
}

bool LireSerieDonnees(LecteurBinaire& l, SerieDonnees& serie) {
  l.LireTexte(serie.CodeSerie, champ::CodeSerie);
  l.LireTexte(serie.Intitule, champ::Intitule);
  for (std::size_t i = 0; i < serie.Valeur.size(); ++i) l.Lire(serie.Valeur[i], champ::Valeur, i);
  return l.Ok();
}

SerieDonnees DecoderSerie(std::string_view octets) {
  SerieDonnees serie = SerieVide();
  LecteurBinaire lecteur(octets.substr(0, kLongueurSerie));
  LireSerieDonnees(lecteur, serie);
  return serie;
}

SerieDonnees LireEnregistrementSerie(const std::string& fichier, int32_t numero) {
  auto reel = ResoudreChemin(fichier);
  if (numero < 1 || !reel) return SerieVide();
  std::ifstream flux(*reel, std::ios::binary);
  flux.seekg(static_cast<std::streamoff>(numero - 1) * static_cast<std::streamoff>(kLongueurSerie));
  char octets[kLongueurSerie];
  flux.read(octets, sizeof octets);
  if (flux.gcount() <= 0) return SerieVide();
  return DecoderSerie(std::string_view(octets, static_cast<std::size_t>(flux.gcount())));
}

int16_t DecimalesDeCode(std::string_view codeSerie) {
  const std::size_t deuxPoints = codeSerie.find(':');
  return Entier16De(deuxPoints == std::string_view::npos ? codeSerie : codeSerie.substr(deuxPoints + 1));
}

bool EstSerieVide(const SerieDonnees& s) {
  // A record that was never written (a file grown by a seek, a hole) has NUL
  // bytes for its code: whatever else it holds, it is no series.
  if (!s.CodeSerie.empty() && s.CodeSerie.find_first_not_of('\0') == std::string::npos) return true;
  return EstBlanc(s.CodeSerie) && EstBlanc(s.Intitule) &&
         std::all_of(s.Valeur.begin(), s.Valeur.end(), [](float v) { return v == 0.0f; });
}

}  // namespace norvane
