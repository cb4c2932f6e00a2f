// The commands toon and maak, and the same of the catalogues.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "catalogue/catfiles.h"
#include "catalogue/catjson.h"
#include "project/projectjson.h"
#include "tests/cli/hulp.h"

namespace murvane::clitest {
namespace {

using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

/// Never-assigned texts, all odd numbers, bytes without a character, an element count that is no count.
Project VreemdProject() {
  Project project = GoedProject("\x81 \"\\\x9D\x80");
  project.Kop.ProNum = Tekst<12>();
  project.Fan.Lw = {-0.0, std::nan(""), std::numeric_limits<double>::infinity(), -INFINITY, 5e-324, 1.7e308,
                    0.1,  1.0 / 3};
  project.Fan.FanType = -32768;
  project.Ruimte.RkanaalNaam = std::string("a\0b ", 4);
  project.Ruimte.RplafondNaam = std::string(300, '\xE9');
  project.VrijVeld = -1;
  return project;
}

TEST(ToonEnMaak, GiveTheLogicalBytesAgain) {
  Project negatief = GoedProject();
  negatief.ElementCount = -5;
  for (const Project& project : {Project(), GoedProject(), VreemdProject(), negatief}) {
    const Proefmap map;
    const std::string naam = map.Zet(project, "één.mrv");
    const Afloop toon = Draai({"toon", naam, "-o", map / "één.json"});
    EXPECT_EQ(toon.Code, 0);
    EXPECT_EQ(toon.Uit + toon.Err, "");
    const Afloop maak = Draai({"maak", map / "één.json", "-o", map / "twee.mrv"});
    EXPECT_EQ(maak.Code, 0);
    EXPECT_EQ(maak.Uit + maak.Err, "");
    EXPECT_EQ(map.Lees("twee.mrv"), ProjectBytes(project));
  }
}

TEST(ToonEnMaak, StandardOutputHoldsTheSameAsAFile) {
  const Proefmap map;
  const std::string naam = map.Zet(VreemdProject(), "a.mrv");
  EXPECT_EQ(Draai({"toon", naam, "-o", map / "a.json"}).Code, 0);
  EXPECT_EQ(Draai({"toon", naam}).Uit, map.Lees("a.json"));
  EXPECT_EQ(Draai({"toon", naam, "-o", "-"}).Uit, map.Lees("a.json"));
  EXPECT_EQ(Draai({"maak", map / "a.json", "-o", "-"}).Uit, ProjectBytes(VreemdProject()));
  EXPECT_FALSE(map.Heeft("-"));
}

TEST(ToonEnMaak, TheOldTailIsNotShownAndStays) {
  const Proefmap map;
  const std::string bytes = ProjectBytes(GoedProject());
  const std::string naam = map.ZetBytes(bytes + "oude staart", "a.mrv");
  const Afloop toon = Draai({"toon", naam});
  EXPECT_THAT(toon.Uit, Not(HasSubstr("staart")));
  map.ZetBytes(toon.Uit, "a.json");
  EXPECT_EQ(Draai({"maak", map / "a.json", "-o", naam}).Code, 0);
  EXPECT_EQ(map.Lees("a.mrv"), bytes + "oude staart");
}

TEST(Toon, ReplacesALongerFileWhole) {
  const Proefmap map;
  const std::string json = map.ZetBytes(std::string(1000000, 'x'), "a.json");
  EXPECT_EQ(Draai({"toon", map.Zet(GoedProject(), "a.MRV"), "-o", json}).Code, 0);
  EXPECT_EQ(map.Lees("a.json"), ProjectNaarJson(GoedProject()));
}

TEST(Toon, FaultsNameTheFileThatTheyAreOf) {
  const Proefmap map;
  const std::string goed = map.Zet(GoedProject(), "a.mrv");
  EXPECT_EQ(Draai({"toon", map / "weg.mrv"}).Err, map / "weg.mrv" + ": Fout 53 - Bestand niet gevonden.\n");
  EXPECT_EQ(Draai({"toon", map / "a.txt"}).Err,
            map / "a.txt" + ": Fout 52 - Ongeldige bestandsnaam: een projectbestand eindigt op mrv.\n");
  EXPECT_EQ(Draai({"toon", goed, "-o", map / "weg/a.json"}).Err,
            map / "weg/a.json" + ": Fout 76 - Map niet gevonden.\n");
  EXPECT_EQ(Draai({"toon", goed, "-o", map / "weg/a.json"}).Code, 1);
}

TEST(Toon, NeverOverwritesTheProjectThatItReads) {
  const Proefmap map;
  const std::string goed = map.Zet(GoedProject(), "a.mrv");
  EXPECT_EQ(Draai({"toon", goed, "-o", goed}).Code, 64);
  EXPECT_EQ(map.Lees("a.mrv"), ProjectBytes(GoedProject()));
}

TEST(Maak, TakesHandwrittenJson) {
  const Proefmap map;
  const std::string json = map.ZetBytes(
      R"({"ProjectRec": {"ProNaam": "Café", "RekenType": 1}, "Elementen": [{"LDoorsnee": 2.5}]})", "é.json");
  EXPECT_EQ(Draai({"maak", json, "-o", map / "é.mrv"}).Code, 0);
  const Project project = LeesProject(PadVan(map / "é.mrv"));
  EXPECT_EQ(project.Kop.ProNaam.Getrimd(), "Café"_cp);
  EXPECT_EQ(project.ElementCount, 1);
  EXPECT_EQ(project.Elementen[1].Lengte, 2.5);
}

TEST(Maak, RefusesWithThePlaceAndTheFileAndLeavesTheOldProject) {
  const Proefmap map;
  const std::string uit = map.Zet(GoedProject(), "uit.mrv");
  const struct {
    std::string_view Json;
    std::string Begin, Plaats;
  } rijen[] = {
      {R"({"Onbekend": 1})", "Fout 5 - ", "Onbekend"},
      {R"({"Elementen": [{"Hoogte": 400}, {"Hoogte": "hoog"}]})", "Fout 13 - ", "Elementen[2].Hoogte"},
      {"{\n  \"Elementen\": [,]\n}", "Fout 5 - ", "regel 2"},
      {"", "Fout 5 - ", ""},
  };
  for (const auto& rij : rijen) {
    const std::string json = map.ZetBytes(rij.Json, "in é.json");
    const Afloop afloop = Draai({"maak", json, "-o", uit});
    EXPECT_EQ(afloop.Code, 1) << rij.Json;
    EXPECT_EQ(afloop.Uit, "");
    EXPECT_THAT(afloop.Err, StartsWith(json + ": " + rij.Begin));
    EXPECT_THAT(afloop.Err, HasSubstr(rij.Plaats));
    for (const char* woord : {"parse", "error", "unexpected", "type", "json.exception", "expected"})
      EXPECT_THAT(afloop.Err, Not(HasSubstr(woord)));
    EXPECT_EQ(map.Lees("uit.mrv"), ProjectBytes(GoedProject()));
  }
}

TEST(Maak, AFileThatIsFarTooLargeIsRefusedBeforeItFillsTheMemory) {
  const Proefmap map;
  const std::string naam = map.ZetBytes("{", "groot é.json");
  for (const char* soort : {"", "catalogus"}) {
    std::vector<std::string> opdracht{"maak", naam, "-o", map / "uit.mrv"};
    if (*soort != '\0') opdracht.insert(opdracht.begin(), soort);
    std::filesystem::resize_file(PadVan(naam), (std::uintmax_t{16} << 20) + 1);
    const Afloop teGroot = Draai(opdracht);
    EXPECT_EQ(teGroot.Code, 1);
    EXPECT_EQ(teGroot.Err, naam + ": Fout 75 - Het bestand is te groot voor een project of catalogus.\n");
    std::filesystem::resize_file(PadVan(naam), std::uintmax_t{16} << 20);
    EXPECT_THAT(Draai(opdracht).Err, Not(HasSubstr("te groot")));
  }
  EXPECT_FALSE(map.Heeft("uit.mrv"));
}

TEST(Maak, WritesOnlyToNamesThatEndInMrvInSmallLetters) {
  const Proefmap map;
  const std::string json = map.ZetBytes("{}", "a.json");
  for (const char* naam : {"a.MRV", "a.txt", "a"}) {
    const Afloop afloop = Draai({"maak", json, "-o", map / naam});
    EXPECT_EQ(afloop.Code, 1);
    EXPECT_EQ(afloop.Err,
              map / naam +
                  ": Fout 52 - Ongeldige bestandsnaam: een projectbestand eindigt op mrv, in kleine "
                  "letters.\n");
    EXPECT_FALSE(map.Heeft(naam));
  }
  EXPECT_EQ(Draai({"maak", map / "weg.json", "-o", map / "a.mrv"}).Err,
            map / "weg.json" + ": Fout 53 - Bestand niet gevonden.\n");
}

ElementCatalogus Elementen() {
  ElementCatalogus catalogus;
  catalogus.Aantal = 2;
  catalogus.Records[1].CatNaam = "Aftakking";
  catalogus.Records[2].CatNaam = "Geluiddemper é"_cp;
  catalogus.Records[2].CatDemp = {1, 2, 3, 4, 5, 6, 7, -0.0};
  catalogus.Records[2].PerMeter = 1;
  return catalogus;
}

SpectrumCatalogus Spectra() {
  SpectrumCatalogus catalogus;
  catalogus.Aantal = 1;
  catalogus.Records[1].SpecNaam = "Staal 1 mm²"_cp;
  catalogus.Records[1].SpecWaarde = {1, 2, 3, 4, 5, 6, 7, 8};
  return catalogus;
}

struct Soortnaam {
  const char *Bestand, *Soort, *Sleutel;
};
constexpr Soortnaam Soorten[] = {{"Duct.dat", "kanaalelementen", "CatElementen"},
                                 {"FAN.DAT", "ventilatoren", "CatFans"},
                                 {"rduct.dat", "luchtkanalen", "CatRduct"},
                                 {"RPlaf.Dat", "plafonds", "CatRplaf"}};

std::string BytesVan(const Soortnaam& soort) {
  return std::string(soort.Sleutel) == "CatElementen" ? CatalogusBytes(Elementen())
                                                      : CatalogusBytes(Spectra());
}

TEST(Catalogus, TheNameOfTheFileTellsItsKindInAnyCase) {
  const Proefmap map;
  for (const Soortnaam& soort : Soorten) {
    const Afloop afloop = Draai({"catalogus", "toon", map.ZetBytes(BytesVan(soort), soort.Bestand)});
    EXPECT_EQ(afloop.Code, 0) << soort.Bestand;
    EXPECT_EQ(afloop.Err, "");
    EXPECT_THAT(afloop.Uit, HasSubstr("\"" + std::string(soort.Sleutel) + "\""));
  }
}

TEST(Catalogus, TheOptionTellsTheKindAndGoesBeforeTheName) {
  const Proefmap map;
  for (const Soortnaam& soort : Soorten) {
    for (const char* naam : {"eigen é.dat", "Duct.dat", "Fan.dat"}) {
      const Afloop afloop =
          Draai({"catalogus", "toon", map.ZetBytes(BytesVan(soort), naam), "--soort", soort.Soort});
      EXPECT_EQ(afloop.Code, 0) << naam;
      EXPECT_THAT(afloop.Uit, HasSubstr("\"" + std::string(soort.Sleutel) + "\""));
    }
  }
}

TEST(Catalogus, TheLengthTellsTheKindWhenNothingElseDoes) {
  const Proefmap map;
  EXPECT_THAT(Draai({"catalogus", "toon", map.ZetBytes(CatalogusBytes(Elementen()), "x.dat")}).Uit,
              HasSubstr("\"CatElementen\""));
  EXPECT_THAT(Draai({"catalogus", "toon", map.ZetBytes(CatalogusBytes(Spectra()), "x.dat")}).Uit,
              HasSubstr("\"CatFans\""));
}

TEST(Catalogus, AKindThatCannotBeToldIsAskedFor) {
  const Proefmap map;
  const std::string staart = CatalogusBytes(Spectra()) + "staart";
  for (const std::string& bytes : {staart, std::string(2, '\0'), std::string("\xFF\xFF", 2)}) {
    const std::string naam = map.ZetBytes(bytes, "x.dat");
    const Afloop afloop = Draai({"catalogus", "toon", naam});
    EXPECT_EQ(afloop.Code, 64);
    EXPECT_EQ(afloop.Uit, "");
    EXPECT_EQ(
        afloop.Err,
        naam +
            ": de soort catalogus blijkt niet uit het bestand; geef --soort kanaalelementen, ventilatoren, "
            "luchtkanalen of plafonds.\nHulp: murvane-cli catalogus toon --help\n");
    EXPECT_EQ(Draai({"catalogus", "toon", naam, "--soort", "plafonds"}).Code, 0);
  }
}

TEST(Catalogus, ToonAndMaakGiveTheBytesAgainAndKeepTheTail) {
  for (const Soortnaam& soort : Soorten) {
    const Proefmap map;
    const std::string naam = map.ZetBytes(BytesVan(soort) + "oude staart", soort.Bestand);
    const Afloop toon = Draai({"catalogus", "toon", naam, "-o", map / "c é.json"});
    EXPECT_EQ(toon.Code, 0);
    EXPECT_EQ(toon.Uit + toon.Err, "");
    EXPECT_EQ(Draai({"catalogus", "toon", naam}).Uit, map.Lees("c é.json"));
    const Afloop maak = Draai({"catalogus", "maak", map / "c é.json", "-o", map / "nieuw.dat"});
    EXPECT_EQ(maak.Code, 0);
    EXPECT_EQ(maak.Uit + maak.Err, "");
    EXPECT_EQ(map.Lees("nieuw.dat"), BytesVan(soort));
    EXPECT_EQ(Draai({"catalogus", "maak", map / "c é.json", "-o", "-"}).Uit, BytesVan(soort));
    EXPECT_EQ(Draai({"catalogus", "maak", map / "c é.json", "-o", naam}).Code, 0);
    EXPECT_EQ(map.Lees(soort.Bestand), BytesVan(soort) + "oude staart");
  }
}

TEST(Catalogus, FaultsNameTheFileThatTheyAreOf) {
  const Proefmap map;
  const std::string kort = map.ZetBytes(CatalogusBytes(Spectra()).substr(0, 100), "Fan.dat");
  const std::string leeg = map.ZetBytes("x", "x.dat");
  const std::string goed = map.ZetBytes(CatalogusBytes(Spectra()), "Rduct.dat");
  const std::string json = map.ZetBytes(R"({"CatRamen": []})", "ramen.json");
  EXPECT_EQ(Draai({"catalogus", "toon", map / "weg.dat"}).Err,
            map / "weg.dat" + ": Fout 53 - Bestand niet gevonden.\n");
  EXPECT_THAT(Draai({"catalogus", "toon", kort}).Err,
              StartsWith(kort + ": Fout 62 - Het bestand eindigt te vroeg"));
  EXPECT_THAT(Draai({"catalogus", "toon", leeg}).Err,
              StartsWith(leeg + ": Fout 62 - Het bestand eindigt te vroeg"));
  EXPECT_EQ(Draai({"catalogus", "toon", leeg}).Code, 1);
  EXPECT_EQ(Draai({"catalogus", "toon", goed, "-o", map / "weg/x"}).Err,
            map / "weg/x" + ": Fout 76 - Map niet gevonden.\n");
  EXPECT_EQ(Draai({"catalogus", "toon", goed, "-o", goed}).Code, 64);
  EXPECT_EQ(map.Lees("Rduct.dat"), CatalogusBytes(Spectra()));
  const Afloop maak = Draai({"catalogus", "maak", json, "-o", map / "u.dat"});
  EXPECT_EQ(maak.Code, 1);
  EXPECT_THAT(maak.Err, StartsWith(json + ": Fout 5 - "));
  EXPECT_FALSE(map.Heeft("u.dat"));
  EXPECT_EQ(Draai({"catalogus", "maak", map / "weg.json", "-o", map / "u.dat"}).Err,
            map / "weg.json" + ": Fout 53 - Bestand niet gevonden.\n");
  map.ZetBytes(R"({"CatFans": []})", "goed.json");
  EXPECT_EQ(Draai({"catalogus", "maak", map / "goed.json", "-o", map / "weg/u.dat"}).Err,
            map / "weg/u.dat" + ": Fout 76 - Map niet gevonden.\n");
}

TEST(Catalogus, MoreThanFiveHundredRecordsAreFault9) {
  const Proefmap map;
  SpectrumCatalogus vol;
  vol.Aantal = 500;
  std::string bytes = CatalogusBytes(vol);
  bytes[0] = static_cast<char>(0xF5);  // 501
  const std::string naam = map.ZetBytes(bytes, "Fan.dat");
  EXPECT_THAT(Draai({"catalogus", "toon", naam}).Err, StartsWith(naam + ": Fout 9 - "));
  EXPECT_EQ(Draai({"catalogus", "toon", map.ZetBytes(CatalogusBytes(vol), "Fan.dat")}).Code, 0);
}

}  // namespace
}  // namespace murvane::clitest
