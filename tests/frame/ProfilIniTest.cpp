// The text of profile files as the profile functions read and write it:
// sections and keys found without regard to case, untouched lines written back
// as read, keys added at the end of their section, sections at the end.
#include "frame/ProfilIni.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace norvane::test {
namespace {

const char kTexte[] =
    "; commentaire\n"
    "[Général]\r\n"
    "  Nom  =  GAEC  \n"
    "\n"
    "ligne sans egal\n"
    "[general]\n"
    "Nom=second\n"
    "[Autre]\n"
    "Cle=1\n";

TEST(ProfilIni, SectionsAndEntriesAsTheProfileFunctionsGiveThem) {
  const ProfilIni profil = ProfilIni::DepuisTexte(kTexte);
  EXPECT_EQ(profil.NomsSections(), (std::vector<std::string>{"Général", "general", "Autre"}));
  const auto entrees = profil.EntreesSection("AUTRE");
  ASSERT_TRUE(entrees);
  EXPECT_EQ(*entrees, std::vector<std::string>{"Cle=1"});
  const auto general = profil.EntreesSection("Général");
  ASSERT_TRUE(general);
  EXPECT_EQ(*general, (std::vector<std::string>{"Nom=GAEC", "ligne sans egal"}));
  EXPECT_FALSE(profil.EntreesSection("Absente"));
}

TEST(ProfilIni, WritesTouchOnlyTheirLinesAndEndEveryLineInCrLf) {
  ProfilIni profil = ProfilIni::DepuisTexte(kTexte);
  profil.EcrireCle("autre", "cle", "2");       // replaced in place, the key keeps its case
  profil.EcrireCle("Autre", "Neuve", "x");     // behind the section's last line
  profil.EcrireCle("Nouvelle", "K", "v");      // a section at the end
  profil.SupprimerCle("Général", "NOM");
  EXPECT_EQ(profil.Texte(),
            "; commentaire\r\n[Général]\r\n\r\nligne sans egal\r\n[general]\r\nNom=second\r\n"
            "[Autre]\r\nCle=2\r\nNeuve=x\r\n[Nouvelle]\r\nK=v\r\n");
  profil.SupprimerSection("general");
  profil.SupprimerSection("Général");
  EXPECT_EQ(profil.NomsSections(), (std::vector<std::string>{"Autre", "Nouvelle"}));
}

TEST(ProfilIni, AMissingFileIsAnEmptyProfile) {
  const ProfilIni profil = ProfilIni::Lire("/chemin/qui/n/existe/pas.ini");
  EXPECT_TRUE(profil.NomsSections().empty());
  EXPECT_EQ(profil.Texte(), "");
}

}  // namespace
}  // namespace norvane::test
