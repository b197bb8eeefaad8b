#include "study/Series.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "study/TexteEtude.h"

namespace norvane {
namespace {

constexpr const char* kAppelant = "CreationDoc";
constexpr int kDerniereColonne = 13;
constexpr const char* kSeriesVides = " : ses séries restent vides.";

// The parts of a series code once its file is known.
struct CodeSerieLu {
  std::string fichier;
  std::string selecteur;    // what stands behind the "-"
  int32_t numeroParDefaut;  // record named before the "-" of an "@" code, else 0
};

bool CommenceParUnNombre(std::string_view texte) {
  std::size_t i = texte.find_first_not_of(" \t");
  if (i < texte.size() && (texte[i] == '-' || texte[i] == '+')) ++i;
  return i < texte.size() && texte[i] >= '0' && texte[i] <= '9';
}

// The record number that stands in `reste`, or the one the code named before.
int32_t NumeroDerriere(std::string_view reste, int32_t parDefaut) {
  return CommenceParUnNombre(reste) ? EntierDe(reste) : parDefaut;
}

std::string Apres(std::string_view texte, long position) {
  if (position < 0 || static_cast<std::size_t>(position) >= texte.size()) return {};
  return std::string(texte.substr(static_cast<std::size_t>(position) + 1));
}

uint64_t TailleReelle(const ContexteSeries& contexte, const std::string& chemin) {
  if (contexte.cache != nullptr) return contexte.cache->Taille(chemin);
  return TailleFichierReguliere(chemin).value_or(0);
}

std::string FichierDeFamille(const ContexteSeries& contexte, char famille) {
  switch (famille) {
    case 'p':
      return "CltP" + contexte.entites.NumCulturePCourante() + ".don";
    case 'a':
      return "AL" + contexte.entites.NumActivite2Chiffres() + "AL.don";
    default:
      return "Cult" + contexte.entites.NumCultureCourante() + ".don";
  }
}

// "@" code: the "@" and the family letter are dropped from `code`, and the
// "-" moves back by two. Unless the selector asks for a crop title, the text
// before the "-" is the record number.
CodeSerieLu AnalyserCodeFamille(const ContexteSeries& contexte, std::string& code, long tiret, int16_t dossier) {
  code.erase(0, 1);
  char famille = code.empty() ? 'c' : code[0];
  if (famille != 'c' && famille != 'p' && famille != 'a') famille = 'c';
  if (!code.empty()) code.erase(0, 1);
  tiret -= 2;
  CodeSerieLu lu{DossierDuSlot(contexte.session, dossier) + FichierDeFamille(contexte, famille), Apres(code, tiret), 0};
  if (lu.selecteur.empty() || lu.selecteur[0] != 'c') {
    const std::size_t avant = tiret < 0 ? 0 : std::min(static_cast<std::size_t>(tiret), code.size());
    lu.numeroParDefaut = EntierDe(std::string_view(code).substr(0, avant));
  }
  return lu;
}

void ErreurCodeInconnu(const ContexteSeries& contexte, const std::string& code) {
  contexte.messages.AfficherMessage(
      kAppelant, kTitreErreurDetectee,
      "Le code \"" + Cp1252VersUtf8(code) + "\" est inconnu de l'interpréteur Norvane.",
      "Vous devez modifier en conséquence le modèle de document utilisé pour que cette erreur n'apparaisse plus.", "");
}

void ErreurStatistique(const ContexteSeries& contexte, const std::string& code) {
  contexte.messages.AfficherMessage(kAppelant, "Erreur détectée dans le modèle",
                                    "Le code \"" + Cp1252VersUtf8(code) +
                                        "\" est erroné ( après le - ).\nCette portion de code ne peut être traitée.",
                                    "Modifiez le modèle utilisé pour que ce message d'erreur n'apparaisse plus.", "");
}

// "RES.DON" and "MARTIN_PAUL.TVL" out of ".../MARTIN_PAUL.TVL/RES.DON".
std::pair<std::string, std::string> FichierEtDossier(std::string_view chemin) {
  const std::size_t barre = chemin.find_last_of("/\\");
  if (barre == std::string_view::npos) return {std::string(chemin), std::string()};
  const std::string_view dossier = chemin.substr(0, barre);
  const std::size_t avant = dossier.find_last_of("/\\");
  return {std::string(chemin.substr(barre + 1)),
          std::string(avant == std::string_view::npos ? dossier : dossier.substr(avant + 1))};
}

// A record that reads blank: the file or the record is missing, which the
// reader passes over in silence; a listening port is told which.
void ConstaterEnregistrementVide(const ContexteSeries& contexte, const std::string& fichier, int32_t numero) {
  if (!contexte.messages.EcouteConstats()) return;
  const uint64_t taille = TailleReelle(contexte, fichier);
  if (taille == 0) {
    contexte.messages.Constater(Constat::DonneeAbsente, TexteSerieAbsente(fichier, {}) + kSeriesVides);
    return;
  }
  const uint64_t nombre = taille / kLongueurSerie;
  if (numero >= 1 && static_cast<uint64_t>(numero) <= nombre) return;  // a record really blank
  contexte.messages.Constater(Constat::DonneeAbsente,
                              TexteSerieAbsente(fichier, "L'enregistrement n°" + std::to_string(numero)) +
                                  ", qui en compte " + std::to_string(nombre) + " : cette série reste vide.");
}

float Colonne(const SerieDonnees& serie, int annee) {
  return annee >= 0 && annee <= kDerniereColonne ? serie.Valeur[static_cast<std::size_t>(annee)] : 0.0f;
}

std::string Valeur(const ContexteSeries& contexte, const std::string& fichier, int32_t numero, int annee,
                   int16_t& decimales) {
  const SerieDonnees serie = LireEnregistrementSerie(contexte, fichier, numero);
  if (decimales == -1) decimales = DecimalesDeCode(serie.CodeSerie);
  return FormatNombre(Colonne(serie, annee), decimales, false);
}

// Selectors i and u: the label in lower case before the "|", or the unit behind it.
std::string Libelle(const ContexteSeries& contexte, const CodeSerieLu& lu) {
  const SerieDonnees serie =
      LireEnregistrementSerie(contexte, lu.fichier, NumeroDerriere(Apres(lu.selecteur, 0), lu.numeroParDefaut));
  const std::size_t barre = serie.Intitule.find('|');
  if (lu.selecteur[0] == 'u') return barre == std::string::npos ? std::string() : serie.Intitule.substr(barre + 1);
  return Minuscules(serie.Intitule.substr(0, barre));
}

// Selector "min", "max", "som" or "moy", with "a" behind for the calendar year.
std::string Statistique(const ContexteSeries& contexte, const CodeSerieLu& lu, const std::string& code,
                        int16_t& decimales) {
  const std::string mot = lu.selecteur.substr(0, 3);
  if (mot != "min" && mot != "max" && mot != "som" && mot != "moy") {
    ErreurStatistique(contexte, code);
    return {};
  }
  const bool formeAnnee = lu.selecteur.size() > 3 && lu.selecteur[3] == 'a';
  const SerieDonnees serie = LireEnregistrementSerie(
      contexte, lu.fichier, NumeroDerriere(Apres(lu.selecteur, formeAnnee ? 3 : 2), lu.numeroParDefaut));
  const int nbAnnees = std::min<int>(contexte.session.InfoDossier.NbAnEtude, kDerniereColonne);
  float acc = serie.Valeur[1];
  int rang = 0;
  for (int i = 2; i <= nbAnnees; ++i) {
    const float v = serie.Valeur[static_cast<std::size_t>(i)];
    if ((mot == "min" && v < acc) || (mot == "max" && v > acc)) {
      acc = v;
      rang = i - 1;
    } else if (mot == "som" || mot == "moy") {
      acc += v;
    }
  }
  if (mot == "moy" && nbAnnees >= 1) acc /= static_cast<float>(nbAnnees);
  if (formeAnnee) return std::to_string(contexte.session.InfoDossier.AnneeDebut + rang);
  if (decimales == -1) decimales = DecimalesDeCode(serie.CodeSerie);
  return FormatNombre(acc, decimales, false);
}

// Selector of a year: one digit before an "a" ("3a17"), else two ("12a17");
// the record stands behind the "a".
std::string ValeurAnnee(const ContexteSeries& contexte, const CodeSerieLu& lu, int16_t& decimales) {
  const std::size_t chiffres = lu.selecteur.size() > 1 && lu.selecteur[1] == 'a' ? 1 : 2;
  const int annee = EntierDe(lu.selecteur.substr(0, chiffres));
  return Valeur(contexte, lu.fichier,
                NumeroDerriere(Apres(lu.selecteur, static_cast<long>(chiffres)), lu.numeroParDefaut), annee, decimales);
}

// Step of the selector when no year is given.
std::string ParSelecteur(const ContexteSeries& contexte, const CodeSerieLu& lu, const std::string& code,
                         int16_t& decimales) {
  const EntitesCourantes& entites = contexte.entites;
  const char premier = lu.selecteur.empty() ? '\0' : lu.selecteur[0];
  const bool suiviDeC = lu.selecteur.size() > 1 && lu.selecteur[1] == 'c';
  switch (premier) {
    case 'i':
    case 'u':
      return TexteEtudePourRtf(Libelle(contexte, lu));
    case 'c':
      return TexteEtudePourRtf(entites.TitreCultureCourante());
    case 'n':
      return TexteEtudePourRtf(entites.NomCultureCourante());
    case 'p':
      return TexteEtudePourRtf(suiviDeC ? entites.TitreCulturePCourante() : entites.NomCulturePCourante());
    case 'a':
      return suiviDeC ? std::string() : TexteEtudePourRtf(entites.NomActivite());
    case 'm':
    case 's':
      return Statistique(contexte, lu, code, decimales);
    default:
      return ValeurAnnee(contexte, lu, decimales);
  }
}

}  // namespace

SerieDonnees LireEnregistrementSerie(const ContexteSeries& contexte, const std::string& fichier, int32_t numero) {
  SerieDonnees serie =
      contexte.cache != nullptr ? contexte.cache->Enregistrement(fichier, numero) : LireEnregistrementSerie(fichier, numero);
  if (EstBlanc(serie.CodeSerie)) ConstaterEnregistrementVide(contexte, fichier, numero);
  return serie;
}

std::string TexteSerieAbsente(const std::string& chemin, const std::string& designation) {
  const auto [nom, dossier] = FichierEtDossier(chemin);
  const std::optional<uint64_t> taille = TailleFichierReguliere(chemin);
  if (taille.value_or(0) > 0) {
    return designation + " n'existe pas dans le fichier " + Cp1252VersUtf8(nom) + " du dossier " +
           Cp1252VersUtf8(dossier);
  }
  if (taille) {
    return "Le fichier " + Cp1252VersUtf8(nom) + " du dossier " + Cp1252VersUtf8(dossier) + " est vide";
  }
  return "Le fichier " + Cp1252VersUtf8(nom) + " n'existe pas dans le dossier " + Cp1252VersUtf8(dossier);
}

std::string DossierDuSlot(const Session& session, int slot) {
  const auto n = static_cast<std::size_t>(std::clamp(slot, 0, 9));
  return AjouterAntislash(session.RepDossier[n]) + AjouterAntislash(session.NomDossier[n]);
}

std::string LireSerie(const ContexteSeries& contexte, std::string& code, int16_t tiret, int16_t& annee,
                      int16_t& decimales, int16_t dossier) {
  CodeSerieLu lu;
  if (!code.empty() && code[0] == '@') {
    lu = AnalyserCodeFamille(contexte, code, tiret, dossier);
  } else {
    const std::size_t plus = code.find('+');
    if (plus == std::string::npos) {
      ErreurCodeInconnu(contexte, code);
      return {};
    }
    lu = {DossierDuSlot(contexte.session, dossier) + code.substr(0, plus), Apres(code, tiret), 0};
  }
  if (TailleReelle(contexte, lu.fichier) == 0) {
    if (contexte.messages.EcouteConstats()) {
      contexte.messages.Constater(Constat::DonneeAbsente, TexteSerieAbsente(lu.fichier, {}) + kSeriesVides);
    }
    return {};
  }
  if (annee != -1) {
    return Valeur(contexte, lu.fichier, NumeroDerriere(lu.selecteur, lu.numeroParDefaut), annee, decimales);
  }
  return ParSelecteur(contexte, lu, code, decimales);
}

}  // namespace norvane
