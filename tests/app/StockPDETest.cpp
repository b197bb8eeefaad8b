// The stock templates of the PDE Cerfa report: their assembly from the page
// bodies (byte for byte, pages in their numeric order, a missing page left
// out), and, in the installation tree, the agreement of the table codes of
// the templates with the models of Norvane/PDE/tableaux.txt both ways, and
// pages that open on a paragraph.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "app/Programme.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "support/DossierTemporaire.h"
#include "tables/CodeTableau.h"

namespace norvane::test {
namespace {

namespace fs = std::filesystem;

// Runs the assembly script from `source` into `destination`; true when it succeeded.
bool Assembler(const std::string& source, const std::string& destination) {
  const std::string commande = Guillemets(NORVANE_CMAKE) + " -DSOURCE=" + Guillemets(source) + " -DDESTINATION=" +
                               Guillemets(destination) + " -P " +
                               Guillemets(std::string(NORVANE_SOURCE_DIR) + "/cmake/AssemblerPDE.cmake");
  return std::system(commande.c_str()) == 0;
}

TEST(AssemblagePDE, PagesAreJoinedInTheirOrderByteForByte) {
  DossierTemporaire d;
  const std::string entete = "{\\rtf1\\ansi\\ansicpg1252\r\n{\\fonttbl{\\f0 Arial;}}\r\n";
  // Line ends of both kinds, a ";" that a careless script would split on,
  // and a Windows-1252 byte in a store.
  const std::map<int, std::string> pages = {{1, "\\sectd un;deux\r\n"},
                                            {2, "\\sectd [deux] \\'e9t\\'e9\n"},
                                            {10, "\\sectd dix\r\n{\\header x}\r\n"},
                                            {14, "\\sectd quatorze"}};
  const std::string tableaux2 = "[Marges][PDE Cerfa - page 2][Cultures]\r\n#tvl(tab;larg1([1;2][\xE9]))#\r\n\r\n";
  const std::string tableaux10 = "[Tr\xE9sorerie][PDE Cerfa - page 10][]\r\n#tvl(tab())#\r\n\r\n";
  d.Ecrire("pde/entete.rtf", entete);
  for (const auto& [n, corps] : pages) d.Ecrire("pde/pages/PDE" + std::to_string(n) + ".rtf", corps);
  d.Ecrire("pde/tableaux/PDE10.txt", tableaux10);
  d.Ecrire("pde/tableaux/PDE2.txt", tableaux2);
  d.Ecrire("PDE/PDE3.tvm", "page 3 enlevée depuis");
  ASSERT_TRUE(Assembler(d / "pde", d / "PDE"));

  for (const auto& [n, corps] : pages) EXPECT_EQ(d.Lire("PDE/PDE" + std::to_string(n) + ".tvm"), entete + corps + "}");
  EXPECT_FALSE(d.Existe("PDE/PDE3.tvm"));
  const std::string treize = pages.at(1) + "\\sect " + pages.at(2) + "\\sect " + pages.at(10);
  EXPECT_EQ(d.Lire("PDE/PDECerfa.tvm"), entete + treize + "}");
  EXPECT_EQ(d.Lire("PDE/PDECerfasoc.tvm"), entete + treize + "\\sect " + pages.at(14) + "}");
  EXPECT_EQ(d.Lire("PDE/tableaux.txt"), tableaux2 + tableaux10);
}

TEST(AssemblagePDE, WithoutPagesTheReportIsAnEmptyDocument) {
  DossierTemporaire d;
  d.Ecrire("pde/entete.rtf", "{\\rtf1\r\n");
  fs::create_directories(d / "pde/pages");
  ASSERT_TRUE(Assembler(d / "pde", d / "PDE"));
  EXPECT_EQ(d.Lire("PDE/PDECerfa.tvm"), "{\\rtf1\r\n}");
  EXPECT_EQ(d.Lire("PDE/PDECerfasoc.tvm"), "{\\rtf1\r\n}");
  EXPECT_TRUE(d.Existe("PDE/tableaux.txt"));
  EXPECT_EQ(d.Lire("PDE/tableaux.txt"), "");
}

const std::string kStock = std::string(NORVANE_ARBRE) + "/Norvane/PDE/";

// The table codes of a template as the generator takes them: from "#tvl("
// (in any case) to the first ")#", the file's line ends dropped, and each
// "\'hh" escape as the Windows-1252 byte that the store holds.
std::set<std::string> CodesTableaux(const std::string& rtf) {
  const std::string minuscules = Minuscules(rtf);
  std::set<std::string> codes;
  for (std::size_t p = minuscules.find("#tvl("); p != std::string::npos; p = minuscules.find("#tvl(", p + 1)) {
    const std::size_t fin = rtf.find(")#", p);
    if (fin == std::string::npos) break;
    std::string code;
    for (std::size_t i = p; i < fin + 2; ++i) {
      if (rtf[i] == '\r' || rtf[i] == '\n') continue;
      if (rtf.compare(i, 2, "\\'") == 0 && i + 3 < fin) {
        code += static_cast<char>(std::stoi(rtf.substr(i + 2, 2), nullptr, 16));
        i += 3;
        continue;
      }
      code += rtf[i];
    }
    if (EstCodeTableau(code.substr(5))) codes.insert(code);
  }
  return codes;
}

struct ModeleStock {
  std::string nom;
  int page = 0;  // from its folder "PDE Cerfa - page <n>"; 0 when it names none
};

// The models of the installed store by their code line.
std::multimap<std::string, ModeleStock> ModelesDuStock() {
  std::istringstream flux(LireFichier(kStock + "tableaux.txt").value_or(""));
  std::multimap<std::string, ModeleStock> modeles;
  const std::regex entete(R"(^\[([^\]]*)\]\[PDE Cerfa - page (\d+)\])");
  ModeleStock courant;
  std::string ligne;
  while (std::getline(flux, ligne)) {
    if (!ligne.empty() && ligne.back() == '\r') ligne.pop_back();
    std::smatch m;
    if (ligne.starts_with("[")) {
      courant = std::regex_search(ligne, m, entete) ? ModeleStock{m[1], std::stoi(m[2])} : ModeleStock{ligne, 0};
    } else if (ligne.starts_with("#tvl(")) {
      modeles.emplace(ligne, courant);
    }
  }
  return modeles;
}

std::string Modele(const std::string& nom) { return LireFichier(kStock + nom).value_or(""); }

TEST(StockPDE, EveryTableCodeOfTheTemplatesIsAModelOfTheStore) {
  const auto modeles = ModelesDuStock();
  for (const auto& f : fs::directory_iterator(kStock)) {
    if (f.path().extension() != ".tvm") continue;
    for (const std::string& code : CodesTableaux(Modele(f.path().filename().string()))) {
      EXPECT_GE(modeles.count(code), 1u) << f.path().filename() << " : " << code.substr(0, 120);
    }
  }
}

TEST(StockPDE, EveryModelOfTheStoreIsUsedOnItsPage) {
  for (const auto& [code, modele] : ModelesDuStock()) {
    ASSERT_GE(modele.page, 1) << modele.nom << " : dossier autre que « PDE Cerfa - page <n> »";
    ASSERT_LE(modele.page, 15) << modele.nom;
    const std::string page = "PDE" + std::to_string(modele.page) + ".tvm";
    // A page not written yet has no template to use its models.
    if (!fs::exists(kStock + page)) continue;
    EXPECT_EQ(CodesTableaux(Modele(page)).count(code), 1u) << modele.nom << " n'est pas utilisé en page " << modele.page;
  }
}

// A document that opens on a table loses, in LibreOffice, the section breaks
// behind it, and with them each page's orientation and header: every page,
// which may open the whole report, puts a paragraph before its first table.
TEST(StockPDE, EveryPageOpensOnAParagraph) {
  for (int n = 1; n <= 15; ++n) {
    const std::string page = "PDE" + std::to_string(n) + ".tvm";
    if (!fs::exists(kStock + page)) continue;
    const std::string rtf = Modele(page);
    std::size_t p = rtf.find("{\\header");
    ASSERT_NE(p, std::string::npos) << page;
    for (int profondeur = 0; p < rtf.size(); ++p) {
      if (rtf[p] == '{') ++profondeur;
      if (rtf[p] == '}' && --profondeur == 0) break;
    }
    const std::size_t tableau = rtf.find("\\trowd", p);
    std::size_t paragraphe = rtf.find("\\par", p);
    while (paragraphe != std::string::npos && rtf.compare(paragraphe, 5, "\\pard") == 0) {
      paragraphe = rtf.find("\\par", paragraphe + 1);
    }
    EXPECT_LT(paragraphe, tableau) << page;
  }
}

}  // namespace
}  // namespace norvane::test
