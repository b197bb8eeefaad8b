// One model cell in a row: a label at its place, or a line definition spread
// over the value columns, each column's text made by the line's kind.
#include "tables/AjoutCellule.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "tables/CellulesRtf.h"
#include "tables/ColonnesValeurs.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"
#include "tables/Intitules.h"
#include "tables/LignesNulles.h"
#include "template/Cellules.h"
#include "template/Formules.h"

namespace norvane {
namespace {

constexpr int kCouleurRouge = 6;
// Asset figures by column: "IMMORES.DON+IMMORES-<c>a<numeroSerie>", whose
// "-" stands at index 19.
constexpr std::string_view kReferenceImmo = "IMMORES.DON+IMMORES-";

int16_t Tiret(std::string_view reference) {
  return static_cast<int16_t>(std::min<std::size_t>(reference.find('-'), 32767));
}

// In a one-dossier table a series gives column c of the current dossier; in
// a multi-dossier table the line's year of dossier c.
std::string ValeurSerie(ContexteTableau& contexte, const std::string& reste, int c) {
  ReferenceDecimales r = LireReferenceDecimales(reste);
  const bool multi = contexte.modele.MultiDossier == 1;
  int16_t annee = multi ? contexte.LigneEnCours().NumSerie : static_cast<int16_t>(c);
  const auto dossier = static_cast<int16_t>(multi ? std::clamp(c, 0, 9) : 0);
  return LireSerie(contexte.generation.Series(), r.reference, Tiret(r.reference), annee, r.decimales, dossier);
}

std::string ValeurImmo(ContexteTableau& contexte, const std::string& reste, int c, int16_t numeroSerie) {
  if (numeroSerie == 0) return contexte.tableaux.producteurs.ValeurSpeciale(contexte, "imemp", reste, c);
  int16_t decimales = kDecimalesAuto;
  if (const std::size_t deuxPoints = reste.find(':'); deuxPoints != std::string::npos) {
    decimales = Entier16De(std::string_view(reste).substr(deuxPoints + 1));
  }
  std::string reference = std::string(kReferenceImmo) + std::to_string(c) + "a" + std::to_string(numeroSerie);
  int16_t annee = -1;
  return LireSerie(contexte.generation.Series(), reference, static_cast<int16_t>(kReferenceImmo.size() - 1), annee,
                   decimales, 0);
}

// Heading of column c. In years mode 2 the first and the last column show
// the texts given after the kind ("<start>&<end>").
std::string TexteIntitule(ContexteTableau& contexte, const std::string& reste, const ColonnesValeurs& colonnes,
                          int c) {
  const bool multi = contexte.modele.MultiDossier == 1;
  const std::optional<std::string> sorte = SorteIntitule(reste, multi, colonnes.modeAnnees);
  if (!sorte) {
    const std::size_t deuxPoints = reste.find(':');
    const std::string apres = deuxPoints == std::string::npos ? std::string() : reste.substr(deuxPoints + 1);
    const std::size_t et = apres.find('&');
    std::string texte = et == std::string::npos
                            ? Utf8VersCp1252(c == 1 ? "1ère année de prévision" : "Fin de prévision")
                            : (c == 1 ? apres.substr(0, et) : apres.substr(et + 1));
    return RemplacerTout(texte, "_", " ");
  }
  if (multi) return IntituleDossier(contexte.etat().NomsDossiers[static_cast<std::size_t>(std::clamp(c, 0, 9))], c, *sorte);
  return IntituleAnnee(contexte.generation.session.InfoDossier.DateDebut, c, *sorte, contexte.generation.messages);
}

std::string TexteColonne(ContexteTableau& contexte, const CelluleRtf& cellule, const DefinitionLue& definition,
                         const ColonnesValeurs& colonnes, int c, int16_t numeroSerie, std::string& cellules) {
  const std::string& sorte = definition.sorte;
  ProducteursSpeciaux& producteurs = contexte.tableaux.producteurs;
  if (sorte == "entete") return TexteIntitule(contexte, definition.reste, colonnes, c);
  if (sorte == "serie") return PreparerValeur(contexte, ValeurSerie(contexte, definition.reste, c), cellules, c);
  if (sorte == "totalS" || sorte == "totalC") {
    return PreparerValeur(
        contexte, CalculerFormule(contexte.generation, definition.reste, static_cast<int16_t>(c)), cellules, c);
  }
  if (sorte == "cultu" || sorte == "cultp") {
    return PreparerValeur(contexte, producteurs.ValeurSpeciale(contexte, sorte, definition.reste, c), cellules, 0);
  }
  if (sorte == "scult" || sorte == "scltp" || sorte == "ALani") {
    return PreparerValeur(contexte, producteurs.ValeurSpeciale(contexte, sorte, definition.reste, c), cellules, c);
  }
  if (sorte == "imemp") {
    return PreparerValeur(contexte, ValeurImmo(contexte, definition.reste, c, numeroSerie), cellules, 0);
  }
  return cellule.texte;
}

// The number after the last "\cf" of the cells becomes `couleur`.
void ChangerDerniereCouleur(std::string& cellules, int couleur) {
  const std::size_t cf = cellules.rfind("\\cf");
  if (cf == std::string::npos) return;
  const std::size_t debut = cf + 3;
  const std::size_t fin = std::min(cellules.find('\\', debut), cellules.size());
  cellules.replace(debut, fin - debut, std::to_string(couleur));
}

void AjouterLibelle(ContexteTableau& contexte, const CelluleRtf& cellule, std::string& entete,
                    std::string& cellules, int32_t position) {
  DefinirCellule(cellule, position, contexte.etat().BaseCouleurs, entete, cellules);
  std::string texte = cellule.texte;
  InterpreterCellule(contexte.generation, texte);
  cellules += " " + RemplacerTout(texte, "_", " ") + "}\\cell";
}

}  // namespace

float ValeurDuTexte(std::string_view texte) {
  std::string chiffres;
  for (char c : texte) {
    if (c != ' ' && c != '\xA0') chiffres += c;
  }
  const double valeur = NombreDe(chiffres);
  if (!std::isfinite(valeur) || std::fabs(valeur) > std::numeric_limits<float>::max()) return 0.0f;
  return static_cast<float>(valeur);
}

std::string PreparerValeur(ContexteTableau& contexte, std::string texte, std::string& cellules, int annee) {
  if (EstBlanc(texte)) texte = "0";
  const float valeur = ValeurDuTexte(texte);
  EtatTableaux& etat = contexte.etat();
  if (etat.LigneCourante >= 1 && annee >= 0) etat.Stocker(etat.LigneCourante, annee, valeur);
  if (valeur < 0.0f && contexte.modele.NegatifsRouges == 1) {
    ChangerDerniereCouleur(cellules, etat.BaseCouleurs + kCouleurRouge);
  }
  if (valeur == 0.0f) texte = " ";
  return texte;
}

bool AjouterCellule(ContexteTableau& contexte, std::string_view quinzeChamps, std::string& entete,
                    std::string& cellules, int32_t& position, bool texteFixe, int16_t modeAnnees,
                    int16_t numeroSerie) {
  const CelluleRtf cellule = DecouperCellule(quinzeChamps);
  if (texteFixe) {
    AjouterLibelle(contexte, cellule, entete, cellules, position);
    return true;
  }
  const DefinitionLue definition = LireDefinition(cellule.texte);
  if (!definition.deuxPoints) return false;
  const ColonnesValeurs colonnes =
      CalculerColonnes(contexte.modele, contexte.generation.session.InfoDossier.NbAnEtude, modeAnnees);
  const CellulePreparee preparee = PreparerCellule(cellule, contexte.etat().BaseCouleurs);
  for (int c = colonnes.premiere; c <= colonnes.derniere; ++c) {
    if (!colonnes.Ecrite(c)) continue;
    position += colonnes.largeur;
    EcrireCellule(preparee, position, entete, cellules);
    // The value may recolour the cell just opened, so it is made first.
    const std::string texte = TexteColonne(contexte, cellule, definition, colonnes, c, numeroSerie, cellules);
    cellules += ' ';
    cellules += texte;
    cellules += "}\\cell";
  }
  EtatTableaux& etat = contexte.etat();
  if (colonnes.modeAnnees == 2) {
    for (int c = 2; c < colonnes.nombre; ++c) etat.Stocker(etat.LigneCourante, c, 0.0f);
  }
  if (SuitOptionZeros(definition.sorte)) AppliquerOptionZeros(contexte, definition, colonnes.nombre, cellules);
  return true;
}

}  // namespace norvane
