#include "cli/ontleed.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iterator>

#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

using Woorden = std::vector<std::string>;

struct Verkeerd {
  Woorden Argumenten;
  std::string Melding;
  std::string Opdracht;  ///< whose help the hint names
};

class VerkeerdGebruik : public testing::TestWithParam<Verkeerd> {};

const Verkeerd Gevallen[] = {
    {{}, "Geen opdracht opgegeven.", ""},
    {{"--data", "map"}, "Geen opdracht opgegeven.", ""},
    {{""}, "Onbekende opdracht: ", ""},
    {{"bereken", "x.mrv"}, "Onbekende opdracht: bereken", ""},
    {{"Reken", "x.mrv"}, "Onbekende opdracht: Reken", ""},
    {{"bereken", "--prn", "x"}, "Onbekende opdracht: bereken", ""},
    {{"--taal"}, "Onbekende optie: --taal", ""},
    {{"catalogus"}, "Achter catalogus hoort toon, maak of sorteer.", ""},
    {{"catalogus", "wis", "Fan.dat"}, "Achter catalogus hoort toon, maak of sorteer.", ""},
    {{"reken"}, "PROJECT.mrv ontbreekt.", "reken "},
    {{"reken", "--"}, "PROJECT.mrv ontbreekt.", "reken "},
    {{"reken", ""}, "Een bestandsnaam is leeg.", "reken "},
    {{"reken", "x.mrv", "--kleur"}, "Onbekende optie: --kleur", "reken "},
    {{"reken", "x.mrv", "--kleur=rood"}, "Onbekende optie: --kleur", "reken "},
    {{"reken", "x.mrv", "-x"}, "Onbekende optie: -x", "reken "},
    {{"reken", "x.mrv", "-5"}, "Onbekende optie: -5", "reken "},
    {{"reken", "x.mrv", "-o", "y"}, "Onbekende optie: -o", "reken "},
    {{"reken", "x.mrv", "--prn"}, "Achter --prn ontbreekt BESTAND.", "reken "},
    {{"reken", "x.mrv", "--prn", "--json", "y"}, "Achter --prn ontbreekt BESTAND.", "reken "},
    {{"reken", "x.mrv", "--prn="}, "Achter --prn ontbreekt BESTAND.", "reken "},
    {{"reken", "--prn=", "x.mrv"}, "Achter --prn ontbreekt BESTAND.", "reken "},
    {{"reken", "x.mrv", "--json", ""}, "Achter --json ontbreekt BESTAND.", "reken "},
    {{"reken", "x.mrv", "--uit"}, "Achter --uit ontbreekt MAP.", "reken "},
    {{"reken", "x.mrv", "--data"}, "Achter --data ontbreekt MAP.", "reken "},
    {{"reken", "x.mrv", "--decimaal"}, "Achter --decimaal ontbreekt punt|komma.", "reken "},
    {{"reken", "x.mrv", "--uit", "u", "--taken"}, "Achter --taken ontbreekt AANTAL.", "reken "},
    {{"reken", "x.mrv", "--prn", "a", "--prn", "b"}, "Optie --prn staat er meer dan één keer.", "reken "},
    {{"reken", "x.mrv", "--help=nee"}, "Bij --help hoort geen waarde.", "reken "},
    {{"reken", "x.mrv", "--decimaal", "dubbel"},
     "--decimaal vraagt punt of komma, niet \"dubbel\".",
     "reken "},
    {{"reken", "x.mrv", "--decimaal", ","}, "--decimaal vraagt punt of komma, niet \",\".", "reken "},
    {{"reken", "x.mrv", "--uit", "u", "--taken", "0"},
     "--taken vraagt een geheel getal vanaf 1, niet \"0\".",
     "reken "},
    {{"reken", "x.mrv", "--uit", "u", "--taken", "-1"},
     "--taken vraagt een geheel getal vanaf 1, niet \"-1\".",
     "reken "},
    {{"reken", "x.mrv", "--uit", "u", "--taken", "2x"},
     "--taken vraagt een geheel getal vanaf 1, niet \"2x\".",
     "reken "},
    {{"reken", "x.mrv", "--uit", "u", "--taken", "1.5"},
     "--taken vraagt een geheel getal vanaf 1, niet \"1.5\".",
     "reken "},
    {{"reken", "x.mrv", "--uit", "u", "--taken", "99999999999"},
     "--taken vraagt een geheel getal vanaf 1, niet \"99999999999\".",
     "reken "},
    {{"reken", "x.mrv", "--taken", "2"}, "--taken gaat alleen samen met --uit.", "reken "},
    {{"reken", "x.mrv", "--prn", "-", "--json", "-"},
     "--prn en --json kunnen niet allebei naar de standaarduitvoer.",
     "reken "},
    {{"reken", "x.mrv", "--prn", "a b", "--json", "./a b"},
     "--prn en --json noemen hetzelfde bestand.",
     "reken "},
    {{"reken", "x.mrv", "--prn", "a", "--uit", "u"}, "--prn en --json gaan niet samen met --uit.", "reken "},
    {{"reken", "x.mrv", "--json", "a", "--uit", "u"}, "--prn en --json gaan niet samen met --uit.", "reken "},
    {{"reken", "x.mrv", "y.mrv", "--prn", "a"},
     "--prn en --json zijn er voor één project; gebruik --uit MAP voor meer projecten.",
     "reken "},
    {{"reken", "x.mrv", "y.mrv", "--json", "-"},
     "--prn en --json zijn er voor één project; gebruik --uit MAP voor meer projecten.",
     "reken "},
    {{"reken", "x.mrv", "--lijst"}, "Achter --lijst ontbreekt BESTAND.", "reken "},
    {{"reken", "-", "-"}, "De standaardinvoer kan maar één keer worden gelezen.", "reken "},
    {{"reken", "-", "--lijst", "-"}, "De standaardinvoer kan maar één keer worden gelezen.", "reken "},
    {{"reken", "x.mrv", "-", "--uit", "u"},
     "Een project op de standaardinvoer heeft geen naam voor de bestanden van --uit.",
     "reken "},
    {{"toon", "--lijst", "x"}, "Onbekende optie: --lijst", "toon "},
    {{"controleer"}, "PROJECT.mrv ontbreekt.", "controleer "},
    {{"controleer", "x.mrv", "--prn", "a"}, "Onbekende optie: --prn", "controleer "},
    {{"toon"}, "PROJECT.mrv ontbreekt.", "toon "},
    {{"toon", "x.mrv", "y.mrv"}, "Onverwacht argument: y.mrv", "toon "},
    {{"toon", "x.mrv", "-o"}, "Achter -o ontbreekt BESTAND.", "toon "},
    {{"toon", "x.mrv", "--soort", "plafonds"}, "Onbekende optie: --soort", "toon "},
    {{"maak"}, "Optie -o BESTAND ontbreekt.", "maak "},
    {{"maak", "x.json"}, "Optie -o BESTAND ontbreekt.", "maak "},
    {{"maak", "-o", "x.mrv"}, "PROJECT.json ontbreekt.", "maak "},
    {{"maak", "x.json", "y.json", "-o", "x.mrv"}, "Onverwacht argument: y.json", "maak "},
    {{"catalogus", "toon"}, "BESTAND.dat ontbreekt.", "catalogus toon "},
    {{"catalogus", "toon", "x.dat", "--soort", "ramen"},
     "--soort vraagt kanaalelementen, ventilatoren, luchtkanalen of plafonds, niet \"ramen\".",
     "catalogus toon "},
    {{"catalogus", "maak", "x.json"}, "Optie -o BESTAND ontbreekt.", "catalogus maak "},
    {{"catalogus", "maak", "-o", "x.dat"}, "BESTAND.json ontbreekt.", "catalogus maak "},
    {{"schat"}, "Achter schat hoort bekleed, kwartlambda, plenum, kanaalwand of ventilator.", ""},
    {{"schat", "raam"}, "Achter schat hoort bekleed, kwartlambda, plenum, kanaalwand of ventilator.", ""},
    {{"schat", "bekleed", "500"}, "Onverwacht argument: 500", "schat bekleed "},
    {{"schat", "bekleed", "--S2", "1"}, "Onbekende optie: --S2", "schat bekleed "},
    {{"schat", "kwartlambda", "--Dikte", "1"}, "Onbekende optie: --Dikte", "schat kwartlambda "},
    {{"schat", "plenum", "--l", "1"}, "Onbekende optie: --l", "schat plenum "},
    {{"schat", "plenum", "--h"}, "Achter --h ontbreekt MM.", "schat plenum "},
    {{"schat", "kanaalwand", "--h", "1"}, "Onbekende optie: --h", "schat kanaalwand "},
    {{"schat", "plenum", "--json=x"}, "Bij --json hoort geen waarde.", "schat plenum "},
    {{"schat", "ventilator", "--FanDruk", "1", "--FanDruk", "2"},
     "Optie --FanDruk staat er meer dan één keer.",
     "schat ventilator "},
};

