// The files that one generation reads, each opened once. A table of 500
// lines over 10 years asks the series reader 5,000 times; through this cache
// a .DON file is found and opened at its first use, each record is read
// from it once, and the donnees.INI profile is parsed once. The cache belongs
// to the state of one generation and is dropped with it, so that a file
// changed between two generations is read again. Memory stays bounded: only
// the records asked for are kept, never a whole series file.
#pragma once

#include <cstdint>
#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

#include "frame/ProfilIni.h"
#include "study/Enregistrements.h"

namespace norvane {

class CacheEtude {
 public:
  // Opens the file at `cheminReel` (a path found on disk) for reading;
  // nullptr when it cannot. The seam through which tests count the opens.
  using Ouvreur = std::function<std::unique_ptr<std::istream>(const std::string& cheminReel)>;

  CacheEtude();
  explicit CacheEtude(Ouvreur ouvrir);

  // Size of the regular file `fichier`, found without regard to case; 0 when
  // there is none.
  uint64_t Taille(const std::string& fichier);
  // Record `numero` of a .DON file, exactly as LireEnregistrementSerie reads it.
  SerieDonnees Enregistrement(const std::string& fichier, int32_t numero);
  // The profile of an .ini file; nullptr when there is no such file.
  const ProfilIni* Profil(const std::string& fichier);

 private:
  // A regular file found on disk, under its real path.
  struct Fichier {
    uint64_t taille = 0;
    bool ouvert = false;  // an open was tried
    std::unique_ptr<std::istream> flux;
    std::unordered_map<int32_t, SerieDonnees> enregistrements;
    std::optional<ProfilIni> profil;
  };

  // The file a path names, whatever its spelling; null when no regular file.
  Fichier* Trouver(const std::string& fichier);
  std::istream* Flux(const std::string& reel, Fichier& f);

  Ouvreur ouvrir_;
  std::unordered_map<std::string, std::optional<std::string>> reels_;  // path asked -> real path
  std::unordered_map<std::string, Fichier> fichiers_;                  // by real path
};

}  // namespace norvane
