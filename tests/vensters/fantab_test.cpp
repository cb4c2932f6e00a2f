// The fan tab in the real window: what shows of a fan that was loaded, and what the options and buttons do.

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>

#include "editor/fantab.h"
#include "editor/vensters_veld.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class Fantab : public ProjectVenster {
 protected:
  /// A project whose fan is a prognosis of 2 m³/s and 800 Pa.
  void OpenPrognose(const char* naam, std::int16_t type = fantype::Axiaal) {
    OpenVoorbeeld(naam);
    project.FanPrognose = fanbron::Prognose;
    project.Fan.FanDebiet = 2;
    project.Fan.FanDruk = 800;
    project.Fan.FanToeren = 1450;
    project.Fan.FanSchoepen = 12;
    project.Fan.FanVermogen = 2000;
    project.Fan.FanType = type;
    venster->ToonProject(true);
    KiesTab(Tab::Ventilator);
  }
  QString Gekozen() {
    QString uit;
    for (const char* naam : {"optAxiaal", "optCentriVoor", "optCentriAchter"})
      uit += Zoek<QRadioButton>(naam)->isChecked() ? '1' : '0';
    return uit;
  }
  /// Presses a button that has the focus by then, as a click gives it.
  void Klik(const char* naam) {
    auto* const knop = Zoek<QAbstractButton>(naam);
    knop->setFocus(Qt::MouseFocusReason);
    knop->click();
  }
  void KiesFan(int rij) {
    KiesTab(Tab::Ventilator);
    Zoek<QListWidget>("lstFan")->setCurrentRow(rij);
  }
  QStringList Lw() {
    QStringList uit;
    for (int band = 0; band < Banden; ++band) uit << Veld("txtLw_" + QString::number(band))->text();
    return uit;
  }
  const QStringList nullen = QStringList(Banden, "0");
};

TEST_F(Fantab, ShowsTheTypeThatWasStored) {
  struct Rij {
    std::int16_t Type;
    const char* Gekozen;
  };
  for (const Rij& rij : {Rij{3, "001"}, Rij{0, "000"}, Rij{2, "010"}, Rij{1, "100"}, Rij{3, "001"}}) {
    OpenPrognose("plafond.mrv", rij.Type);
    EXPECT_EQ(Gekozen(), rij.Gekozen) << rij.Type;
  }
}

TEST_F(Fantab, ShowsTheSourceThatWasStored) {
  for (const bool prognose : {true, false, true}) {
    OpenVoorbeeld("plafond.mrv");
    project.FanPrognose = prognose ? fanbron::Prognose : fanbron::Lijst;
    venster->ToonProject(true);
    KiesTab(Tab::Ventilator);
    EXPECT_EQ(Zoek<QRadioButton>("optPrognose")->isChecked(), prognose);
    EXPECT_EQ(Zoek<QRadioButton>("optInvoer")->isChecked(), !prognose);
    EXPECT_EQ(Zoek<QWidget>("frameFan")->isVisible(), prognose);
    EXPECT_EQ(Zoek<QWidget>("lstFan")->isVisible(), !prognose);
    for (const char* naam : {"optAxiaal", "optCentriVoor", "optCentriAchter", "cmdFanOK", "cmdFanCancel",
                             "txtfan_0", "txtfan_1", "txtfan_2", "txtfan_3", "txtfan_4"})
      EXPECT_EQ(Zoek<QWidget>(naam)->isVisible(), prognose) << naam;
  }
}

TEST_F(Fantab, ShowsTheFiveBoxesThatWereStored) {
  OpenVoorbeeld("plafond.mrv");
  project.Fan.FanDebiet = 1.257;
  project.Fan.FanDruk = 301;
  project.Fan.FanToeren = 1452;
  project.Fan.FanSchoepen = 13;
  project.Fan.FanVermogen = 554.4;
  venster->ToonProject(true);
  const QStringList teksten = {"1,26", "301", "1452", "13", "554"};
  for (int i = 0; i < FanVakken; ++i)
    EXPECT_EQ(Veld("txtfan_" + QString::number(i))->text(), teksten[i]) << i;
}

