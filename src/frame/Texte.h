// Text helpers shared by every subsystem. Texts of study files and templates
// are Windows-1252 bytes held in std::string; these helpers work on bytes and
// fold case for ASCII and the Latin letters of Windows-1252.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace norvane {

// Lower / upper case of one Windows-1252 byte (ASCII and accented letters).
char MinusculeCp1252(char c);
char MajusculeCp1252(char c);
std::string Minuscules(std::string_view texte);
std::string Majuscules(std::string_view texte);

// Blanks (space only, as fixed-width records are padded with spaces) trimmed.
std::string Trim(std::string_view texte);
std::string TrimDroite(std::string_view texte);
std::string TrimGauche(std::string_view texte);
// True when the text holds nothing but blanks.
bool EstBlanc(std::string_view texte);

// Position (0-based) of `motif` in `texte` from `depart`, std::string::npos when
// absent. `sansCasse` folds case as MinusculeCp1252 does.
std::size_t Chercher(std::string_view texte, std::string_view motif, std::size_t depart = 0,
                     bool sansCasse = false);
std::size_t ChercherSansCasse(std::string_view texte, std::string_view motif, std::size_t depart = 0);
bool CommencePar(std::string_view texte, std::string_view debut, bool sansCasse = false);
bool FinitPar(std::string_view texte, std::string_view fin, bool sansCasse = false);
bool EgalSansCasse(std::string_view a, std::string_view b);

// Leading integer of a text as the conversion of the old runtime read it:
// blanks skipped, optional sign, digits up to the first other character;
// 0 when there is none. Saturates to the 16-bit or 32-bit range.
int32_t EntierDe(std::string_view texte);
int16_t Entier16De(std::string_view texte);
// Leading decimal number of a text ("12,5" and "12.5" both read 12.5); 0 when none.
double NombreDe(std::string_view texte);

// Every occurrence of `cherche` replaced by `remplace`, from left to right,
// never looking again into what was put in; `sansCasse` finds `cherche`
// without regard to case. The one replacement routine of the program.
std::string RemplacerTout(std::string_view texte, std::string_view cherche, std::string_view remplace,
                          bool sansCasse = false);

}  // namespace norvane
