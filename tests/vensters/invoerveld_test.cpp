// What all input fields of the real window share: filling, entry, Escape, leaving, and the calendar.

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QComboBox>
#include <QMenu>
#include <QTabBar>
#include <QToolButton>

#include "editor/vensters_veld.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class Invoerveld : public ProjectVenster {
 protected:
  QCalendarWidget* Kalender() { return Zoek<QCalendarWidget>("MonthView"); }
  void KlikKalender() { Zoek<QToolButton>("Image1")->click(); }
  /// A key to the part of the calendar that has the keys.
  void DrukKalender(Qt::Key toets) {
    ASSERT_TRUE(Kalender()->isAncestorOf(QApplication::focusWidget()) || Kalender()->hasFocus());
    Druk(toets);
  }
};

TEST_F(Invoerveld, EveryFieldShowsWhatWasStored) {
  for (const char* const naam : VoorbeeldNamen) {
    OpenVoorbeeld(naam);
    const VensterBeeld beeld = TabSettings(project, catalogi, ',');
    int aantal = 0;
    for (const InvoerVeld* const veld : venster->findChildren<InvoerVeld*>()) {
      if (Zoek<QWidget>("SSTab2")->isAncestorOf(veld)) continue;
      ++aantal;
      EXPECT_EQ(veld->text(), VanCp(HerstelTekst(project, 0, veld->Veld(), ',')))
          << naam << ' ' << veld->objectName().toStdString();
    }
    EXPECT_EQ(aantal, 8 + 5 + 7 + 14 + 7);  // fan with its data, room with its bands, project
    EXPECT_EQ(Zoek<QComboBox>("cmbRkanaal")->currentText(), VanCp(beeld.RkanaalTekst));
    EXPECT_EQ(Zoek<QComboBox>("cmbRplafond")->currentText(), VanCp(beeld.RplafondTekst));
  }
}

TEST_F(Invoerveld, EscapeTakesTheTipAwayAndSelectsTheText) {
  OpenVoorbeeld("kantoor.mrv");
  NaarVeld("txtMyDate");
  Typ("31-02-2026");
  Druk(Qt::Key_Return);
  QCoreApplication::processEvents();
  ASSERT_NE(Veld("txtMyDate")->toolTip(), "");
  Druk(Qt::Key_Escape);
  EXPECT_EQ(Veld("txtMyDate")->toolTip(), "");
  EXPECT_FALSE(IsRood("txtMyDate"));
  EXPECT_EQ(Veld("txtMyDate")->text(), "02-03-2026");
  EXPECT_EQ(Veld("txtMyDate")->selectedText(), "02-03-2026");
}

TEST_F(Invoerveld, TellsWhatIsWrongInFrontOfWhatMayBeTyped) {
  OpenVoorbeeld("kantoor.mrv");
  const QString regel = "Datum als dd-mm-jjjj; leeg is vandaag.";
  EXPECT_EQ(Veld("txtMyDate")->accessibleDescription(), regel);
  NaarVeld("txtMyDate");
  Typ("31-02-2026");
  Druk(Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(Veld("txtMyDate")->accessibleDescription(), "Voer geldige datum in (dd-mm-yyyy). " + regel);
  Druk(Qt::Key_Escape);
  EXPECT_EQ(Veld("txtMyDate")->accessibleDescription(), regel);
}

TEST_F(Invoerveld, AltAndALetterTypeNothing) {
  OpenVoorbeeld("kantoor.mrv");
  for (const char* naam : {"txtMyDate", "txtProNaam"}) {
    NaarVeld(naam);
    const QString was = Veld(naam)->text();
    QKeyEvent toets(QEvent::KeyPress, Qt::Key_W, Qt::AltModifier, "w");
    QCoreApplication::sendEvent(Veld(naam), &toets);
    EXPECT_EQ(Veld(naam)->text(), was);
    EXPECT_FALSE(IsRood(naam));
    QKeyEvent altGr(QEvent::KeyPress, Qt::Key_5, Qt::AltModifier | Qt::ControlModifier, "5");
    QCoreApplication::sendEvent(Veld(naam), &altGr);
    EXPECT_EQ(Veld(naam)->text(), "5");  // over the selection
  }
}

TEST_F(Invoerveld, EscapeInAFieldThatWasNotChangedChangesNothing) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  for (const char* const naam : {"txtProNum", "txtMyDate", "txtRLengte", "txtRDI", "txtLw_0", "txtHoogte"}) {
    MaakBerekend();
    QTest::keyClick(Veld(naam), Qt::Key_Escape);
    EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend) << naam;
  }
}

