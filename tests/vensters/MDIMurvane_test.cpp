#include "shell/MDIMurvane.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QTest>
#include <QTextEdit>
#include <numeric>

#include "basis/vensters_hulp.h"
#include "editor/frmMurvane.h"
#include "project/projectfile.h"
#include "reports/frmResultaat.h"
#include "shell/run.h"
#include "shell/vensters_toepassing.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

const std::filesystem::path Data = std::filesystem::path(MURVANE_BRON) / "data";

const Melding VraagSluiten{
    MeldingSoort::Vraag, "Bestand sluiten",
    "Wilt u het bestand sluiten zonder data-opslag van eventueel ingevoerde/gewijzigde "
    "bestandsgegevens?",
    Knoppen::OkCancel};
const Melding VraagOpslaan{MeldingSoort::Vraag, "Programma afsluiten", "Geopend bestand eerst opslaan?",
                           Knoppen::YesNo};

/// The main window with the program's own catalogues; DataDir is a directory of the test.
class Hoofdvenster : public testing::Test {
 protected:
  Hoofdvenster() : script([](const std::string& fout) { ADD_FAILURE() << fout; }) {
    programma.Catalogi = LeesCatalogi(Data);
    programma.DataDir = map.Pad();
    programma.Vandaag = std::string_view("20-11-2026");
    programma.Instellingen.Gebruikersnaam = std::string_view("Proefbureau");
    venster = std::make_unique<MDIMurvane>(programma, script);
    venster->resize(1024, 740);
    venster->show();
  }

  QAction* Actie(const char* naam) {
    auto* actie = venster->findChild<QAction*>(naam);
    if (actie == nullptr) throw std::runtime_error(std::string("geen ") + naam);
    return actie;
  }
  void Kies(const char* naam) { Actie(naam)->trigger(); }
  QString Paneel(int nummer) {
    return venster->findChild<QLabel*>("StatusBar1_" + QString::number(nummer))->text();
  }
  void Open(const char* naam) {
    programma.OpenBestand = Data / naam;
    venster->OpenVanOpdrachtregel();
  }
  frmMurvane* ProjectVenster() { return venster->findChild<frmMurvane*>("frmMurvane"); }
  frmResultaat* Resultaat() { return venster->findChild<frmResultaat*>("frmResultaat"); }

  std::vector<std::string> Aan() {
    std::vector<std::string> uit;
    for (const char* naam :
         {"mnuNieuw", "mnuOpen", "mnuReken", "mnuPreview", "mnuSluiten", "mnuOpslaan", "mnuExit"}) {
      if (Actie(naam)->isEnabled()) uit.emplace_back(naam);
    }
    return uit;
  }

  proef::TijdelijkeMap map;
  proef::Script script;
  Programma programma;
  std::unique_ptr<MDIMurvane> venster;
};

using Namen = std::vector<std::string>;
const Namen GeenProject = {"mnuNieuw", "mnuOpen", "mnuExit"};
const Namen NietBerekend = {"mnuReken", "mnuSluiten", "mnuOpslaan", "mnuExit"};
const Namen WelBerekend = {"mnuPreview", "mnuSluiten", "mnuOpslaan", "mnuExit"};

QStringList Opschriften(const QMenu* menu) {
  QStringList uit;
  for (const QAction* actie : menu->actions()) {
    if (!actie->isSeparator()) uit << actie->text();
  }
  return uit;
}

TEST_F(Hoofdvenster, HasTheMenusInTheirOrder) {
  QStringList balk;
  for (const QAction* actie : venster->menuBar()->actions()) balk << actie->text();
  EXPECT_EQ(balk, (QStringList{"Berekening", "Lijsten", "Instellingen", "Venster", "Help"}));
  EXPECT_EQ(Opschriften(venster->findChild<QMenu*>("mnuBestand")),
            (QStringList{"Berekening..", "&Nieuw", "&Openen", "S&tart berekening", "Berekenin&gsresultaten",
                         "&Sluiten", "O&pslaan", "&Afdrukken", "&Exit"}));
  EXPECT_EQ(Opschriften(venster->findChild<QMenu*>("mnuBeheer")),
            (QStringList{"Lijsten..", "&Kanaalelementen", "&Ventilatoren", "&Luchtkanalen", "Pla&fonds"}));
  EXPECT_EQ(Opschriften(venster->findChild<QMenu*>("mnuInstel")),
            (QStringList{"Instelling..", "Lettert&ype", "Gebruike&rsnaam", "Type berekening"}));
  EXPECT_EQ(
      Opschriften(venster->findChild<QMenu*>("mnuTypReken")),
      (QStringList{"Installatiegeluid (roosters)", "Geluidsuitstraling (kanalen)", "Overspraak (roosters)"}));
  EXPECT_EQ(Opschriften(venster->findChild<QMenu*>("mnuHelp")),
            (QStringList{"Info..", "&Calculator", "&Help", "&Info over MurVane"}));
  EXPECT_FALSE(Actie("mnuBestandSB")->isEnabled());
}

