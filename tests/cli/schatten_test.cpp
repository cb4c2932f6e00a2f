// The commands schat ...

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

/// `schat` with words that are parted by blanks, and a fixed decimal sign.
Afloop Schat(const std::string& regel, const std::string& decimaal = "komma") {
  std::istringstream in("schat " + regel + " --decimaal " + decimaal);
  std::vector<std::string> argumenten;
  for (std::string woord; in >> woord;) argumenten.push_back(woord);
  return Draai(argumenten);
}

struct Geslaagd {
  const char *regel, *uit;
};

// The numbers are worked by hand where each estimator is tested.
TEST(Schat, PrintsTheDescriptionAndTheSevenValues) {
  for (const Geslaagd& rij : std::initializer_list<Geslaagd>{
           {"bekleed --h 500 --Dikte 25 --L 1",
            "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m\n0 0 2 4 3 1 0\n"},
           {"bekleed --L=2.5 --Dikte=50 --B=600 --h=400",
            "bekleed kanaal, 600×400 mm , d = 50 mm, L = 2,5 m\n1 4 10 17 10 4 1\n"},
           {"kwartlambda --h 200 --B 0 --S2 0,5 --L 1",
            "kwartlambda-demper, s2/s1 = 15,9 , L = 1 m\n17 15 18 5 10 15 18\n"},
           {"plenum --Hdemper 600 --Bdemper 800 --L 1.2 --h 250 --Dikte 50",
            "plenumdemper, 600×800×1200 mm , d = 50 mm\n9 14 16 18 18 18 18\n"},
           {"plenum --Hdemper 600 --Bdemper 800 --L 1.2 --h 200 --B 300 --Dikte 25",
            "plenumdemper, 600×800×1200 mm , d = 25 mm\n5 9 14 15 16 17 16\n"},
           {"kanaalwand --KanaalType 1 --Dikte 2 --Massa 5.5",
            "verzinkt staal,  2 mm, massa ontdreuning  5,5 kg/m²\n16 21 26 31 35 36 39\n"},
           {"kanaalwand --KanaalType 4 --Dikte 1", "kunststof,  1 mm\n-4 1 6 11 16 21 26\n"},
       }) {
    const Afloop afloop = Schat(rij.regel);
    EXPECT_EQ(afloop.Code, 0) << rij.regel;
    EXPECT_EQ(afloop.Uit, rij.uit);
    EXPECT_EQ(afloop.Err, "");
  }
}

TEST(Schat, WritesTheDecimalSignThatIsAskedFor) {
  EXPECT_EQ(Schat("kwartlambda --h 200 --S2 0,5 --L 1,5", "punt").Uit.substr(0, 46),
            "kwartlambda-demper, s2/s1 = 15.9 , L = 1.5 m\n1");
  EXPECT_EQ(Schat("kwartlambda --h 200 --S2 0.5 --L 1.5", "komma").Uit.substr(0, 46),
            "kwartlambda-demper, s2/s1 = 15,9 , L = 1,5 m\n1");
}

TEST(Schat, ValuesPassTheLimitsAndFormatsOfTheirFields) {
  EXPECT_EQ(Schat("bekleed --h 9000 --Dikte 12.5 --L 9000").Uit,
            "bekleed kanaal, D = 5000 mm , d = 13 mm, L = 5000 m\n44 51 45 52 46 23 9\n");
  EXPECT_EQ(Schat("bekleed --h 500 --B -5 --Dikte 25 --L 1,04").Uit,
            "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m\n0 0 2 4 3 1 0\n");
  EXPECT_EQ(Schat("kanaalwand --Dikte 200 --Massa 101").Uit,
            "verzinkt staal,  100 mm, massa ontdreuning  100 kg/m²\n41 45 50 55 58 61 63\n");
}

// Galvanised steel is what the window opens with when none of the four was chosen.
TEST(Schat, AWallOfNoKnownMaterialIsGalvanisedSteel) {
  for (const char* type :
       {"", " --KanaalType 0", " --KanaalType 5", " --KanaalType 99999", " --KanaalType 1e999"})
    EXPECT_EQ(Schat(std::string("kanaalwand --Dikte 1") + type).Uit,
              "verzinkt staal,  1 mm\n9 14 19 24 29 34 35\n")
        << type;
}

