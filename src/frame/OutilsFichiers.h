// File and text routines used by every subsystem. Paths use "/" as separator;
// a "\" coming from Windows (command line, dossier record, copied dossier) is
// accepted wherever a path is split or opened.
#pragma once

#include <cstdint>
#include <optional>
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

// `nom` inside `dossier`, with one "/" between them; an empty folder gives `nom`.
std::string JoindreChemin(std::string_view dossier, std::string_view nom);

// The existing file or folder that `chemin` names, each component matched
// without regard to case ("RES.DON" finds "res.don"), "\" taken as "/". A name
// held in Windows-1252 also finds the same name stored in UTF-8 on disk.
// std::nullopt when no such entry exists.
std::optional<std::string> ResoudreChemin(const std::string& chemin);
// The path to use for any open or creation: each leading component that
// exists is taken with its real name, the rest (from the first missing
// component on) stands as given, "\" as "/".
std::string CheminReel(const std::string& chemin);
// Whole content of a file found through ResoudreChemin; std::nullopt when it
// cannot be read.
std::optional<std::string> LireFichier(const std::string& chemin);
// The first `limite` bytes at most of the same file: what a reader of fixed
// records can use, whatever the file's size.
std::optional<std::string> LireFichier(const std::string& chemin, std::size_t limite);
// Size of the regular file found through ResoudreChemin; std::nullopt when
// there is none (missing, a folder...). 64-bit: study files may claim gigabytes.
std::optional<uint64_t> TailleFichierReguliere(const std::string& chemin);
// Offset just past the last byte of data that the file system holds for the
// regular file `cheminReel` of size `taille`: a file grown by a seek or made
// sparse ends its real data well before its size. The size itself when the
// system cannot tell; 0 when the file holds no data at all.
uint64_t FinDonneesReelles(const std::string& cheminReel, uint64_t taille);
// Writes a whole file through a temporary file in the same folder renamed over
// the old one. Returns false on failure, leaving any old file intact.
bool EcrireFichierAtomique(const std::string& chemin, std::string_view contenu);

}  // namespace norvane
