#include "basis/json.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <random>

#include "basis/fout.h"

namespace murvane {
namespace {

/// What the failure says, or nothing when there is none.
template <typename Doe>
std::string MeldingVan(Doe doe) {
  try {
    doe();
  } catch (const Fout& fout) {
    return fout.Melding();
  }
  return {};
}

std::string Geschreven(double getal) {
  JsonSchrijver json;
  json.Waarde(getal);
  return std::move(json).Klaar();
}

double Gelezen(std::string_view json) {
  const JsonWaarde waarde = LeesJson(json);
  double getal = 99;
  JsonVeld(waarde, "getal").Lees(getal);
  return getal;
}

std::uint64_t Bits(double getal) {
  return std::bit_cast<std::uint64_t>(getal);
}
double VanBits(std::uint64_t bits) {
  return std::bit_cast<double>(bits);
}

TEST(JsonSchrijver, WritesTheShortestDigitsThatReadBack) {
  const struct {
    double getal;
    const char* json;
  } rijen[] = {
      {0, "0\n"},
      {-0.0, "-0.0\n"},
      {1, "1\n"},
      {-32768, "-32768\n"},
      {0.1, "0.1\n"},
      {0.30000000000000004, "0.30000000000000004\n"},
      {1.0 / 3, "0.3333333333333333\n"},
      {1e23, "1e+23\n"},  // 17 digits would give 9.9999999999999992e+22
      {9007199254740992.0, "9007199254740992\n"},
      {5e-324, "5e-324\n"},
      {2.2250738585072014e-308, "2.2250738585072014e-308\n"},
      {1.7976931348623157e308, "1.7976931348623157e+308\n"},
  };
  for (const auto& rij : rijen) EXPECT_EQ(Geschreven(rij.getal), rij.json);
}

TEST(JsonSchrijver, WritesWhatIsNoNumberAsText) {
  const double oneindig = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Geschreven(oneindig), "\"Infinity\"\n");
  EXPECT_EQ(Geschreven(-oneindig), "\"-Infinity\"\n");
  EXPECT_EQ(Geschreven(VanBits(0x7FF8000000000000)), "\"NaN\"\n");
  EXPECT_EQ(Geschreven(VanBits(0xFFF8000000000000)), "\"NaN:FFF8000000000000\"\n");
  EXPECT_EQ(Geschreven(VanBits(0x7FF0000000000001)), "\"NaN:7FF0000000000001\"\n");
  EXPECT_EQ(Geschreven(VanBits(0x7FFABCDEF0123456)), "\"NaN:7FFABCDEF0123456\"\n");
}

TEST(Json, EveryBitPatternOfANumberComesBack) {
  std::mt19937_64 toeval(20240517);
  for (int i = 0; i < 20000; ++i) {
    std::uint64_t bits = toeval();
    if (i % 4 == 1) bits &= 0x800FFFFFFFFFFFFF;                                                 // denormal
    if (i % 4 == 2) bits |= 0x7FF0000000000000;                                                 // not finite
    if (i % 4 == 3) bits = Bits(std::floor(std::ldexp(static_cast<double>(bits), -(i % 64))));  // whole
    ASSERT_EQ(Bits(Gelezen(Geschreven(VanBits(bits)))), bits) << Geschreven(VanBits(bits));
  }
}

TEST(JsonSchrijver, IndentsByTwoBlanksAndKeepsNumbersOnOneLine) {
  JsonSchrijver json;
  json.BeginObject();
  json.Veld("Aantal", std::int16_t{-3}).Veld("Aan", true).Veld("Uit", false);
  json.Veld("Lw", std::array<double, 3>{1, 2.5, -0.0});
  json.Sleutel("Leeg").BeginLijst().EindLijst();
  json.Sleutel("Niets").Null();
  json.Sleutel("Teksten").BeginLijst(JsonSchrijver::Vorm::EenRegel).Waarde("a").Waarde("b").EindLijst();
  json.Sleutel("Lijst").BeginLijst().BeginObject().Veld("Nummer", std::size_t{1}).EindObject();
  json.BeginObject().EindObject().EindLijst();
  json.EindObject();
  EXPECT_EQ(std::move(json).Klaar(),
            "{\n"
            "  \"Aantal\": -3,\n"
            "  \"Aan\": true,\n"
            "  \"Uit\": false,\n"
            "  \"Lw\": [1, 2.5, -0.0],\n"
            "  \"Leeg\": [],\n"
            "  \"Niets\": null,\n"
            "  \"Teksten\": [\"a\", \"b\"],\n"
            "  \"Lijst\": [\n"
            "    {\n"
            "      \"Nummer\": 1\n"
            "    },\n"
            "    {}\n"
            "  ]\n"
            "}\n");
}

std::string TekstJson(std::string_view tekst) {
  JsonSchrijver json;
  json.Waarde(tekst);
  return std::move(json).Klaar();
}

TEST(JsonSchrijver, WritesTextsAsUtf8AndEscapesWhatATerminalWouldActOn) {
  EXPECT_EQ(TekstJson("5 m\xB2 \x80"), "\"5 m² €\"\n");
  EXPECT_EQ(TekstJson("\"\\/"), "\"\\\"\\\\/\"\n");
  EXPECT_EQ(TekstJson(std::string_view("\0\x01\n\x1F\x7F", 5)), "\"\\u0000\\u0001\\u000A\\u001F\\u007F\"\n");
  // The five bytes that the code page leaves undefined.
  EXPECT_EQ(TekstJson("\x81\x8D\x8F\x90\x9D"), "\"\\u0081\\u008D\\u008F\\u0090\\u009D\"\n");
  EXPECT_EQ(TekstJson("\xA0"), "\"\xC2\xA0\"\n");  // the no-break space is shown as it is
}

TEST(JsonSchrijver, LeavesOutOnlyTheBlanksThatPadAFixedText) {
  const auto vast = [](Tekst<6> tekst) {
    JsonSchrijver json;
    json.Waarde(tekst);
    return std::move(json).Klaar();
  };
  EXPECT_EQ(vast(Tekst<6>(" ab  ")), "\" ab\"\n");
  EXPECT_EQ(vast(Tekst<6>("abcdef")), "\"abcdef\"\n");
  EXPECT_EQ(vast(Tekst<6>("")), "\"\"\n");
  EXPECT_EQ(vast(Tekst<6>()), "null\n");
  EXPECT_EQ(vast(Tekst<6>(std::string_view("a\0", 2))), "\"a\\u0000\"\n");
  EXPECT_EQ(vast(Tekst<6>(std::string_view("\0", 1))), "\"\\u0000\"\n");
  EXPECT_EQ(vast(Tekst<6>(std::string_view("a\0\0\0\0\0", 6))), "\"a\\u0000\\u0000\\u0000\\u0000\\u0000\"\n");
}

TEST(Json, EveryByteOfATextComesBack) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string tekst = {'a', static_cast<char>(byte), 'b'};
    const JsonWaarde waarde = LeesJson(TekstJson(tekst));
    std::string terug;
    JsonVeld(waarde, "").Lees(terug);
    EXPECT_EQ(terug, tekst) << byte;
  }
}

