#include "editor/fantab.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basis/fout.h"
#include "basis/tekst.h"

namespace murvane {
namespace {

using Vakken = std::array<std::string, FanVakken>;

Project MetFan(std::int16_t type) {
  Project project;
  project.Fan.FanType = type;
  project.FanPrognose = fanbron::Prognose;
  return project;
}

std::string Tekst(const FanUitslag& uit, VeldId veld) {
  for (const VeldTekst& tekst : uit.Zet) {
    if (tekst.Veld == veld) return tekst.Tekst;
  }
  return "<none>";
}

std::vector<std::string> LwTeksten(const FanUitslag& uit) {
  std::vector<std::string> lw;
  for (int band = 0; band < 7; ++band) lw.push_back(Tekst(uit, {"txtLw", band}));
  return lw;
}

constexpr FanZicht Lijst = {true, false, false, false, false, true, false};

TEST(FanTab, ShowsTheSourceInUseAndTheChosenType) {
  Project project;
  EXPECT_EQ(FanZichtVan(project), Lijst);
  project.FanPrognose = fanbron::Prognose;
  project.Fan.FanType = 1;
  EXPECT_EQ(FanZichtVan(project), (FanZicht{false, true, true, false, false, false, true}));
  project.Fan.FanType = 2;
  EXPECT_EQ(FanZichtVan(project), (FanZicht{false, true, false, true, false, false, true}));
  project.Fan.FanType = 3;
  EXPECT_EQ(FanZichtVan(project), (FanZicht{false, true, false, false, true, false, true}));
  project.Fan.FanType = 4;
  EXPECT_EQ(FanZichtVan(project), (FanZicht{false, true, false, false, false, false, true}));
}

// 2 m³/s, 800 Pa, 2000 W: efficiency 80 %, L = 20·log10 800 + 40 + 10·log10 2 = 58.0618 + 40 + 3.0103 =
// 101.0721. 1450 rpm, 12 blades: 290 Hz, the tone is in the 250 Hz band. The sums are those of the seven
// bands with the A-weighting.
TEST(cmdFanOK, FillsTheSpectrumAndNamesTheFan) {
  struct Rij {
    std::int16_t type;
    const char* naam;
    std::vector<std::string> lw;
    const char* som;
  };
  const std::vector<Rij> rijen = {{1,
                                   "Axiaal, 2 m³/s, 800 Pa, 1450 toeren, 2000 W",
                                   {"92,1", "93,1", "99,1", "94,1", "93,1", "91,1", "87,1"},
                                   "Lw,A = 98,3 dB(A)"},
                                  {2,
                                   "Centrifugaal voorwaarts, 2 m³/s, 800 Pa, 1450 toeren, 2000 W",
                                   {"99,1", "94,1", "92,1", "84,1", "79,1", "74,1", "69,1"},
                                   "Lw,A = 87,4 dB(A)"},
                                  {3,
                                   "Centrifugaal achterwaarts, 2 m³/s, 800 Pa, 1450 toeren, 2000 W",
                                   {"92,1", "93,1", "99,1", "89,1", "84,1", "79,1", "74,1"},
                                   "Lw,A = 92,9 dB(A)"}};
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(rij.type);
    Project project = MetFan(rij.type);
    const FanUitslag uit = cmdFanOK_Click(project, {"2", "800", "1450", "12", "2000"}, ',');
    EXPECT_FALSE(uit.Box.has_value());
    EXPECT_FALSE(uit.Focus.has_value());
    EXPECT_EQ(LwTeksten(uit), rij.lw);
    EXPECT_EQ(uit.lblLwA, rij.som);
    EXPECT_EQ(Tekst(uit, {"txtSpectrum"}), NaarCp1252(rij.naam));
    EXPECT_EQ(project.Fan.FanNaam.Getrimd(), NaarCp1252(rij.naam));
    EXPECT_NEAR(project.Fan.Lw[0], rij.type == 2 ? 99.0721 : 92.0721, 1e-4);
    EXPECT_EQ(project.Fan.FanDebiet, 2);
    EXPECT_EQ(project.Fan.FanDruk, 800);
    EXPECT_EQ(project.Fan.FanToeren, 1450);
    EXPECT_EQ(project.Fan.FanSchoepen, 12);
    EXPECT_EQ(project.Fan.FanVermogen, 2000);
    EXPECT_EQ(uit.Zicht, FanZichtVan(project));
    EXPECT_FALSE(uit.OpenEersteElement);
  }
}

TEST(cmdFanOK, ShowsTheBoxesNormalisedInOrder) {
  Project project = MetFan(fantype::Axiaal);
  const FanUitslag uit = cmdFanOK_Click(project, {"151", "100001", "1450,4", "51", "1e9"}, '.');
  const std::vector<std::string> verwacht = {"150.00", "100000", "1450", "50", "100000"};
  ASSERT_EQ(uit.Velden.size(), 5U);
  for (int i = 0; i < 5; ++i) {
    const VeldUitslag& veld = uit.Velden[static_cast<std::size_t>(i)];
    EXPECT_EQ(veld.Veld, (VeldId{"txtfan", i}));
    EXPECT_EQ(veld.Tekst, verwacht[static_cast<std::size_t>(i)]);
    EXPECT_TRUE(veld.Geldig);
  }
  EXPECT_EQ(Tekst(uit, {"txtfan", 4}), "<none>");  // an entered power stays
}

// The name holds the numbers in the default text form: 1.5, not 1.50.
TEST(cmdFanOK, NamesTheFanWithTheDecimalSignOfTheRegion) {
  Project project = MetFan(fantype::Axiaal);
  (void)cmdFanOK_Click(project, {"1,5", "800", "0", "0", "3000"}, ',');
  EXPECT_EQ(project.Fan.FanNaam.Getrimd(), NaarCp1252("Axiaal, 1,5 m³/s, 800 Pa, 0 toeren, 3000 W"));
  (void)cmdFanOK_Click(project, {"1,5", "800", "0", "0", "3000"}, '.');
  EXPECT_EQ(project.Fan.FanNaam.Getrimd(), NaarCp1252("Axiaal, 1.5 m³/s, 800 Pa, 0 toeren, 3000 W"));
}

TEST(cmdFanOK, WorksOutAPowerOfZeroAtSeventyPercent) {
  struct Rij {
    const char *debiet, *druk, *vermogen, *getoond;
    double watt;
  };
  const std::vector<Rij> rijen = {
      {"2", "800", "0", "2286", 2286},                                     // 2285.7
      {"2", "800", "", "2286", 2286},  {"2", "800", "0,4", "2286", 2286},  // a power that its format makes 0
      {"0,35", "1", "0", "1", 1},                                          // 0.5, halves away from zero
      {"0,34", "1", "0", "1", 1},                                          // 0.486, at least 1
      {"0,01", "1", "0", "1", 1},      {"150", "100000", "0", "21428571", 21428571}};
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(testing::Message() << rij.debiet << ' ' << rij.vermogen);
    Project project = MetFan(fantype::Axiaal);
    const FanUitslag uit = cmdFanOK_Click(project, {rij.debiet, rij.druk, "0", "0", rij.vermogen}, ',');
    EXPECT_EQ(uit.Velden[4].Tekst, "0");
    EXPECT_EQ(Tekst(uit, {"txtfan", 4}), rij.getoond);
    EXPECT_EQ(project.Fan.FanVermogen, rij.watt);
    // before the spectrum, which the change of the box blanks
    EXPECT_EQ(uit.Zet.front().Veld, (VeldId{"txtfan", 4}));
  }
}

