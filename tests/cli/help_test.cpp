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

std::vector<std::string> RegelsVan(const std::string& tekst) {
  std::istringstream in(tekst);
  std::vector<std::string> uit;
  for (std::string regel; std::getline(in, regel);) uit.push_back(regel);
  return uit;
}

constexpr std::size_t Kolom = 26;  // of the explanation of an option

/// Whether `regel` has an explanation behind its name, or goes on with one.
bool HeeftUitleg(const std::string& regel) {
  return regel.size() > Kolom && regel.starts_with("  ") && regel.substr(Kolom - 2, 2) == "  " &&
         regel[Kolom] != ' ';
}

std::size_t EersteWoord(std::string_view regel) {
  regel.remove_prefix(std::min(regel.size(), regel.find_first_not_of(' ')));
  return Tekens(regel.substr(0, regel.find(' ')));
}

TEST(Help, BreaksALineOnlyWhereTheNextWordDoesNotFit) {
  int afgebroken = 0;
  for (const OpdrachtRegel& opdracht : Opdrachten) {
    const std::vector<std::string> regels = RegelsVan(HelpTekst(opdracht.Code));
    const auto uitleg = std::find(regels.begin() + 2, regels.end(), "");  // behind the usage and a blank line
    for (std::size_t i = 2; i + 1 < regels.size(); ++i) {
      const std::string &regel = regels[i], &verder = regels[i + 1];
      const bool inUitleg = regels.begin() + static_cast<std::ptrdiff_t>(i) + 1 < uitleg;
      const bool inOptie = HeeftUitleg(regel) && verder.starts_with(std::string(Kolom, ' '));
      if (!inUitleg && !inOptie) continue;
      ++afgebroken;
      EXPECT_GT(Tekens(regel) + 1 + EersteWoord(verder), 80U) << regel << '\n' << verder;
    }
  }
  EXPECT_GT(afgebroken, 20);
}

TEST(Help, BreaksALineAtItsLastBlankAndIndentsTheNext) {
  EXPECT_THAT(HelpTekst(Opdracht::CatalogusSorteer),
              HasSubstr("\n\nSorteert een catalogus op naam, zoals het venster ervan dat doet, en bewaart\n"
                        "haar onder de naam achter -o, die dezelfde mag zijn. De elf ingebouwde\n"
                        "kanaalelementen blijven op hun plaats. De soort volgt als bij catalogus toon.\n\n"));
  EXPECT_THAT(HelpTekst(Opdracht::Reken),
              HasSubstr("\n  --decimaal punt|komma   het decimaalteken in rapporten en schattingen; zonder\n"
                        "                          deze optie dat van de landinstelling\n"));
  EXPECT_THAT(
      HelpTekst(Opdracht::Druk),  // a name that leaves no room for its explanation
      HasSubstr("\n  --grafiek 1m|galmveld|geen\n"
                "                          de grafiek onder het formulier; zonder deze optie geen\n"));
}

TEST(Help, ShowsEveryOptionOnLinesOfItsOwn) {
  for (const OpdrachtRegel& opdracht : Opdrachten) {
    const std::vector<std::string> regels = RegelsVan(HelpTekst(opdracht.Code));
    const auto begin = std::find(regels.begin(), regels.end(), "Opties:");
    const auto eind = std::find(begin, regels.end(), "");
    ASSERT_NE(eind, regels.end()) << opdracht.Naam;
    std::ptrdiff_t namen = 0;
    for (auto regel = begin + 1; regel != eind; ++regel) {
      if (regel->starts_with("  -")) {
        ++namen;
        if (!HeeftUitleg(*regel)) {  // a name too long for its column
          EXPECT_GT(Tekens(*regel) + 2, Kolom) << *regel;
        }
      } else {
        EXPECT_EQ(regel->find_first_not_of(' '), Kolom) << *regel;
      }
    }
    EXPECT_EQ(namen,
              std::count_if(Opties.begin(), Opties.end(),
                            [&opdracht](const OptieRegel& optie) { return Kent(optie, opdracht.Code); }))
        << opdracht.Naam;
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
  EXPECT_THAT(tekst,
              HasSubstr("Gebruik: murvane-druk PROJECT.mrv... (--pdf BESTAND | --uit MAP) [OPTIES]\n"));
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
