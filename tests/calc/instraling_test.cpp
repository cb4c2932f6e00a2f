#include "calc/instraling.h"

#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;
using std::string_view_literals::operator""sv;

constexpr Spectrum Wand = {5, 7, 9, 12, 15, 18, 20, 0};
constexpr Spectrum Buiten = {60, 62, 65, 66, 64, 60, 55, 0};

ElementRec Kanaal(int type, double hoogte, double breedte, double lengte, const Spectrum& LAeq) {
  ElementRec e;
  e.ElementType = static_cast<std::int16_t>(type);
  e.Hoogte = hoogte, e.Breedte = breedte, e.Lengte = lengte;
  e.Kanaal = "staal 0,7 mm";
  e.LAeq = LAeq;
  e.Rkanaalwand = Wand;
  e.Instraling = Gevuld(77);
  return e;
}

TEST(Instraal, FollowsLevelWallAndWallArea) {
  // Sw = 2 · 0.5 · 4 = 4 m²: 63 Hz: 60 + 26.2 - 5 + 0 - 3 = 78.2. Bands at 0 stay 0.
  ElementRec e = Kanaal(8, 300, 200, 4, {60, 0, 65, 0, 0, 70, 0, 0});
  EXPECT_TRUE(Instraal(e));
  VerwachtSpectrum(e.Instraling, {78.2, 0, 61.6, 0, 0, 47.8, 0, 56.4092680681});
}

TEST(Instraal, ARoundDuctHasARoundPerimeter) {
  // Sw = 2 pi · 0.125 · 0.4 = 0.314159 m²: 63 Hz: 60 + 26.2 - 5 + 10 lg (0.314159 / 4) - 3. Short ducts count
  // in full.
  ElementRec e = Kanaal(9, 250, 0, 0.4, Buiten);
  EXPECT_TRUE(Instraal(e));
  VerwachtSpectrum(e.Instraling, {67.1508988137, 57.0508988137, 50.5508988137, 43.1508988137, 34.9508988137,
                                  26.7508988137, 19.9508988137, 47.3503045032});
}

TEST(Instraal, AWidthOfExactlyZeroAndNotTheTypeMakesItRound) {
  ElementRec recht = Kanaal(8, 250, 0, 3, Buiten);  // Sw = 2 pi · 0.125 · 3
  EXPECT_TRUE(Instraal(recht));
  EXPECT_NEAR(recht.Instraling[0], 75.9015114476, Marge);
  ElementRec rond = Kanaal(9, 250, 100, 3, Buiten);  // Sw = 2 · 0.35 · 3
  EXPECT_TRUE(Instraal(rond));
  EXPECT_NEAR(rond.Instraling[0], 75.4015930341, Marge);
  ElementRec negatief = Kanaal(8, 250, -50, 10, Buiten);  // Sw = 2 · 0.2 · 10 = 4
  EXPECT_TRUE(Instraal(negatief));
  EXPECT_NEAR(negatief.Instraling[0], 78.2, Marge);
}

TEST(Instraal, WithoutAChosenWallNothingGetsIn) {
  for (const auto naam : {""sv, "   "sv, "\0\0"sv, "<geen kanaalwand geselecteerd>"sv,
                          "  <geen kanaalwand geselecteerd> "sv, "\0<geen kanaalwand geselecteerd>\0"sv}) {
    for (const int type : {8, 9}) {
      ElementRec e = Kanaal(type, 300, 200, 4, Buiten);
      e.Kanaal = naam;
      EXPECT_FALSE(Instraal(e));
      EXPECT_EQ(e.Instraling, Spectrum{}) << testing::PrintToString(naam);
    }
  }
  ElementRec nooit = Kanaal(8, 300, 200, 4, Buiten);
  nooit.Kanaal = Tekst<80>();
  EXPECT_FALSE(Instraal(nooit));
  EXPECT_EQ(nooit.Instraling, Spectrum{});
}

