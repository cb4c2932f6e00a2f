// Where the keyboard is: never with a control of the project window that does not show or is disabled, in no
// state, on no tab and after no switch, so that no key changes what nobody sees.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolTip>
#include <functional>
#include <map>

#include "basis/vensters_hulp.h"
#include "editor/frmMurvane.h"
#include "editor/vensters_veld.h"
#include "project/projectfile.h"
#include "tests/vensters/bediening.h"
#include "tests/vensters/opstelling.h"

namespace murvane::proef {
namespace {

namespace fs = std::filesystem;

constexpr auto Typen = std::to_array<const char*>({"mnuVent", "mnuUitstraling", "mnuOverspraak"});

class Focus : public Gestart {
 protected:
  frmMurvane* Venster() { return Zoek<frmMurvane>("frmMurvane"); }
  QLineEdit* Veld(const QString& naam) { return Zoek<QLineEdit>(naam); }
  QTabWidget* Tabs() { return Zoek<QTabWidget>("SSTab1"); }
  void Kies(const char* naam) { Zoek<QAction>(naam)->trigger(); }
  static void Klik(QWidget* vak, QPoint waar) { QTest::mouseClick(vak, Qt::LeftButton, {}, waar); }
  void KlikVeld(const QString& naam) { Klik(Veld(naam), Veld(naam)->rect().center()); }
  void KlikTab(Tab tab) {
    QTabBar* const balk = Tabs()->tabBar();
    Klik(balk, balk->tabRect(static_cast<int>(tab)).center());
    QCoreApplication::processEvents();
  }
  QPoint Rij(const char* lijst, int rij) {
    auto* const vak = Zoek<QListWidget>(lijst);
    vak->scrollToItem(vak->item(rij));
    return vak->visualItemRect(vak->item(rij)).center();
  }
  void KlikRij(const char* lijst, int rij) {
    const QPoint waar = Rij(lijst, rij);
    Klik(Zoek<QListWidget>(lijst)->viewport(), waar);
  }
  void Bron(const char* optie) { Zoek<QAbstractButton>(optie)->click(); }

  /// A sample of any type, its fan from the list or from a prognosis, that can be calculated.
  fs::path Voorbeeld(const char* naam, std::int16_t bron) {
    Project project = LeesProject(BronData / naam);
    project.FanPrognose = bron;
    project.Fan.FanType = fantype::Axiaal;
    project.Fan.FanDebiet = project.Elementen[1].Debiet;
    project.Fan.FanDruk = 800;
    const fs::path pad = map / (std::to_string(bron) + naam);
    SchrijfProject(project, pad);
    return pad;
  }
  void Open(const fs::path& pad) {
    programma.OpenBestand = pad;
    venster->OpenVanOpdrachtregel();
    ASSERT_TRUE(ProjectOpen(Venster()->DeSessie()));
  }
  void Sluit() {
    script.Box(VraagSluiten);
    Kies("mnuSluiten");
  }
  void SlaOp(const fs::path& pad) {
    script.Opslaan(OpslaanVraag(programma.DialoogNaam), pad);
    Kies("mnuOpslaan");
    script.IsKlaar();
  }

  static bool IsTeZien(const QWidget* vak, const QWidget* in) {
    return vak == nullptr || vak == in || (vak->isVisibleTo(in) && vak->isEnabledTo(in));
  }
  static QString NaamVan(const QWidget* vak) {
    return vak == nullptr ? QString("nobody") : vak->metaObject()->className() + (" " + vak->objectName());
  }
  /// What the controls that do not show hold.
  std::map<const QWidget*, QString> Ongezien() {
    std::map<const QWidget*, QString> uit;
    for (const QWidget* const vak : Venster()->findChildren<QWidget*>()) {
      if (vak->isVisible()) continue;
      if (const auto* veld = qobject_cast<const QLineEdit*>(vak)) uit[vak] = veld->text();
      if (const auto* keuze = qobject_cast<const QComboBox*>(vak)) uit[vak] = keuze->currentText();
      if (const auto* lijst = qobject_cast<const QListWidget*>(vak))
        uit[vak] = QString::number(lijst->currentRow());
      if (const auto* tabs = qobject_cast<const QTabWidget*>(vak))
        uit[vak] = QString::number(tabs->currentIndex());
      if (const auto* knop = qobject_cast<const QAbstractButton*>(vak))
        uit[vak] = knop->isChecked() ? "1" : "0";
    }
    return uit;
  }

