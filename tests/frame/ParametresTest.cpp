#include "frame/Parametres.h"

#include <gtest/gtest.h>

#include "frame/DossierTemporaire.h"
#include "frame/OutilsFichiers.h"

namespace norvane {
namespace {

using test::DossierTemporaire;

int16_t Entier16(const std::string& octets, std::size_t position) {
  return static_cast<int16_t>(static_cast<unsigned char>(octets[position]) |
                              (static_cast<unsigned char>(octets[position + 1]) << 8));
}

std::string TexteRecord(const std::string& octets, int numero) {
  const std::size_t debut = static_cast<std::size_t>(numero - 1) * 128;
  return octets.substr(debut + 2, static_cast<std::size_t>(Entier16(octets, debut)));
}

ContenuParametres Exemple() {
  ContenuParametres c;
  c.options.CheminEditeur = "/usr/bin/soffice";
  c.options.OublierRepModeles = -1;
  c.options.BarreMasquable = -1;
  c.options.ModeInsertion = 1;
  c.options.MasquerPopup = 1;
  c.RepDossier[0] = "/home/conseil/Etudes/";
  c.NomDossier[0] = "DUPONT.TVL";
  c.RepDossier[5] = "C:\\Dossiers\\";
  c.NomDossier[5] = "MARTIN.TVL";
  c.options.FormatLigne[0][0] = "5001;10;0;1;8";
  c.options.FormatLigne[4][1] = "5002;9;1;0;8";
  c.options.FormatLigne[5][0] = "5003;8;2;0;8";
  c.options.FormatLigne[5][1] = "5004;8;2;0;8";
  c.options.CouleurMarqueur = 1;
  c.options.OptimisationOOo = 1;
  c.options.RepModeles = "/home/conseil/Mod\xE8les/";
  c.options.DelaiSvgAuto = 5;
  c.options.TailleCellule = 12;
  c.options.AlignCellule = "r";
  return c;
}

TEST(EncoderParametres, RecordsSitAtTheirFixedOffsets) {
  std::string octets;
  ASSERT_FALSE(EncoderParametres(Exemple(), octets));
  ASSERT_EQ(octets.size(), 44u * 128 + 3);
  EXPECT_EQ(TexteRecord(octets, 1), "/usr/bin/soffice");
  EXPECT_EQ(octets[2 + 16], '\0');
  EXPECT_EQ(octets[127], '\0');
  EXPECT_EQ(Entier16(octets, 1 * 128), -1);
  EXPECT_EQ(Entier16(octets, 3 * 128), 1);
  EXPECT_EQ(TexteRecord(octets, 6), "/home/conseil/Etudes/");
  EXPECT_EQ(TexteRecord(octets, 7), "DUPONT.TVL");
  EXPECT_EQ(TexteRecord(octets, 16), "C:\\Dossiers\\");
  EXPECT_EQ(TexteRecord(octets, 17), "MARTIN.TVL");
  EXPECT_EQ(TexteRecord(octets, 18), "5001;10;0;1;8");
  EXPECT_EQ(TexteRecord(octets, 27), "5002;9;1;0;8");
  EXPECT_EQ(Entier16(octets, 27 * 128), 1);
  EXPECT_EQ(Entier16(octets, 29 * 128), 1);
  EXPECT_EQ(TexteRecord(octets, 31), "/home/conseil/Mod\xE8les/");
  EXPECT_EQ(TexteRecord(octets, 32), "5003;8;2;0;8");
  EXPECT_EQ(TexteRecord(octets, 33), "5004;8;2;0;8");
  for (int n = 34; n <= 42; ++n) EXPECT_EQ(Entier16(octets, static_cast<std::size_t>(n - 1) * 128), 0) << n;
  EXPECT_EQ(Entier16(octets, 42 * 128), 5);
  EXPECT_EQ(Entier16(octets, 43 * 128), 12);
  EXPECT_EQ(octets.substr(44 * 128), std::string("\x01\x00r", 3));
}

TEST(EnregistrerParametres, RoundTripKeepsEveryValue) {
  DossierTemporaire tmp;
  const ContenuParametres ecrit = Exemple();
  ASSERT_FALSE(EnregistrerParametres(ecrit, tmp / "Norvane/"));
  EXPECT_EQ(TailleFichier(tmp / "Norvane/Editeur.svg"), 44 * 128 + 3);
  const ContenuParametres lu = ChargerParametres(tmp / "Norvane/");
  EXPECT_EQ(lu.options.CheminEditeur, ecrit.options.CheminEditeur);
  EXPECT_EQ(lu.options.OublierRepModeles, -1);
  EXPECT_EQ(lu.options.BarreMasquable, -1);
  EXPECT_EQ(lu.options.ModeInsertion, 1);
  EXPECT_EQ(lu.options.MasquerPopup, 1);
  EXPECT_EQ(lu.RepDossier, ecrit.RepDossier);
  EXPECT_EQ(lu.NomDossier, ecrit.NomDossier);
  EXPECT_EQ(lu.options.FormatLigne, ecrit.options.FormatLigne);
  EXPECT_EQ(lu.options.CouleurMarqueur, 1);
  EXPECT_EQ(lu.options.OptimisationOOo, 1);
  EXPECT_EQ(lu.options.RepModeles, ecrit.options.RepModeles);
  EXPECT_EQ(lu.options.DelaiSvgAuto, 5);
  EXPECT_EQ(lu.options.TailleCellule, 12);
  EXPECT_EQ(lu.options.AlignCellule, "r");
}

TEST(ChargerParametres, AlignmentOfRecord45ComesBack) {
  DossierTemporaire tmp;
  for (const char* alignement : {"l", "c", "r"}) {
    ContenuParametres c;
    c.options.AlignCellule = alignement;
    ASSERT_FALSE(EnregistrerParametres(c, tmp.Chemin()));
    EXPECT_EQ(ChargerParametres(tmp.Chemin()).options.AlignCellule, alignement);
  }
}

TEST(ChargerParametres, SavedSansAnnotationZeroReadsOne) {
  DossierTemporaire tmp;
  ContenuParametres c;
  c.options.SansAnnotation = 0;
  ASSERT_FALSE(EnregistrerParametres(c, tmp.Chemin()));
  EXPECT_EQ(Entier16(tmp.Lire("Editeur.svg"), 27 * 128), 0);
  EXPECT_EQ(ChargerParametres(tmp.Chemin()).options.SansAnnotation, 1);
}

TEST(ChargerParametres, MissingAndEmptyFileGiveTheDefaults) {
  DossierTemporaire tmp;
  const ContenuParametres manquant = ChargerParametres(tmp / "Norvane/");
  EXPECT_TRUE(DossierExiste(tmp / "Norvane"));
  EXPECT_EQ(TailleFichier(tmp / "Norvane/Editeur.svg"), 0);
  const ContenuParametres vide = ChargerParametres(tmp / "Norvane/");
  tmp.Ecrire("Norvane/Editeur.svg", "\x05");
  const ContenuParametres unOctet = ChargerParametres(tmp / "Norvane/");
  for (const ContenuParametres* c : {&manquant, &vide, &unOctet}) {
    EXPECT_EQ(c->options.CheminEditeur, "");
    EXPECT_EQ(c->options.SansAnnotation, 1);
    EXPECT_EQ(c->options.MasquerPopup, 0);
    EXPECT_EQ(c->options.AlignCellule, "");
    EXPECT_EQ(c->RepDossier[0], "");
  }
}

TEST(ChargerParametres, FindsTheFileWhateverItsCase) {
  DossierTemporaire tmp;
  ContenuParametres c;
  c.options.CheminEditeur = "x";
  std::string octets;
  ASSERT_FALSE(EncoderParametres(c, octets));
  tmp.Ecrire("NORVANE/EDITEUR.SVG", octets);
  EXPECT_EQ(ChargerParametres(tmp / "Norvane/").options.CheminEditeur, "x");
}

TEST(DecoderParametres, ShortOrDamagedRecordsKeepTheirDefaults) {
  std::string octets;
  ASSERT_FALSE(EncoderParametres(Exemple(), octets));
  const ContenuParametres coupe = DecoderParametres(octets.substr(0, 4 * 128 + 1));
  EXPECT_EQ(coupe.options.CheminEditeur, "/usr/bin/soffice");
  EXPECT_EQ(coupe.options.ModeInsertion, 1);
  EXPECT_EQ(coupe.options.MasquerPopup, 0);
  EXPECT_EQ(coupe.options.AlignCellule, "");

  std::string abime = octets;
  abime[0] = '\x7F';  // length 127: more than a record holds
  abime[128 * 30] = '\xFF';
  abime[128 * 30 + 1] = '\xFF';  // length -1
  const ContenuParametres lu = DecoderParametres(abime);
  EXPECT_EQ(lu.options.CheminEditeur, "");
  EXPECT_EQ(lu.options.RepModeles, "");
  EXPECT_EQ(lu.options.AlignCellule, "r");
}

TEST(EnregistrerParametres, TextOf126BytesSurvives) {
  DossierTemporaire tmp;
  ContenuParametres c;
  c.options.CheminEditeur = "/" + std::string(125, 'e');
  ASSERT_FALSE(EnregistrerParametres(c, tmp.Chemin()));
  EXPECT_EQ(ChargerParametres(tmp.Chemin()).options.CheminEditeur, c.options.CheminEditeur);
}

TEST(EnregistrerParametres, TextOf127BytesIsRefusedAndTheFileLeftIntact) {
  DossierTemporaire tmp;
  ASSERT_FALSE(EnregistrerParametres(Exemple(), tmp.Chemin()));
  const std::string avant = tmp.Lire("Editeur.svg");
  ContenuParametres c = Exemple();
  c.NomDossier[2] = std::string(127, 'n');
  auto erreur = EnregistrerParametres(c, tmp.Chemin());
  ASSERT_TRUE(erreur);
  EXPECT_EQ(*erreur, "Impossible d'enregistrer les paramètres : le nom d'un dossier dépasse 126 caractères (record 11).");
  EXPECT_EQ(tmp.Lire("Editeur.svg"), avant);
}

TEST(ChargerOptions, FillsTheSessionSlotsZeroToFiveOnly) {
  DossierTemporaire tmp;
  Session ecrit;
  ecrit.RepNorvane = tmp / "Norvane/";
  ecrit.options.CheminEditeur = "/usr/bin/libreoffice";
  ecrit.RepDossier[5] = "/e/";
  ecrit.NomDossier[5] = "F.TVL";
  ecrit.NomDossier[6] = "NON.TVL";
  ASSERT_FALSE(EnregistrerOptions(ecrit));
  Session lu;
  lu.RepNorvane = ecrit.RepNorvane;
  lu.NomDossier[6] = "GARDE.TVL";
  ChargerOptions(lu);
  EXPECT_EQ(lu.options.CheminEditeur, "/usr/bin/libreoffice");
  EXPECT_EQ(lu.RepDossier[5], "/e/");
  EXPECT_EQ(lu.NomDossier[5], "F.TVL");
  EXPECT_EQ(lu.NomDossier[6], "GARDE.TVL");
}

TEST(FormatLigneEffectif, BlankMemberReadsTheDefaultFormat) {
  Options o;
  o.FormatLigne[2][1] = "5001;9;0;0;8";
  o.FormatLigne[3][0] = "   ";
  EXPECT_EQ(FormatLigneEffectif(o, 2, 1), "5001;9;0;0;8");
  EXPECT_EQ(FormatLigneEffectif(o, 2, 0), "1;1;1;1;8");
  EXPECT_EQ(FormatLigneEffectif(o, 3, 0), "1;1;1;1;8");
  EXPECT_EQ(FormatLigneEffectif(o, 6, 0), "1;1;1;1;8");
}

}  // namespace
}  // namespace norvane
