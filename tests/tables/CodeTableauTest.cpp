#include "tables/CodeTableau.h"

#include <gtest/gtest.h>

#include <random>

#include "support/PortsScriptes.h"
#include "support/Resultats.h"
#include "tables/Crochets.h"

namespace norvane {
namespace {

constexpr char kPolice[] = "5006;10;1;0;0;0;0;0;r";
constexpr char kCadre[] = "1;1;1;1;8";

ModeleTableau Lire(std::string_view corps, Resultat<void>* lecture = nullptr) {
  ModeleTableau modele;
  const Resultat<void> lu = LireCodeTableau(corps, modele);
  if (lecture != nullptr) *lecture = lu;
  return modele;
}

TEST(Crochets, FieldsAndTheirErrors) {
  std::string texte = "x[a;b]reste";
  EXPECT_EQ(ExtraireCrochets(texte), "a;b");
  EXPECT_EQ(texte, "reste");
  texte = "[sans fin";
  EXPECT_EQ(ExtraireCrochets(texte), "erreur");
  EXPECT_EQ(texte, "sans fin");
  texte = "rien";
  EXPECT_EQ(ExtraireCrochets(texte), "erreur");
  EXPECT_EQ(texte, "rien");
  EXPECT_EQ(GaucheDe("a;b;c", ";", 2), "a;b");
  EXPECT_EQ(DroiteDe("a;b;c", ";", 1), "b;c");
  EXPECT_EQ(GaucheDe("a;b", ";", 3), "-1");
  EXPECT_EQ(DroiteDe("a;b", ";", 0), "-1");
}

TEST(LireCode, ExampleOfTheStore) {
  Resultat<void> lu;
  const ModeleTableau m = Lire(
      "taba2p1cr0;larg2000;larg7200([280;120][Produit_brut;5006;10;1;0;0;0;0;0;r;1;1;1;1;8]"
      "[entete:1;5006;10;1;0;0;0;0;0;r;1;1;1;1;8])",
      &lu);
  EXPECT_TRUE(lu) << test::Raison(lu);
  EXPECT_EQ(m.TypeTableau, 0);
  EXPECT_EQ(m.MultiDossier, 0);
  EXPECT_EQ(m.NbDossiers, 2);
  EXPECT_EQ(m.NbColonnes, 1);
  EXPECT_EQ(m.Centre, 1);
  EXPECT_EQ(m.NegatifsRouges, 1);
  EXPECT_EQ(m.ModeAnnees, 0);
  EXPECT_EQ(m.Largeurs[0], 2000);
  EXPECT_EQ(m.LargeurValeurs, 7200);
  EXPECT_EQ(m.NbLignes, 1);
  EXPECT_EQ(m.Lignes[0].Cellules[0], (CelluleTableau{"Produit brut", kPolice, kCadre}));
  EXPECT_EQ(m.Lignes[0].Definition, (CelluleTableau{"entete:1", kPolice, kCadre}));
}

TEST(LireCode, HeaderForms) {
  struct Cas {
    const char* corps;
    int16_t type, style, chapitre, multi, nbDossiers, colonnes, centre, rouges, annees, largeur1, largeurValeurs;
  };
  const Cas cas[] = {
      // Old codes without widths: every label column 1000, values 7200.
      {"taba2p2cr1([1;1][a][b][c])", 0, 1, -1, 0, 2, 2, 1, 1, 1, 1000, 7200},
      // Widths there, the values' width missing.
      {"tabd3p1;larg1500([1;1][a][b])", 0, 1, -1, 1, 3, 1, 0, 0, 0, 1500, 7200},
      // Neither a nor d: one dossier, two compared; no p: one column.
      {"tab2;larg900;larg5000([1;1][a][b])", 0, 1, -1, 0, 2, 1, 0, 0, 2, 900, 5000},
      // Nothing after c: years 0, and the widths of old codes.
      {"tabp1c([1;1][a][b])", 0, 1, -1, 0, 2, 1, 1, 0, 0, 1000, 7200},
      {"culturetaba2p1r3;larg10;larg20([1;1][a][b])", 1, 1, -1, 0, 2, 1, 0, 1, 3, 10, 20},
      {"cultper5taba2p1;larg10;larg20([1;1][a][b])", 2, 5, -1, 0, 2, 1, 0, 0, 0, 10, 20},
      {"cultper512taba2p1;larg10;larg20([1;1][a][b])", 2, 5, 12, 0, 2, 1, 0, 0, 0, 10, 20},
      {"actlibr27taba2p1;larg10;larg20([1;1][a][b])", 3, 2, 7, 0, 2, 1, 0, 0, 0, 10, 20},
  };
  for (const Cas& c : cas) {
    Resultat<void> lu;
    const ModeleTableau m = Lire(c.corps, &lu);
    EXPECT_TRUE(lu) << c.corps << ": " << test::Raison(lu);
    EXPECT_EQ(m.TypeTableau, c.type) << c.corps;
    EXPECT_EQ(m.StyleTitre, c.style) << c.corps;
    EXPECT_EQ(m.NumChapitre, c.chapitre) << c.corps;
    EXPECT_EQ(m.MultiDossier, c.multi) << c.corps;
    EXPECT_EQ(m.NbDossiers, c.nbDossiers) << c.corps;
    EXPECT_EQ(m.NbColonnes, c.colonnes) << c.corps;
    EXPECT_EQ(m.Centre, c.centre) << c.corps;
    EXPECT_EQ(m.NegatifsRouges, c.rouges) << c.corps;
    EXPECT_EQ(m.ModeAnnees, c.annees) << c.corps;
    EXPECT_EQ(m.Largeurs[0], c.largeur1) << c.corps;
    EXPECT_EQ(m.LargeurValeurs, c.largeurValeurs) << c.corps;
  }
}

TEST(LireCode, StopsWhereTheTextIsWrongAndKeepsWhatWasRead) {
  struct Cas {
    const char* corps;
    std::size_t position;
    int16_t nbLignes;
  };
  const Cas cas[] = {
      {"taba2p1;largxx;larg7200([1;1][a][b])", 12, 1},   // width not numeric
      {"tabaXp1([1;1][a][b])", 4, 1},                     // dossier count not a digit
      {"culture1xtab([1;1][a][b])", 7, 1},                // chapter not a digit
      {"xyz", 0, 1},                                      // no "tab"
      {"taba2p1;larg1;larg2[1;1][a][b])", 19, 1},         // no "(" before the lines
      {"taba2p1;larg1;larg2([1;1][a][b]#garbage)", 32, 2},  // second line has no [H;M]: counted
      {"taba2p1;larg1;larg2([x;1][a][b])", 20, 1},        // height not numeric
      {"taba2p1;larg1;larg2([1;1][a])", 28, 1},           // definition missing
  };
  for (const Cas& c : cas) {
    Resultat<void> lu;
    const ModeleTableau m = Lire(c.corps, &lu);
    ASSERT_FALSE(lu) << c.corps;
    EXPECT_FALSE(lu.Erreur().texte.empty()) << c.corps;
    EXPECT_EQ(lu.Erreur().octet, c.position) << c.corps;
    EXPECT_EQ(m.NbLignes, c.nbLignes) << c.corps;
  }
}

TEST(LireCode, CellsWithoutFormatsAndSeriesOfMultiDossierModels) {
  const ModeleTableau m = Lire("tabd2p1;larg1;larg2([1;1][a;5006;10][espace]#[1;1][b][3@serie:RES.DON+RES-4])");
  ASSERT_EQ(m.NbLignes, 2);
  EXPECT_EQ(m.Lignes[0].Cellules[0], (CelluleTableau{"a", "5006;10", ""}));
  EXPECT_EQ(m.Lignes[0].Definition, (CelluleTableau{"espace", "", ""}));
  EXPECT_EQ(m.Lignes[1].NumSerie, 3);
  EXPECT_EQ(m.Lignes[1].Definition.Texte, "serie:RES.DON+RES-4");
}

TEST(EcrireCode, RepairsBlanksAndThePrefixRule) {
  ModeleTableau m;
  m.TypeTableau = 1;
  m.StyleTitre = 2;
  m.NumChapitre = 14;
  m.Lignes[0].Cellules[0] = {"Marge brute", "", ""};
  m.Lignes[0].Definition = {"serie:RES.DON+RES-3:2:1", kPolice, ""};
  EXPECT_EQ(EcrireCodeTableau(m, DefautsCellule{12, "c"}),
            "culture214taba2p1cr0;larg2000;larg7200([280;120][Marge_brute;5006;12;1;0;0;0;0;0;c;0;0;0;0;8]"
            "[serie:RES.DON+RES-3:2:1;5006;10;1;0;0;0;0;0;r;0;0;0;0;8])");
  // A multi-dossier model never carries the kind prefix, so it reads back classic.
  m.MultiDossier = 1;
  m.Lignes[0].NumSerie = 4;
  const std::string code = EcrireCodeTableau(m);
  EXPECT_TRUE(code.starts_with("tabd2p1cr0;")) << code;
  EXPECT_NE(code.find("[4@serie:RES.DON+RES-3:2:1;"), std::string::npos) << code;
  const ModeleTableau relu = Lire(code);
  EXPECT_EQ(relu.TypeTableau, 0);
  EXPECT_EQ(relu.Lignes[0].NumSerie, 4);
}

TEST(EcrireCode, EmptyDefinitionSilentOrTold) {
  ModeleTableau m;
  m.Nom = "Bilan";
  m.DossierTableau = "Synth\xE8se";
  m.SousDossierTableau = "Annuel";
  m.NbLignes = 3;
  m.Lignes[0].Definition.Texte = "espace";
  m.Lignes[2].Definition.Texte = "espace";
  EXPECT_EQ(EcrireCodeTableau(m), "");
  MessagesScriptes messages;
  const std::string code = EcrireCodeTableau(m, 7, messages);
  EXPECT_EQ(code, "taba2p1cr0;larg2000;larg7200([280;120][;5006;10;1;0;0;0;0;0;l;1;1;1;1;8]"
                  "[espace;5006;10;1;0;0;0;0;0;l;1;1;1;1;8])");
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].titre, "Edition d'un tableau : définition incomplète !");
  EXPECT_EQ(messages.messages[0].texte,
            "Il vous faut définir les cellules de la ligne 2 du tableau n°7 \"Bilan\" dans le dossier "
            "\"Synthèse\", sous-dossier : \"Annuel\".");
}