  /// After every step: whoever has the keyboard, or gets it back with its tab or window, can be seen and
  /// used, and no field of the project is red.
  void IsInZicht(const QString& stap) {
    SCOPED_TRACE(stap.toStdString());
    QCoreApplication::processEvents();
    const QWidget* const vak = QApplication::focusWidget();
    EXPECT_TRUE(vak == nullptr || (vak->isVisible() && vak->isEnabled())) << NaamVan(vak).toStdString();
    for (QWidget* const om : Venster()->findChildren<QWidget*>())
      EXPECT_TRUE(IsTeZien(om->focusWidget(), om)) << NaamVan(om->focusWidget()).toStdString();
    EXPECT_TRUE(IsTeZien(Venster()->focusWidget(), Venster()))
        << NaamVan(Venster()->focusWidget()).toStdString();
    for (const InvoerVeld* const veld : Venster()->findChildren<InvoerVeld*>())
      EXPECT_NE(veld->palette().color(QPalette::Base), KleurVan(FoutKleur)) << NaamVan(veld).toStdString();
  }
  /// A key that is typed now changes at most the field that has the keyboard, in sight.
  void TypIsTeZien(const QString& stap, Qt::Key toets = Qt::Key_5, const QString& tekst = "5") {
    SCOPED_TRACE(stap.toStdString());
    const QWidget* const vak = QApplication::focusWidget();
    if (qobject_cast<const QListWidget*>(vak) != nullptr) return;  // the key searches its rows
    const auto ongezien = Ongezien();
    const std::string bytes = ProjectBytes(programma.Project);
    toetsen->Druk(toets, Qt::NoModifier, tekst);
    EXPECT_TRUE(Ongezien() == ongezien) << NaamVan(vak).toStdString();
    EXPECT_TRUE(ProjectBytes(programma.Project) == bytes) << NaamVan(vak).toStdString();
    if (qobject_cast<const InvoerVeld*>(vak) != nullptr) toetsen->Druk(Qt::Key_Escape);
  }
  void Stap(const QString& stap) {
    IsInZicht(stap);
    TypIsTeZien(stap);
  }

