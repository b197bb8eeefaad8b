// Series named inside a formula, "<file>-<record>[!A<year>]": their value for
// the calculation, their label for the display of a formula. <file> is the
// .DON name without extension, read in the folder of dossier slot 0; "AL"
// stands for the file of the free activity in hand.
#include "template/SeriesFormules.h"

#include <optional>
#include <string>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/TexteEtude.h"

namespace norvane {
namespace {

constexpr int kDerniereColonne = 13;

struct ReferenceSerie {
  std::string fichier;    // without extension
  int32_t enregistrement;  // from 1
};

// Splits "<file>-<record>" at its first "-".
ReferenceSerie Decomposer(const Generation& generation, std::string_view reference) {
  std::size_t tiret = reference.find('-');
  ReferenceSerie r{Trim(reference.substr(0, tiret)), 0};
  if (tiret != std::string_view::npos) r.enregistrement = EntierDe(reference.substr(tiret + 1));
  if (EgalSansCasse(r.fichier, "AL")) r.fichier = "AL" + generation.entites->NumActivite2Chiffres() + "AL";
  return r;
}


// The record, or zeros and blanks when there is no dossier or no such record.
SerieDonnees Lire(const Generation& generation, const ReferenceSerie& r) {
  if (!DossierChoisi(generation.session) || r.enregistrement < 1) return {};
  return LireEnregistrementSerie(generation.Series(), DossierDuSlot(generation.session, 0) + r.fichier + ".DON",
                                 r.enregistrement);
}

// Cuts "!A<year>" off the reference; returns the text behind "!A", or
// std::nullopt when the reference holds none.
std::optional<std::string> CouperAnnee(std::string& reference) {
  std::size_t marque = reference.find("!A");
  if (marque == std::string::npos) return std::nullopt;
  std::string annee = reference.substr(marque + 2);
  reference.resize(marque);
  return annee;
}

void AvertirAnneePrecedente(Generation& generation) {
  generation.messages.PoserQuestion(
      "Norvane",
      "Erreur de conception du modèle de tableau en cours d'interprétation :\n"
      "Une formule de calcul demande à ce que les valeurs d'une ligne débute à NumAnnee-1\n"
      "pour un tableau qui débute déjà à l'année début ! Modifier le modèle.",
      Boutons::Ok, Icone::Exclamation, 0);
}

// "!A-1" takes the year before, unless the table already starts at the
// first study year; any other "!A<n>" fixes the year.
int32_t AnneeDemandee(Generation& generation, const std::string& texte, int16_t annee) {
  int32_t demandee = EntierDe(texte);
  if (demandee != -1) return demandee;
  if (generation.lignes != nullptr && generation.lignes->DebuteAnneeUn()) {
    AvertirAnneePrecedente(generation);
    return annee;
  }
  return annee - 1;
}

void SignalerDossierAbsent(Generation& generation) {
  generation.messages.AfficherMessage(
      "Formules", std::string(kTitreDossierAbsent),
      "Aucun dossier Tervol n'est lié à Norvane : sélectionnez un dossier dans le menu de création des documents "
      "afin de pouvoir récupérer les valeurs des fichiers .DON du dossier ! Merci.",
      "", "");
}

}  // namespace

bool DossierChoisi(const Session& session) {
  return !EstBlanc(session.RepDossier[0]) && !EstBlanc(session.NomDossier[0]);
}

float ValeurLigne(Generation& generation, std::string& reference, int16_t annee) {
  int32_t colonne = annee;
  if (std::optional<std::string> texteAnnee = CouperAnnee(reference)) {
    colonne = AnneeDemandee(generation, *texteAnnee, annee);
  }
  ReferenceSerie r = Decomposer(generation, reference);
  if (!DossierChoisi(generation.session)) {
    SignalerDossierAbsent(generation);
    return 0.0f;
  }
  if (colonne < 0 || colonne > kDerniereColonne) return 0.0f;
  return Lire(generation, r).Valeur[static_cast<std::size_t>(colonne)];
}

std::string LibelleLigne(Generation& generation, std::string& reference) {
  CouperAnnee(reference);
  ReferenceSerie r = Decomposer(generation, reference);
  std::string intitule = Trim(Lire(generation, r).Intitule);
  if (intitule.empty() || intitule[0] == '\0') {
    return Utf8VersCp1252("Enregistrement n°") + std::to_string(r.enregistrement) + " de " + r.fichier;
  }
  return TexteEtudePourRtf(intitule);
}

}  // namespace norvane