// 0.01 m³/s, 1 Pa, 1 W: efficiency 1 %, 69·0.4 = 27.6, rounded 28; L = 0 + 40 - 20 + 28 = 48.
TEST(cmdFanOK, CountsWithThePowerOfOneWatt) {
  Project project = MetFan(fantype::Axiaal);
  const FanUitslag uit = cmdFanOK_Click(project, {"0,01", "1", "0", "0", "0"}, '.');
  EXPECT_EQ(LwTeksten(uit),
            (std::vector<std::string>{"39.0", "40.0", "41.0", "41.0", "40.0", "38.0", "34.0"}));
  EXPECT_EQ(uit.lblLwA, "Lw,A = 44.7 dB(A)");
}

TEST(cmdFanOK, RefusesAFlowOrPressureOfZeroBeforeAMissingType) {
  struct Rij {
    Vakken vakken;
    int focus;
  };
  const std::vector<Rij> rijen = {{{"0", "800", "1", "1", "1"}, 0},     {{"", "", "", "", ""}, 0},
                                  {{"0,004", "800", "1", "1", "1"}, 0}, {{"1,2,3", "800", "1", "1", "1"}, 0},
                                  {{"2", "0", "1", "1", "1"}, 1},       {{"2", "0,4", "1", "1", "1"}, 1},
                                  {{"2", "x", "1", "1", "1"}, 1}};
  for (const std::int16_t type : {fantype::Geen, fantype::Axiaal}) {
    for (const Rij& rij : rijen) {
      SCOPED_TRACE(testing::Message() << rij.vakken[0] << ' ' << rij.vakken[1]);
      Project project = MetFan(type);
      project.ElementCount = 1;
      project.Fan.FanToeren = 9;
      project.Fan.FanNaam = "Oud";
      const FanUitslag uit = cmdFanOK_Click(project, rij.vakken, ',');
      EXPECT_EQ(uit.Box, (Melding{MeldingSoort::Uitroep, "Waarschuwing", "Geen geldende waarde ingevuld",
                                  Knoppen::OK}));
      EXPECT_EQ(uit.Focus, (VeldId{"txtfan", rij.focus}));
      EXPECT_EQ(uit.Velden.size(), 5U);  // all five were read
      EXPECT_TRUE(uit.Zet.empty());
      EXPECT_EQ(uit.lblLwA, std::nullopt);
      EXPECT_FALSE(uit.OpenEersteElement);
      EXPECT_EQ(project.Fan.FanToeren, 9);
      EXPECT_EQ(project.Fan.FanNaam.Getrimd(), "Oud");
    }
  }
}

