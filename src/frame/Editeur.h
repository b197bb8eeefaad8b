// The binding to a word processor, without windows: the path held in
// Options::CheminEditeur (Windows-1252, like every text of the settings), the
// lower-case executable name every driver dispatch turns on, and the name
// shown to the user.
//
// On Linux the path is kept as it can be run: it is trimmed, and a trailing
// separator (as saved by installations that normalised it to end in "\") is
// dropped rather than added. NomEditeur ignores a trailing separator, so both
// forms give the same name.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Options.h"
#include "frame/Ports.h"
#include "frame/Session.h"

namespace norvane {

inline constexpr const char* kTitreChoixEditeur = "Choix d'un éditeur de texte pour Norvane";

// Last path component of the path in lower case ("/usr/bin/soffice" gives
// "soffice", "C:\Office\WINWORD.EXE\" gives "winword.exe"); "" when none.
std::string NomEditeur(std::string_view cheminEditeur);
// NomEditeur of the bound editor (Options::CheminEditeur).
std::string NomEditeur(const Options& options);
// True for the executables served by the OpenOffice driver: "soffice",
// "soffice.bin", "libreoffice" and "soffice.exe".
bool EstDriverOpenOffice(std::string_view nomEditeur);

// The name shown for a path (UTF-8): "Aucun" when blank, else the file name
// without a final ".exe", first letter up and the rest down, with the known
// word processors under their product names ("Winword" is "Microsoft Word").
std::string NomAffichageEditeur(std::string_view chemin);
// CheminEditeur := trimmed `chemin`; returns its display name.
std::string AfficherEditeur(Options& options, std::string_view chemin);

struct VerificationEditeur {
  bool choixNecessaire = false;  // no editor bound: the choice window must open
  std::string affichage;         // display name when one is bound
};
// Normalises a bound path (trimmed, trailing separators dropped) and gives its
// display name, or says that the choice window is needed.
VerificationEditeur VerifierEditeur(Options& options);

// Binds `chemin` (Windows-1252): warns when it is blank but goes on, so a blank
// path unbinds the editor; stores it trimmed and saves the settings. A path
// the settings cannot hold is refused with a message, and the old binding
// stays. Returns the display name of the editor bound.
std::string ValiderEditeur(SessionCadre& session, std::string_view chemin, PortMessages& messages);

// A file chosen by hand made an ".exe": a three-letter extension is replaced,
// any other name gets ".exe" appended; a blank name is returned unchanged.
std::string CompleterExe(std::string_view nomFichier);

// Box "Popup d'aide au démarrage": ticked (1) shows the start-up window.
void ChoisirPopup(Options& options, int coche);
// The stored value of "Conversion DOC avec OpenOffice": 1 means on.
int16_t OptimisationOOoActive(const Options& options);

}  // namespace norvane
