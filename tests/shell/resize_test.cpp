#include "shell/resize.h"

#include <gtest/gtest.h>

#include <cmath>

namespace murvane {
namespace {

/// A form of 9000 by 6000 twips (width by height) with one control of each kind.
ResizeVenster Voorbeeld() {
  ResizeVenster f;
  f.BinnenBreedte = 9000;
  f.BinnenHoogte = 6000;
  f.Vlakken = {
      {"SSTab1", false, Houder::Anders, 0, 0, 6000, 9000, 8, {}},
      {"Line1", true, Houder::Anders, 100, 200, 300, 400, {}, {}},
      {"txtfan", false, Houder::Frame, 50, 60, 285, 700, 8, {}},
      {"txtHoogte", false, Houder::SSTab2, 500, 600, 285, 700, 8, {}},
      {"txtBAftak", false, Houder::SSTab2, 510, 610 - 75000, 285, 700, 8, {}},
      {"txtProNum", false, Houder::Anders, 900, 1000, 285, 700, 8, {}},
      {"txtRLengte", false, Houder::Anders, 910, 1010 - 75000, 285, 700, 8, {}},
      {"RichTextBox1", false, Houder::Anders, 10, 20, 30, 40, 9, 5000},
      {"Timer1", false, Houder::Anders, {}, {}, {}, {}, {}, {}},
  };
  return f;
}

Stuurvlak& Vlak(ResizeVenster& f, std::string_view naam) {
  for (Stuurvlak& vlak : f.Vlakken) {
    if (vlak.Naam == naam) return vlak;
  }
  throw std::runtime_error("geen vlak " + std::string(naam));
}

TEST(ZonderTabVerschuiving, OnlyANegativeLeftIsShifted) {
  EXPECT_EQ(ZonderTabVerschuiving(0), 0);
  EXPECT_EQ(ZonderTabVerschuiving(120), 120);
  EXPECT_EQ(ZonderTabVerschuiving(-1), 74999);
  EXPECT_EQ(ZonderTabVerschuiving(-74390), 610);
}

TEST(ResizeInit, RecordsTheDesign) {
  const Ontwerp o = ResizeInit(Voorbeeld());
  EXPECT_EQ(o.OrigHoogte, 6000);
  EXPECT_EQ(o.OrigBreedte, 9000);
  EXPECT_EQ(o.LaatsteControl, 8);
  EXPECT_EQ(o.ResizeKlaar, -1);
  EXPECT_EQ(o.OrigTop, (std::vector<std::int16_t>{0, 100, 50, 500, 510, 900, 910, 10, 0}));
  EXPECT_EQ(o.OrigLeft, (std::vector<std::int16_t>{0, 200, 60, 600, 610, 1000, 1010, 20, 0}));
  EXPECT_EQ(o.OrigHeight, (std::vector<std::int16_t>{6000, 300, 285, 285, 285, 285, 285, 30, 0}));
  EXPECT_EQ(o.OrigWidth, (std::vector<std::int16_t>{9000, 400, 700, 700, 700, 700, 700, 40, 0}));
  EXPECT_EQ(o.OrigFontSize, (std::vector<std::int16_t>{8, 0, 8, 8, 8, 8, 8, 9, 0}));
  EXPECT_EQ(o.OrigRightMargin, (std::vector<std::int16_t>{0, 0, 0, 0, 0, 0, 0, 5000, 0}));
}

TEST(ResizeInit, RoundsAHalfToTheEvenTwipAndSkipsWhatDoesNotFit) {
  ResizeVenster f;
  f.BinnenHoogte = 2.5;
  f.BinnenBreedte = 40000;
  f.Vlakken = {{"a", false, Houder::Anders, 3.5, -0.4, 32767.5, 32767, {}, {}}};
  const Ontwerp o = ResizeInit(f);
  EXPECT_EQ(o.OrigHoogte, 2);
  EXPECT_EQ(o.OrigBreedte, 0);
  EXPECT_EQ(o.OrigTop[0], 4);
  EXPECT_EQ(o.OrigLeft[0], 0);
  EXPECT_EQ(o.OrigHeight[0], 0);
  EXPECT_EQ(o.OrigWidth[0], 32767);
}

TEST(ResizeInit, RecordsWhatJustFitsIn16BitsAndNothingBeyond) {
  const struct {
    double waarde;
    std::int16_t vastgelegd;
  } rijen[] = {
      {32767, 32767},    {32767.4, 32767},   {32768, 0},     {1e10, 0},
      {-32768, -32768},  {-32768.5, -32768}, {-32769, 0},    {-1e10, 0},
      {std::nan(""), 0}, {HUGE_VAL, 0},      {-HUGE_VAL, 0},
  };
  for (const auto& rij : rijen) {
    ResizeVenster f;
    f.BinnenHoogte = f.BinnenBreedte = rij.waarde;
    f.Vlakken = {{"Line1", true, Houder::Anders, rij.waarde, rij.waarde, rij.waarde, rij.waarde, rij.waarde,
                  rij.waarde}};
    const Ontwerp o = ResizeInit(f);
    for (const std::int16_t is : {o.OrigHoogte, o.OrigBreedte, o.OrigTop[0], o.OrigLeft[0], o.OrigHeight[0],
                                  o.OrigWidth[0], o.OrigFontSize[0], o.OrigRightMargin[0]})
      EXPECT_EQ(is, rij.vastgelegd) << rij.waarde;
  }
}

TEST(ResizeInit, RecordsTheLeftOfAControlWhenItsTabIsOnShow) {
  const struct {
    double left;
    std::int16_t vastgelegd;
  } rijen[] = {
      {32767, 32767},    {32768, 0},   {-42234, 32766},     {-42233, 32767}, {-42232, 0},
      {-107768, -32768}, {-107769, 0}, {-107767.5, -32768}, {1.1e9, 0},      {-1.1e9, 0},
      {-1e10, 0},        {1e10, 0},    {std::nan(""), 0},   {HUGE_VAL, 0},   {-HUGE_VAL, 0},
  };
  for (const auto& rij : rijen) {
    ResizeVenster f;
    f.Vlakken = {{"a", false, Houder::Anders, 0, rij.left, 0, 0, {}, {}}};
    EXPECT_EQ(ResizeInit(f).OrigLeft[0], rij.vastgelegd) << rij.left;
  }
}

TEST(ResizeInit, ALineKeepsANegativePlace) {
  ResizeVenster f;
  f.Vlakken = {{"Line1", true, Houder::Anders, -5, -20, 0, 0, {}, {}}};
  EXPECT_EQ(ResizeInit(f).OrigLeft[0], -20);
}

TEST(ResizeForm, MovesByHalfTheDifference) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  f.BinnenBreedte = 9201;  // dX = Int(100.5) = 100
  f.BinnenHoogte = 6050;   // dY = 25
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "Line1").Top, 125);
  EXPECT_EQ(Vlak(f, "Line1").Left, 300);
  EXPECT_EQ(Vlak(f, "Line1").Height, 325) << "Y2";
  EXPECT_EQ(Vlak(f, "Line1").Width, 500) << "X2";
  EXPECT_EQ(Vlak(f, "txtfan").Top, 50) << "it moves with its frame";
  EXPECT_EQ(Vlak(f, "txtfan").Left, 60);
  EXPECT_EQ(Vlak(f, "txtHoogte").Top, 500) << "the inner tab control moves as a whole";
  EXPECT_EQ(Vlak(f, "txtHoogte").Left, 600);
  EXPECT_EQ(Vlak(f, "txtBAftak").Left, 610 - 75000) << "a hidden control stays hidden";
  EXPECT_EQ(Vlak(f, "txtProNum").Top, 925);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1100);
  EXPECT_EQ(Vlak(f, "txtRLengte").Top, 935);
  EXPECT_EQ(Vlak(f, "txtRLengte").Left, 1110 - 75000);
  EXPECT_EQ(Vlak(f, "txtProNum").Height, 285) << "sizes stay";
  EXPECT_EQ(Vlak(f, "txtProNum").Width, 700);
  EXPECT_EQ(Vlak(f, "SSTab1").Width, 9000) << "the window places it";
  EXPECT_FALSE(Vlak(f, "Timer1").Left.has_value());
  EXPECT_TRUE(f.HertekentZelf);
  EXPECT_EQ(o.ResizeKlaar, -1);
}

