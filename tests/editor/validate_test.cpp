#include "editor/validate.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "basis/fout.h"
#include "project/projectfile.h"

namespace murvane {
namespace {

using namespace std::string_literals;

constexpr double Oneindig = std::numeric_limits<double>::infinity();
constexpr double Geen = std::numeric_limits<double>::quiet_NaN();

constexpr const char* GeenSpectrum = "Geluidsspectrum ventilator niet (volledig) ingevuld";
constexpr const char* GeenNaam = "Naam ventilator niet ingevuld";
constexpr const char* GeenElementen = "Geen kanaalelementen ingevoerd";
constexpr const char* EersteGeenKanaal = "Eerste kanaalelement is geen rechthoekig of rond kanaal";
constexpr const char* LaatsteGeenRooster = "Laatste kanaalelement is geen rooster";
constexpr const char* LaatsteGeenKanaal = "Laatste kanaalelement is geen rechthoekig of rond kanaal";

const std::vector<int> AlleTypen = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 99, 0, 12, 50, -1, 100};

/// The fields that each type needs, in their order, by the names of their controls.
struct Eis {
  int type;
  std::vector<std::pair<const char*, double ElementRec::*>> velden;
};

const std::vector<Eis>& Eisen() {
  using E = ElementRec;
  static const std::vector<Eis> eisen = {
      {1,
       {{"txtHAftak", &E::Hoogte},
        {"txtBAftak", &E::Breedte},
        {"txtRAftak", &E::RAftak},
        {"txtQAftak", &E::QAftak},
        {"txtHDoor", &E::HDoor}}},
      {2,
       {{"txtHAftak", &E::Hoogte},
        {"txtRAftak", &E::RAftak},
        {"txtQAftak", &E::QAftak},
        {"txtHDoor", &E::HDoor}}},
      {3, {{"txtHoogte", &E::Hoogte}, {"txtBreedte", &E::Breedte}, {"txtDebiet", &E::Debiet}}},
      {4, {{"txtHoogte", &E::Hoogte}, {"txtBreedte", &E::Breedte}, {"txtDebiet", &E::Debiet}}},
      {5, {{"txtHoogte", &E::Hoogte}, {"txtDebiet", &E::Debiet}}},
      {6,
       {{"txtH1Doorsnee", &E::HHoofd},
        {"txtB1Doorsnee", &E::BHoofd},
        {"txtH2Doorsnee", &E::HDoor},
        {"txtLDoorsnee", &E::Lengte}}},
      {7, {{"txtH1Doorsnee", &E::HHoofd}, {"txtH2Doorsnee", &E::HDoor}, {"txtLDoorsnee", &E::Lengte}}},
      {8,
       {{"txtHoogte", &E::Hoogte},
        {"txtBreedte", &E::Breedte},
        {"txtLengte", &E::Lengte},
        {"txtDebiet", &E::Debiet}}},
      {9, {{"txtHoogte", &E::Hoogte}, {"txtLengte", &E::Lengte}, {"txtDebiet", &E::Debiet}}},
      {10, {{"txtWeerstand", &E::Weerstand}}},
      {11, {{"txtSnetto", &E::Snetto}, {"txtWeerstand", &E::Weerstand}}},
      {99, {}},
      {0, {}},
      {12, {}},
      {50, {}},
      {-1, {}},
  };
  return eisen;
}

/// An element with nothing but the fields that its type needs.
ElementRec Nodig(int type) {
  ElementRec uit;
  uit.ElementType = static_cast<std::int16_t>(type);
  for (const Eis& eis : Eisen()) {
    if (eis.type != type) continue;
    for (const auto& [naam, veld] : eis.velden) uit.*veld = 1;
  }
  return uit;
}

/// Puts these types in a project as its chain.
void ZetKeten(Project& project, const std::vector<int>& typen) {
  project.ElementCount = static_cast<std::int16_t>(typen.size());
  for (std::size_t i = 0; i < typen.size(); ++i) project.Elementen[i + 1] = Nodig(typen[i]);
}

/// A project of this calculation type that passes every rule.
Project Goed(int rekenType) {
  Project project;
  project.Kop.RekenType = static_cast<std::int16_t>(rekenType);
  project.Fan.Lw = {80, 81, 82, 83, 84, 85, 86, 0};
  project.Fan.FanNaam = "Dakventilator";
  ZetKeten(project, rekenType == 2 ? std::vector{8, 9} : std::vector{8, 11});
  project.Ruimte.RLengte = 6;
  project.Ruimte.RBreedte = 5;
  project.Ruimte.RHoogte = 3;
  project.Ruimte.RNagalm = 0.8;
  project.Ruimte.RNR = 35;
  project.Ruimte.RDI = 2;
  project.Ruimte.RAantal = 4;
  project.Ruimte.RkanaalNaam = "Staal 0,8 mm";
  return project;
}

void VerwachtGoed(const Project& project) {
  const auto bevinding = Beoordeel(project);
  EXPECT_FALSE(bevinding) << bevinding->Melding;
}

void VerwachtBevinding(const Project& project, const std::string& melding, Tab tab, int element = 0,
                       const std::string& veld = "") {
  const auto bevinding = Beoordeel(project);
  ASSERT_TRUE(bevinding) << "no finding; expected " << melding;
  EXPECT_EQ(bevinding->Melding, melding);
  EXPECT_EQ(bevinding->OpTab, tab);
  EXPECT_EQ(bevinding->Element, element);
  EXPECT_EQ(bevinding->Veld, veld);
}

void VerwachtFout(FoutNummer nummer, const std::function<void()>& doe) {
  try {
    doe();
    ADD_FAILURE() << "no Fout";
  } catch (const Fout& fout) {
    EXPECT_EQ(fout.Nummer(), nummer);
  }
}

// ---- the fan

TEST(Beoordeel, PassesACompleteProjectOfEveryCalculationType) {
  for (const int type : {1, 2, 3, 0, 4, -1}) {
    SCOPED_TRACE(type);
    VerwachtGoed(Goed(type));
  }
}

TEST(Beoordeel, ChangesNothing) {
  const Project project = Goed(1);
  const std::string voor = ProjectBytes(project);
  (void)Beoordeel(project);
  EXPECT_EQ(ProjectBytes(project), voor);
}

TEST(Beoordeel, WantsEveryBandOfTheFanExceptForCrosstalk) {
  for (std::size_t band = 0; band < 7; ++band) {
    for (const double nul : {0.0, -0.0}) {
      SCOPED_TRACE(band);
      for (const int type : {1, 2, 0, 4}) {
        Project project = Goed(type);
        project.Fan.Lw[band] = nul;
        VerwachtBevinding(project, GeenSpectrum, Tab::Ventilator);
      }
      Project overspraak = Goed(3);
      overspraak.Fan.Lw[band] = nul;
      VerwachtGoed(overspraak);
    }
  }
}

TEST(Beoordeel, TakesAnyBandLevelButZeroAndDoesNotLookAtTheSum) {
  Project project = Goed(1);
  project.Fan.Lw = {-5, 1e-300, 200, -1e-300, 1, 1, 1, 0};
  VerwachtGoed(project);
}

TEST(Beoordeel, WantsANameOfTheFanExceptForCrosstalk) {
  for (const std::string& naam : {""s, "   "s, std::string(80, '\0'), " \0 "s}) {
    for (const int type : {1, 2, 0}) {
      Project project = Goed(type);
      project.Fan.FanNaam = naam;
      VerwachtBevinding(project, GeenNaam, Tab::Ventilator);
    }
    Project overspraak = Goed(3);
    overspraak.Fan.FanNaam = naam;
    VerwachtGoed(overspraak);
  }
  Project nooit = Goed(1);
  nooit.Fan.FanNaam = Tekst<80>();
  VerwachtBevinding(nooit, GeenNaam, Tab::Ventilator);
}

// ---- the chain

TEST(Beoordeel, WantsElements) {
  for (const int type : {1, 2, 3, 0}) {
    Project project = Goed(type);
    project.ElementCount = 0;
    VerwachtBevinding(project, GeenElementen, Tab::Kanaalelementen);
  }
}

TEST(Beoordeel, RefusesANegativeCountByTheFirstRuleOfTheEnds) {
  for (const int aantal : {-1, -32768}) {
    for (const int type : {1, 2, 3, 0}) {
      Project project = Goed(type);  // whatever still stands in slot 1
      project.ElementCount = static_cast<std::int16_t>(aantal);
      VerwachtBevinding(project, EersteGeenKanaal, Tab::Kanaalelementen);
    }
  }
}

TEST(Beoordeel, FaultsOnACountAboveTheArray) {
  Project project = Goed(1);
  project.ElementCount = 501;
  VerwachtFout(FoutNummer::IndexBuitenBereik, [&] { (void)Beoordeel(project); });
}

TEST(Beoordeel, WantsADuctFirst) {
  for (const int type : AlleTypen) {
    for (const int rekenType : {1, 2, 3, 0}) {
      SCOPED_TRACE(testing::Message() << "element type " << type << ", calculation type " << rekenType);
      Project project = Goed(rekenType);
      project.Elementen[1] = Nodig(type);
      if (type == 8 || type == 9) {
        VerwachtGoed(project);
      } else {
        VerwachtBevinding(project, EersteGeenKanaal, Tab::Kanaalelementen);
      }
    }
  }
}

TEST(Beoordeel, WantsAnOutletOrACatalogueElementLastInSoundAndCrosstalk) {
  for (const int type : AlleTypen) {
    for (const int rekenType : {1, 3}) {
      SCOPED_TRACE(testing::Message() << "element type " << type << ", calculation type " << rekenType);
      Project project = Goed(rekenType);
      ZetKeten(project, {8, type});
      if (type == 11 || type == 99) {
        VerwachtGoed(project);
      } else {
        VerwachtBevinding(project, LaatsteGeenRooster, Tab::Kanaalelementen);
      }
    }
  }
}

TEST(Beoordeel, WantsADuctLastInBreakOut) {
  for (const int type : AlleTypen) {
    SCOPED_TRACE(type);
    Project project = Goed(2);
    ZetKeten(project, {8, type});
    if (type == 8 || type == 9) {
      VerwachtGoed(project);
    } else {
      VerwachtBevinding(project, LaatsteGeenKanaal, Tab::Kanaalelementen);
    }
  }
}

TEST(Beoordeel, AsksNothingOfTheLastElementInAnUnknownCalculationType) {
  for (const int type : {3, 8, 11, 99, 12}) {
    Project project = Goed(0);
    ZetKeten(project, {8, type});
    VerwachtGoed(project);
  }
}

TEST(Beoordeel, TakesOneDuctAsBothEndsInBreakOut) {
  Project project = Goed(2);
  ZetKeten(project, {9});
  VerwachtGoed(project);
  project.Kop.RekenType = 1;
  VerwachtBevinding(project, LaatsteGeenRooster, Tab::Kanaalelementen);
}

// ---- every element

/// A good chain with this type as element `nummer`; an outlet can only be the last.
Project MetElement(int type, int& nummer) {
  Project project = Goed(1);
  if (type == 11) {
    ZetKeten(project, {8, 99, 11});
    nummer = 3;
  } else {
    ZetKeten(project, {8, type, 99});
    nummer = 2;
  }
  return project;
}

TEST(Beoordeel, AsksForNoOtherFieldsThanThoseOfTheType) {
  for (const Eis& eis : Eisen()) {
    SCOPED_TRACE(eis.type);
    int nummer = 0;
    VerwachtGoed(MetElement(eis.type, nummer));
  }
}

TEST(Beoordeel, ReportsEachFieldThatIsZero) {
  for (const Eis& eis : Eisen()) {
    for (const auto& [naam, veld] : eis.velden) {
      for (const double nul : {0.0, -0.0}) {
        SCOPED_TRACE(testing::Message() << "type " << eis.type << ", " << naam);
        int nummer = 0;
        Project project = MetElement(eis.type, nummer);
        project.Elementen[static_cast<std::size_t>(nummer)].*veld = nul;
        VerwachtBevinding(project,
                          "Kanaalelement " + std::to_string(nummer) + " niet correct gedimensioneerd",
                          Tab::Kanaalelementen, nummer, naam);
      }
    }
  }
}

TEST(Beoordeel, PointsAtTheFirstFieldThatIsZero) {
  for (const Eis& eis : Eisen()) {
    int nummer = 0;
    Project project = MetElement(eis.type, nummer);
    for (std::size_t i = eis.velden.size(); i-- > 0;) {  // from the back: field i is the first of the zeros
      SCOPED_TRACE(testing::Message() << "type " << eis.type << ", " << eis.velden[i].first);
      project.Elementen[static_cast<std::size_t>(nummer)].*(eis.velden[i].second) = 0;
      VerwachtBevinding(project, "Kanaalelement " + std::to_string(nummer) + " niet correct gedimensioneerd",
                        Tab::Kanaalelementen, nummer, eis.velden[i].first);
    }
  }
}

TEST(Beoordeel, CountsAnyValueButZeroAsFilledIn) {
  for (const Eis& eis : Eisen()) {
    for (const double waarde : {-1.0, 1e-300, 1e300, Geen, Oneindig}) {
      int nummer = 0;
      Project project = MetElement(eis.type, nummer);
      for (const auto& [naam, veld] : eis.velden)
        project.Elementen[static_cast<std::size_t>(nummer)].*veld = waarde;
      VerwachtGoed(project);
    }
  }
}

TEST(Beoordeel, AllowsAnOutletAtTheEndOnly) {
  for (const int rekenType : {1, 2, 3, 0}) {
    Project project = Goed(rekenType);
    ZetKeten(project, rekenType == 2 ? std::vector{8, 99, 11, 8} : std::vector{8, 99, 11, 11});
    VerwachtBevinding(project, "Kanaalelement 3 mag geen rooster zijn", Tab::Kanaalelementen, 3);
    project.Elementen[3].Snetto = 0;  // its place is judged before its fields
    VerwachtBevinding(project, "Kanaalelement 3 mag geen rooster zijn", Tab::Kanaalelementen, 3);
  }
}

TEST(Beoordeel, StopsAtTheFirstElementThatFails) {
  Project project = Goed(1);
  ZetKeten(project, {8, 3, 11, 10, 11});
  project.Elementen[2].Debiet = 0;
  project.Elementen[4].Weerstand = 0;
  VerwachtBevinding(project, "Kanaalelement 2 niet correct gedimensioneerd", Tab::Kanaalelementen, 2,
                    "txtDebiet");
  project.Elementen[2].Debiet = 1;
  VerwachtBevinding(project, "Kanaalelement 3 mag geen rooster zijn", Tab::Kanaalelementen, 3);
  project.Elementen[3] = Nodig(99);
  VerwachtBevinding(project, "Kanaalelement 4 niet correct gedimensioneerd", Tab::Kanaalelementen, 4,
                    "txtWeerstand");
  project.Elementen[4].Weerstand = 1;
  VerwachtGoed(project);
}

TEST(Beoordeel, LooksAtElementsUpToTheLastOfTheArray) {
  Project project = Goed(1);
  ZetKeten(project, std::vector<int>(500, 8));
  project.Elementen[500] = Nodig(11);
  VerwachtGoed(project);
  project.Elementen[500].Weerstand = 0;
  VerwachtBevinding(project, "Kanaalelement 500 niet correct gedimensioneerd", Tab::Kanaalelementen, 500,
                    "txtWeerstand");
}

TEST(Beoordeel, DoesNotLookBehindTheLastElementNorAtSlotZero) {
  Project project = Goed(1);
  project.Elementen[0] = Nodig(11);
  project.Elementen[3].ElementType = 3;
  VerwachtGoed(project);
}

// ---- the room

struct RuimteRij {
  double RuimteRec::*veld;
  const char* melding;
  const char* control;
};

const std::array<RuimteRij, 4> Vertrek = {{
    {&RuimteRec::RLengte, "Vertreklengte niet ingevuld", "txtRLengte"},
    {&RuimteRec::RBreedte, "Vertrekbreedte niet ingevuld", "txtRBreedte"},
    {&RuimteRec::RHoogte, "Vertrekhoogte niet ingevuld", "txtRHoogte"},
    {&RuimteRec::RNagalm, "Nagalmtijd niet ingevuld", "txtRNagalm"},
}};

TEST(Beoordeel, WantsTheRoomsSizeAndReverberationUnlessInAFreeField) {
  for (const RuimteRij& rij : Vertrek) {
    for (const int type : {1, 2, 3, 0}) {
      SCOPED_TRACE(testing::Message() << rij.control << ", calculation type " << type);
      Project project = Goed(type);
      project.Ruimte.*rij.veld = 0;
      VerwachtBevinding(project, rij.melding, Tab::Ruimtegegevens, 0, rij.control);
      for (const int vrij : {1, -1, 2}) {
        project.VrijVeld = static_cast<std::int16_t>(vrij);
        VerwachtGoed(project);
      }
    }
  }
}

TEST(Beoordeel, WantsTheDirectivityAlways) {
  for (const int type : {1, 2, 3, 0}) {
    for (const int vrij : {0, 1}) {
      Project project = Goed(type);
      project.VrijVeld = static_cast<std::int16_t>(vrij);
      project.Ruimte.RDI = 0;
      VerwachtBevinding(project, "Richtingsfactor niet ingevuld", Tab::Ruimtegegevens, 0, "txtRDI");
      project.Ruimte.RDI = 3;  // not snapped here, not refused either
      VerwachtGoed(project);
    }
  }
}

TEST(Beoordeel, WantsTheNumberOfOutletsInSoundAndCrosstalkUnlessInAFreeField) {
  for (const int type : {1, 2, 3, 0, 4}) {
    SCOPED_TRACE(type);
    Project project = Goed(type);
    project.Ruimte.RAantal = 0;
    if (type == 1 || type == 3) {
      VerwachtBevinding(project, "Aantal roosters niet ingevuld", Tab::Ruimtegegevens, 0, "txtRAantal");
    } else {
      VerwachtGoed(project);
    }
    project.VrijVeld = 1;
    VerwachtGoed(project);
  }
}

TEST(Beoordeel, WantsADuctWallInBreakOut) {
  for (const std::string& naam :
       {"<geen kanaalwand geselecteerd>"s, "<geen kanaalwand geselecteerd>"s + std::string(50, ' '),
        "  <geen kanaalwand geselecteerd>\0"s}) {
    for (const int vrij : {0, 1}) {
      Project project = Goed(2);
      project.VrijVeld = static_cast<std::int16_t>(vrij);
      project.Ruimte.RkanaalNaam = naam;
      VerwachtBevinding(project, "Geen kanaalwand geselecteerd", Tab::Ruimtegegevens, 0, "cmbRkanaal");
    }
    for (const int type : {1, 3, 0}) {
      Project project = Goed(type);
      project.Ruimte.RkanaalNaam = naam;
      VerwachtGoed(project);
    }
  }
}

TEST(Beoordeel, TakesAnyOtherDuctWallNameInBreakOut) {
  for (const char* naam : {"", "   ", "<Geen kanaalwand geselecteerd>", "<geen kanaalwand geselecteerd> x",
                           "<geen plafond geselecteerd>"}) {
    Project project = Goed(2);
    project.Ruimte.RkanaalNaam = naam;
    VerwachtGoed(project);
  }
}

TEST(Beoordeel, DoesNotAskForTheAllowedLevelOrTheCeiling) {
  for (const int type : {1, 2, 3}) {
    Project project = Goed(type);
    project.Ruimte.RNR = 0;
    project.Ruimte.RplafondNaam = GeenPlafond;
    VerwachtGoed(project);
  }
}

// ---- the order of the rules

/// Everything wrong at once. Each step is the message that must come first and what mends it.
struct Stap {
  std::string melding;
  std::function<void(Project&)> herstel;
};

std::vector<Stap> Stappen(int rekenType) {
  const bool uitstraling = rekenType == 2;
  std::vector<Stap> uit;
  if (rekenType != 3) {
    uit.push_back({GeenSpectrum, [](Project& p) { p.Fan.Lw = Goed(1).Fan.Lw; }});
    uit.push_back({GeenNaam, [](Project& p) { p.Fan.FanNaam = "F"; }});
  }
  uit.push_back({GeenElementen, [](Project& p) { p.ElementCount = 2; }});
  uit.push_back({EersteGeenKanaal, [](Project& p) { p.Elementen[1].ElementType = 8; }});
  uit.push_back({uitstraling ? LaatsteGeenKanaal : LaatsteGeenRooster,
                 [=](Project& p) { p.Elementen[2].ElementType = uitstraling ? 9 : 11; }});
  uit.push_back(
      {"Kanaalelement 1 niet correct gedimensioneerd", [](Project& p) { p.Elementen[1] = Nodig(8); }});
  uit.push_back({"Kanaalelement 2 niet correct gedimensioneerd",
                 [=](Project& p) { p.Elementen[2] = Nodig(uitstraling ? 9 : 11); }});
  for (const RuimteRij& rij : Vertrek)
    uit.push_back({rij.melding, [&rij](Project& p) { p.Ruimte.*rij.veld = 1; }});
  uit.push_back({"Richtingsfactor niet ingevuld", [](Project& p) { p.Ruimte.RDI = 1; }});
  if (uitstraling) {
    uit.push_back({"Geen kanaalwand geselecteerd", [](Project& p) { p.Ruimte.RkanaalNaam = "Staal"; }});
  } else {
    uit.push_back({"Aantal roosters niet ingevuld", [](Project& p) { p.Ruimte.RAantal = 1; }});
  }
  return uit;
}

TEST(Beoordeel, ReportsTheFirstRuleThatFailsInTheOrderOfTheTabs) {
  for (const int type : {1, 2, 3}) {
    Project project;
    project.Kop.RekenType = static_cast<std::int16_t>(type);
    project.Ruimte.RkanaalNaam = GeenKanaalwand;
    for (const Stap& stap : Stappen(type)) {
      SCOPED_TRACE(testing::Message() << "calculation type " << type << ": " << stap.melding);
      const auto bevinding = Beoordeel(project);
      ASSERT_TRUE(bevinding);
      EXPECT_EQ(bevinding->Melding, stap.melding);
      stap.herstel(project);
    }
    VerwachtGoed(project);
  }
}

// ---- the fields as the window shows them

TEST(InvoerVan, ShowsNumbersInTheirDisplayFormats) {
  Project project = Goed(1);
  project.Fan.Lw = {80.25, 81.04, 0, -3.96, 1234.5, 85, 0.05, 99};
  project.Ruimte.RBreedte = 5.25;
  project.Ruimte.RHoogte = 12;  // limits are for taking over
  project.Ruimte.RLengte = 6;
  project.Ruimte.RDI = 3;
  project.Ruimte.RNR = 34.5;
  project.Ruimte.RNagalm = 0.805;
  project.Ruimte.RAantal = 4;
  const ProjectInvoer punt = InvoerVan(project, '.');
  EXPECT_EQ(punt.txtLw, (std::array<std::string, 7>{"80.3", "81.0", "0.0", "-4.0", "1234.5", "85.0", "0.1"}));
  EXPECT_EQ(punt.txtRBreedte, "5.3");
  EXPECT_EQ(punt.txtRHoogte, "12.0");
  EXPECT_EQ(punt.txtRLengte, "6.0");
  EXPECT_EQ(punt.txtRDI, "3");
  EXPECT_EQ(punt.txtRNR, "35");
  EXPECT_EQ(punt.txtRNagalm, "0.81");
  EXPECT_EQ(punt.txtRAantal, "4");
  const ProjectInvoer komma = InvoerVan(project, ',');
  EXPECT_EQ(komma.txtLw[0], "80,3");
  EXPECT_EQ(komma.txtRNagalm, "0,81");
}

TEST(InvoerVan, ShowsTextsWithoutTheirPadding) {
  Project project = Goed(1);
  project.Kop.ProNaam = "Kantoor West";
  project.Kop.ProNum = "2026-014";
  project.Kop.MyDate = "20-11-2026";
  project.Kop.Omschrijving = "Begane grond";
  project.Kop.Toelichting1 = "een";
  project.Kop.Toelichting2 = "";
  const ProjectInvoer invoer = InvoerVan(project, '.');
  EXPECT_EQ(invoer.txtProNaam, "Kantoor West");
  EXPECT_EQ(invoer.txtProNum, "2026-014");
  EXPECT_EQ(invoer.txtMyDate, "20-11-2026");
  EXPECT_EQ(invoer.txtOmschrijving, "Begane grond");
  EXPECT_EQ(invoer.txtToelichting1, "een");
  EXPECT_EQ(invoer.txtToelichting2, "");
  EXPECT_EQ(invoer.txtToelichting3, "");  // never assigned: NULs
  EXPECT_EQ(invoer.txtSpectrum, "Dakventilator");
}

TEST(InvoerVan, ShowsWhatIsNoNumberAsItIs) {
  Project project = Goed(1);
  project.Fan.Lw[0] = Geen;
  project.Ruimte.RLengte = Oneindig;
  project.Ruimte.RBreedte = -Oneindig;
  const ProjectInvoer invoer = InvoerVan(project, ',');
  EXPECT_EQ(invoer.txtLw[0], "NaN");
  EXPECT_EQ(invoer.txtRLengte, "INF");
  EXPECT_EQ(invoer.txtRBreedte, "-INF");
}

// ---- taking over

TEST(NeemOver, PutsTrimmedTextsIntoTheRecordsPaddedWithBlanks) {
  struct Rij {
    std::string ProjectInvoer::*invoer;
    std::function<std::string(const Project&)> record;
    std::size_t lengte;
  };
  const auto heel = [](const auto& tekst) { return std::string(tekst.Heel()); };
  const std::vector<Rij> rijen = {
      {&ProjectInvoer::txtProNaam, [&](const Project& p) { return heel(p.Kop.ProNaam); }, 80},
      {&ProjectInvoer::txtProNum, [&](const Project& p) { return heel(p.Kop.ProNum); }, 12},
      {&ProjectInvoer::txtMyDate, [&](const Project& p) { return heel(p.Kop.MyDate); }, 10},
      {&ProjectInvoer::txtOmschrijving, [&](const Project& p) { return heel(p.Kop.Omschrijving); }, 80},
      {&ProjectInvoer::txtToelichting1, [&](const Project& p) { return heel(p.Kop.Toelichting1); }, 80},
      {&ProjectInvoer::txtToelichting2, [&](const Project& p) { return heel(p.Kop.Toelichting2); }, 80},
      {&ProjectInvoer::txtToelichting3, [&](const Project& p) { return heel(p.Kop.Toelichting3); }, 80},
      {&ProjectInvoer::txtSpectrum, [&](const Project& p) { return heel(p.Fan.FanNaam); }, 80},
  };
  for (std::size_t i = 0; i < rijen.size(); ++i) {
    SCOPED_TRACE(i);
    const Rij& rij = rijen[i];
    const auto neem = [&](const std::string& tekst) {
      Project project = Goed(1);
      ProjectInvoer invoer = InvoerVan(project, '.');
      invoer.*rij.invoer = tekst;
      NeemOver(project, invoer, '.');
      return rij.record(project);
    };
    EXPECT_EQ(neem("\0 a b  "s), "a b" + std::string(rij.lengte - 3, ' '));
    EXPECT_EQ(neem(""), std::string(rij.lengte, ' '));
    EXPECT_EQ(neem(std::string(3, '\0')), std::string(rij.lengte, ' '));
    EXPECT_EQ(neem("  " + std::string(90, 'x')), std::string(rij.lengte, 'x'));
  }
}

TEST(NeemOver, MakesNeverAssignedTextsBlank) {
  Project project = Goed(1);
  project.Fan.FanNaam = Tekst<80>();
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_EQ(project.Kop.ProNaam.Heel(), std::string(80, ' '));
  EXPECT_EQ(project.Kop.MyDate.Heel(), std::string(10, ' '));
  EXPECT_EQ(project.Fan.FanNaam.Heel(), std::string(80, ' '));
}

TEST(NeemOver, TrimsBothEndsOfStoredTexts) {
  Project project = Goed(1);
  project.Fan.FanNaam = "  Dakventilator";
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_EQ(project.Fan.FanNaam, Tekst<80>("Dakventilator"));
}

TEST(NeemOver, DoesNotCheckTheDate) {
  Project project = Goed(1);
  ProjectInvoer invoer = InvoerVan(project, '.');
  invoer.txtMyDate = " 31-02-26 ";
  NeemOver(project, invoer, '.');
  EXPECT_EQ(project.Kop.MyDate, Tekst<10>("31-02-26"));
}

TEST(NeemOver, ReadsTheBandsWithoutLimitsOrRounding) {
  struct Rij {
    const char* tekst;
    double waarde;
  };
  const std::vector<Rij> rijen = {{"80.3", 80.3}, {"80,3", 80.3},   {" 80.3 ", 80.3}, {"200", 200},
                                  {"-5", -5},     {"80.25", 80.25}, {"1e2", 100},     {"0", 0}};
  for (std::size_t band = 0; band < 7; ++band) {
    for (const Rij& rij : rijen) {
      for (const char decimaal : {'.', ','}) {
        SCOPED_TRACE(rij.tekst);
        Project project = Goed(1);
        ProjectInvoer invoer = InvoerVan(project, decimaal);
        invoer.txtLw[band] = rij.tekst;
        NeemOver(project, invoer, decimaal);
        EXPECT_EQ(project.Fan.Lw[band], rij.waarde);
        const std::size_t ander = (band + 1) % 7;
        EXPECT_EQ(project.Fan.Lw[ander], 80.0 + static_cast<double>(ander));
      }
    }
  }
}

TEST(NeemOver, PassesStoredBandsThroughTheirDisplayFormat) {
  for (const char decimaal : {'.', ','}) {
    Project project = Goed(1);
    project.Fan.Lw = {80.25, 81.04, 0.04, -0.04, -3.96, 1234.56, 86, 12};
    NeemOver(project, InvoerVan(project, decimaal), decimaal);
    const std::array<double, 7> verwacht = {80.3, 81, 0, 0, -4, 1234.6, 86};
    for (std::size_t band = 0; band < 7; ++band) EXPECT_EQ(project.Fan.Lw[band], verwacht[band]);
  }
}

// 10·log10(Σ 10^((Lw + A)/10)); a band at 0 takes no part.
TEST(NeemOver, WorksOutTheSumOfTheBands) {
  Project project = Goed(1);
  project.Fan.Lw = {0, 0, 0, 0, 80, 0, 0, 7};
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_NEAR(project.Fan.Lw[7], 80, 1e-12);  // A = 0 at 1000 Hz
  project.Fan.Lw = {90, 0, 0, 0, 80, 0, 0, 7};
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_NEAR(project.Fan.Lw[7], 80.10295006837877, 1e-11);  // 10^6.38 + 10^8
  project.Fan.Lw = {80.36, 81, 82, 83, 84, 85, 86, 7};       // of the rounded 80.4
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_NEAR(project.Fan.Lw[7], 91.10581447624008, 1e-9);
  project.Fan.Lw = {0, 0, 0, 0, 0, 0, 0, 7};
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_EQ(project.Fan.Lw[7], 0);
}

TEST(NeemOver, ClampsAndRoundsTheRoomFields) {
  struct Rij {
    std::string ProjectInvoer::*invoer;
    double RuimteRec::*veld;
    const char* tekst;
    double waarde;
  };
  using I = ProjectInvoer;
  using R = RuimteRec;
  const std::vector<Rij> rijen = {
      {&I::txtRBreedte, &R::RBreedte, "300", 300},
      {&I::txtRBreedte, &R::RBreedte, "300.1", 300},
      {&I::txtRBreedte, &R::RBreedte, "299,94", 299.9},
      {&I::txtRBreedte, &R::RBreedte, "0", 0},
      {&I::txtRBreedte, &R::RBreedte, "-1", 0},
      {&I::txtRBreedte, &R::RBreedte, "5,25", 5.3},
      {&I::txtRHoogte, &R::RHoogte, "10", 10},
      {&I::txtRHoogte, &R::RHoogte, "10,1", 10},
      {&I::txtRHoogte, &R::RHoogte, "-0.1", 0},
      {&I::txtRHoogte, &R::RHoogte, "2.65", 2.7},
      {&I::txtRLengte, &R::RLengte, "300", 300},
      {&I::txtRLengte, &R::RLengte, "1e300", 300},
      {&I::txtRLengte, &R::RLengte, "-1", 0},
      {&I::txtRLengte, &R::RLengte, "6.04", 6},
      {&I::txtRNR, &R::RNR, "150", 150},
      {&I::txtRNR, &R::RNR, "151", 150},
      {&I::txtRNR, &R::RNR, "-1", 0},
      {&I::txtRNR, &R::RNR, "34,5", 35},
      {&I::txtRNagalm, &R::RNagalm, "10", 10},
      {&I::txtRNagalm, &R::RNagalm, "10.01", 10},
      {&I::txtRNagalm, &R::RNagalm, "-0.01", 0},
      {&I::txtRNagalm, &R::RNagalm, "0,805", 0.81},
      {&I::txtRAantal, &R::RAantal, "50", 50},
      {&I::txtRAantal, &R::RAantal, "51", 50},
      {&I::txtRAantal, &R::RAantal, "-1", 0},
      {&I::txtRAantal, &R::RAantal, "3.5", 4},
      {&I::txtRAantal, &R::RAantal, "", 0},
      {&I::txtRAantal, &R::RAantal, "drie", 0},
      {&I::txtRLengte, &R::RLengte, " ", 0},
      {&I::txtRLengte, &R::RLengte, "1,2,3", 0},
  };
  for (const Rij& rij : rijen) {
    for (const char decimaal : {'.', ','}) {
      SCOPED_TRACE(rij.tekst);
      Project project = Goed(1);
      ProjectInvoer invoer = InvoerVan(project, decimaal);
      invoer.*rij.invoer = rij.tekst;
      NeemOver(project, invoer, decimaal);
      EXPECT_EQ(project.Ruimte.*rij.veld, rij.waarde);
    }
  }
}

TEST(NeemOver, ClampsTheDirectivityAndDoesNotSnapIt) {
  struct Rij {
    const char* tekst;
    int waarde;
  };
  const std::vector<Rij> rijen = {{"1", 1}, {"2", 2},  {"3", 3},     {"7", 7},   {"8", 8}, {"9", 8}, {"0", 1},
                                  {"", 1},  {"-4", 1}, {"40000", 8}, {"2,5", 3}, {"x", 0}, {" ", 0}};
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(rij.tekst);
    Project project = Goed(1);
    ProjectInvoer invoer = InvoerVan(project, ',');
    invoer.txtRDI = rij.tekst;
    NeemOver(project, invoer, ',');
    EXPECT_EQ(project.Ruimte.RDI, rij.waarde);
  }
}

