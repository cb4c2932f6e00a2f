#include "editor/frmMurvane.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <QWheelEvent>

#include "basis/tekst.h"
#include "basis/vensters_hulp.h"
#include "editor/vensters_tekening.h"
#include "editor/vensters_veld.h"
#include "project/projectfile.h"
#include "tests/hulp/script.h"
#include "tests/vensters/beeld.h"
#include "tests/vensters/opstelling.h"

namespace murvane {
namespace {

TEST_F(ProjectVenster, StartsWithoutAProject) {
  EXPECT_EQ(venster->windowTitle(), "versie 6.7 - MurVane");
  EXPECT_TRUE(Zoek<QTabWidget>("SSTab1")->isHidden());
  EXPECT_TRUE(Zoek<QProgressBar>("ProgressBar1")->isHidden());
  EXPECT_EQ(venster->findChild<QCalendarWidget*>("MonthView"), nullptr);
  EXPECT_EQ(project.Kop.RekenType, rekentype::Installatiegeluid);
}

TEST_F(ProjectVenster, HasFourTabsAndFivePages) {
  Nieuw();
  auto* const tabs = Zoek<QTabWidget>("SSTab1");
  const QStringList namen = {"Ventilator", "Kanaalelementen", "Ruimtegegevens", "Projectgegevens"};
  ASSERT_EQ(tabs->count(), namen.size());
  for (int i = 0; i < tabs->count(); ++i) EXPECT_EQ(tabs->tabText(i), namen[i]);
  EXPECT_EQ(Zoek<QStackedWidget>("SSTab2")->count(), 5);
}

TEST_F(ProjectVenster, ShowsWhatTabSettingsSays) {
  for (const char* const naam : VoorbeeldNamen) {
    OpenVoorbeeld(naam);
    const VensterBeeld beeld = TabSettings(project, catalogi, ',');
    EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 3);
    EXPECT_EQ(Focus(), "txtProNum");
    EXPECT_EQ(Veld("txtProNaam")->text(), VanCp(beeld.Velden.txtProNaam));
    EXPECT_EQ(Veld("txtProNum")->text(), VanCp(beeld.Velden.txtProNum));
    EXPECT_EQ(Veld("txtSpectrum")->text(), VanCp(beeld.Velden.txtSpectrum));
    EXPECT_EQ(Veld("txtLw_6")->text(), VanCp(beeld.Velden.txtLw[6]));
    EXPECT_EQ(Veld("txtRLengte")->text(), VanCp(beeld.Velden.txtRLengte));
    EXPECT_EQ(Veld("txtRkanaal_3")->text(), VanCp(beeld.txtRkanaal[3]));
    EXPECT_EQ(Zoek<QLabel>("lblLwA")->text(), VanCp(beeld.lblLwA));
    EXPECT_EQ(Zoek<QListWidget>("lstProject")->count(), project.ElementCount);
    EXPECT_EQ(Zoek<QListWidget>("lstTotaal")->count(), catalogi.CatElementen.Aantal);
    EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), -1);
    EXPECT_EQ(Zoek<QComboBox>("cmbRkanaal")->currentText(), VanCp(beeld.RkanaalTekst));
    EXPECT_EQ(!Veld("txtRAantal")->isHidden(), beeld.Ruimte.txtRAantal);
    EXPECT_EQ(!Zoek<QCheckBox>("VrijVeld")->isHidden(), beeld.Ruimte.VrijVeld);
    EXPECT_EQ(!Zoek<QWidget>("cmbRplafond")->isHidden(), beeld.Ruimte.cmbRplafond);
    EXPECT_TRUE(Zoek<QStackedWidget>("SSTab2")->isHidden());
  }
}

TEST_F(ProjectVenster, FillingRaisesNoChange) {
  OpenVoorbeeld("kantoor.mrv");
  MaakBerekend();
  venster->ToonProject(true);
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend);
}

TEST_F(ProjectVenster, ShowsEveryElementsPage) {
  for (const char* const naam : VoorbeeldNamen) {
    OpenVoorbeeld(naam);
    for (int n = 1; n <= project.ElementCount; ++n) {
      KiesElement(n);
      const std::int16_t type = project.Elementen[static_cast<std::size_t>(n)].ElementType;
      const Pagina pagina = PaginaVan(type);
      EXPECT_EQ(Zoek<QStackedWidget>("SSTab2")->currentIndex(), static_cast<int>(pagina));
      EXPECT_TRUE(Zoek<QWidget>("SSTab2")->isVisible());
      EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 1);
      if (!EersteFocus(type).empty()) {
        EXPECT_EQ(Focus(), VanCp(EersteFocus(type)));
      }
      for (const VeldId& veld : PaginaVelden(pagina)) {
        auto* const vak = Zoek<QWidget>(ObjectNaam(veld));
        EXPECT_EQ(vak->isVisible(), ElementVeldZichtbaar(project, n, veld)) << veld.Naam << " of " << n;
        if (veld.Naam != "cmbKanaal") {
          EXPECT_EQ(Veld(ObjectNaam(veld))->text(), VanCp(HerstelTekst(project, n, veld, ',')));
        }
      }
    }
  }
}

TEST_F(ProjectVenster, AddsByEnterAndInsertsByInsert) {
  Nieuw();
  KiesRecord(8);
  Druk(Qt::Key_Return);
  ASSERT_EQ(project.ElementCount, 1);
  EXPECT_EQ(project.Elementen[1].ElementType, elementtype::KanaalRecht);
  EXPECT_EQ(Focus(), "txtHoogte");
  EXPECT_EQ(venster->DeSessie().Aanroep, "3");
  KiesRecord(11);
  Druk(Qt::Key_Insert);
  ASSERT_EQ(project.ElementCount, 2);
  EXPECT_EQ(project.Elementen[1].ElementType, elementtype::Rooster);
  EXPECT_EQ(project.Elementen[2].ElementType, elementtype::KanaalRecht);
  EXPECT_EQ(Focus(), "txtSnetto");
  EXPECT_EQ(venster->DeSessie().Aanroep, "1");
  EXPECT_TRUE(Zoek<QListWidget>("lstProject")->item(0)->text().startsWith("1. "));
}

