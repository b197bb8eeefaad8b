// The generator's side of the bound word processor: which driver serves it,
// and the box shown when none does.
#pragma once

#include <string>

#include "frame/Options.h"
#include "frame/Ports.h"
#include "template/Generation.h"

namespace norvane {

constexpr int kEditeurWord = 1;
constexpr int kEditeurWordPro = 2;
constexpr int kEditeurOpenOffice = 3;

// Advice of the box when the conversion after a creation finds no editor.
inline constexpr char kConseilCreerDoc[] =
    "Sélectionnez un traitement de texte dans \"PROPRIETES\" -> \"AUTRE CHOIX\" puis cliquez à nouveau sur \"CREER "
    "DOC\".";

// 1, 2 or 3 by the bound word processor's executable name; 0 for none.
int IndexEditeur(const Options& options);

// The box "no word processor is bound to Norvane", with its advice.
void SignalerAucunEditeur(PortMessages& messages, const std::string& conseil);

// The document `source` saved under `chemin` through the bound word
// processor, in the format of its extension, and not left open; with no word
// processor bound, the box says so with the given advice. True when done.
bool SauvegarderParEditeur(Generation& generation, const std::string& source, const std::string& chemin,
                           const std::string& conseil);

}  // namespace norvane
