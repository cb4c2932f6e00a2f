#include "editor/elementlijst.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "basis/fout.h"
#include "project/projectfile.h"

namespace murvane {
namespace {

constexpr double Eigen = 7;  // what stands in a field of the heir before it inherits

ElementRec Erfgenaam(int type) {
  ElementRec uit;
  uit.ElementType = static_cast<std::int16_t>(type);
  uit.Debiet = uit.QAftak = uit.Lengte = Eigen;
  uit.Hoogte = uit.Breedte = uit.HHoofd = uit.BHoofd = uit.HDoor = uit.BDoor = Eigen;
  return uit;
}

/// An element in which every field that could be handed down has a value of its own.
ElementRec Voorganger(int type, double breedte) {
  ElementRec uit;
  uit.ElementType = static_cast<std::int16_t>(type);
  uit.Debiet = 2;
  uit.QAftak = 0.5;
  uit.Lengte = 3;
  uit.Hoogte = 400;
  uit.Breedte = breedte;
  uit.HHoofd = 610;
  uit.BHoofd = 620;
  uit.HDoor = 630;
  uit.BDoor = 640;
  return uit;
}

/// Element 2 after inheriting from element 1.
ElementRec Geerfd(const ElementRec& vorig, const ElementRec& element) {
  Project project;
  project.ElementCount = 2;
  project.Elementen[1] = vorig;
  project.Elementen[2] = element;
  VoorGanger(project, 2);
  return project.Elementen[2];
}

const std::vector<int> AlleTypen = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 99, 0, 12, 50, -1, 98, 100};

TEST(VoorGanger, TakesTheFlowByTheTypeOfThePredecessor) {
  struct Rij {
    int vorigType;
    double debiet;
  };
  const std::vector<Rij> rijen = {
      {1, 0.5},   {2, 0.5},                                                          // along the branch
      {3, 2},     {4, 2},      {5, 2},      {6, 2},      {7, 2},                     //
      {8, 2},     {9, 2},      {10, 2},     {11, 2},     {99, 2},                    //
      {0, Eigen}, {12, Eigen}, {50, Eigen}, {-1, Eigen}, {98, Eigen}, {100, Eigen},  // no such element
  };
  for (const Rij& rij : rijen) {
    for (const int type : AlleTypen) {
      SCOPED_TRACE(testing::Message() << "type " << type << " behind type " << rij.vorigType);
      EXPECT_EQ(Geerfd(Voorganger(rij.vorigType, 300), Erfgenaam(type)).Debiet, rij.debiet);
      EXPECT_EQ(Geerfd(Voorganger(rij.vorigType, 0), Erfgenaam(type)).Debiet, rij.debiet);
    }
  }
}

struct DoorsneeRij {
  int type;
  double HHoofd, BHoofd, Hoogte, Breedte;
};

void VerwachtDoorsnee(const DoorsneeRij& rij, double breedteVorig) {
  for (const int vorigType : AlleTypen) {
    SCOPED_TRACE(testing::Message() << "type " << rij.type << " behind type " << vorigType);
    const ElementRec element = Geerfd(Voorganger(vorigType, breedteVorig), Erfgenaam(rij.type));
    EXPECT_EQ(element.HHoofd, rij.HHoofd);
    EXPECT_EQ(element.BHoofd, rij.BHoofd);
    EXPECT_EQ(element.Hoogte, rij.Hoogte);
    EXPECT_EQ(element.Breedte, rij.Breedte);
    EXPECT_EQ(element.HDoor, Eigen);
    EXPECT_EQ(element.BDoor, Eigen);
    EXPECT_EQ(element.QAftak, Eigen);
    EXPECT_EQ(element.Lengte, Eigen);
    EXPECT_EQ(element.ElementType, rij.type);
  }
}

TEST(VoorGanger, TakesTheSectionByTheTypeOfTheElement) {
  const std::vector<DoorsneeRij> rijen = {
      {1, 400, 300, Eigen, Eigen},     {2, 400, 300, Eigen, Eigen},      {6, 400, 300, Eigen, Eigen},
      {7, 400, 300, Eigen, Eigen},     {3, Eigen, Eigen, 400, 300},      {4, Eigen, Eigen, 400, 300},
      {10, Eigen, Eigen, 400, 300},    {11, Eigen, Eigen, 400, 300},     {99, Eigen, Eigen, 400, 300},
      {5, Eigen, Eigen, 400, Eigen},   {8, Eigen, Eigen, Eigen, Eigen},  {9, Eigen, Eigen, Eigen, Eigen},
      {0, Eigen, Eigen, Eigen, Eigen}, {12, Eigen, Eigen, Eigen, Eigen}, {50, Eigen, Eigen, Eigen, Eigen},
  };
  for (const DoorsneeRij& rij : rijen) VerwachtDoorsnee(rij, 300);
}

TEST(VoorGanger, TakesNoWidthFromARoundPredecessor) {
  const std::vector<DoorsneeRij> rijen = {
      {1, 400, Eigen, Eigen, Eigen},   {2, 400, Eigen, Eigen, Eigen},    {6, 400, Eigen, Eigen, Eigen},
      {7, 400, Eigen, Eigen, Eigen},   {3, Eigen, Eigen, 400, Eigen},    {4, Eigen, Eigen, 400, Eigen},
      {10, Eigen, Eigen, 400, Eigen},  {11, Eigen, Eigen, 400, Eigen},   {99, Eigen, Eigen, 400, Eigen},
      {5, Eigen, Eigen, 400, Eigen},   {8, Eigen, Eigen, Eigen, Eigen},  {9, Eigen, Eigen, Eigen, Eigen},
      {0, Eigen, Eigen, Eigen, Eigen}, {12, Eigen, Eigen, Eigen, Eigen}, {50, Eigen, Eigen, Eigen, Eigen},
  };
  for (const DoorsneeRij& rij : rijen) {
    VerwachtDoorsnee(rij, 0);
    VerwachtDoorsnee(rij, -0.0);
  }
}

TEST(VoorGanger, CountsOnlyAWidthOfExactlyZeroAsRound) {
  EXPECT_EQ(Geerfd(Voorganger(8, 1e-300), Erfgenaam(3)).Breedte, 1e-300);
  EXPECT_EQ(Geerfd(Voorganger(8, -1), Erfgenaam(3)).Breedte, -1);
  EXPECT_TRUE(
      std::isnan(Geerfd(Voorganger(8, std::numeric_limits<double>::quiet_NaN()), Erfgenaam(3)).Breedte));
}

TEST(VoorGanger, OverwritesWithZeroToo) {
  ElementRec leeg;
  leeg.ElementType = elementtype::KanaalRecht;
  const ElementRec element = Geerfd(leeg, Erfgenaam(elementtype::BochtRond));
  EXPECT_EQ(element.Debiet, 0);
  EXPECT_EQ(element.Hoogte, 0);
}

Project MetEersteElement(int type, int fanPrognose) {
  Project project;
  project.ElementCount = 1;
  project.FanPrognose = static_cast<std::int16_t>(fanPrognose);
  project.Fan.FanDebiet = 5;
  project.Elementen[0] = Voorganger(8, 300);
  project.Elementen[1] = Erfgenaam(type);
  return project;
}

TEST(VoorGanger, GivesTheFirstElementTheFlowOfAPrognosedFanAndNoSection) {
  for (const int type : AlleTypen) {
    SCOPED_TRACE(type);
    Project project = MetEersteElement(type, fanbron::Prognose);
    VoorGanger(project, 1);
    EXPECT_EQ(project.Elementen[1].Debiet, 5);
    project.Elementen[1].Debiet = Eigen;
    EXPECT_EQ(ProjectBytes(project), ProjectBytes(MetEersteElement(type, fanbron::Prognose)));
  }
}

TEST(VoorGanger, LeavesTheFirstElementAloneWithoutAPrognosis) {
  for (const int bron : {0, 1, -2}) {
    SCOPED_TRACE(bron);
    Project project = MetEersteElement(elementtype::BochtRecht, bron);
    VoorGanger(project, 1);
    EXPECT_EQ(ProjectBytes(project), ProjectBytes(MetEersteElement(elementtype::BochtRecht, bron)));
  }
}

TEST(VoorGanger, DoesNotLookAtTheFanBehindTheFirstElement) {
  Project project = MetEersteElement(elementtype::KanaalRecht, fanbron::Prognose);
  project.ElementCount = 2;
  project.Elementen[2] = Erfgenaam(elementtype::KanaalRond);
  VoorGanger(project, 2);
  EXPECT_EQ(project.Elementen[2].Debiet, Eigen);  // of element 1, which did not inherit here
}

TEST(VoorGanger, DoesNothingForNumberZero) {
  Project project = MetEersteElement(elementtype::BochtRecht, fanbron::Prognose);
  VoorGanger(project, 0);
  EXPECT_EQ(ProjectBytes(project),
            ProjectBytes(MetEersteElement(elementtype::BochtRecht, fanbron::Prognose)));
  EXPECT_EQ(project.Elementen[0].Debiet, 2);
}

TEST(VoorGanger, ReachesTheLastSlotAndNoFurther) {
  Project project;
  project.Elementen[499] = Voorganger(8, 300);
  project.Elementen[500] = Erfgenaam(3);
  VoorGanger(project, 500);
  EXPECT_EQ(project.Elementen[500].Breedte, 300);
  for (const int n : {-1, 501, -32768, 32767}) {
    SCOPED_TRACE(n);
    try {
      VoorGanger(project, n);
      ADD_FAILURE() << "no Fout";
    } catch (const Fout& fout) {
      EXPECT_EQ(fout.Nummer(), FoutNummer::IndexBuitenBereik);
    }
  }
}

// ---- The lists ----

constexpr const char* Vol = "Maximaal aantal kanaalelementen bereikt (99)";

Melding Uitroep(const char* titel, const char* tekst) {
  return {MeldingSoort::Uitroep, titel, tekst, Knoppen::OK};
}

/// Texts padded with blanks to the 80 of a name.
std::string Naam80(std::string tekst) {
  tekst.resize(80, ' ');
  return tekst;
}

/// A catalogue in which every value tells its record: record n is "Record n", demp n + slot/10, ruis -n -
/// slot.
ElementCatalogus Catalogus15() {
  ElementCatalogus uit;
  uit.Aantal = 15;
  for (std::size_t n = 1; n <= 15; ++n) {
    CatElementRec& rec = uit.Records[n];
    rec.CatNaam = "Record " + std::to_string(n);
    for (std::size_t i = 0; i < 8; ++i) {
      rec.CatDemp[i] = static_cast<double>(n) + static_cast<double>(i) / 10;
      rec.CatRuis[i] = -static_cast<double>(n) - static_cast<double>(i);
    }
    rec.PerMeter = 1;
    rec.CatExtra = "extra";
  }
  return uit;
}

/// A straight duct, which inherits a flow only, told apart by its name and length.
ElementRec Kanaal(int nummer) {
  ElementRec uit;
  uit.ElementType = elementtype::KanaalRecht;
  uit.Naam = "Kanaal " + std::to_string(nummer);
  uit.Kanaal = "Wand";
  uit.Lengte = nummer;
  uit.demp.fill(nummer);
  return uit;
}

Project Keten(int lengte) {
  Project project;
  project.Kop.RekenType = rekentype::Installatiegeluid;
  project.ElementCount = static_cast<std::int16_t>(lengte);
  for (int n = 1; n <= lengte; ++n) project.Elementen[static_cast<std::size_t>(n)] = Kanaal(n);
  return project;
}

/// The numbers of the ducts in the chain's order; 0 for a slot without one, here and one behind the end.
std::vector<int> Volgorde(const Project& project) {
  std::vector<int> uit;
  const int tot = std::min<int>(project.ElementCount + 1, MaxElementen);
  for (int n = 1; n <= tot; ++n)
    uit.push_back(static_cast<int>(project.Elementen[static_cast<std::size_t>(n)].Lengte));
  return uit;
}

void VerwachtBlank(const ElementRec& element) {
  EXPECT_EQ(element.Naam.Heel(), Naam80(""));
  EXPECT_EQ(element.Kanaal.Heel(), Naam80(""));
  ElementRec rest = element;
  rest.Naam = rest.Kanaal = Tekst<80>();
  Project met, zonder;
  met.ElementCount = zonder.ElementCount = 1;
  met.Elementen[1] = rest;
  EXPECT_EQ(ProjectBytes(met), ProjectBytes(zonder));
}

/// Both records and state of the lists are what they were.
void VerwachtOngemoeid(const std::function<LijstUitkomst(Elementlijst&, Project&)>& opdracht,
                       Elementlijst lijst, Project project, const LijstUitkomst& uitkomst) {
  const Elementlijst lijstVoor = lijst;
  const std::string voor = ProjectBytes(project);
  EXPECT_EQ(opdracht(lijst, project), uitkomst);
  EXPECT_EQ(lijst, lijstVoor);
  EXPECT_EQ(ProjectBytes(project), voor);
}

LijstUitkomst AlleenMelding(const Melding& melding) {
  LijstUitkomst uit;
  uit.Melding = melding;
  return uit;
}

void VerwachtFout9(const std::function<void()>& opdracht) {
  try {
    opdracht();
    ADD_FAILURE() << "no Fout";
  } catch (const Fout& fout) {
    EXPECT_EQ(fout.Nummer(), FoutNummer::IndexBuitenBereik);
  }
}

/// lstTotaal active with this record selected, behind a click on element `huidig`.
Elementlijst InCatalogus(int record, int huidig = 0) {
  return {record, huidig, Lijst::lstTotaal, true, false};
}
/// lstProject active with this element open.
Elementlijst InProject(int huidig, int record = 0) {
  return {record, huidig, Lijst::lstProject, true, huidig > 0};
}

auto Voegtoe(const ElementCatalogus& catalogus) {
  return [&catalogus](Elementlijst& lijst, Project& project) {
    return lstTotaal_DblClick(lijst, project, catalogus);
  };
}
auto Voegin(const ElementCatalogus& catalogus) {
  return [&catalogus](Elementlijst& lijst, Project& project) { return Insert(lijst, project, catalogus); };
}
LijstUitkomst Vraagwissen(Elementlijst& lijst, Project&) {
  return lstProject_DblClick(lijst);
}
auto Verplaats(int toets) {
  return [toets](Elementlijst& lijst, Project& project) { return UpDown(lijst, project, toets); };
}

TEST(Elementlijst, StartsWithNothingSelectedOrOpenAndTheCatalogueActive) {
  const Elementlijst lijst;
  EXPECT_EQ(TotaalRij(lijst), -1);
  EXPECT_EQ(ProjectRij(lijst), -1);
  EXPECT_EQ(lijst.HuidigElement, 0);
  EXPECT_EQ(lijst.Actief, Lijst::lstTotaal);
  EXPECT_FALSE(lijst.Aangeklikt);
  EXPECT_FALSE(lijst.SSTab2);
}

TEST(Elementlijst, ColoursOnlyTheActiveList) {
  EXPECT_EQ(LijstKleur(InCatalogus(1), Lijst::lstTotaal), 0xC0FFFFu);
  EXPECT_EQ(LijstKleur(InCatalogus(1), Lijst::lstProject), 0x8000000Fu);
  EXPECT_EQ(LijstKleur(InProject(1), Lijst::lstTotaal), 0x8000000Fu);
  EXPECT_EQ(LijstKleur(InProject(1), Lijst::lstProject), 0xC0FFFFu);
}

TEST(Elementlijst, GivesTheFirstElevenRecordsTheirOwnType) {
  for (int n = 1; n <= 11; ++n) EXPECT_EQ(TypeVanRecord(n), n);
  for (const int n : {12, 13, 99, 500}) EXPECT_EQ(TypeVanRecord(n), 99);
}

TEST(Elementlijst, OneElementIsSaidToBeOne) {
  EXPECT_EQ(AantalGezegd(0), "0 kanaalelementen");
  EXPECT_EQ(AantalGezegd(1), "1 kanaalelement");
  EXPECT_EQ(AantalGezegd(2), "2 kanaalelementen");
}

TEST(Elementlijst, CountsInPanel3) {
  EXPECT_EQ(AantalTekst(0), "0 kanaalelementen");
  EXPECT_EQ(AantalTekst(1), "1 kanaalelementen");
  EXPECT_EQ(AantalTekst(99), "99 kanaalelementen");
}

TEST(Elementlijst, ShowsNumberAndNameInTheChain) {
  Project project = Keten(2);
  EXPECT_EQ(RijenProject(project), (std::vector{"1. " + Naam80("Kanaal 1"), "2. " + Naam80("Kanaal 2")}));
  EXPECT_EQ(RijProject(project, 2), "2. " + Naam80("Kanaal 2"));
  project.Elementen[1].Naam = Tekst<80>();  // never assigned
  EXPECT_EQ(RijProject(project, 1), "1. " + Naam80(""));
  VerwachtFout9([&] { (void)RijProject(project, 0); });
  VerwachtFout9([&] { (void)RijProject(project, 501); });
}

TEST(Elementlijst, ShowsNoRowsForAnEmptyChainOrOneWithANegativeCount) {
  for (const int aantal : {0, -1, -32768}) {
    Project project;
    project.ElementCount = static_cast<std::int16_t>(aantal);
    EXPECT_TRUE(RijenProject(project).empty()) << aantal;
  }
}

TEST(Elementlijst, ShowsAllRecordsOfTheCatalogueByName) {
  ElementCatalogus catalogus = Catalogus15();
  std::vector<std::string> verwacht;
  for (int n = 1; n <= 15; ++n) verwacht.push_back(Naam80("Record " + std::to_string(n)));
  EXPECT_EQ(RijenTotaal(catalogus), verwacht);
  catalogus.Aantal = -3;
  EXPECT_TRUE(RijenTotaal(catalogus).empty());
}

TEST(Elementlijst, HasNoRowOfElementZeroOrBehindTheLastSlot) {
  const Project project;
  EXPECT_EQ(RijProject(project, 500).substr(0, 5), "500. ");
  for (const int n : {-1, 0, 501}) VerwachtFout9([&] { (void)RijProject(project, n); });
}

TEST(LeegMaken, BlanksEveryFieldOfOneElement) {
  Project project = Keten(3);
  ElementRec& element = project.Elementen[2];
  element.ruis = element.LAeq = element.Instraling = element.Rkanaalwand = {1, 2, 3, 4, 5, 6, 7, 8};
  element.Debiet = element.QAftak = element.Hoogte = element.Breedte = element.HHoofd = element.BHoofd = 9;
  element.HDoor = element.BDoor = element.Snetto = element.Weerstand = element.RAftak = element.ElRAantal = 9;
  element.ElRDI = 9;
  LeegMaken(project, 2);
  VerwachtBlank(project.Elementen[2]);
  EXPECT_EQ(project.Elementen[2].ElementType, 0);
  EXPECT_EQ(project.Elementen[1].Lengte, 1);
  EXPECT_EQ(project.Elementen[3].Lengte, 3);
  EXPECT_EQ(project.ElementCount, 3);
}

TEST(LeegMaken, ReachesTheLastSlotAndNoFurther) {
  Project project;
  project.Elementen[500] = Kanaal(7);
  LeegMaken(project, 500);
  VerwachtBlank(project.Elementen[500]);
  for (const int n : {-1, 501}) VerwachtFout9([&] { LeegMaken(project, n); });
}

TEST(LeegMaken, BlanksTheUnusedElementZeroToo) {
  Project project = Keten(1);
  project.Elementen[0] = Kanaal(7);
  LeegMaken(project, 0);
  VerwachtBlank(project.Elementen[0]);
  EXPECT_EQ(project.Elementen[1].Lengte, 1);
}

TEST(LijstTotaalClick, MakesTheCatalogueActiveAndHidesThePageOfTheElementToAccept) {
  Elementlijst lijst = InProject(2);
  LijstUitkomst verwacht;
  verwacht.Accepteer = 2;
  EXPECT_EQ(lstTotaal_Click(lijst, 4), verwacht);
  EXPECT_EQ(lijst, (Elementlijst{5, 2, Lijst::lstTotaal, true, false}));
  EXPECT_EQ(TotaalRij(lijst), 4);
  EXPECT_EQ(ProjectRij(lijst), 1);  // the row of the chain stays selected: it is the place of an insertion
}

TEST(LijstTotaalClick, AcceptsNothingWithoutAnOpenElement) {
  Elementlijst lijst;
  EXPECT_EQ(lstTotaal_Click(lijst, 0), LijstUitkomst{});
  EXPECT_EQ(lijst, (Elementlijst{1, 0, Lijst::lstTotaal, true, false}));
}

TEST(LijstTotaalClick, TakesTheRowsOfAFullCatalogue) {
  Elementlijst lijst;
  lstTotaal_Click(lijst, 499);
  EXPECT_EQ(lijst.CatalogusPositie, 500);
  lstTotaal_Click(lijst, -1);
  EXPECT_EQ(lijst.CatalogusPositie, 0);
  for (const int rij : {-2, 500}) VerwachtFout9([&] { lstTotaal_Click(lijst, rij); });
}

TEST(LijstProjectClick, OpensTheElementOfTheRow) {
  Elementlijst lijst = InCatalogus(4, 1);
  Project project = Keten(3);
  LijstUitkomst verwacht;
  verwacht.Open = 3;
  EXPECT_EQ(lstProject_Click(lijst, project, 2), verwacht);
  EXPECT_EQ(lijst, (Elementlijst{4, 3, Lijst::lstProject, true, true}));
  EXPECT_EQ(ProjectRij(lijst), 2);
}

TEST(LijstProjectClick, LetsTheElementInheritFirst) {
  Elementlijst lijst;
  Project project = Keten(2);
  project.Elementen[1] = Voorganger(elementtype::KanaalRecht, 300);
  project.Elementen[2] = Erfgenaam(elementtype::BochtRecht);
  lstProject_Click(lijst, project, 1);
  EXPECT_EQ(project.Elementen[2].Debiet, 2);
  EXPECT_EQ(project.Elementen[2].Hoogte, 400);
  EXPECT_EQ(project.Elementen[2].Breedte, 300);
}

TEST(LijstProjectClick, ClosesThePageWithoutARow) {
  Elementlijst lijst = InProject(2, 3);
  Project project = Keten(2);
  const std::string voor = ProjectBytes(project);
  EXPECT_EQ(lstProject_Click(lijst, project, -1), LijstUitkomst{});
  EXPECT_EQ(lijst, (Elementlijst{3, 0, Lijst::lstProject, true, false}));
  EXPECT_EQ(ProjectBytes(project), voor);
}

TEST(LijstProjectClick, RefusesARowThatTheChainDoesNotHave) {
  Elementlijst lijst;
  Project project = Keten(2);
  for (const int rij : {-2, 2, 500}) VerwachtFout9([&] { lstProject_Click(lijst, project, rij); });
  project.ElementCount = -5;
  VerwachtFout9([&] { lstProject_Click(lijst, project, 0); });
  EXPECT_EQ(lijst, Elementlijst{});
}

/// Element n is record `record` of Catalogus15 and blank in all that the catalogue does not give.
void VerwachtUitCatalogus(const Project& project, int n, int record, int type) {
  ElementRec element = project.Elementen[static_cast<std::size_t>(n)];
  EXPECT_EQ(element.Naam.Heel(), Naam80("Record " + std::to_string(record)));
  EXPECT_EQ(element.ElementType, type);
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(element.demp[static_cast<std::size_t>(i)], record + i / 10.0);
    EXPECT_EQ(element.ruis[static_cast<std::size_t>(i)], -record - i);
  }
  element.Naam = "";
  element.demp = element.ruis = {};
  element.ElementType = 0;
  VerwachtBlank(element);
}

