// The general record of a dossier and its loading into the session.
//
// A dossier is a folder "<NOM>.TVL"; its general record is the file of the
// same name inside it ("DUPONT.TVL/DUPONT.TVL"), found without regard to case.
// The file holds one record of 2110 bytes: see DossierGeneral.cpp for the
// layout.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "frame/Session.h"
#include "study/Enregistrements.h"

namespace norvane {

constexpr std::size_t kLongueurDossierGeneral = 2110;

// Fills `dossier` from the bytes of a record file. A short file leaves the
// fields behind its end as they were. True when the whole record was there.
bool LireDossierGeneral(std::string_view octets, DossierGeneral& dossier);

// Name of the field that starts at or covers `position` of the record
// ("NomAssocie(2)", "Fax"...), for diagnostics; empty past the record.
std::string ChampDossierGeneral(std::size_t position);

// Path of the general record file of slot `slot`: the slot's folder followed by
// the trimmed folder name. Not resolved: opening finds it without regard to case.
std::string CheminRecordDossier(const Session& session, int slot);

// Loads session.InfoDossier from dossier slot 0:
//  - RepDossier(0) or NomDossier(0) blank after trimming: nothing is read, the
//    record stays as it was;
//  - no record file: NomDossier(0) is emptied;
//  - no folder RepDossier(0): it is emptied as well;
//  - both still not blank: the record is read (a short file leaves the fields
//    behind its end as they were).
void ChargerInfoDossier(Session& session);

}  // namespace norvane
