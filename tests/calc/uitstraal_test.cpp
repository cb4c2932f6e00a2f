#include "calc/uitstraal.h"

#include "calc/spectrum.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

/// A chain of three ending in a duct of 300 x 600 mm and 4 m: Sw = 7.2, Sa = 0.18, 10 lg 40 = 16.0205999133.
Project MetWand() {
  Project p;
  p.Kop.RekenType = rekentype::Geluidsuitstraling;
  p.ElementCount = 3;
  p.Fan.Lw = {90, 88, 86, 84, 82, 80, 78, 91};
  ElementRec& e = p.Elementen[3];
  e.ElementType = 8;
  e.Hoogte = 300, e.Breedte = 600, e.Lengte = 4;
  p.Ruimte.Rkanaal = {25, 10, 0, 19.1, 30, 40, 50, 0};
  p.Ruimte.Rplafond = {1, 2, 3, 4, 5, 6, 7, 0};
  return p;
}

Resultaten MetNiveaus() {
  Resultaten r;
  r.Subtotaal[1] = {86, 80, 80, 80, 80, 80, 80, 12};
  r.Subtotaal[2] = {80, 78, 76, 74, 72, 70, 68, 13};
  r.Subtotaal[3] = {70, 70, 70, 70, 70, -70, 60, 14};
  r.LwEind = Gevuld(5);
  r.LwKanaalwand = Gevuld(6);
  return r;
}

TEST(UitStraal, InstallatiegeluidTakesTheLevelBehindTheLastElement) {
  Project p = MetWand();
  p.Kop.RekenType = rekentype::Installatiegeluid;
  Resultaten r = MetNiveaus();
  UitStraal(p, r);
  VerwachtBanden(r.LwEind, {70, 70, 70, 70, 70, -70, 60});
  EXPECT_EQ(r.LwEind[7], EnergetischeSom(r.Subtotaal[3], true)) << "summed anew, not copied";
  EXPECT_EQ(r.LwKanaalwand, Spectrum{});
}

TEST(UitStraal, AnyOtherTypeLeavesNothing) {
  for (const int type : {3, 0, 4, -1}) {
    Project p = MetWand();
    p.Kop.RekenType = static_cast<std::int16_t>(type);
    Resultaten r = MetNiveaus();
    UitStraal(p, r);
    EXPECT_EQ(r.LwEind, Spectrum{}) << type;
    EXPECT_EQ(r.LwKanaalwand, Spectrum{}) << type;
  }
}

TEST(UitStraal, WallAndCeilingTakeTheirPartOffTheMeanLevel) {
  const Project p = MetWand();
  Resultaten r = MetNiveaus();
  UitStraal(p, r);
  // The mean of the decibels: (80 + 70) / 2 and so on.
  VerwachtBanden(r.LwEind, {75, 74, 73, 72, 71, 0, 64});
  // y = 25 - 16.0206 = 8.9794, then the floor of 3 twice, 3.0794, 13.9794, 23.9794, 33.9794; then the
  // ceiling.
  VerwachtBanden(r.LwKanaalwand, {75 - 8.9794000867 - 1, 74 - 3.0 - 2, 73 - 3.0 - 3, 72 - 3.0794000867 - 4,
                                  71 - 13.9794000867 - 5, 0 - 23.9794000867 - 6, 64 - 33.9794000867 - 7});
  EXPECT_EQ(r.LwEind[7], EnergetischeSom(r.LwEind, true));
  EXPECT_EQ(r.LwKanaalwand[7], EnergetischeSom(r.LwKanaalwand, true));
}

TEST(UitStraal, ASingleElementTakesTheMeanWithTheFan) {
  Project p = MetWand();
  p.ElementCount = 1;
  p.Elementen[1] = p.Elementen[3];
  Resultaten r = MetNiveaus();
  UitStraal(p, r);
  VerwachtBanden(r.LwEind, {88, 84, 83, 82, 81, 80, 79});  // (86 + 90) / 2 ...
}

