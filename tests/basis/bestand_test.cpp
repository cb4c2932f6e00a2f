#include "basis/bestand.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fstream>
#include <latch>
#include <memory>
#include <set>
#include <thread>
#include <utility>

#include "basis/greep.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/ingreep.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::Aanroep;
using proef::AlsGewoneGebruiker;
using proef::BestandVan;
using proef::Ingreep;
using proef::Lees;
using proef::NummerVan;
using proef::Schijfgrens;
using proef::Schrijf;
using proef::TijdelijkeMap;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view Naam = "kantoor één.mrv";

int Bewaar(const fs::path& pad, std::string_view bytes, Staart staart = Staart::Vervalt) {
  return NummerVan([&] {
    VervangBestand(pad, bytes, staart);
    return 0;
  });
}

int LeesNummer(const fs::path& pad) {
  return NummerVan([&] { return LeesBestand(pad).size(); });
}

mode_t RechtenVan(const fs::path& pad) {
  struct stat is {};
  return ::stat(pad.c_str(), &is) == 0 ? is.st_mode & 07777U : 0;
}

/// The process' mask for new files, put back at the end.
class Masker {
 public:
  explicit Masker(mode_t masker) : oud_(::umask(masker)) {}
  Masker(const Masker&) = delete;
  Masker& operator=(const Masker&) = delete;
  ~Masker() { ::umask(oud_); }

 private:
  mode_t oud_;
};

// Reading.

TEST(LeesBestand, GivesEveryByteOfAFileOfAnySize) {
  const TijdelijkeMap map;
  for (const std::size_t n : {0U, 1U, 65535U, 65536U, 65537U, 200000U}) {
    std::string bytes(n, '\0');
    for (std::size_t i = 0; i < n; ++i) bytes[i] = static_cast<char>(i * 31 % 257);
    Schrijf(map / Naam, bytes);
    EXPECT_EQ(LeesBestand(map / Naam), bytes) << n;
  }
}

TEST(LeesBestand, StopsAtTheBytesAskedFor) {
  const TijdelijkeMap map;
  const std::string bytes = std::string(65536, 'a') + std::string(1000, 'b');
  Schrijf(map / Naam, bytes);
  for (const std::size_t n : {0U, 1U, 65536U, 65537U, 66535U, 66536U, 66537U})
    EXPECT_EQ(LeesBestand(map / Naam, n), bytes.substr(0, n)) << n;
}

TEST(LeesBestand, TellsWhyAFileCannotBeRead) {
  const TijdelijkeMap map;
  Schrijf(map / "bestand", "x");
  fs::create_symlink("rond b", map / "rond a");
  fs::create_symlink("rond a", map / "rond b");
  fs::create_symlink("nergens", map / "los");
  const struct {
    fs::path pad;
    int nummer;
  } rijen[] = {
      {map / "is er niet.mrv", 53},             // the directory is there
      {map / "los", 53},                        // a link to nothing
      {map / "geen map" / "a.mrv", 76},         // no directory
      {map / "bestand" / "a.mrv", 76},          // a file in the place of a directory
      {map.Pad(), 75},                          // a directory
      {map / "rond a", 75},                     // links that go round
      {map / std::string(256, 'n'), 52},        // longer than a name can be
      {"", 52},                                 // no name
      {map / std::string("best\0and", 8), 52},  // the system would read "best"
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(LeesNummer(rij.pad), rij.nummer) << rij.pad;
    EXPECT_EQ(BestandVan([&] { return LeesBestand(rij.pad); }), PadTekst(rij.pad));
  }
}

TEST(LeesBestand, TellsAMissingFileInTheCurrentDirectoryFromAMissingDirectory) {
  EXPECT_EQ(LeesNummer("er is geen bestand van die naam.mrv"), 53);
  EXPECT_EQ(LeesNummer("er is geen map van die naam/a.mrv"), 76);
}

TEST(LeesBestand, IsFout70WithoutPermission) {
  const TijdelijkeMap map;
  Schrijf(map / "dicht", "x");
  fs::permissions(map / "dicht", fs::perms::none);
  fs::create_directory(map / "dichte map");
  Schrijf(map / "dichte map" / "a", "x");
  fs::permissions(map / "dichte map", fs::perms::none);
  EXPECT_EQ(AlsGewoneGebruiker([&] { return LeesNummer(map / "dicht"); }), 70);
  EXPECT_EQ(AlsGewoneGebruiker([&] { return LeesNummer(map / "dichte map" / "a"); }), 70);
  fs::permissions(map / "dichte map", fs::perms::all);
}

TEST(LeesBestand, ReadsAPipeToItsEnd) {
  const TijdelijkeMap map;
  ASSERT_EQ(::mkfifo((map / "pijp").c_str(), 0600), 0);
  const std::string bytes(200000, 'p');
  std::thread schrijver([&] { Schrijf(map / "pijp", bytes); });
  EXPECT_EQ(LeesBestand(map / "pijp"), bytes);
  schrijver.join();
}

TEST(LeesBestand, CarriesOnAfterASignalAndAfterShortReads) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "honderd bytes");
  int i = 0;
  Ingreep ingreep([&i](Aanroep wat) { return wat != Aanroep::Sluit && ++i % 2 == 1 ? EINTR : 0; });
  ingreep.GrootsteStuk = 3;
  EXPECT_EQ(LeesBestand(map / Naam), "honderd bytes");
}

TEST(LeesBestand, IsFout75ForADiskThatFailsHalfway) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "honderd bytes");
  int i = 0;
  Ingreep ingreep([&i](Aanroep wat) { return wat == Aanroep::Lees && ++i == 3 ? EIO : 0; });
  ingreep.GrootsteStuk = 3;
  EXPECT_EQ(LeesNummer(map / Naam), 75);
}

// Reading a file that has to be a regular one.

TEST(LeesInhoud, GivesTheBytesAndTheStampOfAFile) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "honderd bytes");
  const Inhoud inhoud = LeesInhoud(map / Naam);
  EXPECT_EQ(inhoud.Bytes, "honderd bytes");
  EXPECT_EQ(inhoud.Stempel.Grootte, 13U);
  EXPECT_EQ(inhoud.Stempel.Gelezen, 13U);
  EXPECT_EQ(inhoud.Stempel.Hash, HashVan("honderd bytes"));
  struct stat is {};
  ASSERT_EQ(::stat((map / Naam).c_str(), &is), 0);
  EXPECT_EQ(inhoud.Stempel.Tijd, is.st_mtim.tv_sec * 1'000'000'000 + is.st_mtim.tv_nsec);
}

