#include "shell/programma.h"

#include <gtest/gtest.h>

namespace murvane {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;

TEST(DatumTekst, IsDayMonthAndYearWithTheirZeros) {
  EXPECT_EQ(DatumTekst(year(2026) / month(2) / day(1)).Heel(), "01-02-2026");
  EXPECT_EQ(DatumTekst(year(1999) / month(12) / day(31)).Heel(), "31-12-1999");
  EXPECT_EQ(DatumTekst(year(2024) / month(2) / day(29)).Heel(), "29-02-2024");
  EXPECT_EQ(DatumTekst(year(987) / month(10) / day(9)).Heel(), "09-10-0987");
}

TEST(Programma, StartsWithoutAnything) {
  const Programma programma;
  EXPECT_EQ(programma.Project.ElementCount, 0);
  EXPECT_EQ(programma.Catalogi.CatElementen.Aantal, 0);
  EXPECT_TRUE(programma.Rapport.RapKop.empty());
  EXPECT_TRUE(programma.OpenBestand.empty());
  EXPECT_TRUE(programma.DialoogNaam.empty());
  EXPECT_EQ(programma.Instellingen.Gebruikersnaam.Getrimd(), "..Gebruikersnaam..");
}

}  // namespace
}  // namespace murvane