// The fan of 2 m³/s, 800 Pa and 2000 W, with 1450 rpm and 12 blades (290 Hz): 101.0721 dB, the sum in dB(A)
// worked outside the program.
TEST(SchatVentilator, PrintsNameSpectrumAndSum) {
  const Afloop afloop = Schat(
      "ventilator --FanType 1 --FanDebiet 2 --FanDruk 800 --FanToeren 1450 --FanSchoepen 12 --FanVermogen "
      "2000");
  EXPECT_EQ(afloop.Code, 0);
  EXPECT_EQ(afloop.Uit,
            "Axiaal, 2 m³/s, 800 Pa, 1450 toeren, 2000 W\n92,1 93,1 99,1 94,1 93,1 91,1 87,1\n"
            "Lw,A = 98,3 dB(A)\n");
  EXPECT_EQ(afloop.Err, "");
}

// Without a power it is worked out at 70 %: 0.5·200/0.7 = 142.86 W. L = 20·log10 200 + 40 + 10·log10 0.5 =
// 83.0103.
TEST(SchatVentilator, WorksOutAPowerThatIsLeftOut) {
  EXPECT_EQ(
      Schat("ventilator --FanType 3 --FanDebiet 0.5 --FanDruk 200", "punt").Uit,
      "Centrifugaal achterwaarts, 0.5 m³/s, 200 Pa, 0 toeren, 143 W\n74.0 75.0 76.0 71.0 66.0 61.0 56.0\n"
      "Lw,A = 72.7 dB(A)\n");
  EXPECT_EQ(Schat("ventilator --FanType 2 --FanDebiet 500 --FanDruk 200", "punt").Uit.substr(0, 43),
            "Centrifugaal voorwaarts, 150 m³/s, 200 Pa,");  // ³ is two bytes
}

struct Geweigerd {
  const char *regel, *err;
};

