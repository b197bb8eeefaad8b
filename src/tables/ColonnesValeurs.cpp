#include "tables/ColonnesValeurs.h"

#include <algorithm>
#include <cmath>

#include "tables/EtatTableaux.h"

namespace norvane {

ColonnesValeurs CalculerColonnes(const ModeleTableau& modele, int16_t nbAnEtude, int16_t modeAnnees) {
  ColonnesValeurs c;
  c.modeAnnees = modeAnnees;
  if (modele.MultiDossier == 1) {
    c.nombre = modele.NbDossiers;
    c.modeAnnees = 0;
  } else if (modeAnnees == 3) {
    c.nombre = 1;
  } else {
    c.nombre = nbAnEtude;
  }
  c.nombre = std::clamp(c.nombre, 0, kColonnesValeursMax - 1);
  // nearbyint rounds half to even in the default rounding mode.
  if (c.nombre > 0) c.largeur = static_cast<int32_t>(std::nearbyint(static_cast<double>(modele.LargeurValeurs) / c.nombre));
  c.premiere = c.modeAnnees == 1 ? 0 : 1;
  c.derniere = c.nombre;
  return c;
}

}  // namespace norvane
