// Writes the seed corpus of every fuzz target: the example installation is
// built by the study-file builder in a temporary folder, and its files, the
// example templates and the codes they hold become the first inputs of the
// targets that read them. Usage: fuzz_graines <corpus folder>; each target
// gets <corpus folder>/<target>/.
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

#include "construction/DescriptionJson.h"
#include "frame/Parametres.h"

namespace {

namespace fs = std::filesystem;

std::string Lire(const fs::path& chemin) {
  std::ifstream flux(chemin, std::ios::binary);
  std::ostringstream contenu;
  contenu << flux.rdbuf();
  return contenu.str();
}

class Corpus {
 public:
  explicit Corpus(fs::path racine) : racine_(std::move(racine)) {}
  void Ajouter(const std::string& cible, const std::string& nom, const std::string& octets) {
    fs::create_directories(racine_ / cible);
    std::ofstream(racine_ / cible / nom, std::ios::binary) << octets;
  }

 private:
  fs::path racine_;
};

std::vector<fs::path> Fichiers(const fs::path& dossier, const std::string& extension) {
  std::vector<fs::path> r;
  std::error_code ec;
  for (const auto& e : fs::recursive_directory_iterator(dossier, ec)) {
    if (e.is_regular_file() && (extension.empty() || e.path().extension() == extension)) r.push_back(e.path());
  }
  return r;
}

// Every "#tvl(...)#" code of a template, whole.
std::vector<std::string> Codes(const std::string& modele) {
  std::vector<std::string> codes;
  for (std::size_t p = modele.find("#tvl("); p != std::string::npos; p = modele.find("#tvl(", p + 5)) {
    const std::size_t fin = modele.find(")#", p);
    if (fin == std::string::npos) break;
    codes.push_back(modele.substr(p, fin + 2 - p));
  }
  return codes;
}

void GrainesInstallation(Corpus& corpus, const fs::path& installation) {
  for (const fs::path& dossier : Fichiers(installation / "Dossier", "")) {
    const std::string nom = dossier.filename().string();
    if (nom == dossier.parent_path().filename().string()) corpus.Ajouter("fuzz_dossier", nom, Lire(dossier));
    if (dossier.extension() == ".DON" || dossier.extension() == ".don") {
      // The series target reads a code, three bytes of choices, then the file.
      corpus.Ajouter("fuzz_serie", nom, "F.DON+RES-3\n" + std::string("\x03\x02\x05", 3) + Lire(dossier));
    }
    if (dossier.extension() == ".ini") corpus.Ajouter("fuzz_ini", nom, Lire(dossier));
  }
  corpus.Ajouter("fuzz_dossier", "Tervol.par", Lire(installation / "ParamLog" / "Tervol.par"));
  for (const fs::path& catalogue : Fichiers(installation / "Datacfg", ".CFG")) {
    corpus.Ajouter("fuzz_catalogue", catalogue.filename().string(), Lire(catalogue));
  }
  corpus.Ajouter("fuzz_ini", "donnees.INI", Lire(installation / "Norvane" / "donnees.INI"));
  for (const fs::path& graph : Fichiers(installation / "ModelGraph", ".txt")) {
    corpus.Ajouter("fuzz_graph_txt", graph.filename().string(), Lire(graph));
  }
  std::string parametres;
  norvane::EncoderParametres(norvane::ContenuParametres{}, parametres);
  corpus.Ajouter("fuzz_parametres", "Editeur.svg", parametres);
}

void GrainesModeles(Corpus& corpus, const fs::path& modeles) {
  for (const fs::path& modele : Fichiers(modeles, ".tvm")) {
    const std::string texte = Lire(modele), nom = modele.filename().string();
    corpus.Ajouter("fuzz_generateur", nom, texte);
    corpus.Ajouter("fuzz_interpreteur", nom, "\x02" + texte);
    corpus.Ajouter("fuzz_modele_dossier", nom, "\x01" + texte);
    int n = 0;
    for (const std::string& code : Codes(texte)) {
      const std::string corps = code.substr(5, code.size() - 7), suffixe = "-" + std::to_string(++n);
      corpus.Ajouter("fuzz_nettoyage", nom + suffixe, corps);
      corpus.Ajouter("fuzz_modele_dossier", nom + suffixe, std::string(1, static_cast<char>(n & 1)) + code);
      if (corps.rfind("tab", 0) == 0) corpus.Ajouter("fuzz_code_tableau", nom + suffixe, corps);
      if (corps.rfind("tab", 0) == 0) corpus.Ajouter("fuzz_generation_tableau", nom + suffixe, "\x03" + corps);
      if (corps.rfind("gph(", 0) == 0) corpus.Ajouter("fuzz_code_graphique", nom + suffixe, corps);
      if (corps.rfind("formule:", 0) == 0) corpus.Ajouter("fuzz_formule", nom + suffixe, "\x01" + corps.substr(8));
    }
  }
  corpus.Ajouter("fuzz_tableaux_txt", "tableaux.txt", Lire(modeles / "tableaux.txt"));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage : fuzz_graines <dossier du corpus>\n";
    return 2;
  }
  std::string modele = (fs::temp_directory_path() / "nv-graines-XXXXXX").string();
  if (::mkdtemp(modele.data()) == nullptr) return 1;
  const fs::path source(NORVANE_SOURCE_DIR);
  const auto description =
      norvane::construction::ChargerDescription((source / "exemple/etude/installation.json").string());
  if (!description || !norvane::construction::ConstruireInstallation(*description, modele)) {
    std::cerr << "fuzz_graines : l'installation d'exemple ne peut être construite\n";
    fs::remove_all(modele);
    return 1;
  }
  Corpus corpus(argv[1]);
  GrainesInstallation(corpus, modele);
  GrainesModeles(corpus, source / "exemple/modeles");
  fs::remove_all(modele);
  return 0;
}
