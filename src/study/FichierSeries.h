// Series files (.DON): fixed records of 90 bytes, numbered from 1, read one
// record at a time (see FichierSeries.cpp for the layout).
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "frame/LecteurBinaire.h"
#include "study/Enregistrements.h"

namespace norvane {

constexpr std::size_t kLongueurSerie = 90;

// A series record (90 bytes) at the reader's position; a field that runs past
// the end stays as it was, and the reader names it.
bool LireSerieDonnees(LecteurBinaire& lecteur, SerieDonnees& serie);

// A record of zeros and blanks: what a record past a file's end reads as.
SerieDonnees SerieVide();

// The record held by `octets` (at most 90 bytes): a record cut short keeps
// what it has, the rest stays zeros and blanks.
SerieDonnees DecoderSerie(std::string_view octets);

// Record `numero` (from 1) of a .DON file found case-insensitively. A record
// past the end, a number below 1, or a file that cannot be read, gives zeros
// and blanks; a record cut by the end of the file keeps what it has. Opens the
// file at each call: a generation reads through its CacheEtude instead.
SerieDonnees LireEnregistrementSerie(const std::string& fichier, int32_t numero);

// Default decimals of a series: the integer behind the first ":" of CodeSerie;
// without ":", the leading integer of the whole field (0 when there is none).
int16_t DecimalesDeCode(std::string_view codeSerie);

// A record that holds no series: its code is all NUL bytes, or its code and
// label are blank and its values zero.
bool EstSerieVide(const SerieDonnees& serie);

}  // namespace norvane
