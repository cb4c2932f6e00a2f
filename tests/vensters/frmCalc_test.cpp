#include "estimators/frmCalc.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <map>
#include <memory>

#include "basis/tekst.h"
#include "basis/vensters_hulp.h"
#include "editor/vensters_tekening.h"
#include "estimators/vensters_staven.h"
#include "tests/hulp/script.h"
#include "tests/vensters/beeld.h"

namespace murvane {
namespace {

const Melding GeenGeldige = {MeldingSoort::Uitroep, "Waarschuwing", "Geen geldige waarde(n) ingevuld"};
constexpr std::array Soorten = {Schatter::Bekleed, Schatter::KwartLambda, Schatter::Plenum,
                                Schatter::Kanaalwand};

class SchatVensters : public testing::Test {
 protected:
  SchatVensters() : script([](const std::string& fout) { ADD_FAILURE() << fout; }) {}

  void Open(Schatter soort, char decimaal = ',') {
    venster = std::make_unique<frmCalc>(soort, invoer, script, decimaal);
    venster->show();
    QApplication::setActiveWindow(venster.get());
  }

  template <typename Soort>
  Soort* Zoek(const QString& naam) {
    auto* const gevonden = venster->findChild<Soort*>(naam);
    if (gevonden == nullptr) throw std::runtime_error("no control " + naam.toStdString());
    return gevonden;
  }
  QLineEdit* Veld(const QString& naam) { return Zoek<QLineEdit>(naam); }
  QString Focus() { return venster->focusWidget() == nullptr ? "" : venster->focusWidget()->objectName(); }
  void Typ(const QString& tekst) { QTest::keyClicks(QApplication::focusWidget(), tekst); }
  void Druk(Qt::Key toets) { QTest::keyClick(QApplication::focusWidget(), toets); }
  /// Types into the fields one after the other, with Enter behind each.
  void Vul(const QStringList& teksten) {
    for (const QString& tekst : teksten) {
      Typ(tekst);
      Druk(Qt::Key_Return);
    }
  }
  void Klik(const char* naam) { QTest::mouseClick(Zoek<QPushButton>(naam), Qt::LeftButton); }
  bool IsRood(const QString& naam) {
    return Veld(naam)->palette().color(QPalette::Base) == KleurVan(FoutKleur);
  }
  QString Voorbeeld() { return Zoek<QWidget>("Staven")->accessibleName(); }
  QString Omschrijving() { return Zoek<QLabel>("lblOmschrijving")->text(); }
  std::string Naam() { return venster->Uitkomst() ? venster->Uitkomst()->Omschrijving : "<none>"; }
  std::string Waarden() {
    std::string uit;
    if (!venster->Uitkomst()) return uit;
    for (const std::string& waarde : venster->Uitkomst()->Demping) uit += " " + waarde;
    return uit.substr(1);
  }

