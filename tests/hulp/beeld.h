#pragma once
// File images made by hand: one field at one offset, bytes spelled out without the code under test.

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "basis/tekst.h"

namespace murvane::proef {

/// Puts bytes at an offset of an image, which grows where needed.
inline void Zet(std::string& beeld, std::size_t plaats, std::string_view bytes) {
  if (beeld.size() < plaats + bytes.size()) beeld.resize(plaats + bytes.size(), '#');
  beeld.replace(plaats, bytes.size(), bytes);
}

/// The low `n` bytes of a number, lowest first.
inline std::string KleinEerst(std::uint64_t getal, std::size_t n) {
  std::string uit;
  for (; n > 0; --n, getal /= 256) uit += static_cast<char>(getal % 256);
  return uit;
}

inline std::string I16(int getal) {
  return KleinEerst(static_cast<std::uint64_t>(getal + 65536), 2);
}
inline std::string F64(double getal) {
  return KleinEerst(std::bit_cast<std::uint64_t>(getal), 8);
}

inline std::string Toeval(std::mt19937& bron, std::size_t n) {
  std::string uit(n, '\0');
  for (char& byte : uit) byte = static_cast<char>(bron() % 256);
  return uit;
}

/// Gives every field that it is called with a value of its own, in the record and at its offset in the image.
/// The value follows from the offset, so a field at another's place shows.
class Vuller {
 public:
  explicit Vuller(std::string& beeld) : beeld_(beeld) {}

  template <std::size_t N>
  void operator()(std::size_t plaats, Tekst<N>& veld) const {
    std::string tekst = "Tekst " + std::to_string(plaats);
    veld = tekst.substr(0, N);
    tekst.resize(N, ' ');
    Zet(beeld_, plaats, tekst);
  }
  void operator()(std::size_t plaats, std::int16_t& veld) const {
    veld = static_cast<std::int16_t>(-static_cast<int>(plaats % 30000));
    Zet(beeld_, plaats, I16(veld));
  }
  void operator()(std::size_t plaats, double& veld) const {
    veld = static_cast<double>(plaats) + 1.0 / 3.0;
    Zet(beeld_, plaats, F64(veld));
  }
  void operator()(std::size_t plaats, std::array<double, 8>& veld) const {
    for (std::size_t i = 0; i < 8; ++i) (*this)(plaats + 8 * i, veld[i]);
  }

 private:
  std::string& beeld_;
};

/// The offset of the first field that does not hold what Vuller gives it; -1 when all do.
class Keurder {
 public:
  template <typename T>
  void operator()(std::size_t plaats, T& veld) {
    std::string beeld;
    T goed{};
    Vuller{beeld}(plaats, goed);
    if (veld != goed && Anders < 0) Anders = static_cast<int>(plaats);
  }

  int Anders = -1;
};

}  // namespace murvane::proef
