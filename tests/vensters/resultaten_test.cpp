// The windows of the results: toolbars, chart, preview and print settings, from the main window.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGraphicsView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QWheelEvent>
#include <memory>

#include "basis/bestand.h"
#include "basis/vensters_hulp.h"
#include "reports/frmGrafiek.h"
#include "reports/frmLettertype.h"
#include "reports/frmPreView.h"
#include "reports/frmResultaat.h"
#include "reports/frmSelGraf.h"
#include "reports/vensters_vlak.h"
#include "shell/MDIMurvane.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/opnemer.h"
#include "tests/hulp/paden.h"
#include "tests/hulp/script.h"
#include "tests/vensters/robot.h"

namespace murvane::proef {
namespace {

namespace fs = std::filesystem;

const fs::path Data = proef::BronMap() / "data";
const Melding GrafiekVraag{MeldingSoort::Vraag, "Afdrukinstelling", "Afdrukken met grafiek?", Knoppen::YesNo};
const Melding F8Vraag{MeldingSoort::Vraag, "Afdrukken", "Grafiek afdrukken op printer?", Knoppen::YesNo};

/// The main window with a calculated sample.
class Resultaatvensters : public testing::Test {
 protected:
  Resultaatvensters() {
    programma.Catalogi = LeesCatalogi(Data);
    programma.DataDir = map.Pad();
    programma.Vandaag = std::string_view("20-11-2026");
    programma.Instellingen.Gebruikersnaam = std::string_view("Proefbureau");
    programma.Instellingen.Druk = StandaardDrukInstelling();
    venster = std::make_unique<MDIMurvane>(programma, script);
    venster->resize(1024, 740);
    venster->show();
    venster->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(venster.get()));
  }

  void Bereken(const char* naam) {
    programma.OpenBestand = Data / naam;
    venster->OpenVanOpdrachtregel();
    Actie("mnuReken")->trigger();
    ASSERT_NE(Zoek<frmResultaat>("frmResultaat"), nullptr);
  }
  template <typename T>
  T* Zoek(const char* naam) {
    return venster->findChild<T*>(naam);
  }
  QAction* Actie(const char* naam) {
    auto* actie = venster->findChild<QAction*>(naam);
    if (actie == nullptr) throw std::runtime_error(std::string("geen ") + naam);
    return actie;
  }
  /// A button of the result window or the preview.
  void Klik(const char* ouder, const char* sleutel) {
    auto* knop = Zoek<QWidget>(ouder)->findChild<QToolButton*>(QString("Toolbar1_") + sleutel);
    ASSERT_NE(knop, nullptr) << sleutel;
    knop->click();
  }
  static BestandVraag Opslaan(const std::string& filter) {
    return {"Opslaan als", filter, ProgrammaMap(), {}, true, false, true, {}};
  }
  frmPreView* OpenVoorbeeld() {
    script.Box(GrafiekVraag, Antwoord::No);
    Klik("frmResultaat", "preview");
    script.IsKlaar();
    return Zoek<frmPreView>("frmPreView");
  }
  /// The wheel over a control, in eighths of a degree, as the window system tells of it.
  static void Wiel(QWidget& vak, int draai, Qt::KeyboardModifiers met) {
    const QPointF plek(40, 40);
    QWheelEvent wiel(plek, vak.mapToGlobal(plek), {}, {0, draai}, Qt::NoButton, met, Qt::NoScrollPhase,
                     false);
    QSpontaneKeyEvent::setSpontaneous(&wiel);  // others go no further than the control
    qApp->notify(&vak, &wiel);
  }
  static bool Kan(QWidget* in, const char* sleutel) {
    return in->findChild<QToolButton*>(QString("Toolbar1_") + sleutel)->isEnabled();
  }

