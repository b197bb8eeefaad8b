// Tool tips: the RTF annotations that carry a code into the document.
#pragma once

#include <optional>
#include <string>

#include "template/Generation.h"

namespace norvane {

// The RTF annotation of an INFO: code, written from the literal code
// (CodeCourant): std::nullopt when the literal is not an INFO: code, a single
// blank when one of its four ":" is missing.
std::optional<std::string> AnnotationInfo(const std::string& codeCourant);
// The dormant annotation form of any value (SansAnnotation 0).
std::string AnnotationValeur(const Generation& generation, const std::string& valeur);

}  // namespace norvane
