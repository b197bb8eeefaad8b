#include "template/Passes.h"

#include <algorithm>
#include <fstream>

#include "frame/Encodage.h"
#include "frame/GardeEcriture.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"

namespace norvane {

bool PassageProprietes::Passer(MorceauCourant& morceau, Sortie& sortie) {
  const std::size_t titre = morceau.Trouver(titre_);
  if (titre == std::string::npos) return false;
  std::size_t fin = morceau.TrouverDepuis(auteur_, titre);
  std::size_t longueur = 7;
  if (fin == std::string::npos) {
    fin = morceau.Trouver(societe_);
    longueur = 8;
  }
  if (fin == std::string::npos) {
    sortie.Ecrire(morceau.Reste(), true);
    return true;
  }
  const std::size_t apres = fin + longueur;
  sortie.Ecrire(std::string_view(morceau.Texte()).substr(morceau.Debut(), apres - morceau.Debut()), false);
  morceau.Avancer(apres);
  return false;
}

SuiviProgression::SuiviProgression(PortProgression& port, int32_t nbCodes, const std::string& cible)
    : port_(port), nbCodes_(nbCodes) {
  if (nbCodes_ <= 0) return;
  port_.DefinirTexte(CheminAbrege(cible));
  port_.DefinirPourcentage(0);
}

void SuiviProgression::CodeTraite() {
  ++nbTraites_;
  if (nbCodes_ <= 0) return;
  const int64_t pourcent = std::min<int64_t>(int64_t{nbTraites_} * 100 / nbCodes_, 100);
  port_.DefinirPourcentage(static_cast<int>(pourcent));
}

void SuiviProgression::Terminer(const std::string& texte) {
  if (nbCodes_ <= 0) return;
  port_.DefinirPourcentage(100);
  port_.DefinirTexte(texte);
  port_.Terminer();
}

std::string ParcoursMorceaux::Executer() {
  std::size_t i = 0;
  if (origines_ != nullptr) origines_->Charger(0);
  morceau_.Charger(std::move(morceaux_[0]));
  for (;;) {
    const Suite suite = Tour(i);
    if (suite == Suite::Fin) break;
    if (suite == Suite::MemePiece) continue;
    if (++i >= morceaux_.size()) break;
    if (suite == Suite::Coller) {
      if (origines_ != nullptr) origines_->Coller(morceau_.Texte().size(), debutsPieces_[i]);
      morceau_.Coller(morceaux_[i]);
    } else {
      if (origines_ != nullptr) origines_->Charger(debutsPieces_[i]);
      morceau_.Charger(std::move(morceaux_[i]));
    }
    std::string().swap(morceaux_[i]);
  }
  return std::move(sortie_.texte);
}

void ParcoursMorceaux::SuivreOrigines(OriginesMorceau& origines) {
  origines_ = &origines;
  morceau_.Suivre(origines);
  debutsPieces_.clear();
  std::size_t debut = 0;
  for (const std::string& morceau : morceaux_) {
    debutsPieces_.push_back(debut);
    debut += morceau.size();
  }
}

void ParcoursMorceaux::EcrireJusqua(std::size_t position) {
  sortie_.Ecrire(std::string_view(morceau_.Texte()).substr(morceau_.Debut(), position - morceau_.Debut()), false);
  morceau_.Avancer(position);
}

std::optional<std::string> LireDocument(Generation& g, const std::string& chemin, const std::string& quoi,
                                        const std::string& conseil) {
  auto contenu = LireFichier(chemin);
  if (!contenu) {
    g.messages.AfficherMessage("CreationDoc", kTitreErreurDetectee,
                               quoi + " \"" + chemin + "\" est introuvable ou illisible.", conseil, "");
  }
  return contenu;
}

bool EcritureRefusee(Generation& g, const std::string& modele, const std::string& resultat) {
  DemandeEcriture demande;
  if (!modele.empty()) demande.lus.push_back(modele);
  for (std::size_t n = 0; n < g.session.NomDossier.size(); ++n) {
    if (EstBlanc(g.session.NomDossier[n])) continue;
    demande.dossiers.push_back(JoindreChemin(g.session.RepDossier[n], g.session.NomDossier[n]));
  }
  std::vector<std::string> cibles{resultat};
  const std::string souche = resultat.size() >= 3 ? resultat.substr(0, resultat.size() - 3) : std::string();
  if (FinitPar(resultat, ".doc", true)) cibles.push_back(souche + "rtf");  // removed once the .doc is made
  if (g.session.options.OptimisationOOo == 1 && !souche.empty()) cibles.push_back(souche + "doc");
  for (const std::string& cible : cibles) {
    demande.cible = cible;
    if (auto refus = RefusEcriture(demande)) {
      g.messages.AfficherMessage("CreationDoc", kTitreErreurDetectee, *refus, kConseilRefusEcriture, "");
      return true;
    }
  }
  return false;
}

bool EcrireDocument(Generation& g, const std::string& chemin, const std::string& texte) {
  std::ofstream fichier(CheminReel(chemin), std::ios::binary | std::ios::trunc);
  fichier.write(texte.data(), static_cast<std::streamsize>(texte.size()));
  fichier.close();
  if (fichier) return true;
  g.messages.AfficherMessage("CreationDoc", kTitreErreurDetectee,
                             "Le document résultat \"" + chemin + "\" ne peut pas être écrit.",
                             "Vérifiez que son répertoire existe, que vous pouvez y écrire et que le document n'est "
                             "pas ouvert en lecture seule.",
                             "");
  return false;
}

std::string CheminAbrege(const std::string& chemin) {
  if (chemin.size() < 33) return chemin;
  return chemin.substr(0, 3) + "..." + chemin.substr(chemin.size() - 30);
}

}  // namespace norvane
