// Series files (.DON) and the series reader.
//
// .DON record, 90 bytes, numbered from 1:
//   OFFSET SIZE MEANING
//   0      12   CodeSerie  "<name>-<number>:<decimals>"
//   12     22   Intitule   "<label>|<unit>"
//   34     56   Valeur(0..13), 32-bit little-endian floats; column 0 is the
//               year before the study, column 1 study year 1
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/LecteurBinaire.h"
#include "frame/Ports.h"
#include "frame/Session.h"
#include "study/Enregistrements.h"
#include "study/EntitesCourantes.h"

namespace norvane {

constexpr std::size_t kLongueurSerie = 90;

// What the series reader needs besides the code.
struct ContexteSeries {
  const Session& session;
  PortMessages& messages;
  const EntitesCourantes& entites;
};

// A series record (90 bytes) at the reader's position; a field that runs past
// the end stays as it was.
bool LireSerieDonnees(LecteurBinaire& lecteur, SerieDonnees& serie);

// A record of zeros and blanks: what a record past a file's end reads as.
SerieDonnees SerieVide();

// Record `numero` (from 1) of a .DON file found case-insensitively. A record
// past the end, a number below 1, or a file that cannot be read, gives zeros
// and blanks; a record cut by the end of the file keeps what it has.
SerieDonnees LireEnregistrementSerie(const std::string& fichier, int32_t numero);

// Default decimals of a series: the integer behind the first ":" of CodeSerie;
// without ":", the leading integer of the whole field (0 when there is none).
int16_t DecimalesDeCode(std::string_view codeSerie);

// Folder of dossier slot n: AjouterAntislash(RepDossier(n)) + AjouterAntislash(NomDossier(n)).
std::string DossierDuSlot(const Session& session, int slot);

// Resolves a series code to text. Forms, with RES.DON record 17 as example:
//   RES.DON+RES-3a17, RES.DON+RES-12a17   column 3 or 12, formatted
//   RES.DON+RES-i17, RES.DON+RES-u17      label in lower case, unit
//   RES.DON+RES-som17 (min, max, moy)     statistic over the study years
//   RES.DON+RES-maxa17 (mina)             calendar year of the maximum
//   @c12-i, @p3-som, @a24-3a...           the same in the file of the crop,
//                                         perennial crop or free activity in
//                                         hand, record before the "-"
//   @c-c, @c-n, @p-pc, @p-p, @a-a         names of the entity in hand
// A code starting with "@" loses the "@" and its family letter, in `code` too.
// `tiret`: 0-based index in `code` of the "-" that the interpreter chose.
// `annee`: -1 lets the selector decide. `decimales`: -1 lets the record decide
// and comes back filled in. `dossier`: slot 0 to 9.
std::string LireSerie(const ContexteSeries& contexte, std::string& code, int16_t tiret, int16_t& annee,
                      int16_t& decimales, int16_t dossier);

}  // namespace norvane
