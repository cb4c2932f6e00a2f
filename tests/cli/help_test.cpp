#include "cli/help.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

using testing::HasSubstr;
using testing::Not;

/// The words of a command, with an argument.
std::vector<std::string> Woorden(const OpdrachtRegel& regel, const std::string& erbij) {
  std::istringstream in{std::string(regel.Naam)};
  std::vector<std::string> uit{std::istream_iterator<std::string>(in), {}};
  uit.push_back(erbij);
  return uit;
}

/// The text with every run of blanks and line ends as one blank.
std::string Vloeiend(const std::string& tekst) {
  std::istringstream in(tekst);
  std::string uit;
  for (std::string woord; in >> woord;) uit += woord + " ";
  return uit;
}

std::size_t Tekens(std::string_view utf8) {
  return static_cast<std::size_t>(std::count_if(
      utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

TEST(Help, TheTableStandsInTheOrderOfItsCodes) {
  for (std::size_t i = 0; i < Opdrachten.size(); ++i)
    EXPECT_EQ(static_cast<std::size_t>(Opdrachten[i].Code), i);
  for (std::size_t i = 0; i < Opties.size(); ++i) EXPECT_EQ(static_cast<std::size_t>(Opties[i].Code), i);
}

TEST(Help, EveryCommandShowsItsRowsOfTheTableAndNoOthers) {
  for (const OpdrachtRegel& regel : Opdrachten) {
    if (regel.Code == Opdracht::Druk) continue;  // another program
    const Afloop afloop = Draai(Woorden(regel, "--help"));
    EXPECT_EQ(afloop.Code, 0) << regel.Naam;
    EXPECT_EQ(afloop.Err, "") << regel.Naam;
    const std::string tekst = Vloeiend(afloop.Uit);
    EXPECT_THAT(tekst, HasSubstr(std::string(regel.Uitleg)));
    EXPECT_THAT(tekst, HasSubstr(std::string(regel.Argument)));
    for (const OptieRegel& optie : Opties) {
      const std::string naam(optie.Namen.substr(optie.Namen.rfind(',') + 1));
      const std::string rij = naam + (optie.Argument.empty() ? "" : " " + std::string(optie.Argument)) + " " +
                              std::string(optie.Uitleg);
      if (Kent(optie, regel.Code)) {
        EXPECT_THAT(tekst, HasSubstr(rij)) << regel.Naam;
      } else {
        EXPECT_THAT(tekst, Not(HasSubstr(rij))) << regel.Naam;
      }
    }
  }
}

TEST(Help, ShortAndLongOptionShowTheSame) {
  for (const OpdrachtRegel& regel : Opdrachten)
    EXPECT_EQ(Draai(Woorden(regel, "-h")).Uit, Draai(Woorden(regel, "--help")).Uit) << regel.Naam;
}

TEST(Help, OfTheProgramListsEveryCommandAndTheExitStatuses) {
  const std::string tekst = Vloeiend(Draai({"--help"}).Uit);
  for (const OpdrachtRegel& regel : Opdrachten)
    EXPECT_THAT(tekst, HasSubstr(std::string(regel.Naam) + " " + std::string(regel.Kort)));
  EXPECT_THAT(tekst,
              HasSubstr("Eindstatus: 0 klaar, 1 fout, 2 afgekeurd door de controle, 64 verkeerd gebruik."));
}

TEST(Help, OfHalfACommandIsThatOfTheProgram) {
  EXPECT_EQ(Draai({"catalogus", "--help"}).Uit, Draai({"--help"}).Uit);
}

TEST(Help, GoesBeforeWhateverElseIsWrong) {
  for (const std::vector<std::string>& fout :
       std::vector<std::vector<std::string>>{{"--help"},
                                             {"--help", "--onbekend"},
                                             {"x.mrv", "--taken", "nul", "-h"},
                                             {"--json", "-", "--help", "--prn", "-"}}) {
    std::vector<std::string> argumenten{"reken"};
    argumenten.insert(argumenten.end(), fout.begin(), fout.end());
    EXPECT_EQ(Draai(argumenten).Code, 0);
    EXPECT_EQ(Draai(argumenten).Uit, HelpTekst(Opdracht::Reken));
  }
}

TEST(Help, StaysWithinTheWidthOfATerminal) {
  for (const OpdrachtRegel& regel : Opdrachten) {
    std::istringstream regels(HelpTekst(regel.Code));
    for (std::string tekst; std::getline(regels, tekst);) {
      EXPECT_LE(Tekens(tekst), 80U) << tekst;
      EXPECT_FALSE(tekst.ends_with(' ')) << tekst;
    }
  }
}

TEST(Help, RequiredOptionsStandInTheUsageLine) {
  EXPECT_THAT(HelpTekst(Opdracht::Maak),
              HasSubstr("Gebruik: murvane-cli maak PROJECT.json -o BESTAND [OPTIES]\n"));
  EXPECT_THAT(HelpTekst(Opdracht::Reken), HasSubstr("Gebruik: murvane-cli reken PROJECT.mrv... [OPTIES]\n"));
  EXPECT_THAT(HelpTekst(Opdracht::Programma), HasSubstr("Gebruik: murvane-cli OPDRACHT [OPTIES]\n"));
  EXPECT_THAT(HelpTekst(Opdracht::SchatPlenum), HasSubstr("Gebruik: murvane-cli schat plenum [OPTIES]\n"));
}

TEST(Help, OfTheProgramThatPrintsNamesItAndItsOptions) {
  const std::string tekst = HelpTekst(Opdracht::Druk);
  EXPECT_THAT(tekst, HasSubstr("Gebruik: murvane-druk PROJECT.mrv --pdf BESTAND [OPTIES]\n"));
  for (const Optie optie :
       {Optie::Pdf, Optie::Bmp, Optie::Grafiek, Optie::Data, Optie::Decimaal, Optie::Help})
    EXPECT_THAT(Vloeiend(tekst), HasSubstr(std::string(RegelVan(optie).Uitleg)));
  EXPECT_THAT(tekst, Not(HasSubstr("--prn")));
  EXPECT_THAT(HelpTekst(Opdracht::Programma), Not(HasSubstr("--pdf")));
  EXPECT_EQ(HelpVerwijzing(Opdracht::Druk), "Hulp: murvane-druk --help");
}

TEST(Help, VersionIsShownWithAndWithoutACommand) {
  for (const std::vector<std::string>& argumenten :
       std::vector<std::vector<std::string>>{{"--versie"}, {"--version"}, {"reken", "--versie"}}) {
    const Afloop afloop = Draai(argumenten);
    EXPECT_EQ(afloop.Code, 0);
    EXPECT_EQ(afloop.Uit, "MurVane 6.7\n");
    EXPECT_EQ(afloop.Err, "");
  }
}

}  // namespace
}  // namespace murvane::clitest
