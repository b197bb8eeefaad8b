// The codes that do more than show a field, as other parts of the engine
// reach them: values of donnees.INI, the date of generation, the %tvl(...)%
// codes of a table cell, and pictures turned into RTF.
#pragma once

#include <string>

#include "template/Generation.h"

namespace norvane {

// "INI:[section:]key": the value of RepNorvane + "donnees.INI". Without a
// section the section is "Général". A missing file gives a warning and "".
std::string LireDonneeIni(Generation& generation, std::string& code);

// "date(n)": the date or time of generation (generation.Maintenant()) in
// format n, 0 to 17, French conventions; "" for any other n.
std::string LireDate(Generation& generation, std::string& code);

// Interprets each "%tvl(" ... ")%" of a table cell's text in place, without
// annotation; the scan goes on behind each inserted value.
void InterpreterCellule(Generation& generation, std::string& texte);

// The RTF picture group {\pict ...} of a picture file: through
// generation.images when it is set, otherwise a PNG or JPEG file is embedded
// as it is (\pngblip / \jpegblip). Empty when the file is missing or of
// another kind.
std::string ImageVersRtf(Generation& generation, const std::string& chemin);
// The embedding without the port: PNG or JPEG only.
std::string ImageVersRtfDirecte(const std::string& chemin);

}  // namespace norvane
