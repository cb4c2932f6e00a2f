#include "basis/tekst.h"
#include "calc/elementen.h"
#include "calc/spectrum.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

/// Section change of the given length from h1 x b1 to h2 x b2.
ElementRec Overgang(int type, double h1, double b1, double h2, double b2, double lengte) {
  ElementRec e;
  e.ElementType = static_cast<std::int16_t>(type);
  e.HHoofd = h1, e.BHoofd = b1;
  e.HDoor = h2, e.BDoor = b2;
  e.Lengte = lengte;
  e.Debiet = 0.5;
  e.demp = Gevuld(91);
  e.ruis = Gevuld(92);
  return e;
}

ElementTekstRijen Doorgerekend(ElementRec& e, char decimaal = '.') {
  ElementTekstRijen tekst;
  Drsnee(e, tekst, decimaal);
  return tekst;
}

void Model(ElementRec& e) {
  (void)Doorgerekend(e);
}

TEST(Drsnee, ASuddenWideningGivesTheSameInEveryBand) {
  // m = 4, x = 0: 10 lg (25 / 16) · cos (0.05 pi) = 1.9382 · 0.98769
  ElementRec e = Overgang(6, 100, 100, 200, 200, 0);
  Model(e);
  VerwachtBanden(e.demp, {1.9143377987, 1.9143377987, 1.9143377987, 1.9143377987, 1.9143377987, 1.9143377987,
                          1.9143377987});
  EXPECT_EQ(e.demp[7], 91) << "slot 7 is not written";
}

TEST(Drsnee, AttenuationFallsWithTheLengthInWavelengths) {
  // Round 200 to round 400: m = 4, x = 0.1 · f / 340. From 2000 Hz up x is above 0.5.
  ElementRec e = Overgang(7, 200, 0, 400, 0, 0.1);
  Model(e);
  VerwachtBanden(e.demp, {1.89345528422, 1.86664131347, 1.794071153, 1.57849646643, 0.911686385863, 0, 0});
  // 200 x 200 to round 400, 1 m: m = pi; x = 0.185 and 0.368, then 0.735
  ElementRec lang = Overgang(6, 200, 200, 400, 0, 1);
  Model(lang);
  VerwachtBanden(lang.demp, {0.992425034852, 0.33689269431, 0, 0, 0, 0, 0});
}

TEST(Drsnee, HalfAWavelengthStillCounts) {
  // m = 40, 500 Hz: x = 0.34 · 500 / 340 = 0.5: 10 lg (41² / 160) · cos ((0.5 - 0.1 + 0.06) pi) = 10.21 ·
  // 0.125333
  ElementRec e = Overgang(6, 100, 100, 1000, 400, 0.34);
  Model(e);
  EXPECT_NEAR(e.demp[3], 10 * std::log10(1681.0 / 160) * std::cos(0.46 * Pi), Marge);
  EXPECT_GT(e.demp[3], 1.2);
  EXPECT_EQ(e.demp[4], 0);
  ElementRec langer = Overgang(6, 100, 100, 1000, 400, 0.340000001);
  Model(langer);
  EXPECT_EQ(langer.demp[3], 0);
}

TEST(Drsnee, AContractionGivesNothing) {
  ElementRec e = Overgang(6, 200, 200, 100, 100, 0);  // as a widening m = 1/4 would give as much as m = 4
  Model(e);
  VerwachtBanden(e.demp, {});
  ElementRec gelijk = Overgang(7, 200, 0, 200, 0, 0);
  Model(gelijk);
  VerwachtBanden(gelijk.demp, {});
  ElementRec dicht = Overgang(6, 200, 200, 0, 0, 0);  // an outlet of no section is a contraction too
  Model(dicht);
  VerwachtBanden(dicht.demp, {});
}

TEST(Drsnee, IsLimitedToEightDecibel) {
  // m = 100: 10 lg (101² / 400) · cos (-0.19 pi) = 14.07 · 0.827 = 11.6
  ElementRec e = Overgang(6, 100, 100, 1000, 1000, 0);
  Model(e);
  for (std::size_t b = 0; b < Banden; ++b) EXPECT_EQ(e.demp[b], 8);
}

TEST(Drsnee, NegativeAttenuationBecomesZero) {
  // m = 400: cos ((0.06 - 1) pi) is negative
  ElementRec e = Overgang(6, 100, 100, 2000, 2000, 0);
  Model(e);
  for (std::size_t b = 0; b < Banden; ++b) EXPECT_EQ(e.demp[b], 0);
}