TEST(cmdFanOK, RefusesAFanWithoutAType) {
  for (const std::int16_t type : std::vector<std::int16_t>{0, 4, -1}) {
    Project project = MetFan(type);
    const FanUitslag uit = cmdFanOK_Click(project, {"2", "800", "1450", "12", "2000"}, ',');
    EXPECT_EQ(uit.Box, (Melding{MeldingSoort::Uitroep, "Waarschuwing", "Geen ventilatortype geselecteerd",
                                Knoppen::OK}));
    EXPECT_EQ(uit.Focus, std::nullopt);
    EXPECT_EQ(project.Fan.FanDebiet, 0);
  }
}

TEST(cmdFanOK, KeepsTheFocusInABoxThatHoldsNoNumber) {
  for (int i = 2; i < 5; ++i) {
    Vakken vakken = {"2", "800", "1450", "12", "2000"};
    vakken[static_cast<std::size_t>(i)] = "1,2,3";
    Project project = MetFan(fantype::Axiaal);
    const FanUitslag uit = cmdFanOK_Click(project, vakken, ',');
    EXPECT_FALSE(uit.Box.has_value());
    EXPECT_EQ(uit.Focus, (VeldId{"txtfan", i}));
    EXPECT_EQ(uit.Velden[static_cast<std::size_t>(i)].Achtergrond, 255U);
    EXPECT_TRUE(uit.Zet.empty());
    EXPECT_EQ(project.Fan.FanDebiet, 0);
  }
}

TEST(cmdFanOK, OpensTheFirstElementOfAChain) {
  Project project = MetFan(fantype::Axiaal);
  project.ElementCount = 1;
  EXPECT_TRUE(cmdFanOK_Click(project, {"2", "800", "1450", "12", "2000"}, ',').OpenEersteElement);
}

TEST(FanType, ClearsTheDisplayAndKeepsTheSpectrum) {
  for (const std::int16_t type :
       {fantype::Axiaal, fantype::CentrifugaalVoorwaarts, fantype::CentrifugaalAchterwaarts}) {
    Project project = MetFan(fantype::Geen);
    project.Fan.Lw = {1, 2, 3, 4, 5, 6, 7, 8};
    const FanUitslag uit = FanTypeGekozen(project, type);
    EXPECT_EQ(project.Fan.FanType, type);
    EXPECT_EQ(project.Fan.Lw, (Spectrum{1, 2, 3, 4, 5, 6, 7, 8}));
    EXPECT_EQ(Tekst(uit, {"txtSpectrum"}), "");
    EXPECT_EQ(LwTeksten(uit), std::vector<std::string>(7, "0"));
    EXPECT_EQ(uit.lblLwA, "");
    EXPECT_EQ(uit.Zicht, FanZichtVan(project));
  }
}

