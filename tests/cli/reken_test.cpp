// The commands reken and controleer.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "calc/reken.h"
#include "reports/rapport.h"
#include "reports/resultaatjson.h"
#include "shell/run.h"
#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// What the core makes of a project, with the settings that Reken() uses.
struct Kern {
  Project HetProject;
  Resultaten HetResultaat;
  Rapport HetRapport;

  explicit Kern(Project project, char decimaal = ',') : HetProject(std::move(project)) {
    const ProjectInvoer invoer = InvoerVan(HetProject, decimaal);
    EXPECT_FALSE(
        VoerUit(HetProject, invoer, "Bureau één"_cp, decimaal, HetResultaat, HetRapport).has_value());
  }
  [[nodiscard]] std::string Blokken() const {
    const Rapport& r = HetRapport;
    return NaarUtf8(r.RapKop + r.RapProject + r.RapRuimte + r.RapHoofd + r.RapElementen + r.RapResultaat);
  }
  [[nodiscard]] std::string Prn() const { return PrnBytes(HetRapport); }
  [[nodiscard]] std::string Json() const { return ResultaatNaarJson(HetProject, HetResultaat); }
};

TEST(RekenOpdracht, PrintsTheSixBlocksAsUtf8WithTheirLineEnds) {
  const Proefmap map;
  const Project project = GoedProject("Café ×"_cp);
  const Afloop afloop = Reken(map, {map.Zet(project, "een é.mrv")});
  EXPECT_EQ(afloop.Code, 0);
  EXPECT_EQ(afloop.Err, "");
  EXPECT_EQ(afloop.Uit, Kern(project).Blokken());
  EXPECT_THAT(afloop.Uit, StartsWith("\r\n\r\n\r\n   Bureau één"));
  EXPECT_THAT(afloop.Uit, HasSubstr("Café ×"));
  EXPECT_THAT(afloop.Uit, HasSubstr("GELUIDSDRUKNIVEAU:"));
}

/// What heads the report of one project among more.
std::string Kop(const std::string& naam) {
  return "==> " + naam + " <==\r\n";
}

TEST(RekenOpdracht, HeadsEachOfSeveralReportsByItsFile) {
  const Proefmap map;
  const Project een = GoedProject("Een");
  const Project drie = GoedProject("Drie", rekentype::Overspraak);
  const Afloop afloop = Reken(map, {map.Zet(een, "een.mrv"), map.Zet(drie, "drie.mrv")});
  EXPECT_EQ(afloop.Code, 0);
  EXPECT_EQ(afloop.Uit,
            Kop(map / "een.mrv") + Kern(een).Blokken() + Kop(map / "drie.mrv") + Kern(drie).Blokken());
}

TEST(RekenOpdracht, TheDecimalSignIsTheOneAskedFor) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(), "a.mrv");
  const Afloop punt = Draai({"reken", naam, "--data", map.Naam(), "--decimaal", "punt"});
  EXPECT_EQ(punt.Uit, Kern(GoedProject(), '.').Blokken());
  EXPECT_THAT(punt.Uit, HasSubstr("Lengte ruimte       : 5.0 m"));
  EXPECT_THAT(Reken(map, {naam}).Uit, HasSubstr("Lengte ruimte       : 5,0 m"));
  const Afloop regionaal = Draai({"reken", naam, "--data", map.Naam()});
  EXPECT_EQ(regionaal.Uit, Kern(GoedProject(), RegionaalDecimaalteken()).Blokken());
}

TEST(RekenOpdracht, WritesPrnAndJsonAndThenNothingElse) {
  const Proefmap map;
  const Project project = GoedProject("Café"_cp);
  const std::string naam = map.Zet(project, "a.mrv");
  const Afloop afloop = Reken(map, {naam, "--prn", map / "uit é.prn", "--json", map / "uit é.json"});
  EXPECT_EQ(afloop.Code, 0);
  EXPECT_EQ(afloop.Uit + afloop.Err, "");
  EXPECT_EQ(map.Lees("uit é.prn"), Kern(project).Prn());
  EXPECT_EQ(map.Lees("uit é.json"), Kern(project).Json());
}

