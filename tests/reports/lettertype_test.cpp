#include "reports/lettertype.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

using Rijen = std::vector<std::string>;

Rijen Fonts() {
  return {"Arial", "Courier New", "Times New Roman"};
}

TEST(VulAan, GivesDefaultsToWhatWasNeverSet) {
  const DrukInstelling standaard{"Courier New", 12, 3, 2, 2};
  EXPECT_EQ(StandaardDrukInstelling(), standaard);
  DrukInstelling leeg;
  VulAan(leeg);
  EXPECT_EQ(leeg, standaard);
  DrukInstelling gezet{"Arial", 7, 4, -1, 9};
  VulAan(gezet);
  EXPECT_EQ(gezet, (DrukInstelling{"Arial", 7, 4, -1, 9}));
  DrukInstelling half{"", 8, 0, 1, 0};
  VulAan(half);
  EXPECT_EQ(half, (DrukInstelling{"Courier New", 8, 3, 1, 2}));
}

TEST(Lettertypevenster, OpensOnTheSettings) {
  LettertypeVenster venster;
  DrukInstelling instelling{"Times New Roman", 8, 1, 3, 4};
  EXPECT_FALSE(LaadVenster(venster, instelling, Fonts));
  EXPECT_EQ(venster.cboLtype.Rijen, Fonts());
  EXPECT_EQ(venster.cboLtype.Rij, 2);
  EXPECT_EQ(venster.cboLtype.Tekst, "Times New Roman");
  EXPECT_EQ(venster.cboLgrootte.Rijen, (Rijen{" 6", " 8", "10", "12"}));
  EXPECT_EQ(venster.cboLgrootte.Rij, 1);
  EXPECT_EQ(venster.cboLgrootte.Tekst, " 8");
  const Rijen stijlen = {"Normaal    ", "Cursief    ", "Vet        ", "Vet cursief"};
  EXPECT_EQ(venster.cboKop.Rijen, stijlen);
  EXPECT_EQ(venster.cboBody1.Rijen, stijlen);
  EXPECT_EQ(venster.cboBody2.Rijen, stijlen);
  EXPECT_EQ(venster.cboKop.Rij, 0);
  EXPECT_EQ(venster.cboBody1.Rij, 2);
  EXPECT_EQ(venster.cboBody2.Rij, 3);
}

TEST(Lettertypevenster, FillsInDefaultsOnOpening) {
  LettertypeVenster venster;
  DrukInstelling instelling;
  EXPECT_FALSE(LaadVenster(venster, instelling, Fonts));
  EXPECT_EQ(instelling, StandaardDrukInstelling());
  EXPECT_EQ(venster.cboLtype.Rij, 1);
  EXPECT_EQ(venster.cboLgrootte.Rij, 3);
}

TEST(Lettertypevenster, SelectsSizesByValue) {
  const struct {
    std::int16_t grootte;
    int rij;
  } rijen[] = {{6, 0}, {8, 1}, {10, 2}, {12, 3}, {7, -1}, {5, -1}, {13, -1}, {-6, -1}};
  for (const auto& rij : rijen) {
    LettertypeVenster venster;
    DrukInstelling instelling{"Arial", rij.grootte, 1, 1, 1};
    EXPECT_FALSE(LaadVenster(venster, instelling, Fonts));
    EXPECT_EQ(venster.cboLgrootte.Rij, rij.rij) << rij.grootte;
    EXPECT_EQ(instelling.LetterGrootte, rij.grootte);
  }
}

TEST(Lettertypevenster, SelectsNoStyleThatThereIsNot) {
  for (const std::int16_t stijl : std::initializer_list<std::int16_t>{-1, 5, 32767, -32768}) {
    LettertypeVenster venster;
    DrukInstelling instelling{"Arial", 6, stijl, stijl, stijl};
    EXPECT_FALSE(LaadVenster(venster, instelling, Fonts));
    EXPECT_EQ(venster.cboKop.Rij, -1);
    NeemOver(venster, instelling);
    EXPECT_EQ(instelling, (DrukInstelling{"Arial", 6, 0, 0, 0}));  // the index of nothing plus 1
  }
}

