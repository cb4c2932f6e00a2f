#include "basis/tekst.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>

#include "basis/fout.h"

namespace murvane {
namespace {

using std::string_literals::operator""s;
using std::string_view_literals::operator""sv;

TEST(Trim, TakesBlanksAndNulsOffBothEndsOnly) {
  struct Rij {
    std::string_view tekst, getrimd, rechts;
  };
  const Rij rijen[] = {
      {"", "", ""},
      {"   ", "", ""},
      {"\0\0\0"sv, "", ""},
      {" \0 \0"sv, "", ""},
      {"a", "a", "a"},
      {"  a b  ", "a b", "  a b"},
      {"\0 a\0b \0"sv, "a\0b"sv, "\0 a\0b"sv},
      {"\ta\n", "\ta\n", "\ta\n"},  // only blanks and NULs
      {"\xA0"
       "a\xA0",
       "\xA0"
       "a\xA0",
       "\xA0"
       "a\xA0"},  // a no-break space stays
  };
  for (const Rij& rij : rijen) {
    EXPECT_EQ(Trim(rij.tekst), rij.getrimd);
    EXPECT_EQ(TrimRechts(rij.tekst), rij.rechts);
  }
}

TEST(VasteTekst, HoldsNulsBeforeAnythingWasAssigned) {
  const Tekst<5> tekst;
  EXPECT_EQ(tekst.Heel(), "\0\0\0\0\0"sv);
  EXPECT_EQ(tekst.Getrimd(), "");
}

TEST(VasteTekst, IsPaddedWithBlanksAndCutAtItsLength) {
  struct Rij {
    std::string_view toegekend, heel;
  };
  const Rij rijen[] = {
      {"", "     "},         {"a", "a    "},   {"abcd", "abcd "},      {"abcde", "abcde"},
      {"abcdefgh", "abcde"}, {"  a", "  a  "}, {"a\0b"sv, "a\0b  "sv},
  };
  for (const Rij& rij : rijen) {
    Tekst<5> tekst("zzzzz");
    tekst = rij.toegekend;
    EXPECT_EQ(tekst.Heel(), rij.heel);
  }
}

TEST(VasteTekst, TakesItsOwnTrimmedText) {
  Tekst<6> tekst("  abc ");
  tekst = tekst.Getrimd();
  EXPECT_EQ(tekst.Heel(), "abc   ");
}

TEST(VasteTekst, NulsAndBlanksAreDifferentTexts) {
  EXPECT_NE(Tekst<3>(), Tekst<3>(""));
  EXPECT_EQ(Tekst<3>("ab"), Tekst<3>("ab "));
}

// The 32 places where the code page and Unicode part, in order from 80 hexadecimal. The five that the code
// page leaves undefined are the control characters of the same number.
const std::array<std::string, 32> Bijzonder = {
    "€",      "\u0081", "‚", "ƒ", "„", "…", "†", "‡", "ˆ", "‰", "Š", "‹", "Œ", "\u008D", "Ž", "\u008F",
    "\u0090", "‘",      "’", "“", "”", "•", "–", "—", "˜", "™", "š", "›", "œ", "\u009D", "ž", "Ÿ"};

TEST(Codepagina, EverySpecialByteHasItsCharacter) {
  for (std::size_t i = 0; i < Bijzonder.size(); ++i) {
    const std::string byte(1, static_cast<char>(0x80 + i));
    EXPECT_EQ(NaarUtf8(byte), Bijzonder[i]) << i;
    EXPECT_EQ(NaarCp1252(Bijzonder[i]), byte) << i;
  }
}

TEST(Codepagina, EveryByteComesBackUnchanged) {
  std::string alle;
  for (int i = 0; i < 256; ++i) alle += static_cast<char>(i);
  EXPECT_EQ(NaarCp1252(NaarUtf8(alle)), alle);
}

TEST(Codepagina, LatinLettersKeepTheirNumber) {
  EXPECT_EQ(NaarUtf8("h\xD7"
                     "b m\xB3 \xEB\xFF\xA0"),
            "h×b m³ ëÿ\u00A0");
  EXPECT_EQ(NaarCp1252("h×b m³ ëÿ"),
            "h\xD7"
            "b m\xB3 \xEB\xFF");
}

int FoutBij(std::string_view utf8) {
  try {
    (void)NaarCp1252(utf8);
  } catch (const Fout& fout) {
    return static_cast<int>(fout.Nummer());
  }
  return 0;
}

TEST(Codepagina, RefusesWhatIsNotUtf8) {
  const std::string_view slecht[] = {
      "\x80",              // a continuation byte alone
      "\xC3",              // cut short
      "a\xE2\x82",         // cut short
      "\xC3(",             // no continuation byte
      "\xC0\xAF",          // overlong
      "\xE0\x82\xA0",      // overlong
      "\xF0\x80\x82\xAC",  // overlong
      "\xED\xA0\x80",      // surrogate
      "\xF4\x90\x80\x80",  // above U+10FFFF
      "\xF8\x88\x80\x80\x80",
      "\xFF",
  };
  for (const auto tekst : slecht) EXPECT_EQ(FoutBij(tekst), 5) << testing::PrintToString(tekst);
}

TEST(Codepagina, RefusesCharactersThatItDoesNotHave) {
  for (const char* tekst : {"Ω", "ā", "\u0080", "\u0085", "漢", "😀", "\uFFFD"})
    EXPECT_EQ(FoutBij(tekst), 5) << tekst;
}

TEST(Codepagina, NamesTheCharacterThatItRefuses) {
  try {
    (void)NaarCp1252("breedte 5 Ω");
    FAIL() << "no Fout";
  } catch (const Fout& fout) {
    EXPECT_NE(std::string(fout.what()).find("Ω"), std::string::npos) << fout.what();
  }
}

TEST(Codepagina, LiteralsAreConvertedWhenCompiled) {
  static_assert("h×b"_cp ==
                "h\xD7"
                "b");
  EXPECT_EQ("cm² m³/s é"_cp, NaarCp1252("cm² m³/s é"));
}

TEST(NaarCp1252Getoond, PutsAQuestionMarkForWhatTheCodePageLacks) {
  const struct {
    const char* utf8;
    std::string_view getoond;
  } rijen[] = {
      {"", ""},
      {"één × 5 m³.mrv", "één × 5 m³.mrv"_cp},
      {"€", "\x80"},
      {"Ωhm.mrv", "?hm.mrv"},
      {"日本", "??"},
      {"\xF0\x9F\x98\x80!", "?!"},  // one character of four bytes
      {"a\xFFz", "a?z"},            // no UTF-8
      {"\xC3z", "?z"},              // cut in two
      {"\xE2\x82", "??"},           // cut at the end: each byte by itself
      {"\xC0\xAF", "??"},           // not the shortest form
      {"\xED\xA0\x80", "???"},      // a surrogate
  };
  for (const auto& rij : rijen) EXPECT_EQ(NaarCp1252Getoond(rij.utf8), rij.getoond) << rij.utf8;
}

// The bytes 81, 8D, 8F, 90 and 9D stand for control characters, as do those below a blank and 7F.
TEST(TypbaarTeken, IsEveryCharacterOfTheCodePageThatIsNoControlCharacter) {
  int aantal = 0;
  for (int code = 0; code < 0x110000; ++code) {
    const auto byte = TypbaarTeken(static_cast<char32_t>(code));
    if (!byte) continue;
    ++aantal;
    const std::string utf8 = NaarUtf8({&*byte, 1});
    EXPECT_EQ(NaarCp1252(utf8), std::string(1, *byte));
    EXPECT_TRUE(code >= 0x80 || *byte == static_cast<char>(code)) << code;
  }
  EXPECT_EQ(aantal, 256 - 32 - 1 - 5);
  EXPECT_EQ(TypbaarTeken(U'\u20AC'), '\x80');
  EXPECT_EQ(TypbaarTeken(U'\u00FF'), '\xFF');
  EXPECT_EQ(TypbaarTeken(U'\u0178'), '\x9F');
  for (const char32_t teken : {char32_t{0x1B}, char32_t{0x7F}, char32_t{0x81}, U'\u0141', U'\u202E'})
    EXPECT_EQ(TypbaarTeken(teken), std::nullopt) << static_cast<unsigned>(teken);
}

}  // namespace
}  // namespace murvane
