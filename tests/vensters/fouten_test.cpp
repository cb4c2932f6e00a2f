// A handler of the project window that fails: the box names it, and the program runs on.

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "editor/vensters_veld.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

class Fouten : public ProjectVenster {
 protected:
  void SetUp() override { OpenVoorbeeld("plafond.mrv"); }

  /// The next `signaal` of a control fails, inside the handler that brings it about.
  template <typename Zender, typename Signaal>
  void LaatFalen(Zender* zender, Signaal signaal) {
    QObject::connect(
        zender, signaal, venster.get(), [] { throw Fout(FoutNummer::IndexBuitenBereik); },
        Qt::SingleShotConnection);
  }
  void ToestandFaalt() { LaatFalen(venster.get(), &frmMurvane::ToestandGewijzigd); }
  /// Awaits the box of a procedure.
  void Wacht(const std::string& procedure, const std::string& fout = "Fout 9 - Index buiten het bereik.") {
    script.Box({MeldingSoort::Kritiek, "MurVane",
                "Onverwachte fout in procedure " + procedure + " van Form frmMurvane.\n" + fout,
                Knoppen::OK});
  }
  /// The box has come and the window still works.
  void Klaar(const char* wat) {
    SCOPED_TRACE(wat);
    script.IsKlaar();
    EXPECT_NE(venster->DeSessie().Toestand, Toestand::GeenProject);
  }
};

TEST_F(Fouten, AFieldThatChangesTellsItsEvent) {
  ToestandFaalt();
  Wacht("txtProNum_Change");
  Typ("7");
  Klaar("change");
}

TEST_F(Fouten, AFieldOfAnElementThatIsNotThereTellsItsEvents) {
  KiesElement(1);
  venster->DeLijst().HuidigElement = MaxElementen + 1;
  Wacht("txtHoogte_KeyDown");
  Druk(Qt::Key_Escape);
  Klaar("escape");
  Wacht("txtHoogte_LostFocus");
  Druk(Qt::Key_Tab);
  Klaar("leaving");
  Wacht("cmbKanaal_LostFocus");
  Zoek<QComboBox>("cmbKanaal")->setEditText("  ");
  emit Zoek<Keuzevak>("cmbKanaal")->Verlaten();
  Klaar("wall");
  venster->DeLijst().HuidigElement = 1;
}

TEST_F(Fouten, TheFanTabTellsItsEvents) {
  const auto klik = [this](const char* naam) {
    ToestandFaalt();
    Wacht(std::string(naam) + "_Click");
    Zoek<QAbstractButton>(naam)->click();
    Klaar(naam);
  };
  KiesTab(Tab::Ventilator);
  project.FanPrognose = fanbron::Lijst;
  project.Fan.FanType = fantype::Geen;
  venster->ToonProject(false);
  klik("optPrognose");
  Zoek<QRadioButton>("optAxiaal")->click();  // clears the display, which then changes no more
  klik("optCentriVoor");
  klik("optCentriAchter");
  klik("optAxiaal");
  Veld("txtfan_0")->setText("0");
  script.Box(Waarschuwing("Geen geldende waarde ingevuld"), Antwoord::OK,
             [] { throw Fout(FoutNummer::IndexBuitenBereik); });
  Wacht("cmdFanOK_Click");
  Zoek<QPushButton>("cmdFanOK")->click();
  Klaar("cmdFanOK");
  klik("cmdFanCancel");
  Zoek<QRadioButton>("optPrognose")->click();
  klik("optInvoer");
  catalogi.CatFans.Records[3].SpecWaarde[0] = 1e300;
  Wacht("lstFan_Click", "Fout 6 - " + std::string(Beschrijving(FoutNummer::Overloop)) + ".");
  Zoek<QListWidget>("lstFan")->setCurrentRow(2);
  Klaar("lstFan");
}

TEST_F(Fouten, TheListsTellTheirEvents) {
  const auto knop = [this](const char* naam) { Zoek<QToolButton>(naam)->click(); };
  KiesTab(Tab::Kanaalelementen);
  ToestandFaalt();
  Wacht("lstTotaal_Click");
  Zoek<QListWidget>("lstTotaal")->setCurrentRow(7);
  Klaar("lstTotaal");
  const std::int16_t aantal = project.ElementCount;
  project.ElementCount = MaxElementen;
  Wacht("lstTotaal_DblClick");
  knop("Toolbar1_Add");
  Klaar("add");
  project.ElementCount = aantal;
  KiesElement(2);
  KiesRecord(8);
  project.ElementCount = MaxElementen;
  Wacht("Insert");
  knop("Toolbar1_Prop");
  Klaar("insert");
  project.ElementCount = aantal;
  KiesElement(2);
  ToestandFaalt();
  Wacht("UpDown");
  knop("Toolbar2_Down");
  Klaar("move");
  KiesElement(2);
  script.Box({MeldingSoort::Vraag, "Kanaalelementen wissen", "Kanaalelement 2 wissen?", Knoppen::OkCancel},
             Antwoord::OK, [] { throw Fout(FoutNummer::IndexBuitenBereik); });
  Wacht("lstProject_DblClick");
  knop("Toolbar2_Delete");
  Klaar("delete");
  EXPECT_EQ(project.ElementCount, aantal);
}

TEST_F(Fouten, AChoiceThatTheCatalogueLacksIsTold) {
  KiesElement(1);
  struct Rij {
    const char* Vak;
    SpectrumCatalogus* Catalogus;
  };
  for (const Rij& rij : {Rij{"cmbKanaal", &catalogi.CatRduct}, Rij{"cmbRkanaal", &catalogi.CatRduct},
                         Rij{"cmbRplafond", &catalogi.CatRplaf}}) {
    const std::string naam = rij.Vak;
    auto* const keuze = Zoek<Keuzevak>(rij.Vak);
    const std::int16_t aantal = rij.Catalogus->Aantal;
    rij.Catalogus->Aantal = 1;
    Wacht(naam + "_Click");
    emit keuze->activated(2);
    Klaar(rij.Vak);
    rij.Catalogus->Aantal = aantal;
  }
}

TEST_F(Fouten, TheFreeFieldTellsItsEvent) {
  ToestandFaalt();
  Wacht("VrijVeld_Click");
  Zoek<QCheckBox>("VrijVeld")->click();
  Klaar("VrijVeld");
}

TEST_F(Fouten, TheCalendarTellsItsEvent) {
  for (int keer = 0; keer < 2; ++keer) Zoek<QToolButton>("Image1")->click();  // made, and hidden
  Veld("txtMyDate")->setText("05-06-2020");
  auto* const kalender = Zoek<QCalendarWidget>("MonthView");
  LaatFalen(kalender, &QCalendarWidget::selectionChanged);
  Wacht("Image1_Click");
  Zoek<QToolButton>("Image1")->click();
  Klaar("Image1");
}

}  // namespace
}  // namespace murvane
