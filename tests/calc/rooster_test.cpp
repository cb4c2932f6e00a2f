#include "basis/tekst.h"
#include "calc/elementen.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

constexpr std::int16_t Installatie = rekentype::Installatiegeluid;
constexpr std::int16_t Overspraak = rekentype::Overspraak;

ElementRec EenRooster(double snetto = 500, double hoogte = 300, double breedte = 200) {
  ElementRec e;
  e.ElementType = 11;
  e.Hoogte = hoogte, e.Breedte = breedte;
  e.Debiet = 0.3, e.Weerstand = 50;
  e.Snetto = snetto;
  e.demp = Gevuld(91);
  e.ruis = Gevuld(92);
  return e;
}

RuimteRec Kamer(int rdi, double aantal = 3) {
  RuimteRec r;
  r.RDI = static_cast<std::int16_t>(rdi);
  r.RAantal = aantal;
  return r;
}

ElementTekstRijen Doorgerekend(ElementRec& e, int rdi = 2, std::int16_t type = Installatie,
                               char decimaal = '.') {
  ElementTekstRijen tekst;
  Rooster(e, Kamer(rdi), type, tekst, decimaal);
  return tekst;
}

void Model(ElementRec& e) {
  (void)Doorgerekend(e);
}
void ModelOverspraak(ElementRec& e) {
  (void)Doorgerekend(e, 2, Overspraak);
}

TEST(Rooster, EndReflectionFollowsTheDirectivityFactor) {
  struct Rij {
    int rdi;
    double snetto;
    Bandwaarden demping;
  };
  // 100 cm²: x = 6.3, 12.5, 25, 50, 100, 200, 400; 1600 cm²: four times that. E.g. 1: -20 lg 6.3 + 40
  // = 24.013.
  const Rij rijen[] = {
      {1, 100, {24.0131890109, 18.0617997398, 12.0411998266, 6.02059991328, 2.25, 0, 0}},
      {1, 1600, {11.9719891844, 6.02059991328, 2.25, 0, 0, 0, 0}},
      {2, 100, {21.0131890109, 15.0617997398, 9.04119982656, 3.84511695941, 1, 0, 0}},
      {2, 1600, {8.97198918437, 3.84511695941, 1, 0, 0, 0, 0}},
      {4, 100, {18.0131890109, 12.0617997398, 6.04119982656, 1.49400794103, 0, 0, 0}},
      {4, 1600, {5.97198918437, 1.49400794103, 0, 0, 0, 0, 0}},
      {8, 100, {15.0131890109, 9.06179973984, 3.64261327955, 0.506362660586, 0, 0, 0}},
      {8, 1600, {3.59454648854, 0.506362660586, 0, 0, 0, 0, 0}},
  };
  for (const Rij& rij : rijen) {
    ElementRec e = EenRooster(rij.snetto);
    Doorgerekend(e, rij.rdi);
    VerwachtBanden(e.demp, rij.demping, "factor " + std::to_string(rij.rdi));
    EXPECT_EQ(e.demp[7], 91) << "slot 7 is not written";
  }
}

TEST(Rooster, EveryPieceOfTheEndReflectionIncludesItsUpperBound) {
  struct Rij {
    int rdi;
    std::size_t band;
    double snetto, op;      // x exactly on the bound
    double erboven, boven;  // x just above it
  };
  const Rij rijen[] = {
      // x = 50: -20 lg 50 + 40, -15 lg 50 + 31.5
      {1, 2, 400, 6.020599913280, 400.00000000000011, 6.015449934960},
      // x = 80: -15 lg 80 + 31.5, -7.5 lg 80 + 17.25
      {1, 4, 64, 2.953650195121, 64.000000000000028, 2.976825097560},
      // x = 40: -20 lg 40 + 37, -11.667 lg 40 + 23.667
      {2, 3, 64, 4.958800173441, 64.000000000000028, 4.975766081177},
      // x = 80: -11.667 lg 80 + 23.667, -5 lg 80 + 11
      {2, 4, 64, 1.463649121765, 64.000000000000028, 1.484550065040},
      // x = 30: -20 lg 30 + 34, -13.6 lg 30 + 24.6
      {4, 1, 576, 4.457574905607, 576.00000000000011, 4.511150935813},
      // x = 50: -13.6 lg 50 + 24.6, -5 lg 50 + 10
      {4, 2, 400, 1.494007941030, 400.00000000000011, 1.505149978320},
      // x = 20: -20 lg 20 + 31, -13.89 lg 20 + 23.06
      {8, 2, 64, 4.979400086720, 64.000000000000028, 4.988693360227},
      // x = 30: -13.89 lg 30 + 23.06, -9.09 lg 30 + 15.95
      {8, 1, 576, 2.542785771944, 576.00000000000011, 2.522967794598},
      // x = 50: -9.09 lg 50 + 15.95, -2.5 lg 50 + 4.75
      {8, 2, 400, 0.506362660586, 400.00000000000011, 0.502574989160},
  };
  for (const Rij& rij : rijen) {
    ElementRec op = EenRooster(rij.snetto), boven = EenRooster(rij.erboven);
    Doorgerekend(op, rij.rdi);
    Doorgerekend(boven, rij.rdi);
    EXPECT_NEAR(op.demp[rij.band], rij.op, Marge) << "row " << &rij - rijen;
    EXPECT_NEAR(boven.demp[rij.band], rij.boven, Marge) << "row " << &rij - rijen;
  }
}