TEST(LeesJson, ReadsEveryKindOfValue) {
  const JsonWaarde waarde = LeesJson(" {\"a\" : [1, -2.5e1, true, null, \"\\u20ac\\n\"],\r\n\t\"b\":{}} ");
  const auto& leden = std::get<JsonWaarde::Object>(waarde.inhoud);
  ASSERT_EQ(leden.size(), 2U);
  EXPECT_EQ(leden[0].sleutel, "a");
  const auto& lijst = std::get<JsonWaarde::Lijst>(leden[0].waarde.inhoud);
  ASSERT_EQ(lijst.size(), 5U);
  EXPECT_EQ(std::get<double>(lijst[0].inhoud), 1);
  EXPECT_EQ(std::get<double>(lijst[1].inhoud), -25);
  EXPECT_TRUE(std::get<bool>(lijst[2].inhoud));
  EXPECT_TRUE(std::holds_alternative<std::nullptr_t>(lijst[3].inhoud));
  EXPECT_EQ(std::get<std::string>(lijst[4].inhoud), "€\n");
  EXPECT_EQ(leden[1].sleutel, "b");
  EXPECT_TRUE(std::get<JsonWaarde::Object>(leden[1].waarde.inhoud).empty());
}

TEST(LeesJson, ReadsNumbersOfEverySizeAlike) {
  const struct {
    const char* json;
    double getal;
  } rijen[] = {
      {"9007199254740993", 9007199254740992.0},          // halfway, to even
      {"18446744073709551615", 18446744073709551616.0},  // the largest 64-bit number
      {"18446744073709551616", 18446744073709551616.0},  // one that fits no integer
      {"-9223372036854775809", -9223372036854775808.0},   {"1e-400", 0}, {"4.9e-324", 5e-324},
      {"1.7976931348623157e308", 1.7976931348623157e308},
  };
  for (const auto& rij : rijen) EXPECT_EQ(Gelezen(rij.json), rij.getal) << rij.json;
}