TEST(NeemOver, LeavesWhatNoFieldFeeds) {
  Project project = Goed(1);
  project.Ruimte.RNaam = "zaal";
  project.Ruimte.RVolume = 12.345;
  project.Ruimte.Rkanaal = {1.26, 2, 3, 4, 5, 6, 7, 8};
  project.Ruimte.Rplafond = {1.26, 2, 3, 4, 5, 6, 7, 8};
  project.Ruimte.RkanaalNaam = " wand ";
  project.Ruimte.RplafondNaam = "";
  project.Fan.FanDebiet = 1.2345;
  project.Fan.FanType = 2;
  project.Kop.ProNaam = project.Kop.Omschrijving = project.Kop.Toelichting1 = project.Kop.Toelichting2 =
      project.Kop.Toelichting3 = "t";
  project.Kop.ProNum = "n";
  project.Kop.MyDate = "20-11-2026";
  const std::string voor = ProjectBytes(project);
  NeemOver(project, InvoerVan(project, ','), ',');
  project.Fan.Lw[7] = 0;
  project.Elementen[2].Debiet = 0;                                 // inherited 1
  project.Elementen[2].Hoogte = project.Elementen[2].Breedte = 0;  // inherited 1 and 1
  EXPECT_EQ(ProjectBytes(project), voor);
}

