// The general record of a dossier and its loading into the session.
//
// A dossier is a folder "<NOM>.TVL"; its general record is the file of the
// same name inside it ("DUPONT.TVL/DUPONT.TVL"), found without regard to case.
// The file holds one record of 2110 bytes: see DossierGeneral.cpp for the
// layout.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "frame/Resultat.h"
#include "study/Session.h"
#include "study/Enregistrements.h"

namespace norvane {

constexpr std::size_t kLongueurDossierGeneral = 2110;

// Fills `dossier` from the bytes of a record file. A short file leaves the
// fields behind its end as they were; the error then names `fichier`, the
// field and the byte where the record stops. Bytes past the record are ignored.
Resultat<void> LireDossierGeneral(std::string_view octets, DossierGeneral& dossier, const std::string& fichier);
// The same without a file name: true when the whole record was there.
bool LireDossierGeneral(std::string_view octets, DossierGeneral& dossier);

// What stands in the way of a dossier named by the user (command line).
struct ProblemeDossier {
  enum class Sorte {
    Introuvable,     // no such folder
    PasUnDossier,    // the path names a file
    SansRecord,      // no general record file inside the folder
    RecordIllisible, // the record file cannot be read
    RecordCourt,     // the record file is empty or shorter than 2110 bytes
  };
  Sorte sorte;
  std::string chemin;   // the folder, or the record file for the last three
  uint64_t taille = 0;  // size of a short record file

  // A dossier that cannot be read is refused; a short record only warrants a
  // warning, the generation goes on with blanks for the missing fields.
  bool Bloquant() const { return sorte != Sorte::RecordCourt; }
  // The French text that tells the user.
  std::string Texte() const;
};

// Examines the dossier folder `cheminDossier` ("\" accepted, names matched
// without regard to case) and its general record. std::nullopt when the
// record is whole.
std::optional<ProblemeDossier> ExaminerDossier(const std::string& cheminDossier);

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
