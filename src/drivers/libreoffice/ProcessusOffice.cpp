#include "drivers/libreoffice/ProcessusOffice.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/file.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

extern char** environ;

namespace norvane {

int LancerProcessus(const std::vector<std::string>& arguments) {
  std::vector<char*> argv;
  for (const std::string& a : arguments) argv.push_back(const_cast<char*>(a.c_str()));
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawnattr_t attributs;
  posix_spawnattr_init(&attributs);
  // A group of its own: a Ctrl+C meant for Norvane does not kill the office
  // in the middle of a store.
  posix_spawnattr_setflags(&attributs, POSIX_SPAWN_SETPGROUP);
  posix_spawnattr_setpgroup(&attributs, 0);
  pid_t pid = -1;
  const int erreur = posix_spawnp(&pid, argv[0], &actions, &attributs, argv.data(), environ);
  posix_spawnattr_destroy(&attributs);
  posix_spawn_file_actions_destroy(&actions);
  return erreur == 0 ? pid : -1;
}

namespace {

// The last process reaped and how it ended.
int dernierReape = -1;
int dernierStatut = -1;

}  // namespace

bool ProcessusVivant(int pid) {
  if (pid <= 0) return false;
  int statut = 0;
  const pid_t r = waitpid(pid, &statut, WNOHANG);
  if (r == pid) {
    dernierReape = pid;
    dernierStatut = WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
  }
  return r == 0;
}

int StatutFin(int pid) { return pid == dernierReape ? dernierStatut : -1; }

void AttendreOuTuer(int pid, int secondes) {
  if (pid <= 0) return;
  const auto limite = std::chrono::steady_clock::now() + std::chrono::seconds(secondes);
  while (std::chrono::steady_clock::now() < limite) {
    if (!ProcessusVivant(pid)) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  kill(pid, SIGKILL);
  int statut = 0;
  waitpid(pid, &statut, 0);
}

std::string DossierProfilPrive(int& verrou, bool& temporaire) {
  namespace fs = std::filesystem;
  const char* cache = std::getenv("XDG_CACHE_HOME");
  const char* maison = std::getenv("HOME");
  fs::path racine = cache && *cache ? fs::path(cache) : maison && *maison ? fs::path(maison) / ".cache" : fs::path();
  std::error_code ec;
  if (racine.empty() || (fs::create_directories(racine / "norvane" / "libreoffice", ec), ec)) {
    racine = fs::temp_directory_path(ec);
  }
  const fs::path dossier = racine / "norvane" / "libreoffice";
  fs::create_directories(dossier, ec);
  verrou = open((dossier / "profil.verrou").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (verrou >= 0 && flock(verrou, LOCK_EX | LOCK_NB) == 0) {
    temporaire = false;
    return (dossier / "profil").string();
  }
  if (verrou >= 0) close(verrou);
  verrou = -1;
  temporaire = true;
  return (dossier / ("profil-" + std::to_string(getpid()))).string();
}

}  // namespace norvane
