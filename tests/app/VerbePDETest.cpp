// The PDE verb: which stock template and how many years, as the creation
// dialog's PDE frame decides them (run in the program's own process on a
// Norvane folder of one-line stand-in templates), and, with the program of the
// installation tree, its refusals and the whole report made on copies of
// both example dossiers, which keep every byte.
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <sstream>

#include "app/OptionsLigne.h"
#include "app/Programme.h"
#include "app/Verbes.h"
#include "frame/Chemins.h"
#include "frame/PortsConsole.h"
#include "frame/Texte.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

namespace fs = std::filesystem;

const std::string kDossiers = std::string(NORVANE_ARBRE) + "/Dossier/";
const std::string kSociete = kDossiers + "GAEC_DES_TILLEULS.TVL";
const std::string kIndividuel = kDossiers + "MARTIN_PAUL.TVL";
constexpr char kQuestion[] = "S'agissant d'une exploitation individuelle";
constexpr char kSansDossier[] = "Aucun dossier d'étude Tervol n'est lié !";

struct Issue {
  int statut = -1;
  std::string messages;  // what the console ports showed
  std::string document;
};

// Each stand-in template names itself and prints the years it runs over.
class ChoixDuVerbe : public ::testing::Test {
 protected:
  ChoixDuVerbe() {
    for (const char* nom : {"PDECerfa", "PDECerfasoc", "PDE8", "PDE14"}) {
      d.Ecrire(std::string("Norvane/PDE/") + nom + ".tvm",
               std::string("{\\rtf1 ") + nom + " sur #tvl(nbAnEtude)# ans\\par}\r\n");
    }
    InitChemins(session, d / "Norvane");
  }

  // Runs the verb as the command line does: options taken out, questions
  // answered by --reponse or else by the box's default button.
  Issue Executer(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "PDE");
    arguments.push_back("--remplacer");
    OptionsLigne options = ExtraireOptions(arguments);
    EXPECT_TRUE(options.inconnues.empty());
    std::ostringstream sortie;
    std::istringstream entree;
    MessagesConsole messages(sortie, entree, false, options.reponse);
    ProgressionMuette progression;
    Application application{session, messages, progression, std::move(arguments), std::move(options)};
    Issue issue;
    issue.statut = ExecuterVerbe(application);
    issue.messages = sortie.str();
    issue.document = d.Lire("r.rtf");
    fs::remove(d / "r.rtf");
    return issue;
  }

  DossierTemporaire d;
  Session session;
};

TEST_F(ChoixDuVerbe, TheCompanyPagesFollowTheLegalFormOrTheAnswer) {
  struct Cas {
    std::string dossier;
    std::vector<std::string> options;
    const char* modele;
    bool question;
  };
  for (const Cas& cas : {Cas{kSociete, {}, "PDECerfasoc sur", false},
                         Cas{kSociete, {"--reponse=non"}, "PDECerfasoc sur", false},
                         Cas{kIndividuel, {"--reponse=non"}, "PDECerfa sur", true},
                         Cas{kIndividuel, {"--reponse=oui"}, "PDECerfasoc sur", true},
                         Cas{kIndividuel, {}, "PDECerfa sur", true},
                         Cas{kIndividuel, {"--page=0"}, "PDECerfa sur", true},
                         Cas{kIndividuel, {"--page=14"}, "PDE14 sur", false},
                         Cas{kSociete, {"--page=8", "--reponse=oui"}, "PDE8 sur", false}}) {
    std::vector<std::string> arguments = {cas.dossier, d / "r.rtf"};
    arguments.insert(arguments.end(), cas.options.begin(), cas.options.end());
    const Issue issue = Executer(arguments);
    const std::string quoi = cas.dossier + " " + ::testing::PrintToString(cas.options);
    EXPECT_EQ(issue.statut, 0) << quoi << "\n" << issue.messages;
    EXPECT_NE(issue.document.find(cas.modele), std::string::npos) << quoi << "\n" << issue.document;
    EXPECT_EQ(issue.messages.find(kQuestion) != std::string::npos, cas.question) << quoi;
  }
}

TEST_F(ChoixDuVerbe, TheYearsAreThoseOfTheYearsBoxFiveByDefault) {
  struct Cas {
    std::vector<std::string> options;
    int annees;
  };
  for (const Cas& cas : {Cas{{}, 5}, Cas{{"--annees=0"}, 5}, Cas{{"--annees=abc"}, 5}, Cas{{"--annees="}, 5},
                         Cas{{"--annees=3"}, 3}, Cas{{"--annees=7,6"}, 8}}) {
    std::vector<std::string> arguments = {kSociete, d / "r.rtf"};
    arguments.insert(arguments.end(), cas.options.begin(), cas.options.end());
    const Issue issue = Executer(arguments);
    EXPECT_EQ(issue.statut, 0) << ::testing::PrintToString(cas.options);
    const std::size_t p = issue.document.find("PDECerfasoc sur ");
    ASSERT_NE(p, std::string::npos) << issue.document;
    EXPECT_EQ(EntierDe(issue.document.substr(p + 16)), cas.annees) << ::testing::PrintToString(cas.options);
  }
}

