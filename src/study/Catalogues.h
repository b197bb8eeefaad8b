// Catalogues (.CFG in Datacfg/): which series a theme file holds, under which
// titles and groups. They feed the series trees of the choice dialogs.
//
// .CFG files are fixed records of 118 bytes; record 1 is the head (see
// Catalogues.cpp for the layout). RES.CFG describes RES.DON.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/LecteurBinaire.h"

namespace norvane {

constexpr std::size_t kLongueurEntreeCatalogue = 118;

// Texts kept as the Windows-1252 bytes of the file, with their padding.
struct EntreeCatalogue {
  std::string CodeCatalogue;
  std::string Intitule;
  std::string Groupe1;
  std::string Groupe2;
  int16_t Sorte = 0;
  int16_t Reserve116 = 0;
};

bool LireEntreeCatalogue(LecteurBinaire& lecteur, EntreeCatalogue& entree);
// Every whole record of the bytes of a catalogue file.
std::vector<EntreeCatalogue> LireCatalogue(std::string_view octets);

// One node of a series tree, in the order a tree control is filled: a parent
// always comes before its children. Texts and keys are Windows-1252.
struct NoeudArbre {
  std::string cle;
  std::string texte;
  std::string image;      // "rep" for the head and groups, "puce" for a series
  std::string cleParent;  // empty for a node at the top
};

// The tree of a catalogue. `catalogue` is a file name ("RES.CFG"), found in
// `repDatacfg`, or a path. The head node is keyed by the catalogue's name
// ("RES"), group nodes by that name, "-" and the group titles, and each series
// by the .DON name, "+" and its code up to ":" ("RES.DON+RES-17"). RESSUP.CFG
// has no head node. A missing or empty catalogue gives no node.
std::vector<NoeudArbre> RemplirArbreSeries(const std::string& catalogue, const std::string& repDatacfg);

}  // namespace norvane
