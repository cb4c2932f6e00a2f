#include "calc/ruimte.h"

#include <functional>

#include "calc/spectrum.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

/// A room of 5 x 4 x 3 m with 0.5 s: V = 60, A = 60 / 3 = 20 m², 10 lg (4 / A) = -6.98970004336 dB.
Project Kamer(int type) {
  Project p;
  p.Kop.RekenType = static_cast<std::int16_t>(type);
  p.Fan.Lw = {90, 88, 86, 84, 82, 80, 78, 89};
  p.ElementCount = 2;
  p.Elementen[1].Hoogte = 200, p.Elementen[1].Breedte = 500;
  p.Elementen[1].demp = {1, 2, 3, 4, 5, 6, 7, 99};
  p.Elementen[2].Lengte = 4;
  p.Elementen[2].demp = {10, 10, 0, 0.5, -1, 0, 0, 99};
  p.Elementen[3].demp = Gevuld(50);  // behind the chain
  p.Elementen[0].demp = Gevuld(50);
  RuimteRec& r = p.Ruimte;
  r.RLengte = 5, r.RBreedte = 4, r.RHoogte = 3, r.RNagalm = 0.5;
  r.RVolume = 12345;
  r.RDI = 2, r.RAantal = 2;
  return p;
}

Resultaten Oud() {
  Resultaten r;
  for (Spectrum* s : {&r.LwKanaalwand, &r.LwEind, &r.FanNaDemping, &r.SysteemGeluid, &r.SysteemDemping,
                      &r.OverspraakDemping, &r.LpGalmveld, &r.LpEenMeter})
    s->fill(33);
  return r;
}

constexpr double Galm = -6.989700043360;

// ---- EindResult ----

TEST(EindResult, SumsTheAttenuationOfTheChain) {
  for (const int type : {1, 2, 3, 0, 4}) {
    const Project p = Kamer(type);
    Resultaten r = Oud();
    EindResult(p, r);
    VerwachtBanden(r.SysteemDemping, {11, 12, 3, 4.5, 4, 6, 7}, "type " + std::to_string(type));
  }
}

TEST(EindResult, WithoutElementsNothingIsTakenOff) {
  for (const int lengte : {0, -1}) {  // a count below 0 can only come from a file
    Project p = Kamer(1);
    p.ElementCount = static_cast<std::int16_t>(lengte);
    Resultaten r = Oud();
    r.LwEind = p.Fan.Lw;
    EindResult(p, r);
    VerwachtBanden(r.SysteemDemping, {0, 0, 0, 0, 0, 0, 0}, std::to_string(lengte));
    VerwachtBanden(r.FanNaDemping, {90, 88, 86, 84, 82, 80, 78}, std::to_string(lengte));
  }
}

TEST(EindResult, WithoutFanOnlyTheAttenuationIsWorkedOut) {
  for (const int type : {3, 0, 4, -2}) {
    Resultaten r = Oud();
    EindResult(Kamer(type), r);
    EXPECT_EQ(r.SysteemDemping[7], 0) << type;
    EXPECT_EQ(r.FanNaDemping, Spectrum{}) << type;
    EXPECT_EQ(r.SysteemGeluid, Spectrum{}) << type;
  }
}

TEST(EindResult, SeparatesTheFanFromTheSystemsOwnNoise) {
  for (const int type : {1, 2}) {
    const Project p = Kamer(type);
    Resultaten r = Oud();
    r.LwEind = {80, 76, 83, 90, 79, 74, 71, 1};
    EindResult(p, r);
    VerwachtBanden(r.FanNaDemping, {79, 76, 83, 79.5, 78, 74, 71});
    const double fanA = EnergetischeSom({79, 76, 83, 79.5, 78, 74, 71}, true);
    EXPECT_NEAR(r.FanNaDemping[7], fanA, Marge);
    EXPECT_NEAR(r.SysteemDemping[7], 89 - fanA, Marge);
    // 10 lg (10^8 - 10^7.9) = 73.131687; no difference gives -50, and 0 after the dB(A) sum;
    // 10 lg (10^9 - 10^7.95) = 89.594731; 10 lg (10^7.9 - 10^7.8) = 72.131687
    const double a = 10 * std::log10(1E+8 - std::pow(10, 7.9));
    const double d = 10 * std::log10(1E+9 - std::pow(10, 7.95));
    const double e = 10 * std::log10(std::pow(10, 7.9) - std::pow(10, 7.8));
    VerwachtBanden(r.SysteemGeluid, {a, 0, 0, d, e, 0, 0});
    EXPECT_NEAR(r.SysteemGeluid[7], EnergetischeSom({a, -50, -50, d, e, -50, -50}, true), 1e-6);
  }
}