TEST_F(ProjectVenster, RefusesToInsertWithoutAPlace) {
  Nieuw();
  KiesRecord(8);
  script.Box({MeldingSoort::Uitroep, "Invoer-stop", "Geen invoegpositie aangegeven"});
  Druk(Qt::Key_Insert);
  EXPECT_EQ(project.ElementCount, 0);
}

TEST_F(ProjectVenster, DeletesAfterAQuestion) {
  OpenVoorbeeld("kantoor.mrv");
  const int aantal = project.ElementCount;
  KiesElement(2);
  Zoek<QListWidget>("lstProject")->setFocus(Qt::TabFocusReason);
  script.Box({MeldingSoort::Vraag, "Kanaalelementen wissen", "Kanaalelement 2 wissen?", Knoppen::OkCancel},
             Antwoord::OK);
  Druk(Qt::Key_Delete);
  EXPECT_EQ(project.ElementCount, aantal - 1);
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->count(), aantal - 1);
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), 1);
  Zoek<QListWidget>("lstProject")->setFocus(Qt::TabFocusReason);
  script.Box({MeldingSoort::Vraag, "Kanaalelementen wissen", "Kanaalelement 2 wissen?", Knoppen::OkCancel},
             Antwoord::Cancel);
  Druk(Qt::Key_Delete);
  EXPECT_EQ(project.ElementCount, aantal - 1);
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), -1);
  EXPECT_TRUE(Zoek<QWidget>("SSTab2")->isHidden());
}

TEST_F(ProjectVenster, MovesByTheToolbarKeepingWhatWasTyped) {
  Nieuw();
  KiesRecord(8);
  Druk(Qt::Key_Return);
  KiesRecord(8);
  Druk(Qt::Key_Return);
  Typ("315");
  Zoek<QToolButton>("Toolbar2_Up")->click();
  EXPECT_EQ(project.Elementen[1].Hoogte, 315);
  EXPECT_EQ(project.Elementen[2].Hoogte, 0);
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), 0);
  EXPECT_EQ(Veld("txtHoogte")->text(), "315");
  Zoek<QToolButton>("Toolbar2_Down")->click();
  EXPECT_EQ(project.Elementen[2].Hoogte, 315);
}

TEST_F(ProjectVenster, EnablesTheButtonsOfTheListThatWasClicked) {
  OpenVoorbeeld("kantoor.mrv");
  const auto standen = [this] {
    QString uit;
    for (const char* const naam :
         {"Toolbar1_Add", "Toolbar1_Prop", "Toolbar2_Delete", "Toolbar2_Down", "Toolbar2_Up"})
      uit += Zoek<QToolButton>(naam)->isEnabled() ? '1' : '0';
    return uit;
  };
  EXPECT_EQ(standen(), "00000");
  KiesRecord(2);
  EXPECT_EQ(standen(), "11000");
  KiesElement(1);
  EXPECT_EQ(standen(), "00111");
}

TEST_F(ProjectVenster, ShowsTheActiveListInYellow) {
  OpenVoorbeeld("kantoor.mrv");
  KiesRecord(1);
  EXPECT_EQ(Zoek<QWidget>("lstTotaal")->palette().color(QPalette::Base), KleurVan(ActieveKleur));
  EXPECT_NE(Zoek<QWidget>("lstProject")->palette().color(QPalette::Base), KleurVan(ActieveKleur));
  KiesElement(1);
  EXPECT_NE(Zoek<QWidget>("lstTotaal")->palette().color(QPalette::Base), KleurVan(ActieveKleur));
  EXPECT_EQ(Zoek<QWidget>("lstProject")->palette().color(QPalette::Base), KleurVan(ActieveKleur));
}

TEST_F(ProjectVenster, EnterWalksRoundTheProjectTab) {
  OpenVoorbeeld("kantoor.mrv");
  for (const char* const naam : {"txtMyDate", "txtProNaam", "txtOmschrijving", "txtToelichting1",
                                 "txtToelichting2", "txtToelichting3", "txtProNum"}) {
    Druk(Qt::Key_Return);
    EXPECT_EQ(Focus(), naam);
  }
}

TEST_F(ProjectVenster, EnterPassesOverWhatIsHidden) {
  Nieuw();
  KiesRecord(9);  // a round duct has no width
  Druk(Qt::Key_Return);
  EXPECT_EQ(Focus(), "txtHoogte");
  Druk(Qt::Key_Enter);
  EXPECT_EQ(Focus(), "txtLengte");
  Druk(Qt::Key_Enter);
  EXPECT_EQ(Focus(), "txtDebiet");
  Druk(Qt::Key_Enter);
  EXPECT_EQ(Focus(), "txtHoogte");
}

TEST_F(ProjectVenster, EnterWalksRoundABandRow) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ventilator);
  NaarVeld("txtLw_5");
  Druk(Qt::Key_Return);
  EXPECT_EQ(Focus(), "txtLw_6");
  Druk(Qt::Key_Return);
  EXPECT_EQ(Focus(), "txtLw_0");
}

