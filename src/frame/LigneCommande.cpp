#include "frame/LigneCommande.h"

#include <algorithm>

#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"

namespace norvane {

std::vector<std::string> DecouperLigneCommande(std::string_view ligne) {
  std::vector<std::string> arguments;
  bool dansArgument = false;
  bool dansGuillemets = false;
  for (char c : ligne) {
    if (!dansArgument) {
      if (c == ' ') continue;
      dansArgument = true;
      dansGuillemets = c == '"';
      arguments.emplace_back(dansGuillemets ? "" : std::string(1, c));
    } else if (dansGuillemets ? c == '"' : c == ' ') {
      dansArgument = false;
    } else if (c != '"') {
      arguments.back() += c;
    }
  }
  return arguments;
}

std::vector<std::string> ArgumentsProcessus(const std::vector<std::string>& argv) {
  std::vector<std::string> arguments;
  for (const std::string& brut : argv) {
    std::string sansGuillemets = brut;
    std::erase(sansGuillemets, '"');
    if (!EstBlanc(sansGuillemets)) arguments.push_back(std::move(sansGuillemets));
  }
  return arguments;
}

int16_t NbParamCmd(const std::vector<std::string>& arguments) {
  return static_cast<int16_t>(std::min<std::size_t>(arguments.size(), 32767));
}

std::string ParamCmd(const std::vector<std::string>& arguments, int index) {
  if (index < 1 || static_cast<std::size_t>(index) > arguments.size()) return {};
  return arguments[static_cast<std::size_t>(index) - 1];
}

std::string RemplacerBlancs(std::string_view texte, std::string_view marqueur) {
  return RemplaceTexte(texte, marqueur, " ");
}

void DecouperArgumentDossier(std::string_view texte, SessionCadre& session) {
  std::string chemin = RemplacerBlancs(texte, "#tvl#");
  if (!chemin.empty() && (chemin.back() == '/' || chemin.back() == '\\')) chemin.pop_back();
  const std::size_t barre = chemin.find_last_of("/\\");
  const std::size_t coupe = barre == std::string::npos ? 0 : barre + 1;
  session.RepDossier[0] = chemin.substr(0, coupe);
  session.NomDossier[0] = chemin.substr(coupe);
}

}  // namespace norvane