TEST(LeesInhoud, StopsWhereNoProjectOrCatalogueGoes) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, std::string(RuimGenoeg + 5, 'x'));
  const Inhoud inhoud = LeesInhoud(map / Naam);
  EXPECT_EQ(inhoud.Bytes, std::string(RuimGenoeg, 'x'));
  EXPECT_EQ(inhoud.Stempel.Grootte, RuimGenoeg + 5);
  EXPECT_EQ(inhoud.Stempel.Gelezen, RuimGenoeg);
}

TEST(LeesInhoud, IsFout75AtOnceForWhatIsNoRegularFile) {
  const TijdelijkeMap map;
  ASSERT_EQ(::mkfifo((map / "pijp.mrv").c_str(), 0666), 0);  // nobody writes to it
  fs::create_symlink("pijp.mrv", map / "link.mrv");
  fs::create_directory(map / "map.mrv");
  for (const fs::path& pad : {map / "pijp.mrv", map / "link.mrv", map / "map.mrv", fs::path("/dev/zero")}) {
    EXPECT_EQ(NummerVan([&] { return LeesInhoud(pad).Bytes.size(); }), 75) << pad;
    EXPECT_EQ(BestandVan([&] { return LeesInhoud(pad); }), PadTekst(pad));
  }
  EXPECT_EQ(NummerVan([&] { return LeesInhoud(map / "weg").Bytes.size(); }), 53);
  EXPECT_EQ(NummerVan([&] { return LeesInhoud("").Bytes.size(); }), 52);
}

TEST(LeesInhoud, TellsOfAFileThatCannotBeAskedOrRead) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "x");
  for (const Aanroep wat : {Aanroep::Open, Aanroep::FStat, Aanroep::Lees}) {
    const Ingreep ingreep([wat](Aanroep dit) { return dit == wat ? EIO : 0; });
    EXPECT_EQ(NummerVan([&] { return LeesInhoud(map / Naam).Bytes.size(); }), 75);
  }
}

// What a save leaves.

TEST(VervangBestand, GivesANewAndAnExistingFileExactlyTheseBytes) {
  const TijdelijkeMap map;
  const std::string lang(200001, 'l');
  for (const std::string_view bytes :
       {std::string_view("eerste"), std::string_view(lang), std::string_view("kort"),
        std::string_view("even"), std::string_view()}) {
    EXPECT_EQ(Bewaar(map / Naam, bytes), 0);
    EXPECT_EQ(Lees(map / Naam), bytes);
  }
  EXPECT_THAT(map.Namen(), ElementsAre(Naam));
}

TEST(VervangBestand, KeepsTheOldTailOnlyWhenAsked) {
  const TijdelijkeMap map;
  const std::string lang = std::string(70000, 'o') + std::string(130000, 's');
  const struct {
    std::string oud, bytes;
    Staart staart;
    std::string daarna;
  } rijen[] = {
      {"ouder en langer", "nieuw", Staart::Blijft, "nieuw en langer"},
      {"ouder en langer", "nieuw", Staart::Vervalt, "nieuw"},
      {"even", "lang", Staart::Blijft, "lang"},
      {"even", "lang", Staart::Vervalt, "lang"},
      {"kort", "langer", Staart::Blijft, "langer"},
      {"kort", "", Staart::Blijft, "kort"},
      {"kort", "", Staart::Vervalt, ""},
      {"", "nieuw", Staart::Blijft, "nieuw"},
      {"", "", Staart::Blijft, ""},
      {lang, "n", Staart::Blijft, "n" + lang.substr(1)},
  };
  for (const auto& rij : rijen) {
    Schrijf(map / Naam, rij.oud);
    EXPECT_EQ(Bewaar(map / Naam, rij.bytes, rij.staart), 0);
    EXPECT_EQ(Lees(map / Naam), rij.daarna);
  }
  EXPECT_THAT(map.Namen(), ElementsAre(Naam));
}

TEST(VervangBestand, TakesANameWithoutADirectory) {
  const TijdelijkeMap map;
  const fs::path hier = fs::current_path();
  fs::current_path(map.Pad());
  const int nieuw = Bewaar("los.mrv", "nieuw"), weer = Bewaar("los.mrv", "w", Staart::Blijft);
  fs::current_path(hier);
  EXPECT_EQ(nieuw, 0);
  EXPECT_EQ(weer, 0);
  EXPECT_EQ(Lees(map / "los.mrv"), "wieuw");
  EXPECT_THAT(map.Namen(), ElementsAre("los.mrv"));
}

TEST(VervangBestand, KeepsThePermissionsOfTheFile) {
  const TijdelijkeMap map;
  const Masker masker(077);
  for (const mode_t rechten : {0600U, 0644U, 0664U, 0666U, 0755U, 0604U, 0622U}) {
    Schrijf(map / Naam, "oud");
    ASSERT_EQ(::chmod((map / Naam).c_str(), rechten), 0);
    EXPECT_EQ(Bewaar(map / Naam, "nieuw", Staart::Vervalt), 0);
    EXPECT_EQ(RechtenVan(map / Naam), rechten) << std::oct << rechten;
  }
}

TEST(VervangBestand, KeepsTheOwnerAndGroupOfTheFile) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "oud");
  const bool beheerder = ::geteuid() == 0;  // only it can have another's file here
  const uid_t eigenaar = beheerder ? 65533 : ::geteuid();
  const gid_t groep = beheerder ? 65532 : ::getegid();
  ASSERT_EQ(::chown((map / Naam).c_str(), eigenaar, groep), 0);
  EXPECT_EQ(Bewaar(map / Naam, "nieuw"), 0);
  struct stat is {};
  ASSERT_EQ(::stat((map / Naam).c_str(), &is), 0);
  EXPECT_EQ(is.st_uid, eigenaar);
  EXPECT_EQ(is.st_gid, groep);
}