// A random model that the text form can hold: labels without ; # [ ] _,
// definitions without blanks, formats of nine and five fields.
class GenerateurModeles {
 public:
  explicit GenerateurModeles(unsigned graine) : alea_(graine) {}

  ModeleTableau Modele() {
    ModeleTableau m;
    m.MultiDossier = Entre<int16_t>(0, 1);
    m.TypeTableau = m.MultiDossier == 1 ? int16_t{0} : Entre<int16_t>(0, 3);
    if (m.TypeTableau > 0) {
      m.StyleTitre = Entre<int16_t>(0, 9);
      m.NumChapitre = Entre<int16_t>(-1, 99);
    }
    m.NbDossiers = Entre<int16_t>(0, 9);
    m.NbColonnes = Entre<int16_t>(1, 9);
    m.Centre = Entre<int16_t>(0, 1);
    m.NegatifsRouges = Entre<int16_t>(0, 1);
    m.ModeAnnees = Entre<int16_t>(0, 3);
    for (int k = 0; k < m.NbColonnes; ++k) m.Largeurs[static_cast<std::size_t>(k)] = Entre<int16_t>(0, 32767);
    m.LargeurValeurs = Entre<int16_t>(0, 32767);
    m.NbLignes = Entre<int16_t>(1, Entre(0, 29) == 0 ? 511 : 12);
    for (int l = 0; l < m.NbLignes; ++l) RemplirLigne(m, m.Lignes[static_cast<std::size_t>(l)]);
    return m;
  }

