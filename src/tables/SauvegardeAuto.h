// The table editor's automatic save: the window's timer ticks each minute and
// this counter says when the store is due to be saved (silently).
#pragma once

#include <array>
#include <cstdint>

namespace norvane {

// Periods offered to the user, in minutes; 5 when none was chosen yet.
inline constexpr std::array<int16_t, 7> kDelaisSauvegardeAuto = {1, 2, 3, 4, 5, 15, 30};
inline constexpr int16_t kDelaiSauvegardeAutoParDefaut = 5;

class CompteurSauvegardeAuto {
 public:
  // `delai`: the setting DelaiSvgAuto, in minutes; 0 (or below) is off.
  explicit CompteurSauvegardeAuto(int16_t delai = 0) : delai_(delai) {}

  bool Actif() const { return delai_ > 0; }
  int16_t Delai() const { return delai_; }
  int16_t Tics() const { return tics_; }
  // A new period starts counting from zero.
  void Definir(int16_t delai) {
    delai_ = delai;
    tics_ = 0;
  }
  // One minute has gone: true when the count reaches the period, which
  // starts the count again.
  bool Tic() {
    if (!Actif()) return false;
    if (++tics_ < delai_) return false;
    tics_ = 0;
    return true;
  }

 private:
  int16_t delai_ = 0;
  int16_t tics_ = 0;
};

}  // namespace norvane