TEST_F(Hoofdvenster, StartsWithoutAProject) {
  EXPECT_TRUE(venster->windowTitle().startsWith("MurVane"));
  EXPECT_EQ(Aan(), GeenProject);
  EXPECT_EQ(Paneel(1), "Geen bestand");
  EXPECT_EQ(Paneel(2), "Installatiegeluid");
  EXPECT_EQ(Paneel(3), "Geen invoer");
  EXPECT_TRUE(Actie("mnuVent")->isChecked());
  EXPECT_GE(venster->minimumWidth(), 640);
  EXPECT_GE(venster->minimumHeight(), 480);
}

TEST_F(Hoofdvenster, ANewProjectHasTodayAsItsDate) {
  Kies("mnuNieuw");
  EXPECT_EQ(Aan(), NietBerekend);
  EXPECT_EQ(Paneel(1), "Naamloos");
  EXPECT_EQ(Paneel(3), "0 kanaalelementen");
  EXPECT_EQ(ProjectVenster()->findChild<QLineEdit*>("txtMyDate")->text(), "20-11-2026");
}

TEST_F(Hoofdvenster, OpensTheProjectOfTheCommandLineOnce) {
  Open("kantoor.mrv");
  EXPECT_EQ(Aan(), NietBerekend);
  EXPECT_EQ(Paneel(1), "kantoor.mrv");
  EXPECT_EQ(Paneel(3), "16 kanaalelementen");
  EXPECT_TRUE(programma.OpenBestand.empty());
  EXPECT_FALSE(Actie("mnuAfdrukken")->isEnabled());
}

class Voorbeelden : public Hoofdvenster, public testing::WithParamInterface<const char*> {};

// The window's fields and those without a window are the same, so the reports are too.
TEST_P(Voorbeelden, GivesTheReportThatARunWithoutAWindowGives) {
  Open(GetParam());
  Kies("mnuReken");
  Project project = LeesProject(Data / GetParam());
  Resultaten resultaten;
  Rapport rapport;
  ASSERT_FALSE(VoerUit(project, InvoerVan(project, ','), programma.Instellingen.Gebruikersnaam, ',',
                       resultaten, rapport));
  EXPECT_EQ(PrnBytes(programma.Rapport), PrnBytes(rapport));
  EXPECT_EQ(ProjectBytes(programma.Project), ProjectBytes(project));
  EXPECT_EQ(Aan(), WelBerekend);
  ASSERT_NE(Resultaat(), nullptr);
  const QString tekst = Resultaat()->findChild<QTextEdit*>("RichTextBox1")->toPlainText();
  EXPECT_EQ(tekst, VanCp(rapport.RapProject + rapport.RapRuimte + rapport.RapHoofd + rapport.RapElementen +
                         rapport.RapResultaat)
                       .remove('\r'));
}
INSTANTIATE_TEST_SUITE_P(Data, Voorbeelden, testing::Values("kantoor.mrv", "plafond.mrv", "overspraak.mrv"));

TEST_F(Hoofdvenster, AChangeClosesTheResultWindowAndTheProjectCanBeCalculatedAgain) {
  Open("kantoor.mrv");
  Kies("mnuReken");
  ASSERT_NE(Resultaat(), nullptr);
  ProjectVenster()->findChild<QLineEdit*>("txtProNaam")->setText("Ander kantoor");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Resultaat(), nullptr);
  EXPECT_EQ(Aan(), NietBerekend);
}

