#include "shell/MDIMurvane.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QProcess>
#include <QScopeGuard>
#include <QStandardPaths>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>
#include <map>
#include <optional>
#include <string>

#include "basis/bestand.h"
#include "basis/vensters_hulp.h"
#include "calc/reken.h"
#include "catalogue/frmOnderhoud.h"
#include "editor/frmMurvane.h"
#include "editor/vensters_tekening.h"
#include "reports/frmGrafiek.h"
#include "reports/frmLettertype.h"
#include "reports/frmPreView.h"
#include "reports/frmResultaat.h"
#include "reports/frmSelGraf.h"
#include "reports/vensters_pdf.h"
#include "shell/afdrukken.h"
#include "shell/bestandopdrachten.h"
#include "shell/frmAbout.h"
#include "shell/hoofdvenster.h"
#include "shell/info.h"
#include "shell/vensters_menu.h"

namespace murvane {

namespace {

constexpr int StatusMarge = 4;
constexpr int KortMs = 6000;  ///< how long a remark stands where the panels are

/// Whether the desktop shows compiled help files. Opening one without asking would seem to succeed.
bool HeeftHelpProgramma() {
#ifdef _WIN32
  return true;
#else
  QProcess vraag;
  vraag.start("xdg-mime", {"query", "default", "application/vnd.ms-htmlhelp"});
  return vraag.waitForFinished(2000) && !vraag.readAllStandardOutput().trimmed().isEmpty();
#endif
}

constexpr int NaStartMs = 100;  ///< behind the first painting of the window

QString Naam(std::string_view tekst) {
  return QString::fromUtf8(tekst.data(), static_cast<qsizetype>(tekst.size()));
}

/// The window inside the main window that holds the project window; it cannot be closed by itself.
class ProjectKader : public QMdiSubWindow {
 protected:
  void closeEvent(QCloseEvent* gebeurtenis) override { gebeurtenis->ignore(); }
};

}  // namespace

MDIMurvane::MDIMurvane(Programma& programma, Dialogen& dialogen)
    : programma_(programma),
      dialogen_(dialogen),
      gebied_(new QMdiArea(this)),
      project_(new frmMurvane(programma.Project, programma.Catalogi, dialogen,
                              std::string(programma.Vandaag.Heel()), programma.Decimaal)) {
  setObjectName("MDIMurvane");
  setWindowTitle(VanCp(ProgrammaTitel));
  QApplication::setWindowIcon(Icoon("murvane"));
  setMinimumSize(MinBreedte / TwipsPerPixel, MinHoogte / TwipsPerPixel);
  setCentralWidget(gebied_);
  auto* kader = new ProjectKader;
  kader->setWidget(project_);
  kader->setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  gebied_->addSubWindow(kader);
  kader->showMaximized();
  MaakMenu();
  MaakStatusbalk();
  connect(project_, &frmMurvane::ToestandGewijzigd, this, &MDIMurvane::ToonToestand);
  connect(project_, &frmMurvane::SluitVensters, this, &MDIMurvane::SluitVensters);
  connect(this, &QWidget::windowTitleChanged, this, &MDIMurvane::NoemVenster, Qt::QueuedConnection);
  connect(gebied_, &QMdiArea::subWindowActivated, this, &MDIMurvane::NoemVenster, Qt::QueuedConnection);
  project_->ToonGeenProject();
  ToonToestand();
}

void MDIMurvane::MaakMenu() {
  std::map<std::string_view, ZijbalkMenu*> menus;
  for (const MenuItem& item : MenuBalk) {
    if (item.Soort == MenuSoort::Menu || item.Soort == MenuSoort::SubMenu) {
      QWidget* const ouder = item.In.empty() ? static_cast<QWidget*>(this) : menus.at(item.In);
      auto* const menu = new ZijbalkMenu(VanCp(item.Opschrift), ouder);
      if (item.In.empty()) {
        menuBar()->addMenu(menu);
      } else {
        menus.at(item.In)->addMenu(menu);
      }
      menu->setObjectName(Naam(item.Naam));
      menu->menuAction()->setObjectName(Naam(item.Naam));
      menus[item.Naam] = menu;
      acties_[item.Naam] = menu->menuAction();
      continue;
    }
    QAction* actie = menus.at(item.In)->addAction(VanCp(item.Opschrift));
    actie->setObjectName(Naam(item.Naam));
    actie->setCheckable(item.Soort == MenuSoort::Keuze);
    acties_[item.Naam] = actie;
    if (item.Soort != MenuSoort::Kop) continue;
    actie->setEnabled(false);
    menus.at(item.In)->ZetKop(actie);
  }
  Verbind("mnuNieuw", &MDIMurvane::mnuNieuw);
  Verbind("mnuOpen", &MDIMurvane::mnuOpen);
  Verbind("mnuReken", &MDIMurvane::mnuReken);
  Verbind("mnuPreview", &MDIMurvane::mnuPreview);
  Verbind("mnuSluiten", &MDIMurvane::mnuSluiten);
  Verbind("mnuOpslaan", &MDIMurvane::mnuOpslaan);
  Verbind("mnuExit", &MDIMurvane::mnuExit);
  Verbind("mnuElementen", &MDIMurvane::mnuElementen);
  Verbind("mnuFan", &MDIMurvane::mnuFan);
  Verbind("mnuDuct", &MDIMurvane::mnuDuct);
  Verbind("mnuPlafonds", &MDIMurvane::mnuPlafonds);
  Verbind("mnuGebruiker", &MDIMurvane::mnuGebruiker);
  Verbind("mnuVent", &MDIMurvane::mnuVent);
  Verbind("mnuUitstraling", &MDIMurvane::mnuUitstraling);
  Verbind("mnuOverspraak", &MDIMurvane::mnuOverspraak);
  Verbind("mnuCalc", &MDIMurvane::mnuCalc);
  Verbind("mnuHelpFile", &MDIMurvane::mnuHelpFile);
  Verbind("mnuInfo", &MDIMurvane::mnuInfo);
  for (const auto& [naam, menu] : menus) connect(menu, &QMenu::aboutToShow, this, &MDIMurvane::NaStart);
  Verbind("mnuAfdrukken", &MDIMurvane::mnuAfdrukken);
  Verbind("mnuLetterType", &MDIMurvane::mnuLetterType);
  QMenu* const vensters = menus.at("mnuVenster");
  connect(vensters, &QMenu::aboutToShow, this, [this, vensters] { VulVensterMenu(*vensters); });
}

void MDIMurvane::ZetMenuBeelden() {
  for (const MenuBeeld& beeld : MenuBeelden)
    acties_.at(beeld.Naam)->setIcon(Icoon(Naam(beeld.Tekening), palette()));
}

/// The icon in the notification area, made when the window stands: it asks the desktop for a place.
void MDIMurvane::MaakTaakbalk() {
  taakbalk_ = new Taakbalk(this);
  connect(taakbalk_->Info(), &QAction::triggered, this,
          [this] { Voer("mnuTaakInfo", &MDIMurvane::mnuInfo); });
  connect(taakbalk_->Exit(), &QAction::triggered, this,
          [this] { Voer("mnuTaakExit", &MDIMurvane::mnuExit); });
}

/// What can wait until the window stands: the icons of the menus, and the icon in the notification area, for
/// which the desktop is asked for a place.
void MDIMurvane::NaStart() {
  if (taakbalk_ != nullptr) return;
  ZetMenuBeelden();
  MaakTaakbalk();
}

void MDIMurvane::showEvent(QShowEvent* gebeurtenis) {
  QMainWindow::showEvent(gebeurtenis);
  QTimer::singleShot(NaStartMs, this, &MDIMurvane::NaStart);
}

void MDIMurvane::changeEvent(QEvent* gebeurtenis) {
  QMainWindow::changeEvent(gebeurtenis);
  if (gebeurtenis->type() != QEvent::PaletteChange || beeld_ == nullptr) return;
  if (taakbalk_ != nullptr) ZetMenuBeelden();
  ZetStatusBeeld();
}

/// The sign of a run, in the colours of the theme.
void MDIMurvane::ZetStatusBeeld() {
  beeld_->setPixmap(Icoon("berekend", palette()).pixmap(16, 16));
}

void MDIMurvane::Verbind(std::string_view naam, void (MDIMurvane::*opdracht)()) {
  QAction* const actie = acties_.at(naam);
  actie->setProperty("opdracht", true);
  connect(actie, &QAction::triggered, this, [this, naam, opdracht] { Voer(std::string(naam), opdracht); });
}

/// Whatever a command raises is told, and the program runs on with the project open.
void MDIMurvane::Voer(const std::string& naam, void (MDIMurvane::*opdracht)()) {
  statusBar()->clearMessage();
  try {
    (this->*opdracht)();
  } catch (...) {
    (void)dialogen_.Toon(OnverwachteFout(naam + "_Click", "MDIMurvane", HuidigeFout()));
  }
  ToonToestand();
}

/// The menu of the windows that are open: the project first.
void MDIMurvane::VulVensterMenu(QMenu& menu) {
  menu.clear();
  for (QMdiSubWindow* const kader : gebied_->subWindowList(QMdiArea::CreationOrder)) {
    const bool isProject = kader->widget() == project_;
    QAction* const actie = menu.addAction(isProject ? "Project" : ZonderSneltoets(kader->windowTitle()));
    actie->setCheckable(true);
    actie->setChecked(kader == gebied_->activeSubWindow());
    connect(actie, &QAction::triggered, gebied_, [this, kader] { gebied_->setActiveSubWindow(kader); });
  }
}

/// The project's frame has no buttons in the menu bar, and the toolkit then drops the name of the window in
/// front from the main window's title once another has closed. A name that changes is put into it again.
void MDIMurvane::NoemVenster() {
  const QMdiSubWindow* const voor = gebied_->currentSubWindow();
  if (windowTitle().contains('[') || voor == nullptr || !voor->isMaximized()) return;
  const QString naam = voor->widget()->windowTitle();
  voor->widget()->setWindowTitle(" ");
  voor->widget()->setWindowTitle(naam);
}

/// A remark that needs no answer. The panels come back by themselves, and at once with the next command.
void MDIMurvane::MeldKort(const QString& tekst) {
  statusBar()->showMessage(tekst, KortMs);
}

/// Starts the desktop's own calculator: the first one that starts.
void MDIMurvane::mnuCalc() {
  bool gevonden = false;
  for (const char* const naam : {"calc.exe", "gnome-calculator", "kcalc", "mate-calc", "xfce4-calculator",
                                 "lxqt-calculator", "galculator", "qalculate-gtk", "qalculate-qt", "xcalc"}) {
    const QString pad = QStandardPaths::findExecutable(naam);
    if (pad.isEmpty()) continue;
    if (QProcess::startDetached(pad, {})) return;
    gevonden = true;
  }
  MeldKort(gevonden ? "De rekenmachine kan niet worden gestart." : "De rekenmachine is niet gevonden.");
}

void MDIMurvane::MaakStatusbalk() {
  statusBar()->setObjectName("StatusBar1");
  beeld_ = new QLabel(this);
  paneel1_ = new QLabel(this);
  paneel2_ = new QLabel(this);
  paneel3_ = new QLabel(this);
  beeld_->setObjectName("StatusBar1_1_beeld");
  beeld_->setAccessibleName("Berekend");
  beeld_->setAccessibleDescription("De resultaten horen bij de invoer.");
  paneel1_->setObjectName("StatusBar1_1");
  paneel2_->setObjectName("StatusBar1_2");
  paneel3_->setObjectName("StatusBar1_3");
  paneel1_->setAccessibleDescription("Het bestand van het project.");
  paneel2_->setAccessibleDescription("De soort berekening.");
  paneel3_->setAccessibleDescription("Het aantal kanaalelementen.");
  for (QLabel* paneel : {paneel1_, paneel2_, paneel3_}) paneel->setMargin(StatusMarge);
  statusBar()->addWidget(beeld_);
  statusBar()->addWidget(paneel1_, 2);
  statusBar()->addWidget(paneel2_, 1);
  statusBar()->addWidget(paneel3_, 1);
  connect(statusBar(), &QStatusBar::messageChanged, this, &MDIMurvane::ToonToestand);
}

void MDIMurvane::ToonToestand() {
  const Sessie& sessie = project_->DeSessie();
  for (const MenuRegel& regel : MenuRegels) {
    const auto gevonden = acties_.find(regel.Naam);
    if (gevonden == acties_.end()) continue;
    QAction* const actie = gevonden->second;
    const bool bediend = actie->menu() != nullptr || actie->property("opdracht").toBool();
    actie->setEnabled(bediend && MenuAan(regel.Naam, sessie.Toestand));
  }
  for (const TypeRegel& regel : TypeRegels)
    acties_.at(regel.Menu)->setChecked(regel.RekenType == programma_.Project.Kop.RekenType);
  const StatusBalk balk = StatusVan(sessie, programma_.Project);
  const bool isBerekend = balk.Paneel1Beeld != 0 && statusBar()->currentMessage().isEmpty();
  if (isBerekend && beeld_->isHidden()) ZetStatusBeeld();
  beeld_->setVisible(isBerekend);
  paneel1_->setText(QString::fromStdString(balk.Paneel1));
  paneel2_->setText(VanCp(balk.Paneel2));
  paneel3_->setText(VanCp(balk.Paneel3));
  paneel3_->setAccessibleName(
      VanCp(ProjectOpen(sessie) ? AantalGezegd(programma_.Project.ElementCount) : balk.Paneel3));
}

void MDIMurvane::Voer(const Gevolg& gevolg) {
  if (gevolg.SluitVensters) SluitVensters();
  if (gevolg.WisRapport) programma_.Rapport = {};
}

void MDIMurvane::SluitVensters() {
  const auto vensters = gebied_->subWindowList(QMdiArea::CreationOrder);
  for (auto venster = vensters.rbegin(); venster != vensters.rend(); ++venster) {
    if ((*venster)->widget() != project_) (*venster)->close();
  }
}

void MDIMurvane::SluitHetProject() {
  Voer(SluitProject(project_->DeSessie(), project_->DeLijst(), programma_.Project));
  SluitVensters();
  project_->ToonGeenProject();
}

void MDIMurvane::mnuNieuw() {
  Voer(Reset(project_->DeSessie(), project_->DeLijst(), programma_.Project));
  mnuNieuw_Click(programma_);
  ZetNieuw(project_->DeSessie(), project_->DeLijst());
  project_->ToonProject(true);
}

void MDIMurvane::mnuOpen() {
  const OpenUitkomst uitkomst = mnuOpen_Click(programma_, dialogen_);
  if (!uitkomst.Geopend) {
    Settings(project_->DeSessie());
    return;
  }
  Voer(ZetGeopend(project_->DeSessie(), project_->DeLijst(), uitkomst.Panel1));
  project_->ToonProject(true);
}

void MDIMurvane::OpenVanOpdrachtregel() {
  if (programma_.OpenBestand.empty()) return;
  Voer("mnuOpen", &MDIMurvane::mnuOpen);
}

void MDIMurvane::mnuReken() {
  try {
    if (project_->NeemOverEnBeoordeel()) Reken();
  } catch (...) {
    project_->ZetVoortgang(0, 0);
    (void)dialogen_.Toon(OnverwachteFout("Reken", "frmMurvane", HuidigeFout()));
  }
}

/// The run of a project that passed the checks, up to its result window.
void MDIMurvane::Reken() {
  std::optional<Zandloper> zandloper(dialogen_);
  const int aantal = programma_.Project.ElementCount;
  project_->ZetVoortgang(0, aantal);
  murvane::Reken(programma_.Project, programma_.Resultaten, programma_.Decimaal,
                 [&](int element) { project_->ZetVoortgang(element, aantal); });
  Afdruk(programma_.Project, programma_.Resultaten, programma_.Instellingen.Gebruikersnaam,
         programma_.Decimaal, programma_.Rapport);
  QMdiSubWindow* const kader = LaadResultaat();
  Voer(Berekend(project_->DeSessie(), vlag::Berekend, ""));
  zandloper.reset();
  project_->ZetVoortgang(0, 0);
  ToonResultaat(*kader);
}

/// As wide as its text in the middle of a larger room, else as large as there is room.
void MDIMurvane::ToonResultaat(QMdiSubWindow& kader) {
  const QSize vrij = gebied_->viewport()->size();
  const int breed = kader.sizeHint().width();
  if (!gebied_->testOption(QMdiArea::DontMaximizeSubWindowOnActivation)) {
    kader.showMaximized();
  } else {
    if (kader.isMaximized() || kader.isMinimized()) kader.showNormal();
    kader.setGeometry((vrij.width() - breed) / 2, 0, breed, vrij.height());
    kader.show();
  }
  gebied_->setActiveSubWindow(&kader);
}

/// In front of a window that is maximised the toolkit maximises a new one too, unless it is told before.
QMdiSubWindow* MDIMurvane::LaadResultaat() {
  resultaat_ = new frmResultaat(programma_.Rapport);
  VerbindResultaat(*resultaat_);
  const bool past = resultaat_->sizeHint().width() + 2 * Marge <= gebied_->viewport()->width();
  gebied_->setOption(QMdiArea::DontMaximizeSubWindowOnActivation, past);
  QMdiSubWindow* const kader = gebied_->addSubWindow(resultaat_);
  kader->setAttribute(Qt::WA_DeleteOnClose);
  return kader;
}

void MDIMurvane::mnuPreview() {
  if (resultaat_ == nullptr) (void)LaadResultaat();
  ToonResultaat(*qobject_cast<QMdiSubWindow*>(resultaat_->parentWidget()));
}

void MDIMurvane::VerbindResultaat(frmResultaat& venster) {
  connect(&venster, &frmResultaat::ButtonClick, this, [this](const QString& sleutel) {
    const std::string naam = "Toolbar1_" + sleutel.toStdString();
    if (sleutel == "Printen") Voer(naam, &MDIMurvane::mnuAfdrukken);
    if (sleutel == "Opslaan") Voer(naam, &MDIMurvane::Toolbar1_Opslaan);
    if (sleutel == "Grafiek") Voer(naam, &MDIMurvane::Toolbar1_Grafiek);
    if (sleutel == "preview") Voer(naam, &MDIMurvane::Toolbar1_preview);
    if (sleutel == "PDF") Voer(naam, &MDIMurvane::Toolbar1_PDF);
  });
}

void MDIMurvane::mnuAfdrukken() {
  AfdrukPrinter(programma_, dialogen_, [this] { return VraagGrafiekKeuze(this); });
}

void MDIMurvane::Toolbar1_Opslaan() {
  Afdruk(programma_, dialogen_);
}

void MDIMurvane::Toolbar1_Grafiek() {
  if (!VulGrafiek(programma_, dialogen_, [this] { return VraagGrafiekKeuze(this); })) return;
  std::optional<Zandloper> zandloper(dialogen_);
  frmGrafiek venster(
      programma_.Grafiek, [this](const auto& druk) { DrukGrafiek(dialogen_, druk); }, this);
  zandloper.reset();
  venster.exec();
}

/// A preview that is open stays as it was drawn.
void MDIMurvane::Toolbar1_preview() {
  if (preview_ == nullptr) LaadPreView();
  auto* const kader = qobject_cast<QMdiSubWindow*>(preview_->parentWidget());
  kader->showMaximized();
  gebied_->setActiveSubWindow(kader);
  preview_->setFocus();
}

void MDIMurvane::LaadPreView() {
  auto venster = std::make_unique<frmPreView>(programma_.Voorbeeld);
  LaadVoorbeeld(
      programma_, dialogen_, [this] { return VraagGrafiekKeuze(this); }, venster->Document());
  venster->ToonBlad();
  preview_ = venster.get();
  connect(preview_, &frmPreView::Printen, this,
          [this] { Voer("Toolbar1_printen", &MDIMurvane::mnuAfdrukken); });
  connect(preview_, &frmPreView::Opslaan, this,
          [this] { Voer("Toolbar1_save", &MDIMurvane::Toolbar1_save); });
  connect(preview_, &frmPreView::Pdf, this, [this] { Voer("Toolbar1_PDF", &MDIMurvane::Toolbar1_PDF); });
  gebied_->addSubWindow(venster.release())->setAttribute(Qt::WA_DeleteOnClose);
}

void MDIMurvane::Toolbar1_save() {
  OpslaanAlsBitmap(programma_, dialogen_, [this](int index) { return preview_->Bitmap(index); });
}

void MDIMurvane::Toolbar1_PDF() {
  OpslaanAlsPdf(
      programma_, dialogen_, [this] { return VraagGrafiekKeuze(this); },
      [this](std::int16_t wens, std::int16_t keuze) {
        return MaakPdf(FormulierVan(programma_), wens, keuze, programma_.Grafiek);
      });
}

void MDIMurvane::mnuLetterType() {
  std::optional<Zandloper> zandloper(dialogen_);
  frmLettertype venster(programma_.Instellingen.Druk, SysteemFonts, this);
  zandloper.reset();
  if (venster.Laadfout())
    (void)dialogen_.Toon(OnverwachteFout("Form_Load", "frmLettertype", *venster.Laadfout()));
  connect(&venster, &frmLettertype::Geweigerd, this, [this](const Fout& fout) {
    (void)dialogen_.Toon(OnverwachteFout("cmdOK_Click", "frmLettertype", fout));
  });
  venster.exec();
}

void MDIMurvane::mnuSluiten() {
  if (mnuSluiten_Click(programma_, dialogen_)) SluitHetProject();
}

void MDIMurvane::mnuOpslaan() {
  if (!project_->BewaarVeld()) return;
  if (OpSlag(programma_, dialogen_) == OpslagUitkomst::Gesloten) SluitHetProject();
}

void MDIMurvane::mnuExit() {
  if (mnuExit_Click(programma_, dialogen_, ProjectOpen(project_->DeSessie())) == Vervolg::GaatDoor) return;
  einde_ = true;
  close();
}

/// Shows the maintenance window of a catalogue; the project window waits meanwhile. Only a window that wrote
/// its file fills a list of the project window again.
void MDIMurvane::Onderhoud(CatalogusSoort soort) {
  if (!project_->BewaarVeld()) return;
  const QPointer<QWidget> focus = project_->focusWidget();
  project_->setEnabled(false);
  const auto weerAan = qScopeGuard([this] { project_->setEnabled(true); });
  frmOnderhoud venster(soort,
                       {.Catalogi = programma_.Catalogi,
                        .SchatInvoer = programma_.SchatInvoer,
                        .Dialogen = dialogen_,
                        .Map = programma_.DataDir,
                        .Vandaag = std::string(programma_.Vandaag.Heel()),
                        .Decimaal = programma_.Decimaal},
                       this);
  (void)venster.exec();
  project_->setEnabled(true);  // before it is given the focus
  if (venster.IsBewaard()) {
    const Ververs vult = OnderhoudVan(soort).Vult;
    if (vult == Ververs::lstTotaal) project_->VulElementen();
    if (vult == Ververs::lstFan) project_->VulFans();
  }
  if (focus != nullptr && focus->isVisible()) focus->setFocus();
}

void MDIMurvane::mnuElementen() {
  Onderhoud(CatalogusSoort::Kanaalelementen);
}

void MDIMurvane::mnuFan() {
  Onderhoud(CatalogusSoort::Ventilatoren);
}

void MDIMurvane::mnuDuct() {
  Onderhoud(CatalogusSoort::Luchtkanalen);
}

void MDIMurvane::mnuPlafonds() {
  Onderhoud(CatalogusSoort::Plafonds);
}

void MDIMurvane::mnuGebruiker() {
  mnuGebruiker_Click(programma_, dialogen_);
}

void MDIMurvane::mnuVent() {
  project_->KiesType(rekentype::Installatiegeluid);
}

void MDIMurvane::mnuUitstraling() {
  project_->KiesType(rekentype::Geluidsuitstraling);
}

void MDIMurvane::mnuOverspraak() {
  project_->KiesType(rekentype::Overspraak);
}

/// The manual, in the desktop's own viewer.
void MDIMurvane::mnuHelpFile() {
  const std::filesystem::path pad = HandleidingIn(programma_.ProgrammaBestanden, HeeftHelpProgramma);
  if (pad.empty()) return MeldKort("De handleiding is niet gevonden.");
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(PadTekst(pad)))))
    MeldKort("De handleiding kan niet worden geopend.");
}

/// While the window is open it cannot be opened again from the icon.
void MDIMurvane::mnuInfo() {
  const auto zetInfo = [this](bool aan) {
    if (taakbalk_ != nullptr) taakbalk_->Info()->setEnabled(aan);
  };
  zetInfo(false);
  const auto terug = qScopeGuard([&zetInfo] { zetInfo(true); });
  frmAbout(programma_.Instellingen, programma_.ProgrammaBestanden / LeveringBestand, dialogen_, this).exec();
}

void MDIMurvane::closeEvent(QCloseEvent* gebeurtenis) {
  if (!einde_) {
    const auto bewaarVeld = [this] { return project_->BewaarVeld(); };
    einde_ =
        Form_Unload(programma_, dialogen_, ProjectOpen(project_->DeSessie()), bewaarVeld) == Vervolg::Einde;
  }
  gebeurtenis->setAccepted(einde_);
  if (einde_ && taakbalk_ != nullptr) taakbalk_->Icoontje()->hide();
}

}  // namespace murvane