TEST(LeesJson, SkipsAByteOrderMark) {
  EXPECT_EQ(Gelezen("\xEF\xBB\xBF"
                    "7"),
            7);
}

TEST(LeesJson, RefusesWhatIsNotJsonWithLineAndColumn) {
  const struct {
    std::string_view json;
    const char* plaats;
  } rijen[] = {
      {"", "regel 1, kolom 1"},
      {"  ", "regel 1, kolom 3"},
      {"{", "regel 1, kolom 2"},
      {"{\n  \"a\": 1,\n}", "regel 3, kolom 1"},
      {"{\n  \"a\": 01\n}", "regel 2, kolom 9"},  // the 1 behind a complete 0
      {"{\"é\": x}", "regel 1, kolom 7"},         // columns count characters, not bytes
      {"\xEF\xBB\xBF]", "regel 1, kolom 1"},      // nor the byte order mark
      {"[1] 2", "regel 1, kolom 5"},
      {"// a\n1", "regel 1, kolom 1"},
      {"NaN", "regel 1, kolom 1"},
      {"\"a\nb\"", "regel 1, kolom 3"},
      {"\"\\ud800\"", "regel 1, kolom 8"},
      {"\"\xFF\"", "regel 1, kolom 2"},
      {std::string_view("[1]\0[2]", 7), "regel 1, kolom 4"},
      {std::string_view("[1\n]\n\0", 6), "regel 3, kolom 1"},
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(MeldingVan([&] { (void)LeesJson(rij.json); }),
              "Fout 5 - Geen geldige JSON (" + std::string(rij.plaats) + ").")
        << rij.json;
  }
}

TEST(LeesJson, RefusesDoubledKeysDepthAndOverflowWithTheirPath) {
  const struct {
    std::string json;
    const char* melding;
  } rijen[] = {
      {R"({"a": 1, "b": 2, "a": 1})", "Fout 5 - Dubbele sleutel \"a\"."},
      {R"({"x": [0, {"a": 1, "\u0061": 2}]})", "Fout 5 - Dubbele sleutel \"a\" (x[2])."},
      {"1e400", "Fout 6 - Het getal is te groot."},
      {R"({"x": {"y": [0, -1e400]}})", "Fout 6 - Het getal is te groot (x.y[2])."},
      {R"([1, 2, )" + std::string(400, '9') + "]", "Fout 6 - Het getal is te groot ([3])."},
      {std::string(17, '[') + std::string(17, ']'),
       "Fout 5 - Te veel objecten en lijsten in elkaar ([1][1][1][1][1][1][1][1][1][1][1][1][1][1][1][1])."},
      {std::string(1000000, '['),
       "Fout 5 - Te veel objecten en lijsten in elkaar ([1][1][1][1][1][1][1][1][1][1][1][1][1][1][1][1])."},
  };
  for (const auto& rij : rijen) {
    EXPECT_EQ(MeldingVan([&] { (void)LeesJson(rij.json); }), rij.melding) << rij.json.substr(0, 80);
  }
  EXPECT_EQ(MeldingVan([&] { (void)LeesJson(std::string(16, '[') + std::string(16, ']')); }), "");
}

