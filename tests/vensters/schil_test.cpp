#include <gtest/gtest.h>

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSystemTrayIcon>
#include <QTest>

#include "basis/vensters_hulp.h"
#include "editor/vensters_blad.h"
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
  EXPECT_EQ(Tekst(splash, "lblTitel"), "MurVane");
  EXPECT_TRUE(Tekst(splash, "lblVersie").startsWith("Versie 6.7.4\n"));
  EXPECT_FALSE(Tekst(splash, "lblOmschrijving").isEmpty());
}

TEST_F(Schil, TheSplashEndsAtItsTimeAKeyOrAClick) {
  for (int wijze = 0; wijze < 3; ++wijze) {
    frmSplashII splash;
    QSignalSpy voorbij(&splash, &frmSplashII::Voorbij);
    splash.Toon();
    EXPECT_TRUE(splash.isVisible());
    EXPECT_FALSE(splash.IsVoorbij());
    if (wijze == 0) QTest::keyClick(&splash, Qt::Key_A);
    if (wijze == 1) QTest::mouseClick(&splash, Qt::LeftButton);
    if (wijze == 2) {
      EXPECT_TRUE(voorbij.wait(5000));
    }
    EXPECT_TRUE(splash.IsVoorbij());
    EXPECT_FALSE(splash.isVisible());
    EXPECT_EQ(voorbij.count(), 1);
  }
}

TEST_F(Schil, TheGradientRunsFromRedToBlack) {
  VerloopVlak vlak(SplashBegin, VerloopEinde, nullptr);
  vlak.resize(40, 100);
  const QImage beeld = vlak.grab().toImage();
  EXPECT_EQ(beeld.pixelColor(0, 0), QColor(100, 0, 0));
  EXPECT_EQ(beeld.pixelColor(39, 50), QColor(50, 0, 0));
  EXPECT_EQ(beeld.pixelColor(0, 99), QColor(1, 0, 0));
}

TEST_F(Schil, TheInformationWindowTellsProductUserAndNotes) {
  proef::Schrijf(map / "levering.txt", "Eérste regel\nTweede");
  instellingen.GebruikerLabel = std::string_view("Jansen && Zn");
  frmAbout info(instellingen, map / "levering.txt", script, nullptr);
  EXPECT_EQ(info.windowTitle(), "Info MurVane");
  EXPECT_EQ(Tekst(info, "lblProduct"), "MurVane, productversie 6.07.0004\nGebruiker :\nJansen && Zn");
  EXPECT_TRUE(Tekst(info, "lblOmschrijving").startsWith("Berekening van de geluidsniveaus ten gevolge van"));
  const auto* levering = info.findChild<QPlainTextEdit*>("txtLevering");
  EXPECT_EQ(levering->toPlainText(), QString::fromUtf8("Eérste regel\nTweede"));
  EXPECT_EQ(levering->textCursor().position(), 0);
  EXPECT_FALSE(info.findChild<QPushButton*>("lblMail")->text().isEmpty());
}

TEST_F(Schil, MissingNotesAreToldAndTheInformationOpens) {
  script.Box({MeldingSoort::Kritiek, "MurVane",
              "Onverwachte fout in procedure Form_Load van Form frmAbout.\nFout 53 - Bestand niet gevonden.",
              Knoppen::OK});
  frmAbout info(instellingen, map / "levering é.txt", script, nullptr);
  EXPECT_EQ(info.findChild<QPlainTextEdit*>("txtLevering")->toPlainText(), "");
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
  const QSize maat(175 * blad.fontMetrics().averageCharWidth(), 45 * blad.fontMetrics().lineSpacing());
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
  for (const MenuBeeld& beeld : MenuBeelden) {
    const QIcon icoon = Actie(beeld.Naam)->icon();
    ASSERT_FALSE(icoon.isNull()) << beeld.Naam;
    const QImage getekend = icoon.pixmap(32, 32).toImage();
    int gekleurd = 0;
    for (int y = 0; y < getekend.height(); ++y) {
      for (int x = 0; x < getekend.width(); ++x) gekleurd += getekend.pixelColor(x, y).alpha() > 100 ? 1 : 0;
    }
    EXPECT_GT(gekleurd, 30) << beeld.Naam;
  }
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
  QCoreApplication::processEvents();
  QAction* const taakInfo = Actie("mnuTaakInfo");
  EXPECT_TRUE(taakInfo->isEnabled());
  bool gezien = false;
  QMetaObject::invokeMethod(
      venster.get(),
      [&] {
        auto* info = venster->findChild<frmAbout*>();
        ASSERT_NE(info, nullptr);
        gezien = true;
        EXPECT_FALSE(taakInfo->isEnabled());
        info->accept();
      },
      Qt::QueuedConnection);
  Actie("mnuInfo")->trigger();
  EXPECT_TRUE(gezien);
  EXPECT_TRUE(taakInfo->isEnabled());
}

TEST_F(HoofdMenu, TheIconEndsTheProgramAsExitDoes) {
  QCoreApplication::processEvents();
  const std::filesystem::path hier = std::filesystem::current_path();
  Actie("mnuTaakExit")->trigger();
  std::filesystem::current_path(hier);
  EXPECT_FALSE(venster->isVisible());
  EXPECT_TRUE(std::filesystem::exists(map / "murvane.set"));
}

TEST_F(HoofdMenu, AManualThatIsNotThereIsNoMatter) {
  Actie("mnuHelpFile")->trigger();  // no box
}

}  // namespace
}  // namespace murvane