TEST(Toevoegen, MakesTheRecordTheLastElementAndOpensIt) {
  const ElementCatalogus catalogus = Catalogus15();
  for (const auto& [record, type] : std::vector<std::pair<int, int>>{{1, 1}, {11, 11}, {12, 99}, {15, 99}}) {
    SCOPED_TRACE(record);
    Project project;
    Elementlijst lijst = InCatalogus(record);
    LijstUitkomst verwacht;
    verwacht.lstProject = Vulling::RijErbij;
    verwacht.Open = 1;
    verwacht.Paneel3 = "1 kanaalelementen";
    verwacht.Berekend = "3";
    EXPECT_EQ(lstTotaal_DblClick(lijst, project, catalogus), verwacht);
    EXPECT_EQ(project.ElementCount, 1);
    VerwachtUitCatalogus(project, 1, record, type);
    EXPECT_EQ(lijst, (Elementlijst{record, 1, Lijst::lstProject, true, true}));
  }
}

TEST(Toevoegen, LeavesTheChainBeforeItAsItWas) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project = Keten(2);
  Elementlijst lijst = InCatalogus(12, 1);
  const LijstUitkomst uitkomst = lstTotaal_DblClick(lijst, project, catalogus);
  EXPECT_EQ(uitkomst.Paneel3, "3 kanaalelementen");
  EXPECT_EQ(uitkomst.Open, 3);
  EXPECT_EQ(ProjectRij(lijst), 2);
  EXPECT_EQ(Volgorde(project), (std::vector{1, 2, 0, 0}));
  EXPECT_EQ(RijProject(project, 3), "3. " + Naam80("Record 12"));
}

