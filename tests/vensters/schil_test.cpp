#include <gtest/gtest.h>

#include <QAction>
#include <QElapsedTimer>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTest>
#include <algorithm>

#include "basis/vensters_hulp.h"
#include "editor/vensters_blad.h"
#include "editor/vensters_tekening.h"
#include "shell/MDIMurvane.h"
#include "shell/frmAbout.h"
#include "shell/frmSplashII.h"
#include "shell/hoofdvenster.h"
#include "shell/vensters_menu.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

class Schil : public testing::Test {
 protected:
  Schil() : script([](const std::string& fout) { ADD_FAILURE() << fout; }) {}

  proef::TijdelijkeMap map;
  proef::Script script;
  Instellingen instellingen;
};

QString Tekst(const QWidget& venster, const char* naam) {
  const auto* label = venster.findChild<QLabel*>(naam);
  return label == nullptr ? QString("geen ") + naam : label->text();
}

TEST_F(Schil, TheSplashShowsTitleAndVersion) {
  frmSplashII splash;
  EXPECT_EQ(splash.windowTitle(), "MurVane");
  EXPECT_EQ(Tekst(splash, "lblTitel"), "MurVane");
  EXPECT_EQ(Tekst(splash, "lblVersie"), "Versie 6.7.4\nVrije programmatuur, GPL versie 3 of later");
  EXPECT_EQ(Tekst(splash, "lblOmschrijving"),
            "Geluid in luchtkanalen: van ventilator tot vertrek, per octaafband");
}

TEST_F(Schil, AKeyOrAClickEndsTheSplashAtOnce) {
  for (const bool toets : {true, false}) {
    frmSplashII splash;
    QSignalSpy voorbij(&splash, &frmSplashII::Voorbij);
    splash.Toon();
    EXPECT_TRUE(splash.isVisible());
    EXPECT_EQ(voorbij.count(), 0);
    if (toets) QTest::keyClick(&splash, Qt::Key_A);
    if (!toets) QTest::mouseClick(&splash, Qt::LeftButton);
    EXPECT_FALSE(splash.isVisible());
    EXPECT_EQ(voorbij.count(), 1);
    QTest::mouseClick(&splash, Qt::LeftButton);
    EXPECT_EQ(voorbij.count(), 1);
  }
}

TEST_F(Schil, TheSplashStandsForTwoSeconds) {
  frmSplashII splash;
  QSignalSpy voorbij(&splash, &frmSplashII::Voorbij);
  QElapsedTimer tijd;
  tijd.start();
  splash.Toon();
  EXPECT_TRUE(voorbij.wait(10000));
  EXPECT_GE(tijd.elapsed(), 1900) << "the timer is exact to 5 %";
  EXPECT_FALSE(splash.isVisible());
  EXPECT_EQ(voorbij.count(), 1);
}

QColor Punt(QWidget& venster, int x, int y) {
  const QPixmap beeld = venster.grab();
  const auto plaats = QPointF(x, y) * beeld.devicePixelRatio();
  return beeld.toImage().pixelColor(plaats.toPoint());
}

/// A row of the window at both of its edges.
void IsRood(QWidget& venster, int y, int rood) {
  for (const int x : {0, venster.width() - 1}) {
    EXPECT_EQ(Punt(venster, x, y), QColor(rood, 0, 0)) << x << " " << y;
  }
}

TEST_F(Schil, TheGradientIsPaintedBehindTheWholeSplash) {
  frmSplashII splash;
  splash.Toon();
  splash.resize(520, 260);
  IsRood(splash, 0, 100);
  IsRood(splash, 13, 95);   // 100 - 13 * 100 / 260
  IsRood(splash, 130, 50);  // half way
  IsRood(splash, 131, 50);  // 49.6
  IsRood(splash, 259, 0);   // 0.4
}

