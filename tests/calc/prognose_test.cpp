#include "calc/prognose.h"

#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

/// 2 m³/s at 800 Pa: 20 lg 800 + 40 + 10 lg 2 = 101.072099696 dB, plus the efficiency term.
FanRec Ventilator(int type, double vermogen = 2000, double toeren = 0, double schoepen = 0) {
  FanRec fan;
  fan.FanType = static_cast<std::int16_t>(type);
  fan.FanDebiet = 2;
  fan.FanDruk = 800;
  fan.FanVermogen = vermogen;
  fan.FanToeren = toeren;
  fan.FanSchoepen = schoepen;
  fan.Lw = Gevuld(55);
  return fan;
}

constexpr double L80 = 101.07209969647869;  // overall level at an efficiency of 80 %

TEST(BerekenPrognose, EachFanTypeHasItsSpectrum) {
  struct Rij {
    int type;
    Spectrum Lw;
  };
  const Rij rijen[] = {
      // -9 -8 -7 -7 -8 -10 -14
      {1,
       {92.0720996965, 93.0720996965, 94.0720996965, 94.0720996965, 93.0720996965, 91.0720996965,
        87.0720996965, 97.7714735365}},
      // -2 -7 -12 -17 -22 -27 -32
      {2,
       {99.0720996965, 94.0720996965, 89.0720996965, 84.0720996965, 79.0720996965, 74.0720996965,
        69.0720996965, 86.4383255269}},
      // -9 -8 -7 -12 -17 -22 -27
      {3,
       {92.0720996965, 93.0720996965, 94.0720996965, 89.0720996965, 84.0720996965, 79.0720996965,
        74.0720996965, 90.7436652145}},
  };
  for (const Rij& rij : rijen) {
    FanRec fan = Ventilator(rij.type);
    BerekenPrognose(fan);
    VerwachtSpectrum(fan.Lw, rij.Lw, "type " + std::to_string(rij.type));
  }
}

TEST(BerekenPrognose, AnEfficiencyBelowSeventyPercentAddsWholeDecibels) {
  // efficiency = 160000 / power %; the power that gives e is 160000 / e
  struct Rij {
    double vermogen, term;
  };
  const Rij rijen[] = {
      {4000, 12},          // e = 40: 30 · 0.4
      {1600, 0},           // e = 100
      {1230, 0},           // e = 130, taken as 100
      {160000 / 70.0, 0},  // e = 70
      {2560, 3},           // e = 62.5: 3.0
      {160000 / 68.8, 0},  // 0.48
      {160000 / 68.5, 1},  // 0.6
      {16000, 24},         // e = 10
      {1600000, 28},       // e = 0.1: 27.96
      {-2000, 60},         // e = -80: 150 · 0.4
  };
  for (const Rij& rij : rijen) {
    FanRec fan = Ventilator(1, rij.vermogen);
    BerekenPrognose(fan);
    EXPECT_NEAR(fan.Lw[0], L80 - 9 + rij.term, Marge) << rij.vermogen;
  }
}

TEST(BerekenPrognose, AHalfOfTheEfficiencyTermGoesToTheEvenNumber) {
  // 1 m³/s at p Pa and 1600 W: e = p / 16, without rounding errors.
  struct Rij {
    double druk, vermogen, term;
  };
  const Rij rijen[] = {
      {1100, 1600, 0},  // e = 68.75: 0.5
      {900, 1600, 6},   // e = 56.25: 5.5
      {700, 1600, 10},  // e = 43.75: 10.5
      {500, 1600, 16},  // e = 31.25: 15.5
      {300, 1600, 20},  // e = 18.75: 20.5
  };
  for (const Rij& rij : rijen) {
    FanRec fan = Ventilator(1, rij.vermogen);
    fan.FanDebiet = 1;
    fan.FanDruk = rij.druk;
    BerekenPrognose(fan);
    EXPECT_NEAR(fan.Lw[0], 20 * std::log10(rij.druk) + 40 + rij.term - 9, Marge) << rij.druk;
  }
}