TEST_F(Fantab, ThePrognosisHandsItsFlowToTheFirstElement) {
  OpenPrognose("kantoor.mrv");
  KiesElement(3);
  KiesTab(Tab::Ventilator);
  Klik("cmdFanOK");
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), 0);
  EXPECT_EQ(venster->DeLijst().HuidigElement, 1);
  EXPECT_EQ(project.Elementen[1].Debiet, 2);
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 0);
}

// The focus of the tab only comes when the message box before the window has gone.
TEST_F(Fantab, TheChosenSourceHasTheFocusBehindAMessage) {
  OpenPrognose("plafond.mrv");
  Zoek<QRadioButton>("optPrognose")->setFocus(Qt::TabFocusReason);
  Nieuw();
  QWidget melding;
  melding.show();
  QApplication::setActiveWindow(&melding);
  KiesTab(Tab::Ventilator);
  melding.close();
  QApplication::setActiveWindow(venster.get());
  EXPECT_EQ(Focus(), "optInvoer");
}

TEST_F(Fantab, WithoutAChainThePrognosisOpensNothing) {
  Nieuw();
  KiesTab(Tab::Ventilator);
  Zoek<QRadioButton>("optPrognose")->click();
  Zoek<QRadioButton>("optCentriAchter")->click();
  Veld("txtfan_0")->setText("2");
  Veld("txtfan_1")->setText("800");
  Klik("cmdFanOK");
  EXPECT_EQ(venster->DeLijst().HuidigElement, 0);
  // 2 m³/s at 800 Pa and 70 %: 1600 / 0,7 = 2285,7
  EXPECT_EQ(Veld("txtfan_4")->text(), "2286");
  EXPECT_EQ(Veld("txtSpectrum")->text(), "Centrifugaal achterwaarts, 2 m³/s, 800 Pa, 0 toeren, 2286 W");
}

TEST_F(Fantab, BackFromThePrognosisTheFanOfTheListIsTakenAgain) {
  for (const char* terug : {"cmdFanCancel", "optInvoer"}) {
    Nieuw();
    KiesFan(2);
    const QString naam = Veld("txtSpectrum")->text();
    const QStringList lw = Lw();
    const QString som = Zoek<QLabel>("lblLwA")->text();
    Zoek<QRadioButton>("optPrognose")->click();
    Zoek<QRadioButton>("optAxiaal")->click();
    EXPECT_EQ(Lw(), nullen);
    EXPECT_EQ(Zoek<QLabel>("lblLwA")->text(), "");
    venster->VulFans();  // no row of the list is selected any more
    ASSERT_EQ(Zoek<QListWidget>("lstFan")->currentRow(), -1);
    Zoek<QAbstractButton>(terug)->click();
    EXPECT_EQ(Zoek<QListWidget>("lstFan")->currentRow(), 2) << terug;
    EXPECT_EQ(Veld("txtSpectrum")->text(), naam);
    EXPECT_EQ(Lw(), lw);
    EXPECT_EQ(Zoek<QLabel>("lblLwA")->text(), som);
    EXPECT_TRUE(Zoek<QRadioButton>("optInvoer")->isChecked());
    EXPECT_EQ(project.FanPrognose, fanbron::Lijst);
  }
}

TEST_F(Fantab, BackFromThePrognosisWithoutAFanOfTheListNothingShows) {
  OpenPrognose("plafond.mrv");
  Klik("cmdFanCancel");
  EXPECT_EQ(Veld("txtSpectrum")->text(), "");
  EXPECT_EQ(Lw(), nullen);
  EXPECT_EQ(Zoek<QLabel>("lblLwA")->text(), "");
  EXPECT_TRUE(Zoek<QRadioButton>("optInvoer")->isChecked());
  EXPECT_TRUE(Zoek<QWidget>("lstFan")->isVisible());
  EXPECT_FALSE(Zoek<QWidget>("frameFan")->isVisible());
  EXPECT_EQ(Zoek<QListWidget>("lstFan")->currentRow(), -1);
}

