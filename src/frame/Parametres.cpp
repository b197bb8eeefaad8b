// Editeur.svg: 45 fixed records of 128 bytes; record n starts at byte
// (n - 1) * 128. A record holds one value, and what follows the value inside
// its record is never read (written as zeros). The file ends right after the
// value of record 45, so it is shorter than 45 * 128 bytes.
//
//   integer record: OFFSET 0, SIZE 2  int16, little-endian
//   text record:    OFFSET 0, SIZE 2  int16 length L (0 to 126)
//                   OFFSET 2, SIZE L  Windows-1252 bytes
//
//   REC.     TYPE     MEANING
//   1        text     CheminEditeur
//   2        integer  OublierRepModeles
//   3        integer  BarreMasquable
//   4        integer  ModeInsertion
//   5        integer  MasquerPopup
//   6..17    text     RepDossier(i) at 6 + 2i, NomDossier(i) at 7 + 2i, i = 0..5
//   18..27   text     FormatLigne(k) first cell at 18 + 2k, other cells at 19 + 2k, k = 0..4
//   28       integer  SansAnnotation (forced to 1 after every load)
//   29       integer  CouleurMarqueur
//   30       integer  OptimisationOOo
//   31       text     RepModeles
//   32, 33   text     FormatLigne(5) first cell, other cells
//   34..42   text     spare: written empty, read and dropped
//   43       integer  DelaiSvgAuto
//   44       integer  TailleCellule
//   45       text     AlignCellule
#include "frame/Parametres.h"

#include <fcntl.h>
#include <unistd.h>

#include <optional>
#include <type_traits>

#include "frame/LecteurBinaire.h"
#include "frame/EcritureAtomique.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {
namespace {

constexpr std::size_t kTailleRecord = 128;
constexpr std::size_t kTexteMax = kTailleRecord - 2;
constexpr std::size_t kNbRecords = 45;

// Calls `visiter(numero, champ, libelle)` for the 45 records in file order;
// `champ` is an int16_t or a std::string of `contenu` (const or not).
template <typename Contenu, typename Visiteur>
void ParcourirRecords(Contenu& contenu, Visiteur&& visiter) {
  auto& o = contenu.options;
  visiter(1, o.CheminEditeur, "le chemin de l'éditeur");
  visiter(2, o.OublierRepModeles, "");
  visiter(3, o.BarreMasquable, "");
  visiter(4, o.ModeInsertion, "");
  visiter(5, o.MasquerPopup, "");
  for (std::size_t i = 0; i < 6; ++i) {
    const int n = 6 + 2 * static_cast<int>(i);
    visiter(n, contenu.RepDossier[i], "le répertoire d'un dossier");
    visiter(n + 1, contenu.NomDossier[i], "le nom d'un dossier");
  }
  for (std::size_t k = 0; k < 5; ++k) {
    const int n = 18 + 2 * static_cast<int>(k);
    visiter(n, o.FormatLigne[k][0], "un format de ligne");
    visiter(n + 1, o.FormatLigne[k][1], "un format de ligne");
  }
  visiter(28, o.SansAnnotation, "");
  visiter(29, o.CouleurMarqueur, "");
  visiter(30, o.OptimisationOOo, "");
  visiter(31, o.RepModeles, "le répertoire des modèles");
  visiter(32, o.FormatLigne[5][0], "un format de ligne");
  visiter(33, o.FormatLigne[5][1], "un format de ligne");
  std::conditional_t<std::is_const_v<Contenu>, const std::string, std::string> reserve;
  for (int n = 34; n <= 42; ++n) visiter(n, reserve, "");
  visiter(43, o.DelaiSvgAuto, "");
  visiter(44, o.TailleCellule, "");
  visiter(45, o.AlignCellule, "l'alignement des cellules");
}

void LireRecord(std::string_view octets, int numero, int16_t& valeur) {
  LecteurBinaire lecteur(octets);
  lecteur.Aller(static_cast<std::size_t>(numero - 1) * kTailleRecord);
  lecteur.Lire(valeur);
}

void LireRecord(std::string_view octets, int numero, std::string& valeur) {
  LecteurBinaire lecteur(octets);
  lecteur.Aller(static_cast<std::size_t>(numero - 1) * kTailleRecord);
  int16_t longueur = 0;
  if (!lecteur.Lire(longueur) || longueur < 0 || static_cast<std::size_t>(longueur) > kTexteMax) return;
  std::string texte;
  if (lecteur.LireTexte(texte, static_cast<std::size_t>(longueur))) valeur = std::move(texte);
}

std::string CheminFichier(const std::string& repNorvane) {
  return AjouterAntislash(repNorvane) + kNomFichierParametres;
}

}  // namespace