TEST(VervangBestand, GivesNobodyMoreRightsWhereOwnerOrGroupCannotBeKept) {
  const TijdelijkeMap map;
  const struct {
    mode_t was, groepWeg, eigenaarWeg;
  } rijen[] = {
      // The file's new group were "others" before; a program no longer runs as its old owner or group.
      {0660, 0600, 0660}, {0664, 0644, 0664}, {0604, 0644, 0604}, {04755, 04755, 0755}, {02775, 0755, 0775},
  };
  for (const auto& rij : rijen) {
    for (const bool groep : {true, false}) {
      Schrijf(map / Naam, "oud");
      ASSERT_EQ(::chmod((map / Naam).c_str(), rij.was), 0);
      Ingreep ingreep([](Aanroep wat) { return wat == Aanroep::Eigenaar ? EPERM : 0; });
      (groep ? ingreep.AndereGroep : ingreep.AndereEigenaar) = 1;
      EXPECT_EQ(Bewaar(map / Naam, ""), 0);
      EXPECT_EQ(RechtenVan(map / Naam), groep ? rij.groepWeg : rij.eigenaarWeg) << std::oct << rij.was;
    }
  }
}

TEST(VervangBestand, KeepsTheAccessListOfTheFileOrRefuses) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "oud");
  {
    Ingreep ingreep([](Aanroep) { return 0; });
    ingreep.Lijst = std::string("\2\0\0\0lijst", 9);
    EXPECT_EQ(Bewaar(map / Naam, "nieuw"), 0);
    EXPECT_EQ(ingreep.GezetteLijst, ingreep.Lijst);
  }
  Ingreep ingreep([](Aanroep wat) { return wat == Aanroep::Lijst ? EPERM : 0; });
  ingreep.Lijst = "lijst";
  EXPECT_EQ(Bewaar(map / Naam, "nieuwer"), 70);
  EXPECT_EQ(Lees(map / Naam), "nieuw");
  EXPECT_THAT(map.Namen(), ElementsAre(Naam));
}

TEST(VervangBestand, LetsNobodyElseIntoAFileUnderConstruction) {
  const TijdelijkeMap map;
  const Masker masker(0);
  Schrijf(map / Naam, "geheim");
  ASSERT_EQ(::chmod((map / Naam).c_str(), 0600), 0);
  std::vector<mode_t> gezien;
  Ingreep ingreep([&](Aanroep wat) {
    if (wat != Aanroep::Rechten && wat != Aanroep::Schrijf) return 0;
    for (const std::string& naam : map.Namen())
      if (naam != Naam) gezien.push_back(RechtenVan(map / naam));
    return 0;
  });
  EXPECT_EQ(Bewaar(map / Naam, "nieuw geheim"), 0);
  EXPECT_THAT(gezien, ElementsAre(0600U, 0600U));
}

TEST(VervangBestand, GivesANewFileThePermissionsOfAnyNewFile) {
  const TijdelijkeMap map;
  const struct { mode_t masker, rechten; } rijen[] = {{022, 0644}, {027, 0640}, {077, 0600}, {0, 0666}};
  for (const auto& rij : rijen) {
    const Masker masker(rij.masker);
    fs::remove(map / Naam);
    EXPECT_EQ(Bewaar(map / Naam, "nieuw"), 0);
    EXPECT_EQ(RechtenVan(map / Naam), rij.rechten) << std::oct << rij.masker;
  }
}

TEST(VervangBestand, LeavesASecondNameOfTheFileItsOldBytes) {
  const TijdelijkeMap map;
  Schrijf(map / "een", "oud");
  fs::create_hard_link(map / "een", map / "twee");
  EXPECT_EQ(Bewaar(map / "een", "nieuw"), 0);
  EXPECT_EQ(Lees(map / "een"), "nieuw");
  EXPECT_EQ(Lees(map / "twee"), "oud");
}

// Links and special files.

TEST(VervangBestand, WritesBehindSymbolicLinksAndKeepsThem) {
  const TijdelijkeMap map;
  fs::create_directories(map / "hier" / "onder");
  fs::create_directory(map / "daar");
  fs::create_directory_symlink("../daar", map / "hier" / "naar daar");
  const struct {
    fs::path link, wijst, doel;
  } rijen[] = {
      {map / "absoluut", map / "daar" / "a.mrv", map / "daar" / "a.mrv"},
      {map / "hier" / "naast", "b.mrv", map / "hier" / "b.mrv"},
      {map / "hier" / "omhoog", "../daar/c.mrv", map / "daar" / "c.mrv"},
      {map / "hier" / "onder" / "ver", "../../daar/./d.mrv", map / "daar" / "d.mrv"},
      {map / "hier" / "via", "naar daar/e.mrv", map / "daar" / "e.mrv"},
      {map / "keten", "hier/omhoog", map / "daar" / "c.mrv"},  // a link to the third row's link
  };
  for (const auto& rij : rijen) {
    fs::create_symlink(rij.wijst, rij.link);
    EXPECT_EQ(Bewaar(rij.link, "de eerste"), 0) << rij.link;  // to nothing yet, but for the last row
    EXPECT_EQ(Lees(rij.doel), "de eerste");
    EXPECT_EQ(Bewaar(rij.link, "tw", Staart::Blijft), 0);
    EXPECT_EQ(Lees(rij.doel), "tw eerste");
    EXPECT_EQ(fs::read_symlink(rij.link), rij.wijst);
  }
  EXPECT_EQ(Bewaar(map / "hier" / "naar daar" / "e.mrv", "in een map achter een link"), 0);
  EXPECT_EQ(Lees(map / "daar" / "e.mrv"), "in een map achter een link");
  EXPECT_TRUE(fs::is_symlink(map / "hier" / "naar daar"));
  EXPECT_THAT(map.Namen(), ElementsAre("absoluut", "daar", "hier", "keten"));
  EXPECT_EQ(std::distance(fs::directory_iterator(map / "daar"), {}), 4);  // a, c, d and e
}

TEST(VervangBestand, RefusesLinksThatGoRoundOrNowhere) {
  const TijdelijkeMap map;
  fs::create_symlink("b", map / "a");
  fs::create_symlink("a", map / "b");
  fs::create_symlink("zelf", map / "zelf");
  fs::create_symlink("geen map/c.mrv", map / "los");
  fs::create_symlink("zelf/d.mrv", map / "in zelf");
  const auto namen = map.Namen();
  EXPECT_EQ(Bewaar(map / "a", "x"), 75);
  EXPECT_EQ(Bewaar(map / "zelf", "x"), 75);
  EXPECT_EQ(Bewaar(map / "in zelf", "x"), 75);
  EXPECT_EQ(Bewaar(map / "los", "x"), 76);
  EXPECT_EQ(BestandVan([&] { return VervangBestand(map / "los", "x"), 0; }), PadTekst(map / "los"));
  for (const char* naam : {"a", "b", "zelf", "los", "in zelf"})
    EXPECT_TRUE(fs::is_symlink(map / naam)) << naam;
  EXPECT_EQ(map.Namen(), namen);
}