TEST_F(Hoofdvenster, BringsAClosedResultWindowBack) {
  Open("kantoor.mrv");
  Kies("mnuReken");
  Resultaat()->parentWidget()->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  ASSERT_EQ(Resultaat(), nullptr);
  Kies("mnuPreview");
  ASSERT_NE(Resultaat(), nullptr);
  EXPECT_EQ(venster->findChild<QMdiArea*>()->activeSubWindow()->widget(), Resultaat());
}

TEST_F(Hoofdvenster, ARefusedRunShowsItsMessageAndLeavesTheProjectOpen) {
  Open("kantoor.mrv");
  programma.Project.ElementCount = 0;
  ProjectVenster()->ToonProject(true);
  script.Box({MeldingSoort::Uitroep, "Waarschuwing", "Geen kanaalelementen ingevoerd", Knoppen::OK});
  Kies("mnuReken");
  EXPECT_EQ(Resultaat(), nullptr);
  EXPECT_EQ(Aan(), NietBerekend);
}

TEST_F(Hoofdvenster, AFaultInARunIsToldAndLeavesTheProjectOpen) {
  Open("kantoor.mrv");
  programma.Project.Elementen[2].demp[0] = 1e300;
  script.Box({MeldingSoort::Kritiek, "MurVane",
              "Onverwachte fout in procedure Reken van Form frmMurvane.\nFout 5 - Ongeldig argument "
              "(kanaalelement 2).",
              Knoppen::OK});
  Kies("mnuReken");
  EXPECT_EQ(Resultaat(), nullptr);
  EXPECT_EQ(Aan(), NietBerekend);
  EXPECT_EQ(Paneel(1), "kantoor.mrv");
}

TEST_F(Hoofdvenster, TheProgressBarCountsTheElements) {
  Open("kantoor.mrv");
  auto* balk = venster->findChild<QProgressBar*>("ProgressBar1");
  std::vector<int> standen;
  QObject::connect(balk, &QProgressBar::valueChanged, balk, [&](int stand) {
    if (stand <= 0) return;
    EXPECT_TRUE(balk->isVisible());
    EXPECT_EQ(balk->maximum(), programma.Project.ElementCount);
    standen.push_back(stand);
  });
  Kies("mnuReken");
  std::vector<int> alle(static_cast<std::size_t>(programma.Project.ElementCount));
  std::iota(alle.begin(), alle.end(), 1);
  EXPECT_EQ(standen, alle);
  EXPECT_FALSE(balk->isVisible());
}

TEST_F(Hoofdvenster, ARedFieldHoldsOffASaveUntilItIsRight) {
  Open("kantoor.mrv");
  auto* veld = venster->findChild<QLineEdit*>("txtMyDate");
  veld->setFocus();
  QTest::keyClicks(veld, "31-02-2026");
  Kies("mnuOpslaan");  // an unexpected dialog fails the test
  QCoreApplication::processEvents();
  EXPECT_EQ(Paneel(1), "kantoor.mrv");
  EXPECT_EQ(veld->toolTip(), "Voer geldige datum in (dd-mm-yyyy)");
  EXPECT_FALSE(venster->close());
  EXPECT_TRUE(venster->isVisible());
  QCoreApplication::processEvents();
  QTest::keyClick(veld, Qt::Key_Escape);
  script.Opslaan({"Opslaan als", "Bestanden MurVane (*.mrv)|*.mrv", programma.DataDir, Data / "kantoor.mrv",
                  true, false, true},
                 map.Pad() / "bewaard é.mrv");
  Kies("mnuOpslaan");
  EXPECT_EQ(ProjectBytes(LeesProject(map.Pad() / "bewaard é.mrv")),
            ProjectBytes(LeesProject(Data / "kantoor.mrv")));
}

/// A window whose event fails in a way that no handler foresees.
class Kapot : public QObject {
 public:
  bool event(QEvent* gebeurtenis) override {
    if (gebeurtenis->type() != QEvent::User) return QObject::event(gebeurtenis);
    throw Fout(FoutNummer::IndexBuitenBereik);
  }
};

