#include "frame/LigneCommande.h"

#include <gtest/gtest.h>

namespace norvane {
namespace {

using Liste = std::vector<std::string>;

TEST(DecouperLigneCommande, QuotesGroupBlanksAndAreNeverKept) {
  EXPECT_EQ(DecouperLigneCommande("INI \"C:\\Mes Docs\\m.tvm\" r.rtf"), (Liste{"INI", "C:\\Mes Docs\\m.tvm", "r.rtf"}));
  EXPECT_EQ(DecouperLigneCommande("  a   b  "), (Liste{"a", "b"}));
  EXPECT_EQ(DecouperLigneCommande("ab\"cd ef"), (Liste{"abcd", "ef"}));
  EXPECT_EQ(DecouperLigneCommande("\"\" x"), (Liste{"", "x"}));
}

TEST(DecouperLigneCommande, TheLastOpenArgumentCounts) {
  EXPECT_EQ(DecouperLigneCommande("OUVRIR \"C:\\a b"), (Liste{"OUVRIR", "C:\\a b"}));
  EXPECT_EQ(DecouperLigneCommande("CREER x"), (Liste{"CREER", "x"}));
}

TEST(DecouperLigneCommande, BlanksOnlyGiveNoArgument) {
  EXPECT_TRUE(DecouperLigneCommande("").empty());
  EXPECT_TRUE(DecouperLigneCommande("     ").empty());
}

TEST(ArgumentsProcessus, DropsQuotesAndBlankArguments) {
  EXPECT_TRUE(ArgumentsProcessus({"  ", "", "\"\"", "\" \""}).empty());
  EXPECT_EQ(ArgumentsProcessus({"\"INI\"", " ", "a b"}), (Liste{"INI", "a b"}));
}

TEST(ParamCmd, CountsFromOneAndIsEmptyBeyondTheEnd) {
  const Liste arguments = {"GRAPH", "/x/D.TVL"};
  EXPECT_EQ(NbParamCmd(arguments), 2);
  EXPECT_EQ(ParamCmd(arguments, 1), "GRAPH");
  EXPECT_EQ(ParamCmd(arguments, 2), "/x/D.TVL");
  EXPECT_EQ(ParamCmd(arguments, 3), "");
  EXPECT_EQ(ParamCmd(arguments, 0), "");
}

TEST(RemplacerBlancs, EveryMarkerInAnyCaseBecomesABlank) {
  EXPECT_EQ(RemplacerBlancs("C:\\Mes#esp#Documents#ESP#x.tvm", "#esp#"), "C:\\Mes Documents x.tvm");
}

TEST(DecouperArgumentDossier, SplitsFolderAndNameOnTheLastSeparator) {
  Session s;
  DecouperArgumentDossier("C:\\Mes#tvl#Etudes\\DUPONT.TVL\\", s);
  EXPECT_EQ(s.RepDossier[0], "C:\\Mes Etudes\\");
  EXPECT_EQ(s.NomDossier[0], "DUPONT.TVL");
  DecouperArgumentDossier("/home/a\\b/MARTIN.TVL", s);
  EXPECT_EQ(s.RepDossier[0], "/home/a\\b/");
  EXPECT_EQ(s.NomDossier[0], "MARTIN.TVL");
  DecouperArgumentDossier("SEUL.TVL", s);
  EXPECT_EQ(s.RepDossier[0], "");
  EXPECT_EQ(s.NomDossier[0], "SEUL.TVL");
}

}  // namespace
}  // namespace norvane