  TijdelijkeMap map;
  Script script{[](const std::string& fout) { ADD_FAILURE() << fout; }};
  murvane::Programma programma;  // proef::Programma is where a program stands
  std::unique_ptr<MDIMurvane> venster;
  Robot robot;
};

TEST_F(Resultaatvensters, TheTitleNamesTheProjectAgainWhenTheResultsAreClosed) {
  const QString project = "MurVane - [versie 6.7 - MurVane]";
  EXPECT_EQ(venster->windowTitle(), project);
  for (const char* const opdracht : {"mnuReken", "mnuPreview"}) {
    SCOPED_TRACE(opdracht);
    if (programma.Project.ElementCount == 0)
      Bereken("kantoor.mrv");
    else
      Actie(opdracht)->trigger();
    EXPECT_EQ(venster->windowTitle(), "MurVane - [Berekeningsresultaten]");
    Zoek<frmResultaat>("frmResultaat")->parentWidget()->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    EXPECT_EQ(venster->windowTitle(), project);
  }
}

TEST_F(Resultaatvensters, TheTitleNamesTheProjectAgainWhenAChangeClosesTheResults) {
  const QString project = "MurVane - [versie 6.7 - MurVane]";
  Bereken("kantoor.mrv");
  auto* const gebied = venster->findChild<QMdiArea*>();
  gebied->setActiveSubWindow(gebied->subWindowList(QMdiArea::CreationOrder).front());
  EXPECT_EQ(venster->windowTitle(), project);
  Zoek<QLineEdit>("txtProNaam")->setText("Gewijzigd");
  QCoreApplication::processEvents();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
  EXPECT_EQ(Zoek<frmResultaat>("frmResultaat"), nullptr);
  EXPECT_EQ(venster->windowTitle(), project);
}

TEST_F(Resultaatvensters, TheResultWindowHasItsToolbarAboveTheText) {
  Bereken("kantoor.mrv");
  auto* const resultaat = Zoek<frmResultaat>("frmResultaat");
  for (const Werkknop& knop : ResultaatKnoppen) {
    const auto* const actie = resultaat->findChild<QToolButton*>("Toolbar1_" + VanCp(knop.Sleutel));
    ASSERT_NE(actie, nullptr);
    EXPECT_EQ(actie->toolTip(), VanCp(knop.Tip));
    EXPECT_FALSE(actie->icon().isNull());
  }
  EXPECT_EQ(resultaat->findChild<QTextEdit*>("RichTextBox1")->geometry().top(), 28);  // 420 twips
  EXPECT_LE(resultaat->findChild<QWidget*>("Toolbar1")->geometry().bottom(), 27);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "RichTextBox1");  // and the keys
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->parentWidget()->objectName(), "Toolbar1");  // within reach of Tab
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "RichTextBox1");
  for (std::size_t i = 0; i <= ResultaatKnoppen.size(); ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "RichTextBox1");  // round, within the window
}

TEST_F(Resultaatvensters, SavesTheTextReport) {
  Bereken("kantoor.mrv");
  BestandVraag vraag = Opslaan("Uitvoerbestanden (*.prn)|*.prn");
  vraag.Extensie = "prn";
  script.Opslaan(vraag, map / "één.prn");
  Klik("frmResultaat", "Opslaan");
  EXPECT_EQ(Lees(map / "één.prn"), PrnBytes(programma.Rapport));
}

TEST_F(Resultaatvensters, SavesTheFormAsPdf) {
  Bereken("kantoor.mrv");
  script.Box(GrafiekVraag, Antwoord::No)
      .Opslaan({"Opslaan als", "PDF-bestanden (*.pdf)|*.pdf", map.Pad(), Data / "kantoor.pdf", true, false,
                true, "pdf"},
               map / "één.pdf");
  Klik("frmResultaat", "PDF");
  EXPECT_TRUE(Lees(map / "één.pdf").starts_with("%PDF-"));
}

TEST_F(Resultaatvensters, PrintsFromTheMenuAndTheToolbar) {
  Bereken("overspraak.mrv");
  int documenten = 0;
  const AfdrukKeuze keuze{2, false, [&]() -> std::unique_ptr<Vlak> {
                            ++documenten;
                            return std::make_unique<Opnemer>();
                          }};
  script.Afdrukken({true}, keuze).Box(GrafiekVraag, Antwoord::No);
  Klik("frmResultaat", "Printen");
  script.IsKlaar();
  EXPECT_EQ(documenten, 2);
  script.Afdrukken({true}, keuze).Box(GrafiekVraag, Antwoord::No);
  Actie("mnuAfdrukken")->trigger();
  EXPECT_EQ(documenten, 4);
}