TEST(NeemOver, HandsFlowAndSectionDownTheWholeChain) {
  Project project = Goed(1);
  ZetKeten(project, {8, 1, 5, 11});
  project.FanPrognose = fanbron::Prognose;
  project.Fan.FanDebiet = 2.345;
  project.Elementen[1].Hoogte = 400;
  project.Elementen[1].Breedte = 300;
  project.Elementen[2].QAftak = 0.75;
  project.Elementen[2].Hoogte = 250;
  project.Elementen[2].Breedte = 200;
  project.Elementen[5] = Nodig(11);  // behind the end
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_EQ(project.Elementen[1].Debiet, 2.345);  // unrounded: it is no field here
  EXPECT_EQ(project.Elementen[2].Debiet, 2.345);
  EXPECT_EQ(project.Elementen[2].HHoofd, 400);
  EXPECT_EQ(project.Elementen[2].BHoofd, 300);
  EXPECT_EQ(project.Elementen[3].Debiet, 0.75);
  EXPECT_EQ(project.Elementen[3].Hoogte, 250);
  EXPECT_EQ(project.Elementen[4].Debiet, 0.75);
  EXPECT_EQ(project.Elementen[4].Hoogte, 250);
  EXPECT_EQ(project.Elementen[5].Debiet, 0);
}

