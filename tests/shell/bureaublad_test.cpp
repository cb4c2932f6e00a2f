#include "shell/bureaublad.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "basis/bestand.h"
#include "basis/tekst.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;

TEST(Bureaublad, OnlyAOneInTheEnvironmentMeansTheDesktop) {
  EXPECT_TRUE(IsBureaublad("1"));
  for (const char* waarde : {"", "0", "ja", "11", " 1"}) EXPECT_FALSE(IsBureaublad(waarde)) << waarde;
}

/// An installed program, a directory to start in and a user's own directory that does not exist yet.
class Werkplekken : public testing::Test {
 protected:
  Werkplekken() {
    for (const char* map : {"usr/bin", "usr/share/murvane/data", "usr/share/murvane/help", "werk"})
      fs::create_directories(map_ / map);
    for (const char* naam : Geleverd)
      proef::Schrijf(map_ / "usr/share/murvane/data" / naam, "geleverd " + std::string(naam));
    plaats_ = {map_ / "werk", map_ / "usr/bin", Eigen()};
    plaats_.Bureaublad = true;
    fs::current_path(map_ / "werk");
  }
  ~Werkplekken() override { fs::current_path(vorige_); }

  [[nodiscard]] fs::path Eigen() const { return map_ / "thuis é" / "murvane"; }
  [[nodiscard]] std::vector<std::string> Namen(const fs::path& map) const {
    std::vector<std::string> uit;
    for (const auto& ingang : fs::directory_iterator(map)) uit.push_back(ingang.path().filename());
    std::sort(uit.begin(), uit.end());
    return uit;
  }
  [[nodiscard]] bool Eigen(const fs::path& huidigeMap, bool bureaublad, bool zonderVariabele = false) const {
    Startplaats plaats = plaats_;
    plaats.HuidigeMap = huidigeMap;
    plaats.Bureaublad = bureaublad;
    plaats.ZonderVariabele = zonderVariabele;
    return WerktInGebruikersmap(plaats);
  }
  [[nodiscard]] Melding Mislukt(const std::string& fout) const {
    return {MeldingSoort::Kritiek, "Opstartfout",
            NaarCp1252("De eigen gegevensmap kan niet worden gebruikt:\n" + PadTekst(Eigen()) +
                       "\nMurVane werkt met de meegeleverde gegevens; wijzigingen daarin worden mogelijk "
                       "niet bewaard.\n" +
                       fout)};
  }
  Werkplek Kies(std::string_view opdrachtregel = {}) { return KiesWerkplek(script_, plaats_, opdrachtregel); }

  static constexpr const char* Geleverd[] = {"Duct.dat",  "Fan.dat",     "Rduct.dat",
                                             "Rplaf.dat", "kantoor.mrv", "murvane.set"};
  fs::path vorige_ = fs::current_path();
  proef::TijdelijkeMap tijdelijk_;
  fs::path map_ = fs::canonical(tijdelijk_.Pad());
  Startplaats plaats_;
  proef::Script script_{[](const std::string& fout) { ADD_FAILURE() << fout; }};
};

TEST_F(Werkplekken, ADirectoryThatTheUserChoseStaysTheDataDirectory) {
  EXPECT_FALSE(Eigen(map_ / "werk", false));  // without settings: asked for as ever
  proef::Schrijf(map_ / "werk/murvane.set", "");
  EXPECT_FALSE(Eigen(map_ / "werk", false));
  EXPECT_FALSE(Eigen(map_ / "usr", false));
  EXPECT_FALSE(Eigen(map_ / "usr/share", false));
}

TEST_F(Werkplekken, TheDesktopAsksForTheUsersOwnDirectoryWhereverItStarts) {
  EXPECT_TRUE(Eigen(map_ / "werk", true));
  proef::Schrijf(map_ / "werk/murvane.set", "");
  EXPECT_TRUE(Eigen(map_ / "werk", true));
}