TEST(RekenOpdracht, ReplacesALongerOutputWhole) {
  const Proefmap map;
  const std::string uit = map.ZetBytes(std::string(100000, 'x'), "uit.prn");
  EXPECT_EQ(Reken(map, {map.Zet(GoedProject(), "a.mrv"), "--prn", uit}).Code, 0);
  EXPECT_EQ(map.Lees("uit.prn"), Kern(GoedProject()).Prn());
}

TEST(RekenOpdracht, ADashIsStandardOutput) {
  const Proefmap map;
  const Project project = GoedProject("Café"_cp);
  const std::string naam = map.Zet(project, "a.mrv");
  EXPECT_EQ(Reken(map, {naam, "--prn", "-"}).Uit, Kern(project).Prn());
  EXPECT_EQ(Reken(map, {naam, "--json", "-"}).Uit, Kern(project).Json());
  EXPECT_EQ(Reken(map, {naam, "--json", "-", "--prn", map / "a.prn"}).Uit, Kern(project).Json());
  EXPECT_EQ(map.Lees("a.prn"), Kern(project).Prn());
  EXPECT_FALSE(map.Heeft("-"));
}

TEST(RekenOpdracht, ARefusalIsTheRulesMessageAndStatus2) {
  const Proefmap map;
  const std::string naam = map.Zet(ZonderElementen(), "leeg é.mrv");
  for (const char* optie : {"--prn", "--json"}) {
    const Afloop afloop = Reken(map, {naam, optie, map / "uit"});
    EXPECT_EQ(afloop.Code, 2);
    EXPECT_EQ(afloop.Uit, "");
    EXPECT_EQ(afloop.Err, naam + ": Geen kanaalelementen ingevoerd\n");
    EXPECT_FALSE(map.Heeft("uit"));
  }
  EXPECT_EQ(Reken(map, {naam}).Code, 2);
}

TEST(RekenOpdracht, AFaultIsItsNumberWithTheFileAndStatus1) {
  const Proefmap map;
  const std::string tekst = map.ZetBytes("te kort", "kort.mrv");
  const std::string oneindig = map.Zet(MetOneindig(), "oneindig.mrv");
  std::filesystem::create_directory(PadVan(map / "map.mrv"));
  Project veel = GoedProject();
  veel.ElementCount = 500;
  std::string bytes = ProjectBytes(veel);
  bytes[610] = static_cast<char>(0xF5);  // 501 elements
  const std::string teVeel = map.ZetBytes(bytes, "veel.mrv");
  const struct {
    std::string Naam, Melding;
  } rijen[] = {
      {map / "weg.mrv", "Fout 53 - Bestand niet gevonden."},
      {map / "weg/weg.mrv", "Fout 76 - Map niet gevonden."},
      {tekst, "Fout 62 - Het bestand eindigt te vroeg."},
      {map.ZetBytes("", "a.txt"), "Fout 52 - Ongeldige bestandsnaam: een projectbestand eindigt op mrv."},
      {map / "rv", "Fout 52 - Ongeldige bestandsnaam: een projectbestand eindigt op mrv."},
      {map / "map.mrv", "Fout 75 - Geen toegang tot het bestand of de map."},
      {teVeel, "Fout 9 - Index buiten het bereik."},
  };
  for (const auto& rij : rijen) {
    const Afloop afloop = Reken(map, {rij.Naam});
    EXPECT_EQ(afloop.Code, 1) << rij.Naam;
    EXPECT_EQ(afloop.Uit, "");
    EXPECT_EQ(afloop.Err, rij.Naam + ": " + rij.Melding + "\n");
  }
  EXPECT_THAT(Reken(map, {oneindig}).Err, StartsWith(oneindig + ": Fout 6 - Overloop"));
  EXPECT_EQ(Reken(map, {oneindig}).Code, 1);
}

TEST(RekenOpdracht, TakesTheExtensionInAnyCase) {
  const Proefmap map;
  for (const char* naam : {"a.MRV", "b.mRv", "cmrv"})
    EXPECT_EQ(Reken(map, {map.Zet(GoedProject(), naam)}).Code, 0);
}

