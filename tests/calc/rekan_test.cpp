#include "basis/tekst.h"
#include "calc/elementen.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

ElementRec Kanaal(int type, double hoogte, double breedte, double debiet, double lengte) {
  ElementRec e;
  e.ElementType = static_cast<std::int16_t>(type);
  e.Hoogte = hoogte;
  e.Breedte = breedte;
  e.Debiet = debiet;
  e.Lengte = lengte;
  e.demp = Gevuld(91);
  e.ruis = Gevuld(92);
  return e;
}

ElementTekstRijen Doorgerekend(ElementRec& e, char decimaal = '.') {
  ElementTekstRijen tekst;
  ReKan(e, tekst, decimaal);
  return tekst;
}

void Model(ElementRec& e) {
  (void)Doorgerekend(e);
}

TEST(ReKan, AttenuationPerMetreGoesBySizeClassUpperBoundIncluded) {
  struct Rij {
    int type;
    double maat;
    Bandwaarden demping;  // of 10 m
  };
  const Rij rijen[] = {
      {8, 50, {6, 6, 4, 3, 3, 3, 3}},
      {8, 200, {6, 6, 4, 3, 3, 3, 3}},
      {8, NetBoven(200), {6, 5, 4, 3, 2, 2, 2}},
      {8, 400, {6, 5, 4, 3, 2, 2, 2}},
      {8, NetBoven(400), {5, 4, 3, 1, 1, 1, 1}},
      {8, 800, {5, 4, 3, 1, 1, 1, 1}},
      {8, NetBoven(800), {4, 3, 1, 1, 0.5, 0.5, 0.5}},
      {8, 5000, {4, 3, 1, 1, 0.5, 0.5, 0.5}},
      {9, 50, {1, 1, 1, 1, 3, 3, 3}},
      {9, 200, {1, 1, 1, 1, 3, 3, 3}},
      {9, NetBoven(200), {0.5, 1, 1, 1, 2, 2, 2}},
      {9, 400, {0.5, 1, 1, 1, 2, 2, 2}},
      {9, NetBoven(400), {0.3, 0.6, 0.6, 1, 1, 1, 1}},
      {9, 800, {0.3, 0.6, 0.6, 1, 1, 1, 1}},
      {9, NetBoven(800), {0.3, 0.3, 0.3, 0.5, 0.5, 0.5, 0.5}},
      {9, 5000, {0.3, 0.3, 0.3, 0.5, 0.5, 0.5, 0.5}},
  };
  for (const Rij& rij : rijen) {
    ElementRec e = Kanaal(rij.type, rij.maat, 50, 1, 10);
    Model(e);
    VerwachtBanden(e.demp, rij.demping, "size " + std::to_string(rij.maat));
    EXPECT_EQ(e.demp[7], 91) << "slot 7 is not written";
  }
}

TEST(ReKan, ARectangularDuctTakesItsLargerSideAsSize) {
  struct Rij {
    double hoogte, breedte, demp4000;  // of 10 m
  };
  for (const Rij& rij : {Rij{200, 400, 2}, Rij{400, 200, 2}, Rij{801, 100, 0.5}, Rij{100, 801, 0.5},
                         Rij{200, 200, 3}, Rij{150, 200, 3}, Rij{400, 401, 1}}) {
    ElementRec e = Kanaal(8, rij.hoogte, rij.breedte, 1, 10);
    Model(e);
    EXPECT_NEAR(e.demp[6], rij.demp4000, Marge) << rij.hoogte << " x " << rij.breedte;
  }
}

TEST(ReKan, FlowNoiseFollowsSpeedAndSection) {
  // S = 0.25, v = 4, L = 50 lg 4 + 7 + 10 lg 0.25 = 31.0823996531
  ElementRec e = Kanaal(8, 500, 500, 1, 10);
  Model(e);
  VerwachtSpectrum(e.ruis, {26.0823996531, 25.0823996531, 24.0823996531, 23.0823996531, 22.0823996531,
                            21.0823996531, 17.0823996531, 27.2958402121});
  VerwachtBanden(e.demp, {5, 4, 3, 1, 1, 1, 1});
  // Round: S = 0.125² pi = 0.0490873852, v = 6.1115499, L = 33.2172667876
  ElementRec rond = Kanaal(9, 250, 0, 0.3, 0.5);
  Model(rond);
  VerwachtSpectrum(rond.ruis, {28.2172667876, 27.2172667876, 26.2172667876, 25.2172667876, 24.2172667876,
                               23.2172667876, 19.2172667876, 29.4307073465});
}

TEST(ReKan, NegativeFlowNoiseStaysNegative) {
  // v = 0.004, L = 50 lg 0.004 + 7 + 10 lg 0.25 = -118.917600347
  ElementRec e = Kanaal(8, 500, 500, 0.001, 1);
  Model(e);
  VerwachtSpectrum(e.ruis, {-123.917600347, -124.917600347, -125.917600347, -126.917600347, -127.917600347,
                            -128.917600347, -132.917600347, -122.704159788});
}

TEST(ReKan, ADuctShorterThanHalfAMetreIsNotThere) {
  for (const double lengte : {0.49, std::nextafter(0.5, 0.0), 0.0, -1.0}) {
    ElementRec e = Kanaal(8, 500, 500, 1, lengte);
    const ElementTekstRijen tekst = Doorgerekend(e);
    EXPECT_EQ(e.demp, Spectrum{}) << lengte;
    EXPECT_EQ(e.ruis, Spectrum{}) << lengte;
    EXPECT_EQ(tekst[1].Getrimd(), "q = 1 m³/s"_cp);
  }
}

