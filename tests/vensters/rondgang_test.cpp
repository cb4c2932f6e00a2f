// A walk through all windows: what each of them owes to whoever looks at it or walks it by keyboard. A window
// of the program is one line of the table below; ctest runs the walk once for each scale of the screen.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollBar>
#include <QStatusBar>
#include <QStyleOptionFrame>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QTextEdit>
#include <QToolButton>
#include <QWheelEvent>
#include <set>

#include "basis/getal.h"
#include "basis/vensters_hulp.h"
#include "basis/vensters_stijl.h"
#include "catalogue/frmOnderhoud.h"
#include "catalogue/frmOverzicht.h"
#include "editor/frmMurvane.h"
#include "editor/vensters_blad.h"
#include "editor/vensters_tekening.h"
#include "editor/vensters_veld.h"
#include "estimators/frmCalc.h"
#include "estimators/vensters_staven.h"
#include "project/projectfile.h"
#include "reports/frmGrafiek.h"
#include "reports/frmLettertype.h"
#include "reports/frmPreView.h"
#include "reports/frmResultaat.h"
#include "reports/frmSelGraf.h"
#include "shell/MDIMurvane.h"
#include "shell/frmAbout.h"
#include "shell/frmSplashII.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/paden.h"
#include "tests/hulp/script.h"
#include "tests/vensters/beeld.h"

namespace murvane {
namespace {

using proef::Donker;
using proef::HoogContrast;
using proef::Thema;

const std::filesystem::path Data = proef::BronMap() / "data";

/// The size of the letters that the user has, against the system's own.
double Letters() {
  static const double gewoon = QApplication::font().pointSizeF();
  return QApplication::font().pointSizeF() / gewoon;
}

/// The screen in logical pixels. Large letters come with a screen to match, as a display of 200 % has one of
/// 2048x1536.
QSize Scherm() {
  return QSize(1024, 768) * Letters();
}

/// What a window manager keeps of the screen for the title bar and a task bar.
constexpr int Randen = 40;

/// A program with its main window, as the user has it.
class Wereld {
 public:
  explicit Wereld(QSize maat = Scherm() - QSize(0, Randen))
      : script_([](const std::string& fout) { ADD_FAILURE() << fout; }) {
    programma_.Catalogi = LeesCatalogi(Data);
    programma_.DataDir = map_.Pad();
    programma_.Vandaag = std::string_view("20-11-2026");
    hoofd_ = std::make_unique<MDIMurvane>(programma_, script_);
    hoofd_->resize(maat);
    hoofd_->show();
    QApplication::setActiveWindow(hoofd_.get());
  }

  [[nodiscard]] MDIMurvane* Hoofd() { return hoofd_.get(); }
  [[nodiscard]] Project& HetProject() { return programma_.Project; }

  template <typename Soort>
  [[nodiscard]] Soort* Zoek(const QString& naam) {
    auto* const gevonden = hoofd_->findChild<Soort*>(naam);
    if (gevonden == nullptr) throw std::runtime_error("no control " + naam.toStdString());
    return gevonden;
  }
  void Kies(const char* naam) { Zoek<QAction>(naam)->trigger(); }
  void Toon() { Zoek<frmMurvane>("frmMurvane")->ToonProject(true); }
  void KiesTab(Tab tab) { Zoek<QTabWidget>("SSTab1")->setCurrentIndex(static_cast<int>(tab)); }

  void Open(const std::filesystem::path& pad) {
    programma_.OpenBestand = pad;
    hoofd_->OpenVanOpdrachtregel();
  }

