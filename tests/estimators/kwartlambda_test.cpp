#include "estimators/kwartlambda.h"

#include <gtest/gtest.h>

#include "tests/estimators/hulp.h"

namespace murvane {
namespace {

using proef::NaamVan;
using proef::VeldVan;
using proef::Waarden;

// Worked outside the program. At m = 4 the factor is (16 - 1)/8 = 1.875; 63 Hz at 0.3 m: the angle is
// 2π·0.3·63/340 = 0.34927, 10·log10(1 + (1.875·0.34221)²) = 1.4975.
TEST(KwartLambda, FollowsTheExpansionChamber) {
  proef::VerwachtZeven(
      Demping(4, 0.3),
      {1.497467607, 3.864660223, 6.431489433, 1.639878319, 4.142414506, 6.518297314, 0.4871408812}, "m 4");
  proef::VerwachtZeven(
      Demping(2.5, 0.5),
      {1.249140426, 2.838945227, 2.046931263, 3.207928662, 0.1587284342, 0.5837717663, 1.762033119}, "m 2.5");
}

// 0.34 m is half a wavelength at 500 Hz, and a quarter at 250 Hz, where m = 4 gives 10·log10(1 + 1.875²) =
// 6.5472. At 1000, 2000 and 4000 Hz it is 1, 2 and 4 wavelengths.
TEST(KwartLambda, IsGreatestAtAQuarterAndNothingAtAHalfWavelength) {
  const proef::Zeven demping = Demping(4, 0.34);
  EXPECT_NEAR(demping[2], 6.547178688, 1e-8);
  for (const std::size_t band : {3U, 4U, 5U, 6U}) EXPECT_NEAR(demping[band], 0, 1e-9);
}

// A round duct of 200 mm is 0.0314159 m²: m = 15.915.
TEST(KwartLambda, DeliversWholeDecibelsAndTheNameOfTheElement) {
  const SchatUitslag rond = cmdOK_Click(KwartLambdaInvoer{200, 0, 1, 0.5}, '.');
  EXPECT_EQ(NaamVan(rond), "kwartlambda-demper, s2/s1 = 15.9 , L = 1 m");
  EXPECT_EQ(Waarden(rond), "17 15 18 5 10 15 18");
  const SchatUitslag recht = cmdOK_Click(KwartLambdaInvoer{400, 500, 0.3, 0.8}, ',');  // 0.8/0.2 = 4
  EXPECT_EQ(NaamVan(recht), "kwartlambda-demper, s2/s1 = 4,0 , L = 0,3 m");
  EXPECT_EQ(Waarden(recht), "1 4 6 2 4 7 0");
}

TEST(KwartLambda, AChamberAsWideAsTheDuctAttenuatesNothing) {
  const SchatUitslag gelijk = cmdOK_Click(KwartLambdaInvoer{400, 500, 1, 0.2}, '.');
  EXPECT_EQ(NaamVan(gelijk), "kwartlambda-demper, s2/s1 = 1.0 , L = 1 m");
  EXPECT_EQ(Waarden(gelijk), "0 0 0 0 0 0 0");
}

TEST(KwartLambda, RefusesInTheOrderOfItsChecks) {
  struct Rij {
    KwartLambdaInvoer invoer;
    const char* veld;
  };
  for (const Rij& rij : std::initializer_list<Rij>{
           {{0, 0, 0, 0}, "Text1"},
           {{0, 500, 1, 0.5}, "Text1"},
           {{400, 500, 0, 0}, "Text3"},
           {{400, 500, 1, 0}, "Text4"},
           {{400, 500, 1, 0.19}, "Text4"},  // 0.2 m² of duct
           {{400, 500, 1, 0.2}, ""},
           {{400, 500, 1, 1}, ""},
           {{200, 0, 1, 0.03}, "Text4"},  // 0.0314 m²
           {{200, 0, 1, 0.04}, ""},
       })
    EXPECT_EQ(VeldVan(cmdOK_Click(rij.invoer, '.')), rij.veld)
        << rij.invoer.h << " " << rij.invoer.B << " " << rij.invoer.L << " " << rij.invoer.S2;
}

TEST(KwartLambda, ADuctWithoutSectionIsAFault) {
  EXPECT_THROW((void)Bereken(KwartLambdaInvoer{0, 0, 1, 1}, '.'), Fout);
}

}  // namespace
}  // namespace murvane