TEST(NeemOver, HandsDownToTheLastElementOfTheArray) {
  Project project = Goed(1);
  ZetKeten(project, std::vector<int>(500, 99));
  project.Elementen[1].Debiet = 0.25;
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_EQ(project.Elementen[500].Debiet, 0.25);
}

TEST(NeemOver, HandsNothingDownWithANegativeCount) {
  Project project = Goed(1);
  project.ElementCount = -3;
  NeemOver(project, InvoerVan(project, '.'), '.');
  EXPECT_EQ(project.Elementen[2].Debiet, 0);
}

/// A fault must leave the project as it was, whatever else stood in the fields.
void VerwachtFoutZonderSpoor(Project project, ProjectInvoer invoer, FoutNummer nummer) {
  const std::string voor = ProjectBytes(project);
  invoer.txtProNaam = "andere naam";
  VerwachtFout(nummer, [&] { NeemOver(project, invoer, '.'); });
  EXPECT_EQ(ProjectBytes(project), voor);
}

TEST(NeemOver, FaultsOnABandThatIsNoNumber) {
  for (const std::string& tekst : {""s, " "s, "abc"s, "1,2,3"s, "1.2.3"s, "nan"s, "inf"s, "\0"s}) {
    for (std::size_t band = 0; band < 7; ++band) {
      SCOPED_TRACE(tekst);
      ProjectInvoer invoer = InvoerVan(Goed(1), '.');
      invoer.txtLw[band] = tekst;
      VerwachtFoutZonderSpoor(Goed(1), invoer, FoutNummer::GeenGetal);
    }
  }
}