TEST_F(Werkplekken, TheDirectoriesOfAnInstalledProgramAreNoPlaceToWork) {
  for (const char* map : {"usr/bin", "usr/bin/", "usr/share/murvane", "usr/share/murvane/data",
                          "usr/share/murvane/help/../data"})
    EXPECT_TRUE(Eigen(map_ / map, false)) << map;
}

TEST_F(Werkplekken, TheDirectoriesOfAProgramThatIsNotInstalledAre) {
  plaats_.ProgrammaMap = map_ / "bouw/bin";
  fs::create_directories(map_ / "bouw/bin/data");
  proef::Schrijf(map_ / "bouw/bin/data/murvane.set", "");
  EXPECT_FALSE(Eigen(map_ / "bouw/bin", false));
  EXPECT_FALSE(Eigen(map_ / "bouw/bin/data", false));
  EXPECT_FALSE(Eigen(map_ / "werk", false, true));
  EXPECT_TRUE(Eigen(map_ / "werk", true));
}

TEST_F(Werkplekken, WithoutAnEnvironmentToTellOnlySettingsKeepTheDirectory) {
  EXPECT_TRUE(Eigen(map_ / "werk", false, true));
  proef::Schrijf(map_ / "werk/murvane.set", "");
  EXPECT_FALSE(Eigen(map_ / "werk", false, true));
}

TEST_F(Werkplekken, StaysWhereItIsWhenTheUserChoseTheDirectory) {
  plaats_.Bureaublad = false;
  const Werkplek werkplek = Kies("\"mijn project.mrv\"");
  EXPECT_EQ(werkplek.Map, map_ / "werk");
  EXPECT_EQ(werkplek.Opdrachtregel, "\"mijn project.mrv\"");
  EXPECT_EQ(fs::current_path(), map_ / "werk");
  EXPECT_FALSE(fs::exists(Eigen()));
}

TEST_F(Werkplekken, TheFirstStartFillsTheUsersOwnDirectoryAndGoesThere) {
  const Werkplek werkplek = Kies();
  EXPECT_EQ(werkplek.Map, Eigen());
  EXPECT_EQ(werkplek.Opdrachtregel, "");
  EXPECT_EQ(fs::current_path(), Eigen());
  EXPECT_EQ(Namen(Eigen()), std::vector<std::string>(std::begin(Geleverd), std::end(Geleverd)));
  for (const char* naam : Geleverd) EXPECT_EQ(proef::Lees(Eigen() / naam), "geleverd " + std::string(naam));
}

TEST_F(Werkplekken, ALaterStartCopiesNothing) {
  fs::create_directories(Eigen());
  proef::Schrijf(Eigen() / "murvane.set", "van mij");
  EXPECT_EQ(Kies().Map, Eigen());
  EXPECT_EQ(Namen(Eigen()), std::vector<std::string>{"murvane.set"});
  EXPECT_EQ(proef::Lees(Eigen() / "murvane.set"), "van mij");
}

TEST_F(Werkplekken, AFileThatIsThereIsNeverOverwritten) {
  fs::create_directories(Eigen());
  proef::Schrijf(Eigen() / "Duct.dat", "van mij");
  fs::create_symlink(map_ / "weg", Eigen() / "Fan.dat");  // to a disk that is not there now
  EXPECT_EQ(Kies().Map, Eigen());
  EXPECT_EQ(proef::Lees(Eigen() / "Duct.dat"), "van mij");
  EXPECT_TRUE(fs::is_symlink(Eigen() / "Fan.dat"));
  EXPECT_FALSE(fs::exists(map_ / "weg"));
  EXPECT_EQ(proef::Lees(Eigen() / "murvane.set"), "geleverd murvane.set");
}

