#include "shell/settings.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;

class InstellingenBestand : public testing::Test {
 protected:
  [[nodiscard]] fs::path Pad() const { return map_ / "murvane.set"; }

  proef::TijdelijkeMap map_;
};

std::string Vul(std::string tekst) {
  tekst.resize(35, ' ');
  return tekst;
}

const std::string Voorbeeld = "Courier New\r\n 12 \r\n 3 \r\n 2 \r\n 2 \r\n" + Vul("Jansen && Co") + "\r\n" +
                              Vul("Jansen & Co") + "\r\n";

/// A file whose third line is the given one; it holds KopStijl.
std::string MetKopStijl(const std::string& regel, const std::string& einde = "\r\n") {
  return "Arial" + einde + "8" + einde + regel + einde + "4" + einde + "1" + einde + "L" + einde + "N" +
         einde;
}

struct Gevangen {
  FoutNummer nummer{};
  std::string plaats, bestand;
};

Gevangen Vang(const std::function<void()>& doe) {
  try {
    doe();
  } catch (const Fout& fout) {
    return {fout.Nummer(), fout.Plaats(), fout.Bestand()};
  }
  return {};
}

TEST(Instellingen, StartWithTheStandardUser) {
  const Instellingen instellingen;
  EXPECT_EQ(instellingen.Gebruikersnaam.Heel(), Vul("..Gebruikersnaam.."));
  EXPECT_EQ(instellingen.GebruikerLabel.Heel(), Vul("..Gebruikersnaam.."));
  EXPECT_EQ(instellingen.Druk.LetterGrootte, 0);
}

TEST(Instellingen, ReadsSevenLines) {
  const Instellingen uit =
      InstellingenUitBytes("Liberation Mono \r\n 10 \r\n 4 \r\n-1 \r\n 32767 \r\nA && B\r\n A & B \r\n");
  EXPECT_EQ(uit.Druk.LettertypeNaam, "Liberation Mono ");  // the whole line
  EXPECT_EQ(uit.Druk.LetterGrootte, 10);
  EXPECT_EQ(uit.Druk.KopStijl, 4);
  EXPECT_EQ(uit.Druk.BlokBovenStijl, -1);
  EXPECT_EQ(uit.Druk.BlokOnderStijl, 32767);
  EXPECT_EQ(uit.GebruikerLabel.Heel(), Vul("A && B"));
  EXPECT_EQ(uit.Gebruikersnaam.Heel(), Vul(" A & B"));
}

TEST(Instellingen, ReadsEveryFormOfANumberLine) {
  const struct {
    const char* regel;
    int getal;
  } rijen[] = {
      {" 12 ", 12},     {"12", 12},         {"    12", 12},    {"12    ", 12},
      {"-12 ", -12},    {"  -12 ", -12},    {"+12", 12},       {"0", 0},
      {"-0", 0},        {"007", 7},         {"", 0},           {" ", 0},
      {"      ", 0},    {"12 punten", 12},  {"12 13", 12},     {"12 , \"x\"", 12},
      {"32767", 32767}, {"-32768", -32768}, {"+32767", 32767}, {"00000000000032767", 32767},
  };
  for (const auto& rij : rijen) {
    for (const char* einde : {"\r\n", "\n"}) {
      const Instellingen uit = InstellingenUitBytes(MetKopStijl(rij.regel, einde));
      EXPECT_EQ(uit.Druk.KopStijl, rij.getal) << rij.regel;
      EXPECT_EQ(uit.Druk.LetterGrootte, 8) << rij.regel;
      EXPECT_EQ(uit.Druk.BlokBovenStijl, 4) << rij.regel;
      EXPECT_EQ(uit.Gebruikersnaam.Heel(), Vul("N")) << rij.regel;
    }
  }
}

TEST(Instellingen, RefusesTextInANumberLine) {
  for (const char* regel : {"x", "12abc", "1.5", "1,5", "12,", "-", "+", "- 12", "+-1", "--1", "0x10", "1e2",
                            "\t12", "12\t", "\"12\"", "\r12", "\xA0", "12\xA0", "99999x"}) {
    const Gevangen fout = Vang([&] { (void)InstellingenUitBytes(MetKopStijl(regel)); });
    EXPECT_EQ(fout.nummer, FoutNummer::GeenGetal) << regel;
    EXPECT_EQ(fout.plaats, "regel 3") << regel;
  }
}

TEST(Instellingen, RefusesANulInANumberLine) {
  EXPECT_EQ(Vang([&] { (void)InstellingenUitBytes(MetKopStijl(std::string("1\0", 2))); }).nummer,
            FoutNummer::GeenGetal);
}

TEST(Instellingen, RefusesNumbersThatDoNotFit) {
  for (const char* regel :
       {"32768", "-32769", "65536", "+32768", " 99999999999999999999999999 ", "-4294967297"}) {
    const Gevangen fout = Vang([&] { (void)InstellingenUitBytes(MetKopStijl(regel)); });
    EXPECT_EQ(fout.nummer, FoutNummer::Overloop) << regel;
    EXPECT_EQ(fout.plaats, "regel 3") << regel;
  }
}

