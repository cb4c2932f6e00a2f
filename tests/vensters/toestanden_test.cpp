// The states of a project in the real main window: what is enabled and shown, and what a failure leaves.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QTabWidget>
#include <QToolButton>
#include <array>

#include "basis/bestand.h"
#include "project/projectfile.h"
#include "reports/rapport.h"
#include "tests/hulp/beeld.h"
#include "tests/vensters/bediening.h"

namespace murvane::proef {
namespace {

namespace fs = std::filesystem;

Melding Onverwacht(const std::string& procedureEnForm, const std::string& fout,
                   Knoppen knoppen = Knoppen::OK) {
  return {MeldingSoort::Kritiek, "MurVane",
          "Onverwachte fout in procedure " + procedureEnForm + ".\nFout " + NaarCp1252(fout) + ".", knoppen};
}
Melding OpenFout(const std::string& fout) {
  return Onverwacht("mnuOpen_Click van Form MDIMurvane", fout, Knoppen::OkCancel);
}
Melding OpslagFout(const std::string& fout) {
  return Onverwacht("OpSlag van Form frmMurvane", fout, Knoppen::OkCancel);
}
std::string GeenProjectnaam(const std::string& naam) {
  return "52 - De bestandsnaam '" + naam +
         "' is ongeldig: een projectbestand eindigt op mrv, in kleine letters";
}

class Toestanden : public Gestart {
 protected:
  void Open(const fs::path& bestand) {
    script.Open(OpenVraag(), bestand);
    toetsen->Menu({"mnuBestand", "mnuOpen"});
  }
  void Reken() { toetsen->Menu({"mnuBestand", "mnuReken"}); }
  [[nodiscard]] QString Knoppen() {
    QString uit;
    for (const char* const naam :
         {"Toolbar1_Add", "Toolbar1_Prop", "Toolbar2_Delete", "Toolbar2_Down", "Toolbar2_Up"})
      uit += Zoek<QToolButton>(naam)->isEnabled() ? '1' : '0';
    return uit;
  }
  void IsZonderProject() {
    IsAan(MenuGeenProject);
    EXPECT_EQ(Paneel(1), "Geen bestand");
    EXPECT_EQ(Paneel(3), "Geen invoer");
    EXPECT_FALSE(IsBerekendBeeld());
    EXPECT_FALSE(IsErEen("frmResultaat"));
    EXPECT_FALSE(Zoek<QTabWidget>("SSTab1")->isVisible());
    EXPECT_FALSE(Zoek<QProgressBar>("ProgressBar1")->isVisible());
  }
  void IsOpen(const QString& naam) {
    IsAan(MenuOpen);
    EXPECT_EQ(Paneel(1), naam);
    EXPECT_FALSE(IsBerekendBeeld());
    EXPECT_FALSE(IsErEen("frmResultaat"));
    EXPECT_TRUE(Zoek<QTabWidget>("SSTab1")->isVisible());
    EXPECT_FALSE(Zoek<QProgressBar>("ProgressBar1")->isVisible());
  }
  void IsBerekend(const QString& naam) {
    IsAan(MenuBerekend);
    EXPECT_EQ(Paneel(1), naam);
    EXPECT_TRUE(IsBerekendBeeld());
    EXPECT_TRUE(IsErEen("frmResultaat"));
    EXPECT_FALSE(Zoek<QProgressBar>("ProgressBar1")->isVisible());
  }
  /// Back from the result window to the project.
  void NaarProject() { toetsen->Druk(Qt::Key_Tab, Qt::ControlModifier); }

