// The start with the real boxes and dialogs: from the data directory to the main window, or to the end.

#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTabWidget>
#include <memory>

#include "basis/bestand.h"
#include "editor/vensters_dialogen.h"
#include "shell/MDIMurvane.h"
#include "shell/opstart.h"
#include "tests/hulp/beeld.h"
#include "tests/vensters/bediening.h"
#include "tests/vensters/robot.h"

namespace murvane::proef {
namespace {

namespace fs = std::filesystem;

constexpr const char* Catalogusbestanden[] = {"Duct.dat", "Fan.dat", "Rduct.dat", "Rplaf.dat"};
constexpr const char* NietGevonden = "Opstartbestand(en) niet gevonden";

class EchteStart : public testing::Test {
 protected:
  EchteStart() : data(map / "gegevens één") { KopieerData(data); }

  /// What the program does; the main window comes to exist only when the start succeeds.
  Vervolg Start(std::string_view opdrachtregel = {}) {
    const Vervolg vervolg =
        MDIForm_Load(programma, dialogen, {data, DatumVeld("20-11-2026"), opdrachtregel, ','});
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    if (vervolg == Vervolg::Einde) return vervolg;
    venster = std::make_unique<MDIMurvane>(programma, dialogen);
    venster->show();
    venster->OpenVanOpdrachtregel();
    return vervolg;
  }
  /// A critical box with these words, left by a key.
  void Box(const QString& titel, const QString& tekst, Qt::Key toets = Qt::Key_Return) {
    robot.Dan([titel, tekst, toets](QDialog& dialoog) {
      auto& box = dynamic_cast<QMessageBox&>(dialoog);
      EXPECT_EQ(box.icon(), QMessageBox::Critical);
      EXPECT_EQ(box.windowTitle(), titel);
      EXPECT_EQ(box.text(), tekst);
      EXPECT_EQ(QApplication::overrideCursor(), nullptr);
      Robot::Druk(box, toets);
    });
  }
  /// The search for the settings file, answered by typing a name; an empty one cancels it.
  void Zoek(const fs::path& in, const fs::path& naam) {
    robot.Dan([in, naam](QDialog& dialoog) {
      auto& bestand = dynamic_cast<QFileDialog&>(dialoog);
      EXPECT_EQ(bestand.windowTitle(), "Openen");
      EXPECT_EQ(bestand.nameFilters(), QStringList{"Bestand murvane.set (murvane.set)"});
      EXPECT_EQ(bestand.acceptMode(), QFileDialog::AcceptOpen);
      EXPECT_EQ(bestand.directory().absolutePath(), QString::fromStdString(PadTekst(in)));
      if (naam.empty()) return Robot::Druk(dialoog, Qt::Key_Escape);
      auto* const vak = dialoog.findChild<QLineEdit*>("fileNameEdit");
      vak->selectAll();
      for (const QChar teken : QString::fromStdString(PadTekst(naam)))
        Robot::Druk(dialoog, static_cast<Qt::Key>(teken.unicode()), teken);
      Robot::Druk(dialoog, Qt::Key_Return);
    });
  }
  void IsGestart() {
    ASSERT_NE(venster, nullptr);
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ(venster->findChild<QLabel*>("StatusBar1_1")->text(), "Geen bestand");
    EXPECT_FALSE(venster->findChild<QTabWidget*>("SSTab1")->isVisible());
    EXPECT_TRUE(venster->findChild<QAction*>("mnuNieuw")->isEnabled());
    EXPECT_GT(programma.Catalogi.CatElementen.Aantal, 11);
  }

  TijdelijkeMap map;
  fs::path data;
  SchermDialogen dialogen;
  murvane::Programma programma;
  std::unique_ptr<MDIMurvane> venster;
  Robot robot;
};

TEST_F(EchteStart, ShowsTheEmptyProjectWindow) {
  EXPECT_EQ(Start(), Vervolg::GaatDoor);
  IsGestart();
}

TEST_F(EchteStart, FindsItsSettingsThroughTheDialog) {
  fs::rename(data, map / "verhuisd één");
  fs::create_directory(data);
  Box("Foutmelding", NietGevonden);
  Zoek(data, map / "verhuisd één" / "murvane.set");
  EXPECT_EQ(Start(), Vervolg::GaatDoor);
  EXPECT_TRUE(fs::equivalent(programma.DataDir, map / "verhuisd één"));
  IsGestart();
}

TEST_F(EchteStart, AsksAgainForEachMissingCatalogue) {
  for (const char* const naam : Catalogusbestanden) {
    KopieerData(data);
    KopieerData(map / "heel");
    fs::remove(data / naam);
    Box("Foutmelding", NietGevonden, Qt::Key_Escape);
    Zoek(data, data / "murvane.set");  // the same directory: the same message again
    Box("Foutmelding", NietGevonden);
    Zoek(data, map / "heel" / "murvane.set");
    EXPECT_EQ(Start(), Vervolg::GaatDoor) << naam;
    IsGestart();
    venster.reset();
  }
}

TEST_F(EchteStart, ACancelledDialogEndsTheProgram) {
  fs::remove(data / "murvane.set");
  Box("Foutmelding", NietGevonden);
  Zoek(data, {});
  Box("Opstartfout", " geen of onbruikbaar opstartbestand");
  EXPECT_EQ(Start(PadTekst(BronData / "kantoor.mrv")), Vervolg::Einde);
  EXPECT_EQ(venster, nullptr);
}

TEST_F(EchteStart, AWrongFileEndsTheProgram) {
  fs::remove(data / "murvane.set");
  const fs::path fout = map / "één.txt";
  Schrijf(fout, "x");
  Box("Foutmelding", NietGevonden);
  Zoek(data, fout);
  Box("Opstartfout", QString::fromStdString(PadTekst(fout)) + " geen of onbruikbaar opstartbestand",
      Qt::Key_Escape);
  EXPECT_EQ(Start(), Vervolg::Einde);
  EXPECT_EQ(venster, nullptr);
}

TEST_F(EchteStart, ACatalogueOf501RecordsEndsTheProgram) {
  for (const char* const naam : Catalogusbestanden) {
    KopieerData(data);
    std::string bytes = Lees(data / naam);
    Zet(bytes, 0, I16(501));
    bytes.resize(2 + 501 * 300, ' ');
    Schrijf(data / naam, bytes);
    Box("MurVane",
        QString("Onverwachte fout in procedure MDIForm_Load van Form MDIMurvane.\nFout 9 - Index buiten "
                "het bereik in het bestand '%1'.")
            .arg(naam));
    EXPECT_EQ(Start(PadTekst(BronData / "kantoor.mrv")), Vervolg::Einde) << naam;
    EXPECT_EQ(venster, nullptr);
  }
}

TEST_F(EchteStart, AProjectThatCannotBeReadIsToldOnceAndForgotten) {
  Box("MurVane",
      "Onverwachte fout in procedure mnuOpen_Click van Form MDIMurvane.\nFout 53 - Het bestand 'weg één.mrv' "
      "is "
      "niet gevonden.",
      Qt::Key_Escape);
  EXPECT_EQ(Start(PadTekst(map / "weg één.mrv")), Vervolg::GaatDoor);
  EXPECT_TRUE(programma.OpenBestand.empty());
  IsGestart();
}

}  // namespace
}  // namespace murvane::proef
