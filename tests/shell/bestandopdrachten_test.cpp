#include "shell/bestandopdrachten.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <memory>
#include <string>

#include "basis/bestand.h"
#include "project/projectfile.h"
#include "tests/hulp/beeld.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/ingreep.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::Aanroep;
using proef::Ingreep;
using proef::Script;

Melding Onverwacht(std::string_view procedureEnForm, std::string_view fout, Knoppen knoppen) {
  return {
      MeldingSoort::Kritiek, "MurVane",
      "Onverwachte fout in procedure " + std::string(procedureEnForm) + ".\nFout " + NaarCp1252(fout) + ".",
      knoppen};
}
// Opening and saving try again after OK, so there has to be another way out.
Melding OpenFout(std::string_view fout) {
  return Onverwacht("mnuOpen_Click van Form MDIMurvane", fout, Knoppen::OkCancel);
}
Melding OpslagFout(std::string_view fout) {
  return Onverwacht("OpSlag van Form frmMurvane", fout, Knoppen::OkCancel);
}
Melding ExitFout(std::string_view fout) {
  return Onverwacht("mnuExit_Click van Form MDIMurvane", fout, Knoppen::OK);
}

std::string VerkeerdeNaam(const std::string& naam) {
  return "52 - De bestandsnaam '" + naam + "' is ongeldig";
}
/// A name that is refused before the system is asked.
std::string GeenProjectnaam(const std::string& naam) {
  return VerkeerdeNaam(naam) + ": een projectbestand eindigt op mrv, in kleine letters";
}

const Melding SluitVraag{
    MeldingSoort::Vraag, "Bestand sluiten",
    "Wilt u het bestand sluiten zonder data-opslag van eventueel ingevoerde/gewijzigde bestandsgegevens?",
    Knoppen::OkCancel};
const Melding StopVraag{MeldingSoort::Vraag, "Programma-stop",
                        "Wilt u het programma beeindigen zonder data-opslag van eventueel "
                        "ingevoerde/gewijzigde bestandsgegevens?",
                        Knoppen::OkCancel};
const Melding AfsluitVraag{MeldingSoort::Vraag, "Programma afsluiten", "Geopend bestand eerst opslaan?",
                           Knoppen::YesNo};

/// A program with its directory and a project of one element in memory.
class Bestandopdrachten : public testing::Test {
 protected:
  Bestandopdrachten() {
    fs::create_directory(map_ / "data één");
    programma_.DataDir = map_ / "data één";
    programma_.Vandaag = "20-11-2026";
    programma_.Project = Voorbeeld("in het geheugen");
    voor_ = ProjectBytes(programma_.Project);
  }
  ~Bestandopdrachten() override { fs::current_path(vorige_); }

  static Project Voorbeeld(std::string_view naam) {
    Project project;
    project.Kop.ProNaam = naam;
    project.ElementCount = 1;
    project.Elementen[1].Lengte = 2.5;
    return project;
  }
  /// A project file; its name.
  [[nodiscard]] fs::path MaakBestand(std::string_view naam) const {
    proef::Schrijf(map_ / naam, ProjectBytes(Voorbeeld("van schijf")));
    return map_ / naam;
  }
  [[nodiscard]] BestandVraag OpenVraag(const fs::path& naam = {}) const {
    return {"Openen", "Bestand MurVane (*.mrv)|*.mrv", map_ / "data één", naam, false, true, true};
  }
  [[nodiscard]] BestandVraag OpslaanVraag(const fs::path& naam = {}) const {
    return {"Opslaan als", "Bestanden MurVane (*.mrv)|*.mrv", map_ / "data één", naam, true, false, true};
  }
  void IsOngewijzigd() const { EXPECT_EQ(ProjectBytes(programma_.Project), voor_); }
  void IsVanSchijf() const {
    EXPECT_EQ(ProjectBytes(programma_.Project), ProjectBytes(Voorbeeld("van schijf")));
  }
  OpenUitkomst Open() {
    OpenUitkomst uit = mnuOpen_Click(programma_, script_);
    script_.IsKlaar();
    return uit;
  }
  OpslagUitkomst Opslaan() {
    const OpslagUitkomst uit = OpSlag(programma_, script_);
    script_.IsKlaar();
    IsOngewijzigd();  // also a save that succeeds leaves emptying the window to the window
    return uit;
  }

