// The tables of one document: the table codes that the interpreter hands
// over, and the state that the tables of this document share. Made with the
// generation and dropped at its end, so nothing of one document leaks into
// the next.
#pragma once

#include <optional>
#include <string>

#include "tables/EtatTableaux.h"
#include "tables/MultiDossier.h"
#include "tables/ProducteursDedies.h"
#include "template/Generation.h"

namespace norvane {

class TableauxDocument : public PortTableaux {
 public:
  // `producteurs`: the crop, asset, activity and Cerfa producers; none gives
  // empty lines and blank cells for them.
  explicit TableauxDocument(PortChoixDossiers& choixDossiers, ProducteursSpeciaux* producteursSpeciaux = nullptr)
      : choix(choixDossiers),
        producteurs(producteursSpeciaux != nullptr ? *producteursSpeciaux : aucunProducteur_) {}

  // "tab..." codes become tables; "culture...", "cultper..." and "actlibr..."
  // go to the producers; anything else is not a table code.
  std::optional<std::string> GenererTableau(Generation& generation, const std::string& code) override;

  EtatTableaux etat;
  PortChoixDossiers& choix;
  ProducteursSpeciaux& producteurs;

 private:
  ProducteursSpeciaux aucunProducteur_;
};

}  // namespace norvane
