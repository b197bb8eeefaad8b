// The tables and lines that other parts of the table engine build from the
// dossier's own records: crops and perennial crops, assets and loans, free
// activities, and the figures of the Cerfa report. The generator calls them
// through this interface; the defaults give nothing, so until a family is
// filled its lines print nothing and its cells stay blank.
#pragma once

#include <string>
#include <string_view>

namespace norvane {

struct ContexteTableau;
struct Generation;
class TableauxDocument;

class ProducteursSpeciaux {
 public:
  virtual ~ProducteursSpeciaux() = default;

  // A table repeated per crop ("culture..."), perennial crop ("cultper...")
  // or free activity ("actlibr..."): the whole code, its prefix included.
  // The RTF of all the tables, empty when there is nothing to print.
  virtual std::string TableauxParEntite(Generation& /*generation*/, TableauxDocument& /*tableaux*/,
                                        const std::string& /*code*/) {
    return {};
  }

  // The rows of a predefined block, for a line whose definition starts with
  // "cultu", "cultp" or "imemp" (`sorte`). `debutLigne` is the row start
  // ("\plain \trowd..."). Empty, or "VALEURS NULLES", prints nothing.
  virtual std::string LignesPredefinies(ContexteTableau& /*contexte*/, std::string_view /*sorte*/,
                                        const std::string& /*debutLigne*/) {
    return {};
  }

  // The first label of a "scult" line in a per-crop table with heading
  // style 1; `libelle` is what it shows unless the producer says otherwise.
  virtual std::string LibelleSerieCulture(ContexteTableau& /*contexte*/, const std::string& libelle) {
    return libelle;
  }

  // The text of value column `c` of a cell whose definition is of kind
  // `sorte`: "cultu", "cultp" (crop value), "scult", "scltp" (sum over the
  // crops), "ALani" (free activity), "imemp" (a key of the Cerfa report).
  // `reste` is the definition behind its kind, without the display option.
  // Empty reads as 0 and prints blank.
  virtual std::string ValeurSpeciale(ContexteTableau& /*contexte*/, std::string_view /*sorte*/,
                                     const std::string& /*reste*/, int /*c*/) {
    return {};
  }
};

}  // namespace norvane
