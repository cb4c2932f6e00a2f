#include "basis/tekst.h"
#include "calc/elementen.h"
#include "calc/spectrum.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

/// Branch 200 x 300 off a main duct 500 x 400, through duct 400 x 400.
ElementRec Recht() {
  ElementRec e;
  e.ElementType = 1;
  e.Hoogte = 200, e.Breedte = 300;
  e.HHoofd = 500, e.BHoofd = 400;
  e.HDoor = 400, e.BDoor = 400;
  e.QAftak = 0.4, e.Debiet = 1.5, e.RAftak = 0.05;
  e.demp = Gevuld(91);
  e.ruis = Gevuld(92);
  return e;
}

/// Branch of 250 off a main duct of 500, through duct 450, all round.
ElementRec Rond(double afronding = 0.3) {
  ElementRec e = Recht();
  e.ElementType = 2;
  e.Hoogte = 250, e.Breedte = 0;
  e.HHoofd = 500, e.BHoofd = 0;
  e.HDoor = 450, e.BDoor = 0;
  e.RAftak = afronding;
  return e;
}

ElementTekstRijen Doorgerekend(ElementRec& e, char decimaal = '.') {
  ElementTekstRijen tekst;
  Aftak(e, tekst, decimaal);
  return tekst;
}

void Model(ElementRec& e) {
  (void)Doorgerekend(e);
}

TEST(Aftak, SplitsPowerByAreaAndAddsTheFlowNoise) {
  // Sa = 0.06, Sd = 0.16: -10 lg (0.06 / 0.22) = 5.64271430439. d = 276.395319, va = 6.6666667, vh = 7.5; 63
  // Hz: x = 2.611936, T = 6.285262, R = (1 - 0.05/0.15) T, K = -23.283 lg x + 13.909 + 37.5 lg (vh / va)
  ElementRec e = Recht();
  Model(e);
  VerwachtBanden(e.demp, {5.64271430439, 5.64271430439, 5.64271430439, 5.64271430439, 5.64271430439,
                          5.64271430439, 5.64271430439});
  EXPECT_EQ(e.demp[7], 91) << "slot 7 is not written";
  VerwachtSpectrum(e.ruis, {51.2827392825, 47.4721490883, 42.582742229, 37.4892508033, 30.9609714204,
                            24.2046811307, 16.5567153895, 39.3107237565});
}

TEST(Aftak, ARoundingAboveFifteenHundredthsLowersTheNoise) {
  // Sa / (Sa + Sd) = 250² / (250² + 450²)
  ElementRec e = Rond();
  Model(e);
  VerwachtBanden(e.demp, {6.27365856593, 6.27365856593, 6.27365856593, 6.27365856593, 6.27365856593,
                          6.27365856593, 6.27365856593});
  VerwachtSpectrum(e.ruis, {43.7925583282, 40.3216453404, 36.9199215678, 32.7983242225, 27.1448320554,
                            22.1381161971, 17.9892993189, 34.3548412639});
}

TEST(Aftak, ARoundingOfFifteenHundredthsAddsNothing) {
  ElementRec e = Rond(0.15);
  Model(e);
  VerwachtSpectrum(e.ruis, {50.2051553671, 46.3775918461, 42.2568145791, 37.5381299862, 31.4244435826,
                            25.4973392517, 19.5077454279, 39.2021840765});
}

TEST(Aftak, TheRoundingTermHasNoJumpAtItsBound) {
  // R is the difference with a rounding of 0.15. Branch of 100 mm at va = 100·d/x: 1000 Hz, x = 10 and just
  // above.
  for (const double q : {0.078539816339744828, 0.078539816339744814}) {
    ElementRec e = Rond(0), zonder = Rond(0.15);
    for (ElementRec* aftak : {&e, &zonder}) {
      aftak->Hoogte = 100, aftak->HHoofd = aftak->BHoofd = 1000;
      aftak->QAftak = q, aftak->Debiet = 200;
      Model(*aftak);
    }
    EXPECT_NEAR(e.ruis[4] - zonder.ruis[4], 4.9, Marge);     // 6.4 - 8 · 0.1875
    EXPECT_NEAR(e.ruis[3] - zonder.ruis[3], 5.8375, Marge);  // x = 5: 6.4 - 3 · 0.1875
    EXPECT_NEAR(e.ruis[5] - zonder.ruis[5], 4.6, Marge);     // x = 20: 4.9 - 10 · 0.03
    EXPECT_NEAR(e.ruis[6] - zonder.ruis[6], 4.0, Marge);     // x = 40: 4.9 - 30 · 0.03
  }
}

