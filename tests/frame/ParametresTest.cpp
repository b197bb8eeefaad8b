#include "frame/Parametres.h"

#include <gtest/gtest.h>

#include <cstring>

#include "support/DossierTemporaire.h"

namespace norvane {
namespace {

using test::DossierTemporaire;

// Puts a value at the start of a 128-byte record, as the file holds it.
void Poser(std::string& octets, int record, int16_t valeur) {
  std::memcpy(&octets[static_cast<std::size_t>(record - 1) * 128], &valeur, 2);
}
void Poser(std::string& octets, int record, const std::string& texte) {
  Poser(octets, record, static_cast<int16_t>(texte.size()));
  octets.replace(static_cast<std::size_t>(record - 1) * 128 + 2, texte.size(), texte);
}

std::string Encoder(const ContenuParametres& contenu) {
  std::string octets;
  EXPECT_TRUE(EncoderParametres(contenu, octets));
  return octets;
}

// Settings whose records each hold their own number (text "r<n>é", integer 10n - 300), so that a
// record out of place shows; `octets` receives the file they make, record by record.
ContenuParametres Numerotes(std::string& octets) {
  ContenuParametres c;
  Options& o = c.options;
  const std::pair<int, std::string*> textes[] = {
      {1, &o.CheminEditeur},      {6, &c.RepDossier[0]},      {7, &c.NomDossier[0]},      {16, &c.RepDossier[5]},
      {17, &c.NomDossier[5]},     {18, &o.FormatLigne[0][0]}, {27, &o.FormatLigne[4][1]}, {31, &o.RepModeles},
      {32, &o.FormatLigne[5][0]}, {33, &o.FormatLigne[5][1]}, {45, &o.AlignCellule}};
  const std::pair<int, int16_t*> entiers[] = {
      {2, &o.OublierRepModeles}, {3, &o.BarreMasquable},  {4, &o.ModeInsertion},
      {5, &o.MasquerPopup},      {28, &o.SansAnnotation}, {29, &o.CouleurMarqueur},
      {30, &o.OptimisationOOo},  {43, &o.DelaiSvgAuto},   {44, &o.TailleCellule}};
  octets.assign(45 * 128, '\0');
  for (const auto& [n, champ] : textes) Poser(octets, n, *champ = "r" + std::to_string(n) + "\xE9");
  for (const auto& [n, champ] : entiers) Poser(octets, n, *champ = static_cast<int16_t>(10 * n - 300));
  octets.resize(44 * 128 + 2 + o.AlignCellule.size());  // the file ends right after the value of record 45
  return c;
}

TEST(EncoderParametres, EveryRecordSitsAtItsFixedOffset) {
  std::string attendu;
  EXPECT_EQ(Encoder(Numerotes(attendu)), attendu);
}

TEST(ChargerOptions, TheFileComesBackIntoSessionSlotsZeroToFiveOnlyWhateverTheCaseOfItsFolder) {
  DossierTemporaire tmp;
  std::string attendu;
  ASSERT_TRUE(EnregistrerParametres(Numerotes(attendu), tmp / "Norvane/"));
  SessionCadre s;
  s.RepNorvane = tmp / "NORVANE/";
  s.NomDossier[6] = "GARDE.TVL";
  ChargerOptions(s);
  EXPECT_EQ(s.options.SansAnnotation, 1);  // whatever was saved
  EXPECT_EQ(s.NomDossier[6], "GARDE.TVL");
  s.RepNorvane = tmp / "Copie/";
  ASSERT_TRUE(EnregistrerOptions(s));
  Poser(attendu, 28, int16_t{1});
  EXPECT_EQ(tmp.Lire("Copie/Editeur.svg"), attendu);
}

TEST(ChargerParametres, MissingEmptyAndOneByteFilesGiveTheDefaults) {
  DossierTemporaire tmp;
  std::string defauts(44 * 128 + 2, '\0');
  Poser(defauts, 28, int16_t{1});  // SansAnnotation; every other setting is 0 or empty
  EXPECT_EQ(Encoder(ChargerParametres(tmp / "Norvane/")), defauts);
  EXPECT_EQ(tmp.Lire("Norvane/Editeur.svg"), "");  // folder and empty file made
  EXPECT_EQ(Encoder(ChargerParametres(tmp / "Norvane/")), defauts);
  tmp.Ecrire("Norvane/Editeur.svg", "\x05");
  EXPECT_EQ(Encoder(ChargerParametres(tmp / "Norvane/")), defauts);
}

TEST(DecoderParametres, ShortOrDamagedRecordsKeepTheirDefaults) {
  std::string octets;
  Numerotes(octets);
  const ContenuParametres coupe = DecoderParametres(octets.substr(0, 5 * 128 + 4));  // record 6 cut short
  EXPECT_EQ(coupe.options.MasquerPopup, -250);
  EXPECT_EQ(coupe.RepDossier[0], "");
  Poser(octets, 1, int16_t{127});  // more than a record holds
  Poser(octets, 31, int16_t{-1});
  const ContenuParametres lu = DecoderParametres(octets);
  EXPECT_EQ(lu.options.CheminEditeur + lu.options.RepModeles, "");
  EXPECT_EQ(lu.options.AlignCellule, "r45\xE9");
}

TEST(EnregistrerParametres, ATextOf126BytesIsKeptOneOf127IsRefusedAndTheFileLeftIntact) {
  DossierTemporaire tmp;
  ContenuParametres c;
  c.options.CheminEditeur = "/" + std::string(125, 'e');
  ASSERT_TRUE(EnregistrerParametres(c, tmp.Chemin()));
  EXPECT_EQ(ChargerParametres(tmp.Chemin()).options.CheminEditeur, c.options.CheminEditeur);
  const std::string avant = tmp.Lire("Editeur.svg");
  c.NomDossier[2] = std::string(127, 'n');
  const Resultat<void> refus = EnregistrerParametres(c, tmp.Chemin());
  ASSERT_FALSE(refus);
  EXPECT_EQ(refus.Erreur().texte,
            "Impossible d'enregistrer les paramètres : le nom d'un dossier dépasse 126 caractères (record 11).");
  EXPECT_EQ(refus.Erreur().enregistrement, 11u);
  EXPECT_EQ(tmp.Lire("Editeur.svg"), avant);
}

TEST(FormatLigneEffectif, ABlankOrUnknownMemberReadsTheDefaultFormat) {
  Options o;
  o.FormatLigne[2][1] = "5001;9;0;0;8";
  o.FormatLigne[3][0] = "   ";
  EXPECT_EQ(FormatLigneEffectif(o, 2, 1), "5001;9;0;0;8");
  const std::pair<int, int> parDefaut[] = {{2, 0}, {3, 0}, {6, 0}, {0, 2}};
  for (const auto& [type, membre] : parDefaut) EXPECT_EQ(FormatLigneEffectif(o, type, membre), "1;1;1;1;8") << type;
}

}  // namespace
}  // namespace norvane
