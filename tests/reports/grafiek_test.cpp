#include "reports/grafiek.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <initializer_list>
#include <limits>
#include <string>
#include <vector>

#include "basis/fout.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

using Regels = std::vector<std::string>;
using Waarden = std::initializer_list<std::int16_t>;
using Rij8 = std::array<std::int16_t, 8>;

const std::string TitelEenMeter =
    "Geluidsdrukniveau op 1 meter van rooster/kanaalwand (afgerond op gehele decibellen)";
const std::string TitelGalmveld = "Geluidsdrukniveau in galmveld ruimte (afgerond op gehele decibellen)";
const std::string TitelOverspraak = "Overspraakdemping Lpz - Lpo  (afgerond op gehele decibellen)";

std::string Vol(const std::string& tekst) {
  std::string uit = tekst;
  uit.resize(80, ' ');
  return uit;
}

struct Geval {
  Project project;
  Resultaten resultaten;
  Grafiek grafiek;

  explicit Geval(std::int16_t type = rekentype::Installatiegeluid) {
    auto& kop = project.Kop;
    kop.RekenType = type;
    kop.ProNum = " P-0123";
    kop.ProNaam = "Kantoor Oost ";
    kop.Omschrijving = "Kamer 2.14";
    kop.Toelichting1 = "een";
    kop.Toelichting2 = "";
    kop.Toelichting3 = "drie";
  }
  Grafiek& Vul(std::int16_t keuze = kiesgrafiek::EenMeter) {
    Grafiek2(project, resultaten, keuze, grafiek);
    return grafiek;
  }
};

/// The title's first line and the four lines of the project at their full width.
Regels MetOmschrijving(Regels begin) {
  for (const char* regel : {"Kamer 2.14", "een", "", "drie"}) begin.push_back(Vol(regel));
  return begin;
}

TEST(Grafiek2, OfALevelHasThreeSeriesOverEightRows) {
  for (const std::int16_t type : Waarden{1, 2}) {
    Geval g(type);
    g.resultaten.LpEenMeter = {70, 60, 50, 45, 40, 35, 30, 51.5};
    g.resultaten.LwEind = {75, 65, 55, 50, 45, 40, 35, 56.5};
    g.resultaten.FanNaDemping = {74, 60, 50, 40, 30, 20, 10, 53};
    g.resultaten.SysteemGeluid = {68, 63, 53, 49.5, 44.5, 39.5, 34.5, 54.25};
    const Grafiek& grafiek = g.Vul();
    // 70 - 26,2 = 43,8; 60 - 16,1 = 43,9; 50 - 8,6 = 41,4; 45 - 3,2 = 41,8; 40; 36,2; 31; the sum 51,5 goes
    // to the even 52.
    EXPECT_EQ(grafiek.Waarden[0], (Rij8{44, 44, 41, 42, 40, 36, 31, 52}));
    // Minus LwEind plus the fan's: 42,8; 38,9; 36,4; 31,8; 25; 16,2; 6; 48.
    EXPECT_EQ(grafiek.Waarden[1], (Rij8{43, 39, 36, 32, 25, 16, 6, 48}));
    // Minus LwEind plus the system's: 36,8; 41,9; 39,4; 41,3; 39,5; 35,7; 30,5; 49,25. Halves go to even.
    EXPECT_EQ(grafiek.Waarden[2], (Rij8{37, 42, 39, 41, 40, 36, 30, 49}));
    EXPECT_EQ(grafiek.Titel, MetOmschrijving({TitelEenMeter}));
    EXPECT_EQ(grafiek.As, (VerticaleAs{"dB(A)", 0, 60, 6}));
    EXPECT_EQ(grafiek.Kolommen, 3U);
    EXPECT_EQ(grafiek.Rijen, 8U);
    EXPECT_TRUE(grafiek.Legenda);
    EXPECT_EQ(grafiek.Voetnoot, "  P-0123 - Kantoor Oost  ");
    EXPECT_TRUE(grafiek.VoetnootTerugloop);
    EXPECT_EQ(grafiek.Labels, (LabelOpmaak{1, "Arial", 8, 1, {0, 0, 150}}));
  }
}

TEST(Grafiek2, OfTheReverberantFieldReadsItsLevelAlsoInAFreeField) {
  Geval g;
  g.project.VrijVeld = 1;
  g.resultaten.LpGalmveld = {66.2, 0, 0, 0, 0, 0, 0, 40};
  const Grafiek& grafiek = g.Vul(kiesgrafiek::Galmveld);
  EXPECT_EQ(grafiek.Titel, MetOmschrijving({TitelGalmveld}));
  EXPECT_EQ(grafiek.Waarden[0], (Rij8{40, 0, 0, 0, 0, 1, 1, 40}));  // 1,2 and 1,0 above nothing
}