// Keys are compared when their object ends; what is told is still the first thing that was wrong.
TEST(LeesJson, TellsOfTheFirstDoubledKeyAndBeforeWhateverComesBehindIt) {
  const struct {
    std::string json;
    const char* melding;
  } rijen[] = {
      {R"({"b": 1, "a": 1, "b": 2, "a": 2, "a": 3})", "Fout 5 - Dubbele sleutel \"b\"."},
      {R"({"a": 1, "a": 2, "c": ,})", "Fout 5 - Dubbele sleutel \"a\"."},
      {R"({"a": 1, "a": 2)", "Fout 5 - Dubbele sleutel \"a\"."},
      {R"({"a": 1, "a": 1e400})", "Fout 5 - Dubbele sleutel \"a\"."},
      {R"({"a": 1, "a": )" + std::string(17, '['), "Fout 5 - Dubbele sleutel \"a\"."},
      {R"({"a": 1, "a": {"b": 1, "b": 2}})", "Fout 5 - Dubbele sleutel \"a\"."},
      {R"({"a": {"b": 1, "b": 2}, "a": 1})", "Fout 5 - Dubbele sleutel \"b\" (a)."},
      {R"({"x": {"a": [0, {"b": 1, "c": {}, "b": {"d": 1e400}}]}})",
       "Fout 5 - Dubbele sleutel \"b\" (x.a[2])."},
  };
  for (const auto& rij : rijen)
    EXPECT_EQ(MeldingVan([&] { (void)LeesJson(rij.json); }), rij.melding) << rij.json;
}

TEST(LeesJson, TheSameKeyMayStandInTwoObjects) {
  EXPECT_EQ(MeldingVan([] { (void)LeesJson(R"([{"a": {"a": 1}}, {"a": 2}])"); }), "");
}

TEST(LeesJson, ShowsKeysShortAndWithoutControlCharacters) {
  EXPECT_EQ(MeldingVan([] { (void)LeesJson("{\"\\u001b[2J\\\"\": 1e400}"); }),
            "Fout 6 - Het getal is te groot (\\u001B[2J\\\").");
  // Cut at 80 bytes, not inside the two bytes of é.
  const std::string lang = std::string(79, 'x') + "é" + std::string(500, 'y');
  EXPECT_EQ(MeldingVan([&] { (void)LeesJson("{\"" + lang + "\": 1e400}"); }),
            "Fout 6 - Het getal is te groot (" + std::string(79, 'x') + "…).");
}

/// The failure of reading a value of this type from a JSON text, at the place "X".
template <typename T>
std::string Weigering(std::string_view json, T doel = T()) {
  const JsonWaarde waarde = LeesJson(json);
  return MeldingVan([&] { JsonVeld(waarde, "X").Lees(doel); });
}

TEST(JsonVeld, ReadsTheTextsThatStandForNumbers) {
  EXPECT_EQ(Gelezen("\"Infinity\""), std::numeric_limits<double>::infinity());
  EXPECT_EQ(Gelezen("\"-Infinity\""), -std::numeric_limits<double>::infinity());
  EXPECT_EQ(Bits(Gelezen("\"NaN\"")), 0x7FF8000000000000U);
  EXPECT_EQ(Bits(Gelezen("\"NaN:7ff8000000000000\"")), 0x7FF8000000000000U);
  EXPECT_EQ(Bits(Gelezen("\"NaN:FFF0000000000001\"")), 0xFFF0000000000001U);
}

TEST(JsonVeld, RefusesWhatIsNoNumber) {
  for (const char* json :
       {"\"1\"", "\"\"", "true", "null", "[]", "{}", "\"nan\"", "\"Inf\"", "\"+Infinity\"", "\"NaN:\"",
        "\"NaN:7FF800000000000\"", "\"NaN:7FF80000000000000\"", "\"NaN:7FF800000000000G\"",
        "\"NaN:-FF8000000000000\"", "\"NaN:7FF0000000000000\"", "\"NaN:3FF0000000000000\""}) {
    EXPECT_EQ(Weigering<double>(json), "Fout 13 - Geen geldig getal (X).") << json;
  }
}

