#include "frame/Chemins.h"

#include <algorithm>
#include <filesystem>

#include "frame/OutilsFichiers.h"
#include "frame/Texte.h"

namespace norvane {

void InitChemins(SessionCadre& session, const std::string& dossierProgramme) {
  std::string dossier = dossierProgramme;
  std::replace(dossier.begin(), dossier.end(), '\\', '/');
  const std::size_t p = Minuscules(dossier).find("norvane");
  session.RepWinTervol = p == std::string::npos ? std::string() : dossier.substr(0, p);
  session.RepDatacfg = session.RepWinTervol + "Datacfg/";
  session.RepModelGraph = session.RepWinTervol + "ModelGraph/";
  session.RepNorvane = session.RepWinTervol + "Norvane/";
  session.RepModlDocs = session.RepNorvane + "ModlDocs/";
  session.RepImages = session.RepNorvane + "Images/";
  session.RepSkin = session.RepNorvane + "Skin/SkinNorvane";
  const std::string guide = session.RepNorvane + "GuideNorvane/";
  session.RepGuide = DossierExiste(guide) ? guide : std::string(kAdresseGuideEnLigne);
}

std::string DossierExecutable() {
  std::error_code ec;
  const std::filesystem::path exe = std::filesystem::read_symlink("/proc/self/exe", ec);
  return ec ? std::string() : exe.parent_path().string();
}

}  // namespace norvane
