// Which projects a command line names: standard input, directories and lists.

#include "cli/namen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

using testing::EndsWith;
using Namen = std::vector<std::string>;
using namespace std::string_view_literals;

TEST(NamenUit, TakesLinesOrWhatEndsInANul) {
  const struct {
    std::string_view lijst;
    Namen namen;
  } rijen[] = {
      {"", {}},
      {"\n\r\n\n", {}},
      {"a.mrv", {"a.mrv"}},
      {"a.mrv\nb c é.mrv\r\n\r\n\nd.mrv\r\n", {"a.mrv", "b c é.mrv", "d.mrv"}},
      {" a.mrv \n", {" a.mrv "}},
      {"a\rb.mrv\n", {"a\rb.mrv"}},
      {"a.mrv\0b\nc.mrv\r\0\0d.mrv"sv, {"a.mrv", "b\nc.mrv\r", "d.mrv"}},
      {"a.mrv\0"sv, {"a.mrv"}},
      {"-\n./-\n", {"./-", "./-"}},
  };
  for (const auto& rij : rijen) EXPECT_EQ(NamenUit(rij.lijst), rij.namen) << rij.lijst;
}

/// Projects that are in order, and what `controleer` says of them.
class Genoemd : public testing::Test {
 protected:
  std::string Zet(std::string_view naam) { return map.Zet(GoedProject(), naam); }
  static std::string InOrde(const Namen& namen) {
    std::string uit;
    for (const std::string& naam : namen) uit += naam + ": in orde\n";
    return uit;
  }

  Proefmap map;
};

TEST_F(Genoemd, ADirectoryStandsForItsProjectsByName) {
  const Namen namen = {Zet("m é/B.MRV"), Zet("m é/a.mrv"), Zet("m é/c é.Mrv")};
  Zet("m é/dieper/x.mrv");
  map.ZetBytes("", "m é/cmrv");
  map.ZetBytes("", "m é/a.mrv.txt");
  std::filesystem::create_directory(PadVan(map / "m é/map.mrv"));
  const std::string los = Zet("los.mrv");
  const Afloop afloop = Draai({"controleer", los, map / "m é", los});
  EXPECT_EQ(afloop.Code, 0);
  EXPECT_EQ(afloop.Uit, InOrde({los, namen[0], namen[1], namen[2], los}));
  EXPECT_EQ(afloop.Err, "");
  EXPECT_EQ(Draai({"controleer", map / "m é/"}).Uit, InOrde(namen));
}

TEST_F(Genoemd, ADirectoryWithoutProjectsIsAFaultAndTheOthersGoOn) {
  const std::string los = Zet("los.mrv");
  std::filesystem::create_directory(PadVan(map / "leeg"));
  const Afloop afloop = Draai({"controleer", map / "leeg", los});
  EXPECT_EQ(afloop.Code, 1);
  EXPECT_EQ(afloop.Uit, InOrde({los}));
  EXPECT_EQ(afloop.Err, map / "leeg" + ": Fout 53 - Geen projecten (*.mrv) in deze map.\n");
}

TEST_F(Genoemd, ADirectoryOfSomeoneElseIsFault70) {
  Zet("dicht/a.mrv");
  std::filesystem::permissions(PadVan(map / "dicht"), std::filesystem::perms::none);
  const auto probeer = [&] {
    const Afloop afloop = Draai({"controleer", map / "dicht"});
    return afloop.Code == 1 && afloop.Err == map / "dicht" + ": Fout 70 - Geen toestemming.\n" ? 0 : 1;
  };
  EXPECT_EQ(proef::AlsGewoneGebruiker(probeer), 0);
  std::filesystem::permissions(PadVan(map / "dicht"), std::filesystem::perms::all);
}

TEST_F(Genoemd, AListNamesProjectsAndDirectoriesBehindThoseOfTheCommandLine) {
  const std::string los = Zet("los.mrv");
  const std::string een = Zet("een é.mrv");
  const std::string in = Zet("m/in.mrv");
  const std::string lijst = map.ZetBytes(een + "\n\n" + map / "m" + "\r\n", "lijst.txt");
  EXPECT_EQ(Draai({"controleer", "--lijst", lijst, los}).Uit, InOrde({los, een, in}));
  EXPECT_EQ(Draai({"controleer", "--lijst", lijst}).Uit, InOrde({een, in}));
  const std::string nul = een + '\0' + map / "m" + '\0';
  EXPECT_EQ(Draai({"controleer", "--lijst", "-"}, {.Invoer = nul}).Uit, InOrde({een, in}));
}