TEST_F(Schil, TheGradientIsPaintedBehindTheWholeInformationWindow) {
  proef::Schrijf(map / "levering.txt", "x");
  frmAbout info(instellingen, map / "levering.txt", script, nullptr);
  info.resize(640, 600);
  info.show();
  ASSERT_EQ(info.height(), 600);
  IsRood(info, 0, 120);
  IsRood(info, 300, 60);
  IsRood(info, 301, 60);  // 120 - 301 * 120 / 600 = 59.8
  IsRood(info, 303, 59);  // 59.4
  IsRood(info, 599, 0);   // 0.2
}

// What is light on the gradient would be white on white in a box that stands on it.
TEST_F(Schil, TheNotesKeepTheColoursOfTheTheme) {
  proef::Schrijf(map / "levering.txt", "x");
  frmAbout info(instellingen, map / "levering.txt", script, nullptr);
  const auto& levering = *info.findChild<QPlainTextEdit*>("txtLevering");
  for (const auto rol : {QPalette::Text, QPalette::Base})
    EXPECT_EQ(levering.palette().color(rol), QApplication::palette().color(rol));
  EXPECT_EQ(levering.verticalScrollBar()->palette(), QApplication::palette()) << "its arrows are drawn in it";
  for (const char* const naam : {"lblProduct", "lblOmschrijving"})
    EXPECT_EQ(info.findChild<QLabel*>(naam)->palette().color(QPalette::WindowText), QColor(Qt::white));
}

TEST_F(Schil, TheInformationWindowTellsProductUserAndNotes) {
  proef::Schrijf(map / "levering.txt", "Eérste regel\nTweede");
  instellingen.GebruikerLabel = std::string_view("  Jansen && Zn");
  frmAbout info(instellingen, map / "levering.txt", script, nullptr);
  EXPECT_EQ(info.windowTitle(), "Info MurVane");
  EXPECT_EQ(Tekst(info, "lblProduct"), "MurVane, productversie 6.07.0004\nGebruiker :\nJansen & Zn");
  EXPECT_EQ(Tekst(info, "lblOmschrijving"), VanCp(InfoTekst(instellingen).Omschrijving));
  const auto* levering = info.findChild<QPlainTextEdit*>("txtLevering");
  EXPECT_EQ(levering->toPlainText(), QString::fromUtf8("Eérste regel\nTweede"));
  EXPECT_EQ(levering->textCursor().position(), 0);
  EXPECT_FALSE(info.findChild<QPushButton*>("lblMail")->text().isEmpty());
}

TEST_F(Schil, MissingNotesAreToldAndTheInformationOpens) {
  script.Box(
      {MeldingSoort::Kritiek, "MurVane",
       std::string(
           "Onverwachte fout in procedure Form_Load van Form frmAbout.\nFout 53 - Het bestand 'levering é.txt' is niet gevonden."_cp),
       Knoppen::OK});
  frmAbout info(instellingen, map / "levering é.txt", script, nullptr);
  info.show();
  EXPECT_TRUE(info.isVisible());
  EXPECT_EQ(info.findChild<QPlainTextEdit*>("txtLevering")->toPlainText(), "");
  EXPECT_EQ(Tekst(info, "lblProduct"), "MurVane, productversie 6.07.0004\nGebruiker :\n..Gebruikersnaam..");
  QTest::keyClick(&info, Qt::Key_Escape);
  EXPECT_FALSE(info.isVisible());
}

TEST_F(Schil, TheUsersAmpersandIsShownOnce) {
  proef::Schrijf(map / "levering.txt", "x");
  QFont vet;
  const auto beeld = [&](std::string_view gebruiker) {
    instellingen.GebruikerLabel = gebruiker;
    frmAbout info(instellingen, map / "levering.txt", script, nullptr);
    info.resize(640, 600);
    info.show();
    const auto* const label = info.findChild<QLabel*>("lblProduct");
    vet = label->font();
    return info.grab(label->geometry()).toImage();
  };
  const auto breedte = [](const QImage& van) {  // of its last line, up to the last light column
    for (int x = van.width() - 1; x >= 0; --x) {
      for (int y = van.height() * 2 / 3; y < van.height(); ++y) {
        if (van.pixelColor(x, y).green() > 100) return x / van.devicePixelRatio();
      }
    }
    return 0.0;
  };
  const QFontMetrics maten(vet);
  EXPECT_NEAR(breedte(beeld("W && W")) - breedte(beeld("W  W")), maten.horizontalAdvance("&"), 2);
}

