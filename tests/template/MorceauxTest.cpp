// The piece in hand keeps its remembered searches and counts true across
// every edit, glue and advance: checked against plain searches of the same
// text over long random runs, where motifs overlap edits and seams.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "frame/Texte.h"
#include "template/Morceaux.h"

namespace norvane::test {
namespace {

struct Motif {
  const char* texte;
  bool sansCasse;
};

std::string Hasard(std::mt19937& alea, std::size_t longueur) {
  static constexpr char kAlphabet[] = "ab;\\}{pPaAr";
  std::string t;
  for (std::size_t i = 0; i < longueur; ++i) t += kAlphabet[alea() % (sizeof kAlphabet - 1)];
  return t;
}

std::size_t Compter(std::string_view t, std::string_view motif) {
  std::size_t n = 0;
  for (std::size_t p = t.find(motif); p != std::string_view::npos; p = t.find(motif, p + motif.size())) ++n;
  return n;
}

TEST(MorceauCourant, SearchesAndCountsStayTrueAcrossEdits) {
  const Motif motifs[] = {{"\\par", true}, {";}", false}, {"ab", false}, {"{\\", false}, {"a", true}};
  for (unsigned graine = 1; graine <= 60; ++graine) {
    std::mt19937 alea(graine);
    MorceauCourant m;
    m.Charger(Hasard(alea, 200));
    std::vector<RechercheMemorisee> recherches;
    for (const Motif& motif : motifs) recherches.emplace_back(motif.texte, motif.sansCasse);
    CompteMemorise separateurs(";\\");
    for (int pas = 0; pas < 4000 && !m.Vide(); ++pas) {
      const std::size_t reste = m.Reste().size();
      switch (alea() % 6) {
        case 0:
          m.Avancer(m.Debut() + alea() % (reste / 4 + 1));
          break;
        case 1:
          m.Coller(Hasard(alea, alea() % 8 ? alea() % 30 : alea() % 3000));
          break;
        case 2:
        case 3: {
          const std::size_t a = m.Debut() + alea() % (reste + 1);
          const std::size_t b = std::min(m.Texte().size(), a + alea() % 6);
          m.Retoucher(a, b, Hasard(alea, alea() % 2 ? b - a : alea() % 400));
          break;
        }
        default:
          break;
      }
      for (std::size_t k = 0; k < recherches.size(); ++k) {
        if (alea() % 3 == 0) continue;  // a search left aside for a while must come back true
        const std::size_t depuis = m.Debut() + (k == 1 ? alea() % (m.Reste().size() + 1) : 0);
        const std::size_t trouve = m.TrouverDepuis(recherches[k], depuis);
        const std::size_t vrai = Chercher(m.Texte(), motifs[k].texte, depuis, motifs[k].sansCasse);
        ASSERT_EQ(trouve, vrai) << "graine " << graine << " pas " << pas << " motif " << motifs[k].texte;
      }
      const std::size_t depuis = m.Debut() + alea() % (m.Reste().size() + 1);
      ASSERT_EQ(m.Compter(separateurs, depuis), Compter(std::string_view(m.Texte()).substr(depuis), ";\\"))
          << "graine " << graine << " pas " << pas;
    }
  }
}

}  // namespace
}  // namespace norvane::test