TEST(Instellingen, NamesTheLineOfAWrongNumber) {
  for (std::size_t fout = 2; fout <= 5; ++fout) {
    std::string bytes;
    for (std::size_t regel = 1; regel <= 7; ++regel) bytes += regel == fout ? "x\n" : "1\n";
    EXPECT_EQ(Vang([&] { (void)InstellingenUitBytes(bytes); }).plaats, "regel " + std::to_string(fout));
  }
}

TEST(Instellingen, RefusesAFileCutAtAnyPlaceBeforeItsSeventhLine) {
  const std::size_t regel7 = Voorbeeld.size() - 37;
  for (std::size_t lengte = 0; lengte < Voorbeeld.size(); ++lengte) {
    const std::string bytes = Voorbeeld.substr(0, lengte);
    if (lengte <= regel7) {
      EXPECT_EQ(Vang([&] { (void)InstellingenUitBytes(bytes); }).nummer, FoutNummer::VoorbijEinde) << lengte;
    } else {
      // The seventh line needs no line end; what is left of it is padded.
      EXPECT_EQ(InstellingenUitBytes(bytes).Gebruikersnaam.Heel(),
                Vul(std::string("Jansen & Co").substr(0, lengte - regel7)))
          << lengte;
    }
  }
}

TEST(Instellingen, NamesTheLineThatIsMissing) {
  std::string bytes;
  for (int regel = 1; regel <= 7; ++regel) {
    const Gevangen fout = Vang([&] { (void)InstellingenUitBytes(bytes); });
    EXPECT_EQ(fout.nummer, FoutNummer::VoorbijEinde);
    EXPECT_EQ(fout.plaats, "regel " + std::to_string(regel));
    bytes += "\n";
  }
  EXPECT_NO_THROW((void)InstellingenUitBytes(bytes));  // seven empty lines
}

