#include "study/ApercuDossier.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <vector>

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "study/DossierGeneral.h"
#include "study/FichierSeries.h"
#include "study/ParamLog.h"
#include "study/Series.h"

namespace norvane {
namespace {

// Trimmed field, shown in UTF-8, control bytes as "?".
std::string Montrer(std::string_view champ) {
  std::string texte = Trim(champ);
  for (char& c : texte) {
    if (static_cast<unsigned char>(c) < 0x20) c = '?';
  }
  return Cp1252VersUtf8(texte);
}

std::size_t LargeurAffichee(std::string_view utf8) {
  return static_cast<std::size_t>(
      std::count_if(utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

std::string Cadrer(const std::string& utf8, std::size_t largeur, bool aDroite) {
  const std::size_t affichee = LargeurAffichee(utf8);
  const std::string marge(affichee < largeur ? largeur - affichee : 0, ' ');
  return aDroite ? marge + utf8 : utf8 + marge;
}

bool AControles(std::string_view texte) {
  return std::any_of(texte.begin(), texte.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; });
}

void Ligne(std::ostream& sortie, const std::string& libelle, const std::string& valeur) {
  sortie << "  " << libelle << " : " << valeur << "\n";
}

void Personne(std::ostream& sortie, const DossierGeneral& d, std::size_t i) {
  const std::string libelle = i == 0 ? "Exploitant (0)" : "Associé " + std::to_string(i);
  Ligne(sortie, libelle,
        Montrer(d.NomAssocie[i]) + " ; JA : " + (d.AssocieJA[i] == 1 ? "oui" : "non") +
            " ; né(e) le : " + Montrer(d.DateNaissance[i]) + " ; situation : " + Montrer(d.Situation[i]));
}

void Description(std::ostream& sortie, const std::string& description) {
  sortie << "  Description du projet :\n";
  std::size_t debut = 0;
  while (debut <= description.size()) {
    if (debut > 0 && debut < description.size() && description[debut] == '\n') ++debut;  // the LF of CR LF
    const std::size_t fin = std::min(description.find('\r', debut), description.size());
    const std::string ligne = Montrer(std::string_view(description).substr(debut, fin - debut));
    if (!ligne.empty()) sortie << "      " << ligne << "\n";
    debut = fin + 1;
  }
}

void ChampsGeneraux(std::ostream& sortie, const DossierGeneral& d) {
  Ligne(sortie, "Chemin du dossier Tervol", Montrer(d.CheminDossierTervol));
  Ligne(sortie, "Titre du dossier", Montrer(d.NomDossierTervol));
  Ligne(sortie, "Nom de l'exploitation", Montrer(d.NomExploitation));
  Ligne(sortie, "Adresse", Montrer(d.Adresse));
  Ligne(sortie, "Commune", Montrer(d.Commune));
  Ligne(sortie, "Réserve (octet 190)", std::to_string(d.Reserve190));
  Ligne(sortie, "Année de début", std::to_string(d.AnneeDebut));
  Ligne(sortie, "Nombre d'années d'étude", std::to_string(d.NbAnEtude));
  Ligne(sortie, "Type d'exploitation",
        std::to_string(d.TypeExploitation) + (d.EstSociete() ? " (société)" : " (exploitation individuelle)"));
  Description(sortie, d.DescriptionProjet);
  Ligne(sortie, "Date de début", Montrer(d.DateDebut));
  Ligne(sortie, "Conseiller", Montrer(d.Conseiller));
  Ligne(sortie, "Nombre d'associés", std::to_string(d.NbAssocies));
  for (std::size_t i = 0; i < d.NomAssocie.size(); ++i) {
    if (i == 0 || static_cast<int>(i) <= d.NbAssocies || !EstBlanc(d.NomAssocie[i])) Personne(sortie, d, i);
  }
  Ligne(sortie, "Région agricole", Montrer(d.RegionAgricole));
  Ligne(sortie, "Autres activités", Montrer(d.AutresActivites));
  Ligne(sortie, "Banque", Montrer(d.Banque));
  Ligne(sortie, "Numéro d'adhérent", Montrer(d.NumeroAdherent));
  for (std::size_t p = 0; p < d.ModeCom.size(); ++p) {
    if (EstBlanc(d.ModeCom[p][0]) && EstBlanc(d.ModeCom[p][1])) continue;
    Ligne(sortie, "Produit " + std::to_string(p),
          Montrer(d.ModeCom[p][0]) + " ; commercialisation : " + Montrer(d.ModeCom[p][1]));
  }
  Ligne(sortie, "Mois de remboursement de TVA", std::to_string(d.MoisTva));
  Ligne(sortie, "Réserve (octet 2056)", Montrer(d.Reserve2056));
  Ligne(sortie, "Devise", std::to_string(d.Devise) + (d.Devise == 0 ? " (franc)" : " (euro)"));
  Ligne(sortie, "Téléphone", Montrer(d.Telephone));
  Ligne(sortie, "Fax", Montrer(d.Fax));
}

// "  ! lecture interrompue : fichier X, enregistrement n, champ C, octet o".
void Interruption(std::ostream& sortie, const ErreurLecture& erreur) {
  sortie << "  ! lecture interrompue : " << erreur.Position() << "\n";
}

// The general record file; false when there is none to read. Only its 2110
// bytes are read, whatever its size.
bool EnregistrementGeneral(std::ostream& sortie, const std::string& dossier, const std::string& nom,
                           DossierGeneral& d) {
  sortie << "== Enregistrement général : " << nom << " ==\n";
  const std::string chemin = dossier + "/" + nom;
  const auto taille = TailleFichierReguliere(chemin);
  const auto octets = LireFichier(chemin, kLongueurDossierGeneral);
  if (!octets || !taille) {
    sortie << "  ! fichier " << nom << " introuvable ou illisible dans le dossier\n";
    return false;
  }
  if (*taille < kLongueurDossierGeneral) {
    sortie << "  ! fichier " << nom << " incomplet : " << *taille << " octets au lieu de "
           << kLongueurDossierGeneral << " ; les champs à partir de " << ChampDossierGeneral(octets->size())
           << " (octet " << *taille << ") manquent\n";
  } else if (*taille > kLongueurDossierGeneral) {
    sortie << "  ! fichier " << nom << " : " << *taille << " octets au lieu de " << kLongueurDossierGeneral
           << " ; la suite est ignorée\n";
  }
  const Resultat<void> lu = LireDossierGeneral(*octets, d, nom);
  if (!lu) Interruption(sortie, lu.Erreur());
  ChampsGeneraux(sortie, d);
  return true;
}

void Organisations(std::ostream& sortie, const std::array<Organisation, 20>& organisations, int16_t paramFinal,
                   const Resultat<void>& lecture) {
  sortie << "\n== Organisations (ParamLog/Tervol.par) ==\n";
  if (!lecture) {
    sortie << "  ! " << lecture.Erreur().texte << "\n";
    Interruption(sortie, lecture.Erreur());
  }
  bool aucune = true;
  for (std::size_t i = 0; i < organisations.size(); ++i) {
    const Organisation& o = organisations[i];
    if (EstBlanc(o.Nom) && EstBlanc(o.Sigle) && EstBlanc(o.Ville) && EstBlanc(o.Logo)) continue;
    aucune = false;
    Ligne(sortie, "Organisation " + std::to_string(i),
          Montrer(o.Nom) + " ; sigle : " + Montrer(o.Sigle) + " ; rue : " + Montrer(o.Rue) +
              " ; ville : " + Montrer(o.Ville) + " ; tél. : " + Montrer(o.Telephone) + " ; fax : " + Montrer(o.Fax) +
              " ; logo : " + Montrer(o.Logo));
  }
  if (aucune) sortie << "  (aucune organisation renseignée)\n";
  Ligne(sortie, "ParamFinal", std::to_string(paramFinal));
}

// Columns shown: 0 to NbAnEtude, all 14 when the record's count is unusable.
int DerniereColonne(const DossierGeneral& d) { return d.NbAnEtude >= 1 && d.NbAnEtude <= 13 ? d.NbAnEtude : 13; }

std::string Entete(const DossierGeneral& d, int colonne) {
  return d.AnneeDebut > 0 ? std::to_string(d.AnneeDebut - 1 + colonne) : "col. " + std::to_string(colonne);
}

void Enregistrement(std::ostream& sortie, const SerieDonnees& s, std::size_t numero, const DossierGeneral& dossier) {
  const std::size_t barre = s.Intitule.find('|');
  const std::string libelle = Montrer(s.Intitule.substr(0, barre));
  const std::string unite = barre == std::string::npos ? "" : Montrer(s.Intitule.substr(barre + 1));
  const int16_t decimales = DecimalesDeCode(s.CodeSerie);
  sortie << Cadrer(std::to_string(numero), 5, true) << "  " << Cadrer(Montrer(s.CodeSerie), 12, false) << " "
         << Cadrer(libelle, 22, false) << " " << Cadrer(unite, 10, false);
  std::vector<int> nonNumeriques;
  for (int c = 0; c <= DerniereColonne(dossier); ++c) {
    const float v = s.Valeur[static_cast<std::size_t>(c)];
    if (!std::isfinite(v)) nonNumeriques.push_back(c);
    const int16_t d = decimales >= 0 && decimales <= 6 ? decimales : 7;
    const std::string texte = std::isfinite(v) ? Cp1252VersUtf8(FormatNombre(v, d, false)) : "?";
    sortie << Cadrer(texte, 13, true);
  }
  sortie << "\n";
  if (AControles(s.CodeSerie) || AControles(s.Intitule)) {
    sortie << "  ! enregistrement " << numero << " : caractères de contrôle dans le code ou l'intitulé\n";
  }
  for (int c : nonNumeriques) {
    sortie << "  ! enregistrement " << numero << " : valeur non numérique en colonne " << c << "\n";
  }
}

// What a series file holds: its size, its whole records, and how many of
// them can hold data (the rest lie past the end of its real data).
struct EtendueSeries {
  uint64_t taille;
  uint64_t complets;
  uint64_t lus;
};

EtendueSeries Etendue(const std::string& cheminReel, uint64_t taille) {
  const uint64_t complets = taille / kLongueurSerie;
  const uint64_t fin = FinDonneesReelles(cheminReel, taille);
  return {taille, complets, std::min(complets, (fin + kLongueurSerie - 1) / kLongueurSerie)};
}

void EnteteSeries(std::ostream& sortie, const EtendueSeries& e, const std::string& nom, const DossierGeneral& d) {
  if (e.taille % kLongueurSerie != 0) {
    sortie << "  ! fichier " << nom << " : " << e.taille << " octets, pas un multiple de " << kLongueurSerie
           << " : l'enregistrement " << e.complets + 1 << " est incomplet (" << e.taille % kLongueurSerie
           << " octets) et n'est pas affiché\n";
  }
  if (e.lus < e.complets) {
    sortie << "  ! fichier " << nom << " : " << e.taille << " octets dont seuls les " << e.lus * kLongueurSerie
           << " premiers portent des données : les enregistrements " << e.lus + 1 << " à " << e.complets
           << " ne sont que des zéros et ne sont pas lus\n";
  }
  sortie << Cadrer("N°", 5, true) << "  " << Cadrer("Code", 12, false) << " " << Cadrer("Intitulé", 22, false) << " "
         << Cadrer("Unité", 10, false);
  for (int c = 0; c <= DerniereColonne(d); ++c) sortie << Cadrer(Entete(d, c), 13, true);
  sortie << "\n";
}

// Reads the records 1 to e.lus a block at a time; returns how many were empty.
uint64_t ListerSeries(std::ostream& sortie, std::istream& flux, const EtendueSeries& e, const DossierGeneral& d) {
  constexpr uint64_t kParBloc = 1024;
  std::string bloc;
  uint64_t vides = 0;
  for (uint64_t premier = 0; premier < e.lus; premier += kParBloc) {
    const uint64_t nombre = std::min(kParBloc, e.lus - premier);
    bloc.resize(static_cast<std::size_t>(nombre * kLongueurSerie));
    flux.read(bloc.data(), static_cast<std::streamsize>(bloc.size()));
    LecteurBinaire lecteur(std::string_view(bloc).substr(0, static_cast<std::size_t>(flux.gcount())),
                           premier * kLongueurSerie);
    for (uint64_t i = 0; i < nombre; ++i) {
      SerieDonnees serie = SerieVide();
      if (!LireSerieDonnees(lecteur, serie)) return vides;
      if (EstSerieVide(serie)) {
        ++vides;
      } else {
        Enregistrement(sortie, serie, static_cast<std::size_t>(premier + i + 1), d);
      }
    }
  }
  return vides;
}

// The record cut by the end of the file: where its reading stops.
void EnregistrementIncomplet(std::ostream& sortie, std::istream& flux, const EtendueSeries& e, const std::string& nom) {
  if (e.taille % kLongueurSerie == 0) return;
  std::string reste(static_cast<std::size_t>(e.taille % kLongueurSerie), '\0');
  flux.clear();
  flux.seekg(static_cast<std::streamoff>(e.complets * kLongueurSerie));
  flux.read(reste.data(), static_cast<std::streamsize>(reste.size()));
  LecteurBinaire lecteur(reste, e.complets * kLongueurSerie);
  SerieDonnees serie = SerieVide();
  if (!LireSerieDonnees(lecteur, serie)) Interruption(sortie, lecteur.Erreur({}, nom, e.complets + 1));
}

// A series file, streamed: memory stays a block of records whatever its size.
void FichierSeries(std::ostream& sortie, const std::filesystem::path& fichier, const DossierGeneral& d) {
  const std::string nom = fichier.filename().string();
  sortie << "\n-- " << nom << " --\n";
  const auto taille = TailleFichierReguliere(fichier.string());
  std::ifstream flux(fichier, std::ios::binary);
  if (!taille || !flux) {
    sortie << "  ! fichier " << nom << " illisible\n";
    return;
  }
  const EtendueSeries e = Etendue(fichier.string(), *taille);
  EnteteSeries(sortie, e, nom, d);
  const uint64_t vides = ListerSeries(sortie, flux, e, d) + (e.complets - e.lus);
  EnregistrementIncomplet(sortie, flux, e, nom);
  sortie << "  " << e.complets << " enregistrement(s)";
  if (vides > 0) sortie << ", dont " << vides << " vide(s) non affiché(s)";
  sortie << "\n";
}

std::vector<std::filesystem::path> FichiersSeries(const std::string& dossier) {
  std::vector<std::filesystem::path> fichiers;
  std::error_code erreur;
  for (const auto& entree : std::filesystem::directory_iterator(dossier, erreur)) {
    if (entree.is_regular_file(erreur) && EgalSansCasse(entree.path().extension().string(), ".don")) {
      fichiers.push_back(entree.path());
    }
  }
  std::sort(fichiers.begin(), fichiers.end(), [](const auto& a, const auto& b) {
    return Majuscules(a.filename().string()) < Majuscules(b.filename().string());
  });
  return fichiers;
}

bool Decrire(const std::string& cheminDossier, const std::array<Organisation, 20>& organisations, int16_t paramFinal,
             const Resultat<void>& lectureParamLog, std::ostream& sortie) {
  std::string chemin = Trim(cheminDossier);
  std::replace(chemin.begin(), chemin.end(), '\\', '/');
  while (chemin.size() > 1 && chemin.back() == '/') chemin.pop_back();
  const auto dossier = ResoudreChemin(chemin);
  std::error_code erreur;
  if (chemin.empty() || !dossier || !std::filesystem::is_directory(*dossier, erreur)) {
    sortie << "Dossier introuvable : " << chemin << "\n";
    return false;
  }
  sortie << "Dossier : " << *dossier << "\n";
  DossierGeneral d;
  const bool lisible = EnregistrementGeneral(sortie, *dossier, std::filesystem::path(*dossier).filename().string(), d);
  Organisations(sortie, organisations, paramFinal, lectureParamLog);
  sortie << "\n== Séries ==\n";
  const auto fichiers = FichiersSeries(*dossier);
  if (fichiers.empty()) sortie << "  (aucun fichier .DON)\n";
  for (const auto& fichier : fichiers) FichierSeries(sortie, fichier, d);
  return lisible;
}

}  // namespace

bool DecrireDossier(const std::string& cheminDossier, const std::array<Organisation, 20>& organisations,
                    int16_t paramFinal, std::ostream& sortie) {
  return Decrire(cheminDossier, organisations, paramFinal, {}, sortie);
}

bool DecrireDossier(const std::string& cheminDossier, const Session& session, std::ostream& sortie) {
  // Read again only to say where a damaged parameter file stops.
  Session relue;
  relue.RepWinTervol = session.RepWinTervol;
  const Resultat<void> lecture = LireParamLog(relue);
  return Decrire(cheminDossier, session.Organisations, session.ParamFinal, lecture, sortie);
}

}  // namespace norvane