  /// From the calculated state: types in a field and takes it back.
  void WijzigEnHerstel(const QString& naam, const QString& bestand) {
    auto* const vak = Zoek<QLineEdit>(naam);
    const QString was = vak->text();
    toetsen->Naar(naam);
    IsBerekend(bestand);
    toetsen->Typ("7");
    EXPECT_EQ(vak->text(), "7");
    IsOpen(bestand);
    toetsen->Druk(Qt::Key_Escape);
    EXPECT_EQ(vak->text(), was);
    IsOpen(bestand);  // putting the text back is a change too
  }
};

class VoorbeeldToestanden : public Toestanden, public testing::WithParamInterface<const char*> {};

TEST_P(VoorbeeldToestanden, AChangeTakenBackInEachTabLeavesTheProjectAsItWas) {
  const QString naam = GetParam();
  const fs::path bron = BronData / GetParam();
  const Project project = LeesProject(bron);
  Start();
  IsZonderProject();
  Open(bron);
  IsOpen(naam);
  EXPECT_EQ(Knoppen(), "00000");
  EXPECT_EQ(Bediening::Focus(), "txtProNum");
  EXPECT_EQ(Paneel(3), QString::number(project.ElementCount) + " kanaalelementen");
  constexpr std::array<const char*, 4> Typen = {"", "Installatiegeluid", "Geluidsuitstraling", "Overspraak"};
  EXPECT_EQ(Paneel(2), Typen[static_cast<std::size_t>(project.Kop.RekenType)]);

  struct Plaats {
    const char* Tab;
    const char* Veld;
  };
  for (const Plaats& plaats : {Plaats{"Projectgegevens", "txtToelichting2"},
                               {"Ventilator", "txtLw_3"},
                               {"Kanaalelementen", "txtHoogte"},
                               {"Ruimtegegevens", "txtRDI"}}) {
    if (project.Kop.RekenType == rekentype::Overspraak && plaats.Veld == std::string_view("txtLw_3"))
      continue;
    Reken();
    IsBerekend(naam);
    NaarProject();
    toetsen->NaarTab(plaats.Tab);
    if (plaats.Veld == std::string_view("txtHoogte")) {
      toetsen->Naar("lstProject");
      if (Bediening::Focus() == "lstProject") toetsen->Druk(Qt::Key_Home);
      EXPECT_EQ(Knoppen(), "00111");
    }
    WijzigEnHerstel(plaats.Veld, naam);
  }
  const fs::path bestand = map / "opnieuw één.mrv";
  script.Opslaan(OpslaanVraag(bron), bestand);
  toetsen->Menu({"mnuBestand", "mnuOpslaan"});
  IsZonderProject();
  EXPECT_TRUE(Lees(bestand) == Lees(bron));
}
INSTANTIATE_TEST_SUITE_P(Data, VoorbeeldToestanden,
                         testing::Values("kantoor.mrv", "plafond.mrv", "overspraak.mrv"),
                         [](const auto& geval) {
                           const std::string naam = geval.param;
                           return naam.substr(0, naam.find('.'));
                         });

// ---- A fault in a run ----

TEST_F(Toestanden, AFaultOfAHostileFileEndsTheRunOnly) {
  // The insertion loss of the second element (from the catalogue) has no finite energy: 612 bytes of head,
  // one element of 588, 160 to its levels.
  std::string bytes = Lees(BronData / "kantoor.mrv");
  Zet(bytes, 612 + 588 + 160, F64(1e300));
  const fs::path bestand = map / "vijandig één.mrv";
  Schrijf(bestand, bytes);
  Start();
  Open(bestand);
  IsOpen("vijandig één.mrv");
  for (const Antwoord antwoord : {Antwoord::OK, Antwoord::Cancel}) {
    script.Box(Onverwacht("Reken van Form frmMurvane", "5 - Ongeldig argument (kanaalelement 2)"), antwoord);
    Reken();
    IsOpen("vijandig één.mrv");
    EXPECT_TRUE(PrnBytes(programma.Rapport) == PrnBytes({}));
    script.IsKlaar();  // the wait cursor is gone
  }
  script.Opslaan(OpslaanVraag(bestand), map / "weer.mrv");
  toetsen->Menu({"mnuBestand", "mnuOpslaan"});
  IsZonderProject();
  EXPECT_EQ(Lees(map / "weer.mrv").size(), bytes.size());
}

// ---- A failed save or open ----

TEST_F(Toestanden, AFailedSaveLeavesTheProjectAsItWas) {
  fs::create_directory(map / "map.mrv");
  Schrijf(map / "bestand", "x");
  const struct {
    const char* Naam;
    std::string Fout;
  } rijen[] = {
      {"zonder extensie", GeenProjectnaam("zonder extensie")},
      {"HOOFD.MRV", GeenProjectnaam("HOOFD.MRV")},
      {"weg/één.mrv", "76 - De map 'weg' is niet gevonden"},
      {"map.mrv", "75 - Geen toegang tot het bestand of de map 'map.mrv'"},
  };
  Start();
  Open(BronData / "overspraak.mrv");
  Reken();
  const auto namen = map.Namen();
  fs::path laatst = BronData / "overspraak.mrv";
  for (const auto& rij : rijen) {
    script.Opslaan(OpslaanVraag(laatst), map / rij.Naam).Box(OpslagFout(rij.Fout), Antwoord::Cancel);
    toetsen->Menu({"mnuBestand", "mnuOpslaan"});
    script.IsKlaar();
    laatst = map / rij.Naam;
    IsBerekend("overspraak.mrv");
    EXPECT_TRUE(ProjectBytes(programma.Project) == Lees(BronData / "overspraak.mrv"));
    EXPECT_EQ(map.Namen(), namen);
  }
  // OK asks again after a refused name, and writes again after anything else
  const fs::path goed = map / "later" / "goed.mrv";
  script.Opslaan(OpslaanVraag(laatst), map / "fout.txt")
      .Box(OpslagFout(GeenProjectnaam("fout.txt")))
      .Opslaan(OpslaanVraag(map / "fout.txt"), goed)
      .Box(OpslagFout("76 - De map 'later' is niet gevonden"))
      .Box(OpslagFout("76 - De map 'later' is niet gevonden"), Antwoord::OK,
           [&] { fs::create_directory(map / "later"); });
  toetsen->Menu({"mnuBestand", "mnuOpslaan"});
  IsZonderProject();
  EXPECT_TRUE(Lees(goed) == Lees(BronData / "overspraak.mrv"));
}

TEST_F(Toestanden, AFullDiskLeavesTheProjectAndTheOldFile) {
  Start();
  Open(BronData / "kantoor.mrv");
  const fs::path bestand = map / "vol één.mrv";
  Schrijf(bestand, "het oude bestand");
  {
    const Schijfgrens grens(1000);
    script.Opslaan(OpslaanVraag(BronData / "kantoor.mrv"), bestand)
        .Box(OpslagFout("61 - De schijf is vol; het bestand 'vol één.mrv' is niet geschreven"),
             Antwoord::Cancel);
    toetsen->Menu({"mnuBestand", "mnuOpslaan"});
  }
  IsOpen("kantoor.mrv");
  EXPECT_EQ(Lees(bestand), "het oude bestand");
  script.Opslaan(OpslaanVraag(bestand), bestand);
  toetsen->Menu({"mnuBestand", "mnuOpslaan"});
  EXPECT_TRUE(Lees(bestand) == Lees(BronData / "kantoor.mrv"));
}

TEST_F(Toestanden, AFailedOpenLeavesNoProject) {
  const std::string heel = Lees(BronData / "kantoor.mrv");
  Schrijf(map / "kort.mrv", heel.substr(0, heel.size() - 1));
  std::string lang = heel;
  Zet(lang, 610, I16(501));
  lang.resize(612 + 501 * 588 + 1000, '\0');
  Schrijf(map / "lang.mrv", lang);
  Schrijf(map / "GOED.MRV", heel);
  fs::create_directory(map / "map.mrv");
  const struct {
    const char* Naam;
    std::string Fout;
  } rijen[] = {
      {"weg.mrv", "53 - Het bestand 'weg.mrv' is niet gevonden"},
      {"weg/weg.mrv", "76 - De map 'weg' is niet gevonden"},
      {"map.mrv", "75 - Geen toegang tot het bestand of de map 'map.mrv'"},
      {"kort.mrv", "62 - Het bestand 'kort.mrv' eindigt te vroeg"},
      {"lang.mrv", "9 - Index buiten het bereik in het bestand 'lang.mrv'"},
      {"GOED.MRV", GeenProjectnaam("GOED.MRV")},
  };
  Start();
  fs::path laatst;
  for (const auto& rij : rijen) {
    script.Open(OpenVraag(laatst), map / rij.Naam).Box(OpenFout(rij.Fout), Antwoord::Cancel);
    toetsen->Menu({"mnuBestand", "mnuOpen"});
    script.IsKlaar();
    laatst = map / rij.Naam;
    IsZonderProject();
    EXPECT_EQ(programma.Project.ElementCount, 0);
  }
  script.Open(OpenVraag(laatst), map / "weg.mrv")
      .Box(OpenFout("53 - Het bestand 'weg.mrv' is niet gevonden"))
      .Open(OpenVraag(map / "weg.mrv"), BronData / "kantoor.mrv");
  toetsen->Menu({"mnuBestand", "mnuOpen"});
  IsOpen("kantoor.mrv");
}

TEST_F(Toestanden, ACancelledOpenLeavesNoProject) {
  Start();
  script.Open(OpenVraag(), std::nullopt);
  toetsen->Menu({"mnuBestand", "mnuOpen"});
  IsZonderProject();
}

// ---- The project of the command line ----

TEST_F(Toestanden, OpensTheProjectOfTheCommandLine) {
  fs::copy_file(BronData / "plafond.mrv", map / "één project.MRV");
  Start('"' + PadTekst(map / "één project.MRV") + '"');
  IsOpen("één project.MRV");
}

TEST_F(Toestanden, ForgetsAProjectOfTheCommandLineThatCannotBeRead) {
  script.Box(OpenFout("53 - Het bestand 'weg één.mrv' is niet gevonden"))
      .Box(OpenFout("53 - Het bestand 'weg één.mrv' is niet gevonden"), Antwoord::Cancel);
  Start(PadTekst(map / "weg één.mrv"));
  script.IsKlaar();
  IsZonderProject();
  EXPECT_TRUE(programma.OpenBestand.empty());
  Open(BronData / "plafond.mrv");  // a dialog, which proposes nothing
  IsOpen("plafond.mrv");
}

TEST_F(Toestanden, PassesOverAnotherFileOnTheCommandLineInSilence) {
  Start(PadTekst(map / "rapport.prn"));
  IsZonderProject();
}

}  // namespace
}  // namespace murvane::proef