TEST_F(Werkplekken, ACopyMayBeWrittenAlsoWhenTheDeliveredFileMayNot) {
  fs::permissions(map_ / "usr/share/murvane/data/Duct.dat", fs::perms::owner_read);
  EXPECT_EQ(Kies().Map, Eigen());
  EXPECT_NE(fs::status(Eigen() / "Duct.dat").permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(Werkplekken, OnlyFilesAreCopied) {
  fs::create_directory(map_ / "usr/share/murvane/data/bron");
  EXPECT_EQ(Kies().Map, Eigen());
  EXPECT_FALSE(fs::exists(Eigen() / "bron"));
}

TEST_F(Werkplekken, AFullDiskIsToldAndTheDeliveredDataTaken) {
  proef::Schrijf(map_ / "usr/share/murvane/data/Duct.dat", std::string(5000, 'x'));
  script_.Box(Mislukt("Fout 61 - De schijf is vol; het bestand 'Duct.dat' is niet geschreven."));
  {
    const proef::Schijfgrens vol(1000);
    EXPECT_EQ(Kies().Map, map_ / "usr/share/murvane/data");
  }
  EXPECT_EQ(fs::current_path(), map_ / "usr/share/murvane/data");
  EXPECT_FALSE(fs::exists(Eigen() / "murvane.set"));  // so that the next start tries again
  EXPECT_FALSE(fs::exists(Eigen() / "Duct.dat"));
  EXPECT_EQ(Kies().Map, Eigen());
  EXPECT_EQ(proef::Lees(Eigen() / "Duct.dat").size(), 5000U);
  EXPECT_EQ(proef::Lees(Eigen() / "murvane.set"), "geleverd murvane.set");
}

TEST_F(Werkplekken, AFileInTheWayIsTold) {
  proef::Schrijf(map_ / "thuis é", "");
  script_.Box(Mislukt("Fout 75 - Geen toegang tot het bestand of de map."));
  EXPECT_EQ(Kies("mijn project.mrv").Map, map_ / "usr/share/murvane/data");
}

TEST_F(Werkplekken, AUserWithoutADirectoryIsTold) {
  plaats_.GebruikersMap.clear();
  script_.Box({MeldingSoort::Kritiek, "Opstartfout",
               "De eigen gegevensmap kan niet worden gebruikt\nMurVane werkt met de meegeleverde gegevens; "
               "wijzigingen daarin worden mogelijk niet bewaard.\nFout 76 - Map niet gevonden."});
  const Werkplek werkplek = Kies("kantoor.mrv");
  EXPECT_EQ(werkplek.Map, map_ / "usr/share/murvane/data");
  EXPECT_EQ(werkplek.Opdrachtregel, PadTekst(map_ / "werk" / "kantoor.mrv"));
}

TEST_F(Werkplekken, WithoutDeliveredDataItStaysWhereItIs) {
  fs::remove_all(map_ / "usr/share");
  script_.Box(Mislukt("Fout 53 - Het bestand 'murvane.set' is niet gevonden."));
  EXPECT_EQ(Kies().Map, map_ / "werk");
  EXPECT_EQ(fs::current_path(), map_ / "werk");
  EXPECT_FALSE(fs::exists(Eigen()));
}

TEST_F(Werkplekken, TheProjectOfTheCommandLineIsFoundFromTheOldDirectory) {
  const std::string werk = PadTekst(map_ / "werk") + "/";
  const struct {
    const char* Opdrachtregel;
    std::string Daarna;
  } rijen[] = {
      {"mijn project één.mrv", werk + "mijn project één.mrv"},
      {"\"mijn project.mrv\"", werk + "mijn project.mrv"},
      {"sub/KANTOOR.MRV", werk + "sub/KANTOOR.MRV"},
      {"/elders/mijn project.mrv", "/elders/mijn project.mrv"},
      {"\"/elders/mijn project.mrv\"", "/elders/mijn project.mrv"},
      {"brief.txt", "brief.txt"},  // ignored later, as ever
      {"", ""},
  };
  for (const auto& rij : rijen) EXPECT_EQ(Kies(rij.Opdrachtregel).Opdrachtregel, rij.Daarna);
}

}  // namespace
}  // namespace murvane