TEST(Lettertypevenster, ShowsAFontThatTheSystemLacks) {
  LettertypeVenster venster;
  DrukInstelling instelling{"Onbekend", 6, 1, 1, 1};
  EXPECT_FALSE(LaadVenster(venster, instelling, Fonts));
  EXPECT_EQ(venster.cboLtype.Rij, -1);
  EXPECT_EQ(venster.cboLtype.Tekst, "Onbekend");
}

TEST(Lettertypevenster, HasOneFontWhenTheyCannotBeRead) {
  LettertypeVenster venster;
  DrukInstelling instelling{"Arial", 10, 4, 3, 1};
  const auto fout =
      LaadVenster(venster, instelling, []() -> Rijen { throw Fout(FoutNummer::PadToegang, "Geen printer"); });
  ASSERT_TRUE(fout);
  EXPECT_EQ(fout->Melding(), "Fout 75 - Geen printer.");
  EXPECT_EQ(venster.cboLtype.Rijen, Rijen{"Courier New"});
  EXPECT_EQ(venster.cboLtype.Tekst, "Courier New");
  EXPECT_EQ(venster.cboLtype.Rij, 0);
  EXPECT_EQ(instelling, (DrukInstelling{"Courier New", 10, 4, 3, 1}));
  EXPECT_EQ(venster.cboLgrootte.Rij, 2);  // the window opens all the same
  EXPECT_EQ(venster.cboBody2.Rijen.size(), 4U);
}

TEST(Lettertypevenster, TakesOverWhatWasChosen) {
  LettertypeVenster venster;
  DrukInstelling instelling{"Arial", 6, 1, 1, 1};
  EXPECT_FALSE(LaadVenster(venster, instelling, Fonts));
  venster.cboLtype.Tekst = "Times New Roman";
  venster.cboKop.Rij = 3;
  venster.cboBody1.Rij = 2;
  venster.cboBody2.Rij = 1;
  for (const auto& [tekst, grootte] :
       {std::pair{" 8", 8}, {"12", 12}, {"9,5", 10}, {"10.5", 10}, {"-3", -3}}) {
    venster.cboLgrootte.Tekst = tekst;  // a half goes to the even number
    NeemOver(venster, instelling);
    EXPECT_EQ(instelling, (DrukInstelling{"Times New Roman", static_cast<std::int16_t>(grootte), 4, 3, 2}))
        << tekst;
  }
}

TEST(Lettertypevenster, RefusesASizeThatIsNoNumberAndKeepsTheSettings) {
  const struct {
    const char* tekst;
    int fout;
  } rijen[] = {{"", 13}, {"twaalf", 13}, {"  ", 13}, {"32767,5", 6}, {"-40000", 6}, {"1E400", 6}};
  for (const auto& rij : rijen) {
    LettertypeVenster venster;
    DrukInstelling instelling{"Arial", 6, 1, 1, 1};
    EXPECT_FALSE(LaadVenster(venster, instelling, Fonts));
    venster.cboLgrootte.Tekst = rij.tekst;
    venster.cboLtype.Tekst = "Times New Roman";
    venster.cboKop.Rij = 2;
    EXPECT_EQ(proef::NummerVan([&] { return NeemOver(venster, instelling), 0; }), rij.fout) << rij.tekst;
    EXPECT_EQ(instelling, (DrukInstelling{"Arial", 6, 1, 1, 1}));
  }
}

TEST(Lettertypevenster, SetsDefaultsAtOnce) {
  LettertypeVenster venster;
  DrukInstelling instelling{"Arial", 6, 1, 1, 1};
  EXPECT_FALSE(LaadVenster(venster, instelling, Fonts));
  ZetStandaard(venster, instelling);
  EXPECT_EQ(instelling, (DrukInstelling{"Courier New", 12, 3, 2, 2}));
  EXPECT_EQ(venster.cboLtype.Tekst, "Courier New");
  EXPECT_EQ(venster.cboLgrootte.Tekst, "12");
  EXPECT_EQ(venster.cboKop.Tekst, "Vet        ");
  EXPECT_EQ(venster.cboBody1.Tekst, "Cursief    ");
  EXPECT_EQ(venster.cboBody2.Tekst, "Cursief    ");
}

}  // namespace
}  // namespace murvane
