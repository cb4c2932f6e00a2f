#include "estimators/kanaalwand.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/estimators/hulp.h"

namespace murvane {
namespace {

using proef::NaamVan;
using proef::VeldVan;
using proef::Waarden;

// Each piece at its upper bound and just above it, worked from the curves: 16.6·log10 15 + 14.3 = 33.8231,
// 5·log10 15 + 28 = 33.8805; 5·log10 62 + 28 = 36.9620, 30·log10 112 - 24.5 = 36.9765; of a heavy wall
// 16.6·log10 40 + 13 = 39.5942, 11.6·log10 40 + 21 = 39.5839; 11.6·2 + 21 = 44.2, -20·log10 0.011 + 5 =
// 44.1721.
TEST(Isolatie, ChangesCurveBehindEachBound) {
  struct Rij {
    double massa, mf, isolatie;
  };
  const auto boven = [](double grens) { return std::nextafter(grens, 1e9); };
  for (const Rij& rij : std::initializer_list<Rij>{
           {7.8, 0.4914, 9.1778},
           {7.8, 15, 33.8231},
           {7.8, boven(15), 33.8805},
           {150, 31.2, 35.4708},
           {150, 62, 36.9620},
           {150, boven(62), 36.9765},
           {150, 600, 59.8874},
           {boven(150), 10, 29.6},
           {boven(150), 40, 39.5942},
           {boven(150), boven(40), 39.5839},
           {780, 100, 44.2},
           {780, boven(100), 44.1721},
           {780, 3120, 62.5851},
           {780, 1e12, 65},  // levels off
       })
    EXPECT_NEAR(Isolatie(rij.massa, rij.mf), rij.isolatie, 5e-5) << rij.massa << " " << rij.mf;
}

TEST(Isolatie, OfNoMassIsAFault) {
  EXPECT_THROW((void)Isolatie(7.8, 0), Fout);
}

// By hand: 1 mm of galvanised steel is 7.8 kg/m², mf 0.4914 at 63 Hz and 31.2 at 4000 Hz: 9.18 and 35.47. The
// others with mf = f·mass/1000 in the same way; 20 mm of plastic is 26 kg/m², 100 mm of steel 780. 1 mm of
// plastic at 63 Hz: 16.6·log10 0.0819 + 14.3 = -3.74.
TEST(Kanaalwand, FollowsTheMassLawOfItsMaterial) {
  struct Rij {
    KanaalwandInvoer invoer;
    const char* naam;
    const char* waarden;
  };
  for (const Rij& rij : std::initializer_list<Rij>{
           {{kanaaltype::Zink, 1, 0}, "verzinkt staal,  1 mm", "9 14 19 24 29 34 35"},
           {{kanaaltype::RVS, 1, 0}, "rvs staal,  1 mm", "9 14 19 24 29 34 35"},
           {{kanaaltype::Alu, 1, 0}, "aluminium,  1 mm", "2 6 11 16 21 26 31"},
           {{kanaaltype::Kunststof, 1, 0}, "kunststof,  1 mm", "-4 1 6 11 16 21 26"},
           {{kanaaltype::Kunststof, 20, 0}, "kunststof,  20 mm", "18 23 28 33 35 37 41"},
           {{kanaaltype::Zink, 100, 0}, "verzinkt staal,  100 mm", "41 44 49 54 58 61 63"},
       }) {
    const SchatUitslag uitslag = cmdOK_Click(rij.invoer, ',');
    EXPECT_EQ(NaamVan(uitslag), rij.naam);
    EXPECT_EQ(Waarden(uitslag), rij.waarden) << rij.naam;
  }
}

// 2 mm of steel and 5.5 kg/m²: 21.1 kg/m²; 63 Hz: mf 1.3293, 16.35.
TEST(Kanaalwand, AddsAndNamesTheMassAgainstDrumming) {
  const KanaalwandInvoer invoer{kanaaltype::Zink, 2, 5.5};
  EXPECT_EQ(NaamVan(cmdOK_Click(invoer, ',')), "verzinkt staal,  2 mm, massa ontdreuning  5,5 kg/m²"_cp);
  EXPECT_EQ(NaamVan(cmdOK_Click(invoer, '.')), "verzinkt staal,  2 mm, massa ontdreuning  5.5 kg/m²"_cp);
  EXPECT_EQ(NaamVan(cmdOK_Click(KanaalwandInvoer{kanaaltype::Zink, 2, 0.1}, ',')),
            "verzinkt staal,  2 mm, massa ontdreuning  0,1 kg/m²"_cp);
  EXPECT_EQ(Waarden(cmdOK_Click(invoer, ',')), "16 21 26 31 35 36 39");
  EXPECT_EQ(NaamVan(cmdOK_Click(KanaalwandInvoer{kanaaltype::Zink, 2, 5}, ',')),
            "verzinkt staal,  2 mm, massa ontdreuning  5 kg/m²"_cp);
}

// 1 mm of steel and 16.4 kg/m²: 24.2 kg/m²; 4000 Hz: mf 96.8, 30·log10 146.8 - 24.5 = 40.5016, just over the
// half.
TEST(Kanaalwand, RoundsTheUnroundedValue) {
  EXPECT_EQ(Waarden(cmdOK_Click(KanaalwandInvoer{kanaaltype::Zink, 1, 16.4}, '.')), "17 22 27 32 35 36 41");
}

// 10 mm of steel is 78 kg/m²: with 72 it is 150, with 72.1 just over, where 125 Hz (mf 18.76) falls from
// 34.37 to 34.14, 250 Hz rises from 35.87 to 39.13 and 500 Hz from 38.41 to 42.75.
TEST(Kanaalwand, GoesToTheHeavyCurvesAbove150) {
  EXPECT_EQ(Waarden(cmdOK_Click(KanaalwandInvoer{kanaaltype::Zink, 10, 72}, '.')), "30 34 36 38 45 52 60");
  EXPECT_EQ(Waarden(cmdOK_Click(KanaalwandInvoer{kanaaltype::Zink, 10, 72.1}, '.')), "29 34 39 43 47 52 56");
}

TEST(Kanaalwand, RefusesAWallWithoutThickness) {
  const SchatUitslag uitslag = cmdOK_Click(KanaalwandInvoer{kanaaltype::Zink, 0, 5}, '.');
  EXPECT_EQ(VeldVan(uitslag, "Geen dikte kanaalwand ingevuld"), "txtDikte");
}

TEST(Kanaalwand, OpensWithGalvanisedSteelUnlessAMaterialWasChosen) {
  struct Rij {
    std::int32_t was, wordt;
  };
  for (const Rij& rij : std::initializer_list<Rij>{{0, 1}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 1}, {-1, 1}}) {
    KanaalwandInvoer invoer{rij.was, 2, 3};
    Form_Load(invoer);
    EXPECT_EQ(invoer.KanaalType, rij.wordt);
    EXPECT_EQ(invoer.Dikte, 2);
    EXPECT_EQ(invoer.Massa, 3);
  }
}

TEST(Kanaalwand, AMaterialThatIsNoneIsAFault) {
  EXPECT_THROW((void)Bereken(KanaalwandInvoer{5, 1, 0}, '.'), Fout);
}

TEST(Kanaalwand, HasAnOptionForEachMaterial) {
  struct Rij {
    std::int32_t type;
    const char *naam, *caption;
    double massa;
  };
  constexpr std::array Rijen = {Rij{1, "optZink", "verzinkt staal", 7.8}, Rij{2, "optRVS", "rvs staal", 7.8},
                                Rij{3, "optAlu", "aluminium", 2.7}, Rij{4, "optKunststof", "kunststof", 1.3}};
  ASSERT_EQ(KanaalSoorten.size(), Rijen.size());
  for (std::size_t i = 0; i < Rijen.size(); ++i) {
    EXPECT_EQ(KanaalSoorten[i].KanaalType, Rijen[i].type);
    EXPECT_EQ(KanaalSoorten[i].Naam, Rijen[i].naam);
    EXPECT_EQ(KanaalSoorten[i].Caption, Rijen[i].caption);
    EXPECT_EQ(KanaalSoorten[i].Massa, Rijen[i].massa);
  }
}

}  // namespace
}  // namespace murvane