TEST(ResizeForm, AControlOfAFrameStaysInItWhereverItStandsNow) {
  ResizeVenster f = Voorbeeld();
  f.Vlakken.push_back({"txtverborgen", false, Houder::Frame, 70, 80 - 75000, 285, 700, {}, {}});
  Ontwerp o = ResizeInit(f);
  f.BinnenBreedte = 9200;
  f.BinnenHoogte = 6200;
  for (const char* const naam : {"txtfan", "txtverborgen"}) Vlak(f, naam).Top = 9999;
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "txtfan").Top, 50);
  EXPECT_EQ(Vlak(f, "txtfan").Left, 60);
  EXPECT_EQ(Vlak(f, "txtverborgen").Top, 70);
  EXPECT_EQ(Vlak(f, "txtverborgen").Left, 80) << "the frame is hidden, not what stands in it";
}

TEST(ResizeForm, ALineOffTheFormIsNoHiddenControl) {
  ResizeVenster f = Voorbeeld();
  Vlak(f, "Line1").Left = -20;
  Ontwerp o = ResizeInit(f);
  f.BinnenBreedte = 9200;  // dX = 100
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "Line1").Left, 80);
  f.BinnenBreedte = 8000;  // dX = -500
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "Line1").Left, -520);
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "Line1").Left, -520);
}