TEST_F(Resultaatvensters, AskWhichResultTheChartShows) {
  Bereken("kantoor.mrv");
  robot
      .Dan([](QDialog& dialoog) {
        EXPECT_EQ(dialoog.windowTitle(), "Grafische weergave");
        EXPECT_TRUE(dialoog.findChild<QRadioButton*>("Option1")->isChecked());
        Robot::Druk(dialoog, Qt::Key_Down);
        EXPECT_TRUE(dialoog.findChild<QRadioButton*>("Option2")->isChecked());
        Robot::Druk(dialoog, Qt::Key_Return);
      })
      .Dan([](QDialog& dialoog) {
        EXPECT_EQ(dialoog.windowTitle(), " Grafische weergave berekeningsresultaten");
        const auto* const kaart = dialoog.findChild<QGraphicsView*>("MSChart1");
        EXPECT_EQ(kaart->geometry(), dialoog.rect());
        dialoog.resize(900, 600);
        EXPECT_EQ(kaart->geometry(), dialoog.rect());
        EXPECT_EQ(kaart->sceneRect().size(), QSizeF(900, 600));
        Robot::Druk(dialoog, Qt::Key_Escape);
      });
  Klik("frmResultaat", "Grafiek");
  EXPECT_EQ(programma.KiesGrafiek, kiesgrafiek::Galmveld);
  EXPECT_EQ(programma.Grafiek.Titel.at(0),
            "Geluidsdrukniveau in galmveld ruimte (afgerond op gehele decibellen)");
}

TEST_F(Resultaatvensters, ShowNoChartWhenTheChoiceIsCancelled) {
  Bereken("kantoor.mrv");
  for (const bool knop : {true, false}) {
    robot.Dan([knop](QDialog& dialoog) {
      if (knop) {
        dialoog.findChild<QPushButton*>("Command2")->click();
      } else {
        Robot::Druk(dialoog, Qt::Key_Escape);
      }
    });
    Klik("frmResultaat", "Grafiek");
    EXPECT_EQ(programma.KiesGrafiek, kiesgrafiek::Geen);
  }
  EXPECT_EQ(programma.Grafiek.Titel.size(), 8U);  // filled all the same, twice
}

TEST_F(Resultaatvensters, OfCrosstalkShowTheChartAtOnceAndF8PrintsIt) {
  Bereken("overspraak.mrv");
  Opnemer blad;
  script.Box(F8Vraag, Antwoord::Yes)
      .Afdrukken({false, false, "Grafiek"},
                 AfdrukKeuze{1, false, [] { return std::make_unique<Opnemer>(); }});
  robot.Dan([&](QDialog& dialoog) {
    EXPECT_EQ(dialoog.objectName(), "frmGrafiek");
    Robot::Druk(dialoog, Qt::Key_F8);
    dialoog.resize(794, 400);
    dynamic_cast<frmGrafiek&>(dialoog).Druk(blad);
    Robot::Druk(dialoog, Qt::Key_Escape);
  });
  Klik("frmResultaat", "Grafiek");
  ASSERT_EQ(blad.Plaatjes().size(), 1U);
  // 794 pixels are 11910 twips; between the margins are 11906 - 864 = 11042.
  EXPECT_NEAR(blad.Plaatjes()[0].Breedte, 11042, 0.01);
  EXPECT_NEAR(blad.Plaatjes()[0].Hoogte, 6000 * 11042.0 / 11910, 0.01);
}

TEST_F(Resultaatvensters, ThePreviewOpensOnItsLastPageAndBrowses) {
  Bereken("kantoor.mrv");
  auto* const preview = OpenVoorbeeld();
  ASSERT_NE(preview, nullptr);
  EXPECT_EQ(preview->windowTitle(), "Afdrukvoorbeeld, pagina 2 van 2");
  EXPECT_TRUE(programma.Voorbeeld.Voorbeeld);
  EXPECT_TRUE(Kan(preview, "begin") && Kan(preview, "terug"));
  EXPECT_FALSE(Kan(preview, "volgende") || Kan(preview, "eind"));
  auto* const document = preview->findChild<QWidget*>("Document");
  EXPECT_EQ(document->size(), QSize(794, 1100));
  const QImage twee = document->grab().toImage();
  Klik("frmPreView", "terug");
  EXPECT_EQ(preview->windowTitle(), "Afdrukvoorbeeld, pagina 1 van 2");
  EXPECT_FALSE(Kan(preview, "begin") || Kan(preview, "terug"));
  EXPECT_TRUE(Kan(preview, "volgende") && Kan(preview, "eind"));
  const QImage een = document->grab().toImage();
  EXPECT_NE(een, twee);
  programma.Project.Kop.ProNaam = std::string_view("iets anders");  // nothing is drawn again
  Klik("frmPreView", "eind");
  EXPECT_EQ(document->grab().toImage(), twee);
  Klik("frmPreView", "begin");
  EXPECT_EQ(document->grab().toImage(), een);
  Klik("frmPreView", "volgende");
  EXPECT_EQ(programma.Voorbeeld.VoorbeeldPagina, 2);
}

