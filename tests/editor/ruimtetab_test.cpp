#include "editor/ruimtetab.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "basis/fout.h"

namespace murvane {
namespace {

const std::string GeenWand = "<geen kanaalwand geselecteerd>" + std::string(50, ' ');
const std::string GeenDak = "<geen plafond geselecteerd>" + std::string(53, ' ');

struct ZichtRij {
  std::int16_t type;
  std::int16_t vrij;
  RuimteZicht zicht;
};

// length, width, height, reverberation, allowed level, directivity, outlets; wall, ceiling; the check box
const std::vector<ZichtRij>& ZichtRijen() {
  static const std::vector<ZichtRij> rijen = {
      {1, 1, {false, false, false, false, false, true, false, false, false, true}},
      {1, 0, {true, true, true, true, true, true, true, false, false, true}},
      {2, 1, {false, false, false, false, false, true, false, true, false, true}},
      {2, 0, {true, true, true, true, true, true, false, true, true, true}},
      {3, 1, {false, false, false, false, false, true, false, false, false, false}},
      {3, 0, {true, true, true, true, true, true, true, false, false, false}},
      // any value but 0 is a free field; a type that is none shows what type 1 does
      {1, -1, {false, false, false, false, false, true, false, false, false, true}},
      {0, 0, {true, true, true, true, true, true, true, false, false, true}},
      {4, 1, {false, false, false, false, false, true, false, false, false, true}},
  };
  return rijen;
}

TEST(VrVldSet, ShowsWhatTypeAndFreeFieldLeave) {
  for (const ZichtRij& rij : ZichtRijen()) {
    SCOPED_TRACE(testing::Message() << rij.type << ' ' << rij.vrij);
    Project project;
    project.Kop.RekenType = rij.type;
    project.VrijVeld = rij.vrij;
    const RuimteZicht zicht = RuimteZichtVan(rij.type, rij.vrij);
    EXPECT_EQ(zicht.txtRLengte, rij.zicht.txtRLengte);
    EXPECT_EQ(zicht.txtRBreedte, rij.zicht.txtRBreedte);
    EXPECT_EQ(zicht.txtRHoogte, rij.zicht.txtRHoogte);
    EXPECT_EQ(zicht.txtRNagalm, rij.zicht.txtRNagalm);
    EXPECT_EQ(zicht.txtRNR, rij.zicht.txtRNR);
    EXPECT_EQ(zicht.txtRDI, rij.zicht.txtRDI);
    EXPECT_EQ(zicht.txtRAantal, rij.zicht.txtRAantal);
    EXPECT_EQ(zicht.cmbRkanaal, rij.zicht.cmbRkanaal);
    EXPECT_EQ(zicht.cmbRplafond, rij.zicht.cmbRplafond);
    EXPECT_EQ(zicht.VrijVeld, rij.zicht.VrijVeld);
    EXPECT_EQ(zicht.Bandkop(), rij.type == 2);
    EXPECT_EQ(VrVldSet(project).Zicht, rij.zicht);
    EXPECT_EQ(VrVldSet(project).Berekend, "28");
  }
}

TEST(VrVldSet, BlanksTheNumberOfOutletsForBreakOutIntoARoom) {
  for (const ZichtRij& rij : ZichtRijen()) {
    Project project;
    project.Kop.RekenType = rij.type;
    project.VrijVeld = rij.vrij;
    project.Ruimte.RAantal = 4;
    const RuimteUitslag uit = VrVldSet(project);
    const bool leeg = rij.type == 2 && rij.vrij == 0;
    EXPECT_EQ(uit.Zet, leeg ? (std::vector<VeldTekst>{{{"txtRAantal"}, ""}}) : std::vector<VeldTekst>{});
    EXPECT_EQ(project.Ruimte.RAantal, 4);
  }
}

TEST(VrVldSet, FollowsTheCheckBox) {
  Project project;
  project.Kop.RekenType = rekentype::Geluidsuitstraling;
  EXPECT_EQ(VrijVeld_Click(project, true).Zicht, RuimteZichtVan(2, 1));
  EXPECT_EQ(project.VrijVeld, 1);
  const RuimteUitslag uit = VrijVeld_Click(project, false);
  EXPECT_EQ(uit.Zicht, RuimteZichtVan(2, 0));
  EXPECT_EQ(uit.Zet.size(), 1U);
  EXPECT_EQ(uit.Berekend, "28");
  EXPECT_EQ(project.VrijVeld, 0);
}

/// One of the two combo boxes.
struct Doos {
  std::string_view veld;
  std::string geen;
  std::function<std::string&(Project&)> naam;
  std::function<Spectrum&(Project&)> waarden;
  std::function<KeuzeUitslag(Project&, int, const SpectrumCatalogus&)> kies;
  KeuzeUitslag (*wijzig)(std::string_view);
  std::function<KeuzeUitslag(Project&, std::string_view)> verlaat;
  std::string (*tekst)(const RuimteRec&);
};

std::vector<Doos> Dozen() {
  return {{"txtRkanaal", GeenWand, [](Project& p) -> std::string& { return p.Ruimte.RkanaalNaam; },
           [](Project& p) -> Spectrum& { return p.Ruimte.Rkanaal; },
           [](Project& p, int rij, const SpectrumCatalogus& c) { return cmbRkanaal_Click(p, rij, c, ','); },
           cmbRkanaal_Change, [](Project& p, std::string_view t) { return cmbRkanaal_LostFocus(p, t, ','); },
           RkanaalTekst},
          {"txtRplafond", GeenDak, [](Project& p) -> std::string& { return p.Ruimte.RplafondNaam; },
           [](Project& p) -> Spectrum& { return p.Ruimte.Rplafond; },
           [](Project& p, int rij, const SpectrumCatalogus& c) { return cmbRplafond_Click(p, rij, c, ','); },
           cmbRplafond_Change,
           [](Project& p, std::string_view t) { return cmbRplafond_LostFocus(p, t, ','); }, RplafondTekst}};
}

SpectrumCatalogus Lijst() {
  SpectrumCatalogus uit;
  uit.Aantal = 2;
  uit.Records[1] = {std::string_view("Gips"), {1, 2, 3, 4, 5, 6, 7.25, 99}};
  uit.Records[2] = {std::string_view("Beton"), {11, 12, 13, 14, 15, 16, 17, 99}};
  return uit;
}

std::vector<VeldTekst> Banden7(std::string_view veld, const std::vector<std::string>& teksten) {
  std::vector<VeldTekst> uit;
  for (int band = 0; band < 7; ++band) uit.push_back({{veld, band}, teksten[static_cast<std::size_t>(band)]});
  return uit;
}

TEST(RuimteKeuze, CopiesNameAndSevenBandsAndShowsThem) {
  for (const Doos& doos : Dozen()) {
    SCOPED_TRACE(doos.veld);
    Project project;
    doos.waarden(project)[7] = 42;
    const KeuzeUitslag uit = doos.kies(project, 0, Lijst());
    EXPECT_EQ(doos.naam(project), "Gips" + std::string(76, ' '));
    EXPECT_EQ(doos.waarden(project), (Spectrum{1, 2, 3, 4, 5, 6, 7.25, 42}));
    EXPECT_EQ(uit.Zet, Banden7(doos.veld, {"1,0", "2,0", "3,0", "4,0", "5,0", "6,0", "7,3"}));
    EXPECT_EQ(uit.Berekend, "50");
    EXPECT_EQ(uit.Tekst, std::nullopt);
    EXPECT_EQ(doos.kies(project, 0, Lijst()).Berekend, "");
    EXPECT_EQ(doos.kies(project, 1, Lijst()).Berekend, "50");
    EXPECT_EQ(doos.waarden(project)[0], 11);
  }
}

TEST(RuimteKeuze, NeedsARow) {
  for (const Doos& doos : Dozen()) {
    Project project;
    const KeuzeUitslag uit = doos.kies(project, -1, Lijst());
    EXPECT_TRUE(uit.Zet.empty());
    EXPECT_EQ(uit.Berekend, "");
    EXPECT_EQ(doos.naam(project), "");
    EXPECT_THROW((void)doos.kies(project, 2, Lijst()), Fout);
  }
}

TEST(RuimteKeuze, PutsThePlaceholderBackInAnEmptiedBox) {
  for (const Doos& doos : Dozen()) {
    EXPECT_EQ(doos.wijzig("").Tekst, doos.geen);
    EXPECT_EQ(doos.wijzig(" ").Tekst, std::nullopt);
    EXPECT_EQ(doos.wijzig("G").Tekst, std::nullopt);
  }
}

TEST(RuimteKeuze, ForgetsTheChoiceWhenTheBoxIsLeftBlank) {
  for (const Doos& doos : Dozen()) {
    SCOPED_TRACE(doos.veld);
    Project project;
    (void)doos.kies(project, 0, Lijst());
    doos.waarden(project)[7] = 42;
    const KeuzeUitslag uit = doos.verlaat(project, "   ");
    EXPECT_EQ(uit.Tekst, doos.geen);
    EXPECT_EQ(uit.Zet, Banden7(doos.veld, std::vector<std::string>(7, "0,0")));
    EXPECT_EQ(doos.naam(project), doos.geen);
    EXPECT_EQ(doos.waarden(project), (Spectrum{0, 0, 0, 0, 0, 0, 0, 42}));
  }
}

TEST(RuimteKeuze, ANameThatWasTypedGoesBackToTheStoredOne) {
  for (const Doos& doos : Dozen()) {
    SCOPED_TRACE(doos.veld);
    Project project;
    EXPECT_EQ(doos.verlaat(project, "G").Tekst, doos.geen);
    EXPECT_EQ(doos.naam(project), "");
    (void)doos.kies(project, 0, Lijst());
    const std::string gips = doos.naam(project);
    const KeuzeUitslag uit = doos.verlaat(project, " G ");
    EXPECT_EQ(uit.Tekst, gips);
    EXPECT_TRUE(uit.Zet.empty());
    EXPECT_EQ(uit.Berekend, "");
    EXPECT_EQ(doos.verlaat(project, " Gips").Tekst, std::nullopt);
    EXPECT_EQ(doos.naam(project), gips);
    EXPECT_EQ(doos.waarden(project)[1], 2);
  }
}

TEST(RuimteKeuze, ShowsTheStoredNameOrThePlaceholder) {
  for (const Doos& doos : Dozen()) {
    Project project;
    EXPECT_EQ(doos.tekst(project.Ruimte), doos.geen);
    doos.naam(project) = "  ";
    EXPECT_EQ(doos.tekst(project.Ruimte), doos.geen);
    doos.naam(project) = "Gips ";
    EXPECT_EQ(doos.tekst(project.Ruimte), "Gips ");
  }
}

}  // namespace
}  // namespace murvane
