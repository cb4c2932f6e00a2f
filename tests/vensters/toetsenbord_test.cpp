// Ways through the program that must not need a mouse, beside those that typing a project in takes.

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QRadioButton>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextEdit>
#include <filesystem>

#include "basis/bestand.h"
#include "shell/settings.h"
#include "shell/startup.h"
#include "tests/vensters/bediening.h"

namespace murvane::proef {
namespace {

class Toetsenbord : public Gestart {
 protected:
  void Nieuw() {
    Start();
    toetsen->Menu({"mnuBestand", "mnuNieuw"});
  }
  void OpenVoorbeeld() { Start(PadTekst(BronData / "kantoor.mrv")); }
  void VoegToe(int record) {
    toetsen->Naar("lstTotaal", Qt::Key_Backtab);
    toetsen->Druk(Qt::Key_Home);
    toetsen->Herhaal(Qt::Key_Down, record - 1);
    toetsen->Druk(Qt::Key_Return);
  }
  QString Tab() {
    auto* const tabs = Zoek<QTabWidget>("SSTab1");
    return tabs->tabText(tabs->currentIndex());
  }
  QWidget* Boven() { return venster->findChild<QMdiArea*>()->activeSubWindow()->widget(); }
};

// Its row is the current one already, so that no arrow key reaches it anew.
TEST_F(Toetsenbord, EnterOpensTheElementAgainThatIsTheOnlyOne) {
  Nieuw();
  toetsen->NaarTab("Kanaalelementen");
  VoegToe(8);
  ASSERT_EQ(Bediening::Focus(), "txtHoogte");
  toetsen->Naar("lstTotaal", Qt::Key_Backtab);
  toetsen->Druk(Qt::Key_Down);
  EXPECT_FALSE(Zoek<QWidget>("SSTab2")->isVisible());
  toetsen->Naar("lstProject");
  toetsen->Druk(Qt::Key_Return);
  EXPECT_TRUE(Zoek<QWidget>("SSTab2")->isVisible());
  EXPECT_EQ(Bediening::Focus(), "txtHoogte");
}

TEST_F(Toetsenbord, SpaceClicksTheCurrentCatalogueRowSoThatInsertWorksTwice) {
  Nieuw();
  toetsen->NaarTab("Kanaalelementen");
  VoegToe(8);
  for (int n = 2; n <= 3; ++n) {
    toetsen->Naar("lstTotaal", Qt::Key_Backtab);
    EXPECT_EQ(Zoek<QListWidget>("lstTotaal")->currentRow(), 7);
    toetsen->Druk(Qt::Key_Insert);
    EXPECT_EQ(programma.Project.ElementCount, n - 1);  // the other list is the active one
    toetsen->Druk(Qt::Key_Space);
    toetsen->Druk(Qt::Key_Insert);
    EXPECT_EQ(programma.Project.ElementCount, n);
    EXPECT_EQ(programma.Project.Elementen[1].ElementType, elementtype::KanaalRecht);
  }
}

// The names of the attenuators differ only behind their blanks.
TEST_F(Toetsenbord, TypingANameWithBlanksGoesToItsRow) {
  const int wachttijd = QApplication::keyboardInputInterval();
  const auto weerZo = qScopeGuard([wachttijd] { QApplication::setKeyboardInputInterval(wachttijd); });
  QApplication::setKeyboardInputInterval(60'000);  // a slow machine types slowly
  Nieuw();
  toetsen->NaarTab("Kanaalelementen");
  toetsen->Naar("lstTotaal");
  toetsen->Typ("kanaal ro");
  EXPECT_EQ(Zoek<QListWidget>("lstTotaal")->currentItem()->text().trimmed(), "Kanaal rond");
  toetsen->Druk(Qt::Key_Return);
  EXPECT_EQ(programma.Project.Elementen[1].ElementType, elementtype::KanaalRond);
}

TEST_F(Toetsenbord, TheToolbarsWorkByTheSpaceBar) {
  Nieuw();
  toetsen->NaarTab("Kanaalelementen");
  VoegToe(8);
  toetsen->Naar("lstTotaal", Qt::Key_Backtab);
  toetsen->Druk(Qt::Key_Down);
  toetsen->Naar("Toolbar1_Add");
  toetsen->Druk(Qt::Key_Space);
  ASSERT_EQ(programma.Project.ElementCount, 2);
  EXPECT_EQ(programma.Project.Elementen[2].ElementType, elementtype::KanaalRond);
  toetsen->Naar("Toolbar2_Up", Qt::Key_Backtab);
  toetsen->Druk(Qt::Key_Space);
  EXPECT_EQ(programma.Project.Elementen[1].ElementType, elementtype::KanaalRond);
  script.Box({MeldingSoort::Vraag, "Kanaalelementen wissen", "Kanaalelement 1 wissen?", Knoppen::OkCancel},
             Antwoord::OK);
  toetsen->Naar("Toolbar2_Delete", Qt::Key_Backtab);
  toetsen->Druk(Qt::Key_Space);
  EXPECT_EQ(programma.Project.ElementCount, 1);
}

TEST_F(Toetsenbord, TheCalendarTakesADateByTheArrowKeys) {
  Nieuw();
  toetsen->Naar("Image1");
  toetsen->Druk(Qt::Key_Space);
  auto* const kalender = Zoek<QCalendarWidget>("MonthView");
  ASSERT_TRUE(kalender->isVisible());
  toetsen->Druk(Qt::Key_Left);
  toetsen->Druk(Qt::Key_Down);
  EXPECT_EQ(kalender->selectedDate(), QDate(2026, 11, 26));
  toetsen->Druk(Qt::Key_Return);
  EXPECT_FALSE(kalender->isVisible());
  EXPECT_EQ(Zoek<QLineEdit>("txtMyDate")->text(), "26-11-2026");
  EXPECT_EQ(Bediening::Focus(), "txtMyDate");
  toetsen->Naar("Image1");
  toetsen->Druk(Qt::Key_Space);
  toetsen->Druk(Qt::Key_Left);
  toetsen->Druk(Qt::Key_Escape);
  EXPECT_FALSE(kalender->isVisible());
  EXPECT_EQ(Zoek<QLineEdit>("txtMyDate")->text(), "26-11-2026");
}

TEST_F(Toetsenbord, ControlAndPageKeysWalkThroughTheTabsFromAnyField) {
  OpenVoorbeeld();
  EXPECT_EQ(Tab(), "Projectgegevens");
  for (const char* const naam : {"Ruimtegegevens", "Kanaalelementen", "Ventilator", "Projectgegevens"}) {
    toetsen->Druk(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Tab(), naam);
  }
  toetsen->Menu({"mnuInstel", "mnuTypReken", "mnuOverspraak"});  // no fan: its tab is passed over
  toetsen->Druk(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Tab(), "Kanaalelementen");
  toetsen->Druk(Qt::Key_Tab);
  EXPECT_TRUE(Zoek<QTabWidget>("SSTab1")->currentWidget()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(Toetsenbord, AnInvalidFieldHoldsTheTabBackFromTheKeysToo) {
  OpenVoorbeeld();
  toetsen->Naar("txtMyDate");
  toetsen->Typ("31-02-2026");
  toetsen->Druk(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(Tab(), "Projectgegevens");
  EXPECT_EQ(Bediening::Focus(), "txtMyDate");
  EXPECT_EQ(Zoek<QLineEdit>("txtMyDate")->text(), "31-02-2026");
}

TEST_F(Toetsenbord, GoesToTheResultAndBack) {
  OpenVoorbeeld();
  QWidget* const project = Boven();
  toetsen->Menu({"mnuBestand", "mnuReken"});
  EXPECT_EQ(Boven()->objectName(), "frmResultaat");
  auto* const tekst = Zoek<QTextEdit>("RichTextBox1");
  EXPECT_EQ(Bediening::Focus(), "RichTextBox1");
  toetsen->Druk(Qt::Key_End, Qt::ControlModifier);
  EXPECT_GT(tekst->verticalScrollBar()->value(),
            tekst->verticalScrollBar()->maximum() - tekst->verticalScrollBar()->pageStep());
  toetsen->Druk(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(Boven(), project);
  EXPECT_TRUE(project->isAncestorOf(QApplication::focusWidget()));
  toetsen->Menu({"mnuBestand", "mnuPreview"});
  EXPECT_EQ(Boven()->objectName(), "frmResultaat");
  toetsen->Druk(Qt::Key_F4, Qt::ControlModifier);
  EXPECT_FALSE(IsErEen("frmResultaat"));
  EXPECT_EQ(Boven(), project);
  toetsen->Menu({"mnuBestand", "mnuPreview"});
  EXPECT_TRUE(IsErEen("frmResultaat"));
}

TEST_F(Toetsenbord, TheProjectWindowCannotBeClosedByItself) {
  OpenVoorbeeld();
  toetsen->Druk(Qt::Key_F4, Qt::ControlModifier);
  toetsen->Druk(Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(Zoek<QTabWidget>("SSTab1")->isVisible());
}

TEST_F(Toetsenbord, LeavesTheMenuByEscapeToTheFieldItCameFrom) {
  OpenVoorbeeld();
  toetsen->Naar("txtProNaam");
  toetsen->Typ("Half");
  toetsen->Alt();
  toetsen->Druk(Qt::Key_Down);
  toetsen->Druk(Qt::Key_Escape);
  toetsen->Druk(Qt::Key_Escape);
  EXPECT_EQ(Bediening::Focus(), "txtProNaam");
  EXPECT_EQ(Zoek<QLineEdit>("txtProNaam")->text(), "Half");
  toetsen->Typ(" af");
  EXPECT_EQ(Zoek<QLineEdit>("txtProNaam")->text(), "Half af");
}

TEST_F(Toetsenbord, GivesThePrognosisUp) {
  OpenVoorbeeld();
  toetsen->NaarTab("Ventilator");
  toetsen->Naar("cmdFanCancel");
  toetsen->Druk(Qt::Key_Space);
  EXPECT_TRUE(Zoek<QRadioButton>("optInvoer")->isChecked());
  EXPECT_NE(QApplication::focusWidget(), nullptr);
  EXPECT_TRUE(QApplication::focusWidget()->isVisible());
}

TEST_F(Toetsenbord, SetsTheUserNameAndLeavesByExit) {
  const std::filesystem::path hier = std::filesystem::current_path();
  Start();
  script.InvoerBox(
      {"Instelling gebruikersnaam",
       "Huidige instelling gebruikersnaam: \n..Gebruikersnaam..\n\nVoer nieuwe gebruikersnaam in",
       "..Gebruikersnaam.."},
      " J & Co ");
  toetsen->Menu({"mnuInstel", "mnuGebruiker"});
  toetsen->Menu({"mnuBestand", "mnuExit"});
  EXPECT_FALSE(venster->isVisible());
  std::filesystem::current_path(hier);
  const Instellingen geschreven = LeesInstellingen(data / InstellingenNaam);
  EXPECT_EQ(geschreven.Gebruikersnaam.Getrimd(), "J & Co");
  EXPECT_EQ(geschreven.GebruikerLabel.Getrimd(), "J && Co");
}

}  // namespace
}  // namespace murvane::proef
