#pragma once
// The project window: it shows the project, gathers what the user enters, has it decided by the procedures of
// editor/, and carries out what they return.
//
// A text that the program changes (Escape, a choice, a prognosis) raises the change event of its field as
// typing does. Only the filling of the window from the records does not: while `vult_` holds, no event of a
// control is handled.

#include <QWidget>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "catalogue/catfiles.h"
#include "editor/dialogen.h"
#include "editor/elementlijst.h"
#include "editor/elementpagina.h"
#include "editor/fantab.h"
#include "editor/ruimtetab.h"
#include "editor/sessie.h"
#include "editor/tabsettings.h"
#include "project/records.h"

class QCalendarWidget;
class QCheckBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QTabWidget;
class QToolButton;

namespace murvane {

class BandRij;
class InvoerVeld;
class Keuzevak;
class Lijstvak;
class Tekening;

class frmMurvane : public QWidget {
  Q_OBJECT

 public:
  /// `vandaag` is dd-mm-yyyy, `decimaal` the decimal sign. The references outlive the window.
  frmMurvane(Project& project, const Catalogi& catalogi, Dialogen& dialogen, std::string vandaag,
             char decimaal, QWidget* ouder = nullptr);

  [[nodiscard]] Sessie& DeSessie() { return sessie_; }
  [[nodiscard]] Elementlijst& DeLijst() { return lijst_; }

  /// Shows the records; of a project just made or opened on its start page.
  void ToonProject(bool isNieuwOfGeopend);
  void ToonGeenProject();
  /// Stores the field that has the focus, as leaving it does. False when its text is invalid, or that of a
  /// red field elsewhere: it has the focus then, and a command that needs its value waits until it is right.
  [[nodiscard]] bool BewaarVeld();
  /// Takes the fields over and judges the project; when it may not be calculated, tells why and goes to where
  /// the user has to look.
  [[nodiscard]] bool NeemOverEnBeoordeel();
  void KiesType(std::int16_t rekenType);
  /// Shows the rows of a catalogue again, after its maintenance. No row is selected then.
  void VulElementen();
  void VulFans();
  /// The progress bar; a `totaal` of 0 hides it.
  void ZetVoortgang(int van, int totaal);

 signals:
  void ToestandGewijzigd();  ///< menus, buttons and status bar may have changed
  void SluitVensters();

 protected:
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  using Sleutel = std::pair<std::string_view, int>;

  // frmMurvane_opbouw.cpp: the controls
  void BouwOp();
  void BouwTabs();
  QWidget* BouwVentilator();
  QWidget* BouwFanLijst();
  QWidget* BouwFanPrognose();
  QWidget* BouwElementen();
  QWidget* BouwLijst(Lijstvak* lijst, const QString& titel, const QString& toolbar);
  QWidget* BouwKnoppen(const QString& toolbar);
  QWidget* BouwPaginas();
  QWidget* BouwKanaalPagina();
  QWidget* BouwAftakPagina();
  QWidget* BouwDoorsneePagina();
  QWidget* BouwWeerstandPagina();
  QWidget* BouwSpectrumPagina();
  QWidget* BouwRuimte();
  QWidget* BouwProject();
  QWidget* BouwDatum();
  void BouwKalender();
  InvoerVeld* VoegVeld(QGridLayout* indeling, int rij, VeldId veld, const QString& tekst,
                       const QString& eenheid, const char* labels, int kolom = 0);
  void ZetOpschriften(std::int16_t elementType);
  BandRij* VoegBanden(std::string_view naam, int eerste, const QString& tekst);
  QLabel* MaakLabel(const QString& tekst, const char* reeks, QWidget* buddy);
  QLabel* BandLabel(const QString& tekst, const char* reeks, const BandRij* rij);
  void MeldAan(InvoerVeld* veld);
  void VerbindTabs();
  void VerbindFan();
  void VerbindLijsten();
  void VerbindKeuzes();
  void ZetIconen();

  // a field
  [[nodiscard]] InvoerVeld* Vak(VeldId veld) const { return velden_.at({veld.Naam, veld.Index}); }
  [[nodiscard]] std::string TekstVan(VeldId veld) const;
  void Gewijzigd(InvoerVeld& veld);
  void Verlaat(InvoerVeld& veld);
  void NaarVolgende(const InvoerVeld& veld);
  void Herstel(InvoerVeld& veld);
  void GaTerug(InvoerVeld* veld);
  void LaatLos();
  void LaatLos(const InvoerVeld& veld);
  [[nodiscard]] bool NaarOngeldig();
  void ZetLwA(const std::optional<std::string>& tekst);
  void ZetTekst(const VeldTekst& tekst);
  void ZetTeksten(const std::vector<VeldTekst>& teksten);
  void Toon(const VeldUitslag& uitslag);
  void PasToe(const VeldUitslag& uitslag);  ///< shows it; an invalid field gets the focus back
  void ZetZichtbaar(VeldId veld, bool zichtbaar);
  bool GaNaar(const QString& naam);
  void VergeetFocus(QWidget& vak);
  void WandelTab(int richting);
  [[nodiscard]] bool Bewaar(bool ookRDI);
  [[nodiscard]] bool IsGeldig(const InvoerVeld& veld) const;