TEST(EindResult, TheSumsAreTakenBeforeNegativeBandsBecomeZero) {
  Project p = Kamer(1);
  p.Fan.Lw = Gevuld(-5);
  p.ElementCount = 0;
  Resultaten r = Oud();
  r.LwEind = Gevuld(-8);  // below the fan: the smallest power in every band
  EindResult(p, r);
  EXPECT_EQ(r.FanNaDemping, (Spectrum{0, 0, 0, 0, 0, 0, 0, r.FanNaDemping[7]}));
  EXPECT_NEAR(r.FanNaDemping[7], 1.253944231224, Marge);  // -5 + 10 lg of the sum of the weightings
  EXPECT_EQ(r.SysteemGeluid, Spectrum{}) << "-50 and their sum, -43, are below 0";
  // -5 - 1.25
  EXPECT_NEAR(r.SysteemDemping[7], -5 - r.FanNaDemping[7], Marge);
}

TEST(EindResult, ASumBelowZeroBecomesZeroAfterTheSystemsAttenuationIsKnown) {
  Project p = Kamer(1);
  p.Fan.Lw = {-30, 0, 0, 0, 0, 0, 0, -56.2};
  p.ElementCount = 1;
  p.Elementen[1].demp = {4, 0, 0, 0, 0, 0, 0, 0};
  Resultaten r = Oud();
  r.LwEind = {};
  EindResult(p, r);
  EXPECT_NEAR(r.SysteemDemping[7], 4, Marge);  // -56.2 - (-60.2)
  EXPECT_EQ(r.FanNaDemping[7], 0);
}

TEST(EindResult, RefusesFieldsThatAreNotFinite) {
  for (const double waarde : NietEindig) {
    for (const int type : {1, 2, 3, 0}) {
      Project p = Kamer(type);
      p.Elementen[2].demp[6] = waarde;
      Resultaten r = Oud();
      r.LwEind = Gevuld(60);
      EXPECT_EQ(FoutVan([&] { EindResult(p, r); }), 6) << waarde << ", type " << type;
      EXPECT_TRUE(IsEindig(r.SysteemDemping));
    }
    for (const std::size_t slot : {0U, 6U, 7U}) {
      Project p = Kamer(1);
      p.Fan.Lw[slot] = waarde;
      Resultaten r = Oud();
      EXPECT_EQ(FoutVan([&] { EindResult(p, r); }), 6) << waarde << ", slot " << slot;
      EXPECT_TRUE(IsEindig(r.FanNaDemping) && IsEindig(r.SysteemDemping));
      p.Kop.RekenType = 3;
      EXPECT_EQ(FoutVan([&] { EindResult(p, r); }), 0) << "the fan plays no part";
    }
  }
}

TEST(EindResult, AnOverflowIsAFault) {
  Project p = Kamer(3);
  p.Elementen[1].demp[0] = p.Elementen[2].demp[0] = 1.5E+308;
  Resultaten r = Oud();
  EXPECT_EQ(FoutVan([&] { EindResult(p, r); }), 6);
  p = Kamer(1);
  r.LwEind[2] = 3100;
  EXPECT_EQ(FoutVan([&] { EindResult(p, r); }), 6);
  p.ElementCount = 501;
  EXPECT_EQ(FoutVan([&] { EindResult(p, r); }), 9);
}

