// GRAPHIQUE <code gph(...) ou titre d'un modèle> <fichier.png> [<dossier .TVL>]:
// draws one chart into a PNG file, from a code as it stands in a template or
// from a model of graph.txt, with the dossier's values or, without a
// dossier, the example values. Users check a chart with it, and so do tests.
#include "app/VerbeGraphique.h"

#include <iostream>
#include <optional>
#include <random>

#include "app/ModelesGraphiques.h"
#include "app/Travail.h"
#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "graphs/CodeGraphique.h"
#include "graphs/GraphiquesGeneration.h"
#include "graphs/SeriesGraphique.h"
#include "graphs/render/Fabriques.h"
#include "study/DossierGeneral.h"
#include "study/Series.h"

namespace norvane {
namespace {

// "gph(...)" of the first argument, Windows-1252: the argument itself when it
// is a code (with or without "#tvl(" ... ")#"), otherwise the code of the
// model of that title.
std::optional<std::string> CodeDemande(Application& application, const std::string& argument) {
  std::string texte = Trim(argument);
  if (CommencePar(texte, "#tvl(", true) && FinitPar(texte, ")#")) texte = texte.substr(5, texte.size() - 7);
  if (CommencePar(texte, "gph(", true)) return Utf8VersCp1252(texte);
  const std::optional<std::string> insere = CodeModeleGraphique(application, argument);
  if (!insere) {
    std::cerr << "Aucun modèle de graphique nommé « " << Trim(argument) << " » dans graph.txt.\n";
    return std::nullopt;
  }
  return insere->substr(5, insere->size() - 7);
}

// The model of the code; std::nullopt, with a message, when it is damaged.
std::optional<ModeleGraphique> ModeleDuCode(Application& application, const std::string& code) {
  const std::string corps = CorpsCodeGraphique(code);
  if (corps.find(';') == std::string::npos || !FinitPar(code, ")")) {
    std::cerr << "Code de graphique illisible : " << Cp1252VersUtf8(code.substr(0, 60))
              << (code.size() > 60 ? "..." : "") << "\nUn code s'écrit gph(titre;type;...;) suivi de ses séries.\n";
    return std::nullopt;
  }
  ModeleGraphique modele;
  const IssueLectureCode issue = LireCodeGraphique(modele, PreparerCodeGraphique(corps));
  if (issue.etat != LectureCode::Complete) {
    SignalerLectureCode(application.messages, modele, issue);
    return std::nullopt;
  }
  std::mt19937 generateur(std::random_device{}());
  CompleterCouleurs(modele, [&generateur] { return std::uniform_real_distribution<double>(0.0, 1.0)(generateur); });
  return modele;
}

// Slot 0 gets the dossier of the argument, read; false when it cannot be.
bool ChargerDossier(Application& application, const std::string& dossier) {
  if (!PlacerDossiers(application, dossier)) return false;
  const auto probleme = ExaminerDossier(DossierDuSlot(application.session, 0));
  if (probleme && probleme->Bloquant()) {
    std::cerr << "Norvane : " << probleme->Texte() << "\n";
    return false;
  }
  ChargerInfoDossier(application.session);
  return true;
}

}  // namespace

int VerbeGraphique(Application& application) {
  const std::string fichier = application.Param(3);
  if (EstBlanc(application.Param(2)) || EstBlanc(fichier)) {
    std::cerr << "Usage : norvane GRAPHIQUE <code gph(...) ou titre d'un modèle> <fichier.png> [<dossier .TVL>]\n";
    return 2;
  }
  const std::string dossier = application.Param(4);
  if (!dossier.empty() && !ChargerDossier(application, dossier)) return 1;
  const std::optional<std::string> code = CodeDemande(application, application.Param(2));
  if (!code) return 1;
  const std::optional<ModeleGraphique> modele = ModeleDuCode(application, *code);
  if (!modele) return 1;
  GrilleGraphique grille;
  const SourceValeursGraphique source = SourceDeSession(application.session, dossier.empty());
  if (!RemplirGrille(*modele, source, grille, application.messages)) return 1;
  if (!EcrireGraphiquePng(*modele, grille, fichier)) {
    std::cerr << "Impossible d'écrire le graphique dans " << fichier << ".\n";
    return 1;
  }
  std::cout << "Graphique écrit : " << fichier << "\n";
  return 0;
}

}  // namespace norvane
