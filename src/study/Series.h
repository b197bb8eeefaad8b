// The series reader: resolves a series code to text. The .DON records it
// reads are described in FichierSeries.h.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Ports.h"
#include "study/CacheEtude.h"
#include "study/Enregistrements.h"
#include "study/EntitesCourantes.h"
#include "study/FichierSeries.h"
#include "study/Session.h"

namespace norvane {

// What the series reader needs besides the code. `cache`: the files of the
// generation in hand, read once each; null reads the files at each call.
struct ContexteSeries {
  const Session& session;
  PortMessages& messages;
  const EntitesCourantes& entites;
  CacheEtude* cache = nullptr;
};

// Record `numero` of a .DON file as LireEnregistrementSerie reads it, through
// the context's cache when it has one. A record that the file lacks, or a
// file that the dossier lacks, reads blank, and is told to the context's
// port as a silent fact.
SerieDonnees LireEnregistrementSerie(const ContexteSeries& contexte, const std::string& fichier, int32_t numero);

// What the readers say, to a port that listens, of a series that the
// dossier lacks: the file `chemin` missing ("Le fichier RES.DON n'existe pas
// dans le dossier MARTIN_PAUL.TVL") or empty; or else, the file holding
// data, the series `designation` names ("L'enregistrement n°40") missing from
// it. UTF-8, with no final stop.
std::string TexteSerieAbsente(const std::string& chemin, const std::string& designation);

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
// and comes back filled in. `dossier`: slot 0 to 9. Texts taken from the
// study (labels, units, names of crops and activities) come back made safe
// for RTF (TexteEtude.h); numbers come back as FormatNombre writes them.
std::string LireSerie(const ContexteSeries& contexte, std::string& code, int16_t tiret, int16_t& annee,
                      int16_t& decimales, int16_t dossier);

}  // namespace norvane
