// The program and another process that changes the same files.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <functional>
#include <string>

#include "basis/bestand.h"
#include "catalogue/catjson.h"
#include "catalogue/onderhoud.h"
#include "project/projectfile.h"
#include "project/projectjson.h"
#include "shell/bestandopdrachten.h"
#include "shell/opstart.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/proces.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::Lees;
using proef::Proces;
using proef::Schrijf;
using proef::Script;

/// What is known of a file by which it can be told from one that was written anew.
std::pair<ino_t, std::int64_t> Spoor(const fs::path& pad) {
  struct stat is {};
  EXPECT_EQ(::stat(pad.c_str(), &is), 0);
  return {is.st_ino, is.st_mtim.tv_nsec};
}

/// A program that has read its settings and catalogues.
class TweeProgrammas : public testing::Test {
 protected:
  TweeProgrammas() {
    SchrijfInstellingen({}, map / "murvane.set");
    SchrijfCatalogus(ElementCatalogus{.Aantal = 11}, map / "Duct.dat");
    for (const char* naam : {"Fan.dat", "Rduct.dat", "Rplaf.dat"})
      SchrijfCatalogus(Catalogus({"een", "twee"}), map / naam);
    EXPECT_EQ(MDIForm_Load(programma, script, {map.Pad(), DatumVeld("20-11-2026"), {}, ','}),
              Vervolg::GaatDoor);
  }
  ~TweeProgrammas() override { fs::current_path(vorige); }

  static SpectrumCatalogus Catalogus(std::initializer_list<const char*> namen) {
    SpectrumCatalogus uit;
    for (const char* naam : namen) uit.Records[static_cast<std::size_t>(++uit.Aantal)].SpecNaam = naam;
    return uit;
  }
  static Project EenProject(std::string_view naam) {
    Project project;
    project.Kop.ProNaam = naam;
    return project;
  }
  /// The command line of a process of its own; it has to succeed.
  void AnderProgramma(std::vector<std::string> argumenten) const {
    EXPECT_EQ(Proces("murvane-cli", std::move(argumenten), map / "fouten").Wacht(), 0)
        << Lees(map / "fouten");
    fs::remove(map / "fouten");
  }
  void AndersFans(const SpectrumCatalogus& fans) const {
    Schrijf(map / "fans.json", CatalogusNaarJson({CatalogusSoort::Ventilatoren, fans}));
    AnderProgramma({"catalogus", "maak", PadTekst(map / "fans.json"), "-o", PadTekst(Fans())});
  }
  void AndersProject(const Project& project) const {
    Schrijf(map / "p.json", ProjectNaarJson(project));
    AnderProgramma({"maak", PadTekst(map / "p.json"), "-o", PadTekst(Kantoor())});
  }
  [[nodiscard]] fs::path Fans() const { return map / "Fan.dat"; }
  [[nodiscard]] fs::path Kantoor() const { return map / "kantoor.mrv"; }

  bool Sluit() {
    const bool dicht =
        cmdSluiten_Click(Form_Load(CatalogusSoort::Ventilatoren), programma.Catalogi, map.Pad(), script);
    script.IsKlaar();
    return dicht;
  }
  /// Writes the project to disk and opens it.
  void OpenKantoor(std::string_view naam) {
    SchrijfProject(EenProject(naam), Kantoor());
    programma.OpenBestand = Kantoor();
    EXPECT_TRUE(mnuOpen_Click(programma, script).Geopend);
  }
  OpslagUitkomst Opslaan() {
    const OpslagUitkomst uit = OpSlag(programma, script);
    script.IsKlaar();
    return uit;
  }
  [[nodiscard]] BestandVraag OpslaanVraag() const {
    return {"Opslaan als", "Bestanden MurVane (*.mrv)|*.mrv", map.Pad(), Kantoor(), true, false, true};
  }
  /// Another process of this program leaves its own settings.
  void AndersInstellingen(std::string_view naam) const {
    Instellingen hun;
    ZetGebruikersnaam(hun, naam);
    const pid_t kind = ::fork();
    if (kind == 0) {
      SchrijfInstellingen(hun, map / "murvane.set");
      ::_exit(0);
    }
    int status = -1;
    ::waitpid(kind, &status, 0);
    EXPECT_EQ(status, 0);
  }
  Vervolg Exit() {
    const Vervolg vervolg = mnuExit_Click(programma, script, false);
    script.IsKlaar();
    return vervolg;
  }
  [[nodiscard]] std::string NaamOpSchijf() const {
    return std::string(LeesInstellingen(map / "murvane.set").Gebruikersnaam.Getrimd());
  }

  fs::path vorige = fs::current_path();
  proef::TijdelijkeMap map;
  Script script{[](const std::string& fout) { ADD_FAILURE() << fout; }};
  Programma programma;
};

// A catalogue.

TEST_F(TweeProgrammas, AnUnchangedCatalogueIsNotWrittenAtAll) {
  const auto spoor = Spoor(Fans());
  EXPECT_TRUE(Sluit());
  EXPECT_EQ(Spoor(Fans()), spoor);
}