  fs::path vorige_ = fs::current_path();
  proef::TijdelijkeMap map_;
  Script script_{[](const std::string& fout) { ADD_FAILURE() << fout; }};
  Programma programma_;
  std::string voor_;
};

using mnuOpen = Bestandopdrachten;

TEST_F(mnuOpen, OpensTheFileThatTheUserChooses) {
  const fs::path bestand = MaakBestand("één kantoor.mrv");
  script_.Open(OpenVraag(), bestand);
  const OpenUitkomst uit = Open();
  EXPECT_TRUE(uit.Geopend);
  EXPECT_EQ(uit.Panel1, "één kantoor.mrv");
  IsVanSchijf();
  EXPECT_EQ(script_.KeerGewacht(), 1);
  EXPECT_EQ(programma_.DialoogNaam, bestand);
}

TEST_F(mnuOpen, OpensTheFileOfTheCommandLineOnceAndWithoutADialog) {
  const fs::path bestand = MaakBestand("KANTOOR.MRV");  // capitals are refused in the dialog only
  programma_.OpenBestand = bestand;
  const OpenUitkomst uit = Open();
  EXPECT_TRUE(uit.Geopend);
  EXPECT_EQ(uit.Panel1, "KANTOOR.MRV");
  IsVanSchijf();
  EXPECT_TRUE(programma_.OpenBestand.empty());
  script_.Open(OpenVraag(bestand), std::nullopt);  // from now on the dialog
  EXPECT_FALSE(Open().Geopend);
}

TEST_F(mnuOpen, RemembersWhereARelativeNamePointsTo) {
  const fs::path bestand = MaakBestand("los.mrv");
  fs::current_path(map_.Pad());
  programma_.OpenBestand = "los.mrv";
  EXPECT_EQ(Open().Panel1, "los.mrv");
  EXPECT_TRUE(programma_.DialoogNaam.is_absolute());
  fs::current_path(vorige_);
  EXPECT_TRUE(fs::equivalent(programma_.DialoogNaam, bestand));
}

// Panel 1 was a text of the code page, in which a name of the file system need not fit.
TEST_F(mnuOpen, ShowsANameInItsOwnCharactersWhateverTheCodePage) {
  for (const char* const naam : {"Łódź.mrv", "Ω 5 m³.mrv", "<b>x&y.mrv"}) {
    programma_.DialoogNaam.clear();
    programma_.OpenBestand = MaakBestand(naam);
    EXPECT_EQ(Open().Panel1, naam);
  }
}

TEST_F(mnuOpen, CancelledLeavesNoProjectOpen) {
  script_.Open(OpenVraag(), std::nullopt);
  const OpenUitkomst uit = Open();
  EXPECT_FALSE(uit.Geopend);
  EXPECT_EQ(uit.Panel1, "");
  IsOngewijzigd();
  EXPECT_EQ(script_.KeerGewacht(), 0);
}

TEST_F(mnuOpen, WithoutANameShowsWhatIsInMemory) {
  script_.Open(OpenVraag(), "");
  const OpenUitkomst uit = Open();
  EXPECT_TRUE(uit.Geopend);
  EXPECT_EQ(uit.Panel1, "");
  IsOngewijzigd();
}

TEST_F(mnuOpen, RefusedNameGoesBackToTheDialog) {
  for (const char* naam : {"a.MRV", "a.Mrv", "a.mrv ", "a.prn", "rv", "mrv.a"}) {
    const fs::path verkeerd = MaakBestand(naam);
    const fs::path goed = MaakBestand("goed.mrv");
    programma_.DialoogNaam.clear();
    script_.Open(OpenVraag(), verkeerd).Box(OpenFout(GeenProjectnaam(naam))).Open(OpenVraag(verkeerd), goed);
    EXPECT_EQ(Open().Panel1, "goed.mrv") << naam;
    IsVanSchijf();
  }
}

TEST_F(mnuOpen, RefusedNameCanBeGivenUpInTheBoxOrInTheDialog) {
  const fs::path verkeerd = MaakBestand("a.MRV");
  script_.Open(OpenVraag(), verkeerd).Box(OpenFout(GeenProjectnaam("a.MRV")), Antwoord::Cancel);
  EXPECT_FALSE(Open().Geopend);
  script_.Open(OpenVraag(verkeerd), verkeerd)
      .Box(OpenFout(GeenProjectnaam("a.MRV")))
      .Open(OpenVraag(verkeerd), std::nullopt);
  EXPECT_FALSE(Open().Geopend);
  IsOngewijzigd();
}