  proef::Script script;
  SchatInvoer invoer;
  std::unique_ptr<frmCalc> venster;
};

TEST_F(SchatVensters, CarryTheirTextsAndStartAtTheFirstField) {
  for (const Schatter soort : Soorten) {
    Open(soort);
    const SchatVenster& tabel = VensterVan(soort);
    EXPECT_EQ(venster->objectName(), VanCp(tabel.Naam));
    EXPECT_EQ(venster->windowTitle(), VanCp(tabel.Titel));
    EXPECT_EQ(Focus(), VanCp(tabel.Velden[0].Regel.Naam));
    for (const SchatVeld& veld : tabel.Velden) {
      const QString naam = VanCp(veld.Regel.Naam);
      EXPECT_EQ(Zoek<QLabel>("lbl" + naam)->text(), VanCp(veld.Label));
      EXPECT_EQ(Zoek<QLabel>("lbl" + naam)->buddy(), Veld(naam));
      EXPECT_EQ(Zoek<QLabel>("lblEenheid" + naam)->text(), VanCp(veld.Eenheid));
      EXPECT_EQ(Veld(naam)->accessibleName(), VanCp(veld.Label) + " in " + VanCp(veld.Eenheid));
    }
    EXPECT_EQ(Zoek<QPushButton>("cmdOK")->text(), "&OK");
    EXPECT_EQ(Zoek<QPushButton>("cmdCancel")->text(), "&Annuleren");
    EXPECT_EQ(Zoek<Tekening>("Tekening")->accessibleName(), "Tekening: " + VanCp(tabel.Titel));
  }
}

TEST_F(SchatVensters, OpenWithZerosInTheFormatsOfTheFields) {
  Open(Schatter::KwartLambda);
  for (const auto& [naam, tekst] :
       std::map<QString, QString>{{"Text1", "0"}, {"Text2", "0"}, {"Text3", "0,0"}, {"Text4", "0,00"}})
    EXPECT_EQ(Veld(naam)->text(), tekst);
  Open(Schatter::Kanaalwand, '.');
  EXPECT_EQ(Veld("txtDikte")->text(), "0");
  EXPECT_EQ(Veld("txtMassa")->text(), "0.0");
}

// The numbers are worked by hand where each estimator is tested.
TEST_F(SchatVensters, TheFieldThatIsRefusedIsSelectedWhole) {
  Open(Schatter::Bekleed);
  Veld("Text1")->deselect();
  script.Box(GeenGeldige);
  Zoek<QPushButton>("cmdOK")->click();
  script.IsKlaar();
  EXPECT_EQ(Focus(), "Text1");
  EXPECT_EQ(Veld("Text1")->selectedText(), "0");
}

TEST_F(SchatVensters, OKDeliversTheEstimateOfWhatWasTyped) {
  struct Rij {
    Schatter soort;
    QStringList teksten;
    std::string_view naam, waarden;
  };
  for (const Rij& rij : std::initializer_list<Rij>{
           {Schatter::Bekleed,
            {"500", "0", "25", "1"},
            "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m",
            "0 0 2 4 3 1 0"},
           {Schatter::KwartLambda,
            {"200", "0", "1", "0.5"},
            "kwartlambda-demper, s2/s1 = 15,9 , L = 1 m",
            "17 15 18 5 10 15 18"},
           {Schatter::Plenum,
            {"600", "800", "1,2", "200", "300", "25"},
            "plenumdemper, 600×800×1200 mm , d = 25 mm"_cp,
            "5 9 14 15 16 17 16"},
           {Schatter::Kanaalwand,
            {"2", "5,5"},
            "verzinkt staal,  2 mm, massa ontdreuning  5,5 kg/m²"_cp,
            "16 21 26 31 35 36 39"},
       }) {
    Open(rij.soort);
    Vul(rij.teksten);
    EXPECT_EQ(Naam(), "<none>");  // nothing until OK
    Klik("cmdOK");
    EXPECT_FALSE(venster->isVisible());
    EXPECT_EQ(venster->result(), QDialog::Accepted);
    EXPECT_EQ(Naam(), rij.naam);
    EXPECT_EQ(Waarden(), rij.waarden);
  }
}

TEST_F(SchatVensters, CancelDeliversNothingAndKeepsTheInput) {
  Open(Schatter::Bekleed);
  Vul({"500", "0", "25"});
  Typ("2,5");  // not left yet
  Klik("cmdCancel");
  EXPECT_FALSE(venster->isVisible());
  EXPECT_EQ(Naam(), "<none>");
  Open(Schatter::Bekleed);
  EXPECT_EQ(Veld("Text1")->text(), "500");
  EXPECT_EQ(Veld("Text3")->text(), "25");
  EXPECT_EQ(Veld("Text4")->text(), "2,5");
}

TEST_F(SchatVensters, EachKeepsItsOwnLastInput) {
  Open(Schatter::Bekleed);
  Vul({"500", "0", "25", "1"});
  Klik("cmdOK");
  Open(Schatter::KwartLambda);
  EXPECT_EQ(Veld("Text1")->text(), "0");
  Vul({"200"});
  Klik("cmdCancel");
  Open(Schatter::Bekleed);
  EXPECT_EQ(Veld("Text1")->text(), "500");
  EXPECT_EQ(Omschrijving(), "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m");
  Open(Schatter::KwartLambda);
  EXPECT_EQ(Veld("Text1")->text(), "200");
}

TEST_F(SchatVensters, EnterGoesRoundTheFields) {
  for (const Schatter soort : Soorten) {
    Open(soort);
    const auto velden = VensterVan(soort).Velden;
    for (std::size_t i = 1; i <= velden.size(); ++i) {
      Druk(i % 2 == 0 ? Qt::Key_Enter : Qt::Key_Return);
      EXPECT_EQ(Focus(), VanCp(velden[i % velden.size()].Regel.Naam));
      EXPECT_TRUE(Veld(Focus())->hasSelectedText());
    }
    EXPECT_TRUE(venster->isVisible());
  }
}

TEST_F(SchatVensters, EscapeInAFieldMakesIt0) {
  Open(Schatter::Bekleed);
  Vul({"500", "600", "25"});
  Typ("7,5");
  Druk(Qt::Key_Escape);
  EXPECT_TRUE(venster->isVisible());
  EXPECT_EQ(Veld("Text4")->text(), "0");
  Druk(Qt::Key_Return);
  EXPECT_EQ(Veld("Text4")->text(), "0,0");
  EXPECT_EQ(invoer.Bekleed.L, 0);
}

TEST_F(SchatVensters, EscapeOnAButtonCancels) {
  Open(Schatter::Bekleed);
  Vul({"500", "0", "25", "1"});
  Zoek<QPushButton>("cmdOK")->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Escape);
  EXPECT_FALSE(venster->isVisible());
  EXPECT_EQ(Naam(), "<none>");
}

TEST_F(SchatVensters, EnterPressesTheButtonThatHasTheFocusAndNoOther) {
  Open(Schatter::Kanaalwand);
  Vul({"2", "0"});
  Zoek<QRadioButton>("optAlu")->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Return);
  EXPECT_TRUE(venster->isVisible());
  EXPECT_FALSE(Zoek<QPushButton>("cmdOK")->isDefault());  // nothing promises otherwise
  Zoek<QPushButton>("cmdOK")->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Enter);
  EXPECT_EQ(venster->result(), QDialog::Accepted);
  Open(Schatter::Kanaalwand);
  Zoek<QPushButton>("cmdCancel")->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Return);
  EXPECT_FALSE(venster->isVisible());
  EXPECT_EQ(Naam(), "<none>");
}

