#include "tables/ArbreTableaux.h"

#include <algorithm>

#include "frame/Encodage.h"
#include "frame/Texte.h"

namespace norvane {

namespace {

constexpr char kImageDossier[] = "Doss";
constexpr char kImageSousDossier[] = "ssDoss";

// The node of that image (any case) and trimmed text, below `cleParent`
// when it is not empty.
const NoeudArbre* ChercherDossier(const ArbreTableaux& arbre, std::string_view image, std::string_view texte,
                                  std::string_view cleParent) {
  for (const NoeudArbre& noeud : arbre.Noeuds()) {
    if (EgalSansCasse(noeud.image, image) && Trim(noeud.texte) == texte &&
        (cleParent.empty() || noeud.cleParent == cleParent)) {
      return &noeud;
    }
  }
  return nullptr;
}

std::string NoeudDossier(ArbreTableaux& arbre, const std::string& dossier) {
  if (const NoeudArbre* noeud = ChercherDossier(arbre, kImageDossier, dossier, kCleRacine)) return noeud->cle;
  std::string cle = dossier + "#Doss";
  arbre.Ajouter(cle, dossier, kImageDossier, kCleRacine);
  return cle;
}

std::string NoeudSousDossier(ArbreTableaux& arbre, const std::string& sousDossier, const std::string& cleDossier) {
  if (const NoeudArbre* noeud = ChercherDossier(arbre, kImageSousDossier, sousDossier, cleDossier)) {
    return noeud->cle;
  }
  std::string cle = sousDossier + "#ssDoss#" + cleDossier;
  arbre.Ajouter(cle, sousDossier, kImageSousDossier, cleDossier);
  return cle;
}

}  // namespace

void ArbreTableaux::Vider() {
  noeuds_.clear();
  selection_.clear();
  deployes_.clear();
}

void ArbreTableaux::Ajouter(std::string cle, std::string texte, std::string image, std::string cleParent) {
  noeuds_.push_back(NoeudArbre{std::move(cle), std::move(texte), std::move(image), std::move(cleParent)});
}

const NoeudArbre* ArbreTableaux::Trouver(std::string_view cle) const {
  const auto trouve = std::find_if(noeuds_.begin(), noeuds_.end(), [&](const NoeudArbre& n) { return n.cle == cle; });
  return trouve == noeuds_.end() ? nullptr : &*trouve;
}

std::vector<const NoeudArbre*> ArbreTableaux::Enfants(std::string_view cleParent) const {
  std::vector<const NoeudArbre*> enfants;
  for (const NoeudArbre& noeud : noeuds_) {
    if (noeud.cleParent == cleParent) enfants.push_back(&noeud);
  }
  return enfants;
}

int ArbreTableaux::Profondeur(const NoeudArbre& noeud) const {
  int profondeur = 0;
  const NoeudArbre* parent = Trouver(noeud.cleParent);
  while (parent != nullptr && profondeur < static_cast<int>(noeuds_.size())) {
    ++profondeur;
    parent = Trouver(parent->cleParent);
  }
  return profondeur;
}

void ArbreTableaux::Selectionner(std::string_view cle) {
  selection_ = Trouver(cle) != nullptr ? std::string(cle) : std::string();
}

const NoeudArbre* ArbreTableaux::Selection() const { return selection_.empty() ? nullptr : Trouver(selection_); }

void ArbreTableaux::Deployer(std::string_view cle) {
  if (!EstDeploye(cle)) deployes_.emplace_back(cle);
}

bool ArbreTableaux::EstDeploye(std::string_view cle) const {
  return std::find(deployes_.begin(), deployes_.end(), cle) != deployes_.end();
}

void ConstruireArbre(ArbreTableaux& arbre, std::vector<ModeleTableau>& modeles) {
  arbre.Vider();
  arbre.Ajouter(kCleRacine, "Tableaux enregistrés", "RepWinTervol", "");
  for (std::size_t i = 0; i < modeles.size(); ++i) {
    ModeleTableau& modele = modeles[i];
    if (modele.Nom.empty()) modele.Nom = kNomNouveauTableau;
    if (EstBlanc(modele.DossierTableau)) modele.DossierTableau = kDossierParDefaut;
    std::string cleParent = NoeudDossier(arbre, Cp1252VersUtf8(Trim(modele.DossierTableau)));
    const std::string sousDossier = Cp1252VersUtf8(Trim(modele.SousDossierTableau));
    if (!sousDossier.empty()) cleParent = NoeudSousDossier(arbre, sousDossier, cleParent);
    arbre.Ajouter(CleModele(static_cast<int>(i + 1)), Cp1252VersUtf8(Trim(modele.Nom)),
                  modele.MultiDossier == 1 ? "tab2" : "tab1", cleParent);
  }
  if (modeles.empty()) arbre.Ajouter(kCleAucunModele, "Aucun enregistrement", "Vide", kCleRacine);
  arbre.Deployer(kCleRacine);
}

void RestaurerSelection(ArbreTableaux& arbre, int indiceModele, std::string_view dossier) {
  if (indiceModele > 0 && arbre.Trouver(CleModele(indiceModele)) != nullptr) {
    arbre.Selectionner(CleModele(indiceModele));
    return;
  }
  if (const NoeudArbre* noeud = ChercherDossier(arbre, kImageDossier, Trim(dossier), kCleRacine)) {
    arbre.Selectionner(noeud->cle);
    return;
  }
  if (arbre.Nombre() > 1) arbre.Selectionner(arbre.Noeuds()[1].cle);
}

std::string CleModele(int indice) { return "tab" + std::to_string(indice); }

int IndiceDeCle(std::string_view cle) {
  if (!cle.starts_with("tab") || cle.size() == 3 || cle.size() > 9) return 0;
  const std::string_view chiffres = cle.substr(3);
  if (!std::all_of(chiffres.begin(), chiffres.end(), [](char c) { return c >= '0' && c <= '9'; })) return 0;
  return static_cast<int>(EntierDe(chiffres));
}

bool EstDossier(const NoeudArbre& noeud) {
  return EgalSansCasse(noeud.image, kImageDossier) || EgalSansCasse(noeud.image, kImageSousDossier);
}

bool EstSousDossier(const NoeudArbre& noeud) { return EgalSansCasse(noeud.image, kImageSousDossier); }

std::string IndicationSelection(const NoeudArbre& noeud) {
  if (EstDossier(noeud)) return "Sélectionnez un tableau dans la liste de gauche";
  if (noeud.cle == kCleAucunModele) return "Cliquez le bouton ' Ajout ' pour créer un tableau";
  return {};
}

}  // namespace norvane
