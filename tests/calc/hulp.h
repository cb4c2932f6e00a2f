#pragma once
// Helpers of the calculation tests.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "basis/fout.h"
#include "calc/resultaten.h"
#include "project/records.h"

namespace murvane::proef {

inline constexpr double Nan = std::numeric_limits<double>::quiet_NaN();
inline constexpr double Oneindig = std::numeric_limits<double>::infinity();
/// The three numbers that a file can hold and a calculation must refuse.
inline constexpr std::array<double, 3> NietEindig = {Nan, Oneindig, -Oneindig};

/// How far a level may be from the hand-worked one, dB.
inline constexpr double Marge = 1e-9;

using Bandwaarden = std::array<double, Banden>;

/// The number of the Fout that `doe` raises; 0 when it raises none.
template <typename Doe>
int FoutVan(Doe&& doe) {
  try {
    doe();
  } catch (const Fout& fout) {
    return static_cast<int>(fout.Nummer());
  }
  return 0;
}

inline void VerwachtBanden(const Spectrum& spectrum, const Bandwaarden& verwacht,
                           const std::string& wat = {}) {
  for (std::size_t b = 0; b < Banden; ++b)
    EXPECT_NEAR(spectrum[b], verwacht[b], Marge) << wat << " band " << b;
}

inline void VerwachtSpectrum(const Spectrum& spectrum, const Spectrum& verwacht,
                             const std::string& wat = {}) {
  for (std::size_t b = 0; b < spectrum.size(); ++b)
    EXPECT_NEAR(spectrum[b], verwacht[b], Marge) << wat << " slot " << b;
}

inline Spectrum Gevuld(double waarde) {
  Spectrum uit{};
  uit.fill(waarde);
  return uit;
}

inline bool IsEindig(const Spectrum& spectrum) {
  for (const double waarde : spectrum) {
    if (!std::isfinite(waarde)) return false;
  }
  return true;
}

/// Four texts of 20 characters, each padded with blanks.
inline void VerwachtTekst(const ElementTekstRijen& rijen, const std::array<std::string_view, 4>& verwacht) {
  for (std::size_t r = 0; r < rijen.size(); ++r) {
    std::string vol(verwacht[r]);
    vol.resize(20, ' ');
    EXPECT_EQ(rijen[r].Heel(), vol) << "row " << r + 1;
  }
}

/// The bound that a table includes, and the nearest number above it.
inline double NetBoven(double grens) {
  return std::nextafter(grens, Oneindig);
}

}  // namespace murvane::proef