TEST(ResizeForm, NeverTouchesSSTab1) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  o.ResizeKlaar = 0;
  Stuurvlak& tab = Vlak(f, "SSTab1");
  tab = {"SSTab1", false, Houder::Anders, 1, 2, 3, 4, 5, 6};
  f.BinnenBreedte = 18000;
  f.BinnenHoogte = 11600;
  for (const std::int16_t verplaatsen : {std::int16_t{-1}, std::int16_t{0}}) {
    ResizeForm(o, f, verplaatsen);
    EXPECT_EQ(tab.Top, 1);
    EXPECT_EQ(tab.Left, 2);
    EXPECT_EQ(tab.Height, 3);
    EXPECT_EQ(tab.Width, 4);
    EXPECT_EQ(tab.FontSize, 5);
    EXPECT_EQ(tab.RightMargin, 6);
  }
}

TEST(ResizeForm, APropertyThatAControlLacksIsSkippedAlone) {
  ResizeVenster f = Voorbeeld();
  f.Vlakken.push_back({"zonderLeft", false, Houder::Anders, 100, {}, 200, {}, {}, {}});
  Ontwerp o = ResizeInit(f);
  f.BinnenHoogte = 6100;
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "zonderLeft").Top, 150);
  EXPECT_FALSE(Vlak(f, "zonderLeft").Left.has_value());
  EXPECT_FALSE(Vlak(f, "zonderLeft").Width.has_value());
}

