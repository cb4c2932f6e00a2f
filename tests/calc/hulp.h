#pragma once
// Helpers of the calculation tests.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

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

using Getalveld = double ElementRec::*;

/// Each of these fields alone at not-a-number and at both infinities ends the model as Fout 6, and none of
/// them gets into the element's results.
template <typename Model>
void VerwachtFout6Bij(const ElementRec& goed, const std::vector<Getalveld>& velden, Model&& model) {
  ASSERT_EQ(FoutVan([&] {
              ElementRec element = goed;
              model(element);
            }),
            0);
  for (std::size_t v = 0; v < velden.size(); ++v) {
    for (const double waarde : NietEindig) {
      ElementRec element = goed;
      element.*velden[v] = waarde;
      EXPECT_EQ(FoutVan([&] { model(element); }), 6) << "field " << v << " at " << waarde;
      EXPECT_TRUE(IsEindig(element.demp) && IsEindig(element.ruis)) << "field " << v << " at " << waarde;
    }
  }
}

/// These fields play no part: whatever they hold, the results are the same.
template <typename Model>
void VerwachtOngelezen(const ElementRec& goed, const std::vector<Getalveld>& velden, Model&& model) {
  ElementRec gewoon = goed;
  model(gewoon);
  for (std::size_t v = 0; v < velden.size(); ++v) {
    for (const double waarde : {Nan, -Oneindig, 1234.5, 0.0}) {
      ElementRec element = goed;
      element.*velden[v] = waarde;
      EXPECT_EQ(FoutVan([&] { model(element); }), 0) << "field " << v << " at " << waarde;
      EXPECT_EQ(element.demp, gewoon.demp) << "field " << v;
      EXPECT_EQ(element.ruis, gewoon.ruis) << "field " << v;
    }
  }
}

/// One value of one field and the Fout that the model raises for it.
struct FoutRij {
  Getalveld veld;
  double waarde;
  int fout;
};

template <typename Model>
void VerwachtFouten(const ElementRec& goed, const std::vector<FoutRij>& rijen, Model&& model) {
  for (std::size_t r = 0; r < rijen.size(); ++r) {
    ElementRec element = goed;
    element.*rijen[r].veld = rijen[r].waarde;
    EXPECT_EQ(FoutVan([&] { model(element); }), rijen[r].fout) << "row " << r;
    EXPECT_TRUE(IsEindig(element.demp) && IsEindig(element.ruis)) << "row " << r;
  }
}

}  // namespace murvane::proef
