#include "graphs/SeriesGraphique.h"

#include <cmath>
#include <optional>

#include "frame/Encodage.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "study/Series.h"

namespace norvane {
namespace {

constexpr int kAnneesEtudeMax = kAnneesSerie - 1;

void ValeursExemple(GrilleGraphique& grille, int colonne) {
  for (int r = 1; r <= grille.NbLignes(); ++r) {
    grille.Valeurs[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(colonne)] =
        (std::sin(static_cast<double>(r)) + 6.28) * 1000.0;
  }
}

void ValeursDossier(GrilleGraphique& grille, int colonne, const ValeursSerie& valeurs) {
  for (int r = 1; r <= grille.NbLignes(); ++r) {
    grille.Valeurs[static_cast<std::size_t>(r - 1)][static_cast<std::size_t>(colonne)] =
        valeurs[static_cast<std::size_t>(r)];
  }
}

void SignalerTropDAnnees(PortMessages& messages, const ModeleGraphique& modele, int lignes) {
  messages.AfficherMessage("gestGraph", "Code d'un graphique erroné dans le modèle TVM",
                           "Le graphique \"" + Cp1252VersUtf8(Trim(modele.Titre)) + "\" demande " +
                               std::to_string(lignes) + " années d'étude ; les séries de données n'en portent que " +
                               std::to_string(kAnneesEtudeMax) + ".",
                           "Le graphique est laissé vide.", "");
}

// A series that the dossier lacks draws as zeros, in silence; a listening
// port is told which file or series is missing.
void ConstaterSerieAbsente(PortMessages& messages, const ModeleGraphique& modele, const SourceValeursGraphique& source,
                           const SerieGraphique& serie) {
  if (!messages.EcouteConstats()) return;
  const std::string chemin = AjouterAntislash(source.dossier) + Trim(serie.FichierSerie);
  const std::string texte = TexteSerieAbsente(chemin, "La série " + Cp1252VersUtf8(Trim(serie.CodeSerie)));
  messages.Constater(Constat::DonneeAbsente, texte + " : la série \"" + Cp1252VersUtf8(Trim(serie.NomSerie)) +
                                                 "\" du graphique \"" + Cp1252VersUtf8(Trim(modele.Titre)) +
                                                 "\" est tracée à zéro.");
}

}  // namespace

SourceValeursGraphique SourceDeSession(const Session& session, bool valeursExemple) {
  return {DossierDuSlot(session, 0), session.InfoDossier.NbAnEtude, session.InfoDossier.AnneeDebut, valeursExemple};
}

std::optional<ValeursSerie> TrouverValeursSerie(const std::string& dossier, const std::string& fichier,
                                                const std::string& code) {
  const std::string cherche = Trim(code);
  const auto octets = LireFichier(AjouterAntislash(dossier) + Trim(fichier));
  if (!octets) return std::nullopt;
  LecteurBinaire lecteur(*octets);
  for (std::size_t debut = 0; debut < octets->size(); debut += kLongueurSerie) {
    lecteur.Aller(debut);
    SerieDonnees serie = SerieVide();
    LireSerieDonnees(lecteur, serie);
    if (Trim(serie.CodeSerie) != cherche) continue;
    ValeursSerie valeurs{};
    for (std::size_t i = 0; i < valeurs.size(); ++i) valeurs[i] = serie.Valeur[i];
    return valeurs;
  }
  return std::nullopt;
}

ValeursSerie LireValeursSerie(const std::string& dossier, const std::string& fichier, const std::string& code) {
  return TrouverValeursSerie(dossier, fichier, code).value_or(ValeursSerie{});
}

bool RemplirGrille(const ModeleGraphique& modele, const SourceValeursGraphique& source, GrilleGraphique& grille,
                   PortMessages& messages) {
  const int colonnes = modele.SeriesUtilisees();
  // Rows are the years in force, or one per series when there are none, so
  // that a chart with series always has rows.
  const int lignes = source.NbAnEtude > 0 ? source.NbAnEtude : colonnes;
  if (lignes > kAnneesEtudeMax) {
    grille.Dimensionner(0, 0);
    SignalerTropDAnnees(messages, modele, lignes);
    return false;
  }
  grille.Dimensionner(lignes, colonnes);
  for (int r = 1; r <= grille.NbLignes(); ++r) {
    grille.LibellesLignes[static_cast<std::size_t>(r - 1)] = std::to_string(source.PremiereAnnee + r - 1);
  }
  for (int k = 0; k < colonnes; ++k) {
    const SerieGraphique& serie = modele.Series[static_cast<std::size_t>(k)];
    grille.LibellesColonnes[static_cast<std::size_t>(k)] = serie.NomSerie;
    if (source.valeursExemple) {
      ValeursExemple(grille, k);
    } else {
      const auto valeurs = TrouverValeursSerie(source.dossier, serie.FichierSerie, serie.CodeSerie);
      if (!valeurs) ConstaterSerieAbsente(messages, modele, source, serie);
      ValeursDossier(grille, k, valeurs.value_or(ValeursSerie{}));
    }
  }
  return true;
}

}  // namespace norvane