TEST_F(Hoofdvenster, AFailureThatReachesTheEventLoopIsToldAndTheProjectStaysOpen) {
  Open("kantoor.mrv");
  auto& toepassing = dynamic_cast<Toepassing&>(*QCoreApplication::instance());
  toepassing.ZetDialogen(&script);
  script.Box({MeldingSoort::Kritiek, "MurVane",
              "Onverwachte fout in procedure notify van Form MDIMurvane.\nFout 9 - Index buiten het bereik.",
              Knoppen::OK});
  Kapot kapot;
  QCoreApplication::postEvent(&kapot, new QEvent(QEvent::User));
  QCoreApplication::processEvents();
  toepassing.ZetDialogen(nullptr);
  EXPECT_EQ(Paneel(1), "kantoor.mrv");
  EXPECT_EQ(Aan(), NietBerekend);
}

TEST_F(Hoofdvenster, ClosingAsksFirst) {
  Open("kantoor.mrv");
  script.Box(VraagSluiten, Antwoord::Cancel);
  Kies("mnuSluiten");
  EXPECT_EQ(Paneel(1), "kantoor.mrv");
  script.Box(VraagSluiten, Antwoord::OK);
  Kies("mnuSluiten");
  EXPECT_EQ(Aan(), GeenProject);
  EXPECT_EQ(Paneel(1), "Geen bestand");
  EXPECT_EQ(Paneel(3), "Geen invoer");
  EXPECT_EQ(programma.Project.ElementCount, 0);
}

TEST_F(Hoofdvenster, SavingWritesTheFileAndLeavesNoProject) {
  Open("overspraak.mrv");
  const BestandVraag vraag{"Opslaan als",
                           "Bestanden MurVane (*.mrv)|*.mrv",
                           programma.DataDir,
                           Data / "overspraak.mrv",
                           true,
                           false,
                           true};
  const std::filesystem::path doel = map.Pad() / "bewaard é.mrv";
  script.Opslaan(vraag, doel);
  Kies("mnuOpslaan");
  EXPECT_EQ(Aan(), GeenProject);
  EXPECT_EQ(ProjectBytes(LeesProject(doel)), ProjectBytes(LeesProject(Data / "overspraak.mrv")));
}

TEST_F(Hoofdvenster, ACancelledSaveLeavesTheProjectOpen) {
  Open("overspraak.mrv");
  script.Opslaan({"Opslaan als", "Bestanden MurVane (*.mrv)|*.mrv", programma.DataDir,
                  Data / "overspraak.mrv", true, false, true},
                 std::nullopt);
  Kies("mnuOpslaan");
  EXPECT_EQ(Paneel(1), "overspraak.mrv");
}

TEST_F(Hoofdvenster, SwitchesTheCalculationType) {
  Kies("mnuOverspraak");
  EXPECT_EQ(Paneel(2), "Overspraak");
  EXPECT_TRUE(Actie("mnuOverspraak")->isChecked());
  EXPECT_FALSE(Actie("mnuVent")->isChecked());
  EXPECT_EQ(Aan(), GeenProject);
  Kies("mnuUitstraling");
  EXPECT_EQ(Paneel(2), "Geluidsuitstraling");
  EXPECT_EQ(programma.Project.Kop.RekenType, rekentype::Geluidsuitstraling);
}

TEST_F(Hoofdvenster, ClosingTheWindowOffersToSave) {
  Open("kantoor.mrv");
  script.Box(VraagOpslaan, Antwoord::No);
  const std::filesystem::path hier = std::filesystem::current_path();
  EXPECT_TRUE(venster->close());
  std::filesystem::current_path(hier);
}

TEST_F(Hoofdvenster, ExitAsksWhenAProjectIsOpenAndWritesTheSettings) {
  const std::filesystem::path hier = std::filesystem::current_path();
  Open("kantoor.mrv");
  const Melding vraag{
      MeldingSoort::Vraag, "Programma-stop",
      "Wilt u het programma beeindigen zonder data-opslag van eventueel ingevoerde/gewijzigde "
      "bestandsgegevens?",
      Knoppen::OkCancel};
  script.Box(vraag, Antwoord::Cancel);
  Kies("mnuExit");
  EXPECT_TRUE(venster->isVisible());
  script.Box(vraag, Antwoord::OK);
  Kies("mnuExit");
  EXPECT_FALSE(venster->isVisible());
  std::filesystem::current_path(hier);
  EXPECT_EQ(LeesInstellingen(map.Pad() / "murvane.set").Gebruikersnaam, Tekst<35>("Proefbureau"));
}

}  // namespace
}  // namespace murvane
