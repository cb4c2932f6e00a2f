#include "editor/frmMurvane.h"

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <array>

#include "basis/tekst.h"
#include "basis/vensters_hulp.h"
#include "editor/validate.h"
#include "editor/vensters_tekening.h"
#include "editor/vensters_veld.h"

namespace murvane {

namespace {

struct InvoerPlaats {
  std::string_view Naam;
  std::string ProjectInvoer::*Lid;
};

/// The single boxes of a run's input, those of the room last and in the order of the check.
constexpr auto Plaatsen = std::to_array<InvoerPlaats>({
    {"txtProNaam", &ProjectInvoer::txtProNaam},
    {"txtProNum", &ProjectInvoer::txtProNum},
    {"txtMyDate", &ProjectInvoer::txtMyDate},
    {"txtOmschrijving", &ProjectInvoer::txtOmschrijving},
    {"txtToelichting1", &ProjectInvoer::txtToelichting1},
    {"txtToelichting2", &ProjectInvoer::txtToelichting2},
    {"txtToelichting3", &ProjectInvoer::txtToelichting3},
    {"txtSpectrum", &ProjectInvoer::txtSpectrum},
    {"txtRBreedte", &ProjectInvoer::txtRBreedte},
    {"txtRHoogte", &ProjectInvoer::txtRHoogte},
    {"txtRLengte", &ProjectInvoer::txtRLengte},
    {"txtRDI", &ProjectInvoer::txtRDI},
    {"txtRNR", &ProjectInvoer::txtRNR},
    {"txtRNagalm", &ProjectInvoer::txtRNagalm},
    {"txtRAantal", &ProjectInvoer::txtRAantal},
});
constexpr std::size_t EersteRuimte = 8;

QStringList Rijen(const std::vector<std::string>& rijen) {
  QStringList uit;
  for (const std::string& rij : rijen) uit.push_back(VanCp(TrimRechts(rij)));
  return uit;
}

QDate DatumVan(const std::string& tekst) {
  return QDate::fromString(VanCp(Trim(tekst)), "dd-MM-yyyy");
}

/// A handler's name for the box of a failure.
std::string Procedure(const InvoerVeld& veld, const char* gebeurtenis) {
  return std::string(veld.Veld().Naam) + gebeurtenis;
}

}  // namespace

frmMurvane::frmMurvane(Project& project, const Catalogi& catalogi, Dialogen& dialogen, std::string vandaag,
                       char decimaal, QWidget* ouder)
    : QWidget(ouder),
      project_(project),
      catalogi_(catalogi),
      dialogen_(dialogen),
      vandaag_(std::move(vandaag)),
      decimaal_(decimaal),
      sessie_(Form_Load(project)) {
  BouwOp();
  ToonGeenProject();
  ToonType();
}

// ---- The records on screen ----

void frmMurvane::ToonProject(bool isNieuwOfGeopend) {
  BouwTabs();
  setFocusPolicy(Qt::NoFocus);
  setAccessibleDescription({});
  LaatLos();
  const QScopedValueRollback<bool> vult(vult_, true);
  const VensterBeeld beeld = TabSettings(project_, catalogi_, decimaal_);
  VulVelden(beeld);
  VulLijsten(beeld);
  ToonFan(beeld.Fan);
  VrijVeld->setChecked(beeld.VrijVeld);
  ToonRuimte(beeld.Ruimte);
  ToonType();
  ToonLijsten();
  if (MonthView != nullptr) MonthView->hide();
  leeg_->hide();
  SSTab1->show();
  if (isNieuwOfGeopend) {
    SSTab1->setCurrentIndex(static_cast<int>(StartPagina));
    GaNaar("txtProNum");
  }
  emit ToestandGewijzigd();
}

/// The window itself has the keyboard meanwhile: without a control that could have it the frame would give it
/// to one of those that are hidden.
void frmMurvane::ToonGeenProject() {
  setFocusPolicy(Qt::ClickFocus);
  setAccessibleDescription(leeg_->accessibleDescription());
  LaatLos();
  const QScopedValueRollback<bool> vult(vult_, true);
  SSTab1->hide();
  leeg_->show();
  ProgressBar1->hide();
  if (SSTab1->count() > 0) {
    ToonLijsten();
    lblElement->clear();
    lblLwA->clear();
  }
  if (MonthView != nullptr) MonthView->hide();
  emit ToestandGewijzigd();
}

void frmMurvane::VulVelden(const VensterBeeld& beeld) {
  for (const InvoerPlaats& plaats : Plaatsen) ZetTekst({{plaats.Naam}, beeld.Velden.*plaats.Lid});
  for (int band = 0; band < Banden; ++band) {
    const auto i = static_cast<std::size_t>(band);
    ZetTekst({{"txtLw", band}, beeld.Velden.txtLw[i]});
    ZetTekst({{"txtRkanaal", band}, beeld.txtRkanaal[i]});
    ZetTekst({{"txtRplafond", band}, beeld.txtRplafond[i]});
  }
  for (int i = 0; i < FanVakken; ++i) ZetTekst({{"txtfan", i}, beeld.txtfan[static_cast<std::size_t>(i)]});
  ZetLwA(beeld.lblLwA);
}

void frmMurvane::VulLijsten(const VensterBeeld& beeld) {
  VulFanLijst(beeld.lstFan);
  lstTotaal->ZetRijen(Rijen(beeld.lstTotaal));
  lstProject->ZetRijen(Rijen(beeld.lstProject));
  cmbKanaal->ZetRijen(Rijen(beeld.cmbKanaal));
  cmbRkanaal->ZetRijen(Rijen(beeld.cmbRkanaal));
  cmbRplafond->ZetRijen(Rijen(beeld.cmbRplafond));
  cmbRkanaal->ZetTekst(VanCp(beeld.RkanaalTekst));
  cmbRplafond->ZetTekst(VanCp(beeld.RplafondTekst));
}

void frmMurvane::VulElementen() {
  BouwTabs();
  const QScopedValueRollback<bool> vult(vult_, true);
  lstTotaalGevuld(lijst_);
  lstTotaal->ZetRijen(Rijen(RijenTotaal(catalogi_.CatElementen)));
  ToonLijsten();
  emit ToestandGewijzigd();
}

void frmMurvane::VulFans() {
  BouwTabs();
  const QScopedValueRollback<bool> vult(vult_, true);
  VulFanLijst(CatalogusRijen(catalogi_.CatFans));
}

void frmMurvane::VulFanLijst(const std::vector<std::string>& rijen) {
  lstFan->ZetRijen(Rijen(rijen));
  fanRij_ = -1;
}

void frmMurvane::ToonFan(const FanZicht& zicht) {
  optInvoer->setChecked(zicht.optInvoer);
  optPrognose->setChecked(zicht.optPrognose);
  const std::array<std::pair<QRadioButton*, bool>, 3> typen = {{{optAxiaal, zicht.optAxiaal},
                                                                {optCentriVoor, zicht.optCentriVoor},
                                                                {optCentriAchter, zicht.optCentriAchter}}};
  for (const auto& [knop, aan] : typen) {
    knop->setAutoExclusive(false);  // a fan without a type has none checked
    knop->group()->setExclusive(false);
    knop->setChecked(aan);
    knop->group()->setExclusive(true);
  }
  vakFan_->setVisible(zicht.lstFan);
  lstFan->setVisible(zicht.lstFan);
  frameFan->setVisible(zicht.frameFan);
}

void frmMurvane::ToonRuimte(const RuimteZicht& zicht) {
  ZetZichtbaar({"txtRLengte"}, zicht.txtRLengte);
  ZetZichtbaar({"txtRBreedte"}, zicht.txtRBreedte);
  ZetZichtbaar({"txtRHoogte"}, zicht.txtRHoogte);
  ZetZichtbaar({"txtRNagalm"}, zicht.txtRNagalm);
  ZetZichtbaar({"txtRNR"}, zicht.txtRNR);
  ZetZichtbaar({"txtRDI"}, zicht.txtRDI);
  ZetZichtbaar({"txtRAantal"}, zicht.txtRAantal);
  ZetZichtbaar({"txtRkanaal", 0}, zicht.cmbRkanaal);
  ZetZichtbaar({"txtRplafond", 0}, zicht.cmbRplafond);
  VrijVeld->setVisible(zicht.VrijVeld);
  ruimteTekening_->ZetRuimte(zicht.cmbRplafond);
}

void frmMurvane::ToonType() {
  SSTab1->setTabEnabled(static_cast<int>(Tab::Ventilator), TypeVan(project_.Kop.RekenType).Pagina0);
}

void frmMurvane::ToonLijsten() {
  lstTotaal->ZetRij(TotaalRij(lijst_));
  lstProject->ZetRij(ProjectRij(lijst_));
  lstTotaal->ZetActief(LijstKleur(lijst_, Lijst::lstTotaal) == ActieveKleur);
  lstProject->ZetActief(LijstKleur(lijst_, Lijst::lstProject) == ActieveKleur);
  for (std::size_t i = 0; i < knoppen_.size(); ++i)
    knoppen_[i]->setEnabled(KnopAan(Toolbarknoppen[i], lijst_));
  if (lijst_.SSTab2) return;
  SSTab2->hide();
  lblElement->clear();
  tekening_->ZetType(lijst_.CatalogusPositie > 0 ? TypeVanRecord(lijst_.CatalogusPositie) : std::int16_t{0});
  tekening_->Belicht({});
}

void frmMurvane::ZetZichtbaar(VeldId veld, bool zichtbaar) {
  if (const auto vak = velden_.find({veld.Naam, veld.Index}); vak != velden_.end())
    vak->second->setVisible(zichtbaar);
  const auto mee = mee_.find({veld.Naam, veld.Index});
  if (mee == mee_.end()) return;
  for (QWidget* const een : mee->second) een->setVisible(zichtbaar);
}

void frmMurvane::VormPagina() {
  const int n = lijst_.HuidigElement;
  if (n == 0) return;
  const std::int16_t type = project_.Elementen[static_cast<std::size_t>(n)].ElementType;
  for (const VeldId& veld : PaginaVelden(PaginaVan(type)))
    ZetZichtbaar(veld, ElementVeldZichtbaar(project_, n, veld));
}

void frmMurvane::ZetVoortgang(int van, int totaal) {
  ProgressBar1->setRange(0, totaal);
  ProgressBar1->setValue(van);
  ProgressBar1->setVisible(totaal > 0);
}

// ---- A field ----

std::string frmMurvane::TekstVan(VeldId veld) const {
  return NaarCp(Vak(veld)->text());
}

void frmMurvane::ZetTekst(const VeldTekst& tekst) {
  InvoerVeld* const vak = Vak(tekst.Veld);
  const QString nieuw = VanCp(tekst.Tekst);
  if (vak->text() != nieuw) vak->setText(nieuw);
  vak->ZetKleur(VeldKleur);  // what the program puts in a box is right
  if (!vak->toolTip().isEmpty()) vak->setToolTip({});
}

void frmMurvane::ZetTeksten(const std::vector<VeldTekst>& teksten) {
  for (const VeldTekst& tekst : teksten) ZetTekst(tekst);
}

void frmMurvane::ZetLwA(const std::optional<std::string>& tekst) {
  if (tekst) lblLwA->setText(VanCp(*tekst));
}

void frmMurvane::Gewijzigd(InvoerVeld& veld) {
  if (vult_) return;
  Veilig(Procedure(veld, "_Change"), [&] {
    const VeldGevolg gevolg = VeldGewijzigd(veld.Veld());
    ZetTeksten(gevolg.Zet);
    ZetLwA(gevolg.lblLwA);
    RoepBerekend(gevolg.Berekend);
  });
}

void frmMurvane::Verlaat(InvoerVeld& veld) {
  if (vult_ || (terugNaar_ != nullptr && terugNaar_ != &veld)) return;
  Veilig(Procedure(veld, "_LostFocus"), [&] {
    PasToe(
        VerlaatVeld(project_, lijst_.HuidigElement, veld.Veld(), NaarCp(veld.text()), vandaag_, decimaal_));
  });
}

void frmMurvane::Toon(const VeldUitslag& uitslag) {
  InvoerVeld* const vak = Vak(uitslag.Veld);
  ZetTekst({uitslag.Veld, uitslag.Tekst});
  vak->ZetKleur(uitslag.Achtergrond);
  vak->setToolTip(VanCp(uitslag.ToolTip));
  ZetLwA(uitslag.lblLwA);
}

void frmMurvane::PasToe(const VeldUitslag& uitslag) {
  Toon(uitslag);
  if (!uitslag.Geldig) GaTerug(Vak(uitslag.Veld));
}

void frmMurvane::NaarVolgende(const InvoerVeld& veld) {
  const auto beschikbaar = [this](VeldId id) {
    const auto vak = velden_.find({id.Naam, id.Index});
    return vak == velden_.end() || !vak->second->isHidden();
  };
  Veilig(Procedure(veld, "_KeyDown"), [&] {
    if (const auto volgende = VolgendVeld(veld.Veld(), beschikbaar)) GaNaar(ObjectNaam(*volgende));
  });
}

void frmMurvane::Herstel(InvoerVeld& veld) {
  Veilig(Procedure(veld, "_KeyDown"),
         [&] { veld.setText(VanCp(HerstelTekst(project_, lijst_.HuidigElement, veld.Veld(), decimaal_))); });
  veld.setToolTip({});
  veld.selectAll();
}

bool frmMurvane::IsGeldig(const InvoerVeld& veld) const {
  return ValiDate(NaarCp(veld.text()), Regel(veld.Veld()), vandaag_, decimaal_).Geldig;
}

/// A run may have shown a message about another field than the one that it refused, which then waits too.
bool frmMurvane::BewaarVeld() {
  return Bewaar(true) && !NaarOngeldig();
}

/// A run takes the directivity factor as it was typed; only leaving its box snaps it.
bool frmMurvane::Bewaar(bool ookRDI) {
  QWidget* const focus = focusWidget();
  if (focus == nullptr || !focus->isVisibleTo(this)) return true;
  if (auto* const veld = qobject_cast<InvoerVeld*>(focus)) {
    const bool zoAls = !ookRDI && veld->Veld().Naam == "txtRDI" && IsGeldig(*veld);
    if (zoAls) veld->setToolTip({});  // of a text before this one
    if (!zoAls) Verlaat(*veld);
  }
  if (auto* const keuze = qobject_cast<Keuzevak*>(focus)) emit keuze->Verlaten();
  return terugNaar_ == nullptr;
}

// ---- What procedures return ----

void frmMurvane::RoepBerekend(std::string_view nummer) {
  VoerUit(Berekend(sessie_, vlag::Gewijzigd, nummer));
}

void frmMurvane::VoerUit(const Gevolg& gevolg) {
  if (gevolg.SluitVensters) emit SluitVensters();
  emit ToestandGewijzigd();
}

void frmMurvane::VoerUit(const LijstUitkomst& uitkomst) {
  if (uitkomst.Accepteer > 0) Accepteer(uitkomst.Accepteer);
  if (uitkomst.Melding) dialogen_.Toon(*uitkomst.Melding);
  if (uitkomst.lstProject == Vulling::RijErbij)
    lstProject->VoegRij(VanCp(TrimRechts(RijProject(project_, project_.ElementCount))));
  if (uitkomst.lstProject == Vulling::Opnieuw) lstProject->ZetRijen(Rijen(RijenProject(project_)));
  ToonLijsten();
  if (uitkomst.BerekendEerst) RoepBerekend(uitkomst.Berekend);
  if (uitkomst.Open > 0) Open(uitkomst.Open);
  if (!uitkomst.BerekendEerst && !uitkomst.Berekend.empty()) RoepBerekend(uitkomst.Berekend);
  emit ToestandGewijzigd();
}

void frmMurvane::Accepteer(int n) {
  ElementInvoer invoer;
  invoer.cmbKanaal = NaarCp(cmbKanaal->currentText());
  for (const VeldId& veld : AcceptVelden(project_.Elementen[static_cast<std::size_t>(n)].ElementType))
    invoer.Teksten.push_back({veld, TekstVan(veld)});
  for (const VeldUitslag& uitslag : Accept(project_, n, invoer, decimaal_)) PasToe(uitslag);
}

/// Fills and shows the page of element n. The field that loses the focus by it was stored before; what it
/// holds now belongs to another element, so its leaving is not handled.
void frmMurvane::Open(int n) {
  const ElementOpening opening = OpenElement(project_, n, decimaal_);
  {
    const QScopedValueRollback<bool> vult(vult_, true);
    for (const auto& [sleutel, vak] : velden_) {
      if (SSTab2->isAncestorOf(vak)) vak->ZetKleur(VeldKleur);
    }
    ZetTeksten(opening.Beeld.Teksten);
    if (opening.Beeld.OpPagina == Pagina::Kanaal) cmbKanaal->ZetTekst(VanCp(opening.Beeld.cmbKanaal));
    for (const VeldStand& stand : opening.Beeld.Stand) ZetZichtbaar(stand.Veld, stand.Zichtbaar);
    if (opening.SSTab2Zichtbaar) SSTab2->setCurrentIndex(static_cast<int>(opening.Beeld.OpPagina));
    SSTab2->setVisible(opening.SSTab2Zichtbaar);
    ZetOpschriften(project_.Elementen[static_cast<std::size_t>(n)].ElementType);
    lblElement->setText(ZonderSneltoets(VanCp(TrimRechts(RijProject(project_, n)))));
    tekening_->ZetType(project_.Elementen[static_cast<std::size_t>(n)].ElementType);
    tekening_->Belicht({});
  }
  ZetTeksten(opening.Zet);
  const QScopedValueRollback<bool> vult(vult_, true);
  if (SSTab1->currentIndex() == static_cast<int>(Tab::Kanaalelementen)) GaNaar(VanCp(opening.Focus));
}

void frmMurvane::VoerUit(const FanUitslag& uitslag) {
  if (uitslag.Gewijzigd) LaatLos();
  for (const VeldUitslag& veld : uitslag.Velden) {
    Toon(veld);
    if (!veld.Geldig && !uitslag.Focus) GaTerug(Vak(veld.Veld));
  }
  ZetTeksten(uitslag.Zet);
  ZetLwA(uitslag.lblLwA);
  ToonFan(uitslag.Zicht);
  VormPagina();
  if (uitslag.KiesRij) lstFan->ZetRij(*uitslag.KiesRij);
  fanRij_ = lstFan->currentRow();
  if (uitslag.Box) dialogen_.Toon(*uitslag.Box);
  if (uitslag.Focus) GaNaar(ObjectNaam(*uitslag.Focus));
  if (uitslag.OpenEersteElement) VoerUit(lstProject_Click(lijst_, project_, 0));
  if (uitslag.Gewijzigd) RoepBerekend({});
  emit ToestandGewijzigd();
}

void frmMurvane::VoerUit(const RuimteUitslag& uitslag) {
  ToonRuimte(uitslag.Zicht);
  ZetTeksten(uitslag.Zet);
  RoepBerekend(uitslag.Berekend);
}

void frmMurvane::VoerUit(Keuzevak& vak, const KeuzeUitslag& uitslag) {
  if (uitslag.Tekst) vak.ZetTekst(VanCp(*uitslag.Tekst));
  if (!uitslag.Berekend.empty()) RoepBerekend(uitslag.Berekend);
  ZetTeksten(uitslag.Zet);
}

// ---- Events ----

void frmMurvane::TotaalToets(int toets) {
  if (toets == Qt::Key_Return) Voegtoe();
  if (toets == Qt::Key_Insert) Voegin();
}

void frmMurvane::ProjectToets(int toets) {
  if (toets == Qt::Key_Return) emit lstProject->Geklikt(lstProject->currentRow());
  if (toets == Qt::Key_Delete) Wis();
}

void frmMurvane::Voegtoe() {
  if (Houdt()) return;
  Veilig("lstTotaal_DblClick",
         [this] { VoerUit(lstTotaal_DblClick(lijst_, project_, catalogi_.CatElementen)); });
}

void frmMurvane::Voegin() {
  if (Houdt()) return;
  Veilig("Insert", [this] { VoerUit(Insert(lijst_, project_, catalogi_.CatElementen)); });
}

void frmMurvane::Wis() {
  if (Houdt()) return;
  Veilig("lstProject_DblClick", [this] {
    const LijstUitkomst vraag = lstProject_DblClick(lijst_);
    if (!vraag.Melding) return;
    const Antwoord antwoord = dialogen_.Toon(*vraag.Melding);
    if (vraag.Melding->Soort == MeldingSoort::Vraag) VoerUit(WisElement(lijst_, project_, antwoord));
  });
}

void frmMurvane::Verplaats(int toets) {
  if (Houdt()) return;
  Veilig("UpDown", [&] { VoerUit(UpDown(lijst_, project_, toets)); });
}

void frmMurvane::KnopKlik(const Toolbarknop& knop) {
  if (!BewaarVeld()) return;
  if (knop.Sleutel == "Add") Voegtoe();
  if (knop.Sleutel == "Prop") Voegin();
  if (knop.Sleutel == "Delete") Wis();
  if (knop.Sleutel == "Down") Verplaats(ToetsOmlaag);
  if (knop.Sleutel == "Up") Verplaats(ToetsOmhoog);
}

void frmMurvane::FanOK() {
  if (Houdt()) return;
  std::array<std::string, FanVakken> teksten;
  for (int i = 0; i < FanVakken; ++i) teksten[static_cast<std::size_t>(i)] = TekstVan({"txtfan", i});
  Veilig("cmdFanOK_Click", [&] { VoerUit(cmdFanOK_Click(project_, teksten, decimaal_)); });
}

void frmMurvane::Image1_Click() {
  if (MonthView == nullptr) BouwKalender();
  if (!MonthView->isHidden()) return MonthView->hide();
  Veilig("Image1_Click", [this] { ToonKalender(); });
}

void frmMurvane::ToonKalender() {
  const QDate datum = DatumVan(TekstVan({"txtMyDate"}));
  MonthView->setSelectedDate(datum.isValid() ? datum : DatumVan(vandaag_));
  MonthView->resize(MonthView->sizeHint());
  MonthView->move(Image1->mapTo(MonthView->parentWidget(), QPoint(0, Image1->height() + 2)));
  MonthView->raise();
  MonthView->show();
  MonthView->setFocus();
}

void frmMurvane::MonthView_DateClick(const QDate& datum) {
  if (MonthView->isHidden()) return;
  Veilig("MonthView_DateClick", [&] {
    ZetTekst({{"txtMyDate"}, NaarCp(datum.toString("dd-MM-yyyy"))});
    GaNaar("txtMyDate");
    MonthView->hide();
  });
}

void frmMurvane::KiesType(std::int16_t rekenType) {
  if (!BewaarVeld()) return;
  BouwTabs();
  VoerUit(KiesRekenType(sessie_, project_, rekenType));
  LaatLos();
  SSTab1->setCurrentIndex(static_cast<int>(StartPagina));
  ToonType();
  VoerUit(VrVldSet(project_));
  VormPagina();
}

ProjectInvoer frmMurvane::LeesInvoer() const {
  ProjectInvoer invoer;
  for (const InvoerPlaats& plaats : Plaatsen) invoer.*plaats.Lid = TekstVan({plaats.Naam});
  for (int band = 0; band < Banden; ++band)
    invoer.txtLw[static_cast<std::size_t>(band)] = TekstVan({"txtLw", band});
  return invoer;
}

/// What was refused counts as 0 and stays red, a date as it was before: a rule that fails by it tells so, and
/// without one the run stops at the field.
bool frmMurvane::NeemOverEnBeoordeel() {
  std::optional<Bevinding> bevinding;
  {
    const Zandloper wacht(dialogen_);
    (void)Bewaar(false);
    if (lijst_.HuidigElement > 0) Accepteer(lijst_.HuidigElement);
    terugNaar_ = nullptr;  // where to go is told below
    ProjectInvoer invoer = LeesInvoer();
    WeegOngeldige(invoer);
    NeemOver(project_, invoer, decimaal_);
    ToonOvergenomen();
    bevinding = Beoordeel(project_);
  }
  if (bevinding) NaarRegel(*bevinding);
  return !bevinding && !NaarOngeldig();
}

/// The bands of a fan between two rooms cannot be mended, so that their texts stay as they are.
void frmMurvane::WeegOngeldige(ProjectInvoer& invoer) {
  if (!IsGeldig(*Vak({"txtMyDate"}))) invoer.txtMyDate = project_.Kop.MyDate.Heel();
  if (!SSTab1->isTabEnabled(static_cast<int>(Tab::Ventilator))) return;
  while (const auto ongeldig = OngeldigeLw(invoer)) {
    Toon(*ongeldig);
    invoer.txtLw[static_cast<std::size_t>(ongeldig->Veld.Index)] = "0";
  }
}

/// What a run took over as the records have it: the room's boxes, and the open element's page, where what the
/// element inherited stands in place of what was typed. A text that was refused stays as it was typed.
void frmMurvane::ToonOvergenomen() {
  for (std::size_t i = EersteRuimte; i < Plaatsen.size(); ++i) {
    const VeldId veld = {Plaatsen[i].Naam};
    if (!Vak(veld)->IsOngeldig()) ZetTekst({veld, HerstelTekst(project_, 0, veld, decimaal_)});
  }
  const QScopedValueRollback<bool> vult(vult_, true);
  for (const VeldTekst& tekst : ProjectSettings(project_, lijst_.HuidigElement, decimaal_).Teksten) {
    if (!Vak(tekst.Veld)->IsOngeldig() && TekstVan(tekst.Veld) != tekst.Tekst) ZetTekst(tekst);
  }
}

void frmMurvane::NaarRegel(const Bevinding& bevinding) {
  dialogen_.Toon({MeldingSoort::Uitroep, "Waarschuwing", bevinding.Melding});
  SSTab1->setCurrentIndex(static_cast<int>(bevinding.OpTab));
  terugNaar_ = nullptr;  // a field that was refused is left for what the message is about
  if (bevinding.Element > 0) VoerUit(lstProject_Click(lijst_, project_, bevinding.Element - 1));
  const QScopedValueRollback<bool> vult(vult_, true);
  if (!bevinding.Veld.empty()) GaNaar(VanCp(bevinding.Veld));
}

void frmMurvane::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange && Image1 != nullptr) {
    ZetIconen();
    ToonLijsten();
  }
  QWidget::changeEvent(event);
}

}  // namespace murvane
