// The scan of a slice for codes, the insertion of values, unknown codes and
// the hand-over of table and graph codes to their ports.
#include "template/BancInterpreteur.h"

namespace norvane::test {
namespace {

const std::string kTitreErreur = "Erreur détectée :  cliquez Fermer pour continuer";

class Interpreteur : public BancInterpreteur {
 protected:
  void SetUp() override { Info().NomExploitation = "DUPONT Jean                   "; }
};

TEST_F(Interpreteur, ValeurRemplaceLeCodeEtEstRogneeDeSesBlancs) {
  EXPECT_EQ(Interpreter("avant #tvl(nomExploit)# apres"), "avant DUPONT Jean apres");
  EXPECT_EQ(resultat, -1);
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Interpreteur, ValeurVideDevientEspaceInsecable) {
  Societe();
  EXPECT_EQ(Valeur("nomExploit"), "\\~");
}

TEST_F(Interpreteur, BlancsAccoladesEtGrasSontNettoyes) {
  EXPECT_EQ(Valeur(" nomExploit "), "DUPONT Jean");
  EXPECT_EQ(Valeur("nom{\\b Exploit}"), "DUPONT Jean");
  EXPECT_EQ(Valeur("nom\r\nExploit"), "DUPONT Jean");
}

TEST_F(Interpreteur, MotsDuVocabulaireSontSensiblesALaCasse) {
  EXPECT_EQ(Interpreter("x #tvl(NOMEXPLOIT)# y"), "x #tvl(NOMEXPLOIT)# y");
  ASSERT_EQ(messages.messages.size(), 1u);
  const auto& m = messages.messages[0];
  EXPECT_EQ(m.titre, kTitreErreur);
  EXPECT_EQ(m.texte, "La portion de code \"NOMEXPLOIT\" dans le modèle est inconnue de l'interpréteur Norvane.");
  EXPECT_EQ(m.conseil, "Modifier le modèle de document pour que l'erreur n'apparaisse plus.");
  EXPECT_EQ(m.style, "");
}

TEST_F(Interpreteur, CodeInconnuResteTelQuelAvecSaMiseEnForme) {
  EXPECT_EQ(Interpreter("#tvl(nomAss11)# puis #tvl(nomExploit)#"), "#tvl(nomAss11)# puis DUPONT Jean");
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_NE(messages.messages[0].texte.find("\"nomAss11\""), std::string::npos);
}

TEST_F(Interpreteur, PremiereMarqueTrouveeSansEgardALaCasse) {
  EXPECT_EQ(Interpreter("#TVL(nomExploit)#"), "DUPONT Jean");
}

TEST_F(Interpreteur, MarqueImbriqueeLaisseLaMarqueExterieure) {
  EXPECT_EQ(Interpreter("#tvl(a #tvl(nomExploit)# b"), "#tvl(a DUPONT Jean b");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Interpreteur, MarqueDeFinManquante) {
  EXPECT_EQ(Interpreter("#tvl(nomExploit"), "#tvl(nomExploit");
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].texte,
            "Norvane ne trouve pas une balise \")#\" dans le modèle de document utilisé pour la création.");
  EXPECT_EQ(messages.messages[0].titre, kTitreErreur);
}

TEST_F(Interpreteur, SansFinChaqueMarqueDeDebutEstSignalee) {
  Interpreter("#tvl(a #tvl(b");
  EXPECT_EQ(messages.messages.size(), 2u);
}

TEST_F(Interpreteur, PlusieursCodesDansUnePortion) {
  Info().Commune = "Rennes";
  EXPECT_EQ(Interpreter("{#tvl(nomExploit)#, #tvl(commune)#}"), "{DUPONT Jean, Rennes}");
}

TEST_F(Interpreteur, ValeurContenantUneMarqueNEstPasRelue) {
  Info().Commune = "#tvl(nomExploit)#";
  EXPECT_EQ(Valeur("commune"), "#tvl(nomExploit)#");
}

TEST_F(Interpreteur, InsererValeurRendLaPositionDerriereLaValeur) {
  std::string texte = "ab#tvl(x)#cd";
  const auto suite = InsererValeur(generation, texte, 2, 8, "  val  ", true);
  EXPECT_EQ(texte, "abvalcd");
  EXPECT_EQ(suite, 5u);
  EXPECT_EQ(InsererValeur(generation, texte, 2, 3, "", true), 4u);
  EXPECT_EQ(texte, "ab\\~cd");
}

class TableauxFixes : public PortTableaux {
 public:
  std::optional<std::string> reponse;
  std::string recu;
  std::optional<std::string> GenererTableau(Generation&, const std::string& code) override {
    recu = code;
    return reponse;
  }
};

class GraphiquesFixes : public PortGraphiques {
 public:
  std::optional<std::string> GenererGraphique(Generation&, const std::string& code) override {
    return "{\\pict " + code + "}";
  }
};

TEST_F(Interpreteur, CodesDeTableauSansPortRestentTelsQuels) {
  EXPECT_EQ(Interpreter("#tvl(taba2p1)# #tvl(gph(T;1))# #tvl(culture1taba2)#"),
            "#tvl(taba2p1)# #tvl(gph(T;1))# #tvl(culture1taba2)#");
  EXPECT_TRUE(messages.messages.empty());
}

TEST_F(Interpreteur, CodesDeTableauVontAuPortNettoyes) {
  TableauxFixes tableaux;
  GraphiquesFixes graphiques;
  generation.tableaux = &tableaux;
  generation.graphiques = &graphiques;
  EXPECT_EQ(Valeur("actlibr1taba2"), "#tvl(actlibr1taba2)#");  // the port declines it
  tableaux.reponse = "{\\trowd TABLE}";
  EXPECT_EQ(Valeur("tab a2{\\b p1}"), "{\\trowd TABLE}");
  EXPECT_EQ(tableaux.recu, "taba2p1");
  EXPECT_EQ(Valeur("gph(Titre;2)"), "{\\pict gph(Titre;2)}");
}

TEST_F(Interpreteur, TraitDUnionMeneAuLecteurDeSeries) {
  // No "+": the series reader's own box, and an empty value.
  EXPECT_EQ(Valeur("a-b"), "\\~");
  ASSERT_EQ(messages.messages.size(), 1u);
  EXPECT_EQ(messages.messages[0].texte, "Le code \"a-b\" est inconnu de l'interpréteur Norvane.");
}

TEST_F(Interpreteur, CodeCourantGardeLeTexteLitteral) {
  Interpreter("#tvl( nom{\\b Exploit} )#");
  EXPECT_EQ(generation.etat.CodeCourant, "#tvl( nom{\\b Exploit} )#");
}

TEST_F(Interpreteur, TransfoPerenneRemiseAZeroAChaqueCode) {
  generation.etat.TransfoPerenne = true;
  Valeur("nomExploit");
  EXPECT_FALSE(generation.etat.TransfoPerenne);
}

TEST_F(Interpreteur, FormeAnnoteeDormanteQuandSansAnnotationVaut0) {
  session.options.SansAnnotation = 0;
  generation.etat.ProchaineCouleur = 3;
  EXPECT_EQ(Valeur("nomExploit"),
            "{\\fs22 {\\*\\atrfstart 47317183}DUPONT Jean}{\\cs15\\v\\cf17\\fs16 {\\*\\atrfend 47317183}"
            "{\\*\\atnid TVL}{\\*\\atnauthor Code Norvane pour la construction de la donn\xE9"
            "e }\\chatn {\\*\\annotation {\\*\\atnref 47317183}{#tvl(nomExploit)#}}}");
}

}  // namespace
}  // namespace norvane::test
