// The financing plan as the Cerfa tables read it: each used entry of
// PlanF.fin with its label split from its code of good, its amount, its
// exercise, and the loans and grants that finance it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "frame/Ports.h"
#include "tables/ImmoEmprunts.h"

namespace norvane {

struct EntreeCerfa {
  std::string libelle;   // RTF-safe
  std::string codeBien;  // four characters, empty when the label has none
  int exercice = 0;      // 1 onwards; 0 when no asset of the entry is dated
  double montant = 0;
  std::vector<const FicheEmprunt*> emprunts;
  std::vector<const FicheImmo*> subventions;
};

// The four files of the plan, loaded once per table.
struct DossierPlan {
  std::vector<FicheImmo> immos;
  std::vector<FicheImmo> subventions;
  std::vector<FicheEmprunt> emprunts;
  std::vector<FichePlan> plan;
};
DossierPlan ChargerDossierPlan(const std::string& dossier, PortMessages& messages);

// "Hangar [B123] neuf" reads "Hangar " and "B123": the code is the four
// characters behind the "[" when a "]" follows it.
struct LibelleCode {
  std::string libelle;
  std::string code;
};
LibelleCode SeparerCodeBien(std::string_view objet);

// The exercise (1 onwards) of a "JJ/MM/AAAA" date in a study starting on
// `debutEtude`; 0 when either is no date or the date is before the study.
int ExerciceDeDate(std::string_view date, std::string_view debutEtude);

// The used entries of the plan, in file order.
std::vector<EntreeCerfa> EntreesCerfa(const DossierPlan& dossier, std::string_view debutEtude);

}  // namespace norvane