  // the records on screen
  void VulVelden(const VensterBeeld& beeld);
  void VulLijsten(const VensterBeeld& beeld);
  void VulFanLijst(const std::vector<std::string>& rijen);
  void ToonFan(const FanZicht& zicht);
  void ToonRuimte(const RuimteZicht& zicht);
  void ToonType();
  void ToonLijsten();
  void VormPagina();
  [[nodiscard]] ProjectInvoer LeesInvoer() const;
  void WeegOngeldige(ProjectInvoer& invoer);

  // what procedures return
  void RoepBerekend(std::string_view nummer);
  void VoerUit(const Gevolg& gevolg);
  void VoerUit(const LijstUitkomst& uitkomst);
  void VoerUit(const FanUitslag& uitslag);
  void VoerUit(const RuimteUitslag& uitslag);
  void VoerUit(Keuzevak& vak, const KeuzeUitslag& uitslag);
  void Accepteer(int n);
  void Open(int n);

  // events
  void TotaalToets(int toets);
  void ProjectToets(int toets);
  void Voegtoe();
  void Voegin();
  void Wis();
  void Verplaats(int toets);
  void KnopKlik(const Toolbarknop& knop);
  void FanOK();
  void Image1_Click();
  void ToonKalender();
  void MonthView_DateClick(const QDate& datum);
  void ToonOvergenomen();
  void NaarRegel(const Bevinding& bevinding);
  [[nodiscard]] bool Houdt() const { return vult_ || terugNaar_ != nullptr; }

  /// Handles an event; a failure is shown and the program runs on.
  template <typename Stap>
  void Veilig(std::string_view procedure, Stap stap) {
    if (const auto fout = Probeer(stap)) dialogen_.Toon(OnverwachteFout(procedure, "frmMurvane", *fout));
  }

  Project& project_;
  const Catalogi& catalogi_;
  Dialogen& dialogen_;
  std::string vandaag_;
  char decimaal_;
  Sessie sessie_;
  Elementlijst lijst_;
  int laatsteFan_ = 0;               ///< the row of the fan catalogue chosen last, from 1; 0 for none
  int fanRij_ = -1;                  ///< the row that lstFan shows as chosen in this project, from 0
  bool vult_ = false;                ///< the window is being filled from the records
  InvoerVeld* terugNaar_ = nullptr;  ///< an invalid field that is about to have the focus again

  std::map<Sleutel, InvoerVeld*> velden_;
  std::map<Sleutel, std::vector<QWidget*>> mee_;  ///< what shows with a field or with an array's first
  std::map<QString, int> labels_;                 ///< how many labels of a series there are

  QTabWidget* SSTab1 = nullptr;
  QStackedWidget* SSTab2 = nullptr;
  Tekening* tekening_ = nullptr;
  Tekening* ruimteTekening_ = nullptr;
  Tekening* leeg_ = nullptr;  ///< in the place of SSTab1 while no project is open
  QLabel* lblElement = nullptr;
  Lijstvak *lstTotaal = nullptr, *lstProject = nullptr, *lstFan = nullptr;
  std::vector<QToolButton*> knoppen_;  ///< in the order of Toolbarknoppen
  QProgressBar* ProgressBar1 = nullptr;
  QLabel* lblLwA = nullptr;
  QGroupBox* frameFan = nullptr;
  QWidget* vakFan_ = nullptr;
  QRadioButton *optInvoer = nullptr, *optPrognose = nullptr;
  QRadioButton *optAxiaal = nullptr, *optCentriVoor = nullptr, *optCentriAchter = nullptr;
  QPushButton *cmdFanOK = nullptr, *cmdFanCancel = nullptr;
  Keuzevak *cmbKanaal = nullptr, *cmbRkanaal = nullptr, *cmbRplafond = nullptr;
  QCheckBox* VrijVeld = nullptr;
  QToolButton* Image1 = nullptr;
  QCalendarWidget* MonthView = nullptr;
};

}  // namespace murvane
