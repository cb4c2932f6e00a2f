#include "basis/tekst.h"
#include "calc/elementen.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

ElementRec EenKlep(double hoogte, double breedte, double debiet = 0.3, double weerstand = 50) {
  ElementRec e;
  e.ElementType = 10;
  e.Hoogte = hoogte, e.Breedte = breedte;
  e.Debiet = debiet, e.Weerstand = weerstand;
  e.demp = Gevuld(91);
  e.ruis = Gevuld(92);
  return e;
}

ElementTekstRijen Doorgerekend(ElementRec& e, char decimaal = '.') {
  ElementTekstRijen tekst;
  RegelKlep(e, tekst, decimaal);
  return tekst;
}

void Model(ElementRec& e) {
  (void)Doorgerekend(e);
}

TEST(RegelKlep, FlowNoiseFollowsPressureLossAndSection) {
  // S = 0.06, Weerstand · S = 3; 1000 Hz: x = 1000 · 0.6 · 0.3 / 3 = 60, K = 3.5 lb 60 - 12.64 = 8.034117,
  // 30 lg 50 + 17 + 10 lg 0.06 - K = 47.7164955493... with the constant 6.9 at 250 and 500 Hz as x = 15 and
  // 30 say
  ElementRec recht = EenKlep(300, 200);
  Model(recht);
  VerwachtSpectrum(recht.ruis, {46.2932237263, 48.1026410414, 48.8506126339, 48.7992345148, 47.7164955493,
                                43.045487869, 34.4189504396, 51.3910442493});
  // S = 0.125² pi
  ElementRec rond = EenKlep(250, 0);
  Model(rond);
  VerwachtSpectrum(rond.ruis, {46.0295915906, 47.5262299098, 47.9787991172, 47.8694989618, 45.8310463974,
                               39.8567929005, 30.5351910355, 49.6344954361});
}

TEST(RegelKlep, AttenuatesNothing) {
  ElementRec e = EenKlep(300, 200);
  Model(e);
  VerwachtBanden(e.demp, {});
  EXPECT_EQ(e.demp[7], 91) << "slot 7 is not written";
}

TEST(RegelKlep, NoiseBelowZeroBecomesZero) {
  ElementRec e = EenKlep(100, 100, 0.05, 2);
  Model(e);
  EXPECT_EQ(e.ruis, Spectrum{});
}

TEST(RegelKlep, TheWidthMakesItRound) {
  ElementRec nul = EenKlep(250, 0), negatief = EenKlep(250, -10);
  Model(nul);
  EXPECT_EQ(Doorgerekend(negatief)[0].Getrimd(), "diam = 250 mm");
  EXPECT_EQ(nul.ruis, negatief.ruis);
}

TEST(RegelKlep, SoundsLikeAnOutletOfTheSameSize) {
  ElementRec klep = EenKlep(300, 200);
  ElementRec rooster = klep;
  rooster.Snetto = 500;
  Model(klep);
  RuimteRec ruimte;
  ruimte.RDI = 2;
  for (const std::int16_t type : {rekentype::Installatiegeluid, rekentype::Geluidsuitstraling}) {
    rooster.ruis.fill(0);
    ElementTekstRijen tekst;
    Rooster(rooster, ruimte, type, tekst, '.');
    EXPECT_EQ(rooster.ruis, klep.ruis);
  }
}

TEST(RegelKlep, ReportTextsShowSizeFlowAndPressureLoss) {
  ElementRec recht = EenKlep(300, 200, 0.25, 12.5);
  VerwachtTekst(Doorgerekend(recht, ','), {"h×b = 300×200 mm"_cp, "q = 0,25 m³/s"_cp, "Dp = 12,5 Pa", ""});
  ElementRec rond = EenKlep(315, 0, 0.25, 12.5);
  VerwachtTekst(Doorgerekend(rond), {"diam = 315 mm", "q = 0.25 m³/s"_cp, "Dp = 12.5 Pa", ""});
}

TEST(RegelKlep, ImpossibleValuesAreFaults) {
  const std::vector<FoutRij> rijen = {
      {&ElementRec::Weerstand, 0, 11},                                   // divisor, before its logarithm
      {&ElementRec::Hoogte, 0, 11},        {&ElementRec::Debiet, 0, 5},  // log of 0 in the curve
      {&ElementRec::Weerstand, -1, 5},     {&ElementRec::Debiet, -1, 5},
      {&ElementRec::Weerstand, 1E-307, 6},  // the quotient overflows
      {&ElementRec::Hoogte, 1E+200, 6},
  };
  VerwachtFouten(EenKlep(300, 0, 20), rijen, Model);
  VerwachtFouten(EenKlep(300, 200), {{&ElementRec::Hoogte, 0, 11}, {&ElementRec::Hoogte, -300, 5}}, Model);
}

TEST(RegelKlep, RefusesFieldsThatAreNotFinite) {
  const std::vector<Getalveld> velden = {&ElementRec::Hoogte, &ElementRec::Breedte, &ElementRec::Debiet,
                                         &ElementRec::Weerstand};
  VerwachtFout6Bij(EenKlep(300, 200), velden, Model);
  VerwachtFout6Bij(EenKlep(300, 0), velden, Model);
}

TEST(RegelKlep, DoesNotReadOtherFields) {
  VerwachtOngelezen(EenKlep(300, 200),
                    {&ElementRec::Lengte, &ElementRec::QAftak, &ElementRec::HHoofd, &ElementRec::BHoofd,
                     &ElementRec::HDoor, &ElementRec::BDoor, &ElementRec::Snetto, &ElementRec::RAftak},
                    Model);
}

}  // namespace
}  // namespace murvane
