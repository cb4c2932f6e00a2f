#include "editor/tabsettings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "basis/tekst.h"

namespace murvane {
namespace {

using Rijen = std::vector<std::string>;

std::string Gevuld(std::string_view naam) {
  return std::string(Tekst<80>(naam).Heel());
}

Catalogi Lijsten() {
  Catalogi uit;
  uit.CatElementen.Aantal = 2;
  uit.CatElementen.Records[1].CatNaam = std::string_view("Aftakking rechthoekig");
  uit.CatElementen.Records[2].CatNaam = std::string_view("Aftakking rond");
  uit.CatFans.Aantal = 1;
  uit.CatFans.Records[1].SpecNaam = std::string_view("Fan A");
  uit.CatRduct.Aantal = 1;
  uit.CatRduct.Records[1].SpecNaam = std::string_view("Staal");
  uit.CatRplaf.Aantal = 1;
  uit.CatRplaf.Records[1].SpecNaam = std::string_view("Gips");
  return uit;
}

Project Gevuld() {
  Project p;
  p.Kop.ProNaam = "Kantoor";
  p.Kop.ProNum = "26-01";
  p.Kop.MyDate = "20-11-2026";
  p.Kop.Omschrijving = "Toevoer";
  p.Kop.Toelichting1 = "een";
  p.Kop.Toelichting2 = "twee";
  p.Kop.Toelichting3 = "drie";
  p.Kop.RekenType = rekentype::Geluidsuitstraling;
  p.Fan.FanNaam = "Fan X";
  p.Fan.Lw = {60, 61, 62, 63, 64, 65, 66.25, 70.25};
  p.Fan.FanDebiet = 2;
  p.Fan.FanDruk = 800;
  p.Fan.FanToeren = 1450;
  p.Fan.FanSchoepen = 12;
  p.Fan.FanVermogen = 2000;
  p.Fan.FanType = fantype::CentrifugaalVoorwaarts;
  p.FanPrognose = fanbron::Prognose;
  p.ElementCount = 2;
  p.Elementen[1].Naam = "Kanaal rond";
  p.Elementen[2].Naam = "Rooster";
  p.Ruimte.RLengte = 6;
  p.Ruimte.RBreedte = 4.5;
  p.Ruimte.RHoogte = 2.75;
  p.Ruimte.RNagalm = 0.6;
  p.Ruimte.RNR = 35;
  p.Ruimte.RDI = 3;
  p.Ruimte.RAantal = 4;
  p.Ruimte.Rkanaal = {11, 12, 13, 14, 15, 16, 17.25, 0};
  p.Ruimte.Rplafond = {21, 22, 23, 24, 25, 26, 27.25, 0};
  p.Ruimte.RkanaalNaam = "Beton";
  return p;
}

TEST(TabSettings, FillsTheWindowFromTheRecords) {
  const VensterBeeld beeld = TabSettings(Gevuld(), Lijsten(), ',');
  EXPECT_EQ(beeld.RekenType, 2);
  EXPECT_EQ(beeld.Velden.txtProNaam, "Kantoor");
  EXPECT_EQ(beeld.Velden.txtProNum, "26-01");
  EXPECT_EQ(beeld.Velden.txtMyDate, "20-11-2026");
  EXPECT_EQ(beeld.Velden.txtOmschrijving, "Toevoer");
  EXPECT_EQ(beeld.Velden.txtToelichting1, "een");
  EXPECT_EQ(beeld.Velden.txtToelichting2, "twee");
  EXPECT_EQ(beeld.Velden.txtToelichting3, "drie");
  EXPECT_EQ(beeld.Velden.txtSpectrum, "Fan X");
  EXPECT_EQ(beeld.Velden.txtLw[0], "60,0");
  EXPECT_EQ(beeld.Velden.txtLw[6], "66,3");
  EXPECT_EQ(beeld.lblLwA, "Lw,A = 70,3 dB(A)");
  EXPECT_EQ(beeld.txtfan, (std::array<std::string, 5>{"2,00", "800", "1450", "12", "2000"}));
  EXPECT_EQ(beeld.Fan, (FanZicht{false, true, false, true, false, false, true}));
  EXPECT_EQ(beeld.Velden.txtRLengte, "6,0");
  EXPECT_EQ(beeld.Velden.txtRBreedte, "4,5");
  EXPECT_EQ(beeld.Velden.txtRHoogte, "2,8");
  EXPECT_EQ(beeld.Velden.txtRNagalm, "0,60");
  EXPECT_EQ(beeld.Velden.txtRNR, "35");
  EXPECT_EQ(beeld.Velden.txtRDI, "3");
  EXPECT_EQ(beeld.Velden.txtRAantal, "4");  // hidden in this type, and kept
  EXPECT_EQ(beeld.txtRkanaal[0], "11,0");
  EXPECT_EQ(beeld.txtRkanaal[6], "17,3");
  EXPECT_EQ(beeld.txtRplafond[0], "21,0");
  EXPECT_EQ(beeld.txtRplafond[6], "27,3");
  EXPECT_EQ(beeld.RkanaalTekst, "Beton");
  EXPECT_EQ(beeld.RplafondTekst, "<geen plafond geselecteerd>" + std::string(53, ' '));
  EXPECT_FALSE(beeld.VrijVeld);
  EXPECT_EQ(beeld.Ruimte, RuimteZichtVan(2, 0));
}

TEST(TabSettings, FillsTheListsAndOpensNoElement) {
  const VensterBeeld beeld = TabSettings(Gevuld(), Lijsten(), ',');
  EXPECT_EQ(beeld.lstTotaal, (Rijen{Gevuld("Aftakking rechthoekig"), Gevuld("Aftakking rond")}));
  EXPECT_EQ(beeld.lstFan, (Rijen{"Fan A"}));
  EXPECT_EQ(beeld.lstProject, (Rijen{"1. " + Gevuld("Kanaal rond"), "2. " + Gevuld("Rooster")}));
  EXPECT_EQ(beeld.cmbKanaal, (Rijen{"Staal"}));
  EXPECT_EQ(beeld.cmbRkanaal, (Rijen{"Staal"}));
  EXPECT_EQ(beeld.cmbRplafond, (Rijen{"Gips"}));
  EXPECT_EQ(beeld.Element, 0);
  EXPECT_FALSE(beeld.SSTab2Zichtbaar);
}

TEST(TabSettings, ShowsAFreeFieldAndHidesItsBoxBetweenTwoRooms) {
  Project project = Gevuld();
  project.VrijVeld = 1;
  EXPECT_TRUE(TabSettings(project, {}, ',').VrijVeld);
  EXPECT_TRUE(TabSettings(project, {}, ',').Ruimte.VrijVeld);
  project.Kop.RekenType = rekentype::Overspraak;
  EXPECT_TRUE(TabSettings(project, {}, ',').VrijVeld);
  EXPECT_FALSE(TabSettings(project, {}, ',').Ruimte.VrijVeld);
  EXPECT_EQ(TabSettings(project, {}, ',').Ruimte, RuimteZichtVan(3, 1));
}

TEST(TabSettings, ShowsANewProject) {
  Project project;
  project.Kop.RekenType = rekentype::Installatiegeluid;
  const VensterBeeld beeld = TabSettings(project, {}, '.');
  EXPECT_EQ(beeld.Velden.txtProNaam, "");
  EXPECT_EQ(beeld.Velden.txtLw[0], "0.0");
  EXPECT_EQ(beeld.lblLwA, "Lw,A = 0.0 dB(A)");
  EXPECT_EQ(beeld.txtfan, (std::array<std::string, 5>{"0.00", "0", "0", "0", "0"}));
  EXPECT_EQ(beeld.Fan, (FanZicht{true, false, false, false, false, true, false}));
  EXPECT_TRUE(beeld.lstProject.empty());
  EXPECT_TRUE(beeld.lstFan.empty());
  EXPECT_EQ(beeld.RkanaalTekst, "<geen kanaalwand geselecteerd>" + std::string(50, ' '));
}

// A count below 0, which only a file can hold, lists nothing; no file gives one above the array.
TEST(TabSettings, ListsNoElementsForACountOutOfRange) {
  Project project;
  project.ElementCount = -1;
  EXPECT_TRUE(TabSettings(project, {}, '.').lstProject.empty());
  project.ElementCount = 501;
  EXPECT_THROW((void)TabSettings(project, {}, '.'), Fout);
  Catalogi negatief;
  negatief.CatFans.Aantal = -1;
  EXPECT_TRUE(TabSettings({}, negatief, '.').lstFan.empty());
}

}  // namespace
}  // namespace murvane
