#include "tables/InvestissementsFinancements.h"

#include <algorithm>
#include <vector>

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "study/TexteEtude.h"
#include "tables/BlocsImmoEmprunts.h"
#include "tables/DefinitionLigne.h"
#include "tables/GenerationTableau.h"
#include "tables/RangeeBloc.h"

namespace norvane {
namespace {

constexpr char kTitreQuestion[] = "Tableau des investissements-financements";

// Right edges of the columns, as the optional grant and deferral columns
// leave them.
struct Bords {
  int32_t objet = 2900, montant = 4050, subvention = 5200, emprunt, taux, duree, differe, financements, autofinancement;

  Bords(bool subventions, bool differes)
      : emprunt(subventions ? 6300 : 5500),
        taux(emprunt + 900),
        duree(taux + 1000),
        differe(duree + 1000),
        financements((subventions ? 8200 : 7400) + (differes ? 1000 : 0)),
        autofinancement(subventions ? 5800 : 6600) {}
};

// "La colonne des ... est vide." asked when nothing fills a column; true
// when the column is to be shown.
bool GarderColonne(PortMessages& messages, bool vide, const char* colonne) {
  if (!vide) return true;
  const std::string texte =
      std::string("La colonne des ") + colonne + " est vide. \nSouhaitez-vous l'afficher quand même ?";
  return messages.PoserQuestion(kTitreQuestion, texte, Boutons::OuiNon, Icone::Question, 0) == Reponse::Oui;
}

std::string Montant(double valeur, int16_t decimales) {
  return valeur == 0 ? std::string() : FormatNombre(static_cast<float>(valeur), decimales, true);
}

struct Totaux {
  double investissements = 0, subventions = 0, emprunts = 0;
};

}  // namespace

double MontantInvestissement(const FichePlan& entree, const std::vector<FicheImmo>& immos) {
  if (entree.Pourcentage >= 100) return entree.MontantPlan;
  double somme = 0;
  for (const FicheImmo& i : immos) {
    if (i.NumEntreePlan == entree.NumEntree) somme += i.Montant;
  }
  return somme;
}

std::string InvestissementsFinancements(ContexteTableau& contexte, const CelluleRtf& format,
                                        const std::string& debut, int16_t decimales) {
  Generation& generation = contexte.generation;
  const std::string dossier = DossierDuSlot(generation.session, 0);
  const std::vector<FicheImmo> immos = ChargerImmos(dossier);
  const std::vector<FicheImmo> subventions = ChargerSubventions(dossier);
  const std::vector<FicheEmprunt> emprunts = ChargerEmprunts(dossier);
  const std::vector<FichePlan> plan = ChargerPlan(dossier, generation.messages);
  const bool avecSubventions = GarderColonne(
      generation.messages,
      std::none_of(subventions.begin(), subventions.end(), [](const FicheImmo& s) { return s.Montant != 0; }),
      "subventions");
  const bool avecDifferes = GarderColonne(
      generation.messages,
      std::none_of(emprunts.begin(), emprunts.end(), [](const FicheEmprunt& e) { return e.DiffereEmprunt != 0; }),
      "différés");
  const Bords b(avecSubventions, avecDifferes);
  const int32_t base = contexte.etat().BaseCouleurs;
  const auto rangee = [&] { return RangeeBloc(format, base, debut); };
  const auto cp = [](const char* utf8) { return Utf8VersCp1252(utf8); };

  std::string rtf;
  {
    RangeeBloc r = rangee();
    r.Cellule(cp("Investissements"), b.montant, "c", std::nullopt, true)
        .Cellule(cp("Financements"), b.financements, "c", std::nullopt, true);
    rtf += r.Fermer();
  }
  const auto colonnesDroite = [&](RangeeBloc& r, const std::string& subvention, const std::string& emprunt,
                                  const std::string& taux, const std::string& duree, const std::string& differe,
                                  bool gras) {
    if (avecSubventions) r.Cellule(subvention, b.subvention, "r", std::nullopt, gras);
    r.Cellule(emprunt, b.emprunt, "r", std::nullopt, gras)
        .Cellule(taux, b.taux, "c", std::nullopt, gras)
        .Cellule(duree, b.duree, "c", std::nullopt, gras);
    if (avecDifferes) r.Cellule(differe, b.differe, "c", std::nullopt, gras);
  };
  {
    RangeeBloc r = rangee();
    r.Cellule(cp("Objet"), b.objet, "c", std::nullopt, true).Cellule(cp("Montant"), b.montant, "c", std::nullopt, true);
    colonnesDroite(r, cp("Subvent°"), cp("Emprunts"), cp("Taux"), cp("Durée"), cp("Différé"), true);
    rtf += r.Fermer();
  }
  Totaux t;
  for (const FichePlan& entree : plan) {
    if (!entree.Utilisee()) continue;
    std::vector<const FicheImmo*> sesSubventions;
    for (const FicheImmo& s : subventions) {
      if (s.NumEntreePlan == entree.NumEntree) sesSubventions.push_back(&s);
    }
    std::vector<const FicheEmprunt*> sesEmprunts;
    for (const FicheEmprunt& e : emprunts) {
      if (static_cast<float>(e.NumEntreePlan) == entree.NumEntree) sesEmprunts.push_back(&e);
    }
    const double montant = MontantInvestissement(entree, immos);
    t.investissements += montant;
    const std::size_t nombre = std::max<std::size_t>({1, sesSubventions.size(), sesEmprunts.size()});
    for (std::size_t i = 0; i < nombre; ++i) {
      RangeeBloc r = rangee();
      r.Cellule(i == 0 ? TexteEtudePourRtf(Trim(entree.ObjetInvestissement)) : std::string(), b.objet, "l")
          .Cellule(i == 0 ? Montant(montant, decimales) : std::string(), b.montant, "r");
      std::string subvention, emprunt, taux, duree, differe;
      if (i < sesSubventions.size()) {
        subvention = Montant(sesSubventions[i]->Montant, decimales);
        t.subventions += sesSubventions[i]->Montant;
      }
      if (i < sesEmprunts.size()) {
        const FicheEmprunt& e = *sesEmprunts[i];
        t.emprunts += e.MontantEmprunt;
        emprunt = Montant(e.MontantEmprunt, decimales);
        taux = e.Taux1 == 0 ? std::string() : FormatNombre(e.Taux1, kDecimalesAuto, false) + " %";
        duree = TexteDuree(e.Duree1 + e.Duree2 + e.Duree3, true, e.Periode);
        differe = Montant(e.DiffereEmprunt, kDecimalesAuto);
      }
      colonnesDroite(r, subvention, emprunt, taux, duree, differe, false);
      rtf += r.Fermer();
    }
  }
  {
    RangeeBloc r = rangee();
    r.Cellule("TOTAL", b.objet, "l", std::nullopt, true)
        .Cellule(Montant(t.investissements, decimales), b.montant, "r", std::nullopt, true);
    colonnesDroite(r, Montant(t.subventions, decimales), Montant(t.emprunts, decimales), "", "", "", true);
    rtf += r.Fermer();
  }
  rtf += "\\par \\plain ";
  const double autofinancement = t.investissements - t.subventions - t.emprunts;
  RangeeBloc r = rangee();
  r.Cellule("Autofinancement : " + FormatNombre(static_cast<float>(autofinancement), decimales, false),
            b.autofinancement, "l", std::nullopt, true);
  return rtf + r.Fermer();
}

}  // namespace norvane