 private:
  template <typename T = int>
  T Entre(int a, int b) {
    return static_cast<T>(std::uniform_int_distribution<int>(a, b)(alea_));
  }
  std::string Texte(std::string_view alphabet, int longueurMax) {
    std::string texte;
    const int longueur = Entre(0, longueurMax);
    for (int i = 0; i < longueur; ++i) texte += alphabet[static_cast<std::size_t>(Entre(0, static_cast<int>(alphabet.size()) - 1))];
    return texte;
  }
  std::string Champs(int nombre) {
    std::string texte;
    for (int i = 0; i < nombre; ++i) texte += (i > 0 ? ";" : "") + Texte("0123456789lcrT", 4);
    return texte;
  }
  void RemplirLigne(const ModeleTableau& m, LigneTableau& ligne) {
    ligne.Hauteur = Entre<int16_t>(-32768, 32767);
    ligne.Marge = Entre<int16_t>(-32768, 32767);
    for (int k = 0; k < m.NbColonnes; ++k) {
      ligne.Cellules[static_cast<std::size_t>(k)] = {Texte("ab ABz09%()-+:\xE9\xE8", 12), Champs(9), Champs(5)};
    }
    ligne.Definition = {"x" + Texte("abz09:+-*/()&.@\xE9", 20), Champs(9), Champs(5)};
    if (Entre(0, 2) == 0) {
      ligne.Definition.Texte = "serie:RES.DON+RES-" + std::to_string(Entre(1, 99));
      if (m.MultiDossier == 1) ligne.NumSerie = Entre<int16_t>(0, 9);
    }
  }

  std::mt19937 alea_;
};

TEST(CodeTableau, AnyValidModelSurvivesWriteThenRead) {
  GenerateurModeles generateur(20261124);
  for (int essai = 0; essai < 120; ++essai) {
    const ModeleTableau modele = generateur.Modele();
    const std::string code = EcrireCodeTableau(modele);
    ModeleTableau relu;
    const Resultat<void> lu = LireCodeTableau(code, relu);
    ASSERT_TRUE(lu) << test::Raison(lu) << " in " << code;
    ASSERT_EQ(relu, modele) << code;
    ASSERT_EQ(EcrireCodeTableau(relu), code);
  }
}

}  // namespace
}  // namespace norvane