TEST_F(Invoerveld, AnotherProjectStartsWithoutColoursAndTips) {
  OpenVoorbeeld("kantoor.mrv");
  const std::vector<QString> namen = {"txtRLengte", "txtRNagalm", "txtRDI"};
  for (const QString& naam : namen) {
    KiesTab(Tab::Ruimtegegevens);
    NaarVeld(naam);
    Typ("1,2,3");
    NaarVeld("txtRAantal");
    QCoreApplication::processEvents();
    ASSERT_TRUE(IsRood(naam)) << naam.toStdString();
    ASSERT_EQ(Veld(naam)->toolTip(), "Voer geldig getal in");
    venster->ToonProject(true);
    EXPECT_FALSE(IsRood(naam)) << naam.toStdString();
    EXPECT_EQ(Veld(naam)->toolTip(), "") << naam.toStdString();
  }
  NaarVeld("txtProNum");
  QTest::keyClick(Veld("txtfan_0"), Qt::Key_X);
  ASSERT_TRUE(IsRood("txtfan_0"));
  OpenVoorbeeld("plafond.mrv");
  EXPECT_FALSE(IsRood("txtfan_0"));
}

TEST_F(Invoerveld, AnotherElementStartsWithoutColoursAndTips) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  QTest::keyClick(Veld("txtLengte"), Qt::Key_X);
  Veld("txtLengte")->setToolTip("Voer geldig getal in");
  ASSERT_TRUE(IsRood("txtLengte"));
  Zoek<QListWidget>("lstProject")->setCurrentRow(2);
  EXPECT_FALSE(IsRood("txtLengte"));
  EXPECT_EQ(Veld("txtLengte")->toolTip(), "");
}

TEST_F(Invoerveld, AClickIntoAFieldSelectsItsText) {
  OpenVoorbeeld("kantoor.mrv");
  QLineEdit* const veld = Veld("txtProNaam");
  QTest::mouseClick(veld, Qt::LeftButton, {}, QPoint(10, veld->height() / 2));
  EXPECT_EQ(Focus(), "txtProNaam");
  EXPECT_EQ(veld->selectedText(), "Voorbeeld: kantoorgebouw");
  QTest::mouseClick(veld, Qt::LeftButton, {}, QPoint(10, veld->height() / 2));
  EXPECT_EQ(veld->selectedText(), "") << "a second click sets the cursor";
}

