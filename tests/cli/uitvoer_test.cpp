// Where results go: files that are the same under two names, and terminals.

#include "cli/uitvoer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "catalogue/catfiles.h"
#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

TEST(Bestandenplan, ToldApartByWhatTheyAre) {
  const Proefmap map;
  map.ZetBytes("x", "een é");
  map.ZetBytes("x", "ander");
  fs::create_directory(PadVan(map / "m"));
  fs::create_hard_link(PadVan(map / "een é"), PadVan(map / "hard"));
  fs::create_symlink("een é", PadVan(map / "zacht"));
  fs::create_symlink("../nieuw", PadVan(map / "m/dood"));
  fs::create_symlink("m/dood", PadVan(map / "doder"));
  fs::create_directory_symlink("m", PadVan(map / "n"));
  fs::create_symlink("rond", PadVan(map / "rond"));
  const struct {
    std::string een, ander;
    bool zelfde;
  } rijen[] = {
      {"een é", "een é", true},
      {"een é", "m/../een é", true},
      {"een é", "ander", false},
      {"een é", "hard", true},
      {"een é", "zacht", true},
      {"nieuw", "./m/../nieuw", true},
      {"nieuw", "nieuwer", false},
      {"m/nieuw", "n/nieuw", true},
      {"m/nieuw", "nieuw", false},
      {"nieuw", "m/dood", true},
      {"doder", "nieuw", true},
      {"een é", "nieuw", false},
      {"weg/diep/x", "weg/x", false},
      {"weg/diep/../x", "weg/x", true},
      {"m", "n", false},        // a directory cannot be written at all
      {"rond", "rond", false},  // neither can links that go round
  };
  for (const auto& rij : rijen)
    EXPECT_EQ(ZelfdeBestand(map / rij.een, map / rij.ander), rij.zelfde) << rij.een << " " << rij.ander;
  EXPECT_FALSE(ZelfdeBestand("-", "-"));
  EXPECT_FALSE(ZelfdeBestand("/dev/null", "/dev/null"));
}

/// What a plan says of outputs in the directory m that do not exist yet.
std::string Bezwaar(const Proefmap& map, const std::vector<std::string>& namen) {
  Bestandenplan plan;
  try {
    for (const std::string& naam : namen) plan.Schrijft(map / "m/" + naam);
  } catch (const Gebruiksfout& fout) {
    return fout.what();
  }
  return "";
}

TEST(Bestandenplan, CapitalsTellFilesApartWhereTheDirectoryDoes) {
  const Proefmap map;
  fs::create_directory(PadVan(map / "m"));
  EXPECT_EQ(Bezwaar(map, {"x.pdf", "X.PDF"}), "");  // nothing to try it on
  map.ZetBytes("x", "m/proef");
  EXPECT_EQ(Bezwaar(map, {"x.pdf", "X.PDF", "x.Pdf"}), "");
  EXPECT_EQ(Bezwaar(map, {"x.pdf", "X.PDF", "X.PDF"}), map / "m/X.PDF" + " zou twee keer worden geschreven.");
  // As a directory shows it that takes them for the same: the name in other letters leads to the file too.
  fs::create_hard_link(PadVan(map / "m/proef"), PadVan(map / "m/PROEF"));
  EXPECT_EQ(Bezwaar(map, {"x1.bmp", "X1.bmp"}),
            map / "m/x1.bmp" + " en " + map / "m/X1.bmp" + " zijn hetzelfde bestand.");
}

TEST(RekenOpdracht, TwoOutputsThatAreOneFileAreRefusedBeforeEitherIsWritten) {
  const Proefmap map;
  const std::string goed = map.Zet(GoedProject(), "a.mrv");
  map.ZetBytes("oud", "uit");
  fs::create_hard_link(PadVan(map / "uit"), PadVan(map / "link"));
  const Afloop afloop = Reken(map, {goed, "--prn", map / "uit", "--json", map / "link"});
  EXPECT_EQ(afloop.Code, 64);
  EXPECT_THAT(afloop.Err, HasSubstr("--prn en --json noemen hetzelfde bestand."));
  EXPECT_EQ(map.Lees("uit"), "oud");
}

TEST(RekenOpdracht, NeverOverwritesTheSettingsOrTheListThatItReads) {
  const Proefmap map;
  const std::string voor = map.Lees("murvane.set");
  const std::string lijst = map.ZetBytes(map.Zet(GoedProject(), "a.mrv") + "\n", "lijst");
  for (const std::string& uitvoer : {map / "murvane.set", lijst}) {
    const Afloop afloop = Reken(map, {"--lijst", lijst, "--prn", uitvoer});
    EXPECT_EQ(afloop.Code, 64);
    EXPECT_THAT(afloop.Err,
                HasSubstr(uitvoer + " is het bestand dat wordt gelezen en zou worden overschreven.\n"));
  }
  EXPECT_EQ(map.Lees("murvane.set"), voor);
}

