#include "basis/getal.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "basis/fout.h"

namespace murvane {
namespace {

using std::string_view_literals::operator""sv;

constexpr double Oneindig = std::numeric_limits<double>::infinity();

struct OpmaakRij {
  double waarde;
  std::string_view heel, een, twee;
};

TEST(Opmaak, RoundsHalvesAwayFromZeroAtTheLastDecimal) {
  const OpmaakRij rijen[] = {
      {0, "0", "0.0", "0.00"},
      {0.5, "1", "0.5", "0.50"},
      {1.5, "2", "1.5", "1.50"},
      {2.5, "3", "2.5", "2.50"},  // to even it would be 2
      {-2.5, "-3", "-2.5", "-2.50"},
      {0.25, "0", "0.3", "0.25"},  // to even it would be 0.2
      {0.125, "0", "0.1", "0.13"},
      {-0.125, "0", "-0.1", "-0.13"},
      {0.05, "0", "0.1", "0.05"},
      {0.005, "0", "0.0", "0.01"},
      {0.004999, "0", "0.0", "0.00"},
      {0.45, "0", "0.5", "0.45"},   // the double is 0.450000000000000011
      {0.35, "0", "0.4", "0.35"},   // 0.34999999999999997, at 15 digits 0.35
      {1.005, "1", "1.0", "1.01"},  // 1.00499999999999989, at 15 digits 1.005
      {2.675, "3", "2.7", "2.68"},  // 2.67499999999999982
      {-1.005, "-1", "-1.0", "-1.01"},
      {9.95, "10", "10.0", "9.95"},  // carries into a new digit
      {99.995, "100", "100.0", "100.00"},
      {0.95, "1", "1.0", "0.95"},
      {0.99, "1", "1.0", "0.99"},
      {0.049999999999999, "0", "0.0", "0.05"},  // one rounding only, not by way of 0.05
      {1234567.891, "1234568", "1234567.9", "1234567.89"},
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(Opmaak(rij.waarde, Formaat::Heel, '.'), rij.heel) << rij.waarde;
    EXPECT_EQ(Opmaak(rij.waarde, Formaat::Een, '.'), rij.een) << rij.waarde;
    EXPECT_EQ(Opmaak(rij.waarde, Formaat::Twee, '.'), rij.twee) << rij.waarde;
  }
}

TEST(Opmaak, ReadsTheNumberAtFifteenSignificantDigits) {
  EXPECT_EQ(Opmaak(0.1 + 0.2, Formaat::Twee, '.'), "0.30");
  // 1234567890.4449999333: the 15 digits are 1234567890.44500.
  EXPECT_EQ(Opmaak(1234567890.4449999333, Formaat::Twee, '.'), "1234567890.45");
  // Digits past the fifteenth are zeros.
  EXPECT_EQ(Opmaak(1234567890123456789.0, Formaat::Heel, '.'), "1234567890123460000");
  EXPECT_EQ(Opmaak(1E+20, Formaat::Een, '.'), "100000000000000000000.0");
  EXPECT_EQ(Opmaak(123456789012345.6, Formaat::Een, '.'), "123456789012346.0");
  EXPECT_EQ(Opmaak(0.49999999999999994, Formaat::Heel, '.'), "1");  // at 15 digits 0.5
}

TEST(Opmaak, AValueThatRoundsToZeroHasNoMinusSign) {
  const OpmaakRij rijen[] = {
      {-0.0, "0", "0.0", "0.00"},           {-0.0049999999, "0", "0.0", "0.00"},
      {-0.0499999999, "0", "0.0", "-0.05"}, {-0.4999999999, "0", "-0.5", "-0.50"},
      {-0.004, "0", "0.0", "0.00"},         {-0.04, "0", "0.0", "-0.04"},
      {-0.05, "0", "-0.1", "-0.05"},        {-0.4, "0", "-0.4", "-0.40"},
      {-1E-300, "0", "0.0", "0.00"},        {-5E-324, "0", "0.0", "0.00"},
      {-0.5, "-1", "-0.5", "-0.50"},
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(Opmaak(rij.waarde, Formaat::Heel, '.'), rij.heel) << rij.waarde;
    EXPECT_EQ(Opmaak(rij.waarde, Formaat::Een, '.'), rij.een) << rij.waarde;
    EXPECT_EQ(Opmaak(rij.waarde, Formaat::Twee, '.'), rij.twee) << rij.waarde;
  }
}

TEST(Opmaak, UsesTheDecimalSignThatIsHandedIn) {
  EXPECT_EQ(Opmaak(-12.34, Formaat::Een, ','), "-12,3");
  EXPECT_EQ(Opmaak(1234.5, Formaat::Twee, ','), "1234,50");
  EXPECT_EQ(Opmaak(7, Formaat::Heel, ','), "7");
}

TEST(Opmaak, PrintsTheLargestNumberWhole) {
  const std::string tekst = Opmaak(-std::numeric_limits<double>::max(), Formaat::Een, '.');
  EXPECT_EQ(tekst, "-179769313486232" + std::string(294, '0') + ".0");  // 1.79769313486232E+308
}

TEST(Opmaak, NamesWhatIsNotANumber) {
  for (const Formaat formaat : {Formaat::Heel, Formaat::Een, Formaat::Twee}) {
    EXPECT_EQ(Opmaak(std::nan(""), formaat, '.'), "NaN");
    EXPECT_EQ(Opmaak(Oneindig, formaat, '.'), "INF");
    EXPECT_EQ(Opmaak(-Oneindig, formaat, '.'), "-INF");
  }
}

TEST(Opmaak, IsAppendedBehindWhatStandsThere) {
  std::string uit = "Lw = ";
  VoegOpmaakToe(uit, -3.25, Formaat::Een, ',');
  EXPECT_EQ(uit, "Lw = -3,3");
}

TEST(StandaardTekst, HasAtMostFifteenDigitsAndNoTrailingZeros) {
  struct Rij {
    double waarde;
    std::string_view tekst;
  };
  const Rij rijen[] = {
      {0, "0"},
      {-0.0, "0"},
      {1, "1"},
      {-17, "-17"},
      {0.125, "0.125"},
      {0.1 + 0.2, "0.3"},
      {1.0 / 3, "0.333333333333333"},
      {-2.0 / 3, "-0.666666666666667"},
      {0.0001, "0.0001"},
      {0.00001, "1E-05"},
      {1.5E-7, "1.5E-07"},
      {250.0, "250"},
      {123456.789, "123456.789"},
      {100000000000000, "100000000000000"},  // 15 digits
      {1E+15, "1E+15"},                      // 16 digits
      {999999999999999.9, "1E+15"},
      {1E+20, "1E+20"},
      {1E-20, "1E-20"},
      {1.23456789012345678E+100, "1.23456789012346E+100"},
      {-1.7976931348623157E+308, "-1.79769313486232E+308"},
      {5E-324, "4.94065645841247E-324"},
  };
  for (const Rij& rij : rijen) EXPECT_EQ(StandaardTekst(rij.waarde, '.'), rij.tekst) << rij.waarde;
}

TEST(StandaardTekst, UsesTheDecimalSignThatIsHandedIn) {
  EXPECT_EQ(StandaardTekst(0.125, ','), "0,125");
  EXPECT_EQ(StandaardTekst(-1.5E-7, ','), "-1,5E-07");
  EXPECT_EQ(StandaardTekst(42, ','), "42");
}

TEST(StandaardTekst, NamesWhatIsNotANumber) {
  EXPECT_EQ(StandaardTekst(std::nan(""), ','), "NaN");
  EXPECT_EQ(StandaardTekst(Oneindig, ','), "INF");
  EXPECT_EQ(StandaardTekst(-Oneindig, ','), "-INF");
}

TEST(RondEven, TakesAHalfToTheEvenNumber) {
  struct Rij {
    double waarde, gerond;
  };
  const Rij rijen[] = {{0, 0},
                       {0.4, 0},
                       {0.5, 0},
                       {0.50000001, 1},
                       {1.5, 2},
                       {2.5, 2},
                       {2.6, 3},
                       {3.5, 4},
                       {-0.5, 0},
                       {-1.5, -2},
                       {-2.5, -2},
                       {-2.4, -2},
                       {-2.6, -3},
                       {28, 28},
                       {0.49999999999999994, 0},
                       {4503599627370495.5, 4503599627370496},
                       {1E+300, 1E+300}};
  for (const Rij& rij : rijen) EXPECT_EQ(RondEven(rij.waarde), rij.gerond) << rij.waarde;
}

struct GetalRij {
  std::string_view tekst;
  double waarde;
};

TEST(LeesGetal, ReadsCommaAndPointAsDecimalSign) {
  const GetalRij rijen[] = {
      {"0", 0},
      {"12", 12},
      {"1.5", 1.5},
      {"1,5", 1.5},
      {"+1,5", 1.5},
      {"-1.5", -1.5},
      {".5", 0.5},
      {",5", 0.5},
      {"5.", 5},
      {"5,", 5},
      {"-,5", -0.5},
      {"  7 ", 7},
      {"\0 7,25 \0"sv, 7.25},
      {"0007", 7},
      {"1e3", 1000},
      {"1E3", 1000},
      {"1E+3", 1000},
      {"1,5e-3", 0.0015},
      {"5.E2", 500},
      {".5e1", 5},
      {"1e0007", 1E+7},
      {"0.1", 0.1},
      {"123456789012345678", 123456789012345678.0},
      {"1.7976931348623157e308", std::numeric_limits<double>::max()},
      {"4.9406564584124654e-324", std::numeric_limits<double>::denorm_min()},
  };
  for (const auto& rij : rijen) {
    EXPECT_TRUE(IsNumeriek(rij.tekst)) << rij.tekst;
    EXPECT_EQ(LeesGetal(rij.tekst), rij.waarde) << rij.tekst;
  }
}

TEST(LeesGetal, RefusesWhatIsNotANumber) {
  const std::string_view slecht[] = {
      "",
      " ",
      "\0"sv,
      ".",
      ",",
      "-",
      "+",
      "-.",
      "e3",
      ".e3",
      "1e",
      "1e+",
      "1e-",
      "1e1.5",
      "1e1,5",
      "--1",
      "+-1",
      "-+1",
      "- 1",
      "1-",
      "1 2",
      "1 e3",
      "1.2.3",
      "1,2,3",
      "1,2.3",
      "1.2,3",
      "1.234,5",
      "1,234.5",
      "0x10",
      "1d3",
      "nan",
      "inf",
      "-INF",
      "NaN",
      "infinity",
      "1f",
      "12 dB",
      "\xBD",
      "1'000",
      "1e3e3",
      "\t1",
      "1\n",
      "a",
      "1\0"
      "2"sv,
  };
  for (const auto tekst : slecht) {
    EXPECT_FALSE(IsNumeriek(tekst)) << testing::PrintToString(tekst);
    try {
      (void)LeesGetal(tekst);
      ADD_FAILURE() << "no Fout for " << testing::PrintToString(tekst);
    } catch (const Fout& fout) {
      EXPECT_EQ(fout.Nummer(), FoutNummer::GeenGetal) << testing::PrintToString(tekst);
    }
  }
}

TEST(LeesGetal, RefusesWhatIsTooLargeForADouble) {
  const std::string veelCijfers(400, '9');
  const std::string naNullen = "0." + std::string(400, '0') + "1e1000";
  const std::string_view groot[] = {
      "1e309",
      "-1e309",
      "1,8e308",
      "2E+308",
      "1e99999",
      "1e99999999999999999999999",
      "1e9223372036854775807",
      "1e+9223372036854775807",
      "10e9223372036854775807",
      "0.01e99999999999999999999",
      veelCijfers,
      naNullen,
  };
  for (const auto tekst : groot) {
    EXPECT_TRUE(IsNumeriek(tekst)) << tekst;
    try {
      (void)LeesGetal(tekst);
      ADD_FAILURE() << "no Fout for " << tekst;
    } catch (const Fout& fout) {
      EXPECT_EQ(fout.Nummer(), FoutNummer::Overloop) << tekst;
    }
  }
}

TEST(LeesGetal, TakesWhatIsTooSmallForADoubleAsZero) {
  const std::string veelNullen = "0," + std::string(400, '0') + "1";
  const std::string metCijfers = std::string(400, '9') + "e-1000";
  const std::string_view klein[] = {
      "1e-400",
      "1,5e-99999",
      "1e-99999999999999999999999",
      "1e-9223372036854775808",
      "0,001e-9223372036854775808",
      "123e-9223372036854775808",
      "0e99999",
      "0e999999999999999999999999",
      "0,000e-99999",
      veelNullen,
      metCijfers,
  };
  for (const auto tekst : klein) {
    const double waarde = LeesGetal(tekst);
    EXPECT_EQ(waarde, 0) << tekst;
    EXPECT_FALSE(std::signbit(waarde)) << tekst;
  }
  EXPECT_EQ(LeesGetal("-1e-400"), 0);
  EXPECT_TRUE(std::signbit(LeesGetal("-1e-400")));
}

TEST(LeesGetal, ReadsBackEveryDisplayFormat) {
  for (const double waarde : {0.0, 12.3, -45.6, 100.0, 0.1}) {
    for (const char decimaal : {'.', ','})
      EXPECT_EQ(LeesGetal(Opmaak(waarde, Formaat::Een, decimaal)), waarde);
  }
}

}  // namespace
}  // namespace murvane
