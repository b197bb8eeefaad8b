// The producers of ordinary rows, of the paragraphs between rows, and of the
// premium summaries.
#include "tables/AjoutCellule.h"
#include "tables/LignesRtf.h"

#include <algorithm>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "tables/CellulesRtf.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"
#include "template/Cellules.h"

namespace norvane {
namespace {

constexpr std::string_view kFinLigne = "\\row\\pard\\plain ";

std::string QuinzeChamps(const std::string& texte, const CelluleTableau& cellule) {
  return texte + ";" + cellule.Police + ";" + cellule.Cadre;
}

int NombreColonnes(const ModeleTableau& modele) { return std::clamp<int>(modele.NbColonnes, 0, kColonnesMax); }

// A cell text left from a faulty code is shown to the user.
void SignalerCodeRestant(Generation& generation, const std::string& cellules) {
  if (cellules.find("chatXXX") == std::string::npos) return;
  generation.messages.AfficherMessage("GestTableau", "Norvane", Cp1252VersUtf8(cellules), "", "seule");
}

// The premium records of an item: "pricv" crops for sale, "pricf" fodder
// crops, "pricm" market garden crops.
std::pair<int, int> EnregistrementsPrimes(std::string_view item) {
  if (item == "pricv") return {1, 21};
  if (item == "pricf") return {23, 43};
  if (item == "pricm") return {45, 65};
  return {1, 0};
}

}  // namespace

namespace {

// The row of the line in hand; `premierLibelle`, when given, replaces the
// text of its first label cell.
std::string Ligne(ContexteTableau& contexte, const std::string& entete, const std::string* premierLibelle) {
  const LigneTableau& ligne = contexte.LigneEnCours();
  std::string debut = entete;
  std::string cellules;
  int32_t position = 0;
  for (int k = 0; k < NombreColonnes(contexte.modele); ++k) {
    const CelluleTableau& cellule = ligne.Cellules[static_cast<std::size_t>(k)];
    std::string texte = TrimDroite(cellule.Texte);
    if (k == 0 && premierLibelle != nullptr) {
      texte = *premierLibelle;
    } else if (k == 0 && CommencePar(ligne.Definition.Texte, "scult") && contexte.modele.StyleTitre == 1) {
      texte = contexte.tableaux.producteurs.LibelleSerieCulture(contexte,
                                                               contexte.generation.entites->NomCultureCourante());
    }
    position += contexte.modele.Largeurs[static_cast<std::size_t>(k)];
    AjouterCellule(contexte, QuinzeChamps(texte, cellule), debut, cellules, position, true, 0, 0);
  }
  if (!AjouterCellule(contexte, QuinzeChamps(ligne.Definition.Texte, ligne.Definition), debut, cellules, position,
                      false, contexte.modele.ModeAnnees, 0)) {
    return kValeursNulles;
  }
  if (cellules == kValeursNulles) return cellules;
  SignalerCodeRestant(contexte.generation, cellules);
  debut += cellules;
  debut += kFinLigne;
  return debut;
}

}  // namespace

std::string LigneOrdinaire(ContexteTableau& contexte, const std::string& entete) {
  return Ligne(contexte, entete, nullptr);
}

std::string LigneOrdinaire(ContexteTableau& contexte, const std::string& entete, const std::string& premierLibelle) {
  return Ligne(contexte, entete, &premierLibelle);
}

std::string LigneEspace(ContexteTableau& contexte) {
  const CelluleTableau& cellule = contexte.LigneEnCours().Cellules[0];
  std::string texte = RemplacerTout(TrimDroite(cellule.Texte), "_", " ");
  InterpreterCellule(contexte.generation, texte);
  return FormatParagraphe(LirePolice(cellule.Police), contexte.etat().BaseCouleurs) + " " + texte + "\\par\\plain ";
}

// "prime:<item><tail>": one row per premium record of the item, its labels
// the record's label, its values the record's series; the tail's second
// character is the number of decimals. Labels and values take the formats of
// the line's cells and definition.
std::string LignesPrimes(ContexteTableau& contexte, const std::string& entete) {
  const LigneTableau& ligne = contexte.LigneEnCours();
  const std::string_view definition = ligne.Definition.Texte;
  const std::string_view item = definition.substr(std::min<std::size_t>(6, definition.size()), 5);
  const std::string queue(definition.substr(std::min<std::size_t>(11, definition.size())));
  const auto [premier, dernier] = EnregistrementsPrimes(item);
  std::string lignes;
  for (int i = premier; i <= dernier; ++i) {
    std::string debut = entete;
    std::string cellules;
    int32_t position = 0;
    for (int k = 0; k < NombreColonnes(contexte.modele); ++k) {
      std::string code = "pricult.don+pricult-i" + std::to_string(i);
      int16_t annee = -1;
      int16_t decimales = -1;
      const std::string libelle =
          Trim(LireSerie(contexte.generation.Series(), code, static_cast<int16_t>(code.find('-')), annee, decimales, 0));
      position += contexte.modele.Largeurs[static_cast<std::size_t>(k)];
      AjouterCellule(contexte, QuinzeChamps(libelle, ligne.Cellules[static_cast<std::size_t>(k)]), debut, cellules,
                     position, true, 0, 0);
    }
    const std::string serie = "serie:pricult.don+pricult-" + std::to_string(i) + queue;
    AjouterCellule(contexte, QuinzeChamps(serie, ligne.Definition), debut, cellules, position, false,
                   contexte.modele.ModeAnnees, 0);
    if (cellules != kValeursNulles) lignes += debut + cellules + std::string(kFinLigne);
  }
  return lignes;
}

}  // namespace norvane