TEST(Toevoegen, OpensWithWhatTheElementInherits) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project = Keten(1);
  project.Elementen[1] = Voorganger(elementtype::KanaalRecht, 300);
  Elementlijst lijst = InCatalogus(elementtype::BochtRecht);
  lstTotaal_DblClick(lijst, project, catalogus);
  EXPECT_EQ(project.Elementen[2].Hoogte, 400);
  EXPECT_EQ(project.Elementen[2].Breedte, 300);
  EXPECT_EQ(project.Elementen[2].Debiet, 2);
}

TEST(Toevoegen, WorksFromTheKeyboardWhileTheChainIsActive) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project = Keten(1);
  Elementlijst lijst = InProject(1, 12);
  EXPECT_EQ(lstTotaal_DblClick(lijst, project, catalogus).Berekend, "3");
  EXPECT_EQ(lijst, InProject(2, 12));
}

TEST(Toevoegen, LeavesNothingOfWhatStoodBehindTheEnd) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project;
  project.Elementen[1] = Kanaal(8);
  Elementlijst lijst = InCatalogus(3);
  lstTotaal_DblClick(lijst, project, catalogus);
  VerwachtUitCatalogus(project, 1, 3, 3);
}

TEST(Toevoegen, DoesNothingWithoutASelectedRecord) {
  ElementCatalogus catalogus = Catalogus15();
  VerwachtOngemoeid(Voegtoe(catalogus), InCatalogus(0), Keten(1), {});
  catalogus.Aantal = 14;  // the catalogue lost its last record and the list was not filled again
  VerwachtOngemoeid(Voegtoe(catalogus), InCatalogus(15), Keten(1), {});
}