TEST(NeemOver, FaultsOnABandThatIsTooLarge) {
  for (const char* tekst :
       {"1e999", "NaN", " INF ", "-INF", "1e308"}) {  // the last one: the power of its sum
    for (std::size_t band = 0; band < 7; ++band) {
      for (const int type : {1, 3}) {
        SCOPED_TRACE(tekst);
        ProjectInvoer invoer = InvoerVan(Goed(type), '.');
        invoer.txtLw[band] = tekst;
        VerwachtFoutZonderSpoor(Goed(type), invoer, FoutNummer::Overloop);
      }
    }
  }
}

TEST(NeemOver, FaultsOnARoomFieldThatIsTooLarge) {
  for (const auto veld : {&ProjectInvoer::txtRBreedte, &ProjectInvoer::txtRHoogte, &ProjectInvoer::txtRLengte,
                          &ProjectInvoer::txtRDI, &ProjectInvoer::txtRNR, &ProjectInvoer::txtRNagalm,
                          &ProjectInvoer::txtRAantal}) {
    for (const char* tekst : {"NaN", "INF", "-INF", " NaN ", "1e999"}) {
      SCOPED_TRACE(tekst);
      ProjectInvoer invoer = InvoerVan(Goed(1), '.');
      invoer.*veld = tekst;
      VerwachtFoutZonderSpoor(Goed(1), invoer, FoutNummer::Overloop);
    }
  }
}