TEST_P(VerkeerdGebruik, IsToldInDutchWithAHintAndStatus64) {
  const Afloop afloop = Draai(GetParam().Argumenten);
  EXPECT_EQ(afloop.Code, 64);
  EXPECT_EQ(afloop.Uit, "");
  EXPECT_EQ(afloop.Err, GetParam().Melding + "\nHulp: murvane-cli " + GetParam().Opdracht + "--help\n");
}

INSTANTIATE_TEST_SUITE_P(Ontleed, VerkeerdGebruik, testing::ValuesIn(Gevallen));

Keuzes OntleedRegel(Woorden argumenten) {
  const Opdracht opdracht = NeemOpdracht(argumenten);
  return Ontleed(opdracht, argumenten);
}

TEST(Ontleed, KnowsEveryCommandByItsWords) {
  for (const OpdrachtRegel& regel : Opdrachten) {
    if (regel.Code == Opdracht::Druk) continue;  // another program
    std::istringstream in{std::string(regel.Naam)};
    Woorden woorden{std::istream_iterator<std::string>(in), {}};
    EXPECT_EQ(NeemOpdracht(woorden), regel.Code) << regel.Naam;
    EXPECT_TRUE(woorden.empty()) << regel.Naam;
  }
  for (Woorden woorden : {Woorden{""}, Woorden{"druk"}, Woorden{"murvane-druk"}})
    EXPECT_EQ(NeemOpdracht(woorden), Opdracht::Programma);
}

