#include "tables/FormulaireLigne.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

TEST(FormulaireLigne, EachKindReadsAndWritesBack) {
  struct Cas {
    const char* definition;
    TypeLigne type;
    const char* contenu;
    int16_t decimales, affichage;
  };
  const Cas cas[] = {
      {"serie:ventes.don+ventes-3:2:1", TypeLigne::Serie, "ventes.don+ventes-3", 2, 1},
      {"totalS:LG3*LG5:0:2", TypeLigne::Calcul, "LG3*LG5", 0, 2},
      {"totalC:(LG1+LG(RES-3!A-1))/2:7:3", TypeLigne::Calcul, "(LG1+LG(RES-3!A-1))/2", 7, 3},
      {"imemp:empt2:0:0", TypeLigne::Predefinie, "imemp:empt2", 0, 0},
      {"cultu:Assolement:1:2", TypeLigne::Predefinie, "cultu:Assolement", 1, 2},
      {"scult:@18x19:2:1", TypeLigne::SerieCulture, "@18x19", 2, 1},
      {"scltp:@27t:1:0", TypeLigne::SerieCulturePerenne, "@27t", 1, 0},
      {"ALani:@a24-3:0:1", TypeLigne::SerieActiviteLibre, "@a24-3", 0, 1},
      {"entete:4:D\xE9" "but&Fin", TypeLigne::Intitule, "4", 7, 2},
      {"espace", TypeLigne::Espace, "", 7, 2},
      {"newpg", TypeLigne::SautPage, "", 7, 2},
  };
  for (const Cas& c : cas) {
    const FormulaireLigne f = LireFormulaire(c.definition);
    EXPECT_EQ(f.type, c.type) << c.definition;
    EXPECT_EQ(f.contenu, c.contenu) << c.definition;
    EXPECT_EQ(f.decimales, c.decimales) << c.definition;
    EXPECT_EQ(f.affichage, c.affichage) << c.definition;
    EXPECT_EQ(FormaterDefinition(f), c.definition);
  }
}

TEST(FormulaireLigne, OptionalTailAndWhatWritingChanges) {
  const FormulaireLigne seule = LireFormulaire("serie:ventes.don+ventes-3");
  EXPECT_EQ(seule.decimales, 7);
  EXPECT_EQ(seule.affichage, 2);
  EXPECT_EQ(LireFormulaire("serie:ventes.don+ventes-3:4").decimales, 4);
  EXPECT_EQ(LireFormulaire("entete:1:1\xE8re ann\xE9" "e&Fin").texteFin, "Fin");
  FormulaireLigne simple{TypeLigne::Calcul, "LG2xLG4", "", "", true, 0, 1};
  EXPECT_EQ(FormaterDefinition(simple), "totalS:LG2*LG4:0:1");
  FormulaireLigne libre{TypeLigne::Calcul, "lg2/lg(res-3)", "", "", false, 1, 0};
  EXPECT_EQ(FormaterDefinition(libre), "totalC:LG2/LG(RES-3):1:0");
}

}  // namespace
}  // namespace norvane