TEST_F(ChoixDuVerbe, NoDossierIsRefusedWhateverTheSettingsRemember) {
  session.RepDossier[0] = kDossiers;
  session.NomDossier[0] = "GAEC_DES_TILLEULS.TVL";
  const Issue issue = Executer({});
  EXPECT_EQ(issue.statut, 1);
  EXPECT_NE(issue.messages.find(kSansDossier), std::string::npos) << issue.messages;
  EXPECT_NE(issue.messages.find("Vous devez d'abord sélectionner un dossier !"), std::string::npos);
  EXPECT_FALSE(d.Existe("r.rtf"));
}

// The program of the installation tree with its own stock templates.
const std::string kStock = std::string(NORVANE_ARBRE) + "/Norvane/PDE/";

bool PageLivree(int n) { return fs::exists(kStock + "PDE" + std::to_string(n) + ".tvm"); }

std::string EntetePage(int n) { return "Page " + std::to_string(n) + "/15"; }

TEST(VerbePDE, BadCommandLinesAreRefused) {
  const Execution sansDossier = Lancer("PDE");
  EXPECT_EQ(sansDossier.statut, 1);
  EXPECT_NE(sansDossier.sortie.find(kSansDossier), std::string::npos) << sansDossier.sortie;
  EXPECT_EQ(Lancer("PDE " + Guillemets(kSociete)).statut, 2);
  EXPECT_EQ(Lancer("PDE " + Guillemets(kSociete) + " /tmp/nv-pde-jamais.rtf --page=16").statut, 2);
  EXPECT_EQ(Lancer("PDE " + Guillemets(kSociete) + " /tmp/nv-pde-jamais.rtf --page=un").statut, 2);
  EXPECT_EQ(Lancer("PDE /pas/de/DOSSIER.TVL /tmp/nv-pde-jamais.rtf").statut, 1);
  EXPECT_FALSE(fs::exists("/tmp/nv-pde-jamais.rtf"));
  EXPECT_NE(Lancer("--help").sortie.find("  PDE <dossier .TVL> <résultat> [--page=0..15]"), std::string::npos);
}

// Every file of a folder, by its path below it, with its bytes.
std::map<std::string, std::string> Contenus(const DossierTemporaire& d, const std::string& relatif) {
  std::map<std::string, std::string> contenus;
  for (const auto& f : fs::recursive_directory_iterator(d / relatif)) {
    const std::string chemin = fs::relative(f.path(), d.Chemin()).string();
    if (f.is_regular_file()) contenus[chemin] = d.Lire(chemin);
  }
  return contenus;
}

TEST(VerbePDE, TheWholeReportLeavesBothExampleDossiersAsTheyWere) {
  ASSERT_TRUE(fs::exists(kStock + "PDECerfasoc.tvm")) << "pde_stock n'est pas construit";
  DossierTemporaire d;
  for (const char* nom : {"GAEC_DES_TILLEULS.TVL", "MARTIN_PAUL.TVL"}) {
    fs::create_directories(d / "Dossier");
    fs::copy(kDossiers + nom, d / (std::string("Dossier/") + nom), fs::copy_options::recursive);
  }
  const auto avant = Contenus(d, "Dossier");
  const std::string societe = Guillemets(d / "Dossier/GAEC_DES_TILLEULS.TVL");
  const std::string individuel = Guillemets(d / "Dossier/MARTIN_PAUL.TVL");

  const Execution complet = Lancer("PDE " + societe + " " + Guillemets(d / "societe.rtf") + " --remplacer");
  EXPECT_EQ(complet.statut, 0) << complet.sortie;
  EXPECT_EQ(complet.sortie.find(kQuestion), std::string::npos);
  const std::string rapportSociete = d.Lire("societe.rtf");
  const Execution sansFiches = Lancer("PDE " + individuel + " " + Guillemets(d / "individuel.rtf") + " --reponse=non");
  EXPECT_EQ(sansFiches.statut, 0) << sansFiches.sortie;
  const std::string rapportIndividuel = d.Lire("individuel.rtf");
  const Execution fiche = Lancer("PDE " + individuel + " " + Guillemets(d / "fiche.rtf") + " --page=14");
  if (PageLivree(14)) {
    EXPECT_EQ(fiche.statut, 0) << fiche.sortie;
  }
  // A result inside a dossier is refused, and the dossier keeps its files.
  EXPECT_EQ(Lancer("PDE " + societe + " " + Guillemets(d / "Dossier/GAEC_DES_TILLEULS.TVL/pde.rtf")).statut, 1);

  for (int n = 1; n <= 15; ++n) {
    if (!PageLivree(n)) continue;
    EXPECT_NE(rapportSociete.find(EntetePage(n)), std::string::npos) << n;
    EXPECT_EQ(rapportIndividuel.find(EntetePage(n)) != std::string::npos, n <= 13) << n;
    EXPECT_EQ(d.Lire("fiche.rtf").find(EntetePage(n)) != std::string::npos, n == 14) << n;
  }
  const auto apres = Contenus(d, "Dossier");
  for (const auto& [chemin, octets] : avant) {
    EXPECT_TRUE(apres.count(chemin) == 1 && apres.at(chemin) == octets) << chemin << " a changé";
  }
  for (const auto& [chemin, octets] : apres) {
    if (avant.count(chemin) == 0) {
      EXPECT_EQ(fs::path(chemin).filename(), "PlanF.fin") << chemin;
    }
  }
}

}  // namespace
}  // namespace norvane::test
