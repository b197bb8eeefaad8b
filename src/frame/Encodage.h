// Windows-1252 <-> UTF-8. Study files, templates, settings and .ini files are
// Windows-1252; the terminal and the program's own texts are UTF-8.
#pragma once

#include <string>
#include <string_view>

namespace norvane {

std::string Cp1252VersUtf8(std::string_view texte);
// Characters that Windows-1252 cannot hold become '?'. Invalid UTF-8 bytes are
// taken as Windows-1252 bytes already, so a text converted twice is unharmed.
std::string Utf8VersCp1252(std::string_view texte);

}  // namespace norvane
