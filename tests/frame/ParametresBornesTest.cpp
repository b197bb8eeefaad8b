// A settings file of 1 GB: only its 45 records are read, and they give the
// settings that were saved.
#include <gtest/gtest.h>

#include <filesystem>

#include "frame/Parametres.h"
#include "support/DossierTemporaire.h"

namespace norvane {
namespace {

TEST(ChargerParametres, AFileOfOneGigabyteIsReadForItsRecordsOnly) {
  test::DossierTemporaire tmp;
  ContenuParametres c;
  c.options.CheminEditeur = "/usr/bin/soffice";
  c.options.AlignCellule = "r";
  c.NomDossier[5] = "DUPONT.TVL";
  ASSERT_TRUE(EnregistrerParametres(c, tmp.Chemin()));
  std::filesystem::resize_file(tmp / "Editeur.svg", 1ull << 30);
  const ContenuParametres lu = ChargerParametres(tmp.Chemin());
  EXPECT_EQ(lu.options.CheminEditeur, "/usr/bin/soffice");
  EXPECT_EQ(lu.options.AlignCellule, "r");
  EXPECT_EQ(lu.NomDossier[5], "DUPONT.TVL");
  EXPECT_EQ(std::filesystem::file_size(tmp / "Editeur.svg"), 1ull << 30);  // read, never rewritten
}

}  // namespace
}  // namespace norvane
