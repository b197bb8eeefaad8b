// The one resolver of paths, which matches names without regard to case or
// encoding, and the whole-file reads built on it. Paths use "/"; a "\" from
// Windows is taken as "/".
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace norvane {

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

}  // namespace norvane