ContenuParametres DecoderParametres(std::string_view octets) {
  ContenuParametres contenu;
  if (octets.size() >= 2) {
    ParcourirRecords(contenu, [&](int numero, auto& champ, const char*) { LireRecord(octets, numero, champ); });
  }
  contenu.options.SansAnnotation = 1;
  return contenu;
}

Resultat<void> EncoderParametres(const ContenuParametres& contenu, std::string& octets) {
  octets.clear();
  std::optional<ErreurLecture> erreur;
  ParcourirRecords(contenu, [&](int numero, const auto& champ, const char* libelle) {
    if (erreur) return;
    const std::size_t debut = octets.size();
    if constexpr (std::is_same_v<std::decay_t<decltype(champ)>, int16_t>) {
      EcrireEntier16(octets, champ);
    } else {
      if (champ.size() > kTexteMax) {
        erreur = ErreurLecture{};
        erreur->texte = "Impossible d'enregistrer les paramètres : " + std::string(libelle) +
                        " dépasse 126 caractères (record " + std::to_string(numero) + ").";
        erreur->enregistrement = static_cast<uint64_t>(numero);
        return;
      }
      EcrireEntier16(octets, static_cast<int16_t>(champ.size()));
      octets += champ;
    }
    if (numero < static_cast<int>(kNbRecords)) octets.resize(debut + kTailleRecord, '\0');
  });
  if (!erreur) return {};
  octets.clear();
  return *erreur;
}

ContenuParametres ChargerParametres(const std::string& repNorvane) {
  if (!DossierExiste(repNorvane)) CreeDossier(repNorvane);
  const std::string chemin = CheminFichier(repNorvane);
  if (!ResoudreChemin(chemin)) {
    const int fd = ::open(CheminReel(chemin).c_str(), O_WRONLY | O_CREAT, 0644);
    if (fd >= 0) ::close(fd);
  }
  // Only the 45 records can hold settings: a larger file is not read further.
  return DecoderParametres(LireFichier(chemin, kNbRecords * kTailleRecord).value_or(std::string()));
}

Resultat<void> EnregistrerParametres(const ContenuParametres& contenu, const std::string& repNorvane) {
  std::string octets;
  if (Resultat<void> encode = EncoderParametres(contenu, octets); !encode) return encode;
  if (!DossierExiste(repNorvane)) CreeDossier(repNorvane);
  const std::string chemin = CheminFichier(repNorvane);
  if (!EcrireFichierAtomique(chemin, octets)) {
    ErreurLecture erreur;
    erreur.texte = "Impossible d'écrire le fichier des paramètres " + CheminReel(chemin) + ".";
    erreur.fichier = CheminReel(chemin);
    return erreur;
  }
  return {};
}

void ChargerOptions(SessionCadre& session) {
  ContenuParametres contenu = ChargerParametres(session.RepNorvane);
  session.options = std::move(contenu.options);
  for (std::size_t i = 0; i < contenu.RepDossier.size(); ++i) {
    session.RepDossier[i] = std::move(contenu.RepDossier[i]);
    session.NomDossier[i] = std::move(contenu.NomDossier[i]);
  }
}

Resultat<void> EnregistrerOptions(const SessionCadre& session) {
  ContenuParametres contenu;
  contenu.options = session.options;
  for (std::size_t i = 0; i < contenu.RepDossier.size(); ++i) {
    contenu.RepDossier[i] = session.RepDossier[i];
    contenu.NomDossier[i] = session.NomDossier[i];
  }
  return EnregistrerParametres(contenu, session.RepNorvane);
}

std::string FormatLigneEffectif(const Options& options, int typeLigne, int membre) {
  if (typeLigne < 0 || typeLigne >= static_cast<int>(options.FormatLigne.size()) || membre < 0 || membre > 1) {
    return kFormatLigneParDefaut;
  }
  const std::string& format = options.FormatLigne[static_cast<std::size_t>(typeLigne)][static_cast<std::size_t>(membre)];
  return EstBlanc(format) ? std::string(kFormatLigneParDefaut) : format;
}

}  // namespace norvane