TEST_F(Genoemd, AListWithoutNamesAsksForNothing) {
  const std::string leeg = map.ZetBytes("\n", "leeg.txt");
  for (const std::vector<std::string>& meer :
       std::vector<std::vector<std::string>>{{}, {"--prn", map / "x"}, {"--uit", map / "u"}}) {
    std::vector<std::string> argumenten{"--lijst", leeg};
    argumenten.insert(argumenten.end(), meer.begin(), meer.end());
    const Afloop afloop = Reken(map, argumenten);
    EXPECT_EQ(afloop.Code, 0);
    EXPECT_EQ(afloop.Uit + afloop.Err, "");
  }
  EXPECT_FALSE(map.Heeft("u") || map.Heeft("x"));
}

TEST_F(Genoemd, AListThatCannotBeReadEndsTheCommand) {
  const Afloop afloop = Draai({"controleer", Zet("a.mrv"), "--lijst", map / "weg.txt"});
  EXPECT_EQ(afloop.Code, 1);
  EXPECT_EQ(afloop.Uit, "");
  EXPECT_EQ(afloop.Err, map / "weg.txt" + ": Fout 53 - Bestand niet gevonden.\n");
}

TEST_F(Genoemd, MoreNamesThanACommandLineHoldsMayStandInAList) {
  std::string lijst;
  std::string verwacht;
  for (int i = 0; i < 70000; ++i) {
    lijst += map / "weg.mrv" + "\n";
    verwacht += map / "weg.mrv" + ": Fout 53 - Bestand niet gevonden.\n";
  }
  EXPECT_EQ(Draai({"controleer", "--lijst", "-"}, {.Invoer = lijst}).Err, verwacht);
}

TEST_F(Genoemd, ADirectoryGoesToADirectoryOfResults) {
  Zet("m/a.mrv");
  Zet("m/b.mrv");
  EXPECT_EQ(Reken(map, {map / "m", "--uit", map / "u"}).Code, 0);
  EXPECT_TRUE(map.Heeft("u/a.prn") && map.Heeft("u/a.json") && map.Heeft("u/b.prn") && map.Heeft("u/b.json"));
}

TEST_F(Genoemd, ADirectoryWithOneProjectGivesOneReportWithoutAHead) {
  const std::string een = Zet("m/a.mrv");
  EXPECT_EQ(Reken(map, {map / "m"}).Uit, Reken(map, {een}).Uit);
  EXPECT_EQ(Reken(map, {map / "m", "--prn", map / "a.prn"}).Code, 0);
  EXPECT_EQ(map.Lees("a.prn"), Reken(map, {een, "--prn", "-"}).Uit);
}

TEST_F(Genoemd, ADashIsTheProjectOnStandardInput) {
  const std::string een = Zet("a.mrv");
  const Omstandigheid hoe{.Invoer = ProjectBytes(GoedProject()) + "staart"};
  EXPECT_EQ(Reken(map, {"-"}, hoe).Uit, Reken(map, {een}).Uit);
  EXPECT_EQ(Reken(map, {"-", "--json", "-"}, hoe).Uit, Reken(map, {een, "--json", "-"}).Uit);
  EXPECT_EQ(Draai({"toon", "-"}, hoe).Uit, Draai({"toon", een}).Uit);
  EXPECT_EQ(Draai({"controleer", "-"}, hoe).Uit, "standaardinvoer: in orde\n");
  const std::string samen = Reken(map, {een, "-"}, hoe).Uit;
  EXPECT_THAT(samen, EndsWith("==> standaardinvoer <==\r\n" + Reken(map, {een}).Uit));
}

TEST_F(Genoemd, WhatIsWrongOnStandardInputIsToldUnderItsName) {
  const Omstandigheid kort{.Invoer = "kort"};
  const Omstandigheid leeg{.Invoer = ProjectBytes(ZonderElementen())};
  for (const char* opdracht : {"reken", "controleer", "toon"}) {
    const Afloop afloop = Draai({opdracht, "-", "--data", map.Naam()}, kort);
    EXPECT_EQ(afloop.Code, 1) << opdracht;
    EXPECT_EQ(afloop.Err, "standaardinvoer: Fout 62 - Het bestand eindigt te vroeg.\n");
  }
  const Omstandigheid oneindig{.Invoer = ProjectBytes(MetOneindig())};
  EXPECT_THAT(Reken(map, {"-"}, oneindig).Err, testing::StartsWith("standaardinvoer: Fout 6 - "));
  EXPECT_EQ(Reken(map, {"-"}, leeg).Err, "standaardinvoer: Geen kanaalelementen ingevoerd\n");
  EXPECT_EQ(Draai({"controleer", "-"}, leeg).Err, "standaardinvoer: Geen kanaalelementen ingevoerd\n");
}

}  // namespace
}  // namespace murvane::clitest
