#include "cli/handleiding.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>

#include "cli/help.h"
#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

using testing::HasSubstr;

/// The text as a reader of the page sees it, every run of blanks as one; a command stands as its letters.
std::string Gelezen(const std::string& pagina) {
  std::string kaal;
  for (std::size_t i = 0; i < pagina.size(); ++i) {
    if (pagina[i] != '\\') {
      kaal += pagina[i];
    } else if (pagina[++i] == 'f') {
      ++i;  // of the font
    } else if (pagina[i] == 'e') {
      kaal += '\\';
    } else if (pagina[i] != '&') {
      kaal += pagina[i];
    }
  }
  std::istringstream in(kaal);
  std::string uit;
  for (std::string woord; in >> woord;) uit += woord + " ";
  return uit;
}

/// What stands between two texts; fails the test when one of them is missing.
std::string Tussen(const std::string& tekst, const std::string& begin, const std::string& einde) {
  const std::size_t van = tekst.find(begin);
  EXPECT_NE(van, std::string::npos) << begin;
  if (van == std::string::npos) return "";
  const std::size_t tot = tekst.find(einde, van + begin.size());
  EXPECT_NE(tot, std::string::npos) << einde;
  return tekst.substr(van + begin.size(), tot - van - begin.size());
}

/// An option as help and page write it.
std::string Rij(const OptieRegel& optie) {
  std::string uit;
  for (const std::string_view naam : Delen(optie.Namen, ','))
    uit.append(uit.empty() ? "" : ", ").append(naam);
  if (!optie.Argument.empty()) uit.append(" ").append(optie.Argument);
  return uit.append(" ").append(optie.Uitleg);
}

/// The rows of murvane-cli's own commands.
std::vector<OpdrachtRegel> CliOpdrachten() {
  std::vector<OpdrachtRegel> uit(Opdrachten.begin(), Opdrachten.end());
  std::erase_if(uit, [](const OpdrachtRegel& regel) { return regel.Naam.empty(); });
  return uit;
}
/// The same and the program itself.
std::vector<OpdrachtRegel> CliRegels() {
  std::vector<OpdrachtRegel> uit = CliOpdrachten();
  uit.push_back(RegelVan(Opdracht::Programma));
  return uit;
}

bool IsAlgemeen(const OptieRegel& optie) {
  return Kent(optie, Opdracht::Programma);
}

TEST(Delen, SplitAtEverySign) {
  using Woorden = std::vector<std::string_view>;
  EXPECT_EQ(Delen("", ','), Woorden());
  EXPECT_EQ(Delen("-o", ','), Woorden{"-o"});
  EXPECT_EQ(Delen("-h,--help", ','), (Woorden{"-h", "--help"}));
  EXPECT_EQ(Delen("punt|komma", '|'), (Woorden{"punt", "komma"}));
}

TEST(ManPagina, TellsEveryCommandWithItsOwnOptionsAndTheGeneralOnesOnce) {
  const std::string pagina = ManPagina(HulpVanCli());
  for (const OpdrachtRegel& regel : CliOpdrachten()) {
    const std::string deel = Gelezen(Tussen(pagina, ".SS " + std::string(regel.Naam) + "\n", "\n.S"));
    EXPECT_THAT(deel, HasSubstr(std::string(regel.Uitleg)));
    for (const OptieRegel& optie : Opties) {
      const bool hoort = Kent(optie, regel.Code) && !IsAlgemeen(optie);
      EXPECT_EQ(deel.find(Rij(optie)) != std::string::npos, hoort) << regel.Naam << optie.Namen;
    }
  }
  const std::string algemeen = Gelezen(Tussen(pagina, ".SH OPTIES\n", "\n.SH"));
  for (const OptieRegel& optie : Opties)
    EXPECT_EQ(algemeen.find(Rij(optie)) != std::string::npos, IsAlgemeen(optie)) << optie.Namen;
}

TEST(ManPagina, ShowsTheUsageLinesOfTheHelp) {
  const std::string overzicht = Gelezen(Tussen(ManPagina(HulpVanCli()), ".SH OVERZICHT\n", ".SH"));
  for (const OpdrachtRegel& regel : CliOpdrachten()) {
    const std::string gebruik = Tussen(HelpTekst(regel.Code), "Gebruik: ", "\n");
    EXPECT_THAT(overzicht, HasSubstr(gebruik + " "));
  }
}

TEST(ManPagina, TellsWhatTheExitStatusesOfTheHelpMean) {
  const std::string pagina = Gelezen(ManPagina(HulpVanCli()));
  EXPECT_THAT(pagina, HasSubstr("EINDSTATUS .TP 0 klaar .TP 1 fout .TP 2 afgekeurd door de controle "
                                ".TP 64 verkeerd gebruik"));
}

TEST(ManPagina, OfEveryProgramTellsWhereTheUsersOwnDataStand) {
  for (const Hulpprogramma& programma : Hulpprogrammas()) {
    EXPECT_THAT(Gelezen(Tussen(ManPagina(programma), ".SH OMGEVING\n", "\n.SH")),
                HasSubstr("XDG_DATA_HOME waar de eigen gegevensmap murvane staat; zonder deze variabele "
                          "~/.local/share "))
        << programma.Naam;
  }
}

