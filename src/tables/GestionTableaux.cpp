#include "tables/GestionTableaux.h"

#include "frame/Encodage.h"
#include "frame/Texte.h"

namespace norvane {

namespace {

constexpr char kAppelant[] = "GestTableau";

bool Confirmer(PortMessages& messages, const std::string& titre, const std::string& texte) {
  return messages.PoserQuestion(titre, texte, Boutons::OuiNon, Icone::Question, 0) == Reponse::Oui;
}

std::string DossierUtf8(const std::string& dossierCp1252) { return Cp1252VersUtf8(Trim(dossierCp1252)); }

bool SupprimerDossier(StockTableaux& stock, const std::string& nom, PortMessages& messages) {
  if (nom == kDossierParDefaut) {
    messages.AfficherMessage(kAppelant, "Suppression interdite",
                             "' Divers ' est le dossier par défaut. Vous ne pouvez le supprimer !", "", "");
    return false;
  }
  const std::string texte = "Les tableaux contenus dans le dossier ' " + nom + " '\nseront placés " +
                            "dans le dossier par défaut : ' Divers '.\nSupprimer le dossier ' " + nom + " ' ?";
  if (!Confirmer(messages, "Confirmation de suppression d'un dossier", texte)) return false;
  for (ModeleTableau& modele : stock.modeles) {
    if (DossierUtf8(modele.DossierTableau) == nom) modele.DossierTableau = kDossierParDefaut;
  }
  return true;
}

bool SupprimerSousDossier(StockTableaux& stock, const std::string& nom, const std::string& parent,
                          PortMessages& messages) {
  const std::string texte = "Les tableaux contenus dans le sous-dossier ' " + nom + " '\nseront placés " +
                            "directement dans le dossier : ' " + parent + " '.\nSupprimer le sous-dossier ' " +
                            nom + " ' ?";
  if (!Confirmer(messages, "Confirmation de suppression d'un sous-dossier", texte)) return false;
  for (ModeleTableau& modele : stock.modeles) {
    if (DossierUtf8(modele.DossierTableau) == parent && DossierUtf8(modele.SousDossierTableau) == nom) {
      modele.SousDossierTableau.clear();
    }
  }
  return true;
}

bool SupprimerModele(StockTableaux& stock, int indice, PortMessages& messages) {
  if (indice < 1 || indice > static_cast<int>(stock.modeles.size())) return false;
  const auto position = stock.modeles.begin() + (indice - 1);
  const std::string texte = "Supprimer le tableau ' " + Cp1252VersUtf8(Trim(position->Nom)) + " ' ?";
  if (!Confirmer(messages, "Confirmation de suppression", texte)) return false;
  stock.modeles.erase(position);
  return true;
}

// Rebuilds and selects the current model's node again.
void Reconstruire(StockTableaux& stock, ArbreTableaux& arbre) {
  ConstruireArbre(arbre, stock.modeles);
  arbre.Selectionner(CleModele(stock.courant));
}

ModeleTableau* ModeleCourant(StockTableaux& stock) {
  if (stock.courant < 1 || stock.courant > static_cast<int>(stock.modeles.size())) return nullptr;
  return &stock.modeles[static_cast<std::size_t>(stock.courant - 1)];
}

}  // namespace

int CreerModele(StockTableaux& stock, ArbreTableaux& arbre, const DefautsCellule& defauts) {
  stock.modeles.push_back(NouveauModele(defauts));
  stock.courant = static_cast<int>(stock.modeles.size());
  Reconstruire(stock, arbre);
  return stock.courant;
}

bool SupprimerSelection(StockTableaux& stock, ArbreTableaux& arbre, PortMessages& messages) {
  const NoeudArbre* noeud = arbre.Selection();
  if (noeud == nullptr || noeud->cle == kCleRacine) return false;
  bool change = false;
  if (noeud->cle == kCleAucunModele) {
    messages.AfficherMessage(kAppelant, "Suppression impossible", "Aucun tableau à supprimer !", "", "");
  } else if (EstSousDossier(*noeud)) {
    const NoeudArbre* parent = arbre.Trouver(noeud->cleParent);
    change = SupprimerSousDossier(stock, Trim(noeud->texte), parent != nullptr ? Trim(parent->texte) : "", messages);
  } else if (EstDossier(*noeud)) {
    change = SupprimerDossier(stock, Trim(noeud->texte), messages);
  } else {
    change = SupprimerModele(stock, IndiceDeCle(noeud->cle), messages);
  }
  if (!change) return false;
  ConstruireArbre(arbre, stock.modeles);
  if (arbre.Nombre() > 1) arbre.Selectionner(arbre.Noeuds()[1].cle);
  stock.courant = 0;
  return true;
}

void ChangerDossier(StockTableaux& stock, ArbreTableaux& arbre, std::string_view dossierUtf8) {
  ModeleTableau* modele = ModeleCourant(stock);
  if (modele == nullptr) return;
  modele->DossierTableau = Utf8VersCp1252(Trim(dossierUtf8));
  Reconstruire(stock, arbre);
}

void ChangerSousDossier(StockTableaux& stock, ArbreTableaux& arbre, std::string_view sousDossierUtf8) {
  ModeleTableau* modele = ModeleCourant(stock);
  if (modele == nullptr) return;
  modele->SousDossierTableau = Utf8VersCp1252(Trim(sousDossierUtf8));
  Reconstruire(stock, arbre);
}

void RenommerModele(StockTableaux& stock, ArbreTableaux& arbre, std::string_view nomUtf8) {
  ModeleTableau* modele = ModeleCourant(stock);
  if (modele == nullptr) return;
  modele->Nom = Utf8VersCp1252(Trim(nomUtf8));
  Reconstruire(stock, arbre);
}

}  // namespace norvane