TEST(Instraal, AnyOtherNameIsAWall) {
  for (const char* naam : {"<Geen kanaalwand geselecteerd>", "<geen plafond geselecteerd>", "x"}) {
    ElementRec e = Kanaal(8, 300, 200, 4, Buiten);
    e.Kanaal = naam;
    EXPECT_TRUE(Instraal(e)) << naam;
    EXPECT_NEAR(e.Instraling[0], 78.2, Marge);
  }
}

TEST(Instraal, AllBandsAtZeroGiveNoBreakIn) {
  ElementRec e = Kanaal(8, 300, 200, 4, {0, 0, 0, 0, 0, 0, 0, 50});
  EXPECT_FALSE(Instraal(e));
  EXPECT_EQ(e.Instraling, Spectrum{});
}

TEST(Instraal, OtherElementTypesKeepWhatTheyHave) {
  for (const int type : {-1, 0, 1, 2, 3, 4, 5, 6, 7, 10, 11, 12, 99}) {
    ElementRec e = Kanaal(type, 300, 200, 4, Buiten);
    EXPECT_FALSE(Instraal(e)) << type;
    EXPECT_EQ(e.Instraling, Gevuld(77)) << type;
    e.Hoogte = e.LAeq[0] = e.Rkanaalwand[0] = Nan;
    EXPECT_FALSE(Instraal(e)) << type;
  }
}

TEST(Instraal, ANegativeBreakInStaysNegative) {
  ElementRec e = Kanaal(8, 300, 200, 4, {0, 0, 0, 0, 10, 0, 0, 0});
  EXPECT_TRUE(Instraal(e));
  VerwachtSpectrum(e.Instraling, {0, 0, 0, 0, -8, 0, 0, -8});  // 10 - 0 - 15 + 0 - 3
}

TEST(Instraal, ALogarithmOfNoWallAreaIsAFault) {
  for (const double lengte : {0.0, -1.0}) {
    ElementRec e = Kanaal(8, 300, 200, lengte, Buiten);
    EXPECT_EQ(FoutVan([&] { (void)Instraal(e); }), 5) << lengte;
    ElementRec stil = Kanaal(8, 300, 200, lengte, {});
    EXPECT_EQ(FoutVan([&] { (void)Instraal(stil); }), 0) << "no band, no logarithm";
  }
}

TEST(Instraal, RefusesFieldsThatAreNotFinite) {
  const auto fout = [](auto verander) {
    ElementRec e = Kanaal(8, 300, 200, 4, Buiten);
    verander(e);
    const int nummer = FoutVan([&] { (void)Instraal(e); });
    EXPECT_TRUE(IsEindig(e.Instraling));
    return nummer;
  };
  for (const double w : NietEindig) {
    EXPECT_EQ(fout([w](ElementRec& e) { e.Hoogte = w; }), 6) << w;
    EXPECT_EQ(fout([w](ElementRec& e) { e.Breedte = w; }), 6) << w;
    EXPECT_EQ(fout([w](ElementRec& e) { e.Lengte = w; }), 6) << w;
    for (std::size_t b = 0; b < Banden; ++b) {
      EXPECT_EQ(fout([w, b](ElementRec& e) { e.LAeq[b] = w; }), 6) << w << ", band " << b;
      EXPECT_EQ(fout([w, b](ElementRec& e) { e.Rkanaalwand[b] = w; }), 6) << w << ", band " << b;
    }
    EXPECT_EQ(fout([w](ElementRec& e) { e.LAeq[7] = e.Rkanaalwand[7] = e.Debiet = w; }), 0) << "unread";
    EXPECT_EQ(fout([w](ElementRec& e) { e.LAeq[2] = 0, e.Rkanaalwand[2] = w; }), 0)
        << "unread in a silent band";
    EXPECT_EQ(fout([w](ElementRec& e) { e.Kanaal = GeenKanaalwand, e.LAeq[2] = w; }), 0)
        << "unread without a wall";
  }
  EXPECT_EQ(fout([](ElementRec& e) { e.LAeq[0] = 1E+305; }), 6) << "its power is too large";
  EXPECT_EQ(fout([](ElementRec& e) { e.Hoogte = 1E+200, e.Lengte = 1E+200; }), 6);
}

}  // namespace
}  // namespace murvane