TEST_F(mnuOpen, TellsWhyAFileCannotBeReadAndAsksForAnother) {
  fs::create_directory(map_ / "map.mrv");
  const std::string goed = ProjectBytes(Voorbeeld("van schijf"));
  proef::Schrijf(map_ / "kort.mrv", goed.substr(0, goed.size() - 1));
  std::string lang(612 + 501 * 588 + 274, '\0');
  proef::Zet(lang, 610, proef::I16(501));
  proef::Schrijf(map_ / "lang.mrv", lang);
  const struct {
    std::string naam, fout;
  } rijen[] = {
      {"weg één.mrv", "53 - Het bestand 'weg één.mrv' is niet gevonden"},
      {"geen map/weg.mrv", "76 - De map 'geen map' is niet gevonden"},
      {"map.mrv", "75 - Geen toegang tot het bestand of de map 'map.mrv'"},
      {"kort.mrv", "62 - Het bestand 'kort.mrv' eindigt te vroeg"},
      {"lang.mrv", "9 - Index buiten het bereik in het bestand 'lang.mrv'"},
      {std::string(300, 'x') + ".mrv", VerkeerdeNaam(std::string(300, 'x') + ".mrv")},
  };
  const fs::path bestand = MaakBestand("goed.mrv");
  for (const auto& rij : rijen) {
    const fs::path slecht = map_ / rij.naam;
    programma_.Project = Voorbeeld("in het geheugen");
    programma_.DialoogNaam.clear();
    script_.Open(OpenVraag(), slecht).Box(OpenFout(rij.fout), Antwoord::Cancel);
    EXPECT_FALSE(Open().Geopend) << rij.naam;
    IsOngewijzigd();
    script_.Open(OpenVraag(slecht), slecht).Box(OpenFout(rij.fout)).Open(OpenVraag(slecht), bestand);
    EXPECT_TRUE(Open().Geopend) << rij.naam;
    IsVanSchijf();
  }
}

TEST_F(mnuOpen, TellsOfAFileThatMayNotBeRead) {
  const fs::path bestand = MaakBestand("dicht.mrv");
  auto dicht = std::make_unique<Ingreep>([](Aanroep wat) { return wat == Aanroep::Open ? EACCES : 0; });
  script_.Open(OpenVraag(), bestand)
      .Box(OpenFout("70 - Geen toestemming voor het bestand 'dicht.mrv'"), Antwoord::OK,
           [&] { dicht.reset(); });
  script_.Open(OpenVraag(bestand), bestand);
  EXPECT_TRUE(Open().Geopend);
  IsVanSchijf();
}

TEST_F(mnuOpen, ReadsTheFileOfTheCommandLineAgainAfterOK) {
  programma_.OpenBestand = map_ / "later.mrv";
  const Melding weg = OpenFout("53 - Het bestand 'later.mrv' is niet gevonden");
  script_.Box(weg).Box(weg, Antwoord::OK, [this] { (void)MaakBestand("later.mrv"); });
  const OpenUitkomst uit = Open();
  EXPECT_TRUE(uit.Geopend);
  EXPECT_EQ(uit.Panel1, "later.mrv");
  IsVanSchijf();
  EXPECT_TRUE(programma_.OpenBestand.empty());
  EXPECT_EQ(script_.KeerGewacht(), 3);
}

TEST_F(mnuOpen, ForgetsAFileOfTheCommandLineThatIsGivenUp) {
  programma_.OpenBestand = map_ / "weg.mrv";
  script_.Box(OpenFout("53 - Het bestand 'weg.mrv' is niet gevonden"), Antwoord::Cancel);
  const OpenUitkomst uit = Open();
  EXPECT_FALSE(uit.Geopend);
  EXPECT_EQ(uit.Panel1, "");
  IsOngewijzigd();
  EXPECT_TRUE(programma_.OpenBestand.empty());
  script_.Open(OpenVraag(), std::nullopt);
  EXPECT_FALSE(Open().Geopend);
}

using OpSlagTest = Bestandopdrachten;

