#include "basis/tekst.h"
#include "calc/elementen.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

ElementRec EenBocht(int type, double hoogte, double breedte, double debiet) {
  ElementRec e;
  e.ElementType = static_cast<std::int16_t>(type);
  e.Hoogte = hoogte;
  e.Breedte = breedte;
  e.Debiet = debiet;
  e.demp = Gevuld(91);
  e.ruis = Gevuld(92);
  return e;
}

ElementTekstRijen Doorgerekend(ElementRec& e, char decimaal = '.') {
  ElementTekstRijen tekst;
  Bocht(e, tekst, decimaal);
  return tekst;
}

void Model(ElementRec& e) {
  (void)Doorgerekend(e);
}

TEST(Bocht, AttenuationGoesByTypeAndSizeClassUpperBoundIncluded) {
  struct Rij {
    int type;
    double maat;
    Bandwaarden demping;
  };
  const Rij rijen[] = {
      {3, 100, {0, 0, 0, 1, 5, 7, 5}},
      {3, 250, {0, 0, 0, 1, 5, 7, 5}},
      {3, NetBoven(250), {0, 0, 1, 5, 7, 5, 3}},
      {3, 500, {0, 0, 1, 5, 7, 5, 3}},
      {3, NetBoven(500), {0, 1, 5, 7, 5, 3, 3}},
      {3, 1000, {0, 1, 5, 7, 5, 3, 3}},
      {3, NetBoven(1000), {1, 5, 7, 5, 3, 3, 3}},
      {3, 5000, {1, 5, 7, 5, 3, 3, 3}},
      {4, 100, {0, 0, 0, 0, 1, 2, 3}},
      {4, 250, {0, 0, 0, 0, 1, 2, 3}},
      {4, NetBoven(250), {0, 0, 0, 1, 2, 3, 3}},
      {4, 500, {0, 0, 0, 1, 2, 3, 3}},
      {4, NetBoven(500), {0, 0, 1, 2, 3, 3, 3}},
      {4, 1000, {0, 0, 1, 2, 3, 3, 3}},
      {4, NetBoven(1000), {0, 1, 2, 3, 3, 3, 3}},
      {4, 5000, {0, 1, 2, 3, 3, 3, 3}},
      {5, 100, {0, 0, 0, 0, 1, 2, 3}},
      {5, 125, {0, 0, 0, 0, 1, 2, 3}},
      {5, NetBoven(125), {0, 0, 0, 1, 2, 3, 3}},
      {5, 250, {0, 0, 0, 1, 2, 3, 3}},
      {5, NetBoven(250), {0, 0, 1, 2, 3, 3, 3}},
      {5, 500, {0, 0, 1, 2, 3, 3, 3}},
      {5, NetBoven(500), {0, 1, 2, 3, 3, 3, 3}},
      {5, 5000, {0, 1, 2, 3, 3, 3, 3}},
  };
  for (const Rij& rij : rijen) {
    const bool rond = rij.type == 5;
    ElementRec e = EenBocht(rij.type, rond ? rij.maat : 600, rond ? 2000 : rij.maat, 1);
    Model(e);
    VerwachtBanden(e.demp, rij.demping, std::to_string(rij.type) + ", size " + std::to_string(rij.maat));
    EXPECT_EQ(e.demp[7], 91) << "slot 7 is not written";
  }
}

TEST(Bocht, TheHeightOfARectangularBendDoesNotCountForItsAttenuation) {
  ElementRec e = EenBocht(3, 600, 250, 1);
  Model(e);
  VerwachtBanden(e.demp, {0, 0, 0, 1, 5, 7, 5});
}

TEST(Bocht, FlowNoiseFollowsTheCurveOfTheStrouhalNumber) {
  // S = 0.09, d = 338.513750, v = 5.5555556; 1000 Hz: x = 60.932475, K = -29.897 lg x + 21.362 = -31.999619,
  // ruis = 10 lg 690 + K + 30 lg 0.338513750 + 50 lg v = 19.5125299275
  ElementRec vier = EenBocht(4, 300, 300, 0.5);
  Model(vier);
  VerwachtSpectrum(vier.ruis, {40.0565213641, 36.2507328192, 31.5542070677, 25.626216331, 19.5125299275,
                               13.5854255965, 7.5958317728, 27.971416855});
  // Round, d = 500, S = 0.196349541, v = 10.1859164
  ElementRec rond = EenBocht(5, 500, 0, 2);
  Model(rond);
  VerwachtSpectrum(rond.ruis, {60.4058830953, 56.8658657742, 52.1778940425, 46.6783556605, 40.564669257,
                               34.637564926, 28.6479711023, 48.7953286783});
  // v = 100: x from 0.07 at 63 Hz to 4.5 at 4000 Hz, the low pieces of the curve
  ElementRec snel = EenBocht(4, 100, 100, 1);
  Model(snel);
  VerwachtSpectrum(snel.ruis, {118.232692078, 116.59704, 114.78501407, 113.156935791, 111.238618913,
                               108.713739601, 104.9137973, 116.267825294});
}

