// The fonts 5000 to 5156 and the 16 colours that every result document
// carries behind the template's own, so that generated tables can name them
// by number whatever the template holds.
#include "template/TablePolices.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr std::array<std::string_view, kDernierePolice - kPremierePolice + 1> kTablePolices = {
    "Abadi MT Condensed Light", "AGaramond", "AGaramond Bold", "Alleycat ICG", "Andale Mono",
    "Arabic Transparent", "Arial", "Arial Black", "Arial Narrow", "Arial Rounded MT Bold", "Baskerville",
    "Beesknees ITC", "Bernhard Modern Roman", "Binner Gothic", "Boca Raton ICG", "Boca Raton ICG Solid",
    "Book Antiqua", "Bookman Old Style", "Botanical", "Bradley Hand ITC", "Brush Script", "Brush Script MT",
    "Calisto MT", "Centaur", "Century Gothic", "Century Schoolbook", "Chilada ICG Cuatro", "Chilada ICG Dos",
    "Chilada ICG Tres", "Chilada ICG Uno", "Comic Sans MS", "Copperplate Gothic Bold",
    "Copperplate Gothic Light", "Copperplate31ab", "Copperplate33bc", "Courier", "Courier New", "Curlz MT",
    "David", "David Transparent", "Decotura ICG", "Decotura ICG Inline", "Elephant", "Eras Bold ITC",
    "Eras Demi ITC", "Eras Light ITC", "Eras Medium ITC", "Eras Ultra ITC", "Fajita ICG Mild",
    "Fajita ICG Picante", "fixed", "Fixed Miriam Transparent", "Fixedsys", "Franklin Gothic Condensed",
    "Franklin Gothic No.2", "Garamond", "Georgia", "Gill Sans", "Gill Sans Condensed", "Gill Sans Ultra Bold",
    "Goudy", "GulimChe", "Haettenschweiler", "HM Phonetic", "Impact", "Juice ITC", "Letter Gothic",
    "Litterbox ICG", "Lotus Postal Barcode", "LotusWP Box", "LotusWP Icon", "LotusWP Int A", "LotusWP Int B",
    "LotusWP Type", "Lucida Console", "Lucida Handwriting", "Lucida Sans", "Lucida Sans Unicode", "Lydian",
    "Marlett", "Math A", "Math B", "Math C", "Matisse ITC", "MingLiU", "Mini Pics Art Jam", "Mini Pics Classic",
    "Mini Pics Lil Critters", "Mini Pics Lil Edibles", "Mini Pics Lil Events", "Mini Pics Lil Stuff",
    "Mini Pics Lil Vehicles", "Mini Pics Red Rock", "Miriam", "Miriam Fixed", "Miriam Transparent", "Modern",
    "Monotype Corsiva", "Monotype Sorts", "MS Gothic", "MS Hei", "MS Outlook", "MS Sans Serif", "MS Serif",
    "MS Song", "Myriad Roman", "News Gothic", "News Gothic Condensed", "News Gothic MT", "Nimrod",
    "NuptialScript", "OCR A Extended", "OCRA", "Onyx", "OpenSymbol", "Paisley ICG 01", "Paisley ICG 01 Alt",
    "Paisley ICG 02", "Paisley ICG 02 Alt", "Park Avenue", "Perpetua", "Photina Casual Black", "Prestige Elite",
    "Rockwell", "Rockwell Condensed", "Rockwell Extra Bold", "Rockwell Light", "Rod", "Saturday Sans ICG",
    "Small Fonts", "Snap ITC", "Stencil", "Symbol", "System", "Tahoma", "Tekton", "Tempus Sans ITC", "Terminal",
    "Times New Roman", "Traditional Arabic", "Trajan", "Trebuchet MS", "Ultra Condensed Sans One",
    "Ultra Condensed Sans Two", "VAG Rounded Light", "VAG Rounded Thin", "Verdana", "Viner Hand ITC",
    "Webdings", "Westminster", "Whimsy ICG", "Whimsy ICG Heavy", "Wide Latin", "Wingdings", "Wingdings 2",
    "Wingdings 3", "Wonton ICG"};