TEST(BerekenPrognose, TheBladeFrequencyAddsItsToneToOneBand) {
  struct Rij {
    double frequentie;
    int band;  // -1: none
  };
  const Rij rijen[] = {
      {0, -1},       {44, -1},  {45, -1},      {45.001, 0},  {90, 0},        {90.001, 1},  {180, 1},
      {180.001, 2},  {290, 2},  {355, 2},      {355.001, 3}, {710, 3},       {710.001, 4}, {1400, 4},
      {1400.001, 5}, {2800, 5}, {2800.001, 6}, {5600, 6},    {5600.001, -1}, {1E+6, -1},   {-100, -1},
  };
  for (const int type : {1, 2, 3}) {
    FanRec zonder = Ventilator(type);
    BerekenPrognose(zonder);
    for (const Rij& rij : rijen) {
      FanRec fan = Ventilator(type, 2000, rij.frequentie * 60, 1);
      BerekenPrognose(fan);
      for (std::size_t b = 0; b < Banden; ++b) {
        const double toon = static_cast<int>(b) == rij.band ? (type == 2 ? 3 : 5) : 0;
        EXPECT_NEAR(fan.Lw[b] - zonder.Lw[b], toon, Marge)
            << "type " << type << ", " << rij.frequentie << " Hz";
      }
      EXPECT_EQ(fan.Lw[7] == zonder.Lw[7], rij.band < 0) << rij.frequentie;
    }
  }
}

TEST(BerekenPrognose, BladesTimesRevolutionsGiveTheFrequency) {
  // 1450 rpm with 12 blades: 290 Hz; 4000 W: 12 dB for the efficiency
  FanRec fan = Ventilator(1, 4000, 1450, 12);
  BerekenPrognose(fan);
  VerwachtSpectrum(fan.Lw, {104.072099696479, 105.072099696479, 111.072099696479, 106.072099696479,
                            105.072099696479, 103.072099696479, 99.072099696479, 110.292033133});
}

TEST(BerekenPrognose, ImpossibleValuesAreFaultsAndLeaveTheLevel) {
  struct Rij {
    double FanRec::*veld;
    double waarde;
    int fout;
  };
  const Rij rijen[] = {
      {&FanRec::FanVermogen, 0, 11},
      {&FanRec::FanDruk, 0, 5},
      {&FanRec::FanDruk, -5, 5},
      {&FanRec::FanDebiet, 0, 5},
      {&FanRec::FanDebiet, -5, 5},
      {&FanRec::FanVermogen, 1E-306, 6},
      {&FanRec::FanDruk, 1E+308, 6},
      {&FanRec::FanToeren, 1E+308, 6},
      {&FanRec::FanVermogen, Nan, 6},
      {&FanRec::FanVermogen, Oneindig, 6},
      {&FanRec::FanVermogen, -Oneindig, 6},
      {&FanRec::FanDruk, Nan, 6},
      {&FanRec::FanDruk, Oneindig, 6},
      {&FanRec::FanDruk, -Oneindig, 6},
      {&FanRec::FanDebiet, Nan, 6},
      {&FanRec::FanDebiet, Oneindig, 6},
      {&FanRec::FanDebiet, -Oneindig, 6},
      {&FanRec::FanToeren, Nan, 6},
      {&FanRec::FanToeren, Oneindig, 6},
      {&FanRec::FanToeren, -Oneindig, 6},
      {&FanRec::FanSchoepen, Nan, 6},
      {&FanRec::FanSchoepen, Oneindig, 6},
      {&FanRec::FanSchoepen, -Oneindig, 6},
  };
  for (const Rij& rij : rijen) {
    FanRec fan = Ventilator(1, 2000, 1450, 12);
    fan.*rij.veld = rij.waarde;
    EXPECT_EQ(FoutVan([&] { BerekenPrognose(fan); }), rij.fout) << "row " << &rij - rijen;
    EXPECT_EQ(fan.Lw, Gevuld(55)) << "row " << &rij - rijen;
  }
}

TEST(BerekenPrognose, AFanTypeOutsideOneToThreeIsAFault) {
  for (const int type : {0, 4, -1, 32767}) {
    FanRec fan = Ventilator(type);
    EXPECT_EQ(FoutVan([&] { BerekenPrognose(fan); }), 9) << type;
    EXPECT_EQ(fan.Lw, Gevuld(55));
  }
}

}  // namespace
}  // namespace murvane
