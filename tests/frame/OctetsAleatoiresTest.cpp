// Garbage settings and INI files read without a crash, under the sanitizers
// of the test build too (the fuzz targets go further, but need clang).
#include <gtest/gtest.h>

#include <random>

#include "support/DossierTemporaire.h"
#include "frame/Parametres.h"
#include "frame/clsINI.h"

namespace norvane {
namespace {

TEST(OctetsAleatoires, SettingsAndIniFilesEndOnAnyBytes) {
  std::mt19937 hasard(2026);
  test::DossierTemporaire d;
  clsINI ini;
  const char pieces[] = "[]=;\r\n \tAbc";
  for (int essai = 0; essai < 300; ++essai) {
    std::string octets(hasard() % 6000, '\0');
    for (char& c : octets) c = hasard() % 2 ? pieces[hasard() % (sizeof pieces - 1)] : static_cast<char>(hasard());
    DecoderParametres(octets);
    d.Ecrire("f.ini", octets);
    if (auto sections = ini.GetAllSectionsFromInifile(d / "f.ini", true)) {
      for (const auto& section : *sections) ini.GetAllKeysFromSection(section, d / "f.ini", true, true);
    }
    ini.GetKeyFromSection("Abc", "Abc", d / "f.ini");
    ini.SaveKey("v", "k", "s", d / "f.ini");
  }
  SUCCEED();
}

}  // namespace
}  // namespace norvane
