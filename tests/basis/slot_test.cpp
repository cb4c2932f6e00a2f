#include "basis/slot.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <optional>
#include <thread>

#include "basis/bestand.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/ingreep.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using proef::Aanroep;
using proef::AlsGewoneGebruiker;
using proef::BestandVan;
using proef::Ingreep;
using proef::NummerVan;
using proef::Schrijf;
using proef::TijdelijkeMap;
using testing::ElementsAre;

/// The number of the Fout of somebody who asks for the slot and will not wait; 0 when it is free.
int Vraag(const fs::path& pad) {
  return NummerVan([&] { return Bestandsslot(pad, 0ms), 0; });
}

class Slot : public testing::Test {
 protected:
  Slot() { Schrijf(pad, "inhoud"); }

  TijdelijkeMap map;
  fs::path pad = map / "Fan één.dat";
};

TEST_F(Slot, IsHeldByOneAtATime) {
  {
    const Bestandsslot slot(pad);
    EXPECT_EQ(Vraag(pad), 70);
    EXPECT_EQ(BestandVan([&] { return Bestandsslot(pad, 0ms), 0; }), PadTekst(pad));
    EXPECT_THAT(map.Namen(), ElementsAre("Fan één.dat"));
  }
  EXPECT_EQ(Vraag(pad), 0);
  EXPECT_THAT(map.Namen(), ElementsAre("Fan één.dat"));
}

TEST_F(Slot, IsTheSameUnderEveryNameOfTheFile) {
  fs::create_symlink(pad, map / "link");
  const Bestandsslot slot(map / "link");
  EXPECT_EQ(Vraag(pad), 70);
  Schrijf(map / "een ander", "inhoud");
  EXPECT_EQ(Vraag(map / "een ander"), 0);
}

TEST_F(Slot, IsWaitedForAsLongAsIsAsked) {
  std::optional<Bestandsslot> slot(std::in_place, pad);
  bool gekregen = false;
  int geweigerd = 0;
  std::thread wachter([&] {
    const Ingreep telt(
        [&](Aanroep wat) { return wat == Aanroep::Grendel && ++geweigerd == 3 ? slot.reset(), 0 : 0; });
    const Bestandsslot volgende(pad);
    gekregen = true;
  });
  wachter.join();
  EXPECT_TRUE(gekregen);
  EXPECT_GE(geweigerd, 3);
}

TEST_F(Slot, OfAProcessThatWasKilledBlocksNobody) {
  std::array<int, 2> pijp{};
  ASSERT_EQ(::pipe(pijp.data()), 0);
  const pid_t kind = ::fork();
  if (kind == 0) {
    const Bestandsslot slot(pad);
    const bool gezegd = ::write(pijp[1], "x", 1) == 1;
    for (;;) ::pause();
    ::_exit(gezegd ? 0 : 1);
  }
  char teken = 0;
  ASSERT_EQ(::read(pijp[0], &teken, 1), 1);
  EXPECT_EQ(Vraag(pad), 70);
  ::kill(kind, SIGKILL);
  ::waitpid(kind, nullptr, 0);
  EXPECT_EQ(Vraag(pad), 0);
  EXPECT_THAT(map.Namen(), ElementsAre("Fan één.dat"));
  for (const int kant : pijp) ::close(kant);
}

TEST_F(Slot, GoesOverToTheFileThatTookThePlaceOfTheLockedOne) {
  std::optional<Bestandsslot> eerste(std::in_place, pad);
  std::optional<Bestandsslot> tweede;
  std::thread wachter([&] {
    bool vervangen = false;
    const Ingreep intussen([&](Aanroep wat) {
      if (wat != Aanroep::Grendel || vervangen) return 0;
      vervangen = true;
      VervangBestand(pad, "nieuw");
      eerste.reset();
      return 0;
    });
    tweede.emplace(pad);
  });
  wachter.join();
  EXPECT_EQ(proef::Lees(pad), "nieuw");
  EXPECT_EQ(Vraag(pad), 70);  // the slot is one on the file that stands there
  tweede.reset();
  EXPECT_EQ(Vraag(pad), 0);
}

TEST_F(Slot, IsNoneWhereThereIsNothingToLock) {
  fs::create_directory(map / "map");
  for (const fs::path& ander :
       {map / "weg", map / "weg" / "weg", map / "map", fs::path("/dev/null"), fs::path()}) {
    const Bestandsslot slot(ander);
    EXPECT_EQ(Vraag(ander), 0) << ander;
  }
  EXPECT_THAT(map.Namen(), ElementsAre("Fan één.dat", "map"));
}

TEST_F(Slot, OpensNoPipe) {
  ASSERT_EQ(::mkfifo((map / "pijp").c_str(), 0600), 0);
  const int lezer = ::open((map / "pijp").c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
  int geopend = 0;
  const Ingreep telt([&](Aanroep wat) { return wat == Aanroep::Open ? ++geopend, 0 : 0; });
  const Bestandsslot slot(map / "pijp");
  ::close(lezer);
  EXPECT_EQ(geopend, 0);
}

TEST_F(Slot, MakesNothingImpossibleWhereTheSystemHasNoLocks) {
  for (const auto& [wat, code] : {std::pair{Aanroep::Open, EACCES},
                                  {Aanroep::Open, EROFS},
                                  {Aanroep::Grendel, ENOLCK},
                                  {Aanroep::Grendel, EOPNOTSUPP},
                                  {Aanroep::Grendel, EBADF}}) {
    const Ingreep ingreep([w = wat, c = code](Aanroep dit) { return dit == w ? c : 0; });
    EXPECT_EQ(Vraag(pad), 0) << code;
  }
  fs::permissions(pad, fs::perms(0444));
  EXPECT_EQ(AlsGewoneGebruiker([&] { return Vraag(pad); }), 0);
}

TEST_F(Slot, IsGivenUpOnAFileSystemThatNeverTellsWhichFileItIs) {
  const Ingreep ingreep([](Aanroep wat) { return wat == Aanroep::Stat ? EIO : 0; });
  EXPECT_EQ(NummerVan([&] { return Bestandsslot(pad, 20ms), 0; }), 0);
}

}  // namespace
}  // namespace murvane
