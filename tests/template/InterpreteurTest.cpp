// The code interpreter: the scan of a slice, the cleaning of a code, the
// insertion of its value, unknown codes, table and graph ports, explain mode,
// and garbage that must neither crash nor hang.
#include <random>
#include <tuple>

#include "support/BancInterpreteur.h"
#include "template/Directives.h"
#include "template/InterpreteurInterne.h"

namespace norvane::test {
namespace {

class Interpreteur : public BancInterpreteur {
 protected:
  void SetUp() override { Info().NomExploitation = "DUPONT Jean                   "; }
};

TEST_F(Interpreteur, AValueIsCleanedTrimmedOrANoBreakSpace) {
  EXPECT_EQ(Interpreter("avant #tvl(nomExploit)# apres"), "avant DUPONT Jean apres");
  EXPECT_EQ(resultat, -1);
  Valeurs({{" nomExploit ", "DUPONT Jean"}, {"nom{\\b Exploit}", "DUPONT Jean"}, {"nom\r\nExploit", "DUPONT Jean"}});
  Societe();
  EXPECT_EQ(Valeur("nomExploit"), "\\~");  // an empty value never vanishes
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Interpreteur, StartMarksAreFoundWhateverTheirCase) {
  Info().Commune = "Rennes #tvl(nomExploit)#";
  for (const auto& [texte, attendu] : Cas{
           {"#TVL(nomExploit)#", "DUPONT Jean"},  // the first mark is found whatever its case
           {"#tvl(a #tvl(nomExploit)# b", "#tvl(a DUPONT Jean b"},  // the inner code; the outer mark stays
           {"{#tvl(nomExploit)#, #tvl(commune)#}", "{DUPONT Jean, Rennes #tvl(nomExploit)#}"}}) {  // not re-read
    EXPECT_EQ(Interpreter(texte), attendu);
  }
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Interpreteur, AnUnknownCodeStaysAsItIsWithItsBox) {
  // Words are case-sensitive, numbered families exact.
  const std::string inconnus = "#tvl(NOMEXPLOIT)##tvl(nomAss11)##tvl(nomAss01)##tvl(nomAss0)##tvl(modeCom7)#"
                               "#tvl(date10)#";
  EXPECT_EQ(Interpreter(inconnus + " #tvl(nomExploit)#"), inconnus + " DUPONT Jean");
  ASSERT_EQ(messages.messages.size(), 6u);
  const auto& m = messages.messages[0];
  EXPECT_EQ(m.titre, kErreurDetectee);
  EXPECT_EQ(m.texte, "La portion de code \"NOMEXPLOIT\" dans le modèle est inconnue de l'interpréteur Norvane.");
  EXPECT_EQ(m.conseil, kConseilModele);
  EXPECT_EQ(m.style, "");
  // With a "-" and no "+", the series reader's own box, and an empty value.
  messages.messages.clear();
  EXPECT_EQ(Valeur("a-b"), "\\~");
  EXPECT_EQ(Boite().texte, "Le code \"a-b\" est inconnu de l'interpréteur Norvane.");
}

TEST_F(Interpreteur, AMissingEndMarkIsReportedAtEachStart) {
  EXPECT_EQ(Interpreter("#tvl(nomExploit"), "#tvl(nomExploit");
  EXPECT_EQ(Boite().titre, kErreurDetectee);
  EXPECT_EQ(Boite().texte,
            "Norvane ne trouve pas une balise \")#\" dans le modèle de document utilisé pour la création.");
  Interpreter("#tvl(a #tvl(b");
  EXPECT_EQ(messages.messages.size(), 3u);
}

TEST_F(Interpreteur, InsertingAValueGivesThePositionBehindIt) {
  std::string texte = "ab#tvl(x)#cd";
  EXPECT_EQ(InsererValeur(generation, texte, 2, 8, "  val  ", true), 5u);
  EXPECT_EQ(texte, "abvalcd");
  EXPECT_EQ(InsererValeur(generation, texte, 2, 3, "", true), 4u);
  EXPECT_EQ(texte, "ab\\~cd");
}

class Ports : public PortTableaux, public PortGraphiques {
 public:
  std::optional<std::string> reponse;
  std::string recu;
  std::optional<std::string> GenererTableau(Generation&, const std::string& code) override {
    recu = code;
    return reponse;
  }
  std::optional<std::string> GenererGraphique(Generation&, const std::string& code) override {
    return "{\\pict " + code + "}";
  }
};

TEST_F(Interpreteur, TableAndGraphCodesGoToTheirPorts) {
  const std::string codes = "#tvl(taba2p1)# #tvl(gph(T;1))# #tvl(culture1taba2)#";
  EXPECT_EQ(Interpreter(codes), codes);  // no port: left as they stand
  EXPECT_TRUE(messages.messages.empty());
  Ports ports;
  generation.tableaux = &ports;
  generation.graphiques = &ports;
  EXPECT_EQ(Valeur("actlibr1taba2"), "#tvl(actlibr1taba2)#");  // the port declines it
  ports.reponse = "{\\trowd TABLE}";
  EXPECT_EQ(Valeur("tab a2{\\b p1}"), "{\\trowd TABLE}");
  EXPECT_EQ(ports.recu, "taba2p1");
  EXPECT_EQ(Valeur("gph(Titre;2)"), "{\\pict gph(Titre;2)}");
  // Explain mode inserts values as ever, but computes no table.
  ports.recu.clear();
  EXPECT_EQ(Interpreter("#tvl(nomExploit)# #tvl(taba2p1)#", true), "DUPONT Jean #tvl(taba2p1)#");
  EXPECT_EQ(ports.recu, "");
}

TEST_F(Interpreteur, TheStateOfTheCurrentCodeAndTheDormantAnnotatedForm) {
  generation.etat.TransfoPerenne = true;
  Interpreter("#tvl( nom{\\b Exploit} )#");
  EXPECT_EQ(generation.etat.CodeCourant, "#tvl( nom{\\b Exploit} )#");  // the literal, before cleaning
  EXPECT_FALSE(generation.etat.TransfoPerenne);                         // reset at each code
  session.options.SansAnnotation = 0;
  generation.etat.ProchaineCouleur = 3;
  EXPECT_EQ(Valeur("nomExploit"),
            "{\\fs22 {\\*\\atrfstart 47317183}DUPONT Jean}{\\cs15\\v\\cf17\\fs16 {\\*\\atrfend 47317183}"
            "{\\*\\atnid TVL}{\\*\\atnauthor Code Norvane pour la construction de la donn\xE9"
            "e }\\chatn {\\*\\annotation {\\*\\atnref 47317183}{#tvl(nomExploit)#}}}");
}

class Explication : public BancInterpreteur {
 protected:
  void SetUp() override {
    Info().NomExploitation = "GAEC DU PR\xC9";
    Info().DateDebut = "01/01/2005";
    Societe();
    Info().NbAssocies = 1;
    Info().NomAssocie[1] = "Paul";
    session.Organisations[12].Nom = "Chambre";
  }
};

TEST_F(Explication, TextAndExampleOfEachKindOfCode) {
  const std::string exemple =
      "Par exemple, pour le dossier Tervol actuellement lié à Norvane, le résultat du code serait ";
  const std::string tableau = "taba2p1cr0;larg2000;larg7200([280;120][Produit;5006;10;1;0;0;0])";
  // {code, text, advice behind `exemple` (empty: no advice)}
  const std::vector<std::tuple<std::string, std::string, std::string>> cas = {
      {"nomExplSoc", "#tvl(nomExplSoc)# est le code pour afficher le nom de l'exploitant ou de la société.",
       ": GAEC DU PRÉ"},
      {"an4Fin3", "#tvl(an4Fin3)# est le code pour afficher l'année de fin d'exercice 3 sur 4 chiffres.", ": 2008"},
      // The header shows the cleaned code.
      {"{\\b date0}", "#tvl(date0)# est le code pour afficher la date d'exercice 0 au format suivant : <mois "
       "début/fin en clair> - <année début/fin sur 4 chiffres>.", ": Jan. 2004 - Déc. 2004"},
      // Each "\par " of the value is shown as a blank.
      {"nomSocAss", "#tvl(nomSocAss)# est le code pour afficher le nom de la société avec les différents partenaires "
       "( champ laissé vide si exploit. individuelle ).",
       "( avec un saut de ligne après chaque nom ) : Nom société : GAEC DU PRÉ - Paul"},
      {"saut2page", "#tvl(saut2page)# est le code permettant un saut de page.", ""},
      // ORGA codes have the help of the moisCFin family.
      {"ORGANOM12", "#tvl(ORGANOM12)# est le code pour afficher le mois de fin d'exercice 2 écrit en clair ( abrégé "
       "si le mois fait plus de 4 lettres ).", ": Chambre"},
      {"date(10)", "#tvl(date(10))# est le code pour afficher une date fixe ou mise à jour au moment de la création "
       "du document résultat.", ": 22"},
      // Tables and graphs are not computed: their help alone.
      {"taba2p1", "#tvl(taba2p1)# est le code d'un tableau pluri-annuel.", ""},
      {"tabd1p1", "#tvl(tabd1p1)# est le code d'un tableau affichant une seule colonne de valeurs sur 1 dossier.", ""},
      {"tabd3p1", "#tvl(tabd3p1)# est le code d'un tableau permettant de comparer les données de 3 dossiers.", ""},
      {"culture1taba2", "#tvl(culture1taba2)# est le code d'un tableau des cultures ( pérennes ou non ).", ""},
      {"cultper1taba2", "#tvl(cultper1taba2)# est le code d'un tableau des cultures ( pérennes ou non ).", ""},
      {"actlibr1taba2", "#tvl(actlibr1taba2)# est le code d'un tableau des activités libres animales.", ""},
      {tableau, "#tvl(" + tableau.substr(0, 50) + "... )# est le code d'un tableau pluri-annuel.", ""},
      {"gph(Marge_brute;1;0;2)",
       "#tvl(gph(Marge_brute;1;0;2))# est le code pour afficher le graphique \"Marge brute\".", ""},
      {"gph(ancien)", "#tvl(gph(ancien))# est le code pour afficher le graphique \"Inconnu\".", ""}};
  for (const auto& [code, texte, conseil] : cas) {
    messages.messages.clear();
    Interpreter("#tvl(" + code + ")#", true);
    const auto boite = Boite();
    EXPECT_EQ(boite.titre, "Interprétation d'un code Norvane") << code;
    EXPECT_EQ(boite.style, "Aide") << code;
    EXPECT_EQ(boite.texte, texte);
    EXPECT_EQ(boite.conseil, conseil.empty() ? "" : exemple + conseil) << code;
  }
}

TEST_F(Explication, AnUnknownCodeGivesOnlyTheError) {
  Interpreter("#tvl(inconnu)#", true);
  EXPECT_EQ(Boite().titre, kErreurDetectee);
}

TEST(NettoyerCode, AnOrderedListThenBookmarkLeftovers) {
  for (const auto& [code, attendu] : Cas{
           {"{\\plain\\fs24\\b nom}{\\i Exploit}", "nomExploit"}, {"nom\r\n\tExploit\x08", "nomExploit"},
           {"\\lang2057 nom\\par Exploit", "nomExploit"}, {"{\\B\\I\\PLAIN nomExploit}", "nomExploit"},
           {"\\page saut2page", "saut2page"},
           // "fs20" and "fs22" go even without their backslash, leaving it to "\b".
           {"offs20set", "ofset"}, {"a\\fs22b", "a"}, {"\\fs20 x", "\\x"},
           // "\cs" goes before "\c", which takes the head of "\cf1"; "\b" that of "\bkmkstart".
           {"\\cs15 nomExploit", "15nomExploit"}, {"\\cf1 nomExploit", "f1nomExploit"},
           {"{\\*\\bkmkstart x}", "startx"},
           // DDE_LINK bookmarks go whole, digits and all; an OLE_LINK start loses only "kmk".
           {"{\\*\\bkmkstart DDE_LINK12}nomExploit{\\*\\bkmkend DDE_LINK12}", "nomExploit"},
           {"nom{\\*\\bkmkend DDE_LINK}Exploit", "nomExploit"},
           {"{\\*\\bkmkstart OLE_LINK1}nomExploit", "startOLE_LINK1nomExploit"},
           {"nomExploit{\\*\\bkmkend OLE_LINK27}", "nomExploit"}, {"endOLEx", "endOLEx"},
           {"l\\rquote a\\lquote b", "l'a'b"}, {"INI:prix\\'80", "INI:prix\x80"}}) {
    std::string nettoye = code;
    NettoyerCode(nettoye);
    EXPECT_EQ(nettoye, attendu) << code;
  }
  std::string masse;
  for (int i = 0; i < 100000; ++i) masse += "kmk{\\*\\bkmkstart DDE_LINK12}endOLE_LINK3";
  NettoyerCode(masse += "nomExploit");
  EXPECT_EQ(masse, "nomExploit");
}

TEST(EnleverMarque, OneDigitPerCall) {
  std::string texte = "xMARQ12y";
  EXPECT_EQ(EnleverMarque(texte, "MARQ"), 1);
  EXPECT_EQ(texte, "xMARQ2y");
  EXPECT_EQ(EnleverMarque(texte, "MARQ") + EnleverMarque(texte, "MARQ"), 2);
  EXPECT_EQ(texte, "xy");
  EXPECT_EQ(EnleverMarque(texte, "MARQ"), -1);
}

TEST_F(Interpreteur, RandomTextsAndVeryLongCodesNeitherCrashNorLoop) {
  const char* const morceaux[] = {"#tvl(", ")#", "#TVL(", "%tvl(", ")%", "si(", ")alors:", "<>0", "INFO:", ":", "INI:",
                                  "date(", "ORGA", "-", "+", "numPage2", "saut2page", "\\par ", "{\\*\\bkmkstart DDE_LINK1}",
                                  "kmk", "endOLE_LINK9", "\\'80", "formule:", "tab", "gph(", "nomAss", "date0", "_", "{"};
  Info().DateDebut = "29/02/2008";
  Info().NbAssocies = 32000;
  Societe();
  std::mt19937 alea(20261122);
  for (int essai = 0; essai < 3000; ++essai) {
    std::string texte;
    for (int n = alea() % 41; n > 0; --n) {
      texte += alea() % 2 ? std::string(morceaux[alea() % std::size(morceaux)]) : std::string(1, char(alea()));
    }
    std::string cellule = texte;
    InterpreterPortion(generation, texte, essai % 7 == 0);
    InterpreterCellule(generation, cellule);
  }
  for (std::string texte : {"#tvl(" + std::string(100000, '-') + ")#", std::string(20000, '#') + "tvl(",
                            "#tvl(si(" + std::string(50000, 'a') + "-b<>0)alors:" + std::string(50000, 'x') + ")#"}) {
    InterpreterPortion(generation, texte, true);
  }
}

}  // namespace
}  // namespace norvane::test