TEST_F(Fantab, TheLastFanOfTheListIsTakenInTheNextProjectToo) {
  for (const bool nieuw : {true, false}) {
    Nieuw();
    KiesFan(2);
    const QString naam = Veld("txtSpectrum")->text();
    const QStringList lw = Lw();
    if (nieuw) {
      Nieuw();
      KiesTab(Tab::Ventilator);
      Zoek<QRadioButton>("optPrognose")->click();
    } else {
      OpenPrognose("plafond.mrv");
    }
    EXPECT_EQ(Zoek<QListWidget>("lstFan")->currentRow(), -1);
    Zoek<QRadioButton>("optInvoer")->click();
    EXPECT_EQ(Zoek<QListWidget>("lstFan")->currentRow(), 2);
    EXPECT_EQ(Veld("txtSpectrum")->text(), naam);
    EXPECT_EQ(Lw(), lw);
  }
}

TEST_F(Fantab, TheLastFanOfALongerListIsNotTaken) {
  Nieuw();
  KiesFan(catalogi.CatFans.Aantal - 1);
  Nieuw();
  --catalogi.CatFans.Aantal;
  venster->VulFans();
  KiesTab(Tab::Ventilator);
  Zoek<QRadioButton>("optPrognose")->click();
  Zoek<QRadioButton>("optInvoer")->click();
  EXPECT_EQ(Zoek<QListWidget>("lstFan")->currentRow(), -1);
  EXPECT_EQ(Veld("txtSpectrum")->text(), "");
  EXPECT_EQ(Lw(), nullen);
}

TEST_F(Fantab, AClickThatARedFieldHoldsLeavesTheListAsThisProjectHasIt) {
  Nieuw();
  KiesFan(2);
  Nieuw();
  KiesTab(Tab::Ventilator);
  NaarVeld("txtLw_0");
  Typ("1,2,3");
  auto* const lijst = Zoek<QListWidget>("lstFan");
  const auto klik = [lijst](int rij) {
    QTest::mouseClick(lijst->viewport(), Qt::LeftButton, {},
                      lijst->visualItemRect(lijst->item(rij)).center());
    QCoreApplication::processEvents();
  };
  klik(1);
  EXPECT_EQ(lijst->currentRow(), -1);
  Druk(Qt::Key_Escape);
  klik(1);
  ASSERT_EQ(lijst->currentRow(), 1);
  NaarVeld("txtLw_0");
  Typ("1,2,3");
  klik(0);
  EXPECT_EQ(lijst->currentRow(), 1);
}

TEST_F(Fantab, AnotherSourceAfterARunIsAChange) {
  OpenVoorbeeld("kantoor.mrv");
  project.FanPrognose = fanbron::Lijst;
  venster->ToonProject(true);
  KiesTab(Tab::Ventilator);
  const auto klik = [this](const char* naam) {
    MaakBerekend();
    Klik(naam);
    return venster->DeSessie().Toestand;
  };
  EXPECT_EQ(klik("optInvoer"), Toestand::Berekend) << "it was the source already";
  EXPECT_EQ(klik("optPrognose"), Toestand::Open);
  EXPECT_EQ(klik("optPrognose"), Toestand::Berekend);
  Klik("optAxiaal");  // nothing is left on screen that the list could clear
  EXPECT_EQ(klik("optInvoer"), Toestand::Open);
  Klik("optPrognose");
  EXPECT_EQ(klik("cmdFanCancel"), Toestand::Open);
}

TEST_F(Fantab, AnotherSourceLeavesNoRedField) {
  OpenPrognose("plafond.mrv");
  Veld("txtfan_0")->setText("0");
  Veld("txtfan_4")->setText("1,2,3");
  script.Box(Waarschuwing("Geen geldende waarde ingevuld"));
  Klik("cmdFanOK");
  ASSERT_TRUE(IsRood("txtfan_4"));
  Klik("optInvoer");
  EXPECT_EQ(project.FanPrognose, fanbron::Lijst);
  EXPECT_FALSE(IsRood("txtfan_4"));
  EXPECT_EQ(Veld("txtfan_4")->toolTip(), "");
  EXPECT_EQ(Veld("txtfan_4")->text(), "2000");
}

TEST_F(Fantab, AFlowOrPressureOfZeroGetsTheFocus) {
  for (const char* naam : {"txtfan_0", "txtfan_1"}) {
    OpenPrognose("plafond.mrv");
    Veld(naam)->setText("0");
    script.Box(Waarschuwing("Geen geldende waarde ingevuld"));
    Klik("cmdFanOK");
    QCoreApplication::processEvents();
    EXPECT_EQ(Focus(), naam);
    EXPECT_EQ(project.Fan.FanDebiet, 2);
    EXPECT_EQ(project.Fan.FanDruk, 800);
  }
}

