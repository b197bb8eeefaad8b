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

#include "frame/Ports.h"
#include "frame/Session.h"
#include "study/EntitesCourantes.h"
#include "study/Enregistrements.h"

namespace norvane {

constexpr std::size_t kLongueurSerie = 90;

// What the series reader needs besides the code.
struct ContexteSeries {
  const Session& session;
  PortMessages& messages;
  const EntitesCourantes& entites;
};

// Record `numero` (from 1) of a .DON file found case-insensitively. A record
// past the end, or a file that cannot be read, gives zeros and blanks.
SerieDonnees LireEnregistrementSerie(const std::string& fichier, int32_t numero);

// Folder of dossier slot n: AjouterAntislash(RepDossier(n)) + AjouterAntislash(NomDossier(n)).
std::string DossierDuSlot(const Session& session, int slot);

// Resolves a series code ("RES.DON+RES-3a17", "@c-i4"...) to text.
// `tiret`: 0-based index in `code` of the "-" that the interpreter chose.
// `annee`: -1 lets the selector decide. `decimales`: -1 lets the record decide
// and comes back filled in. `dossier`: slot 0 to 9.
std::string LireSerie(const ContexteSeries& contexte, std::string& code, int16_t tiret, int16_t& annee,
                      int16_t& decimales, int16_t dossier);

}  // namespace norvane
