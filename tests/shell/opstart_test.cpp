#include "shell/opstart.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "basis/bestand.h"
#include "tests/hulp/beeld.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::Script;

// The five files in the order in which they are read, and the size of a record of the last four.
constexpr std::array<const char*, 5> Bestanden = {"murvane.set", "Duct.dat", "Fan.dat", "Rduct.dat",
                                                  "Rplaf.dat"};
constexpr std::array<std::size_t, 5> RecordMaat = {0, 290, 144, 144, 144};

const Melding NietGevonden{MeldingSoort::Kritiek, "Foutmelding", "Opstartbestand(en) niet gevonden"};

Melding Opstartfout(std::string_view naam) {
  return {MeldingSoort::Kritiek, "Opstartfout", std::string(naam) + " geen of onbruikbaar opstartbestand"};
}

Melding Onverwacht(std::string_view fout) {
  return {MeldingSoort::Kritiek, "MurVane",
          "Onverwachte fout in procedure MDIForm_Load van Form MDIMurvane.\nFout " + std::string(fout) + "."};
}

std::string Instelling(const std::string& lettertype) {
  return lettertype + "\r\n 12 \r\n 3 \r\n 2 \r\n 1 \r\nJ && Co\r\nJ & Co\r\n";
}

std::string Catalogusbeeld(std::size_t bestand, int aantal) {
  return proef::I16(aantal) +
         std::string(RecordMaat[bestand] * static_cast<std::size_t>(std::max(0, aantal)), '\0');
}

class Opstart : public testing::Test {
 protected:
  Opstart() { MaakMap("hier"); }

  [[nodiscard]] fs::path Map(std::string_view naam) const { return map_ / naam; }
  /// A whole data directory: file k of the catalogues holds k + `extra` records.
  void MaakMap(const std::string& naam, int extra = 0) const {
    fs::create_directory(Map(naam));
    proef::Schrijf(Map(naam) / Bestanden[0], Instelling("Lettertype van " + naam));
    for (std::size_t k = 1; k < Bestanden.size(); ++k)
      proef::Schrijf(Map(naam) / Bestanden[k], Catalogusbeeld(k, static_cast<int>(k) + extra));
  }
  [[nodiscard]] BestandVraag ZoekVraag(std::string_view beginMap, const fs::path& naam = {}) const {
    return {"Openen", "Bestand murvane.set (murvane.set)|murvane.set", Map(beginMap), naam, false, false,
            false};
  }
  Vervolg Start(std::string_view opdrachtregel = {}) {
    const Vervolg vervolg =
        MDIForm_Load(programma_, script_, {Map("hier"), DatumVeld("20-11-2026"), opdrachtregel, '.'});
    script_.IsKlaar();
    return vervolg;
  }
  void IsGeladenUit(const std::string& naam, int extra = 0) const {
    EXPECT_TRUE(fs::equivalent(programma_.DataDir, Map(naam)));
    EXPECT_EQ(programma_.Instellingen.Druk.LettertypeNaam, "Lettertype van " + naam);
    EXPECT_EQ(programma_.Catalogi.CatElementen.Aantal, 1 + extra);
    EXPECT_EQ(programma_.Catalogi.CatFans.Aantal, 2 + extra);
    EXPECT_EQ(programma_.Catalogi.CatRduct.Aantal, 3 + extra);
    EXPECT_EQ(programma_.Catalogi.CatRplaf.Aantal, 4 + extra);
  }

  proef::TijdelijkeMap map_;
  Script script_{[](const std::string& fout) { ADD_FAILURE() << fout; }};
  Programma programma_;
};

TEST_F(Opstart, ReadsSettingsAndCataloguesOfTheCurrentDirectory) {
  EXPECT_EQ(Start(), Vervolg::GaatDoor);
  IsGeladenUit("hier");
  EXPECT_EQ(programma_.Vandaag.Heel(), "20-11-2026");
  EXPECT_EQ(programma_.Decimaal, '.');
  EXPECT_EQ(programma_.Instellingen.Druk.LetterGrootte, 12);
  EXPECT_EQ(programma_.Instellingen.Druk.KopStijl, 3);
  EXPECT_EQ(programma_.Instellingen.Druk.BlokBovenStijl, 2);
  EXPECT_EQ(programma_.Instellingen.Druk.BlokOnderStijl, 1);
  EXPECT_EQ(programma_.Instellingen.GebruikerLabel.Getrimd(), "J && Co");
  EXPECT_EQ(programma_.Instellingen.Gebruikersnaam.Getrimd(), "J & Co");
  EXPECT_TRUE(programma_.OpenBestand.empty());
  EXPECT_EQ(script_.KeerGewacht(), 1);
}

TEST_F(Opstart, AsksForTheSettingsFileWhenAnyOfTheFiveIsMissing) {
  MaakMap("elders één", 10);
  for (const char* bestand : Bestanden) {
    MaakMap("hier");
    fs::remove(Map("hier") / bestand);
    script_.Box(NietGevonden).Open(ZoekVraag("hier"), Map("elders één") / "murvane.set");
    EXPECT_EQ(Start(), Vervolg::GaatDoor) << bestand;
    IsGeladenUit("elders één", 10);  // nothing of the first directory is left
  }
  EXPECT_EQ(script_.KeerGewacht(), 10);
}