TEST(JsonVeld, ReadsWholeNumbersOfSixteenBitsOnly) {
  for (const char* json : {"32768", "-32769", "0.5", "1e5", "true", "null", "\"1\"", "\"NaN\"", "[1]"}) {
    EXPECT_EQ(Weigering<std::int16_t>(json), "Fout 13 - Geen geheel getal van -32768 tot en met 32767 (X).")
        << json;
  }
  const struct {
    const char* json;
    int getal;
  } rijen[] = {{"32767", 32767}, {"-32768", -32768}, {"-0", 0}, {"-0.0", 0}, {"3.0", 3}, {"1e2", 100}};
  for (const auto& rij : rijen) {
    std::int16_t getal = 99;
    const JsonWaarde waarde = LeesJson(rij.json);
    JsonVeld(waarde, "").Lees(getal);
    EXPECT_EQ(getal, rij.getal) << rij.json;
  }
}

TEST(JsonVeld, FillsAShortListOfNumbersWithZeros) {
  std::array<double, 4> rij = {9, 9, 9, 9};
  const JsonWaarde waarde = LeesJson("[1, \"Infinity\"]");
  JsonVeld(waarde, "").Lees(rij);
  EXPECT_EQ(rij, (std::array<double, 4>{1, std::numeric_limits<double>::infinity(), 0, 0}));
}

TEST(JsonVeld, RefusesListsOfNumbersThatDoNotFit) {
  using Vier = std::array<double, 4>;
  EXPECT_EQ(Weigering<Vier>("[1, 2, 3, 4]"), "");
  EXPECT_EQ(Weigering<Vier>("[1, 2, 3, 4, 5]"), "Fout 9 - De lijst is langer dan 4 (X).");
  EXPECT_EQ(Weigering<Vier>("7"), "Fout 13 - Geen lijst (X).");
  EXPECT_EQ(Weigering<Vier>("null"), "Fout 13 - Geen lijst (X).");
  EXPECT_EQ(Weigering<Vier>("[1, \"x\"]"), "Fout 13 - Geen geldig getal (X[2]).");
  EXPECT_EQ(Weigering<Vier>("[[1]]"), "Fout 13 - Geen geldig getal (X[1]).");
}

TEST(JsonVeld, CutsAndPadsFixedTexts) {
  const auto lees = [](std::string_view json) {
    const JsonWaarde waarde = LeesJson(json);
    Tekst<4> tekst("oud");
    JsonVeld(waarde, "").Lees(tekst);
    return std::string(tekst.Heel());
  };
  EXPECT_EQ(lees("\"ab\""), "ab  ");
  EXPECT_EQ(lees("\"\""), "    ");
  EXPECT_EQ(lees("\"abcdef\""), "abcd");
  EXPECT_EQ(lees("\"€²é×z\""), "\x80\xB2\xE9\xD7");  // cut after characters, not bytes of UTF-8
  EXPECT_EQ(lees("null"), std::string(4, '\0'));
  EXPECT_EQ(lees("\"\\u0000\""), std::string("\0   ", 4));
}

TEST(JsonVeld, RefusesWhatIsNoText) {
  for (const char* json : {"1", "false", "[]", "{}"}) {
    EXPECT_EQ(Weigering<Tekst<4>>(json), "Fout 13 - Geen tekst (X).") << json;
    EXPECT_EQ(Weigering<std::string>(json), "Fout 13 - Geen tekst (X).") << json;
  }
  EXPECT_EQ(Weigering<std::string>("\"a☃\"").substr(0, 8), "Fout 5 -");
  EXPECT_NE(Weigering<std::string>("\"a☃\"").find("☃"), std::string::npos);
  EXPECT_TRUE(Weigering<Tekst<1>>("\"ab☃\"").ends_with("(X)."));  // also behind the cut
}

