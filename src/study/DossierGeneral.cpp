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

#include <algorithm>
#include <filesystem>

#include "frame/Disposition.h"
#include "frame/LecteurBinaire.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "study/Series.h"

namespace norvane {
namespace {

// The layout above as data: readers take their widths from it.
namespace champ {
constexpr ChampDisposition CheminDossierTervol{"CheminDossierTervol", 0, 50};
constexpr ChampDisposition NomDossierTervol{"NomDossierTervol", 50, 50};
constexpr ChampDisposition NomExploitation{"NomExploitation", 100, 30};
constexpr ChampDisposition Adresse{"Adresse", 130, 30};
constexpr ChampDisposition Commune{"Commune", 160, 30};
constexpr ChampDisposition Reserve190{"Reserve190", 190, 2};
constexpr ChampDisposition AnneeDebut{"AnneeDebut", 192, 2};
constexpr ChampDisposition NbAnEtude{"NbAnEtude", 194, 2};
constexpr ChampDisposition TypeExploitation{"TypeExploitation", 196, 4};
constexpr ChampDisposition DescriptionProjet{"DescriptionProjet", 200, 500};
constexpr ChampDisposition DateDebut{"DateDebut", 700, 10};
constexpr ChampDisposition Conseiller{"Conseiller", 710, 20};
constexpr ChampDisposition NbAssocies{"NbAssocies", 730, 2};
constexpr ChampDisposition NomAssocie{"NomAssocie", 732, 30, 11};
constexpr ChampDisposition AssocieJA{"AssocieJA", 1062, 2, 11};
constexpr ChampDisposition DateNaissance{"DateNaissance", 1084, 10, 11};
constexpr ChampDisposition Situation{"Situation", 1194, 15, 11};
constexpr ChampDisposition RegionAgricole{"RegionAgricole", 1359, 40};
constexpr ChampDisposition AutresActivites{"AutresActivites", 1399, 40};
constexpr ChampDisposition Banque{"Banque", 1439, 40};
constexpr ChampDisposition NumeroAdherent{"NumeroAdherent", 1479, 15};
constexpr ChampDisposition ModeCom{"ModeCom", 1494, 40, 14, 7};
constexpr ChampDisposition MoisTva{"MoisTva", 2054, 2};
constexpr ChampDisposition Reserve2056{"Reserve2056", 2056, 12};
constexpr ChampDisposition Devise{"Devise", 2068, 2};
constexpr ChampDisposition Telephone{"Telephone", 2070, 20};
constexpr ChampDisposition Fax{"Fax", 2090, 20};
}  // namespace champ

constexpr ChampDisposition kChamps[] = {
    champ::CheminDossierTervol, champ::NomDossierTervol, champ::NomExploitation, champ::Adresse,
    champ::Commune,             champ::Reserve190,       champ::AnneeDebut,      champ::NbAnEtude,
    champ::TypeExploitation,    champ::DescriptionProjet, champ::DateDebut,      champ::Conseiller,
    champ::NbAssocies,          champ::NomAssocie,       champ::AssocieJA,       champ::DateNaissance,
    champ::Situation,           champ::RegionAgricole,   champ::AutresActivites, champ::Banque,
    champ::NumeroAdherent,      champ::ModeCom,          champ::MoisTva,         champ::Reserve2056,
    champ::Devise,              champ::Telephone,        champ::Fax,
};
static_assert(PaveEnregistrement(kChamps, kLongueurDossierGeneral), "the general record's fields tile 2110 bytes");

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

Resultat<void> LireDossierGeneral(std::string_view octets, DossierGeneral& d, const std::string& fichier) {
  LecteurBinaire l(octets);
  l.LireTexte(d.CheminDossierTervol, champ::CheminDossierTervol);
  l.LireTexte(d.NomDossierTervol, champ::NomDossierTervol);
  l.LireTexte(d.NomExploitation, champ::NomExploitation);
  l.LireTexte(d.Adresse, champ::Adresse);
  l.LireTexte(d.Commune, champ::Commune);
  l.Lire(d.Reserve190, champ::Reserve190);
  l.Lire(d.AnneeDebut, champ::AnneeDebut);
  l.Lire(d.NbAnEtude, champ::NbAnEtude);
  l.Lire(d.TypeExploitation, champ::TypeExploitation);
  l.LireTexte(d.DescriptionProjet, champ::DescriptionProjet);
  l.LireTexte(d.DateDebut, champ::DateDebut);
  l.LireTexte(d.Conseiller, champ::Conseiller);
  l.Lire(d.NbAssocies, champ::NbAssocies);
  for (std::size_t i = 0; i < d.NomAssocie.size(); ++i) l.LireTexte(d.NomAssocie[i], champ::NomAssocie, i);
  for (std::size_t i = 0; i < d.AssocieJA.size(); ++i) l.Lire(d.AssocieJA[i], champ::AssocieJA, i);
  for (std::size_t i = 0; i < d.DateNaissance.size(); ++i) l.LireTexte(d.DateNaissance[i], champ::DateNaissance, i);
  for (std::size_t i = 0; i < d.Situation.size(); ++i) l.LireTexte(d.Situation[i], champ::Situation, i);
  l.LireTexte(d.RegionAgricole, champ::RegionAgricole);
  l.LireTexte(d.AutresActivites, champ::AutresActivites);
  l.LireTexte(d.Banque, champ::Banque);
  l.LireTexte(d.NumeroAdherent, champ::NumeroAdherent);
  for (std::size_t colonne = 0; colonne < 2; ++colonne) {
    for (std::size_t p = 0; p < d.ModeCom.size(); ++p) {
      l.LireTexte(d.ModeCom[p][colonne], champ::ModeCom, p + d.ModeCom.size() * colonne);
    }
  }
  l.Lire(d.MoisTva, champ::MoisTva);
  l.LireTexte(d.Reserve2056, champ::Reserve2056);
  l.Lire(d.Devise, champ::Devise);
  l.LireTexte(d.Telephone, champ::Telephone);
  l.LireTexte(d.Fax, champ::Fax);
  if (l.Ok()) return {};
  return l.Erreur("Enregistrement général incomplet : " + std::to_string(octets.size()) + " octets au lieu de " +
                      std::to_string(kLongueurDossierGeneral) + ".",
                  fichier, 1);
}

bool LireDossierGeneral(std::string_view octets, DossierGeneral& dossier) {
  return LireDossierGeneral(octets, dossier, std::string()).Ok();
}

std::string ChampDossierGeneral(std::size_t position) { return ChampA(kChamps, position); }

std::string ProblemeDossier::Texte() const {
  switch (sorte) {
    case Sorte::Introuvable:
      return "Le dossier " + chemin + " n'existe pas.";
    case Sorte::PasUnDossier:
      return chemin + " n'est pas un dossier d'étude (.TVL) mais un fichier.";
    case Sorte::SansRecord:
      return "Le dossier ne contient pas d'enregistrement général : " + chemin + " introuvable.";
    case Sorte::RecordIllisible:
      return "L'enregistrement général " + chemin + " ne peut pas être lu.";
    case Sorte::RecordCourt:
      break;
  }
  return "Attention : l'enregistrement général " + chemin + (taille == 0 ? " est vide" : " est incomplet") + " (" +
         std::to_string(taille) + " octets au lieu de " + std::to_string(kLongueurDossierGeneral) +
         ") : les champs manquants restent vides.";
}

std::optional<ProblemeDossier> ExaminerDossier(const std::string& cheminDossier) {
  std::string chemin = Trim(cheminDossier);
  std::replace(chemin.begin(), chemin.end(), '\\', '/');
  while (chemin.size() > 1 && chemin.back() == '/') chemin.pop_back();
  using Sorte = ProblemeDossier::Sorte;
  const auto dossier = ResoudreChemin(chemin);
  if (chemin.empty() || !dossier) return ProblemeDossier{Sorte::Introuvable, chemin};
  if (!EstDossier(*dossier)) return ProblemeDossier{Sorte::PasUnDossier, *dossier};
  const std::string record = JoindreChemin(*dossier, std::filesystem::path(*dossier).filename().string());
  const auto taille = TailleFichierReguliere(record);
  if (!taille) return ProblemeDossier{Sorte::SansRecord, record};
  if (!LireFichier(record, 1)) return ProblemeDossier{Sorte::RecordIllisible, record};
  if (*taille < kLongueurDossierGeneral) return ProblemeDossier{Sorte::RecordCourt, record, *taille};
  return std::nullopt;
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
  // The record's 2110 bytes are all there is to read, whatever the file's size.
  if (auto octets = LireFichier(chemin, kLongueurDossierGeneral)) LireDossierGeneral(*octets, session.InfoDossier);
}

}  // namespace norvane