TEST_F(OpSlagTest, WritesTheProjectUnderTheChosenName) {
  script_.Opslaan(OpslaanVraag(), map_ / "één nieuw.mrv");
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(proef::Lees(map_ / "één nieuw.mrv").size(), 886U + 588U);  // one element, no names
  EXPECT_EQ(LeesProject(map_ / "één nieuw.mrv").Kop.ProNaam.Getrimd(), "in het geheugen");
  EXPECT_EQ(script_.KeerGewacht(), 1);
}

TEST_F(OpSlagTest, ProposesTheFileThatWasOpened) {
  const fs::path bestand = MaakBestand("kantoor.mrv");
  programma_.OpenBestand = bestand;
  EXPECT_TRUE(Open().Geopend);
  voor_ = ProjectBytes(programma_.Project);
  script_.Opslaan(OpslaanVraag(bestand), std::nullopt);
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Geannuleerd);
}

TEST_F(OpSlagTest, KeepsTheTailOfALongerFile) {
  const fs::path bestand = map_ / "lang.mrv";
  proef::Schrijf(bestand, std::string(2000, 'x'));
  script_.Opslaan(OpslaanVraag(), bestand);
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(proef::Lees(bestand), voor_ + std::string(2000 - 1474, 'x'));
}

TEST_F(OpSlagTest, CancelledChangesNothing) {
  script_.Opslaan(OpslaanVraag(), std::nullopt);
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Geannuleerd);
  EXPECT_EQ(script_.KeerGewacht(), 0);
}

TEST_F(OpSlagTest, WithoutANameClosesWithoutWriting) {
  script_.Opslaan(OpslaanVraag(), "");
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(script_.KeerGewacht(), 0);
}

TEST_F(OpSlagTest, RefusedNameGoesBackToTheDialog) {
  for (const char* naam : {"a", "a.MRV", "a.Mrv", "a.mrv ", "a.prn", "rv"}) {
    const fs::path verkeerd = map_ / naam;
    programma_.DialoogNaam.clear();
    script_.Opslaan(OpslaanVraag(), verkeerd).Box(OpslagFout(GeenProjectnaam(naam)));
    script_.Opslaan(OpslaanVraag(verkeerd), map_ / "goed.mrv");
    EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten) << naam;
    EXPECT_EQ(map_.Namen(), (std::vector<std::string>{"data één", "goed.mrv"}));
    fs::remove(map_ / "goed.mrv");
  }
}

TEST_F(OpSlagTest, RefusedNameCanBeGivenUpInTheBoxOrInTheDialog) {
  const fs::path verkeerd = map_ / "a.MRV";
  script_.Opslaan(OpslaanVraag(), verkeerd).Box(OpslagFout(GeenProjectnaam("a.MRV")), Antwoord::Cancel);
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Opgegeven);
  script_.Opslaan(OpslaanVraag(verkeerd), verkeerd).Box(OpslagFout(GeenProjectnaam("a.MRV")));
  script_.Opslaan(OpslaanVraag(verkeerd), std::nullopt);
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Geannuleerd);
  EXPECT_EQ(map_.Namen(), std::vector<std::string>{"data één"});
}

TEST_F(OpSlagTest, NameThatTheSystemRefusesGoesBackToTheDialogToo) {
  const fs::path verkeerd = map_ / (std::string(300, 'x') + ".mrv");
  script_.Opslaan(OpslaanVraag(), verkeerd).Box(OpslagFout(VerkeerdeNaam(verkeerd.filename().string())));
  script_.Opslaan(OpslaanVraag(verkeerd), map_ / "goed.mrv");
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
}

TEST_F(OpSlagTest, FailedWriteIsDoneAgainUnderTheSameName) {
  const fs::path bestand = map_ / "nieuw" / "a.mrv";
  const Melding fout = OpslagFout("76 - De map 'nieuw' is niet gevonden");
  script_.Opslaan(OpslaanVraag(), bestand).Box(fout).Box(fout, Antwoord::OK, [this] {
    fs::create_directory(map_ / "nieuw");
  });
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(proef::Lees(bestand), voor_);
  EXPECT_EQ(script_.KeerGewacht(), 3);
}