TEST(Toevoegen, BeginsAnEmptyChainWhereAFileHasANegativeCount) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project;
  project.ElementCount = -2;
  Elementlijst lijst = InCatalogus(8);
  EXPECT_EQ(lstTotaal_DblClick(lijst, project, catalogus).Paneel3, "1 kanaalelementen");
  EXPECT_EQ(project.ElementCount, 1);
  EXPECT_EQ(project.Elementen[1].ElementType, 8);
}

TEST(Toevoegen, StopsAChainOfExactly99) {
  const ElementCatalogus catalogus = Catalogus15();
  VerwachtOngemoeid(Voegtoe(catalogus), InCatalogus(12, 1), Keten(99),
                    AlleenMelding(Uitroep("Invoer-stop", Vol)));
  VerwachtOngemoeid(Voegtoe(catalogus), InCatalogus(0), Keten(99),
                    AlleenMelding(Uitroep("Invoer-stop", Vol)));
}

TEST(Toevoegen, GoesUpTo99AndOnInALongerChainOfAFile) {
  const ElementCatalogus catalogus = Catalogus15();
  for (const int lengte : {98, 100, 101, 499}) {
    SCOPED_TRACE(lengte);
    Project project = Keten(lengte);
    Elementlijst lijst = InCatalogus(12);
    const LijstUitkomst uitkomst = lstTotaal_DblClick(lijst, project, catalogus);
    EXPECT_FALSE(uitkomst.Melding);
    EXPECT_EQ(uitkomst.Paneel3, std::to_string(lengte + 1) + " kanaalelementen");
    EXPECT_EQ(project.ElementCount, lengte + 1);
    EXPECT_EQ(lijst.HuidigElement, lengte + 1);
    EXPECT_EQ(project.Elementen[static_cast<std::size_t>(lengte)].Lengte, lengte);
    EXPECT_EQ(project.Elementen[static_cast<std::size_t>(lengte) + 1].ElementType, 99);
  }
}