static_assert(kTablePolices[6] == "Arial" && kTablePolices.back() == "Wonton ICG");

constexpr std::string_view kPoliceParDefaut = "Arial";
constexpr std::string_view kNumeroParDefaut = "5006";

constexpr std::string_view kCouleursAjoutees =
    "\\red0\\green0\\blue0;\\red0\\green0\\blue255;\\red0\\green255\\blue255;\\red0\\green255\\blue0;"
    "\\red255\\green0\\blue255;\\red255\\green0\\blue0;\\red255\\green255\\blue0;\\red255\\green255\\blue255;"
    "\\red0\\green0\\blue128;\\red0\\green128\\blue128;\\red0\\green128\\blue0;\\red128\\green0\\blue128;"
    "\\red128\\green0\\blue0;\\red128\\green128\\blue0;\\red128\\green128\\blue128;\\red192\\green192\\blue192";

// "{\f5000\fnil Abadi MT Condensed Light;}{\f5001\fnil AGaramond;}..."
const std::string& EntreesPolices() {
  static const std::string entrees = [] {
    std::string t;
    for (int numero = kPremierePolice; numero <= kDernierePolice; ++numero) {
      t += "{\\f" + std::to_string(numero) + "\\fnil ";
      t += NomPolice(numero);
      t += ";}";
    }
    return t;
  }();
  return entrees;
}

}  // namespace

std::string NomPolice(int numero) {
  if (numero < kPremierePolice || numero > kDernierePolice) return std::string(kPoliceParDefaut);
  return std::string(kTablePolices[static_cast<std::size_t>(numero - kPremierePolice)]);
}

std::string NumeroPolice(const std::string& nom) {
  for (std::size_t i = 0; i < kTablePolices.size(); ++i) {
    if (kTablePolices[i] == nom) return std::to_string(kPremierePolice + static_cast<int>(i));
  }
  return std::string(kNumeroParDefaut);
}

void EtendrePolices(MorceauCourant& morceau, RecherchesTables& recherches) {
  constexpr std::size_t kMot = 9;  // "{\fonttbl"
  const std::size_t p = morceau.Trouver(recherches.polices);
  if (p != std::string::npos) morceau.Retoucher(p + kMot, p + kMot, EntreesPolices());
}

// The template's colours are counted by their ";\" separators, from the
// table's start to the end of the piece. The program's colours go behind the
// table's last ";", followed again by ";}", so the table keeps a terminated
// last entry: "{\colortbl;" + colours + ";}" for an empty table.
void EtendreCouleurs(MorceauCourant& morceau, RecherchesTables& recherches, int16_t& prochaineCouleur) {
  const std::size_t debut = morceau.Trouver(recherches.couleurs);
  if (debut == std::string::npos) return;
  const std::size_t fin = morceau.TrouverDepuis(recherches.finCouleurs, debut);
  if (fin == std::string::npos) return;
  const std::size_t nombre = std::min<std::size_t>(morceau.Compter(recherches.separateurs, debut), 32767);
  prochaineCouleur = static_cast<int16_t>(std::min<int>(prochaineCouleur + static_cast<int>(nombre), 32767));
  static const std::string ajout = std::string(kCouleursAjoutees) + ";";
  morceau.Retoucher(fin + 1, fin + 1, ajout);
}

void EtendrePolices(std::string& texte) {
  MorceauCourant morceau;
  morceau.Charger(std::move(texte));
  RecherchesTables recherches;
  EtendrePolices(morceau, recherches);
  texte = morceau.Reste();
}

void EtendreCouleurs(std::string& texte, int16_t& prochaineCouleur) {
  MorceauCourant morceau;
  morceau.Charger(std::move(texte));
  RecherchesTables recherches;
  EtendreCouleurs(morceau, recherches, prochaineCouleur);
  texte = morceau.Reste();
}

}  // namespace norvane