TEST_F(OpSlagTest, NameRefusedWhileWritingAgainIsAskedForAnew) {
  const fs::path bestand = map_ / "a.mrv";
  int keer = 0;
  auto schijf = std::make_unique<Ingreep>([&](Aanroep wat) {
    if (wat != Aanroep::Schrijf) return 0;
    return ++keer == 1 ? ENOSPC : EINVAL;
  });
  script_.Opslaan(OpslaanVraag(), bestand)
      .Box(OpslagFout("61 - De schijf is vol; het bestand 'a.mrv' is niet geschreven"))
      .Box(OpslagFout(VerkeerdeNaam("a.mrv")), Antwoord::OK, [&] { schijf.reset(); })
      .Opslaan(OpslaanVraag(bestand), map_ / "b.mrv");
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(map_.Namen(), (std::vector<std::string>{"b.mrv", "data één"}));
}

TEST_F(OpSlagTest, GivenUpLeavesProjectAndFileAsTheyWere) {
  const struct {
    Aanroep wat;
    int code;
    const char* fout;
  } rijen[] = {
      {Aanroep::Open, EACCES, "70 - Geen toestemming voor het bestand 'oud.mrv'"},
      {Aanroep::Schrijf, ENOSPC, "61 - De schijf is vol; het bestand 'oud.mrv' is niet geschreven"},
      {Aanroep::Leeg, EIO, "75 - Geen toegang tot het bestand of de map 'oud.mrv'"},
      {Aanroep::Hernoem, EACCES, "70 - Geen toestemming voor het bestand 'oud.mrv'"},
  };
  const fs::path bestand = map_ / "oud.mrv";
  proef::Schrijf(bestand, "oud");
  for (const auto& rij : rijen) {
    programma_.DialoogNaam.clear();
    script_.Opslaan(OpslaanVraag(), bestand).Box(OpslagFout(rij.fout), Antwoord::Cancel);
    {
      const Ingreep schijf([&](Aanroep wat) { return wat == rij.wat ? rij.code : 0; });
      EXPECT_EQ(Opslaan(), OpslagUitkomst::Opgegeven) << rij.fout;
    }
    EXPECT_EQ(proef::Lees(bestand), "oud");
    EXPECT_EQ(map_.Namen(), (std::vector<std::string>{"data één", "oud.mrv"}));
  }
}

using mnuSluiten = Bestandopdrachten;

TEST_F(mnuSluiten, AlwaysAsksAndForgetsTheFileName) {
  programma_.DialoogNaam = map_ / "a.mrv";
  for (const Antwoord nee : {Antwoord::Cancel, Antwoord::No}) {
    script_.Box(SluitVraag, nee);
    EXPECT_FALSE(mnuSluiten_Click(programma_, script_));
    EXPECT_EQ(programma_.DialoogNaam, map_ / "a.mrv");
  }
  script_.Box(SluitVraag, Antwoord::OK);
  EXPECT_TRUE(mnuSluiten_Click(programma_, script_));
  EXPECT_TRUE(programma_.DialoogNaam.empty());
  IsOngewijzigd();
}

using mnuNieuw = Bestandopdrachten;

TEST_F(mnuNieuw, TakesTheDayOfTheStartAndNoFileName) {
  programma_.DialoogNaam = map_ / "a.mrv";
  mnuNieuw_Click(programma_);
  EXPECT_EQ(programma_.Project.Kop.MyDate.Heel(), "20-11-2026");
  script_.Opslaan(OpslaanVraag(), std::nullopt);
  EXPECT_EQ(OpSlag(programma_, script_), OpslagUitkomst::Geannuleerd);
}

class mnuExit : public Bestandopdrachten {
 protected:
  mnuExit() {
    programma_.Instellingen.Druk.LettertypeNaam = "Courier New";
    programma_.Instellingen.Druk.LetterGrootte = 12;
    programma_.Instellingen.Druk.KopStijl = -1;
    proef::Schrijf(Pad(), "oud");
  }
  [[nodiscard]] fs::path Pad() const { return map_ / "data één" / "murvane.set"; }
  Vervolg Exit(bool projectOpen) {
    const Vervolg vervolg = mnuExit_Click(programma_, script_, projectOpen);
    script_.IsKlaar();
    IsOngewijzigd();
    return vervolg;
  }
  [[nodiscard]] bool InDataDir() const { return fs::equivalent(fs::current_path(), programma_.DataDir); }

  const std::string nieuw_ =
      "Courier New\r\n 12 \r\n-1 \r\n 0 \r\n 0 \r\n..Gebruikersnaam..                 "
      "\r\n..Gebruikersnaam..                 \r\n";
};