TEST(RekenOpdracht, OneBadProjectDoesNotStopTheOthers) {
  const Proefmap map;
  const std::string een = map.Zet(GoedProject("Een"), "een.mrv");
  const std::string leeg = map.Zet(ZonderElementen(), "leeg.mrv");
  const std::string weg = map / "weg.mrv";
  const std::string twee = map.Zet(GoedProject("Twee"), "twee.mrv");
  const Afloop afloop = Reken(map, {een, leeg, weg, twee});
  EXPECT_EQ(afloop.Code, 1);
  EXPECT_EQ(afloop.Uit,
            Kop(een) + Kern(GoedProject("Een")).Blokken() + Kop(twee) + Kern(GoedProject("Twee")).Blokken());
  EXPECT_EQ(afloop.Err,
            leeg + ": Geen kanaalelementen ingevoerd\n" + weg + ": Fout 53 - Bestand niet gevonden.\n");
  EXPECT_EQ(Reken(map, {een, leeg, twee}).Code, 2);
  EXPECT_EQ(Reken(map, {weg, leeg}).Code, 1);
}

TEST(RekenOpdracht, NothingOfAnEarlierProjectIsLeftInALaterOne) {
  const Proefmap map;
  const std::string een = map.Zet(GoedProject("Een"), "een.mrv");
  Project vreemd = GoedProject("Vreemd", 7);  // passes the checks and has only the first three blocks
  const std::string zeven = map.Zet(vreemd, "zeven.mrv");
  const std::string drie = map.Zet(GoedProject("Drie", rekentype::Overspraak), "drie.mrv");
  EXPECT_EQ(Reken(map, {een, zeven}).Uit,
            Kop(een) + Reken(map, {een}).Uit + Kop(zeven) + Reken(map, {zeven}).Uit);
  EXPECT_THAT(Reken(map, {zeven}).Uit, Not(HasSubstr("octaafbanden")));
  EXPECT_EQ(Reken(map, {een, zeven, drie, "--uit", map / "u", "--taken", "1"}).Code, 0);
  EXPECT_EQ(map.Lees("u/zeven.json"), Reken(map, {zeven, "--json", "-"}).Uit);
  EXPECT_EQ(map.Lees("u/drie.json"), Reken(map, {drie, "--json", "-"}).Uit);
}

TEST(RekenOpdracht, WithoutSettingsNothingIsCalculated) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(), "a.mrv");
  std::filesystem::create_directory(PadVan(map / "lege map"));
  for (const std::vector<std::string>& erbij :
       std::vector<std::vector<std::string>>{{}, {"--uit", map / "u"}}) {
    std::vector<std::string> argumenten{"reken", naam, "--data", map / "lege map"};
    argumenten.insert(argumenten.end(), erbij.begin(), erbij.end());
    const Afloop afloop = Draai(argumenten);
    EXPECT_EQ(afloop.Code, 1);
    EXPECT_EQ(afloop.Uit, "");
    EXPECT_EQ(afloop.Err, map / "lege map/murvane.set" + ": Fout 53 - Bestand niet gevonden.\n");
    EXPECT_FALSE(map.Heeft("u"));
  }
}

TEST(RekenOpdracht, BrokenSettingsAreAFaultOfTheirFile) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(), "a.mrv");
  const std::string instellingen = map.ZetBytes("Courier New\r\n 12 \r\n", "murvane.set");
  const Afloop afloop = Reken(map, {naam});
  EXPECT_EQ(afloop.Code, 1);
  EXPECT_THAT(afloop.Err, StartsWith(instellingen + ": Fout 62 - "));
}

TEST(RekenOpdracht, UnwritableOutputIsAFaultOfThatFile) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(), "a.mrv");
  std::filesystem::create_directory(PadVan(map / "map"));
  EXPECT_EQ(Reken(map, {naam, "--prn", map / "weg/a.prn"}).Err,
            map / "weg/a.prn" + ": Fout 76 - Map niet gevonden.\n");
  EXPECT_EQ(Reken(map, {naam, "--json", map / "map"}).Err,
            map / "map" + ": Fout 75 - Geen toegang tot het bestand of de map.\n");
  EXPECT_EQ(Reken(map, {naam, "--json", map / "map"}).Code, 1);
