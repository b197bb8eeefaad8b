// Replays the kept inputs of one fuzz target through its very entry point,
// in the normal test suite (and so under the sanitizers of that build): each
// input of fuzz/corpus/<target>/ that once crashed or hung runs to its end,
// and, where <input>.attendu stands beside it, what it printed holds that text.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille);

namespace {

namespace fs = std::filesystem;

constexpr char kAttendu[] = ".attendu";

std::string Lire(const fs::path& chemin) {
  std::ifstream flux(chemin, std::ios::binary);
  std::ostringstream contenu;
  contenu << flux.rdbuf();
  return contenu.str();
}

std::vector<fs::path> Entrees() {
  std::vector<fs::path> entrees;
  std::error_code ec;
  for (const auto& e : fs::directory_iterator(NORVANE_SOURCE_DIR "/fuzz/corpus/" NORVANE_CIBLE_FUZZ, ec)) {
    if (e.is_regular_file() && e.path().extension() != kAttendu) entrees.push_back(e.path());
  }
  std::sort(entrees.begin(), entrees.end());
  return entrees;
}

std::string NomDeTest(const ::testing::TestParamInfo<fs::path>& info) {
  std::string nom = info.param.filename().string();
  for (char& c : nom) {
    if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
  }
  return nom;
}

class Rejeu : public ::testing::TestWithParam<fs::path> {};

TEST_P(Rejeu, RunsToItsEnd) {
  const std::string octets = Lire(GetParam());
  ::testing::internal::CaptureStderr();
  ::testing::internal::CaptureStdout();
  LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(octets.data()), octets.size());
  const std::string sortie = ::testing::internal::GetCapturedStdout() + ::testing::internal::GetCapturedStderr();
  fs::path attendu = GetParam();
  attendu += kAttendu;
  if (fs::exists(attendu)) {
    std::string texte = Lire(attendu);
    while (!texte.empty() && (texte.back() == '\n' || texte.back() == '\r')) texte.pop_back();
    EXPECT_NE(sortie.find(texte), std::string::npos) << sortie;
  }
}

INSTANTIATE_TEST_SUITE_P(Gardees, Rejeu, ::testing::ValuesIn(Entrees()), NomDeTest);
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(Rejeu);

}  // namespace
