#include "basis/kolommen.h"

#include <gtest/gtest.h>

namespace murvane {
namespace {

std::string Afgebroken(std::string_view tekst, std::size_t inspringing) {
  std::string uit(inspringing, '.');
  VoegAfgebrokenToe(uit, tekst, inspringing);
  return uit;
}

TEST(Kolommen, ALineIsFilledUpToTheLastOfEightyCharacters) {
  const std::string woord(39, 'x');
  EXPECT_EQ(Afgebroken(woord + " " + woord + "é", 0), woord + " " + woord + "é\n");
  EXPECT_EQ(Afgebroken(woord + " " + woord + "éé", 0), woord + "\n" + woord + "éé\n");
  EXPECT_EQ(Afgebroken("a b", 26), std::string(26, '.') + "a b\n");
  EXPECT_EQ(Afgebroken(std::string(54, 'x') + " b", 26),
            std::string(26, '.') + std::string(54, 'x') + "\n" + std::string(26, ' ') + "b\n");
}

TEST(Kolommen, AWordThatIsTooLongStaysWhole) {
  EXPECT_EQ(Afgebroken("a " + std::string(100, 'x') + " b", 0), "a\n" + std::string(100, 'x') + "\nb\n");
}

TEST(Kolommen, ALongNameHasItsExplanationUnderIt) {
  std::string uit;
  VoegRegelToe(uit, std::string(22, 'n'), "kort");
  VoegRegelToe(uit, std::string(23, 'n'), "lang");
  EXPECT_EQ(uit, "  " + std::string(22, 'n') + "  kort\n  " + std::string(23, 'n') + "\n" +
                     std::string(26, ' ') + "lang\n");
}

}  // namespace
}  // namespace murvane
