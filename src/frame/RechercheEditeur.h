// The search of the disk for the word processors, and the state of the choice
// window that follows from it. The walk is breadth-first with a queue of
// folders; it shows its progress, lets the user stop it, skips folders that
// cannot be read and never enters a folder twice (so symbolic-link loops end).
#pragma once

#include <array>
#include <string>
#include <vector>

#include "frame/Options.h"
#include "frame/Ports.h"

namespace norvane {

// Where the walk starts on Linux: the folders of PATH, then /usr/lib, /opt,
// /usr/local and the user's home folder, each once.
std::vector<std::string> DossiersDepartRecherche();

// Looks for a file named `nomFichier` (any case) from the folders `departs`.
// Gauge: 10 at the start, 5 more per folder while below 90, 100 at the end.
// Returns the folder (ending with "/") followed by the name found, or "" when
// nothing was found or the user stopped the search (then the message
// "Recherche de <nom> annulée." is shown).
std::string ChercherEditeur(const std::string& nomFichier, PortProgression& progression, PortMessages& messages,
                            const std::vector<std::string>& departs);
// The same for several names of one program in one walk; a name earlier in
// the list wins within a folder. The texts name the first.
std::string ChercherEditeur(const std::vector<std::string>& noms, PortProgression& progression,
                            PortMessages& messages, const std::vector<std::string>& departs);

// Paths found by the last detection; only valid while the choice window is open.
struct EditeursTrouves {
  std::string CheminWinword;
  std::string CheminWordpro;
  std::string CheminSoffice;

  const std::string& Chemin(int option) const;  // 0 Word, 1 Word Pro, 2 OpenOffice
};

// Three walks, in this order: "winword.exe", "wordpro.exe", then "soffice" or
// "libreoffice" (also "soffice.exe") for the OpenOffice slot. Stopping one
// walk only skips that editor.
EditeursTrouves DetecterEditeurs(PortProgression& progression, PortMessages& messages,
                                 const std::vector<std::string>& departs);

// What the choice window shows once the detection is done.
struct EtatChoixEditeur {
  std::array<bool, 3> actif{};     // OptionEditeur(i) enabled: a path was found for it
  std::array<bool, 3> coche{};     // its path is the bound one
  bool optimisationActive = false;  // checkOptimisationOOo enabled: OpenOffice was found
  bool optimisationCochee = false;
  std::string cheminAffiche;  // lblPathEditeur: the trimmed CheminEditeur
};
EtatChoixEditeur EtatFenetreChoix(const EditeursTrouves& trouves, const Options& options);
// Options set by a change of the path shown: each whose found path is that
// path, compared in the normal form of AjouterAntislash.
std::array<bool, 3> OptionsPourChemin(const EditeursTrouves& trouves, const std::string& chemin);

}  // namespace norvane
