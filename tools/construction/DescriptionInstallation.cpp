#include <algorithm>
#include <exception>
#include <filesystem>
#include <fstream>

#include "construction/DescriptionInterne.h"
#include "construction/DescriptionJson.h"
#include "construction/FichiersEtude.h"
#include "construction/FichiersIni.h"
#include "construction/ImagePng.h"
#include "frame/Texte.h"

namespace norvane::construction {
namespace {

std::string Chemin(const std::string& racine, const std::string& relatif) {
  return (std::filesystem::path(racine) / relatif).string();
}

void Organisations(ObjetJson& o, const std::string& racine) {
  if (!o.A("organisations") && !o.A("ParamFinal")) return;
  std::array<Organisation, 20> organisations;
  const auto elements = o.Elements("organisations");
  if (elements.size() > organisations.size()) o.Notes().avertissements.push_back("plus de 20 organisations");
  for (std::size_t i = 0; i < std::min(elements.size(), organisations.size()); ++i) {
    ObjetJson g(*elements[i], "organisation " + std::to_string(i), o.Notes());
    organisations[i] = {g.Texte("Nom", 80),       g.Texte("Rue", 80), g.Texte("Ville", 60), g.Texte("Sigle", 20),
                        g.Texte("Telephone", 20), g.Texte("Fax", 20), g.Texte("Logo", 80)};
    g.Terminer();
  }
  EcrireParamLog(Chemin(racine, "ParamLog/Tervol.par"), organisations, o.Entier16("ParamFinal"));
}

Forme FormeDe(ObjetJson& f) {
  Forme forme;
  const bool ellipse = f.A("ellipse");
  forme.sorte = ellipse ? Forme::Sorte::Ellipse : Forme::Sorte::Rectangle;
  const auto cotes = f.Flottants<4>(ellipse ? "ellipse" : "rectangle");
  forme.x = cotes[0];
  forme.y = cotes[1];
  forme.largeur = cotes[2];
  forme.hauteur = cotes[3];
  forme.angle = f.Double("angle");
  forme.couleur = CouleurDe(f.TexteUtf8("couleur"));
  return forme;
}

void Images(ObjetJson& o, const std::string& racine) {
  for (const Json* element : o.Elements("images")) {
    ObjetJson i(*element, "image", o.Notes());
    DessinPng dessin;
    dessin.largeur = i.Entier32("largeur", 64);
    dessin.hauteur = i.Entier32("hauteur", 64);
    if (i.A("fond")) dessin.fond = CouleurDe(i.TexteUtf8("fond"));
    for (const Json* forme : i.Elements("formes")) {
      ObjetJson f(*forme, "image, forme", o.Notes());
      dessin.formes.push_back(FormeDe(f));
      f.Terminer();
    }
    EcrirePng(Chemin(racine, i.TexteUtf8("fichier")), dessin);
    i.Terminer();
  }
}

std::string NomDe(const Json& element, const char* cle) {
  return element.is_object() && element.contains(cle) && element[cle].is_string() ? element[cle].get<std::string>()
                                                                                  : "";
}

// Catalogues are written to Datacfg/ and, like gabarits, kept as models.
void CataloguesEtGabarits(ObjetJson& o, const std::string& racine, Modeles& modeles) {
  for (const Json* element : o.Elements("gabarits")) {
    ObjetJson g(*element, "gabarit " + NomDe(*element, "nom"), o.Notes());
    modeles[Majuscules(g.TexteUtf8("nom"))] = SeriesModele(g);
    g.Terminer();
  }
  for (const Json* element : o.Elements("catalogues")) {
    ObjetJson c(*element, "catalogue " + NomDe(*element, "fichier"), o.Notes());
    const std::string fichier = c.TexteUtf8("fichier");
    std::vector<SerieModele> entrees = SeriesModele(c);
    EntreeCatalogue tete{fichier.substr(0, fichier.rfind('.')),
                         c.Texte("Intitule", 22),
                         "",
                         "",
                         static_cast<int16_t>(c.Booleen("vide") ? 0 : 1),
                         0};
    std::vector<EntreeCatalogue> enregistrements{tete};
    for (const SerieModele& s : entrees) enregistrements.push_back(s.entree);
    EcrireCatalogue(Chemin(racine, "Datacfg/" + fichier), enregistrements);
    modeles[Majuscules(fichier)] = std::move(entrees);
    c.Terminer();
  }
}

void DonneesIni(ObjetJson& o, const std::string& racine) {
  if (!o.A("donnees_ini")) return;
  std::vector<SectionIni> sections;
  for (const Json* element : o.Elements("donnees_ini")) {
    ObjetJson s(*element, "donnees_ini", o.Notes());
    SectionIni section{s.Texte("section", 0), {}};
    if (const Json* cles = s.Valeur("cles")) {
      for (const auto& [cle, valeur] : cles->items()) {
        const std::string texte = valeur.is_string() ? valeur.get<std::string>() : valeur.dump();
        section.cles.push_back({TexteEtude(cle, 0, "", o.Notes()), TexteEtude(texte, 0, "", o.Notes())});
      }
    }
    s.Terminer();
    sections.push_back(std::move(section));
  }
  EcrireIni(Chemin(racine, "Norvane/donnees.INI"), sections);
}

ErreurLecture Echec(std::string texte, std::string fichier = {}) {
  ErreurLecture erreur;
  erreur.texte = std::move(texte);
  erreur.fichier = std::move(fichier);
  return erreur;
}

Resultat<Json> LireJson(const std::filesystem::path& chemin) {
  std::ifstream flux(chemin);
  if (!flux) return Echec("description introuvable : " + chemin.string(), chemin.string());
  try {
    return Json::parse(flux);
  } catch (const Json::parse_error& erreur) {
    return Echec(chemin.string() + " : JSON invalide : " + erreur.what(), chemin.string());
  }
}

RapportConstruction Construire(const Json& description, const std::string& racine) {
  Journal journal{std::filesystem::absolute(racine).lexically_normal().string(), {}, {}};
  while (journal.racine.size() > 1 && journal.racine.back() == '/') journal.racine.pop_back();
  ObjetJson o(description, "installation", journal);
  std::filesystem::create_directories(racine);
  Images(o, racine);
  Organisations(o, racine);
  Modeles modeles;
  CataloguesEtGabarits(o, racine, modeles);
  DonneesIni(o, racine);
  for (const Json* dossier : o.Elements("dossiers"))
    ConstruireDossier(*dossier, Chemin(racine, "Dossier"), modeles, journal);
  o.Terminer();
  return {std::move(journal.avertissements), std::move(journal.remarques)};
}

}  // namespace

Resultat<RapportConstruction> ConstruireInstallation(const Json& description, const std::string& racine) {
  try {
    return Construire(description, racine);
  } catch (const std::exception& erreur) {  // ErreurDescription, or a file or folder that cannot be made
    return Echec(erreur.what());
  }
}

Resultat<Json> ChargerDescription(const std::string& chemin) {
  const std::filesystem::path fichier(chemin);
  Resultat<Json> description = LireJson(fichier);
  if (!description) return description;
  for (const char* cle : {"catalogues", "gabarits", "dossiers"}) {
    Json& tout = description.Valeur();
    if (!tout.contains(cle) || !tout[cle].is_array()) continue;
    for (Json& element : tout[cle]) {
      if (!element.is_string()) continue;
      Resultat<Json> partie = ChargerDescription((fichier.parent_path() / element.get<std::string>()).string());
      if (!partie) return partie;
      element = std::move(partie.Valeur());
    }
  }
  return description;
}

}  // namespace norvane::construction
