// Documents in other formats than RTF, made and converted by the program
// through LibreOffice, as a user runs it.
#include <gtest/gtest.h>

#include <cstdlib>

#include "app/OptionsLigne.h"
#include "app/Programme.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

std::string Modele() { return std::string(NORVANE_ARBRE) + "/Norvane/ModlDocs/Presentation.tvm"; }
std::string Dossier() { return std::string(NORVANE_ARBRE) + "/Dossier/GAEC_DES_TILLEULS.TVL"; }

std::string TextePdf(const DossierTemporaire& d, const std::string& pdf) {
  const std::string commande = "pdftotext " + Guillemets(d / pdf) + " " + Guillemets(d / "texte.txt");
  return std::system(commande.c_str()) == 0 ? d.Lire("texte.txt") : std::string();
}

TEST(OptionsLigne, ConversionFormatAndFolder) {
  std::vector<std::string> a = {"CONVERTIR", "a.doc", "--format=PDF", "--dossier-sortie=/tmp/x"};
  const OptionsLigne o = ExtraireOptions(a);
  EXPECT_EQ(o.format, "pdf");
  EXPECT_EQ(o.dossierSortie, "/tmp/x");
  std::vector<std::string> b = {"--format=txt", "--dossier-sortie="};
  EXPECT_EQ(ExtraireOptions(b).inconnues.size(), 2u);
}

// Each result holds its own format, and no RTF is left beside it. Then one
// office converts a list: a document that fails is named, the others are
// converted, and the exit status tells.
TEST(Conversion, GenererAndConvertirGoThroughTheWordProcessor) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "UNO n'est pas construit pour AddressSanitizer : le pilote LibreOffice est essayé hors de cette "
                  "construction";
#endif
  DossierTemporaire d;
  const struct {
    const char* nom;
    std::string tete;
  } cas[] = {{"p.pdf", "%PDF"}, {"p.doc", "\xD0\xCF\x11\xE0"}};
  for (const auto& c : cas) {
    const Execution e = Lancer("GENERER " + Guillemets(Modele()) + " " + Guillemets(d / c.nom) + " " +
                               Guillemets(Dossier()));
    ASSERT_EQ(e.statut, 0) << e.sortie;
    EXPECT_EQ(d.Lire(c.nom).substr(0, c.tete.size()), c.tete) << c.nom;
    EXPECT_FALSE(d.Existe("p.rtf")) << c.nom;
  }
  const std::string texte = TextePdf(d, "p.pdf");
  for (const char* attendu : {"Étude prévisionnelle", "GAEC DES TILLEULS", "Léa Moreau"}) {
    EXPECT_NE(texte.find(attendu), std::string::npos) << attendu << "\n" << texte;
  }

  const Execution e = Lancer("CONVERTIR " + Guillemets(d / "p.doc") + " " + Guillemets(d / "absent.doc") +
                             " --format=pdf --dossier-sortie=" + Guillemets(d / "sortie"));
  EXPECT_EQ(e.statut, 1) << e.sortie;
  EXPECT_NE(e.sortie.find("absent.doc"), std::string::npos) << e.sortie;
  EXPECT_NE(e.sortie.find("1 document(s) converti(s) sur 2."), std::string::npos) << e.sortie;
  // The .doc reads back with the text it was made with.
  EXPECT_NE(TextePdf(d, "sortie/p.pdf").find("GAEC DES TILLEULS"), std::string::npos);
  EXPECT_EQ(Lancer("CONVERTIR " + Guillemets(d / "p.doc")).statut, 2);
}

}  // namespace
}  // namespace norvane::test