TEST(VervangBestand, FollowsAsManyLinksAsTheSystemDoes) {
  const TijdelijkeMap map;
  for (int i = 1; i <= 41; ++i)
    fs::create_symlink("link" + std::to_string(i - 1), map / ("link" + std::to_string(i)));
  EXPECT_EQ(Bewaar(map / "link40", "bereikt"), 0);
  EXPECT_EQ(Lees(map / "link0"), "bereikt");
  EXPECT_EQ(Bewaar(map / "link41", "te ver"), 75);
  EXPECT_EQ(Lees(map / "link0"), "bereikt");
}

// The system's protection of links in shared directories is its own: /proc/sys/fs/protected_symlinks.
TEST(VervangBestand, LeavesItToTheSystemWhoseLinksAreFollowed) {
  const TijdelijkeMap map;
  fs::permissions(map.Pad(), fs::perms::all | fs::perms::sticky_bit);
  fs::create_directory(map / "doel");
  fs::permissions(map / "doel", fs::perms::all);
  Schrijf(map / "doel" / "er al", "oud");
  fs::permissions(map / "doel" / "er al", fs::perms(0666));
  const bool beheerder = ::geteuid() == 0;  // only it can have another's link here
  bool beschermd = false;
  std::ifstream("/proc/sys/fs/protected_symlinks") >> beschermd;
  for (const char* naam : {"er al", "nog niet"}) {
    fs::create_symlink(fs::path("doel") / naam, map / naam);
    EXPECT_TRUE(!beheerder || ::lchown((map / naam).c_str(), 65533, 65533) == 0);
    const int nummer = AlsGewoneGebruiker([&] { return Bewaar(map / naam, "nieuw"); });
    EXPECT_EQ(nummer, beheerder && beschermd ? 70 : 0) << naam;
  }
}

TEST(VervangBestand, FollowsNoLinkThatTheSystemRefuses) {
  const TijdelijkeMap map;
  Schrijf(map / "doel", "oud");
  fs::create_symlink("doel", map / "link");
  fs::create_symlink("nog niet", map / "los");
  for (const char* naam : {"link", "los"}) {
    int geopend = 0;
    const Ingreep ingreep([&](Aanroep wat) { return wat == Aanroep::Open && ++geopend == 1 ? EACCES : 0; });
    EXPECT_EQ(Bewaar(map / naam, "nieuw"), 70);
    EXPECT_EQ(geopend, 1);
  }
  EXPECT_EQ(Lees(map / "doel"), "oud");
  EXPECT_THAT(map.Namen(), ElementsAre("doel", "link", "los"));
}

TEST(VervangBestand, LeavesNothingBehindALinkToNothingWhenItFails) {
  const TijdelijkeMap map;
  fs::create_symlink("nog niet", map / "los");
  for (const Aanroep wat : {Aanroep::LStat, Aanroep::Schrijf, Aanroep::Leeg, Aanroep::Hernoem}) {
    const Ingreep ingreep([wat](Aanroep dit) { return dit == wat ? EIO : 0; });
    EXPECT_EQ(Bewaar(map / "los", "nieuw"), 75);
    EXPECT_THAT(map.Namen(), ElementsAre("los")) << static_cast<int>(wat);
  }
}

// The text of such a link is that of the old name and " (deleted)".
TEST(VervangBestand, RefusesAFileThatHasNoNameAnyMore) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "oud");
  const int nummer = ::open((map / Naam).c_str(), O_RDWR | O_CLOEXEC);
  fs::remove(map / Naam);
  EXPECT_EQ(Bewaar("/proc/self/fd/" + std::to_string(nummer), "nieuw"), 75);
  ::close(nummer);
  EXPECT_THAT(map.Namen(), IsEmpty());
}

