// The files that stand beside the programs in a package.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "shell/bureaublad.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/paden.h"
#include "versie.h"

namespace murvane {
namespace {

using testing::HasSubstr;

std::string Lees(const char* naam) {
  return proef::Lees(proef::BronMap() / "levering" / naam);
}

TEST(Levering, TheNotesAreThoseOfThisVersion) {
  EXPECT_THAT(Lees("levering.txt"), testing::StartsWith(std::string("MurVane ") + VersieTekst + "\n"));
}

TEST(Levering, TheNotesReadTheSameInEveryCodePage) {
  const std::string tekst = Lees("levering.txt");
  EXPECT_TRUE(
      std::all_of(tekst.begin(), tekst.end(), [](char c) { return c == '\n' || (c >= ' ' && c <= '~'); }));
}

TEST(Levering, TheDesktopSaysThatItStartsTheProgramAndHandsItOneFile) {
  EXPECT_THAT(Lees("murvane.desktop"),
              HasSubstr(std::string("\nExec=env ") + BureaubladVariabele + "=1 murvane %f\n"));
}

TEST(Levering, TheDesktopOpensTheFileTypeOfProjects) {
  EXPECT_THAT(Lees("murvane.desktop"), HasSubstr("\nMimeType=application/x-murvane;\n"));
  EXPECT_THAT(Lees("murvane.xml"), HasSubstr("<mime-type type=\"application/x-murvane\">"));
  EXPECT_THAT(Lees("murvane.xml"), HasSubstr("<glob pattern=\"*.mrv\"/>"));
  EXPECT_THAT(Lees("nl.murvane.murvane.metainfo.xml.in"),
              HasSubstr("<mediatype>application/x-murvane</mediatype>"));
}

}  // namespace
}  // namespace murvane