  /// The controls of a tab that can have the keyboard now.
  std::vector<QWidget*> Besturing(Tab tab) {
    std::vector<QWidget*> uit;
    const QWidget* const blad = Tabs()->widget(static_cast<int>(tab));
    for (QWidget* const vak : blad->findChildren<QWidget*>()) {
      const bool kan = (vak->focusPolicy() & Qt::TabFocus) != 0 && vak->isVisible() && vak->isEnabled();
      if (kan && !vak->objectName().isEmpty() && !vak->objectName().startsWith("qt_")) uit.push_back(vak);
    }
    return uit;
  }
  void LoopTabs(const QString& stap) {
    for (int i = 0; i < Tabs()->count(); ++i) {
      KlikTab(static_cast<Tab>(i));
      Stap(stap + ", tab " + QString::number(i));
    }
  }
  void LoopElementen(const QString& stap) {
    KlikTab(Tab::Kanaalelementen);
    for (int rij = 0; rij < Zoek<QListWidget>("lstProject")->count(); ++rij) {
      KlikRij("lstProject", rij);
      Stap(stap + ", element " + QString::number(rij + 1));
    }
    KlikRij("lstTotaal", 2);
    Stap(stap + ", catalogue");
  }
};

// ---- The ways in which it went wrong ----

TEST_F(Focus, AFieldOfAClosedPrognosisGetsNoKeyOfTheNextProject) {
  const fs::path prognose = Voorbeeld("kantoor.mrv", fanbron::Prognose);
  const fs::path lijst = Voorbeeld("kantoor.mrv", fanbron::Lijst);
  Start();
  Open(prognose);
  KlikTab(Tab::Ventilator);
  KlikVeld("txtfan_0");
  ASSERT_EQ(Bediening::Focus(), "txtfan_0");
  Sluit();
  Open(lijst);
  Kies("mnuReken");
  ASSERT_TRUE(IsBerekendBeeld());
  toetsen->Druk(Qt::Key_Tab, Qt::ControlModifier);  // back to the project
  KlikTab(Tab::Ventilator);
  QStringList lw;
  for (int band = 0; band < Banden; ++band) lw << Veld("txtLw_" + QString::number(band))->text();
  toetsen->Typ("5");
  for (int band = 0; band < Banden; ++band)
    EXPECT_EQ(Veld("txtLw_" + QString::number(band))->text(), lw[band]) << band;
  EXPECT_TRUE(IsBerekendBeeld());
}

TEST_F(Focus, ACeilingBandThatTheTypeHidesGetsNoKey) {
  Start();
  Open(BronData / "plafond.mrv");
  const Spectrum was = programma.Project.Ruimte.Rplafond;
  KlikTab(Tab::Ruimtegegevens);
  KlikVeld("txtRplafond_5");
  ASSERT_EQ(Bediening::Focus(), "txtRplafond_5");
  Kies("mnuVent");
  KlikTab(Tab::Ruimtegegevens);
  toetsen->Typ("9");
  toetsen->Druk(Qt::Key_Tab);
  SlaOp(map / "bewaard.mrv");
  EXPECT_EQ(LeesProject(map / "bewaard.mrv").Ruimte.Rplafond, was);
}

TEST_F(Focus, AnElementFieldOfAProjectThatWasLeftGetsNoKey) {
  Start();
  for (const bool slaOp : {false, true}) {
    Open(BronData / "kantoor.mrv");
    KlikTab(Tab::Kanaalelementen);
    KlikRij("lstProject", 0);
    ASSERT_EQ(Bediening::Focus(), "txtHoogte");
    if (slaOp) {
      SlaOp(map / "weg.mrv");
    } else {
      Sluit();
    }
    Stap("left");
    Open(BronData / "overspraak.mrv");
    KlikTab(Tab::Kanaalelementen);
    Stap("another project");
    EXPECT_EQ(Bediening::Focus(), "lstTotaal");
    Sluit();
  }
}

TEST_F(Focus, ARedFieldOfAClosedProjectSwallowsNoClickInTheNext) {
  Start();
  for (const bool dubbel : {false, true}) {
    Open(BronData / "kantoor.mrv");
    KlikTab(Tab::Kanaalelementen);
    KlikRij("lstProject", 0);
    toetsen->Typ(",");
    toetsen->Druk(Qt::Key_Tab);
    QCoreApplication::processEvents();
    ASSERT_EQ(Veld("txtHoogte")->toolTip(), "Voer geldig getal in");
    Sluit();
    Open(BronData / "kantoor.mrv");
    KlikTab(Tab::Kanaalelementen);
    if (dubbel) {
      const int aantal = programma.Project.ElementCount;
      const QPoint waar = Rij("lstTotaal", 7);
      Klik(Zoek<QListWidget>("lstTotaal")->viewport(), waar);
      QTest::mouseDClick(Zoek<QListWidget>("lstTotaal")->viewport(), Qt::LeftButton, {}, waar);
      EXPECT_EQ(programma.Project.ElementCount, aantal + 1);
    } else {
      KlikRij("lstProject", 1);
      EXPECT_EQ(Venster()->DeLijst().HuidigElement, 2);
    }
    IsInZicht("clicked");
    Sluit();
  }
}

TEST_F(Focus, AFieldThatWaitsForItsFocusIsForgottenWithItsProject) {
  Start();
  Open(BronData / "kantoor.mrv");
  KlikTab(Tab::Ruimtegegevens);
  KlikVeld("txtRLengte");
  toetsen->Typ("1,2,3");
  toetsen->Druk(Qt::Key_Tab);  // it has to go back; nothing of that was carried out yet
  Sluit();
  IsInZicht("closed");
  Open(BronData / "kantoor.mrv");
  IsInZicht("open");
  EXPECT_EQ(Bediening::Focus(), "txtProNum");
  EXPECT_EQ(Veld("txtRLengte")->toolTip(), "");
}

TEST_F(Focus, AFieldThatIsShownAgainDoesNotTakeTheKeyboard) {
  Start();
  Open(BronData / "kantoor.mrv");
  KlikTab(Tab::Ruimtegegevens);
  KlikVeld("txtRLengte");
  KlikTab(Tab::Projectgegevens);
  Zoek<QCheckBox>("VrijVeld")->click();
  KlikTab(Tab::Ruimtegegevens);
  IsInZicht("free field");
  KlikVeld("txtRDI");
  Zoek<QCheckBox>("VrijVeld")->click();
  EXPECT_EQ(Bediening::Focus(), "txtRDI");
}

// The menu that goes away would take a tip along that showed at once.
TEST_F(Focus, ARunFromTheMenuThatStopsAtARedFieldShowsItsTip) {
  Start();
  Open(BronData / "kantoor.mrv");
  KlikTab(Tab::Ruimtegegevens);
  KlikVeld("txtRNR");
  toetsen->Typ("1,2,3");
  toetsen->Menu({"mnuBestand", "mnuReken"});
  EXPECT_TRUE(
      QTest::qWaitFor([] { return QToolTip::isVisible() && QToolTip::text() == "Voer geldig getal in"; }));
  EXPECT_EQ(Bediening::Focus(), "txtRNR");
  EXPECT_FALSE(IsErEen("frmResultaat"));
  toetsen->Typ("35");
  toetsen->Menu({"mnuBestand", "mnuReken"});
  EXPECT_TRUE(IsBerekendBeeld());
}

// ---- Every state, every tab, every type and source, every page ----

TEST_F(Focus, NoStateTabTypeSourceOrPageHasItOutOfSight) {
  Start();
  Stap("start");
  for (const char* const type : Typen) {
    Kies(type);
    Stap(QString("no project, ") + type);
    for (const char* const bron : {"optInvoer", "optPrognose"}) {
      const QString geval = QString(type) + ", " + bron;
      Kies("mnuNieuw");
      Stap(geval + ", new");
      Bron(bron);
      Stap(geval + ", source");
      LoopTabs(geval + ", new");
      KlikTab(Tab::Kanaalelementen);
      for (int record = 1; record <= IngebouwdeElementen + 1; ++record) {
        KlikRij("lstTotaal", record - 1);
        Stap(geval + ", catalogue row " + QString::number(record));
        QTest::keyClick(Zoek<QWidget>("lstTotaal"), Qt::Key_Return);
        Stap(geval + ", page of " + QString::number(record));
      }
      LoopElementen(geval + ", new");
      LoopTabs(geval + ", new with elements");
      Sluit();
      Stap(geval + ", new one closed");
    }
  }
  for (const char* const naam : VoorbeeldNamen) {
    for (const std::int16_t bron : {fanbron::Lijst, fanbron::Prognose}) {
      const QString geval = QString(naam) + ", source " + QString::number(bron);
      const fs::path pad = Voorbeeld(naam, bron);
      Open(pad);
      Stap(geval + ", open");
      LoopTabs(geval + ", open");
      LoopElementen(geval + ", open");
      Sluit();
      Stap(geval + ", closed");
      Open(pad);
      Kies("mnuReken");
      ASSERT_TRUE(IsBerekendBeeld());
      IsInZicht(geval + ", results");
      toetsen->Druk(Qt::Key_Tab, Qt::ControlModifier);
      LoopTabs(geval + ", calculated");
      LoopElementen(geval + ", calculated");
      SlaOp(map / "bewaard.mrv");
      Stap(geval + ", saved");
    }
  }
}

/// Every control of every tab has had the keyboard when something hides or disables it, from another tab.
TEST_F(Focus, NoControlThatHadItGetsItBackOutOfSight) {
  const fs::path prognose = Voorbeeld("plafond.mrv", fanbron::Prognose);
  const fs::path lijst = Voorbeeld("kantoor.mrv", fanbron::Lijst);
  Start();
  struct Wissel {
    QString Naam;
    std::function<void()> Doe;
  };
  const std::vector<Wissel> wissels = {
      {"type 1", [&] { Kies("mnuVent"); }},
      {"type 2", [&] { Kies("mnuUitstraling"); }},
      {"type 3", [&] { Kies("mnuOverspraak"); }},
      {"list", [&] { Bron("optInvoer"); }},
      {"prognosis", [&] { Bron("optPrognose"); }},
      {"free field", [&] { Zoek<QCheckBox>("VrijVeld")->click(); }},
      {"first element", [&] { Zoek<QListWidget>("lstProject")->setCurrentRow(0); }},
      {"second element", [&] { Zoek<QListWidget>("lstProject")->setCurrentRow(1); }},
      {"catalogue", [&] { Zoek<QListWidget>("lstTotaal")->setCurrentRow(3); }},
      {"closed and new",
       [&] {
         Sluit();
         IsInZicht("closed");
         Kies("mnuNieuw");
       }},
      {"closed and open",
       [&] {
         Sluit();
         Open(lijst);
       }},
      {"saved and open",
       [&] {
         SlaOp(map / "bewaard.mrv");
         IsInZicht("saved");
         Open(prognose);
       }},
  };
  std::size_t geprobeerd = 0;
  for (const auto& [bestand, tab] :
       {std::pair{BronData / "plafond.mrv", Tab::Ruimtegegevens}, std::pair{prognose, Tab::Ventilator},
        std::pair{lijst, Tab::Ventilator}, std::pair{lijst, Tab::Ruimtegegevens},
        std::pair{lijst, Tab::Kanaalelementen},
        std::pair{BronData / "overspraak.mrv", Tab::Kanaalelementen}}) {
    const auto begin = [&, van = bestand, op = tab](std::size_t rij) {
      if (ProjectOpen(Venster()->DeSessie())) Sluit();
      Open(van);
      KlikTab(op);
      if (op == Tab::Kanaalelementen) KlikRij("lstProject", static_cast<int>(rij % 4));
    };
    for (std::size_t rij = 0; rij < (tab == Tab::Kanaalelementen ? 4U : 1U); ++rij) {
      begin(rij);
      QStringList namen;
      for (const QWidget* const vak : Besturing(tab)) namen << vak->objectName();
      ASSERT_GT(namen.size(), 3);
      for (const QString& naam : namen) {
        const Wissel& wissel = wissels[geprobeerd++ % wissels.size()];
        begin(rij);
        Zoek<QWidget>(naam)->setFocus(Qt::TabFocusReason);
        KlikTab(Tab::Projectgegevens);
        wissel.Doe();
        KlikTab(tab);
        Stap(naam + ", " + wissel.Naam);
      }
    }
  }
  EXPECT_GT(geprobeerd, 10 * wissels.size());
}

}  // namespace
}  // namespace murvane::proef
