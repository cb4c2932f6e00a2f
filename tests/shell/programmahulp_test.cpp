#include "shell/programmahulp.h"

#include <gtest/gtest.h>

#include <vector>

namespace murvane {
namespace {

using Woorden = std::vector<std::string>;

TEST(ProgrammaAntwoord, OnlyTheExactWordAloneAsksForSomething) {
  EXPECT_EQ(ProgrammaAntwoord(Woorden{"--version"}), "MurVane 6.7\n");
  EXPECT_TRUE(ProgrammaAntwoord(Woorden{"--help"}).has_value());
  for (const Woorden& project : std::vector<Woorden>{{},
                                                     {""},
                                                     {"-h"},
                                                     {"--versie"},
                                                     {"--Help"},
                                                     {" --help"},
                                                     {"--help", ""},
                                                     {"--help", "--version"},
                                                     {"--help.mrv"},
                                                     {"kantoor.mrv"},
                                                     {"kantoor.mrv", "--help"}})
    EXPECT_FALSE(ProgrammaAntwoord(project).has_value()) << project.size();
}

TEST(ProgrammaAntwoord, EveryWordIsToldInTheHelp) {
  const std::string hulp = ProgrammaAntwoord(Woorden{"--help"}).value_or("");
  EXPECT_EQ(hulp.find("Gebruik: murvane [PROJECT.mrv]\n\nBerekent geluidsniveaus"), 0U);
  for (const Programmawoord& woord : Programmawoorden) {
    EXPECT_TRUE(ProgrammaAntwoord(Woorden{std::string(woord.Woord)}).has_value()) << woord.Woord;
    EXPECT_NE(hulp.find("\n  " + std::string(woord.Woord) + " "), std::string::npos) << woord.Woord;
    EXPECT_NE(hulp.find(" " + std::string(woord.Uitleg) + "\n"), std::string::npos) << woord.Woord;
  }
}

}  // namespace
}  // namespace murvane