TEST_F(Invoerveld, AMenuOrAnotherWindowIsNoLeaving) {
  OpenVoorbeeld("kantoor.mrv");
  for (const Qt::FocusReason reden :
       {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
    NaarVeld("txtMyDate");
    Typ("31-02-2026");
    QFocusEvent weg(QEvent::FocusOut, reden);
    QApplication::sendEvent(Veld("txtMyDate"), &weg);
    QCoreApplication::processEvents();
    EXPECT_FALSE(IsRood("txtMyDate"));
    EXPECT_EQ(Veld("txtMyDate")->toolTip(), "");
    Veld("txtMyDate")->setCursorPosition(2);
    QFocusEvent terug(QEvent::FocusIn, reden);
    QApplication::sendEvent(Veld("txtMyDate"), &terug);
    EXPECT_EQ(Veld("txtMyDate")->selectedText(), "") << "coming back is no entry";
    EXPECT_EQ(Veld("txtMyDate")->text(), "31-02-2026");
    Druk(Qt::Key_Escape);
  }
}

TEST_F(Invoerveld, AMenuOrAnotherWindowIsNoLeavingOfAChoice) {
  OpenVoorbeeld("plafond.mrv");
  KiesTab(Tab::Ruimtegegevens);
  auto* const keuze = Zoek<QComboBox>("cmbRkanaal");
  keuze->setFocus(Qt::TabFocusReason);
  keuze->setEditText("  ");
  for (const Qt::FocusReason reden :
       {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason, Qt::MenuBarFocusReason}) {
    QFocusEvent weg(QEvent::FocusOut, reden);
    QApplication::sendEvent(keuze, &weg);
    EXPECT_EQ(keuze->currentText(), "  ");
  }
}

TEST_F(Invoerveld, OnlyTheFanTabDependsOnTheType) {
  OpenVoorbeeld("kantoor.mrv");
  const QTabWidget* const tabs = Zoek<QTabWidget>("SSTab1");
  for (const std::int16_t type : {rekentype::Overspraak, rekentype::Geluidsuitstraling, rekentype::Overspraak,
                                  rekentype::Installatiegeluid}) {
    venster->KiesType(type);
    EXPECT_EQ(tabs->isTabEnabled(0), type != rekentype::Overspraak) << type;
    for (int blad = 1; blad < 4; ++blad) EXPECT_TRUE(tabs->isTabEnabled(blad)) << type << blad;
    EXPECT_EQ(tabs->currentIndex(), 3);
  }
  for (const std::int16_t type : {rekentype::Overspraak, rekentype::Geluidsuitstraling}) {
    project.Kop.RekenType = type;
    venster->ToonProject(true);
    EXPECT_EQ(tabs->isTabEnabled(0), type != rekentype::Overspraak) << type;
    for (int blad = 1; blad < 4; ++blad) EXPECT_TRUE(tabs->isTabEnabled(blad)) << type << blad;
  }
}

TEST_F(Invoerveld, EscapeClosesTheCalendarAndKeepsTheDate) {
  OpenVoorbeeld("kantoor.mrv");
  MaakBerekend();
  KlikKalender();
  ASSERT_TRUE(Kalender()->isVisible());
  DrukKalender(Qt::Key_Right);
  DrukKalender(Qt::Key_Escape);
  EXPECT_FALSE(Kalender()->isVisible());
  EXPECT_EQ(Focus(), "txtMyDate");
  EXPECT_EQ(Veld("txtMyDate")->text(), "02-03-2026");
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend);
}

TEST_F(Invoerveld, EnterTakesTheDateOfTheCalendar) {
  OpenVoorbeeld("kantoor.mrv");
  KlikKalender();
  DrukKalender(Qt::Key_Right);
  DrukKalender(Qt::Key_Return);
  EXPECT_FALSE(Kalender()->isVisible());
  EXPECT_EQ(Focus(), "txtMyDate");
  EXPECT_EQ(Veld("txtMyDate")->text(), "03-03-2026");
  EXPECT_EQ(venster->DeSessie().Aanroep, "21");
  NaarVeld("txtProNum");
  EXPECT_EQ(project.Kop.MyDate.Heel(), "03-03-2026");
}

TEST_F(Invoerveld, TheCalendarOfAnInvalidDateShowsToday) {
  OpenVoorbeeld("kantoor.mrv");
  for (const char* const tekst : {"31-02-2026", "", "2026", "1-1-2026"}) {
    Veld("txtMyDate")->setText("05-06-2020");
    KlikKalender();
    ASSERT_EQ(Kalender()->selectedDate(), QDate(2020, 6, 5));
    KlikKalender();
    Veld("txtMyDate")->setText(tekst);
    KlikKalender();
    EXPECT_EQ(Kalender()->selectedDate(), QDate(2026, 11, 20)) << tekst;
    KlikKalender();
  }
}

TEST_F(Invoerveld, AnotherProjectStartsWithoutTheCalendar) {
  OpenVoorbeeld("kantoor.mrv");
  KlikKalender();
  OpenVoorbeeld("plafond.mrv");
  EXPECT_FALSE(Kalender()->isVisible());
}

}  // namespace
}  // namespace murvane