TEST(UitStraal, AWidthOfExactlyZeroMakesTheDuctRound) {
  // Sw / Sa = 2 pi · 0.2 · 4 / (0.04 pi) = 40 again
  Project p = MetWand();
  p.Elementen[3].Hoogte = 400, p.Elementen[3].Breedte = 0;
  Resultaten r = MetNiveaus();
  UitStraal(p, r);
  EXPECT_NEAR(r.LwKanaalwand[0], 75 - 8.9794000867 - 1, Marge);
}

TEST(UitStraal, ALongThinDuctKeepsAnInsulationOfThree) {
  Project p = MetWand();
  p.Elementen[3].Hoogte = 63, p.Elementen[3].Breedte = 0, p.Elementen[3].Lengte = 100;  // 10 lg 6349 = 38.03
  p.Ruimte.Rkanaal.fill(38);
  Resultaten r = MetNiveaus();
  UitStraal(p, r);
  for (std::size_t b = 0; b < Banden; ++b)
    EXPECT_NEAR(r.LwKanaalwand[b], r.LwEind[b] - 3 - p.Ruimte.Rplafond[b], Marge) << b;
}

int FoutNa(void (*verander)(Project&, Resultaten&)) {
  Project p = MetWand();
  Resultaten r = MetNiveaus();
  verander(p, r);
  const int fout = FoutVan([&] { UitStraal(p, r); });
  EXPECT_TRUE(IsEindig(r.LwEind) && IsEindig(r.LwKanaalwand));
  return fout;
}

TEST(UitStraal, ImpossibleValuesAreFaults) {
  EXPECT_EQ(FoutNa([](Project& p, Resultaten&) { p.Elementen[3].Lengte = 0; }), 5);
  EXPECT_EQ(FoutNa([](Project& p, Resultaten&) { p.Elementen[3].Lengte = -1; }), 5);
  EXPECT_EQ(FoutNa([](Project& p, Resultaten&) { p.Elementen[3].Hoogte = 0; }), 11);
  EXPECT_EQ(FoutNa([](Project& p, Resultaten&) { p.Elementen[3].Lengte = 1E+308; }), 6);
  EXPECT_EQ(FoutNa([](Project& p, Resultaten&) { p.ElementCount = -1; }), 9);
  EXPECT_EQ(FoutNa([](Project& p, Resultaten&) { p.ElementCount = 501; }), 9);
  EXPECT_EQ(FoutNa([](Project& p, Resultaten&) { p.ElementCount = 0; }), 9) << "no element before the first";
}

TEST(UitStraal, RefusesFieldsThatAreNotFinite) {
  struct Rij {
    const char* naam;
    double& (*plaats)(Project&);
  };
  const Rij rijen[] = {
      {"Hoogte", [](Project& p) -> double& { return p.Elementen[3].Hoogte; }},
      {"Breedte", [](Project& p) -> double& { return p.Elementen[3].Breedte; }},
      {"Lengte", [](Project& p) -> double& { return p.Elementen[3].Lengte; }},
      {"Rkanaal 0", [](Project& p) -> double& { return p.Ruimte.Rkanaal[0]; }},
      {"Rkanaal 6", [](Project& p) -> double& { return p.Ruimte.Rkanaal[6]; }},
      {"Rplafond 0", [](Project& p) -> double& { return p.Ruimte.Rplafond[0]; }},
      {"Rplafond 6", [](Project& p) -> double& { return p.Ruimte.Rplafond[6]; }},
  };
  for (const Rij& rij : rijen) {
    for (const double waarde : NietEindig) {
      Project p = MetWand();
      Resultaten r = MetNiveaus();
      rij.plaats(p) = waarde;
      EXPECT_EQ(FoutVan([&] { UitStraal(p, r); }), 6) << rij.naam << " at " << waarde;
      EXPECT_TRUE(IsEindig(r.LwEind) && IsEindig(r.LwKanaalwand)) << rij.naam;
    }
  }
}

}  // namespace
}  // namespace murvane
