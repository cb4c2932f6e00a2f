#include "editor/veldhandlers.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

#include "basis/fout.h"
#include "basis/tekst.h"

namespace murvane {
namespace {

constexpr std::string_view Vandaag = "20-11-2026";
constexpr int Open = 3;  // the element whose page is open

VeldUitslag Verlaat(Project& project, VeldId veld, std::string_view tekst, int element = Open) {
  return VerlaatVeld(project, element, veld, tekst, Vandaag, ',');
}

/// A numeric field and the place of its value.
struct GetalVeld {
  VeldId veld;
  const char* tekst;    // typed
  const char* getoond;  // shown after leaving, with a comma
  double waarde;        // stored
  std::function<double(const Project&)> plaats;
};

const ElementRec& E(const Project& project) {
  return project.Elementen[Open];
}

std::vector<GetalVeld> GetalVelden() {
  return {
      {{"txtHoogte"}, "401,4", "401", 401, [](const Project& p) { return E(p).Hoogte; }},
      {{"txtBreedte"}, "5001", "5000", 5000, [](const Project& p) { return E(p).Breedte; }},
      {{"txtLengte"}, "2.25", "2,3", 2.3, [](const Project& p) { return E(p).Lengte; }},
      {{"txtDebiet"}, "1,255", "1,26", 1.26, [](const Project& p) { return E(p).Debiet; }},
      {{"txtHAftak"}, "300", "300", 300, [](const Project& p) { return E(p).Hoogte; }},
      {{"txtBAftak"}, "310", "310", 310, [](const Project& p) { return E(p).Breedte; }},
      {{"txtHHoofd"}, "320", "320", 320, [](const Project& p) { return E(p).HHoofd; }},
      {{"txtBHoofd"}, "330", "330", 330, [](const Project& p) { return E(p).BHoofd; }},
      {{"txtHDoor"}, "340", "340", 340, [](const Project& p) { return E(p).HDoor; }},
      {{"txtBDoor"}, "350", "350", 350, [](const Project& p) { return E(p).BDoor; }},
      {{"txtQAftak"}, "0,5", "0,50", 0.5, [](const Project& p) { return E(p).QAftak; }},
      {{"txtRAftak"}, "2", "1,00", 1, [](const Project& p) { return E(p).RAftak; }},
      {{"txtH1Doorsnee"}, "360", "360", 360, [](const Project& p) { return E(p).HHoofd; }},
      {{"txtB1Doorsnee"}, "370", "370", 370, [](const Project& p) { return E(p).BHoofd; }},
      {{"txtH2Doorsnee"}, "380", "380", 380, [](const Project& p) { return E(p).HDoor; }},
      {{"txtB2Doorsnee"}, "390", "390", 390, [](const Project& p) { return E(p).BDoor; }},
      {{"txtLDoorsnee"}, "0,125", "0,13", 0.13, [](const Project& p) { return E(p).Lengte; }},
      {{"txtSnetto"}, "250", "250", 250, [](const Project& p) { return E(p).Snetto; }},
      {{"txtWeerstand"}, "12", "12", 12, [](const Project& p) { return E(p).Weerstand; }},
      {{"txtdemp", 0}, "50,5", "50,5", 50.5, [](const Project& p) { return E(p).LAeq[0]; }},
      {{"txtdemp", 6}, "151", "150,0", 150, [](const Project& p) { return E(p).LAeq[6]; }},
      {{"txtRLengte"}, "6", "6,0", 6, [](const Project& p) { return p.Ruimte.RLengte; }},
      {{"txtRBreedte"}, "4,5", "4,5", 4.5, [](const Project& p) { return p.Ruimte.RBreedte; }},
      {{"txtRHoogte"}, "11", "10,0", 10, [](const Project& p) { return p.Ruimte.RHoogte; }},
      {{"txtRNagalm"}, "0,6", "0,60", 0.6, [](const Project& p) { return p.Ruimte.RNagalm; }},
      {{"txtRNR"}, "35", "35", 35, [](const Project& p) { return p.Ruimte.RNR; }},
      {{"txtRDI"}, "2", "2", 2, [](const Project& p) { return static_cast<double>(p.Ruimte.RDI); }},
      {{"txtRAantal"}, "3", "3", 3, [](const Project& p) { return p.Ruimte.RAantal; }},
      {{"txtfan", 0}, "2", "2,00", 2, [](const Project& p) { return p.Fan.FanDebiet; }},
      {{"txtfan", 1}, "800", "800", 800, [](const Project& p) { return p.Fan.FanDruk; }},
      {{"txtfan", 2}, "1450", "1450", 1450, [](const Project& p) { return p.Fan.FanToeren; }},
      {{"txtfan", 3}, "51", "50", 50, [](const Project& p) { return p.Fan.FanSchoepen; }},
      {{"txtfan", 4}, "2000", "2000", 2000, [](const Project& p) { return p.Fan.FanVermogen; }},
  };
}

TEST(VerlaatVeld, StoresANumberInItsRecordAndShowsItInItsFormat) {
  for (const GetalVeld& rij : GetalVelden()) {
    SCOPED_TRACE(testing::Message() << rij.veld.Naam << ' ' << rij.veld.Index);
    Project project;
    const VeldUitslag uit = Verlaat(project, rij.veld, rij.tekst);
    EXPECT_TRUE(uit.Geldig);
    EXPECT_EQ(uit.Veld, rij.veld);
    EXPECT_EQ(uit.Tekst, rij.getoond);
    EXPECT_EQ(uit.Achtergrond, 0xC0FFFFU);
    EXPECT_EQ(uit.ToolTip, "");
    EXPECT_EQ(uit.lblLwA, std::nullopt);
    EXPECT_EQ(rij.plaats(project), rij.waarde);
    EXPECT_EQ(HerstelTekst(project, Open, rij.veld, ','), rij.getoond);
  }
}

TEST(VerlaatVeld, TurnsANumericFieldRedAndCountsItAsZero) {
  for (const GetalVeld& rij : GetalVelden()) {
    SCOPED_TRACE(rij.veld.Naam);
    for (const std::string& tekst : {std::string("1,2,3"), std::string(400, '9')}) {
      Project project;
      (void)Verlaat(project, rij.veld, rij.tekst);
      const VeldUitslag uit = Verlaat(project, rij.veld, tekst);
      EXPECT_FALSE(uit.Geldig);
      EXPECT_EQ(uit.Tekst, tekst);
      EXPECT_EQ(uit.Achtergrond, 255U);
      EXPECT_EQ(uit.ToolTip, "Voer geldig getal in");
      EXPECT_EQ(rij.plaats(project), 0);
    }
  }
}

TEST(VerlaatVeld, CountsAnEmptyNumericFieldAsZero) {
  Project project;
  EXPECT_EQ(Verlaat(project, {"txtRNagalm"}, "").Tekst, "0,00");
  EXPECT_EQ(Verlaat(project, {"txtRDI"}, "").Tekst, "1");  // the lower limit
}

TEST(VerlaatVeld, SnapsTheDirectivityFactor) {
  const std::vector<std::pair<const char*, int>> rijen = {
      {"0", 1}, {"1", 1}, {"2", 2}, {"3", 4},   {"4", 4},   {"5", 4},  {"6", 4},
      {"7", 8}, {"8", 8}, {"9", 8}, {"2,4", 2}, {"2,5", 4}, {"6,5", 8}};
  for (const auto& [tekst, factor] : rijen) {
    Project project;
    EXPECT_EQ(Verlaat(project, {"txtRDI"}, tekst).Tekst, std::to_string(factor)) << tekst;
    EXPECT_EQ(project.Ruimte.RDI, factor) << tekst;
  }
}

struct BandReeks {
  const char* naam;
  std::function<const Spectrum&(const Project&)> plaats;
};

std::vector<BandReeks> BandReeksen() {
  return {{"txtLw", [](const Project& p) -> const Spectrum& { return p.Fan.Lw; }},
          {"txtRkanaal", [](const Project& p) -> const Spectrum& { return p.Ruimte.Rkanaal; }},
          {"txtRplafond", [](const Project& p) -> const Spectrum& { return p.Ruimte.Rplafond; }}};
}

TEST(VerlaatVeld, StoresABandInItsSlotTrimmedAndNothingElse) {
  for (const BandReeks& reeks : BandReeksen()) {
    for (int band = 0; band < 7; ++band) {
      SCOPED_TRACE(testing::Message() << reeks.naam << band);
      Project project;
      // neither clamped to 150 nor formatted
      const VeldUitslag uit = Verlaat(project, {reeks.naam, band}, " 160,25 ");
      EXPECT_TRUE(uit.Geldig);
      EXPECT_EQ(uit.Tekst, "160,25");
      EXPECT_EQ(uit.Achtergrond, 0xC0FFFFU);
      for (int slot = 0; slot < 7; ++slot)
        EXPECT_EQ(reeks.plaats(project)[static_cast<std::size_t>(slot)], slot == band ? 160.25 : 0);
    }
  }
}

TEST(VerlaatVeld, KeepsTheFocusInABandThatIsNoNumber) {
  for (const BandReeks& reeks : BandReeksen()) {
    for (const char* tekst : {"1,2,3", "", " ", "NaN", "1e999", "1e300"}) {
      SCOPED_TRACE(testing::Message() << reeks.naam << " '" << tekst << "'");
      Project project;
      (void)Verlaat(project, {reeks.naam, 2}, "55");
      const VeldUitslag uit = Verlaat(project, {reeks.naam, 2}, tekst);
      EXPECT_FALSE(uit.Geldig);
      EXPECT_EQ(uit.Tekst, tekst);
      EXPECT_EQ(uit.Achtergrond, 255U);
      EXPECT_EQ(uit.ToolTip, "Voer geldig getal in");
      EXPECT_EQ(reeks.plaats(project)[2], 55);
    }
  }
}

// One band at 1000 Hz, where the A-weighting is 0; then as much again at 63 Hz, 26.2 dB down:
// 10·log10(10^8 + 10^(80-26.2)/10) = 80 + 10·log10(1 + 10^-2.62) = 80.0104
TEST(VerlaatVeld, BringsTheFansSumUpToDate) {
  Project project;
  EXPECT_EQ(Verlaat(project, {"txtLw", 4}, "80").lblLwA, "Lw,A = 80,0 dB(A)");
  EXPECT_EQ(project.Fan.Lw[7], 80);
  EXPECT_EQ(Verlaat(project, {"txtLw", 0}, "80").lblLwA, "Lw,A = 80,0 dB(A)");
  EXPECT_NEAR(project.Fan.Lw[7], 80.0104, 1e-4);
  EXPECT_EQ(Verlaat(project, {"txtRkanaal", 0}, "80").lblLwA, std::nullopt);
}

TEST(VerlaatVeld, AcceptsABandWhileAnotherOneIsNoNumber) {
  Project project;
  project.Fan.Lw[3] = std::numeric_limits<double>::quiet_NaN();
  project.Fan.Lw[7] = 60;
  EXPECT_TRUE(Verlaat(project, {"txtLw", 0}, "80").Geldig);
  EXPECT_EQ(project.Fan.Lw[0], 80);
  EXPECT_EQ(project.Fan.Lw[7], 60);
}

TEST(VerlaatVeld, StoresTextsTrimmedAndLeavesTheBoxAsTyped) {
  struct Rij {
    const char* naam;
    std::function<std::string_view(const Project&)> plaats;
  };
  const std::vector<Rij> rijen = {
      {"txtProNaam", [](const Project& p) { return p.Kop.ProNaam.Heel(); }},
      {"txtProNum", [](const Project& p) { return p.Kop.ProNum.Heel(); }},
      {"txtOmschrijving", [](const Project& p) { return p.Kop.Omschrijving.Heel(); }},
      {"txtToelichting1", [](const Project& p) { return p.Kop.Toelichting1.Heel(); }},
      {"txtToelichting2", [](const Project& p) { return p.Kop.Toelichting2.Heel(); }},
      {"txtToelichting3", [](const Project& p) { return p.Kop.Toelichting3.Heel(); }},
      {"txtSpectrum", [](const Project& p) { return p.Fan.FanNaam.Heel(); }}};
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(rij.naam);
    Project project;
    const std::string typed = "  " + NaarCp1252("Café 2") + " ";
    const VeldUitslag uit = Verlaat(project, {rij.naam}, typed);
    EXPECT_TRUE(uit.Geldig);
    EXPECT_EQ(uit.Tekst, typed);
    EXPECT_EQ(uit.Achtergrond, 0xC0FFFFU);
    const std::size_t lengte = rij.plaats(project).size();
    EXPECT_EQ(rij.plaats(project), NaarCp1252("Café 2") + std::string(lengte - 6, ' '));
    EXPECT_EQ(HerstelTekst(project, 0, {rij.naam}, ','), NaarCp1252("Café 2"));
  }
}

TEST(VerlaatVeld, ChecksTheDate) {
  Project project;
  EXPECT_EQ(Verlaat(project, {"txtMyDate"}, " 29-02-2024 ").Tekst, "29-02-2024");
  EXPECT_EQ(project.Kop.MyDate.Heel(), "29-02-2024");
  const VeldUitslag uit = Verlaat(project, {"txtMyDate"}, "31-02-2026");
  EXPECT_FALSE(uit.Geldig);
  EXPECT_EQ(uit.Tekst, "31-02-2026");
  EXPECT_EQ(uit.Achtergrond, 255U);
  EXPECT_EQ(uit.ToolTip, "Voer geldige datum in (dd-mm-yyyy)");
  EXPECT_EQ(project.Kop.MyDate.Heel(), "29-02-2024");
  EXPECT_EQ(HerstelTekst(project, 0, {"txtMyDate"}, ','), "29-02-2024");
  EXPECT_EQ(Verlaat(project, {"txtMyDate"}, "").Tekst, Vandaag);
  EXPECT_EQ(project.Kop.MyDate.Heel(), Vandaag);
}

TEST(VerlaatVeld, HandsTheOutletOfASectionChangeOnAtOnce) {
  for (const std::int16_t type : {elementtype::DrsneeRecht, elementtype::DrsneeRond}) {
    Project project;
    project.Elementen[Open].ElementType = type;
    (void)Verlaat(project, {"txtH2Doorsnee"}, "400");
    EXPECT_EQ(E(project).Hoogte, 400);
    (void)Verlaat(project, {"txtB2Doorsnee"}, "600");
    EXPECT_EQ(E(project).Breedte, 600);
    EXPECT_EQ(E(project).Hoogte, 400);
    (void)Verlaat(project, {"txtH1Doorsnee"}, "200");
    EXPECT_EQ(E(project).Hoogte, 400);
  }
}

TEST(VerlaatVeld, ChangesNoElementWhenNoneIsOpen) {
  Project project;
  EXPECT_EQ(Verlaat(project, {"txtHoogte"}, "400", 0).Tekst, "400");
  EXPECT_EQ(project.Elementen[0].Hoogte, 0);
  EXPECT_EQ(HerstelTekst(project, 0, {"txtHoogte"}, ','), "0");
  for (const int element : {-1, 501}) {
    EXPECT_THROW((void)Verlaat(project, {"txtHoogte"}, "400", element), Fout);
    EXPECT_THROW((void)HerstelTekst(project, element, {"txtHoogte"}, ','), Fout);
  }
  EXPECT_THROW((void)Verlaat(project, {"txtOnbekend"}, ""), Fout);
}

TEST(VerlaatVeld, StoresNothingFromABoxThatOnlyShows) {
  Project project;
  project.Elementen[Open].demp[0] = 5;
  project.Elementen[Open].ruis[6] = 6;
  EXPECT_EQ(Verlaat(project, {"txtdemp", 7}, "9").Tekst, "9");
  EXPECT_EQ(Verlaat(project, {"txtruis", 6}, "9").Tekst, "9");
  EXPECT_EQ(E(project).demp[0], 5);
  EXPECT_EQ(E(project).ruis[6], 6);
}

TEST(HerstelTekst, ShowsTheStoredValueInTheFieldsFormat) {
  Project project;
  project.Elementen[Open].demp = {1.25, 0, 0, 0, 0, 0, 7};
  project.Elementen[Open].ruis = {2, 0, 0, 0, 0, 0, 8.04};
  project.Fan.Lw[1] = 70.25;
  project.Ruimte.RDI = 3;  // snapped only when the field is left
  EXPECT_EQ(HerstelTekst(project, Open, {"txtdemp", 7}, '.'), "1.3");
  EXPECT_EQ(HerstelTekst(project, Open, {"txtdemp", 13}, '.'), "7.0");
  EXPECT_EQ(HerstelTekst(project, Open, {"txtruis", 0}, '.'), "2.0");
  EXPECT_EQ(HerstelTekst(project, Open, {"txtruis", 6}, '.'), "8.0");
  EXPECT_EQ(HerstelTekst(project, Open, {"txtLw", 1}, ','), "70,3");
  EXPECT_EQ(HerstelTekst(project, Open, {"txtRDI"}, '.'), "3");
  EXPECT_EQ(HerstelTekst(project, Open, {"txtProNaam"}, '.'), "");  // never assigned
  project.Kop.ProNaam = "  links";
  EXPECT_EQ(HerstelTekst(project, Open, {"txtProNaam"}, '.'), "  links");
}

TEST(VeldGewijzigd, NamesItsCallerToBerekend) {
  EXPECT_EQ(VeldGewijzigd({"txtB1Doorsnee"}).Berekend, "4");
  EXPECT_EQ(VeldGewijzigd({"txtLw", 6}).Berekend, "20");
  EXPECT_EQ(VeldGewijzigd({"txtWeerstand"}).Berekend, "42");
  EXPECT_EQ(VeldGewijzigd({"txtRNR"}).Berekend, "");
  EXPECT_TRUE(VeldGewijzigd({"txtLw", 6}).Zet.empty());
  EXPECT_EQ(VeldGewijzigd({"txtLw", 6}).lblLwA, std::nullopt);
}

TEST(VeldGewijzigd, BlanksTheSpectrumWhenTheFansDataChange) {
  for (int i = 0; i < 5; ++i) {
    const VeldGevolg gevolg = VeldGewijzigd({"txtfan", i});
    EXPECT_EQ(gevolg.Berekend, "");
    ASSERT_EQ(gevolg.Zet.size(), 7U);
    for (int band = 0; band < 7; ++band)
      EXPECT_EQ(gevolg.Zet[static_cast<std::size_t>(band)], (VeldTekst{{"txtLw", band}, "0"}));
    EXPECT_EQ(gevolg.lblLwA, "");
  }
}

TEST(OngeldigeLw, FindsTheFirstBandThatARunCannotTakeOver) {
  ProjectInvoer invoer;
  for (std::string& tekst : invoer.txtLw) tekst = "60,5";
  EXPECT_FALSE(OngeldigeLw(invoer).has_value());
  invoer.txtLw[6] = "";
  invoer.txtLw[5] = "1,2,3";
  const auto uit = OngeldigeLw(invoer);
  ASSERT_TRUE(uit.has_value());
  EXPECT_EQ(uit->Veld, (VeldId{"txtLw", 5}));
  EXPECT_FALSE(uit->Geldig);
  EXPECT_EQ(uit->Achtergrond, 255U);
  EXPECT_EQ(uit->ToolTip, "Voer geldig getal in");
  invoer.txtLw[5] = "0";
  EXPECT_EQ(OngeldigeLw(invoer)->Veld, (VeldId{"txtLw", 6}));
}

}  // namespace
}  // namespace murvane
