#include "graphs/StockGraphiques.h"

#include <gtest/gtest.h>

#include <cstring>

#include "frame/Texte.h"
#include "graphs/ModelesEssai.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"

namespace norvane {
namespace {

using test::DossierTemporaire;
using test::ModeleComplet;

// The record written field by field at the offsets of its layout, apart from
// the program's writer.
class Enregistrement {
 public:
  Enregistrement() : octets_(kLongueurModeleGraphique, '\0') {}
  void Entier(std::size_t position, int16_t v) { std::memcpy(&octets_[position], &v, 2); }
  void Flottant(std::size_t position, float v) { std::memcpy(&octets_[position], &v, 4); }
  void Texte(std::size_t position, const std::string& v, std::size_t largeur) {
    std::string champ = v.substr(0, largeur);
    champ.resize(largeur, ' ');
    octets_.replace(position, largeur, champ);
  }
  void Brut(std::size_t position, const std::string& v) { octets_.replace(position, v.size(), v); }
  void Rect(std::size_t position, const RectGraphique& r) {
    Flottant(position, r.MinX);
    Flottant(position + 4, r.MaxX);
    Flottant(position + 8, r.MinY);
    Flottant(position + 12, r.MaxY);
  }
  void Axe(std::size_t position, const AxeGraphique& a) {
    Texte(position, a.Libelle, 40);
    Entier(position + 40, a.TailleAxe);
    Entier(position + 42, a.EpaisseurAxe);
  }
  const std::string& Octets() const { return octets_; }

 private:
  std::string octets_;
};

std::string OctetsAttendus(const ModeleGraphique& m) {
  Enregistrement e;
  e.Entier(0, m.Reserve0);
  e.Texte(2, m.Titre, 60);
  e.Entier(62, m.TypeGraph);
  e.Entier(64, m.Legende);
  e.Entier(66, m.NbSeries);
  e.Entier(68, m.Empile);
  e.Texte(70, m.Commentaire, 100);
  for (std::size_t k = 0; k < 10; ++k) {
    const SerieGraphique& s = m.Series[k];
    const std::size_t base = 170 + 76 * k;
    e.Texte(base, s.CodeSerie, 12);
    e.Texte(base + 12, s.NomSerie, 22);
    e.Entier(base + 34, s.TypeSerie);
    e.Texte(base + 36, s.FichierSerie, 12);
    e.Entier(base + 48, s.AxeYSerie);
    e.Entier(base + 50, s.Rouge);
    e.Entier(base + 52, s.Vert);
    e.Entier(base + 54, s.Bleu);
    e.Entier(base + 56, s.EpaisseurSerie);
    e.Entier(base + 58, s.BrosseSerie);
    e.Brut(base + 60, s.Reserve60.substr(0, 10) + std::string(10 - std::min<std::size_t>(10, s.Reserve60.size()), ' '));
    for (std::size_t i = 0; i < 3; ++i) e.Entier(base + 70 + 2 * i, s.Reserve70[i]);
  }
  e.Entier(930, m.InversionDataSeries);
  e.Entier(932, m.EspaceBarres);
  e.Entier(934, m.EspaceAnnees);
  e.Entier(936, m.EspaceSeries);
  e.Rect(938, m.RectTitre);
  e.Rect(954, m.RectPlot);
  e.Rect(970, m.RectLegende);
  e.Rect(986, m.RectNote);
  e.Flottant(1002, m.Elevation);
  e.Flottant(1006, m.Rotation);
  e.Entier(1010, m.TexteTitre.RetourTexte);
  e.Entier(1012, m.TexteTitre.Orientation);
  e.Entier(1014, m.TexteTitre.Reserve);
  e.Entier(1016, m.TexteNote.RetourTexte);
  e.Entier(1018, m.TexteNote.Orientation);
  e.Entier(1020, m.TexteNote.Reserve);
  e.Axe(1022, m.AxeX);
  e.Axe(1066, m.AxeY);
  e.Axe(1110, m.AxeY2);
  e.Axe(1154, m.AxeZ);
  e.Entier(1198, m.TailleTitre);
  e.Brut(1200, m.Reserve1200.substr(0, 18) + std::string(18 - std::min<std::size_t>(18, m.Reserve1200.size()), ' '));
  for (std::size_t i = 0; i < 3; ++i) e.Entier(1218 + 2 * i, m.Reserve1218[i]);
  return e.Octets();
}

// Texts compare trimmed; everything else exactly.
void ExpectMemeModele(const ModeleGraphique& a, const ModeleGraphique& b) {
  EXPECT_EQ(OctetsAttendus(a), OctetsAttendus(b));
}

TEST(EnregistrementGraphique, WritesEachFieldAtItsOffset) {
  std::string octets;
  EcrireModeleGraphique(octets, ModeleComplet());
  ASSERT_EQ(octets.size(), kLongueurModeleGraphique);
  EXPECT_EQ(octets, OctetsAttendus(ModeleComplet()));
}

TEST(EnregistrementGraphique, ReadsBackFieldByFieldARecordWrittenElsewhere) {
  const std::string octets = OctetsAttendus(ModeleComplet());
  LecteurBinaire lecteur(octets);
  ModeleGraphique lu;
  ASSERT_TRUE(LireModeleGraphique(lecteur, lu));
  EXPECT_EQ(lu.Titre, std::string("R\xE9sultats de l'exploitation").append(33, ' '));
  EXPECT_EQ(lu.Series[1].NomSerie, std::string("Annuit\xE9s").append(14, ' '));
  EXPECT_EQ(lu.RectPlot.MaxX, 7000.25f);
  EXPECT_EQ(lu.Reserve1218[2], 32767);
  EXPECT_EQ(lu.Series[1].Reserve70[2], 4);
  ExpectMemeModele(lu, ModeleComplet());
}

TEST(EnregistrementGraphique, ANewModelWritesZerosInTheReservedFields) {
  std::string octets;
  EcrireModeleGraphique(octets, ModeleGraphique{});
  EXPECT_EQ(octets.substr(1200, 24), std::string(24, '\0'));
  EXPECT_EQ(octets.substr(170 + 60, 16), std::string(16, '\0'));
  EXPECT_EQ(octets.substr(2, 60), std::string(60, ' '));
}

void ExpectNoeud(const NoeudArbre& noeud, const std::string& cle, const std::string& texte, const std::string& image,
                 const std::string& parent) {
  EXPECT_EQ(noeud.cle, cle);
  EXPECT_EQ(noeud.texte, texte);
  EXPECT_EQ(noeud.image, image);
  EXPECT_EQ(noeud.cleParent, parent);
}

class StockGraphiquesTest : public ::testing::Test {
 protected:
  std::string Rep() const { return dossier_ / "ModelGraph/"; }
  std::string Fichier() const { return dossier_.Lire("ModelGraph/graph.txt"); }
  void EcrireFichier(const std::string& octets) const { dossier_.Ecrire("ModelGraph/graph.txt", octets); }
  StockGraphiques Charger() {
    StockGraphiques stock;
    ChargerGraphiques(stock, Rep(), messages_);
    return stock;
  }

