// The commands overzicht and catalogus sorteer.

#include "catalogue/overzicht.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

Catalogi Proefcatalogi() {
  Catalogi uit;
  uit.CatElementen.Aantal = 13;
  uit.CatElementen.Records[12].CatNaam = "Slang é"_cp;
  uit.CatElementen.Records[12].CatDemp[7] = 4;
  uit.CatElementen.Records[12].CatRuis[0] = 33.5;
  uit.CatElementen.Records[13].CatNaam = "Demper";
  for (SpectrumCatalogus* catalogus : {&uit.CatFans, &uit.CatRduct, &uit.CatRplaf}) {
    catalogus->Aantal = 2;
    catalogus->Records[1].SpecNaam = "Tweede ²"_cp;
    catalogus->Records[2].SpecNaam = "Eerste";
    catalogus->Records[2].SpecWaarde = {1.5, 2, 3, 4, 5, 6, 7, 8};
  }
  return uit;
}

struct Soortnaam {
  const char *Woord, *Bestand;
  CatalogusSoort Soort;
};
constexpr Soortnaam Soorten[] = {{"kanaalelementen", "Duct.dat", CatalogusSoort::Kanaalelementen},
                                 {"ventilatoren", "Fan.dat", CatalogusSoort::Ventilatoren},
                                 {"luchtkanalen", "Rduct.dat", CatalogusSoort::Luchtkanalen},
                                 {"plafonds", "Rplaf.dat", CatalogusSoort::Plafonds}};

/// A data directory with one catalogue only: no command needs the others.
void Zet(const Proefmap& map, const Soortnaam& soort) {
  const Catalogi catalogi = Proefcatalogi();
  map.ZetBytes(MetCatalogus(catalogi, soort.Soort, [](const auto& c) { return CatalogusBytes(c); }),
               soort.Bestand);
}

Afloop Overzicht(const Proefmap& map, std::vector<std::string> argumenten) {
  argumenten.insert(argumenten.begin(), "overzicht");
  argumenten.insert(argumenten.end(), {"--data", map.Naam(), "--datum", "20-11-2026"});
  return Draai(argumenten);
}

TEST(OverzichtOpdracht, ShowsTheListingAsUtf8AndSavesItsBytes) {
  for (const Soortnaam& soort : Soorten) {
    const Proefmap map;
    Zet(map, soort);
    for (const char* const decimaal : {"punt", "komma"}) {
      const std::string bytes =
          OverzichtBytes(murvane::Overzicht(Proefcatalogi(), soort.Soort, OverzichtWijze::Alles, ZoekAlles,
                                            "20-11-2026", std::string(decimaal) == "punt" ? '.' : ','));
      const Afloop toon = Overzicht(map, {soort.Woord, "--decimaal", decimaal});
      EXPECT_EQ(toon.Code, 0);
      EXPECT_EQ(toon.Err, "");
      EXPECT_EQ(toon.Uit, NaarUtf8(bytes));
      const Afloop bewaar = Overzicht(map, {soort.Woord, "--decimaal", decimaal, "-o", map / "é.txt"});
      EXPECT_EQ(bewaar.Code, 0);
      EXPECT_EQ(bewaar.Uit + bewaar.Err, "");
      EXPECT_EQ(map.Lees("é.txt"), bytes);
    }
    EXPECT_THAT(Overzicht(map, {soort.Woord}).Uit, EndsWith("Aantal =  2\r\n"));
  }
}

TEST(OverzichtOpdracht, SearchesNamesInWhateverCase) {
  const Proefmap map;
  Zet(map, Soorten[0]);
  const Afloop afloop = Overzicht(map, {"kanaalelementen", "--zoek", "NG É"});
  EXPECT_THAT(afloop.Uit, HasSubstr("KANAALELEMENTEN - OVERZICHT OP NAAM : NG É "));
  EXPECT_THAT(afloop.Uit, HasSubstr("     Slang é  "));
  EXPECT_THAT(afloop.Uit, EndsWith("Aantal =  1\r\n"));
  EXPECT_THAT(Overzicht(map, {"kanaalelementen", "--zoek", " "}).Uit, EndsWith("Aantal =  2\r\n"));
  EXPECT_THAT(Overzicht(map, {"kanaalelementen", "--zoek", "zz"}).Uit, EndsWith("Aantal =  0\r\n"));
}

TEST(OverzichtOpdracht, HasTheDayOfTheClockWithoutADate) {
  const Proefmap map;
  Zet(map, Soorten[3]);
  const Afloop afloop = Draai({"overzicht", "plafonds", "--data", map.Naam()});
  EXPECT_THAT(afloop.Uit,
              testing::ContainsRegex("Aangemaakt op : [0-3][0-9]-[01][0-9]-2[0-9][0-9][0-9]\r\n"));
}