// ---- RuimteDemping ----

TEST(RuimteDemping, InstallatiegeluidCountsTheOutletsInTheReverberantFieldOnly) {
  const Project p = Kamer(1);
  Resultaten r = Oud();
  r.LwEind = {60, 55, 50, 45, 0, 35, -30, 33};
  RuimteDemping(p, r);
  // + 10 lg 2 = 3.010299956640; 10 lg (2 / (4 pi) + 0.2) = -4.447181519433
  for (std::size_t b = 0; b < Banden; ++b) {
    EXPECT_NEAR(r.LpGalmveld[b], r.LwEind[b] + Galm + 3.010299956640, Marge);
    EXPECT_NEAR(r.LpEenMeter[b], r.LwEind[b] - 4.447181519433, Marge);
  }
  EXPECT_EQ(r.LpGalmveld[7], EnergetischeSom(r.LpGalmveld, true));
  EXPECT_EQ(r.LpEenMeter[7], EnergetischeSom(r.LpEenMeter, true));
  EXPECT_EQ(r.OverspraakDemping, Spectrum{});
}

TEST(RuimteDemping, AFreeFieldHasNoReverberationAndOneOutlet) {
  Project p = Kamer(1);
  p.VrijVeld = 1;
  p.Ruimte.RLengte = p.Ruimte.RNagalm = p.Ruimte.RAantal = 0;
  Resultaten r = Oud();
  r.LwEind = Gevuld(60);
  RuimteDemping(p, r);
  EXPECT_NEAR(r.LpGalmveld[0], 60 - 193.979400086720, Marge);  // 10 lg 4E-20
  EXPECT_NEAR(r.LpEenMeter[0], 60 - 7.981798683581, Marge);    // 10 lg (2 / (4 pi))
}

TEST(RuimteDemping, WithoutElementsTheUnusedSlotsStandForFirstAndLast) {
  Project p = Kamer(1);
  p.ElementCount = 0;
  p.Elementen[0].Lengte = 8;  // the last of no elements
  Resultaten r = Oud();
  r.LwEind = r.LwKanaalwand = Gevuld(60);
  r.SysteemDemping.fill(0);
  RuimteDemping(p, r);
  EXPECT_NEAR(r.LpGalmveld[0], 60 + Galm + 3.010299956640, Marge);
  p.Kop.RekenType = 2;
  RuimteDemping(p, r);
  EXPECT_NEAR(r.LpEenMeter[0], 60 + 10 * std::log10(2 / (16 * Pi) + 0.2), Marge);
  p.Kop.RekenType = 3;  // its section is that of element 1, which is there though it is not in use
  RuimteDemping(p, r);
  EXPECT_NEAR(r.OverspraakDemping[0], 20.0, Marge);
}

TEST(RuimteDemping, OnlyAFlagOfExactlyOneIsAFreeField) {
  for (const int vlag : {-1, 2, 256, 0}) {
    Project p = Kamer(1);
    p.VrijVeld = static_cast<std::int16_t>(vlag);
    Resultaten r = Oud();
    r.LwEind = Gevuld(60);
    RuimteDemping(p, r);
    EXPECT_NEAR(r.LpGalmveld[0], 60 + Galm + 3.010299956640, Marge) << vlag;
  }
}

TEST(RuimteDemping, GeluidsuitstralingIsALineSourceWithoutOutlets) {
  Project p = Kamer(2);
  for (const double aantal : {2.0, 0.0, 40.0}) {
    p.Ruimte.RAantal = aantal;
    Resultaten r = Oud();
    r.LwKanaalwand = {60, 55, 50, 45, 0, 35, -30, 33};
    RuimteDemping(p, r);
    // 10 lg (2 / (2 pi · 4) + 0.2) = 10 lg 0.2795774715 = -5.534981...
    const double direct = 10 * std::log10(2 / (8 * Pi) + 0.2);
    for (std::size_t b = 0; b < Banden; ++b) {
      EXPECT_NEAR(r.LpGalmveld[b], r.LwKanaalwand[b] + Galm, Marge);
      EXPECT_NEAR(r.LpEenMeter[b], r.LwKanaalwand[b] + direct, Marge);
    }
    EXPECT_EQ(r.LpGalmveld[7], EnergetischeSom(r.LpGalmveld, true));
    EXPECT_EQ(r.LpEenMeter[7], EnergetischeSom(r.LpEenMeter, true));
    EXPECT_EQ(r.OverspraakDemping, Spectrum{});
  }
}