TEST_F(ProjectVenster, StoresAFieldWhenItIsLeft) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ruimtegegevens);
  NaarVeld("txtRLengte");
  EXPECT_EQ(Veld("txtRLengte")->selectedText(), Veld("txtRLengte")->text());
  Typ("12.5");
  Druk(Qt::Key_Return);
  EXPECT_EQ(Veld("txtRLengte")->text(), "12,5");
  EXPECT_EQ(project.Ruimte.RLengte, 12.5);
  NaarVeld("txtRDI");
  Typ("3");
  Druk(Qt::Key_Return);
  EXPECT_EQ(Veld("txtRDI")->text(), "4");
}

TEST_F(ProjectVenster, TypingDropsTheCalculatedState) {
  OpenVoorbeeld("kantoor.mrv");
  MaakBerekend();
  const QSignalSpy sluit(venster.get(), &frmMurvane::SluitVensters);
  const QSignalSpy toestand(venster.get(), &frmMurvane::ToestandGewijzigd);
  Typ("7");
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Open);
  EXPECT_EQ(venster->DeSessie().Aanroep, "24");
  EXPECT_EQ(sluit.count(), 1);
  EXPECT_EQ(toestand.count(), 1);
}

TEST_F(ProjectVenster, EscapeRestoresAndCountsAsAChange) {
  OpenVoorbeeld("kantoor.mrv");
  const QString was = Veld("txtProNum")->text();
  Typ("777");
  MaakBerekend();
  Druk(Qt::Key_Escape);
  EXPECT_EQ(Veld("txtProNum")->text(), was);
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Open);
}

TEST_F(ProjectVenster, SwallowsACharacterAndTurnsRed) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ruimtegegevens);
  NaarVeld("txtRHoogte");
  Typ("2x");
  EXPECT_EQ(Veld("txtRHoogte")->text(), "2");
  EXPECT_TRUE(IsRood("txtRHoogte"));
  Typ(",");
  EXPECT_FALSE(IsRood("txtRHoogte"));
}

TEST_F(ProjectVenster, AnInvalidFieldKeepsTheFocus) {
  OpenVoorbeeld("kantoor.mrv");
  NaarVeld("txtMyDate");
  Typ("31-02-2026");
  Druk(Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(Focus(), "txtMyDate");
  EXPECT_TRUE(IsRood("txtMyDate"));
  EXPECT_EQ(Veld("txtMyDate")->toolTip(), "Voer geldige datum in (dd-mm-yyyy)");
  EXPECT_EQ(Veld("txtMyDate")->text(), "31-02-2026");
  Druk(Qt::Key_Escape);
  Druk(Qt::Key_Return);
  QCoreApplication::processEvents();
  EXPECT_EQ(Focus(), "txtProNaam");
  EXPECT_FALSE(IsRood("txtMyDate"));
  EXPECT_EQ(Veld("txtMyDate")->toolTip(), "");
}

TEST_F(ProjectVenster, AnInvalidFieldBringsItsTabBack) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ruimtegegevens);
  NaarVeld("txtRLengte");
  Typ("1,2,3");
  Zoek<QTabWidget>("SSTab1")->tabBar()->setFocus(Qt::TabFocusReason);
  KiesTab(Tab::Projectgegevens);
  QCoreApplication::processEvents();
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 2);
  EXPECT_EQ(Focus(), "txtRLengte");
  EXPECT_EQ(Veld("txtRLengte")->toolTip(), "Voer geldig getal in");
}

TEST_F(ProjectVenster, AnInvalidFieldHoldsItsElement) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  Typ(",");
  KiesElement(2);
  QCoreApplication::processEvents();
  EXPECT_EQ(venster->DeLijst().HuidigElement, 1);
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), 0);
  EXPECT_EQ(Focus(), "txtHoogte");
}

TEST_F(ProjectVenster, WorksOutTheFanByKeyboard) {
  Nieuw();
  KiesTab(Tab::Ventilator);
  Zoek<QRadioButton>("optInvoer")->setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(Zoek<QWidget>("lstFan")->isVisible());
  Druk(Qt::Key_Right);
  EXPECT_EQ(project.FanPrognose, fanbron::Prognose);
  EXPECT_FALSE(Zoek<QWidget>("lstFan")->isVisible());
  EXPECT_TRUE(Zoek<QWidget>("frameFan")->isVisible());
  NaarVeld("txtfan_0");
  for (const char* const getal : {"2", "800", "1450", "12", "2000"}) {
    Typ(getal);
    Druk(Qt::Key_Return);
  }
  auto* const ok = Zoek<QPushButton>("cmdFanOK");
  ok->setFocus(Qt::TabFocusReason);
  script.Box(Waarschuwing("Geen ventilatortype geselecteerd"));
  Druk(Qt::Key_Space);
  Zoek<QRadioButton>("optAxiaal")->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Space);
  EXPECT_EQ(project.Fan.FanType, fantype::Axiaal);
  ok->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Space);
  // 20 lg 800 + 40 + 10 lg 2 = 101,07; 63 Hz is 9 lower; the tone of 290 Hz adds 5 to -7 of 250 Hz
  EXPECT_EQ(Veld("txtLw_0")->text(), "92,1");
  EXPECT_EQ(Veld("txtLw_2")->text(), "99,1");
  EXPECT_EQ(Veld("txtSpectrum")->text(), "Axiaal, 2 m³/s, 800 Pa, 1450 toeren, 2000 W");
  EXPECT_TRUE(Zoek<QLabel>("lblLwA")->text().startsWith("Lw,A = "));
  NaarVeld("txtfan_1");
  Typ("9");
  EXPECT_EQ(Veld("txtLw_0")->text(), "0");
  EXPECT_EQ(Zoek<QLabel>("lblLwA")->text(), "");
}

