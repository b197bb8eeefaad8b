#include "cerfa/TableCerfa.h"

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "study/Series.h"
#include "tables/AjoutCellule.h"
#include "tables/BlocsImmoEmprunts.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"

namespace norvane {
namespace {

constexpr int kCouleurTexte = 1;
constexpr int kCouleurRouge = 6;
constexpr char kBordSimple[] = "1";
constexpr char kSansBord[] = "0";

// IMMORES.DON+IMMORES-<c>a<line>: its "-" at index 19; PDE.DON+PDE-1a<n>:
// its "-" at index 11.
constexpr std::string_view kReferenceImmo = "IMMORES.DON+IMMORES-";
constexpr std::string_view kReferencePde = "PDE.DON+PDE-";

float LireValeur(const TableCerfa& table, std::string reference, std::size_t tiret) {
  int16_t annee = -1;
  int16_t decimales = table.decimales;
  const std::string texte = LireSerie(table.contexte.generation.Series(), reference, static_cast<int16_t>(tiret),
                                      annee, decimales, 0);
  return ValeurDuTexte(texte);
}

}  // namespace

RangeeBloc TableCerfa::Rangee(bool haut, bool bas, bool cotes) const {
  // The form draws every column between two vertical rules; only the
  // padding rows leave out horizontal ones.
  CelluleRtf cellule = format;
  cellule.bordures = {haut ? kBordSimple : kSansBord, bas ? kBordSimple : kSansBord, cotes ? kBordSimple : kSansBord,
                       cotes ? kBordSimple : kSansBord};
  return RangeeBloc(cellule, contexte.etat().BaseCouleurs, debut);
}

std::string TableCerfa::Montant(double valeur) const {
  return FormatNombre(static_cast<float>(valeur), decimales, true);
}

int TableCerfa::Couleur(double valeur) const {
  return valeur < 0 && contexte.modele.NegatifsRouges == 1 ? kCouleurRouge : kCouleurTexte;
}

float TableCerfa::SerieImmo(int c, int ligne) const {
  return LireValeur(*this, std::string(kReferenceImmo) + std::to_string(c) + "a" + std::to_string(ligne),
                    kReferenceImmo.size() - 1);
}

float TableCerfa::SeriePde(int ligne) const {
  return LireValeur(*this, std::string(kReferencePde) + "1a" + std::to_string(ligne), kReferencePde.size() - 1);
}

TableCerfa OuvrirTableCerfa(ContexteTableau& contexte, const std::string& debutLigne) {
  const LigneTableau& ligne = contexte.LigneEnCours();
  const DefinitionLue definition = LireDefinition(ligne.Definition.Texte);
  const ReferenceDecimales lu = LireReferenceDecimales(definition.reste);
  CelluleRtf format = DecouperCellule(" ;" + ligne.Definition.Police + ";" + ligne.Definition.Cadre);
  return TableCerfa{contexte, format, DebutLigneSerree(debutLigne), lu.decimales};
}

std::string BourrageCerfa(const TableCerfa& table, int lignesImprimees, std::span<const int32_t> bords) {
  const int groupes = lignesImprimees >= kLignesCorpsCerfa ? 0 : (kLignesCorpsCerfa - lignesImprimees) / 3;
  std::string rtf;
  for (int g = 0; g < groupes; ++g) {
    for (int r = 0; r < 3; ++r) {
      RangeeBloc rangee = table.Rangee(r == 0, r == 2);
      for (int32_t bord : bords) rangee.Cellule("", bord, "c");
      rtf += rangee.Fermer();
    }
  }
  return rtf;
}

std::string TexteCerfa(std::string_view utf8) { return Utf8VersCp1252(std::string(utf8)); }

}  // namespace norvane