TEST(RuimteDemping, GeluidsuitstralingKnowsTheFreeFieldToo) {
  Project p = Kamer(2);
  p.VrijVeld = 1;
  p.Ruimte.RNagalm = p.Ruimte.RAantal = p.Ruimte.RHoogte = 0;
  Resultaten r = Oud();
  r.LwKanaalwand = Gevuld(60);
  RuimteDemping(p, r);
  EXPECT_NEAR(r.LpGalmveld[0], 60 - 193.979400086720, Marge);
  EXPECT_NEAR(r.LpEenMeter[0], 60 + 10 * std::log10(1 / (4 * Pi)), Marge);
}

TEST(RuimteDemping, OverspraakTakesSectionAbsorptionAndOutletsOff) {
  // S1 = 0.1: - 10 lg 0.025 = 16.020599913280; + 6.989700043360; - 3.010299956640
  for (const int vrij : {0, 1}) {  // a free field has no effect
    Project p = Kamer(3);
    p.VrijVeld = static_cast<std::int16_t>(vrij);
    Resultaten r = Oud();
    r.SysteemDemping = {11, 12, 3, 4.5, 4, 6, 7, 33};
    RuimteDemping(p, r);
    for (std::size_t b = 0; b < Banden; ++b)
      EXPECT_NEAR(r.OverspraakDemping[b], r.SysteemDemping[b] + 20.0, Marge);
    EXPECT_EQ(r.OverspraakDemping[7], 0);
    EXPECT_EQ(r.LpGalmveld, Spectrum{});
    EXPECT_EQ(r.LpEenMeter, Spectrum{});
  }
}

TEST(RuimteDemping, TheFirstElementIsRoundByAWidthOfExactlyZero) {
  Project p = Kamer(3);
  p.Elementen[1].Breedte = 0;
  Resultaten r = Oud();
  r.SysteemDemping.fill(0);
  RuimteDemping(p, r);
  EXPECT_NEAR(r.OverspraakDemping[0], -10 * std::log10(0.01 * Pi / 4) - Galm - 3.010299956640, Marge);
}

TEST(RuimteDemping, AReverberationTimeOfZeroIsAVeryShortOne) {
  Project p = Kamer(1);
  p.Ruimte.RNagalm = 0;  // A = 60 / 6E-20 = 1E+21
  Resultaten r = Oud();
  r.LwEind = Gevuld(60);
  RuimteDemping(p, r);
  EXPECT_NEAR(r.LpGalmveld[0], 60 - 203.979400086720 + 3.010299956640, Marge);
}

TEST(RuimteDemping, AnyOtherTypeLeavesNothing) {
  for (const int type : {0, 4, -1}) {
    Resultaten r = Oud();
    RuimteDemping(Kamer(type), r);
    EXPECT_EQ(r.LpGalmveld, Spectrum{});
    EXPECT_EQ(r.LpEenMeter, Spectrum{});
    EXPECT_EQ(r.OverspraakDemping, Spectrum{});
  }
}

int FoutNa(int type, const std::function<void(Project&)>& verander) {
  Project p = Kamer(type);
  verander(p);
  Resultaten r = Oud();
  const int fout = FoutVan([&] { RuimteDemping(p, r); });
  EXPECT_TRUE(IsEindig(r.LpGalmveld) && IsEindig(r.LpEenMeter) && IsEindig(r.OverspraakDemping));
  return fout;
}