TEST(ManPagina, HidesNothingFromTheFormatter) {
  Hulpprogramma programma{"proef", ".kort", {{}}, {{"VOORBEELDEN", {{"a\\b", "'uitleg"}}}}, {}};
  programma.Opdrachten[0].Uitleg = ".SH geen kop";
  const std::string pagina = ManPagina(programma);
  EXPECT_THAT(pagina, HasSubstr(".SH BESCHRIJVING\n\\&.SH geen kop\n"));
  EXPECT_THAT(pagina, HasSubstr("\\fBa\\eb\\fR\n\\&'uitleg\n"));
}

TEST(ManPagina, CarriesNameVersionAndDateOfTheRelease) {
  for (const Hulpprogramma& programma : Hulpprogrammas()) {
    const std::string pagina = ManPagina(programma);
    EXPECT_THAT(pagina, testing::ContainsRegex("^\\.TH [A-Z-]+ 1 20[0-9][0-9]-[0-9][0-9]-[0-9][0-9] "
                                               "\"MurVane 6\\.7\" \"Gebruikersopdrachten\"\n"));
    EXPECT_THAT(pagina, HasSubstr(".SH NAAM\n" + Tussen(pagina, ".SH NAAM\n", " \\- ") + " \\- "));
  }
}

TEST(ManPagina, OfTheFormTellsItsOptionsAndUsage) {
  const std::string pagina = ManPagina(HulpVanDruk());
  const std::string opties = Gelezen(Tussen(pagina, ".SH OPTIES\n", "\n.SH"));
  for (const OptieRegel& optie : Opties)
    EXPECT_EQ(opties.find(Rij(optie)) != std::string::npos, Kent(optie, Opdracht::Druk)) << optie.Namen;
  EXPECT_THAT(Gelezen(pagina), HasSubstr(Tussen(HelpTekst(Opdracht::Druk), "Gebruik: ", "\n") + " "));
  EXPECT_THAT(Gelezen(pagina), HasSubstr(std::string(RegelVan(Opdracht::Druk).Uitleg)));
}

/// The part of a completion that serves one command.
std::string BashDeel(Opdracht opdracht) {
  return Tussen(BashAanvulling(HulpVanCli()), "    '" + std::string(RegelVan(opdracht).Naam) + "')\n",
                "\n      ;;\n");
}
std::string ZshDeel(Opdracht opdracht) {
  const std::string zsh = ZshAanvulling(HulpVanCli());
  if (opdracht == Opdracht::Programma) return Tussen(zsh, "_arguments -C", "&& return");
  return Tussen(zsh, "  '" + std::string(RegelVan(opdracht).Naam) + "')\n", "  ;;\n");
}

TEST(Aanvulling, OfBashOffersTheOptionsOfTheCommandAndNoOthers) {
  for (const OpdrachtRegel& regel : CliRegels()) {
    std::string namen;
    for (const OptieRegel& optie : Opties) {
      if (!Kent(optie, regel.Code)) continue;
      for (const std::string_view naam : Delen(optie.Namen, ','))
        namen.append(namen.empty() ? "" : " ").append(naam);
    }
    EXPECT_THAT(BashDeel(regel.Code), HasSubstr("if [[ $cur == -* ]]; then COMPREPLY=($(compgen -W '" +
                                                namen + "' -- \"$cur\")); return; fi\n"));
  }
}

TEST(Aanvulling, OfBashCompletesTheValueOfAnOptionByWhatItIs) {
  const struct {
    Opdracht Van;
    const char* Regel;
  } rijen[] = {
      {Opdracht::Reken, "        --prn) _filedir; return ;;\n"},
      {Opdracht::Reken, "        --uit) _filedir -d; return ;;\n"},
      {Opdracht::Reken, "        --taken) return ;;\n"},
      {Opdracht::Programma, "        --data) _filedir -d; return ;;\n"},
      {Opdracht::Programma,
       "        --decimaal) COMPREPLY=($(compgen -W 'punt komma' -- \"$cur\")); return ;;\n"},
      {Opdracht::CatalogusToon,
       "        --soort) COMPREPLY=($(compgen -W 'kanaalelementen ventilatoren luchtkanalen plafonds' -- "
       "\"$cur\")); return ;;\n"},
      {Opdracht::CatalogusMaak, "        -o) _filedir; return ;;\n"},
  };
  for (const auto& rij : rijen) EXPECT_THAT(BashDeel(rij.Van), HasSubstr(rij.Regel));
}

