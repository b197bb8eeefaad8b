// Writers of the dossier's own files, of the parameter file and of the
// catalogues, in the parent product's layouts (see the readers in src/study
// for the tables). Texts are taken as Windows-1252 bytes and cut to their
// field. Every Ecrire... makes the missing folders and throws
// std::runtime_error when the file cannot be written.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "study/Catalogues.h"
#include "study/Enregistrements.h"

namespace norvane::construction {

// General record: one record of 2110 bytes, in the file <folder>/<folder name>.
std::string OctetsDossierGeneral(const DossierGeneral& dossier);
void EcrireDossierGeneral(const std::string& chemin, const DossierGeneral& dossier);
// Makes the folder `racine`/`nom` (nom ends in ".TVL") and its general record;
// returns the folder's path.
std::string CreerDossierEtude(const std::string& racine, const std::string& nom, const DossierGeneral& dossier);

// ParamLog/Tervol.par: the organisations and ParamFinal, every unnamed field of
// the head written as zeros (integers) and blanks (texts).
std::string OctetsOrganisation(const Organisation& organisation);
std::string OctetsParamLog(const std::array<Organisation, 20>& organisations, int16_t paramFinal = 0);
void EcrireParamLog(const std::string& chemin, const std::array<Organisation, 20>& organisations,
                    int16_t paramFinal = 0);

// .DON series file: record n is series[n - 1]; a default SerieDonnees is a
// record of blanks and zeros.
std::string OctetsSerie(const SerieDonnees& serie);
void EcrireSeries(const std::string& chemin, const std::vector<SerieDonnees>& series);
// A series from its code, its "label|unit" and its values from column 0 on.
SerieDonnees Serie(const std::string& code, const std::string& intitule, std::initializer_list<float> valeurs);

// .CFG catalogue: entries[0] is the head.
std::string OctetsEntreeCatalogue(const EntreeCatalogue& entree);
void EcrireCatalogue(const std::string& chemin, const std::vector<EntreeCatalogue>& entrees);

}  // namespace norvane::construction