  DossierTemporaire dossier_;
  MessagesScriptes messages_;
};

TEST_F(StockGraphiquesTest, AMissingFileIsAnEmptyStoreShowingNoRecord) {
  const StockGraphiques stock = Charger();
  EXPECT_EQ(stock.NbGraphiques, 0);
  EXPECT_TRUE(dossier_.Existe("ModelGraph"));
  const std::vector<NoeudArbre> arbre = RemplirArbreGraphiques(stock);
  ASSERT_EQ(arbre.size(), 2u);
  ExpectNoeud(arbre[0], "Racine", "Graphiques", "RepWinTervol", "");
  ExpectNoeud(arbre[1], "graph0", "Aucun enregistrement", "Vide", "Racine");
  EXPECT_EQ(NumeroGraphiqueDeCle(arbre[1].cle), 0);
  EXPECT_TRUE(messages_.messages.empty());
}

TEST_F(StockGraphiquesTest, TheFileReadsBackAndWritesBackByteForByte) {
  ModeleGraphique autre = ModeleComplet();
  autre.Titre = "Autre";
  autre.TypeGraph = kSecteurs2D;
  const std::string octets = OctetsAttendus(ModeleComplet()) + OctetsAttendus(autre);
  EcrireFichier(octets);
  StockGraphiques stock = Charger();
  ASSERT_EQ(stock.NbGraphiques, 2);
  ASSERT_TRUE(SauverGraphiques(stock, Rep()));
  EXPECT_EQ(Fichier(), octets);
  stock.Slot(2).Titre = "   ";
  const std::vector<NoeudArbre> arbre = RemplirArbreGraphiques(stock);
  ASSERT_EQ(arbre.size(), 3u);
  ExpectNoeud(arbre[1], "graph1", "R\xE9sultats de l'exploitation", "graph10", "Racine");
  ExpectNoeud(arbre[2], "graph2", "Sans titre", "graph11", "Racine");
  EXPECT_EQ(NumeroGraphiqueDeCle(arbre[2].cle), 2);
}

TEST_F(StockGraphiquesTest, TheModelCountIsTheLengthRoundedToTheNearest) {
  const std::string un = OctetsAttendus(ModeleComplet());
  struct Cas {
    std::size_t longueur;
    int16_t attendu;
  };
  for (const Cas& cas : {Cas{0, 0}, Cas{611, 0}, Cas{612, 1}, Cas{1224, 1}, Cas{1224 + 611, 1}, Cas{1224 + 700, 2}}) {
    EcrireFichier((un + un).substr(0, cas.longueur));
    EXPECT_EQ(Charger().NbGraphiques, cas.attendu) << cas.longueur;
  }
}

TEST_F(StockGraphiquesTest, ACutRecordKeepsWhatTheSlotHeldBehindItsEnd) {
  EcrireFichier(OctetsAttendus(ModeleComplet()).substr(0, 700));
  StockGraphiques stock;
  stock.Slot(1).TailleTitre = 42;
  ChargerGraphiques(stock, Rep(), messages_);
  ASSERT_EQ(stock.NbGraphiques, 1);
  EXPECT_EQ(Trim(stock.Slot(1).Titre), Trim(ModeleComplet().Titre));
  EXPECT_EQ(stock.Slot(1).TailleTitre, 42);
}

TEST_F(StockGraphiquesTest, TitlesAreMadeUnique) {
  const std::string soixante(60, 'T');
  struct Cas {
    std::vector<std::string> titres;
    std::vector<std::string> attendus;
  };
  const std::vector<Cas> tableau = {
      {{"T", "T", "T"}, {"T", "T2", "T3"}},
      {{"T ", "U", "  T"}, {"T", "U", "T2"}},
      {{"", ""}, {"", "2"}},
      {{"T", "T2", "T"}, {"T", "T2", "T22"}},
      {{soixante, soixante}, {soixante, soixante}},
  };
  for (const Cas& cas : tableau) {
    StockGraphiques stock;
    for (const std::string& titre : cas.titres) {
      ASSERT_TRUE(AjouterGraphique(stock, messages_));
      stock.Slot(stock.NbGraphiques).Titre = titre;
    }
    ASSERT_TRUE(SauverGraphiques(stock, Rep()));
    const StockGraphiques relu = Charger();
    ASSERT_EQ(relu.NbGraphiques, static_cast<int16_t>(cas.attendus.size()));
    for (std::size_t i = 0; i < cas.attendus.size(); ++i) {
      EXPECT_EQ(Trim(relu.Slot(static_cast<int>(i + 1)).Titre), cas.attendus[i]) << cas.titres[i];
    }
  }
}

TEST_F(StockGraphiquesTest, ANewModelTakesTheDefaultsAndKeepsTheRest) {
  StockGraphiques stock;
  stock.Slot(1) = ModeleComplet();
  ASSERT_TRUE(AjouterGraphique(stock, messages_));
  const ModeleGraphique& m = stock.Slot(1);
  EXPECT_EQ(stock.GraphiqueCourant, 1);
  EXPECT_EQ(m.Titre, "Sans titre");
  EXPECT_EQ(m.TypeGraph, kCourbes2D);
  EXPECT_EQ(m.NbSeries, 0);
  EXPECT_EQ(m.Empile, 0);
  EXPECT_EQ(m.Legende, 0);
  EXPECT_EQ(m.Commentaire, "");
  EXPECT_EQ(m.TailleTitre, 16);
  EXPECT_EQ(m.TexteTitre.RetourTexte + m.TexteTitre.Orientation + m.TexteNote.RetourTexte + m.TexteNote.Orientation, 4);
  EXPECT_EQ(m.EspaceAnnees, 2);
  EXPECT_EQ(m.EspaceBarres, 0);
  EXPECT_EQ(m.EspaceSeries, 5);
  EXPECT_EQ(m.InversionDataSeries, 0);
  for (const AxeGraphique* a : {&m.AxeX, &m.AxeY, &m.AxeY2, &m.AxeZ}) {
    EXPECT_EQ(a->Libelle, "");
    EXPECT_EQ(a->TailleAxe, 12);
    EXPECT_EQ(a->EpaisseurAxe, 30);
  }
  // Not named among the defaults: kept from what the slot held.
  EXPECT_EQ(m.RectPlot.MaxX, 7000.25f);
  EXPECT_EQ(m.Series[0].CodeSerie, "RES-17:0");
  EXPECT_EQ(m.Elevation, 20.5f);
}

TEST_F(StockGraphiquesTest, FiftyModelsAtMost) {
  StockGraphiques stock;
  for (int i = 0; i < kNombreSlotsGraphiques; ++i) ASSERT_TRUE(AjouterGraphique(stock, messages_));
  EXPECT_TRUE(messages_.messages.empty());
  EXPECT_FALSE(AjouterGraphique(stock, messages_));
  EXPECT_EQ(stock.NbGraphiques, 50);
  ASSERT_EQ(messages_.messages.size(), 1u);
  EXPECT_EQ(messages_.messages[0].titre, "Ajout d'un graphique impossible");
  EXPECT_EQ(messages_.messages[0].texte, "Vous êtes limité à 50 modèles de graphique.");
}

TEST_F(StockGraphiquesTest, DeletingMovesTheFollowingOnesUpToTheFiftieth) {
  for (const int nombre : {3, 50}) {
    StockGraphiques stock;
    for (int i = 1; i <= nombre; ++i) {
      AjouterGraphique(stock, messages_);
      stock.Slot(i).Titre = "G" + std::to_string(i);
    }
    if (nombre < 50) stock.Slot(nombre + 1).Titre = "ancien";
    stock.GraphiqueCourant = static_cast<int16_t>(nombre);
    ASSERT_TRUE(SupprimerGraphique(stock));
    EXPECT_EQ(stock.NbGraphiques, nombre - 1);
    EXPECT_EQ(stock.GraphiqueCourant, nombre - 1);
    EXPECT_EQ(stock.Slot(nombre).Titre, nombre < 50 ? "ancien" : "");
    stock.GraphiqueCourant = 1;
    ASSERT_TRUE(SupprimerGraphique(stock));
    EXPECT_EQ(stock.Slot(1).Titre, "G2");
    EXPECT_EQ(stock.GraphiqueCourant, 1);
  }
  StockGraphiques vide;
  EXPECT_FALSE(SupprimerGraphique(vide));
}

TEST_F(StockGraphiquesTest, BeyondFiftyTheModelsAreKeptInTheFile) {
  std::string octets;
  for (int i = 1; i <= 52; ++i) {
    ModeleGraphique m = ModeleComplet();
    m.Titre = "G" + std::to_string(i);
    octets += OctetsAttendus(m);
  }
  octets += "abc";
  EcrireFichier(octets);
  StockGraphiques stock = Charger();
  EXPECT_EQ(stock.NbGraphiques, 50);
  EXPECT_EQ(Trim(stock.Slot(50).Titre), "G50");
  ASSERT_EQ(messages_.messages.size(), 1u);
  EXPECT_EQ(messages_.messages[0].texte, "Le fichier des modèles de graphique en compte 52 ; Norvane n'en gère que 50.");
  ASSERT_TRUE(SauverGraphiques(stock, Rep()));
  EXPECT_EQ(Fichier(), octets);
}

TEST(TypesGraphiques, LongAndShortNames) {
  EXPECT_EQ(NomTypeGraphique(1), "Graphique à barres 3D");
  EXPECT_EQ(NomTypeGraphique(12), "Graphique XY 2D");
  EXPECT_EQ(NomCourtTypeGraphique(7), "escalier 3D");
  EXPECT_EQ(NomTypeGraphique(0), "");
  EXPECT_EQ(NomCourtTypeGraphique(13), "");
}

}  // namespace
}  // namespace norvane

