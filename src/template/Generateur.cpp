#include "template/Generateur.h"

#include <utility>

#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"
#include "study/DossierGeneral.h"
#include "template/Editeurs.h"
#include "template/MiseAJour.h"
#include "template/ParcoursCreation.h"

namespace norvane {
namespace {

void PreparerGeneration(Generation& g) {
  ChargerInfoDossier(g.session);
  if (g.AnneesCerfa) g.session.InfoDossier.NbAnEtude = *g.AnneesCerfa > 0 ? *g.AnneesCerfa : 5;
  g.etat = EtatGeneration{};
  if (Trim(g.session.RepDossier[1]).empty()) g.session.RepDossier[1] = g.session.RepDossier[0];
  if (Trim(g.session.NomDossier[1]).empty()) g.session.NomDossier[1] = g.session.NomDossier[0];
}

bool RemplacementRefuse(Generation& g, const std::string& resultat) {
  if (FichierExiste(resultat) == 0) return false;
  const Reponse r = g.messages.PoserQuestion("Norvane", "Le document demandé existe déjà !\nVoulez-vous le remplacer ?",
                                             Boutons::OuiNon, Icone::Exclamation, 1);
  return r != Reponse::Oui;
}

// Steps after the writing: conversion, opening, and the removal of the RTF
// twin of a .doc result. A result that is not RTF is converted before it is
// opened, so that the user never sees RTF under another format's name.
void Finir(Generation& g, std::string resultat, bool sansOuvrir) {
  if (g.session.options.OptimisationOOo == 1 && g.editeur && resultat.size() >= 3) {
    // The OpenOffice driver loads the result itself to save it as .doc; it
    // stays open when OpenOffice is the bound editor.
    const std::string doc = resultat.substr(0, resultat.size() - 3) + "doc";
    const bool ouvertDansEditeur = IndexEditeur(g.session.options) == kEditeurOpenOffice;
    if (g.editeur->SauvegarderSous(!ouvertDansEditeur, kEditeurOpenOffice, resultat, doc) && ouvertDansEditeur) {
      sansOuvrir = true;
    }
    resultat = doc;
  }
  if (!FinitPar(resultat, ".RTF", true)) SauvegarderParEditeur(g, resultat, resultat, kConseilCreerDoc);
  if (!sansOuvrir) OuvrirDocument(g, resultat);
  if (FinitPar(resultat, ".doc", true)) SupprimeFichier(resultat.substr(0, resultat.size() - 3) + "rtf");
}

}  // namespace

ResultatDocument CreerDocument(Generation& g, const std::string& modele, const std::string& resultat,
                               const OptionsCreation& options) {
  const auto [miseAJour, sansOuvrir, demanderRemplacement] = options;
  ResultatDocument r;
  PreparerGeneration(g);
  // The files this generation read are let go when it ends, whichever way it ends.
  struct FinLectures {
    Generation& generation;
    ~FinLectures() { generation.etat.Fichiers = CacheEtude(); }
  } finLectures{g};
  if (!Trim(modele).empty() && EcritureRefusee(g, miseAJour ? std::string() : modele, resultat)) return r;
  if (Trim(modele).empty() || (!miseAJour && demanderRemplacement && RemplacementRefuse(g, resultat))) {
    r.abandonne = true;
    return r;
  }
  if (miseAJour) return MettreAJourDocument(g, modele, resultat, sansOuvrir);
  auto contenu =
      LireDocument(g, modele, "Le modèle de document", "Vérifiez le chemin du modèle choisi pour la création.");
  if (!contenu) return r;
  ModeleDecoupe decoupe = DecouperEnMorceaux(*contenu);
  contenu.reset();
  r.nbCodes = decoupe.nbCodes;
  ParcoursCreation creation(g, std::move(decoupe), resultat);
  const std::string texte = creation.Executer();
  r.ecrit = EcrireDocument(g, resultat, texte);
  creation.Progression().Terminer("            Création terminée !");
  if (r.ecrit) Finir(g, resultat, sansOuvrir);
  return r;
}

}  // namespace norvane
