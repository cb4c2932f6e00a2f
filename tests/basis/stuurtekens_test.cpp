#include "basis/stuurtekens.h"

#include <gtest/gtest.h>

namespace murvane {
namespace {

using namespace std::string_view_literals;

TEST(Toonbaar, ShowsWhatActsOnATerminalByItsNumber) {
  const struct {
    std::string_view tekst, regeleinde, getoond;
  } rijen[] = {
      {"", "", ""},
      {"Café × 12 m³ €, Łódź 日本 😀 \\x1b", "", "Café × 12 m³ €, Łódź 日本 😀 \\x1b"},
      {"\x1b[2J"sv, "", "\\x1b[2J"},
      {"\x1b]0;titel\x07"sv, "", "\\x1b]0;titel\\x07"},
      {"a\0b"sv, "", "a\\x00b"},
      {"\x1f ~\x7f"sv, "", "\\x1f ~\\x7f"},
      // C1 and its neighbours: U+007F, U+0080, U+009F, U+00A0.
      {"\u0080\u009b31m\u009f\u00a0", "", "\\x80\\x9b31m\\x9f\u00a0"},
      // The same as bytes that are no UTF-8; É (C3 89) and € (E2 82 AC) hold such bytes and stay.
      {"\x80\x9b"
       "31m\x9f\xa0\xff"sv,
       "", "\\x80\\x9b31m\\x9f\xa0\xff"},
      {"É€\x89", "", "É€\\x89"},
      // ESC written longer than it may be, a character cut short, half a surrogate pair.
      {"\xc0\x9b \xe0\x80\x9b \xf0\x80\x80\x9b"sv, "", "\xc0\\x9b \xe0\\x80\\x9b \xf0\\x80\\x80\\x9b"},
      {"\xe2\x80"sv, "", "\xe2\\x80"},
      {"\xed\xa0\x9b"sv, "", "\xed\xa0\\x9b"},
      // The marks of the direction of writing and their neighbours.
      {"\u061b\u061c\u061d", "", "\u061b\\u061c\u061d"},
      {"\u200d\u200e\u200f\u2010", "", "\u200d\\u200e\\u200f\u2010"},
      {"\u2029\u202a\u202b\u202c\u202d\u202e\u202f", "", "\u2029\\u202a\\u202b\\u202c\\u202d\\u202e\u202f"},
      {"\u2065\u2066\u2067\u2068\u2069\u206a", "", "\u2065\\u2066\\u2067\\u2068\\u2069\u206a"},
      // Line ends.
      {"a\nb\r\nc\rd\te", "", "a\\x0ab\\x0d\\x0ac\\x0dd\\x09e"},
      {"a\nb\r\nc\rd\te\n", "\n", "a\nb\\x0d\nc\\x0dd\\x09e\n"},
      {"a\nb\r\nc\rd\te\r\n", "\r\n", "a\\x0ab\r\nc\\x0dd\\x09e\r\n"},
  };
  for (const auto& rij : rijen) EXPECT_EQ(Toonbaar(rij.tekst, rij.regeleinde), rij.getoond) << rij.tekst;
}

TEST(Toonbaar, LeavesNoControlCharacterOfAnySize) {
  for (char32_t punt = 1; punt < 0x100; ++punt) {
    const std::string teken = punt < 0x80 ? std::string(1, static_cast<char>(punt))
                                          : std::string{static_cast<char>(0xC0 | punt >> 6),
                                                        static_cast<char>(0x80 | (punt & 0x3F))};
    const bool stuurt = punt < 0x20 || (punt >= 0x7F && punt < 0xA0);
    EXPECT_EQ(Toonbaar(teken) != teken, stuurt) << static_cast<unsigned>(punt);
  }
}

}  // namespace
}  // namespace murvane