TEST(NeemOver, SaysInDutchWhichFieldFaults) {
  struct Rij {
    std::function<void(ProjectInvoer&)> zet;
    const char* melding;
  };
  using I = ProjectInvoer;
  const auto overloop = [](std::string I::*veld) { return [veld](I& invoer) { invoer.*veld = "NaN"; }; };
  const std::vector<Rij> rijen = {
      {[](I& i) { i.txtLw[0] = "x"; }, "Fout 13 - Geen geldig getal (geluidsspectrum ventilator, 63 Hz)."},
      {[](I& i) { i.txtLw[6] = "NaN"; },
       "Fout 6 - Overloop: een getal is te groot of onbepaald (geluidsspectrum ventilator, 4000 Hz)."},
      // 10^(9999/10) is beyond a double
      {[](I& i) { i.txtLw[0] = "9999"; },
       "Fout 6 - Overloop: een getal is te groot of onbepaald (geluidsspectrum ventilator)."},
      {overloop(&I::txtRBreedte), "Fout 6 - Overloop: een getal is te groot of onbepaald (vertrekbreedte)."},
      {overloop(&I::txtRHoogte), "Fout 6 - Overloop: een getal is te groot of onbepaald (vertrekhoogte)."},
      {overloop(&I::txtRLengte), "Fout 6 - Overloop: een getal is te groot of onbepaald (vertreklengte)."},
      {overloop(&I::txtRDI), "Fout 6 - Overloop: een getal is te groot of onbepaald (richtingsfactor)."},
      {overloop(&I::txtRNR),
       "Fout 6 - Overloop: een getal is te groot of onbepaald (toelaatbaar geluidsniveau)."},
      {overloop(&I::txtRNagalm), "Fout 6 - Overloop: een getal is te groot of onbepaald (nagalmtijd)."},
      {overloop(&I::txtRAantal), "Fout 6 - Overloop: een getal is te groot of onbepaald (aantal roosters)."},
  };
  for (const Rij& rij : rijen) {
    Project project = Goed(1);
    ProjectInvoer invoer = InvoerVan(project, '.');
    rij.zet(invoer);
    try {
      NeemOver(project, invoer, '.');
      ADD_FAILURE() << "no Fout; expected " << rij.melding;
    } catch (const Fout& fout) {
      EXPECT_EQ(fout.Melding(), rij.melding);
    }
  }
}

