// What the program asks of the desktop around it: mail, the manual and the calculator.

#include <gtest/gtest.h>

#include <QDesktopServices>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTextBrowser>
#include <QTimer>
#include <QUrl>

#include "basis/bestand.h"
#include "shell/frmAbout.h"
#include "tests/vensters/bediening.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;

/// Stands where the desktop does for addresses of one kind: each one is kept instead of opened.
class Ontvanger {
 public:
  explicit Ontvanger(const char* soort) : soort_(soort) {
    QDesktopServices::setUrlHandler(soort_, &melder_, "anchorClicked");
  }
  Ontvanger(const Ontvanger&) = delete;
  Ontvanger& operator=(const Ontvanger&) = delete;
  ~Ontvanger() { QDesktopServices::unsetUrlHandler(soort_); }

  /// The addresses since the last call, as they are sent.
  QStringList Neem() {
    QStringList uit;
    for (const QList<QVariant>& een : gekregen_) uit << QString(een.at(0).toUrl().toEncoded());
    gekregen_.clear();
    return uit;
  }

 private:
  QString soort_;
  QTextBrowser melder_;
  QSignalSpy gekregen_{&melder_, &QTextBrowser::anchorClicked};
};

/// Programs of the test in a directory that is all there is to find programs in.
class Programmas {
 public:
  Programmas() { qputenv("PATH", QByteArray::fromStdString(PadTekst(map_.Pad()))); }
  Programmas(const Programmas&) = delete;
  Programmas& operator=(const Programmas&) = delete;
  ~Programmas() { qputenv("PATH", oud_); }

  void Maak(std::string_view naam, const std::string& opdrachten) {
    proef::Schrijf(map_ / naam, "#!/bin/sh\n" + opdrachten + "\n");
    fs::permissions(map_ / naam, fs::perms::owner_all);
  }
  /// One that the system cannot start.
  void MaakKapot(std::string_view naam) {
    proef::Schrijf(map_ / naam, "#!/nergens/één\n");
    fs::permissions(map_ / naam, fs::perms::owner_all);
  }
  /// One that leaves a file with its name and its arguments.
  void MaakSpoor(std::string_view naam) {
    Maak(naam, "echo \"" + std::string(naam) + "$*\" > '" + PadTekst(Spoor()) + ".half'\n/bin/mv '" +
                   PadTekst(Spoor()) + ".half' '" + PadTekst(Spoor()) + "'");
  }
  void Verwijder(std::string_view naam) { fs::remove(map_ / naam); }
  /// What has been started, once it has.
  std::string Gestart() {
    EXPECT_TRUE(QTest::qWaitFor([this] { return fs::exists(Spoor()); }));
    std::string uit = fs::exists(Spoor()) ? proef::Lees(Spoor()) : "";
    fs::remove(Spoor());
    return uit;
  }

 private:
  fs::path Spoor() { return map_ / "gestart"; }

  proef::TijdelijkeMap map_;
  QByteArray oud_ = qgetenv("PATH");
};

class Bureaublad : public Hoofdvenster {
 protected:
  Bureaublad() { programma.ProgrammaBestanden = map.Pad() / "programma één"; }

  void MaakHulp() {
    fs::create_directories(programma.ProgrammaBestanden);
    proef::Schrijf(programma.ProgrammaBestanden / "MurVane.chm", "ITSF");
  }
  void MaakBladen() {
    fs::create_directories(programma.ProgrammaBestanden / "help");
    proef::Schrijf(programma.ProgrammaBestanden / "help" / "index.html", "<html>");
  }
  QString Adres(const char* naam) {
    return QString(QUrl::fromLocalFile(QString::fromStdString(PadTekst(programma.ProgrammaBestanden / naam)))
                       .toEncoded());
  }
  QStringList VraagHulp() {
    Kies("mnuHelpFile");
    return bestanden.Neem();
  }
  QString Gemeld() { return venster->statusBar()->currentMessage(); }
  bool Zichtbaar(const char* naam) { return venster->findChild<QLabel*>(naam)->isVisible(); }
  /// Lets the remark's time run out, after some seconds have been asked for.
  void WachtAf() {
    auto* const klok = venster->statusBar()->findChild<QTimer*>();
    ASSERT_NE(klok, nullptr);
    EXPECT_TRUE(klok->isActive());
    EXPECT_GE(klok->interval(), 3000);
    EXPECT_LE(klok->interval(), 10000);
    klok->start(0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return Gemeld().isEmpty(); }));
  }

  Programmas programmas;
  Ontvanger bestanden{"file"};
};

// The desktop tells which program shows a kind of file; nothing when none does.
constexpr const char* KentHulp =
    "[ \"$*\" = 'query default application/vnd.ms-htmlhelp' ] && echo kijker.desktop";

TEST_F(Bureaublad, AClickOnTheMailAddressOpensAMailWithItsSubject) {
  Ontvanger mail("mailto");
  proef::Schrijf(map / "levering.txt", "x");
  frmAbout info(programma.Instellingen, map / "levering.txt", script, nullptr);
  info.show();
  QTest::mouseClick(info.findChild<QPushButton*>("lblMail"), Qt::LeftButton);
  EXPECT_EQ(mail.Neem(), QStringList{"mailto:ondersteuning@murvane.example?subject=%20Feedback%20MurVane"});
  QTest::keyClick(info.findChild<QPushButton*>("lblMail"), Qt::Key_Space);
  EXPECT_EQ(mail.Neem().size(), 1);
  EXPECT_TRUE(info.isVisible());
}

