#include "tables/CellulesRtf.h"

#include <charconv>
#include <cmath>
#include <vector>

#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr std::array<std::string_view, 5> kMotsDrapeaux = {"\\b", "\\i", "\\ul", "\\strike", "\\shad"};
constexpr std::array<char, 4> kCotes = {'t', 'b', 'l', 'r'};
constexpr int kPremierePoliceProgramme = 5000;

std::vector<std::string_view> Champs(std::string_view texte) {
  std::vector<std::string_view> champs;
  std::size_t debut = 0;
  for (std::size_t p; (p = texte.find(';', debut)) != std::string_view::npos; debut = p + 1) {
    champs.push_back(texte.substr(debut, p - debut));
  }
  champs.push_back(texte.substr(debut));
  return champs;
}

std::string_view Champ(const std::vector<std::string_view>& champs, std::size_t n) {
  return n < champs.size() ? champs[n] : std::string_view();
}

// An integer of a format field, kept within a range that sums safely.
int EntierChamp(std::string_view champ) {
  const int32_t n = EntierDe(champ);
  return n > 1000000 ? 1000000 : (n < -1000000 ? -1000000 : static_cast<int>(n));
}

PoliceRtf PoliceDesChamps(const std::vector<std::string_view>& champs, std::size_t premier) {
  PoliceRtf p;
  const int police = EntierChamp(Champ(champs, premier));
  p.police = police < kPremierePoliceProgramme ? kNumeroPoliceParDefaut : police;
  const double taille = NombreDe(Champ(champs, premier + 1));
  p.taille = std::isfinite(taille) ? std::fmin(std::fmax(taille, -10000.0), 10000.0) : 0.0;
  p.couleur = EntierChamp(Champ(champs, premier + 2));
  for (std::size_t i = 0; i < p.drapeaux.size(); ++i) p.drapeaux[i] = Champ(champs, premier + 3 + i) == "1";
  p.alignement = std::string(Champ(champs, premier + 8));
  return p;
}

std::string Drapeaux(const PoliceRtf& police) {
  std::string r;
  for (std::size_t i = 0; i < kMotsDrapeaux.size(); ++i) {
    if (police.drapeaux[i]) r += kMotsDrapeaux[i];
  }
  return r;
}

int DemiPoints(double taille) { return static_cast<int>(std::trunc(taille)) * 2; }

}  // namespace

PoliceRtf LirePolice(std::string_view texteSepare, std::size_t premier) {
  return PoliceDesChamps(Champs(texteSepare), premier);
}

CelluleRtf DecouperCellule(std::string_view quinzeChamps) {
  const std::vector<std::string_view> champs = Champs(quinzeChamps);
  CelluleRtf c;
  c.texte = std::string(Champ(champs, 0));
  if (c.texte.empty()) c.texte = " ";
  c.police = PoliceDesChamps(champs, 1);
  for (std::size_t i = 0; i < c.bordures.size(); ++i) c.bordures[i] = std::string(Champ(champs, 10 + i));
  c.fond = EntierChamp(Champ(champs, 14));
  return c;
}

int DemiPointsCellule(double taille) {
  const int demiPoints = DemiPoints(taille);
  return demiPoints == 0 ? 16 : demiPoints;
}

CellulePreparee PreparerCellule(const CelluleRtf& cellule, int32_t baseCouleurs) {
  CellulePreparee p;
  for (std::string_view trait : {std::string_view("1"), std::string_view("2")}) {
    for (std::size_t i = 0; i < kCotes.size(); ++i) {
      if (cellule.bordures[i] != trait) continue;
      p.definition += " \\clbrdr";
      p.definition += kCotes[i];
      p.definition += trait == "1" ? "\\brdrs" : "\\brdrdb";
    }
  }
  p.definition += "\\clvertalc\\clcbpat" + std::to_string(cellule.fond + baseCouleurs) + "\\cellx";
  const PoliceRtf& police = cellule.police;
  p.ouverture = "\\q" + police.alignement + "\\intbl\\clvertalb{\\fs" + std::to_string(DemiPointsCellule(police.taille)) +
                "\\f" + std::to_string(police.police) + "\\cf" + std::to_string(police.couleur + baseCouleurs) +
                Drapeaux(police);
  return p;
}

void EcrireCellule(const CellulePreparee& cellule, int32_t position, std::string& entete, std::string& cellules) {
  char chiffres[16];
  const auto fin = std::to_chars(chiffres, chiffres + sizeof chiffres, position).ptr;
  entete += cellule.definition;
  entete.append(chiffres, fin);
  cellules += cellule.ouverture;
}

void DefinirCellule(const CelluleRtf& cellule, int32_t position, int32_t baseCouleurs, std::string& entete,
                    std::string& cellules) {
  EcrireCellule(PreparerCellule(cellule, baseCouleurs), position, entete, cellules);
}

std::string FormatParagraphe(const PoliceRtf& police, int32_t baseCouleurs) {
  return "\\q" + police.alignement + "\\f" + std::to_string(police.police) + "\\fs" +
         std::to_string(DemiPoints(police.taille)) + "\\cf" + std::to_string(police.couleur + baseCouleurs) +
         Drapeaux(police);
}

}  // namespace norvane