TEST(Schat, ARefusalIsStatus2WithItsMessageAndTheValueThatItIsAbout) {
  for (const Geweigerd& rij : std::initializer_list<Geweigerd>{
           {"bekleed",
            "Geen geldige waarde(n) ingevuld: --h ontbreekt (hoogte van het kanaal, of de diameter als het "
            "rond is)\n"},
           {"bekleed --h 0",
            "Geen geldige waarde(n) ingevuld: --h 0 (hoogte van het kanaal, of de diameter als het rond "
            "is)\n"},
           {"bekleed --h 500",
            "Geen geldige waarde(n) ingevuld: --Dikte ontbreekt (dikte van het bekledingsmateriaal)\n"},
           {"bekleed --h 500 --Dikte 250 --L 1",
            "Geen geldige waarde(n) ingevuld: --Dikte 250 (dikte van het bekledingsmateriaal)\n"},
           {"bekleed --h 500 --Dikte 25 --L 0.04",
            "Geen geldige waarde(n) ingevuld: --L 0.04 (lengte van het kanaal of de demper)\n"},
           {"kwartlambda --h 200 --S2 1",
            "Geen geldige waarde(n) ingevuld: --L ontbreekt (lengte van het kanaal of de demper)\n"},
           {"kwartlambda --h 200 --L 1",
            "Geen geldige waarde(n) ingevuld: --S2 ontbreekt (doorsnede van de demper)\n"},
           {"kwartlambda --h 200 --L 1 --S2 0.03",
            "Geen geldige waarde(n) ingevuld: --S2 0.03 (doorsnede van de demper)\n"},
           {"plenum", "Geen geldige waarde(n) ingevuld: --Hdemper ontbreekt (hoogte van de plenumdemper)\n"},
           {"plenum --Hdemper 600",
            "Geen geldige waarde(n) ingevuld: --Bdemper ontbreekt (breedte van de plenumdemper)\n"},
           {"plenum --Hdemper 600 --Bdemper 800 --L 1 --h 600",
            "Geen geldige waarde(n) ingevuld: --h 600 (hoogte van het kanaal, of de diameter als het rond "
            "is)\n"},
           {"plenum --Hdemper 600 --Bdemper 800 --L 1 --h 200 --B 900",
            "Geen geldige waarde(n) ingevuld: --B 900 (breedte van het kanaal; 0 is een rond kanaal)\n"},
           {"plenum --Hdemper 600 --Bdemper 800 --L 1 --h 200",
            "Geen geldige waarde(n) ingevuld: --Dikte ontbreekt (dikte van het bekledingsmateriaal)\n"},
           {"kanaalwand --KanaalType 2",
            "Geen dikte kanaalwand ingevuld: --Dikte ontbreekt (dikte van de kanaalwand)\n"},
           {"ventilator", "Geen geldende waarde ingevuld: --FanDebiet ontbreekt (luchtdebiet)\n"},
           {"ventilator --FanDebiet 1", "Geen geldende waarde ingevuld: --FanDruk ontbreekt (totale druk)\n"},
           {"ventilator --FanDebiet 1 --FanDruk 100",
            "Geen ventilatortype geselecteerd: --FanType ontbreekt (1 axiaal, 2 centrifugaal voorwaarts, 3 "
            "centrifugaal achterwaarts)\n"},
           {"ventilator --FanType 4 --FanDebiet 1 --FanDruk 100",
            "Geen ventilatortype geselecteerd: --FanType 4 (1 axiaal, 2 centrifugaal voorwaarts, 3 "
            "centrifugaal achterwaarts)\n"},
           {"bekleed --h een", "--h: Voer geldig getal in\n"},
           {"kwartlambda --h 200 --S2 1e999", "--S2: Voer geldig getal in\n"},
           {"plenum --Dikte 1,2,3", "--Dikte: Voer geldig getal in\n"},
           {"kanaalwand --KanaalType zink --Dikte 1", "--KanaalType: Voer geldig getal in\n"},
           {"kanaalwand --Massa x", "--Massa: Voer geldig getal in\n"},
           {"ventilator --FanType x", "--FanType: Voer geldig getal in\n"},
           {"ventilator --FanType 1 --FanDebiet 1 --FanDruk 100 --FanSchoepen x",
            "--FanSchoepen: Voer geldig getal in\n"},
       }) {
    const Afloop afloop = Schat(rij.regel);
    EXPECT_EQ(afloop.Code, 2) << rij.regel;
    EXPECT_EQ(afloop.Uit, "") << rij.regel;
    EXPECT_EQ(afloop.Err, rij.err) << rij.regel;
  }
}

TEST(Schat, GivesTheEstimateAsJson) {
  EXPECT_EQ(Schat("bekleed --L 2.5 --Dikte 50 --B 600 --h 400 --json").Uit,
            "{\n  \"Omschrijving\": \"bekleed kanaal, 600×400 mm , d = 50 mm, L = 2,5 m\",\n"
            "  \"Demping\": [1, 4, 10, 17, 10, 4, 1]\n}\n");
  EXPECT_EQ(Schat("kanaalwand --KanaalType 4 --Dikte 1 --json").Uit,
            "{\n  \"Omschrijving\": \"kunststof,  1 mm\",\n  \"Isolatie\": [-4, 1, 6, 11, 16, 21, 26]\n}\n");
  const Afloop geweigerd = Schat("plenum --json");
  EXPECT_EQ(geweigerd.Code, 2);
  EXPECT_EQ(geweigerd.Uit, "");
}

// 0.5 m³/s at 100 Pa and 10,000 % efficiency, taken as 100: L = 40 + 40 + 10·log10 0.5 = 76.9897 dB; the
// first band of the type is 9 dB lower.
TEST(SchatVentilator, GivesTheUnroundedSpectrumAsJson) {
  const auto json = nlohmann::json::parse(
      Schat("ventilator --FanType 3 --FanDebiet 0.5 --FanDruk 100 --FanVermogen 1 --json", "punt").Uit);
  EXPECT_EQ(json.size(), 2U);
  EXPECT_EQ(json.at("FanNaam"), "Centrifugaal achterwaarts, 0.5 m³/s, 100 Pa, 0 toeren, 1 W");
  EXPECT_EQ(json.at("Lw").size(), 8U);
  EXPECT_NEAR(json.at("Lw").at(0), 67.98970004336019, 1e-12);
}

}  // namespace
}  // namespace murvane::clitest