TEST_F(SchatVensters, ARefusalIsToldAndTheFocusGoesToItsField) {
  struct Rij {
    Schatter soort;
    QStringList teksten;
    const char* focus;
  };
  for (const Rij& rij : std::initializer_list<Rij>{
           {Schatter::Bekleed, {"0", "0", "25", "1"}, "Text1"},
           {Schatter::Bekleed, {"500", "0", "250", "1"}, "Text3"},
           {Schatter::Bekleed, {"500", "0", "25", "0"}, "Text4"},
           {Schatter::KwartLambda, {"0", "0", "1", "1"}, "Text1"},
           {Schatter::KwartLambda, {"200", "0", "0", "1"}, "Text3"},
           {Schatter::KwartLambda, {"200", "0", "1", "0"}, "Text4"},
           {Schatter::KwartLambda, {"200", "0", "1", "0,03"}, "Text4"},  // narrower than the duct: one box
           {Schatter::Plenum, {"0", "800", "1", "200", "0", "25"}, "Text1"},
           {Schatter::Plenum, {"600", "0", "1", "200", "0", "25"}, "Text2"},
           {Schatter::Plenum, {"600", "800", "0", "200", "0", "25"}, "Text3"},
           {Schatter::Plenum, {"600", "800", "1", "600", "0", "25"}, "Text4"},
           {Schatter::Plenum, {"600", "800", "1", "200", "801", "25"}, "Text5"},
           {Schatter::Plenum, {"600", "800", "1", "200", "0", "300"}, "Text6"},
       }) {
    Open(rij.soort);
    Vul(rij.teksten);
    script.Box(GeenGeldige);
    Klik("cmdOK");
    script.IsKlaar();
    EXPECT_TRUE(venster->isVisible());
    EXPECT_EQ(Focus(), rij.focus);
    EXPECT_EQ(Naam(), "<none>");
    invoer = {};
  }
}

