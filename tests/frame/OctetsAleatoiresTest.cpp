// Random bytes fed to the readers of outside input: the settings decoder, the
// profile reader and the command-line splitter never fail on them. The
// generator is seeded, so a failure repeats.
#include <gtest/gtest.h>

#include <random>

#include "frame/DossierTemporaire.h"
#include "frame/LigneCommande.h"
#include "frame/Parametres.h"
#include "frame/ProfilIni.h"
#include "frame/clsINI.h"

namespace norvane {
namespace {

// Bytes drawn mostly from the characters that steer the readers.
std::string Octets(std::mt19937& alea, std::size_t tailleMax) {
  static const std::string kAlphabet = "[]=; \t\r\n\"#aZ\xE9\x80";
  std::uniform_int_distribution<std::size_t> taille(0, tailleMax);
  std::uniform_int_distribution<int> octet(0, 255);
  std::string texte(taille(alea), '\0');
  for (char& c : texte) {
    const int tirage = octet(alea);
    c = tirage < 128 ? kAlphabet[static_cast<std::size_t>(tirage) % kAlphabet.size()] : static_cast<char>(tirage);
  }
  return texte;
}

TEST(OctetsAleatoires, SettingsDecodeAndEncodeToTheSameFile) {
  std::mt19937 alea(1234);
  for (int essai = 0; essai < 300; ++essai) {
    std::string octets = Octets(alea, 6000);
    if (essai % 3 == 0) octets.replace(0, std::min<std::size_t>(2, octets.size()), std::string("\x10\x00", 2));
    const ContenuParametres lu = DecoderParametres(octets);
    EXPECT_EQ(lu.options.SansAnnotation, 1);
    std::string premier, second;
    ASSERT_FALSE(EncoderParametres(lu, premier));
    ASSERT_FALSE(EncoderParametres(DecoderParametres(premier), second));
    ASSERT_EQ(premier, second) << essai;
  }
}

TEST(OctetsAleatoires, ProfilesReadAndWriteBackTheSameLines) {
  std::mt19937 alea(5678);
  test::DossierTemporaire tmp;
  clsINI ini;
  ini.Filename(tmp / "alea.ini");
  for (int essai = 0; essai < 300; ++essai) {
    const std::string texte = Octets(alea, 400);
    ProfilIni profil = ProfilIni::DepuisTexte(texte);
    const std::string ecrit = profil.Texte();
    ASSERT_EQ(ProfilIni::DepuisTexte(ecrit).Texte(), ecrit);
    for (const std::string& section : profil.NomsSections()) ASSERT_TRUE(profil.EntreesSection(section));
    if (essai % 10 != 0) continue;
    tmp.Ecrire("alea.ini", texte);
    if (auto sections = ini.GetAllSectionsFromInifile({}, true)) {
      for (const std::string& section : *sections) ini.GetAllKeysFromSection(section, {}, true, true);
    }
    ini.SaveKey("4", "NumLastMod", "GLOBAL");
    EXPECT_EQ(ini.GetKeyFromSection("numlastmod", "global"), "4");
  }
}

TEST(OctetsAleatoires, CommandLinesSplitIntoArgumentsWithoutQuotes) {
  std::mt19937 alea(91011);
  for (int essai = 0; essai < 300; ++essai) {
    for (const std::string& argument : DecouperLigneCommande(Octets(alea, 200))) {
      ASSERT_EQ(argument.find('"'), std::string::npos);
    }
  }
}

}  // namespace
}  // namespace norvane
