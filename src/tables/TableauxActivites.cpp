#include "tables/TableauxActivites.h"

#include "frame/Encodage.h"
#include "frame/FormatNombre.h"
#include "frame/ResolutionChemins.h"
#include "frame/Texte.h"
#include "study/Series.h"
#include "study/TexteEtude.h"
#include "tables/CodeTableau.h"
#include "tables/DefinitionLigne.h"
#include "tables/EntiteEnCours.h"
#include "tables/GenerationTableau.h"
#include "tables/ProducteursTables.h"
#include "tables/TableauxCultures.h"

namespace norvane {
namespace {

constexpr int kFondBoite = 8;
constexpr std::string_view kFinParagraphe = "\\par \\plain ";

std::string Entete(int16_t style, const std::string& nom, int couleur, int fond) {
  if (style == 1) {
    return std::string(kFinParagraphe) + "\\ql\\fs28\\cf" + std::to_string(couleur) +
           "\\b     \\ql\\fs28\\cf1\\b\\ul " + TexteEtudePourRtf(nom) + std::string(kFinParagraphe) +
           std::string(kFinParagraphe);
  }
  if (style == 2) return BoiteActivite(nom, couleur, fond) + std::string(kFinParagraphe);
  return {};
}

}  // namespace

std::string GenererTableauxActivites(ProducteursTables& p, Generation& generation, TableauxDocument& tableaux,
                                     const std::string& code) {
  const std::string propre = NettoyerCodeTableau(code);
  std::string_view reste = propre;
  ModeleTableau modele;
  LireTypeTableau(reste, modele);
  const std::string corps(reste);
  const ProfilIni* profil = generation.etat.Fichiers.Profil(DossierDuSlot(generation.session, 0) + "ModAniLib.ini");
  if (profil == nullptr) return {};
  const int couleur = generation.etat.ProchaineCouleur + 1;
  EntiteEnCours enCours(generation, p);
  std::string rtf;
  for (const ModuleActivite& module : LireModulesActivites(*profil)) {
    if (!module.actif) continue;
    p.activite = module;
    ++p.CompteurTableaux;
    if (modele.NumChapitre != -1) rtf += NumeroChapitre(couleur, modele.NumChapitre, p.CompteurTableaux, modele.StyleTitre);
    rtf += Entete(modele.StyleTitre, module.nom, couleur, generation.etat.ProchaineCouleur + kFondBoite);
    rtf += GenererTableau(generation, tableaux, corps, modele.StyleTitre);
  }
  return rtf;
}

std::string ValeurActivite(Generation& generation, const ProducteursTables& p, const std::string& reference,
                           int annee, std::set<std::string>& signales) {
  if (!p.activite || annee < 0 || annee > 13) return {};
  const std::string dossier = DossierDuSlot(generation.session, 0);
  const std::string fichier = FichierActivite(p.activite->numero);
  if (!ResoudreChemin(dossier + fichier)) {
    if (signales.insert(fichier).second) {
      generation.messages.AfficherMessage(
          "TabsActiLibres", "Données des activ. libres animales introuvable !",
          "Le fichier " + fichier +
              " contenant les données à récupérer pour construire le document RTF est introuvable !\n"
              "Répertoire de recherche (dossier Tervol en cours) : " + Cp1252VersUtf8(dossier),
          "", "");
    }
    return "0";
  }
  const ReferenceDecimales lu = LireReferenceDecimales(reference);
  const int32_t record = EntierDe(std::string_view(lu.reference).substr(std::min<std::size_t>(1, lu.reference.size())));
  const SerieDonnees serie = LireEnregistrementSerie(generation.Series(), dossier + fichier, record);
  return FormatNombre(serie.Valeur[static_cast<std::size_t>(annee)], lu.decimales, false);
}

}  // namespace norvane
