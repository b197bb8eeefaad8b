// The pieces a row is made of: line definitions read, cells written control
// word by control word, value columns sized, headings worded.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "frame/Encodage.h"
#include "support/PortsScriptes.h"
#include "tables/CellulesRtf.h"
#include "tables/ColonnesValeurs.h"
#include "tables/DefinitionLigne.h"
#include "tables/Intitules.h"

namespace norvane {
namespace {

TEST(DefinitionLigne, KindRestAndDisplayOption) {
  struct Cas {
    std::string texte, sorte, reste, affichage;
    bool deuxPoints;
  };
  const std::vector<Cas> cas = {
      {"serie:ventes.don+ventes-3:2:1", "serie", "ventes.don+ventes-3:2", "1", true},
      {"serie:ventes.don+ventes-3", "serie", "ventes.don+ventes-3", "2", true},
      {"totalS:LG3+LG5:0:2", "totalS", "LG3+LG5:0", "2", true},
      {"totalC:LG(RES-17!A-1):1:3", "totalC", "LG(RES-17!A-1):1", "3", true},
      {"imemp:empt0:0:1", "imemp", "empt0:0", "1", true},
      // Headings carry no display option: their rest is whole.
      {"entete:1:1ère&Fin:x", "entete", "1:1ère&Fin:x", "2", true},
      {"espace", "espace", "", "2", false},
      {"", "", "", "2", false},
  };
  for (const Cas& c : cas) {
    const DefinitionLue lue = LireDefinition(c.texte);
    EXPECT_EQ(lue.sorte, c.sorte) << c.texte;
    EXPECT_EQ(lue.reste, c.reste) << c.texte;
    EXPECT_EQ(lue.affichage, c.affichage) << c.texte;
    EXPECT_EQ(lue.deuxPoints, c.deuxPoints) << c.texte;
  }
  EXPECT_EQ(LireReferenceDecimales("ventes.don+ventes-3:2").decimales, 2);
  EXPECT_EQ(LireReferenceDecimales("ventes.don+ventes-3").decimales, 7);
  EXPECT_EQ(LireReferenceDecimales("ventes.don+ventes-3").reference, "ventes.don+ventes-3");
  EXPECT_EQ(OptionZeros("12"), AffichageZeros::Toujours);
}

TEST(CellulesRtf, ControlWordsInTheirOrder) {
  struct Cas {
    std::string champs;
    std::string entete, cellules;
  };
  const std::vector<Cas> cas = {
      {"T;5006;10;1;0;0;0;0;0;l;1;1;1;1;8",
       R"( \clbrdrt\brdrs \clbrdrb\brdrs \clbrdrl\brdrs \clbrdrr\brdrs\clvertalc\clcbpat10\cellx3000)",
       R"(\ql\intbl\clvertalb{\fs20\f5006\cf3)"},
      // Single borders first, then double ones, each in the order top, bottom, left, right.
      {"T;5010;9,5;6;1;1;1;1;1;c;2;1;2;1;16",
       R"( \clbrdrb\brdrs \clbrdrr\brdrs \clbrdrt\brdrdb \clbrdrl\brdrdb\clvertalc\clcbpat18\cellx3000)",
       R"(\qc\intbl\clvertalb{\fs18\f5010\cf8\b\i\ul\strike\shad)"},
      // A font below 5000 falls back on 5006; a size of 0 prints 16 half-points.
      {"T;12;0;1;0;0;0;0;0;r;0;0;0;0;8", R"(\clvertalc\clcbpat10\cellx3000)", R"(\qr\intbl\clvertalb{\fs16\f5006\cf3)"},
      // Missing fields read as empty: no border, colours at the base.
      {"", R"(\clvertalc\clcbpat2\cellx3000)", R"(\q\intbl\clvertalb{\fs16\f5006\cf2)"},
  };
  for (const Cas& c : cas) {
    std::string entete, cellules;
    DefinirCellule(DecouperCellule(c.champs), 3000, 2, entete, cellules);
    EXPECT_EQ(entete, c.entete) << c.champs;
    EXPECT_EQ(cellules, c.cellules) << c.champs;
  }
  EXPECT_EQ(DecouperCellule(";5006").texte, " ");
}

TEST(CellulesRtf, ParagraphFormatKeepsASizeOfZero) {
  EXPECT_EQ(FormatParagraphe(LirePolice("5006;12;2;1;0;1;0;0;c"), 2), R"(\qc\f5006\fs24\cf4\b\ul)");
  EXPECT_EQ(FormatParagraphe(LirePolice("4000;0;1;0;0;0;0;0;l"), 0), R"(\ql\f5006\fs0\cf1)");
}

TEST(ColonnesValeurs, CountWidthAndRange) {
  struct Cas {
    int16_t multi, dossiers, mode, annees, largeurTotale;
    int nombre, largeur, premiere, derniere;
    int16_t modeEffectif;
  };
  const std::vector<Cas> cas = {
      {0, 2, 0, 3, 7200, 3, 2400, 1, 3, 0},
      {0, 2, 1, 5, 7200, 5, 1440, 0, 5, 1},
      {0, 2, 2, 5, 7200, 5, 1440, 1, 5, 2},
      {0, 2, 3, 5, 7200, 1, 7200, 1, 1, 3},
      {1, 3, 1, 5, 7200, 3, 2400, 1, 3, 0},  // multi-dossier: one column a dossier, years mode 0
      {0, 2, 0, 2, 7201, 2, 3600, 1, 2, 0},  // 3600.5: half to even
      {0, 2, 0, 2, 7203, 2, 3602, 1, 2, 0},  // 3601.5
      {0, 2, 0, 0, 7200, 0, 0, 1, 0, 0},     // no study year: no column
      {0, 2, 0, 40, 7200, 15, 480, 1, 15, 0},  // held to the room of the value table
  };
  for (const Cas& c : cas) {
    ModeleTableau modele;
    modele.MultiDossier = c.multi;
    modele.NbDossiers = c.dossiers;
    modele.LargeurValeurs = c.largeurTotale;
    const ColonnesValeurs colonnes = CalculerColonnes(modele, c.annees, c.mode);
    EXPECT_EQ(colonnes.nombre, c.nombre);
    EXPECT_EQ(colonnes.largeur, c.largeur) << c.largeurTotale << " / " << c.nombre;
    EXPECT_EQ(colonnes.premiere, c.premiere);
    EXPECT_EQ(colonnes.derniere, c.derniere);
    EXPECT_EQ(colonnes.modeAnnees, c.modeEffectif);
  }
}

TEST(Intitules, YearHeadingsByKindAndStudyStart) {
  struct Cas {
    std::string debut, sorte;
    int c;
    std::string texte;
  };
  const std::vector<Cas> cas = {
      {"01/05/2007", "1", 1, "2007/08"},
      {"01/01/2007", "1", 1, "2007"},
      {"31/12/2007", "1", 1, "08"},
      {"01/05/2007", "1", 0, "2006/07"},
      {"01/05/2007", "2", 1, R"(5-2007\par 4-2008)"},
      {"01/01/2007", "2", 2, R"(1-2008\par 12-2008)"},
      {"01/05/2007", "3", 1, R"(Mai 2007\par Avr. 2008)"},
      {"01/02/2007", "3", 1, "F\xE9v. 2007\\par Jan. 2008"},
      {"01/05/2007", "4", 1, "2007-2008"},
      {"01/01/2007", "4", 1, "2007"},
      {"31/12/2007", "4", 1, "2008"},
      {"01/05/2007", "5", 0, "exercice 0"},
      {"01/05/2007", "6", 1, R"(situation au\par 1/5/2008)"},
      {"01/05/2007", "7", 3, "3"},
      {"pas de date", "1", 1, ""},
      {"pas de date", "5", 2, "exercice 2"},
  };
  for (const Cas& c : cas) {
    MessagesScriptes messages;
    EXPECT_EQ(IntituleAnnee(c.debut, c.c, c.sorte, messages), c.texte) << c.debut << " kind " << c.sorte;
    EXPECT_TRUE(messages.messages.empty());
  }
}

TEST(Intitules, AWrongYearHeadingKindIsToldOncePerCell) {
  MessagesScriptes messages;
  EXPECT_EQ(IntituleAnnee("01/05/2007", 1, "8", messages), "");
  EXPECT_EQ(IntituleAnnee("01/05/2007", 2, "", messages), "");
  ASSERT_EQ(messages.messages.size(), 2u);
  EXPECT_EQ(messages.messages[0].titre, "Erreur détectée dans le modèle");
  EXPECT_EQ(messages.messages[0].texte, "Le format de la ligne d'intitulé d'un tableau est incorrect.");
}

TEST(Intitules, DossierHeadings) {
  EXPECT_EQ(IntituleDossier("GAEC_DES_TILLEULS.TVL", 1, "1"), "GAEC_DES_TILLEULS");
  EXPECT_EQ(IntituleDossier("martin.tvl", 2, "1"), "martin");
  EXPECT_EQ(IntituleDossier("SANS_EXTENSION", 2, "1"), "SANS_EXTENSION");
  EXPECT_EQ(IntituleDossier("X.TVL", 2, "2"), Utf8VersCp1252("Hypothèse 2"));
  EXPECT_EQ(IntituleDossier("X.TVL", 9, "7"), "");
}

}  // namespace
}  // namespace norvane
