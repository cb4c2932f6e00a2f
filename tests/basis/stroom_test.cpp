#include "basis/stroom.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <string>

namespace murvane {
namespace {

using std::string_literals::operator""s;

template <typename T>
std::string Geschreven(const T& waarde) {
  std::string uit;
  Schrijver(uit).Schrijf(waarde);
  return uit;
}

template <typename T>
T Gelezen(std::string_view bytes) {
  T waarde{};
  Lezer(bytes).Lees(waarde);
  return waarde;
}

TEST(Stroom, WholeNumbersAreTwoBytesTheLowOneFirst) {
  struct Rij {
    std::int16_t getal;
    std::string bytes;
  };
  const Rij rijen[] = {{0, "\0\0"s},       {1, "\x01\0"s},       {-1, "\xFF\xFF"s},
                       {500, "\xF4\x01"s}, {32767, "\xFF\x7F"s}, {-32768, "\0\x80"s}};
  for (const Rij& rij : rijen) {
    EXPECT_EQ(Geschreven(rij.getal), rij.bytes);
    EXPECT_EQ(Gelezen<std::int16_t>(rij.bytes), rij.getal);
  }
}

TEST(Stroom, RealNumbersAreEightBytesTheLowOneFirst) {
  // 1 = 3FF0000000000000, -2.5 = C004000000000000, 0.1 = 3FB999999999999A hexadecimal.
  EXPECT_EQ(Geschreven(1.0), "\0\0\0\0\0\0\xF0\x3F"s);
  EXPECT_EQ(Geschreven(-2.5), "\0\0\0\0\0\0\x04\xC0"s);
  EXPECT_EQ(Geschreven(0.1), "\x9A\x99\x99\x99\x99\x99\xB9\x3F"s);
  EXPECT_EQ(Gelezen<double>("\x9A\x99\x99\x99\x99\x99\xB9\x3F"), 0.1);
}

TEST(Stroom, EveryBitOfARealNumberComesBack) {
  const std::uint64_t bits[] = {0x8000000000000000, 0x7FF0000000000000,
                                0xFFF0000000000000, 0x7FF8000000000001,
                                0x7FF0DEADBEEF0001,  // a signalling NaN
                                0x0000000000000001, 0x0123456789ABCDEF};
  for (const std::uint64_t patroon : bits) {
    const std::string bytes = Geschreven(std::bit_cast<double>(patroon));
    EXPECT_EQ(std::bit_cast<std::uint64_t>(Gelezen<double>(bytes)), patroon);
  }
}

TEST(Stroom, FixedTextsHaveNoLengthField) {
  EXPECT_EQ(Geschreven(Tekst<5>("ab")), "ab   ");
  EXPECT_EQ(Geschreven(Tekst<3>()), "\0\0\0"s);
  EXPECT_EQ(Gelezen<Tekst<3>>("a\0\xFF"s).Heel(), "a\0\xFF"s);
}

TEST(Stroom, VariableTextsHaveTheirLengthInFront) {
  EXPECT_EQ(Geschreven(""s), "\0\0"s);
  EXPECT_EQ(Geschreven("a\0b"s), "\x03\0a\0b"s);
  EXPECT_EQ(Gelezen<std::string>("\x03\0a\0bcd"s), "a\0b"s);
  const std::string lang(65535, 'x');
  EXPECT_EQ(Geschreven(lang), "\xFF\xFF"s + lang);
  EXPECT_EQ(Gelezen<std::string>("\xFF\xFF"s + lang), lang);
}

TEST(Stroom, ATextTooLongForItsLengthFieldIsRefused) {
  try {
    (void)Geschreven(std::string(65536, 'x'));
    FAIL() << "no Fout";
  } catch (const Fout& fout) {
    EXPECT_EQ(fout.Nummer(), FoutNummer::OngeldigArgument);
  }
}

TEST(Stroom, ArraysAreTheirElementsInOrder) {
  const std::array<std::int16_t, 3> rij = {1, -1, 258};
  EXPECT_EQ(Geschreven(rij), "\x01\0\xFF\xFF\x02\x01"s);
  EXPECT_EQ((Gelezen<std::array<std::int16_t, 3>>("\x01\0\xFF\xFF\x02\x01"s)), rij);
}

TEST(Stroom, EveryCutRaisesTheEndOfFileFault) {
  std::string beeld;
  Schrijver schrijver(beeld);
  schrijver.Schrijf(std::int16_t{7});
  schrijver.Schrijf(3.5);
  schrijver.Schrijf(Tekst<4>("abcd"));
  schrijver.Schrijf("variabel"s);
  schrijver.Schrijf(std::array<double, 2>{1, 2});
  const auto lees = [](std::string_view bytes) {
    Lezer lezer(bytes);
    std::int16_t getal = 0;
    double reeel = 0;
    Tekst<4> vast;
    std::string tekst;
    std::array<double, 2> rij{};
    lezer.Lees(getal), lezer.Lees(reeel), lezer.Lees(vast), lezer.Lees(tekst), lezer.Lees(rij);
    return getal == 7 && reeel == 3.5 && vast.Heel() == "abcd" && tekst == "variabel" && rij[1] == 2;
  };
  EXPECT_TRUE(lees(beeld));
  EXPECT_TRUE(lees(beeld + "staart"));
  for (std::size_t n = 0; n < beeld.size(); ++n) {
    try {
      (void)lees(std::string_view(beeld).substr(0, n));
      ADD_FAILURE() << "no Fout at " << n << " bytes";
    } catch (const Fout& fout) {
      EXPECT_EQ(fout.Nummer(), FoutNummer::VoorbijEinde) << n;
    }
  }
}

}  // namespace
}  // namespace murvane
