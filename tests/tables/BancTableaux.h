// A generation ready for table codes: scripted ports, a study of three years
// from 01/05/2007 whose dossier ESSAI.TVL is built in a temporary folder, and
// the tables of one document. The template's colour table is taken to hold
// two colours, so the program's colour n is written n + 2.
//
// RES.DON of ESSAI.TVL, columns 0 (year before the study) to 5:
//   1 "Produit"   7  100  -3    0   40   50
//   2 "Nul"       0    0   0    0    0    0
//   3 "Charges"   0   10  20   30   60   70
#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "construction/FichiersEtude.h"
#include "frame/Encodage.h"
#include "support/DossierTemporaire.h"
#include "support/PortsScriptes.h"
#include "tables/GenerationTableau.h"
#include "tables/MultiDossier.h"
#include "tables/TableauxDocument.h"
#include "template/Generation.h"

namespace norvane::test {

inline std::string Cp(const std::string& utf8) { return Utf8VersCp1252(utf8); }

inline std::vector<SerieDonnees> SeriesEssai() {
  using construction::Serie;
  return {Serie("RES-1:0", "Produit|EUR", {7, 100, -3, 0, 40, 50}), Serie("RES-2:0", "Nul|EUR", {}),
          Serie("RES-3:0", "Charges|EUR", {0, 10, 20, 30, 60, 70})};
}

// The command line's choice of compared dossiers (the session's slots),
// with each question counted.
class ChoixCompte : public PortChoixDossiers {
 public:
  explicit ChoixCompte(const Session& session) : slots_(session) {}
  std::optional<std::vector<DossierCompare>> ChoisirDossiers(const std::string& titre, const std::string& entete,
                                                             int nombre) override {
    demandes.push_back(nombre);
    titres.push_back(titre + " / " + entete);
    return slots_.ChoisirDossiers(titre, entete, nombre);
  }
  std::vector<int> demandes;
  std::vector<std::string> titres;

 private:
  ChoixDossiersParSlots slots_;
};

class BancTableaux : public ::testing::Test {
 protected:
  BancTableaux() : generation(session, messages, progression, entites), choix(session), tableaux(choix) {
    construction::EcrireSeries(temporaire / "ESSAI.TVL/RES.DON", SeriesEssai());
    session.RepDossier[0] = temporaire.Chemin();
    session.NomDossier[0] = "ESSAI.TVL";
    session.InfoDossier.NbAnEtude = 3;
    session.InfoDossier.DateDebut = "01/05/2007";
    generation.etat.ProchaineCouleur = 2;
    generation.tableaux = &tableaux;
  }

  std::string Generer(const std::string& code) { return GenererTableau(generation, tableaux, code); }

  DossierTemporaire temporaire;
  Session session;
  MessagesScriptes messages;
  ProgressionScriptee progression;
  EntitesCourantes entites;
  Generation generation;
  ChoixCompte choix;
  TableauxDocument tableaux;
};

}  // namespace norvane::test
