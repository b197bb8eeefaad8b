// The program's folders, all derived from the folder the program runs from.
// The program lives in <tree>/Norvane/, so the root of the installation is
// what stands before the first "norvane" of that folder's path.
#pragma once

#include <string>

#include "frame/Session.h"

namespace norvane {

// Address of the on-line guide, used when no GuideNorvane/ folder is installed.
inline constexpr const char* kAdresseGuideEnLigne = "https://norvane.fr/guide/";

// Fills RepWinTervol and the folders that follow from it, in this order:
// RepDatacfg, RepModelGraph, RepNorvane, RepModlDocs, RepImages, RepSkin,
// RepGuide. RepWinTervol is `dossierProgramme` ("\" taken as "/") cut just
// before the first "norvane" found in its lower-case form, keeping the path's
// own case; empty when there is none, so that every folder is then relative
// to the working directory.
void InitChemins(SessionCadre& session, const std::string& dossierProgramme);

// Folder of the running executable (from /proc/self/exe), without a final "/";
// empty when it cannot be read.
std::string DossierExecutable();

}  // namespace norvane
