// What the editor does to the store through its tree: create, delete, move
// and rename models, folders and sub-folders. Each operation changes the list,
// rebuilds the tree and selects the node the editor shows next. Texts typed
// by the user arrive in UTF-8; models hold Windows-1252.
#pragma once

#include <string_view>

#include "frame/Ports.h"
#include "tables/ArbreTableaux.h"
#include "tables/StockTableaux.h"

namespace norvane {

// Adds a model with every default on its 511 lines, rebuilds the tree and
// selects the new node. Returns its 1-based index, also the current model.
int CreerModele(StockTableaux& stock, ArbreTableaux& arbre, const DefautsCellule& defauts = {});

// Deletes what the selected node names:
//   folder "Divers"  refused ("Suppression interdite"), nothing done;
//   other folder     after a Yes, its models move to "Divers" with their sub-folders;
//   sub-folder       after a Yes, its models sit directly in their folder;
//   "tab0"           "Suppression impossible", nothing done;
//   model            after a Yes, it leaves the list and the following ones move up.
// After a deletion the tree is rebuilt and its second node (the first folder,
// or "tab0") is selected. True when the list changed.
bool SupprimerSelection(StockTableaux& stock, ArbreTableaux& arbre, PortMessages& messages);

// The current model goes to the folder, or the sub-folder, typed (trimmed; a
// new name makes a new folder); its node is selected again.
void ChangerDossier(StockTableaux& stock, ArbreTableaux& arbre, std::string_view dossierUtf8);
void ChangerSousDossier(StockTableaux& stock, ArbreTableaux& arbre, std::string_view sousDossierUtf8);
// The current model takes the trimmed name, in the list and in its node.
void RenommerModele(StockTableaux& stock, ArbreTableaux& arbre, std::string_view nomUtf8);

}  // namespace norvane