namespace norvane {
namespace {

TEST(RecuperationGraphique, TheModelOfACodeIsAddedWithItsTitlePrefixed) {
  StockGraphiques stock;
  MessagesScriptes messages;
  AjouterGraphique(stock, messages);
  ASSERT_TRUE(RecupererGraphique(stock, "gph(EBE_et_annuit\\'e9s;2;1;0;0;Note;)", messages));
  EXPECT_EQ(stock.NbGraphiques, 2);
  EXPECT_EQ(stock.GraphiqueCourant, 2);
  EXPECT_EQ(stock.Slot(2).Titre, "R\xE9" "cup\xE9r\xE9: EBE et annuit\xE9s");
  EXPECT_EQ(stock.Slot(2).TypeGraph, kBarres2D);
  EXPECT_EQ(stock.Slot(2).Commentaire, "Note");
  EXPECT_TRUE(messages.messages.empty());

  for (int i = stock.NbGraphiques; i < kNombreSlotsGraphiques; ++i) AjouterGraphique(stock, messages);
  EXPECT_FALSE(RecupererGraphique(stock, "gph(T;1;)", messages));
  EXPECT_EQ(stock.NbGraphiques, 50);
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].titre, "Ajout d'un graphique impossible");
}

}  // namespace
}  // namespace norvane
