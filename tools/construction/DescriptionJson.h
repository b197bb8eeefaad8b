// The builder's JSON entry point: an installation tree made from readable
// descriptions (texts in UTF-8, written as Windows-1252).
//
// Installation (every key optional; keys starting with "_" are comments):
//   "organisations": [ {Nom, Rue, Ville, Sigle, Telephone, Fax, Logo} ... ]  at most 20
//   "ParamFinal": 0                                  -> ParamLog/Tervol.par
//   "images": [ {"fichier": "ParamLog/Logos/x.png", "largeur", "hauteur", "fond": "#rrggbb",
//                "formes": [ {"rectangle": [x, y, l, h], "couleur"},
//                            {"ellipse": [cx, cy, rx, ry], "angle", "couleur"} ]} ]
//   "catalogues": [ {"fichier": "RES.CFG", "Intitule": title of the tree, "vide": false,
//                    "series": [ {CodeCatalogue, Intitule, Unite, Groupe1, Groupe2, Sorte} ]} ]
//                                                    -> Datacfg/
//   "gabarits": [ {"nom": "CULTURE", "series": [ same entries ]} ]  models of series
//                files that have no catalogue; nothing is written for them
//   "donnees_ini": [ {"section": "Général", "cles": {"key": "value"}} ]  -> Norvane/donnees.INI
//   "dossiers": [ dossier ... ]                      -> Dossier/<nom>/
// In "catalogues", "gabarits" and "dossiers" an element may be the name of a
// JSON file, relative to the description that names it (ChargerDescription).
//
// Dossier:
//   "nom": "DUPONT.TVL"
//   "general": {the fields of DossierGeneral by name; "DescriptionProjet" a
//               text or a list of lines; "Exploitant": {Nom, JA, DateNaissance,
//               Situation} is slot 0, "Associes": [ same ] slots 1 to 10,
//               "NbAssocies" by default their count; "ModeCom": [ {Produit, Mode} ]
//               rows 1 to 6}
//   "series": [ series file ]
//   "cultures": [ {NumCulture, NomCulture, UniteRendement, Derobee, TypeCulture,
//                  "valeurs": {"rendement": [11 values] ...}, "series": series file} ]
//                                                    -> cult.clt, Cult<n>.don
//   "cultures_perennes": [ {NumCultureP, NomCultureP, TypeCultureP, UniteSurface,
//                  UniteRendementP, PleineProduction, DureeAmortissement,
//                  "series", "series_transformation"} ]  -> CltP.cpD, CltP<n>.don, CltP<n>t.don
//   "immobilisations", "subventions": [ {the fields of Immobilisation} ]  -> Immo.imm, Sub.sub
//   "emprunts": [ {the fields of Emprunt} ]          -> Emprunt.emp
//   "plan_financement": [ {the fields of LignePlanFinancement} ]  -> PlanF.fin
//   "activites_libres": [ {"numero", "actif", "Nom", "series"} ], "NumLastMod"
//                                                    -> ModAniLib.ini, AL<nn>AL.don
// A file is written only when its key is given.
//
// Series file: {"fichier": "RES.DON" (implied for crops and activities),
//   "modele": a catalogue's file or a gabarit's name: one record a series of
//             the model, at the number its code ends with, code and
//             "Intitule|Unite" from the model, values zero unless given;
//   "valeurs": {"RES-17": [column 0 (year before the study), year 1, ...]},
//   "enregistrements": [ {"numero", CodeSerie, Intitule, "Valeurs": [...]} ]
//             added to the model's records or replacing them; without
//             "numero", the record after the last one}
#pragma once

#include <string>
#include <vector>

#include "construction/LectureJson.h"
#include "frame/Resultat.h"

namespace norvane::construction {

// What a build noted: `avertissements` are faults of the description (texts
// cut to their field, unknown keys...); `remarques` depend on where the tree
// is built (a "{racine}" path cut to its field).
struct RapportConstruction {
  std::vector<std::string> avertissements;
  std::vector<std::string> remarques;
};

// Writes the whole installation under `racine` (made if needed). Fails on a
// value of the wrong type, a missing name or a file that cannot be written,
// with a text that says where in the description; what was written before
// stays.
Resultat<RapportConstruction> ConstruireInstallation(const Json& description, const std::string& racine);

// Reads a description file and the files it names, into one JSON value.
// Fails, naming the file, when one is missing or not valid JSON.
Resultat<Json> ChargerDescription(const std::string& chemin);

}  // namespace norvane::construction
