#include "reports/resultaatjson.h"

#include <gtest/gtest.h>

#include "basis/fout.h"

namespace murvane {
namespace {

/// Eight values that tell one spectrum from another.
Spectrum Reeks(double van) {
  Spectrum uit{};
  for (double& waarde : uit) waarde = van++;
  return uit;
}

TEST(ResultaatJson, HoldsEveryElementAndEverySpectrum) {
  Project project;
  Resultaten resultaten;
  project.ElementCount = 1;
  ElementRec& element = project.Elementen[1];
  element.Naam =
      "  Kanaal h\xD7"
      "b";
  element.ElementType = 8;
  element.demp = {0.1, 1.0 / 3, -0.0, 0, 0, 0, 0, 0};
  element.ruis = Reeks(10);
  element.Instraling = Reeks(20);
  resultaten.Subtotaal[1] = Reeks(30);
  resultaten.HeeftInstraling[1] = true;
  resultaten.ElementTekst[1][0] = " L = 3,0 m";
  resultaten.ElementTekst[1][1] = "";
  resultaten.ElementTekst[1][3] = "5 m\xB2";  // the third was never assigned
  project.Fan.Lw = Reeks(40);
  resultaten.LwKanaalwand = Reeks(50);
  resultaten.LwEind = Reeks(60);
  resultaten.SysteemDemping = Reeks(70);
  resultaten.FanNaDemping = Reeks(80);
  resultaten.SysteemGeluid = Reeks(90);
  resultaten.LpGalmveld = Reeks(100);
  resultaten.LpEenMeter = Reeks(110);
  resultaten.OverspraakDemping = Reeks(120);
  EXPECT_EQ(ResultaatNaarJson(project, resultaten),
            "{\n"
            "  \"Elementen\": [\n"
            "    {\n"
            "      \"Nummer\": 1,\n"
            "      \"Naam\": \"Kanaal h×b\",\n"
            "      \"ElementType\": 8,\n"
            "      \"demp\": [0.1, 0.3333333333333333, -0.0, 0, 0, 0, 0, 0],\n"
            "      \"ruis\": [10, 11, 12, 13, 14, 15, 16, 17],\n"
            "      \"Instraling\": [20, 21, 22, 23, 24, 25, 26, 27],\n"
            "      \"Subtotaal\": [30, 31, 32, 33, 34, 35, 36, 37],\n"
            "      \"HeeftInstraling\": true,\n"
            "      \"ElementTekst\": [\" L = 3,0 m\", \"\", \"\", \"5 m²\"]\n"
            "    }\n"
            "  ],\n"
            "  \"Lw\": [40, 41, 42, 43, 44, 45, 46, 47],\n"
            "  \"LwKanaalwand\": [50, 51, 52, 53, 54, 55, 56, 57],\n"
            "  \"LwEind\": [60, 61, 62, 63, 64, 65, 66, 67],\n"
            "  \"SysteemDemping\": [70, 71, 72, 73, 74, 75, 76, 77],\n"
            "  \"FanNaDemping\": [80, 81, 82, 83, 84, 85, 86, 87],\n"
            "  \"SysteemGeluid\": [90, 91, 92, 93, 94, 95, 96, 97],\n"
            "  \"LpGalmveld\": [100, 101, 102, 103, 104, 105, 106, 107],\n"
            "  \"LpEenMeter\": [110, 111, 112, 113, 114, 115, 116, 117],\n"
            "  \"OverspraakDemping\": [120, 121, 122, 123, 124, 125, 126, 127]\n"
            "}\n");
}

TEST(ResultaatJson, NumbersTheElementsInUse) {
  Project project;
  project.ElementCount = 2;
  project.Elementen[2].Naam = "tweede";
  project.Elementen[3].Naam = "derde";
  const std::string json = ResultaatNaarJson(project, Resultaten());
  EXPECT_NE(json.find("\"Nummer\": 2,\n      \"Naam\": \"tweede\""), std::string::npos);
  EXPECT_EQ(json.find("derde"), std::string::npos);
  EXPECT_NE(json.find("\"HeeftInstraling\": false"), std::string::npos);
}

TEST(ResultaatJson, TakesNoElementsOfANegativeCountAndRefusesMoreThan500) {
  Project project;
  project.ElementCount = -1;
  EXPECT_TRUE(ResultaatNaarJson(project, Resultaten()).starts_with("{\n  \"Elementen\": [],\n"));
  project.ElementCount = 501;
  EXPECT_THROW((void)ResultaatNaarJson(project, Resultaten()), Fout);
}

}  // namespace
}  // namespace murvane
