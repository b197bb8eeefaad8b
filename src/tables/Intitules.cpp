#include "tables/Intitules.h"

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "template/DatesExercice.h"

namespace norvane {
namespace {

std::string DeuxDerniers(int annee) {
  const std::string texte = std::to_string(annee);
  return texte.size() > 2 ? texte.substr(texte.size() - 2) : texte;
}

// The tests on the start date look at its text, not at the date.
bool PremierJanvier(std::string_view d) { return d.substr(0, 2) == "01" && d.size() >= 5 && d.substr(3, 2) == "01"; }
bool TrenteEtUnDecembre(std::string_view d) {
  return d.substr(0, 2) == "31" && d.size() >= 5 && d.substr(3, 2) == "12";
}

std::string Nombre(int n) { return std::to_string(n); }

// Kinds that need the dates of the exercise.
std::string IntituleDate(std::string_view dateDebut, DateCivile debutEtude, int c, char sorte) {
  const DateCivile debut = AjouterAnnees(debutEtude, c - 1);
  DateCivile fin = AjouterAnnees(debutEtude, c);
  if (sorte == '2' || sorte == '3') fin = VeilleDe(fin);
  const bool janvier = PremierJanvier(dateDebut);
  const bool decembre = TrenteEtUnDecembre(dateDebut);
  switch (sorte) {
    case '1':
      return janvier ? Nombre(debut.annee)
                     : (decembre ? DeuxDerniers(fin.annee) : Nombre(debut.annee) + "/" + DeuxDerniers(fin.annee));
    case '2':
      return Nombre(debut.mois) + "-" + Nombre(debut.annee) + "\\par " + Nombre(fin.mois) + "-" + Nombre(fin.annee);
    case '3':
      return MoisClair(debut.mois) + " " + Nombre(debut.annee) + "\\par " + MoisClair(fin.mois) + " " +
             Nombre(fin.annee);
    case '4':
      return janvier ? Nombre(debut.annee)
                     : (decembre ? Nombre(fin.annee) : Nombre(debut.annee) + "-" + Nombre(fin.annee));
    default:  // '6'
      return "situation au\\par " + Nombre(fin.jour) + "/" + Nombre(fin.mois) + "/" + Nombre(fin.annee);
  }
}

}  // namespace

std::optional<std::string> SorteIntitule(std::string_view reste, bool multiDossier, int16_t modeAnnees) {
  if (modeAnnees == 2 && !multiDossier) return std::nullopt;
  const std::size_t deuxPoints = reste.find(':');
  return deuxPoints == std::string_view::npos ? std::string("1") : std::string(reste.substr(0, deuxPoints));
}

bool SorteIntituleAnneeConnue(std::string_view sorte) { return sorte.size() == 1 && sorte[0] >= '1' && sorte[0] <= '7'; }

std::string IntituleAnnee(std::string_view dateDebut, int c, std::string_view sorte, PortMessages& messages) {
  if (!SorteIntituleAnneeConnue(sorte)) {
    messages.AfficherMessage("GestTableau", "Erreur détectée dans le modèle", kIntituleIncorrect, "", "");
    return {};
  }
  if (sorte == "5") return "exercice " + Nombre(c);
  if (sorte == "7") return Nombre(c);
  const auto debutEtude = LireDateCivile(dateDebut);
  if (!debutEtude) return {};
  return IntituleDate(dateDebut, *debutEtude, c, sorte[0]);
}

std::string IntituleDossier(std::string_view nomDossier, int c, std::string_view sorte) {
  if (sorte == "1") {
    const std::size_t tvl = Majuscules(nomDossier).find(".TVL");
    return std::string(nomDossier.substr(0, tvl));
  }
  if (sorte == "2") return Utf8VersCp1252("Hypothèse ") + Nombre(c);
  if (sorte == "3") return "H" + Nombre(c);
  if (sorte == "4") return Utf8VersCp1252("Dossier Tervol n°") + Nombre(c);
  if (sorte == "5") return Utf8VersCp1252("Dossier n°") + Nombre(c);
  if (sorte == "6") return "Dossier " + Nombre(c);
  return {};
}

}  // namespace norvane