TEST(Ontleed, TakesEveryOptionWithAValueInBothForms) {
  for (const OptieRegel& optie : Opties) {
    if (optie.Argument.empty()) continue;
    const std::string waarde = optie.Code == Optie::Taken      ? "3"
                               : optie.Code == Optie::Decimaal ? "punt"
                               : optie.Code == Optie::Soort    ? "plafonds"
                               : optie.Code == Optie::Grafiek  ? "1m"
                                                               : "een bestand é";
    for (const OpdrachtRegel& regel : Opdrachten) {
      if (!Kent(optie, regel.Code) || regel.Code == Opdracht::Programma) continue;
      const std::string naam(EersteNaam(optie));
      Woorden kaal;
      if (!regel.Argument.empty()) kaal.emplace_back("x");
      if (!optie.Verplicht && Kent(RegelVan(Optie::UitvoerMaak), regel.Code))
        kaal.insert(kaal.end(), {"-o", "y"});
      if (!optie.Verplicht && regel.Code == Opdracht::Druk) kaal.insert(kaal.end(), {"--pdf", "y"});
      Woorden los = kaal;
      los.insert(los.end(), {naam, waarde});
      EXPECT_EQ(Ontleed(regel.Code, los).Waarde(optie.Code), waarde) << regel.Naam << naam;
      Woorden vast = kaal;
      vast.push_back(naam + (naam.size() > 2 ? "=" : "") + waarde);
      EXPECT_EQ(Ontleed(regel.Code, vast).Waarde(optie.Code), waarde) << regel.Naam << naam;
    }
  }
}

TEST(Ontleed, OptionsMayStandBeforeTheCommandAndBetweenTheFiles) {
  const Keuzes keuzes =
      OntleedRegel({"--decimaal", "punt", "--data=d", "reken", "a.mrv", "--uit", "u", "b.mrv"});
  EXPECT_EQ(keuzes.Wat, Opdracht::Reken);
  EXPECT_EQ(keuzes.Bestanden, (Woorden{"a.mrv", "b.mrv"}));
  EXPECT_EQ(keuzes.Waarde(Optie::Decimaal), "punt");
  EXPECT_EQ(keuzes.Waarde(Optie::Data), "d");
  EXPECT_EQ(keuzes.Waarde(Optie::Uit), "u");
  EXPECT_FALSE(keuzes.Heeft(Optie::Taken));
  EXPECT_EQ(keuzes.Taken(), 0U);
}

TEST(Ontleed, BehindTwoDashesEverythingIsAFile) {
  const Keuzes keuzes = OntleedRegel({"reken", "--", "-a.mrv", "--prn", "--"});
  EXPECT_EQ(keuzes.Bestanden, (Woorden{"-a.mrv", "--prn", "--"}));
}

TEST(Ontleed, NamesWithBracketsCommasAndBlanksStayWhole) {
  const Keuzes keuzes = OntleedRegel({"reken", "[a,b].mrv", "[c,d]", "/prn", "é è.mrv", "-"});
  EXPECT_EQ(keuzes.Bestanden, (Woorden{"[a,b].mrv", "[c,d]", "/prn", "é è.mrv", "-"}));
  EXPECT_EQ(OntleedRegel({"reken", "a.mrv", "--prn", "[x,y]"}).Waarde(Optie::Prn), "[x,y]");
}

TEST(Ontleed, ADashAloneIsAValue) {
  EXPECT_EQ(OntleedRegel({"reken", "a.mrv", "--prn", "-"}).Waarde(Optie::Prn), "-");
  EXPECT_EQ(OntleedRegel({"toon", "a.mrv", "-o", "-"}).Waarde(Optie::UitvoerToon), "-");
}

TEST(Ontleed, NoMessageHoldsAWordOfTheLibraries) {
  for (const Verkeerd& geval : Gevallen) {
    const std::string err = Draai(geval.Argumenten).Err;
    for (const char* woord :
         {"required", "expected", "missing", "following", "option ", "could", "TEXT", "value", "Error"})
      EXPECT_THAT(err, testing::Not(testing::HasSubstr(woord)));
  }
}

}  // namespace
}  // namespace murvane::clitest
