// Words and texts the template engine shares: the code marks, the caller
// name of its message boxes, and the titles and advice of its error boxes.
#pragma once

#include <string_view>

#include "frame/Ports.h"

namespace norvane {

inline constexpr std::string_view kMarqueDebut = "#tvl(";
inline constexpr std::string_view kMarqueFin = ")#";
inline constexpr std::string_view kAppelant = "CreationDoc";
inline constexpr std::string_view kTitreErreur = kTitreErreurDetectee;
inline constexpr std::string_view kConseilModifier = "Modifier le modèle de document pour que l'erreur n'apparaisse plus.";
inline constexpr std::string_view kAideSerie =
    "une donnée issue de Tervol ou un calcul de plusieurs données de Tervol.";

}  // namespace norvane
