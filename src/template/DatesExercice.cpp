// Dates of the study's exercises (date0..9, an2/an4, mois2/moisC), the
// months in clear and the age of the farmer.
//
// Exercise d: Debut(d) = DateDebut + (d - 1) years, Fin(d) = DateDebut +
// d years - 1 day. an2Fin/an4Fin take the year of DateDebut + d years
// without the day's subtraction, so a study starting on 1 January reads its
// end year one too high: the old documents were made so.
#include "template/DatesExercice.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <ctime>
#include <string_view>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "template/Interpreteur.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

bool Bissextile(int annee) { return (annee % 4 == 0 && annee % 100 != 0) || annee % 400 == 0; }

int JoursDuMois(int mois, int annee) {
  constexpr std::array<int, 12> jours = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  return mois == 2 && Bissextile(annee) ? 29 : jours[static_cast<std::size_t>(mois - 1)];
}

// A field of one to `largeur` digits.
std::optional<int> Nombre(std::string_view texte, std::size_t largeur) {
  if (texte.empty() || texte.size() > largeur) return std::nullopt;
  int valeur = 0;
  auto [fin, erreur] = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
  if (erreur != std::errc() || fin != texte.data() + texte.size()) return std::nullopt;
  return valeur;
}

std::optional<DateCivile> DebutEtude(const DossierGeneral& info) { return LireDateCivile(info.DateDebut); }

std::string DeuxChiffres(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

}  // namespace

std::optional<DateCivile> LireDateCivile(std::string_view texte) {
  const std::string t = Trim(texte);
  const auto b1 = t.find('/');
  const auto b2 = b1 == std::string::npos ? b1 : t.find('/', b1 + 1);
  if (b2 == std::string::npos) return std::nullopt;
  const auto jour = Nombre(std::string_view(t).substr(0, b1), 2);
  const auto mois = Nombre(std::string_view(t).substr(b1 + 1, b2 - b1 - 1), 2);
  const auto annee = Nombre(std::string_view(t).substr(b2 + 1), 4);
  if (!jour || !mois || !annee || *mois < 1 || *mois > 12 || *annee < 1) return std::nullopt;
  if (*jour < 1 || *jour > JoursDuMois(*mois, *annee)) return std::nullopt;
  return DateCivile{*jour, *mois, *annee};
}

DateCivile AjouterAnnees(DateCivile date, int annees) {
  date.annee += annees;
  date.jour = std::min(date.jour, JoursDuMois(date.mois, date.annee));
  return date;
}

DateCivile VeilleDe(DateCivile date) {
  if (--date.jour >= 1) return date;
  if (--date.mois < 1) {
    date.mois = 12;
    --date.annee;
  }
  date.jour = JoursDuMois(date.mois, date.annee);
  return date;
}

std::string MoisClair(int mois) {
  static constexpr std::array<std::string_view, 12> noms = {"Jan.", "Fév.", "Mars", "Avr.", "Mai",  "Juin",
                                                            "Juil.", "Août", "Sep.", "Oct.", "Nov.", "Déc."};
  return mois >= 1 && mois <= 12 ? Utf8VersCp1252(noms[static_cast<std::size_t>(mois - 1)]) : std::string();
}

std::string DateExercice(const DossierGeneral& info, int d) {
  const auto debut = DebutEtude(info);
  if (!debut) return {};
  const DateCivile de = AjouterAnnees(*debut, d - 1);
  const DateCivile a = VeilleDe(AjouterAnnees(*debut, d));
  return MoisClair(de.mois) + " " + std::to_string(de.annee) + " - " + MoisClair(a.mois) + " " +
         std::to_string(a.annee);
}

std::string AnneeExercice(const DossierGeneral& info, int d, bool fin, int chiffres) {
  const auto debut = DebutEtude(info);
  if (!debut) return {};
  const std::string annee = std::to_string(AjouterAnnees(*debut, fin ? d : d - 1).annee);
  return chiffres == 2 && annee.size() > 2 ? annee.substr(annee.size() - 2) : annee;
}

std::string MoisExercice(const DossierGeneral& info, int d, bool fin, bool enClair) {
  const auto debut = DebutEtude(info);
  if (!debut) return {};
  const DateCivile date = fin ? VeilleDe(AjouterAnnees(*debut, d)) : AjouterAnnees(*debut, d - 1);
  return enClair ? MoisClair(date.mois) : DeuxChiffres(date.mois);
}

// Days = D + 30.5 M + 365 Y - d - 30.5 m - 365 y between today and the birth
// date, months of 30.5 days and years of 365 as the rule (not the calendar);
// the count is taken as a 16-bit integer (rounded half to even, held within
// the 16-bit range, so an age beyond 89 years reads 89), then whole years.
std::string AgeEnAnnees(std::string_view naissance, std::time_t maintenant) {
  const std::string date = Trim(naissance);
  const auto n = LireDateCivile(date);
  if (date.empty() || date == "**/**/****" || !n) return "??";
  const std::tm* t = std::localtime(&maintenant);
  if (t == nullptr) return "??";
  const double jours = t->tm_mday + 30.5 * (t->tm_mon + 1) + 365.0 * (t->tm_year + 1900) - n->jour -
                       30.5 * n->mois - 365.0 * n->annee;
  const double entier = std::clamp(std::nearbyint(jours), -32768.0, 32767.0);
  return std::to_string(static_cast<int>(std::floor(entier / 365.0)));
}

}  // namespace norvane
