// The associates of a dossier as the lists and names of the vocabulary
// print them.
#pragma once

#include <string>

#include "study/Enregistrements.h"

namespace norvane {

// The associates of a dossier (slots 1 to NbAssocies, at most 10; slot 0 is
// the individual farmer). The lists hold one "\par "-ended line each.
int AssociePrincipal(const DossierGeneral& info);  // first JA from slot 0; -1: none
std::string NomSocieteAssocies(const DossierGeneral& info);
std::string ListeAssocies(const DossierGeneral& info);
std::string NomsAssocies(const DossierGeneral& info);
std::string NaissancesAssocies(const DossierGeneral& info);
std::string SituationsAssocies(const DossierGeneral& info);
std::string NomsAssociesJA(const DossierGeneral& info);
std::string NombreAssociesJA(const DossierGeneral& info);
std::string NomAssocieNumero(const DossierGeneral& info, int n);

}  // namespace norvane