TEST_F(ProjectVenster, TakesAFanFromTheList) {
  Nieuw();
  KiesTab(Tab::Ventilator);
  auto* const lijst = Zoek<QListWidget>("lstFan");
  lijst->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Down);
  EXPECT_EQ(Veld("txtSpectrum")->text(), lijst->currentItem()->text());
  EXPECT_EQ(Veld("txtLw_3")->text(), VanCp(HerstelTekst(project, 0, {"txtLw", 3}, ',')));
  EXPECT_EQ(venster->DeSessie().Aanroep, "38");
}

TEST_F(ProjectVenster, ACalculationTypeShowsItsFields) {
  OpenVoorbeeld("kantoor.mrv");
  venster->KiesType(rekentype::Geluidsuitstraling);
  EXPECT_TRUE(Veld("txtRAantal")->isHidden());
  EXPECT_EQ(Veld("txtRAantal")->text(), "");
  EXPECT_FALSE(Zoek<QWidget>("cmbRkanaal")->isHidden());
  EXPECT_TRUE(Zoek<QTabWidget>("SSTab1")->isTabEnabled(0));
  venster->KiesType(rekentype::Overspraak);
  EXPECT_FALSE(Zoek<QTabWidget>("SSTab1")->isTabEnabled(0));
  EXPECT_TRUE(Zoek<QWidget>("VrijVeld")->isHidden());
  EXPECT_TRUE(Zoek<QWidget>("cmbRkanaal")->isHidden());
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 3);
  venster->KiesType(rekentype::Installatiegeluid);
  EXPECT_FALSE(Veld("txtRAantal")->isHidden());
  EXPECT_EQ(venster->DeSessie().Aanroep, "28");
}

TEST_F(ProjectVenster, TheFreeFieldLeavesTheDirectivity) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ruimtegegevens);
  Zoek<QCheckBox>("VrijVeld")->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Space);
  EXPECT_EQ(project.VrijVeld, 1);
  EXPECT_TRUE(Veld("txtRDI")->isVisible());
  for (const char* const naam :
       {"txtRLengte", "txtRBreedte", "txtRHoogte", "txtRNagalm", "txtRNR", "txtRAantal"})
    EXPECT_FALSE(Veld(naam)->isVisible()) << naam;
}

TEST_F(ProjectVenster, JudgesTheSamplesAsReadyToRun) {
  for (const char* const naam : VoorbeeldNamen) {
    OpenVoorbeeld(naam);
    EXPECT_TRUE(venster->NeemOverEnBeoordeel()) << naam;
  }
}

TEST_F(ProjectVenster, GoesToTheFieldThatIsMissing) {
  OpenVoorbeeld("kantoor.mrv");
  project.Elementen[1].Lengte = 0;
  script.Box(Waarschuwing("Kanaalelement 1 niet correct gedimensioneerd"));
  EXPECT_FALSE(venster->NeemOverEnBeoordeel());
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 1);
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), 0);
  EXPECT_EQ(Focus(), "txtLengte");
  EXPECT_EQ(script.KeerGewacht(), 1);
}

TEST_F(ProjectVenster, TakesOverTheFieldThatHasTheFocus) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ruimtegegevens);
  NaarVeld("txtRNagalm");
  Typ("0");
  KiesTab(Tab::Projectgegevens);
  script.Box(Waarschuwing("Nagalmtijd niet ingevuld"));
  EXPECT_FALSE(venster->NeemOverEnBeoordeel());
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 2);
  EXPECT_EQ(Focus(), "txtRNagalm");
}

/// Whether the tip of a field shows, once the menu that started the run has gone.
bool ToontTip(const QString& tip) {
  return QTest::qWaitFor([&tip] { return QToolTip::isVisible() && QToolTip::text() == tip; });
}

TEST_F(ProjectVenster, ARunStopsAtANumberThatIsInvalidWithItsTipInView) {
  struct Rij {
    Tab OpTab;
    const char* Veld;
    const char* Tekst;
    const char* Tip;
  };
  for (const Rij& rij :
       {Rij{Tab::Ruimtegegevens, "txtRNR", "1,2,3", "Voer geldig getal in"},
        Rij{Tab::Kanaalelementen, "txtdemp_3", ",", "Voer geldig getal in"},
        Rij{Tab::Projectgegevens, "txtMyDate", "31-02-2026", "Voer geldige datum in (dd-mm-yyyy)"}}) {
    SCOPED_TRACE(rij.Veld);
    OpenVoorbeeld("kantoor.mrv");
    if (rij.OpTab == Tab::Kanaalelementen) KiesElement(1);
    KiesTab(rij.OpTab);
    NaarVeld(rij.Veld);
    Typ(rij.Tekst);
    QToolTip::hideText();
    EXPECT_FALSE(venster->NeemOverEnBeoordeel());
    EXPECT_TRUE(ToontTip(rij.Tip));
    EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), static_cast<int>(rij.OpTab));
    EXPECT_EQ(Focus(), rij.Veld);
    EXPECT_TRUE(IsRood(rij.Veld));
    EXPECT_EQ(Veld(rij.Veld)->text(), rij.Tekst);
    EXPECT_FALSE(venster->NeemOverEnBeoordeel()) << "as long as it stands there";
    Druk(Qt::Key_Escape);
    EXPECT_TRUE(venster->NeemOverEnBeoordeel());
  }
  EXPECT_EQ(project.Kop.MyDate.Heel(), "02-03-2026") << "a date that is none is not taken over";
}