TEST_F(SchatVensters, AWallWithoutThicknessIsRefused) {
  Open(Schatter::Kanaalwand);
  Vul({"0", "5"});
  script.Box({MeldingSoort::Uitroep, "Waarschuwing", "Geen dikte kanaalwand ingevuld"});
  Klik("cmdOK");
  EXPECT_TRUE(venster->isVisible());
  EXPECT_EQ(Focus(), "txtDikte");
}

TEST_F(SchatVensters, ARefusalCanBePutRight) {
  Open(Schatter::Bekleed);
  Vul({"500", "0", "250", "1"});
  script.Box(GeenGeldige);
  Klik("cmdOK");
  Typ("25");
  Klik("cmdOK");
  EXPECT_FALSE(venster->isVisible());
  EXPECT_EQ(Waarden(), "0 0 2 4 3 1 0");
}

TEST_F(SchatVensters, AFieldTakesItsKeysAndNoOthers) {
  Open(Schatter::Bekleed);
  Typ("1.2,3-x");
  EXPECT_EQ(Veld("Text1")->text(), "123");
  EXPECT_TRUE(IsRood("Text1"));
  Druk(Qt::Key_Return);  // the text itself is right
  EXPECT_FALSE(IsRood("Text1"));
  Open(Schatter::Kanaalwand);
  Druk(Qt::Key_Return);
  Typ("1.5x");
  EXPECT_EQ(Veld("txtMassa")->text(), "1.5");
}

TEST_F(SchatVensters, AFieldIsClampedWhenItIsLeft) {
  Open(Schatter::Kanaalwand);
  Vul({"101", "100,06"});
  EXPECT_EQ(Veld("txtDikte")->text(), "100");
  EXPECT_EQ(Veld("txtMassa")->text(), "100,0");
  Open(Schatter::Bekleed);
  Vul({"5001"});
  EXPECT_EQ(Veld("Text1")->text(), "5000");
}

TEST_F(SchatVensters, ARedFieldHoldsTheFocusAndOKDoesNothing) {
  Open(Schatter::Bekleed);
  Vul({"500", "0", "25"});
  Typ("1,2,3");
  Klik("cmdOK");
  QApplication::processEvents();
  EXPECT_TRUE(venster->isVisible());
  EXPECT_EQ(Focus(), "Text4");
  EXPECT_TRUE(IsRood("Text4"));
  EXPECT_EQ(Veld("Text4")->text(), "1,2,3");
  EXPECT_EQ(Veld("Text4")->toolTip(), "Voer geldig getal in");
  Zoek<QPushButton>("cmdOK")->click();  // as by a short-cut, without leaving the field
  QApplication::processEvents();
  EXPECT_TRUE(venster->isVisible());
  EXPECT_EQ(Focus(), "Text4");
  Druk(Qt::Key_Escape);
  EXPECT_FALSE(IsRood("Text4"));
  EXPECT_EQ(Veld("Text4")->toolTip(), "");
  Typ("1");
  EXPECT_EQ(Veld("Text4")->text(), "01");
  Klik("cmdOK");
  EXPECT_EQ(Waarden(), "0 0 2 4 3 1 0");
}

TEST_F(SchatVensters, ARedFieldDoesNotHoldCancel) {
  Open(Schatter::Bekleed);
  Vul({"500", "0", "25"});
  Typ("1,2,3");
  Klik("cmdCancel");
  QApplication::processEvents();
  EXPECT_FALSE(venster->isVisible());
  EXPECT_EQ(Naam(), "<none>");
  Open(Schatter::Bekleed);
  EXPECT_EQ(Veld("Text4")->text(), "0,0");
}

