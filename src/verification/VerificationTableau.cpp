#include "verification/VerificationTableau.h"

#include <algorithm>
#include <optional>
#include <string>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "tables/ColonnesValeurs.h"
#include "tables/DefinitionLigne.h"
#include "tables/Intitules.h"
#include "template/Formules.h"

namespace norvane {
namespace {

// Without a dossier the study's years are unknown: one is enough to know
// whether a line gets value columns.
int16_t AnneesEtude(const Generation& g, const MessagesEnregistres& messages) {
  return messages.syntaxeSeule ? int16_t{1} : g.session.InfoDossier.NbAnEtude;
}

bool AucuneColonne(const ColonnesValeurs& colonnes) {
  for (int c = colonnes.premiere; c <= colonnes.derniere; ++c) {
    if (colonnes.Ecrite(c)) return false;
  }
  return true;
}

void VerifierIntitule(MessagesEnregistres& messages, const ModeleTableau& modele, const ColonnesValeurs& colonnes,
                      const std::string& reste) {
  if (modele.MultiDossier == 1) return;  // a dossier heading of no known kind is left empty, in silence
  const std::optional<std::string> sorte = SorteIntitule(reste, false, colonnes.modeAnnees);
  if (!sorte || SorteIntituleAnneeConnue(*sorte)) return;
  messages.AjouterFaute(std::string(kIntituleIncorrect) + " La sorte d'intitulé \"" + Cp1252VersUtf8(*sorte) +
                        "\" n'existe pas : les sortes d'intitulé d'année vont de 1 à 7.");
}

// A one-dossier table reads its series in the current dossier; a
// multi-dossier table in each dossier compared that the run has.
void VerifierSerie(Generation& g, const ModeleTableau& modele, const LigneTableau& ligne, const std::string& reste) {
  const ReferenceDecimales lue = LireReferenceDecimales(reste);
  const bool multi = modele.MultiDossier == 1;
  const int derniere = multi ? std::clamp<int>(modele.NbDossiers, 1, 9) : 0;
  for (int dossier = multi ? 1 : 0; dossier <= derniere; ++dossier) {
    if (multi && Trim(g.session.NomDossier[static_cast<std::size_t>(dossier)]).empty()) continue;
    std::string reference = lue.reference;
    int16_t annee = multi ? ligne.NumSerie : int16_t{1};
    int16_t decimales = lue.decimales;
    const auto tiret = static_cast<int16_t>(std::min<std::size_t>(reference.find('-'), 32767));
    LireSerie(g.Series(), reference, tiret, annee, decimales, static_cast<int16_t>(dossier));
  }
}

}  // namespace

void VerifierLignesTableau(Generation& g, MessagesEnregistres& messages, const ModeleTableau& modele) {
  const int16_t annees = AnneesEtude(g, messages);
  for (int n = 1; n <= std::min<int>(modele.NbLignes, kLignesMax); ++n) {
    const LigneTableau& ligne = modele.Lignes[static_cast<std::size_t>(n - 1)];
    const DefinitionLue definition = LireDefinition(ligne.Definition.Texte);
    if (!definition.deuxPoints) continue;
    const ColonnesValeurs colonnes = CalculerColonnes(modele, annees, modele.ModeAnnees);
    if (AucuneColonne(colonnes)) continue;
    messages.ligneTableau = n;
    if (definition.sorte == "entete") {
      VerifierIntitule(messages, modele, colonnes, definition.reste);
    } else if (definition.sorte == "serie") {
      VerifierSerie(g, modele, ligne, definition.reste);
    } else if (definition.sorte == "totalS" || definition.sorte == "totalC") {
      messages.calculsIgnores = true;
      CalculerFormule(g, definition.reste, 1);
      messages.calculsIgnores = false;
    }
  }
  messages.ligneTableau = 0;
}

}  // namespace norvane