TEST_F(ProjectVenster, ANumberThatIsInvalidCountsAsZeroForTheRules) {
  struct Rij {
    Tab OpTab;
    const char* Veld;
    const char* Melding;
  };
  for (const Rij& rij :
       {Rij{Tab::Ruimtegegevens, "txtRLengte", "Vertreklengte niet ingevuld"},
        Rij{Tab::Ruimtegegevens, "txtRDI", "Richtingsfactor niet ingevuld"},
        Rij{Tab::Kanaalelementen, "txtLengte", "Kanaalelement 1 niet correct gedimensioneerd"}}) {
    SCOPED_TRACE(rij.Veld);
    OpenVoorbeeld("kantoor.mrv");
    if (rij.OpTab == Tab::Kanaalelementen) KiesElement(1);
    KiesTab(rij.OpTab);
    NaarVeld(rij.Veld);
    Typ("1,2,3");
    script.Box(Waarschuwing(rij.Melding), Antwoord::OK, [&] { EXPECT_TRUE(IsRood(rij.Veld)); });
    EXPECT_FALSE(venster->NeemOverEnBeoordeel());
    QCoreApplication::processEvents();
    EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), static_cast<int>(rij.OpTab));
    EXPECT_EQ(Focus(), rij.Veld);
  }
  EXPECT_EQ(project.Elementen[1].Lengte, 0);
}

TEST_F(ProjectVenster, AFieldThatWasRefusedWaitsBehindTheMessageAboutAnother) {
  OpenVoorbeeld("kantoor.mrv");
  project.Elementen[1].Lengte = 0;
  KiesTab(Tab::Ruimtegegevens);
  NaarVeld("txtRNR");
  Typ("1,2,3");
  script.Box(Waarschuwing("Kanaalelement 1 niet correct gedimensioneerd"));
  EXPECT_FALSE(venster->NeemOverEnBeoordeel());
  QCoreApplication::processEvents();
  EXPECT_EQ(Focus(), "txtLengte");
  EXPECT_TRUE(IsRood("txtRNR"));
  EXPECT_EQ(project.Ruimte.RNR, 0);
  Typ("5");
  EXPECT_FALSE(venster->BewaarVeld()) << "saving waits for it";
  EXPECT_EQ(project.Elementen[1].Lengte, 5);
  EXPECT_EQ(Focus(), "txtRNR");
  Typ("35");
  EXPECT_TRUE(venster->NeemOverEnBeoordeel());
  EXPECT_EQ(project.Ruimte.RNR, 35);
}

TEST_F(ProjectVenster, StopsAtABandThatIsNoNumber) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ventilator);
  NaarVeld("txtLw_3");
  Typ("1,2,3");
  script.Box(Waarschuwing("Geluidsspectrum ventilator niet (volledig) ingevuld"));
  EXPECT_FALSE(venster->NeemOverEnBeoordeel());
  QCoreApplication::processEvents();
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 0);
  EXPECT_EQ(Focus(), "txtLw_3");
  EXPECT_TRUE(IsRood("txtLw_3"));
}

TEST_F(ProjectVenster, PicksADateFromTheCalendar) {
  OpenVoorbeeld("kantoor.mrv");
  Zoek<QToolButton>("Image1")->click();
  auto* const kalender = Zoek<QCalendarWidget>("MonthView");
  ASSERT_TRUE(kalender->isVisible());
  EXPECT_EQ(kalender->selectedDate().toString("dd-MM-yyyy"), Veld("txtMyDate")->text());
  emit kalender->clicked(QDate(2026, 2, 3));
  EXPECT_EQ(Veld("txtMyDate")->text(), "03-02-2026");
  EXPECT_FALSE(kalender->isVisible());
  EXPECT_EQ(venster->DeSessie().Aanroep, "21");
  Veld("txtMyDate")->setText("");
  Zoek<QToolButton>("Image1")->click();
  EXPECT_EQ(kalender->selectedDate(), QDate(2026, 11, 20));
  Zoek<QToolButton>("Image1")->click();
  EXPECT_FALSE(kalender->isVisible());
}

TEST_F(ProjectVenster, LightsTheDimensionOfTheFocusedField) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  EXPECT_EQ(Zoek<Tekening>("Tekening")->Belicht(), "txtHoogte");
  NaarVeld("txtLengte");
  EXPECT_EQ(Zoek<Tekening>("Tekening")->Belicht(), "txtLengte");
}

TEST_F(ProjectVenster, ClosingStoresNothing) {
  OpenVoorbeeld("kantoor.mrv");
  Typ("777");
  SluitProject(venster->DeSessie(), venster->DeLijst(), project);
  venster->ToonGeenProject();
  EXPECT_EQ(project.Kop.ProNum.Getrimd(), "");
  EXPECT_TRUE(Zoek<QTabWidget>("SSTab1")->isHidden());
}

TEST_F(ProjectVenster, TheWheelChangesNothing) {
  OpenVoorbeeld("plafond.mrv");
  KiesTab(Tab::Ruimtegegevens);
  auto* const keuze = Zoek<QComboBox>("cmbRkanaal");
  const QString was = keuze->currentText();
  for (QWidget* const doel :
       {static_cast<QWidget*>(keuze), static_cast<QWidget*>(Zoek<QTabWidget>("SSTab1")->tabBar())}) {
    QWheelEvent wiel({5, 5}, doel->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(doel, &wiel);
  }
  EXPECT_EQ(keuze->currentText(), was);
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 2);
}

TEST_F(ProjectVenster, EveryControlHasAnAccessibleName) {
  for (QWidget* const vak : venster->findChildren<QWidget*>()) {
    const bool veld = qobject_cast<InvoerVeld*>(vak) != nullptr || qobject_cast<Lijstvak*>(vak) != nullptr ||
                      qobject_cast<Keuzevak*>(vak) != nullptr;
    if (veld) {
      EXPECT_FALSE(vak->accessibleName().isEmpty()) << vak->objectName().toStdString();
    }
  }
}