TEST_F(mnuExit, WithoutAProjectWritesTheSettingsAndEnds) {
  EXPECT_EQ(Exit(false), Vervolg::Einde);
  EXPECT_EQ(proef::Lees(Pad()), nieuw_);
  EXPECT_TRUE(InDataDir());
  EXPECT_EQ(script_.KeerGewacht(), 1);
}

TEST_F(mnuExit, AsksFirstWhenAProjectIsOpen) {
  script_.Box(StopVraag, Antwoord::Cancel);
  EXPECT_EQ(Exit(true), Vervolg::GaatDoor);
  EXPECT_EQ(proef::Lees(Pad()), "oud");
  EXPECT_FALSE(InDataDir());
  EXPECT_EQ(script_.KeerGewacht(), 0);
  script_.Box(StopVraag, Antwoord::OK);
  EXPECT_EQ(Exit(true), Vervolg::Einde);
  EXPECT_EQ(proef::Lees(Pad()), nieuw_);
  EXPECT_EQ(map_.Namen(), std::vector<std::string>{"data één"});  // no project was saved
}

TEST_F(mnuExit, EndsAlsoWhenTheDirectoryIsGone) {
  fs::remove_all(programma_.DataDir);
  for (const Antwoord antwoord : {Antwoord::OK, Antwoord::Cancel}) {
    script_.Box(ExitFout("76 - De map 'data één' is niet gevonden"), antwoord);
    EXPECT_EQ(Exit(false), Vervolg::Einde);
    EXPECT_EQ(script_.KeerGewacht(), 0);  // nothing was written elsewhere
  }
}

TEST_F(mnuExit, EndsAlsoWhenTheSettingsCannotBeWritten) {
  const struct {
    Aanroep wat;
    int code;
    const char* fout;
  } rijen[] = {
      {Aanroep::Open, EACCES, "70 - Geen toestemming voor het bestand 'murvane.set'"},
      {Aanroep::Schrijf, ENOSPC, "61 - De schijf is vol; het bestand 'murvane.set' is niet geschreven"}};
  for (const auto& rij : rijen) {
    script_.Box(ExitFout(rij.fout));
    {
      const Ingreep schijf([&](Aanroep wat) { return wat == rij.wat ? rij.code : 0; });
      EXPECT_EQ(Exit(false), Vervolg::Einde);
    }
    EXPECT_EQ(proef::Lees(Pad()), "oud");
  }
}

TEST_F(mnuExit, TellsOfADirectoryThatMayNotBeEntered) {
  const fs::path dicht = programma_.DataDir;
  fs::permissions(dicht, fs::perms::none);
  const int goed = proef::AlsGewoneGebruiker([&] {
    Melding gezien;
    struct Stil final : Dialogen {
      explicit Stil(Melding& m) : melding(m) {}
      Antwoord Toon(const Melding& m) override { return melding = m, Antwoord::OK; }
      std::string Invoer(const InvoerVraag&) override { return {}; }
      fs::path OpenDialoog(const BestandVraag&) override { return {}; }
      fs::path OpslaanDialoog(const BestandVraag&) override { return {}; }
      AfdrukKeuze AfdrukDialoog(const AfdrukVraag&) override { return {}; }
      void Wachten(bool) override {}
      Melding& melding;
    } stil(gezien);
    return mnuExit_Click(programma_, stil, false) == Vervolg::Einde &&
           GetoondeTekst(gezien) ==
               GetoondeTekst(ExitFout("70 - Geen toestemming voor het bestand 'murvane.set'"));
  });
  fs::permissions(dicht, fs::perms::all);
  EXPECT_EQ(goed, 1);
}

using FormUnload = Bestandopdrachten;

const std::function<bool()> Bewaard = [] { return true; };

TEST_F(FormUnload, WithoutAProjectEndsInTheDataDirectory) {
  EXPECT_EQ(Form_Unload(programma_, script_, false, Bewaard), Vervolg::Einde);
  EXPECT_TRUE(fs::equivalent(fs::current_path(), programma_.DataDir));
}

