// CONVERTIR <document>... --format=doc|odt|pdf|rtf [--dossier-sortie=<dossier>]:
// documents converted through one private LibreOffice, started once for the
// whole list. A document that fails is named and the others go on; the exit
// status says whether all were converted.
#include "app/VerbeConvertir.h"

#include <filesystem>
#include <iostream>

#include "app/EditeurLigneCommande.h"
#include "frame/Encodage.h"
#include "frame/ResolutionChemins.h"

namespace norvane {
namespace {

namespace fs = std::filesystem;

// Where a document goes: the output folder (or its own), its stem, the new
// extension.
std::string Cible(const std::string& document, const OptionsLigne& options) {
  const fs::path source(document);
  const fs::path dossier = options.dossierSortie.empty() ? source.parent_path() : fs::path(options.dossierSortie);
  return (dossier / source.stem()).string() + "." + options.format;
}

}  // namespace

int VerbeConvertir(Application& application) {
  const OptionsLigne& options = application.options;
  if (application.Param(2).empty() || options.format.empty()) {
    std::cerr << "Usage : norvane CONVERTIR <document>... --format=doc|odt|pdf|rtf [--dossier-sortie=<dossier>]\n";
    return 2;
  }
  std::error_code ec;
  if (!options.dossierSortie.empty()) fs::create_directories(options.dossierSortie, ec);
  LierEditeurSiAucun(application);
  EditeurLigneCommande editeur(application.session.options, application.messages);
  const std::size_t total = application.arguments.size() - 1;
  std::size_t convertis = 0;
  for (std::size_t i = 0; i < total; ++i) {
    const std::string& document = application.arguments[i + 1];
    application.progression.DefinirTexte("Conversion de " + fs::path(document).filename().string() + " (" +
                                         std::to_string(i + 1) + "/" + std::to_string(total) + ")");
    application.progression.DefinirPourcentage(static_cast<int>(i * 100 / total));
    const std::string cible = Cible(document, options);
    const auto source = ResoudreChemin(document);
    bool fait = false;
    if (!source) {
      application.messages.AfficherMessage("Norvane", "Conversion impossible",
                                           "Le document \"" + document + "\" est introuvable.", "", "");
    } else if (fs::equivalent(*source, cible, ec)) {
      fait = true;  // already where and what it should be
    } else {
      fait = editeur.Convertir(*source, cible);
    }
    if (fait) ++convertis;
    else std::cerr << "Norvane : « " << document << " » n'a pas été converti.\n";
  }
  application.progression.DefinirPourcentage(100);
  application.progression.Terminer();
  std::cout << convertis << " document(s) converti(s) sur " << total << ".\n";
  return convertis == total ? 0 : 1;
}

}  // namespace norvane