#ifdef __linux__
  const Afloop vol = Reken(map, {naam, "--prn", "/dev/full"});
  EXPECT_EQ(vol.Code, 1);
  EXPECT_EQ(vol.Err, "/dev/full: Fout 61 - Schijf vol.\n");
#endif
}

TEST(RekenOpdracht, AFullDiskIsFault61AndLeavesTheOldReport) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(), "a.mrv");
  const std::string uit = map.ZetBytes("oud", "uit.prn");
  const Afloop afloop = [&] {
    const proef::Schijfgrens grens(100);
    return Reken(map, {naam, "--prn", uit});
  }();
  EXPECT_EQ(afloop.Code, 1);
  EXPECT_EQ(afloop.Err, uit + ": Fout 61 - Schijf vol.\n");
  EXPECT_EQ(map.Lees("uit.prn"), "oud");
}

TEST(RekenOpdracht, NeverOverwritesTheProjectThatItReads) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(), "a.mrv");
  for (const char* optie : {"--prn", "--json"}) {
    const Afloop afloop = Reken(map, {naam, optie, map / "./a.mrv"});
    EXPECT_EQ(afloop.Code, 64);
    EXPECT_EQ(afloop.Err, map / "./a.mrv" +
                              " is het bestand dat wordt gelezen en zou worden overschreven.\n" +
                              "Hulp: murvane-cli reken --help\n");
  }
  EXPECT_EQ(map.Lees("a.mrv"), ProjectBytes(GoedProject()));
}

TEST(Standaarduitvoer, ThatCannotBeWrittenIsFault61) {
  const Proefmap map;
  const std::string goed = map.Zet(GoedProject(), "a.mrv");
  const std::string leeg = map.Zet(ZonderElementen(), "leeg.mrv");
  for (const std::vector<std::string>& argumenten :
       std::vector<std::vector<std::string>>{{"reken", goed, "--data", map.Naam()},
                                             {"reken", goed, goed, "--data", map.Naam()},
                                             {"reken", goed, "--json", "-", "--data", map.Naam()},
                                             {"controleer", goed},
                                             {"toon", goed},
                                             {"--help"},
                                             {"--versie"}}) {
    Dicht dicht;
    std::ostream uit(&dicht);
    std::ostringstream err;
    EXPECT_EQ(VoerOpdrachtUit(argumenten, {uit, err}), 1) << argumenten[0];
    EXPECT_EQ(err.str(), "standaarduitvoer: Fout 61 - Schijf vol of uitvoer gesloten.\n");
  }
}

TEST(Standaarduitvoer, AFaultOfItGoesBeforeARefusal) {
  const Proefmap map;
  Dicht dicht;
  std::ostream uit(&dicht);
  std::ostringstream err;
  EXPECT_EQ(
      VoerOpdrachtUit({"controleer", map.Zet(GoedProject(), "a.mrv"), map.Zet(ZonderElementen(), "b.mrv")},
                      {uit, err}),
      1);
}

TEST(ControleerOpdracht, TellsOfEveryProjectHowItIs) {
  const Proefmap map;
  const std::string goed = map.Zet(GoedProject(), "goed é.mrv");
  const std::string leeg = map.Zet(ZonderElementen(), "leeg.mrv");
  const std::string weg = map / "weg.mrv";
  const Afloop afloop = Draai({"controleer", goed, leeg, weg, goed});
  EXPECT_EQ(afloop.Code, 1);
  EXPECT_EQ(afloop.Uit, goed + ": in orde\n" + goed + ": in orde\n");
  EXPECT_EQ(afloop.Err,
            leeg + ": Geen kanaalelementen ingevoerd\n" + weg + ": Fout 53 - Bestand niet gevonden.\n");
  EXPECT_EQ(Draai({"controleer", goed, leeg}).Code, 2);
  EXPECT_EQ(Draai({"controleer", goed}).Code, 0);
  EXPECT_EQ(Draai({"controleer", map.ZetBytes("", "a.txt")}).Code, 1);
}