// A label took the second "&" of a name for the mark of a mnemonic.
TEST_F(Schil, EveryAmpersandOfTheUserIsShown) {
  proef::Schrijf(map / "levering.txt", "x");
  for (const char* const naam : {"A & B & C", "&A", "A&", "A && B", "<b>A</b>&B", "A"}) {
    ZetGebruikersnaam(instellingen, naam);
    frmAbout info(instellingen, map / "levering.txt", script, nullptr);
    const auto* const label = info.findChild<QLabel*>("lblProduct");
    EXPECT_TRUE(label->text().endsWith(QString("Gebruiker :\n") + naam)) << label->text().toStdString();
    EXPECT_EQ(label->buddy(), nullptr) << "shows mnemonics";
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
  }
}

TEST_F(Schil, OnlyADoubleClickOnTheIconOpensItsMenu) {
  QWidget venster;
  Taakbalk balk(&venster);
  EXPECT_EQ(balk.Menu()->defaultAction(), balk.Exit());
  EXPECT_EQ(balk.Exit()->text(), "Afsluiten");
  EXPECT_EQ(balk.Info()->text(), "Info");
  EXPECT_EQ(balk.Icoontje()->toolTip(), "MurVane");
  EXPECT_EQ(balk.Icoontje()->contextMenu(), nullptr);
  for (const auto reden : {QSystemTrayIcon::Trigger, QSystemTrayIcon::MiddleClick, QSystemTrayIcon::Context,
                           QSystemTrayIcon::Unknown}) {
    emit balk.Icoontje()->activated(reden);
    EXPECT_FALSE(balk.Menu()->isVisible());
  }
  emit balk.Icoontje()->activated(QSystemTrayIcon::DoubleClick);
  EXPECT_TRUE(balk.Menu()->isVisible());
  balk.Menu()->close();
}

TEST_F(Schil, TwoClicksOnTheIconAreADoubleClickWhereTheDesktopTellsOfSingleOnes) {
  QWidget venster;
  Taakbalk balk(&venster);
  emit balk.Icoontje()->activated(QSystemTrayIcon::Trigger);
  EXPECT_FALSE(balk.Menu()->isVisible());
  emit balk.Icoontje()->activated(QSystemTrayIcon::Trigger);
  EXPECT_TRUE(balk.Menu()->isVisible());
  balk.Menu()->close();
  emit balk.Icoontje()->activated(QSystemTrayIcon::Trigger);
  EXPECT_FALSE(balk.Menu()->isVisible()) << "a third click is the first of the next two";
}

TEST_F(Schil, ASheetStandsInTheMiddleOfALargeWindow) {
  Blad blad(nullptr);
  blad.Blok()->setMinimumSize(100, 50);
  const QSize maat(190 * blad.fontMetrics().averageCharWidth(), 60 * blad.fontMetrics().lineSpacing());
  const QSize ontwerp = maat + QSize(24, 24);
  blad.show();
  // Int((inner - design) / 2) in twips, 15 to a pixel: 1 pixel more is 7.5 twips, 7, no pixel
  for (const auto& [meer, schuif] : {std::pair{0, 0}, {1, 0}, {2, 1}, {3, 1}, {100, 50}, {0, 0}}) {
    blad.resize(ontwerp + QSize(meer, 2 * meer));
    EXPECT_EQ(blad.Blok()->geometry(), QRect(QPoint(12 + schuif, 12 + meer), maat)) << meer;
  }
  blad.resize(400, 300);
  EXPECT_EQ(blad.Blok()->geometry(), QRect(12, 12, 376, 276)) << "a small sheet is filled";
}

