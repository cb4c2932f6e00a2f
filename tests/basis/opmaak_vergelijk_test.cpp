// The display formats against the plainest form of their rule: the decimal text of a number at 15 digits,
// rounded on paper. The formats take shortcuts for speed; none may show.

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

#include "basis/getal.h"

namespace murvane {
namespace {

/// Adds one to the last digit of a row of digits.
void TelOp(std::string& cijfers) {
  std::size_t i = cijfers.size();
  while (i > 0 && cijfers[i - 1] == '9') cijfers[--i] = '0';
  if (i == 0) {
    cijfers.insert(0, 1, '1');
  } else {
    ++cijfers[i - 1];
  }
}

std::string OpPapier(double waarde, int decimalen) {
  char buffer[40];
  std::snprintf(buffer, sizeof buffer, "%.14e", std::fabs(waarde));  // the sign at [1] may be any
  const int exponent = std::atoi(buffer + 17);
  std::string cijfers = buffer[0] + std::string(buffer + 2, 14);
  // All digits in front of the point stand in `cijfers` from here on: widen it to both sides of the point.
  if (exponent < 0) cijfers.insert(0, static_cast<std::size_t>(-exponent), '0');
  std::size_t voor = exponent < 0 ? 1 : static_cast<std::size_t>(exponent) + 1;
  cijfers.resize(std::max(cijfers.size(), voor + 3), '0');
  const std::size_t houd = voor + static_cast<std::size_t>(decimalen);
  const bool op = cijfers[houd] >= '5';
  cijfers.resize(houd);
  if (op) TelOp(cijfers);
  voor = cijfers.size() - static_cast<std::size_t>(decimalen);
  const bool nul = cijfers.find_first_not_of('0') == std::string::npos;
  if (decimalen > 0) cijfers.insert(voor, 1, ',');
  return (waarde < 0 && !nul ? "-" : "") + cijfers;
}

/// Reports the first difference of a test.
void Vergelijk(double waarde) {
  if (!std::isfinite(waarde)) return;
  for (const double x : {waarde, -waarde}) {
    for (const Formaat formaat : {Formaat::Heel, Formaat::Een, Formaat::Twee}) {
      const std::string verwacht = OpPapier(x, static_cast<int>(formaat));
      std::string uit = "x";
      VoegRechtsToe(uit, x, formaat, 9, ',');
      const std::string blanco(verwacht.size() < 9 ? 9 - verwacht.size() : 0, ' ');
      const bool gelijk = Opmaak(x, formaat, ',') == verwacht && uit == "x" + blanco + verwacht;
      if (!gelijk && !testing::Test::HasFailure())
        ADD_FAILURE() << StandaardTekst(x, '.') << " (" << std::bit_cast<std::uint64_t>(x) << ") is " << uit
                      << ", not " << verwacht;
    }
  }
}

/// The number and its neighbours, near and a little farther.
void VergelijkRondom(double waarde) {
  Vergelijk(waarde);
  double onder = waarde;
  double boven = waarde;
  for (int i = 0; i < 3; ++i) {
    Vergelijk(onder = std::nextafter(onder, 0.0));
    Vergelijk(boven = std::nextafter(boven, std::numeric_limits<double>::infinity()));
  }
  for (const double rel : {1e-15, 4e-15, 6e-15, 1e-14, 1e-13, 1e-10, 1e-7}) {
    Vergelijk(waarde * (1 - rel));
    Vergelijk(waarde * (1 + rel));
  }
}

TEST(OpmaakVergelijk, PaperRuleItself) {
  EXPECT_EQ(OpPapier(0, 1), "0,0");
  EXPECT_EQ(OpPapier(-0.05, 1), "-0,1");
  EXPECT_EQ(OpPapier(-0.0499, 1), "0,0");
  EXPECT_EQ(OpPapier(1.005, 2), "1,01");  // the double is below the half, its 15 digits are not
  EXPECT_EQ(OpPapier(99.95, 1), "100,0");
  EXPECT_EQ(OpPapier(0.95, 0), "1");
  EXPECT_EQ(OpPapier(123456789012345680.0, 1), "123456789012346000,0");
  EXPECT_EQ(OpPapier(1e-300, 2), "0,00");
}

TEST(OpmaakVergelijk, ThousandthsOfWorkingRange) {
  for (int i = 0; i <= 160'000; ++i) Vergelijk(i / 1000.0);
}

TEST(OpmaakVergelijk, HalvesAndTheirNeighbours) {
  for (int i = 0; i < 1500; ++i) {
    VergelijkRondom(i + 0.5);
    VergelijkRondom(i / 10.0 + 0.05);
    VergelijkRondom(i / 100.0 + 0.005);
  }
  for (double groot = 1e3; groot < 1e17; groot *= 10) {
    for (const double rest : {0.5, 0.05, 0.005, 0.45, 0.25, 0.75, 0.995, 0.95}) {
      VergelijkRondom(groot + rest);
      VergelijkRondom(groot - rest);
    }
  }
}

TEST(OpmaakVergelijk, BoundsOfTheShortcut) {
  for (const double grens : {1e7, 1e8, 1e9, 4294967295.0, 4294967296.0, 42949672.95, 429496729.5}) {
    for (const double bij :
         {0.0, 0.4999, 0.4998, 0.49991, 0.49989, 0.5, 0.50009, 0.50011, 0.0499, 0.0501, 0.005}) {
      VergelijkRondom(grens + bij);
      VergelijkRondom(grens - bij);
    }
  }
}

TEST(OpmaakVergelijk, PowersOfTenOverTheWholeRange) {
  for (int e = -320; e <= 307; ++e) {
    for (const char* begin : {"1", "4.99999999999999", "5", "9.99999999999999", "9.999999999999999"}) {
      const double waarde = LeesGetal(begin + ("e" + std::to_string(e)));
      if (std::abs(e) > 25) {
        Vergelijk(waarde);
      } else {
        VergelijkRondom(waarde);
      }
    }
  }
  Vergelijk(std::numeric_limits<double>::max());
  Vergelijk(std::numeric_limits<double>::denorm_min());
}

TEST(OpmaakVergelijk, RandomNumbersOfEverySize) {
  std::mt19937_64 toeval(20240201);
  for (int i = 0; i < 20'000; ++i) {
    Vergelijk(std::bit_cast<double>(toeval()));
    const double fractie = static_cast<double>(toeval() >> 11) / 9007199254740992.0;
    Vergelijk(fractie * 150);
    Vergelijk(std::ldexp(fractie, static_cast<int>(toeval() % 100) - 40));
  }
}

TEST(OpmaakVergelijk, RightAlignedTextGrowsOnlyToItsWidth) {
  const struct {
    double waarde;
    std::size_t breedte;
    std::string tekst;
  } rijen[] = {
      {1, 0, "1.0"},
      {1, 3, "1.0"},
      {1, 4, " 1.0"},
      {1, 32, std::string(29, ' ') + "1.0"},
      {1, 33, std::string(30, ' ') + "1.0"},
      {1, 100, std::string(97, ' ') + "1.0"},
      {0.25, 5, "  0.3"},
      {0.25, 2, "0.3"},
      {1e9, 14, "  1000000000.0"},
      {-1e9, 5, "-1000000000.0"},
      {std::numeric_limits<double>::quiet_NaN(), 5, "  NaN"},
      {-std::numeric_limits<double>::infinity(), 5, " -INF"},
  };
  for (const auto& rij : rijen) {
    std::string uit = "voor";
    VoegRechtsToe(uit, rij.waarde, Formaat::Een, rij.breedte, '.');
    EXPECT_EQ(uit, "voor" + rij.tekst);
  }
}

}  // namespace
}  // namespace murvane