TEST(Toevoegen, FailsOnA501stElementAndChangesNothing) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project = Keten(500);
  const std::string voor = ProjectBytes(project);
  Elementlijst lijst = InCatalogus(12, 3);
  VerwachtFout9([&] { lstTotaal_DblClick(lijst, project, catalogus); });
  VerwachtFout9([&] { Insert(lijst, project, catalogus); });
  EXPECT_EQ(lijst, InCatalogus(12, 3));
  EXPECT_EQ(ProjectBytes(project), voor);
}

TEST(Invoegen, PutsTheRecordBeforeTheSelectedElement) {
  struct Rij {
    int huidig;
    std::vector<int> volgorde;
  };
  const std::vector<Rij> rijen = {{1, {0, 1, 2, 3, 0}}, {2, {1, 0, 2, 3, 0}}, {3, {1, 2, 0, 3, 0}}};
  const ElementCatalogus catalogus = Catalogus15();
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(rij.huidig);
    Project project = Keten(3);
    Elementlijst lijst = InCatalogus(13, rij.huidig);
    LijstUitkomst verwacht;
    verwacht.lstProject = Vulling::Opnieuw;
    verwacht.Open = rij.huidig;
    verwacht.Paneel3 = "4 kanaalelementen";
    verwacht.Berekend = "1";
    verwacht.BerekendEerst = true;
    EXPECT_EQ(Insert(lijst, project, catalogus), verwacht);
    EXPECT_EQ(project.ElementCount, 4);
    EXPECT_EQ(Volgorde(project), rij.volgorde);
    VerwachtUitCatalogus(project, rij.huidig, 13, 99);
    EXPECT_EQ(lijst, (Elementlijst{13, rij.huidig, Lijst::lstProject, true, true}));
  }
}

