#include "frame/LigneCommande.h"

#include <gtest/gtest.h>

#include <tuple>

namespace norvane {
namespace {

using Liste = std::vector<std::string>;

TEST(DecouperLigneCommande, QuotesGroupBlanksAndAreNeverKept) {
  const std::pair<const char*, Liste> cas[] = {
      {"INI \"C:\\Mes Docs\\m.tvm\" r.rtf", {"INI", "C:\\Mes Docs\\m.tvm", "r.rtf"}},
      {"  a   b  ", {"a", "b"}},
      {"ab\"cd ef", {"abcd", "ef"}},
      {"\"\" x", {"", "x"}},
      {"OUVRIR \"C:\\a b", {"OUVRIR", "C:\\a b"}},  // the last open argument counts
      {"     ", {}},                                // blanks only: no argument, the bar starts
  };
  for (const auto& [ligne, arguments] : cas) EXPECT_EQ(DecouperLigneCommande(ligne), arguments) << ligne;
}

TEST(ParamCmd, QuotesAndBlankArgumentsAreDroppedThenArgumentsCountFromOne) {
  EXPECT_TRUE(ArgumentsProcessus({"  ", "", "\"\"", "\" \""}).empty());
  const Liste arguments = ArgumentsProcessus({"\"GRAPH\"", " ", "/x/Mes D.TVL"});
  EXPECT_EQ(arguments, (Liste{"GRAPH", "/x/Mes D.TVL"}));
  EXPECT_EQ(NbParamCmd(arguments), 2);
  EXPECT_EQ(ParamCmd(arguments, 2), "/x/Mes D.TVL");
  EXPECT_EQ(ParamCmd(arguments, 3) + ParamCmd(arguments, 0), "");
}

TEST(DecouperArgumentDossier, BlankMarkersInAnyCaseThenFolderAndNameOnTheLastSeparator) {
  const std::tuple<const char*, const char*, const char*> cas[] = {
      {"C:\\Mes#tvl#Etudes#TVL#2\\DUPONT.TVL\\", "C:\\Mes Etudes 2\\", "DUPONT.TVL"},
      {"/home/a\\b/MARTIN.TVL", "/home/a\\b/", "MARTIN.TVL"},
      {"SEUL.TVL", "", "SEUL.TVL"}};
  for (const auto& [argument, rep, nom] : cas) {
    SessionCadre s;
    DecouperArgumentDossier(argument, s);
    EXPECT_EQ(s.RepDossier[0], rep) << argument;
    EXPECT_EQ(s.NomDossier[0], nom) << argument;
  }
}

}  // namespace
}  // namespace norvane