TEST_F(Opstart, AsksAgainForADirectoryThatLacksAFileToo) {
  fs::remove(Map("hier") / "murvane.set");
  MaakMap("half");
  fs::remove(Map("half") / "Rplaf.dat");
  MaakMap("heel", 5);
  const fs::path half = Map("half") / "murvane.set";
  script_.Box(NietGevonden).Open(ZoekVraag("hier"), half);
  script_.Box(NietGevonden).Open(ZoekVraag("half", half), Map("heel") / "murvane.set");
  EXPECT_EQ(Start(), Vervolg::GaatDoor);
  IsGeladenUit("heel", 5);
  EXPECT_TRUE(programma_.DialoogNaam.empty());  // no project dialog proposes the settings file
}

TEST_F(Opstart, ReadsAgainWhatCameMeanwhileWhenTheDialogGivesNoName) {
  fs::remove(Map("hier") / "Fan.dat");
  script_.Box(NietGevonden).Open(ZoekVraag("hier"), "");
  script_.Box(NietGevonden).Open(ZoekVraag("hier"), "", [this] { MaakMap("hier"); });
  EXPECT_EQ(Start(), Vervolg::GaatDoor);
  IsGeladenUit("hier");
}

TEST_F(Opstart, EndsWhenTheDialogIsCancelled) {
  fs::remove(Map("hier") / "murvane.set");
  programma_.Instellingen.Gebruikersnaam = "oud", programma_.Instellingen.GebruikerLabel = "oud";
  script_.Box(NietGevonden).Open(ZoekVraag("hier"), std::nullopt).Box(Opstartfout(""));
  EXPECT_EQ(Start("project.mrv"), Vervolg::Einde);
  EXPECT_TRUE(programma_.OpenBestand.empty());
  EXPECT_EQ(programma_.Instellingen.Gebruikersnaam.Getrimd(), "..Gebruikersnaam..");
  EXPECT_EQ(programma_.Instellingen.GebruikerLabel.Getrimd(), "..Gebruikersnaam..");
}

TEST_F(Opstart, NamesTheFileThatStandsInTheDialogWhenItIsCancelledLater) {
  fs::remove(Map("hier") / "murvane.set");
  fs::create_directory(Map("leeg"));
  const fs::path naam = Map("leeg") / "murvane.set";
  script_.Box(NietGevonden).Open(ZoekVraag("hier"), naam);
  script_.Box(NietGevonden).Open(ZoekVraag("leeg", naam), std::nullopt);
  script_.Box(Opstartfout(NaarCp1252(PadTekst(naam))));
  EXPECT_EQ(Start(), Vervolg::Einde);
}

TEST_F(Opstart, EndsWhenTheChosenNameDoesNotEndInSet) {
  fs::remove(Map("hier") / "murvane.set");
  const struct {
    const char* naam;
    std::string_view getoond;
  } rijen[] = {
      {"murvane.txt", "murvane.txt"},
      {"murvane.SET", "murvane.SET"},
      {"murvane.Set", "murvane.Set"},
      {"murvane.set ", "murvane.set "},
      {"et", "et"},
      {"één µ.txt", "één µ.txt"_cp},
      {"Ω.txt", "?.txt"},
  };
  for (const auto& rij : rijen) {
    script_.Box(NietGevonden).Open(ZoekVraag("hier"), PadVan(rij.naam)).Box(Opstartfout(rij.getoond));
    EXPECT_EQ(Start(), Vervolg::Einde) << rij.naam;
  }
}

TEST_F(Opstart, TakesTheDirectoryOfAnyNameThatEndsInSet) {
  fs::remove(Map("hier") / "murvane.set");
  MaakMap("elders");
  for (const char* naam : {"anders.set", "reset"}) {
    script_.Box(NietGevonden).Open(ZoekVraag("hier"), Map("elders") / naam);
    EXPECT_EQ(Start(), Vervolg::GaatDoor) << naam;
    IsGeladenUit("elders");
  }
}

TEST_F(Opstart, EndsAtACatalogueAbove500Records) {
  for (std::size_t k = 1; k < Bestanden.size(); ++k) {
    MaakMap("hier");
    proef::Schrijf(Map("hier") / Bestanden[k], Catalogusbeeld(k, 500));
    EXPECT_EQ(Start(), Vervolg::GaatDoor) << k;
    proef::Schrijf(Map("hier") / Bestanden[k], Catalogusbeeld(k, 501));
    script_.Box(Onverwacht("9 - Index buiten het bereik in het bestand '" + std::string(Bestanden[k]) + "'"));
    EXPECT_EQ(Start(), Vervolg::Einde) << k;
  }
}