TEST(Invoegen, MovesWholeRecords) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project = Keten(1);
  project.Elementen[1] = Voorganger(99, 0);
  project.Elementen[1].ruis = {1, 2, 3, 4, 5, 6, 7, 8};
  project.Elementen[1].Kanaal = "Wand";
  Project los = project;
  Elementlijst lijst = InCatalogus(1, 1);
  Insert(lijst, project, catalogus);
  los.Elementen[2] = los.Elementen[1];
  los.Elementen[1] = project.Elementen[1];
  los.ElementCount = 2;
  EXPECT_EQ(ProjectBytes(project), ProjectBytes(los));
}

TEST(Invoegen, LetsOnlyTheNewElementInherit) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project = Keten(2);
  project.Elementen[1] = Voorganger(elementtype::KanaalRecht, 300);
  project.Elementen[2] = Erfgenaam(elementtype::BochtRecht);
  Elementlijst lijst = InCatalogus(elementtype::Klep, 2);
  Insert(lijst, project, catalogus);
  EXPECT_EQ(project.Elementen[2].Hoogte, 400);
  EXPECT_EQ(project.Elementen[3].Hoogte, Eigen);
}

TEST(Invoegen, IsSilentUnlessTheCatalogueIsActive) {
  const ElementCatalogus catalogus = Catalogus15();
  VerwachtOngemoeid(Voegin(catalogus), InProject(1, 12), Keten(2), {});
  VerwachtOngemoeid(Voegin(catalogus), InProject(1, 12), Keten(99), {});
  VerwachtOngemoeid(Voegin(catalogus), InProject(0, 12), Keten(0), {});
}

TEST(Invoegen, AsksForAPlaceBehindTheLimit) {
  const ElementCatalogus catalogus = Catalogus15();
  const LijstUitkomst geenPlaats = AlleenMelding(Uitroep("Invoer-stop", "Geen invoegpositie aangegeven"));
  VerwachtOngemoeid(Voegin(catalogus), InCatalogus(12), Keten(0), geenPlaats);
  VerwachtOngemoeid(Voegin(catalogus), InCatalogus(12), Keten(2), geenPlaats);
  VerwachtOngemoeid(Voegin(catalogus), InCatalogus(0), Keten(2), geenPlaats);
  for (const int huidig : {0, 5})
    VerwachtOngemoeid(Voegin(catalogus), InCatalogus(12, huidig), Keten(99),
                      AlleenMelding(Uitroep("Invoer-stop", Vol)));
}

