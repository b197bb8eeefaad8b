// The system calls through which a store is rewritten, gathered so that tests
// can make any one of them fail or stop the process at that very step. The
// program never changes them.
#pragma once

#include <sys/types.h>

#include <cstddef>

namespace norvane {

struct AppelsFichier {
  int (*creerTemporaire)(char* modele);  // mkstemp
  ssize_t (*ecrire)(int fd, const void* octets, std::size_t taille);
  int (*permissions)(int fd, mode_t mode);  // fchmod
  int (*synchroniser)(int fd);              // fsync
  int (*fermer)(int fd);
  int (*renommer)(const char* de, const char* vers);
};

// The calls in use: the system's own unless a test put others in their place.
AppelsFichier& AppelsFichierCourants();
// The system's own calls.
AppelsFichier AppelsFichierSysteme();

}  // namespace norvane
