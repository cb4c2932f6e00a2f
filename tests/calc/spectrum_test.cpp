#include "calc/spectrum.h"

#include <gtest/gtest.h>

#include <cmath>

#include "calc/rekenkunde.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

TEST(Octaafbanden, HaveTheirFixedValues) {
  struct Rij {
    double frequentie, breedte, weging;
    std::string_view label;
  };
  const Rij rijen[] = {
      {63, 45, -26.2, "   63 "},   {125, 90, -16.1, "  125 "}, {250, 175, -8.6, "  250 "},
      {500, 355, -3.2, "  500 "},  {1000, 690, 0, " 1000 "},   {2000, 1400, 1.2, " 2000 "},
      {4000, 2800, 1.0, " 4000 "},
  };
  for (std::size_t b = 0; b < Banden; ++b) {
    EXPECT_EQ(Frequentie[b], rijen[b].frequentie);
    EXPECT_EQ(BandBreedte[b], rijen[b].breedte);
    EXPECT_EQ(AWeging[b], rijen[b].weging);
    EXPECT_EQ(BandLabel[b], rijen[b].label);
    // 10 lg of the width; for 45 Hz 16.532...
    EXPECT_EQ(BandBreedteNiveau()[b], 10 * (std::log(rijen[b].breedte) / std::log(10.0)));
  }
  EXPECT_EQ(BandLabel[7], " dB(A)");
  EXPECT_EQ(Pi, 4 * std::atan(1.0));
}

TEST(Rekenkunde, LogarithmsAreQuotientsOfNaturalOnes) {
  // ln 1000 / ln 10 falls one bit short of 3, and ln 2^29 / ln 2 one above 29; a library logarithm would not.
  EXPECT_EQ(Log10(1000), std::log(1000.0) / std::log(10.0));
  EXPECT_NE(Log10(1000), 3);
  EXPECT_EQ(Log2(536870912), std::log(536870912.0) / std::log(2.0));
  EXPECT_NE(Log2(536870912), 29);
}

TEST(Rekenkunde, FaultsAreRaisedWhereTheyHappen) {
  const double groot = std::numeric_limits<double>::max();
  struct Rij {
    int fout;
    void (*doe)(double);
    double waarde;
  };
  constexpr auto ln = [](double x) { (void)Ln(x); };
  constexpr auto log10 = [](double x) { (void)Log10(x); };
  constexpr auto log2 = [](double x) { (void)Log2(x); };
  constexpr auto macht = [](double x) { (void)Macht10(x); };
  constexpr auto wortel = [](double x) { (void)Wortel(x); };
  constexpr auto door = [](double x) { (void)Deel(1, x); };
  constexpr auto deel = [](double x) { (void)Deel(x, 0.5); };
  constexpr auto eindig = [](double x) { (void)Eindig(x); };
  constexpr auto eis = [](double x) { EisEindig({1, x, 2}); };
  const Rij rijen[] = {
      {5, ln, 0},
      {5, ln, -0.0},
      {5, ln, -1},
      {6, ln, Nan},
      {6, ln, Oneindig},
      {6, ln, -Oneindig},
      {0, ln, 5E-324},
      {0, ln, groot},
      {5, log10, 0},
      {6, log10, -Oneindig},
      {5, log2, -2},
      {6, log2, Nan},
      {0, macht, 308.2},
      {6, macht, 308.3},
      {6, macht, Nan},
      {0, macht, -400},
      {6, macht, -Oneindig},
      {6, macht, Oneindig},
      {0, wortel, 0},
      {5, wortel, -1E-300},
      {6, wortel, Nan},
      {6, wortel, -Oneindig},
      {6, wortel, Oneindig},
      {11, door, 0},
      {11, door, -0.0},
      {6, door, 5E-324},
      {6, door, Nan},
      {6, door, Oneindig},
      {6, door, -Oneindig},
      {6, deel, groot},
      {6, deel, Nan},
      {6, deel, -Oneindig},
      {0, deel, groot / 2},
      {6, eindig, Nan},
      {6, eindig, -Oneindig},
      {0, eindig, groot},
      {6, eis, Nan},
      {6, eis, Oneindig},
      {6, eis, -Oneindig},
      {0, eis, 0},
  };
  for (const Rij& rij : rijen)
    EXPECT_EQ(FoutVan([&] { rij.doe(rij.waarde); }), rij.fout)
        << "row " << &rij - rijen << ": " << rij.waarde;
}