TEST(Uitvoermap, FilesThatAreOneAreRefusedBeforeAnythingIsWritten) {
  const Proefmap map;
  const std::string a = map.Zet(GoedProject(), "a.mrv");
  const std::string b = map.Zet(GoedProject(), "b.mrv");
  const std::string voor = map.Lees("a.mrv");
  fs::create_directory(PadVan(map / "u"));
  fs::create_symlink("b.prn", PadVan(map / "u/a.prn"));
  Afloop afloop = Reken(map, {a, b, "--uit", map / "u"});
  EXPECT_EQ(afloop.Code, 64);
  EXPECT_THAT(afloop.Err,
              HasSubstr(map / "u/a.prn" + " en " + map / "u/b.prn" + " zijn hetzelfde bestand.\n"));
  fs::remove(PadVan(map / "u/a.prn"));
  fs::create_symlink("../a.mrv", PadVan(map / "u/b.json"));
  afloop = Reken(map, {a, b, "--uit", map / "u"});
  EXPECT_EQ(afloop.Code, 64);
  EXPECT_THAT(afloop.Err, HasSubstr(map / "u/b.json" +
                                    " is het bestand dat wordt gelezen en zou worden overschreven.\n"));
  EXPECT_EQ(map.Lees("a.mrv"), voor);
  EXPECT_FALSE(map.Heeft("u/a.prn") || map.Heeft("u/a.json") || map.Heeft("u/b.prn"));
}

TEST(Uitvoermap, WrongUseIsToldBeforeTheSettingsAreRead) {
  const Proefmap map;
  const std::string a = map.Zet(GoedProject(), "a.mrv");
  EXPECT_EQ(Draai({"reken", a, a, "--uit", map / "u", "--data", map / "weg"}).Code, 64);
  EXPECT_EQ(Draai({"reken", a, "--uit", map / "u", "--data", map / "weg"}).Code, 1);
  EXPECT_FALSE(map.Heeft("u"));
}

// Results of a project that is now refused, or fails, would pass for its results.

TEST(Uitvoermap, OldResultsOfAProjectThatIsNowRefusedGoAndTheMessageSaysSo) {
  const Proefmap map;
  const std::string a = map.Zet(GoedProject(), "a é.mrv");
  const std::string b = map.Zet(GoedProject(), "b.mrv");
  const std::vector<std::string> regel = {a, b, "--uit", map / "u", "--taken", "2"};
  EXPECT_EQ(Reken(map, regel).Code, 0);
  map.Zet(ZonderElementen(), "a é.mrv");
  const Afloop afloop = Reken(map, regel);
  EXPECT_EQ(afloop.Code, 2);
  EXPECT_EQ(afloop.Err, a + ": Geen kanaalelementen ingevoerd. Oude resultaten verwijderd: " +
                            map / "u/a é.prn" + " en " + map / "u/a é.json" + ".\n");
  EXPECT_FALSE(map.Heeft("u/a é.prn") || map.Heeft("u/a é.json"));
  EXPECT_TRUE(map.Heeft("u/b.prn") && map.Heeft("u/b.json"));
  EXPECT_EQ(Reken(map, regel).Err, a + ": Geen kanaalelementen ingevoerd\n");  // there is nothing left to say
}

TEST(Uitvoermap, OldResultsOfAProjectThatFailsGoToo) {
  const Proefmap map;
  const std::string a = map.Zet(GoedProject(), "a.mrv");
  EXPECT_EQ(Reken(map, {a, "--uit", map / "u"}).Code, 0);
  fs::remove(PadVan(map / "u/a.prn"));
  fs::remove(PadVan(a));
  const Afloop afloop = Reken(map, {a, "--uit", map / "u"});
  EXPECT_EQ(afloop.Code, 1);
  EXPECT_EQ(afloop.Err,
            a + ": Fout 53 - Bestand niet gevonden. Oude resultaten verwijderd: " + map / "u/a.json" + ".\n");
  EXPECT_FALSE(map.Heeft("u/a.json"));
}