TEST(OverzichtOpdracht, RefusesAnUnknownKindAndAnImpossibleDate) {
  const Proefmap map;
  Zet(map, Soorten[3]);
  const Afloop soort = Overzicht(map, {"ramen"});
  EXPECT_EQ(soort.Code, 64);
  EXPECT_EQ(soort.Err,
            "overzicht vraagt kanaalelementen, ventilatoren, luchtkanalen of plafonds, niet \"ramen\".\n"
            "Hulp: murvane-cli overzicht --help\n");
  for (const char* const datum : {"31-02-2026", "1-2-2026", "2026-01-02", "vandaag", " "}) {
    const Afloop afloop = Draai({"overzicht", "plafonds", "--data", map.Naam(), "--datum", datum});
    EXPECT_EQ(afloop.Code, 64) << datum;
    EXPECT_EQ(afloop.Err, "--datum vraagt een bestaande datum als dd-mm-jjjj, niet \"" + std::string(datum) +
                              "\".\nHulp: murvane-cli overzicht --help\n");
  }
}

TEST(OverzichtOpdracht, NeverOverwritesTheCatalogueAndNamesTheFileOfAFault) {
  const Proefmap map;
  Zet(map, Soorten[1]);
  const std::string was = map.Lees("Fan.dat");
  EXPECT_EQ(Overzicht(map, {"ventilatoren", "-o", map / "Fan.dat"}).Code, 64);
  EXPECT_EQ(map.Lees("Fan.dat"), was);
  const Afloop weg = Overzicht(map, {"plafonds"});
  EXPECT_EQ(weg.Code, 1);
  EXPECT_EQ(weg.Err, map / "Rplaf.dat" + ": Fout 53 - Bestand niet gevonden.\n");
  EXPECT_EQ(Overzicht(map, {"ventilatoren", "-o", map / "weg/a.fan"}).Err,
            map / "weg/a.fan" + ": Fout 76 - Map niet gevonden.\n");
}

TEST(OverzichtOpdracht, NeverOverwritesAnotherCatalogueOfItsData) {
  const Proefmap map;
  for (const Soortnaam& soort : Soorten) Zet(map, soort);
  for (const Soortnaam& soort : Soorten) {
    for (const Soortnaam& ander : Soorten) {
      const std::string was = map.Lees(ander.Bestand);
      const Afloop afloop = Overzicht(map, {soort.Woord, "-o", map / ander.Bestand});
      const char* const waarom = soort.Soort == ander.Soort
                                     ? " is het bestand dat wordt gelezen en zou worden overschreven."
                                     : " is een catalogus en zou worden overschreven.";
      EXPECT_EQ(afloop.Code, 64);
      EXPECT_EQ(afloop.Err, map / ander.Bestand + waarom + "\nHulp: murvane-cli overzicht --help\n");
      EXPECT_EQ(map.Lees(ander.Bestand), was);
    }
  }
  EXPECT_EQ(Overzicht(map, {"plafonds", "-o", map / "Fan.dat.txt"}).Code, 0);
}

TEST(CatalogusSorteer, SortsAndSavesWithTheTailOfALongerFile) {
  for (const Soortnaam& soort : Soorten) {
    const Proefmap map;
    Zet(map, soort);
    const std::string was = map.Lees(soort.Bestand);
    Catalogi hand = Proefcatalogi();
    if (soort.Soort == CatalogusSoort::Kanaalelementen) {
      std::swap(hand.CatElementen.Records[12], hand.CatElementen.Records[13]);
      hand.CatElementen.Records[13].CatRuis[0] = 4;  // it moved down
    } else {
      MetCatalogus(hand, soort.Soort, [](auto& c) { std::swap(c.Records[1], c.Records[2]); });
    }
    const std::string bytes = MetCatalogus(hand, soort.Soort, [](auto& c) { return CatalogusBytes(c); });
    map.ZetBytes(std::string(bytes.size(), '\xFF') + "oude staart", "uit é.dat");
    const Afloop afloop = Draai({"catalogus", "sorteer", map / soort.Bestand, "-o", map / "uit é.dat"});
    EXPECT_EQ(afloop.Code, 0);
    EXPECT_EQ(afloop.Uit + afloop.Err, "");
    EXPECT_EQ(map.Lees("uit é.dat"), bytes + "oude staart");
    EXPECT_EQ(map.Lees(soort.Bestand), was);
    EXPECT_EQ(Draai({"catalogus", "sorteer", map / soort.Bestand, "-o", "-"}).Uit, bytes);
    EXPECT_EQ(Draai({"catalogus", "sorteer", map / soort.Bestand, "-o", map / soort.Bestand}).Code, 0);
    EXPECT_EQ(map.Lees(soort.Bestand), bytes);
  }
}

TEST(CatalogusSorteer, TakesTheKindFromTheOptionAndAsksForIt) {
  const Proefmap map;
  Zet(map, Soorten[0]);
  const std::string naam = map.ZetBytes(map.Lees("Duct.dat") + "staart", "x.dat");
  EXPECT_EQ(Draai({"catalogus", "sorteer", naam, "-o", "-"}).Code, 64);
  EXPECT_EQ(Draai({"catalogus", "sorteer", naam, "-o", "-", "--soort", "kanaalelementen"}).Uit,
            Draai({"catalogus", "sorteer", map / "Duct.dat", "-o", "-"}).Uit);
  EXPECT_EQ(Draai({"catalogus", "sorteer", naam}).Err,
            "Optie -o BESTAND ontbreekt.\nHulp: murvane-cli catalogus sorteer --help\n");
}

}  // namespace
}  // namespace murvane::clitest