TEST_F(SchatVensters, TheMaterialIsChosenAndKept) {
  Open(Schatter::Kanaalwand);
  EXPECT_TRUE(Zoek<QRadioButton>("optZink")->isChecked());
  EXPECT_EQ(Zoek<QRadioButton>("optZink")->text(), "verzinkt staal");
  EXPECT_EQ(Zoek<QRadioButton>("optRVS")->text(), "rvs staal");
  EXPECT_EQ(Zoek<QRadioButton>("optAlu")->text(), "aluminium");
  EXPECT_EQ(Zoek<QRadioButton>("optKunststof")->text(), "kunststof");
  Typ("1");
  for (const auto& [naam, omschrijving] : std::map<QString, QString>{{"optRVS", "rvs staal,  1 mm"},
                                                                     {"optAlu", "aluminium,  1 mm"},
                                                                     {"optZink", "verzinkt staal,  1 mm"},
                                                                     {"optKunststof", "kunststof,  1 mm"}}) {
    QTest::mouseClick(Zoek<QRadioButton>(naam), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(Omschrijving(), omschrijving);
  }
  QTest::mouseClick(Zoek<QRadioButton>("optKunststof"), Qt::LeftButton, {}, QPoint(8, 8));
  Klik("cmdOK");
  EXPECT_EQ(Naam(), "kunststof,  1 mm");
  EXPECT_EQ(Waarden(), "-4 1 6 11 16 21 26");
  Open(Schatter::Kanaalwand);
  EXPECT_TRUE(Zoek<QRadioButton>("optKunststof")->isChecked());
}

TEST_F(SchatVensters, TabGoesRoundByTheChosenMaterial) {
  invoer.Kanaalwand = {kanaaltype::Alu, 2, 5};
  Open(Schatter::Kanaalwand);
  for (const char* const naam : {"txtMassa", "cmdOK", "cmdCancel", "optAlu", "txtDikte"}) {
    Druk(Qt::Key_Tab);
    EXPECT_EQ(Focus().toStdString(), naam);
  }
  Zoek<QRadioButton>("optAlu")->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Down);
  EXPECT_EQ(Omschrijving(), "kunststof,  2 mm, massa ontdreuning  5 kg/m²");
  Zoek<QPushButton>("cmdCancel")->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Tab);
  EXPECT_EQ(Focus().toStdString(), "optKunststof");
}

TEST_F(SchatVensters, ThePreviewFollowsTheTyping) {
  const QString nogNiets = "Demping in dB: Het voorbeeld verschijnt zodra de waarden geldig zijn.";
  Open(Schatter::Bekleed);
  EXPECT_EQ(Voorbeeld(), nogNiets);
  Vul({"500", "0", "25"});
  EXPECT_EQ(Voorbeeld(), nogNiets);
  Typ("1");
  EXPECT_EQ(Voorbeeld(),
            "Demping in dB: 63 Hz 0, 125 Hz 0, 250 Hz 2, 500 Hz 4, 1000 Hz 3, 2000 Hz 1, 4000 Hz 0");
  EXPECT_EQ(Omschrijving(), "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m");
  Typ("0");
  EXPECT_EQ(Omschrijving(), "bekleed kanaal, D = 500 mm , d = 25 mm, L = 10 m");
  Druk(Qt::Key_Escape);
  EXPECT_EQ(Voorbeeld(), nogNiets);
  EXPECT_EQ(Omschrijving(), "");
}

TEST_F(SchatVensters, TheDrawingLightsTheDimensionOfTheFocusedField) {
  for (const Schatter soort : Soorten) {
    Open(soort);
    auto* const tekening = Zoek<Tekening>("Tekening");
    for (const SchatVeld& veld : VensterVan(soort).Velden) {
      const QString naam = VanCp(veld.Regel.Naam);
      EXPECT_EQ(Focus(), naam);
      EXPECT_EQ(tekening->Belicht(), naam);
      const QImage belicht = tekening->grab().toImage();
      tekening->Belicht("");
      EXPECT_NE(tekening->grab().toImage(), belicht) << naam.toStdString();
      Druk(Qt::Key_Return);
    }
  }
}

