// Value axes: a range cut into round steps, and its labels in French marks
// (decimal comma, no-break space between thousands).
#pragma once

#include <QString>
#include <vector>

namespace norvane {

struct Echelle {
  double min = 0;
  double max = 1;
  double pas = 0.2;
  int decimales = 1;  // of the labels, enough for the step

  std::vector<double> Graduations() const;
  // Position of a value in the range, 0 at min and 1 at max.
  double Fraction(double valeur) const;
};

// The smallest range of round steps (1, 2, 2.5 or 5 times a power of ten)
// that holds [bas, haut] in about `pasVises` steps; with `avecZero`, zero is
// inside too.
Echelle EchelleRonde(double bas, double haut, int pasVises = 5, bool avecZero = true);

QString LibelleNombre(double valeur, int decimales);

}  // namespace norvane