TEST_F(Bureaublad, AMailProgramThatDoesNotStartIsNotTold) {
  proef::Schrijf(map / "levering.txt", "x");
  frmAbout info(programma.Instellingen, map / "levering.txt", script, nullptr);
  info.show();
  QTest::mouseClick(info.findChild<QPushButton*>("lblMail"), Qt::LeftButton);  // no box
  EXPECT_TRUE(info.isVisible());
}

TEST_F(Bureaublad, TheHelpFileIsOpenedWhereAProgramShowsIt) {
  MaakHulp();
  MaakBladen();
  programmas.Maak("xdg-mime", KentHulp);
  EXPECT_EQ(VraagHulp(), QStringList{Adres("MurVane.chm")});
  EXPECT_TRUE(Adres("MurVane.chm").endsWith("/programma%20%C3%A9%C3%A9n/MurVane.chm"));
  programmas.Maak("xdg-mime", "echo");
  EXPECT_EQ(VraagHulp(), QStringList{Adres("help/index.html")});
  programmas.Verwijder("xdg-mime");
  EXPECT_EQ(VraagHulp(), QStringList{Adres("help/index.html")});
}

TEST_F(Bureaublad, WithoutAHelpFileThePagesAreOpened) {
  MaakBladen();
  programmas.Maak("xdg-mime", KentHulp);
  EXPECT_EQ(VraagHulp(), QStringList{Adres("help/index.html")});
}

TEST_F(Bureaublad, WithoutAnyManualTheStatusBarSaysSo) {
  EXPECT_EQ(VraagHulp(), QStringList{});
  EXPECT_EQ(Gemeld(), "De handleiding is niet gevonden.");
  MaakHulp();  // and nothing that shows it
  EXPECT_EQ(VraagHulp(), QStringList{});
  EXPECT_EQ(Gemeld(), "De handleiding is niet gevonden.");
  MaakBladen();
  EXPECT_EQ(VraagHulp(), QStringList{Adres("help/index.html")});
  EXPECT_EQ(Gemeld(), "");
}

TEST_F(Bureaublad, AManualThatDoesNotOpenIsToldInTheStatusBarWithoutABox) {
  MaakBladen();
  QDesktopServices::unsetUrlHandler("file");
  Kies("mnuHelpFile");
  EXPECT_EQ(Gemeld(), "De handleiding kan niet worden geopend.");
  EXPECT_EQ(Aan(), GeenProject);
}

TEST_F(Bureaublad, StartsTheFirstCalculatorThereIs) {
  constexpr std::array<const char*, 10> Rekenmachines = {
      "xcalc",     "qalculate-qt", "qalculate-gtk",    "galculator", "lxqt-calculator", "xfce4-calculator",
      "mate-calc", "kcalc",        "gnome-calculator", "calc.exe"};
  for (const char* const naam : Rekenmachines) {
    programmas.MaakSpoor(naam);
    Kies("mnuCalc");
    EXPECT_EQ(programmas.Gestart(), std::string(naam) + "\n") << "by itself, before all that went before";
  }
}

TEST_F(Bureaublad, ACalculatorThatIsNotThereIsToldInTheStatusBarWithoutABox) {
  Kies("mnuCalc");
  EXPECT_EQ(Gemeld(), "De rekenmachine is niet gevonden.");
  EXPECT_EQ(Aan(), GeenProject);
}

TEST_F(Bureaublad, ACalculatorThatDoesNotStartIsPassedOverOrTold) {
  programmas.MaakKapot("kcalc");
  Kies("mnuCalc");
  EXPECT_EQ(Gemeld(), "De rekenmachine kan niet worden gestart.");
  programmas.MaakSpoor("xcalc");
  Kies("mnuCalc");
  EXPECT_EQ(programmas.Gestart(), "xcalc\n");
  EXPECT_EQ(Gemeld(), "");
}

// Walking through a menu clears what the status bar tells; the remark has to come behind that.
TEST_F(Bureaublad, TheRemarkStandsThereToWhoTakesTheCommandFromTheMenu) {
  venster->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(venster.get()));
  proef::Bediening(*venster).Menu({"mnuHelp", "mnuCalc"});
  EXPECT_EQ(Gemeld(), "De rekenmachine is niet gevonden.");
}

TEST_F(Bureaublad, ThePanelsComeBackAfterSomeSecondsAsTheyWere) {
  Open("kantoor.mrv");
  Kies("mnuReken");
  for (const bool berekend : {true, false}) {
    Kies("mnuCalc");
    for (const char* const naam : {"StatusBar1_1_beeld", "StatusBar1_1", "StatusBar1_2", "StatusBar1_3"})
      EXPECT_FALSE(Zichtbaar(naam)) << naam << " would stand on the remark";
    WachtAf();
    EXPECT_EQ(Zichtbaar("StatusBar1_1_beeld"), berekend);
    for (const char* const naam : {"StatusBar1_1", "StatusBar1_2", "StatusBar1_3"})
      EXPECT_TRUE(Zichtbaar(naam)) << naam;
    EXPECT_EQ(Paneel(1), "kantoor.mrv");
    ProjectVenster()->findChild<QLineEdit*>("txtProNaam")->setText("Anders");
  }
}

TEST_F(Bureaublad, TheNextCommandTakesTheRemarkAway) {
  Kies("mnuCalc");
  Kies("mnuNieuw");
  EXPECT_EQ(Gemeld(), "");
  EXPECT_TRUE(Zichtbaar("StatusBar1_1"));
  EXPECT_EQ(Paneel(1), "Naamloos");
}

}  // namespace
}  // namespace murvane
