// The table bench with the Cerfa producers plugged in, a one-line model
// whose line asks for a Cerfa table, and the series that its summaries read.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "cerfa/ProducteursCerfa.h"
#include "construction/FichiersEtude.h"
#include "construction/FichiersTableaux.h"
#include "tables/BancTableaux.h"

namespace norvane::test {

class BancCerfa : public BancTableaux {
 protected:
  BancCerfa() { generation.tableaux = &cerfa; }

  std::string Dossier() const { return temporaire / "ESSAI.TVL/"; }
  // A table whose one line is "imemp:<cle>:0", red negatives when `rouges`.
  std::string Tableau(const std::string& cle, bool rouges = true) {
    const std::string format = "5006;8;1;0;0;0;0;0;r;1;1;1;1;8";
    const std::string code = std::string("taba2p1") + (rouges ? "r" : "") + "0;larg2000;larg7200([280;120][x;" +
                             format + "][imemp:" + cle + ":0;" + format + "])";
    return GenererTableau(generation, cerfa, code);
  }
  // Writes `fichier` with records 1 to the highest given; each record's
  // columns 0 to 5, the others empty.
  void Series(const std::string& fichier, const std::string& nom, const std::map<int, std::vector<float>>& lignes) {
    std::vector<SerieDonnees> series;
    for (int n = 1; n <= lignes.rbegin()->first; ++n) {
      SerieDonnees s = construction::Serie(nom + "-" + std::to_string(n) + ":0", "x|EUR", {});
      if (auto l = lignes.find(n); l != lignes.end()) {
        for (std::size_t c = 0; c < l->second.size(); ++c) s.Valeur[c] = l->second[c];
      }
      series.push_back(s);
    }
    construction::EcrireSeries(Dossier() + fichier, series);
  }

  ProducteursCerfa producteurs;
  TableauxDocument cerfa{choix, &producteurs};
};

// Occurrences of `motif` in `texte`.
inline int Occurrences(const std::string& texte, const std::string& motif) {
  int n = 0;
  for (std::size_t p = texte.find(motif); p != std::string::npos; p = texte.find(motif, p + motif.size())) ++n;
  return n;
}

}  // namespace norvane::test
