// The text form of a table model: what stands between "#tvl(" and ")#" in a
// template, and on the second line of each model in tableaux.txt.
//
//   [culture|cultper|actlibr <StyleTitre digit> [<NumChapitre, 1 or 2 digits>]]
//   tab (a|d)<NbDossiers digit> [p<NbColonnes digit>] [c] [r] [<ModeAnnees digit>]
//   ;larg<width of label column 1> ... ;larg<width of column NbColonnes>
//   ;larg<LargeurValeurs> ( <line> # <line> # ... )
// with each line
//   [Hauteur;Marge][Texte;<9 Police fields>;<5 Cadre fields>] ... for each
//   label column, then the definition cell the same way; in a multi-dossier
//   model a definition starting with "serie" is written "<NumSerie>@serie:...".
// Every blank of the body is written "_"; a "_" read from a label comes back
// as a blank (definitions keep theirs). A label holds none of ; # [ ].
//
// The decoders never throw: bad or cut text ends the reading with what was
// read so far, and the error says why (`texte`) and where it stopped (`octet`,
// the 0-based offset in the text given to the call).
#pragma once

#include <string>
#include <string_view>

#include "frame/Ports.h"
#include "frame/Resultat.h"
#include "tables/ModeleTableau.h"

namespace norvane {

// The code is a table's: "tab" or an entity prefix ("culture", "cultper",
// "actlibr") opens it.
bool EstCodeTableau(std::string_view code);

// The user's words for a decoding of `texte` that stopped with `erreur`:
// where (the header, or line n of the table) and why. UTF-8.
std::string MessageLectureTableau(std::string_view texte, const ErreurLecture& erreur);

// Reads the optional kind prefix "culture", "cultper" or "actlibr" and its
// digits into TypeTableau (1, 2, 3), StyleTitre and NumChapitre; without a
// prefix, TypeTableau 0, StyleTitre 1, NumChapitre -1. `code` is left
// starting at "tab" (or where the prefix reading stopped).
Resultat<void> LireTypeTableau(std::string_view& code, ModeleTableau& modele);

// Reads "tab" and the header (kind letter and dossier count, label columns,
// c, r, years mode, widths) up to and including the "(" that opens the lines.
// Every header field is set, the defaults of old codes where the text lacks
// it (a2, one column, widths 1000 and 7200 without ";larg"). `code` is left on
// the first line.
Resultat<void> LireEnteteCode(std::string_view& code, ModeleTableau& modele);

// Reads the lines, sets NbLignes to the number read (a line that does not
// open with its [Hauteur;Marge] bracket ends the reading, already counted).
// Label texts get their "_" back as blanks. `code` is left after the last
// line read.
Resultat<void> LireLignesCode(std::string_view& code, ModeleTableau& modele);

// The three readers in a row on one body; with `avecLignes` false the lines
// are not read (NbLignes stays as it was).
Resultat<void> LireCodeTableau(std::string_view corps, ModeleTableau& modele, bool avecLignes = true);

// The body of the model's code. Empty Police and Cadre texts are written as
// PoliceParDefaut(defauts) and kCadreReparation.
// Silent mode: a line whose definition is empty makes the whole result empty
// (the caller then stores "#tvl()#").
std::string EcrireCodeTableau(const ModeleTableau& modele, const DefautsCellule& defauts = {});
// Warning mode: a line whose definition is empty is told to the user through
// `messages` ("Edition d'un tableau : définition incomplète !"), naming the
// line and the model, `indice` being its number in the store (1-based); the
// lines before it are written, then the closing ")".
std::string EcrireCodeTableau(const ModeleTableau& modele, int indice, PortMessages& messages,
                              const DefautsCellule& defauts = {});

// Fills empty Police and Cadre texts of the lines in use as writing does, so
// that the model in memory matches what was stored.
void ReparerFormats(ModeleTableau& modele, const DefautsCellule& defauts = {});

}  // namespace norvane