TEST(Instellingen, ReadsEmptyLinesAsNothing) {
  const Instellingen uit = InstellingenUitBytes("\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
  EXPECT_EQ(uit.Druk.LettertypeNaam, "");
  EXPECT_EQ(uit.Druk.LetterGrootte, 0);
  EXPECT_EQ(uit.Druk.BlokOnderStijl, 0);
  EXPECT_EQ(uit.GebruikerLabel.Heel(), Vul(""));
  EXPECT_EQ(uit.Gebruikersnaam.Heel(), Vul(""));
}

TEST(Instellingen, PassesOverFurtherLines) {
  for (const char* meer : {"\r\n", "nog een regel", "\0x", "8\r\n9\r\n"})
    EXPECT_EQ(InstellingenBytes(InstellingenUitBytes(Voorbeeld + meer)), Voorbeeld);
}

TEST(Instellingen, CutsUserTextsAt35Characters) {
  const std::string tekens36 = "123456789012345678901234567890123456";
  const Instellingen uit = InstellingenUitBytes("F\n1\n1\n1\n1\n" + tekens36 + "\n" + tekens36 + tekens36);
  EXPECT_EQ(uit.GebruikerLabel.Heel(), tekens36.substr(0, 35));
  EXPECT_EQ(uit.Gebruikersnaam.Heel(), tekens36.substr(0, 35));
}

TEST(Instellingen, KeepsACarriageReturnInsideALine) {
  const Instellingen uit = InstellingenUitBytes("a\rb\r\r\n1\n1\n1\n1\nL\rM\nN\rO\r");
  EXPECT_EQ(uit.Druk.LettertypeNaam, "a\rb\r");
  EXPECT_EQ(uit.GebruikerLabel.Heel(), Vul("L\rM"));
  EXPECT_EQ(uit.Gebruikersnaam.Heel(), Vul("N\rO"));  // the last one is half a line end
}

TEST(Instellingen, WritesSevenLinesWithSignsInPlaceOfBlanks) {
  Instellingen in;
  in.Druk.LettertypeNaam = "Courier New";
  in.Druk.LetterGrootte = 12;
  in.Druk.KopStijl = -12;
  in.Druk.BlokBovenStijl = 0;
  in.Druk.BlokOnderStijl = -32768;
  in.GebruikerLabel =
      "B\xE9"
      "ton && Zn";
  in.Gebruikersnaam =
      "B\xE9"
      "ton & Zn";
  EXPECT_EQ(InstellingenBytes(in), "Courier New\r\n 12 \r\n-12 \r\n 0 \r\n-32768 \r\n" +
                                       Vul("B\xE9"
                                           "ton && Zn") +
                                       "\r\n" +
                                       Vul("B\xE9"
                                           "ton & Zn") +
                                       "\r\n");
}

TEST(Instellingen, WriteNeverAssignedTextsAsTheyAre) {
  Instellingen in;
  in.Gebruikersnaam = Tekst<35>{};
  const std::string bytes = InstellingenBytes(in);
  EXPECT_EQ(bytes.substr(bytes.size() - 37), std::string(35, '\0') + "\r\n");
  EXPECT_EQ(InstellingenUitBytes(bytes).Gebruikersnaam, Tekst<35>{});
}

TEST(Instellingen, RoundTripByteForByte) {
  std::string alle;
  for (int c = 1; c < 256; ++c) {
    if (c != '\n') alle += static_cast<char>(c);
  }
  for (std::size_t begin = 0; begin + 35 <= alle.size(); begin += 35) {
    const std::string tekst = alle.substr(begin, 35);
    for (const char* getal : {" 0 ", " 1 ", "-1 ", " 32767 ", "-32768 "}) {
      std::string bytes = alle + "\r\n";
      for (int i = 0; i < 4; ++i) bytes += std::string(getal) + "\r\n";
      bytes += tekst + "\r\n" + tekst + "\r\n";
      EXPECT_EQ(InstellingenBytes(InstellingenUitBytes(bytes)), bytes);
    }
  }
}

TEST_F(InstellingenBestand, IsReadAndReplacedWhole) {
  proef::Schrijf(Pad(), Voorbeeld + "a long old tail\r\n");
  Instellingen instellingen = LeesInstellingen(Pad());
  EXPECT_EQ(instellingen.Gebruikersnaam.Getrimd(), "Jansen & Co");
  SchrijfInstellingen(instellingen, Pad());
  EXPECT_EQ(proef::Lees(Pad()), Voorbeeld);
  fs::remove(Pad());
  SchrijfInstellingen(instellingen, Pad());
  EXPECT_EQ(proef::Lees(Pad()), Voorbeeld);
}

TEST_F(InstellingenBestand, NamesTheFileInEveryFault) {
  const std::string naam = PadTekst(Pad());
  Gevangen fout = Vang([&] { (void)LeesInstellingen(Pad()); });
  EXPECT_EQ(fout.nummer, FoutNummer::BestandNietGevonden);
  EXPECT_EQ(fout.bestand, naam);
  const struct {
    const char* bytes;
    FoutNummer nummer;
  } rijen[] = {{"", FoutNummer::VoorbijEinde},
               {"F\nx\n", FoutNummer::GeenGetal},
               {"F\n99999\n", FoutNummer::Overloop}};
  for (const auto& rij : rijen) {
    proef::Schrijf(Pad(), rij.bytes);
    fout = Vang([&] { (void)LeesInstellingen(Pad()); });
    EXPECT_EQ(fout.nummer, rij.nummer);
    EXPECT_EQ(fout.bestand, naam);
  }
  fout = Vang([&] { SchrijfInstellingen({}, Pad() / "murvane.set"); });
  EXPECT_EQ(fout.nummer, FoutNummer::PadNietGevonden);
  EXPECT_EQ(fout.bestand, PadTekst(Pad() / "murvane.set"));
}

TEST_F(InstellingenBestand, OfAbsurdSizeIsNotReadWhole) {
  proef::Schrijf(Pad(), std::string(3'000'000, 'x') + "\n1\n1\n1\n1\nL\nN\n");
  EXPECT_EQ(Vang([&] { (void)LeesInstellingen(Pad()); }).nummer, FoutNummer::VoorbijEinde);
}

TEST(ZetGebruikersnaam, TrimsCutsAndDoublesTheFirstAmpersand) {
  const std::string tekens36 = "12345678901234567890123456789012345X";
  const std::string en35 = "1234567890123456789012345678901234&";
  const std::string en34 = "123456789012345678901234567890123&5";
  const struct {
    std::string antwoord, naam, label;
  } rijen[] = {
      {"Jansen", "Jansen", "Jansen"},
      {"  Jansen en Zn  ", "Jansen en Zn", "Jansen en Zn"},
      {"A & B & C", "A & B & C", "A && B & C"},  // the first one only
      {"&", "&", "&&"},
      {"A && B", "A && B", "A &&& B"},
      {tekens36, tekens36.substr(0, 35), tekens36.substr(0, 35)},
      {"   " + tekens36, tekens36.substr(0, 35), tekens36.substr(0, 35)},  // trimmed before it is cut
      {en35, en35, en35},                                                  // the second one falls off
      {en34, en34, "123456789012345678901234567890123&&"},                 // what follows falls off
      {tekens36 + "&", tekens36.substr(0, 35), tekens36.substr(0, 35)},
      {"   ", "", ""},  // not an empty answer
  };
  for (const auto& rij : rijen) {
    Instellingen in;
    ZetGebruikersnaam(in, rij.antwoord);
    EXPECT_EQ(in.Gebruikersnaam.Heel(), Vul(rij.naam)) << rij.antwoord;
    EXPECT_EQ(in.GebruikerLabel.Heel(), Vul(rij.label)) << rij.antwoord;
  }
}

TEST(ZetGebruikersnaam, LeavesEverythingAtAnEmptyAnswer) {
  Instellingen in = InstellingenUitBytes(Voorbeeld);
  ZetGebruikersnaam(in, "");
  EXPECT_EQ(InstellingenBytes(in), Voorbeeld);
}

}  // namespace
}  // namespace murvane
