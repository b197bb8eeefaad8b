// General record of a dossier: one record of 2110 bytes, Windows-1252 texts
// padded with blanks, little-endian integers, no padding between fields.
//
//   OFFSET  SIZE     MEANING
//   0       50       CheminDossierTervol   path of the dossier at its last saving
//   50      50       NomDossierTervol      title of the dossier
//   100     30       NomExploitation       farmer's or company's name
//   130     30       Adresse
//   160     30       Commune
//   190     2        Reserve190            16-bit, read, not used
//   192     2        AnneeDebut            16-bit, calendar year of study year 1
//   194     2        NbAnEtude             16-bit, number of study years
//   196     4        TypeExploitation      32-bit, 1 = company, else individual farm
//   200     500      DescriptionProjet     lines split by character 13
//   700     10       DateDebut             "dd/mm/yyyy"
//   710     20       Conseiller
//   730     2        NbAssocies            16-bit, at most 10
//   732     11 x 30  NomAssocie(0..10)     slot 0 is the individual farmer
//   1062    11 x 2   AssocieJA(0..10)      16-bit, 1 = young farmer (JA)
//   1084    11 x 10  DateNaissance(0..10)  "dd/mm/yyyy", "**/**/****" or blanks
//   1194    11 x 15  Situation(0..10)      family situation
//   1359    40       RegionAgricole
//   1399    40       AutresActivites
//   1439    40       Banque
//   1479    15       NumeroAdherent
//   1494    14 x 40  ModeCom(0..6, 0..1)   a two-dimensional array stored with its
//                                          first index running fastest: the seven
//                                          product names (1494 + 40 p), then the
//                                          seven marketing modes (1774 + 40 p);
//                                          product 0 is unused
//   2054    2        MoisTva               16-bit
//   2056    12       Reserve2056           read, not used
//   2068    2        Devise                16-bit, 0 = franc, other = euro
//   2070    20       Telephone
//   2090    20       Fax
#include "study/DossierGeneral.h"

#include <filesystem>

#include "frame/LecteurBinaire.h"
#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"
#include "study/Series.h"

namespace norvane {
namespace {

// Start of each field of the layout above, for ChampDossierGeneral.
struct ChampGeneral {
  std::size_t debut;
  const char* nom;
  std::size_t largeur;  // of one element
  std::size_t nombre;   // elements of an array, 1 for a plain field
};

constexpr ChampGeneral kChamps[] = {
    {0, "CheminDossierTervol", 50, 1},
    {50, "NomDossierTervol", 50, 1},
    {100, "NomExploitation", 30, 1},
    {130, "Adresse", 30, 1},
    {160, "Commune", 30, 1},
    {190, "Reserve190", 2, 1},
    {192, "AnneeDebut", 2, 1},
    {194, "NbAnEtude", 2, 1},
    {196, "TypeExploitation", 4, 1},
    {200, "DescriptionProjet", 500, 1},
    {700, "DateDebut", 10, 1},
    {710, "Conseiller", 20, 1},
    {730, "NbAssocies", 2, 1},
    {732, "NomAssocie", 30, 11},
    {1062, "AssocieJA", 2, 11},
    {1084, "DateNaissance", 10, 11},
    {1194, "Situation", 15, 11},
    {1359, "RegionAgricole", 40, 1},
    {1399, "AutresActivites", 40, 1},
    {1439, "Banque", 40, 1},
    {1479, "NumeroAdherent", 15, 1},
    {1494, "ModeCom", 40, 14},
    {2054, "MoisTva", 2, 1},
    {2056, "Reserve2056", 12, 1},
    {2068, "Devise", 2, 1},
    {2070, "Telephone", 20, 1},
    {2090, "Fax", 20, 1},
};

std::string NomElement(const ChampGeneral& champ, std::size_t rang) {
  if (champ.nombre == 1) return champ.nom;
  if (champ.nombre == 14) {  // ModeCom: names of products 0 to 6, then their modes
    return std::string(champ.nom) + "(" + std::to_string(rang % 7) + ", " + std::to_string(rang / 7) + ")";
  }
  return std::string(champ.nom) + "(" + std::to_string(rang) + ")";
}

bool EstFichier(const std::string& chemin) {
  auto reel = ResoudreChemin(chemin);
  std::error_code erreur;
  return reel && std::filesystem::is_regular_file(*reel, erreur);
}

bool EstDossier(const std::string& chemin) {
  auto reel = ResoudreChemin(chemin);
  std::error_code erreur;
  return reel && std::filesystem::is_directory(*reel, erreur);
}

}  // namespace

bool LireDossierGeneral(std::string_view octets, DossierGeneral& d) {
  LecteurBinaire l(octets);
  l.LireTexte(d.CheminDossierTervol, 50);
  l.LireTexte(d.NomDossierTervol, 50);
  l.LireTexte(d.NomExploitation, 30);
  l.LireTexte(d.Adresse, 30);
  l.LireTexte(d.Commune, 30);
  l.Lire(d.Reserve190);
  l.Lire(d.AnneeDebut);
  l.Lire(d.NbAnEtude);
  l.Lire(d.TypeExploitation);
  l.LireTexte(d.DescriptionProjet, 500);
  l.LireTexte(d.DateDebut, 10);
  l.LireTexte(d.Conseiller, 20);
  l.Lire(d.NbAssocies);
  for (auto& nom : d.NomAssocie) l.LireTexte(nom, 30);
  for (auto& ja : d.AssocieJA) l.Lire(ja);
  for (auto& date : d.DateNaissance) l.LireTexte(date, 10);
  for (auto& situation : d.Situation) l.LireTexte(situation, 15);
  l.LireTexte(d.RegionAgricole, 40);
  l.LireTexte(d.AutresActivites, 40);
  l.LireTexte(d.Banque, 40);
  l.LireTexte(d.NumeroAdherent, 15);
  for (std::size_t colonne = 0; colonne < 2; ++colonne) {
    for (auto& paire : d.ModeCom) l.LireTexte(paire[colonne], 40);
  }
  l.Lire(d.MoisTva);
  l.LireTexte(d.Reserve2056, 12);
  l.Lire(d.Devise);
  l.LireTexte(d.Telephone, 20);
  l.LireTexte(d.Fax, 20);
  return l.Ok();
}

std::string ChampDossierGeneral(std::size_t position) {
  for (const ChampGeneral& champ : kChamps) {
    if (position < champ.debut || position >= champ.debut + champ.largeur * champ.nombre) continue;
    return NomElement(champ, (position - champ.debut) / champ.largeur);
  }
  return {};
}

std::string CheminRecordDossier(const Session& session, int slot) {
  std::string nom = Trim(session.NomDossier.at(static_cast<std::size_t>(slot)));
  while (!nom.empty() && (nom.back() == '/' || nom.back() == '\\')) nom.pop_back();
  return DossierDuSlot(session, slot) + nom;
}

void ChargerInfoDossier(Session& session) {
  if (EstBlanc(session.RepDossier[0]) || EstBlanc(session.NomDossier[0])) return;
  const std::string chemin = CheminRecordDossier(session, 0);
  if (!EstFichier(chemin)) session.NomDossier[0].clear();
  if (!EstDossier(Trim(session.RepDossier[0]))) session.RepDossier[0].clear();
  if (EstBlanc(session.RepDossier[0]) || EstBlanc(session.NomDossier[0])) return;
  if (auto octets = LireFichier(chemin)) LireDossierGeneral(*octets, session.InfoDossier);
}

}  // namespace norvane