  /// Back to no project.
  void Sluit() {
    if (schatter_ != nullptr || dialoog_ != nullptr) {
      schatter_.reset();
      dialoog_.reset();
      QApplication::setActiveWindow(hoofd_.get());
    }
    if (!Zoek<QAction>("mnuSluiten")->isEnabled()) return;
    script_.Box({MeldingSoort::Vraag, "Bestand sluiten",
                 "Wilt u het bestand sluiten zonder data-opslag van eventueel ingevoerde/gewijzigde "
                 "bestandsgegevens?",
                 Knoppen::OkCancel});
    Kies("mnuSluiten");
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// A project of one kind of calculation, on one of its tabs.
  void MaakTab(const char* soort, bool vrijVeld, Tab tab) {
    Kies("mnuNieuw");
    Kies(soort);
    HetProject().VrijVeld = vrijVeld ? 1 : 0;
    Toon();
    KiesTab(tab);
  }

  /// The page of an element type; `plaats` 2 puts another one before it.
  void MaakElement(const char* soort, std::int16_t type, std::int16_t plaats) {
    Kies("mnuNieuw");
    Kies(soort);
    HetProject().ElementCount = plaats;
    HetProject().Elementen[1].ElementType = elementtype::KanaalRecht;
    HetProject().Elementen[static_cast<std::size_t>(plaats)].ElementType = type;
    HetProject().Elementen[static_cast<std::size_t>(plaats)].Naam = std::string_view("Kanaalelement");
    Toon();
    KiesTab(Tab::Kanaalelementen);
    Zoek<QListWidget>("lstProject")->setCurrentRow(plaats - 1);
  }

  /// An estimator, with a good estimate in it.
  [[nodiscard]] frmCalc* MaakSchatter(Schatter soort) {
    programma_.SchatInvoer.Bekleed = {400, 600, 50, 2.5};
    programma_.SchatInvoer.KwartLambda = {200, 0, 1, 0.5};
    programma_.SchatInvoer.Plenum = {600, 800, 1.2, 250, 0, 50};
    programma_.SchatInvoer.Kanaalwand = {kanaaltype::Zink, 2, 5.5};
    schatter_ = std::make_unique<frmCalc>(soort, programma_.SchatInvoer, script_, ',');
    schatter_->show();
    QApplication::setActiveWindow(schatter_.get());
    return schatter_.get();
  }

  /// The maintenance of a catalogue, with its second record in view or in an entry.
  [[nodiscard]] QWidget* MaakOnderhoud(CatalogusSoort soort, bool entry) {
    QWidget* const venster = MaakDialoog(
        std::make_unique<frmOnderhoud>(soort, OnderhoudOmgeving{programma_.Catalogi, programma_.SchatInvoer,
                                                                script_, map_.Pad(), "20-11-2026", ','}));
    venster->findChild<QListWidget*>("lstSpectrum")->setCurrentRow(1);
    if (entry) venster->findChild<QPushButton*>("cmdwijzig")->click();
    return venster;
  }

  [[nodiscard]] QWidget* MaakOverzicht(CatalogusSoort soort) {
    return MaakDialoog(std::make_unique<frmOverzicht>(
        Overzicht(programma_.Catalogi, soort, OverzichtWijze::Alles, ZoekAlles, "20-11-2026", ','), script_));
  }

  /// The results of a sample, in their window.
  void MaakResultaat(const char* voorbeeld) {
    Open(Data / voorbeeld);
    Kies("mnuReken");
  }

  /// The preview of a sample's form.
  [[nodiscard]] frmPreView* MaakVoorbeeld(const char* voorbeeld) {
    MaakResultaat(voorbeeld);
    script_.Box({MeldingSoort::Vraag, "Afdrukinstelling", "Afdrukken met grafiek?", Knoppen::YesNo},
                Antwoord::No);
    Zoek<frmResultaat>("frmResultaat")->findChild<QToolButton*>("Toolbar1_preview")->click();
    return Zoek<frmPreView>("frmPreView");
  }
  [[nodiscard]] QWidget* MaakGrafiek() {
    MaakResultaat("kantoor.mrv");
    Grafiek2(programma_.Project, programma_.Resultaten, kiesgrafiek::EenMeter, programma_.Grafiek);
    return MaakDialoog(std::make_unique<frmGrafiek>(programma_.Grafiek, frmGrafiek::Afdrukken()));
  }
  [[nodiscard]] QWidget* MaakLettertype() {
    programma_.Instellingen.Druk = StandaardDrukInstelling();
    return MaakDialoog(std::make_unique<frmLettertype>(programma_.Instellingen.Druk, SysteemFonts));
  }
  [[nodiscard]] QWidget* MaakInfo() {
    programma_.Instellingen.GebruikerLabel = std::string_view("Jansen && Zn.");
    return MaakDialoog(std::make_unique<frmAbout>(
        programma_.Instellingen, Data.parent_path() / "levering/levering.txt", script_, nullptr));
  }
  [[nodiscard]] QWidget* MaakSplash() { return MaakDialoog(std::make_unique<frmSplashII>()); }
  [[nodiscard]] QWidget* MaakDialoog(std::unique_ptr<QWidget> dialoog) {
    dialoog_ = std::move(dialoog);
    dialoog_->show();
    QApplication::setActiveWindow(dialoog_.get());
    return dialoog_.get();
  }

  [[nodiscard]] const std::filesystem::path& Map() const { return map_.Pad(); }

 private:
  proef::TijdelijkeMap map_;
  proef::Script script_;
  Programma programma_;
  std::unique_ptr<MDIMurvane> hoofd_;
  std::unique_ptr<frmCalc> schatter_;
  std::unique_ptr<QWidget> dialoog_;
};

/// A window as the user meets it: `Maak` brings the program there and gives the window that is walked.
struct Stand {
  std::string Naam;
  std::function<QWidget*(Wereld&)> Maak;
};

constexpr std::array<const char*, 3> Soorten = {"mnuVent", "mnuUitstraling", "mnuOverspraak"};
constexpr std::array<const char*, 3> Voorbeelden = {"kantoor.mrv", "plafond.mrv", "overspraak.mrv"};
constexpr std::array<const char*, 4> Tabs = {"Ventilator", "Kanaalelementen", "Ruimtegegevens",
                                             "Projectgegevens"};

void VoegTabs(std::vector<Stand>& standen) {
  for (const char* const soort : Soorten) {
    for (const bool vrijVeld : {false, true}) {
      for (std::size_t tab = 0; tab < Tabs.size(); ++tab) {
        if (soort == Soorten[2] && tab == 0) continue;  // has no fan
        standen.push_back({std::string(soort) + (vrijVeld ? " vrij veld " : " ") + Tabs[tab], [=](Wereld& w) {
                             w.MaakTab(soort, vrijVeld, static_cast<Tab>(tab));
                             return w.Hoofd();
                           }});
      }
    }
  }
}

void VoegElementen(std::vector<Stand>& standen) {
  for (const char* const soort : Soorten) {
    for (const int type : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 99}) {
      for (const int plaats : {1, 2}) {
        if (plaats == 2 && soort != Soorten[0]) continue;  // the first of a chain alone differs, by the fan
        standen.push_back({std::string(soort) + " element van type " + std::to_string(type) + " op " +
                               std::to_string(plaats),
                           [=](Wereld& w) {
                             w.MaakElement(soort, static_cast<std::int16_t>(type),
                                           static_cast<std::int16_t>(plaats));
                             return w.Hoofd();
                           }});
      }
    }
  }
}

/// The windows as an engineer sees them, with a project in them; each has a picture of its own.
const std::vector<Stand>& Fotos() {
  static const std::vector<Stand> tabel = [] {
    std::vector<Stand> fotos;
    fotos.push_back({"geen-project", [](Wereld& w) { return w.Hoofd(); }});
    const auto voeg = [&fotos](const char* naam, const char* voorbeeld, Tab tab, int element) {
      fotos.push_back({naam, [=](Wereld& w) {
                         w.Open(Data / voorbeeld);
                         w.KiesTab(tab);
                         if (element > 0) w.Zoek<QListWidget>("lstProject")->setCurrentRow(element - 1);
                         return w.Hoofd();
                       }});
    };
    voeg("projectgegevens", "kantoor.mrv", Tab::Projectgegevens, 0);
    voeg("ventilator-prognose", "kantoor.mrv", Tab::Ventilator, 0);
    voeg("ventilator-lijst", "plafond.mrv", Tab::Ventilator, 0);
    voeg("ruimtegegevens", "kantoor.mrv", Tab::Ruimtegegevens, 0);
    voeg("ruimtegegevens-plafond", "plafond.mrv", Tab::Ruimtegegevens, 0);
    voeg("kanaalelementen", "kantoor.mrv", Tab::Kanaalelementen, 0);
    voeg("kanaal-rechthoekig", "kantoor.mrv", Tab::Kanaalelementen, 3);
    voeg("kanaal-rond", "kantoor.mrv", Tab::Kanaalelementen, 12);
    voeg("bocht-rechthoekig", "kantoor.mrv", Tab::Kanaalelementen, 4);
    voeg("bocht-rond", "kantoor.mrv", Tab::Kanaalelementen, 14);
    voeg("aftakking-rechthoekig", "kantoor.mrv", Tab::Kanaalelementen, 6);
    voeg("aftakking-rond", "kantoor.mrv", Tab::Kanaalelementen, 11);
    voeg("doorsnedeverandering-rond", "kantoor.mrv", Tab::Kanaalelementen, 15);
    voeg("regelklep", "kantoor.mrv", Tab::Kanaalelementen, 7);
    voeg("rooster", "kantoor.mrv", Tab::Kanaalelementen, 16);
    voeg("element-uit-de-lijst", "kantoor.mrv", Tab::Kanaalelementen, 2);
    fotos.push_back({"kalender", [](Wereld& w) {
                       w.Open(Data / "kantoor.mrv");
                       w.Zoek<QToolButton>("Image1")->click();
                       return w.Hoofd();
                     }});
    for (const Schatter soort :
         {Schatter::Bekleed, Schatter::KwartLambda, Schatter::Plenum, Schatter::Kanaalwand})
      fotos.push_back(
          {std::string(VensterVan(soort).Naam), [soort](Wereld& w) { return w.MaakSchatter(soort); }});
    for (const CatalogusSoort soort : {CatalogusSoort::Kanaalelementen, CatalogusSoort::Ventilatoren,
                                       CatalogusSoort::Luchtkanalen, CatalogusSoort::Plafonds}) {
      for (const bool entry : {false, true})
        fotos.push_back({std::string(OnderhoudVan(soort).Venster) + (entry ? "-wijzigen" : ""),
                         [=](Wereld& w) { return w.MaakOnderhoud(soort, entry); }});
    }
    fotos.push_back(
        {"frmOverzicht", [](Wereld& w) { return w.MaakOverzicht(CatalogusSoort::Kanaalelementen); }});
    fotos.push_back({"grafiek", [](Wereld& w) { return w.MaakGrafiek(); }});
    fotos.push_back(
        {"keuze-grafiek", [](Wereld& w) { return w.MaakDialoog(std::make_unique<frmSelGraf>()); }});
    fotos.push_back({"lettertype", [](Wereld& w) { return w.MaakLettertype(); }});
    fotos.push_back({"info", [](Wereld& w) { return w.MaakInfo(); }});
    fotos.push_back({"splash", [](Wereld& w) { return w.MaakSplash(); }});
    fotos.push_back({"resultaten", [](Wereld& w) {
                       w.MaakResultaat("kantoor.mrv");
                       return w.Hoofd();
                     }});
    fotos.push_back({"afdrukvoorbeeld", [](Wereld& w) {
                       (void)w.MaakVoorbeeld("kantoor.mrv");
                       return w.Hoofd();
                     }});
    return fotos;
  }();
  return tabel;
}

/// Those in which one window shows; those of the results cover the project's.
std::vector<Stand> EnkeleFotos() {
  std::vector<Stand> fotos = Fotos();
  std::erase_if(
      fotos, [](const Stand& foto) { return foto.Naam == "resultaten" || foto.Naam == "afdrukvoorbeeld"; });
  return fotos;
}

/// Those in which a large screen shows more than a small one.
std::vector<Stand> GroteFotos() {
  static const std::set<std::string> groot = {"projectgegevens", "ventilator-prognose", "ventilator-lijst",
                                              "ruimtegegevens",  "kanaal-rechthoekig",  "resultaten",
                                              "afdrukvoorbeeld"};
  std::vector<Stand> fotos = Fotos();
  std::erase_if(fotos, [](const Stand& foto) { return !groot.contains(foto.Naam); });
  return fotos;
}

/// The windows of the program.
const std::vector<Stand>& Standen() {
  static const std::vector<Stand> tabel = [] {
    std::vector<Stand> standen = EnkeleFotos();
    VoegTabs(standen);
    standen.push_back({"prognose van de ventilator", [](Wereld& w) {
                         w.MaakTab("mnuVent", false, Tab::Ventilator);
                         w.Zoek<QRadioButton>("optPrognose")->click();
                         return w.Hoofd();
                       }});
    standen.push_back({"lijst kanaalelementen", [](Wereld& w) {
                         w.MaakTab("mnuVent", false, Tab::Kanaalelementen);
                         w.Zoek<QListWidget>("lstTotaal")->setCurrentRow(3);
                         return w.Hoofd();
                       }});
    VoegElementen(standen);
    for (const char* const voorbeeld : Voorbeelden) {
      standen.push_back({std::string("frmResultaat ") + voorbeeld, [voorbeeld](Wereld& w) {
                           w.MaakResultaat(voorbeeld);
                           return w.Zoek<frmResultaat>("frmResultaat");
                         }});
    }
    for (const char* const voorbeeld : {"kantoor.mrv", "overspraak.mrv"}) {  // of two pages and of one
      standen.push_back({std::string("frmPreView ") + voorbeeld,
                         [voorbeeld](Wereld& w) { return w.MaakVoorbeeld(voorbeeld); }});
    }
    return standen;
  }();
  return tabel;
}

// ---- Which controls there are ----

/// What the toolkit makes inside its own controls is not ours to judge.
bool IsInwendig(const QWidget& vak, const QWidget& venster) {
  for (const QWidget* een = &vak; een != nullptr && een != &venster; een = een->parentWidget()) {
    if (qobject_cast<const QCalendarWidget*>(een->parentWidget()) != nullptr) return true;
    if (een->objectName().startsWith("qt_") && een->objectName() != "qt_tabwidget_tabbar" &&
        een->objectName() != "qt_tabwidget_stackedwidget" && een->objectName() != "qt_scrollarea_viewport")
      return true;
    if (qobject_cast<const QComboBox*>(een->parentWidget()) != nullptr) return true;
    if (qobject_cast<const QMdiSubWindow*>(een->parentWidget()) != nullptr && een->objectName().isEmpty())
      return true;
    if (qobject_cast<const QTabBar*>(een->parentWidget()) != nullptr) return true;
    if (qobject_cast<const QMenuBar*>(een->parentWidget()) != nullptr) return true;
    if (qobject_cast<const QStatusBar*>(een->parentWidget()) != nullptr && een->objectName().isEmpty())
      return true;
  }
  return false;
}

std::vector<QWidget*> Zichtbaar(const QWidget& venster) {
  std::vector<QWidget*> uit;
  for (QWidget* const vak : venster.findChildren<QWidget*>()) {
    const bool kader = qobject_cast<const QMdiSubWindow*>(vak) != nullptr;
    if (vak->isVisible() && !vak->isWindow() && !kader && !IsInwendig(*vak, venster)) uit.push_back(vak);
  }
  return uit;
}

bool KrijgtTab(const QWidget& vak) {
  return vak.isEnabled() && (vak.focusPolicy() & Qt::TabFocus) == Qt::TabFocus && vak.focusProxy() == nullptr;
}

/// Options that exclude each other: those of a group, or those without one in the same place.
std::vector<QRadioButton*> Keuze(const QRadioButton& optie) {
  std::vector<QRadioButton*> uit;
  for (auto* const een : optie.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
    if (een->group() == optie.group()) uit.push_back(een);
  }
  return uit;
}

/// The controls that the Tab key has to reach. Of options that exclude each other the one that is chosen
/// stands for all, or when none is the one that had the focus last: the arrow keys reach the others.
std::set<QWidget*> Bereikbaar(const QWidget& venster) {
  std::set<QWidget*> uit;
  for (QWidget* const vak : Zichtbaar(venster)) {
    const auto* const optie = qobject_cast<QRadioButton*>(vak);
    if (optie == nullptr) {
      if (KrijgtTab(*vak)) uit.insert(vak);
      continue;
    }
    const std::vector<QRadioButton*> keuze = Keuze(*optie);
    auto gekozen =
        std::find_if(keuze.begin(), keuze.end(), [](const QRadioButton* een) { return een->isChecked(); });
    if (gekozen == keuze.end())
      gekozen =
          std::find_if(keuze.begin(), keuze.end(), [](const QRadioButton* een) { return KrijgtTab(*een); });
    uit.insert(gekozen == keuze.end() ? keuze.front() : *gekozen);
  }
  return uit;
}

/// How many controls the walk has to find at least; a walk that finds nothing has shown nothing.
std::size_t Minstens(const Stand& stand) {
  static const std::vector<std::pair<std::string, std::size_t>> bekend = {
      {"geen-project", 0},  {"splash", 0},     {"grafiek", 1},        {"vrij veld Ruimtegegevens", 2},
      {"uimtegegevens", 8}, {"entilator", 11}, {"rojectgegevens", 9}, {"element van type", 7},
      {"-wijzigen", 11},
  };
  const auto rij = std::find_if(bekend.begin(), bekend.end(), [&stand](const auto& een) {
    return stand.Naam.find(een.first) != std::string::npos;
  });
  return rij == bekend.end() ? 3 : rij->second;
}

using Kijk = std::function<void(Wereld&, QWidget&)>;

void Bezoek(const Kijk& kijk, const std::vector<Stand>& standen = Standen()) {
  Wereld wereld;
  for (const Stand& stand : standen) {
    SCOPED_TRACE(stand.Naam);
    wereld.Sluit();
    QWidget* const venster = stand.Maak(wereld);
    QCoreApplication::processEvents();
    EXPECT_GE(Bereikbaar(*venster).size(), Minstens(stand)) << "controls that the Tab key has to reach";
    kijk(wereld, *venster);
  }
}

std::string Naam(const QWidget& vak) {
  return vak.objectName().isEmpty() ? vak.metaObject()->className() : vak.objectName().toStdString();
}

QRect Plaats(const QWidget& vak, const QWidget& venster) {
  return QRect(vak.mapTo(&venster, QPoint(0, 0)), vak.size());
}

QWidget* Focus() {
  return QApplication::focusWidget();
}

/// The controls in the order in which the Tab key (or Shift+Tab) reaches them, up to the first one again.
std::vector<QWidget*> Loop(Qt::KeyboardModifiers met = {}) {
  std::vector<QWidget*> uit;
  for (int stap = 0; stap < 200 && Focus() != nullptr; ++stap) {
    QTest::keyClick(Focus(), Qt::Key_Tab, met);
    if (std::find(uit.begin(), uit.end(), Focus()) != uit.end()) break;
    uit.push_back(Focus());
  }
  return uit;
}

// ---- The Tab key ----

/// The two of which the order is read: the controls themselves, or what holds the one and not the other.
std::pair<QWidget*, QWidget*> Zusters(QWidget* een, QWidget* ander) {
  for (QWidget* boven = een; boven->parentWidget() != nullptr; boven = boven->parentWidget()) {
    if (!boven->parentWidget()->isAncestorOf(ander)) continue;
    QWidget* onder = ander;
    while (onder->parentWidget() != boven->parentWidget()) onder = onder->parentWidget();
    return {boven, onder};
  }
  return {een, ander};
}

/// Whether the eye reads `na` behind `voor`: not above it unless to its right, not left of it unless below.
bool LeestNa(const QRect& voor, const QRect& na) {
  const bool boven = na.bottom() < voor.top();
  const bool links = na.right() < voor.left();
  return !(boven && na.left() <= voor.right()) && !(links && na.top() <= voor.bottom());
}

void ControleerLeesrichting(const std::vector<QWidget*>& loop, const QWidget& venster) {
  for (std::size_t i = 0; i < loop.size(); ++i) {
    for (std::size_t j = i + 1; j < loop.size(); ++j) {
      const auto [voor, na] = Zusters(loop[i], loop[j]);
      EXPECT_TRUE(LeestNa(Plaats(*voor, venster), Plaats(*na, venster)))
          << Naam(*loop[j]) << " comes after " << Naam(*loop[i]);
    }
  }
}

/// The walk from the control that stands first on screen.
std::vector<QWidget*> VanBoven(std::vector<QWidget*> loop, const QWidget& venster) {
  const auto plaats = [&venster](const QWidget* vak) {
    const QRect r = Plaats(*vak, venster);
    return std::pair(r.top(), r.left());
  };
  const auto eerste = std::min_element(
      loop.begin(), loop.end(), [&](const QWidget* a, const QWidget* b) { return plaats(a) < plaats(b); });
  std::rotate(loop.begin(), eerste, loop.end());
  return loop;
}

TEST(Rondgang, TabGoesRoundInReadingOrder) {
  Bezoek([](Wereld&, QWidget& venster) {
    const std::set<QWidget*> alle = Bereikbaar(venster);
    if (alle.empty()) return;  // Bezoek knows where that may be
    (*alle.begin())->setFocus(Qt::TabFocusReason);
    const std::vector<QWidget*> loop = Loop();
    for (QWidget* const vak : alle) {
      EXPECT_NE(std::find(loop.begin(), loop.end(), vak), loop.end()) << Naam(*vak) << " is not reached";
    }
    for (QWidget* const vak : loop) {
      EXPECT_TRUE(alle.contains(vak) || IsInwendig(*vak, venster)) << Naam(*vak) << " takes the focus";
    }
    ControleerLeesrichting(VanBoven(loop, venster), venster);
    std::vector<QWidget*> terug = Loop(Qt::ShiftModifier);
    EXPECT_EQ(terug.size(), loop.size()) << "back with Shift";
  });
}

TEST(Rondgang, TheArrowKeysReachEveryOption) {
  Bezoek([](Wereld&, QWidget& venster) {
    for (QWidget* const vak : Zichtbaar(venster)) {
      auto* const optie = qobject_cast<QRadioButton*>(vak);
      if (optie == nullptr) continue;
      const std::vector<QRadioButton*> keuze = Keuze(*optie);
      keuze.front()->setFocus(Qt::OtherFocusReason);
      for (const Qt::Key pijl : {Qt::Key_Left, Qt::Key_Up, Qt::Key_Right, Qt::Key_Down}) {
        for (std::size_t i = 0; i < keuze.size() && Focus() != optie; ++i) QTest::keyClick(Focus(), pijl);
      }
      EXPECT_EQ(Focus(), optie) << Naam(*optie);
    }
  });
}

TEST(Rondgang, EnterPressesAButton) {
  Bezoek([](Wereld&, QWidget& venster) {
    for (QWidget* const vak : Bereikbaar(venster)) {
      auto* const knop = qobject_cast<QAbstractButton*>(vak);
      if (knop == nullptr || knop->isCheckable()) continue;
      for (const Qt::Key toets : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
        QObject::disconnect(knop, &QAbstractButton::clicked, nullptr,
                            nullptr);  // what it does is not the matter
        int gedrukt = 0;
        QObject tot;
        QObject::connect(knop, &QAbstractButton::clicked, &tot, [&gedrukt] { ++gedrukt; });
        knop->setFocus(Qt::TabFocusReason);
        QTest::keyClick(knop, toets);
        EXPECT_EQ(gedrukt, 1) << Naam(*knop);
      }
    }
  });
}

// ---- Names ----

QString Toegankelijk(QWidget* vak) {
  // The toolkit takes what such a list holds for its name here; a screen reader hears its label.
  if (const auto* const keuze = qobject_cast<QComboBox*>(vak); keuze != nullptr && !keuze->isEditable())
    return keuze->accessibleName();
  QAccessibleInterface* const kijk = QAccessible::queryAccessibleInterface(vak);
  return kijk == nullptr ? QString() : kijk->text(QAccessible::Name);
}

TEST(Rondgang, WhatTakesTheFocusSaysItsName) {
  Bezoek([](Wereld&, QWidget& venster) {
    std::set<QString> namen;
    for (QWidget* const vak : Bereikbaar(venster)) {
      const QString naam = Toegankelijk(vak);
      EXPECT_FALSE(naam.trimmed().isEmpty()) << Naam(*vak);
      for (const auto* groep : venster.findChildren<QGroupBox*>())
        EXPECT_NE(naam, groep->title()) << Naam(*vak);
      EXPECT_TRUE(namen.insert(naam).second) << naam.toStdString() << " names two controls";
    }
  });
}

/// What is used, or tells something that is no text.
bool IsUitTeLeggen(const QWidget& vak) {
  return vak.focusPolicy() != Qt::NoFocus || qobject_cast<const Tekening*>(&vak) != nullptr ||
         qobject_cast<const Staven*>(&vak) != nullptr || qobject_cast<const QProgressBar*>(&vak) != nullptr ||
         qobject_cast<const QScrollBar*>(&vak) != nullptr;
}

TEST(Rondgang, EveryControlSaysWhatItIsAndWhatItDoes) {
  Bezoek([](Wereld&, QWidget& venster) {
    for (QWidget* const vak : Zichtbaar(venster)) {
      if (!IsUitTeLeggen(*vak) || vak->focusProxy() != nullptr) continue;
      const QString naam = Toegankelijk(vak);
      EXPECT_FALSE(naam.trimmed().isEmpty()) << Naam(*vak);
      EXPECT_FALSE(vak->accessibleDescription().trimmed().isEmpty()) << Naam(*vak);
      EXPECT_NE(vak->accessibleDescription(), naam) << Naam(*vak);
    }
  });
}

bool IsInvoer(const QWidget* vak) {
  return qobject_cast<const QLineEdit*>(vak) != nullptr || qobject_cast<const QComboBox*>(vak) != nullptr ||
         qobject_cast<const QListWidget*>(vak) != nullptr;
}

TEST(Rondgang, EveryFieldHasItsLabel) {
  Bezoek([](Wereld&, QWidget& venster) {
    std::set<const QWidget*> metLabel;
    for (const auto* label : venster.findChildren<QLabel*>()) {
      if (label->isVisible() && !label->text().isEmpty()) metLabel.insert(label->buddy());
    }
    for (const QWidget* const vak : Zichtbaar(venster)) {
      const QString naam = vak->objectName();
      if (!IsInvoer(vak) || naam == "txtToelichting2" || naam == "txtToelichting3") continue;  // go on below
      EXPECT_TRUE(metLabel.contains(vak)) << naam.toStdString();
    }
  });
}

/// A control is called by what it is and what it holds; one of an array adds its index.
bool NaamVolgensRegel(const QWidget& vak) {
  static const QRegularExpression Vast(
      "^(frm|MDI)[A-Z]\\w+$|^SSTab[12]$|^Toolbar[12](_[A-Za-z]+)?$|^StatusBar1(_[123](_beeld)?)?$|"
      "^(VrijVeld|Text[1-6]|Image1|MonthView|ProgressBar1|Tekening(Ruimte|Leeg)?|RichTextBox1|"
      "Option[12]|Command[12]|MSChart1|lblMail)$");
  const std::vector<std::pair<bool, QString>> soorten = {
      {qobject_cast<const QLineEdit*>(&vak) != nullptr, "^txt[A-Z a-z]\\w*(_\\d+)?$"},
      {qobject_cast<const QListWidget*>(&vak) != nullptr, "^lst[A-Z]\\w+$"},
      {qobject_cast<const QComboBox*>(&vak) != nullptr, "^(cmb|cbo)[A-Z]\\w+$"},
      {qobject_cast<const QRadioButton*>(&vak) != nullptr, "^opt[A-Z]\\w+$"},
      {qobject_cast<const QPushButton*>(&vak) != nullptr, "^cmd([A-Z]\\w+|wijzig)$"},
      {qobject_cast<const QGroupBox*>(&vak) != nullptr, "^frame[A-Z]\\w+$"},
      {qobject_cast<const QLabel*>(&vak) != nullptr, "^lbl[A-Z a-z]\\w*(_\\d+)?$"},
  };
  for (const auto& [is, patroon] : soorten) {
    if (is && QRegularExpression(patroon).match(vak.objectName()).hasMatch()) return true;
  }
  return Vast.match(vak.objectName()).hasMatch();
}

bool IsBesturing(const QWidget* vak) {
  return IsInvoer(vak) || qobject_cast<const QAbstractButton*>(vak) != nullptr ||
         qobject_cast<const QLabel*>(vak) != nullptr || qobject_cast<const QGroupBox*>(vak) != nullptr ||
         qobject_cast<const QTextEdit*>(vak) != nullptr || qobject_cast<const QTabWidget*>(vak) != nullptr;
}

TEST(Rondgang, EveryControlIsCalledByItsName) {
  Bezoek([](Wereld&, QWidget& venster) {
    std::set<QString> namen;
    for (const QWidget* const vak : Zichtbaar(venster)) {
      if (!IsBesturing(vak)) continue;
      EXPECT_TRUE(NaamVolgensRegel(*vak)) << Naam(*vak) << " in " << Naam(*vak->parentWidget());
      EXPECT_TRUE(namen.insert(vak->objectName()).second) << Naam(*vak) << " twice";
    }
    for (const auto* menu : venster.findChildren<QMenu*>(QRegularExpression("^mnu"))) {
      for (const QAction* const actie : menu->actions()) {
        EXPECT_TRUE(actie->isSeparator() || actie->objectName().startsWith("mnu"))
            << actie->text().toStdString();
      }
    }
  });
}

// ---- Whole texts ----

/// The room that a line edit has for its text.
int TekstRuimte(const QLineEdit& veld) {
  constexpr int Binnenmarge = 2;  // of the toolkit, on both sides
  QStyleOptionFrame optie;
  optie.initFrom(&veld);
  optie.lineWidth = veld.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &optie, &veld);
  const QRect rand = veld.style()->subElementRect(QStyle::SE_LineEditContents, &optie, &veld);
  return rand.width() - 2 * Binnenmarge;
}

/// The widest text that a field can be left with. A text of words is taken at the width of its average.
int BreedsteTekst(const InvoerVeld& veld) {
  const VeldRegel& regel = veld.DeRegel();
  const QFontMetrics letters = veld.fontMetrics();
  if (regel.Soort == VeldSoort::Datum) return letters.horizontalAdvance("30-09-2026");
  if (const int tekens = MaxTekens(regel); tekens > 0) return tekens * letters.averageCharWidth();
  return letters.horizontalAdvance(VanCp(Opmaak(regel.Boven, regel.Weergave, ',')));
}

void ControleerVeld(const InvoerVeld& veld) {
  EXPECT_GE(TekstRuimte(veld), BreedsteTekst(veld) + 1) << Naam(veld);
  EXPECT_GE(veld.height(), veld.sizeHint().height()) << Naam(veld);
}

void ControleerTabs(const QTabBar& balk) {
  for (int i = 0; i < balk.count(); ++i) {
    EXPECT_GT(balk.tabRect(i).width(), balk.fontMetrics().horizontalAdvance(balk.tabText(i))) << i;
    EXPECT_LE(balk.tabRect(i).right(), balk.width()) << i;
  }
}

void ControleerKeuze(const QComboBox& keuze) {
  if (!keuze.isEditable()) {
    EXPECT_GE(keuze.width(), keuze.minimumSizeHint().width()) << Naam(keuze);
    return;
  }
  for (int i = 0; i < keuze.count(); ++i) {
    EXPECT_GE(TekstRuimte(*keuze.lineEdit()), keuze.fontMetrics().horizontalAdvance(keuze.itemText(i)))
        << Naam(keuze) << ": " << keuze.itemText(i).toStdString();
  }
}

/// A row that is longer than its list is wide shows whole in its tool tip.
void ControleerLijst(const QListWidget& lijst) {
  EXPECT_GE(lijst.viewport()->height(), 4 * lijst.fontMetrics().height()) << Naam(lijst);
  for (int i = 0; i < lijst.count(); ++i) EXPECT_EQ(lijst.item(i)->toolTip(), lijst.item(i)->text());
}

void ControleerTekst(const QWidget& vak) {
  if (qobject_cast<const QLabel*>(&vak) != nullptr || qobject_cast<const QAbstractButton*>(&vak) != nullptr ||
      qobject_cast<const QGroupBox*>(&vak) != nullptr) {
    const bool breekt = vak.hasHeightForWidth();  // its height goes with the width that it has
    EXPECT_GE(vak.width(), breekt ? 0 : vak.sizeHint().width()) << Naam(vak);
    EXPECT_GE(vak.height(), breekt ? vak.heightForWidth(vak.width()) : vak.sizeHint().height()) << Naam(vak);
  }
  if (const auto* const veld = qobject_cast<const InvoerVeld*>(&vak)) ControleerVeld(*veld);
  if (const auto* const keuze = qobject_cast<const QComboBox*>(&vak)) ControleerKeuze(*keuze);
  if (const auto* const lijst = qobject_cast<const QListWidget*>(&vak)) ControleerLijst(*lijst);
  if (const auto* const balk = qobject_cast<const QTabBar*>(&vak)) ControleerTabs(*balk);
}

void ControleerTeksten(const QWidget& venster) {
  for (const QWidget* const vak : Zichtbaar(venster)) ControleerTekst(*vak);
  const auto* const balk = venster.findChild<QMenuBar*>();
  if (balk == nullptr) return;  // a window of its own
  for (QAction* const menu : balk->actions()) {
    const QRect plek = balk->actionGeometry(menu);
    EXPECT_GE(plek.width(), balk->fontMetrics().horizontalAdvance(menu->text()))
        << menu->text().toStdString();
    EXPECT_LE(plek.right(), balk->width()) << menu->text().toStdString();
  }
}

TEST(Rondgang, NoTextIsCut) {
  Bezoek([](Wereld&, QWidget& venster) { ControleerTeksten(venster); });
}

// ---- Places ----

void ControleerMaten(const QWidget& venster) {
  const QSize ruimte = Scherm() - QSize(0, Randen);
  EXPECT_LE(venster.width(), ruimte.width());
  EXPECT_LE(venster.height(), ruimte.height());
  for (const QWidget* const vak : Zichtbaar(venster)) {
    const QWidget* const ouder = vak->parentWidget();
    if (ouder->inherits("QTabBar") || ouder->inherits("QAbstractScrollArea")) continue;
    const QSize kleinste = vak->minimumSizeHint().expandedTo(vak->minimumSize());
    EXPECT_GE(vak->width(), kleinste.width()) << Naam(*vak);
    EXPECT_GE(vak->height(), kleinste.height()) << Naam(*vak);
  }
}

TEST(Rondgang, EveryWindowFitsASmallScreen) {
  Bezoek([](Wereld&, QWidget& venster) { ControleerMaten(venster); });
}

TEST(Rondgang, ALongFileNameWidensNothing) {
  Wereld wereld;
  const std::filesystem::path pad = wereld.Map() / (std::string(200, 'w') + ".mrv");
  std::filesystem::copy_file(Data / "kantoor.mrv", pad);
  wereld.Open(pad);
  QCoreApplication::processEvents();
  EXPECT_LE(wereld.Hoofd()->width(), Scherm().width());
  EXPECT_LE(wereld.Hoofd()->minimumSizeHint().width(), Scherm().width());
}

bool MagOverlappen(const QWidget& vak) {
  return vak.objectName() == "MonthView" || vak.objectName() == "Document" ||  // scrolls in its container
         qobject_cast<const QMdiSubWindow*>(&vak) != nullptr;
}

TEST(Rondgang, NothingLiesOverAnother) {
  Bezoek([](Wereld&, QWidget& venster) {
    const std::vector<QWidget*> alle = Zichtbaar(venster);
    for (const QWidget* const vak : alle) {
      if (MagOverlappen(*vak) || vak->parentWidget()->inherits("QAbstractScrollArea")) continue;
      EXPECT_TRUE(vak->parentWidget()->rect().contains(vak->geometry())) << Naam(*vak) << " sticks out";
    }
    for (std::size_t i = 0; i < alle.size(); ++i) {
      for (std::size_t j = i + 1; j < alle.size(); ++j) {
        if (alle[i]->parentWidget() != alle[j]->parentWidget()) continue;
        if (MagOverlappen(*alle[i]) || MagOverlappen(*alle[j])) continue;
        EXPECT_FALSE(alle[i]->geometry().intersects(alle[j]->geometry()))
            << Naam(*alle[i]) << " and " << Naam(*alle[j]);
      }
    }
  });
}

/// Letters of another size, which the user has chosen for the whole system.
class AndereLetters {
 public:
  explicit AndereLetters(double maal) : was_(QApplication::font()) {
    (void)Letters();  // those of the system, before they change
    QFont groot = was_;
    groot.setPointSizeF(maal * was_.pointSizeF());
    QApplication::setFont(groot);
  }
  AndereLetters(const AndereLetters&) = delete;
  AndereLetters& operator=(const AndereLetters&) = delete;
  ~AndereLetters() { QApplication::setFont(was_); }

