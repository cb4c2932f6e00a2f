// What is pasted, dropped or written at once into the real one-line boxes, in every way there is.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputDialog>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <array>

#include "catalogue/frmOnderhoud.h"
#include "editor/vensters_dialogen.h"
#include "editor/vensters_veld.h"
#include "tests/vensters/opstelling.h"
#include "tests/vensters/robot.h"

namespace murvane {
namespace {

/// A way for a text into the control that has the focus.
struct Weg {
  const char* Naam;
  void (*Plak)(const QString& tekst);
};

void ZetKlembord(const QString& tekst) {
  QGuiApplication::clipboard()->setText(tekst);
}

void MetToets(Qt::Key toets, Qt::KeyboardModifier met, const QString& tekst) {
  ZetKlembord(tekst);
  QTest::keyClick(QApplication::focusWidget(), toets, met);
}

/// The box itself, also of a combo box.
QLineEdit* Vak() {
  auto* const keuze = qobject_cast<QComboBox*>(QApplication::focusWidget());
  return keuze == nullptr ? qobject_cast<QLineEdit*>(QApplication::focusWidget()) : keuze->lineEdit();
}

void UitMenu(const QString& tekst) {
  ZetKlembord(tekst);
  QWidget* const venster = Vak()->window();
  const QPoint midden = Vak()->rect().center();
  QContextMenuEvent vraag(QContextMenuEvent::Mouse, midden, Vak()->mapToGlobal(midden));
  QApplication::sendEvent(Vak(), &vraag);
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (QAction* const actie : menu->actions()) {
    if (!actie->text().contains("Ctrl+V")) continue;
    EXPECT_TRUE(actie->isEnabled());
    actie->trigger();
  }
  menu->close();
  QCoreApplication::processEvents();
  QApplication::setActiveWindow(venster);  // the platform gives the keys back to no window after a pop-up
}

void Gesleept(const QString& tekst) {
  QMimeData lading;
  lading.setText(tekst);
  const QPointF plaats(Vak()->width() - 4, Vak()->height() / 2.0);
  Vak()->clear();
  QDragEnterEvent binnen(plaats.toPoint(), Qt::CopyAction, &lading, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(Vak(), &binnen);
  EXPECT_TRUE(binnen.isAccepted());
  QDropEvent los(plaats, Qt::CopyAction, &lading, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(Vak(), &los);
  EXPECT_TRUE(los.isAccepted());
}

const std::array<Weg, 4> Wegen = {{
    {"Ctrl+V", [](const QString& tekst) { MetToets(Qt::Key_V, Qt::ControlModifier, tekst); }},
    {"Shift+Insert", [](const QString& tekst) { MetToets(Qt::Key_Insert, Qt::ShiftModifier, tekst); }},
    {"the menu", UitMenu},
    {"a drag", Gesleept},
}};

void Schrijf(const QString& tekst) {
  QInputMethodEvent schrijft;
  schrijft.setCommitString(tekst);
  QApplication::sendEvent(QApplication::focusWidget(), &schrijft);
}

class Plakken : public ProjectVenster {
 protected:
  /// Into a field, with its whole text selected.
  void Naar(const char* naam) {
    NaarVeld(naam);
    Veld(naam)->selectAll();
  }
};

// A line end in a project's name gave a report with a line too many.
TEST_F(Plakken, PutsATextOnOneLineWhicheverWayItComes) {
  OpenVoorbeeld("kantoor.mrv");
  for (const Weg& weg : Wegen) {
    for (const char* const naam : {"txtProNaam", "txtOmschrijving", "txtToelichting3", "txtSpectrum"}) {
      KiesTab(QString(naam) == "txtSpectrum" ? Tab::Ventilator : Tab::Projectgegevens);
      Naar(naam);
      weg.Plak("\t Kantoor\r\nOost,\u202E 1e\tverdieping\x1B[31m \n");
      EXPECT_EQ(Veld(naam)->text(), "Kantoor Oost, 1e verdieping[31m") << weg.Naam << ' ' << naam;
      EXPECT_FALSE(IsRood(naam)) << weg.Naam;
    }
  }
  NaarVeld("txtProNum");
  EXPECT_EQ(project.Kop.ProNaam.Getrimd(), "Kantoor Oost, 1e verdieping[31m");
}

// A cell of a spreadsheet brings its line end.
TEST_F(Plakken, ANumberOrADateLosesTheBlanksAndLineEndsAroundIt) {
  OpenVoorbeeld("kantoor.mrv");
  const struct {
    Tab Blad;
    const char* Veld;
    const char* Geplakt;
    const char* Getoond;  ///< in the field, once it was left
  } rijen[] = {{Tab::Ruimtegegevens, "txtRLengte", "5\n", "5,0"},
               {Tab::Ruimtegegevens, "txtRNagalm", "\t0.75\r\n", "0,75"},
               {Tab::Projectgegevens, "txtMyDate", " 03-04-2026 \n", "03-04-2026"},
               {Tab::Ventilator, "txtLw_3", "71,5\r\n", "71,5"}};
  for (const Weg& weg : Wegen) {
    for (const auto& rij : rijen) {
      KiesTab(rij.Blad);
      Naar(rij.Veld);
      weg.Plak(rij.Geplakt);
      EXPECT_EQ(Veld(rij.Veld)->text(), QString(rij.Geplakt).trimmed()) << weg.Naam;
      Druk(Qt::Key_Return);
      QCoreApplication::processEvents();
      EXPECT_EQ(Veld(rij.Veld)->text(), rij.Getoond) << weg.Naam;
      EXPECT_FALSE(IsRood(rij.Veld)) << weg.Naam << ' ' << rij.Veld;
    }
  }
}

TEST_F(Plakken, ATextThatIsNoNumberIsJudgedWhenTheFieldIsLeft) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ruimtegegevens);
  Naar("txtRLengte");
  Wegen[0].Plak("12 m\n");
  EXPECT_EQ(Veld("txtRLengte")->text(), "12 m");
  EXPECT_FALSE(IsRood("txtRLengte"));
  Druk(Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_TRUE(IsRood("txtRLengte"));
  EXPECT_EQ(Focus(), "txtRLengte");
}

// It became a question mark.
TEST_F(Plakken, ACharacterOutsideTheCodePageIsRefusedAsATypedOneIs) {
  OpenVoorbeeld("kantoor.mrv");
  for (const Weg& weg : Wegen) {
    Naar("txtProNaam");
    weg.Plak("\u0141\u00F3d\u017A \u20AC");
    EXPECT_EQ(Veld("txtProNaam")->text(), "\u00F3d \u20AC") << weg.Naam;
    EXPECT_TRUE(IsRood("txtProNaam")) << weg.Naam;
    weg.Plak("Kantoor");
    EXPECT_FALSE(IsRood("txtProNaam")) << weg.Naam;
  }
}

TEST_F(Plakken, WhatIsRefusedWholeLeavesTheSelectedTextInItsPlace) {
  OpenVoorbeeld("kantoor.mrv");
  Naar("txtProNaam");
  const QString was = Veld("txtProNaam")->text();
  ASSERT_EQ(Veld("txtProNaam")->selectedText(), was);
  Wegen[0].Plak("\u03B1\u03B2");
  EXPECT_EQ(Veld("txtProNaam")->text(), was);
  EXPECT_TRUE(IsRood("txtProNaam"));
}

TEST_F(Plakken, AnAccentThatComesApartIsOneCharacterWithItsLetter) {
  OpenVoorbeeld("kantoor.mrv");
  Naar("txtProNaam");
  Wegen[0].Plak("e\u0301e\u0301n");
  EXPECT_EQ(Veld("txtProNaam")->text(), "\u00E9\u00E9n");
  EXPECT_FALSE(IsRood("txtProNaam"));
}

TEST_F(Plakken, WhatFitsIsCutBehindTheRuleAndNotBeforeIt) {
  OpenVoorbeeld("kantoor.mrv");
  Naar("txtProNum");
  Wegen[0].Plak("  \t\n123456789012345\n");
  EXPECT_EQ(Veld("txtProNum")->text(), "123456789012");
}

TEST_F(Plakken, CanBeUndone) {
  OpenVoorbeeld("kantoor.mrv");
  Naar("txtProNaam");
  const QString was = Veld("txtProNaam")->text();
  Wegen[0].Plak("Hal\n");
  ASSERT_EQ(Veld("txtProNaam")->text(), "Hal");
  Veld("txtProNaam")->undo();
  EXPECT_EQ(Veld("txtProNaam")->text(), was);
}

TEST_F(Plakken, AnInputMethodWritesByTheSameRuleButKeepsItsBlanks) {
  OpenVoorbeeld("kantoor.mrv");
  Naar("txtProNaam");
  Schrijf("Kantoor ");
  Schrijf("Oost\n\u202E1");
  EXPECT_EQ(Veld("txtProNaam")->text(), "Kantoor Oost 1");
  EXPECT_FALSE(IsRood("txtProNaam"));
  Schrijf("\u0141x");
  EXPECT_EQ(Veld("txtProNaam")->text(), "Kantoor Oost 1x");
  EXPECT_TRUE(IsRood("txtProNaam"));
}

TEST_F(Plakken, AFieldThatIsOnlyShownTakesNothing) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(2);
  const QString was = Veld("txtdemp_7")->text();
  ASSERT_TRUE(Veld("txtdemp_7")->isVisible());
  NaarVeld("txtdemp_7");
  MetToets(Qt::Key_V, Qt::ControlModifier, "5");
  EXPECT_EQ(Veld("txtdemp_7")->text(), was);
}

TEST_F(Plakken, AWallsNameGoesByTheRuleToo) {
  OpenVoorbeeld("plafond.mrv");
  KiesTab(Tab::Ruimtegegevens);
  auto* const keuze = Zoek<QComboBox>("cmbRkanaal");
  const auto rood = [keuze] { return keuze->palette().color(QPalette::Base) == KleurVan(FoutKleur); };
  for (const Weg& weg : Wegen) {
    keuze->setFocus(Qt::TabFocusReason);
    keuze->lineEdit()->selectAll();
    weg.Plak(" Wand\n1\u0141 ");
    if (weg.Plak == Gesleept) {  // an empty box gets the text of no wall, in which it falls
      EXPECT_TRUE(keuze->currentText().contains("Wand 1")) << keuze->currentText().toStdString();
    } else {
      EXPECT_EQ(keuze->currentText(), "Wand 1") << weg.Naam;
    }
    EXPECT_TRUE(rood()) << weg.Naam;
    NaarVeld("txtRNagalm");
    EXPECT_FALSE(rood()) << weg.Naam;
  }
  keuze->setFocus(Qt::TabFocusReason);
  keuze->setEditText("Wand");
  QTest::keyClick(keuze, Qt::Key_L);
  EXPECT_FALSE(rood());
  QKeyEvent toets(QEvent::KeyPress, Qt::Key_L, Qt::NoModifier, "\u0141");
  QApplication::sendEvent(keuze, &toets);
  EXPECT_EQ(keuze->currentText(), "Wandl");
  EXPECT_TRUE(rood());
  OpenVoorbeeld("kantoor.mrv");
  EXPECT_FALSE(rood()) << "of the project before";
}

TEST_F(Plakken, ARecordsNameGoesByTheRuleToo) {
  SchatInvoer schatInvoer;
  frmOnderhoud lijst(CatalogusSoort::Ventilatoren, {catalogi, schatInvoer, script, ".", "20-11-2026", ','});
  lijst.show();
  QApplication::setActiveWindow(&lijst);
  lijst.findChild<QPushButton*>("cmdToevoegen")->click();
  auto* const naam = lijst.findChild<QLineEdit*>("txtSpectrum");
  for (const Weg& weg : Wegen) {
    naam->setFocus(Qt::TabFocusReason);
    naam->selectAll();
    weg.Plak("Dakventilator\r\nA\n");
    EXPECT_EQ(naam->text(), "Dakventilator A") << weg.Naam;
  }
}

/// The box that asks for a line of text: the user's name, and what a catalogue is searched for.
class Plakdialoog : public testing::Test {
 protected:
  std::string Vraag(const proef::Robot::Stap& stap) {
    robot.Dan([&](QDialog& box) {
      stap(box);
      proef::Robot::Druk(box, Qt::Key_Return);
    });
    return dialogen.Invoer({"Instelling gebruikersnaam", "Naam", "oud"});
  }
  static bool IsRood() { return Vak()->palette().color(QPalette::Base) == KleurVan(FoutKleur); }

  proef::Robot robot;
  SchermDialogen dialogen;
};

// A name of several lines made a settings file of as many.
TEST_F(Plakdialoog, TheInputBoxGoesByTheRuleToo) {
  for (const Weg& weg : Wegen) {
    EXPECT_EQ(Vraag([&](QDialog&) {
                weg.Plak(" Bureau\nDe Wit\r\n\x1B[2J");
                EXPECT_FALSE(IsRood()) << weg.Naam;
              }),
              "Bureau De Wit [2J")
        << weg.Naam;
  }
}

TEST_F(Plakdialoog, TheInputBoxRefusesWhatTheCodePageLacks) {
  for (const Weg& weg : Wegen) {
    EXPECT_EQ(Vraag([&](QDialog& box) {
                weg.Plak("\u0141x");
                EXPECT_TRUE(IsRood()) << weg.Naam;
                proef::Robot::Druk(box, Qt::Key_A, "a");
                EXPECT_FALSE(IsRood()) << weg.Naam;
                proef::Robot::Druk(box, Qt::Key_L, "\u0141");
                EXPECT_TRUE(IsRood()) << weg.Naam;
              }),
              "xa")
        << weg.Naam;
  }
}

}  // namespace
}  // namespace murvane
