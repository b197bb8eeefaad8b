// A fresh folder under the system's temporary folder (its name holds no
// "norvane", so that a tree made in it finds its own root), removed with its
// content when the test ends.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

namespace norvane::test {

class DossierTemporaire {
 public:
  DossierTemporaire() {
    std::string modele = (std::filesystem::temp_directory_path() / "nv-frame-XXXXXX").string();
    if (::mkdtemp(modele.data()) != nullptr) chemin_ = modele + "/";
  }
  ~DossierTemporaire() {
    std::error_code ec;
    std::filesystem::remove_all(chemin_, ec);
  }
  DossierTemporaire(const DossierTemporaire&) = delete;
  DossierTemporaire& operator=(const DossierTemporaire&) = delete;

  // The folder, ending with "/".
  const std::string& Chemin() const { return chemin_; }
  std::string operator/(const std::string& relatif) const { return chemin_ + relatif; }

  // Writes a file (its folders made), bytes as given.
  void Ecrire(const std::string& relatif, const std::string& contenu) const {
    std::filesystem::path p(chemin_ + relatif);
    std::filesystem::create_directories(p.parent_path());
    std::ofstream(p, std::ios::binary) << contenu;
  }
  std::string Lire(const std::string& relatif) const {
    std::ifstream flux(chemin_ + relatif, std::ios::binary);
    std::ostringstream contenu;
    contenu << flux.rdbuf();
    return contenu.str();
  }
  bool Existe(const std::string& relatif) const { return std::filesystem::exists(chemin_ + relatif); }

 private:
  std::string chemin_;
};

}  // namespace norvane::test