TEST(JsonVeld, HoldsTextsOfAnyLengthToTheirLimit) {
  EXPECT_EQ(Weigering<std::string>("\"" + std::string(65535, 'x') + "\""), "");
  EXPECT_EQ(Weigering<std::string>("\"" + std::string(65536, 'x') + "\""),
            "Fout 5 - De tekst is langer dan 65535 tekens (X).");
  const JsonWaarde waarde = LeesJson("null");
  std::string tekst = "oud";
  JsonVeld(waarde, "").Lees(tekst);
  EXPECT_EQ(tekst, "");
}

TEST(JsonObject, NamesTheFirstKeyThatNobodyTook) {
  const JsonWaarde waarde = LeesJson(R"({"a": {"c": 1, "d": 2, "e": 3}, "b": 2})");
  JsonObject top(JsonVeld(waarde, ""));
  EXPECT_EQ(MeldingVan([&] { top.Klaar(); }), "Fout 5 - Onbekende sleutel \"a\".");
  JsonObject a = top.Deel("a");
  double c = 0;
  EXPECT_TRUE(a.Lees("c", c));
  EXPECT_EQ(c, 1);
  EXPECT_FALSE(a.Lees("C", c));  // capitals differ
  EXPECT_EQ(MeldingVan([&] { a.Klaar(); }), "Fout 5 - Onbekende sleutel \"d\" (a).");
  EXPECT_EQ(MeldingVan([&] { top.Klaar(); }), "Fout 5 - Onbekende sleutel \"b\".");
}

TEST(JsonObject, AbsentTextsBecomeBlankAndAbsentNumbersStay) {
  const JsonWaarde waarde = LeesJson("{}");
  JsonObject object(JsonVeld(waarde, ""));
  Tekst<3> vast;
  std::string vrij = "oud";
  double getal = 4;
  JsonObject deel = object.Deel("afwezig");
  deel.LeesOfLeeg("a", vast);
  deel.LeesOfLeeg("b", vrij);
  deel.LeesOfLeeg("c", getal);
  deel.Klaar();
  EXPECT_EQ(vast.Heel(), "   ");
  EXPECT_EQ(vrij, "");
  EXPECT_EQ(getal, 4);
}

TEST(JsonObject, RefusesWhatIsNoObject) {
  for (const char* json : {"[]", "1", "null", "\"a\""}) {
    const JsonWaarde waarde = LeesJson(json);
    EXPECT_EQ(MeldingVan([&] { JsonObject(JsonVeld(waarde, "X")); }), "Fout 13 - Geen object (X).");
    EXPECT_EQ(MeldingVan([&] { JsonObject(JsonVeld(waarde, "")); }), "Fout 13 - Geen object.");
  }
}

TEST(LeesAantal, TakesTheLengthOrANegativeCountBesideAnEmptyList) {
  const auto lees = [](std::string_view json, std::size_t lengte) {
    const JsonWaarde waarde = LeesJson(json);
    JsonObject object(JsonVeld(waarde, "Y"));
    return LeesAantal(object, "N", lengte);
  };
  EXPECT_EQ(lees("{}", 3), 3);
  EXPECT_EQ(lees("{\"N\": 3}", 3), 3);
  EXPECT_EQ(lees("{\"N\": 0}", 0), 0);
  EXPECT_EQ(lees("{\"N\": -32768}", 0), -32768);
  const std::string klopt_niet = "Fout 5 - Het aantal klopt niet met de lengte van de lijst (Y.N).";
  EXPECT_EQ(MeldingVan([&] { (void)lees("{\"N\": 2}", 3); }), klopt_niet);
  EXPECT_EQ(MeldingVan([&] { (void)lees("{\"N\": 1}", 0); }), klopt_niet);
  EXPECT_EQ(MeldingVan([&] { (void)lees("{\"N\": -1}", 3); }), klopt_niet);
  EXPECT_EQ(MeldingVan([&] { (void)lees("{\"N\": 2.5}", 3); }),
            "Fout 13 - Geen geheel getal van -32768 tot en met 32767 (Y.N).");
}

}  // namespace
}  // namespace murvane