TEST_F(Resultaatvensters, APreviewOfOnePageBrowsesNowhere) {
  Bereken("overspraak.mrv");
  auto* const preview = OpenVoorbeeld();
  EXPECT_EQ(preview->windowTitle(), "Afdrukvoorbeeld, pagina 1 van 1");
  for (const char* sleutel : {"begin", "terug", "volgende", "eind"}) EXPECT_FALSE(Kan(preview, sleutel));
  EXPECT_TRUE(Kan(preview, "printen") && Kan(preview, "save") && Kan(preview, "PDF"));
}

TEST_F(Resultaatvensters, ThePreviewScrollsItsPage) {
  Bereken("overspraak.mrv");
  auto* const preview = OpenVoorbeeld();
  auto* const document = preview->findChild<QWidget*>("Document");
  auto* const v = preview->findChild<QScrollBar*>("VScroll1");
  const auto* const ruimte = preview->findChild<QWidget*>("DocumentContainer");
  EXPECT_EQ(document->pos(), QPoint((ruimte->width() - 794) / 2, 10));  // in the middle; 150 twips
  EXPECT_TRUE(v->isVisible());
  EXPECT_FALSE(preview->findChild<QScrollBar*>("HScroll1")->isVisible());  // the page is narrower
  EXPECT_EQ(v->minimum(), -150);
  EXPECT_EQ(v->singleStep(), 100);
  EXPECT_TRUE(document->hasFocus());
  v->setValue(1500);
  EXPECT_EQ(document->y(), -100);
  QTest::keyClick(document, Qt::Key_Down);
  EXPECT_EQ(v->value(), 1600);
  QTest::keyClick(document, Qt::Key_PageUp);
  EXPECT_EQ(v->value(), -150);
  QTest::keyClick(document, Qt::Key_PageDown);
  EXPECT_EQ(v->value(), v->maximum());
  const auto* const houder = preview->findChild<QWidget*>("DocumentContainer");
  EXPECT_NEAR(document->geometry().bottom() + 10, houder->height(), 2);  // the page's end and its margin
}