TEST(RuimteDemping, ImpossibleValuesAreFaults) {
  const auto leeg = [](Project& p) { p.Ruimte.RLengte = 0; };
  const auto negatief = [](Project& p) { p.Ruimte.RNagalm = -1; };
  const auto groot = [](Project& p) { p.Ruimte.RLengte = p.Ruimte.RBreedte = 1E+200; };
  const auto langGalm = [](Project& p) { p.Ruimte.RNagalm = 1E+308; };
  const auto kortGalm = [](Project& p) { p.Ruimte.RNagalm = 1E-310; };
  for (const int type : {1, 2, 3}) {
    EXPECT_EQ(FoutNa(type, leeg), 11) << "4 / A with A = 0";
    EXPECT_EQ(FoutNa(type, negatief), 5);
    EXPECT_EQ(FoutNa(type, groot), 6);
    EXPECT_EQ(FoutNa(type, langGalm), 6);
    EXPECT_EQ(FoutNa(type, kortGalm), 6);
    EXPECT_EQ(FoutNa(type, [](Project& p) { p.ElementCount = 501; }), 9);
    EXPECT_EQ(FoutNa(type, [](Project& p) { p.ElementCount = -1; }), 9);
  }
  const auto geenRooster = [](Project& p) { p.Ruimte.RAantal = 0; };
  EXPECT_EQ(FoutNa(1, geenRooster), 5);
  EXPECT_EQ(FoutNa(2, geenRooster), 0);
  EXPECT_EQ(FoutNa(3, geenRooster), 5);
  EXPECT_EQ(FoutNa(1, [](Project& p) { p.Ruimte.RDI = -30000; }), 5);
  EXPECT_EQ(FoutNa(1, [](Project& p) { p.Ruimte.RDI = 0; }), 0) << "the reverberant part remains";
  EXPECT_EQ(FoutNa(2, [](Project& p) { p.Elementen[2].Lengte = 0; }), 11);
  EXPECT_EQ(FoutNa(3, [](Project& p) { p.Elementen[1].Hoogte = 0; }), 5) << "log of a section of 0";
  EXPECT_EQ(FoutNa(1, [](Project& p) { p.Elementen[1].Hoogte = 0; }), 0);
}

TEST(RuimteDemping, RefusesFieldsThatAreNotFinite) {
  for (const double w : NietEindig) {
    for (const int type : {1, 2, 3}) {
      for (const int vrij : {0, 1}) {
        const auto met = [&](auto verander) {
          return FoutNa(type, [&](Project& p) {
            p.VrijVeld = static_cast<std::int16_t>(vrij);
            verander(p);
          });
        };
        EXPECT_EQ(met([w](Project& p) { p.Ruimte.RLengte = w; }), 6) << w << ", type " << type << vrij;
        EXPECT_EQ(met([w](Project& p) { p.Ruimte.RBreedte = w; }), 6) << w << ", type " << type << vrij;
        EXPECT_EQ(met([w](Project& p) { p.Ruimte.RHoogte = w; }), 6) << w << ", type " << type << vrij;
        EXPECT_EQ(met([w](Project& p) { p.Ruimte.RNagalm = w; }), 6) << w << ", type " << type << vrij;
        EXPECT_EQ(met([w](Project& p) { p.Elementen[1].Hoogte = w; }), 6) << w << ", type " << type << vrij;
        EXPECT_EQ(met([w](Project& p) { p.Elementen[1].Breedte = w; }), 6) << w << ", type " << type << vrij;
        EXPECT_EQ(met([w](Project& p) { p.Ruimte.RVolume = p.Ruimte.RNR = w; }), 0) << "unread";
      }
    }
    const auto aantal = [w](Project& p) { p.Ruimte.RAantal = w; };
    EXPECT_EQ(FoutNa(1, aantal), 6) << w;
    EXPECT_EQ(FoutNa(3, aantal), 6) << w;
    EXPECT_EQ(FoutNa(2, [w](Project& p) { p.Elementen[2].Lengte = w; }), 6) << w;
  }
}

}  // namespace
}  // namespace murvane
