// The date codes date(n), the French short date, and the date of the
// dossier's file (dateDossier).
//
// Formats of date(n), in the French conventions that the old documents were
// made with, shown for Sunday 22 November 2026 at 14:05:09:
//
//   n   form                   example
//   0   long date              dimanche 22 novembre 2026   (day without leading zero)
//   1   long date less day     22 novembre 2026
//   2   medium date            22-nov.-26                  (dd-<month abbreviated>-yy)
//   3   short date             22/11/2026
//   4   today as the system    22/11/2026
//   5   dd - mm - yyyy         22 - 11 - 2026
//   6   dd-mm-yy               22-11-26
//   7   dd/mm/yy               22/11/26
//   8   dd/mm/yyyy             22/11/2026
//   9   dd/mm                  22/11
//   10  dd                     22
//   11  general date           22/11/2026 14:05:09
//   12  long time              14:05:09
//   13  short time             14:05
//   14  medium time            14:05                       (French has no AM/PM form)
//   15  hh-mm-ss               14-05-09
//   16  hh.mm.ss               14.05.09
//   17  hh-mm                  14-05
//   other                      empty, so the code shows "\~"
//
// Month abbreviations of form 2: janv. févr. mars avr. mai juin juil. août
// sept. oct. nov. déc. Accented letters are written in Windows-1252.
#include "template/Dates.h"

#include <array>
#include <chrono>
#include <filesystem>
#include <string_view>
#include <system_error>

#include "frame/Encodage.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "template/Directives.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

constexpr std::array<std::string_view, 7> kJours = {"dimanche", "lundi",    "mardi", "mercredi",
                                                    "jeudi",    "vendredi", "samedi"};
constexpr std::array<std::string_view, 12> kMois = {"janvier", "février", "mars",      "avril",   "mai",      "juin",
                                                    "juillet", "août",    "septembre", "octobre", "novembre", "décembre"};
constexpr std::array<std::string_view, 12> kMoisAbreges = {"janv.", "févr.", "mars", "avr.", "mai",  "juin",
                                                           "juil.", "août",  "sept.", "oct.", "nov.", "déc."};

std::string DeuxChiffres(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

// The pieces of one moment.
struct Moment {
  std::string jj, mm, aaaa, aa, hh, mi, ss;
  int jour, mois, jourSemaine;
};

Moment Decomposer(const std::tm& t) {
  Moment m{DeuxChiffres(t.tm_mday), DeuxChiffres(t.tm_mon + 1), std::to_string(t.tm_year + 1900), {},
           DeuxChiffres(t.tm_hour), DeuxChiffres(t.tm_min),     DeuxChiffres(t.tm_sec),
           t.tm_mday,               t.tm_mon + 1,               t.tm_wday};
  m.aa = m.aaaa.size() >= 2 ? m.aaaa.substr(m.aaaa.size() - 2) : m.aaaa;
  return m;
}

// UTF-8.
std::string Formater(const Moment& m, int n) {
  const std::string longue = std::to_string(m.jour) + " " + std::string(kMois[static_cast<std::size_t>(m.mois - 1)]) + " " + m.aaaa;
  const std::string courte = m.jj + "/" + m.mm + "/" + m.aaaa;
  switch (n) {
    case 0: return std::string(kJours[static_cast<std::size_t>(m.jourSemaine)]) + " " + longue;
    case 1: return longue;
    case 2: return m.jj + "-" + std::string(kMoisAbreges[static_cast<std::size_t>(m.mois - 1)]) + "-" + m.aa;
    case 3: case 4: case 8: return courte;
    case 5: return m.jj + " - " + m.mm + " - " + m.aaaa;
    case 6: return m.jj + "-" + m.mm + "-" + m.aa;
    case 7: return m.jj + "/" + m.mm + "/" + m.aa;
    case 9: return m.jj + "/" + m.mm;
    case 10: return m.jj;
    case 11: return courte + " " + m.hh + ":" + m.mi + ":" + m.ss;
    case 12: return m.hh + ":" + m.mi + ":" + m.ss;
    case 13: case 14: return m.hh + ":" + m.mi;
    case 15: return m.hh + "-" + m.mi + "-" + m.ss;
    case 16: return m.hh + "." + m.mi + "." + m.ss;
    case 17: return m.hh + "-" + m.mi;
    default: return {};
  }
}

std::optional<Moment> MomentLocal(std::time_t moment) {
  const std::tm* t = std::localtime(&moment);
  if (t == nullptr) return std::nullopt;
  return Decomposer(*t);
}

}  // namespace

std::string LireDate(Generation& generation, std::string& code) {
  const auto ouvrante = code.find('(');
  if (ouvrante == std::string::npos) return {};
  const auto fermante = code.find(')', ouvrante + 1);
  const int16_t n = Entier16De(code.substr(ouvrante + 1, fermante == std::string::npos ? std::string::npos
                                                                                        : fermante - ouvrante - 1));
  const auto moment = MomentLocal(generation.Maintenant());
  return moment ? Utf8VersCp1252(Formater(*moment, n)) : std::string();
}

std::string DateCourte(std::time_t moment) {
  const auto m = MomentLocal(moment);
  return m ? Formater(*m, 8) : std::string();
}

// The file is named by CheminDossierTervol less its last character (the
// record keeps the folder with its closing "\"). Its date is shown as the
// first 9 characters of its short date, "dd/mm/yyy": the old program cut the
// text so, and the documents made with it show the same.
std::string DateDossier(const DossierGeneral& info) {
  const std::string chemin = Trim(info.CheminDossierTervol);
  if (chemin.size() < 2) return {};
  const auto reel = ResoudreChemin(chemin.substr(0, chemin.size() - 1));
  if (!reel) return {};
  std::error_code erreur;
  const auto quand = std::filesystem::last_write_time(*reel, erreur);
  if (erreur) return {};
  const auto systeme = std::chrono::file_clock::to_sys(quand);
  return DateCourte(std::chrono::system_clock::to_time_t(
                        std::chrono::time_point_cast<std::chrono::system_clock::duration>(systeme)))
      .substr(0, 9);
}

}  // namespace norvane
