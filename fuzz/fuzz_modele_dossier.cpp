// Fuzz target of the template scan on a built dossier: the input is a slice
// of template text, scanned for #tvl(...)# codes as the generator does (in
// explain mode when the first byte is odd), each code read against the
// example installation, built once by the study-file builder.
#include <stdlib.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>

#include "construction/DescriptionJson.h"
#include "study/DossierGeneral.h"
#include "study/ParamLog.h"
#include "template/Interpreteur.h"

namespace {

using namespace norvane;

// The root of the example installation, built under a temporary folder.
const std::string& Racine() {
  static const std::string racine = [] {
    std::string modele = (std::filesystem::temp_directory_path() / "nv-fuzz-modele-XXXXXX").string();
    if (::mkdtemp(modele.data()) == nullptr) return std::string();
    const auto description = construction::ChargerDescription(NORVANE_SOURCE_DIR "/exemple/etude/installation.json");
    if (!description || !construction::ConstruireInstallation(*description, modele)) return std::string();
    return modele + "/";
  }();
  return racine;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, std::size_t taille) {
  if (taille == 0) return 0;
  static Session session = [] {
    Session s;
    s.RepWinTervol = Racine();
    s.RepNorvane = Racine() + "Norvane/";
    s.RepDatacfg = Racine() + "Datacfg/";
    s.RepDossier[0] = Racine() + "Dossier/";
    s.NomDossier[0] = "GAEC_DES_TILLEULS.TVL";
    LireParamLog(s);
    return s;
  }();
  static MessagesMuets messages;
  static ProgressionMuette progression;
  static EntitesCourantes entites;
  ChargerInfoDossier(session);
  Generation generation(session, messages, progression, entites);
  generation.horloge = [] { return std::time_t{1795000000}; };
  std::string texte(reinterpret_cast<const char*>(donnees) + 1, taille - 1);
  InterpreterPortion(generation, texte, donnees[0] & 1);
  return 0;
}