TEST_F(FormUnload, OffersToSaveAProject) {
  script_.Box(AfsluitVraag, Antwoord::No);
  EXPECT_EQ(Form_Unload(programma_, script_, true, Bewaard), Vervolg::Einde);
  EXPECT_TRUE(fs::equivalent(fs::current_path(), programma_.DataDir));
  EXPECT_EQ(map_.Namen(), std::vector<std::string>{"data één"});
  script_.Box(AfsluitVraag, Antwoord::Yes).Opslaan(OpslaanVraag(), map_ / "a.mrv");
  EXPECT_EQ(Form_Unload(programma_, script_, true, Bewaard), Vervolg::Einde);
  EXPECT_EQ(proef::Lees(map_ / "a.mrv"), voor_);
}

TEST_F(FormUnload, EndsAlsoWhenTheSaveIsCancelled) {
  script_.Box(AfsluitVraag, Antwoord::Yes).Opslaan(OpslaanVraag(), std::nullopt);
  EXPECT_EQ(Form_Unload(programma_, script_, true, Bewaard), Vervolg::Einde);
}

TEST_F(FormUnload, KeepsTheProjectOpenWhenAFailedSaveIsGivenUp) {
  script_.Box(AfsluitVraag, Antwoord::Yes)
      .Opslaan(OpslaanVraag(), map_ / "weg" / "a.mrv")
      .Box(OpslagFout("76 - De map 'weg' is niet gevonden"), Antwoord::Cancel);
  EXPECT_EQ(Form_Unload(programma_, script_, true, Bewaard), Vervolg::GaatDoor);
  IsOngewijzigd();
}

TEST_F(FormUnload, AnInvalidFieldHoldsOffTheSaveOnly) {
  int gevraagd = 0;
  const auto rood = [&] { return ++gevraagd, false; };
  script_.Box(AfsluitVraag, Antwoord::No);
  EXPECT_EQ(Form_Unload(programma_, script_, true, rood), Vervolg::Einde);
  EXPECT_EQ(gevraagd, 0);
  script_.Box(AfsluitVraag, Antwoord::Yes);
  EXPECT_EQ(Form_Unload(programma_, script_, true, rood), Vervolg::GaatDoor);
  EXPECT_EQ(gevraagd, 1);
  IsOngewijzigd();
}

TEST_F(FormUnload, AsksAlsoWhenTheDataDirectoryIsGone) {
  fs::remove_all(programma_.DataDir);
  script_.Box(AfsluitVraag, Antwoord::No);
  EXPECT_EQ(Form_Unload(programma_, script_, true, Bewaard), Vervolg::Einde);
}

class mnuGebruiker : public Bestandopdrachten {
 protected:
  void Vraag(const std::string& huidig, const std::string& antwoord) {
    script_.InvoerBox(
        {"Instelling gebruikersnaam",
         "Huidige instelling gebruikersnaam: \n" + huidig + "\n\nVoer nieuwe gebruikersnaam in", huidig},
        antwoord);
    mnuGebruiker_Click(programma_, script_);
    script_.IsKlaar();
  }
  [[nodiscard]] std::string_view Naam() const { return programma_.Instellingen.Gebruikersnaam.Getrimd(); }
  [[nodiscard]] std::string_view Label() const { return programma_.Instellingen.GebruikerLabel.Getrimd(); }
};

TEST_F(mnuGebruiker, AsksWithTheNameThatStands) {
  Vraag("..Gebruikersnaam..", "  Jansen & Zn  ");
  EXPECT_EQ(Naam(), "Jansen & Zn");
  EXPECT_EQ(Label(), "Jansen && Zn");
  std::string met36(36, 'x');
  met36[0] = '\xC9';  // one byte a character
  Vraag("Jansen & Zn", met36);
  EXPECT_EQ(Naam(), met36.substr(0, 35));
  EXPECT_EQ(Label(), Naam());
}

TEST_F(mnuGebruiker, CancelledKeepsTheName) {
  programma_.Instellingen.Gebruikersnaam = "A & B";
  programma_.Instellingen.GebruikerLabel = "eigen label";
  Vraag("A & B", "");
  EXPECT_EQ(Naam(), "A & B");
  EXPECT_EQ(Label(), "eigen label");
}

TEST_F(mnuGebruiker, ShowsANameThatWasNeverAssignedAsNothing) {
  programma_.Instellingen.Gebruikersnaam = Tekst<35>{};
  Vraag("", "Nieuw");
  EXPECT_EQ(Naam(), "Nieuw");
}

}  // namespace
}  // namespace murvane
