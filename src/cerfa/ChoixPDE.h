// What the creation dialog offers for the PDE Cerfa report: the sixteen
// entries of its page list, the stock template of a choice, the number of
// years the report runs over, and the refusal when no dossier is bound.
// Texts are UTF-8, as the dialog and the terminal show them.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "frame/Ports.h"

namespace norvane {

struct Session;

struct PagePDE {
  const char* texte;   // as the list shows it
  const char* modele;  // below the program's Norvane folder; entry 0 is chosen by ModelePDE
  const char* nom;     // suggested name of the document
};

inline constexpr int kPagesPDE = 16;
inline constexpr int16_t kAnneesPDEParDefaut = 5;

// The page list, entry 0 being the whole report (RemplirListePDE).
const std::array<PagePDE, kPagesPDE>& ListePDE();

// The stock template of entry `index`, relative to the Norvane folder
// ("PDE/PDE8.tvm"). For the whole report of an individual farm the user is
// asked whether the two empty company sheets are wanted (No is the default
// button: an individual farm's report has thirteen pages unless asked
// otherwise); a company always gets them. An index out of the list gives
// the whole report.
std::string ModelePDE(int index, bool societe, PortMessages& messages);

// The number of years typed in the dialog, rounded; 0 or a text that is no
// number gives 5.
int16_t NombreAnneesPDE(std::string_view texte);

// False, after telling the user, when the session has no dossier in slot 0.
bool DossierLiePDE(const Session& session, PortMessages& messages);

}  // namespace norvane