TEST(Uitvoermap, OldResultsThatCannotBeRemovedAreToldAsAFault) {
  const Proefmap map;
  const std::string a = map.Zet(ZonderElementen(), "a.mrv");
  fs::create_directory(PadVan(map / "u"));
  map.ZetBytes("oud", "u/a.prn");
  fs::permissions(PadVan(map / "u"), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                         fs::perms::others_exec);
  const std::string verwacht =
      a + ": Geen kanaalelementen ingevoerd. Oude resultaten die niet verwijderd kunnen worden: " +
      map / "u/a.prn" + ".\n";
  const auto probeer = [&] {
    const Afloop afloop = Reken(map, {a, "--uit", map / "u", "--taken", "1"});
    return afloop.Code == 1 && afloop.Err == verwacht ? 0 : 1;
  };
  EXPECT_EQ(proef::AlsGewoneGebruiker(probeer), 0);
  EXPECT_EQ(map.Lees("u/a.prn"), "oud");
}

// Control characters of a stranger's texts.

constexpr std::string_view Gemeen = "A\x1b]0;x\x07\x8d\x7f\tB\nC";
constexpr const char* Getoond = "A\\x1b]0;x\\x07\\x8d\\x7f\\x09B\\x0aC";

TEST(Uitvoerterminal, ShowsTheControlCharactersOfAProjectInItsReport) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(Gemeen), "a.mrv");
  const std::string bytes = Reken(map, {naam}).Uit;
  EXPECT_THAT(bytes, HasSubstr(NaarUtf8(Gemeen)));
  const std::string getoond = Reken(map, {naam}, {.UitTerminal = true}).Uit;
  std::string verwacht = bytes;
  verwacht.replace(verwacht.find(NaarUtf8(Gemeen)), NaarUtf8(Gemeen).size(), Getoond);
  EXPECT_EQ(getoond, verwacht);
  EXPECT_EQ(Reken(map, {naam}, {.Terminal = true}).Uit, bytes);  // only standard error is one
  EXPECT_THAT(Reken(map, {naam, "--prn", "-"}, {.UitTerminal = true}).Uit, HasSubstr(Getoond));
}

TEST(Uitvoerterminal, ShowsThoseOfAListing) {
  const Proefmap map;
  SpectrumCatalogus fans;
  fans.Aantal = 1;
  fans.Records[1].SpecNaam = Gemeen;
  map.ZetBytes(CatalogusBytes(fans), "Fan.dat");
  const std::vector<std::string> regel = {"overzicht", "ventilatoren", "--data", map.Naam()};
  EXPECT_THAT(Draai(regel).Uit, HasSubstr(NaarUtf8(Gemeen)));
  EXPECT_THAT(Draai(regel, {.UitTerminal = true}).Uit, HasSubstr(Getoond));
  EXPECT_EQ(Draai({"catalogus", "toon", map / "Fan.dat"}).Uit,
            Draai({"catalogus", "toon", map / "Fan.dat"}, {.UitTerminal = true}).Uit);
}

TEST(Uitvoerterminal, ShowsThoseOfFileNames) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(), "a\x1b[31m\r\n\u202eb.mrv");
  const std::string getoond = map / "a\\x1b[31m\\x0d\\x0a\\u202eb.mrv";
  EXPECT_EQ(Draai({"controleer", naam}).Uit, naam + ": in orde\n");
  EXPECT_EQ(Draai({"controleer", naam}, {.UitTerminal = true}).Uit, getoond + ": in orde\n");
  EXPECT_THAT(Reken(map, {naam, naam}, {.UitTerminal = true}).Uit,
              testing::StartsWith("==> " + getoond + " <==\r\n"));
}

TEST(Uitvoerterminal, ShowsEverythingElseAsItIs) {
  const Proefmap map;
  const std::string naam = map.Zet(GoedProject(NaarCp1252("Café × €")), "a é.mrv");
  for (const std::vector<std::string>& regel :
       std::vector<std::vector<std::string>>{{"reken", naam, "--data", map.Naam()},
                                             {"toon", naam},
                                             {"controleer", naam},
                                             {"schat", "kanaalwand", "--Dikte", "1"},
                                             {"--help"},
                                             {"--versie"}})
    EXPECT_EQ(Draai(regel, {.UitTerminal = true}).Uit, Draai(regel).Uit) << regel[0];
}

TEST(Foutuitvoer, AlwaysShowsControlCharactersByTheirNumber) {
  const Proefmap map;
  const std::string weg = map / "a\x1b[31m\n\u009b\u202eb.mrv";
  const std::string getoond = map / "a\\x1b[31m\\x0a\\x9b\\u202eb.mrv";
  EXPECT_EQ(Draai({"controleer", weg}).Err, getoond + ": Fout 53 - Bestand niet gevonden.\n");
  EXPECT_EQ(Draai({"\x1b[2J"}).Err, "Onbekende opdracht: \\x1b[2J\nHulp: murvane-cli --help\n");
}

}  // namespace
}  // namespace murvane::clitest