TEST(Rooster, AnotherDirectivityFactorLeavesTheAttenuationButForNegativeValues) {
  for (const int rdi : {0, 3, 5, 6, 7, 9, -1}) {
    ElementRec e = EenRooster();
    e.demp = {5, -5, 0, 7.25, -0.001, 1, 2, -9};
    Doorgerekend(e, rdi);
    EXPECT_EQ(e.demp, (Spectrum{5, 0, 0, 7.25, 0, 1, 2, -9})) << rdi;
    EXPECT_NEAR(e.ruis[0], 46.2932237263, Marge);
  }
}

TEST(Rooster, TakesTheValuesOfTheRoomOverOnEveryRun) {
  ElementRec e = EenRooster();
  e.ElRDI = 8, e.ElRAantal = 12;
  ElementTekstRijen tekst;
  Rooster(e, Kamer(4, 2.5), Installatie, tekst, '.');
  EXPECT_EQ(e.ElRDI, 4);
  EXPECT_EQ(e.ElRAantal, 2.5);
  Rooster(e, Kamer(1, 7), Overspraak, tekst, '.');
  EXPECT_EQ(e.ElRDI, 1);
  EXPECT_EQ(e.ElRAantal, 7);
}

TEST(Rooster, FlowNoiseFollowsPressureLossAndDuctSection) {
  // S = 0.06; 1000 Hz: x = 1000 · 0.6 · 0.3 / (50 · 0.06) = 60, 30 lg 50 + 17 + 10 lg 0.06 - K(60)
  for (const double snetto : {500.0, 100.0}) {  // the free area plays no part here
    ElementRec recht = EenRooster(snetto);
    Model(recht);
    VerwachtSpectrum(recht.ruis, {46.2932237263, 48.1026410414, 48.8506126339, 48.7992345148, 47.7164955493,
                                  43.045487869, 34.4189504396, 51.3910442493});
  }
  for (const double breedte : {0.0, -1.0}) {
    ElementRec rond = EenRooster(500, 250, breedte);
    Model(rond);
    VerwachtSpectrum(rond.ruis, {46.0295915906, 47.5262299098, 47.9787991172, 47.8694989618, 45.8310463974,
                                 39.8567929005, 30.5351910355, 49.6344954361});
  }
}

TEST(Rooster, NoiseBelowZeroBecomesZero) {
  ElementRec e = EenRooster(500, 100, 100);
  e.Debiet = 0.05, e.Weerstand = 2;
  Model(e);
  EXPECT_EQ(e.ruis, Spectrum{});
}

TEST(Rooster, OnlyOverspraakSkipsTheFlowNoise) {
  for (const int type : {0, 1, 2, 4, -3}) {
    ElementRec e = EenRooster();
    Doorgerekend(e, 2, static_cast<std::int16_t>(type));
    EXPECT_NEAR(e.ruis[7], 51.3910442493, Marge) << type;
  }
  ElementRec e = EenRooster();
  const ElementTekstRijen tekst = Doorgerekend(e, 1, Overspraak);
  EXPECT_EQ(e.ruis, Gevuld(92)) << "kept, slot 7 too";
  EXPECT_NEAR(e.demp[0], 17.0234889676, Marge);  // x = 63 · sqrt(0.05): -20 lg 14.087 + 40
  EXPECT_EQ(tekst[3].Getrimd(), "Dp = 50 Pa");
}