TEST(NeemOver, FaultsOnACountAboveTheArrayBeforeAnythingIsWritten) {
  Project project = Goed(1);
  ProjectInvoer invoer = InvoerVan(project, '.');
  invoer.txtSpectrum = "ander";
  project.ElementCount = 501;
  VerwachtFout(FoutNummer::IndexBuitenBereik, [&] { NeemOver(project, invoer, '.'); });
  EXPECT_EQ(project.Fan.FanNaam, Tekst<80>("Dakventilator"));
}

// ---- both steps

std::optional<Bevinding> Controleer(Project& project) {
  return CheckIt(project, InvoerVan(project, ','), ',');
}

TEST(CheckIt, PassesACompleteProjectOfEveryCalculationType) {
  for (const int type : {1, 2, 3, 0}) {
    Project project = Goed(type);
    const auto bevinding = Controleer(project);
    EXPECT_FALSE(bevinding) << bevinding->Melding;
  }
}

TEST(CheckIt, NeverRunsAProjectWithAStoredValueThatIsNoNumber) {
  for (const double waarde : {Geen, Oneindig, -Oneindig}) {
    for (const auto veld : {&RuimteRec::RBreedte, &RuimteRec::RHoogte, &RuimteRec::RLengte, &RuimteRec::RNR,
                            &RuimteRec::RNagalm, &RuimteRec::RAantal}) {
      Project project = Goed(1);
      project.VrijVeld = 1;
      project.Ruimte.*veld = waarde;
      VerwachtFout(FoutNummer::Overloop, [&] { (void)Controleer(project); });
    }
    for (std::size_t band = 0; band < 7; ++band) {
      Project project = Goed(3);
      project.Fan.Lw[band] = waarde;
      VerwachtFout(FoutNummer::Overloop, [&] { (void)Controleer(project); });
    }
  }
}

