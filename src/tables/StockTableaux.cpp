#include "tables/StockTableaux.h"

#include <optional>

#include "frame/Encodage.h"
#include "frame/EcritureAtomique.h"
#include "frame/OutilsFichiers.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "tables/CodeTableau.h"
#include "tables/Crochets.h"

namespace norvane {

namespace {

constexpr std::string_view kDebutCode = "#tvl(";
constexpr std::string_view kFinCode = ")#";

// Lines of a text, CR LF or LF, each without its end.
class LecteurLignes {
 public:
  explicit LecteurLignes(std::string_view texte) : reste_(texte) {}
  int Numero() const { return numero_; }
  // Offset in the text of the last line given.
  std::size_t Debut() const { return debut_; }
  std::optional<std::string_view> Suivante() {
    if (reste_.empty()) return std::nullopt;
    debut_ = lu_;
    const std::size_t fin = reste_.find('\n');
    std::string_view ligne = reste_.substr(0, fin);
    const std::size_t consomme = fin == std::string_view::npos ? reste_.size() : fin + 1;
    reste_.remove_prefix(consomme);
    lu_ += consomme;
    if (ligne.ends_with('\r')) ligne.remove_suffix(1);
    ++numero_;
    return ligne;
  }

 private:
  std::string_view reste_;
  int numero_ = 0;
  std::size_t debut_ = 0;
  std::size_t lu_ = 0;
};

// Name, folder and sub-folder of the first line of a model.
void LireEnteteStock(std::string_view ligne, ModeleTableau& modele) {
  modele.Nom = std::string(ExtraireCrochets(ligne));
  const std::string_view dossier = ExtraireCrochets(ligne);
  modele.DossierTableau = EstBlanc(dossier) ? std::string(kDossierParDefaut) : std::string(dossier);
  const std::string_view sousDossier = ExtraireCrochets(ligne);
  modele.SousDossierTableau = sousDossier == kErreurCrochets ? std::string() : std::string(sousDossier);
}

// A stop at `position` in the last line given, while reading model `modele`.
ErreurLecture Arret(const LecteurLignes& lignes, std::size_t position, std::size_t modele, std::string raison) {
  ErreurLecture erreur;
  erreur.texte = std::move(raison);
  erreur.enregistrement = modele;
  erreur.octet = lignes.Debut() + position;
  erreur.ligne = static_cast<uint64_t>(lignes.Numero());
  return erreur;
}

}  // namespace

Resultat<void> LireStockTableaux(std::string_view octets, bool avecLignes, StockTableaux& stock) {
  stock.modeles.clear();
  LecteurLignes lignes(octets);
  while (const std::optional<std::string_view> entete = lignes.Suivante()) {
    if (!entete->starts_with('[')) continue;
    ModeleTableau& modele = stock.modeles.emplace_back();
    LireEnteteStock(*entete, modele);
    const std::optional<std::string_view> code = lignes.Suivante();
    if (!code || !code->starts_with(kDebutCode) || !code->ends_with(kFinCode) ||
        code->size() < kDebutCode.size() + kFinCode.size()) {
      return Arret(lignes, 0, stock.modeles.size(), "la ligne qui suit le nom d'un tableau n'est pas un code #tvl(...)#");
    }
    const std::string_view corps = code->substr(kDebutCode.size(), code->size() - kDebutCode.size() - kFinCode.size());
    const Resultat<void> lu = LireCodeTableau(corps, modele, avecLignes);
    if (!lu) {
      return Arret(lignes, kDebutCode.size() + static_cast<std::size_t>(lu.Erreur().octet), stock.modeles.size(),
                   lu.Erreur().texte);
    }
  }
  return {};
}

Resultat<void> ChargerTableaux(const std::string& chemin, bool avecLignes, StockTableaux& stock) {
  const std::optional<std::string> octets = LireFichier(chemin);
  stock.chemin = chemin;
  const Resultat<void> lu = LireStockTableaux(octets.value_or(std::string()), avecLignes, stock);
  if (lu) return lu;
  ErreurLecture erreur = lu.Erreur();
  erreur.fichier = Cp1252VersUtf8(chemin);
  return erreur;
}

std::string TexteModeleStock(const ModeleTableau& modele, int indice, PortMessages* messages,
                             const DefautsCellule& defauts) {
  const std::string corps = messages == nullptr ? EcrireCodeTableau(modele, defauts)
                                                : EcrireCodeTableau(modele, indice, *messages, defauts);
  return "[" + modele.Nom + "][" + modele.DossierTableau + "][" + modele.SousDossierTableau + "]\r\n" +
         std::string(kDebutCode) + corps + std::string(kFinCode) + "\r\n\r\n";
}

bool SauverTableaux(StockTableaux& stock, bool silencieux, PortMessages& messages, const DefautsCellule& defauts) {
  std::string texte;
  for (std::size_t i = 0; i < stock.modeles.size(); ++i) {
    ModeleTableau& modele = stock.modeles[i];
    ReparerFormats(modele, defauts);
    texte += TexteModeleStock(modele, static_cast<int>(i + 1), silencieux ? nullptr : &messages, defauts);
  }
  return EcrireFichierAtomique(stock.chemin, texte);
}

bool AjouterTableauAuFichier(const std::string& chemin, const ModeleTableau& modele, int indice,
                             bool versCopiesAjouts, PortMessages& messages, const DefautsCellule& defauts) {
  ModeleTableau copie = modele;
  if (versCopiesAjouts) copie.DossierTableau = kDossierCopiesAjouts;
  std::string texte = LireFichier(chemin).value_or(std::string());
  if (!texte.empty() && !texte.ends_with('\n')) texte += "\r\n";
  texte += TexteModeleStock(copie, indice, &messages, defauts);
  return EcrireFichierAtomique(chemin, texte);
}

bool SupprimerTableauDuFichier(int indice, const std::string& chemin, PortMessages& messages,
                               const DefautsCellule& defauts) {
  StockTableaux stock;
  ChargerTableaux(chemin, true, stock);
  if (indice < 1 || indice > static_cast<int>(stock.modeles.size())) return false;
  const auto position = stock.modeles.begin() + (indice - 1);
  const std::string nom = Cp1252VersUtf8(position->Nom);
  const std::string dossier = Cp1252VersUtf8(position->DossierTableau);
  const std::string sousDossier = Cp1252VersUtf8(position->SousDossierTableau);
  stock.modeles.erase(position);
  if (!SauverTableaux(stock, false, messages, defauts)) return false;
  std::string texte = "Le modèle de tableau n°" + std::to_string(indice) + " \"" + nom +
                      "\" a été définitivement supprimé du dossier \"" + dossier + "\".";
  if (!sousDossier.empty()) texte += " Sous dossier : \"" + sousDossier + "\".";
  messages.AfficherMessage("GestTableau", "Suppression d'un modèle de tableau", texte, "", "seule");
  return true;
}

std::string ChoisirFichierTableaux(const std::string& repNorvane, int16_t accesTotal, PortMessages& messages) {
  if (accesTotal == -1 && messages.PoserQuestion("Mode accès total", "Gérer les tableaux du PDE Cerfa ?",
                                                 Boutons::OuiNon, Icone::Question, 0) == Reponse::Oui) {
    return JoindreChemin(AjouterAntislash(repNorvane) + "PDE", kNomStockTableaux);
  }
  return JoindreChemin(repNorvane, kNomStockTableaux);
}

}  // namespace norvane
