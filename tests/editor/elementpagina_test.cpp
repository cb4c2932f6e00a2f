#include "editor/elementpagina.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "basis/fout.h"

namespace murvane {
namespace {

using namespace elementtype;

constexpr std::string_view GeenWand = "<geen kanaalwand geselecteerd>";

/// Element 2 of the given type behind a duct of 400 x 600 mm with 2 m³/s.
Project MetElement(std::int16_t type) {
  Project project;
  project.Kop.RekenType = rekentype::Installatiegeluid;
  project.ElementCount = 2;
  project.Elementen[1].ElementType = KanaalRecht;
  project.Elementen[1].Hoogte = 400;
  project.Elementen[1].Breedte = 600;
  project.Elementen[1].Debiet = 2;
  project.Elementen[2].ElementType = type;
  return project;
}

struct TypeRij {
  std::int16_t type;
  Pagina pagina;
  std::string_view focus;
  std::set<std::string_view> verborgen;  // of element 2, whose flow is inherited
};

const std::vector<TypeRij>& TypeRijen() {
  static const std::vector<TypeRij> rijen = {
      {1, Pagina::Aftakking, "txtHAftak", {}},
      {2, Pagina::Aftakking, "txtHAftak", {"txtBAftak"}},
      {3, Pagina::Kanaal, "txtHoogte", {"txtDebiet", "txtLengte", "txtdemp", "cmbKanaal"}},
      {4, Pagina::Kanaal, "txtHoogte", {"txtDebiet", "txtLengte", "txtdemp", "cmbKanaal"}},
      {5, Pagina::Kanaal, "txtHoogte", {"txtDebiet", "txtLengte", "txtdemp", "cmbKanaal", "txtBreedte"}},
      {6, Pagina::Doorsnee, "txtH1Doorsnee", {}},
      {7, Pagina::Doorsnee, "txtH1Doorsnee", {"txtB1Doorsnee", "txtB2Doorsnee"}},
      {8, Pagina::Kanaal, "txtHoogte", {"txtDebiet"}},
      {9, Pagina::Kanaal, "txtHoogte", {"txtDebiet", "txtBreedte"}},
      {10, Pagina::Weerstand, "txtWeerstand", {"txtSnetto"}},
      {11, Pagina::Weerstand, "txtSnetto", {}},
      {99, Pagina::VastSpectrum, "", {}},
  };
  return rijen;
}

std::set<std::string_view> Verborgen(const ElementBeeld& beeld) {
  std::set<std::string_view> uit;
  for (const VeldStand& stand : beeld.Stand) {
    if (!stand.Zichtbaar) uit.insert(stand.Veld.Naam);
  }
  return uit;
}

std::string Tekst(const std::vector<VeldTekst>& teksten, VeldId veld) {
  for (const VeldTekst& tekst : teksten) {
    if (tekst.Veld == veld) return tekst.Tekst;
  }
  return "<none>";
}

std::vector<std::string> Namen(const std::vector<VeldId>& velden) {
  std::vector<std::string> uit;
  for (const VeldId& veld : velden) {
    uit.emplace_back(veld.Naam);
    if (veld.Index >= 0) uit.back() += "(" + std::to_string(veld.Index) + ")";
  }
  return uit;
}

TEST(Elementpagina, NumbersThePagesAsTheTabsStand) {
  EXPECT_EQ(static_cast<int>(Pagina::Kanaal), 0);
  EXPECT_EQ(static_cast<int>(Pagina::Aftakking), 1);
  EXPECT_EQ(static_cast<int>(Pagina::Doorsnee), 2);
  EXPECT_EQ(static_cast<int>(Pagina::Weerstand), 3);
  EXPECT_EQ(static_cast<int>(Pagina::VastSpectrum), 4);
}

TEST(Elementpagina, HoldsItsFields) {
  using Lijst = std::vector<std::string>;
  EXPECT_EQ(Namen(PaginaVelden(Pagina::Kanaal)),
            (Lijst{"txtHoogte", "txtBreedte", "txtLengte", "txtDebiet", "txtdemp(0)", "cmbKanaal"}));
  EXPECT_EQ(Namen(PaginaVelden(Pagina::Aftakking)),
            (Lijst{"txtHAftak", "txtBAftak", "txtHHoofd", "txtBHoofd", "txtHDoor", "txtBDoor", "txtQAftak",
                   "txtRAftak"}));
  EXPECT_EQ(Namen(PaginaVelden(Pagina::Doorsnee)),
            (Lijst{"txtH1Doorsnee", "txtB1Doorsnee", "txtH2Doorsnee", "txtB2Doorsnee", "txtLDoorsnee"}));
  EXPECT_EQ(Namen(PaginaVelden(Pagina::Weerstand)), (Lijst{"txtSnetto", "txtWeerstand"}));
  EXPECT_EQ(Namen(PaginaVelden(Pagina::VastSpectrum)), (Lijst{"txtdemp(7)", "txtruis(0)"}));
  EXPECT_TRUE(PaginaVelden(Pagina::Geen).empty());
}

TEST(Elementpagina, ShowsTheFieldsOfItsTypeAndFocusesTheFirst) {
  for (const TypeRij& rij : TypeRijen()) {
    SCOPED_TRACE(rij.type);
    Project project = MetElement(rij.type);
    const ElementOpening opening = OpenElement(project, 2, '.');
    EXPECT_EQ(PaginaVan(rij.type), rij.pagina);
    EXPECT_EQ(opening.Beeld.OpPagina, rij.pagina);
    EXPECT_EQ(opening.Focus, rij.focus);
    EXPECT_TRUE(opening.SSTab2Zichtbaar);
    EXPECT_EQ(Verborgen(opening.Beeld), rij.verborgen);
    EXPECT_EQ(opening.Beeld.Stand.size(), PaginaVelden(rij.pagina).size());
  }
}

TEST(Elementpagina, HasNoPageForAnUnknownType) {
  for (const std::int16_t type : std::vector<std::int16_t>{0, -1, 12, 98, 100}) {
    Project project = MetElement(type);
    const ElementOpening opening = OpenElement(project, 2, '.');
    EXPECT_EQ(opening.Beeld.OpPagina, Pagina::Geen);
    EXPECT_FALSE(opening.SSTab2Zichtbaar);
    EXPECT_EQ(opening.Focus, "");
    EXPECT_TRUE(AcceptVelden(type).empty());
    EXPECT_TRUE(Accept(project, 2, {}, '.').empty());
  }
}

TEST(Elementpagina, AsksTheFlowOfTheFirstElementOnlyAndOnlyWithoutAPrognosis) {
  Project project = MetElement(KanaalRecht);
  EXPECT_TRUE(ElementVeldZichtbaar(project, 1, {"txtDebiet"}));
  EXPECT_FALSE(ElementVeldZichtbaar(project, 2, {"txtDebiet"}));
  project.FanPrognose = fanbron::Prognose;
  EXPECT_FALSE(ElementVeldZichtbaar(project, 1, {"txtDebiet"}));
  project.Elementen[1].ElementType = BochtRond;
  project.FanPrognose = fanbron::Lijst;
  EXPECT_TRUE(ElementVeldZichtbaar(project, 1, {"txtDebiet"}));
  EXPECT_THROW((void)ElementVeldZichtbaar(project, -1, {"txtDebiet"}), Fout);
  EXPECT_THROW((void)ElementVeldZichtbaar(project, 501, {"txtDebiet"}), Fout);
}

TEST(ProjectSettings, DoesNothingWithoutAnElement) {
  Project project;
  const ElementBeeld beeld = ProjectSettings(project, 0, '.');
  EXPECT_EQ(beeld.OpPagina, Pagina::Geen);
  EXPECT_TRUE(beeld.Teksten.empty());
  const ElementOpening opening = OpenElement(project, 0, '.');
  EXPECT_FALSE(opening.SSTab2Zichtbaar);
  EXPECT_EQ(opening.Focus, "");
  EXPECT_THROW((void)ProjectSettings(project, 501, '.'), Fout);
  EXPECT_THROW((void)OpenElement(project, -1, '.'), Fout);
}

TEST(ProjectSettings, FillsEveryBoxOfThePageTheHiddenOnesToo) {
  for (const TypeRij& rij : TypeRijen()) {
    SCOPED_TRACE(rij.type);
    Project project = MetElement(rij.type);
    ElementRec& e = project.Elementen[2];
    e.Hoogte = 101;
    e.Breedte = 102;
    e.Lengte = 3.25;
    e.Debiet = 4.5;
    e.HHoofd = 105;
    e.BHoofd = 106;
    e.HDoor = 107;
    e.BDoor = 108;
    e.QAftak = 0.5;
    e.RAftak = 0.25;
    e.Snetto = 109;
    e.Weerstand = 110;
    e.LAeq = {50, 51, 52, 53, 54, 55, 56.25};
    e.demp = {1, 2, 3, 4, 5, 6, 7};
    e.ruis = {11, 12, 13, 14, 15, 16, 17};
    const ElementBeeld beeld = ProjectSettings(project, 2, ',');
    const auto tekst = [&beeld](VeldId veld) { return Tekst(beeld.Teksten, veld); };
    switch (rij.pagina) {
      case Pagina::Kanaal:
        EXPECT_EQ(beeld.Teksten.size(), 11U);
        EXPECT_EQ(tekst({"txtHoogte"}), "101");
        EXPECT_EQ(tekst({"txtBreedte"}), "102");
        EXPECT_EQ(tekst({"txtLengte"}), "3,3");
        EXPECT_EQ(tekst({"txtDebiet"}), "4,50");
        EXPECT_EQ(tekst({"txtdemp", 0}), "50,0");
        EXPECT_EQ(tekst({"txtdemp", 6}), "56,3");
        break;
      case Pagina::Aftakking:
        EXPECT_EQ(beeld.Teksten.size(), 8U);
        EXPECT_EQ(tekst({"txtHAftak"}), "101");
        EXPECT_EQ(tekst({"txtBAftak"}), "102");
        EXPECT_EQ(tekst({"txtHHoofd"}), "105");
        EXPECT_EQ(tekst({"txtBHoofd"}), "106");
        EXPECT_EQ(tekst({"txtHDoor"}), "107");
        EXPECT_EQ(tekst({"txtBDoor"}), "108");
        EXPECT_EQ(tekst({"txtQAftak"}), "0,50");
        EXPECT_EQ(tekst({"txtRAftak"}), "0,25");
        break;
      case Pagina::Doorsnee:
        EXPECT_EQ(beeld.Teksten.size(), 5U);
        EXPECT_EQ(tekst({"txtH1Doorsnee"}), "105");
        EXPECT_EQ(tekst({"txtB1Doorsnee"}), "106");
        EXPECT_EQ(tekst({"txtH2Doorsnee"}), "107");
        EXPECT_EQ(tekst({"txtB2Doorsnee"}), "108");
        EXPECT_EQ(tekst({"txtLDoorsnee"}), "3,25");
        break;
      case Pagina::Weerstand:
        EXPECT_EQ(beeld.Teksten.size(), 2U);
        EXPECT_EQ(tekst({"txtSnetto"}), "109");
        EXPECT_EQ(tekst({"txtWeerstand"}), "110");
        break;
      default:
        EXPECT_EQ(beeld.Teksten.size(), 14U);
        EXPECT_EQ(tekst({"txtdemp", 7}), "1,0");
        EXPECT_EQ(tekst({"txtdemp", 13}), "7,0");
        EXPECT_EQ(tekst({"txtruis", 0}), "11,0");
        EXPECT_EQ(tekst({"txtruis", 6}), "17,0");
    }
  }
}

TEST(ProjectSettings, GivesAnElementOfTheDuctPageThePlaceholderForItsWall) {
  const std::string plaatshouder = std::string(GeenWand) + std::string(50, ' ');
  for (const std::int16_t type : {BochtHaaks, BochtRecht, BochtRond, KanaalRecht, KanaalRond}) {
    Project project = MetElement(type);
    const ElementBeeld beeld = ProjectSettings(project, 2, '.');
    EXPECT_EQ(beeld.cmbKanaal, plaatshouder);
    EXPECT_EQ(project.Elementen[2].Kanaal.Heel(), plaatshouder);
  }
  Project project = MetElement(KanaalRond);
  project.Elementen[2].Kanaal = "Staal";
  EXPECT_EQ(ProjectSettings(project, 2, '.').cmbKanaal, "Staal" + std::string(75, ' '));
  EXPECT_EQ(project.Elementen[2].Kanaal.Getrimd(), "Staal");
  Project aftak = MetElement(AftakRond);
  (void)ProjectSettings(aftak, 2, '.');
  EXPECT_EQ(aftak.Elementen[2].Kanaal.Getrimd(), "");
}

TEST(OpenElement, InheritsBeforeItFillsThePage) {
  Project project = MetElement(BochtRecht);
  const ElementOpening opening = OpenElement(project, 2, '.');
  EXPECT_EQ(Tekst(opening.Beeld.Teksten, {"txtHoogte"}), "400");
  EXPECT_EQ(Tekst(opening.Beeld.Teksten, {"txtBreedte"}), "600");
  EXPECT_EQ(Tekst(opening.Beeld.Teksten, {"txtDebiet"}), "2.00");
  EXPECT_TRUE(opening.Zet.empty());
}

TEST(OpenElement, RoundsANewBranch) {
  for (const std::int16_t type : {AftakRecht, AftakRond}) {
    Project project = MetElement(type);
    const ElementOpening opening = OpenElement(project, 2, ',');
    EXPECT_EQ(project.Elementen[2].RAftak, 0.15);
    EXPECT_EQ(Tekst(opening.Beeld.Teksten, {"txtRAftak"}), "0,00");  // so that the text changes
    EXPECT_EQ(opening.Zet, (std::vector<VeldTekst>{{{"txtRAftak"}, "0,15"}}));
    EXPECT_TRUE(OpenElement(project, 2, ',').Zet.empty());  // and only once
  }
}

TEST(OpenElement, FixesTheBranchFlowBetweenTwoRooms) {
  for (const std::int16_t type : {AftakRecht, AftakRond}) {
    Project project = MetElement(type);
    project.Kop.RekenType = rekentype::Overspraak;
    project.Elementen[2].QAftak = 0.8;
    project.Elementen[2].RAftak = 0.25;
    const ElementOpening opening = OpenElement(project, 2, ',');
    EXPECT_EQ(project.Elementen[2].QAftak, 0.01);
    EXPECT_EQ(project.Elementen[2].RAftak, 0.25);
    EXPECT_EQ(Tekst(opening.Beeld.Teksten, {"txtQAftak"}), "0,80");
    EXPECT_EQ(opening.Zet, (std::vector<VeldTekst>{{{"txtQAftak"}, "0,01"}}));
    EXPECT_EQ(Verborgen(opening.Beeld).count("txtQAftak"), 1U);
  }
  Project project = MetElement(AftakRecht);
  project.Kop.RekenType = rekentype::Geluidsuitstraling;
  project.Elementen[2].QAftak = 0.8;
  (void)OpenElement(project, 2, ',');
  EXPECT_EQ(project.Elementen[2].QAftak, 0.8);
}

/// What the window hands in when an element was opened and nothing typed.
ElementInvoer Geopend(Project& project, int n) {
  ElementOpening opening = OpenElement(project, n, ',');
  for (const VeldTekst& zet : opening.Zet) {
    for (VeldTekst& tekst : opening.Beeld.Teksten) {
      if (tekst.Veld == zet.Veld) tekst.Tekst = zet.Tekst;
    }
  }
  return {opening.Beeld.Teksten, opening.Beeld.cmbKanaal};
}

void Typ(ElementInvoer& invoer, VeldId veld, std::string tekst) {
  const auto plaats = std::find_if(invoer.Teksten.begin(), invoer.Teksten.end(),
                                   [veld](const VeldTekst& een) { return een.Veld == veld; });
  ASSERT_NE(plaats, invoer.Teksten.end());
  plaats->Tekst = std::move(tekst);
}

TEST(Accept, ReadsTheBoxesOfTheTypeInOrder) {
  using Lijst = std::vector<std::string>;
  const Lijst aftak = {"txtHAftak", "txtBAftak", "txtHHoofd", "txtBHoofd",
                       "txtHDoor",  "txtBDoor",  "txtQAftak", "txtRAftak"};
  const Lijst bocht = {"txtHoogte", "txtBreedte", "txtDebiet"};
  const Lijst doorsnee = {"txtLDoorsnee", "txtH1Doorsnee", "txtB1Doorsnee", "txtH2Doorsnee", "txtB2Doorsnee"};
  const Lijst kanaal = {"txtHoogte",  "txtBreedte", "txtLengte",  "txtDebiet",  "txtdemp(0)", "txtdemp(1)",
                        "txtdemp(2)", "txtdemp(3)", "txtdemp(4)", "txtdemp(5)", "txtdemp(6)"};
  const std::vector<std::pair<std::int16_t, Lijst>> rijen = {{1, aftak},
                                                             {2, aftak},
                                                             {3, bocht},
                                                             {4, bocht},
                                                             {5, bocht},
                                                             {6, doorsnee},
                                                             {7, doorsnee},
                                                             {8, kanaal},
                                                             {9, kanaal},
                                                             {10, {"txtWeerstand"}},
                                                             {11, {"txtSnetto", "txtWeerstand"}},
                                                             {99, {}}};
  for (const auto& [type, velden] : rijen) EXPECT_EQ(Namen(AcceptVelden(type)), velden) << type;
}

TEST(Accept, StoresWhatIsTyped) {
  for (const TypeRij& rij : TypeRijen()) {
    for (const VeldId& veld : AcceptVelden(rij.type)) {
      if (rij.verborgen.count(veld.Naam) != 0) continue;
      SCOPED_TRACE(testing::Message() << rij.type << ' ' << veld.Naam);
      Project project = MetElement(rij.type);
      ElementInvoer invoer = Geopend(project, 2);
      Typ(invoer, veld, " 0,5");
      const auto uit = Accept(project, 2, invoer, ',');
      const auto uitslag =
          std::find_if(uit.begin(), uit.end(), [veld](const VeldUitslag& een) { return een.Veld == veld; });
      ASSERT_NE(uitslag, uit.end());
      EXPECT_TRUE(uitslag->Geldig);
      EXPECT_EQ(HerstelTekst(project, 2, veld, ','), uitslag->Tekst);
      EXPECT_EQ(uitslag->Tekst.substr(0, 1), Regel(veld).Weergave == Formaat::Heel ? "1" : "0");
    }
  }
}

TEST(Accept, ClampsAndCountsWhatIsNoNumberAsZero) {
  Project project = MetElement(KanaalRecht);
  ElementInvoer invoer = Geopend(project, 2);
  Typ(invoer, {"txtHoogte"}, "6000");
  Typ(invoer, {"txtBreedte"}, "1,2,3");
  const auto uit = Accept(project, 2, invoer, ',');
  EXPECT_EQ(project.Elementen[2].Hoogte, 5000);
  EXPECT_EQ(project.Elementen[2].Breedte, 0);
  EXPECT_EQ(uit.at(0).Tekst, "5000");
  EXPECT_FALSE(uit.at(1).Geldig);
  EXPECT_EQ(uit.at(1).Achtergrond, 255U);
}

TEST(Accept, HandsTheOutletOfASectionChangeOn) {
  for (const std::int16_t type : {DrsneeRecht, DrsneeRond}) {
    Project project = MetElement(type);
    ElementInvoer invoer = Geopend(project, 2);
    Typ(invoer, {"txtH2Doorsnee"}, "250");
    Typ(invoer, {"txtB2Doorsnee"}, "350");
    (void)Accept(project, 2, invoer, ',');
    EXPECT_EQ(project.Elementen[2].Hoogte, 250);
    EXPECT_EQ(project.Elementen[2].Breedte, 350);
    EXPECT_EQ(project.Elementen[2].HHoofd, 400);
  }
  // also when the boxes are as they were opened
  Project project = MetElement(DrsneeRecht);
  project.Elementen[2].HDoor = 250.4;
  project.Elementen[2].BDoor = 350;
  (void)Accept(project, 2, Geopend(project, 2), ',');
  EXPECT_EQ(project.Elementen[2].Hoogte, 250);
  EXPECT_EQ(project.Elementen[2].Breedte, 350);
}

TEST(Accept, TakesTheWallOfAStraightDuctOnly) {
  for (const std::int16_t type : {KanaalRecht, KanaalRond, BochtRecht}) {
    Project project = MetElement(type);
    ElementInvoer invoer = Geopend(project, 2);
    invoer.cmbKanaal = "  Eigen wand ";
    (void)Accept(project, 2, invoer, ',');
    EXPECT_EQ(project.Elementen[2].Kanaal.Getrimd(), type == BochtRecht ? GeenWand : "Eigen wand");
  }
}

TEST(Accept, LeavesWhatTheUserCannotSee) {
  Project project = MetElement(KanaalRond);
  project.Elementen[1].Debiet = 0.1234;
  project.Elementen[2].Breedte = 333.3;  // hidden, and finer than its format
  project.Elementen[2].Lengte = 1.23;    // shown
  (void)Accept(project, 2, Geopend(project, 2), ',');
  EXPECT_EQ(project.Elementen[2].Debiet, 0.1234);
  EXPECT_EQ(project.Elementen[2].Breedte, 333.3);
  EXPECT_EQ(project.Elementen[2].Lengte, 1.2);

  ElementInvoer anders = Geopend(project, 2);
  Typ(anders, {"txtBreedte"}, "100");  // a hidden box with a text of its own is read all the same
  (void)Accept(project, 2, anders, ',');
  EXPECT_EQ(project.Elementen[2].Breedte, 100);
}

TEST(Accept, KeepsTheBranchFlowBetweenTwoRooms) {
  Project project = MetElement(AftakRecht);
  project.Kop.RekenType = rekentype::Overspraak;
  project.Elementen[2].QAftak = 0.8;
  (void)Accept(project, 2, Geopend(project, 2), ',');
  EXPECT_EQ(project.Elementen[2].QAftak, 0.01);
  EXPECT_EQ(project.Elementen[2].RAftak, 0.15);
}

TEST(Accept, RefusesAnIncompletePageAndAnElementOutOfRange) {
  Project project = MetElement(KanaalRecht);
  ElementInvoer invoer = Geopend(project, 2);
  Typ(invoer, {"txtHoogte"}, "123");
  invoer.Teksten.pop_back();
  EXPECT_THROW((void)Accept(project, 2, invoer, ','), Fout);
  EXPECT_EQ(project.Elementen[2].Hoogte, 0);
  EXPECT_TRUE(Accept(project, 0, {}, ',').empty());
  EXPECT_THROW((void)Accept(project, 501, {}, ','), Fout);
}

SpectrumCatalogus Wanden() {
  SpectrumCatalogus uit;
  uit.Aantal = 2;
  uit.Records[1] = {std::string_view("Staal"), {1, 2, 3, 4, 5, 6, 7, 99}};
  uit.Records[2] = {std::string_view("Beton"), {11, 12, 13, 14, 15, 16, 17, 99}};
  return uit;
}

TEST(KanaalKeuze, CopiesNameAndSevenBands) {
  Project project = MetElement(KanaalRecht);
  project.Elementen[2].Rkanaalwand[7] = 42;
  EXPECT_TRUE(cmbKanaal_Click(project, 2, 1, Wanden()));
  EXPECT_EQ(project.Elementen[2].Kanaal.Heel(), "Beton" + std::string(75, ' '));
  EXPECT_EQ(project.Elementen[2].Rkanaalwand, (Spectrum{11, 12, 13, 14, 15, 16, 17, 42}));
  EXPECT_EQ(WandBerekend, "50");
}

TEST(KanaalKeuze, IsNoChangeWhenTheNameIsTheSame) {
  Project project = MetElement(KanaalRecht);
  project.Elementen[2].Kanaal = " Staal";
  EXPECT_FALSE(cmbKanaal_Click(project, 2, 0, Wanden()));
  EXPECT_EQ(project.Elementen[2].Kanaal.Heel(), "Staal" + std::string(75, ' '));
  EXPECT_EQ(project.Elementen[2].Rkanaalwand[0], 1);
}

TEST(KanaalKeuze, NeedsARowAndAnElement) {
  Project project = MetElement(KanaalRecht);
  EXPECT_FALSE(cmbKanaal_Click(project, 2, -1, Wanden()));
  EXPECT_FALSE(cmbKanaal_Click(project, 0, 0, Wanden()));
  EXPECT_EQ(project.Elementen[2].Kanaal.Getrimd(), "");
  EXPECT_EQ(project.Elementen[0].Kanaal.Getrimd(), "");
  EXPECT_THROW((void)cmbKanaal_Click(project, 2, 2, Wanden()), Fout);
}

TEST(KanaalKeuze, PutsThePlaceholderBack) {
  const std::string plaatshouder = std::string(GeenWand) + std::string(50, ' ');
  EXPECT_EQ(GeenKanaalwandTekst(), plaatshouder);
  EXPECT_EQ(cmbKanaal_Change(""), plaatshouder);
  EXPECT_EQ(cmbKanaal_Change(" "), std::nullopt);
  EXPECT_EQ(cmbKanaal_Change("S"), std::nullopt);

  Project project = MetElement(KanaalRecht);
  project.Elementen[2].Kanaal = "Staal";
  EXPECT_EQ(cmbKanaal_LostFocus(project, 2, "  ").Tekst, plaatshouder);
  EXPECT_EQ(project.Elementen[2].Kanaal.Heel(), plaatshouder);
  EXPECT_EQ(cmbKanaal_LostFocus(project, 0, "").Tekst, plaatshouder);
  EXPECT_EQ(project.Elementen[0].Kanaal.Getrimd(), "");
}

TEST(KanaalKeuze, ANameThatWasTypedIsTheWall) {
  Project project = MetElement(KanaalRecht);
  project.Elementen[2].Kanaal = "Staal";
  project.Elementen[2].Rkanaalwand = {1, 2, 3, 4, 5, 6, 7, 8};
  const KeuzeUitslag uit = cmbKanaal_LostFocus(project, 2, " Eigen wand  ");
  EXPECT_EQ(uit.Tekst, std::nullopt);
  EXPECT_TRUE(uit.Zet.empty());
  EXPECT_EQ(uit.Berekend, "50");
  EXPECT_EQ(project.Elementen[2].Kanaal.Heel(), "Eigen wand" + std::string(70, ' '));
  EXPECT_EQ(project.Elementen[2].Rkanaalwand, (Spectrum{1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(cmbKanaal_LostFocus(project, 2, "   ").Berekend, "50");
  EXPECT_EQ(cmbKanaal_LostFocus(project, 2, "   ").Berekend, "");
  const std::string lang(90, 'w');  // what does not fit is cut off, and is no other name the next time
  EXPECT_EQ(cmbKanaal_LostFocus(project, 2, lang).Berekend, "50");
  EXPECT_EQ(cmbKanaal_LostFocus(project, 2, lang).Berekend, "");
}

TEST(KanaalKeuze, LeavingTheStoredNameChangesNoByte) {
  Project project = MetElement(KanaalRecht);
  project.Elementen[2].Kanaal = " Staal";
  EXPECT_EQ(cmbKanaal_LostFocus(project, 2, "Staal   ").Berekend, "");
  EXPECT_EQ(project.Elementen[2].Kanaal.Heel(), " Staal" + std::string(74, ' '));
  EXPECT_EQ(cmbKanaal_LostFocus(project, 0, "Staal").Berekend, "");
  EXPECT_EQ(project.Elementen[0].Kanaal.Getrimd(), "");
}

TEST(MaatOpschrift, SaysDiameterOfWhatIsRound) {
  struct Rij {
    std::string_view Veld;
    std::int16_t Recht, Rond;
    std::string_view Hoogte, Diameter;
  };
  for (const Rij& rij : {Rij{"txtHoogte", 8, 9, "Hoogte", "Diameter"},
                         {"txtHoogte", 3, 5, "Hoogte", "Diameter"},
                         {"txtHoogte", 4, 5, "Hoogte", "Diameter"},
                         {"txtHAftak", 1, 2, "Hoogte aftakking", "Diameter aftakking"},
                         {"txtH1Doorsnee", 6, 7, "Hoogte intrede", "Diameter intrede"},
                         {"txtH2Doorsnee", 6, 7, "Hoogte uittrede", "Diameter uittrede"}}) {
    EXPECT_EQ(MaatOpschrift(rij.Recht, rij.Veld), rij.Hoogte);
    EXPECT_EQ(MaatOpschrift(rij.Rond, rij.Veld), rij.Diameter);
  }
  for (const char* const ander : {"txtHHoofd", "txtHDoor", "txtBreedte", "txtLengte"})
    EXPECT_EQ(MaatOpschrift(2, ander), "") << ander;
}

}  // namespace
}  // namespace murvane
