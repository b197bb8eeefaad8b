// The vocabulary of general fields: each word of a code that shows a field of
// the dossier's general record, with its help phrase. Words are compared
// exactly, case included, and the first row that matches decides.
#include "template/ChampsGeneraux.h"

#include <span>
#include <string_view>
#include <vector>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/TexteEtude.h"
#include "template/Interpreteur.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

using FonctionValeur = std::string (*)(Generation&, int indice);

// A word, or a family of words "<nom><i>" for i from `premier` to `dernier`.
// In the help, "<n>" and "<d>" stand for i.
struct Mot {
  std::string_view nom;
  int premier;
  int dernier;
  FonctionValeur valeur;
  std::string_view aide;
  FormeAide forme = FormeAide::Normale;
  std::string_view precision = {};
};

constexpr int kSeul = -1;

const DossierGeneral& Info(const Generation& g) { return g.session.InfoDossier; }

// A field of the dossier as it may enter the RTF: braces and "\" escaped,
// stray control bytes dropped.
std::string Etude(std::string_view champ) { return TexteEtudePourRtf(champ); }

std::vector<std::string> LignesDescription(const DossierGeneral& info) {
  std::vector<std::string> lignes;
  std::string_view texte = info.DescriptionProjet;
  for (auto p = texte.find('\r'); p != std::string_view::npos; p = texte.find('\r')) {
    lignes.emplace_back(texte.substr(0, p));
    texte.remove_prefix(p + 1);
  }
  lignes.emplace_back(texte);
  return lignes;
}

// Lines from `premiere` on (0-based), each trimmed, joined by `lien`.
std::string JoindreDescription(const DossierGeneral& info, std::size_t premiere, std::string_view lien) {
  const auto lignes = LignesDescription(info);
  std::string r;
  for (std::size_t i = premiere; i < lignes.size(); ++i) {
    if (i > premiere) r += lien;
    r += TexteEtudePourRtf(Trim(lignes[i]));
  }
  return r;
}

std::string LigneDescription(const DossierGeneral& info, int n) {
  const auto lignes = LignesDescription(info);
  return n >= 1 && static_cast<std::size_t>(n) <= lignes.size() ? TexteEtudePourRtf(lignes[static_cast<std::size_t>(n - 1)])
                                                                 : std::string();
}

std::string ModeCommercialisation(const DossierGeneral& info) {
  std::string r = Utf8VersCp1252("Mode de commercialisation des produits de l'exploitation : \\par ");
  for (int i = 1; i <= 6; ++i) {
    const std::string produit = TexteEtudePourRtf(Trim(info.ModeCom[static_cast<std::size_t>(i)][0]));
    const std::string mode = TexteEtudePourRtf(Trim(info.ModeCom[static_cast<std::size_t>(i)][1]));
    if (produit.empty()) continue;
    r += "- " + produit + (mode.empty() ? Utf8VersCp1252(" : non renseigné\\par ") : " : " + mode + "\\par ");
  }
  return r;
}

std::string ModeCommercialisation(const DossierGeneral& info, int i) {
  const std::string produit = TexteEtudePourRtf(Trim(info.ModeCom[static_cast<std::size_t>(i)][0]));
  const std::string mode = TexteEtudePourRtf(Trim(info.ModeCom[static_cast<std::size_t>(i)][1]));
  if (produit.empty()) return {};
  return mode.empty() ? " " : "- " + produit + " : " + mode + " ";
}

std::string SituationExploitant(const DossierGeneral& info) {
  if (!info.EstSociete()) return TexteEtudePourRtf(Minuscules(info.Situation[0]));
  const int p = AssociePrincipal(info);
  return p < 0 ? std::string() : TexteEtudePourRtf(Minuscules(info.Situation[static_cast<std::size_t>(p)]));
}

std::string AgeExploitant(const Generation& g) {
  const auto& info = Info(g);
  const int p = info.EstSociete() ? AssociePrincipal(info) : 0;
  return AgeEnAnnees(p < 0 ? std::string() : info.DateNaissance[static_cast<std::size_t>(p)], g.Maintenant());
}