TEST(VervangBestand, WritesStraightToWhatIsNotARegularFile) {
  const TijdelijkeMap map;
  fs::create_symlink("/dev/null", map / "niets");
  EXPECT_EQ(Bewaar("/dev/null", "weg"), 0);
  EXPECT_EQ(Bewaar(map / "niets", "weg", Staart::Blijft), 0);
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_TRUE(fs::is_symlink(map / "niets"));

  ASSERT_EQ(::mkfifo((map / "pijp").c_str(), 0600), 0);
  const int lezer = ::open((map / "pijp").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  EXPECT_EQ(Bewaar(map / "pijp", "door de pijp"), 0);
  std::array<char, 100> uit{};
  EXPECT_EQ(::read(lezer, uit.data(), uit.size()), 12);
  ::close(lezer);
  EXPECT_STREQ(uit.data(), "door de pijp");
  EXPECT_TRUE(fs::is_fifo(map / "pijp"));
  EXPECT_THAT(map.Namen(), ElementsAre("niets", "pijp"));
}

TEST(VervangBestand, WritesToAPipeBehindALinkThatOnlyTheSystemCanFollow) {
  std::array<int, 2> pijp{};
  ASSERT_EQ(::pipe(pijp.data()), 0);
  const fs::path link =
      "/proc/self/fd/" + std::to_string(pijp[1]);  // reads as "pipe:[12345]", like /dev/stdout
  EXPECT_EQ(Bewaar(link, "door de pijp"), 0);
  std::array<char, 100> uit{};
  EXPECT_EQ(::read(pijp[0], uit.data(), uit.size()), 12);
  EXPECT_STREQ(uit.data(), "door de pijp");
  for (const int kant : pijp) ::close(kant);
}

TEST(VervangBestand, TellsWhyADeviceTakesNoBytes) {
  const TijdelijkeMap map;
  fs::create_symlink("/dev/full", map / "vol");
  EXPECT_EQ(Bewaar("/dev/full", "x"), 61);
  EXPECT_EQ(Bewaar(map / "vol", "x"), 61);
  EXPECT_EQ(BestandVan([&] { return VervangBestand(map / "vol", "x"), 0; }), PadTekst(map / "vol"));
  for (const Aanroep wat : {Aanroep::Open, Aanroep::Schrijf, Aanroep::Sluit}) {
    Ingreep ingreep([wat](Aanroep dit) { return dit == wat ? EIO : 0; });
    EXPECT_EQ(Bewaar("/dev/null", "x"), 75);
  }
}

TEST(VervangBestand, CannotWriteToASocket) {
  const TijdelijkeMap map;
  const int nummer = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_un adres{};
  adres.sun_family = AF_UNIX;
  const std::string pad = (map / "s").string();
  ASSERT_LT(pad.size(), sizeof adres.sun_path);
  std::memcpy(adres.sun_path, pad.c_str(), pad.size() + 1);
  ASSERT_EQ(::bind(nummer, reinterpret_cast<const sockaddr*>(&adres), sizeof adres), 0);
  EXPECT_EQ(Bewaar(map / "s", "x"), 75);
  ::close(nummer);
  EXPECT_TRUE(fs::is_socket(map / "s"));
  EXPECT_THAT(map.Namen(), ElementsAre("s"));
}

// What a save refuses.

TEST(VervangBestand, TellsWhyAFileCannotBeSaved) {
  const TijdelijkeMap map;
  Schrijf(map / "bestand", "oud");
  fs::create_directory(map / "een map.mrv");
  fs::create_directory_symlink("een map.mrv", map / "link.mrv");
  const auto namen = map.Namen();
  const struct {
    fs::path pad;
    int nummer;
  } rijen[] = {
      {map / "geen map" / "a.mrv", 76},
      {map / "bestand" / "a.mrv", 76},
      {map / "een map.mrv", 75},
      {map / "een map.mrv" / "", 75},
      {map / "link.mrv", 75},
      {map / std::string(256, 'n'), 52},
      {map / (std::string(252, 'n') + ".mrv"), 52},
      {"", 52},
      {map / std::string("best\0and.mrv", 12), 52},  // the system would write "best"
  };
  for (const auto& rij : rijen) {
    for (const Staart staart : {Staart::Vervalt, Staart::Blijft})
      EXPECT_EQ(Bewaar(rij.pad, "nieuw", staart), rij.nummer) << rij.pad;
    EXPECT_EQ(BestandVan([&] { return VervangBestand(rij.pad, "x"), 0; }), PadTekst(rij.pad));
  }
  EXPECT_EQ(map.Namen(), namen);
  EXPECT_EQ(Lees(map / "bestand"), "oud");
  EXPECT_TRUE(fs::is_empty(map / "een map.mrv"));
}

TEST(VervangBestand, TakesTheLongestName) {
  const TijdelijkeMap map;
  const std::string naam = std::string(251, 'n') + ".mrv";  // 255 bytes
  EXPECT_EQ(Bewaar(map / naam, "nieuw"), 0);
  EXPECT_EQ(Bewaar(map / naam, "weer", Staart::Blijft), 0);
  EXPECT_EQ(Lees(map / naam), "weerw");
}

TEST(VervangBestand, LeavesAFileAloneThatIsNotOursToWrite) {
  const TijdelijkeMap map;
  Schrijf(map / "alleen lezen", "oud");
  fs::permissions(map / "alleen lezen", fs::perms(0444));
  fs::create_symlink("alleen lezen", map / "link");
  const auto namen = map.Namen();
  for (const char* naam : {"alleen lezen", "link"}) {
    for (const Staart staart : {Staart::Vervalt, Staart::Blijft})
      EXPECT_EQ(AlsGewoneGebruiker([&] { return Bewaar(map / naam, "nieuw", staart); }), 70) << naam;
  }
  EXPECT_EQ(Lees(map / "alleen lezen"), "oud");
  EXPECT_EQ(RechtenVan(map / "alleen lezen"), 0444U);
  EXPECT_EQ(map.Namen(), namen);
}

TEST(VervangBestand, LeavesADirectoryAloneThatIsNotOursToWrite) {
  const TijdelijkeMap map;
  fs::create_directory(map / "archief");
  Schrijf(map / "archief" / "a.mrv", "oud");
  fs::permissions(map / "archief" / "a.mrv", fs::perms(0666));
  fs::permissions(map / "archief", fs::perms(0555));
  fs::create_directory(map / "dicht");
  fs::permissions(map / "dicht", fs::perms(0600));
  EXPECT_EQ(AlsGewoneGebruiker([&] { return Bewaar(map / "archief" / "a.mrv", "nieuw"); }), 70);
  EXPECT_EQ(AlsGewoneGebruiker([&] { return Bewaar(map / "archief" / "b.mrv", "nieuw"); }), 70);
  EXPECT_EQ(AlsGewoneGebruiker([&] { return Bewaar(map / "dicht" / "c.mrv", "nieuw"); }), 70);
  fs::permissions(map / "archief", fs::perms::all);
  fs::permissions(map / "dicht", fs::perms::all);
  EXPECT_EQ(Lees(map / "archief" / "a.mrv"), "oud");
  EXPECT_EQ(std::distance(fs::directory_iterator(map / "archief"), {}), 1);
  EXPECT_TRUE(fs::is_empty(map / "dicht"));
}

TEST(VervangBestand, CannotKeepATailThatItMayNotRead) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "oud en lang");
  fs::permissions(map / Naam, fs::perms(0222));
  EXPECT_EQ(AlsGewoneGebruiker([&] { return Bewaar(map / Naam, "nieuw", Staart::Blijft); }), 70);
  EXPECT_EQ(RechtenVan(map / Naam), 0222U);
  fs::permissions(map / Naam, fs::perms(0666));
  EXPECT_EQ(Lees(map / Naam), "oud en lang");
  EXPECT_THAT(map.Namen(), ElementsAre(Naam));
}

// Failures half-way.

TEST(VervangBestand, LeavesTheOldFileWhenTheDiskIsFullAtAnyByte) {
  const TijdelijkeMap map;
  const std::string oud(300, 'o'), nieuw(200, 'n');
  const struct {
    Staart staart;
    std::size_t lengte;  // of the file that has to be written
  } rijen[] = {{Staart::Vervalt, 200}, {Staart::Blijft, 300}};
  for (const auto& rij : rijen) {
    Schrijf(map / Naam, oud);
    for (std::size_t n = 0; n < rij.lengte; ++n) {
      const int nummer = [&] {
        const Schijfgrens grens(n);
        return Bewaar(map / Naam, nieuw, rij.staart);
      }();
      ASSERT_EQ(nummer, 61) << n;
      ASSERT_EQ(Lees(map / Naam), oud) << n;
      ASSERT_THAT(map.Namen(), ElementsAre(Naam)) << n;
    }
    const Schijfgrens grens(rij.lengte);
    EXPECT_EQ(Bewaar(map / Naam, nieuw, rij.staart), 0);
    EXPECT_EQ(fs::file_size(map / Naam), rij.lengte);
  }
}

