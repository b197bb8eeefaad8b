// The dossiers that a table comparing dossiers reads, one a value column.
//
// They are asked once a generation through PortChoixDossiers, and asked again
// only when a later table compares another number of dossiers. The command
// line's answer is the session's slots 1 to 9 (the --comparer options in
// their order, or the slots kept in the settings); the windows answer with
// the dossier-choice dialog. Chosen dossiers fill the session's slots, where
// the series reader looks for column c's dossier.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "study/Session.h"

namespace norvane {

struct Generation;
class EtatTableaux;
struct ModeleTableau;

inline constexpr char kTitreChoixDossiers[] = "Construction d'un tableau multi-dossier dans un document RTF";
inline constexpr char kEnteteChoixDossiers[] = "- Sélection des dossiers Tervol pour le tableau en cours -";

// A dossier as the slots hold it: the folder that holds it, and its name with
// the extension ".TVL".
struct DossierCompare {
  std::string repertoire;
  std::string nom;
};

class PortChoixDossiers {
 public:
  virtual ~PortChoixDossiers() = default;
  // The dossiers of a table, `nombre` (1 to 9) being offered first; the user
  // may choose another count. std::nullopt when the choice was given up.
  virtual std::optional<std::vector<DossierCompare>> ChoisirDossiers(const std::string& titre,
                                                                     const std::string& entete, int nombre) = 0;
};

// The command line's choice: slots 1 to `nombre` of the session, as they are.
class ChoixDossiersParSlots : public PortChoixDossiers {
 public:
  explicit ChoixDossiersParSlots(const Session& session) : session_(session) {}
  std::optional<std::vector<DossierCompare>> ChoisirDossiers(const std::string& titre, const std::string& entete,
                                                             int nombre) override;

 private:
  const Session& session_;
};

// Makes sure the dossiers of a multi-dossier model are chosen: asks the port
// when none are, or when their count is not the model's, then writes the
// chosen count into the model's NbDossiers. False, after saying so, when a
// dossier cannot be had: the table is then left out of the document.
bool PreparerMultiDossier(Generation& generation, EtatTableaux& etat, PortChoixDossiers& choix,
                          ModeleTableau& modele);

}  // namespace norvane
