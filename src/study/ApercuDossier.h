// A plain-text report of what a dossier holds, for the DOSSIER verb: the
// general record field by field, the organisations, and every series file
// (.DON) with its records by study year. Damaged files are reported with the
// record where they go wrong, and the report goes on. Output is UTF-8.
#pragma once

#include <array>
#include <cstdint>
#include <ostream>
#include <string>

#include "study/Enregistrements.h"
#include "study/Session.h"

namespace norvane {

// `cheminDossier`: the dossier's folder ("/.../DUPONT.TVL", "\" accepted,
// names matched without regard to case). False when the dossier cannot be read
// at all: no such folder, or no readable general record in it.
bool DecrireDossier(const std::string& cheminDossier, const std::array<Organisation, 20>& organisations,
                      int16_t paramFinal, std::ostream& sortie);
// The same with the session's organisations; a damaged ParamLog/Tervol.par is
// named with the organisation, field and byte where its reading stops.
bool DecrireDossier(const std::string& cheminDossier, const Session& session, std::ostream& sortie);

}  // namespace norvane
