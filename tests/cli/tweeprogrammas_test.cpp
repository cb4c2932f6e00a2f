// The command line and another process that changes the catalogue which is being sorted.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <optional>

#include "basis/slot.h"
#include "catalogue/catfiles.h"
#include "catalogue/catjson.h"
#include "tests/cli/hulp.h"
#include "tests/hulp/proces.h"

namespace murvane::clitest {
namespace {

namespace fs = std::filesystem;
using proef::Proces;
using testing::HasSubstr;

std::string Beeld(std::initializer_list<const char*> namen) {
  SpectrumCatalogus catalogus;
  for (const char* naam : namen)
    catalogus.Records[static_cast<std::size_t>(++catalogus.Aantal)].SpecNaam = naam;
  return CatalogusBytes(catalogus);
}

ino_t Knoop(const fs::path& pad) {
  struct stat is {};
  return ::stat(pad.c_str(), &is) == 0 ? is.st_ino : 0;
}

class SorteerOverZichzelf : public testing::Test {
 protected:
  /// Sorts a catalogue over itself in a process of its own, while another program has put `hun` there between
  /// its reading and its writing; the exit status.
  int Sorteer(const std::string& toen, const std::string& hun) {
    proef::Schrijf(pad, toen);
    std::optional<Bestandsslot> slot(std::in_place, pad);
    Proces cli("murvane-cli", {"catalogus", "sorteer", PadTekst(pad), "-o", PadTekst(pad)}, fouten);
    EXPECT_TRUE(cli.WachtTotOpen(pad));  // it has read the file and waits for the slot
    proef::Schrijf(pad, hun);
    knoop = Knoop(pad);
    slot.reset();
    return cli.Wacht();
  }

  proef::TijdelijkeMap map;
  fs::path pad = map / "Fan.dat";
  fs::path fouten = map / "fouten";
  ino_t knoop = 0;
};

TEST_F(SorteerOverZichzelf, RefusesAFileThatAnotherProgramChangedMeanwhile) {
  const std::string hun = Beeld({"b", "a", "hun"});
  EXPECT_EQ(Sorteer(Beeld({"b", "a"}), hun), 1);
  EXPECT_EQ(proef::Lees(pad), hun);
  EXPECT_EQ(proef::Lees(fouten),
            PadTekst(pad) +
                ": Fout 75 - Het bestand is intussen door een ander programma gewijzigd; er is "
                "niets geschreven.\n");
}

TEST_F(SorteerOverZichzelf, LeavesTheirFileWhenThereWasNothingToSort) {
  const std::string hun = Beeld({"b", "a", "hun"});
  EXPECT_EQ(Sorteer(Beeld({"a", "b"}), hun), 0);
  EXPECT_EQ(proef::Lees(pad), hun);
}

TEST_F(SorteerOverZichzelf, WritesNothingWhenTheySortedIt) {
  EXPECT_EQ(Sorteer(Beeld({"b", "a"}), Beeld({"a", "b"})), 0);
  EXPECT_EQ(Knoop(pad), knoop);
  EXPECT_EQ(proef::Lees(fouten), "");
}

TEST_F(SorteerOverZichzelf, SortsAFileThatNobodyElseTouched) {
  EXPECT_EQ(Sorteer(Beeld({"b", "a"}), Beeld({"b", "a"})), 0);
  EXPECT_EQ(proef::Lees(pad), Beeld({"a", "b"}));
}

TEST_F(SorteerOverZichzelf, OverwritesAnotherFileWithoutAsking) {
  proef::Schrijf(pad, Beeld({"b", "a"}));
  proef::Schrijf(map / "ander", "wat er ook staat");
  EXPECT_EQ(Draai({"catalogus", "sorteer", PadTekst(pad), "-o", PadTekst(map / "ander")}).Code, 0);
  EXPECT_EQ(proef::Lees(map / "ander"), Beeld({"a", "b"}));
}

TEST(Wegschrijven, MakesAFileWhateverStandsThere) {
  const Proefmap map;
  map.ZetBytes(CatalogusNaarJson({CatalogusSoort::Ventilatoren, SpectraUitBytes(Beeld({"a"}))}), "fan.json");
  map.ZetBytes("iets anders", "Fan.dat");
  EXPECT_EQ(Draai({"catalogus", "maak", map / "fan.json", "-o", map / "Fan.dat"}).Code, 0);
  EXPECT_EQ(map.Lees("Fan.dat"), Beeld({"a"}));
}

// A pipe that nobody writes to would keep the program waiting for ever.
TEST(NietGewoneBestanden, AreFout75AtOnce) {
  const Proefmap map;
  for (const char* naam : {"pijp.mrv", "Fan.dat"}) ASSERT_EQ(::mkfifo((map / naam).c_str(), 0600), 0);
  map.Zet(GoedProject(), "goed.mrv");
  const std::string fout = ": Fout 75 - Geen toegang tot het bestand of de map.\n";
  for (const auto& woorden :
       std::vector<std::vector<std::string>>{{"reken", map / "pijp.mrv", "--data", map.Naam()},
                                             {"controleer", map / "pijp.mrv"},
                                             {"toon", map / "pijp.mrv"}}) {
    const Afloop afloop = Draai(woorden);
    EXPECT_EQ(afloop.Code, 1) << woorden[0];
    EXPECT_EQ(afloop.Err, (map / "pijp.mrv") + fout);
  }
  for (const auto& woorden : std::vector<std::vector<std::string>>{
           {"catalogus", "toon", map / "Fan.dat"}, {"overzicht", "ventilatoren", "--data", map.Naam()}}) {
    const Afloop afloop = Draai(woorden);
    EXPECT_EQ(afloop.Code, 1) << woorden[0];
    EXPECT_THAT(afloop.Err, HasSubstr("Fan.dat" + fout));
  }
  fs::remove(map / "murvane.set");
  ASSERT_EQ(::mkfifo((map / "murvane.set").c_str(), 0600), 0);
  EXPECT_EQ(Draai({"reken", map / "goed.mrv", "--data", map.Naam()}).Err, (map / "murvane.set") + fout);
}

TEST(Resten, AreClearedFromTheDirectoryOfABatchOnce) {
  const Proefmap map;
  map.Zet(GoedProject(), "a.mrv");
  fs::create_directory(map / "uit");
  map.ZetBytes("rest", "uit/~murvane-1-0");
  fs::last_write_time(map / "uit/~murvane-1-0", fs::file_time_type::clock::now() - std::chrono::hours(25));
  EXPECT_EQ(Reken(map, {map / "a.mrv", "--uit", map / "uit"}).Code, 0);
  EXPECT_FALSE(map.Heeft("uit/~murvane-1-0"));
  EXPECT_TRUE(map.Heeft("uit/a.prn"));
}

}  // namespace
}  // namespace murvane::clitest
