// Texts of a chart (title, note, axis titles): measured and drawn with their
// word wrap and their orientation (1 horizontal, 2 letters stacked, 3 turned
// to read upwards, 4 turned to read downwards).
#pragma once

#include <QFont>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

namespace norvane {

struct TexteOriente {
  QString texte;
  QFont police;
  bool retour = false;  // word wrap
  int orientation = 1;  // OrientationTexte; another value reads as horizontal
};

// Size the text takes, `longueurMax` being the room along its reading
// direction (wrapping happens there when asked).
QSizeF MesurerTexte(QPainter& peintre, const TexteOriente& texte, double longueurMax);

// Draws the text centred in `zone`.
void DessinerTexte(QPainter& peintre, const QRectF& zone, const TexteOriente& texte);

}  // namespace norvane