TEST_F(ProjectVenster, FitsASmallScreen) {
  OpenVoorbeeld("kantoor.mrv");
  EXPECT_LE(venster->minimumSizeHint().width(), 1000);
  EXPECT_LE(venster->minimumSizeHint().height(), 640);
}

TEST_F(ProjectVenster, ShowsTheProgress) {
  venster->ZetVoortgang(3, 10);
  EXPECT_EQ(Zoek<QProgressBar>("ProgressBar1")->value(), 3);
  EXPECT_TRUE(Zoek<QProgressBar>("ProgressBar1")->isVisible());
  venster->ZetVoortgang(0, 0);
  EXPECT_FALSE(Zoek<QProgressBar>("ProgressBar1")->isVisible());
}

TEST_F(ProjectVenster, TheProgressBarIsGrey) {
  const QPalette palet = Zoek<QProgressBar>("ProgressBar1")->palette();
  EXPECT_EQ(palet.color(QPalette::Highlight), QColor(0x80, 0x80, 0x80));
  EXPECT_EQ(palet.color(QPalette::Base), QColor(0xE0, 0xE0, 0xE0));
}

TEST_F(ProjectVenster, EnteringAListClicksNoRow) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Kanaalelementen);
  Zoek<QListWidget>("lstProject")->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), -1);
  EXPECT_EQ(venster->DeLijst(), Elementlijst{});
  Druk(Qt::Key_Down);
  EXPECT_EQ(venster->DeLijst().HuidigElement, 1);
}

TEST_F(ProjectVenster, OnlyTheLeftButtonSelectsARow) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  auto* lijst = Zoek<QListWidget>("lstProject");
  const QPoint derde = lijst->visualItemRect(lijst->item(2)).center();
  QTest::mouseClick(lijst->viewport(), Qt::RightButton, {}, derde);
  EXPECT_EQ(lijst->currentRow(), 0);
  EXPECT_EQ(venster->DeLijst().HuidigElement, 1);
  QTest::mouseClick(lijst->viewport(), Qt::LeftButton, {}, derde);
  EXPECT_EQ(lijst->currentRow(), 2);
  EXPECT_EQ(venster->DeLijst().HuidigElement, 3);
}

TEST_F(ProjectVenster, AClickOnAnOptionThatIsChosenChangesNothing) {
  OpenVoorbeeld("plafond.mrv");
  KiesTab(Tab::Ventilator);
  const FanRec ervoor = project.Fan;
  const QString naam = Veld("txtSpectrum")->text();
  Zoek<QRadioButton>(project.FanPrognose == 0 ? "optInvoer" : "optPrognose")->click();
  EXPECT_EQ(Veld("txtSpectrum")->text(), naam);
  Zoek<QRadioButton>("optPrognose")->click();
  Zoek<QRadioButton>("optAxiaal")->click();
  Veld("txtLw_0")->setText("61,5");
  Zoek<QRadioButton>("optAxiaal")->click();
  EXPECT_EQ(Veld("txtLw_0")->text(), "61,5");
  EXPECT_TRUE(Zoek<QRadioButton>("optAxiaal")->isChecked());
  EXPECT_EQ(project.Fan.Lw, ervoor.Lw);
}

TEST_F(ProjectVenster, CtrlKeepsTheSelectedRowSelected) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  auto* lijst = Zoek<QListWidget>("lstProject");
  const QPoint eerste = lijst->visualItemRect(lijst->item(0)).center();
  QTest::mouseClick(lijst->viewport(), Qt::LeftButton, Qt::ControlModifier, eerste);
  EXPECT_TRUE(lijst->item(0)->isSelected());
  const int aantal = project.ElementCount;
  QTest::mouseDClick(Zoek<QListWidget>("lstTotaal")->viewport(), Qt::RightButton, {}, QPoint(20, 5));
  EXPECT_EQ(project.ElementCount, aantal);
}

TEST_F(ProjectVenster, AFailingClickLeavesTheListsAsTheStateIs) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  project.ElementCount = 1;  // the rows still show the longer chain
  script.Box(
      {MeldingSoort::Kritiek, "MurVane",
       "Onverwachte fout in procedure lstProject_Click van Form frmMurvane.\nFout 9 - Index buiten het "
       "bereik.",
       Knoppen::OK});
  Zoek<QListWidget>("lstProject")->setCurrentRow(2);
  EXPECT_EQ(Zoek<QListWidget>("lstProject")->currentRow(), 0);
  EXPECT_EQ(venster->DeLijst().HuidigElement, 1);
}

TEST_F(ProjectVenster, TheSelectedRowCanBeClickedByKeyboard) {
  OpenVoorbeeld("kantoor.mrv");
  for (const Qt::Key toets : {Qt::Key_Space, Qt::Key_Return}) {
    KiesElement(1);
    Zoek<QListWidget>("lstTotaal")->setFocus();
    Druk(Qt::Key_Down);
    EXPECT_TRUE(Zoek<QWidget>("SSTab2")->isHidden());
    Zoek<QListWidget>("lstProject")->setFocus();
    Druk(toets);
    EXPECT_TRUE(Zoek<QWidget>("SSTab2")->isVisible());
    EXPECT_EQ(venster->DeLijst().Actief, Lijst::lstProject);
  }
}

TEST_F(ProjectVenster, AChosenDateMendsARedField) {
  OpenVoorbeeld("kantoor.mrv");
  NaarVeld("txtMyDate");
  Typ("3a");
  EXPECT_TRUE(IsRood("txtMyDate"));
  Zoek<QToolButton>("Image1")->click();
  emit Zoek<QCalendarWidget>("MonthView")->clicked(QDate(2026, 3, 4));
  EXPECT_EQ(Veld("txtMyDate")->text(), "04-03-2026");
  EXPECT_FALSE(IsRood("txtMyDate"));
}