TEST(Rooster, ReportTextsShowSizeFlowFreeAreaAndPressureLoss) {
  ElementRec recht = EenRooster(437.5);
  VerwachtTekst(Doorgerekend(recht, 2, Installatie, ','),
                {"h×b = 300×200 mm"_cp, "q = 0,3 m³/s"_cp, "Seff = 437,5 cm²"_cp, "Dp = 50 Pa"});
  ElementRec rond = EenRooster(437.5, 160, 0);
  rond.Weerstand = 12.5;
  VerwachtTekst(Doorgerekend(rond),
                {"diam = 160 mm", "q = 0.3 m³/s"_cp, "Seff = 437.5 cm²"_cp, "Dp = 12.5 Pa"});
  ElementRec lang = EenRooster(1234.0 / 9);  // "Seff = 137.111111111111 cm²"
  EXPECT_EQ(Doorgerekend(lang)[2].Heel(), "Seff = 137.111111111");
}

TEST(Rooster, ImpossibleValuesAreFaults) {
  const std::vector<FoutRij> altijd = {
      {&ElementRec::Snetto, 0, 5},   // log of 0
      {&ElementRec::Snetto, -1, 5},  // root of a negative number
      {&ElementRec::Hoogte, 1E+306, 0},
      {&ElementRec::Breedte, 1E+307, 0},
  };
  const std::vector<FoutRij> metRuis = {
      {&ElementRec::Weerstand, 0, 11},  // divisor, before its logarithm
      {&ElementRec::Hoogte, 0, 11},    {&ElementRec::Debiet, 0, 5},      {&ElementRec::Weerstand, -1, 5},
      {&ElementRec::Debiet, -1, 5},    {&ElementRec::Debiet, 1E+308, 6},
  };
  const std::vector<FoutRij> zonderRuis = {
      {&ElementRec::Weerstand, 0, 0},
      {&ElementRec::Hoogte, 0, 0},
      {&ElementRec::Debiet, 0, 0},
      {&ElementRec::Debiet, -1, 0},
  };
  VerwachtFouten(EenRooster(), {altijd[0], altijd[1]}, Model);
  VerwachtFouten(EenRooster(), metRuis, Model);
  VerwachtFouten(EenRooster(), altijd, ModelOverspraak);
  VerwachtFouten(EenRooster(), zonderRuis, ModelOverspraak);
}

TEST(Rooster, WithoutAKnownFactorAFreeAreaOfZeroIsNoFault) {
  ElementRec e = EenRooster(0);
  EXPECT_EQ(FoutVan([&] { Doorgerekend(e, 3); }), 0);
  e.Snetto = -1;  // the root stands before the choice
  EXPECT_EQ(FoutVan([&] { Doorgerekend(e, 3); }), 5);
}

TEST(Rooster, RefusesFieldsThatAreNotFinite) {
  const std::vector<Getalveld> velden = {&ElementRec::Hoogte, &ElementRec::Breedte, &ElementRec::Debiet,
                                         &ElementRec::Weerstand, &ElementRec::Snetto};
  VerwachtFout6Bij(EenRooster(), velden, Model);
  VerwachtFout6Bij(EenRooster(), velden, ModelOverspraak);
  for (const double waarde : NietEindig) {
    ElementTekstRijen tekst;
    ElementRec e = EenRooster();
    e.ElRAantal = 5;
    EXPECT_EQ(FoutVan([&] { Rooster(e, Kamer(2, waarde), Installatie, tekst, '.'); }), 6) << waarde;
    EXPECT_EQ(e.ElRAantal, 5);
    // A stored attenuation that stays has to be a number too; minus infinity is not a negative value to
    // clear.
    e = EenRooster();
    e.demp[3] = waarde;
    EXPECT_EQ(FoutVan([&] { Doorgerekend(e, 3); }), 6) << waarde;
  }
}

TEST(Rooster, DoesNotReadOtherFields) {
  const std::vector<Getalveld> velden = {&ElementRec::Lengte, &ElementRec::QAftak,   &ElementRec::HHoofd,
                                         &ElementRec::BHoofd, &ElementRec::HDoor,    &ElementRec::BDoor,
                                         &ElementRec::RAftak, &ElementRec::ElRAantal};
  VerwachtOngelezen(EenRooster(), velden, Model);
}

}  // namespace
}  // namespace murvane