TEST(CheckIt, JudgesWhatTheFieldsShow) {
  Project project = Goed(1);
  project.Fan.Lw[2] = 0.04;  // shows 0,0
  EXPECT_EQ(Controleer(project).value().Melding, GeenSpectrum);
  project = Goed(1);
  project.Ruimte.RLengte = 0.04;
  EXPECT_EQ(Controleer(project).value().Melding, "Vertreklengte niet ingevuld");
  project = Goed(1);
  project.Ruimte.RNagalm = -0.5;
  EXPECT_EQ(Controleer(project).value().Melding, "Nagalmtijd niet ingevuld");
}

TEST(CheckIt, RunsADirectivityBelowOneAsOne) {
  for (const int waarde : {0, -3, -32768}) {
    Project project = Goed(1);
    project.Ruimte.RDI = static_cast<std::int16_t>(waarde);
    EXPECT_FALSE(Controleer(project));
    EXPECT_EQ(project.Ruimte.RDI, 1);
  }
}

TEST(CheckIt, KeepsADirectivityOfThree) {
  Project project = Goed(1);
  project.Ruimte.RDI = 3;
  EXPECT_FALSE(Controleer(project));
  EXPECT_EQ(project.Ruimte.RDI, 3);
}

TEST(CheckIt, RefusesADirectivityThatIsNoNumber) {
  Project project = Goed(1);
  ProjectInvoer invoer = InvoerVan(project, '.');
  invoer.txtRDI = "x";
  EXPECT_EQ(CheckIt(project, invoer, '.').value().Veld, "txtRDI");
}

TEST(CheckIt, KeepsTheNumberOfOutletsInBreakOut) {
  Project project = Goed(2);
  EXPECT_FALSE(Controleer(project));
  EXPECT_EQ(project.Ruimte.RAantal, 4);
}

TEST(CheckIt, JudgesInheritedFlowsAndSections) {
  Project project = Goed(1);
  ZetKeten(project, {8, 3, 11});
  project.Elementen[2].Hoogte = project.Elementen[2].Breedte = project.Elementen[2].Debiet = 0;
  EXPECT_FALSE(Controleer(project));  // all three come from element 1
  ZetKeten(project, {9, 3, 11});
  project.Elementen[2].Breedte = 0;  // a round duct hands down no width
  EXPECT_EQ(Controleer(project).value().Veld, "txtBreedte");
}

TEST(CheckIt, JudgesAnInheritedZeroOverATypedFlow) {
  Project project = Goed(1);
  ZetKeten(project, {8, 3, 11});
  project.Elementen[1].Debiet = 0;
  const Bevinding bevinding = Controleer(project).value();
  EXPECT_EQ(bevinding.Element, 1);
  EXPECT_EQ(project.Elementen[2].Debiet, 0);
}

TEST(CheckIt, KeepsWhatItTookOverWhenARuleFails) {
  Project project = Goed(1);
  ProjectInvoer invoer = InvoerVan(project, '.');
  invoer.txtProNaam = "nieuw";
  invoer.txtSpectrum = "";
  invoer.txtRNR = "42";
  EXPECT_EQ(CheckIt(project, invoer, '.').value().Melding, GeenNaam);
  EXPECT_EQ(project.Kop.ProNaam, Tekst<80>("nieuw"));
  EXPECT_EQ(project.Ruimte.RNR, 42);
}

TEST(CheckIt, RefusesAProjectWithoutElements) {
  Project project = Goed(1);
  project.ElementCount = 0;
  EXPECT_EQ(Controleer(project).value().Melding, GeenElementen);
  project.ElementCount = -1;
  EXPECT_EQ(Controleer(project).value().Melding, EersteGeenKanaal);
}

}  // namespace
}  // namespace murvane
