// The crop, perennial crop or free activity that a table is printing at the
// moment. The series reader asks it for the numbered files ("Cult"+n+".don"...)
// and for the names behind the selectors c, n, p and a. The crop and activity
// tables fill it in; with nothing in hand every answer is empty.
#pragma once

#include <string>

namespace norvane {

class EntitesCourantes {
 public:
  virtual ~EntitesCourantes() = default;
  // Numbers as they enter file names: "Cult" + n + ".don", "CltP" + n + ".don",
  // "AL" + nn + "AL.don".
  virtual std::string NumCultureCourante() const { return {}; }
  virtual std::string NumCulturePCourante() const { return {}; }
  virtual std::string NumActivite2Chiffres() const { return {}; }
  // Selector c: crop title; n: crop name.
  virtual std::string TitreCultureCourante() const { return {}; }
  virtual std::string NomCultureCourante() const { return {}; }
  // Selector p then c: perennial crop title; p alone: its name.
  virtual std::string TitreCulturePCourante() const { return {}; }
  virtual std::string NomCulturePCourante() const { return {}; }
  // Selector a: the free activity's name.
  virtual std::string NomActivite() const { return {}; }
};

}  // namespace norvane
