// The gph(...) codes of a template during a generation: the code is read
// into the generation's working model (slot 1 of the store, which keeps what
// an earlier code left in the fields a shorter code does not reach), its
// series are read from the dossier, and the chart drawer turns it into the
// RTF picture that takes the code's place.
#pragma once

#include <functional>
#include <optional>
#include <random>
#include <string>

#include "graphs/CodeGraphique.h"
#include "graphs/DessinGraphique.h"
#include "graphs/ModeleGraphique.h"
#include "template/Generation.h"

namespace norvane {

class GraphiquesGeneration : public PortGraphiques {
 public:
  // `dessin`: the chart drawer; null gives an empty value for every chart.
  // `hasard`: numbers in [0, 1) for the colours of series without one; empty
  // takes them from a generator seeded at random.
  explicit GraphiquesGeneration(PortDessinGraphique* dessin, std::function<double()> hasard = {});

  // `code` is the cleaned code, "gph(" body ")". A body without ";" (a code
  // of an old version) is reported and gives an empty value; a faulty body is
  // reported and drawn as far as it goes, or as an empty chart when a number
  // field is not a number or the dossier has more years than its series.
  std::optional<std::string> GenererGraphique(Generation& generation, const std::string& code) override;

  // The working model as the last code left it.
  const ModeleGraphique& ModeleCourant() const { return slot1_; }

 private:
  double Hasard();

  PortDessinGraphique* dessin_;
  std::function<double()> hasard_;
  std::mt19937 generateur_;
  ModeleGraphique slot1_;
};

}  // namespace norvane
