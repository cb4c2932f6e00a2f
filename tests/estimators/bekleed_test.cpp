#include "estimators/bekleed.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "tests/estimators/hulp.h"

namespace murvane {
namespace {

using proef::NaamVan;
using proef::VeldVan;
using proef::Waarden;

// At the rows of the table their own values; between them the straight line, as at 20 mm for 250 Hz
// (0.36 - 0.14)·7.5/12.5 + 0.14 = 0.272; below the first one the line from 0.01, as at 10 mm for 63 Hz
// (0.04 - 0.01)·10/12.5 + 0.01 = 0.034; above the last one (t2 - t1)·(d - 50)/d + t2, as at 75 mm for 63 Hz
// 0.06·25/75 + 0.10 = 0.12. 1.04 at 100 mm for 500 Hz and 1.01 for 1000 Hz are cut to 1.
TEST(ExtraPolatie, FollowsTheTableAndLevelsOffAboveIt) {
  struct Rij {
    double dikte;
    proef::Zeven alpha;
  };
  for (const Rij& rij : std::initializer_list<Rij>{
           {0, {0.01, 0.01, 0.01, 0.01, 0.01, 0.01, 0.01}},
           {1, {0.0124, 0.0156, 0.0204, 0.0348, 0.0572, 0.0676, 0.0676}},
           {10, {0.034, 0.066, 0.114, 0.258, 0.482, 0.586, 0.586}},
           {std::nextafter(12.5, 0), {0.04, 0.08, 0.14, 0.32, 0.60, 0.73, 0.73}},
           {12.5, {0.04, 0.08, 0.14, 0.32, 0.60, 0.73, 0.73}},
           {20, {0.04, 0.104, 0.272, 0.464, 0.72, 0.796, 0.76}},
           {std::nextafter(25.0, 0), {0.04, 0.12, 0.36, 0.56, 0.80, 0.84, 0.78}},
           {25, {0.04, 0.12, 0.36, 0.56, 0.80, 0.84, 0.78}},
           {30, {0.052, 0.16, 0.408, 0.624, 0.828, 0.856, 0.80}},
           {std::nextafter(50.0, 0), {0.10, 0.32, 0.60, 0.88, 0.94, 0.92, 0.88}},
           {50, {0.10, 0.32, 0.60, 0.88, 0.94, 0.92, 0.88}},
           {75, {0.12, 0.38666666667, 0.68, 0.98666666667, 0.98666666667, 0.94666666667, 0.91333333333}},
           {100, {0.13, 0.42, 0.72, 1, 1, 0.96, 0.93}},
       })
    proef::VerwachtZeven(ExtraPolatie(rij.dikte), rij.alpha, std::to_string(rij.dikte));
}

// Worked outside the program. Of 500 mm round with 25 mm: perimeter over section 4/0.5 = 8; 63 Hz 0.04^1.4·8
// = 0.0883; 1000 Hz is shorter than the duct is wide: alpha 0.8·0.34/0.5 = 0.544, 0.544^1.4·8 = 3.4114. Of
// 600×400: 2·(0.6 + 0.4)/0.24 = 8.3333, circle of the section sqrt(4·0.24/π) = 0.5528 m.
TEST(Bekleed, AttenuatesByTheAbsorptionScaledAboveTheWidthOfTheDuct) {
  proef::VerwachtZeven(
      Demping(BekleedInvoer{500, 0, 25, 1}),
      {0.08830269833, 0.4110964547, 1.913874641, 3.552656553, 3.41136702, 1.384049017, 0.4727711},
      "500 round");
  proef::VerwachtZeven(
      Demping(BekleedInvoer{400, 600, 50, 2.5}),
      {0.8293899387, 4.226381847, 10.18991387, 17.41945261, 9.67438328, 3.557175223, 1.266589978}, "600x400");
  proef::VerwachtZeven(
      Demping(BekleedInvoer{200, 300, 25, 1.5}),
      {0.2759459323, 1.284676421, 5.980858254, 11.10205173, 18.29220208, 9.917827281, 3.387786165},
      "300x200");
  proef::VerwachtZeven(
      Demping(BekleedInvoer{1000, 0, 100, 3}),
      {0.6897662478, 3.562298045, 7.576118188, 6.993486226, 2.650035732, 0.9483954511, 0.3437509207},
      "1000 round");
  proef::VerwachtZeven(
      Demping(BekleedInvoer{300, 0, 10, 2}),
      {0.2344440505, 0.5933763626, 1.275368024, 4.001624383, 9.599189954, 5.6974973, 2.158947761},
      "300 round");
}

TEST(Bekleed, DeliversWholeDecibelsAndTheNameOfTheElement) {
  const SchatUitslag rond = cmdOK_Click(BekleedInvoer{500, 0, 25, 1}, '.');
  EXPECT_EQ(NaamVan(rond), "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m");
  EXPECT_EQ(Waarden(rond), "0 0 2 4 3 1 0");
  const SchatUitslag recht = cmdOK_Click(BekleedInvoer{400, 600, 50, 2.5}, ',');
  EXPECT_EQ(NaamVan(recht), "bekleed kanaal, 600×400 mm , d = 50 mm, L = 2,5 m"_cp);
  EXPECT_EQ(Waarden(recht), "1 4 10 17 10 4 1");
  EXPECT_EQ(NaamVan(cmdOK_Click(BekleedInvoer{400, 600, 50, 2.5}, '.')),
            "bekleed kanaal, 600×400 mm , d = 50 mm, L = 2.5 m"_cp);
}

// 49 mm in a round duct of 100 mm, 50 m: 4/0.1·50 = 2000 times alpha^1.4; 500 Hz 0.8672^1.4 = 0.81916.
TEST(Bekleed, WritesResultsAbove150AsTheyAre) {
  EXPECT_EQ(Waarden(cmdOK_Click(BekleedInvoer{100, 0, 49, 50}, '.')), "77 392 956 1638 1819 1771 1323");
}

TEST(Bekleed, RefusesInTheOrderOfItsChecks) {
  struct Rij {
    BekleedInvoer invoer;
    const char* veld;
  };
  for (const Rij& rij : std::initializer_list<Rij>{
           {{0, 0, 0, 0}, "Text1"},        // everything is missing
           {{0, 300, 25, 1}, "Text1"},     // no height
           {{500, 0, 0, 0}, "Text3"},      // no lining, before no length
           {{500, 0, 250, 1}, "Text3"},    // a lining that just fills the duct
           {{500, 0, 300, 1}, "Text3"},    // and one that is thicker
           {{500, 400, 200, 1}, "Text3"},  // just fills the width
           {{400, 500, 200, 1}, "Text3"},  // just fills the height
           {{500, 0, 249, 0}, "Text4"},    // no length
           {{500, 0, 249, 1}, ""},         // passes for a round duct: the width is not looked at
           {{500, 400, 199, 1}, ""},       // passes on both axes
           {{400, 500, 199, 1}, ""},
       })
    EXPECT_EQ(VeldVan(cmdOK_Click(rij.invoer, '.')), rij.veld)
        << rij.invoer.h << " " << rij.invoer.B << " " << rij.invoer.Dikte << " " << rij.invoer.L;
}

TEST(Bekleed, ANumberThatIsNoneIsAFault) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THROW((void)Bereken(BekleedInvoer{nan, 0, 25, 1}, '.'), Fout);
  EXPECT_THROW((void)Bereken(BekleedInvoer{500, 0, 25, nan}, '.'), Fout);
  EXPECT_THROW((void)Bereken(BekleedInvoer{0, 0, 25, 1}, '.'), Fout);
}

}  // namespace
}  // namespace murvane