TEST_F(TweeProgrammas, ACatalogueThatTheyMadeTheSameIsLeftAlone) {
  programma.Catalogi.CatFans.Records[2].SpecNaam = "ons";
  AndersFans(Catalogus({"een", "ons"}));
  const auto spoor = Spoor(Fans());
  EXPECT_TRUE(Sluit());
  EXPECT_EQ(Spoor(Fans()), spoor);
}

TEST_F(TweeProgrammas, ACatalogueThatOnlyTheyChangedIsTakenOver) {
  AndersFans(Catalogus({"een", "hun", "drie"}));
  const std::string hun = Lees(Fans());
  EXPECT_TRUE(Sluit());
  EXPECT_EQ(Lees(Fans()), hun);
  EXPECT_EQ(CatalogusBytes(programma.Catalogi.CatFans), hun);
  programma.Catalogi.CatFans.Records[1].SpecNaam = "ons";  // what was taken over counts as read
  EXPECT_TRUE(Sluit());
  EXPECT_EQ(Lees(Fans()), CatalogusBytes(programma.Catalogi.CatFans));
}

TEST_F(TweeProgrammas, ACatalogueThatBothChangedIsAskedAbout) {
  programma.Catalogi.CatFans.Records[2].SpecNaam = "ons";
  const std::string ons = CatalogusBytes(programma.Catalogi.CatFans);
  AndersFans(Catalogus({"een", "hun", "drie"}));
  const std::string hun = Lees(Fans());
  script.Box(GewijzigdVraag(Fans(), false), Antwoord::Cancel);
  EXPECT_FALSE(Sluit());
  EXPECT_EQ(Lees(Fans()), hun);
  EXPECT_EQ(CatalogusBytes(programma.Catalogi.CatFans), ons);
  script.Box(GewijzigdVraag(Fans(), false), Antwoord::Overschrijven);
  EXPECT_TRUE(Sluit());
  EXPECT_EQ(Lees(Fans()), ons + hun.substr(ons.size()));
  EXPECT_TRUE(Sluit());  // it is ours now
}

TEST_F(TweeProgrammas, ACatalogueThatTheyDamagedIsToldAndOursKept) {
  const std::string ons = CatalogusBytes(programma.Catalogi.CatFans);
  Schrijf(Fans(), "\3");
  script.Box(
      {MeldingSoort::Kritiek, "MurVane",
       "Onverwachte fout in procedure cmdSluiten_Click van Form frmDuct.\nFout 62 - Het bestand 'Fan.dat' "
       "eindigt te vroeg."});
  EXPECT_FALSE(Sluit());
  EXPECT_EQ(CatalogusBytes(programma.Catalogi.CatFans), ons);
  programma.Catalogi.CatFans.Records[2].SpecNaam = "ons";
  script.Box(GewijzigdVraag(Fans(), false), Antwoord::Overschrijven);
  EXPECT_TRUE(Sluit());
  EXPECT_EQ(Lees(Fans()), CatalogusBytes(programma.Catalogi.CatFans));
}

// A project.

TEST_F(TweeProgrammas, AProjectThatTheyMadeTheSameIsLeftAlone) {
  OpenKantoor("toen");
  programma.Project.Kop.ProNaam = "ons";
  AndersProject(EenProject("ons"));
  const auto spoor = Spoor(Kantoor());
  script.Opslaan(OpslaanVraag(), Kantoor());
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(Spoor(Kantoor()), spoor);
}

TEST_F(TweeProgrammas, AProjectThatOnlyTheyChangedStaysTheirs) {
  OpenKantoor("toen");
  AndersProject(EenProject("hun"));
  script.Opslaan(OpslaanVraag(), Kantoor());
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(LeesProject(Kantoor()).Kop.ProNaam.Getrimd(), "hun");
}

TEST_F(TweeProgrammas, AProjectThatBothChangedIsAskedAbout) {
  OpenKantoor("toen");
  programma.Project.Kop.ProNaam = "ons";
  AndersProject(EenProject("hun"));
  script.Opslaan(OpslaanVraag(), Kantoor()).Box(GewijzigdVraag(Kantoor(), true), Antwoord::Cancel);
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Opgegeven);
  EXPECT_EQ(programma.Project.Kop.ProNaam.Getrimd(), "ons");
  EXPECT_EQ(LeesProject(Kantoor()).Kop.ProNaam.Getrimd(), "hun");
  script.Opslaan(OpslaanVraag(), Kantoor()).Box(GewijzigdVraag(Kantoor(), true), Antwoord::Overschrijven);
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(LeesProject(Kantoor()).Kop.ProNaam.Getrimd(), "ons");
}

