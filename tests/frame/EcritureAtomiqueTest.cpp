// A store rewritten whole is, after a failure or a kill at any step of the
// rewrite, its old or its new version byte for byte, and no temporary file
// outlives the next successful rewrite. Each step is reached through the
// seam of AppelsFichier; the full disk is a small RLIMIT_FSIZE in a forked
// child; the kill is SIGKILL in a forked child.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string>
#include <vector>

#include "frame/AppelsFichier.h"
#include "frame/EcritureAtomique.h"
#include "frame/Parametres.h"
#include "support/DossierTemporaire.h"

namespace norvane::test {
namespace {

// The call (counted from 1 over every call of the seam) at which the
// rewrite fails or the process is killed; 0 for none.
int appelVise = 0;
int appelsFaits = 0;
bool tuer = false;

bool Frapper() {
  if (++appelsFaits != appelVise) return false;
  if (tuer) ::kill(::getpid(), SIGKILL);
  errno = EIO;
  return true;
}

// The system's calls behind the count, writing 7 bytes at most at a time so
// that a stop may fall in the middle of the content.
AppelsFichier AppelsPieges() {
  AppelsFichier a;
  a.creerTemporaire = [](char* modele) { return Frapper() ? -1 : ::mkstemp(modele); };
  a.ecrire = [](int fd, const void* octets, std::size_t taille) -> ssize_t {
    return Frapper() ? -1 : ::write(fd, octets, std::min<std::size_t>(taille, 7));
  };
  a.permissions = [](int fd, mode_t mode) { return Frapper() ? -1 : ::fchmod(fd, mode); };
  a.synchroniser = [](int fd) { return Frapper() ? -1 : ::fsync(fd); };
  a.fermer = [](int fd) {
    const int r = ::close(fd);
    return Frapper() ? -1 : r;
  };
  a.renommer = [](const char* de, const char* vers) {
    if (Frapper()) return -1;
    const int r = ::rename(de, vers);
    return Frapper() ? -1 : r;  // a last stop between the rename and the clean-up
  };
  return a;
}

class Pieges {
 public:
  Pieges(int appel, bool tuerAuLieuDEchouer) {
    appelVise = appel;
    appelsFaits = 0;
    tuer = tuerAuLieuDEchouer;
    AppelsFichierCourants() = AppelsPieges();
  }
  ~Pieges() { AppelsFichierCourants() = AppelsFichierSysteme(); }
};

const std::string kAncien = "ancienne version du magasin\r\n";
const std::string kNouveau = std::string(60, 'n') + "\r\nnouvelle version, plus longue que l'ancienne\r\n";

std::vector<std::string> Contenu(const DossierTemporaire& d) {
  std::vector<std::string> noms;
  for (const auto& e : std::filesystem::directory_iterator(d.Chemin())) noms.push_back(e.path().filename().string());
  std::sort(noms.begin(), noms.end());
  return noms;
}

// Runs `enfant` in a forked child and gives its wait status.
template <typename F>
int DansUnEnfant(F enfant) {
  const pid_t pid = ::fork();
  if (pid == 0) ::_exit(enfant());
  int statut = 0;
  ::waitpid(pid, &statut, 0);
  return statut;
}

class EcritureAtomiqueTest : public ::testing::TestWithParam<const char*> {
 protected:
  EcritureAtomiqueTest() { d.Ecrire(GetParam(), kAncien); }
  std::string Chemin() const { return d / GetParam(); }
  // Calls a whole rewrite makes.
  int AppelsDUneEcriture() {
    DossierTemporaire autre;
    Pieges p(0, false);
    EXPECT_TRUE(EcrireFichierAtomique(autre / "x", kNouveau));
    return appelsFaits;
  }
  DossierTemporaire d;
};

TEST_P(EcritureAtomiqueTest, AFailingStepLeavesTheOldVersionAndNoTemporary) {
  const int appels = AppelsDUneEcriture();
  ASSERT_GT(appels, 10);
  for (int appel = 1; appel < appels; ++appel) {
    {
      Pieges p(appel, false);
      EcrireFichierAtomique(Chemin(), kNouveau);
    }
    const std::string lu = d.Lire(GetParam());
    EXPECT_TRUE(lu == kAncien || (lu == kNouveau && appel == appels)) << "appel " << appel;
    if (appel < appels - 1) {
      EXPECT_EQ(lu, kAncien) << "appel " << appel;
    }
    EXPECT_EQ(Contenu(d), std::vector<std::string>{GetParam()}) << "appel " << appel;
  }
}

TEST_P(EcritureAtomiqueTest, AFullDiskLeavesTheOldVersionAndNoTemporary) {
  for (const rlim_t limite : {rlim_t{0}, rlim_t{1}, rlim_t{kNouveau.size() / 2}, rlim_t{kNouveau.size() - 1}}) {
    const int statut = DansUnEnfant([&] {
      const rlimit r{limite, limite};
      ::setrlimit(RLIMIT_FSIZE, &r);
      ::signal(SIGXFSZ, SIG_IGN);
      return EcrireFichierAtomique(Chemin(), kNouveau) ? 0 : 1;
    });
    EXPECT_TRUE(WIFEXITED(statut) && WEXITSTATUS(statut) == 1) << "limite " << limite;
    EXPECT_EQ(d.Lire(GetParam()), kAncien) << "limite " << limite;
    EXPECT_EQ(Contenu(d), std::vector<std::string>{GetParam()}) << "limite " << limite;
  }
}

TEST_P(EcritureAtomiqueTest, AKillAtAnyStepLeavesOneWholeVersionUntilTheNextSave) {
  const int appels = AppelsDUneEcriture();
  for (int appel = 1; appel <= appels; ++appel) {
    d.Ecrire(GetParam(), kAncien);
    const int statut = DansUnEnfant([&] {
      Pieges p(appel, true);
      EcrireFichierAtomique(Chemin(), kNouveau);
      return 3;
    });
    EXPECT_TRUE(WIFSIGNALED(statut) && WTERMSIG(statut) == SIGKILL) << "appel " << appel;
    const std::string lu = d.Lire(GetParam());
    EXPECT_TRUE(lu == kAncien || lu == kNouveau) << "appel " << appel << " : " << lu;
    ASSERT_TRUE(EcrireFichierAtomique(Chemin(), "suivante"));
    EXPECT_EQ(d.Lire(GetParam()), "suivante");
    EXPECT_EQ(Contenu(d), std::vector<std::string>{GetParam()}) << "appel " << appel;
  }
}

INSTANTIATE_TEST_SUITE_P(Magasins, EcritureAtomiqueTest, ::testing::Values("Editeur.svg", "tableaux.txt", "graph.txt"),
                         [](const auto& info) {
                           std::string nom = info.param;
                           std::replace(nom.begin(), nom.end(), '.', '_');
                           return nom;
                         });

// The settings go through the same rewrite: a failing write keeps the old
// file and says so.
TEST(EnregistrerParametres, AFailingWriteKeepsTheOldFile) {
  DossierTemporaire d;
  ContenuParametres contenu;
  ASSERT_TRUE(EnregistrerParametres(contenu, d.Chemin()));
  const std::string avant = d.Lire("Editeur.svg");
  contenu.options.CheminEditeur = "/usr/bin/soffice";
  {
    Pieges p(2, false);
    const Resultat<void> echec = EnregistrerParametres(contenu, d.Chemin());
    ASSERT_FALSE(echec);
    EXPECT_TRUE(echec.Erreur().texte.starts_with("Impossible d'écrire le fichier des paramètres ")) << echec.Erreur().texte;
  }
  EXPECT_EQ(d.Lire("Editeur.svg"), avant);
  EXPECT_EQ(Contenu(d), std::vector<std::string>{"Editeur.svg"});
}

}  // namespace
}  // namespace norvane::test
