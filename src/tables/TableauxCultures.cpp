// Per-crop tables, crop rows and crop values.
#include "tables/TableauxCultures.h"

#include <cmath>
#include <utility>
#include <vector>

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "study/TexteEtude.h"
#include "tables/CodeTableau.h"
#include "tables/DefinitionLigne.h"
#include "tables/EntiteEnCours.h"
#include "tables/GenerationTableau.h"
#include "tables/ProducteursTables.h"
#include "tables/ReferencesCultures.h"

namespace norvane {
namespace {

constexpr std::string_view kFinParagraphe = "\\par \\plain ";
constexpr int kFondBoite = 8;
const std::string kCinquanteBlancs(50, ' ');

std::string Cp(const char* utf8) { return Utf8VersCp1252(utf8); }

std::string TexteType(int16_t type, bool derobee) {
  static constexpr std::array<std::array<const char*, 2>, 4> kTextes = {{
      {"Culture de vente principale", "Culture de vente dérobée"},
      {"Culture de vente principale avec aliment prélevé", "Culture de vente dérobée avec aliment prélevé"},
      {"Culture fourragère principale", "Culture fourragère dérobée"},
      {"Culture maraîchère principale", "Culture maraîchère de vente dérobée"},
  }};
  if (type < 1 || type > 4) return {};
  return Cp(kTextes[static_cast<std::size_t>(type - 1)][derobee ? 1 : 0]);
}

std::string TexteGroupe(int16_t type) {
  static constexpr std::array<const char*, 4> kGroupes = {"Cult. de vente", "Cult. alimentaire", "Cult. fourragère",
                                                          "Cult. maraîchère"};
  return type >= 1 && type <= 4 ? Cp(kGroupes[static_cast<std::size_t>(type - 1)]) : std::string();
}

// The first letter of the yield unit: q, t, k or u.
char LettreUnite(char unite) {
  switch (unite) {
    case '0':
      return 'q';
    case '1':
      return 't';
    case '2':
      return 'k';
    default:
      return 'u';
  }
}

std::string LigneEntete(int couleur, const std::string& texte) {
  return "\\ql\\fs22\\cf" + std::to_string(couleur) + " " + kCinquanteBlancs + texte + std::string(kFinParagraphe);
}

std::string NomEnTete(std::string_view nom, int couleur) {
  return std::string(kFinParagraphe) + "\\ql\\fs28\\cf" + std::to_string(couleur) + "\\b     \\ql\\fs28\\cf1\\b\\ul " +
         TexteEtudePourRtf(Trim(nom)) + std::string(kFinParagraphe);
}

// With "transfoperenne=vrai" a perennial crop is printed only when record 74
// of its series file holds something for exercises 1 to 6.
bool ATransformation(Generation& generation, const FicheCulturePerenne& c) {
  const std::string fichier =
      DossierDuSlot(generation.session, 0) + "CltP" + std::to_string(c.NumCultureP) + ".don";
  const SerieDonnees serie = LireEnregistrementSerie(generation.Series(), fichier, 74);
  float somme = 0;
  for (std::size_t n = 1; n <= 6; ++n) somme += serie.Valeur[n];
  return somme != 0;
}

std::string Annees(int16_t n) { return std::to_string(n) + (n < 2 ? " an" : " ans"); }

}  // namespace

std::string NumeroChapitre(int couleur, int chapitre, int compteur, int16_t styleTitre) {
  std::string rtf = "\\par \\plain \\qr\\fs20\\cf" + std::to_string(couleur) + "\\b " + std::to_string(chapitre) +
                    "-" + std::to_string(compteur);
  // The box of style 2 is a table row: the number keeps a paragraph of its own.
  if (styleTitre == 2) rtf += std::string(kFinParagraphe);
  return rtf;
}

std::string EnteteCulture(Generation& generation, const FicheCulture& culture, int couleur) {
  std::string rtf = NomEnTete(culture.NomCulture, couleur);
  rtf += LigneEntete(couleur, TexteType(culture.TypeCulture, culture.Derobee != 0));
  rtf += LigneEntete(couleur, Cp("Unité : ") + LettreUnite(culture.UniteRendement) + "/ha");
  const int32_t record = culture.TypeCulture == 2 || culture.TypeCulture == 3 ? 18 : 17;
  const std::string fichier = DossierDuSlot(generation.session, 0) + "Cult" + culture.Numero() + ".don";
  const SerieDonnees stock = LireEnregistrementSerie(generation.Series(), fichier, record);
  const std::string devise = generation.session.InfoDossier.Devise == 0 ? " F" : Cp(" €");
  rtf += LigneEntete(couleur, "Valeur stock : " + FormatNombre(stock.Valeur[0], kDecimalesAuto, false) + devise);
  return rtf + "\\ql\\fs24\\cf" + std::to_string(couleur) + " " + TexteGroupe(culture.TypeCulture) +
         std::string(kFinParagraphe);
}

std::string EnteteCulturePerenne(const FicheCulturePerenne& c, int couleur) {
  const std::string cf = std::to_string(couleur);
  return NomEnTete(c.NomCultureP, couleur) + "\\par\\par \\ql\\fs26\\cf" + cf + "\\b        " +
         "\\ql\\fs26\\cf1\\b\\ul\\i " + Cp("Caractéristiques :") + "\\plain " + "\\ql\\fs22\\cf" + cf +
         Cp("       Unité de surface : ") + TexteUniteSurface(c.UniteSurface) + Cp("            Unité de rendement : ") +
         TexteUniteRendementP(c.UniteRendementP) + "\\par " + std::string(49, ' ') + "Pleine production : " +
         Annees(c.PleineProduction) + Cp("      Durée d'amortissement : ") + Annees(c.DureeAmortissement) +
         "\\par\\plain ";
}

std::string BoiteActivite(std::string_view nom, int couleur, int fond) {
  const std::string bords = "\\clbrdrt\\brdrs \\clbrdrb\\brdrs \\clbrdrl\\brdrs \\clbrdrr\\brdrs\\clvertalc\\clcbpat";
  const std::string cf = std::to_string(couleur);
  return "\\trowd\\trgaph120\\trrh100\\trql " + bords + std::to_string(fond) + "\\cellx1500 " + bords +
         std::to_string(fond) + "\\cellx4000" + "\\ql\\intbl\\clvertalb{\\fs20\\cf" + cf + "\\b ACTIVITE :}\\cell" +
         "\\ql\\intbl\\clvertalb{\\fs20\\cf" + cf + " " + TexteEtudePourRtf(Trim(nom)) + "}\\cell\\row\\pard\\plain ";
}

// One heading and table per crop of the catalogue.
std::string GenererTableauxCulture(ProducteursTables& p, Generation& generation, TableauxDocument& tableaux,
                                   const std::string& code) {
  const std::string propre = NettoyerCodeTableau(code);
  std::string_view reste = propre;
  ModeleTableau modele;
  LireTypeTableau(reste, modele);
  const std::string corps(reste);
  const std::string dossier = DossierDuSlot(generation.session, 0);
  const int couleur = generation.etat.ProchaineCouleur + 1;
  EntiteEnCours enCours(generation, p);
  std::string rtf;
  const auto un = [&](const std::string& entete, const std::string& boite) {
    ++p.CompteurTableaux;
    if (modele.NumChapitre != -1) rtf += NumeroChapitre(couleur, modele.NumChapitre, p.CompteurTableaux, modele.StyleTitre);
    if (modele.StyleTitre == 1) rtf += entete + std::string(kFinParagraphe);
    if (modele.StyleTitre == 2) rtf += BoiteActivite(boite, couleur, generation.etat.ProchaineCouleur + kFondBoite) +
                                       std::string(kFinParagraphe);
    rtf += GenererTableau(generation, tableaux, corps, modele.StyleTitre);
  };
  if (modele.TypeTableau == 2) {
    for (const FicheCulturePerenne& c : ChargerCulturesPerennes(dossier)) {
      p.culturePerenne = c;
      if (generation.etat.TransfoPerenne && !ATransformation(generation, c)) continue;
      un(EnteteCulturePerenne(c, couleur), c.NomCultureP);
    }
  } else {
    for (const FicheCulture& c : ChargerCultures(dossier)) {
      p.culture = c;
      un(EnteteCulture(generation, c, couleur), c.NomCulture);
    }
  }
  return rtf;
}

}  // namespace norvane
