#include "graphiques/DescriptionGraphiques.h"

#include "frame/Encodage.h"
#include "frame/Ports.h"

namespace norvane::construction {
namespace {

// A text field of the model; a text that a code cannot carry is noted.
void Texte(ObjetJson& objet, const char* cle, std::size_t largeur, std::string& champ) {
  if (!objet.A(cle)) return;
  champ = objet.Texte(cle, largeur);
  if (champ.find_first_of(";[]_") != std::string::npos) {
    objet.Notes().avertissements.push_back(objet.Lieu() + ", " + cle + " : « " + Cp1252VersUtf8(champ) +
                                           " » contient « ; », « [ », « ] » ou « _ », qu'un code de graphique ne "
                                           "peut pas porter");
  }
}

void Entier(ObjetJson& objet, const char* cle, int16_t& champ) { champ = objet.Entier16(cle, champ); }
void Flottant(ObjetJson& objet, const char* cle, float& champ) { champ = objet.Flottant(cle, champ); }

void Rect(ObjetJson& objet, const char* cle, RectGraphique& rect) {
  if (!objet.A(cle)) return;
  const auto v = objet.Flottants<4>(cle);
  rect = {v[0], v[1], v[2], v[3]};
}

void TexteGraph(ObjetJson& parent, const char* cle, TexteGraphique& texte) {
  const Json* v = parent.Valeur(cle);
  if (v == nullptr) return;
  ObjetJson objet(*v, parent.Lieu() + ", " + cle, parent.Notes());
  Entier(objet, "RetourTexte", texte.RetourTexte);
  Entier(objet, "Orientation", texte.Orientation);
  objet.Terminer();
}

void Axe(ObjetJson& parent, const char* cle, AxeGraphique& axe) {
  const Json* v = parent.Valeur(cle);
  if (v == nullptr) return;
  ObjetJson objet(*v, parent.Lieu() + ", " + cle, parent.Notes());
  Texte(objet, "Libelle", kLargeurLibelleAxe, axe.Libelle);
  Entier(objet, "TailleAxe", axe.TailleAxe);
  Entier(objet, "EpaisseurAxe", axe.EpaisseurAxe);
  objet.Terminer();
}

int16_t Composante(const std::string& couleur, std::size_t debut) {
  return static_cast<int16_t>(std::stoi(couleur.substr(debut, 2), nullptr, 16));
}

void Serie(ObjetJson& objet, SerieGraphique& serie) {
  serie.TypeSerie = kSerieBarre;
  serie.BrosseSerie = kBrosseSolide;
  serie.EpaisseurSerie = 30;
  Texte(objet, "FichierSerie", kLargeurFichierSerie, serie.FichierSerie);
  Texte(objet, "CodeSerie", kLargeurCodeSerie, serie.CodeSerie);
  Texte(objet, "NomSerie", kLargeurNomSerie, serie.NomSerie);
  Entier(objet, "TypeSerie", serie.TypeSerie);
  Entier(objet, "AxeYSerie", serie.AxeYSerie);
  Entier(objet, "EpaisseurSerie", serie.EpaisseurSerie);
  Entier(objet, "BrosseSerie", serie.BrosseSerie);
  if (objet.A("Couleur")) {
    const std::string couleur = objet.TexteUtf8("Couleur");
    if (couleur.size() != 7 || couleur[0] != '#' ||
        couleur.find_first_not_of("0123456789abcdefABCDEF", 1) != std::string::npos) {
      throw ErreurDescription(objet.Lieu() + " : « Couleur » doit être de la forme « #rrggbb »");
    }
    serie.Rouge = Composante(couleur, 1);
    serie.Vert = Composante(couleur, 3);
    serie.Bleu = Composante(couleur, 5);
  }
  objet.Terminer();
}

void Modele(ObjetJson& objet, ModeleGraphique& m) {
  Texte(objet, "Titre", kLargeurTitre, m.Titre);
  Entier(objet, "TypeGraph", m.TypeGraph);
  Entier(objet, "Legende", m.Legende);
  Entier(objet, "Empile", m.Empile);
  Texte(objet, "Commentaire", kLargeurCommentaire, m.Commentaire);
  for (const auto& [cle, champ] : {std::pair{"InversionDataSeries", &m.InversionDataSeries},
                                   std::pair{"EspaceBarres", &m.EspaceBarres}, std::pair{"EspaceAnnees", &m.EspaceAnnees},
                                   std::pair{"EspaceSeries", &m.EspaceSeries}, std::pair{"TailleTitre", &m.TailleTitre}}) {
    Entier(objet, cle, *champ);
  }
  Flottant(objet, "Elevation", m.Elevation);
  Flottant(objet, "Rotation", m.Rotation);
  Rect(objet, "RectTitre", m.RectTitre);
  Rect(objet, "RectPlot", m.RectPlot);
  Rect(objet, "RectLegende", m.RectLegende);
  Rect(objet, "RectNote", m.RectNote);
  TexteGraph(objet, "TexteTitre", m.TexteTitre);
  TexteGraph(objet, "TexteNote", m.TexteNote);
  Axe(objet, "AxeX", m.AxeX);
  Axe(objet, "AxeY", m.AxeY);
  Axe(objet, "AxeY2", m.AxeY2);
  Axe(objet, "AxeZ", m.AxeZ);
  const std::vector<const Json*> series = objet.Elements("Series");
  if (series.size() > static_cast<std::size_t>(kSeriesParGraphique)) {
    throw ErreurDescription(objet.Lieu() + " : 10 séries au plus");
  }
  m.NbSeries = static_cast<int16_t>(series.size());
  for (std::size_t k = 0; k < series.size(); ++k) {
    ObjetJson serie(*series[k], objet.Lieu() + ", série " + std::to_string(k + 1), objet.Notes());
    Serie(serie, m.Series[k]);
  }
  objet.Terminer();
}

}  // namespace

void ConstruireGraphiques(const Json& description, StockGraphiques& stock, Journal& journal) {
  ObjetJson racine(description, "graphiques", journal);
  const std::vector<const Json*> modeles = racine.Elements("modeles");
  racine.Terminer();
  MessagesMuets silence;
  for (std::size_t i = 0; i < modeles.size(); ++i) {
    if (!AjouterGraphique(stock, silence)) throw ErreurDescription("graphiques : 50 modèles au plus");
    ObjetJson objet(*modeles[i], "modèle " + std::to_string(i + 1), journal);
    Modele(objet, stock.Slot(stock.NbGraphiques));
  }
}

}  // namespace norvane::construction
