// The store of table models, tableaux.txt: a Windows-1252 text, CR LF, with
// no header, no count and no version. Each model takes three lines:
//
//   [Nom][DossierTableau][SousDossierTableau]
//   #tvl(<body of the code, see CodeTableau.h>)#
//   <empty line>
//
// A line that does not start with "[" is skipped while looking for the next
// model. A model whose second line is not "#tvl(...)#", or whose code cannot
// be read, ends the reading: what was read stays.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "frame/Ports.h"
#include "frame/Resultat.h"
#include "tables/ModeleTableau.h"

namespace norvane {

inline constexpr char kNomStockTableaux[] = "tableaux.txt";
inline constexpr char kDossierCopiesAjouts[] = "Copies - Ajouts";

// The list of models and the file it came from. `courant` is the model in
// hand in the editor, 1-based (0: none), as the keys of the tree count them.
struct StockTableaux {
  std::vector<ModeleTableau> modeles;
  std::string chemin;
  int courant = 0;
};

// Decodes the bytes of a store into `stock.modeles`, which it replaces. With
// `avecLignes` false only each model's header is read (the transfer tool's
// list); the lines keep their defaults. A reading that stops keeps the models
// read so far, and its error names the model being read (as the record), the
// byte offset and the line (from 1) where it stopped, and why (French, UTF-8).
Resultat<void> LireStockTableaux(std::string_view octets, bool avecLignes, StockTableaux& stock);
// Reads the file (found without regard to case) into `stock`, and sets its
// path; an error also names the file (UTF-8). A missing or empty file gives an
// empty list and no error.
Resultat<void> ChargerTableaux(const std::string& chemin, bool avecLignes, StockTableaux& stock);

// The three lines of one model. `indice` is its 1-based number, named by the
// warning of an incomplete definition; `messages` null writes silently.
std::string TexteModeleStock(const ModeleTableau& modele, int indice, PortMessages* messages,
                             const DefautsCellule& defauts = {});

// Rewrites the whole file from the list, through a temporary file renamed
// over it. Empty formats are repaired in the list as they are written.
// Silent (the automatic save): a model with an empty definition is stored as
// "#tvl()#". Otherwise each such model is told through `messages`. False
// when the file cannot be written (the old one is then left whole).
bool SauverTableaux(StockTableaux& stock, bool silencieux, PortMessages& messages,
                    const DefautsCellule& defauts = {});

// Appends one model to another store (made when missing), in its own folder
// or in "Copies - Ajouts" when `versCopiesAjouts`.
bool AjouterTableauAuFichier(const std::string& chemin, const ModeleTableau& modele, int indice,
                             bool versCopiesAjouts, PortMessages& messages, const DefautsCellule& defauts = {});

// Loads that store with its lines, removes model `indice` (1-based), saves it
// and tells the user. False, with nothing done, when there is no such model
// or the file cannot be written.
bool SupprimerTableauDuFichier(int indice, const std::string& chemin, PortMessages& messages,
                               const DefautsCellule& defauts = {});

// The store the editor works on: <repNorvane>tableaux.txt, or with total
// access (`accesTotal` -1) and a Yes to "Gérer les tableaux du PDE Cerfa ?",
// <repNorvane>PDE/tableaux.txt.
std::string ChoisirFichierTableaux(const std::string& repNorvane, int16_t accesTotal, PortMessages& messages);

}  // namespace norvane