TEST(ControleerOpdracht, NeedsNoSettingsAndChangesNothing) {
  const Proefmap map;
  const std::string goed = map.Zet(GoedProject(), "goed.mrv");
  EXPECT_EQ(Draai({"controleer", goed, "--data", map / "weg", "--decimaal", "punt"}).Code, 0);
  EXPECT_EQ(map.Lees("goed.mrv"), ProjectBytes(GoedProject()));
}

class Partij : public testing::Test {
 protected:
  /// Forty projects, every fourth of them refused and every seventh a fault.
  std::vector<std::string> Maak() {
    std::vector<std::string> namen;
    for (int i = 0; i < 40; ++i) {
      const std::string naam = "project é " + std::to_string(i) + ".mrv";
      if (i % 7 == 3) {
        namen.push_back(map_.ZetBytes("kort", naam));
        verwacht_ += namen.back() + ": Fout 62 - Het bestand eindigt te vroeg.\n";
      } else if (i % 4 == 1) {
        namen.push_back(map_.Zet(ZonderElementen(), naam));
        verwacht_ += namen.back() + ": Geen kanaalelementen ingevoerd\n";
      } else {
        namen.push_back(map_.Zet(
            GoedProject("P" + std::to_string(i), static_cast<std::int16_t>(i % 3 == 0 ? 3 : 1)), naam));
        goed_.push_back("project é " + std::to_string(i));
      }
    }
    return namen;
  }
  Afloop Draai(std::vector<std::string> namen, const std::string& map, const std::string& taken,
               bool terminal = false) {
    namen.insert(namen.end(), {"--uit", map_ / map});
    if (!taken.empty()) namen.insert(namen.end(), {"--taken", taken});
    return Reken(map_, namen, {.Terminal = terminal});
  }

  Proefmap map_;
  std::string verwacht_;           ///< messages in the order of the command line
  std::vector<std::string> goed_;  ///< base names that give files
};

TEST_F(Partij, GivesTheSameFilesAndMessagesWithAnyNumberOfThreads) {
  const std::vector<std::string> namen = Maak();
  for (const std::string taken : {"1", "8", ""}) {
    const std::string map = "uit é/" + taken;
    const Afloop afloop = Draai(namen, map, taken);
    EXPECT_EQ(afloop.Code, 1);
    EXPECT_EQ(afloop.Uit, "");
    EXPECT_EQ(afloop.Err, verwacht_);
    std::size_t bestanden = 0;
    for (const auto& bestand : std::filesystem::directory_iterator(PadVan(map_ / map)))
      if (bestand.is_regular_file()) ++bestanden;
    EXPECT_EQ(bestanden, 2 * goed_.size());
    for (const std::string& naam : goed_) {
      EXPECT_EQ(map_.Lees(map + "/" + naam + ".prn"),
                Reken(map_, {map_ / (naam + ".mrv"), "--prn", "-"}).Uit);
      EXPECT_EQ(map_.Lees(map + "/" + naam + ".json"),
                Reken(map_, {map_ / (naam + ".mrv"), "--json", "-"}).Uit);
    }
  }
}

TEST_F(Partij, StatusIs2WithoutAFaultAnd0WhenAllIsWell) {
  const std::string goed = map_.Zet(GoedProject(), "goed.mrv");
  const std::string leeg = map_.Zet(ZonderElementen(), "leeg.mrv");
  EXPECT_EQ(Draai({goed, leeg}, "u", "2").Code, 2);
  EXPECT_EQ(Draai({goed}, "u", "2").Code, 0);
}

TEST_F(Partij, EqualBaseNamesAreRefusedBeforeAnythingIsWritten) {
  const std::string een = map_.Zet(GoedProject(), "a/naam é.mrv");
  const std::string ander = map_.Zet(GoedProject(), "b/naam é.mrv");
  const std::string eigen = map_.Zet(GoedProject(), "c.mrv");
  for (const std::vector<std::string>& namen :
       {std::vector<std::string>{eigen, een, ander}, std::vector<std::string>{een, een},
        std::vector<std::string>{een, map_ / "a/../a/naam é.MRV"}}) {
    const Afloop afloop = Draai(namen, "u", "2");
    EXPECT_EQ(afloop.Code, 64);
    EXPECT_EQ(afloop.Uit, "");
    EXPECT_EQ(afloop.Err,
              een + " en " + namen.back() +
                  " geven allebei naam é.prn en naam é.json; geef ze verschillende namen of een eigen map.\n"
                  "Hulp: murvane-cli reken --help\n");
    EXPECT_FALSE(map_.Heeft("u"));
  }
}

