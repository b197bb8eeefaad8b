#include "tables/RangeeBloc.h"

namespace norvane {

RangeeBloc& RangeeBloc::Cellule(std::string_view texte, int32_t droite, std::string_view alignement,
                                std::optional<int> couleur, bool gras) {
  CelluleRtf cellule = format_;
  cellule.police.alignement = std::string(alignement);
  if (couleur) cellule.police.couleur = *couleur;
  if (gras) cellule.police.drapeaux[0] = true;
  DefinirCellule(cellule, droite, baseCouleurs_, entete_, cellules_);
  cellules_ += " ";
  cellules_ += texte;
  cellules_ += "}\\cell";
  return *this;
}

std::string RangeeBloc::Fermer() const { return entete_ + cellules_ + "\\row\\pard \\plain "; }

CelluleRtf FormatBloc(const std::string& police, const std::string& cadre) {
  CelluleRtf format = DecouperCellule(" ;" + police + ";" + cadre);
  format.bordures[0] = "0";
  return format;
}

}  // namespace norvane
