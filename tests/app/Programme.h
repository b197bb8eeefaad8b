// Runs the program of the installation tree as a user would, and gives back
// its exit status and what it printed.
#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <sys/wait.h>

namespace norvane::test {

struct Execution {
  int statut = -1;
  std::string sortie;  // standard output and standard error together
};

inline std::string Guillemets(const std::string& argument) {
  std::string r = "'";
  for (char c : argument) r += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return r + "'";
}

inline Execution Lancer(const std::string& arguments) {
  const std::string commande = std::string("'") + NORVANE_ARBRE + "/Norvane/norvane' " + arguments + " </dev/null 2>&1";
  Execution e;
  FILE* flux = ::popen(commande.c_str(), "r");
  if (flux == nullptr) return e;
  std::array<char, 4096> tampon;
  for (std::size_t n; (n = std::fread(tampon.data(), 1, tampon.size(), flux)) > 0;) e.sortie.append(tampon.data(), n);
  const int brut = ::pclose(flux);
  e.statut = WIFEXITED(brut) ? WEXITSTATUS(brut) : -1;
  return e;
}

}  // namespace norvane::test
