// Reader and writer of Windows profile files (.ini): "[section]" lines and
// "key=value" lines, Windows-1252. Sections and keys are matched without
// regard to case. Every operation falls back on the Key / Section / Filename
// property when its argument is blank after trimming.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "frame/ProfilIni.h"

namespace norvane {

class clsINI {
 public:
  using Paire = std::pair<std::string, std::string>;

  std::string Key;
  std::string Section;
  const std::string& Filename() const { return filename_; }
  void Filename(const std::string& valeur);  // trims

  bool CheckIniFile(const std::string& filename = {}) const;
  // std::nullopt when the file does not exist.
  std::optional<std::vector<std::string>> GetAllSectionsFromInifile(const std::string& filename = {},
                                                                     bool sort = false) const;
  bool CheckSection(const std::string& section = {}, const std::string& filename = {}) const;
  // std::nullopt when the section does not exist.
  std::optional<std::vector<Paire>> GetAllKeysFromSection(const std::string& section = {},
                                                         const std::string& filename = {},
                                                         bool withComments = false, bool sort = false) const;
  bool CheckKey(const std::string& key = {}, const std::string& section = {}, const std::string& filename = {}) const;
  std::string GetKeyFromSection(const std::string& key = {}, const std::string& section = {},
                                const std::string& filename = {}) const;
  // The same on a profile already read, so that a caller can read a file
  // once for many keys.
  std::string GetKeyFromSection(const ProfilIni& profil, const std::string& key = {},
                                const std::string& section = {}) const;
  void DeleteIniFile(const std::string& filename = {}) const;
  void CreateIniFile(const std::string& filename = {}) const;
  void CreateSection(const std::string& section = {}, const std::string& filename = {}) const;
  void DeleteAllSectionFromInifile(const std::string& filename = {}) const;
  void DeleteSectionFromInifile(const std::string& section = {}, const std::string& filename = {}) const;
  void DeleteKeyFromSection(const std::string& key = {}, const std::string& section = {},
                            const std::string& filename = {}) const;
  // Always false, whether the write succeeded or not.
  bool SaveKey(const std::string& value, const std::string& key = {}, const std::string& section = {},
               const std::string& filename = {}) const;
  void FlushInifile(const std::string& filename = {}) const;

 private:
  static bool SectionPresente(const ProfilIni& profil, const std::string& section);
  std::optional<std::vector<Paire>> PairesDuProfil(const ProfilIni& profil, const std::string& section,
                                                   bool withComments, bool sort) const;

  std::string filename_;
};

}  // namespace norvane
