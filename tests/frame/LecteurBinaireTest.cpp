// The bounds-checked reader: a read past the end fails, touches nothing, and
// the first failure is kept with its byte offset in the file and its field.
#include <gtest/gtest.h>

#include "frame/Disposition.h"
#include "frame/LecteurBinaire.h"

namespace norvane {
namespace {

constexpr ChampDisposition kCode{"Code", 0, 4};
constexpr ChampDisposition kValeur{"Valeur", 4, 2, 3};
constexpr ChampDisposition kMode{"Mode", 10, 1, 4, 2};
constexpr ChampDisposition kEssai[] = {kCode, kValeur, kMode};
static_assert(PaveEnregistrement(kEssai, 14));
static_assert(!PaveEnregistrement(kEssai, 15));
constexpr ChampDisposition kTrou[] = {kCode, kMode};
static_assert(!PaveEnregistrement(kTrou, 14));
constexpr ChampDisposition kChevauchement[] = {kCode, {"X", 3, 11}};
static_assert(!PaveEnregistrement(kChevauchement, 14));

TEST(LecteurBinaire, TheFirstFailureKeepsItsOffsetAndField) {
  const std::string octets = std::string("ABCD") + '\x01' + '\x00' + '\xFF' + '\xFF' + 'x';
  LecteurBinaire l(octets, 900);  // the bytes start at byte 900 of their file
  std::string code = "????";
  int16_t valeurs[3] = {7, 7, 7};
  EXPECT_TRUE(l.LireTexte(code, kCode));
  EXPECT_TRUE(l.Lire(valeurs[0], kValeur, 0));
  EXPECT_TRUE(l.Lire(valeurs[1], kValeur, 1));
  EXPECT_FALSE(l.Lire(valeurs[2], kValeur, 2));  // one byte left, two asked
  EXPECT_FALSE(l.LireTexte(code, 0));            // every later read fails too
  EXPECT_EQ(code, "ABCD");
  EXPECT_EQ(valeurs[0], 1);
  EXPECT_EQ(valeurs[1], -1);
  EXPECT_EQ(valeurs[2], 7);
  ASSERT_TRUE(l.Echec());
  EXPECT_EQ(l.Echec()->octet, 908u);
  EXPECT_EQ(l.Echec()->champ, "Valeur(2)");
  const ErreurLecture e = l.Erreur("Fichier incomplet.", "RES.DON", 11);
  EXPECT_EQ(e.texte, "Fichier incomplet.");
  EXPECT_EQ(e.Position(), "fichier RES.DON, enregistrement 11, champ Valeur(2), octet 908");
}

TEST(LecteurBinaire, AReadWithoutFieldNameAndAJumpPastTheEnd) {
  LecteurBinaire l("abc");
  l.Aller(10);
  int32_t n = 5;
  EXPECT_FALSE(l.Lire(n));
  EXPECT_EQ(n, 5);
  EXPECT_EQ(l.Erreur("x", "").Position(), "octet 10");
}

TEST(Disposition, ElementNamesAndTheFieldAtAByte) {
  EXPECT_EQ(NomElement(kCode, 0), "Code");
  EXPECT_EQ(NomElement(kValeur, 2), "Valeur(2)");
  EXPECT_EQ(NomElement(kMode, 3), "Mode(1, 1)");  // first index running fastest
  const struct {
    std::size_t octet;
    std::string champ;
  } cas[] = {{0, "Code"}, {3, "Code"}, {4, "Valeur(0)"}, {9, "Valeur(2)"}, {10, "Mode(0, 0)"}, {12, "Mode(0, 1)"},
             {14, ""}};
  for (const auto& c : cas) EXPECT_EQ(ChampA(kEssai, c.octet), c.champ) << c.octet;
}

}  // namespace
}  // namespace norvane
