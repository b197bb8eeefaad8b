#include "graphs/StockGraphiques.h"

#include <algorithm>

#include "frame/EcritureAtomique.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "graphs/CodeGraphique.h"

namespace norvane {
namespace {

std::size_t Indice(int n) { return static_cast<std::size_t>(std::clamp(n, 1, kNombreSlotsGraphiques) - 1); }

// File length over the record length, rounded to the nearest whole number.
std::size_t NombreEnregistrements(std::size_t taille) {
  return (taille + kLongueurModeleGraphique / 2) / kLongueurModeleGraphique;
}

void DefautsAxe(AxeGraphique& axe) {
  axe.Libelle.clear();
  axe.TailleAxe = 12;
  axe.EpaisseurAxe = 30;
}

void DefautsNouveauModele(ModeleGraphique& m) {
  m.Titre = "Sans titre";
  m.TypeGraph = kCourbes2D;
  m.Legende = 0;
  m.NbSeries = 0;
  m.Empile = 0;
  m.Commentaire.clear();
  m.TailleTitre = 16;
  m.TexteTitre.RetourTexte = 1;
  m.TexteTitre.Orientation = 1;
  m.TexteNote.RetourTexte = 1;
  m.TexteNote.Orientation = 1;
  m.EspaceAnnees = 2;
  m.EspaceBarres = 0;
  m.EspaceSeries = 5;
  m.InversionDataSeries = 0;
  for (AxeGraphique* axe : {&m.AxeX, &m.AxeY, &m.AxeY2, &m.AxeZ}) DefautsAxe(*axe);
}

void SignalerLimite(PortMessages& messages) {
  messages.AfficherMessage("gestGraph", "Ajout d'un graphique impossible",
                           "Vous êtes limité à " + std::to_string(kNombreSlotsGraphiques) + " modèles de graphique.",
                           "Supprimez un modèle dont vous n'avez plus besoin avant d'en ajouter un autre.", "");
}

}  // namespace

ModeleGraphique& StockGraphiques::Slot(int n) { return TabGraphiques[Indice(n)]; }
const ModeleGraphique& StockGraphiques::Slot(int n) const { return TabGraphiques[Indice(n)]; }

std::string CheminGraphiques(const std::string& repModelGraph) {
  return AjouterAntislash(repModelGraph) + kFichierGraphiques;
}

void ChargerGraphiques(StockGraphiques& stock, const std::string& repModelGraph, PortMessages& messages) {
  CreeArborescence(AjouterAntislash(repModelGraph));
  const std::string octets = LireFichier(CheminGraphiques(repModelGraph)).value_or(std::string());
  ChargerGraphiquesOctets(stock, octets, messages);
}

void ChargerGraphiquesOctets(StockGraphiques& stock, std::string_view octets, PortMessages& messages) {
  const std::size_t nombre = NombreEnregistrements(octets.size());
  const std::size_t charges = std::min<std::size_t>(nombre, kNombreSlotsGraphiques);
  LecteurBinaire lecteur(octets);
  for (std::size_t i = 0; i < charges; ++i) {
    lecteur.Aller(i * kLongueurModeleGraphique);
    LireModeleGraphique(lecteur, stock.TabGraphiques[i]);
  }
  stock.NbGraphiques = static_cast<int16_t>(charges);
  const std::size_t finSlots = charges * kLongueurModeleGraphique;
  stock.Surplus = nombre > charges ? std::string(octets.substr(finSlots)) : std::string();
  if (nombre > charges) {
    messages.AfficherMessage("gestGraph", "Modèles de graphique en surnombre",
                             "Le fichier des modèles de graphique en compte " + std::to_string(nombre) +
                                 " ; Norvane n'en gère que " + std::to_string(kNombreSlotsGraphiques) + ".",
                             "Les modèles au-delà du " + std::to_string(kNombreSlotsGraphiques) +
                                 "e sont conservés dans le fichier mais ne sont pas proposés.",
                             "seule");
  }
}

std::string OctetsGraphiques(const StockGraphiques& stock) {
  std::string octets;
  octets.reserve(static_cast<std::size_t>(stock.NbGraphiques) * kLongueurModeleGraphique + stock.Surplus.size());
  for (int i = 1; i <= stock.NbGraphiques; ++i) EcrireModeleGraphique(octets, stock.Slot(i));
  return octets + stock.Surplus;
}

void RendreTitresUniques(StockGraphiques& stock) {
  for (int i = 1; i <= stock.NbGraphiques; ++i) {
    int compteur = 2;
    const std::string titre = Trim(stock.Slot(i).Titre);
    for (int j = i + 1; j <= stock.NbGraphiques; ++j) {
      ModeleGraphique& autre = stock.Slot(j);
      if (Trim(autre.Titre) != titre) continue;
      autre.Titre = (titre + std::to_string(compteur)).substr(0, kLargeurTitre);
      ++compteur;
    }
  }
}

bool SauverGraphiques(StockGraphiques& stock, const std::string& repModelGraph) {
  RendreTitresUniques(stock);
  CreeArborescence(AjouterAntislash(repModelGraph));
  return EcrireFichierAtomique(CheminReel(CheminGraphiques(repModelGraph)), OctetsGraphiques(stock));
}

bool AjouterGraphique(StockGraphiques& stock, PortMessages& messages) {
  if (stock.NbGraphiques >= kNombreSlotsGraphiques) {
    SignalerLimite(messages);
    return false;
  }
  ++stock.NbGraphiques;
  DefautsNouveauModele(stock.Slot(stock.NbGraphiques));
  stock.GraphiqueCourant = stock.NbGraphiques;
  return true;
}

bool SupprimerGraphique(StockGraphiques& stock) {
  const int courant = stock.GraphiqueCourant;
  if (courant < 1 || courant > stock.NbGraphiques) return false;
  for (int i = courant; i <= stock.NbGraphiques; ++i) {
    stock.Slot(i) = i < kNombreSlotsGraphiques ? stock.Slot(i + 1) : ModeleGraphique{};
  }
  --stock.NbGraphiques;
  stock.GraphiqueCourant = static_cast<int16_t>(std::min<int>(courant, stock.NbGraphiques));
  return true;
}

bool RecupererGraphique(StockGraphiques& stock, const std::string& code, PortMessages& messages) {
  if (stock.NbGraphiques >= kNombreSlotsGraphiques) {
    SignalerLimite(messages);
    return false;
  }
  ModeleGraphique& slot = stock.Slot(stock.NbGraphiques + 1);
  const std::string corps = "R\xE9" "cup\xE9r\xE9: " + PreparerCodeGraphique(CorpsCodeGraphique(code));
  SignalerLectureCode(messages, slot, LireCodeGraphique(slot, corps));
  ++stock.NbGraphiques;
  stock.GraphiqueCourant = stock.NbGraphiques;
  return true;
}

std::vector<NoeudArbre> RemplirArbreGraphiques(const StockGraphiques& stock) {
  std::vector<NoeudArbre> arbre = {{"Racine", "Graphiques", "RepWinTervol", ""}};
  for (int i = 1; i <= stock.NbGraphiques; ++i) {
    const ModeleGraphique& m = stock.Slot(i);
    const std::string titre = Trim(m.Titre);
    arbre.push_back({"graph" + std::to_string(i), titre.empty() ? "Sans titre" : titre,
                     "graph" + std::to_string(m.TypeGraph), "Racine"});
  }
  if (stock.NbGraphiques == 0) arbre.push_back({"graph0", "Aucun enregistrement", "Vide", "Racine"});
  return arbre;
}

int NumeroGraphiqueDeCle(const std::string& cle) { return cle.size() > 5 ? EntierDe(cle.substr(5)) : 0; }

}  // namespace norvane
