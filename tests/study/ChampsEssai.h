// Checking fixed-width records byte by byte: the little-endian bytes of one
// number, and a list of {offset, bytes} rows compared with a record.
#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

#include "construction/EnregistrementFixe.h"

namespace norvane::test {

inline std::string I16(int16_t v) { return construction::EnregistrementFixe(2).Entier16(0, v).Octets(); }
inline std::string I32(int32_t v) { return construction::EnregistrementFixe(4).Entier32(0, v).Octets(); }
inline std::string F32(float v) { return construction::EnregistrementFixe(4).Flottant(0, v).Octets(); }
inline std::string F64(double v) { return construction::EnregistrementFixe(8).Double(0, v).Octets(); }

// One field expected in a record: where it starts and its bytes.
struct Champ {
  std::size_t position;
  std::string octets;
};

inline void VerifierChamps(const std::string& record, std::initializer_list<Champ> champs) {
  for (const Champ& champ : champs) {
    EXPECT_EQ(record.substr(champ.position, champ.octets.size()), champ.octets) << "at byte " << champ.position;
  }
}

}  // namespace norvane::test