TEST(ResizeForm, CutsAnOddDifferenceTowardsMinusInfinity) {
  // 1 twip more is Int(0.5) = 0, 1 less Int(-0.5) = -1, 3 more Int(1.5) = 1, 3 less Int(-1.5) = -2
  for (const auto& [verschil, schuif] :
       {std::pair{0, 0}, {1, 0}, {-1, -1}, {2, 1}, {-2, -1}, {3, 1}, {-3, -2}}) {
    ResizeVenster f = Voorbeeld();
    Ontwerp o = ResizeInit(f);
    f.BinnenBreedte = 9000 + verschil;
    ResizeForm(o, f, -1);
    EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000 + schuif) << verschil;
    EXPECT_EQ(Vlak(f, "txtProNum").Top, 900) << verschil;
    EXPECT_EQ(Vlak(f, "Line1").Width, 400 + schuif) << verschil;
    f.BinnenBreedte = 9000;
    f.BinnenHoogte = 6000 + verschil;
    ResizeForm(o, f, -1);
    EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000) << verschil;
    EXPECT_EQ(Vlak(f, "txtProNum").Top, 900 + schuif) << verschil;
    EXPECT_EQ(Vlak(f, "Line1").Height, 300 + schuif) << verschil;
  }
}

TEST(ResizeForm, DoesNotAccumulate) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  for (int breedte = 7001; breedte < 12000; breedte += 7) {
    f.BinnenBreedte = breedte;
    ResizeForm(o, f, -1);
  }
  f.BinnenBreedte = 9000;
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000);
  EXPECT_EQ(Vlak(f, "txtRLengte").Left, 1010 - 75000);
}

TEST(ResizeForm, AControlThatFellOffTheLeftCountsAsHidden) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  f.BinnenBreedte = 6000;  // dX = -1500
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, -500);
  f.BinnenBreedte = 9000;
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000 - 75000);
}

TEST(ResizeForm, AMinimisedWindowMovesNothing) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  f.BinnenBreedte = 100;
  f.Geminimaliseerd = true;
  ResizeForm(o, f, -1);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000);
  EXPECT_FALSE(f.HertekentZelf);
  f.Geminimaliseerd = false;
  ResizeForm(o, f, 1);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000 - 4450) << "off the form";
}

TEST(ResizeForm, TheFirstProportionalCallOnlyArms) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  f.BinnenBreedte = 18000;  // sX = 9000 / 18000 = 0.5
  f.BinnenHoogte = 11600;   // sY = 5600 / 11200 = 0.5
  ResizeForm(o, f, 0);
  EXPECT_EQ(o.ResizeKlaar, 0);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000);
  ResizeForm(o, f, 0);
  EXPECT_EQ(Vlak(f, "Line1").Top, 200);
  EXPECT_EQ(Vlak(f, "Line1").Left, 400);
  EXPECT_EQ(Vlak(f, "Line1").Height, 600);
  EXPECT_EQ(Vlak(f, "Line1").Width, 800);
  EXPECT_EQ(Vlak(f, "txtProNum").Top, 1800);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 2000);
  EXPECT_EQ(Vlak(f, "txtProNum").Height, 570);
  EXPECT_EQ(Vlak(f, "txtProNum").Width, 1400);
  EXPECT_EQ(Vlak(f, "txtProNum").FontSize, 16);
  EXPECT_EQ(Vlak(f, "txtRLengte").Left, 2020 - 75000);
  EXPECT_EQ(Vlak(f, "RichTextBox1").RightMargin, 10000);
}

TEST(ResizeForm, ScalesTheTwoDirectionsApartWhateverAControlStandsIn) {
  ResizeVenster f = Voorbeeld();
  Vlak(f, "Line1").Left = -30;
  Ontwerp o = ResizeInit(f);
  o.ResizeKlaar = 0;
  f.BinnenBreedte = 18000;  // sX = 9000 / 18000 = 0.5
  f.BinnenHoogte = 22800;   // sY = 5600 / 22400 = 0.25
  ResizeForm(o, f, 0);
  EXPECT_EQ(Vlak(f, "Line1").Top, 400);
  EXPECT_EQ(Vlak(f, "Line1").Left, -60) << "a line is never hidden by its place";
  EXPECT_EQ(Vlak(f, "Line1").Height, 1200);
  EXPECT_EQ(Vlak(f, "Line1").Width, 800);
  EXPECT_EQ(Vlak(f, "txtfan").Top, 200);
  EXPECT_EQ(Vlak(f, "txtfan").Left, 120);
  EXPECT_EQ(Vlak(f, "txtfan").Height, 1140);
  EXPECT_EQ(Vlak(f, "txtfan").Width, 1400);
  EXPECT_EQ(Vlak(f, "txtHoogte").Top, 2000);
  EXPECT_EQ(Vlak(f, "txtHoogte").Left, 1200);
  EXPECT_EQ(Vlak(f, "txtBAftak").Left, 1220 - 75000);
  EXPECT_EQ(Vlak(f, "RichTextBox1").FontSize, 18) << "by the width";
  EXPECT_EQ(Vlak(f, "RichTextBox1").RightMargin, 20000) << "by the height";
  EXPECT_TRUE(f.HertekentZelf);
}

