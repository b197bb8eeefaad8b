// While a per-crop or per-activity table is generated, the producers are the
// generation's current entity; the former one comes back at the end, and
// the crop or module in hand is forgotten.
#pragma once

#include "tables/ProducteursTables.h"
#include "template/Generation.h"

namespace norvane {

class EntiteEnCours {
 public:
  EntiteEnCours(Generation& generation, ProducteursTables& producteurs)
      : generation_(generation), producteurs_(producteurs), ancienne_(generation.entites) {
    generation.entites = &producteurs;
  }
  ~EntiteEnCours() {
    generation_.entites = ancienne_;
    producteurs_.culture.reset();
    producteurs_.culturePerenne.reset();
    producteurs_.activite.reset();
  }
  EntiteEnCours(const EntiteEnCours&) = delete;
  EntiteEnCours& operator=(const EntiteEnCours&) = delete;

 private:
  Generation& generation_;
  ProducteursTables& producteurs_;
  const EntitesCourantes* ancienne_;
};

}  // namespace norvane
