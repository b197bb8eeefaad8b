// The store of graph models: the 50 slots held in memory, the file graph.txt
// of ModelGraph/ (records of 1224 bytes, record n is slot n, no header), and
// the tree of models that the editor and the command line show.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Ports.h"
#include "graphs/ModeleGraphique.h"
#include "study/Catalogues.h"

namespace norvane {

inline constexpr int kNombreSlotsGraphiques = 50;
inline constexpr char kFichierGraphiques[] = "graph.txt";

struct StockGraphiques {
  // Slots 1 to 50 (index 0 is slot 1).
  std::array<ModeleGraphique, kNombreSlotsGraphiques> TabGraphiques;
  int16_t NbGraphiques = 0;      // slots in use
  int16_t GraphiqueCourant = 0;  // the slot in hand; 0: none
  // Records of the file behind the 50th, kept as read and written back
  // behind the slots, so that a longer file loses nothing.
  std::string Surplus;

  // Slot n (1 to 50); n is held to that range.
  ModeleGraphique& Slot(int n);
  const ModeleGraphique& Slot(int n) const;
};

// <RepModelGraph>graph.txt.
std::string CheminGraphiques(const std::string& repModelGraph);

// Creates the folder when it is missing, then reads graph.txt: the number of
// models is the file's length over 1224 rounded to the nearest whole number;
// a last record cut short keeps, behind its end, what its slot held. An
// absent file is an empty store. A file of more than 50 models: the first 50
// are loaded, the rest kept in Surplus, and `messages` says so.
void ChargerGraphiques(StockGraphiques& stock, const std::string& repModelGraph, PortMessages& messages);

// The same from the bytes of a graph.txt.
void ChargerGraphiquesOctets(StockGraphiques& stock, std::string_view octets, PortMessages& messages);

// The bytes of graph.txt for the store as it stands: slots 1 to NbGraphiques,
// then Surplus.
std::string OctetsGraphiques(const StockGraphiques& stock);

// Makes the titles unique ("T", "T2", "T3"; cut at 60 characters), then
// rewrites graph.txt whole through a temporary file. False when it cannot be
// written; the old file is then left as it was.
bool SauverGraphiques(StockGraphiques& stock, const std::string& repModelGraph);

// The step of SauverGraphiques that makes the titles of slots 1 to
// NbGraphiques unique: each later slot whose trimmed title equals the trimmed
// title of an earlier one gets that text followed by 2, 3...
void RendreTitresUniques(StockGraphiques& stock);

// Takes the next slot, sets the defaults of a new model in it (every other
// field keeps what the slot held) and makes it the GraphiqueCourant. With 50
// models already: `messages` says so, nothing changes, and it returns false.
bool AjouterGraphique(StockGraphiques& stock, PortMessages& messages);

// Removes the GraphiqueCourant: later slots move up one place, the slot past
// the last comes down onto it (a blank model past the 50th). The current
// model becomes the one of the same number, or the last. False when there is
// no current model.
bool SupprimerGraphique(StockGraphiques& stock);

// Adds the model of a code met in a document, as the help panel recovers it:
// the body of `code` ("gph(...)", as a template holds it) is cleaned and read
// into the next slot behind "Récupéré: ", so that the title carries that
// prefix, and that slot becomes the GraphiqueCourant. A faulty body is
// reported and kept as far as it was read. With 50 models already: `messages`
// says so and nothing changes. The caller saves the store.
bool RecupererGraphique(StockGraphiques& stock, const std::string& code, PortMessages& messages);

// The tree of models, parents first (texts Windows-1252):
//
//   node      key              image              text
//   root      "Racine"         "RepWinTervol"     "Graphiques"
//   model     "graph" + slot   "graph" + TypeGraph the trimmed title, or "Sans titre"
//   no model  "graph0"         "Vide"             "Aucun enregistrement"
//
// The root is shown unfolded.
std::vector<NoeudArbre> RemplirArbreGraphiques(const StockGraphiques& stock);

// Number of the model of a node: the whole number behind the first five
// characters of its key ("graph12" gives 12); 0 for the node of an empty tree.
int NumeroGraphiqueDeCle(const std::string& cle);

}  // namespace norvane
