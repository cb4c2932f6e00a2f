#include "estimators/plenum.h"

#include <gtest/gtest.h>

#include "tests/estimators/hulp.h"

namespace murvane {
namespace {

using proef::NaamVan;
using proef::VeldVan;
using proef::Waarden;

// Worked outside the program. 600 high, 800 wide, 1.2 m long: distance (1.2 + sqrt(1.44 + 0.36))/2 = 1.27082
// m, surface 1.44 + 1.92 + 0.96 = 4.32 m². Inlet of 250 mm round: 0.0490874 m². 63 Hz with 50 mm:
// -10·log10(0.0490874·(1.2/(2π·2.05237) + 1/0.432)) = 9.2740.
TEST(Plenum, AddsDirectAndReverberantSound) {
  proef::VerwachtZeven(
      Demping(PlenumInvoer{600, 800, 1.2, 250, 0, 50}),
      {9.273967457, 13.97107642, 16.2882206, 17.57453132, 17.7842851, 17.71630065, 17.57453132}, "round");
  proef::VerwachtZeven(
      Demping(PlenumInvoer{600, 800, 1.2, 200, 300, 25}),
      {4.524644812, 9.160527133, 13.54934899, 15.17340691, 16.39320861, 16.55257896, 16.30975622}, "300x200");
  proef::VerwachtZeven(
      Demping(PlenumInvoer{400, 300, 1, 350, 0, 40}),
      {1.048071006, 5.881945088, 8.858201762, 10.37707902, 10.96721324, 10.98346479, 10.78256559}, "small");
}

// 500×500×300 mm with an inlet of 500×499: -12.7 to -5.4 dB by the formula.
TEST(Plenum, NeverMakesABandLouder) {
  EXPECT_EQ(Waarden(cmdOK_Click(PlenumInvoer{500, 500, 0.3, 499, 500, 1}, '.')), "0 0 0 0 0 0 0");
  for (const double demping : Demping(PlenumInvoer{500, 500, 0.3, 499, 500, 1})) EXPECT_EQ(demping, 0);
}

TEST(Plenum, DeliversWholeDecibelsAndTheNameOfTheElement) {
  const SchatUitslag uitslag = cmdOK_Click(PlenumInvoer{600, 800, 1.2, 250, 0, 50}, '.');
  EXPECT_EQ(NaamVan(uitslag), "plenumdemper, 600×800×1200 mm , d = 50 mm"_cp);
  EXPECT_EQ(Waarden(uitslag), "9 14 16 18 18 18 18");
}

// 0.3·1000 and 1.1·1000 are not whole in binary: 300 and 1100.0000000000002.
TEST(Plenum, NamesTheLengthInWholeMillimetres) {
  EXPECT_EQ(NaamVan(cmdOK_Click(PlenumInvoer{600, 800, 0.3, 250, 0, 50}, ',')),
            "plenumdemper, 600×800×300 mm , d = 50 mm"_cp);
  EXPECT_EQ(NaamVan(cmdOK_Click(PlenumInvoer{600, 800, 1.1, 250, 0, 50}, ',')),
            "plenumdemper, 600×800×1100 mm , d = 50 mm"_cp);
}

TEST(Plenum, RefusesInTheOrderOfItsChecks) {
  struct Rij {
    PlenumInvoer invoer;
    const char* veld;
  };
  for (const Rij& rij : std::initializer_list<Rij>{
           {{0, 0, 0, 0, 0, 0}, "Text1"},
           {{0, 800, 1, 200, 0, 50}, "Text1"},
           {{600, 0, 0, 0, 0, 0}, "Text2"},
           {{600, 800, 0, 0, 0, 0}, "Text3"},
           {{600, 800, 1, 0, 900, 0}, "Text4"},    // no inlet
           {{600, 800, 1, 600, 900, 0}, "Text4"},  // as high as the box
           {{600, 800, 1, 599, 801, 0}, "Text5"},  // wider than the box
           {{600, 800, 1, 599, 800, 0}, "Text6"},  // as wide as the box passes; no lining
           {{600, 800, 1, 599, 800, 1}, ""},
           {{600, 800, 1, 599, 800, 300}, "Text6"},  // fills the height
           {{600, 800, 1, 599, 800, 299}, ""},
           {{800, 600, 1, 599, 600, 300}, "Text6"},  // fills the width
           {{800, 600, 1, 599, 600, 299}, ""},
           {{600, 800, 1, 200, 0, 0.5}, "Text6"},  // cannot be typed
       })
    EXPECT_EQ(VeldVan(cmdOK_Click(rij.invoer, '.')), rij.veld)
        << rij.invoer.Hdemper << " " << rij.invoer.Bdemper << " " << rij.invoer.L << " " << rij.invoer.h
        << " " << rij.invoer.B << " " << rij.invoer.Dikte;
}

TEST(Plenum, ABoxWithoutSurfaceIsAFault) {
  EXPECT_THROW((void)Bereken(PlenumInvoer{0, 0, 0, 200, 0, 50}, '.'), Fout);
}

}  // namespace
}  // namespace murvane