SpectrumCatalogus Fans() {
  SpectrumCatalogus uit;
  uit.Aantal = 2;
  uit.Records[1] = {std::string_view(" Een"), {60, 60, 60, 60, 60, 60, 60, 99}};
  uit.Records[2] = {std::string_view("Twee"), {70, 71, 72, 73, 74, 75, 76.25, 99}};
  return uit;
}

// 10·log10 of the seven powers: levels 43.8, 54.9, 63.4, 69.8, 74, 76.2, 77.25 sum to 81.2046
TEST(lstFan, CopiesTheCatalogueRecord) {
  Project project;
  int laatste = 0;
  const FanUitslag uit = lstFan_Click(project, 1, Fans(), laatste, ',');
  EXPECT_EQ(laatste, 2);
  EXPECT_EQ(project.Fan.FanNaam.Heel(), "Twee" + std::string(76, ' '));
  for (int band = 0; band < 7; ++band)
    EXPECT_EQ(project.Fan.Lw[static_cast<std::size_t>(band)],
              Fans().Records[2].SpecWaarde[static_cast<std::size_t>(band)]);
  EXPECT_EQ(LwTeksten(uit),
            (std::vector<std::string>{"70,0", "71,0", "72,0", "73,0", "74,0", "75,0", "76,3"}));
  EXPECT_EQ(Tekst(uit, {"txtSpectrum"}), "Twee");
  EXPECT_EQ(uit.lblLwA, "Lw,A = 81,2 dB(A)");
  EXPECT_NEAR(project.Fan.Lw[7], 81.2046, 1e-4);
  EXPECT_FALSE(uit.Box.has_value());
  EXPECT_EQ(uit.Zicht, Lijst);
  EXPECT_EQ(Tekst(lstFan_Click(project, 0, Fans(), laatste, ','), {"txtSpectrum"}), "Een");
  EXPECT_EQ(laatste, 1);
}

TEST(lstFan, SaysSoWhenThereIsNoRow) {
  Project project;
  project.Fan.FanNaam = "Oud";
  int laatste = 2;
  const FanUitslag uit = lstFan_Click(project, -1, Fans(), laatste, ',');
  EXPECT_EQ(uit.Box,
            (Melding{MeldingSoort::Uitroep, "Waarschuwing", "Geen ventilatoren aanwezig", Knoppen::OK}));
  EXPECT_TRUE(uit.Zet.empty());
  EXPECT_EQ(laatste, 2);
  EXPECT_EQ(project.Fan.FanNaam.Getrimd(), "Oud");
}

TEST(lstFan, GoesBackFromARowWhoseRecordIsGone) {
  for (const int was : {0, 1, 2}) {  // none, and either of the two records that are left
    for (const int rij : {2, 499, 500}) {
      Project project;
      project.Fan.FanNaam = "Oud";
      int laatste = was;
      const FanUitslag uit = lstFan_Click(project, rij, Fans(), laatste, ',');
      EXPECT_EQ(uit.KiesRij, was - 1);
      EXPECT_EQ(laatste, was);
      EXPECT_TRUE(uit.Zet.empty());
      EXPECT_FALSE(uit.Box.has_value());
      EXPECT_FALSE(uit.lblLwA.has_value());
      EXPECT_EQ(project.Fan.FanNaam.Getrimd(), "Oud");
    }
  }
}

TEST(lstFan, ChangesNothingWhenItFails) {
  Project project;
  int laatste = 0;
  SpectrumCatalogus teHoog = Fans();
  teHoog.Records[1].SpecWaarde[0] = 1e300;
  EXPECT_THROW((void)lstFan_Click(project, 0, teHoog, laatste, ','), Fout);
  EXPECT_EQ(laatste, 0);
  EXPECT_EQ(project.Fan.FanNaam.Getrimd(), "");
}

