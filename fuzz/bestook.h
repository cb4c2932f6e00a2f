#pragma once
// Fuzz targets for every reader of outside data. Each defines LLVMFuzzerTestOneInput, lets Fout pass as the
// one allowed refusal and traps on anything else that is wrong. With clang they run under libFuzzer; in the
// ordinary build a plain main (herhaal.cpp) replays the kept inputs.

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte);

namespace murvane {

inline void Eis(bool waar) {
  if (!waar) __builtin_trap();
}

inline std::string_view AlsTekst(const std::uint8_t* data, std::size_t lengte) {
  return {reinterpret_cast<const char*>(data), lengte};
}

}  // namespace murvane
