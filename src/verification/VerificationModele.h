// The check of a whole template: every code found as the generator finds it,
// placed, explained and checked; nothing generated, nothing written.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "study/EntitesCourantes.h"
#include "study/Session.h"
#include "verification/VerificationCode.h"

namespace norvane {

// `contenu`: the template file's text (Windows-1252). The codes are
// evaluated against the dossier of the session's slot 0 when it names one.
std::vector<CodeVerifie> VerifierModele(Session& session, const EntitesCourantes& entites, std::string_view contenu);

// The codes of that status.
std::size_t Nombre(const std::vector<CodeVerifie>& codes, Statut statut);

}  // namespace norvane