class HoofdMenu : public Schil {
 protected:
  HoofdMenu() {
    programma.DataDir = map.Pad();
    programma.ProgrammaBestanden = map.Pad();
    venster = std::make_unique<MDIMurvane>(programma, script);
    venster->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return venster->findChild<QMenu*>("mnuTaakBar") != nullptr; }));
  }

  QAction* Actie(std::string_view naam) {
    auto* actie = venster->findChild<QAction*>(VanCp(naam));
    if (actie == nullptr) throw std::runtime_error("geen " + std::string(naam));
    return actie;
  }

  Programma programma;
  std::unique_ptr<MDIMurvane> venster;
};

TEST_F(HoofdMenu, EveryCommandOfTheTableHasItsIcon) {
  const std::vector<std::pair<const char*, const char*>> beelden = {
      {"mnuOpen", "openen"},       {"mnuNieuw", "nieuw"},         {"mnuSluiten", "sluiten"},
      {"mnuReken", "reken"},       {"mnuPreview", "berekend"},    {"mnuExit", "exit"},
      {"mnuOpslaan", "opslaan"},   {"mnuAfdrukken", "printen"},   {"mnuTypReken", "type"},
      {"mnuLetterType", "letter"}, {"mnuGebruiker", "gebruiker"}, {"mnuDuct", "luchtkanaal"},
      {"mnuPlafonds", "plafond"},  {"mnuFan", "ventilator"},      {"mnuElementen", "kanaalelement"},
      {"mnuCalc", "calculator"},   {"mnuHelpFile", "help"},       {"mnuInfo", "info"}};
  ASSERT_EQ(beelden.size(), 18U);
  std::vector<QImage> gezien;
  for (const auto& [naam, tekening] : beelden) {
    const QImage getekend = Actie(naam)->icon().pixmap(32, 32).toImage();
    ASSERT_FALSE(getekend.isNull()) << naam;
    int gekleurd = 0;
    for (int y = 0; y < getekend.height(); ++y) {
      for (int x = 0; x < getekend.width(); ++x) gekleurd += getekend.pixelColor(x, y).alpha() > 100 ? 1 : 0;
    }
    EXPECT_GT(gekleurd, 30) << naam;
    EXPECT_EQ(getekend, Icoon(tekening, venster->palette()).pixmap(32, 32).toImage()) << naam;
    EXPECT_FALSE(std::any_of(gezien.begin(), gezien.end(), [&getekend](const QImage& ander) {
      return ander == getekend;
    })) << naam;
    gezien.push_back(getekend);
  }
}

TEST_F(HoofdMenu, NothingElseHasAnIcon) {
  for (const MenuItem& item : MenuBalk) {
    const bool heeft = std::any_of(MenuBeelden.begin(), MenuBeelden.end(),
                                   [&item](const MenuBeeld& beeld) { return beeld.Naam == item.Naam; });
    EXPECT_EQ(Actie(item.Naam)->icon().isNull(), !heeft) << item.Naam;
  }
}

TEST_F(HoofdMenu, TheMenuOfTheIconIsNeverOnTheBar) {
  QStringList balk;
  for (const QAction* const actie : venster->menuBar()->actions()) balk << actie->objectName();
  EXPECT_EQ(balk, (QStringList{"mnuBestand", "mnuBeheer", "mnuInstel", "mnuVenster", "mnuHelp"}));
  const auto* const menu = venster->findChild<QMenu*>("mnuTaakBar");
  EXPECT_EQ(menu->title(), "TaakBar");
  QStringList opdrachten;
  for (const QAction* const actie : menu->actions()) opdrachten << actie->objectName() + " " + actie->text();
  EXPECT_EQ(opdrachten, (QStringList{"mnuTaakInfo Info", "mnuTaakExit Afsluiten"}));
  EXPECT_EQ(menu->defaultAction(), Actie("mnuTaakExit"));
}