TEST(Invoegen, DoesNothingWithoutASelectedRecord) {
  const ElementCatalogus catalogus = Catalogus15();
  VerwachtOngemoeid(Voegin(catalogus), InCatalogus(0, 1), Keten(2), {});
  VerwachtOngemoeid(Voegin(catalogus), InCatalogus(16, 1), Keten(2), {});
}

TEST(Invoegen, GoesUpTo99AndOnInALongerChainOfAFile) {
  const ElementCatalogus catalogus = Catalogus15();
  for (const int lengte : {98, 100, 499}) {
    SCOPED_TRACE(lengte);
    Project project = Keten(lengte);
    Elementlijst lijst = InCatalogus(12, lengte);
    EXPECT_FALSE(Insert(lijst, project, catalogus).Melding);
    EXPECT_EQ(project.ElementCount, lengte + 1);
    EXPECT_EQ(project.Elementen[static_cast<std::size_t>(lengte)].ElementType, 99);
    EXPECT_EQ(project.Elementen[static_cast<std::size_t>(lengte) + 1].Lengte, lengte);
  }
}

TEST(Invoegen, FailsOnAPlaceThatTheChainDoesNotHave) {
  const ElementCatalogus catalogus = Catalogus15();
  Project project = Keten(2);
  Elementlijst lijst = InCatalogus(12, 3);
  VerwachtFout9([&] { Insert(lijst, project, catalogus); });
}

TEST(Wissen, AsksByNumber) {
  for (const int n : {1, 2, 99}) {
    const Melding vraag = {MeldingSoort::Vraag, "Kanaalelementen wissen",
                           "Kanaalelement " + std::to_string(n) + " wissen?", Knoppen::OkCancel};
    VerwachtOngemoeid(Vraagwissen, InProject(n), Keten(99), AlleenMelding(vraag));
  }
}

TEST(Wissen, IsSilentUnlessTheChainIsActive) {
  VerwachtOngemoeid(Vraagwissen, InCatalogus(12, 1), Keten(1), {});
  VerwachtOngemoeid(Vraagwissen, Elementlijst{}, Keten(1), {});
}

TEST(Wissen, NeedsASelection) {
  VerwachtOngemoeid(Vraagwissen, InProject(0), Keten(2),
                    AlleenMelding(Uitroep("Waarschuwing", "Geen kanaalelementen geselecteerd")));
}

TEST(Wissen, TakesTheElementOutAndOpensTheOneInItsPlace) {
  struct Rij {
    int wissen;
    std::vector<int> volgorde;  // with the slot behind the end
    int huidig;
  };
  const std::vector<Rij> rijen = {
      {1, {2, 3, 0}, 1}, {2, {1, 3, 0}, 2}, {3, {1, 2, 0}, 2},  // of the last one: the new last one
  };
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(rij.wissen);
    Project project = Keten(3);
    Elementlijst lijst = InProject(rij.wissen, 4);
    LijstUitkomst verwacht;
    verwacht.lstProject = Vulling::Opnieuw;
    verwacht.Open = rij.huidig;
    verwacht.Paneel3 = "2 kanaalelementen";
    verwacht.Berekend = "2";
    EXPECT_EQ(WisElement(lijst, project, Antwoord::OK), verwacht);
    EXPECT_EQ(project.ElementCount, 2);
    EXPECT_EQ(Volgorde(project), rij.volgorde);
    VerwachtBlank(project.Elementen[3]);
    EXPECT_EQ(lijst, InProject(rij.huidig, 4));
  }
}

TEST(Wissen, LeavesAnEmptyChainWithoutAPage) {
  Project project = Keten(1);
  Elementlijst lijst = InProject(1);
  LijstUitkomst verwacht;
  verwacht.lstProject = Vulling::Opnieuw;
  verwacht.Paneel3 = "0 kanaalelementen";
  verwacht.Berekend = "2";
  EXPECT_EQ(WisElement(lijst, project, Antwoord::OK), verwacht);
  EXPECT_EQ(project.ElementCount, 0);
  VerwachtBlank(project.Elementen[1]);
  EXPECT_EQ(lijst, InProject(0));
  EXPECT_FALSE(lijst.SSTab2);
}

TEST(Wissen, LetsTheOpenedElementInherit) {
  Project project = Keten(3);
  project.Elementen[1] = Voorganger(elementtype::KanaalRecht, 300);
  project.Elementen[3] = Erfgenaam(elementtype::BochtRecht);
  Elementlijst lijst = InProject(2);
  WisElement(lijst, project, Antwoord::OK);
  EXPECT_EQ(project.Elementen[2].Hoogte, 400);
}

TEST(Wissen, WorksAtTheEndOfTheArray) {
  Project project = Keten(500);
  Elementlijst lijst = InProject(500);
  EXPECT_EQ(WisElement(lijst, project, Antwoord::OK).Paneel3, "499 kanaalelementen");
  EXPECT_EQ(project.Elementen[499].Lengte, 499);
  VerwachtBlank(project.Elementen[500]);
  lijst = InProject(1);
  WisElement(lijst, project, Antwoord::OK);
  EXPECT_EQ(project.Elementen[1].Lengte, 2);
  EXPECT_EQ(project.Elementen[498].Lengte, 499);
  VerwachtBlank(project.Elementen[499]);
}

