// Speed of the conversions through LibreOffice:
// - GenererPdf: the example presentation generated from its dossier and
//   stored as PDF, with the private office already running (started by an
//   untimed first document);
// - Convertir20 against Soffice20: twenty documents converted to PDF by one
//   CONVERTIR run, and by twenty separate "soffice --convert-to" runs, each
//   timed as a whole process (one iteration, wall-clock time).
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "app/EditeurLigneCommande.h"
#include "frame/Chemins.h"
#include "support/PortsScriptes.h"
#include "template/Generateur.h"

namespace {

using namespace norvane;
namespace fs = std::filesystem;

const std::string kArbre = NORVANE_ARBRE;
const std::string kModele = kArbre + "/Norvane/ModlDocs/Presentation.tvm";
const std::string kProgramme = kArbre + "/Norvane/norvane";

fs::path Travail(const std::string& nom) {
  const fs::path dossier = fs::temp_directory_path() / ("nv-bench-" + nom);
  fs::remove_all(dossier);
  fs::create_directories(dossier);
  return dossier;
}

void GenererPdf(benchmark::State& state) {
  const fs::path dossier = Travail("pdf");
  Session session;
  InitChemins(session, kArbre + "/Norvane");
  session.RepDossier[0] = kArbre + "/Dossier/";
  session.NomDossier[0] = "GAEC_DES_TILLEULS.TVL";
  session.options.CheminEditeur = "/usr/bin/soffice";
  MessagesScriptes messages;
  ProgressionMuette progression;
  EntitesCourantes entites;
  EditeurLigneCommande editeur(session.options, messages);
  const OptionsCreation options{.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false};
  auto generer = [&](const std::string& nom) {
    Generation g(session, messages, progression, entites);
    g.editeur = &editeur;
    return CreerDocument(g, kModele, (dossier / nom).string(), options);
  };
  generer("demarrage.pdf");  // starts the office
  if (!fs::exists(dossier / "demarrage.pdf")) {
    state.SkipWithError(("LibreOffice n'a pas produit le PDF : " + messages.Journal()).c_str());
    return;
  }
  for (auto _ : state) benchmark::DoNotOptimize(generer("exemple.pdf"));
  fs::remove_all(dossier);
}

// Twenty RTF copies of the generated example, in a folder of their own.
fs::path VingtDocuments(const std::string& nom) {
  const fs::path dossier = Travail(nom);
  const std::string rtf = (dossier / "modele.rtf").string();
  std::system(("'" + kProgramme + "' GENERER '" + kModele + "' '" + rtf + "' '" + kArbre +
               "/Dossier/GAEC_DES_TILLEULS.TVL' --remplacer >/dev/null 2>&1")
                  .c_str());
  for (int i = 1; i <= 20; ++i) fs::copy_file(rtf, dossier / ("doc" + std::to_string(i) + ".rtf"));
  fs::remove(rtf);
  return dossier;
}

void Convertir20(benchmark::State& state) {
  const fs::path dossier = VingtDocuments("convertir");
  for (auto _ : state) {
    const int statut = std::system(("cd '" + dossier.string() + "' && '" + kProgramme +
                                    "' CONVERTIR doc*.rtf --format=pdf --dossier-sortie=pdf >/dev/null 2>&1")
                                       .c_str());
    if (statut != 0) state.SkipWithError("CONVERTIR a échoué");
  }
  fs::remove_all(dossier);
}

void Soffice20(benchmark::State& state) {
  const fs::path dossier = VingtDocuments("soffice");
  const std::string profil = "-env:UserInstallation=file://" + (dossier / "profil").string();
  auto convertir = [&](const std::string& document) {
    return std::system(("soffice '" + profil + "' --headless --convert-to pdf --outdir '" + (dossier / "pdf").string() +
                        "' '" + (dossier / document).string() + "' >/dev/null 2>&1")
                           .c_str());
  };
  convertir("doc1.rtf");  // the profile is made once, outside the measure
  for (auto _ : state) {
    for (int i = 1; i <= 20; ++i) {
      if (convertir("doc" + std::to_string(i) + ".rtf") != 0) state.SkipWithError("soffice a échoué");
    }
  }
  fs::remove_all(dossier);
}

}  // namespace

BENCHMARK(GenererPdf)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Convertir20)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();
BENCHMARK(Soffice20)->Iterations(1)->Unit(benchmark::kSecond)->UseRealTime();
BENCHMARK_MAIN();
