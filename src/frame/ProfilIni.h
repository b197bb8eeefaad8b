// The text format of Windows profile files (.ini), rebuilt as the profile
// functions of that system read and write it: "[section]" lines and
// "key=value" lines, Windows-1252, lines ending CR LF or LF. Names of sections
// and keys are trimmed and matched without regard to case; the first of two
// like sections or keys is the one found. Lines that are not touched by a
// write are written back as they were read, each ending CR LF.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace norvane {

class ProfilIni {
 public:
  // The lines of the file; none when it is missing or unreadable.
  static ProfilIni Lire(const std::string& chemin);
  static ProfilIni DepuisTexte(std::string_view texte);
  // Writes the whole file (CR LF line ends); false on failure.
  bool Ecrire(const std::string& chemin) const;
  std::string Texte() const;

  // The names of the sections, in file order.
  std::vector<std::string> NomsSections() const;
  // The entries of the first section named `section`, as the profile
  // functions give them: blank lines left out, key and value trimmed and
  // joined by "=", a line without "=" as it stands (trimmed).
  std::optional<std::vector<std::string>> EntreesSection(std::string_view section) const;

  // Replaces the value of the first key named `cle` in the section, or adds
  // the key behind the section's last line, or adds the section at the end
  // of the file.
  void EcrireCle(std::string_view section, std::string_view cle, std::string_view valeur);
  void SupprimerCle(std::string_view section, std::string_view cle);
  void SupprimerSection(std::string_view section);
  // Appends the line "[" + section + "]".
  void AjouterSection(std::string_view section);

 private:
  struct Plage {
    std::size_t entete;  // index of the "[section]" line
    std::size_t fin;     // index one past the section's last line
  };
  std::optional<Plage> TrouverSection(std::string_view section) const;
  std::optional<std::size_t> TrouverCle(const Plage& plage, std::string_view cle) const;

  std::vector<std::string> lignes_;
};

}  // namespace norvane
