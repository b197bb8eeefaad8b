#include "cerfa/PlanCerfa.h"

#include <algorithm>
#include <cctype>

#include "frame/Texte.h"
#include "study/TexteEtude.h"
#include "tables/InvestissementsFinancements.h"

namespace norvane {
namespace {

constexpr std::size_t kLongueurCode = 4;

struct Date {
  int jour = 0, mois = 0, annee = 0;
};

bool LireDate(std::string_view texte, Date& date) {
  if (texte.size() < 10 || texte[2] != '/' || texte[5] != '/') return false;
  const auto chiffres = [&](std::size_t debut, std::size_t n, int& valeur) {
    valeur = 0;
    for (std::size_t i = debut; i < debut + n; ++i) {
      if (!std::isdigit(static_cast<unsigned char>(texte[i]))) return false;
      valeur = valeur * 10 + (texte[i] - '0');
    }
    return true;
  };
  return chiffres(0, 2, date.jour) && chiffres(3, 2, date.mois) && chiffres(6, 4, date.annee);
}

}  // namespace

DossierPlan ChargerDossierPlan(const std::string& dossier, PortMessages& messages) {
  return DossierPlan{ChargerImmos(dossier), ChargerSubventions(dossier), ChargerEmprunts(dossier),
                     ChargerPlan(dossier, messages)};
}

LibelleCode SeparerCodeBien(std::string_view objet) {
  const std::size_t ouvrant = objet.find('[');
  if (ouvrant == std::string_view::npos || objet.find(']', ouvrant) == std::string_view::npos) {
    return {std::string(objet), {}};
  }
  return {std::string(objet.substr(0, ouvrant)), std::string(objet.substr(ouvrant + 1, kLongueurCode))};
}

int ExerciceDeDate(std::string_view date, std::string_view debutEtude) {
  Date d, debut;
  if (!LireDate(date, d) || !LireDate(debutEtude, debut)) return 0;
  const int mois = (d.annee - debut.annee) * 12 + (d.mois - debut.mois) - (d.jour < debut.jour ? 1 : 0);
  return mois < 0 ? 0 : mois / 12 + 1;
}

std::vector<EntreeCerfa> EntreesCerfa(const DossierPlan& dossier, std::string_view debutEtude) {
  std::vector<EntreeCerfa> entrees;
  for (const FichePlan& fiche : dossier.plan) {
    if (!fiche.Utilisee()) continue;
    const LibelleCode lu = SeparerCodeBien(fiche.ObjetInvestissement);
    EntreeCerfa e{TexteEtudePourRtf(Trim(lu.libelle)), TexteEtudePourRtf(Trim(lu.code)), 0,
                  MontantInvestissement(fiche, dossier.immos), {}, {}};
    // The exercise of an entry is that of its first dated asset.
    for (const FicheImmo& immo : dossier.immos) {
      if (immo.NumEntreePlan != fiche.NumEntree || e.exercice != 0) continue;
      e.exercice = ExerciceDeDate(immo.DateRealisation, debutEtude);
    }
    for (const FicheEmprunt& emprunt : dossier.emprunts) {
      if (static_cast<float>(emprunt.NumEntreePlan) == fiche.NumEntree) e.emprunts.push_back(&emprunt);
    }
    for (const FicheImmo& subvention : dossier.subventions) {
      if (subvention.NumEntreePlan == fiche.NumEntree) e.subventions.push_back(&subvention);
    }
    entrees.push_back(std::move(e));
  }
  return entrees;
}

}  // namespace norvane