TEST_F(Fantab, AFlowOfZeroComesBeforeABoxThatIsNoNumber) {
  OpenPrognose("plafond.mrv");
  Veld("txtfan_0")->setText("0");
  Veld("txtfan_4")->setText("1,2,3");
  script.Box(Waarschuwing("Geen geldende waarde ingevuld"));
  Klik("cmdFanOK");
  QCoreApplication::processEvents();
  EXPECT_EQ(Focus(), "txtfan_0");
  EXPECT_TRUE(IsRood("txtfan_4"));
  EXPECT_FALSE(IsRood("txtfan_0"));
}

TEST_F(Fantab, ABoxThatIsNoNumberGetsTheFocusWithoutAMessage) {
  OpenPrognose("plafond.mrv");
  Veld("txtfan_3")->setText("1,2,3");
  Klik("cmdFanOK");
  QCoreApplication::processEvents();
  EXPECT_EQ(Focus(), "txtfan_3");
  EXPECT_TRUE(IsRood("txtfan_3"));
  EXPECT_EQ(Veld("txtfan_3")->toolTip(), "Voer geldig getal in");
}

TEST_F(Fantab, ThePrognosisLeavesTheFocusOnItsOption) {
  OpenVoorbeeld("plafond.mrv");
  project.FanPrognose = fanbron::Lijst;
  venster->ToonProject(true);
  KiesTab(Tab::Ventilator);
  Klik("optPrognose");
  EXPECT_EQ(Focus(), "optPrognose");
  EXPECT_TRUE(Veld("txtfan_0")->isVisible());
}

TEST_F(Fantab, ATypeClearsTheDisplayAndLeavesTheSpectrum) {
  struct Rij {
    const char* Naam;
    std::int16_t Type;
  };
  for (const Rij& rij : {Rij{"optCentriVoor", 2}, Rij{"optCentriAchter", 3}, Rij{"optAxiaal", 1}}) {
    OpenPrognose("plafond.mrv", fantype::Geen);
    const Spectrum was = project.Fan.Lw;
    Zoek<QRadioButton>(rij.Naam)->click();
    EXPECT_EQ(project.Fan.FanType, rij.Type);
    EXPECT_EQ(project.Fan.Lw, was);
    EXPECT_EQ(Veld("txtSpectrum")->text(), "");
    EXPECT_EQ(Lw(), nullen);
    EXPECT_EQ(Zoek<QLabel>("lblLwA")->text(), "");
  }
}

TEST_F(Fantab, TheLevelBesideTheBandsReadsInFull) {
  OpenVoorbeeld("plafond.mrv");
  for (int band = 0; band < Banden; ++band) project.Fan.Lw[static_cast<std::size_t>(band)] = 0;
  project.Fan.Lw[7] = 81.25;
  venster->ToonProject(true);
  EXPECT_EQ(Zoek<QLabel>("lblLwA")->text(), "Lw,A = 81,3 dB(A)");
}

TEST_F(Fantab, HasItsCaptionsAndUnits) {
  Nieuw();
  EXPECT_EQ(Zoek<QRadioButton>("optInvoer")->text(), "Ventilator uit de lijst");
  EXPECT_EQ(Zoek<QRadioButton>("optPrognose")->text(), "Prognose uit de ventilatorgegevens");
  EXPECT_EQ(Zoek<QRadioButton>("optAxiaal")->text(), "Axiaal");
  EXPECT_EQ(Zoek<QRadioButton>("optCentriVoor")->text(), "Centrifugaal, voorwaarts gebogen");
  EXPECT_EQ(Zoek<QRadioButton>("optCentriAchter")->text(), "Centrifugaal, achterwaarts gebogen");
  EXPECT_EQ(Zoek<QPushButton>("cmdFanOK")->text(), "OK");
  EXPECT_EQ(Zoek<QPushButton>("cmdFanCancel")->text(), "Annuleren");
}

}  // namespace
}  // namespace murvane
