#include "app/Demarrage.h"

#include <iostream>

#include "app/OptionsLigne.h"
#include "app/Verbes.h"
#include "app/Version.h"
#include "frame/Chemins.h"
#include "frame/Encodage.h"
#include "frame/LigneCommande.h"
#include "frame/Parametres.h"
#include "frame/PortsConsole.h"
#include "study/ParamLog.h"

namespace norvane {
namespace {

// With no argument the program is the resident command bar, which comes
// with the graphical build.
int SansArgument(const Session& session) {
  std::cerr << "Norvane " NORVANE_VERSION " : la barre de commandes n'est pas disponible dans cette version.\n"
            << "Racine de l'installation : " << (session.RepWinTervol.empty() ? "(répertoire courant)" : session.RepWinTervol)
            << "\nDossier courant : " << Cp1252VersUtf8(session.RepDossier[0] + session.NomDossier[0])
            << "\nTraitement de texte lié : "
            << (session.options.CheminEditeur.empty() ? "aucun" : Cp1252VersUtf8(session.options.CheminEditeur))
            << "\nVoir « norvane --help » pour les travaux en ligne de commande.\n";
  return 3;
}

bool OptionsRefusees(const OptionsLigne& options) {
  for (const std::string& option : options.inconnues) {
    std::cerr << "Norvane : option inconnue ou mal renseignée « " << option << " » (voir norvane --help).\n";
  }
  return !options.inconnues.empty();
}

}  // namespace

int Demarrer(int argc, char** argv) {
  std::vector<std::string> arguments = ArgumentsProcessus(std::vector<std::string>(argv + 1, argv + argc));
  OptionsLigne options = ExtraireOptions(arguments);
  if (options.aide) {
    std::cout << TexteAide();
    return 0;
  }
  if (options.version) {
    std::cout << "norvane " NORVANE_VERSION "\n";
    return 0;
  }
  if (OptionsRefusees(options)) return 2;

  Session session;
  InitChemins(session, DossierExecutable());
  ChargerOptions(session);
  LireParamLog(session);

  if (NbParamCmd(arguments) == 0) return SansArgument(session);
  MessagesConsole messages(options.reponse);
  ProgressionConsole progression;
  Application application{session, messages, progression, std::move(arguments), std::move(options)};
  return ExecuterVerbe(application);
}

}  // namespace norvane
