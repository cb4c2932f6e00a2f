#include "editor/elementlijst.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
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

}  // namespace
}  // namespace murvane
