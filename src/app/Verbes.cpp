#include "app/Verbes.h"

#include "app/VerbeConvertir.h"
#include "app/VerbeDossier.h"
#include "app/VerbeGraphique.h"
#include "app/VerbeIni.h"
#include "app/VerbeModeles.h"
#include "app/VerbeOuvrir.h"
#include "app/VerbePDE.h"
#include "app/VerbeVerifier.h"
#include "app/VerbesDocuments.h"
#include "app/VerbesFenetres.h"
#include "app/Version.h"
#include "frame/Texte.h"

namespace norvane {

const std::vector<Verbe>& TableVerbes() {
  static const std::vector<Verbe> table = {
      {"INI", "INI <modèle> <résultat> [ouvrir] [remplacer]",
       "crée un document sans dossier (#esp# tient lieu d'espace dans les chemins)", VerbeIni},
      {"OUVRIR", "OUVRIR <dossier .TVL> <document>",
       "ouvre un document du dossier dans LibreOffice (#tvl# pour un espace)",
       VerbeOuvrir},
      {"CREER", "CREER <dossier .TVL>", "fenêtre de création de documents sur ce dossier", VerbeCreer},
      {"CERFA", "CERFA <dossier .TVL>", "fenêtre de création du rapport PDE Cerfa sur ce dossier", VerbeCerfa},
      {"GRAPH", "GRAPH <dossier .TVL>", "édition des graphiques avec les valeurs de ce dossier", VerbeGraph},
      {"DOSSIER", "DOSSIER <dossier .TVL>",
       "affiche le contenu d'un dossier : enregistrement général, organisations, séries", VerbeDossier},
      {"GENERER", "GENERER <modèle> <résultat> [<dossier .TVL>]",
       "crée un document à partir d'un modèle et d'un dossier", VerbeGenerer},
      {"METTREAJOUR", "METTREAJOUR <document> [<dossier .TVL>]",
       "met à jour les champs d'un document résultat", VerbeMettreAJour},
      {"EXPLIQUER", "EXPLIQUER <texte> [<dossier .TVL>]", "explique chaque code du texte et sa valeur",
       VerbeExpliquer},
      {"MODELES", "MODELES [TABLEAUX \"<nom>\"]",
       "affiche l'arbre des modèles enregistrés, ou le code #tvl(...)# d'un modèle", VerbeModeles},
      {"GRAPHIQUE", "GRAPHIQUE <code gph(...) ou titre d'un modèle> <fichier.png> [<dossier .TVL>]",
       "dessine un graphique dans un fichier PNG, avec les valeurs du dossier ou des valeurs d'exemple",
       VerbeGraphique},
      {"CONVERTIR", "CONVERTIR <document>... --format=doc|odt|pdf|rtf [--dossier-sortie=<dossier>]",
       "convertit des documents par LibreOffice, lancé une seule fois", VerbeConvertir},
      {"PDE", "PDE <dossier .TVL> <résultat> [--page=0..15] [--annees=N] [--reponse=oui|non]",
       "crée le rapport PDE Cerfa du dossier à partir des modèles livrés (Norvane/PDE/) : en entier, "
       "ou la seule page --page ; en .rtf, ou en .pdf, .doc, .odt par LibreOffice",
       VerbePDE},
      {"VERIFIER", "VERIFIER <modèle.tvm> [<dossier .TVL>] [--format=json]",
       "vérifie chaque code d'un modèle (place, sens, erreurs) sans rien générer", VerbeVerifier},
  };
  return table;
}

int ExecuterVerbe(Application& application) {
  const std::string nom = Majuscules(application.Param(1));
  for (const Verbe& verbe : TableVerbes()) {
    if (nom == verbe.nom) return verbe.executer(application);
  }
  return 0;
}

std::string TexteAide() {
  std::string texte =
      "Norvane " NORVANE_VERSION " — documents d'étude à partir des modèles RTF et des dossiers Tervol.\n\n"
      "Usage : norvane [VERBE arguments...] [options]\n"
      "Sans argument, Norvane démarre sa barre de commandes.\n\nVerbes :\n";
  for (const Verbe& verbe : TableVerbes()) {
    texte += "  " + std::string(verbe.syntaxe) + "\n      " + verbe.aide + "\n";
  }
  texte +=
      "\nOptions :\n"
      "  --remplacer          remplace le résultat sans poser de question\n"
      "  --ouvrir             ouvre le résultat dans le traitement de texte lié\n"
      "  --reponse=oui|non    réponse donnée à toute question\n"
      "  --comparer=<dossier> dossier à comparer (répétable, emplacements 1 à 9)\n"
      "  --annees=N           nombre d'années du cadre Cerfa (0 ou un texte non numérique : 5)\n"
      "  --page=N             page du rapport PDE : 1 à 15, 0 pour le rapport entier (par défaut)\n"
      "  --format=F           format produit par CONVERTIR : doc, odt, pdf ou rtf\n"
      "  --dossier-sortie=D   dossier où CONVERTIR écrit (par défaut, celui de chaque document)\n"
      "  --help               affiche cette aide\n"
      "  --version            affiche la version\n";
  return texte;
}

}  // namespace norvane