TEST(ResizeForm, TheFirstProportionalCallArmsAMinimisedFormToo) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  f.BinnenBreedte = 18000;
  f.Geminimaliseerd = true;
  ResizeForm(o, f, 0);
  EXPECT_EQ(o.ResizeKlaar, 0);
  ResizeForm(o, f, 0);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000) << "a minimised form is not scaled";
  f.Geminimaliseerd = false;
  ResizeForm(o, f, 0);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 2000);
}

TEST(ResizeForm, ScalingCutsToWholeTwips) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  o.ResizeKlaar = 0;
  f.BinnenBreedte = 3000;  // sX = 3
  f.BinnenHoogte = 2200;   // sY = 5600 / 1800 = 3.111...
  ResizeForm(o, f, 0);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 333);   // 1000 / 3
  EXPECT_EQ(Vlak(f, "txtProNum").Top, 289);    // 900 / 3.1111 = 289.28
  EXPECT_EQ(Vlak(f, "txtProNum").Height, 91);  // 285 / 3.1111 = 91.6
}

TEST(ResizeForm, LeavesAControlThatCameAfterTheRecording) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  f.Vlakken.push_back({"txtNieuw", false, Houder::Anders, 100, 200, 300, 400, 8, {}});
  f.BinnenBreedte += 1000;
  ResizeForm(o, f, 1);
  EXPECT_EQ(Vlak(f, "txtNieuw").Left, 200);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1500);
}

TEST(ResizeForm, ADivisionByZeroIsSkipped) {
  ResizeVenster f = Voorbeeld();
  Ontwerp o = ResizeInit(f);
  o.ResizeKlaar = 0;
  o.OrigBreedte = 0;  // sX = 0
  ResizeForm(o, f, 0);
  EXPECT_EQ(Vlak(f, "txtProNum").Left, 1000);
  EXPECT_EQ(Vlak(f, "txtProNum").FontSize, 8);
  EXPECT_EQ(Vlak(f, "txtProNum").Top, 900) << "the height's factor is 1";
}

TEST(ResizeForm, AFactorThatCannotBeWorkedOutLeavesItsDirectionAsItWas) {
  for (const double hoogte : {400.0, 6000.0}) {  // the strip alone, and the design
    ResizeVenster f = Voorbeeld();
    Ontwerp o = ResizeInit(f);
    o.ResizeKlaar = 0;
    f.BinnenHoogte = hoogte;
    f.BinnenBreedte = hoogte == 400 ? 18000 : 0;
    ResizeForm(o, f, 0);
    const Stuurvlak& vlak = Vlak(f, "RichTextBox1");
    EXPECT_EQ(vlak.Top, 10);
    EXPECT_EQ(vlak.Height, 30);
    EXPECT_EQ(vlak.RightMargin, 5000);
    EXPECT_EQ(vlak.Left, hoogte == 400 ? 40 : 20);
    EXPECT_EQ(vlak.Width, hoogte == 400 ? 80 : 40);
    EXPECT_EQ(vlak.FontSize, hoogte == 400 ? 18 : 9);
  }
}

}  // namespace
}  // namespace murvane