TEST(Aftak, TheRoundingTermFallsSlowerAboveItsBound) {
  // As above with x = 10.004 at 1000 Hz: 4.9 - 0.004 · 0.03; the first formula would give 4.89925.
  ElementRec e = Rond(0), zonder = Rond(0.15);
  for (ElementRec* aftak : {&e, &zonder}) {
    aftak->Hoogte = 100, aftak->HHoofd = aftak->BHoofd = 1000;
    aftak->QAftak = Pi * 0.0025 * 100 / 10.004, aftak->Debiet = 200;
    Model(*aftak);
  }
  EXPECT_NEAR(e.ruis[4] - zonder.ruis[4], 4.89988, Marge);
}

TEST(Aftak, TheSpeedRatioTermGoesByTheRangesOfTheCurve) {
  // Round branch of 100 mm, main duct 1 m² with 200 m³/s, no rounding term. Each flow puts x of 1000 Hz (100
  // / va) exactly on a bound, or on the nearest number above it. ruis = 10 lg 690 + BochtKromme(x) + c lg
  // (200 / va) + 30 lg 0.1 + 50 lg va
  struct Rij {
    double q, ruis;
  };
  const Rij rijen[] = {
      {0.78539816339744839, 120.3719657665},  // x = 1, c = 32.5
      {0.78539816339744828, 121.1245407556},  // above: c = 35
      {0.3926990816987242, 111.3091567170},   // x = 2, c = 35
      {0.39269908169872414, 112.8143594099},  // above: c = 37.5
      {0.26179938779914946, 106.5132858871},  // x = 3, c = 37.5
      {0.26179938779914941, 106.9802263715},  // above: c = 38.1
      {0.1963495408493621, 102.6934533797},   // x = 4, c = 38.1
      {0.19634954084936207, 104.4096362078},  // above: c = 40
      {0.13089969389957473, 98.8486742468},   // x = 6, c = 40
      {0.1308996938995747, 100.8985287354},   // above: c = 41.9
      {0.078539816339744828, 93.5016477257},  // x = 10, c = 41.9
      {0.078539816339744814, 95.9736047175},  // above: c = 43.8
      {0.05235987755982989, 90.4818466213},   // x = 15, c = 43.8
      {0.052359877559829883, 97.7939887502},  // above: c = 48.75
  };
  for (const Rij& rij : rijen) {
    ElementRec e = Rond(0.15);
    e.Hoogte = 100, e.HHoofd = e.BHoofd = 1000;
    e.QAftak = rij.q, e.Debiet = 200;
    Model(e);
    EXPECT_NEAR(e.ruis[4], rij.ruis, Marge) << rij.q;
  }
}

TEST(Aftak, OnlyABranchOfFourFifthsToTheWholeOfTheMainSplitsNothing) {
  // Branch 1000 x b off a main duct 1000 x 1000, through duct 1000 x 1000: Sa = b / 1000, Sh = Sd = 1.
  struct Rij {
    double breedte, demping;
  };
  const Rij rijen[] = {
      {500, 4.771212547197},  // -10 lg (0.5 / 1.5)
      {800, 3.521825181114},  // exactly 80 %: -10 lg (0.8 / 1.8)
      {NetBoven(NetBoven(800)), 0},
      {900, 0},
      {1000, 0},                                   // exactly the main section
      {NetBoven(NetBoven(1000)), 3.010299956640},  // -10 lg (1 / 2)
      {2000, 1.760912590557},                      // -10 lg (2 / 3)
  };
  for (const Rij& rij : rijen) {
    ElementRec e = Recht();
    e.Hoogte = e.HHoofd = e.BHoofd = e.HDoor = e.BDoor = 1000;
    e.Breedte = rij.breedte;
    Model(e);
    for (std::size_t b = 0; b < Banden; ++b) EXPECT_NEAR(e.demp[b], rij.demping, Marge) << rij.breedte;
  }
}

TEST(Aftak, WithoutThroughDuctNothingIsSplitOff) {
  ElementRec e = Recht();
  e.HDoor = 0;
  Model(e);
  VerwachtBanden(e.demp, {});  // -10 lg (Sa / Sa)
}