TEST_F(Resultaatvensters, ThePreviewIsLargerAndSmallerWithCtrl) {
  Bereken("overspraak.mrv");
  auto* const preview = OpenVoorbeeld();
  auto* const document = preview->findChild<QWidget*>("Document");
  const auto* const ruimte = preview->findChild<QWidget*>("DocumentContainer");
  EXPECT_EQ(document->size(), QSize(794, 1100));
  Wiel(*document, 120, {});
  EXPECT_EQ(document->size(), QSize(794, 1100)) << "the wheel alone scrolls";
  Wiel(*document, 120, Qt::ControlModifier);
  EXPECT_EQ(document->size(), QSize(873, 1210));  // a tenth larger
  Wiel(*document, -240, Qt::ControlModifier);
  EXPECT_EQ(document->size(), QSize(722, 1000));
  QTest::keyClick(document, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(document->size(), QSize(794, 1100));
  for (int i = 0; i < 20; ++i) QTest::keyClick(document, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(document->size(), QSize(407, 564)) << "no smaller than about half";
  EXPECT_EQ(document->pos(),
            QPoint((ruimte->width() - 407) / 2, (ruimte->height() - 564) / 2));  // within rounding
  EXPECT_FALSE(preview->findChild<QScrollBar*>("VScroll1")->isVisible());
  for (int i = 0; i < 20; ++i) QTest::keyClick(document, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(document->size(), QSize(1547, 2143)) << "no larger than about twice";
  EXPECT_TRUE(preview->findChild<QScrollBar*>("HScroll1")->isVisible());
}

TEST_F(Resultaatvensters, ThePreviewKeepsItsMiddleWhenItIsEnlarged) {
  Bereken("overspraak.mrv");
  auto* const preview = OpenVoorbeeld();
  auto* const document = preview->findChild<QWidget*>("Document");
  auto* const v = preview->findChild<QScrollBar*>("VScroll1");
  const auto* const ruimte = preview->findChild<QWidget*>("DocumentContainer");
  v->setValue(2000);
  const auto midden = [&] { return (ruimte->height() / 2.0 - document->y()) / document->height(); };
  const double was = midden();
  for (int i = 0; i < 4; ++i) QTest::keyClick(document, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(midden(), was, 0.005);
}

TEST_F(Resultaatvensters, TheResultsAreAsWideAsTheirTextInALargeWindow) {
  venster->resize(1900, 1000);
  Bereken("kantoor.mrv");
  QCoreApplication::processEvents();
  auto* const resultaat = Zoek<frmResultaat>("frmResultaat");
  const auto* const tekst = resultaat->findChild<QTextEdit*>("RichTextBox1");
  auto* const kader = qobject_cast<QMdiSubWindow*>(resultaat->parentWidget());
  EXPECT_FALSE(kader->isMaximized());
  EXPECT_FALSE(tekst->horizontalScrollBar()->isVisible());
  EXPECT_LT(tekst->viewport()->width() - tekst->document()->idealWidth(), 40) << "no room to spare";
  const QRect ruimte = kader->parentWidget()->rect();
  EXPECT_NEAR(kader->geometry().center().x(), ruimte.center().x(), 1);
  EXPECT_EQ(kader->height(), ruimte.height());
  EXPECT_EQ(QApplication::focusWidget(), tekst);
  Actie("mnuPreview")->trigger();
  EXPECT_FALSE(kader->isMaximized());
  kader->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
  EXPECT_TRUE(qobject_cast<QMdiSubWindow*>(Zoek<QWidget>("frmMurvane")->parentWidget())->isMaximized());
  EXPECT_EQ(venster->windowTitle(), "MurVane - [versie 6.7 - MurVane]");
}

TEST_F(Resultaatvensters, OpenWithTheAnswerInView) {
  for (const QSize maat : {QSize(1024, 740), QSize(1900, 1000)}) {
    venster->resize(maat);
    for (const char* const naam : {"kantoor.mrv", "plafond.mrv", "overspraak.mrv"}) {
      Bereken(naam);
      QCoreApplication::processEvents();
      auto* const tekst = Zoek<frmResultaat>("frmResultaat")->findChild<QTextEdit*>("RichTextBox1");
      const QString laatste = VanCp(programma.Rapport.RapResultaat).remove('\r');
      QTextCursor cursor(tekst->document());
      for (const int plaats : {static_cast<int>(tekst->toPlainText().size() - laatste.size()),
                               static_cast<int>(tekst->toPlainText().size() - 1)}) {
        cursor.setPosition(plaats);
        EXPECT_TRUE(tekst->viewport()->rect().contains(tekst->cursorRect(cursor).center())) << naam << plaats;
      }
      EXPECT_EQ(tekst->textCursor().position(), 0);
      EXPECT_EQ(tekst->horizontalScrollBar()->value(), 0);
      script.Box({MeldingSoort::Vraag, "Bestand sluiten",
                  "Wilt u het bestand sluiten zonder data-opslag van eventueel ingevoerde/gewijzigde "
                  "bestandsgegevens?",
                  Knoppen::OkCancel});
      Actie("mnuSluiten")->trigger();
      QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
  }
}

TEST_F(Resultaatvensters, ThePreviewSavesItsPagesAsBitmaps) {
  Bereken("kantoor.mrv");
  auto* const preview = OpenVoorbeeld();
  BestandVraag vraag = Opslaan("Bitmap-bestanden (*.bmp)|*.bmp");
  vraag.Extensie = "bmp";
  vraag.Bladen = 2;
  script.Opslaan(vraag, map / "één.bmp");
  Klik("frmPreView", "save");
  EXPECT_EQ(map.Namen(), (std::vector<std::string>{"één1.bmp", "één2.bmp"}));
  const QImage beeld(QString::fromStdString(PadTekst(map / "één1.bmp")));
  EXPECT_EQ(beeld.size(), QSize(1587, 2200));
  EXPECT_EQ(BitmapBytes(beeld), preview->Bitmap(0));
}

TEST_F(Resultaatvensters, ThePreviewIsDrawnAnewOnlyWhenItWasClosed) {
  Bereken("kantoor.mrv");
  auto* const preview = OpenVoorbeeld();
  Actie("mnuPreview")->trigger();
  Klik("frmResultaat", "preview");  // asks nothing: it only comes to the front
  EXPECT_EQ(Zoek<frmPreView>("frmPreView"), preview);
  EXPECT_EQ(Zoek<QMdiArea>("")->activeSubWindow()->widget(), preview);
  preview->parentWidget()->close();
  EXPECT_FALSE(programma.Voorbeeld.Voorbeeld);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Zoek<frmPreView>("frmPreView"), nullptr);
  EXPECT_NE(OpenVoorbeeld(), nullptr);
}

TEST_F(Resultaatvensters, PrintingFromThePreviewTakesThePrinterPath) {
  Bereken("kantoor.mrv");
  (void)OpenVoorbeeld();
  script.Afdrukken({true}, AfdrukKeuze{1, false, [] { return std::make_unique<Opnemer>(); }})
      .Box(GrafiekVraag, Antwoord::No);
  Klik("frmPreView", "printen");
  EXPECT_FALSE(programma.Voorbeeld.Voorbeeld);
  EXPECT_EQ(programma.Voorbeeld.VoorbeeldPagina, 2);
}

// The print settings.

QComboBox& Lijst(QDialog& dialoog, const char* naam) {
  return *dialoog.findChild<QComboBox*>(naam);
}

TEST_F(Resultaatvensters, ThePrintSettingsAreTakenOverByOk) {
  robot.Dan([](QDialog& dialoog) {
    EXPECT_EQ(dialoog.windowTitle(), "Afdrukinstelling berekeningsformulier");
    EXPECT_EQ(Lijst(dialoog, "cboLtype").currentText(), "Courier New");
    EXPECT_EQ(Lijst(dialoog, "cboLgrootte").currentText(), "12");
    EXPECT_EQ(Lijst(dialoog, "cboKop").currentText(), "Vet        ");
    EXPECT_GT(Lijst(dialoog, "cboLtype").count(), 1);
    Lijst(dialoog, "cboLtype").setCurrentText("DejaVu Sans");
    Lijst(dialoog, "cboLgrootte").setCurrentIndex(1);
    Lijst(dialoog, "cboKop").setCurrentIndex(3);
    Lijst(dialoog, "cboBody1").setCurrentIndex(0);
    Lijst(dialoog, "cboBody2").setCurrentIndex(2);
    dialoog.findChild<QPushButton*>("cmdOK")->click();
  });
  Actie("mnuLetterType")->trigger();
  EXPECT_EQ(programma.Instellingen.Druk, (DrukInstelling{"DejaVu Sans", 8, 4, 1, 3}));
}

TEST_F(Resultaatvensters, TheDefaultsOfThePrintSettingsOutliveCancel) {
  programma.Instellingen.Druk = {"DejaVu Sans", 6, 1, 1, 1};
  robot.Dan([this](QDialog& dialoog) {
    Lijst(dialoog, "cboKop").setCurrentIndex(3);
    dialoog.findChild<QPushButton*>("cmdCancel")->click();
    EXPECT_EQ(programma.Instellingen.Druk, (DrukInstelling{"DejaVu Sans", 6, 1, 1, 1}));
  });
  Actie("mnuLetterType")->trigger();
  robot.Dan([](QDialog& dialoog) {
    dialoog.findChild<QPushButton*>("cmdDefault")->click();
    EXPECT_EQ(Lijst(dialoog, "cboLgrootte").currentText(), "12");
    dialoog.findChild<QPushButton*>("cmdCancel")->click();
  });
  Actie("mnuLetterType")->trigger();
  EXPECT_EQ(programma.Instellingen.Druk, StandaardDrukInstelling());
}

TEST_F(Resultaatvensters, ThePrintSettingsRefuseAnEmptySizeAndStayOpen) {
  programma.Instellingen.Druk.LetterGrootte = 7;
  script.Box(
      {MeldingSoort::Kritiek, "MurVane",
       "Onverwachte fout in procedure cmdOK_Click van Form frmLettertype.\nFout 13 - Geen geldig getal."});
  robot.Dan([](QDialog& dialoog) {
    EXPECT_EQ(Lijst(dialoog, "cboLgrootte").currentText(), "");
    EXPECT_GE(dialoog.width(), dialoog.fontMetrics().horizontalAdvance(dialoog.windowTitle()) + 100);
    dialoog.findChild<QPushButton*>("cmdOK")->click();
    EXPECT_TRUE(dialoog.isVisible());
    Robot::Druk(dialoog, Qt::Key_Escape);
  });
  Actie("mnuLetterType")->trigger();
  EXPECT_EQ(programma.Instellingen.Druk.LetterGrootte, 7);
}

}  // namespace
}  // namespace murvane::proef