TEST_F(Partij, NamesThatDifferOnlyInCaseAreTheirOwnFiles) {
#ifndef _WIN32
  EXPECT_EQ(Draai({map_.Zet(GoedProject(), "Naam.mrv"), map_.Zet(GoedProject(), "naam.mrv")}, "u", "2").Code,
            0);
  EXPECT_TRUE(map_.Heeft("u/Naam.prn") && map_.Heeft("u/naam.prn"));
#endif
}

TEST_F(Partij, TheBaseNameIsAllBeforeTheLastPoint) {
  EXPECT_EQ(Draai({map_.Zet(GoedProject(), "v1.2 é.mrv")}, "u", "").Code, 0);
  EXPECT_TRUE(map_.Heeft("u/v1.2 é.prn") && map_.Heeft("u/v1.2 é.json"));
}

TEST_F(Partij, TheDirectoryIsMadeWithAllAboveIt) {
  EXPECT_EQ(Draai({map_.Zet(GoedProject(), "a.mrv")}, "diep/dieper é/diepst", "").Code, 0);
  EXPECT_TRUE(map_.Heeft("diep/dieper é/diepst/a.prn"));
}

TEST_F(Partij, ADirectoryThatCannotBeMadeIsAFault) {
  const std::string goed = map_.Zet(GoedProject(), "a.mrv");
  map_.ZetBytes("", "bestand");
  for (const char* map : {"bestand", "bestand/diep"}) {
    const Afloop afloop = Draai({goed}, map, "");
    EXPECT_EQ(afloop.Code, 1);
    EXPECT_EQ(afloop.Err, map_ / map + ": Fout 75 - Geen toegang tot het bestand of de map.\n");
  }
}

TEST_F(Partij, ADirectoryOfSomeoneElseIsFault70) {
  const std::string goed = map_.Zet(GoedProject(), "a.mrv");
  std::filesystem::create_directory(PadVan(map_ / "dicht"));
  std::filesystem::permissions(PadVan(map_ / "dicht"), std::filesystem::perms::owner_read);
  const auto probeer = [&] {
    const Afloop afloop = Draai({goed}, "dicht/u", "1");
    return afloop.Code == 1 && afloop.Err == map_ / "dicht/u" + ": Fout 70 - Geen toestemming.\n" ? 0 : 1;
  };
  EXPECT_EQ(proef::AlsGewoneGebruiker(probeer), 0);
}

TEST_F(Partij, AnOutputThatCannotBeWrittenIsAFaultAndTheOthersGoOn) {
  std::filesystem::create_directories(PadVan(map_ / "u/a.prn"));
  const Afloop afloop = Draai({map_.Zet(GoedProject(), "a.mrv"), map_.Zet(GoedProject(), "b.mrv")}, "u", "2");
  EXPECT_EQ(afloop.Code, 1);
  EXPECT_EQ(afloop.Err, map_ / "u/a.prn" + ": Fout 75 - Geen toegang tot het bestand of de map.\n");
  EXPECT_TRUE(map_.Heeft("u/b.prn") && map_.Heeft("u/b.json"));
}

TEST_F(Partij, ShowsProgressOnATerminalOnly) {
  const std::string a = map_.Zet(GoedProject(), "a.mrv");
  const std::string b = map_.Zet(ZonderElementen(), "b.mrv");
  EXPECT_EQ(Draai({a, b}, "u", "1", true).Err,
            "\r1/2\r   \r" + b + ": Geen kanaalelementen ingevoerd\n\r2/2\r   \r");
  EXPECT_EQ(Draai({a, b}, "u", "1").Err, b + ": Geen kanaalelementen ingevoerd\n");
}

}  // namespace
}  // namespace murvane::clitest