TEST_F(TweeProgrammas, AProjectThatBothChangedCanHaveAnotherName) {
  OpenKantoor("toen");
  programma.Project.Kop.ProNaam = "ons";
  AndersProject(EenProject("hun"));
  script.Opslaan(OpslaanVraag(), Kantoor()).Box(GewijzigdVraag(Kantoor(), true), Antwoord::Anders);
  script.Opslaan(OpslaanVraag(), map / "ander.mrv");
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(LeesProject(map / "ander.mrv").Kop.ProNaam.Getrimd(), "ons");
  EXPECT_EQ(LeesProject(Kantoor()).Kop.ProNaam.Getrimd(), "hun");
}

TEST_F(TweeProgrammas, TheOtherNameCanBeGivenUp) {
  OpenKantoor("toen");
  programma.Project.Kop.ProNaam = "ons";
  AndersProject(EenProject("hun"));
  script.Opslaan(OpslaanVraag(), Kantoor()).Box(GewijzigdVraag(Kantoor(), true), Antwoord::Anders);
  script.Opslaan(OpslaanVraag(), std::nullopt);
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Geannuleerd);
  EXPECT_EQ(LeesProject(Kantoor()).Kop.ProNaam.Getrimd(), "hun");
}

TEST_F(TweeProgrammas, OnlyTheFileThatTheProjectCameFromIsAskedAbout) {
  OpenKantoor("toen");
  programma.Project.Kop.ProNaam = "ons";
  SchrijfProject(EenProject("een ander"), map / "ander.mrv");  // the dialog asked whether to overwrite it
  script.Opslaan(OpslaanVraag(), map / "ander.mrv");
  EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
  EXPECT_EQ(LeesProject(map / "ander.mrv").Kop.ProNaam.Getrimd(), "ons");
}

TEST_F(TweeProgrammas, WhatWasReadOfAProjectIsForgottenWithIt) {
  const std::function<void()> wegen[] = {
      [this] { mnuNieuw_Click(programma); },
      [this] {
        script.Box({MeldingSoort::Vraag, "Bestand sluiten",
                    "Wilt u het bestand sluiten zonder data-opslag van eventueel ingevoerde/gewijzigde "
                    "bestandsgegevens?",
                    Knoppen::OkCancel});
        EXPECT_TRUE(mnuSluiten_Click(programma, script));
      },
      [this] {
        script.Opslaan(OpslaanVraag(), Kantoor());
        EXPECT_EQ(Opslaan(), OpslagUitkomst::Gesloten);
      },
  };
  for (const auto& weg : wegen) {
    OpenKantoor("toen");
    EXPECT_TRUE(programma.VanSchijf.has_value());
    weg();
    EXPECT_FALSE(programma.VanSchijf.has_value());
  }
}

TEST_F(TweeProgrammas, ClosingTheProgramKeepsAProjectThatWasNotOverwritten) {
  OpenKantoor("toen");
  programma.Project.Kop.ProNaam = "ons";
  AndersProject(EenProject("hun"));
  script.Box({MeldingSoort::Vraag, "Programma afsluiten", "Geopend bestand eerst opslaan?", Knoppen::YesNo},
             Antwoord::Yes);
  script.Opslaan(OpslaanVraag(), Kantoor()).Box(GewijzigdVraag(Kantoor(), true), Antwoord::Cancel);
  EXPECT_EQ(Form_Unload(programma, script, true, [] { return true; }), Vervolg::GaatDoor);
}

// The settings.

TEST_F(TweeProgrammas, UnchangedSettingsAreNotWrittenAtAll) {
  const auto spoor = Spoor(map / "murvane.set");
  EXPECT_EQ(Exit(), Vervolg::Einde);
  EXPECT_EQ(Spoor(map / "murvane.set"), spoor);
}

TEST_F(TweeProgrammas, SettingsThatTheyMadeTheSameAreLeftAlone) {
  ZetGebruikersnaam(programma.Instellingen, "wij");
  AndersInstellingen("wij");
  const auto spoor = Spoor(map / "murvane.set");
  EXPECT_EQ(Exit(), Vervolg::Einde);
  EXPECT_EQ(Spoor(map / "murvane.set"), spoor);
}

TEST_F(TweeProgrammas, SettingsThatOnlyTheyChangedStayTheirs) {
  AndersInstellingen("zij");
  EXPECT_EQ(Exit(), Vervolg::Einde);
  EXPECT_EQ(NaamOpSchijf(), "zij");
}

TEST_F(TweeProgrammas, SettingsThatBothChangedAreAskedAbout) {
  ZetGebruikersnaam(programma.Instellingen, "wij");
  AndersInstellingen("zij");
  script.Box(GewijzigdVraag(map / "murvane.set", false), Antwoord::Cancel);
  EXPECT_EQ(Exit(), Vervolg::GaatDoor);
  EXPECT_EQ(NaamOpSchijf(), "zij");
  script.Box(GewijzigdVraag(map / "murvane.set", false), Antwoord::Overschrijven);
  EXPECT_EQ(Exit(), Vervolg::Einde);
  EXPECT_EQ(NaamOpSchijf(), "wij");
}

}  // namespace
}  // namespace murvane
