#include "tables/EditionLignes.h"

#include <gtest/gtest.h>

#include "support/PortsScriptes.h"
#include "tables/FormatsLigne.h"
#include "tables/FormulesTableau.h"

namespace norvane {
namespace {

// Ten series lines, line 9 a total with the formula given.
ModeleTableau TableAvecTotal(const std::string& total) {
  ModeleTableau modele;
  modele.NbLignes = 10;
  for (int l = 0; l < 10; ++l) {
    modele.Lignes[static_cast<std::size_t>(l)].Definition.Texte = "serie:RES.DON+RES-" + std::to_string(l + 1);
    modele.Lignes[static_cast<std::size_t>(l)].Cellules[0].Texte = "L" + std::to_string(l + 1);
  }
  modele.Lignes[8].Definition.Texte = total;
  return modele;
}

const std::string& Definition(const ModeleTableau& modele, int ligne) {
  return modele.Lignes[static_cast<std::size_t>(ligne - 1)].Definition.Texte;
}

TEST(Renumerotation, RemoveInsertAndSeriesReferences) {
  struct Cas {
    const char* total;
    bool suppression;
    int ligne;           // removed, or inserted after
    int ligneTotal;      // where the total stands afterwards
    const char* attendu;
    const char* message;  // start of what the user is told; empty: nothing
  };
  const Cas cas[] = {
      {"totalS:LG3+LG5:0:2", true, 4, 8, "totalS:LG3+LG4", "La formule de total de la ligne n°8 a été mise à jour"},
      {"totalS:LG3+LG5:0:2", true, 3, 8, "", "La ligne supprimée était totalisée dans la ligne n°8."},
      {"totalC:LG5+LG6*2:1:0", false, 5, 10, "totalC:LG5+LG7*2", "La formule de total de la ligne n°10"},
      {"totalC:LG(RES-3)+LG(RES-40!A-1):2:0", true, 2, 8, "totalC:LG(RES-3)+LG(RES-40!A-1):2:0", ""},
      {"totalS:LG1+LG2", false, 5, 10, "totalS:LG1+LG2", ""},  // no tail to lose, nothing above the pivot
      {"totalS:LG12+LG2:0:2", true, 5, 8, "", "La formule de la ligne n°8 est à ré-écrire !"},
  };
  for (const Cas& c : cas) {
    ModeleTableau modele = TableAvecTotal(c.total);
    MessagesScriptes messages;
    if (c.suppression) {
      ASSERT_TRUE(SupprimerLigne(modele, c.ligne, messages));
      EXPECT_EQ(modele.NbLignes, 9);
    } else {
      ASSERT_TRUE(InsererLigne(modele, c.ligne, messages));
      EXPECT_EQ(modele.NbLignes, 11);
      EXPECT_EQ(modele.Lignes[static_cast<std::size_t>(c.ligne)], NouvelleLigne());
    }
    EXPECT_EQ(Definition(modele, c.ligneTotal), c.attendu) << c.total;
    if (*c.message == '\0') {
      EXPECT_TRUE(messages.messages.empty()) << c.total;
    } else {
      ASSERT_EQ(messages.messages.size(), 1u) << c.total;
      EXPECT_TRUE(messages.messages[0].texte.starts_with(c.message)) << messages.messages[0].texte;
    }
  }
}

TEST(EditionLignes, MoveKeepsHeightsErasesLineFormulasAndRefusesNoOps) {
  ModeleTableau modele = TableAvecTotal("totalS:LG3+LG5:0:2");
  modele.Lignes[9].Definition.Texte = "totalC:LG(RES-3)*2";
  modele.Lignes[1].Hauteur = 500;
  MessagesScriptes messages;
  ASSERT_TRUE(DeplacerLigne(modele, 2, 6, false, messages));
  const char* ordre[] = {"L1", "L3", "L4", "L5", "L6", "L2", "L7", "L8", "L9", "L10"};
  for (int l = 0; l < 10; ++l) EXPECT_EQ(modele.Lignes[static_cast<std::size_t>(l)].Cellules[0].Texte, ordre[l]);
  EXPECT_EQ(modele.Lignes[1].Hauteur, 500);  // heights stay with the position
  EXPECT_EQ(Definition(modele, 9), "");
  EXPECT_EQ(Definition(modele, 10), "totalC:LG(RES-3)*2");
  EXPECT_TRUE(messages.messages.back().texte.starts_with(
      "Du fait de la re-numérotation des lignes, la formule de la ligne de total n°9 est à ré-écrire."));

  messages.messages.clear();
  EXPECT_FALSE(DeplacerLigne(modele, 4, 4, true, messages));
  EXPECT_FALSE(DeplacerLigne(modele, 4, 5, true, messages));
  EXPECT_FALSE(DeplacerLigne(modele, 4, 3, false, messages));
  ASSERT_EQ(messages.messages.size(), 3u);
  EXPECT_EQ(messages.messages[0].texte, "Déplacer la ligne 4 elle-même ?! impossible !");
  EXPECT_EQ(messages.messages[1].texte, "Ce choix n'entraîne pas de déplacement !");
  EXPECT_EQ(messages.messages[1].conseil, "Validation annulée : choix impossible.");
}

TEST(EditionLignes, LimitsAndDuplication) {
  ModeleTableau modele;
  modele.NbLignes = 511;
  MessagesScriptes messages;
  EXPECT_FALSE(InsererLigne(modele, 3, messages));
  EXPECT_EQ(messages.messages.at(0).texte, "Ajout impossible : les tableaux sont limités à 511 maxi !");
  EXPECT_FALSE(DupliquerLigne(modele, 1));
  modele.NbLignes = 0;
  EXPECT_FALSE(SupprimerLigne(modele, 1, messages));
  EXPECT_EQ(messages.messages.at(1).titre, "Suppression impossible.");
  modele.NbLignes = 2;
  modele.Lignes[0] = {300, 60, {}, {"espace", "", ""}, 2};
  ASSERT_TRUE(DupliquerLigne(modele, 1));
  EXPECT_EQ(modele.NbLignes, 3);
  EXPECT_EQ(modele.Lignes[2].Hauteur, 300);
  EXPECT_EQ(modele.Lignes[2].Definition.Texte, "espace");
}

TEST(ValiderFormule, MessagesInTheirOrder) {
  const std::pair<const char*, const char*> cas[] = {
      {"  ", "Vous devez saisir une formule !"},
      {"LG(RES-3+LG(RES-4", "Il manque la parenthèse fermante après le code du LG !"},
      {"LG1+LG(RES3)", "Concernant le code entre parenthèse du 2e LG, il manque le tiret entre le nom du fichier et le "
                       "numéro d'enregistrement !"},
      {"LG1+LG*2", "Il manque un numéro de ligne après le dernier LG !"},
      {"LG1+LG12", "Le numéro de ligne \"12\" suivant le LG est incorrect !"},
  };
  for (const auto& [formule, texte] : cas) {
    const auto refus = ValiderFormule(formule, 10);
    ASSERT_TRUE(refus.has_value()) << formule;
    EXPECT_EQ(refus->texte, texte);
  }
  EXPECT_EQ(ValiderFormule("  ", 10)->titre, "Validation impossible.");
  EXPECT_EQ(ValiderFormule("LG1+LG", 10)->titre, "Formule erronée.");
  EXPECT_FALSE(ValiderFormule("(LG1+LG10)/LG(RES-3!A-1)\xB2", 10).has_value());
  EXPECT_TRUE(RefuserLignesHorsTableau("LG(RES-3)+LG2").has_value());
  EXPECT_FALSE(RefuserLignesHorsTableau("LG(RES-3)*2").has_value());
}

TEST(FormatsLigne, DefaultsOfEachKind) {
  Options options;
  options.TailleCellule = 9;
  options.AlignCellule = "c";
  options.FormatLigne[2] = {"2;2;0;0;16", "0;2;0;0;8"};
  LigneTableau ligne;
  ligne.Cellules[0].Texte = "Produit";
  AppliquerTypeLigne(ligne, TypeLigne::Intitule, options);
  EXPECT_EQ(ligne.Cellules[8], (CelluleTableau{"Produit", "5006;9;1;1;0;0;0;0;c", "1;1;1;1;8"}));
  EXPECT_EQ(ligne.Definition, (CelluleTableau{"entete:1:1\xE8re ann\xE9" "e de pr\xE9vision&Fin de pr\xE9vision",
                                              "5006;9;1;0;1;0;0;0;c", "1;1;1;1;8"}));
  AppliquerTypeLigne(ligne, TypeLigne::Calcul, options);
  EXPECT_EQ(ligne.Cellules[0], (CelluleTableau{"TOTAL", "5006;9;1;1;0;0;0;0;c", "2;2;0;0;16"}));
  EXPECT_EQ(ligne.Cellules[1].Texte, "");
  EXPECT_EQ(ligne.Definition, (CelluleTableau{"", "5006;9;1;1;0;0;0;0;c", "0;2;0;0;8"}));
  AppliquerTypeLigne(ligne, TypeLigne::SautPage, options);
  EXPECT_EQ(ligne.Cellules[0], (CelluleTableau{"TOTAL", "", ""}));
  EXPECT_EQ(ligne.Definition, (CelluleTableau{"newpg", "", ""}));
  AppliquerTypeLigne(ligne, TypeLigne::Espace, options);
  EXPECT_EQ(ligne.Definition, (CelluleTableau{"espace", "", ""}));
  EXPECT_EQ(ligne.Cellules[0].Cadre, "");
}

TEST(FormatsLigne, ScreenColoursToTheirNumbers) {
  const std::pair<uint32_t, int16_t> cas[] = {{0x000000, 1}, {0xFF0000, 6},  {0xC0C0C0, 16}, {0xCFCFCF, 16},
                                              {0xDFDFDF, 8}, {0xEFEFEF, 8}, {0x123456, 17}};
  for (const auto& [rgb, numero] : cas) EXPECT_EQ(NumeroCouleur(rgb), numero) << std::hex << rgb;
}

}  // namespace
}  // namespace norvane
