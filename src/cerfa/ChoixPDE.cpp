#include "cerfa/ChoixPDE.h"

#include <cmath>
#include <limits>

#include "frame/Texte.h"
#include "study/Session.h"

namespace norvane {
namespace {

constexpr char kQuestionSociete[] =
    "S'agissant d'une exploitation individuelle, souhaitez-vous quand même afficher les tableaux vides des "
    "Fiches Société en pages 14 et 15 ?";

}  // namespace

const std::array<PagePDE, kPagesPDE>& ListePDE() {
  static const std::array<PagePDE, kPagesPDE> liste = {{
      {"Toutes les pages dans un même document Word", "PDE/PDECerfa.tvm", "PDECerfa"},
      {"1: Le candidat et le projet, MO, Surface, ... ", "PDE/PDE1.tvm", "PDE1"},
      {"2: Charges, produits, marges brutes par activité", "PDE/PDE2.tvm", "PDE2"},
      {"3: Assolement, activités animales, autres activités", "PDE/PDE3.tvm", "PDE3"},
      {"4: Droits à primes, droits à produire et autres aides", "PDE/PDE4.tvm", "PDE4"},
      {"5: Marges brutes unitaires et globales", "PDE/PDE5.tvm", "PDE5"},
      {"6: Comptes de résultat, soldes interm. de gestion", "PDE/PDE6.tvm", "PDE6"},
      {"7: Comptes de résultat, soldes interm. de gestion", "PDE/PDE7.tvm", "PDE7"},
      {"8: Plan de financement de l'exploitation", "PDE/PDE8.tvm", "PDE8"},
      {"9: Tableau des emprunts en cours et prévus - J.A.", "PDE/PDE9.tvm", "PDE9"},
      {"10: Budget de trésorerie courant", "PDE/PDE10.tvm", "PDE10"},
      {"11: Budget de trésorerie exceptionnel", "PDE/PDE11.tvm", "PDE11"},
      {"12: Bilans prévisionnels - situations financières", "PDE/PDE12.tvm", "PDE12"},
      {"13: Calcul du revenu dispo / UTAF-associé expl.", "PDE/PDE13.tvm", "PDE13"},
      {"14: Fiche société : surfaces, capital et résultat", "PDE/PDE14.tvm", "PDE14"},
      {"15: Fiche société : comptes associés", "PDE/PDE15.tvm", "PDE15"},
  }};
  return liste;
}

std::string ModelePDE(int index, bool societe, PortMessages& messages) {
  if (index >= 1 && index < kPagesPDE) return ListePDE()[static_cast<std::size_t>(index)].modele;
  const bool pagesSociete = societe || messages.PoserQuestion("PDE Cerfa", kQuestionSociete, Boutons::OuiNon,
                                                              Icone::Question, 1) == Reponse::Oui;
  return pagesSociete ? "PDE/PDECerfasoc.tvm" : "PDE/PDECerfa.tvm";
}

int16_t NombreAnneesPDE(std::string_view texte) {
  const double valeur = std::round(NombreDe(Trim(texte)));
  if (!std::isfinite(valeur) || valeur == 0 || std::fabs(valeur) > std::numeric_limits<int16_t>::max()) {
    return kAnneesPDEParDefaut;
  }
  return static_cast<int16_t>(valeur);
}

bool DossierLiePDE(const Session& session, PortMessages& messages) {
  if (!Trim(session.RepDossier[0]).empty() && !Trim(session.NomDossier[0]).empty()) return true;
  messages.AfficherMessage("FrmCreerDoc", "Aucun dossier d'étude Tervol n'est lié !",
                           "Vous devez d'abord sélectionner un dossier !", "Traitement en cours annulé.", "");
  return false;
}

}  // namespace norvane
