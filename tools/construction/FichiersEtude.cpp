#include "construction/FichiersEtude.h"

#include <algorithm>
#include <filesystem>

#include "construction/EnregistrementFixe.h"
#include "study/DossierGeneral.h"
#include "study/FichierSeries.h"
#include "study/ParamLog.h"

// The lengths come from the readers; the offsets below are written out on
// their own, so that a reader and the builder that disagree on a layout make
// the study tests fail.
namespace norvane::construction {

std::string OctetsDossierGeneral(const DossierGeneral& d) {
  EnregistrementFixe e(kLongueurDossierGeneral);
  e.Texte(0, d.CheminDossierTervol, 50)
      .Texte(50, d.NomDossierTervol, 50)
      .Texte(100, d.NomExploitation, 30)
      .Texte(130, d.Adresse, 30)
      .Texte(160, d.Commune, 30)
      .Entier16(190, d.Reserve190)
      .Entier16(192, d.AnneeDebut)
      .Entier16(194, d.NbAnEtude)
      .Entier32(196, d.TypeExploitation)
      .Texte(200, d.DescriptionProjet, 500)
      .Texte(700, d.DateDebut, 10)
      .Texte(710, d.Conseiller, 20)
      .Entier16(730, d.NbAssocies);
  for (std::size_t i = 0; i < 11; ++i) {
    e.Texte(732 + 30 * i, d.NomAssocie[i], 30)
        .Entier16(1062 + 2 * i, d.AssocieJA[i])
        .Texte(1084 + 10 * i, d.DateNaissance[i], 10)
        .Texte(1194 + 15 * i, d.Situation[i], 15);
  }
  e.Texte(1359, d.RegionAgricole, 40)
      .Texte(1399, d.AutresActivites, 40)
      .Texte(1439, d.Banque, 40)
      .Texte(1479, d.NumeroAdherent, 15);
  for (std::size_t produit = 0; produit < 7; ++produit) {
    e.Texte(1494 + 40 * produit, d.ModeCom[produit][0], 40).Texte(1774 + 40 * produit, d.ModeCom[produit][1], 40);
  }
  e.Entier16(2054, d.MoisTva)
      .Texte(2056, d.Reserve2056, 12)
      .Entier16(2068, d.Devise)
      .Texte(2070, d.Telephone, 20)
      .Texte(2090, d.Fax, 20);
  return e.Octets();
}

void EcrireDossierGeneral(const std::string& chemin, const DossierGeneral& dossier) {
  EcrireOctets(chemin, OctetsDossierGeneral(dossier));
}

std::string CreerDossierEtude(const std::string& racine, const std::string& nom, const DossierGeneral& dossier) {
  const std::string dossierEtude = (std::filesystem::path(racine) / nom).string();
  EcrireDossierGeneral(dossierEtude + "/" + nom, dossier);
  return dossierEtude;
}

std::string OctetsOrganisation(const Organisation& o) {
  EnregistrementFixe e(kLongueurOrganisation);
  e.Texte(0, o.Nom, 80)
      .Texte(80, o.Rue, 80)
      .Texte(160, o.Ville, 60)
      .Texte(220, o.Sigle, 20)
      .Texte(240, o.Telephone, 20)
      .Texte(260, o.Fax, 20)
      .Texte(280, o.Logo, 80);
  return e.Octets();
}

std::string OctetsParamLog(const std::array<Organisation, 20>& organisations, int16_t paramFinal) {
  std::string entete;
  for (const ChampEnteteParamLog& champ : kEnteteParamLog) {
    entete.append(champ.largeur * champ.nombre, champ.texte ? ' ' : '\0');
  }
  EnregistrementFixe finale(2);
  finale.Entier16(0, paramFinal);

  std::string octets = OctetsOrganisation(organisations[0]) + entete + finale.Octets();
  for (std::size_t i = 1; i < organisations.size(); ++i) octets += OctetsOrganisation(organisations[i]);
  return octets + finale.Octets();
}

void EcrireParamLog(const std::string& chemin, const std::array<Organisation, 20>& organisations, int16_t paramFinal) {
  EcrireOctets(chemin, OctetsParamLog(organisations, paramFinal));
}

std::string OctetsSerie(const SerieDonnees& serie) {
  EnregistrementFixe e(kLongueurSerie);
  e.Texte(0, serie.CodeSerie, 12).Texte(12, serie.Intitule, 22).Flottants(34, serie.Valeur.data(), 14);
  return e.Octets();
}

void EcrireSeries(const std::string& chemin, const std::vector<SerieDonnees>& series) {
  std::string octets;
  for (const SerieDonnees& serie : series) octets += OctetsSerie(serie);
  EcrireOctets(chemin, octets);
}

SerieDonnees Serie(const std::string& code, const std::string& intitule, std::initializer_list<float> valeurs) {
  SerieDonnees serie{code, intitule, {}};
  std::copy_n(valeurs.begin(), std::min<std::size_t>(valeurs.size(), serie.Valeur.size()), serie.Valeur.begin());
  return serie;
}

std::string OctetsEntreeCatalogue(const EntreeCatalogue& entree) {
  EnregistrementFixe e(kLongueurEntreeCatalogue);
  e.Texte(0, entree.CodeCatalogue, 12)
      .Texte(12, entree.Intitule, 22)
      .Texte(34, entree.Groupe1, 40)
      .Texte(74, entree.Groupe2, 40)
      .Entier16(114, entree.Sorte)
      .Entier16(116, entree.Reserve116);
  return e.Octets();
}

void EcrireCatalogue(const std::string& chemin, const std::vector<EntreeCatalogue>& entrees) {
  std::string octets;
  for (const EntreeCatalogue& entree : entrees) octets += OctetsEntreeCatalogue(entree);
  EcrireOctets(chemin, octets);
}

}  // namespace norvane::construction