TEST_F(HoofdMenu, TheBarBesideAMenuIsAGradientWithTheCaptionInWhite) {
  for (const char* const naam : {"mnuBestand", "mnuBeheer", "mnuInstel", "mnuHelp"}) {
    auto* const menu = venster->findChild<QMenu*>(naam);
    const int breedte = dynamic_cast<ZijbalkMenu*>(menu)->BalkBreedte();
    menu->resize(menu->sizeHint());
    const QImage beeld = menu->grab().toImage();
    const QColor boven = beeld.pixelColor(3, 2);
    const QColor onder = beeld.pixelColor(3, beeld.height() - 3);
    EXPECT_GT(boven.red(), 90) << naam;
    EXPECT_EQ(boven.green(), 0) << naam;
    EXPECT_LT(onder.red(), 10) << naam;
    int wit = 0;
    for (int y = 1; y < beeld.height() - 1; ++y) {
      for (int x = 1; x < breedte - 1; ++x) wit += beeld.pixelColor(x, y).green() > 150 ? 1 : 0;
    }
    EXPECT_GT(wit, 40) << naam;
  }
  EXPECT_EQ(dynamic_cast<ZijbalkMenu*>(venster->findChild<QMenu*>("mnuVenster"))->BalkBreedte(), 0);
}

TEST_F(HoofdMenu, TheHeadingsStandAsBarsBesideTheirMenus) {
  const std::vector<std::pair<const char*, QString>> koppen = {{"mnuBestand", "Berekening.."},
                                                               {"mnuBeheer", "Lijsten.."},
                                                               {"mnuInstel", "Instelling.."},
                                                               {"mnuHelp", "Info.."}};
  for (const auto& [naam, kop] : koppen) {
    auto* menu = dynamic_cast<ZijbalkMenu*>(venster->findChild<QMenu*>(naam));
    ASSERT_NE(menu, nullptr) << naam;
    EXPECT_EQ(menu->Kop(), kop);
    EXPECT_GT(menu->BalkBreedte(), menu->fontMetrics().height());
    EXPECT_FALSE(menu->actions().front()->isVisible()) << "the heading is no entry";
    for (const QAction* actie : menu->actions()) {
      if (!actie->isVisible()) continue;
      EXPECT_GE(menu->actionGeometry(const_cast<QAction*>(actie)).left(), menu->BalkBreedte());
    }
  }
}

TEST_F(HoofdMenu, TheInformationWindowIsNotOpenedTwice) {
  proef::Schrijf(map / "levering.txt", "x");
  QAction* const taakInfo = Actie("mnuTaakInfo");
  auto* const icoon = venster->findChild<QSystemTrayIcon*>("Picture1");
  auto* const menu = venster->findChild<QMenu*>("mnuTaakBar");
  for (const char* const opdracht : {"mnuInfo", "mnuTaakInfo"}) {
    EXPECT_TRUE(taakInfo->isEnabled());
    int gezien = 0;
    const auto bekijk = [&] {
      auto* info = venster->findChild<frmAbout*>();
      ASSERT_NE(info, nullptr);
      ++gezien;
      EXPECT_TRUE(info->isVisible());
      EXPECT_TRUE(info->isModal());
      EXPECT_FALSE(taakInfo->isEnabled());
      taakInfo->trigger();
      EXPECT_EQ(venster->findChildren<frmAbout*>().size(), 1);
      emit icoon->activated(QSystemTrayIcon::DoubleClick);
      EXPECT_FALSE(menu->isVisible()) << "a window that waits is not passed by";
      info->accept();
    };
    QMetaObject::invokeMethod(venster.get(), bekijk, Qt::QueuedConnection);
    Actie(opdracht)->trigger();
    EXPECT_EQ(gezien, 1) << opdracht;
    EXPECT_EQ(venster->findChild<frmAbout*>(), nullptr);
    EXPECT_TRUE(taakInfo->isEnabled()) << opdracht;
  }
}

