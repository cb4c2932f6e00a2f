// The program itself as a process: what its main function adds to the commands.

#include <gtest/gtest.h>

#ifndef _WIN32

#include <fcntl.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "tests/cli/hulp.h"
#include "tests/hulp/paden.h"

namespace murvane::clitest {
namespace {

/// Runs a shell line in which $CLI is the program; the exit status.
int Shell(const Proefmap& map, const std::string& regel) {
  const std::string heel =
      "CLI='" + proef::Programma("murvane-cli").string() + "'; cd '" + map.Naam() + "' && " + regel;
  const int status = std::system(heel.c_str());  // NOLINT(cert-env33-c)
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(Programma, PassesOnTheExitStatusAndBothChannels) {
  const Proefmap map;
  const std::string goed = map.Zet(GoedProject(), "goed é.mrv");
  map.Zet(ZonderElementen(), "leeg.mrv");
  EXPECT_EQ(Shell(map, "\"$CLI\" reken 'goed é.mrv' --decimaal komma >uit 2>err"), 0);
  EXPECT_EQ(map.Lees("uit"), Reken(map, {goed}).Uit);
  EXPECT_EQ(map.Lees("err"), "");
  EXPECT_EQ(Shell(map, "\"$CLI\" reken weg.mrv >uit 2>err"), 1);
  EXPECT_EQ(map.Lees("err"), "weg.mrv: Fout 53 - Bestand niet gevonden.\n");
  EXPECT_EQ(Shell(map, "\"$CLI\" reken leeg.mrv >uit 2>err"), 2);
  EXPECT_EQ(map.Lees("err"), "leeg.mrv: Geen kanaalelementen ingevoerd\n");
  EXPECT_EQ(Shell(map, "\"$CLI\" >uit 2>err"), 64);
  EXPECT_EQ(map.Lees("uit"), "");
}

TEST(Programma, ShowsNoProgressInAFile) {
  const Proefmap map;
  map.Zet(GoedProject(), "a.mrv");
  EXPECT_EQ(Shell(map, "\"$CLI\" reken a.mrv --uit u >uit 2>err"), 0);
  EXPECT_EQ(map.Lees("uit") + map.Lees("err"), "");
}

TEST(Programma, AClosedOrFullStandardOutputIsFault61) {
  const Proefmap map;
  map.Zet(GoedProject(), "a.mrv");
  EXPECT_EQ(Shell(map, "\"$CLI\" reken a.mrv >&- 2>err"), 1);
  EXPECT_EQ(map.Lees("err"), "standaarduitvoer: Fout 61 - Schijf vol of uitvoer gesloten.\n");
#ifdef __linux__
  for (const char* opdracht : {"reken a.mrv", "toon a.mrv", "controleer a.mrv", "--help"}) {
    EXPECT_EQ(Shell(map, "\"$CLI\" " + std::string(opdracht) + " >/dev/full 2>err"), 1) << opdracht;
    EXPECT_EQ(map.Lees("err"), "standaarduitvoer: Fout 61 - Schijf vol of uitvoer gesloten.\n");
  }
#endif
}

TEST(Programma, AFileThatMayNotGrowIsFault61AndLeavesNothing) {
  const Proefmap map;
  map.Zet(GoedProject(), "a.mrv");
  EXPECT_EQ(Shell(map, "(ulimit -f 1; \"$CLI\" toon a.mrv -o a.json 2>err)"), 1);
  EXPECT_EQ(map.Lees("err"), "a.json: Fout 61 - Schijf vol.\n");
  EXPECT_FALSE(map.Heeft("a.json"));
  EXPECT_EQ(Shell(map, "ls -A | grep -q murvane-"), 1);  // no half file beside it either
}

TEST(Programma, ClosedChannelsNeverWriteIntoAFile) {
  const Proefmap map;
  map.Zet(GoedProject(), "a.mrv");
  map.Zet(ZonderElementen(), "leeg.mrv");
  EXPECT_EQ(Shell(map, "\"$CLI\" toon a.mrv -o a.json <&- >&- 2>&-"), 0);
  EXPECT_EQ(map.Lees("a.json"), Draai({"toon", map / "a.mrv"}).Uit);
  EXPECT_EQ(Shell(map, "\"$CLI\" reken leeg.mrv a.mrv --uit u --taken 2 --decimaal komma <&- >&- 2>&-"), 2);
  EXPECT_EQ(map.Lees("u/a.prn"), Reken(map, {map / "a.mrv", "--prn", "-"}).Uit);
}

TEST(Programma, PrnOnStandardOutputIsBytes) {
  const Proefmap map;
  map.Zet(GoedProject("Café"_cp), "a.mrv");
  EXPECT_EQ(Shell(map, "\"$CLI\" reken a.mrv --prn - --decimaal komma >uit"), 0);
  EXPECT_EQ(map.Lees("uit"), Reken(map, {map / "a.mrv", "--prn", "-"}).Uit);
}

/// What a shell line writes to standard output when that is a terminal.
std::string OpTerminal(const Proefmap& map, const std::string& regel) {
  int meester = -1;
  int slaaf = -1;
  termios rauw{};
  ::cfmakeraw(&rauw);  // bytes as they are: the terminal adds no signs of its own
  EXPECT_EQ(::openpty(&meester, &slaaf, nullptr, &rauw, nullptr), 0);
  const std::string naam = ::ttyname(slaaf);
  std::string uit;
  const pid_t kind = ::fork();
  if (kind == 0) {
    ::close(meester);
    ::_exit(Shell(map, "(" + regel + ") >" + naam));
  }
  ::close(slaaf);
  std::array<char, 4096> stuk{};
  for (ssize_t n = 0; (n = ::read(meester, stuk.data(), stuk.size())) > 0;)
    uit.append(stuk.data(), static_cast<std::size_t>(n));
  ::close(meester);
  int status = 0;
  EXPECT_EQ(::waitpid(kind, &status, 0), kind);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  return uit;
}

// A name out of a project reached the terminal raw: it could set its title, or its answers.
TEST(Programma, ShowsControlCharactersOnATerminalAndLeavesThemInAPipe) {
  const Proefmap map;
  map.Zet(GoedProject("A\x1b]0;x\x07\x8d"), "a.mrv");
  const std::string regel = "\"$CLI\" reken a.mrv --decimaal komma";
  const Omstandigheid terminal{.UitTerminal = true};
  EXPECT_EQ(OpTerminal(map, regel), Reken(map, {map / "a.mrv"}, terminal).Uit);
  EXPECT_EQ(OpTerminal(map, regel).find('\x1b'), std::string::npos);
  EXPECT_EQ(Shell(map, regel + " | cat >uit"), 0);
  EXPECT_EQ(map.Lees("uit"), Reken(map, {map / "a.mrv"}).Uit);
  EXPECT_NE(map.Lees("uit").find("A\x1b]0;x\x07\u008d"), std::string::npos);
  EXPECT_EQ(OpTerminal(map, "\"$CLI\" controleer $(printf 'weg\\033.mrv') 2>err || true"), "");
  EXPECT_EQ(map.Lees("err"), "weg\\x1b.mrv: Fout 53 - Bestand niet gevonden.\n");
}

TEST(Programma, ReadsStandardInput) {
  const Proefmap map;
  map.Zet(GoedProject(), "a.mrv");
  map.Zet(GoedProject(), "b é.mrv");
  EXPECT_EQ(Shell(map, "cat a.mrv | \"$CLI\" reken - --decimaal komma >uit"), 0);
  EXPECT_EQ(map.Lees("uit"), Reken(map, {map / "a.mrv"}).Uit);
  EXPECT_EQ(Shell(map, "find . -name '*.mrv' -print0 | sort -z | \"$CLI\" controleer --lijst - >uit"), 0);
  EXPECT_EQ(map.Lees("uit"), "./a.mrv: in orde\n./b é.mrv: in orde\n");
  EXPECT_EQ(Shell(map, "\"$CLI\" toon - <&- 2>err"), 1);
  EXPECT_EQ(map.Lees("err"), "standaardinvoer: Fout 62 - Het bestand eindigt te vroeg.\n");
  EXPECT_EQ(Shell(map, "\"$CLI\" toon - <. 2>err"), 1);
  EXPECT_EQ(map.Lees("err"), "standaardinvoer: Fout 75 - Geen toegang tot het bestand of de map.\n");
}

}  // namespace
}  // namespace murvane::clitest

#endif