TEST(FanBron, TheListClearsTheDisplayWhenNothingWasChosenBefore) {
  for (int laatste : {0, 3}) {  // never, or a row that the catalogue has no longer
    Project project = MetFan(fantype::Axiaal);
    project.Fan.Lw = {1, 2, 3, 4, 5, 6, 7, 8};
    const FanUitslag uit = optInvoer_Click(project, Fans(), laatste, ',');
    EXPECT_EQ(project.FanPrognose, 0);
    EXPECT_EQ(uit.Zicht, (FanZicht{true, false, true, false, false, true, false}));
    EXPECT_EQ(Tekst(uit, {"txtSpectrum"}), "");
    EXPECT_EQ(LwTeksten(uit), std::vector<std::string>(7, "0"));
    EXPECT_EQ(uit.lblLwA, "");
    EXPECT_EQ(uit.KiesRij, std::nullopt);
    EXPECT_EQ(project.Fan.Lw, (Spectrum{1, 2, 3, 4, 5, 6, 7, 8}));
  }
}

TEST(FanBron, TheListTakesTheLastChoiceAgain) {
  for (const bool annuleer : {false, true}) {
    Project project = MetFan(fantype::Geen);
    int laatste = 2;
    const FanUitslag uit = annuleer ? cmdFanCancel_Click(project, Fans(), laatste, ',')
                                    : optInvoer_Click(project, Fans(), laatste, ',');
    EXPECT_EQ(project.FanPrognose, 0);
    EXPECT_EQ(uit.Zicht, Lijst);
    EXPECT_EQ(uit.KiesRij, 1);
    EXPECT_EQ(laatste, 2);
    EXPECT_EQ(project.Fan.FanNaam.Getrimd(), "Twee");
    ASSERT_EQ(uit.Zet.size(), 16U);  // cleared, then filled
    EXPECT_EQ(uit.Zet[0], (VeldTekst{{"txtSpectrum"}, ""}));
    EXPECT_EQ(uit.Zet[7], (VeldTekst{{"txtLw", 6}, "0"}));
    EXPECT_EQ(uit.Zet[8], (VeldTekst{{"txtLw", 0}, "70,0"}));
    EXPECT_EQ(uit.Zet[15], (VeldTekst{{"txtSpectrum"}, "Twee"}));
    EXPECT_EQ(uit.lblLwA, "Lw,A = 81,2 dB(A)");
  }
}

TEST(FanBron, AnotherSourceIsAChangeAlsoWhereNoTextChanges) {
  Project project;
  int laatste = 0;
  EXPECT_TRUE(optPrognose_Click(project, 0).Gewijzigd);
  EXPECT_FALSE(optPrognose_Click(project, 0).Gewijzigd);
  EXPECT_TRUE(optInvoer_Click(project, Fans(), laatste, ',').Gewijzigd);
  EXPECT_FALSE(optInvoer_Click(project, Fans(), laatste, ',').Gewijzigd);
  project.FanPrognose = fanbron::Prognose;
  EXPECT_TRUE(cmdFanCancel_Click(project, Fans(), laatste, ',').Gewijzigd);
  EXPECT_FALSE(lstFan_Click(project, 0, Fans(), laatste, ',').Gewijzigd);
}

TEST(FanBron, CancellingAPrognosisBlanksTheSum) {
  Project project = MetFan(fantype::Geen);
  int laatste = 0;
  const FanUitslag uit = cmdFanCancel_Click(project, Fans(), laatste, ',');
  EXPECT_EQ(uit.lblLwA, "");
  EXPECT_EQ(uit.Zicht, Lijst);
}

TEST(FanBron, ThePrognosisLeavesTheDisplay) {
  for (int tab = 0; tab < 4; ++tab) {
    Project project;
    const FanUitslag uit = optPrognose_Click(project, tab);
    EXPECT_EQ(project.FanPrognose, -1);
    EXPECT_EQ(uit.Zicht, (FanZicht{false, true, false, false, false, false, true}));
    EXPECT_TRUE(uit.Zet.empty());
    EXPECT_EQ(uit.lblLwA, std::nullopt);
    EXPECT_EQ(uit.Focus, tab == 1 ? std::optional(VeldId{"txtfan", 0}) : std::nullopt);
  }
}

}  // namespace
}  // namespace murvane
