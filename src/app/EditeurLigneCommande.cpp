#include "app/EditeurLigneCommande.h"

#include <filesystem>
#include <iostream>

#include "drivers/EditeurGenerateur.h"
#include "drivers/PiloteOpenOffice.h"
#include "frame/Editeur.h"
#include "frame/Encodage.h"
#include "frame/RechercheEditeur.h"
#include "frame/Texte.h"
#ifdef NORVANE_AVEC_LIBREOFFICE
#include "drivers/libreoffice/BureauLibreOffice.h"
#endif

namespace norvane {

// Two sets of drivers over two offices, each made at its first use.
struct EditeurLigneCommande::Etat {
  Etat(const Options& o, PortMessages& m) : options(o), messages(m), visibles(o, m) {
    prive.pilote = [this](int code) { return code == kEditeurOpenOffice ? PiloteCache() : nullptr; };
    visibles.Brancher(kEditeurOpenOffice, PiloteVisible());
  }

  const Options& options;
  PortMessages& messages;
  ContexteSauvegarde prive{messages, options, "", nullptr, nullptr};
  ContexteSauvegarde utilisateur{messages, options, "", nullptr, nullptr};
  Pilotes visibles;
  EditeurGenerateur generateur{messages, visibles, prive};
#ifdef NORVANE_AVEC_LIBREOFFICE
  std::unique_ptr<BureauLibreOffice> bureauPrive, bureauUtilisateur;
  std::unique_ptr<PiloteOpenOffice> piloteCache, piloteVisible;

  Pilote* PiloteCache() {
    if (!piloteCache) {
      const std::string programme = ProgrammeLibreOffice(options.CheminEditeur);
      if (programme.empty()) return nullptr;
      bureauPrive = std::make_unique<BureauLibreOffice>(SorteBureau::Prive, programme);
      piloteCache = std::make_unique<PiloteOpenOffice>(*bureauPrive, prive);
    }
    return piloteCache.get();
  }
  // The user's office is only reached when a document is shown; the driver
  // exists from the start so that the dispatch finds it.
  Pilote* PiloteVisible() {
    if (!piloteVisible) {
      bureauUtilisateur =
          std::make_unique<BureauLibreOffice>(SorteBureau::Utilisateur, ProgrammeLibreOffice(options.CheminEditeur));
      piloteVisible = std::make_unique<PiloteOpenOffice>(*bureauUtilisateur, utilisateur);
    }
    return piloteVisible.get();
  }
#else
  Pilote* PiloteCache() { return nullptr; }
  Pilote* PiloteVisible() { return nullptr; }
#endif
};

EditeurLigneCommande::EditeurLigneCommande(const Options& options, PortMessages& messages)
    : etat_(std::make_unique<Etat>(options, messages)) {}

EditeurLigneCommande::~EditeurLigneCommande() = default;

void EditeurLigneCommande::OuvrirDocument(int editeur, const std::string& chemin) {
  etat_->generateur.OuvrirDocument(editeur, chemin);
}

bool EditeurLigneCommande::SauvegarderSous(bool fermer, int editeur, const std::string& source,
                                           const std::string& chemin) {
  return etat_->generateur.SauvegarderSous(fermer, editeur, source, chemin);
}

bool EditeurLigneCommande::Convertir(const std::string& source, const std::string& cible) {
  if (etat_->PiloteCache() == nullptr) {
    SignalerAucunEditeur(etat_->messages, kConseilCreerDoc);
    return false;
  }
  return norvane::Convertir(etat_->prive, kEditeurOpenOffice, source, cible);
}

bool EditeurLigneCommande::Ouvrir(const std::string& chemin) {
  Pilote* pilote = etat_->visibles.Servir(Demande::OuvertureListe);
  return pilote != nullptr && OuvrirPourUtilisateur(etat_->messages, *pilote, chemin);
}

bool LierEditeurSiAucun(Application& application) {
  Options& options = application.session.options;
  if (!EstBlanc(options.CheminEditeur)) return true;
  const std::string trouve = ChercherEditeur(std::vector<std::string>{"soffice", "libreoffice"}, application.progression,
                                             application.messages, DossiersDepartRecherche());
  application.progression.Terminer();
  if (trouve.empty()) return false;
  ValiderEditeur(application.session, Utf8VersCp1252(trouve), application.messages);
  return !EstBlanc(options.CheminEditeur);
}

void LierEditeurPour(Application& application, const std::string& resultat, bool ouvrir) {
  if (!FinitPar(resultat, ".rtf", true) || ouvrir || application.session.options.OptimisationOOo == 1) {
    LierEditeurSiAucun(application);
  }
}

bool GarderRtfSousSonNom(const std::string& resultat) {
  if (FinitPar(resultat, ".rtf", true) || !ContientRtf(resultat)) return true;
  const std::string jumeau = std::filesystem::path(resultat).replace_extension(".rtf").string();
  std::error_code ec;
  std::filesystem::rename(resultat, jumeau, ec);
  std::cerr << "Norvane : le document n'a pas pu être converti ; le résultat RTF est gardé sous « "
            << (ec ? resultat : jumeau) << " ».\n";
  return false;
}

}  // namespace norvane
