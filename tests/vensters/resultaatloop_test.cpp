// The windows of the results in the main window: where they open, when they wait, and when they go.

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QTextEdit>
#include <QToolButton>

#include "reports/frmPreView.h"
#include "tests/vensters/opstelling.h"
#include "tests/vensters/robot.h"

namespace murvane {
namespace {

class Resultaatloop : public Hoofdvenster {
 protected:
  void Bereken(const char* naam) {
    Open(naam);
    Kies("mnuReken");
    ASSERT_NE(Resultaat(), nullptr);
  }
  void Klik(const QString& sleutel) { Resultaat()->findChild<QToolButton*>("Toolbar1_" + sleutel)->click(); }
  frmPreView* Voorbeeld() { return venster->findChild<frmPreView*>("frmPreView"); }
  proef::Robot robot;
};

TEST_F(Resultaatloop, TheReportOpensOnItsAnswer) {
  Bereken("kantoor.mrv");
  QApplication::processEvents();
  const auto* const tekst = Resultaat()->findChild<QTextEdit*>("RichTextBox1");
  ASSERT_GT(tekst->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(tekst->verticalScrollBar()->value(), tekst->verticalScrollBar()->maximum());
  EXPECT_EQ(tekst->horizontalScrollBar()->value(), 0);
}

TEST_F(Resultaatloop, AnEditClosesAnOpenPreview) {
  Bereken("kantoor.mrv");
  script.Box({MeldingSoort::Vraag, "Afdrukinstelling", "Afdrukken met grafiek?", Knoppen::YesNo},
             Antwoord::No);
  Klik("preview");
  ASSERT_NE(Voorbeeld(), nullptr);
  EXPECT_TRUE(programma.Voorbeeld.Voorbeeld);
  ProjectVenster()->findChild<QLineEdit*>("txtProNaam")->setText("Ander kantoor");
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Voorbeeld(), nullptr);
  EXPECT_EQ(Resultaat(), nullptr);
  EXPECT_FALSE(programma.Voorbeeld.Voorbeeld);
}

TEST_F(Resultaatloop, TheChartWaitsWhileItIsFilledAndWhileItIsBuilt) {
  Bereken("overspraak.mrv");
  const int voor = script.KeerGewacht();
  robot.Dan([&](QDialog& dialoog) {
    EXPECT_EQ(dialoog.objectName(), "frmGrafiek");
    EXPECT_EQ(script.KeerGewacht(), voor + 2);
    script.IsKlaar();  // not any more
    dialoog.reject();
  });
  Klik("Grafiek");
}

}  // namespace
}  // namespace murvane