TEST(Drsnee, MakesNoNoiseOfItsOwn) {
  ElementRec e = Overgang(7, 200, 0, 400, 0, 0.1);
  Model(e);
  EXPECT_EQ(e.ruis, Spectrum{});
}

TEST(Drsnee, InletGoesByTypeAndOutletByWidth) {
  struct Rij {
    int type;
    double h1, b1, h2, b2, m;
  };
  const Rij rijen[] = {
      {6, 200, 300, 400, 0, Pi * 0.04 / 0.06},  // rectangular to round
      {6, 200, 300, 400, -1, Pi * 0.04 / 0.06},
      {6, 200, 300, 400, 300, 2},
      {7, 200, 0, 300, 250, 0.075 / (Pi * 0.01)},    // round to rectangular
      {7, 200, 999, 300, 250, 0.075 / (Pi * 0.01)},  // the inlet's width plays no part
      {7, 200, 0, 300, 0, 2.25},
  };
  for (const Rij& rij : rijen) {
    ElementRec e = Overgang(rij.type, rij.h1, rij.b1, rij.h2, rij.b2, 0);
    Model(e);
    const double verwacht =
        10 * std::log10((rij.m + 1) * (rij.m + 1) / (4 * rij.m)) * std::cos((0.06 - 0.0025 * rij.m) * Pi);
    EXPECT_NEAR(e.demp[0], verwacht, Marge) << &rij - rijen;
  }
}

TEST(Drsnee, ReportTextsShowTheOutletByTypeAndNotByWidth) {
  ElementRec recht = Overgang(6, 200, 300, 400, 0, 0.25);
  VerwachtTekst(Doorgerekend(recht, ','), {"h×b = 400×0 mm"_cp, "q = 0,5 m³/s"_cp, "l = 0,25 m", ""});
  ElementRec rond = Overgang(7, 200, 0, 400.5, 300, 1);
  VerwachtTekst(Doorgerekend(rond), {"diam = 400.5 mm", "q = 0.5 m³/s"_cp, "l = 1 m", ""});
}

TEST(Drsnee, ImpossibleValuesAreFaults) {
  const std::vector<FoutRij> rijen = {
      {&ElementRec::HHoofd, 0, 11},       // section ratio over an inlet of 0
      {&ElementRec::Debiet, 0, 0},        // the flow is only shown
      {&ElementRec::HHoofd, 1E-150, 6},   // the square of the ratio overflows
      {&ElementRec::HHoofd, 1E-160, 11},  // a section that underflows to 0
      {&ElementRec::Lengte, 1E+306, 6},   // times 4000 Hz
      {&ElementRec::Lengte, -1, 0},      {&ElementRec::HDoor, 1E+200, 6},
  };
  VerwachtFouten(Overgang(7, 200, 0, 400, 0, 0.5), rijen, Model);
  VerwachtFouten(Overgang(6, 200, 300, 400, 400, 0.5),
                 {{&ElementRec::HHoofd, 0, 11},
                  {&ElementRec::BHoofd, 0, 11},
                  {&ElementRec::HHoofd, -200, 5}},  // a negative ratio
                 Model);
}

TEST(Drsnee, RefusesFieldsThatAreNotFinite) {
  const std::vector<Getalveld> velden = {&ElementRec::HHoofd, &ElementRec::HDoor, &ElementRec::BDoor,
                                         &ElementRec::Lengte, &ElementRec::Debiet};
  VerwachtFout6Bij(Overgang(6, 200, 300, 400, 400, 0.5), velden, Model);
  VerwachtFout6Bij(Overgang(6, 200, 300, 400, 400, 0.5), {&ElementRec::BHoofd}, Model);
  VerwachtFout6Bij(Overgang(7, 200, 0, 400, 0, 0.5), velden, Model);
}

TEST(Drsnee, DoesNotReadOtherFields) {
  const std::vector<Getalveld> velden = {&ElementRec::Hoogte,    &ElementRec::Breedte, &ElementRec::QAftak,
                                         &ElementRec::Weerstand, &ElementRec::Snetto,  &ElementRec::RAftak};
  VerwachtOngelezen(Overgang(6, 200, 300, 400, 400, 0.5), velden, Model);
  VerwachtOngelezen(Overgang(7, 200, 0, 400, 0, 0.5), velden, Model);
  VerwachtOngelezen(Overgang(7, 200, 0, 400, 0, 0.5), {&ElementRec::BHoofd}, Model);
}

}  // namespace
}  // namespace murvane