TEST(Aanvulling, OfBothShellsCompletesTheFilesOfTheCommand) {
  const struct {
    Opdracht Van;
    const char* Bash;
    const char* Zsh;
  } rijen[] = {
      {Opdracht::Reken, "_filedir mrv", "'*:PROJECT.mrv:_files -g \"(#i)*.mrv(-.)\"'"},
      {Opdracht::Toon, "_filedir mrv", "'1:PROJECT.mrv:_files -g \"(#i)*.mrv(-.)\"'"},
      {Opdracht::Maak, "_filedir json", "'1:PROJECT.json:_files -g \"(#i)*.json(-.)\"'"},
      {Opdracht::CatalogusToon, "_filedir dat", "'1:BESTAND.dat:_files -g \"(#i)*.dat(-.)\"'"},
  };
  for (const auto& rij : rijen) {
    EXPECT_TRUE(BashDeel(rij.Van).ends_with(std::string("      ") + rij.Bash));
    EXPECT_THAT(ZshDeel(rij.Van), HasSubstr(rij.Zsh));
  }
}

TEST(Aanvulling, OfZshTellsTheOptionsOfTheCommandAndNoOthers) {
  for (const OpdrachtRegel& regel : CliRegels()) {
    const std::string deel = ZshDeel(regel.Code);
    for (const OptieRegel& optie : Opties) {
      const std::string uitleg = "[" + std::string(optie.Uitleg) + "]";
      EXPECT_EQ(deel.find(uitleg) != std::string::npos, Kent(optie, regel.Code)) << regel.Naam << uitleg;
    }
  }
  EXPECT_THAT(ZshDeel(Opdracht::Reken), HasSubstr("    '(-h --help)'{-h,--help}'[toont deze hulp]' \\\n"));
  EXPECT_THAT(ZshDeel(Opdracht::Reken), HasSubstr("'--taken=[rekent met"));
  EXPECT_THAT(ZshDeel(Opdracht::Reken), HasSubstr("]:AANTAL: ' \\\n"));
  EXPECT_THAT(ZshDeel(Opdracht::Reken), HasSubstr("]:MAP:_files -/' \\\n"));
  EXPECT_THAT(ZshDeel(Opdracht::Toon), HasSubstr("'-o[schrijft naar dit bestand"));
  EXPECT_THAT(ZshDeel(Opdracht::Toon), HasSubstr(":punt|komma:(punt komma)' \\\n"));
}

TEST(Aanvulling, OfZshKeepsSignsOfItsOwnPlain) {
  Hulpprogramma programma{"proef", "", {{}}, {}, {}};
  programma.Opdrachten[0].Opties = {{{"--x"}, "", {}, "zo'n [a:b] \\", false}};
  EXPECT_THAT(ZshAanvulling(programma), HasSubstr("'--x[zo'\\''n \\[a\\:b\\] \\\\]' \\\n"));
}

TEST(Aanvulling, OfTheFormOffersItsOptionsValuesAndProjects) {
  const std::string bash = BashAanvulling(HulpVanDruk());
  EXPECT_THAT(bash, HasSubstr("        --pdf) _filedir; return ;;\n"));
  EXPECT_THAT(bash, HasSubstr("        --grafiek) COMPREPLY=($(compgen -W '1m galmveld geen' -- \"$cur\")); "
                              "return ;;\n"));
  EXPECT_THAT(bash, HasSubstr("      _filedir mrv\n"));
  EXPECT_THAT(ZshAanvulling(HulpVanDruk()), HasSubstr(":1m|galmveld|geen:(1m galmveld geen)' \\\n"));
}

TEST(Aanvulling, OfTheProgramWithWindowsOffersProjects) {
  EXPECT_THAT(BashAanvulling(HulpVanMurvane()), HasSubstr("_filedir mrv\n"));
  EXPECT_THAT(BashAanvulling(HulpVanMurvane()), HasSubstr("complete -F _murvane murvane\n"));
  EXPECT_THAT(ZshAanvulling(HulpVanMurvane()), HasSubstr("'1:PROJECT.mrv:_files"));
}

TEST(MaakHulp, WritesPageAndCompletionOfEveryProgram) {
  const Proefmap map;
  std::ostringstream fouten;
  const std::vector<std::string> argumenten{map / "hulp"};
  EXPECT_EQ(MaakHulp(argumenten, fouten), 0) << fouten.str();
  for (const Hulpprogramma& programma : Hulpprogrammas()) {
    const std::string naam(programma.Naam);
    EXPECT_EQ(map.Lees("hulp/man/" + naam + ".1"), ManPagina(programma));
    EXPECT_EQ(map.Lees("hulp/bash/" + naam), BashAanvulling(programma));
    EXPECT_EQ(map.Lees("hulp/zsh/_" + naam), ZshAanvulling(programma));
  }
}

TEST(MaakHulp, TellsWrongUseAndFailures) {
  const Proefmap map;
  for (const std::vector<std::string>& argumenten :
       std::vector<std::vector<std::string>>{{}, {"een", "twee"}, {"--help"}}) {
    std::ostringstream fouten;
    EXPECT_EQ(MaakHulp(argumenten, fouten), 64);
    EXPECT_THAT(fouten.str(), HasSubstr("Gebruik: murvane-maakhulp MAP\n"));
  }
  std::ostringstream fouten;
  const std::vector<std::string> bezet{map.ZetBytes("", "bezet")};
  EXPECT_EQ(MaakHulp(bezet, fouten), 1);
  EXPECT_THAT(fouten.str(), HasSubstr("bezet/man/murvane.1: Fout 7"));
}

}  // namespace
}  // namespace murvane::clitest
