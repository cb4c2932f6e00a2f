#include "shell/startup.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

#include "basis/bestand.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;

/// Sets environment variables and puts them back.
class Omgeving {
 public:
  explicit Omgeving(const std::map<std::string, std::string>& waarden) {
    for (const char* naam : {"LC_ALL", "LC_NUMERIC", "LANG", "LOCPATH", "XDG_DATA_HOME", "HOME"}) {
      const char* oud = std::getenv(naam);
      oud_[naam] = oud ? std::optional<std::string>(oud) : std::nullopt;
      unsetenv(naam);
    }
    for (const auto& [naam, waarde] : waarden) setenv(naam.c_str(), waarde.c_str(), 1);
  }
  Omgeving(const Omgeving&) = delete;
  Omgeving& operator=(const Omgeving&) = delete;
  ~Omgeving() {
    for (const auto& [naam, waarde] : oud_) {
      if (waarde) {
        setenv(naam.c_str(), waarde->c_str(), 1);
      } else {
        unsetenv(naam.c_str());
      }
    }
  }

 private:
  std::map<std::string, std::optional<std::string>> oud_;
};

class Startmap : public testing::Test {
 protected:
  Startmap() {
    for (const char* deel :
         {"werk", "usr/bin/data", "usr/share/murvane/data", "thuis é/.local/share/murvane"})
      fs::create_directories(map_ / deel);
  }
  ~Startmap() override { fs::current_path(vorige_); }
  void ZetInstellingen(const char* map) const { proef::Schrijf(map_ / map / "murvane.set", ""); }
  [[nodiscard]] fs::path DataMap() const { return DataMapVan(map_ / "werk", map_ / "usr/bin", Eigen()); }
  [[nodiscard]] fs::path Eigen() const { return map_ / "thuis é/.local/share/murvane"; }

  fs::path vorige_ = fs::current_path();
  proef::TijdelijkeMap tijdelijk_;
  fs::path map_ = fs::canonical(tijdelijk_.Pad());  // as the system tells the current directory
};

TEST_F(Startmap, DataIsFirstSoughtHereThenByTheProgramThenWithTheUserThenInTheShare) {
  EXPECT_EQ(DataMap(), map_ / "usr/bin/data");  // nowhere: where it should have been
  ZetInstellingen("usr/share/murvane/data");
  EXPECT_EQ(DataMap(), map_ / "usr/share/murvane/data");
  ZetInstellingen("thuis é/.local/share/murvane");
  EXPECT_EQ(DataMap(), Eigen());
  ZetInstellingen("usr/bin/data");
  EXPECT_EQ(DataMap(), map_ / "usr/bin/data");
  ZetInstellingen("werk");
  EXPECT_EQ(DataMap(), map_ / "werk");
}

TEST_F(Startmap, WithoutAnyDataOfItsOwnAProgramDoesNotTakeTheUsers) {
  ZetInstellingen("thuis é/.local/share/murvane");
  EXPECT_EQ(DataMap(), map_ / "usr/bin/data");
}

TEST_F(Startmap, AUserWithoutADirectoryIsNotTheCurrentDirectory) {
  ZetInstellingen("usr/share/murvane/data");
  ZetInstellingen("werk");
  fs::current_path(map_ / "werk");  // "" / murvane.set would be found here
  EXPECT_EQ(DataMapVan(map_, map_ / "usr/bin", {}), map_ / "usr/share/murvane/data");
}

TEST(GebruikersDataMap, IsWhereTheSystemKeepsAUsersData) {
  const struct {
    Gebruikersmappen Mappen;
    const char* Map;
  } rijen[] = {
      {{"", "", "/home/jan"}, "/home/jan/.local/share/murvane"},
      {{"", "/srv/mijn gegevens", "/home/jan"}, "/srv/mijn gegevens/murvane"},
      {{"", "gegevens", "/home/jan"}, "/home/jan/.local/share/murvane"},  // relative: does not count
      {{"", "/srv/gegevens", ""}, "/srv/gegevens/murvane"},
      {{"/AppData/Roaming", "/srv/gegevens", "/home/jan"}, "/AppData/Roaming/MurVane"},
      {{"", "", ""}, ""},
  };
  for (const auto& rij : rijen) EXPECT_EQ(GebruikersDataMap(rij.Mappen), rij.Map);
}

TEST(EigenDataMap, FollowsTheEnvironment) {
  const struct {
    std::map<std::string, std::string> omgeving;
    const char* map;
  } rijen[] = {
      {{{"HOME", "/home/jan é"}}, "/home/jan é/.local/share/murvane"},
      {{{"HOME", "/home/jan"}, {"XDG_DATA_HOME", "/srv/mijn gegevens"}}, "/srv/mijn gegevens/murvane"},
      {{}, ""},
  };
  for (const auto& rij : rijen) {
    const Omgeving omgeving(rij.omgeving);
    EXPECT_EQ(EigenDataMap(), rij.map);
  }
}

TEST_F(Startmap, WhatCameWithTheProgramStandsByItOrInItsShare) {
  EXPECT_EQ(MeegeleverdeMap(map_ / "usr/bin"), map_ / "usr/bin");  // nowhere: where it should have been
  ZetInstellingen("usr/share/murvane/data");
  EXPECT_EQ(MeegeleverdeMap(map_ / "usr/bin"), map_ / "usr/share/murvane");
  ZetInstellingen("usr/bin/data");
  EXPECT_EQ(MeegeleverdeMap(map_ / "usr/bin"), map_ / "usr/bin");
}