std::span<const Mot> Vocabulaire() {
  static const Mot table[] = {
      {"saut2page", kSeul, kSeul, [](Generation&, int) -> std::string { return "\\page"; },
       "#tvl(saut2page)# est le code permettant un saut de page.", FormeAide::TexteSeul},
      {"numPage2", kSeul, kSeul, [](Generation& g, int) { return NumeroPage(g, "numPage2"); },
       "un numéro de page incrémenté de 1 à chaque apparition de ce code."},
      {"numPage2bis", kSeul, kSeul, [](Generation& g, int) { return NumeroPage(g, "numPage2bis"); },
       "un numéro de page incrémenté de 1 à chaque apparition de ce code."},
      {"nomExplSoc", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).NomExploitation); },
       "le nom de l'exploitant ou de la société."},
      {"nomExplJA", kSeul, kSeul,
       [](Generation& g, int) -> std::string {
         const auto& info = Info(g);
         if (!info.EstSociete()) return Etude(info.NomExploitation);
         const int p = AssociePrincipal(info);
         return p < 0 ? std::string() : Etude(info.NomAssocie[static_cast<std::size_t>(p)]);
       },
       "le nom de l'exploitant ou du premier associé JA dans le cas d'une société."},
      {"nomExploit", kSeul, kSeul,
       [](Generation& g, int) { return Info(g).EstSociete() ? std::string() : Etude(Info(g).NomExploitation); },
       "le nom de l'exploitant ( champ laissé vide dans le cas d'une société )."},
      {"nomSociete", kSeul, kSeul,
       [](Generation& g, int) { return Info(g).EstSociete() ? Etude(Info(g).NomExploitation) : std::string(); },
       "le nom de la société ( champ laissé vide dans le cas d'une exploitation individuelle )."},
      {"nomSocAss", kSeul, kSeul, [](Generation& g, int) { return NomSocieteAssocies(Info(g)); },
       "le nom de la société avec les différents partenaires ( champ laissé vide si exploit. individuelle ).",
       FormeAide::Precision, "( avec un saut de ligne après chaque nom ) :"},
      {"sitExplJA", kSeul, kSeul, [](Generation& g, int) { return SituationExploitant(Info(g)); },
       "la situation familiale de l'exploitant ou du premier associé JA dans le cas d'une société."},
      {"ageExplJA", kSeul, kSeul, [](Generation& g, int) { return AgeExploitant(g); },
       "l'âge de l'exploitant ou du premier associé JA dans le cas d'une société."},
      {"typeSoc", kSeul, kSeul,
       [](Generation& g, int) { return Utf8VersCp1252(Info(g).EstSociete() ? "société" : "individuelle"); },
       "le type d'exploitation : individuelle ou société."},
      {"adresse", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).Adresse); },
       "l'adresse postale de l'exploitation."},
      {"commune", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).Commune); },
       "la commune où se situe l'exploitation."},
      {"tel", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).Telephone); },
       "le numéro de téléphone de l'exploitation."},
      {"fax", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).Fax); }, "le numéro de fax de l'exploitation."},
      {"regionAgri", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).RegionAgricole); },
       "la région agricole de l'exploitation."},
      {"activAutre", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).AutresActivites); },
       "la ou les autres activités de l'exploitation."},
      {"banque", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).Banque); },
       "la banque dont dépend l'exploitation."},
      {"numAdh", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).NumeroAdherent); }, "le numéro d'adhérent."},
      {"associes", kSeul, kSeul, [](Generation& g, int) { return ListeAssocies(Info(g)); },
       "les informations connues pour chaque associé dans le cas d'une société."},
      {"nbAssocies", kSeul, kSeul, [](Generation& g, int) { return std::to_string(Info(g).NbAssocies); },
       "le nombre d'associés."},
      {"nomAssocies", kSeul, kSeul, [](Generation& g, int) { return NomsAssocies(Info(g)); },
       "la liste ( noms ) des associés."},
      {"assNesLe", kSeul, kSeul, [](Generation& g, int) { return NaissancesAssocies(Info(g)); },
       "la liste des associés et leur date de naissance."},
      {"situAss", kSeul, kSeul, [](Generation& g, int) { return SituationsAssocies(Info(g)); },
       "la liste des associés et leur situation familiale."},
      {"nbAssJA", kSeul, kSeul, [](Generation& g, int) { return NombreAssociesJA(Info(g)); },
       "le nombre d'associés JA."},
      {"nomAssJA", kSeul, kSeul, [](Generation& g, int) { return NomsAssociesJA(Info(g)); },
       "la liste ( nom ) des associés JA dans le cas d'une société."},
      {"nomAss", 1, 10, [](Generation& g, int n) { return NomAssocieNumero(Info(g), n); },
       "le nom de l'associé numéro <n> dans le cas d'une société."},
      {"dateDebut", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).DateDebut); },
       "la date début de l'étude prévisionnelle."},
      {"nbAnEtude", kSeul, kSeul, [](Generation& g, int) { return std::to_string(Info(g).NbAnEtude); },
       "le nombre d'année d'étude."},
      {"conseiller", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).Conseiller); },
       "le nom du conseiller ayant mené l'étude sur Tervol."},
      {"descProjet", kSeul, kSeul, [](Generation& g, int) { return JoindreDescription(Info(g), 0, "\\par"); },
       "la description du projet."},
      {"descProjet", 1, 3, [](Generation& g, int n) { return LigneDescription(Info(g), n); },
       "la description du projet."},
      {"descProjet4etFin", kSeul, kSeul, [](Generation& g, int) { return JoindreDescription(Info(g), 3, " "); },
       "la description du projet."},
      {"nomDossier", kSeul, kSeul, [](Generation& g, int) { return Etude(Info(g).NomDossierTervol); },
       "le nom du dossier."},
      {"cheminDoss", kSeul, kSeul,
       [](Generation& g, int) { return Etude(Trim(Info(g).CheminDossierTervol)); },  // "\" doubled
       "le chemin du dossier."},
      {"dateDossier", kSeul, kSeul, [](Generation& g, int) { return DateDossier(Info(g)); },
       "la date de création du dossier."},
      {"moisTva", kSeul, kSeul, [](Generation& g, int) { return std::to_string(Info(g).MoisTva); },
       "le mois de remboursement TVA."},
      {"devise", kSeul, kSeul,
       [](Generation& g, int) { return Utf8VersCp1252(Info(g).Devise == 0 ? "Franc" : "€uro"); }, "la devise."},
      {"modeCom", kSeul, kSeul, [](Generation& g, int) { return ModeCommercialisation(Info(g)); },
       "le mode de commercialisation de chaque produit de l'exploitation."},
      {"modeCom", 1, 6, [](Generation& g, int n) { return ModeCommercialisation(Info(g), n); },
       "le mode de commercialisation du produit numéro <n> de l'exploitation."},
      {"date", 0, 9, [](Generation& g, int d) { return DateExercice(Info(g), d); },
       "la date d'exercice <d> au format suivant : <mois début/fin en clair> - <année début/fin sur 4 chiffres>."},
      {"an2Deb", 0, 9, [](Generation& g, int d) { return AnneeExercice(Info(g), d, false, 2); },
       "l'année de début d'exercice <d> sur 2 chiffres."},
      {"an2Fin", 0, 9, [](Generation& g, int d) { return AnneeExercice(Info(g), d, true, 2); },
       "l'année de fin d'exercice <d> sur 2 chiffres."},
      {"an4Deb", 0, 9, [](Generation& g, int d) { return AnneeExercice(Info(g), d, false, 4); },
       "l'année de début d'exercice <d> sur 4 chiffres."},
      {"an4Fin", 0, 9, [](Generation& g, int d) { return AnneeExercice(Info(g), d, true, 4); },
       "l'année de fin d'exercice <d> sur 4 chiffres."},
      {"mois2Deb", 0, 9, [](Generation& g, int d) { return MoisExercice(Info(g), d, false, false); },
       "le mois de début d'exercice <d> écrit en chiffres."},
      {"mois2Fin", 0, 9, [](Generation& g, int d) { return MoisExercice(Info(g), d, true, false); },
       "le mois de fin d'exercice <d> écrit en chiffres."},
      {"moisCDeb", 0, 9, [](Generation& g, int d) { return MoisExercice(Info(g), d, false, true); },
       "le mois de début d'exercice <d> écrit en clair ( abrégé si le mois fait plus de 4 lettres )."},
      {"moisCFin", 0, 9, [](Generation& g, int d) { return MoisExercice(Info(g), d, true, true); },
       "le mois de fin d'exercice <d> écrit en clair ( abrégé si le mois fait plus de 4 lettres )."},
  };
  return table;
}

