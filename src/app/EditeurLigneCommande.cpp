#include "app/EditeurLigneCommande.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"

extern char** environ;

namespace norvane {
namespace {

// LibreOffice's export filter for a document's extension; empty when none.
std::string FiltreExport(const std::string& extension) {
  if (extension == "doc") return "doc:MS Word 97";
  if (extension == "rtf") return "rtf:Rich Text Format";
  if (extension == "odt") return "odt:writer8";
  if (extension == "docx") return "docx:MS Word 2007 XML";
  if (extension == "pdf") return "pdf:writer_pdf_Export";
  return {};
}

}  // namespace

int ExecuterProgramme(const std::vector<std::string>& arguments, bool attendre) {
  std::vector<char*> argv;
  for (const std::string& a : arguments) argv.push_back(const_cast<char*>(a.c_str()));
  argv.push_back(nullptr);
  pid_t pid = 0;
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  const int erreur = posix_spawnp(&pid, argv[0], &actions, nullptr, argv.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  if (erreur != 0) return -1;
  if (!attendre) return 0;
  int statut = 0;
  if (waitpid(pid, &statut, 0) < 0) return -1;
  return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
}

std::string EditeurLigneCommande::Programme() const {
  std::string chemin = Trim(options_.CheminEditeur);
  while (!chemin.empty() && (chemin.back() == '/' || chemin.back() == '\\')) chemin.pop_back();
  return chemin.empty() ? std::string("soffice") : chemin;
}

void EditeurLigneCommande::OuvrirDocument(int, const std::string& chemin) {
  if (ExecuterProgramme({Programme(), CheminReel(chemin)}, false) != 0) {
    messages_.AfficherMessage("Pilote", "Problème de liaison entre Norvane et le traitement de texte",
                              "Impossible de lancer \"" + Programme() + "\" pour ouvrir le document.", "", "");
  }
}

void EditeurLigneCommande::SauvegarderSous(bool, int, const std::string& chemin) {
  namespace fs = std::filesystem;
  const std::string extension = Minuscules(fs::path(chemin).extension().string().substr(1 < chemin.size() ? 1 : 0));
  // An RTF document is already in its format: a round trip through the word
  // processor would only risk the hidden update marks.
  if (extension == "rtf") return;
  const std::string filtre = FiltreExport(extension);
  std::error_code ec;
  const fs::path travail = fs::temp_directory_path(ec) / ("norvane-conversion-" + std::to_string(getpid()));
  fs::create_directories(travail / "profil", ec);
  // The document in hand is the file itself when it holds RTF under another
  // name, else the RTF result of the same name that it converts.
  const fs::path source = travail / "document.rtf";
  std::string origine = CheminReel(chemin);
  if (!ResoudreChemin(origine)) origine = fs::path(origine).replace_extension(".rtf").string();
  fs::copy_file(CheminReel(origine), source, fs::copy_options::overwrite_existing, ec);
  int statut = -1;
  if (!filtre.empty() && !ec) {
    statut = ExecuterProgramme({Programme(), "-env:UserInstallation=file://" + (travail / "profil").string(),
                                "--headless", "--convert-to", filtre, "--outdir", travail.string(), source.string()},
                               true);
  }
  const fs::path converti = travail / ("document." + extension);
  if (statut == 0 && fs::exists(converti, ec)) fs::rename(converti, chemin, ec);
  if (statut != 0 || ec) {
    messages_.AfficherMessage("Pilote", "Erreur : sauvegarde impossible.",
                              "Le document \"" + chemin + "\" n'a pas pu être converti par le traitement de texte.",
                              "Vérifiez que LibreOffice est installé et lié à Norvane.", "");
  }
  fs::remove_all(travail, ec);
}

}  // namespace norvane
