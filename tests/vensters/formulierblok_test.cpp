// The project's lines on the form: whatever they hold, they stay on the sheet and look alike.

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QImage>
#include <algorithm>
#include <string>
#include <vector>

#include "reports/vensters_vlak.h"

namespace murvane {
namespace {

constexpr double Breedte = 11906, Dpi = 144;
constexpr double PerTwip = Dpi / 1440;

/// The columns of pixels between which a page has ink in a strip of twips, from `links` on.
std::pair<int, int> Inkt(const QImage& beeld, double links, double boven, double onder) {
  int van = beeld.width(), tot = -1;
  for (int y = static_cast<int>(boven * PerTwip); y < static_cast<int>(onder * PerTwip); ++y)
    for (int x = static_cast<int>(links * PerTwip); x < beeld.width(); ++x)
      if (qGray(beeld.pixel(x, y)) < 160) van = std::min(van, x), tot = std::max(tot, x);
  return {van, tot};
}

/// Lines at an X on a sheet, one every 500 twips, at 12 points.
QImage Blad(double x, const std::vector<std::string>& regels, bool cursief = false) {
  Schildervlak blad(Breedte, 5000, Dpi);
  blad.ZetFontNaam("Courier New");
  blad.ZetFontItalic(cursief);
  double y = 0;
  for (const std::string& regel : regels) {
    blad.ZetCurrentX(x);
    blad.ZetCurrentY(y);
    blad.PrintRegel(regel);
    y += 500;
  }
  blad.BewaarBlad(0);
  return blad.Bladen()[0];
}

// A character is 144 twips wide; from 3600 to the margin at 11474 there is room for 54.
TEST(Formulierblok, SetsAllItsLinesAsNarrowAsTheLongest) {
  const QImage beeld = Blad(3600, {std::string(20, 'H'), std::string(80, 'H'), std::string(60, 'H')});
  const double smal = 7874.0 / (80 * 144);
  EXPECT_NEAR(Inkt(beeld, 3600, 0, 400).second, (3600 + 20 * 144 * smal) * PerTwip, 3);
  EXPECT_NEAR(Inkt(beeld, 3600, 500, 900).second, 11474 * PerTwip, 3);
  EXPECT_NEAR(Inkt(beeld, 3600, 1000, 1400).second, (3600 + 60 * 144 * smal) * PerTwip, 3);
}

TEST(Formulierblok, LeavesLinesThatFitAndOtherColumnsAlone) {
  const QImage beeld = Blad(3600, {std::string(54, 'H'), std::string(20, 'H')});
  EXPECT_NEAR(Inkt(beeld, 3600, 500, 900).second, (3600 + 20 * 144) * PerTwip, 3);
  Schildervlak blad(Breedte, 5000, Dpi);
  blad.ZetFontNaam("Courier New");
  blad.ZetCurrentX(432);
  blad.Print(std::string(10, 'H'));  // a label before the long line
  blad.ZetCurrentX(3600);
  blad.PrintRegel(std::string(80, 'H'));
  blad.PrintRegel("");  // the block ends
  blad.ZetCurrentX(3600);
  blad.ZetCurrentY(1000);
  blad.PrintRegel(std::string(20, 'H'));
  blad.BewaarBlad(0);
  const QImage& los = blad.Bladen()[0];
  EXPECT_NEAR(Inkt(los.copy(0, 0, static_cast<int>(3500 * PerTwip), 100), 0, 0, 300).second,
              (432 + 10 * 144) * PerTwip, 5);  // an H has bearings
  EXPECT_NEAR(Inkt(los, 3600, 1000, 1400).second, (3600 + 20 * 144) * PerTwip, 3);
}

TEST(Formulierblok, KeepsALeaningLetterWithinTheMargin) {
  // The advances fit exactly: 40 characters of 144 twips end on the margin, and the last letter leans out.
  for (const char* letter : {"f", "W", "H"}) {
    const QImage beeld = Blad(11474 - 40 * 144, {std::string(39, 'x') + letter}, true);
    EXPECT_LE(Inkt(beeld, 3600, 0, 400).second, 11474 * PerTwip + 0.5) << letter;
  }
}

TEST(Formulierblok, IsDrawnBeforeWhatComesOverItAndGoneWhenThePageIsWiped) {
  Schildervlak blad(Breedte, 5000, Dpi);
  blad.Print("HHHH");
  blad.Doos(0, 0, Breedte, 5000, Wit);
  blad.Print("HHHH");
  blad.Cls();
  blad.BewaarBlad(0);
  EXPECT_EQ(Inkt(blad.Bladen()[0], 0, 0, 4900).second, -1);
}

}  // namespace
}  // namespace murvane
