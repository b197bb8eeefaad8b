// The settings file Editeur.svg, in the Norvane folder: the user's preferences
// and the first six dossier slots. Its layout is kept byte for byte, so that
// the file can be exchanged with existing installations (see Parametres.cpp).
//
// Texts are kept as the file's Windows-1252 bytes, in memory as on disk: no
// conversion is made when loading or saving.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "frame/Options.h"
#include "frame/Resultat.h"
#include "frame/Session.h"

namespace norvane {

inline constexpr const char* kNomFichierParametres = "Editeur.svg";
inline constexpr const char* kFormatLigneParDefaut = "1;1;1;1;8";

// Everything Editeur.svg holds.
struct ContenuParametres {
  Options options;
  std::array<std::string, 6> RepDossier;
  std::array<std::string, 6> NomDossier;
};

// Decodes the bytes of the file. A file shorter than 2 bytes gives the
// defaults; a field that is cut short or damaged keeps its default. The
// SansAnnotation read is always replaced by 1.
ContenuParametres DecoderParametres(std::string_view octets);
// Encodes the whole file into `octets`. When a text does not fit its record
// (126 bytes), fails with the French text and that record, and leaves
// `octets` empty.
Resultat<void> EncoderParametres(const ContenuParametres& contenu, std::string& octets);

// Loads <repNorvane>/Editeur.svg, creating the folder and an empty file when
// they are missing. A missing and an empty file both give the defaults.
ContenuParametres ChargerParametres(const std::string& repNorvane);
// Rewrites <repNorvane>/Editeur.svg whole, through a temporary file renamed
// over it, creating the folder when it is missing. On error (text too long,
// disk), fails with the French text and leaves the old file as it was.
Resultat<void> EnregistrerParametres(const ContenuParametres& contenu, const std::string& repNorvane);

// The same for the session: options and dossier slots 0 to 5, in RepNorvane.
void ChargerOptions(SessionCadre& session);
Resultat<void> EnregistrerOptions(const SessionCadre& session);

// Cell format of a line kind (0 to 5) for the first cell (membre 0) or the
// others (membre 1); a blank member, or one out of range, reads "1;1;1;1;8".
std::string FormatLigneEffectif(const Options& options, int typeLigne, int membre);

}  // namespace norvane
