// Fuzz target of the settings decoder (Editeur.svg): any bytes decode without
// reading out of bounds, and what was decoded encodes and decodes again to
// the very same file.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "frame/Parametres.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  using namespace norvane;
  const ContenuParametres lu = DecoderParametres(std::string_view(reinterpret_cast<const char*>(data), size));
  if (lu.options.SansAnnotation != 1) std::abort();
  std::string premier;
  if (!EncoderParametres(lu, premier)) std::abort();  // every text decoded fits its record
  std::string second;
  if (!EncoderParametres(DecoderParametres(premier), second) || second != premier) std::abort();
  return 0;
}
