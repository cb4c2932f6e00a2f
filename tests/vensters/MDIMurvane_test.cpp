#include "shell/MDIMurvane.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <limits>
#include <numeric>

#include "basis/vensters_hulp.h"
#include "editor/frmMurvane.h"
#include "project/projectfile.h"
#include "reports/frmResultaat.h"
#include "shell/run.h"
#include "shell/vensters_toepassing.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/script.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

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

// The panel's text went through the code page, which has no place for some letters.
TEST_F(Hoofdvenster, Panel1ShowsAFileInItsOwnCharacters) {
  for (const char* const naam : {"Łódź.mrv", "Ω één.mrv", "Geen bestand.mrv"}) {
    std::filesystem::copy_file(Data / "kantoor.mrv", map / naam);
    programma.OpenBestand = map / naam;
    venster->OpenVanOpdrachtregel();
    EXPECT_EQ(Paneel(1), naam);
    EXPECT_EQ(Aan(), NietBerekend);
    script.Box(VraagSluiten);
    Kies("mnuSluiten");
    EXPECT_EQ(Paneel(1), "Geen bestand");
    EXPECT_EQ(Aan(), GeenProject);
  }
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

// What is typed next replaces the number, also where the focus only comes once the dialog has gone.
TEST_F(Hoofdvenster, AProjectThatOpensHasItsNumberSelected) {
  QWidget dialoog;
  dialoog.show();
  QApplication::setActiveWindow(&dialoog);
  Open("kantoor.mrv");
  dialoog.close();
  QApplication::setActiveWindow(venster.get());
  auto* const nummer = ProjectVenster()->findChild<QLineEdit*>("txtProNum");
  EXPECT_EQ(QApplication::focusWidget(), nummer);
  EXPECT_EQ(nummer->selectedText(), "VB-1");
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
  script.Box(VraagOpslaan, Antwoord::Yes);
  const std::filesystem::path hier = std::filesystem::current_path();
  EXPECT_FALSE(venster->close());
  std::filesystem::current_path(hier);
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

TEST_F(Hoofdvenster, ARunShowsWhatTheOpenElementInherited) {
  Open("kantoor.mrv");
  auto* lijst = venster->findChild<QListWidget*>("lstProject");
  std::size_t bocht = 1;
  while (programma.Project.Elementen.at(bocht).ElementType != elementtype::BochtRecht) ++bocht;
  venster->findChild<QTabWidget*>("SSTab1")->setCurrentIndex(1);
  lijst->setCurrentRow(static_cast<int>(bocht) - 1);
  auto* veld = venster->findChild<QLineEdit*>("txtHoogte");
  const QString geerfd = veld->text();
  veld->setFocus();
  QTest::keyClicks(veld, "1234");
  Kies("mnuReken");
  EXPECT_EQ(veld->text(), geerfd);
  venster->findChild<QMdiArea*>()->closeActiveSubWindow();
  QTest::keyClick(veld, Qt::Key_Tab);
  EXPECT_EQ(programma.Project.Elementen.at(bocht).Hoogte, geerfd.toDouble());
  EXPECT_EQ(Aan(), WelBerekend) << "nothing has changed since the run";
}

TEST_F(Hoofdvenster, ARunTakesTheDirectivityAsItWasTyped) {
  Open("kantoor.mrv");
  venster->findChild<QTabWidget*>("SSTab1")->setCurrentIndex(2);
  auto* veld = venster->findChild<QLineEdit*>("txtRDI");
  veld->setFocus();
  QTest::keyClicks(veld, "3");
  Kies("mnuReken");
  ASSERT_NE(Resultaat(), nullptr);
  EXPECT_EQ(programma.Project.Ruimte.RDI, 3);
  EXPECT_EQ(veld->text(), "3");
  EXPECT_EQ(Aan(), WelBerekend) << "the result window in front is no leaving of the field";
  venster->findChild<QMdiArea*>()->closeActiveSubWindow();
  veld->setFocus();
  QTest::keyClick(veld, Qt::Key_Tab);
  EXPECT_EQ(programma.Project.Ruimte.RDI, 4) << "leaving the field snaps it";
  EXPECT_EQ(Aan(), NietBerekend);
}

TEST_F(Hoofdvenster, ADirectivityThatIsNoNumberStopsTheRun) {
  Open("kantoor.mrv");
  venster->findChild<QTabWidget*>("SSTab1")->setCurrentIndex(2);
  auto* veld = venster->findChild<QLineEdit*>("txtRDI");
  veld->setFocus();
  QTest::keyClicks(veld, "1,2,3");
  script.Box({MeldingSoort::Uitroep, "Waarschuwing", "Richtingsfactor niet ingevuld"});
  Kies("mnuReken");
  EXPECT_EQ(Resultaat(), nullptr);
  EXPECT_EQ(veld->text(), "1,2,3");
  EXPECT_EQ(veld->toolTip(), "Voer geldig getal in");
}

TEST_F(Hoofdvenster, ARunTakesAFlowThatThePrognosisGaveWhileTheFirstElementIsOpen) {
  Open("plafond.mrv");
  programma.Project.FanPrognose = fanbron::Prognose;
  programma.Project.Fan.FanDebiet = 2;
  ProjectVenster()->ToonProject(true);
  auto* tabs = venster->findChild<QTabWidget*>("SSTab1");
  tabs->setCurrentIndex(1);
  venster->findChild<QListWidget*>("lstProject")->setCurrentRow(0);
  EXPECT_EQ(programma.Project.Elementen[1].Debiet, 2);
  programma.Project.Fan.FanDebiet = 3;
  Kies("mnuReken");
  ASSERT_NE(Resultaat(), nullptr);
  EXPECT_EQ(programma.Project.Elementen[1].Debiet, 3);
  venster->findChild<QMdiArea*>()->closeActiveSubWindow();
  venster->findChild<QListWidget*>("lstTotaal")->setCurrentRow(0);
  EXPECT_EQ(programma.Project.Elementen[1].Debiet, 3) << "the hidden box does not put the former flow back";
}

TEST_F(Hoofdvenster, ARedFanBandHoldsItsTabUntilItIsRight) {
  Open("kantoor.mrv");
  auto* tabs = venster->findChild<QTabWidget*>("SSTab1");
  tabs->setCurrentIndex(0);
  auto* veld = venster->findChild<QLineEdit*>("txtLw_0");
  veld->setFocus();
  QTest::keyClick(veld, Qt::Key_Delete);
  Kies("mnuOverspraak");
  QCoreApplication::processEvents();
  EXPECT_EQ(programma.Project.Kop.RekenType, rekentype::Installatiegeluid);
  EXPECT_TRUE(Actie("mnuVent")->isChecked());
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_TRUE(veld->hasFocus());
  QTest::keyClick(veld, Qt::Key_Escape);
  Kies("mnuOverspraak");
  EXPECT_EQ(programma.Project.Kop.RekenType, rekentype::Overspraak);
}

TEST_F(Hoofdvenster, AFanBandOfAFileThatIsNoNumberIsToldBetweenTwoRooms) {
  Open("overspraak.mrv");
  programma.Project.Fan.Lw[3] = std::numeric_limits<double>::quiet_NaN();
  ProjectVenster()->ToonProject(true);
  script.Box({MeldingSoort::Kritiek, "MurVane",
              "Onverwachte fout in procedure Reken van Form frmMurvane.\nFout 6 - Overloop: een getal is te "
              "groot of onbepaald "
              "(geluidsspectrum ventilator, 500 Hz).",
              Knoppen::OK});
  Kies("mnuReken");
  EXPECT_EQ(Aan(), NietBerekend);
  EXPECT_NE(venster->findChild<QTabWidget*>("SSTab1")->currentIndex(), 0);
}

TEST_F(Hoofdvenster, ListsTheWindowsThatAreOpen) {
  Open("kantoor.mrv");
  Kies("mnuReken");
  auto* menu = venster->findChild<QMenu*>("mnuVenster");
  emit menu->aboutToShow();
  EXPECT_EQ(Opschriften(menu), (QStringList{"Project", "Berekeningsresultaten"}));
  EXPECT_TRUE(menu->actions().at(1)->isChecked());
  menu->actions().at(0)->trigger();
  EXPECT_EQ(venster->findChild<QMdiArea*>()->activeSubWindow()->widget(), ProjectVenster());
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