TEST(Aftak, MainAndThroughDuctAreRoundByTheirWidths) {
  // Sa = 0.06, Sd = 0.2² pi = 0.125663706 where the through duct is round: 4.905909...
  for (const double breedte : {0.0, -5.0}) {
    ElementRec e = Recht();
    e.BDoor = breedte;
    Model(e);
    EXPECT_NEAR(e.demp[0], 10 * std::log10((0.06 + 0.04 * Pi) / 0.06), Marge);
    // Main duct of 300 mm, round: Sh = 0.0706858, so Sa is 85 % of it; rectangular 300 x 300 it is 67 %.
    e.HHoofd = 300, e.BHoofd = breedte;
    Model(e);
    EXPECT_EQ(e.demp[0], 0);
  }
  ElementRec e = Recht();
  e.HHoofd = e.BHoofd = 300;
  Model(e);
  EXPECT_NEAR(e.demp[0], 5.64271430439, Marge);
  e.BDoor = 0.5;  // however narrow: Sd = 0.4 · 0.0005, -10 lg (0.06 / 0.0602)
  Model(e);
  EXPECT_NEAR(e.demp[0], 10 * std::log10(0.0602 / 0.06), Marge);
}

TEST(Aftak, TheTypeDecidesTheShapeOfTheBranchItself) {
  ElementRec rond = Rond(), metBreedte = Rond();
  metBreedte.Breedte = 400;
  Model(rond);
  Model(metBreedte);
  EXPECT_EQ(rond.ruis, metBreedte.ruis);
  ElementRec recht = Recht();
  recht.Breedte = 0;
  EXPECT_EQ(FoutVan([&] { Model(recht); }), 11);
}

TEST(Aftak, NoiseBelowZeroBecomesZero) {
  ElementRec e = Recht();
  e.QAftak = e.Debiet = 0.01;
  Model(e);
  EXPECT_EQ(e.ruis, Spectrum{});
}

TEST(Aftak, ReportTextsShowBranchFlowAndRounding) {
  ElementRec recht = Recht();
  recht.RAftak = 0.05;
  VerwachtTekst(Doorgerekend(recht, ','), {"h×b = 200×300 mm"_cp, "q = 0,4 m³/s"_cp, "r/da = 0,05", ""});
  ElementRec rond = Rond();
  VerwachtTekst(Doorgerekend(rond), {"diam = 250 mm", "q = 0.4 m³/s"_cp, "r/da = 0.3", ""});
}

TEST(Aftak, ImpossibleValuesAreFaults) {
  const std::vector<FoutRij> rijen = {
      {&ElementRec::Hoogte, 0, 11},  // branch speed = flow / 0
      {&ElementRec::HHoofd, 0, 11},  // main speed = flow / 0
      {&ElementRec::QAftak, 0, 11},  // the Strouhal number is divided by the branch's speed
      {&ElementRec::QAftak, -1, 5},      {&ElementRec::Debiet, 0, 5},  // log of a speed ratio of 0
      {&ElementRec::Debiet, -1, 5},      {&ElementRec::HDoor, 0, 0},       {&ElementRec::RAftak, 1, 0},
      {&ElementRec::RAftak, 1E+308, 6},  // the rounding term overflows to minus infinity
      {&ElementRec::RAftak, -1E+308, 6}, {&ElementRec::QAftak, 1E+308, 6}, {&ElementRec::QAftak, 1E-310, 6},
  };
  VerwachtFouten(Recht(), rijen, Model);
  VerwachtFouten(Rond(), rijen, Model);
  VerwachtFouten(Recht(), {{&ElementRec::Breedte, 0, 11}, {&ElementRec::Breedte, -300, 5}}, Model);
}

TEST(Aftak, RefusesFieldsThatAreNotFinite) {
  const std::vector<Getalveld> velden = {&ElementRec::Hoogte, &ElementRec::HHoofd, &ElementRec::BHoofd,
                                         &ElementRec::HDoor,  &ElementRec::BDoor,  &ElementRec::QAftak,
                                         &ElementRec::Debiet, &ElementRec::RAftak};
  VerwachtFout6Bij(Recht(), velden, Model);
  VerwachtFout6Bij(Recht(), {&ElementRec::Breedte}, Model);
  VerwachtFout6Bij(Rond(), velden, Model);
}

TEST(Aftak, DoesNotReadOtherFields) {
  const std::vector<Getalveld> velden = {&ElementRec::Lengte, &ElementRec::Snetto, &ElementRec::Weerstand,
                                         &ElementRec::ElRAantal};
  VerwachtOngelezen(Recht(), velden, Model);
  VerwachtOngelezen(Rond(), velden, Model);
  VerwachtOngelezen(Rond(), {&ElementRec::Breedte}, Model);
}

}  // namespace
}  // namespace murvane