TEST(ReKan, ADuctOfExactlyHalfAMetreCountsInFull) {
  ElementRec e = Kanaal(8, 500, 500, 1, 0.5);
  Model(e);
  VerwachtBanden(e.demp, {0.25, 0.2, 0.15, 0.05, 0.05, 0.05, 0.05});
  EXPECT_NEAR(e.ruis[0], 26.0823996531, Marge);
}

TEST(ReKan, TheTypeAndNotTheWidthMakesItRound) {
  ElementRec rond = Kanaal(9, 250, 100, 0.3, 2);
  const ElementTekstRijen tekst = Doorgerekend(rond);
  EXPECT_NEAR(rond.ruis[0], 28.2172667876, Marge);
  EXPECT_EQ(tekst[0].Getrimd(), "diam = 250 mm");
  ElementRec recht = Kanaal(8, 250, 0, 0.3, 2);  // a section of 0
  EXPECT_EQ(FoutVan([&] { Model(recht); }), 11);
}

TEST(ReKan, ReportTextsShowSizeFlowAndLength) {
  ElementRec recht = Kanaal(8, 200, 350.5, 0.125, 2.5);
  VerwachtTekst(Doorgerekend(recht), {"h×b = 200×350.5 mm"_cp, "q = 0.125 m³/s"_cp, "l = 2.5 m", ""});
  VerwachtTekst(Doorgerekend(recht, ','), {"h×b = 200×350,5 mm"_cp, "q = 0,125 m³/s"_cp, "l = 2,5 m", ""});
  ElementRec rond = Kanaal(9, 315, 0, 1.0 / 3, 10);
  // "q = 0,333333333333333 m³/s" is cut at 20 characters.
  VerwachtTekst(Doorgerekend(rond, ','), {"diam = 315 mm", "q = 0,33333333333333", "l = 10 m", ""});
  ElementRec breed = Kanaal(8, 1234.5, 6789.25, 2, 1);
  VerwachtTekst(Doorgerekend(breed), {"h×b = 1234.5×6789.25"_cp, "q = 2 m³/s"_cp, "l = 1 m", ""});
}

TEST(ReKan, TheLongestNumbersAreCutToo) {
  // Written before the speed overflows; whole it would be "h×b =
  // -1,23456789012346E-150×-1,23456789012346E-150 mm".
  ElementRec e = Kanaal(8, -1.23456789012346E-150, -1.23456789012346E-150, 1E+300, 1);
  ElementTekstRijen tekst;
  EXPECT_EQ(FoutVan([&] { ReKan(e, tekst, ','); }), 6);
  EXPECT_EQ(tekst[0].Heel(), "h×b = -1,23456789012"_cp);
  EXPECT_EQ(tekst[1].Heel(), "q = 1E+300 m³/s     "_cp);
}

TEST(ReKan, ImpossibleValuesAreFaults) {
  const ElementRec goed = Kanaal(8, 300, 400, 1, 2);
  VerwachtFouten(goed,
                 {
                     {&ElementRec::Hoogte, 0, 11},  // speed = flow / 0
                     {&ElementRec::Breedte, 0, 11},
                     {&ElementRec::Debiet, 0, 5},  // log of a speed of 0
                     {&ElementRec::Debiet, -1, 5},
                     {&ElementRec::Hoogte, -300, 5},
                     {&ElementRec::Debiet, 1E+308, 6},  // speed = 1E+308 / 0.12
                     {&ElementRec::Lengte, 1E+308, 0},  // times at most 0.6
                 },
                 Model);
  const ElementRec kort = Kanaal(8, 300, 400, 1, 0.2);
  VerwachtFouten(kort,
                 {
                     {&ElementRec::Hoogte, 0, 11},  // the speed comes before the test of the length
                     {&ElementRec::Debiet, 0, 0},   // the logarithm after it
                     {&ElementRec::Debiet, -1, 0},
                 },
                 Model);
}

TEST(ReKan, RefusesFieldsThatAreNotFinite) {
  const std::vector<Getalveld> velden = {&ElementRec::Hoogte, &ElementRec::Lengte, &ElementRec::Debiet};
  VerwachtFout6Bij(Kanaal(8, 300, 400, 1, 2), velden, Model);
  VerwachtFout6Bij(Kanaal(8, 300, 400, 1, 2), {&ElementRec::Breedte}, Model);
  VerwachtFout6Bij(Kanaal(9, 300, 0, 1, 2), velden, Model);
}

TEST(ReKan, DoesNotReadOtherFields) {
  const std::vector<Getalveld> velden = {&ElementRec::QAftak,    &ElementRec::HHoofd, &ElementRec::BHoofd,
                                         &ElementRec::HDoor,     &ElementRec::BDoor,  &ElementRec::Snetto,
                                         &ElementRec::Weerstand, &ElementRec::RAftak, &ElementRec::ElRAantal};
  VerwachtOngelezen(Kanaal(8, 300, 400, 1, 2), velden, Model);
  VerwachtOngelezen(Kanaal(9, 300, 0, 1, 2), velden, Model);
  VerwachtOngelezen(Kanaal(9, 300, 0, 1, 2), {&ElementRec::Breedte}, Model);
}

}  // namespace
}  // namespace murvane