TEST_F(SchatVensters, VraagShowsTheWindowModallyAndHandsOverTheEstimate) {
  QWidget ouder;
  ouder.show();
  invoer.Bekleed = {500, 0, 25, 1};
  QTimer::singleShot(0, [] {
    QWidget* const nu = QApplication::activeModalWidget();
    ASSERT_NE(nu, nullptr);
    EXPECT_EQ(nu->objectName(), "frmCalc1");
    QTest::mouseClick(nu->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  });
  const auto schatting = frmCalc::Vraag(Schatter::Bekleed, invoer, script, ',', &ouder);
  ASSERT_TRUE(schatting.has_value());
  EXPECT_EQ(schatting->Omschrijving, "bekleed kanaal, D = 500 mm , d = 25 mm, L = 1 m");
  QTimer::singleShot(0, [] {
    QTest::mouseClick(QApplication::activeModalWidget()->findChild<QPushButton*>("cmdCancel"),
                      Qt::LeftButton);
  });
  EXPECT_FALSE(frmCalc::Vraag(Schatter::Bekleed, invoer, script, ',', &ouder).has_value());
}

TEST_F(SchatVensters, AQuarterWaveSilencerWithoutAWidthIsDrawnRound) {
  invoer.KwartLambda = {200, 0, 1, 0.5};
  frmCalc demper(Schatter::KwartLambda, invoer, script, ',');
  demper.show();
  auto* const tekening = demper.findChild<Tekening*>("Tekening");
  auto* const breedte = demper.findChild<QLineEdit*>("Text2");
  const auto beeld = [&] {
    tekening->Belicht({});
    return tekening->grab().toImage();
  };
  const QImage rond = beeld();
  breedte->setText("300");
  EXPECT_NE(beeld(), rond);
  breedte->setText("0");
  EXPECT_EQ(beeld(), rond);
}

TEST_F(SchatVensters, BarsGrowWithTheirValues) {
  Staven staven("R in dB", nullptr);
  staven.resize(280, 200);
  const auto hoogte = [&staven](const char* waarde) {
    std::array<std::string, Banden> waarden;
    waarden.fill("0");
    waarden[3] = waarde;
    staven.Zet(waarden);
    const QImage beeld = staven.grab().toImage();
    const QColor kleur = staven.palette().color(QPalette::Highlight);
    int pixels = 0;
    for (int y = 0; y < beeld.height(); ++y)
      pixels += beeld.pixelColor(beeld.width() / 2, y) == kleur ? 1 : 0;
    return pixels;
  };
  EXPECT_EQ(hoogte("0"), 0);
  EXPECT_EQ(hoogte("-4"), 0);
  EXPECT_GT(hoogte("5"), 20);
  EXPECT_NEAR(hoogte("10"), 2 * hoogte("5"), 3);
  EXPECT_EQ(hoogte("40"), hoogte("20"));  // the highest one takes all the room
}

TEST_F(SchatVensters, PicturesOfAllFour) {
  invoer.Bekleed = {400, 600, 50, 2.5};
  invoer.KwartLambda = {200, 0, 1, 0.5};
  invoer.Plenum = {600, 800, 1.2, 250, 0, 50};
  invoer.Kanaalwand = {kanaaltype::Zink, 2, 5.5};
  for (const Schatter soort : Soorten) {
    Open(soort);
    proef::Fotografeer(*venster, venster->objectName());
  }
  invoer = {};
  Open(Schatter::Bekleed);
  proef::Fotografeer(*venster, "frmCalc1-leeg");
}

TEST_F(SchatVensters, PicturesInADarkTheme) {
  const proef::Thema donker(proef::Donker());
  invoer.Bekleed = {400, 600, 50, 2.5};
  invoer.Kanaalwand = {kanaaltype::Alu, 2, 5.5};
  Open(Schatter::Bekleed);
  proef::Fotografeer(*venster, "donker-frmCalc1");
  Open(Schatter::Kanaalwand);
  proef::Fotografeer(*venster, "donker-frmDuctCalc");
}

}  // namespace
}  // namespace murvane
