#pragma once
// The windows as the tests find them: the project window by itself, and the main window around it.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTabWidget>
#include <QTest>
#include <array>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "basis/vensters_hulp.h"
#include "editor/frmMurvane.h"
#include "project/projectfile.h"
#include "reports/frmResultaat.h"
#include "shell/MDIMurvane.h"
#include "shell/programma.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/paden.h"
#include "tests/hulp/script.h"

namespace murvane {

inline const std::filesystem::path Data = proef::BronMap() / "data";
inline constexpr std::array<const char*, 3> VoorbeeldNamen = {"kantoor.mrv", "plafond.mrv", "overspraak.mrv"};

/// The project window with the program's own catalogues, at the size that a 1024x768 screen leaves it.
class ProjectVenster : public testing::Test {
 protected:
  ProjectVenster() : script([](const std::string& fout) { ADD_FAILURE() << fout; }) {
    catalogi = LeesCatalogi(Data);
    venster = std::make_unique<frmMurvane>(project, catalogi, script, "20-11-2026", ',');
    venster->resize(1000, 640);
    venster->show();
    QApplication::setActiveWindow(venster.get());
  }

  void OpenVoorbeeld(const char* naam) {
    project = LeesProject(Data / naam);
    ZetGeopend(venster->DeSessie(), venster->DeLijst(), naam);
    venster->ToonProject(true);
  }

  void Nieuw() {
    Reset(venster->DeSessie(), venster->DeLijst(), project);
    ZetNieuw(venster->DeSessie(), venster->DeLijst());
    venster->ToonProject(true);
  }

  template <typename Soort>
  Soort* Zoek(const QString& naam) {
    auto* const gevonden = venster->findChild<Soort*>(naam);
    if (gevonden == nullptr) throw std::runtime_error("no control " + naam.toStdString());
    return gevonden;
  }
  QLineEdit* Veld(const QString& naam) { return Zoek<QLineEdit>(naam); }
  QString Focus() { return venster->focusWidget() == nullptr ? "" : venster->focusWidget()->objectName(); }
  void KiesTab(Tab tab) { Zoek<QTabWidget>("SSTab1")->setCurrentIndex(static_cast<int>(tab)); }
  void NaarVeld(const QString& naam) { Veld(naam)->setFocus(Qt::TabFocusReason); }
  void Typ(const QString& tekst) { QTest::keyClicks(QApplication::focusWidget(), tekst); }
  void Druk(Qt::Key toets) { QTest::keyClick(QApplication::focusWidget(), toets); }
  void KiesElement(int n) {
    KiesTab(Tab::Kanaalelementen);
    auto* const lijst = Zoek<QListWidget>("lstProject");
    lijst->scrollToItem(lijst->item(n - 1));
    QTest::mouseClick(lijst->viewport(), Qt::LeftButton, {},
                      lijst->visualItemRect(lijst->item(n - 1)).center());
  }
  /// Selects a catalogue record by the keyboard; the focus stays in the list.
  void KiesRecord(int record) {
    KiesTab(Tab::Kanaalelementen);
    auto* const lijst = Zoek<QListWidget>("lstTotaal");
    lijst->setFocus(Qt::TabFocusReason);
    Druk(Qt::Key_Home);
    for (int n = 1; n < record; ++n) Druk(Qt::Key_Down);
  }
  /// The texts of the labels that belong to a control, in the order in which they were made.
  QStringList Opschriften(const QString& naam) {
    QStringList uit;
    for (const QLabel* const label : venster->findChildren<QLabel*>()) {
      if (label->buddy() == Zoek<QWidget>(naam)) uit << label->text();
    }
    return uit;
  }
  void MaakBerekend() {
    (void)Berekend(venster->DeSessie(), vlag::Berekend, "");
    ASSERT_EQ(venster->DeSessie().Toestand, Toestand::Berekend);
  }
  bool IsRood(const QString& naam) {
    return Veld(naam)->palette().color(QPalette::Base) == KleurVan(FoutKleur);
  }
  static Melding Waarschuwing(const std::string& tekst) {
    return {MeldingSoort::Uitroep, "Waarschuwing", tekst};
  }

  proef::Script script;
  Project project;
  Catalogi catalogi;
  std::unique_ptr<frmMurvane> venster;
};

inline const Melding VraagSluiten{
    MeldingSoort::Vraag, "Bestand sluiten",
    "Wilt u het bestand sluiten zonder data-opslag van eventueel ingevoerde/gewijzigde "
    "bestandsgegevens?",
    Knoppen::OkCancel};
inline const Melding VraagOpslaan{MeldingSoort::Vraag, "Programma afsluiten",
                                  "Geopend bestand eerst opslaan?", Knoppen::YesNo};

/// The main window with the program's own catalogues; DataDir is a directory of the test.
class Hoofdvenster : public testing::Test {
 protected:
  Hoofdvenster() : script([](const std::string& fout) { ADD_FAILURE() << fout; }) {
    programma.Catalogi = LeesCatalogi(Data);
    programma.DataDir = map.Pad();
    programma.Vandaag = std::string_view("20-11-2026");
    programma.Instellingen.Gebruikersnaam = std::string_view("Proefbureau");
    venster = std::make_unique<MDIMurvane>(programma, script);
    venster->resize(1024, 740);
    venster->show();
    QApplication::setActiveWindow(venster.get());
  }

  QAction* Actie(const char* naam) {
    auto* actie = venster->findChild<QAction*>(naam);
    if (actie == nullptr) throw std::runtime_error(std::string("geen ") + naam);
    return actie;
  }
  void Kies(const char* naam) { Actie(naam)->trigger(); }
  QString Paneel(int nummer) {
    return venster->findChild<QLabel*>("StatusBar1_" + QString::number(nummer))->text();
  }
  void Open(const char* naam) {
    programma.OpenBestand = Data / naam;
    venster->OpenVanOpdrachtregel();
  }
  frmMurvane* ProjectVenster() { return venster->findChild<frmMurvane*>("frmMurvane"); }
  frmResultaat* Resultaat() { return venster->findChild<frmResultaat*>("frmResultaat"); }

  std::vector<std::string> Aan() {
    std::vector<std::string> uit;
    for (const char* naam :
         {"mnuNieuw", "mnuOpen", "mnuReken", "mnuPreview", "mnuSluiten", "mnuOpslaan", "mnuExit"}) {
      if (Actie(naam)->isEnabled()) uit.emplace_back(naam);
    }
    return uit;
  }

  proef::TijdelijkeMap map;
  proef::Script script;
  Programma programma;
  std::unique_ptr<MDIMurvane> venster;
};

using Namen = std::vector<std::string>;
inline const Namen GeenProject = {"mnuNieuw", "mnuOpen", "mnuExit"};
inline const Namen NietBerekend = {"mnuReken", "mnuSluiten", "mnuOpslaan", "mnuExit"};
inline const Namen WelBerekend = {"mnuPreview", "mnuSluiten", "mnuOpslaan", "mnuExit"};

}  // namespace murvane