TEST_F(ProjectVenster, ARedFieldHoldsTheFreeField) {
  OpenVoorbeeld("kantoor.mrv");
  KiesTab(Tab::Ruimtegegevens);
  NaarVeld("txtRLengte");
  Typ("1,2,3");
  auto* vrij = Zoek<QCheckBox>("VrijVeld");
  vrij->setFocus(Qt::MouseFocusReason);
  vrij->click();
  QCoreApplication::processEvents();
  EXPECT_FALSE(vrij->isChecked());
  EXPECT_EQ(project.VrijVeld, 0);
  EXPECT_EQ(Focus(), "txtRLengte");
}

TEST_F(ProjectVenster, OpeningACatalogueElementLeavesTheFocus) {
  Nieuw();
  KiesRecord(12);
  Druk(Qt::Key_Return);
  EXPECT_EQ(Zoek<QTabWidget>("SSTab1")->currentIndex(), 1);
  EXPECT_EQ(Focus(), "lstTotaal");
  EXPECT_TRUE(Veld("txtruis_0")->isVisible());
  EXPECT_TRUE(Veld("txtdemp_7")->isReadOnly());
}

TEST_F(ProjectVenster, TabFollowsTheEye) {
  OpenVoorbeeld("kantoor.mrv");
  for (const char* const naam : {"txtMyDate", "Image1", "txtProNaam", "txtOmschrijving", "txtToelichting1",
                                 "txtToelichting2", "txtToelichting3"}) {
    Druk(Qt::Key_Tab);
    EXPECT_EQ(Focus(), naam);
  }
  KiesElement(1);
  Zoek<QListWidget>("lstTotaal")->setFocus(Qt::TabFocusReason);
  for (const char* const naam :
       {"lstProject", "Toolbar2_Delete", "Toolbar2_Down", "Toolbar2_Up", "txtHoogte"}) {
    Druk(Qt::Key_Tab);
    EXPECT_EQ(Focus(), naam);
  }
}

TEST_F(ProjectVenster, AChoiceOfWallShowsItsBands) {
  OpenVoorbeeld("plafond.mrv");
  KiesTab(Tab::Ruimtegegevens);
  auto* const keuze = Zoek<QComboBox>("cmbRkanaal");
  keuze->setFocus(Qt::TabFocusReason);
  Druk(Qt::Key_Home);
  keuze->setCurrentIndex(2);
  emit keuze->activated(2);
  EXPECT_EQ(project.Ruimte.Rkanaal[3], catalogi.CatRduct.Records[3].SpecWaarde[3]);
  EXPECT_EQ(Veld("txtRkanaal_3")->text(), VanCp(HerstelTekst(project, 0, {"txtRkanaal", 3}, ',')));
  keuze->setEditText("");
  EXPECT_EQ(NaarCp(keuze->currentText()), GeenKanaalwandTekst());
  keuze->setEditText("  ");
  NaarVeld("txtRDI");
  EXPECT_EQ(NaarCp(keuze->currentText()), GeenKanaalwandTekst());
  EXPECT_EQ(Veld("txtRkanaal_3")->text(), "0,0");
}

TEST_F(ProjectVenster, EveryFieldTellsItsNumber) {
  OpenVoorbeeld("kantoor.mrv");
  int aantal = 0;
  for (InvoerVeld* const veld : venster->findChildren<InvoerVeld*>()) {
    if (veld->isReadOnly()) continue;
    ++aantal;
    veld->selectAll();
    MaakBerekend();
    QTest::keyClick(veld, Qt::Key_7);
    EXPECT_EQ(veld->text(), "7") << veld->objectName().toStdString();
    const int nummer = Regel(veld->Veld()).Berekend;
    EXPECT_EQ(venster->DeSessie().Aanroep, nummer == 0 ? "" : std::to_string(nummer));
    EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Open);
    QTest::keyClick(veld, Qt::Key_Escape);
    EXPECT_EQ(veld->text(), VanCp(HerstelTekst(project, 0, veld->Veld(), ',')));
  }
  // 8 of the fan with 5 of its data, 4 + 7 of ducts, 8, 5 and 2 of the other pages, 7 + 14 of the room, 7
  EXPECT_EQ(aantal, 8 + 5 + 11 + 15 + 21 + 7);
}

TEST_F(ProjectVenster, EveryLabelBelongsToAControl) {
  for (const QLabel* const label : venster->findChildren<QLabel*>()) {
    if (label->objectName() == "lblLwA" || label->objectName().startsWith("qt_")) continue;
    EXPECT_NE(label->buddy(), nullptr) << label->text().toStdString();
    EXPECT_FALSE(label->text().contains('&'));
  }
}

TEST_F(ProjectVenster, AMouseClickOnTheOpenElementOpensItAgain) {
  OpenVoorbeeld("kantoor.mrv");
  KiesElement(1);
  KiesRecord(3);
  EXPECT_FALSE(Zoek<QWidget>("SSTab2")->isVisible());
  KiesElement(1);
  EXPECT_TRUE(Zoek<QWidget>("SSTab2")->isVisible());
  EXPECT_EQ(Focus(), "txtHoogte");
}