 private:
  QFont was_;
};

TEST(Rondgang, LargeLettersAreNotCutEither) {
  for (const double maal : {1.25, 1.5, 2.0}) {
    SCOPED_TRACE(maal);
    const AndereLetters letters(maal);
    Bezoek(
        [](Wereld&, QWidget& venster) {
          ControleerTeksten(venster);
          ControleerMaten(venster);
        },
        EnkeleFotos());
  }
}

// ---- The focus shows ----

/// What the eye tells apart without searching, of 255 in one of the three colours.
constexpr int Zichtbaarheid = 48;
/// Of a wide control only a part may change, as long as that is not a speck.
constexpr int Zijde = 120;

/// How many pixels differ clearly between two pictures of the same size.
int Verschil(const QImage& een, const QImage& ander) {
  int aantal = 0;
  for (int y = 0; y < een.height(); ++y) {
    const auto* const rij = reinterpret_cast<const QRgb*>(een.constScanLine(y));
    const auto* const rijAnder = reinterpret_cast<const QRgb*>(ander.constScanLine(y));
    for (int x = 0; x < een.width(); ++x) {
      const int rood = std::abs(qRed(rij[x]) - qRed(rijAnder[x]));
      const int groen = std::abs(qGreen(rij[x]) - qGreen(rijAnder[x]));
      const int blauw = std::abs(qBlue(rij[x]) - qBlue(rijAnder[x]));
      if (std::max({rood, groen, blauw}) >= Zichtbaarheid) ++aantal;
    }
  }
  return aantal;
}

/// A control and its rim, as they show when the focus is where it is now.
QImage Beeld(QWidget& venster, const QWidget& vak) {
  return venster.grab(Plaats(vak, venster).adjusted(-2, -2, 2, 2))
      .toImage()
      .convertToFormat(QImage::Format_RGB32);
}

/// Gives the focus as the Tab key does, without what a field selects on entry: an empty one has nothing to
/// select.
void GeefFocus(QWidget* vak) {
  vak->setFocus(Qt::TabFocusReason);
  if (auto* const veld = qobject_cast<QLineEdit*>(vak)) veld->deselect();
  if (auto* const keuze = qobject_cast<QComboBox*>(vak); keuze != nullptr && keuze->isEditable())
    keuze->lineEdit()->deselect();
}

void ControleerFocus(QWidget& venster) {
  const std::set<QWidget*> alle = Bereikbaar(venster);
  if (alle.size() < 2) return;
  (*alle.begin())->setFocus(Qt::TabFocusReason);
  const std::vector<QWidget*> loop = Loop();
  for (std::size_t i = 0; i < loop.size(); ++i) {
    GeefFocus(loop[(i + 1) % loop.size()]);
    const QImage zonder = Beeld(venster, *loop[i]);
    GeefFocus(loop[i]);
    const QImage met = Beeld(venster, *loop[i]);
    ASSERT_EQ(met.size(), zonder.size());
    EXPECT_GE(Verschil(met, zonder), std::min(loop[i]->width(), Zijde)) << Naam(*loop[i]);
  }
}

// What has no picture of its own has the same controls with other texts.
TEST(Rondgang, TheFocusShows) {
  Bezoek([](Wereld&, QWidget& venster) { ControleerFocus(venster); }, EnkeleFotos());
}

TEST(Rondgang, TheFocusShowsInADarkTheme) {
  const Thema donker(Donker());
  Bezoek([](Wereld&, QWidget& venster) { ControleerFocus(venster); }, EnkeleFotos());
}

TEST(Rondgang, TheFocusShowsAtHighContrast) {
  const Thema contrast(HoogContrast());
  Bezoek([](Wereld&, QWidget& venster) { ControleerFocus(venster); }, EnkeleFotos());
}

/// What has a rim of its own, also where its ground is that of the window.
bool HeeftRand(const QWidget& vak) {
  const auto* const knop = qobject_cast<const QToolButton*>(&vak);
  return qobject_cast<const QListWidget*>(&vak) != nullptr || (knop != nullptr && !knop->autoRaise()) ||
         (qobject_cast<const QPushButton*>(&vak) != nullptr && vak.objectName() != "lblMail");
}

TEST(Rondgang, ControlsHaveARimAtHighContrast) {
  const Thema contrast(HoogContrast());
  Bezoek(
      [](Wereld&, QWidget& venster) {
        for (const QWidget* const vak : Zichtbaar(venster)) {
          if (!HeeftRand(*vak) || !vak->isEnabled()) continue;
          const QImage beeld = venster.grab(Plaats(*vak, venster)).toImage();
          const QColor rand = beeld.pixelColor(0, beeld.height() / 2);
          EXPECT_GE(Contrast(rand, vak->palette().color(QPalette::Window)), 3) << Naam(*vak);
        }
      },
      EnkeleFotos());
}

// ---- Colours ----

/// What stands on what in a control; nothing for one without text.
std::vector<std::pair<QPalette::ColorRole, QPalette::ColorRole>> Kleurparen(const QWidget& vak) {
  using P = QPalette;
  if (qobject_cast<const QListWidget*>(&vak) != nullptr)
    return {{P::Text, P::Base}, {P::HighlightedText, P::Highlight}};
  if (qobject_cast<const QLineEdit*>(&vak) != nullptr || qobject_cast<const QTextEdit*>(&vak) != nullptr ||
      qobject_cast<const QPlainTextEdit*>(&vak) != nullptr)
    return {{P::Text, P::Base}, {P::HighlightedText, P::Highlight}};
  if (const auto* const keuze = qobject_cast<const QComboBox*>(&vak); keuze != nullptr)
    return {keuze->isEditable() ? std::pair(P::Text, P::Base) : std::pair(P::ButtonText, P::Button)};
  if (qobject_cast<const QPushButton*>(&vak) != nullptr || qobject_cast<const QToolButton*>(&vak) != nullptr)
    return {{P::ButtonText, P::Button}};
  if (qobject_cast<const QLabel*>(&vak) != nullptr || qobject_cast<const QGroupBox*>(&vak) != nullptr ||
      qobject_cast<const QAbstractButton*>(&vak) != nullptr)
    return {{P::WindowText, P::Window}};
  return {};
}

/// A gradient is no colour of the palette; its lightest is where it begins. A box on it has a ground of its
/// own.
QColor Grond(const QWidget& vak, QPalette::ColorRole rol) {
  const bool eigen = rol == QPalette::Base || rol == QPalette::Highlight;
  const bool verloop = !eigen && qobject_cast<const VerloopVlak*>(vak.parentWidget()) != nullptr;
  return verloop ? QColor(InfoBegin.Rood, InfoBegin.Groen, InfoBegin.Blauw) : vak.palette().color(rol);
}

/// Legible as WCAG 2.1 asks; a little less for what is disabled, and for a selection: its colours are the
/// system's.
void ControleerKleuren(const QWidget& venster) {
  for (const QWidget* const vak : Zichtbaar(venster)) {
    for (const auto& [letters, grond] : Kleurparen(*vak)) {
      const double contrast = Contrast(vak->palette().color(letters), Grond(*vak, grond));
      const bool gewoon = vak->isEnabled() && letters != QPalette::HighlightedText;
      EXPECT_GE(contrast, gewoon ? 4.5 : 3.5) << Naam(*vak) << ' ' << letters;
    }
  }
}

TEST(Rondgang, EveryTextStandsOutFromItsGround) {
  for (const QPalette& palet : {QApplication::palette(), Donker(), HoogContrast()}) {
    SCOPED_TRACE(palet.color(QPalette::Window).name().toStdString());
    const Thema thema(palet);
    Bezoek([](Wereld&, QWidget& venster) { ControleerKleuren(venster); });
  }
}

/// What a control shows in the four corners of its inside, where no text stands.
std::set<QRgb> Hoeken(QWidget& venster, const QWidget& vak) {
  const QRect binnen = Plaats(vak, venster).adjusted(5, 5, -5, -5);
  const QImage beeld = venster.grab(binnen).toImage();
  const int x = beeld.width() - 1, y = beeld.height() - 1;
  return {beeld.pixel(0, 0), beeld.pixel(x, 0), beeld.pixel(0, y), beeld.pixel(x, y)};
}

TEST(Rondgang, TheActiveListHasTheFixedColourInALightThemeOnly) {
  const auto grond = [](Wereld& w) {
    w.MaakElement("mnuVent", elementtype::KanaalRecht, 1);
    QCoreApplication::processEvents();
    return w.Zoek<QListWidget>("lstProject")->palette().color(QPalette::Base);
  };
  {
    Wereld wereld;
    EXPECT_EQ(grond(wereld), KleurVan(ActieveKleur));
  }
  for (const QPalette& palet : {Donker(), HoogContrast()}) {
    const Thema thema(palet);
    Wereld wereld;
    EXPECT_LT(Contrast(grond(wereld), palet.color(QPalette::Window)), 2) << "no slab of light";
    auto* const actief = wereld.Zoek<QListWidget>("lstProject");
    auto* const ander = wereld.Zoek<QListWidget>("lstTotaal");
    EXPECT_NE(actief->palette().color(QPalette::Base), ander->palette().color(QPalette::Base));
    const auto geel = [](QWidget& lijst) {
      const QImage beeld = lijst.grab().toImage();
      const QRgb kleur = KleurVan(ActieveKleur).rgb();
      int pixels = 0;
      for (int x = 0; x < beeld.width(); ++x) pixels += beeld.pixel(x, beeld.height() / 2) == kleur ? 1 : 0;
      return pixels;
    };
    EXPECT_EQ(geel(*actief), 2) << "a thin line";
    EXPECT_EQ(geel(*ander), 0);
  }
}

// The list follows when the user turns to another theme while it shows.
TEST(Rondgang, TheActiveListFollowsTheTheme) {
  Wereld wereld;
  wereld.MaakElement("mnuVent", elementtype::KanaalRecht, 1);
  const auto grond = [&wereld] {
    return wereld.Zoek<QListWidget>("lstProject")->palette().color(QPalette::Base);
  };
  {
    const Thema donker(Donker());
    EXPECT_NE(grond(), KleurVan(ActieveKleur));
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(grond(), KleurVan(ActieveKleur));
}

/// The one colour of what is selected; a list that the commands do not act on has no colour.
TEST(Rondgang, WhatIsSelectedHasOneColourEverywhere) {
  for (const QPalette& palet : {QApplication::palette(), Donker()}) {
    const Thema thema(palet);
    Bezoek(
        [&palet](Wereld&, QWidget& venster) {
          for (const QWidget* const vak : Zichtbaar(venster)) {
            const bool gewoon = qobject_cast<const QLineEdit*>(vak) != nullptr ||
                                qobject_cast<const QComboBox*>(vak) != nullptr ||
                                qobject_cast<const QTextEdit*>(vak) != nullptr ||
                                qobject_cast<const QListWidget*>(vak) != nullptr;
            const QString naam = vak->objectName();
            if (!gewoon || naam == "lstTotaal" || naam == "lstProject" || !vak->isEnabled()) continue;
            EXPECT_EQ(vak->palette().color(QPalette::Highlight), palet.color(QPalette::Highlight))
                << naam.toStdString();
          }
        },
        EnkeleFotos());
  }
}

// Yellow on yellow is no selection: at high contrast a field selects in black and white.
TEST(Rondgang, WhatIsSelectedShowsAtHighContrast) {
  Wereld wereld;
  wereld.MaakTab("mnuUitstraling", false, Tab::Ruimtegegevens);
  const Thema contrast(HoogContrast());
  for (const char* const naam : {"txtRLengte", "cmbRkanaal"}) {
    const QPalette palet = wereld.Zoek<QWidget>(naam)->palette();
    EXPECT_GE(Contrast(palet.color(QPalette::Highlight), palet.color(QPalette::Base)), 4.5) << naam;
  }
}

TEST(Rondgang, AValueThatIsOnlyShownIsNoField) {
  for (const QPalette& palet : {QApplication::palette(), Donker(), HoogContrast()}) {
    const Thema thema(palet);
    Wereld wereld;
    wereld.MaakElement("mnuVent", elementtype::Catalogus, 2);
    QCoreApplication::processEvents();
    wereld.Zoek<QListWidget>("lstProject")->setFocus();
    const QWidget& pagina = *wereld.Zoek<QWidget>("txtdemp_7")->parentWidget();
    const QRgb grond = wereld.Hoofd()
                           ->grab(QRect(Plaats(pagina, *wereld.Hoofd()).topLeft(), QSize(1, 1)))
                           .toImage()
                           .pixel(0, 0);
    for (const char* const naam : {"txtdemp_7", "txtruis_6"}) {
      const QWidget& vak = *wereld.Zoek<QWidget>(naam);
      const QImage beeld = wereld.Hoofd()->grab(Plaats(vak, *wereld.Hoofd())).toImage();
      EXPECT_EQ(beeld.pixel(0, beeld.height() / 2), grond) << naam << " has a rim";
      EXPECT_EQ(Hoeken(*wereld.Hoofd(), vak), std::set<QRgb>{grond}) << naam;
    }
  }
}

// A window that waits for another one keeps its looks: its fields are fields still.
TEST(Rondgang, AFieldOfAWaitingWindowStaysAField) {
  Wereld wereld;
  wereld.MaakTab("mnuVent", false, Tab::Projectgegevens);
  wereld.Zoek<frmMurvane>("frmMurvane")->setEnabled(false);
  EXPECT_EQ(wereld.Zoek<QWidget>("txtProNaam")->palette().color(QPalette::Base), KleurVan(VeldKleur));
  EXPECT_FALSE(IsWaarde(*wereld.Zoek<QLineEdit>("txtProNaam")));
}

// The style's own buttons of a maximised window are dark, on a dark menu bar as well.
TEST(Rondgang, TheButtonsOfAWindowShowInEveryTheme) {
  for (const QPalette& palet : {QApplication::palette(), Donker(), HoogContrast()}) {
    const Thema thema(palet);
    for (const auto knop :
         {QStyle::SP_TitleBarMinButton, QStyle::SP_TitleBarNormalButton, QStyle::SP_TitleBarCloseButton}) {
      const QImage beeld = QApplication::style()->standardIcon(knop).pixmap(16, 16).toImage();
      int zichtbaar = 0;
      for (int y = 0; y < beeld.height(); ++y) {
        for (int x = 0; x < beeld.width(); ++x) {
          const QColor kleur = beeld.pixelColor(x, y);
          const bool raak = kleur.alpha() > 200 && Contrast(kleur, palet.color(QPalette::Button)) >= 4.5;
          zichtbaar += raak ? 1 : 0;
        }
      }
      EXPECT_GE(zichtbaar, 8) << knop;
    }
  }
}

// ---- The wheel ----

/// All that the window holds, as text.
QStringList Inhoud(const QWidget& venster) {
  QStringList uit;
  for (const auto* veld : venster.findChildren<QLineEdit*>()) uit << veld->text();
  for (const auto* knop : venster.findChildren<QAbstractButton*>()) uit << (knop->isChecked() ? "1" : "0");
  for (const auto* keuze : venster.findChildren<QComboBox*>()) uit << keuze->currentText();
  for (const auto* tabs : venster.findChildren<QTabWidget*>()) uit << QString::number(tabs->currentIndex());
  for (const auto* lijst : venster.findChildren<QListWidget*>()) uit << QString::number(lijst->currentRow());
  return uit;
}

TEST(Rondgang, TheWheelChangesNothing) {
  Bezoek([](Wereld&, QWidget& venster) {
    const QStringList was = Inhoud(venster);
    for (QWidget* const vak : Zichtbaar(venster)) {
      for (const int draai : {-120, 120}) {
        QWheelEvent wiel({3, 3}, vak->mapToGlobal(QPointF(3, 3)), {}, {0, draai}, Qt::NoButton, {},
                         Qt::NoScrollPhase, false);
        QApplication::sendEvent(vak, &wiel);
      }
    }
    EXPECT_EQ(Inhoud(venster), was);
  });
}

// ---- Pictures ----

/// How many colours a picture has, as far as the eye tells them apart; an empty window has one or two.
std::size_t Kleuren(const QImage& beeld) {
  std::set<QRgb> kleuren;
  for (int y = 0; y < beeld.height(); y += 2) {
    for (int x = 0; x < beeld.width(); x += 2) kleuren.insert(beeld.pixel(x, y) & 0xE0E0E0U);
  }
  return kleuren.size();
}

/// The screen of the tests has 800 by 600 pixels; these windows open larger on an ordinary one.
void ZetGewoneMaat(QWidget& venster) {
  if (qobject_cast<frmOnderhoud*>(&venster) != nullptr) venster.resize(980, 520);
  if (qobject_cast<frmOverzicht*>(&venster) != nullptr) venster.resize(1000, 640);
}

/// Pictures of the windows; they are kept where MURVANE_BEELDEN names a directory, one of 200 % as name-200.
void MaakFotos(const QString& soort, const std::vector<Stand>& standen = Fotos(),
               QSize hoofd = Scherm() - QSize(0, Randen)) {
  const QString map = qEnvironmentVariable("MURVANE_BEELDEN");
  for (const Stand& stand : standen) {
    SCOPED_TRACE(stand.Naam);
    Wereld wereld(hoofd);
    QWidget* const venster = stand.Maak(wereld);
    ZetGewoneMaat(*venster);
    QCoreApplication::processEvents();
    const QPixmap beeld = venster->grab();
    EXPECT_GT(Kleuren(beeld.toImage()), 4U);
    const int schaal = static_cast<int>(100 * beeld.devicePixelRatio());
    const QString maat = schaal == 100 ? QString() : "-" + QString::number(schaal);
    if (map.isEmpty()) continue;
    EXPECT_TRUE(beeld.save(map + "/" + QString::fromStdString(stand.Naam) + soort + maat + ".png"));
  }
}

TEST(Rondgang, CanBePictured) {
  MaakFotos("");
}

TEST(Rondgang, CanBePicturedInADarkTheme) {
  const Thema donker(Donker());
  MaakFotos("-donker");
}

TEST(Rondgang, CanBePicturedAtHighContrast) {
  const Thema contrast(HoogContrast());
  MaakFotos("-contrast");
}

TEST(Rondgang, CanBePicturedOnALargeScreen) {
  MaakFotos("-1920", GroteFotos(), QSize(1920, 1080 - Randen));
}

TEST(Rondgang, WhatIsDisabledCanBeRead) {
  const auto leesbaar = [] {
    Wereld wereld;
    wereld.MaakTab("mnuVent", false, Tab::Kanaalelementen);
    QCoreApplication::processEvents();
    for (const char* const naam : {"Toolbar1_Add", "Toolbar2_Delete"}) {
      const QPalette palet = wereld.Zoek<QToolButton>(naam)->palette();
      EXPECT_GE(Contrast(palet.color(QPalette::Disabled, QPalette::ButtonText),
                         palet.color(QPalette::Disabled, QPalette::Button)),
                3.5)
          << naam;
      EXPECT_NE(palet.color(QPalette::Disabled, QPalette::ButtonText),
                palet.color(QPalette::Active, QPalette::ButtonText));
    }
  };
  leesbaar();
  const Thema donker(Donker());
  leesbaar();
}

TEST(Rondgang, TheFourTabsHaveOnePlaceInALargeWindow) {
  Wereld wereld(QSize(1920, 1080 - Randen));
  wereld.Open(Data / "kantoor.mrv");
  std::set<std::pair<int, int>> plaatsen, maten;
  for (std::size_t tab = 0; tab < Tabs.size(); ++tab) {
    wereld.KiesTab(static_cast<Tab>(tab));
    QCoreApplication::processEvents();
    auto* const blad = dynamic_cast<Blad*>(wereld.Zoek<QTabWidget>("SSTab1")->currentWidget());
    ASSERT_NE(blad, nullptr) << Tabs[tab];
    const QRect plek = Plaats(*blad->Blok(), *wereld.Hoofd());
    plaatsen.insert({plek.left(), plek.top()});
    maten.insert({plek.width(), plek.height()});
  }
  EXPECT_EQ(plaatsen.size(), 1U);
  EXPECT_EQ(maten.size(), 1U);
}

TEST(Rondgang, ALargeWindowIsUsed) {
  Wereld wereld;
  wereld.MaakElement("mnuVent", elementtype::KanaalRecht, 1);
  QCoreApplication::processEvents();
  const QSize klein = wereld.Zoek<QWidget>("Tekening")->size();
  const int rijen = wereld.Zoek<QWidget>("lstProject")->height();
  wereld.Hoofd()->resize(1900, 1040);
  QCoreApplication::processEvents();
  EXPECT_GT(wereld.Zoek<QWidget>("Tekening")->width(), klein.width() + 100);
  EXPECT_GT(wereld.Zoek<QWidget>("Tekening")->height(), klein.height() + 60);
  EXPECT_GT(wereld.Zoek<QWidget>("lstProject")->height(), rijen + 60);
  wereld.KiesTab(Tab::Projectgegevens);
  QCoreApplication::processEvents();
  const QRect veld = Plaats(*wereld.Zoek<QWidget>("txtProNaam"), *wereld.Hoofd());
  EXPECT_GT(veld.left(), 200);  // the sheet stands in the middle
  EXPECT_LT(veld.right(), 1700);
}

}  // namespace
}  // namespace murvane
