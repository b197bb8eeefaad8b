// The table bench with the crop, activity, asset and loan producers plugged
// in, and a one-line model whose line is given.
#pragma once

#include <string>

#include "tables/BancTableaux.h"
#include "tables/ProducteursTables.h"

namespace norvane::test {

inline const std::string kFormatSpecial = "5006;10;1;0;0;0;0;0;r;1;1;1;1;8";

class BancSpeciaux : public BancTableaux {
 protected:
  BancSpeciaux() { generation.tableaux = &speciaux; }

  std::string Dossier() const { return temporaire / "ESSAI.TVL/"; }
  // A table of one label column and one line, red negatives when `rouges`.
  static std::string Code(const std::string& libelle, const std::string& definition, bool rouges = true) {
    return std::string("taba2p1") + (rouges ? "r" : "") + "0;larg2000;larg7200([280;120][" + libelle + ";" +
           kFormatSpecial + "][" + definition + ";" + kFormatSpecial + "])";
  }
  std::string GenererSpecial(const std::string& code) { return GenererTableau(generation, speciaux, code); }
  std::string Interpreter(const std::string& code) { return speciaux.GenererTableau(generation, code).value_or("?"); }

  ProducteursTables producteurs;
  TableauxDocument speciaux{choix, &producteurs};
};

// Occurrences of `motif` in `texte`.
inline int Compter(const std::string& texte, const std::string& motif) {
  int n = 0;
  for (std::size_t p = texte.find(motif); p != std::string::npos; p = texte.find(motif, p + motif.size())) ++n;
  return n;
}

}  // namespace norvane::test
