#include "editor/invoer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "basis/fout.h"
#include "basis/tekst.h"

namespace murvane {
namespace {

using namespace std::string_view_literals;

constexpr std::string_view Vandaag = "20-11-2026";
constexpr std::string_view GeenGetal = "Voer geldig getal in";
constexpr std::string_view GeenDatum = "Voer geldige datum in (dd-mm-yyyy)";

Validatie Valideer(std::string_view tekst, std::string_view veld, char decimaal = '.') {
  return ValiDate(tekst, Regel(veld), Vandaag, decimaal);
}

Validatie ValideerAls(std::string_view tekst, VeldSoort soort) {
  return ValiDate(tekst, {"", soort, 0, 0, Formaat::Heel}, Vandaag, '.');
}

TEST(Regel, HoldsTheLimitsAndTheFormatOfEveryNumericField) {
  struct Rij {
    const char* naam;
    double onder, boven;
    Formaat weergave;
  };
  const std::vector<Rij> rijen = {
      {"txtDebiet", 0, 5000, Formaat::Twee},     {"txtQAftak", 0, 5000, Formaat::Twee},
      {"txtHoogte", 0, 5000, Formaat::Heel},     {"txtBreedte", 0, 5000, Formaat::Heel},
      {"txtHAftak", 0, 5000, Formaat::Heel},     {"txtBAftak", 0, 5000, Formaat::Heel},
      {"txtHHoofd", 0, 5000, Formaat::Heel},     {"txtBHoofd", 0, 5000, Formaat::Heel},
      {"txtHDoor", 0, 5000, Formaat::Heel},      {"txtBDoor", 0, 5000, Formaat::Heel},
      {"txtH1Doorsnee", 0, 5000, Formaat::Heel}, {"txtB1Doorsnee", 0, 5000, Formaat::Heel},
      {"txtH2Doorsnee", 0, 5000, Formaat::Heel}, {"txtB2Doorsnee", 0, 5000, Formaat::Heel},
      {"txtLengte", 0, 100, Formaat::Een},       {"txtLDoorsnee", 0, 100, Formaat::Twee},
      {"txtRAftak", 0, 1, Formaat::Twee},        {"txtSnetto", 0, 5000, Formaat::Heel},
      {"txtWeerstand", 0, 5000, Formaat::Heel},  {"txtdemp", 0, 150, Formaat::Een},
      {"txtRLengte", 0, 300, Formaat::Een},      {"txtRBreedte", 0, 300, Formaat::Een},
      {"txtRHoogte", 0, 10, Formaat::Een},       {"txtRNagalm", 0, 10, Formaat::Twee},
      {"txtRNR", 0, 150, Formaat::Heel},         {"txtRDI", 1, 8, Formaat::Heel},
      {"txtRAantal", 0, 50, Formaat::Heel},      {"txtfan(0)", 0, 150, Formaat::Twee},
      {"txtfan(1)", 0, 100000, Formaat::Heel},   {"txtfan(2)", 0, 100000, Formaat::Heel},
      {"txtfan(3)", 0, 50, Formaat::Heel},       {"txtfan(4)", 0, 100000, Formaat::Heel},
  };
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(rij.naam);
    const VeldRegel& regel = Regel(rij.naam);
    EXPECT_EQ(regel.Naam, rij.naam);
    EXPECT_EQ(regel.Soort, VeldSoort::Numeriek);
    EXPECT_EQ(regel.Onder, rij.onder);
    EXPECT_EQ(regel.Boven, rij.boven);
    EXPECT_EQ(regel.Weergave, rij.weergave);
  }
}

TEST(Regel, KnowsTheDateField) {
  EXPECT_EQ(Regel("txtMyDate").Soort, VeldSoort::Datum);
}

TEST(Regel, TreatsBandFieldsOfFanAndRoomAsPlainTextWithOneDecimal) {
  for (const char* naam : {"txtLw", "txtRkanaal", "txtRplafond", "txtruis"}) {
    SCOPED_TRACE(naam);
    EXPECT_EQ(Regel(naam).Soort, VeldSoort::Tekst);
    EXPECT_EQ(Regel(naam).Weergave, Formaat::Een);
    EXPECT_EQ(Regel(naam).Onder, 0);  // without effect on a plain text
    EXPECT_EQ(Regel(naam).Boven, 150);
  }
}

TEST(Regel, KnowsThePlainTexts) {
  for (const char* naam : {"txtProNaam", "txtProNum", "txtOmschrijving", "txtToelichting1", "txtToelichting2",
                           "txtToelichting3", "txtSpectrum"}) {
    SCOPED_TRACE(naam);
    EXPECT_EQ(Regel(naam).Soort, VeldSoort::Tekst);
  }
}

TEST(Regel, RefusesAnUnknownName) {
  for (const char* naam : {"", "txtfan", "txtfan(5)", "txthoogte", "txtHoogte ", "lstFan"}) {
    SCOPED_TRACE(naam);
    try {
      (void)Regel(naam);
      ADD_FAILURE() << "no Fout";
    } catch (const Fout& fout) {
      EXPECT_EQ(fout.Nummer(), FoutNummer::OngeldigArgument);
    }
  }
}

TEST(ValiDate, ClampsFormatsAndReadsNumbers) {
  struct Rij {
    const char* veld;
    std::string_view tekst;
    const char* verwacht;
    double getal;
  };
  const std::vector<Rij> rijen = {
      // both decimal signs, blanks and NULs around
      {"txtLengte", "1.5", "1.5", 1.5},
      {"txtLengte", "1,5", "1.5", 1.5},
      {"txtLengte", "  1,5 ", "1.5", 1.5},
      {"txtLengte", "\0 1.5\0"sv, "1.5", 1.5},
      {"txtLengte", ",5", "0.5", 0.5},
      {"txtLengte", "5.", "5.0", 5},
      {"txtLengte", "+5", "5.0", 5},
      {"txtLengte", "1e1", "10.0", 10},
      // empty is 0, then clamped
      {"txtLengte", "", "0.0", 0},
      {"txtHoogte", "", "0", 0},
      {"txtRNagalm", "", "0.00", 0},
      {"txtRDI", "", "1", 1},
      // the value is that of the text shown, halves away from zero
      {"txtLengte", "1.25", "1.3", 1.3},
      {"txtLengte", "1.24", "1.2", 1.2},
      {"txtHoogte", "399.5", "400", 400},
      {"txtHoogte", "0.4", "0", 0},
      {"txtRAftak", "0.155", "0.16", 0.16},
      // limits, both sides
      {"txtLengte", "100", "100.0", 100},
      {"txtLengte", "99.94", "99.9", 99.9},
      {"txtLengte", "100.1", "100.0", 100},
      {"txtLengte", "-0.1", "0.0", 0},
      {"txtLengte", "0", "0.0", 0},
      {"txtHoogte", "5000", "5000", 5000},
      {"txtHoogte", "5001", "5000", 5000},
      {"txtHoogte", "1e300", "5000", 5000},
      {"txtHoogte", "-1e300", "0", 0},
      {"txtRDI", "0", "1", 1},
      {"txtRDI", "0.6", "1", 1},  // clamped before it is rounded
      {"txtRDI", "8.4", "8", 8},
      {"txtRDI", "7", "7", 7},  // snapping is for leaving the field
      {"txtRAftak", "1.004", "1.00", 1},
      {"txtfan(0)", "150.01", "150.00", 150},
      {"txtfan(1)", "100001", "100000", 100000},
      {"txtfan(3)", "51", "50", 50},
      {"txtRHoogte", "10.1", "10.0", 10},
      {"txtRAantal", "50.6", "50", 50},
  };
  for (const Rij& rij : rijen) {
    SCOPED_TRACE(testing::Message() << rij.veld << " '" << rij.tekst << "'");
    const Validatie uit = Valideer(rij.tekst, rij.veld);
    EXPECT_TRUE(uit.Geldig);
    EXPECT_EQ(uit.Tekst, rij.verwacht);
    EXPECT_EQ(uit.Getal, rij.getal);
    EXPECT_EQ(uit.ToolTip, "");
  }
}

TEST(ValiDate, ShowsTheDecimalSignOfTheRegion) {
  for (const char* tekst : {"0.155", "0,155"}) {
    const Validatie uit = Valideer(tekst, "txtRAftak", ',');
    EXPECT_EQ(uit.Tekst, "0,16");
    EXPECT_EQ(uit.Getal, 0.16);
  }
}

TEST(ValiDate, ShowsNoMinusSignOnZero) {
  EXPECT_EQ(Valideer("-0", "txtHoogte").Tekst, "0");
  EXPECT_EQ(Valideer("-0.001", "txtLengte").Tekst, "0.0");
}

TEST(ValiDate, RefusesWhatIsNoNumberAndKeepsItAsTyped) {
  for (const std::string_view tekst :
       {"abc"sv, " "sv, "   "sv, "\0"sv, "1.2.3"sv, "1,2,3"sv, "1.000,5"sv, "-"sv, "."sv, "1e"sv, "12 34"sv,
        " 5x "sv, "NaN"sv, "INF"sv, "0x10"sv}) {
    SCOPED_TRACE(tekst);
    const Validatie uit = Valideer(tekst, "txtHoogte");
    EXPECT_FALSE(uit.Geldig);
    EXPECT_EQ(uit.Tekst, tekst);
    EXPECT_EQ(uit.Getal, 0);
    EXPECT_EQ(uit.ToolTip, GeenGetal);
  }
}

TEST(ValiDate, GivesZeroForWhatIsNoNumberEvenBelowTheLowerLimit) {
  EXPECT_EQ(Valideer("x", "txtRDI").Getal, 0);
}

TEST(ValiDate, FaultsOnANumberTooLargeForADouble) {
  for (const char* tekst : {"1e999", "-1E999"}) {
    try {
      (void)Valideer(tekst, "txtHoogte");
      ADD_FAILURE() << "no Fout";
    } catch (const Fout& fout) {
      EXPECT_EQ(fout.Nummer(), FoutNummer::Overloop);
    }
  }
}

TEST(ValiDate, AcceptsDaysThatExist) {
  for (const std::string_view tekst :
       {"01-01-2026"sv, "31-12-2026"sv, "30-04-2026"sv, "31-01-2026"sv, "28-02-2026"sv, "29-02-2024"sv,
        "29-02-2000"sv, "01-01-0100"sv, "31-12-9999"sv}) {
    SCOPED_TRACE(tekst);
    const Validatie uit = Valideer(" " + std::string(tekst) + "  ", "txtMyDate");
    EXPECT_TRUE(uit.Geldig);
    EXPECT_EQ(uit.Tekst, tekst);
    EXPECT_EQ(uit.ToolTip, "");
  }
}

TEST(ValiDate, RefusesOtherDatesAndKeepsThemAsTyped) {
  for (const std::string_view tekst :
       {"31-02-2026"sv,  "29-02-2026"sv,  "29-02-1900"sv, "30-02-2024"sv, "31-04-2026"sv, "31-06-2026"sv,
        "31-09-2026"sv,  "31-11-2026"sv,  "32-01-2026"sv, "00-01-2026"sv, "01-00-2026"sv, "01-13-2026"sv,
        "31-12-0099"sv,  "01-01-0000"sv,  "1-1-2026"sv,   "01-01-26"sv,   "2026-01-01"sv, "01/01/2026"sv,
        "01.01.2026"sv,  "0a-01-2026"sv,  "01-01-20x6"sv, "-1-01-2026"sv, "01-+1-2026"sv, "01-01- 026"sv,
        "01-01-20260"sv, "01-01-2026x"sv, "01012026"sv,   "01/01-2026"sv, "01-01/2026"sv, " "sv,
        "\0"sv,          "morgen"sv}) {
    SCOPED_TRACE(tekst);
    const Validatie uit = Valideer(tekst, "txtMyDate");
    EXPECT_FALSE(uit.Geldig);
    EXPECT_EQ(uit.Tekst, tekst);
    EXPECT_EQ(uit.ToolTip, GeenDatum);
  }
}

TEST(ValiDate, TakesTodayForAnEmptyDate) {
  const Validatie uit = Valideer("", "txtMyDate");
  EXPECT_TRUE(uit.Geldig);
  EXPECT_EQ(uit.Tekst, Vandaag);
}

TEST(ValiDate, TrimsPlainTextAndNothingElse) {
  struct Rij {
    std::string_view tekst, verwacht;
  };
  const std::vector<Rij> rijen = {{" Kantoor  West "sv, "Kantoor  West"sv},
                                  {""sv, ""sv},
                                  {"  "sv, ""sv},
                                  {"\0\0"sv, ""sv},
                                  {"\0 a \0"sv, "a"sv}};
  for (const Rij& rij : rijen) {
    const Validatie uit = Valideer(rij.tekst, "txtProNaam");
    EXPECT_TRUE(uit.Geldig);
    EXPECT_EQ(uit.Tekst, rij.verwacht);
  }
  for (const char* tekst : {"1,2,3", "999", "-5", "abc", ""}) {
    SCOPED_TRACE(tekst);
    EXPECT_TRUE(Valideer(tekst, "txtLw").Geldig);
    EXPECT_EQ(Valideer(tekst, "txtLw").Tekst, tekst);
  }
}

// Pairs of the code page; what has no other case in it (and × and ÷, which stand between the letters) stays.
TEST(ValiDate, FoldsTheCaseOfTheWholeCodePage) {
  const std::string klein = NaarCp1252("az09 é àöøþšœžÿ ß µ ƒ ÷×ª€");
  const std::string groot = NaarCp1252("AZ09 É ÀÖØÞŠŒŽŸ ß µ ƒ ÷×ª€");
  for (const std::string& tekst : {klein, groot}) {
    const std::string metRuimte = "  " + tekst + std::string(1, '\0');
    EXPECT_EQ(ValideerAls(metRuimte, VeldSoort::Hoofdletters).Tekst, groot);
    EXPECT_EQ(ValideerAls(metRuimte, VeldSoort::KleineLetters).Tekst, klein);
    EXPECT_TRUE(ValideerAls(metRuimte, VeldSoort::KleineLetters).Geldig);
  }
}

TEST(ValiDate, ChangesNoByteWithoutCase) {
  for (int code = 1; code < 0x100; ++code) {
    const std::string tekst = "x" + std::string(1, static_cast<char>(code)) + "x";
    const std::string groot = ValideerAls(tekst, VeldSoort::Hoofdletters).Tekst;
    const std::string klein = ValideerAls(tekst, VeldSoort::KleineLetters).Tekst;
    SCOPED_TRACE(code);
    ASSERT_EQ(groot.size(), 3U);
    ASSERT_EQ(klein.size(), 3U);
    // a character is its own capital, its own small letter, or (without case) both
    EXPECT_TRUE(groot[1] == tekst[1] || klein[1] == tekst[1]);
    EXPECT_EQ(ValideerAls(klein, VeldSoort::Hoofdletters).Tekst, groot);
    EXPECT_EQ(ValideerAls(groot, VeldSoort::KleineLetters).Tekst, klein);
  }
  // 26 + 30 + 3 + 1 pairs: a-z, à-þ without ÷, š œ ž, ÿ
  int paren = 0;
  for (int code = 1; code < 0x100; ++code) {
    const std::string tekst(1, static_cast<char>(code));
    if (ValideerAls(tekst, VeldSoort::KleineLetters).Tekst !=
        ValideerAls(tekst, VeldSoort::Hoofdletters).Tekst)
      ++paren;
  }
  EXPECT_EQ(paren, 2 * 60);
}

/// What the table holds of a field besides its check; the number is that of its change event.
struct Eigenschap {
  VeldId veld;
  std::string_view toetsen;
  int berekend;
  std::vector<std::string_view> opvolgers;
};

constexpr std::string_view Getal = "1234567890,.";
constexpr std::string_view Cijfers = "1234567890";
constexpr std::string_view DatumTekens = "1234567890-";

const std::vector<Eigenschap>& Eigenschappen() {
  static const std::vector<Eigenschap> rijen = {
      {{"txtB1Doorsnee"}, Getal, 4, {"txtH2Doorsnee"}},
      {{"txtB2Doorsnee"}, Getal, 5, {"txtLDoorsnee"}},
      {{"txtBAftak"}, Getal, 6, {"txtRAftak"}},
      {{"txtBDoor"}, Getal, 7, {"txtHHoofd"}},
      {{"txtBHoofd"}, Getal, 8, {"txtHDoor"}},
      {{"txtBreedte"}, Getal, 9, {"txtLengte", "txtDebiet", "txtHoogte"}},
      {{"txtDebiet"}, Getal, 10, {"txtHoogte"}},
      {{"txtH1Doorsnee"}, Getal, 12, {"txtB1Doorsnee", "txtH2Doorsnee"}},
      {{"txtH2Doorsnee"}, Getal, 13, {"txtB2Doorsnee"}},
      {{"txtHAftak"}, Getal, 14, {"txtBAftak", "txtRAftak"}},
      {{"txtHDoor"}, Getal, 15, {"txtBDoor"}},
      {{"txtHHoofd"}, Getal, 16, {"txtBHoofd"}},
      {{"txtHoogte"}, Getal, 17, {"txtBreedte", "txtLengte", "txtDebiet", "lstProject"}},
      {{"txtLDoorsnee"}, Getal, 18, {"txtH1Doorsnee"}},
      {{"txtLengte"}, Getal, 19, {"txtDebiet", "txtHoogte"}},
      {{"txtMyDate"}, DatumTekens, 21, {"txtProNaam"}},
      {{"txtOmschrijving"}, "", 22, {"txtToelichting1"}},
      {{"txtProNaam"}, "", 23, {"txtOmschrijving"}},
      {{"txtProNum"}, "", 24, {"txtMyDate"}},
      {{"txtQAftak"}, Getal, 25, {"txtHAftak"}},
      {{"txtRAantal"}, Getal, 26, {"txtRLengte"}},
      {{"txtRAftak"}, Getal, 27, {"txtQAftak", "txtHAftak"}},
      {{"txtRBreedte"}, Getal, 29, {"txtRHoogte"}},
      {{"txtRDI"}, Getal, 30, {"txtRAantal", "txtRLengte"}},
      {{"txtRHoogte"}, Getal, 31, {"txtRNagalm"}},
      {{"txtRLengte"}, Getal, 33, {"txtRBreedte"}},
      {{"txtRNagalm"}, Getal, 34, {"txtRNR"}},
      {{"txtRNR"}, Getal, 0, {"txtRDI", "txtRAantal", "txtRLengte"}},
      {{"txtSnetto"}, Getal, 37, {"txtWeerstand"}},
      {{"txtSpectrum"}, "", 38, {}},
      {{"txtToelichting1"}, "", 39, {"txtToelichting2"}},
      {{"txtToelichting2"}, "", 40, {"txtToelichting3"}},
      {{"txtToelichting3"}, "", 41, {"txtProNum"}},
      {{"txtWeerstand"}, Getal, 42, {"txtSnetto", "lstProject"}},
      {{"txtdemp", 0}, Getal, 11, {}},
      {{"txtdemp", 13}, Getal, 11, {}},
      {{"txtLw", 0}, Getal, 20, {}},
      {{"txtRkanaal", 6}, Getal, 32, {}},
      {{"txtRplafond", 3}, Getal, 35, {}},
      {{"txtruis", 6}, Getal, 36, {}},
      {{"txtfan", 0}, Getal, 0, {}},
      {{"txtfan", 1}, Cijfers, 0, {}},
      {{"txtfan", 2}, Cijfers, 0, {}},
      {{"txtfan", 3}, Cijfers, 0, {}},
      {{"txtfan", 4}, Cijfers, 0, {}},
  };
  return rijen;
}

TEST(Regel, HoldsTheKeysTheChangeNumberAndTheEnterOrderOfEveryField) {
  for (const Eigenschap& rij : Eigenschappen()) {
    SCOPED_TRACE(rij.veld.Naam);
    const VeldRegel& regel = Regel(rij.veld);
    EXPECT_EQ(regel.Toetsen, rij.toetsen);
    EXPECT_EQ(regel.Berekend, rij.berekend);
    std::vector<std::string_view> opvolgers(regel.Opvolgers.begin(), regel.Opvolgers.end());
    opvolgers.erase(std::remove(opvolgers.begin(), opvolgers.end(), ""), opvolgers.end());
    EXPECT_EQ(opvolgers, rij.opvolgers);
  }
}

TEST(Regel, FindsEachFieldOfAnArray) {
  EXPECT_EQ(Regel(VeldId{"txtfan", 3}).Boven, 50);
  EXPECT_EQ(Regel(VeldId{"txtfan", 4}).Boven, 100000);
  EXPECT_EQ(Regel(VeldId{"txtdemp", 6}).Soort, VeldSoort::Numeriek);
  EXPECT_EQ(Regel(VeldId{"txtdemp", 7}).Soort, VeldSoort::Tekst);
  EXPECT_EQ(Regel(VeldId{"txtdemp", 7}).Weergave, Formaat::Een);
}

TEST(Regel, RefusesAnIndexThatTheFieldDoesNotHave) {
  const std::vector<VeldId> velden = {{"txtLw", 7},     {"txtLw", -1},       {"txtLw"},
                                      {"txtfan", 5},    {"txtfan"},          {"txtfan(0)", 0},
                                      {"txtdemp", 14},  {"txtruis", 7},      {"txtRkanaal", 7},
                                      {"txtHoogte", 0}, {"txtRplafond", -2}, {"", -1}};
  for (const VeldId& veld : velden) {
    SCOPED_TRACE(testing::Message() << veld.Naam << ' ' << veld.Index);
    EXPECT_THROW((void)Regel(veld), Fout);
  }
}

TEST(Regel, ShowsTheSpectraOfACatalogueElementWithoutTyping) {
  for (int band = 0; band < 7; ++band) {
    EXPECT_FALSE(Regel(VeldId{"txtdemp", band}).AlleenLezen);
    EXPECT_TRUE(Regel(VeldId{"txtdemp", 7 + band}).AlleenLezen);
    EXPECT_TRUE(Regel(VeldId{"txtruis", band}).AlleenLezen);
  }
}

TEST(MagToets, TakesTheKeysOfTheFieldAndSwallowsOthersInRed) {
  EXPECT_EQ(VeldKleur, 0xC0FFFFU);
  EXPECT_EQ(FoutKleur, 255U);
  for (const Eigenschap& rij : Eigenschappen()) {
    if (rij.toetsen.empty()) continue;
    SCOPED_TRACE(rij.veld.Naam);
    for (char32_t teken = 0; teken < 0x130; ++teken) {
      const bool mag = teken == 8 || teken == 27 ||
                       std::any_of(rij.toetsen.begin(), rij.toetsen.end(),
                                   [teken](char c) { return static_cast<char32_t>(c) == teken; });
      const Toets toets = MagToets(Regel(rij.veld), teken);
      EXPECT_EQ(toets.Toegestaan, mag) << static_cast<unsigned>(teken);
      EXPECT_EQ(toets.Achtergrond, mag ? 0xC0FFFFU : 255U) << static_cast<unsigned>(teken);
    }
  }
}

TEST(MagToets, TakesTheWholeCodePageInAPlainText) {
  const VeldRegel& regel = Regel("txtProNaam");
  // € and Ÿ have their own places in the code page; ÿ and no-break space are at Unicode's
  for (const char32_t teken :
       {U'a', U' ', U'~', U'\u00A0', U'\u00FF', U'\u20AC', U'\u0178', U'\u017E', char32_t{8}, char32_t{27}}) {
    EXPECT_TRUE(MagToets(regel, teken).Toegestaan) << static_cast<unsigned>(teken);
    EXPECT_EQ(MagToets(regel, teken).Achtergrond, VeldKleur);
  }
  // controls, the page's undefined 81, Greek, an emoji
  for (const char32_t teken :
       {char32_t{0}, char32_t{9}, char32_t{13}, char32_t{0x81}, U'\u0100', U'\u03B1', U'\U0001F600'}) {
    EXPECT_FALSE(MagToets(regel, teken).Toegestaan) << static_cast<unsigned>(teken);
    EXPECT_EQ(MagToets(regel, teken).Achtergrond, FoutKleur);
  }
}

/// Enter in a field while some of the window's fields are hidden.
std::optional<VeldId> Enter(VeldId veld, const std::vector<std::string_view>& verborgen) {
  return VolgendVeld(veld, [&verborgen](VeldId doel) {
    return std::find(verborgen.begin(), verborgen.end(), doel.Naam) == verborgen.end();
  });
}

TEST(VolgendVeld, TakesTheFirstSuccessorThatShows) {
  for (const Eigenschap& rij : Eigenschappen()) {
    std::vector<std::string_view> verborgen;
    for (const std::string_view opvolger : rij.opvolgers) {
      SCOPED_TRACE(testing::Message() << rij.veld.Naam << " -> " << opvolger);
      EXPECT_EQ(Enter(rij.veld, verborgen), VeldId{opvolger});
      verborgen.push_back(opvolger);
    }
  }
}

TEST(VolgendVeld, PassesOverAHiddenSuccessorWithoutAnAlternative) {
  EXPECT_EQ(Enter({"txtH2Doorsnee"}, {"txtB2Doorsnee"}), VeldId{"txtLDoorsnee"});
  EXPECT_EQ(Enter({"txtHHoofd"}, {"txtBHoofd", "txtHDoor"}), VeldId{"txtBDoor"});
}

TEST(VolgendVeld, StaysWhenNothingElseShows) {
  EXPECT_EQ(Enter({"txtSpectrum"}, {}), std::nullopt);
  EXPECT_EQ(Enter({"txtWeerstand"}, {"txtSnetto", "lstProject"}), std::nullopt);
  // the free-field situation leaves the directivity factor alone on its tab
  EXPECT_EQ(
      Enter({"txtRDI"}, {"txtRAantal", "txtRLengte", "txtRBreedte", "txtRHoogte", "txtRNagalm", "txtRNR"}),
      std::nullopt);
  // a ring that is hidden whole, entered from outside it
  EXPECT_EQ(Enter({"txtHAftak"}, {"txtBAftak", "txtRAftak", "txtQAftak", "txtHAftak"}), std::nullopt);
  EXPECT_THROW((void)Enter({"txtOnbekend"}, {}), Fout);
}

TEST(VolgendVeld, GoesRoundAnArray) {
  struct Rij {
    const char* naam;
    int eerste, laatste;
  };
  for (const Rij& rij : std::vector<Rij>{{"txtdemp", 0, 6},
                                         {"txtdemp", 7, 13},
                                         {"txtLw", 0, 6},
                                         {"txtRkanaal", 0, 6},
                                         {"txtRplafond", 0, 6},
                                         {"txtruis", 0, 6},
                                         {"txtfan", 0, 4}}) {
    for (int i = rij.eerste; i < rij.laatste; ++i)
      EXPECT_EQ(Enter({rij.naam, i}, {}), (VeldId{rij.naam, i + 1}));
    EXPECT_EQ(Enter({rij.naam, rij.laatste}, {}), (VeldId{rij.naam, rij.eerste}));
  }
}

TEST(RegelUitleg, SaysWhatMayBeTyped) {
  const std::vector<std::pair<VeldId, std::string>> rijen = {
      {{"txtBreedte"}, "Geheel getal van 0 t/m 5000."},
      {{"txtRDI"}, "Geheel getal van 1 t/m 8."},
      {{"txtLengte"}, "Getal van 0 t/m 100 met 1 decimaal."},
      {{"txtRNagalm"}, "Getal van 0 t/m 10 met 2 decimalen."},
      {{"txtdemp", 6}, "Getal van 0 t/m 150 met 1 decimaal."},
      {{"txtLw", 0}, "Getal."},  // is not clamped
      {{"txtRplafond", 3}, "Getal."},
      {{"txtdemp", 7}, "Alleen ter inzage."},
      {{"txtMyDate"}, "Datum als dd-mm-jjjj; leeg is vandaag."},
      {{"txtProNum"}, "Tekst van ten hoogste 12 tekens."},
      {{"txtSpectrum"}, "Tekst van ten hoogste 80 tekens."},
  };
  for (const auto& [veld, uitleg] : rijen) EXPECT_EQ(RegelUitleg(Regel(veld)), uitleg) << veld.Naam;
}

TEST(MaxTekens, IsTheLengthOfTheRecordsText) {
  for (const char* naam : {"txtProNaam", "txtOmschrijving", "txtToelichting1", "txtToelichting2",
                           "txtToelichting3", "txtSpectrum"})
    EXPECT_EQ(MaxTekens(Regel(naam)), 80) << naam;
  EXPECT_EQ(MaxTekens(Regel("txtProNum")), 12);
  for (const char* naam : {"txtMyDate", "txtHoogte", "txtLw", "txtRDI"})
    EXPECT_EQ(MaxTekens(Regel(naam)), 0) << naam;
}

}  // namespace
}  // namespace murvane