TEST(VervangBestand, LeavesNoNewFileWhenTheDiskIsFullAtAnyByte) {
  const TijdelijkeMap map;
  for (std::size_t n = 0; n < 200; ++n) {
    const Schijfgrens grens(n);
    ASSERT_EQ(Bewaar(map / Naam, std::string(200, 'n')), 61) << n;
    ASSERT_THAT(map.Namen(), IsEmpty()) << n;
  }
}

/// One failing system call of a save of 3 new bytes over an old file of 6 whose tail stays. Its calls are:
/// Open 1, LeesLink, LStat, FStat 1, Sluit 1   the old file, which may be written, and where it stands; the
///                   last three are asked in another way when one fails
/// Open 2, Grendel   the new file; then Stat, FStat 2 and Rechten
/// Schrijf 1         the new bytes
/// Open 3, Zoek 1, Lees 1, Schrijf 2, Lees 2, Sluit 2   the old tail
/// Leeg 1, Sluit 3, Hernoem 1
/// Open 4, Leeg 2, Sluit 4   the directory
struct Hapering {
  Aanroep wat;
  int hoeveelste;
  int code;
  int nummer;  // the Fout, or 0 when the save succeeds all the same
};

constexpr Hapering Haperingen[] = {
    {Aanroep::Open, 1, EACCES, 70},    {Aanroep::Open, 1, EROFS, 70},      {Aanroep::Open, 1, ETXTBSY, 75},
    {Aanroep::Open, 1, EMFILE, 75},    {Aanroep::Open, 1, EINTR, 0},       {Aanroep::Sluit, 1, EIO, 0},
    {Aanroep::Open, 2, ENOSPC, 61},    {Aanroep::Open, 2, EDQUOT, 61},     {Aanroep::Open, 2, EACCES, 70},
    {Aanroep::Open, 2, EMFILE, 75},    {Aanroep::Open, 2, EINVAL, 52},     {Aanroep::Open, 2, EILSEQ, 52},
    {Aanroep::Open, 2, EINTR, 0},      {Aanroep::Open, 2, EEXIST, 0},      {Aanroep::Stat, 1, EIO, 75},
    {Aanroep::LeesLink, 1, ENOENT, 0}, {Aanroep::LStat, 1, EIO, 0},        {Aanroep::FStat, 1, EIO, 0},
    {Aanroep::Open, 1, ELOOP, 75},     {Aanroep::Open, 1, EWOULDBLOCK, 0}, {Aanroep::Grendel, 1, ENOLCK, 0},
    {Aanroep::Grendel, 1, EINTR, 0},   {Aanroep::FStat, 2, EIO, 75},       {Aanroep::Rechten, 1, EPERM, 70},
    {Aanroep::Rechten, 1, EIO, 75},    {Aanroep::Schrijf, 1, ENOSPC, 61},  {Aanroep::Schrijf, 1, EDQUOT, 61},
    {Aanroep::Schrijf, 1, EFBIG, 61},  {Aanroep::Schrijf, 1, EIO, 75},     {Aanroep::Schrijf, 1, EINTR, 0},
    {Aanroep::Open, 3, EACCES, 70},    {Aanroep::Open, 3, EMFILE, 75},     {Aanroep::Zoek, 1, EIO, 75},
    {Aanroep::Lees, 1, EIO, 75},       {Aanroep::Lees, 1, EINTR, 0},       {Aanroep::Lees, 2, EIO, 75},
    {Aanroep::Schrijf, 2, ENOSPC, 61}, {Aanroep::Schrijf, 2, EIO, 75},     {Aanroep::Sluit, 2, EIO, 0},
    {Aanroep::Leeg, 1, EIO, 75},       {Aanroep::Leeg, 1, ENOSPC, 61},     {Aanroep::Leeg, 1, EDQUOT, 61},
    {Aanroep::Leeg, 1, EINTR, 0},      {Aanroep::Sluit, 3, EIO, 75},       {Aanroep::Sluit, 3, ENOSPC, 61},
    {Aanroep::Sluit, 3, EDQUOT, 61},   {Aanroep::Sluit, 3, EINTR, 0},      {Aanroep::Hernoem, 1, EACCES, 70},
    {Aanroep::Hernoem, 1, EPERM, 70},  {Aanroep::Hernoem, 1, EROFS, 70},   {Aanroep::Hernoem, 1, EBUSY, 75},
    {Aanroep::Hernoem, 1, EXDEV, 75},  {Aanroep::Hernoem, 1, ENOSPC, 61},  {Aanroep::Hernoem, 1, EISDIR, 75},
    {Aanroep::Open, 4, EACCES, 0},     {Aanroep::Leeg, 2, EINVAL, 0},      {Aanroep::Sluit, 4, EIO, 0}};

TEST(VervangBestand, LeavesTheOldFileOrTheNewOneWhenASystemCallFails) {
  for (const auto& [wat, hoeveelste, code, nummer] : Haperingen) {
    SCOPED_TRACE(testing::Message() << "call " << static_cast<int>(wat) << ", number " << hoeveelste << ", "
                                    << std::strerror(code));
    const TijdelijkeMap map;
    Schrijf(map / Naam, "oudere");
    int geteld = 0;
    {
      Ingreep ingreep(
          [&, w = wat, h = hoeveelste, c = code](Aanroep dit) { return dit == w && ++geteld == h ? c : 0; });
      EXPECT_EQ(Bewaar(map / Naam, "NIE", Staart::Blijft), nummer);
    }
    EXPECT_GE(geteld, hoeveelste);  // or nothing failed
    EXPECT_EQ(Lees(map / Naam), nummer == 0 ? "NIEere" : "oudere");
    EXPECT_THAT(map.Namen(), ElementsAre(Naam));
  }
}

TEST(VervangBestand, LeavesNoNewFileWhenASystemCallFails) {
  const TijdelijkeMap map;
  const struct {
    Aanroep wat;
    int code, nummer;
  } rijen[] = {{Aanroep::Open, ENOSPC, 61},
               {Aanroep::Schrijf, ENOSPC, 61},
               {Aanroep::Leeg, EIO, 75},
               {Aanroep::Sluit, EDQUOT, 61},
               {Aanroep::Hernoem, EACCES, 70}};
  for (const auto& rij : rijen) {
    Ingreep ingreep([&rij](Aanroep dit) { return dit == rij.wat ? rij.code : 0; });
    EXPECT_EQ(Bewaar(map / Naam, "nieuw"), rij.nummer);
    EXPECT_THAT(map.Namen(), IsEmpty());
  }
}

