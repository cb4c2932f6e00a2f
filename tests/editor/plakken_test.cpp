#include "editor/plakken.h"

#include <gtest/gtest.h>

#include <string>

#include "basis/tekst.h"

namespace murvane {
namespace {

struct Rij {
  std::u32string_view Tekst;
  std::string_view Geplakt;     ///< UTF-8
  std::string_view Geschreven;  ///< the same by an input method
  bool Geweigerd = false;
};

const Rij Rijen[] = {
    {U"", "", ""},
    {U"Kantoor  Oost", "Kantoor  Oost", "Kantoor  Oost"},
    {U"<b>x</b>&y", "<b>x</b>&y", "<b>x</b>&y"},
    {U"  Kantoor ", "Kantoor", "  Kantoor "},
    {U" ", "", " "},
    // a cell of a spreadsheet, and a row of them
    {U"5\n", "5", "5 "},
    {U"5\r\n", "5", "5 "},
    {U"\t1.000,5 \r\n", "1.000,5", " 1.000,5 "},
    {U"63\t125\t250\n", "63 125 250", "63 125 250 "},
    {U"\u00A07\u00A0", "7", "\u00A07\u00A0"},
    // lines
    {U"een\ntwee", "een twee", "een twee"},
    {U"een \r\n\r\n  twee\tdrie", "een twee drie", "een twee drie"},
    {U"een\vtwee\fdrie\u0085vier\u2028vijf\u2029zes", "een twee drie vier vijf zes",
     "een twee drie vier vijf zes"},
    {U"\n\n", "", " "},
    // what nobody sees: escape sequences, C1, writing direction, zero width
    {U"a\u001B[31mb\u0007\u007F", "a[31mb", "a[31mb"},
    {U"a\u009B31mb\u0080\u0081", "a31mb", "a31mb"},
    {U"\u202Ea\u202D\u2066b\u2069\u200E\u200F\u061C\u202C", "ab", "ab"},
    {U"\uFEFFa\u200B\u200D\u2060b\uFE0F", "ab", "ab"},
    {U"\u200B 5 \u200B\n", "5", " 5 "},
    // the ends of the code page: its own 80 to 9F and the characters of Latin-1
    {U"\u20AC\u201A\u0192\u0178\u017D\u00A9\u00FF", "\u20AC\u201A\u0192\u0178\u017D\u00A9\u00FF",
     "\u20AC\u201A\u0192\u0178\u017D\u00A9\u00FF"},
    // and what it lacks
    {U"\u0141\u00F3d\u017A", "\u00F3d", "\u00F3d", true},
    {U"\u03B1", "", "", true},
    {U"x\U0001F600y", "xy", "xy", true},
    {U"a\u2009b", "ab", "ab", true},
};

TEST(NeemGeplakt, PutsATextOnOneLineAndLeavesOutWhatCannotBeSeen) {
  for (const Rij& rij : Rijen) {
    const Plakuitslag uitslag = NeemGeplakt(rij.Tekst);
    EXPECT_EQ(NaarUtf8(uitslag.Tekst), rij.Geplakt);
    EXPECT_EQ(uitslag.Geweigerd, rij.Geweigerd) << rij.Geplakt;
  }
}

TEST(NeemGeschreven, KeepsTheBlanksThatWereTyped) {
  for (const Rij& rij : Rijen) {
    const Plakuitslag uitslag = NeemGeschreven(rij.Tekst);
    EXPECT_EQ(NaarUtf8(uitslag.Tekst), rij.Geschreven);
    EXPECT_EQ(uitslag.Geweigerd, rij.Geweigerd) << rij.Geschreven;
  }
}

TEST(NeemGeplakt, LeavesOutEveryControlCharacterButALineEnd) {
  for (char32_t teken = 0; teken < 0xA0; ++teken) {
    if (teken >= 0x20 && teken < 0x7F) continue;
    const bool einde = (teken >= 9 && teken <= 13) || teken == 0x85;
    const std::u32string tekst = {U'a', teken, U'b'};
    EXPECT_EQ(NeemGeplakt(tekst), (Plakuitslag{einde ? "a b" : "ab", false})) << static_cast<int>(teken);
  }
}

// The blanks of other code pages are refused as a character, and dropped as an end.
TEST(NeemGeplakt, DropsAnyBlankAtItsEnds) {
  EXPECT_EQ(NeemGeplakt(U"\u3000\u2003 7\u2009\u202F"), (Plakuitslag{"7", false}));
  EXPECT_EQ(NeemGeschreven(U"7\u202F"), (Plakuitslag{"7", true}));
}

}  // namespace
}  // namespace murvane
