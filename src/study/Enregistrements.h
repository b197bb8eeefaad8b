// In-memory form of the study records. Texts are kept as the Windows-1252
// bytes of the file, with their blank padding: callers trim at use, as a text
// of blanks only is an empty field. The readers (DossierGeneral.h,
// ParamLog.h, Series.h) give the on-disk layouts.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace norvane {

// The general record of a dossier (file <NOM>.TVL inside the folder <NOM>.TVL).
struct DossierGeneral {
  std::string CheminDossierTervol;
  std::string NomDossierTervol;
  std::string NomExploitation;
  std::string Adresse;
  std::string Commune;
  int16_t Reserve190 = 0;
  int16_t AnneeDebut = 0;
  int16_t NbAnEtude = 0;
  int32_t TypeExploitation = 0;  // 1 = company (société)
  std::string DescriptionProjet;
  std::string DateDebut;  // "dd/mm/yyyy"
  std::string Conseiller;
  int16_t NbAssocies = 0;
  std::array<std::string, 11> NomAssocie;
  std::array<int16_t, 11> AssocieJA{};
  std::array<std::string, 11> DateNaissance;
  std::array<std::string, 11> Situation;
  std::string RegionAgricole;
  std::string AutresActivites;
  std::string Banque;
  std::string NumeroAdherent;
  std::array<std::array<std::string, 2>, 7> ModeCom;  // [product][0 = name, 1 = marketing mode]
  int16_t MoisTva = 0;
  std::string Reserve2056;
  int16_t Devise = 0;
  std::string Telephone;
  std::string Fax;

  bool EstSociete() const { return TypeExploitation == 1; }
};

struct Organisation {
  std::string Nom;
  std::string Rue;
  std::string Ville;
  std::string Sigle;
  std::string Telephone;
  std::string Fax;
  std::string Logo;
};

// One record of a .DON series file.
struct SerieDonnees {
  std::string CodeSerie;  // "<name>-<number>:<decimals>"
  std::string Intitule;   // "<label>|<unit>"
  std::array<float, 14> Valeur{};
};

}  // namespace norvane