TEST(Wissen, CancelClearsBothSelectionsAndKeepsTheChain) {
  for (const Antwoord antwoord : {Antwoord::Cancel, Antwoord::No, Antwoord::Yes}) {
    Project project = Keten(3);
    const std::string voor = ProjectBytes(project);
    Elementlijst lijst = InProject(2, 4);
    EXPECT_EQ(WisElement(lijst, project, antwoord), LijstUitkomst{});  // no Berekend: still calculated
    EXPECT_EQ(lijst, (Elementlijst{0, 0, Lijst::lstProject, true, false}));
    EXPECT_EQ(ProjectBytes(project), voor);
  }
}

TEST(Wissen, FailsOnAnElementThatTheChainDoesNotHave) {
  Project project = Keten(2);
  for (const int n : {0, 3}) {
    Elementlijst lijst = InProject(n);
    VerwachtFout9([&] { WisElement(lijst, project, Antwoord::OK); });
    EXPECT_EQ(Volgorde(project), (std::vector{1, 2, 0}));
  }
}

TEST(UpDown, SwapsWithTheNeighbourAndFollowsTheElement) {
  struct Rij {
    int huidig, toets;
    std::vector<int> volgorde;
    int daarna;
  };
  const std::vector<Rij> rijen = {
      {1, 40, {2, 1, 3, 0}, 2},
      {2, 40, {1, 3, 2, 0}, 3},
      {2, 38, {2, 1, 3, 0}, 1},
      {3, 38, {1, 3, 2, 0}, 2},
  };
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(testing::Message() << "element " << rij.huidig << " key " << rij.toets);
    Project project = Keten(3);
    Elementlijst lijst = InProject(rij.huidig, 4);
    LijstUitkomst verwacht;
    verwacht.lstProject = Vulling::Opnieuw;
    verwacht.Open = rij.daarna;
    verwacht.Paneel3 = "3 kanaalelementen";
    verwacht.Berekend = "43";
    EXPECT_EQ(UpDown(lijst, project, rij.toets), verwacht);
    EXPECT_EQ(Volgorde(project), rij.volgorde);
    EXPECT_EQ(lijst, InProject(rij.daarna, 4));
  }
}

TEST(UpDown, HasTheKeyCodesOfTheArrows) {
  EXPECT_EQ(ToetsOmhoog, 38);
  EXPECT_EQ(ToetsOmlaag, 40);
}

TEST(UpDown, SwapsWholeRecords) {
  Project project = Keten(2);
  project.Elementen[1].Naam = "Eerste";
  project.Elementen[2].Naam = "Tweede";
  Project los = project;
  Elementlijst lijst = InProject(1);
  UpDown(lijst, project, ToetsOmlaag);
  std::swap(los.Elementen[1], los.Elementen[2]);
  EXPECT_EQ(ProjectBytes(project), ProjectBytes(los));
}

TEST(UpDown, StopsAtBothEndsAndKeepsTheProjectCalculated) {
  VerwachtOngemoeid(Verplaats(ToetsOmhoog), InProject(1), Keten(3), {});
  VerwachtOngemoeid(Verplaats(ToetsOmlaag), InProject(3), Keten(3), {});
  VerwachtOngemoeid(Verplaats(ToetsOmhoog), InProject(1), Keten(1), {});
  VerwachtOngemoeid(Verplaats(ToetsOmlaag), InProject(1), Keten(1), {});
  VerwachtOngemoeid(Verplaats(ToetsOmlaag), InProject(500), Keten(500), {});
}

TEST(UpDown, DoesNothingOnOtherKeys) {
  for (const int toets : {0, 37, 39, 41, -1}) VerwachtOngemoeid(Verplaats(toets), InProject(2), Keten(3), {});
}

TEST(UpDown, IsSilentUnlessTheChainIsActive) {
  VerwachtOngemoeid(Verplaats(ToetsOmlaag), InCatalogus(12, 1), Keten(3), {});
  VerwachtOngemoeid(Verplaats(ToetsOmlaag), Elementlijst{}, Keten(3), {});
}

TEST(UpDown, NeedsASelection) {
  for (const int toets : {ToetsOmhoog, ToetsOmlaag, 0})
    VerwachtOngemoeid(Verplaats(toets), InProject(0), Keten(2),
                      AlleenMelding(Uitroep("Waarschuwing", "Geen kanaalelement geselecteerd")));
}

TEST(UpDown, LetsTheMovedElementInherit) {
  Project project = Keten(3);
  project.Elementen[1] = Voorganger(elementtype::KanaalRecht, 300);
  project.Elementen[3] = Erfgenaam(elementtype::BochtRecht);
  Elementlijst lijst = InProject(3);
  UpDown(lijst, project, ToetsOmhoog);
  EXPECT_EQ(project.Elementen[2].Hoogte, 400);
  EXPECT_EQ(project.Elementen[2].Debiet, 2);
}

TEST(UpDown, FailsOnAnElementThatTheChainDoesNotHave) {
  Project project = Keten(2);
  Elementlijst lijst = InProject(3);
  VerwachtFout9([&] { UpDown(lijst, project, ToetsOmhoog); });
}

TEST(Elementlijst, SelectsNoRecordAfterTheCatalogueIsFilledAgain) {
  Elementlijst lijst = InCatalogus(12, 2);
  lstTotaalGevuld(lijst);
  EXPECT_EQ(lijst, InCatalogus(0, 2));
}

}  // namespace
}  // namespace murvane