// The index of `code` in the row, kSeul for a single word, or std::nullopt.
std::optional<int> Correspond(const Mot& mot, const std::string& code) {
  if (!CommencePar(code, mot.nom)) return std::nullopt;
  const std::string_view reste = std::string_view(code).substr(mot.nom.size());
  if (mot.premier == kSeul) return reste.empty() ? std::optional<int>(kSeul) : std::nullopt;
  for (int i = mot.premier; i <= mot.dernier; ++i) {
    if (reste == std::to_string(i)) return i;
  }
  return std::nullopt;
}

}  // namespace

std::string AideAvecIndice(std::string_view aide, int indice) {
  const std::string i = std::to_string(indice);
  return RemplacerTout(RemplacerTout(aide, "<n>", i), "<d>", i);
}

std::optional<IssueCode> ChampGeneral(Generation& generation, const std::string& code) {
  for (const Mot& mot : Vocabulaire()) {
    const auto indice = Correspond(mot, code);
    if (!indice) continue;
    IssueCode issue;
    issue.valeur = mot.valeur(generation, *indice);
    issue.aide = AideAvecIndice(mot.aide, *indice);
    issue.forme = mot.forme;
    issue.precision = std::string(mot.precision);
    return issue;
  }
  return std::nullopt;
}

}  // namespace norvane