TEST(Grafiek2, HasItsWordsFromTheStart) {
  const Grafiek grafiek;
  EXPECT_EQ(Grafiek::HorizontaleTitel, "Frequentie in Hz");
  EXPECT_EQ(grafiek.As.Titel, "dB(A)");
  const Regels rijen(Grafiek::RijLabels.begin(), Grafiek::RijLabels.end());
  EXPECT_EQ(rijen, (Regels{"63", "125", "250", "500", "1000", "2000", "4000", "dB(A)"}));
  const Regels kolommen(Grafiek::KolomLabels.begin(), Grafiek::KolomLabels.end());
  EXPECT_EQ(kolommen, (Regels{"Totaal", "Ventilator", "Systeem"}));
}

TEST(Grafiek2, ScalesALevelByItsSum) {
  const struct {
    double x;
    VerticaleAs as;
  } rijen[] = {
      {-5, {"dB(A)", 0, 50, 5}},     {0, {"dB(A)", 0, 50, 5}},     {50, {"dB(A)", 0, 50, 5}},
      {50.01, {"dB(A)", 0, 60, 6}},  {60, {"dB(A)", 0, 60, 6}},    {60.01, {"dB(A)", 0, 70, 7}},
      {70, {"dB(A)", 0, 70, 7}},     {70.01, {"dB(A)", 0, 80, 8}}, {80, {"dB(A)", 0, 80, 8}},
      {80.1, {"dB(A)", 20, 100, 8}}, {150, {"dB(A)", 20, 100, 8}},
  };
  for (const auto& rij : rijen) {
    Geval g;
    g.resultaten.LpEenMeter[7] = rij.x;
    g.resultaten.LpEenMeter[0] = 140;  // the bands have no say
    EXPECT_EQ(g.Vul().As, rij.as) << rij.x;
  }
}

TEST(Grafiek2, ScalesCrosstalkByItsLargestBand) {
  const struct {
    double x;
    VerticaleAs as;
  } rijen[] = {
      {-5, {"dB", 0, 50, 5}},    {50, {"dB", 0, 50, 5}},    {50.01, {"dB", 0, 60, 6}},
      {60, {"dB", 0, 60, 6}},    {60.01, {"dB", 0, 70, 7}}, {70, {"dB", 0, 70, 7}},
      {70.01, {"dB", 0, 80, 8}}, {80, {"dB", 0, 80, 8}},    {80.01, {"dB", 0, 100, 10}},
  };
  for (const auto& rij : rijen) {
    for (std::size_t band : {0U, 3U, 6U}) {
      Geval g(rekentype::Overspraak);
      g.resultaten.OverspraakDemping.fill(-40);
      g.resultaten.OverspraakDemping[band] = rij.x;
      g.resultaten.OverspraakDemping[7] = 200;  // no sum belongs to it
      EXPECT_EQ(g.Vul().As, rij.as) << rij.x;
    }
  }
}

TEST(Grafiek2, OfCrosstalkKeepsTheMinimumOfTheChartBefore) {
  Geval g;
  g.resultaten.LpEenMeter[7] = 90;
  EXPECT_EQ(g.Vul().As.Minimum, 20);
  g.project.Kop.RekenType = rekentype::Overspraak;
  EXPECT_EQ(g.Vul().As, (VerticaleAs{"dB", 20, 50, 5}));
}

TEST(Grafiek2, OfCrosstalkHasOneSeriesOverSevenRows) {
  Geval g;
  g.Vul();  // the footnote wraps from now on
  g.project.Kop.RekenType = rekentype::Overspraak;
  g.resultaten.OverspraakDemping = {-3, 0.5, 1.5, 2.5, 10.49, 49.5, 50.5, 99};
  const Grafiek& grafiek = g.Vul(kiesgrafiek::Geen);
  EXPECT_EQ(std::vector<std::int16_t>(grafiek.Waarden[0].begin(), grafiek.Waarden[0].begin() + 7),
            (std::vector<std::int16_t>{0, 0, 2, 2, 10, 50, 50}));
  EXPECT_EQ(grafiek.Titel, MetOmschrijving({TitelOverspraak}));
  EXPECT_EQ(grafiek.Kolommen, 1U);
  EXPECT_EQ(grafiek.Rijen, 7U);
  EXPECT_FALSE(grafiek.Legenda);
  EXPECT_EQ(grafiek.Voetnoot, "P-0123 - Kantoor Oost");
  EXPECT_TRUE(grafiek.VoetnootTerugloop);  // not touched
  EXPECT_EQ(grafiek.Labels, LabelOpmaak{});
  Geval nieuw(rekentype::Overspraak);
  EXPECT_FALSE(nieuw.Vul().VoetnootTerugloop);
}

