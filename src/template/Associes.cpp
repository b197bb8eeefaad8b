// The associates of a société as the vocabulary shows them: lists of one
// "\par "-ended line per associate, and single names.
#include "template/Associes.h"

#include <algorithm>
#include <functional>

#include "frame/Encodage.h"
#include "frame/Texte.h"
#include "study/TexteEtude.h"
#include "template/InterpreteurInterne.h"

namespace norvane {
namespace {

constexpr std::string_view kFinLigne = "\\par ";

int NbAssociesBorne(const DossierGeneral& info) { return std::clamp<int>(info.NbAssocies, 0, 10); }

bool EstJA(const DossierGeneral& info, int i) { return info.AssocieJA[static_cast<std::size_t>(i)] == 1; }

// `entete` (Windows-1252), then in a société one line per associate made by
// `ligne`, which may give nothing for an associate it leaves out.
std::string Liste(const DossierGeneral& info, std::string entete, const std::function<std::string(int)>& ligne) {
  if (!info.EstSociete()) return entete;
  for (int i = 1; i <= NbAssociesBorne(info); ++i) entete += ligne(i);
  return entete;
}

// A text of the record made safe for RTF, trimmed.
std::string Etude(std::string_view champ) { return TexteEtudePourRtf(Trim(champ)); }

std::string Tiret(const DossierGeneral& info, int i) { return "- " + Etude(info.NomAssocie[static_cast<std::size_t>(i)]); }

// "- name : detail\par ", or "- name : non renseignée\par " for a blank detail.
std::string LigneDetail(const DossierGeneral& info, int i, const std::string& detail) {
  const std::string d = Etude(detail);
  if (d.empty()) return Tiret(info, i) + Utf8VersCp1252(" : non renseignée") + std::string(kFinLigne);
  return Tiret(info, i) + " : " + d + std::string(kFinLigne);
}

}  // namespace

int AssociePrincipal(const DossierGeneral& info) {
  for (int i = 0; i <= 10; ++i) {
    if (EstJA(info, i)) return i;
  }
  return -1;
}

std::string NomSocieteAssocies(const DossierGeneral& info) {
  const std::string entete = Utf8VersCp1252("Nom société : ") + Etude(info.NomExploitation) + std::string(kFinLigne);
  return Liste(info, entete, [&](int i) { return Tiret(info, i) + std::string(kFinLigne); });
}

std::string ListeAssocies(const DossierGeneral& info) {
  return Liste(info, Utf8VersCp1252("Liste des associés : \\par "), [&](int i) {
    std::string ligne = Tiret(info, i);
    const std::string date = Etude(info.DateNaissance[static_cast<std::size_t>(i)]);
    if (!date.empty()) ligne += Utf8VersCp1252(", né(e) le : ") + date;
    if (EstJA(info, i)) ligne += ", Jeune Agriculteur";
    return ligne + std::string(kFinLigne);
  });
}

std::string NomsAssocies(const DossierGeneral& info) {
  return Liste(info, Utf8VersCp1252("Nom des associés : \\par "),
               [&](int i) { return Tiret(info, i) + std::string(kFinLigne); });
}

std::string NaissancesAssocies(const DossierGeneral& info) {
  return Liste(info, Utf8VersCp1252("Date de naissance des associés : \\par "),
               [&](int i) { return LigneDetail(info, i, info.DateNaissance[static_cast<std::size_t>(i)]); });
}

std::string SituationsAssocies(const DossierGeneral& info) {
  return Liste(info, Utf8VersCp1252("Situation familiale des associés : \\par "),
               [&](int i) { return LigneDetail(info, i, info.Situation[static_cast<std::size_t>(i)]); });
}

std::string NomsAssociesJA(const DossierGeneral& info) {
  return Liste(info, Utf8VersCp1252("Liste des associés JA : \\par "), [&](int i) {
    return EstJA(info, i) ? Tiret(info, i) + std::string(kFinLigne) : std::string();
  });
}

std::string NombreAssociesJA(const DossierGeneral& info) {
  int n = 0;
  if (info.EstSociete()) {
    for (int i = 1; i <= NbAssociesBorne(info); ++i) n += EstJA(info, i) ? 1 : 0;
  }
  return std::to_string(n);
}

std::string NomAssocieNumero(const DossierGeneral& info, int n) {
  if (!info.EstSociete() || n < 0 || n > 10) return {};
  return (EstJA(info, n) ? "JA : " : "") + Etude(info.NomAssocie[static_cast<std::size_t>(n)]);
}

}  // namespace norvane
