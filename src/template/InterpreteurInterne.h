// Pieces of the code interpreter shared between its files: the branches of
// the dispatch chain, the exercise dates and the explanation boxes.
// Values are Windows-1252 (they go into the RTF); help phrases are UTF-8
// (they only go to the messages port).
#pragma once

#include <cstdint>
#include <ctime>
#include <optional>
#include <string>
#include <string_view>

#include "study/Enregistrements.h"
#include "template/Generation.h"

namespace norvane {

inline constexpr std::string_view kMarqueDebut = "#tvl(";
inline constexpr std::string_view kMarqueFin = ")#";
inline constexpr std::string_view kAppelant = "CreationDoc";
inline constexpr std::string_view kTitreErreur = kTitreErreurDetectee;
inline constexpr std::string_view kConseilModifier = "Modifier le modèle de document pour que l'erreur n'apparaisse plus.";
inline constexpr std::string_view kAideSerie =
    "une donnée issue de Tervol ou un calcul de plusieurs données de Tervol.";

// How the explanation box of a code is put together.
enum class FormeAide {
  Normale,    // text: entete + help; advice: exemple + ": " + value
  Precision,  // as Normale, with `precision` in place of ":" in the advice
  TexteSeul,  // the help is the whole text; no advice (saut2page, tables, graphs)
};

// What the dispatch chain made of one cleaned code.
struct IssueCode {
  bool inchange = false;  // nothing inserted: the code stays in the text as it stands
  std::string valeur;     // Windows-1252, inserted through InsererValeur
  std::string aide;       // UTF-8; empty: no explanation box
  FormeAide forme = FormeAide::Normale;
  std::string precision;  // UTF-8, for FormeAide::Precision
};

// The chain behind the condition: vocabulary, ORGA, INFO:, INI:, date(,
// tables, graphs, formulas, series, unknown code.
IssueCode ResoudreCode(Generation& generation, std::string& code, bool explication);

// A word of the vocabulary table (saut2page, numPage2, nomExploit...), or
// std::nullopt when the code is none of them.
std::optional<IssueCode> ChampGeneral(Generation& generation, const std::string& code);

// The associates of a dossier (slots 1 to NbAssocies, at most 10; slot 0 is
// the individual farmer). The lists hold one "\par "-ended line each.
int AssociePrincipal(const DossierGeneral& info);  // first JA from slot 0; -1: none
std::string NomSocieteAssocies(const DossierGeneral& info);
std::string ListeAssocies(const DossierGeneral& info);
std::string NomsAssocies(const DossierGeneral& info);
std::string NaissancesAssocies(const DossierGeneral& info);
std::string SituationsAssocies(const DossierGeneral& info);
std::string NomsAssociesJA(const DossierGeneral& info);
std::string NombreAssociesJA(const DossierGeneral& info);
std::string NomAssocieNumero(const DossierGeneral& info, int n);

// A help phrase of a family with its index in place of "<n>" and "<d>".
std::string AideAvecIndice(std::string_view aide, int indice);

// ORGA + field + index.
IssueCode ChampOrganisation(Generation& generation, const std::string& code);

// si(condition)alors:code. On Vraie, `code` is left holding what stands
// behind ")alors:".
enum class Condition { Vraie, Fausse, Erronee };
Condition EvaluerCondition(Generation& generation, std::string& code);

// numPage2 / numPage2bis: "\v0 2-<n>", "\v0 2bis-<n>", one counter for both.
std::string NumeroPage(Generation& generation, const std::string& code);

// The RTF annotation of an INFO: code, written from the literal code
// (CodeCourant): std::nullopt when the literal is not an INFO: code, a single
// blank when one of its four ":" is missing.
std::optional<std::string> AnnotationInfo(const std::string& codeCourant);
// The dormant annotation form of any value (SansAnnotation 0).
std::string AnnotationValeur(const Generation& generation, const std::string& valeur);

// Removes `marque` and the digit behind it, or the mark itself when no digit
// follows: -1 when the mark is absent, 1 otherwise.
int EnleverMarque(std::string& texte, std::string_view marque);

// Explanation boxes.
void MontrerExplication(Generation& generation, const std::string& code, const IssueCode& issue);
std::string AideTableau(const std::string& code);
std::string AideGraphique(const std::string& code);

// A calendar date as the study files write it ("dd/mm/yyyy").
struct DateCivile {
  int jour = 1;
  int mois = 1;
  int annee = 1;
};
std::optional<DateCivile> LireDateCivile(std::string_view texte);
// Same day n years on; 29 February becomes 28 February in a common year.
DateCivile AjouterAnnees(DateCivile date, int annees);
DateCivile VeilleDe(DateCivile date);

// Exercise d (0..9) of the study: date<d>, an2/an4 Deb/Fin, mois2/moisC Deb/Fin.
// Empty when the study's DateDebut is no date.
std::string DateExercice(const DossierGeneral& info, int d);
std::string AnneeExercice(const DossierGeneral& info, int d, bool fin, int chiffres);
std::string MoisExercice(const DossierGeneral& info, int d, bool fin, bool enClair);
// Whole years from a birth date to `maintenant`; "??" when the date is unknown.
std::string AgeEnAnnees(std::string_view naissance, std::time_t maintenant);

// French short date "dd/mm/yyyy" of a moment, in local time.
std::string DateCourte(std::time_t moment);
// dateDossier: date of the dossier file named in the general record.
std::string DateDossier(const DossierGeneral& info);

}  // namespace norvane