TEST(EnergetischeSom, SkipsBandsAtZeroAndWeighsTheOthers) {
  struct Rij {
    Spectrum banden;
    double metA, zonder;
  };
  const Rij rijen[] = {
      {{}, 0, 0},
      {{80}, 53.8, 80},                              // 80 - 26.2
      {{0, 0, 0, 0, 0, 0, 70}, 71, 70},              // 70 + 1.0
      {{60, 60}, 44.304930495246, 63.010299956640},  // 10 lg(10^3.38 + 10^4.39); 60 + 10 lg 2
      {{0, 0, 0, 0, -10}, -10, -10},                 // a negative level takes part
      {{0, 0, 0, 0, -10, 0, -10}, -6.460981089561, -6.989700043360},  // 10 lg(0.1 + 10^-0.9); -10 + 10 lg 2
      // 10 lg(10^3.38 + 10^-1.91 + 10^4.93 + 10^4.8 + 10^0.13 + 10^-1.9); the band at 0 adds nothing
      {{60, -3, 0, 52.5, 48, 0.1, -20}, 51.778530733327, 60.937456075321},
  };
  for (const Rij& rij : rijen) {
    EXPECT_NEAR(EnergetischeSom(rij.banden, true), rij.metA, Marge);
    EXPECT_NEAR(EnergetischeSom(rij.banden, false), rij.zonder, Marge);
  }
}

TEST(EnergetischeSom, ANegativeZeroIsZeroToo) {
  EXPECT_EQ(EnergetischeSom(Gevuld(-0.0), true), 0);
}

TEST(EnergetischeSom, NeverReadsTheLastSlot) {
  Spectrum banden{50, 50, 50, 50, 50, 50, 50, 999};
  const double som = EnergetischeSom(banden, false);
  EXPECT_NEAR(som, 58.450980400143, Marge);  // 50 + 10 lg 7
  for (const double waarde : NietEindig) {
    banden[7] = waarde;
    EXPECT_EQ(EnergetischeSom(banden, false), som);
  }
}

TEST(EnergetischeSom, IsZeroWhereEveryPowerUnderflows) {
  EXPECT_EQ(EnergetischeSom(Gevuld(-4000), true), 0);
}

TEST(EnergetischeSom, RefusesBandsThatAreNotFiniteOrTooLarge) {
  for (std::size_t b = 0; b < Banden; ++b) {
    for (const double waarde : {Nan, Oneindig, -Oneindig, 3200.0}) {
      Spectrum banden = Gevuld(40);
      banden[b] = waarde;
      EXPECT_EQ(FoutVan([&] { (void)EnergetischeSom(banden, true); }), 6) << b << ": " << waarde;
    }
  }
  // Each power fits (10^308.2), their sum of 7 does not.
  EXPECT_EQ(FoutVan([] { (void)EnergetischeSom(Gevuld(3082), false); }), 6);
}

TEST(Oppervlak, IsInSquareMetres) {
  EXPECT_NEAR(Oppervlak(200, 200, false), 0.04, 1e-15);
  EXPECT_NEAR(Oppervlak(300, 500, false), 0.15, 1e-15);
  EXPECT_NEAR(Oppervlak(200, 0, true), 0.031415926535898, 1e-14);  // 0.1² pi
  EXPECT_EQ(Oppervlak(200, 0, false), 0);
  EXPECT_EQ(Oppervlak(200, Nan, true), Oppervlak(200, 0, true));  // the width plays no part
}

TEST(Oppervlak, RefusesAnOverflow) {
  EXPECT_EQ(FoutVan([] { (void)Oppervlak(1E+200, 1E+200, false); }), 6);
  EXPECT_EQ(FoutVan([] { (void)Oppervlak(1E+200, 0, true); }), 6);
  EXPECT_EQ(FoutVan([] { (void)Oppervlak(Nan, 1, false); }), 6);
}

TEST(EquivDiameter, IsThatOfACircleOfTheSameArea) {
  EXPECT_NEAR(EquivDiameter(200, 200), 225.675833419103, 1e-9);  // sqrt(160000 / pi)
  EXPECT_NEAR(EquivDiameter(300, 300), 338.513750128654, 1e-9);
  EXPECT_EQ(EquivDiameter(0, 300), 0);
  EXPECT_EQ(FoutVan([] { (void)EquivDiameter(-1, 300); }), 5);
  EXPECT_EQ(FoutVan([] { (void)EquivDiameter(1E+300, 1E+300); }), 6);
  EXPECT_EQ(FoutVan([] { (void)EquivDiameter(-1E+300, 1E+300); }), 6);
}

struct KrommeRij {
  double x, waarde;
};