TEST(Bocht, TheSharpBendIsFiveDecibelNoisier) {
  ElementRec drie = EenBocht(3, 300, 300, 0.5), vier = EenBocht(4, 300, 300, 0.5);
  Model(drie);
  Model(vier);
  for (std::size_t b = 0; b <= 7; ++b) EXPECT_NEAR(drie.ruis[b] - vier.ruis[b], 5, Marge) << b;
}

TEST(Bocht, NoiseBelowZeroBecomesZero) {
  ElementRec e = EenBocht(4, 500, 500, 0.1);  // v = 0.4
  Model(e);
  EXPECT_EQ(e.ruis, Spectrum{});
}

TEST(Bocht, TheTypeAndNotTheWidthMakesItRound) {
  ElementRec rond = EenBocht(5, 500, 300, 2);
  EXPECT_EQ(Doorgerekend(rond)[0].Getrimd(), "diam = 500 mm");
  EXPECT_NEAR(rond.ruis[0], 60.4058830953, Marge);
  for (const int type : {3, 4}) {
    ElementRec recht = EenBocht(type, 500, 0, 2);
    EXPECT_EQ(FoutVan([&] { Model(recht); }), 11);
  }
}

TEST(Bocht, ReportTextsShowSizeAndFlow) {
  for (const int type : {3, 4}) {
    ElementRec recht = EenBocht(type, 400, 250.5, 0.75);
    VerwachtTekst(Doorgerekend(recht, ','), {"h×b = 400×250,5 mm"_cp, "q = 0,75 m³/s"_cp, "", ""});
  }
  ElementRec rond = EenBocht(5, 400.25, 0, 0.75);
  VerwachtTekst(Doorgerekend(rond), {"diam = 400.25 mm", "q = 0.75 m³/s"_cp, "", ""});
}

TEST(Bocht, ImpossibleValuesAreFaults) {
  for (const int type : {3, 4}) {
    VerwachtFouten(EenBocht(type, 300, 400, 1),
                   {
                       {&ElementRec::Hoogte, 0, 11},  // speed = flow / 0
                       {&ElementRec::Breedte, 0, 11},
                       {&ElementRec::Debiet, 0, 11},  // the Strouhal number is divided by the speed
                       {&ElementRec::Debiet, -1, 5},
                       {&ElementRec::Hoogte, -300, 5},  // root of a negative number
                       {&ElementRec::Debiet, 1E+308, 6},
                       {&ElementRec::Debiet, 1E-310, 6},  // the Strouhal number overflows
                   },
                   Model);
  }
  VerwachtFouten(EenBocht(5, 300, 0, 1),
                 {
                     {&ElementRec::Hoogte, 0, 11},
                     {&ElementRec::Debiet, 0, 11},
                     {&ElementRec::Debiet, -1, 5},
                     {&ElementRec::Hoogte, -300, 5},
                     {&ElementRec::Hoogte, 1E+200, 6},
                 },
                 Model);
}

TEST(Bocht, RefusesFieldsThatAreNotFinite) {
  for (const int type : {3, 4, 5})
    VerwachtFout6Bij(EenBocht(type, 300, 400, 1), {&ElementRec::Hoogte, &ElementRec::Debiet}, Model);
  for (const int type : {3, 4}) VerwachtFout6Bij(EenBocht(type, 300, 400, 1), {&ElementRec::Breedte}, Model);
}

TEST(Bocht, DoesNotReadOtherFields) {
  const std::vector<Getalveld> velden = {&ElementRec::QAftak, &ElementRec::HHoofd, &ElementRec::BHoofd,
                                         &ElementRec::HDoor,  &ElementRec::BDoor,  &ElementRec::Snetto,
                                         &ElementRec::Lengte, &ElementRec::RAftak, &ElementRec::Weerstand};
  VerwachtOngelezen(EenBocht(3, 300, 400, 1), velden, Model);
  VerwachtOngelezen(EenBocht(5, 300, 0, 1), velden, Model);
  VerwachtOngelezen(EenBocht(5, 300, 0, 1), {&ElementRec::Breedte}, Model);
}

}  // namespace
}  // namespace murvane