TEST_F(Opstart, ACountOfZeroOrBelowReadsNoRecords) {
  for (const int aantal : {0, -1}) {
    for (std::size_t k = 1; k < Bestanden.size(); ++k)
      proef::Schrijf(Map("hier") / Bestanden[k], proef::I16(aantal));
    EXPECT_EQ(Start(), Vervolg::GaatDoor);
    EXPECT_EQ(programma_.Catalogi.CatFans.Aantal, aantal);
  }
}

TEST_F(Opstart, EndsAtAnyOtherFailure) {
  const struct {
    const char* bestand;
    std::string bytes;
    const char* fout;
  } rijen[] = {
      {"murvane.set", "", "62 - Het bestand 'murvane.set' eindigt te vroeg (regel 1)"},
      {"murvane.set", "F\r\n 12 \r\n 3 \r\n 2 \r\n 1 \r\nJ\r\n",
       "62 - Het bestand 'murvane.set' eindigt te vroeg (regel 7)"},
      {"murvane.set", "F\r\ntwaalf\r\n 3 \r\n 2 \r\n 1 \r\nJ\r\nJ\r\n",
       "13 - Geen geldig getal in het bestand 'murvane.set' (regel 2)"},
      {"murvane.set", "F\r\n 32768 \r\n 3 \r\n 2 \r\n 1 \r\nJ\r\nJ\r\n",
       "6 - Overloop: een getal is te groot of onbepaald in het bestand 'murvane.set' (regel 2)"},
      {"Duct.dat", Catalogusbeeld(1, 1).substr(0, 291), "62 - Het bestand 'Duct.dat' eindigt te vroeg"},
      {"Fan.dat", Catalogusbeeld(2, 2).substr(0, 289), "62 - Het bestand 'Fan.dat' eindigt te vroeg"},
      {"Rduct.dat", "\1", "62 - Het bestand 'Rduct.dat' eindigt te vroeg"},
      {"Rplaf.dat", "", "62 - Het bestand 'Rplaf.dat' eindigt te vroeg"},
  };
  for (const auto& rij : rijen) {
    MaakMap("hier");
    proef::Schrijf(Map("hier") / rij.bestand, rij.bytes);
    script_.Box(Onverwacht(rij.fout));
    EXPECT_EQ(Start("project.mrv"), Vervolg::Einde) << rij.bestand;
    EXPECT_TRUE(programma_.OpenBestand.empty());
  }
}

TEST_F(Opstart, ADirectoryInPlaceOfAFileIsNoMissingFile) {
  for (const char* bestand : Bestanden) {
    MaakMap("hier");
    fs::remove(Map("hier") / bestand);
    fs::create_directory(Map("hier") / bestand);
    script_.Box(Onverwacht("75 - Geen toegang tot het bestand of de map '" + std::string(bestand) + "'"));
    EXPECT_EQ(Start(), Vervolg::Einde) << bestand;
    fs::remove(Map("hier") / bestand);
  }
}

TEST_F(Opstart, EndsWhenTheDataDirectoryItselfIsGone) {
  fs::remove_all(Map("hier"));
  script_.Box(Onverwacht("76 - De map 'hier' is niet gevonden"));
  EXPECT_EQ(Start(), Vervolg::Einde);
}

TEST_F(Opstart, ReadsTheFilesInOrderSoThatTheFirstFailureCounts) {
  for (std::size_t eerste = 0; eerste + 1 < Bestanden.size(); ++eerste) {
    MaakMap("hier");  // the first one misses, the next is broken
    fs::remove(Map("hier") / Bestanden[eerste]);
    proef::Schrijf(Map("hier") / Bestanden[eerste + 1], "");
    script_.Box(NietGevonden).Open(ZoekVraag("hier"), std::nullopt).Box(Opstartfout(""));
    EXPECT_EQ(Start(), Vervolg::Einde) << eerste;

    MaakMap("hier");  // the other way round
    proef::Schrijf(Map("hier") / Bestanden[eerste], "");
    fs::remove(Map("hier") / Bestanden[eerste + 1]);
    script_.Box(Onverwacht("62 - Het bestand '" + std::string(Bestanden[eerste]) + "' eindigt te vroeg" +
                           (eerste == 0 ? " (regel 1)" : "")));
    EXPECT_EQ(Start(), Vervolg::Einde) << eerste;
  }
}

TEST_F(Opstart, RemembersTheProjectOfTheCommandLine) {
  const struct {
    const char* opdrachtregel;
    const char* bestand;
  } rijen[] = {
      {"", ""},
      {"/map/één project.mrv", "/map/één project.mrv"},
      {"\"/map/één project.mrv\"", "/map/één project.mrv"},
      {"/map/KANTOOR.MRV", "/map/KANTOOR.MRV"},
      {"/map/kantoor.prn", ""},  // in silence
  };
  for (const auto& rij : rijen) {
    programma_.OpenBestand = "oud.mrv";
    EXPECT_EQ(Start(rij.opdrachtregel), Vervolg::GaatDoor);
    EXPECT_EQ(programma_.OpenBestand, PadVan(rij.bestand)) << rij.opdrachtregel;
  }
}

}  // namespace
}  // namespace murvane