TEST(VervangBestand, PassesOverAFileSystemWithoutPermissionsOfItsOwn) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "oud");
  fs::permissions(map / Naam, fs::perms(0600));  // as the new file has them without asking
  Ingreep ingreep([](Aanroep wat) { return wat == Aanroep::Rechten ? EPERM : 0; });
  EXPECT_EQ(Bewaar(map / Naam, "nieuw"), 0);
  EXPECT_EQ(Lees(map / Naam), "nieuw");
}

TEST(VervangBestand, CarriesOnAfterShortWrites) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "een oude staart die blijft");
  Ingreep ingreep([](Aanroep) { return 0; });
  ingreep.GrootsteStuk = 1;
  EXPECT_EQ(Bewaar(map / Naam, "de nieuwe kop", Staart::Blijft), 0);
  EXPECT_EQ(Lees(map / Naam), "de nieuwe koprt die blijft");
}

TEST(VervangBestand, FlushesTheFileBeforeItTakesItsName) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "oud");
  std::string volgorde;
  Ingreep ingreep([&volgorde](Aanroep wat) {
    if (wat == Aanroep::Schrijf) volgorde += 's';
    if (wat == Aanroep::Leeg) volgorde += 'l';
    if (wat == Aanroep::Hernoem) volgorde += 'h';
    return 0;
  });
  EXPECT_EQ(Bewaar(map / Naam, "nieuw"), 0);
  EXPECT_EQ(volgorde, "slhl");  // the last one is the directory's
}

TEST(VervangBestand, TriesAnotherNameBesideTheFileWhenOneIsTaken) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, "oud");
  const auto bewaar = [&](int bezet) {
    int open = 0;  // the first one is that of the old file
    const Ingreep ingreep(
        [&](Aanroep wat) { return wat == Aanroep::Open && ++open > 1 && open <= 1 + bezet ? EEXIST : 0; });
    return Bewaar(map / Naam, "nieuw");
  };
  EXPECT_EQ(bewaar(99), 0);
  EXPECT_EQ(Lees(map / Naam), "nieuw");
  EXPECT_EQ(bewaar(1000), 75);
  EXPECT_THAT(map.Namen(), ElementsAre(Naam));
}

TEST(VervangBestand, NamesNoFileBesideItselfTwice) {
  std::set<std::string> namen;
  for (int i = 0; i < 10000; ++i) namen.insert(EigenNaam());
  EXPECT_EQ(namen.size(), 10000U);
  EXPECT_TRUE(namen.begin()->starts_with(std::to_string(::getpid()) + "-"));
}

// All of them stand between opening their new file and writing it at the same moment.
TEST(VervangBestand, Saves256FilesOfOneDirectoryAtOnce) {
  constexpr int Draden = 256;
  const TijdelijkeMap map;
  std::latch allen(Draden);
  std::array<int, Draden> fouten{};
  std::vector<std::thread> draden;
  for (int i = 0; i < Draden; ++i) {
    draden.emplace_back([&, i] {
      const Ingreep ingreep([&allen](Aanroep wat) {
        if (wat == Aanroep::Schrijf) allen.arrive_and_wait();
        return 0;
      });
      fouten[static_cast<std::size_t>(i)] = Bewaar(map / ("p" + std::to_string(i)), std::to_string(i));
      if (fouten[static_cast<std::size_t>(i)] != 0) allen.count_down();
    });
  }
  for (std::thread& draad : draden) draad.join();
  EXPECT_EQ(fouten, (std::array<int, Draden>{}));
  EXPECT_EQ(map.Namen().size(), static_cast<std::size_t>(Draden));
  for (int i = 0; i < Draden; ++i) EXPECT_EQ(Lees(map / ("p" + std::to_string(i))), std::to_string(i));
}

// What killed saves left.

/// A file that was written so many hours ago.
fs::path Rest(const TijdelijkeMap& map, std::string_view naam, int uren) {
  Schrijf(map / naam, "rest");
  fs::last_write_time(map / naam, fs::file_time_type::clock::now() - std::chrono::hours(uren));
  return map / naam;
}