TEST_F(ProjectVenster, ADoubleClickAddsAndDeletes) {
  Nieuw();
  KiesTab(Tab::Kanaalelementen);
  auto* const totaal = Zoek<QListWidget>("lstTotaal");
  const QPoint rij8 = totaal->visualItemRect(totaal->item(7)).center();
  QTest::mouseClick(totaal->viewport(), Qt::LeftButton, {}, rij8);
  QTest::mouseDClick(totaal->viewport(), Qt::LeftButton, {}, rij8);
  EXPECT_EQ(project.ElementCount, 1);
  auto* const keten = Zoek<QListWidget>("lstProject");
  script.Box({MeldingSoort::Vraag, "Kanaalelementen wissen", "Kanaalelement 1 wissen?", Knoppen::OkCancel},
             Antwoord::OK);
  const QPoint rij1 = keten->visualItemRect(keten->item(0)).center();
  QTest::mouseClick(keten->viewport(), Qt::LeftButton, {}, rij1);
  QTest::mouseDClick(keten->viewport(), Qt::LeftButton, {}, rij1);
  EXPECT_EQ(project.ElementCount, 0);
  EXPECT_EQ(keten->count(), 0);
  EXPECT_FALSE(Zoek<QWidget>("SSTab2")->isVisible());
}

TEST_F(ProjectVenster, OpeningAnElementKeepsWhatItsFieldsRound) {
  OpenVoorbeeld("kantoor.mrv");
  project.Elementen[3].Breedte = 312.4;
  KiesElement(1);
  NaarVeld("txtBreedte");
  Zoek<QListWidget>("lstProject")->setCurrentRow(2);
  EXPECT_EQ(Veld("txtBreedte")->text(), "312");
  EXPECT_EQ(project.Elementen[3].Breedte, 312.4);
}

TEST_F(ProjectVenster, RefilledCataloguesKeepTheProject) {
  OpenVoorbeeld("plafond.mrv");
  KiesRecord(5);
  const QString was = Zoek<QComboBox>("cmbRplafond")->currentText();
  MaakBerekend();
  catalogi.CatElementen.Records[12].CatNaam = "anders";
  --catalogi.CatFans.Aantal;
  venster->VulElementen();
  EXPECT_EQ(Zoek<QListWidget>("lstTotaal")->item(11)->text(), "anders");
  EXPECT_EQ(Zoek<QListWidget>("lstFan")->count(), catalogi.CatFans.Aantal + 1);
  venster->VulFans();
  EXPECT_EQ(Zoek<QListWidget>("lstFan")->count(), catalogi.CatFans.Aantal);
  EXPECT_EQ(venster->DeLijst().CatalogusPositie, 0);
  EXPECT_EQ(Zoek<QListWidget>("lstTotaal")->currentRow(), -1);
  EXPECT_EQ(Zoek<QComboBox>("cmbRplafond")->currentText(), was);
  EXPECT_EQ(venster->DeSessie().Toestand, Toestand::Berekend);
}

TEST_F(ProjectVenster, StaysReadableInADarkTheme) {
  const proef::Thema donker(proef::Donker());
  OpenVoorbeeld("kantoor.mrv");
  EXPECT_EQ(Veld("txtProNum")->palette().color(QPalette::Base), KleurVan(VeldKleur));
  EXPECT_EQ(Veld("txtProNum")->palette().color(QPalette::Text), QColor(Qt::black));
  EXPECT_EQ(Zoek<QComboBox>("cmbKanaal")->lineEdit()->palette().color(QPalette::Base), KleurVan(VeldKleur));
  KiesElement(1);
  proef::Fotografeer(*venster, "donker-element");
  KiesTab(Tab::Ventilator);
  proef::Fotografeer(*venster, "donker-fan");
}

/// Pictures to look at, where a directory for them is named.
TEST_F(ProjectVenster, CanBePictured) {
  const auto maak = [this](const QString& naam) { proef::Fotografeer(*venster, naam); };
  for (const char* const naam : VoorbeeldNamen) {
    OpenVoorbeeld(naam);
    maak(QString(naam) + "-project");
    KiesTab(Tab::Ruimtegegevens);
    maak(QString(naam) + "-ruimte");
    KiesTab(Tab::Ventilator);
    maak(QString(naam) + "-fan");
  }
  venster->KiesType(rekentype::Installatiegeluid);
  KiesTab(Tab::Ventilator);
  Zoek<QRadioButton>("optPrognose")->click();
  maak("fan-prognose");
  KiesTab(Tab::Projectgegevens);
  Zoek<QToolButton>("Image1")->click();
  maak("kalender");
  Zoek<QToolButton>("Image1")->click();
  Nieuw();
  for (int record = 1; record <= 12; ++record) {
    KiesRecord(record);
    Druk(Qt::Key_Return);
    maak("element-" + QString::number(record));
  }
}

TEST_F(ProjectVenster, HasTheCaptionsOfItsFields) {
  Nieuw();
  QStringList opschriften;
  for (const auto* label : venster->findChildren<QLabel*>()) opschriften << label->text();
  for (const char* opschrift :
       {"Naam ventilator", "Totale luchtverplaatsing", "Totaal drukverlies", "Toerental", "Aantal schoepen",
        "Asvermogen", "Geluidsinstraling", "LAeq in dB(A)", "Invoegdemping in dB", "Eigenruis in dB",
        "Lijst kanaalelementen", "Kanaalelementen project", "Nagalmtijd", "Richtingsfactor",
        "Toelaatbaar geluidsniveau", "Aantal roosters"})
    EXPECT_TRUE(opschriften.contains(opschrift)) << opschrift;
  EXPECT_EQ(Zoek<QCheckBox>("VrijVeld")->text(), "vrij-veldsituatie");
  const auto* tabs = Zoek<QTabWidget>("SSTab1");
  EXPECT_EQ(tabs->tabText(0), "Ventilator");
  EXPECT_EQ(tabs->tabText(1), "Kanaalelementen");
  EXPECT_EQ(tabs->tabText(2), "Ruimtegegevens");
  EXPECT_EQ(tabs->tabText(3), "Projectgegevens");
}

}  // namespace
}  // namespace murvane
