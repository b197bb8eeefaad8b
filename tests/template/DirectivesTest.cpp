// Codes that do more than show a field: conditions si(...)alors:, page
// numbers, tool tips, INI: values, date(n), the %tvl(...)% codes of a table
// cell, and pictures embedded as they are when no picture port is plugged in.
#include <tuple>
#include <vector>

#include "construction/FichiersIni.h"
#include "construction/ImagePng.h"
#include "support/DossierTemporaire.h"
#include "support/BancInterpreteur.h"
#include "template/Directives.h"
#include "template/InterpreteurInterne.h"

namespace norvane::test {
namespace {

class Directives : public BancInterpreteur {
 protected:
  void SetUp() override { Info().Adresse = "1 rue du Bourg"; }
  DossierTemporaire temporaire;
};

TEST_F(Directives, ConditionsTestTheTextForNonZeroOtherFormsAreTrueAndPageNumbersShareOneCounter) {
  EXPECT_EQ(Valeur("si(1<>0)alors:adresse"), "1 rue du Bourg");
  EXPECT_EQ(resultat, -1);
  EXPECT_EQ(Interpreter("a #tvl(si(0<>0)alors:adresse)# cache"), "a \\v cache");
  EXPECT_EQ(resultat, 0);
  Valeurs({{"si(<>0)alors:adresse", "\\v"}, {"si(vrai)alors:adresse", "1 rue du Bourg"},
           {"SI(0)ALORS:adresse", "1 rue du Bourg"}});
  EXPECT_TRUE(messages.messages.empty());
  Valeur("si(TransfoPerenne=Vrai)alors:adresse");
  EXPECT_TRUE(generation.etat.TransfoPerenne);
  Valeur("si(transfoperenne=faux)alors:adresse");
  EXPECT_FALSE(generation.etat.TransfoPerenne);
  // Page numbers share one counter, which a false condition spares.
  Valeur("si(0<>0)alors:numPage2");
  EXPECT_EQ(generation.etat.NumPageCompteur, 0);
  EXPECT_EQ(Interpreter("#tvl(numPage2)#|#tvl(si(1<>0)alors:numPage2)#|#tvl(numPage2bis)#"),
            "\\v0 2-1|\\v0 2-2|\\v0 2bis-3");
}

TEST_F(Directives, AConditionOnASeriesReadsColumnSevenFormatted) {
  const std::string code = "si(RES.DON+RES-12<>0)alors:adresse";
  // {column 7 of record 12, decimals of the record, value}: "0,00" is no "0".
  const std::tuple<float, std::string, std::string> cas[] = {
      {5, "0", "1 rue du Bourg"}, {0, "0", "\\v"}, {0, "2", "1 rue du Bourg"}};
  for (const auto& [colonne7, decimales, attendu] : cas) {
    std::vector<SerieDonnees> series(12);
    series[11] = construction::Serie("RES-12:" + decimales, "Produit|EUR",
                                     {9, 9, 9, 9, 9, 9, 9, colonne7, 9, 9, 9, 9, 9, 9});
    DossierEssai(temporaire.Chemin(), series);
    generation.etat = EtatGeneration{};  // a generation reads a series file once: each case is a generation
    EXPECT_EQ(Valeur(code), attendu) << colonne7 << " " << decimales;
  }
  EXPECT_EQ(Valeur("si(ABSENT.DON+AB-3<>0)alors:adresse"), "\\v");
}

TEST_F(Directives, AMissingAlorsIsReported) {
  EXPECT_EQ(Valeur("si(1<>0)adresse"), Cp("< Portion de code erronée dans le modèle de document >"));
  EXPECT_EQ(resultat, -1);
  const auto m = Boite();
  EXPECT_EQ(m.titre, kErreurDetectee);
  EXPECT_EQ(m.texte,
            "La portion de code \"si(1<>0)adresse\" dans le modèle est mal renseignée : il manque la balise "
            "\")alors:\" de fin d'une condition Si... Alors...");
  EXPECT_EQ(m.conseil, kConseilModele);
  messages.messages.clear();
  Valeur("si(" + std::string(60, 'x') + ")");  // shown as its first 50 characters
  EXPECT_NE(Boite().texte.find("\"si(" + std::string(47, 'x') + "...\""), std::string::npos);
}

TEST_F(Directives, ATooltipIsWrittenFromTheLiteralCode) {
  const std::string ancre = "{\\fs22 {\\*\\atrfstart 47317183}";
  EXPECT_EQ(Interpreter("Voir #tvl(INFO:CODE1:11:Le_titre:Texte_de_l'aide:le_rep\xE8re)# ici."),
            "Voir " + ancre + "le rep\xE8re}{\\cs15\\v\\fs22 {\\*\\atrfend 47317183}{\\*\\atnid CODE1}"
            "{\\*\\atnauthor Le titre }\\chatn {\\*\\annotation {\\*\\atnref 47317183}{Texte de l'aide}}} ici.");
  // The literal keeps the case and blanks that the cleaning removes.
  EXPECT_EQ(Interpreter("#tvl(info: c :8:Mon Titre:Un texte:Mot)#"),
            ancre + "Mot}{\\cs15\\v\\fs16 {\\*\\atrfend 47317183}{\\*\\atnid c}{\\*\\atnauthor Mon Titre }\\chatn "
            "{\\*\\annotation {\\*\\atnref 47317183}{Un texte}}}");
  // A blank mark becomes "\~"; a ":" beyond the fourth stays in the mark; three fields give a blank.
  EXPECT_EQ(Interpreter("#tvl(INFO:c:10:t:i:__)#").rfind(ancre + "\\~}{\\cs15", 0), 0u);
  EXPECT_EQ(Interpreter("#tvl(INFO:c:10:t:i:a:b)#").rfind(ancre + "a:b}{\\cs15", 0), 0u);
  EXPECT_EQ(Interpreter("a#tvl(INFO:code:10:titre)#b"), "a b");
  EXPECT_TRUE(messages.messages.empty());
  EXPECT_TRUE(AnnotationInfo("#TVL(info:a:1:b:c:d)#"));
  for (const char* autre : {"#tvl(nomExploit)#", "#tvl( INFO:a:1:b:c:d)#", ""}) EXPECT_FALSE(AnnotationInfo(autre));
  // In a cell, no annotation.
  generation.etat.CodeCourant = "#tvl(INFO:c:10:t:i:r)#";
  std::string texte = "ab)#x";
  EXPECT_EQ(InsererValeur(generation, texte, 0, 2, " ", true), 2u);
  EXPECT_EQ(texte, "\\~x");
}

TEST_F(Directives, IniDataIsReadBySectionAndKey) {
  session.RepNorvane = temporaire.Chemin();
  construction::EcrireIni(temporaire / "donnees.INI", {{Cp("Général"), {{"Cle", "valeur generale"}, {"Prix", "12,5"}}},
                                                       {"Sect", {{"Cle", "valeur de Sect"}}},
                                                       {"a", {{"c", "valeur de a"}, {"b", "pas celle-ci"}}}});
  Valeurs({{"INI:Cle", "valeur generale"}, {"ini:Prix", "12,5"}, {"INI:Sect:Cle", "valeur de Sect"},
           {"INI: Sect : Cle", "valeur de Sect"},  // blanks are cleaned away first
           {"INI:a:b:c", "valeur de a"},           // section to the first ":", key behind the last
           {"INI:Sect:Absente", "\\~"}});
  EXPECT_TRUE(messages.questions.empty());
  session.RepNorvane = temporaire / "ailleurs/";
  EXPECT_EQ(Valeur("INI:Cle"), "\\~");
  ASSERT_EQ(messages.questions.size(), 1u);
  EXPECT_EQ(messages.questions[0].texte,
            "Attention ! Le fichier \"donnees.INI\" n'existe pas dans le répertoire de Wintervol\\Norvane\\ ! "
            "Données non récupérable !");
  EXPECT_EQ(messages.questions[0].icone, Icone::Exclamation);
  EXPECT_EQ(messages.questions[0].boutons, Boutons::Ok);
}

TEST_F(Directives, EighteenDateFormatsAndNothingAroundThem) {
  // Sunday 22 November 2026, 14:05:09.
  const char* attendus[] = {"dimanche 22 novembre 2026", "22 novembre 2026", "22-nov.-26", "22/11/2026",
                            "22/11/2026", "22 - 11 - 2026", "22-11-26", "22/11/26", "22/11/2026", "22/11", "22",
                            "22/11/2026 14:05:09", "14:05:09", "14:05", "14:05", "14-05-09", "14.05.09", "14-05"};
  for (int n = 0; n < 18; ++n) EXPECT_EQ(Valeur("date(" + std::to_string(n) + ")"), attendus[n]) << n;
  // Out of the formats a no-break space; a format that is no number reads as 0.
  Valeurs({{"date(18)", "\\~"}, {"date(-1)", "\\~"}, {"date(x)", "dimanche 22 novembre 2026"}});
  // Accents in Windows-1252.
  maintenant = MomentLocal(2027, 2, 1, 8, 3, 0);
  Valeurs({{"date(0)", "lundi 1 f\xE9vrier 2027"}, {"date(2)", "01-f\xE9vr.-27"}});
  maintenant = MomentLocal(2026, 8, 15, 23, 59, 59);
  EXPECT_EQ(Valeur("date(1)"), "15 ao\xFBt 2026");
  maintenant = MomentLocal(2026, 12, 9, 0, 0, 0);
  Valeurs({{"date(2)", "09-d\xE9" "c.-26"}, {"date(11)", "09/12/2026 00:00:00"}});
}

TEST_F(Directives, ACellInterpretsItsPercentCodesOnly) {
  Info().NomExploitation = "DUPONT";
  Info().Commune = "%tvl(nomExploit)%";
  generation.etat.CodeCourant = "#tvl(tabx)#";
  for (const auto& [texte, attendu] : Cas{{"Total %tvl(nomExploit)% en %tvl(date(10))%", "Total DUPONT en 22"},
                                          {"#tvl(nomExploit)#", "#tvl(nomExploit)#"},
                                          {"%tvl(commune)%!", "%tvl(nomExploit)%!"},  // a value is not read again
                                          {"a %tvl(nomExploit", "a %tvl(nomExploit"},
                                          {"%tvl(xyz)% %tvl(nomExploit)%", "%tvl(xyz)% DUPONT"}}) {
    std::string cellule = texte;
    InterpreterCellule(generation, cellule);
    EXPECT_EQ(cellule, attendu);
  }
  EXPECT_EQ(messages.messages.size(), 1u);                 // xyz is unknown
  EXPECT_EQ(generation.etat.CodeCourant, "#tvl(tabx)#");  // still the table's code
}

// The head of a JPEG file: SOI, an APP0 segment, then a SOF0 of 640 x 480.
const std::string kTeteJpeg("\xFF\xD8\xFF\xE0\x00\x04JF"
                            "\xFF\xC0\x00\x0B\x08\x01\xE0\x02\x80\x01\x01\x11\x00\xFF\xD9", 23);

TEST_F(Directives, PngAndJpegPicturesCarryTheirSizeInPixelsAndTwips) {
  construction::DessinPng dessin;
  dessin.largeur = 20;
  dessin.hauteur = 10;
  const std::string png = construction::OctetsPng(dessin);
  temporaire.Ecrire("Logo.PNG", png);
  const std::string rtf = ImageVersRtfDirecte(temporaire / "logo.png");
  const std::string tete = "{\\pict\\pngblip\\picw20\\pich10\\picwgoal300\\pichgoal150 ";
  ASSERT_EQ(rtf.rfind(tete, 0), 0u);
  EXPECT_EQ(rtf.size(), tete.size() + 2 * png.size() + 1);
  EXPECT_EQ(rtf.substr(tete.size(), 16), "89504e470d0a1a0a");
  temporaire.Ecrire("photo.jpg", kTeteJpeg);
  EXPECT_EQ(ImageVersRtfDirecte("  " + (temporaire / "photo.jpg") + "  "),
            "{\\pict\\jpegblip\\picw640\\pich480\\picwgoal9600\\pichgoal7200 ffd8ffe000044a46ffc0000b0801e00280010111"
            "00ffd9}");
  // Other kinds, cut files, a missing file and a blank path give nothing.
  temporaire.Ecrire("image.gif", "GIF89a\x01\x00\x01\x00");
  temporaire.Ecrire("coupe.png", png.substr(0, 20));
  temporaire.Ecrire("coupe.jpg", kTeteJpeg.substr(0, 12));
  for (const std::string nom : {"image.gif", "coupe.png", "coupe.jpg", "absent.png"}) {
    EXPECT_EQ(ImageVersRtfDirecte(temporaire / nom), "") << nom;
  }
  EXPECT_EQ(ImageVersRtfDirecte("   "), "");
}

}  // namespace
}  // namespace norvane::test