TEST(RuimRestenOp, RemovesWhatNobodyTouchedForADay) {
  const TijdelijkeMap map;
  Rest(map, "~murvane-1-0", 25);
  Rest(map, "~murvane-4711-00112233aabbccdd", 1000);
  Rest(map, "~murvane-1-1", 23);
  Rest(map, "~murvane", 25);
  Rest(map, "murvane-1-2", 25);
  Rest(map, "kantoor.mrv", 25);
  Rest(map, "oud", 25);
  fs::create_symlink("oud", map / "~murvane-link");
  fs::create_directory(map / "~murvane-map");
  fs::last_write_time(map / "~murvane-map", fs::file_time_type::clock::now() - std::chrono::hours(25));
  ASSERT_EQ(::mkfifo((map / "~murvane-pijp").c_str(), 0600), 0);
  const auto bezet = Rest(map, "~murvane-bezet", 25);
  const int nummer = ::open(bezet.c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_EQ(::flock(nummer, LOCK_EX), 0);
  RuimRestenOp(map.Pad());
  ::close(nummer);
  EXPECT_THAT(map.Namen(), ElementsAre("kantoor.mrv", "murvane-1-2", "oud", "~murvane", "~murvane-1-1",
                                       "~murvane-bezet", "~murvane-link", "~murvane-map", "~murvane-pijp"));
  RuimRestenOp(map / "geen map");
}

TEST(RuimRestenOp, LeavesWhatItCannotAskAfter) {
  const TijdelijkeMap map;
  Rest(map, "~murvane-1-0", 25);
  for (const auto& [wat, code] :
       {std::pair{Aanroep::Open, EACCES}, {Aanroep::FStat, EIO}, {Aanroep::Grendel, ENOLCK}}) {
    const Ingreep ingreep([w = wat, c = code](Aanroep dit) { return dit == w ? c : 0; });
    RuimRestenOp(map.Pad());
    EXPECT_THAT(map.Namen(), ElementsAre("~murvane-1-0"));
  }
}

TEST(RuimRestenOp, IsDoneByTheNextSaveBesideThem) {
  const TijdelijkeMap map;
  fs::create_directory(map / "daar");
  fs::create_symlink("daar/a.mrv", map / "link.mrv");
  for (const char* naam : {"nieuw.mrv", "daar/a.mrv", "link.mrv"}) {
    Rest(map, "daar/~murvane-1-0", 25);
    Rest(map, "~murvane-1-0", 25);
    EXPECT_EQ(Bewaar(map / naam, "x"), 0);
    const bool daar = fs::path(naam) != "nieuw.mrv";
    EXPECT_EQ(fs::exists(map / "daar/~murvane-1-0"), !daar) << naam;
    EXPECT_EQ(fs::exists(map / "~murvane-1-0"), daar) << naam;
  }
  Rest(map, "~murvane-1-0", 25);
  VervangBestand(map / "nieuw.mrv", "y", Staart::Vervalt, Resten::Blijven);
  EXPECT_TRUE(fs::exists(map / "~murvane-1-0"));
}

TEST(RuimRestenOp, LeavesAFileThatIsBeingWrittenForMoreThanADay) {
  const TijdelijkeMap map;
  int gezien = 0;
  bool bezig = false;
  Ingreep ingreep([&](Aanroep wat) {
    if (wat != Aanroep::Leeg || bezig) return 0;
    bezig = true;  // what follows is watched too
    for (const std::string& naam : map.Namen()) {
      fs::last_write_time(map / naam, fs::file_time_type::clock::now() - std::chrono::hours(25));
      RuimRestenOp(map.Pad());
      gezien += fs::exists(map / naam) ? 1 : 0;
    }
    return 0;
  });
  EXPECT_EQ(Bewaar(map / Naam, "nieuw"), 0);
  EXPECT_EQ(gezien, 1);
}

// A program that is killed.

/// Runs `roep` in a process of its own; whether that was killed.
bool Gedood(const std::function<void()>& roep) {
  const pid_t kind = ::fork();
  if (kind == 0) {
    roep();
    ::_exit(0);
  }
  int status = 0;
  return ::waitpid(kind, &status, 0) == kind && WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
}

TEST(VervangBestand, LeavesTheOldFileOrTheNewOneWhenKilledAtAnySystemCall) {
  const std::string oud = "de oude inhoud, die een staart heeft", nieuw = "de nieuwe inhoud";
  const std::string daarna = nieuw + oud.substr(nieuw.size());
  bool zagOud = false, zagNieuw = false;
  for (int k = 1;; ++k) {
    ASSERT_LT(k, 100);
    const TijdelijkeMap map;
    Schrijf(map / Naam, oud);
    const bool gedood = Gedood([&] {
      int geteld = 0;
      Ingreep ingreep([&](Aanroep) { return ++geteld == k ? ::kill(::getpid(), SIGKILL) : 0; });
      ingreep.GrootsteStuk = 3;
      VervangBestand(map / Naam, nieuw, Staart::Blijft);
    });
    const std::string staat = Lees(map / Naam);
    if (!gedood) {
      EXPECT_EQ(staat, daarna);
      break;
    }
    ASSERT_TRUE(staat == oud || staat == daarna) << k << ": " << staat;
    (staat == oud ? zagOud : zagNieuw) = true;
    EXPECT_EQ(Bewaar(map / Naam, "weer"), 0);
    EXPECT_LE(map.Namen().size(), 2U);
  }
  EXPECT_TRUE(zagOud);
  EXPECT_TRUE(zagNieuw);
}

TEST(VervangBestand, LeavesTheOldFileOrTheNewOneWhenKilledAtAnyTime) {
  const TijdelijkeMap map;
  const std::string een(150000, '1'), twee(90000, '2');
  Schrijf(map / Naam, een);
  std::uint32_t toeval = 12345;
  for (int ronde = 0; ronde < 60; ++ronde) {
    const pid_t kind = ::fork();
    if (kind == 0) {
      for (;;) {
        VervangBestand(map / Naam, twee);
        VervangBestand(map / Naam, een);
      }
    }
    toeval = toeval * 1664525U + 1013904223U;
    ::usleep(toeval >> 20U);  // at most 4 ms
    ::kill(kind, SIGKILL);
    ::waitpid(kind, nullptr, 0);
    const std::string staat = Lees(map / Naam);
    ASSERT_TRUE(staat == een || staat == twee) << staat.size() << " bytes in round " << ronde;
  }
  EXPECT_EQ(Bewaar(map / Naam, "klaar"), 0);
  EXPECT_EQ(Lees(map / Naam), "klaar");
}

TEST(VervangBestand, ShowsReadersAWholeFileWhileSeveralSave) {
  const TijdelijkeMap map;
  Schrijf(map / Naam, std::string(70000, 'a'));
  std::atomic<bool> klaar = false, heel = true;
  std::thread lezer([&] {
    while (!klaar) {
      const std::string staat = LeesBestand(map / Naam);
      if (staat.size() != 70000 || staat.find_first_not_of(staat[0]) != std::string::npos) heel = false;
    }
  });
  std::vector<std::thread> schrijvers;
  for (const char letter : {'b', 'c', 'd'}) {
    schrijvers.emplace_back([&map, letter] {
      for (int i = 0; i < 20; ++i) VervangBestand(map / Naam, std::string(70000, letter));
    });
  }
  for (std::thread& schrijver : schrijvers) schrijver.join();
  klaar = true;
  lezer.join();
  EXPECT_TRUE(heel);
  EXPECT_THAT(map.Namen(), ElementsAre(Naam));
}

// A number that is closed twice may by then be the file of another thread.
TEST(VervangBestand, ClosesEveryHandleOnce) {
  const TijdelijkeMap map;
  const std::string lang(150000, 'x');
  for (const bool sluitenFaalt : {false, true}) {
    Ingreep ingreep([&](Aanroep wat) { return sluitenFaalt && wat == Aanroep::Sluit ? EIO : 0; });
    Bewaar(map / Naam, lang);
    Bewaar(map / Naam, "kort", Staart::Blijft);
    Bewaar("/dev/null", "weg");
    LeesNummer(map / Naam);
    EXPECT_EQ(ingreep.DubbelGesloten, 0) << sluitenFaalt;
  }
}

// Paths.

TEST(Pad, TravelsThroughUtf8) {
  EXPECT_EQ(PadTekst(PadVan("één map/µ 100%.mrv")), "één map/µ 100%.mrv");
  EXPECT_EQ(PadVan(""), fs::path());
}

TEST(ProgrammaMap, IsTheDirectoryOfTheRunningProgram) {
  EXPECT_EQ(ProgrammaMap(), fs::canonical("/proc/self/exe").parent_path());
}

}  // namespace
}  // namespace murvane