TEST(BochtKromme, EveryPieceIncludesItsUpperBound) {
  const KrommeRij rijen[] = {
      {0.5, 16.899981322302},            // -15.613 lg 0.5 + 12.2
      {0.99, 12.268147706748},           // -15.613 lg 0.99 + 12.2
      {1, 12.2},                         // both neighbours meet here
      {1.01, 12.123917893183},           // -17.606 lg 1.01 + 12.2
      {1.5, 9.099737293066},             // -17.606 lg 1.5 + 12.2
      {2, 6.900065896340},               // -17.606 lg 2 + 12.2
      {NetBoven(2), 6.900118610956},     // -23.283 lg 2 + 13.909
      {2.5, 4.643762778089},             // -23.283 lg 2.5 + 13.909
      {3, 2.800185826362},               // -23.283 lg 3 + 13.909
      {NetBoven(3), 2.800235560478},     // -22.411 lg 3 + 13.493
      {3.5, 1.299891058066},             // -22.411 lg 3.5 + 13.493
      {4, 0.000233534349},               // -22.411 lg 4 + 13.493
      {NetBoven(4), 0.000545387143},     // -21.58 lg 4 + 12.993
      {5, -2.090772693571},              // -21.58 lg 5 + 12.993
      {6, -3.799503983279},              // -21.58 lg 6 + 12.993
      {NetBoven(6), -3.800093862184},    // -25.242 lg 6 + 15.842
      {8, -6.953797451651},              // -25.242 lg 8 + 15.842
      {9.99, -9.389032053800},           // -25.242 lg 9.99 + 15.842
      {10, -9.4},                        // both neighbours meet here
      {10.01, -9.410846293976},          // -24.987 lg 10.01 + 15.587
      {12, -11.378501794992},            // -24.987 lg 12 + 15.587
      {15, -13.799992290024},            // -24.987 lg 15 + 15.587
      {NetBoven(15), -13.799600371988},  // -29.897 lg 15 + 21.362
      {1000, -68.329},                   // -29.897 · 3 + 21.362
  };
  for (const auto& rij : rijen) EXPECT_NEAR(BochtKromme(rij.x), rij.waarde, Marge) << rij.x;
}

TEST(RoosterKromme, EveryPieceIncludesItsUpperBound) {
  const KrommeRij rijen[] = {
      {1, 13.486},
      {6.3, 7.909761159914},            // -2.1 · 2.655352 + 13.486
      {NetBoven(6.3), 7.904541134815},  // -1.02 · 2.655352 + 10.613
      {10, 7.224633343215},             // -1.02 · 3.321928 + 10.613
      {12.5, 6.896266686430},           // -1.02 · 3.643856 + 10.613
      {NetBoven(12.5), 6.9},
      {12.6, 6.9},
      {25, 6.9},
      {NetBoven(25), 6.898771237955},    // 0.2 · 4.643856 + 5.97
      {40, 7.034385618977},              // 0.2 · 5.321928 + 5.97
      {50, 7.098771237955},              // 0.2 · 5.643856 + 5.97
      {NetBoven(50), 7.113496664212},    // 3.5 · 5.643856 - 12.64
      {70, 8.812490559307},              // 3.5 · 6.129283 - 12.64
      {100, 10.613496664212},            // 3.5 · 6.643856 - 12.64
      {NetBoven(100), 10.600849518198},  // 8 · 6.643856 - 42.55
      {150, 15.280549523967},            // 8 · 7.228819 - 42.55
      {200, 18.600849518198},            // 8 · 7.643856 - 42.55
      {NetBoven(200), 18.596104373657},  // 10.4 · 7.643856 - 60.9
      {300, 24.679714381157},            // 10.4 · 8.228819 - 60.9
      {400, 28.996104373657},            // 10.4 · 8.643856 - 60.9
      {NetBoven(400), 29.002418087522},  // 11 · 8.643856 - 66.08
      {1000, 43.543627131283},           // 11 · 9.965784 - 66.08
  };
  for (const auto& rij : rijen) EXPECT_NEAR(RoosterKromme(rij.x), rij.waarde, Marge) << rij.x;
}

TEST(Krommen, AreFaultsOutsideTheirDomain) {
  for (const double x : {0.0, -0.0, -3.0}) {
    EXPECT_EQ(FoutVan([&] { (void)BochtKromme(x); }), 5) << x;
    EXPECT_EQ(FoutVan([&] { (void)RoosterKromme(x); }), 5) << x;
  }
  for (const double x : NietEindig) {
    EXPECT_EQ(FoutVan([&] { (void)BochtKromme(x); }), 6) << x;
    EXPECT_EQ(FoutVan([&] { (void)RoosterKromme(x); }), 6) << x;
  }
}

}  // namespace
}  // namespace murvane
