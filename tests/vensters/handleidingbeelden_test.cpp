// The pictures of the manual that the walk through the windows does not make.
// They are kept where MURVANE_BEELDEN names a directory.

#include <gtest/gtest.h>

#include <QPixmap>

#include "catalogue/frmOnderhoud.h"
#include "catalogue/frmOverzicht.h"
#include "reports/frmPreView.h"
#include "shell/afdrukken.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class HandleidingBeelden : public testing::Test {
 protected:
  HandleidingBeelden() {
    programma.Catalogi = LeesCatalogi(Data);
    programma.DataDir = map.Pad();
    programma.Vandaag = std::string_view("20-11-2026");
    programma.Instellingen.Gebruikersnaam = std::string_view("Adviesbureau Voorbeeld");
    programma.Instellingen.Druk = StandaardDrukInstelling();
  }

  void Bereken() {
    hoofd = std::make_unique<MDIMurvane>(programma, script);
    programma.OpenBestand = Data / "kantoor.mrv";
    hoofd->OpenVanOpdrachtregel();
    hoofd->findChild<QAction*>("mnuReken")->trigger();
  }

  /// Shows the window, and keeps its picture by its name.
  static void Maak(QWidget& venster) {
    venster.show();
    QCoreApplication::processEvents();
    const QPixmap beeld = venster.grab();
    EXPECT_GE(beeld.width(), 250);
    EXPECT_LE(beeld.width(), 1024);
    EXPECT_LE(beeld.height(), 768);
    const QString doel = qEnvironmentVariable("MURVANE_BEELDEN");
    if (!doel.isEmpty()) {
      EXPECT_TRUE(beeld.save(doel + "/" + venster.objectName() + ".png"));
    }
  }

  proef::TijdelijkeMap map;
  proef::Script script{[](const std::string& fout) { ADD_FAILURE() << fout; }};
  Programma programma;
  std::unique_ptr<MDIMurvane> hoofd;
};

TEST_F(HandleidingBeelden, HaveTheMaintenanceOfTheElements) {
  frmOnderhoud venster(CatalogusSoort::Kanaalelementen,
                       {programma.Catalogi, programma.SchatInvoer, script, map.Pad(), "20-11-2026", ','});
  venster.show();
  venster.findChild<QListWidget*>("lstSpectrum")->setCurrentRow(13);
  Maak(venster);
}

TEST_F(HandleidingBeelden, HaveAnOverview) {
  frmOverzicht venster(Overzicht(programma.Catalogi, CatalogusSoort::Ventilatoren, OverzichtWijze::Zoeken,
                                 "axiaal", "20-11-2026", ','),
                       script);
  venster.resize(1000, 500);
  Maak(venster);
}

TEST_F(HandleidingBeelden, HaveThePreview) {
  Bereken();
  script.Box({MeldingSoort::Vraag, "Afdrukinstelling", "Afdrukken met grafiek?", Knoppen::YesNo},
             Antwoord::No);
  frmPreView venster(programma.Voorbeeld);
  LaadVoorbeeld(
      programma, script, [] { return kiesgrafiek::Geen; }, venster.Document());
  venster.resize(850, 760);
  venster.ToonBlad();
  Maak(venster);
}

}  // namespace
}  // namespace murvane