TEST(Grafiek2, WithoutAChoiceAddsItsLinesToTheTitleThatStands) {
  Geval g;
  g.Vul(kiesgrafiek::Galmveld);
  g.resultaten.LpEenMeter.fill(70);
  g.resultaten.LwEind.fill(10);
  g.resultaten.FanNaDemping.fill(40);
  g.resultaten.SysteemGeluid.fill(9);
  for (const std::int16_t keuze : Waarden{0, 3, -1}) {
    g.grafiek = {};
    g.Vul(kiesgrafiek::Galmveld);
    const Grafiek& grafiek = g.Vul(keuze);
    EXPECT_EQ(grafiek.Titel, MetOmschrijving(MetOmschrijving({TitelGalmveld})));
    EXPECT_EQ(g.Vul(keuze).Titel.size(), 13U);
    // No level, so only the differences: 40 - 10 and 9 - 10.
    EXPECT_EQ(grafiek.Waarden[0], (Rij8{}));
    EXPECT_EQ(grafiek.Waarden[1], (Rij8{30, 30, 30, 30, 30, 30, 30, 30}));
    EXPECT_EQ(grafiek.Waarden[2], (Rij8{}));
    EXPECT_EQ(grafiek.As, (VerticaleAs{"dB(A)", 0, 50, 5}));
  }
  EXPECT_EQ(g.Vul().Titel.size(), 5U);  // a choice begins anew
}

TEST(Grafiek2, RoundsHalvesToEvenAndNothingBelow0) {
  const struct {
    double niveau;
    std::int16_t balk;
  } rijen[] = {{-0.5, 0}, {-1e9, 0},  {-0.0, 0},  {0.5, 0},   {0.50001, 1},   {1.5, 2},         {2.5, 2},
               {3.5, 4},  {79.5, 80}, {80.5, 80}, {84.5, 84}, {32767, 32767}, {32767.49, 32767}};
  for (const auto& rij : rijen) {
    Geval g;
    g.resultaten.LpEenMeter[4] = rij.niveau;  // 1000 Hz: no weighting
    EXPECT_EQ(g.Vul().Waarden[0][4], rij.balk) << rij.niveau;
  }
}

TEST(Grafiek2, KeepsTheFormerChartWhenAValueIsTooLarge) {
  constexpr double GeenGetal = std::numeric_limits<double>::quiet_NaN();
  using Zet = std::function<void(Resultaten&, double)>;
  const struct {
    std::int16_t type;
    Zet zet;
  } rijen[] = {
      {1, [](Resultaten& r, double x) { r.LpEenMeter[4] = x; }},
      {2, [](Resultaten& r, double x) { r.LpEenMeter[7] = x; }},
      {1, [](Resultaten& r, double x) { r.FanNaDemping[7] = x; }},
      {1, [](Resultaten& r, double x) { r.SysteemGeluid[7] = x; }},
      {1, [](Resultaten& r, double x) { r.LwEind[4] = -x; }},
      {3, [](Resultaten& r, double x) { r.OverspraakDemping[6] = x; }},
  };
  for (const auto& rij : rijen) {
    for (const double waarde :
         {32767.5, 40000.0, 1e300, std::numeric_limits<double>::infinity(), GeenGetal}) {
      Geval g(rij.type);
      g.grafiek.Titel = {"vorige"};
      const Grafiek voor = g.grafiek;
      rij.zet(g.resultaten, waarde);
      EXPECT_EQ(proef::NummerVan([&] { return g.Vul().Rijen; }), 6) << rij.type << " " << waarde;
      EXPECT_EQ(g.grafiek, voor);
    }
  }
}

TEST(Grafiek2, OfAnUnknownTypeChangesNothing) {
  for (const std::int16_t type : Waarden{0, 4, -1}) {
    Geval g(type);
    g.grafiek.Titel = {"vorige"};
    const Grafiek voor = g.grafiek;
    EXPECT_EQ(g.Vul(), voor) << type;
  }
}

TEST(SelGraf, ChoosesAsItsButtonsSay) {
  EXPECT_EQ(SelGrafGeladen(), 1);
  EXPECT_EQ(SelGrafOptie(1), 1);
  EXPECT_EQ(SelGrafOptie(2), 2);
  EXPECT_EQ(SelGrafCancel(), 0);
}

TEST(ToontGrafiek, UnlessTheChoiceWasCancelled) {
  for (const std::int16_t type : Waarden{1, 2, 0}) {
    EXPECT_TRUE(VraagtGrafiekKeuze(type));
    EXPECT_FALSE(ToontGrafiek(type, 0));
    EXPECT_TRUE(ToontGrafiek(type, 1));
    EXPECT_TRUE(ToontGrafiek(type, 2));
  }
  EXPECT_FALSE(VraagtGrafiekKeuze(3));
  EXPECT_TRUE(ToontGrafiek(3, 0));
}

}  // namespace
}  // namespace murvane