TEST_F(HoofdMenu, TheInformationWindowWithoutItsNotesIsLeftWithTheIconsCommandEnabled) {
  script.Box({MeldingSoort::Kritiek, "MurVane",
              "Onverwachte fout in procedure Form_Load van Form frmAbout.\nFout 53 - Het bestand "
              "'levering.txt' is niet gevonden.",
              Knoppen::OK},
             Antwoord::OK, [this] { EXPECT_FALSE(Actie("mnuTaakInfo")->isEnabled()); });
  const auto sluit = [this] { venster->findChild<frmAbout*>()->reject(); };
  QMetaObject::invokeMethod(venster.get(), sluit, Qt::QueuedConnection);
  Actie("mnuTaakInfo")->trigger();
  EXPECT_TRUE(Actie("mnuTaakInfo")->isEnabled());
}

TEST_F(HoofdMenu, TheIconEndsTheProgramAsExitDoes) {
  const std::filesystem::path hier = std::filesystem::current_path();
  auto* const icoon = venster->findChild<QSystemTrayIcon*>("Picture1");
  EXPECT_TRUE(icoon->isVisible()) << "also before the desktop has a place for it";
  Actie("mnuTaakExit")->trigger();
  std::filesystem::current_path(hier);
  EXPECT_FALSE(venster->isVisible());
  EXPECT_FALSE(icoon->isVisible()) << "it goes with the window";
  EXPECT_TRUE(std::filesystem::exists(map / "murvane.set"));
}

TEST_F(HoofdMenu, TheIconAsksWhatExitAsksWhenAProjectIsOpen) {
  const std::filesystem::path hier = std::filesystem::current_path();
  auto* const icoon = venster->findChild<QSystemTrayIcon*>("Picture1");
  EXPECT_TRUE(icoon->isVisible()) << "also before the desktop has a place for it";
  const Melding vraag{
      MeldingSoort::Vraag, "Programma-stop",
      "Wilt u het programma beeindigen zonder data-opslag van eventueel ingevoerde/gewijzigde "
      "bestandsgegevens?",
      Knoppen::OkCancel};
  Actie("mnuNieuw")->trigger();
  script.Box(vraag, Antwoord::Cancel);
  Actie("mnuTaakExit")->trigger();
  EXPECT_TRUE(venster->isVisible());
  EXPECT_TRUE(icoon->isVisible());
  EXPECT_FALSE(std::filesystem::exists(map / "murvane.set"));
  script.Box(vraag, Antwoord::OK);
  Actie("mnuTaakExit")->trigger();
  std::filesystem::current_path(hier);
  EXPECT_FALSE(venster->isVisible());
  EXPECT_FALSE(icoon->isVisible());
  EXPECT_TRUE(std::filesystem::exists(map / "murvane.set"));
}

TEST_F(HoofdMenu, ThePrintSettingsAreLoadedBehindTheWaitCursor) {
  bool gezien = false;
  const auto bekijk = [&] {
    auto* const dialoog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialoog, nullptr);
    gezien = true;
    EXPECT_EQ(dialoog->objectName(), "frmLettertype");
    EXPECT_EQ(script.KeerGewacht(), 1);
    EXPECT_FALSE(script.Wacht());
    dialoog->reject();
  };
  QMetaObject::invokeMethod(venster.get(), bekijk, Qt::QueuedConnection);
  Actie("mnuLetterType")->trigger();
  EXPECT_TRUE(gezien);
}

TEST_F(HoofdMenu, ComesWhenTheSplashGoes) {
  for (const bool bijHetLaden : {false, true}) {
    venster->hide();
    frmSplashII splash;
    splash.Toon();
    if (bijHetLaden) QTest::mouseClick(&splash, Qt::LeftButton);
    splash.Daarna(*venster, [this] { venster->show(); });
    EXPECT_EQ(venster->isVisible(), bijHetLaden);
    if (!bijHetLaden) QTest::keyClick(&splash, Qt::Key_Escape);
    EXPECT_TRUE(venster->isVisible());
    EXPECT_FALSE(splash.isVisible());
  }
}

}  // namespace
}  // namespace murvane