TEST_F(Startmap, ADirectoryOfThatNameIsNoSettingsFile) {
  fs::create_directory(map_ / "werk/murvane.set");
  ZetInstellingen("usr/share/murvane/data");
  EXPECT_EQ(DataMap(), map_ / "usr/share/murvane/data");
}

TEST_F(Startmap, StandardDataDirectoryIsTheCurrentOneOnlyWithSettings) {
  fs::current_path(map_ / "werk");
  EXPECT_EQ(StandaardDataMap(), DataMapVan({}, ProgrammaMap(), EigenDataMap()));
  ZetInstellingen("werk");
  EXPECT_EQ(StandaardDataMap(), map_ / "werk");
}

TEST_F(Startmap, SurvivesACurrentDirectoryThatIsGone) {
  fs::current_path(map_ / "werk");
  fs::remove(map_ / "werk");
  EXPECT_EQ(StandaardDataMap(), DataMapVan(map_ / "werk", ProgrammaMap(), EigenDataMap()));
}

TEST(OpenBestandUit, TakesTheWholeCommandLineAsOnePath) {
  const struct {
    const char* opdrachtregel;
    const char* pad;
  } rijen[] = {
      {"", ""},
      {"kantoor.mrv", "kantoor.mrv"},
      {"C:\\Mijn projecten\\kantoor één.mrv", "C:\\Mijn projecten\\kantoor één.mrv"},
      {"\"/tmp/mijn map/kantoor.mrv\"", "/tmp/mijn map/kantoor.mrv"},
      {"KANTOOR.MRV", "KANTOOR.MRV"},
      {"\"Kantoor.Mrv\"", "Kantoor.Mrv"},
      {"mrv", "mrv"},  // the last three characters decide, nothing else
      {"xmrv", "xmrv"},
      {"rv", ""},
      {"kantoor.dat", ""},
      {"kantoor.mrv.bak", ""},
      {"kantoor.mrv ", ""},
      {" kantoor.mrv", " kantoor.mrv"},
      {"\"kantoor.mrv", "\"kantoor.mrv"},  // a quote at one end only stays
      {"kantoor.mrv\"", ""},
      {"\"kantoor.dat\"", ""},
      {"\"a.mrv\" \"b.mrv\"", "a.mrv\" \"b.mrv"},
      {"\"", ""},
      {"\"\"", ""},
      {"\"\"kantoor.mrv\"\"", ""},  // one pair only
  };
  for (const auto& rij : rijen) EXPECT_EQ(OpenBestandUit(rij.opdrachtregel), rij.pad) << rij.opdrachtregel;
}

TEST(RegionaalDecimaalteken, IsAPointWithoutARegionOrInOneThatIsNotInstalled) {
  const std::map<std::string, std::string> gevallen[] = {{},
                                                         {{"LC_ALL", "C"}},
                                                         {{"LC_ALL", ""}},
                                                         {{"LC_ALL", "xx_XX.nergens"}},
                                                         {{"LC_NUMERIC", "nl_NL@@"}},
                                                         {{"LANG", "../../etc"}},
                                                         {{"LC_ALL", "C.UTF-8"}}};
  for (const auto& geval : gevallen) {
    const Omgeving omgeving(geval);
    EXPECT_EQ(RegionaalDecimaalteken(), '.');
  }
}

/// Regions made for the test, so that it does not depend on those that the machine happens to have.
class Regios : public Startmap {
 protected:
  void Maak(const std::string& naam, const std::string& teken) const {
    const std::string bron = (map_ / naam).string();
    proef::Schrijf(bron, "LC_NUMERIC\ndecimal_point \"" + teken +
                             "\"\nthousands_sep \"\"\ngrouping -1\nEND LC_NUMERIC\n");
    // Its exit status tells of the categories that are not there; what counts is the file that it makes.
    const std::string opdracht =
        "localedef -c -i '" + bron + "' -f UTF-8 '" + bron + ".UTF-8' >/dev/null 2>&1; true";
    ASSERT_EQ(std::system(opdracht.c_str()), 0);
    ASSERT_TRUE(fs::exists(bron + ".UTF-8/LC_NUMERIC")) << "the packages libc-bin and locales are needed";
  }
};

TEST_F(Regios, DecimalSignIsThatOfTheUsersRegion) {
  Maak("komma", ",");
  Maak("punt", ".");
  Maak("arabisch", "<U066B>");  // two bytes
  Maak("streepje", "-");
  const std::string hier = map_.string();
  const struct {
    std::map<std::string, std::string> omgeving;
    char teken;
  } rijen[] = {
      {{{"LC_ALL", "komma.UTF-8"}}, ','},
      {{{"LANG", "komma.UTF-8"}}, ','},
      {{{"LC_NUMERIC", "komma.UTF-8"}, {"LANG", "punt.UTF-8"}}, ','},
      {{{"LC_NUMERIC", "punt.UTF-8"}, {"LANG", "komma.UTF-8"}}, '.'},
      {{{"LC_ALL", "punt.UTF-8"}, {"LC_NUMERIC", "komma.UTF-8"}}, '.'},
      {{{"LC_ALL", "arabisch.UTF-8"}}, '.'},
      {{{"LC_ALL", "streepje.UTF-8"}}, '.'},
  };
  const std::string proces = std::setlocale(LC_ALL, nullptr);
  for (auto rij : rijen) {
    rij.omgeving["LOCPATH"] = hier;
    const Omgeving omgeving(rij.omgeving);
    EXPECT_EQ(RegionaalDecimaalteken(), rij.teken);
    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), proces);
  }
}

}  // namespace
}  // namespace murvane
