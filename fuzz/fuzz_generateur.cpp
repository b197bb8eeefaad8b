// The whole generator on any template bytes: it must end, with a result.
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>

#include "support/PortsScriptes.h"
#include "template/Generateur.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* donnees, size_t taille) {
  using namespace norvane;
  static const std::filesystem::path dossier = [] {
    auto d = std::filesystem::temp_directory_path() / "nv-fuzz-generateur";
    std::filesystem::create_directories(d);
    return d;
  }();
  const std::string modele = (dossier / "m.tvm").string();
  std::ofstream(modele, std::ios::binary)
      .write(reinterpret_cast<const char*>(donnees), static_cast<std::streamsize>(taille));
  Session session;
  session.InfoDossier.NomExploitation = "GAEC";
  MessagesScriptes messages;
  ProgressionMuette progression;
  EntitesCourantes entites;
  Generation g(session, messages, progression, entites);
  CreerDocument(g, modele, (dossier / "r.rtf").string(),
                {.miseAJour = false, .sansOuvrir = true, .demanderRemplacement = false});
  CreerDocument(g, modele, modele, {.miseAJour = true, .sansOuvrir = true, .demanderRemplacement = false});
  return 0;
}
