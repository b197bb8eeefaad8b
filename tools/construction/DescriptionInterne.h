// The pieces of DescriptionJson.cpp's work, one file each: series models and
// series files, the dossier, the installation.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "construction/LectureJson.h"
#include "study/Catalogues.h"
#include "study/Enregistrements.h"

namespace norvane::construction {

// A series of a catalogue or gabarit, with the unit its .DON records carry.
struct SerieModele {
  EntreeCatalogue entree;
  std::string unite;
};
// Models by upper-case name: "RES.CFG", "CULTURE".
using Modeles = std::map<std::string, std::vector<SerieModele>>;

// The "series" list of a catalogue or gabarit.
std::vector<SerieModele> SeriesModele(ObjetJson& objet);
// Records of a series file description.
std::vector<SerieDonnees> SeriesDe(const Json& description, const std::string& lieu, const Modeles& modeles,
                                   Journal& journal);
// Record number that a series code ends with: "RES-17:0" gives 17.
int NumeroDeCode(const std::string& code);

DossierGeneral DossierGeneralDe(const Json& description, const std::string& lieu, Journal& journal);
// Writes the dossier `description` in the folder `repDossiers`.
void ConstruireDossier(const Json& description, const std::string& repDossiers, const Modeles& modeles,
                       Journal& journal);

}  // namespace norvane::construction
