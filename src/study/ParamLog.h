// The parent product's parameter file ParamLog/Tervol.par: the organisations
// (chamber of agriculture, management centre...) that templates quote, and
// ParamFinal. See ParamLog.cpp for the layout.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "frame/LecteurBinaire.h"
#include "frame/Resultat.h"
#include "study/Session.h"
#include "study/Enregistrements.h"

namespace norvane {

constexpr std::size_t kLongueurOrganisation = 360;

// The fixed head that stands between Organisations(0) and the first ParamFinal:
// unnamed fields, read only to keep the stream's position.
struct ChampEnteteParamLog {
  std::size_t largeur;  // of one field
  bool texte;           // a blank-padded text, else a 16-bit integer
  std::size_t nombre;   // fields of this kind in a row
};
constexpr ChampEnteteParamLog kEnteteParamLog[] = {
    {2, false, 1},  {20, true, 1}, {150, true, 2}, {20, true, 1}, {2, false, 7},  {50, true, 5}, {2, false, 1},
    {100, true, 2}, {2, false, 2}, {10, true, 1},  {2, false, 2}, {100, true, 2}, {2, false, 3}, {20, true, 2},
};

// One organisation record (360 bytes) at the reader's position; a field that
// runs past the end stays as it was.
bool LireOrganisation(LecteurBinaire& lecteur, Organisation& organisation);

// Reads the whole stream: Organisations(0), the head, ParamFinal,
// Organisations(1..19), ParamFinal again. The first failed read ends it; what
// was read stays, and the error names the organisation, the field and the
// byte where the stream stops. Bytes past the stream are ignored.
Resultat<void> LireParamLogOctets(std::string_view octets, std::array<Organisation, 20>& organisations,
                                  int16_t& paramFinal);

// Reads RepWinTervol + "ParamLog/Tervol.par" into session.Organisations and
// session.ParamFinal. A missing file leaves them as they are (blank at start)
// and is no error.
Resultat<void> LireParamLog(Session& session);

}  // namespace norvane
