// A generation with scripted ports and a fixed clock (Sunday 22 November 2026,
// 14:05:09 local time), for the tests of the code interpreter.
#pragma once

#include <gtest/gtest.h>

#include <ctime>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "construction/FichiersEtude.h"
#include "frame/Encodage.h"
#include "support/PortsScriptes.h"
#include "template/Generation.h"
#include "template/Interpreteur.h"

namespace norvane::test {

// Rows {input, expected} of a table-driven test.
using Cas = std::vector<std::pair<std::string, std::string>>;

inline const std::string kErreurDetectee = "Erreur détectée :  cliquez Fermer pour continuer";
inline const std::string kConseilModele = "Modifier le modèle de document pour que l'erreur n'apparaisse plus.";

// Windows-1252 bytes of a UTF-8 literal, as the interpreter writes them.
inline std::string Cp(const std::string& utf8) { return Utf8VersCp1252(utf8); }

inline std::time_t MomentLocal(int annee, int mois, int jour, int heure, int minute, int seconde) {
  std::tm t{};
  t.tm_year = annee - 1900;
  t.tm_mon = mois - 1;
  t.tm_mday = jour;
  t.tm_hour = heure;
  t.tm_min = minute;
  t.tm_sec = seconde;
  t.tm_isdst = -1;
  return std::mktime(&t);
}

class BancInterpreteur : public ::testing::Test {
 protected:
  BancInterpreteur() : generation(session, messages, progression, entites) {
    generation.horloge = [this] { return maintenant; };
  }

  // The text after InterpreterPortion (explain mode off).
  std::string Interpreter(std::string texte, bool explication = false) {
    resultat = InterpreterPortion(generation, texte, explication);
    return texte;
  }
  // The value that one code leaves in a text made of that code alone.
  std::string Valeur(const std::string& code) { return Interpreter("#tvl(" + code + ")#"); }
  // Each code of the table gives its value.
  void Valeurs(const Cas& cas) {
    for (const auto& [code, attendu] : cas) EXPECT_EQ(Valeur(code), attendu) << code;
  }
  // The one box shown so far (an empty one when there is none).
  MessageEnregistre Boite() {
    EXPECT_EQ(messages.messages.size(), 1u);
    return messages.messages.empty() ? MessageEnregistre{} : messages.messages.back();
  }

  DossierGeneral& Info() { return session.InfoDossier; }
  void Societe() { session.InfoDossier.TypeExploitation = 1; }
  // Dossier slot 0 is `racine` + "ESSAI.TVL", whose RES.DON holds `series`.
  void DossierEssai(const std::string& racine, const std::vector<SerieDonnees>& series) {
    construction::EcrireSeries(racine + "ESSAI.TVL/RES.DON", series);
    session.RepDossier[0] = racine;
    session.NomDossier[0] = "ESSAI.TVL";
  }

  Session session;
  MessagesScriptes messages;
  ProgressionScriptee progression;
  EntitesCourantes entites;
  Generation generation;
  std::time_t maintenant = MomentLocal(2026, 11, 22, 14, 5, 9);
  int16_t resultat = 0;
};

}  // namespace norvane::test
