// File and text routines used by every subsystem. Paths use "/" as separator;
// a "\" coming from Windows (command line, dossier record, copied dossier) is
// accepted wherever a path is split or opened.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace norvane {

// Trims the text and ends it with "/" unless it already ends with "/" or "\".
// An empty text stays empty.
std::string AjouterAntislash(std::string_view chemin);

// Clears the file's permissions, then deletes it; any failure is ignored.
void SupprimeFichier(const std::string& chemin);
// 0 when the file does not exist, else its length.
int32_t TailleFichier(const std::string& chemin);
// 1 when the path names an existing file (or, with `attributs` & 16, a folder), else 0.
int16_t FichierExiste(const std::string& chemin, int attributs = 0);
bool DossierExiste(const std::string& chemin);
void CreeDossier(const std::string& chemin);
// Creates each missing prefix of the path up to and including each separator,
// so the last element of a path that does not end with a separator is not made.
void CreeArborescence(const std::string& chemin);
// file:// URL of a path: a Linux path is percent-encoded; a path with a drive
// letter ("C:\a b") gives "file:///C|/a%20b".
std::string CheminVersUrl(const std::string& chemin);
// Every occurrence replaced, case-insensitively, left to right; a replacement
// is never scanned again.
std::string RemplaceTexte(std::string_view texte, std::string_view cherche, std::string_view remplace);

}  // namespace norvane
