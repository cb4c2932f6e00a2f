#include "catalogue/frmOnderhoud.h"

#include <QAction>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScopeGuard>
#include <QStatusBar>
#include <QVBoxLayout>
#include <array>
#include <utility>

#include "basis/tekst.h"
#include "basis/vensters_hulp.h"
#include "catalogue/frmOverzicht.h"
#include "catalogue/overzicht.h"
#include "editor/vensters_veld.h"
#include "estimators/frmCalc.h"

namespace murvane {

namespace {

constexpr auto Uitleggen = std::to_array<Uitleg>({
    {"lstSpectrum", "Een rij kiezen toont de waarden ernaast."},
    {"txtSpectrum", "De naam in de lijst, van ten hoogste 80 tekens."},
    {"cmdOK", "Neemt de invoer in de lijst op."},
    {"cmdCancel", "Laat de lijst zoals hij was."},
    {"cmdToevoegen", "Maakt een nieuwe rij in de lijst."},
    {"cmdwijzig", "Wijzigt de gekozen rij."},
    {"cmdWissen", "Wist de gekozen rij, na een vraag."},
    {"cmdSluiten", "Slaat de lijst op in zijn bestand en sluit het venster."},
    {"ProgressBar1", "Telt de rijen van het overzicht."},
});

Schatter SchatterVan(std::string_view venster) {
  for (const Schatter soort :
       {Schatter::Bekleed, Schatter::KwartLambda, Schatter::Plenum, Schatter::Kanaalwand})
    if (VensterVan(soort).Naam == venster) return soort;
  throw Fout(FoutNummer::OngeldigArgument);
}

}  // namespace

template <typename Stap>
void frmOnderhoud::Doe(std::string_view procedure, Stap stap) {
  const auto fout = Probeer([&] {
    LeesVelden();
    Toon(stap());
  });
  if (fout)
    (void)omgeving_.Dialogen.Toon(OnverwachteFout(procedure, OnderhoudVan(onderhoud_.Soort).Venster, *fout));
}

frmOnderhoud::frmOnderhoud(CatalogusSoort soort, OnderhoudOmgeving omgeving, QWidget* ouder)
    : QDialog(ouder), omgeving_(std::move(omgeving)), onderhoud_(Form_Load(soort)) {
  const Zandloper zandloper(omgeving_.Dialogen);
  setObjectName(VanCp(OnderhoudVan(soort).Venster));
  setWindowTitle(VanCp(OnderhoudVan(soort).Titel));
  auto* const indeling = new QVBoxLayout(this);
  indeling->setContentsMargins(0, 0, 0, 0);
  indeling->setSpacing(0);
  indeling->setMenuBar(BouwMenu());
  auto* const midden = new QHBoxLayout;
  midden->setContentsMargins(Marge, Marge, Marge, Marge);
  midden->setSpacing(2 * Marge);
  midden->addWidget(BouwLijst(), 1);
  auto* const rechts = new QVBoxLayout;
  rechts->setSpacing(Marge);
  rechts->addWidget(BouwVelden());
  rechts->addStretch();
  rechts->addWidget(BouwKnoppen());
  midden->addLayout(rechts);
  indeling->addLayout(midden, 1);
  indeling->addWidget(BouwStatusbalk());
  ZetMaat(*this, {980, 520});
  ZetUitleg(*this, Uitleggen);
  VulLijst();
  ToonVelden();
  ToonToestand();
  lstSpectrum->setFocus();
}

// ---- The controls; the order in which they are made is the order of the Tab key ----

QMenuBar* frmOnderhoud::BouwMenu() {
  auto* const balk = new QMenuBar(this);
  std::map<std::string_view, QMenu*> menus;
  for (const OnderhoudMenu& item : OnderhoudMenus(onderhoud_.Soort)) {
    const QString opschrift = VanCp(item.Opschrift);
    QMenu* const in = item.In.empty() ? nullptr : menus.at(item.In);
    QAction* actie = nullptr;
    if (item.IsMenu) {
      QMenu* const menu = in == nullptr ? balk->addMenu(opschrift) : in->addMenu(opschrift);
      menu->setObjectName(VanCp(item.Naam));
      menus[item.Naam] = menu;
      actie = menu->menuAction();
    } else {
      actie = menus.at(item.In)->addAction(opschrift);
      connect(actie, &QAction::triggered, this, [this, item] {
        Doe(std::string(item.Naam) + "_Click",
            [this, &item] { return item.Schatter.empty() ? Menu(item.Naam) : Schat(item); });
      });
    }
    actie->setObjectName(VanCp(item.Naam));
    if (item.In.empty()) menus_[item.Naam] = actie;
  }
  return balk;
}

QWidget* frmOnderhoud::BouwLijst() {
  auto* const vak = new QWidget(this);
  auto* const kolom = new QVBoxLayout(vak);
  kolom->setContentsMargins(0, 0, 0, 0);
  kolom->setSpacing(4);
  lstSpectrum = new Lijstvak("lstSpectrum", windowTitle(), vak);
  lstSpectrum->setUniformItemSizes(true);
  lstSpectrum->setMinimumWidth(220);
  kolom->addWidget(MaakLabel(windowTitle(), "lblLijst", lstSpectrum, vak));
  kolom->addWidget(lstSpectrum);
  besturing_["lstSpectrum"] = lstSpectrum;
  connect(lstSpectrum, &Lijstvak::Geklikt, this, [this](int rij) {
    Doe("lstSpectrum_Click",
        [&] { return lstSpectrum_Click(onderhoud_, omgeving_.Catalogi, rij, omgeving_.Decimaal); });
  });
  return vak;
}

QWidget* frmOnderhoud::BouwVelden() {
  const OnderhoudVerschil& verschil = OnderhoudVan(onderhoud_.Soort);
  auto* const vak = new QWidget(this);
  auto* const kolom = new QVBoxLayout(vak);
  kolom->setContentsMargins(0, 0, 0, 0);
  kolom->setSpacing(4);
  auto* const naam = new InvoerVeld({"txtSpectrum"}, OnderhoudRegel("txtSpectrum"), "Omschrijving", vak);
  naam->setMaxLength(static_cast<int>(Tekst<80>::Lengte));
  kolom->addWidget(MaakLabel("Omschrijving", "lblSpectrum", naam, vak));
  kolom->addWidget(naam);
  MeldAan(naam);
  VoegRij(kolom, "txtdemp", verschil.Rijlabel);
  if (!verschil.RuisLabel.empty()) VoegRij(kolom, "txtruis", verschil.RuisLabel);
  kolom->addSpacing(Marge);
  kolom->addWidget(BouwInvoerKnoppen());
  return vak;
}

void frmOnderhoud::VoegRij(QVBoxLayout* kolom, std::string_view naam, std::string_view label) {
  const QString tekst = VanCp(label);
  auto* const rij = new BandRij(naam, 0, OnderhoudRegel(naam), tekst, this);
  kolom->addSpacing(Marge);
  kolom->addWidget(MaakLabel(tekst, "lbl" + VanCp(naam), rij->Vakken().front(), this));
  kolom->addWidget(rij);
  for (InvoerVeld* const vak : rij->Vakken()) MeldAan(vak);
}

void frmOnderhoud::MeldAan(InvoerVeld* vak) {
  velden_.push_back(vak);
  connect(vak, &InvoerVeld::Verlaten, this, [this, vak] { Verlaat(*vak); });
  connect(vak, &InvoerVeld::Escape, this, [this, vak] {
    VakVan(vak->Veld()) = {.Tekst = std::string(OnderhoudEscape(vak->Veld()))};
    ToonVak(*vak);
  });
  connect(vak, &InvoerVeld::Enter, this, [this, vak] {
    findChild<QWidget*>(ObjectNaam(OnderhoudVolgend(vak->Veld())))->setFocus(Qt::TabFocusReason);
  });
}

QPushButton* frmOnderhoud::MaakKnop(const char* naam, const QString& tekst, QWidget* ouder) {
  auto* const knop = new QPushButton(tekst, ouder);
  knop->setObjectName(naam);
  knop->setAutoDefault(false);  // Enter goes from field to field; see keyPressEvent
  besturing_[naam] = knop;
  return knop;
}

QWidget* frmOnderhoud::BouwInvoerKnoppen() {
  auto* const vak = new QWidget(this);
  auto* const rij = new QHBoxLayout(vak);
  rij->setContentsMargins(0, 0, 0, 0);
  rij->addStretch();
  QPushButton* const cmdOK = MaakKnop("cmdOK", "&OK", vak);
  QPushButton* const cmdCancel = MaakKnop("cmdCancel", "&Annuleren", vak);
  for (QPushButton* const knop : {cmdOK, cmdCancel}) {
    QSizePolicy plaats = knop->sizePolicy();
    plaats.setRetainSizeWhenHidden(true);
    knop->setSizePolicy(plaats);
    rij->addWidget(knop);
  }
  cmdCancel->setFocusPolicy(Qt::TabFocus);  // a click leaves a red field as it is
  connect(cmdOK, &QPushButton::clicked, this, [this] {
    Doe("cmdOK_Click", [this] {
      return cmdOK_Click(onderhoud_, omgeving_.Catalogi, omgeving_.Dialogen, omgeving_.Decimaal);
    });
  });
  connect(cmdCancel, &QPushButton::clicked, this, [this] {
    Doe("cmdCancel_Click",
        [this] { return cmdCancel_Click(onderhoud_, omgeving_.Catalogi, omgeving_.Decimaal); });
  });
  return vak;
}

QWidget* frmOnderhoud::BouwKnoppen() {
  auto* const vak = new QWidget(this);
  auto* const rij = new QHBoxLayout(vak);
  rij->setContentsMargins(0, 0, 0, 0);
  QPushButton* const cmdToevoegen = MaakKnop("cmdToevoegen", "&Toevoegen", vak);
  QPushButton* const cmdwijzig = MaakKnop("cmdwijzig", "&Wijzigen", vak);
  QPushButton* const cmdWissen = MaakKnop("cmdWissen", "W&issen", vak);
  QPushButton* const cmdSluiten = MaakKnop("cmdSluiten", "&Sluiten", vak);
  cmdSluiten->setFocusPolicy(Qt::TabFocus);  // a click leaves a red field as it is
  for (QPushButton* const knop : {cmdToevoegen, cmdwijzig, cmdWissen}) rij->addWidget(knop);
  rij->addStretch();
  rij->addWidget(cmdSluiten);
  connect(cmdToevoegen, &QPushButton::clicked, this, [this] {
    Doe("cmdToevoegen_Click",
        [this] { return cmdToevoegen_Click(onderhoud_, omgeving_.Catalogi, omgeving_.Decimaal); });
  });
  connect(cmdwijzig, &QPushButton::clicked, this, [this] {
    Doe("cmdwijzig_Click", [this] { return cmdwijzig_Click(onderhoud_, omgeving_.Catalogi); });
  });
  connect(cmdWissen, &QPushButton::clicked, this, [this] {
    Doe("cmdWissen_Click", [this] {
      return cmdWissen_Click(onderhoud_, omgeving_.Catalogi, omgeving_.Dialogen, omgeving_.Decimaal);
    });
  });
  connect(cmdSluiten, &QPushButton::clicked, this, &frmOnderhoud::Sluit);
  return vak;
}

QWidget* frmOnderhoud::BouwStatusbalk() {
  auto* const balk = new QStatusBar(this);
  balk->setObjectName("StatusBar1");
  balk->setSizeGripEnabled(false);
  balk->setContentsMargins(Marge - 4, 0, Marge - 4, 0);
  paneel1_ = new QLabel(balk);
  paneel1_->setObjectName("StatusBar1_1");
  paneel2_ = new QLabel(balk);
  paneel2_->setObjectName("StatusBar1_2");
  ProgressBar1 = new QProgressBar(balk);
  ProgressBar1->setObjectName("ProgressBar1");
  ProgressBar1->setAccessibleName("Voortgang");
  ProgressBar1->setMaximumWidth(160);
  KleurVoortgang(*ProgressBar1);
  QSizePolicy plaats = ProgressBar1->sizePolicy();
  plaats.setRetainSizeWhenHidden(true);  // it has to stand in its place as soon as it is shown
  ProgressBar1->setSizePolicy(plaats);
  balk->addWidget(paneel1_, 1);
  balk->addWidget(paneel2_, 1);
  balk->addWidget(ProgressBar1);
  ProgressBar1->hide();
  return balk;
}

// ---- The state on screen ----

OnderhoudVak& frmOnderhoud::VakVan(VeldId veld) {
  if (veld.Index < 0) return onderhoud_.Velden.txtSpectrum;
  auto& rij = veld.Naam == "txtdemp" ? onderhoud_.Velden.txtdemp : onderhoud_.Velden.txtruis;
  return rij[static_cast<std::size_t>(veld.Index)];
}

void frmOnderhoud::LeesVelden() {
  for (const InvoerVeld* const vak : velden_) VakVan(vak->Veld()).Tekst = NaarCp(vak->text());
}

void frmOnderhoud::ToonVelden() {
  for (InvoerVeld* const vak : velden_) {
    ToonVak(*vak);
    vak->setCursorPosition(0);
  }
}

void frmOnderhoud::ToonVak(InvoerVeld& vak) {
  const OnderhoudVak& veld = VakVan(vak.Veld());
  if (vak.text() != VanCp(veld.Tekst)) vak.setText(VanCp(veld.Tekst));
  if (vak.toolTip() != VanCp(veld.ToolTip)) vak.setToolTip(VanCp(veld.ToolTip));
  vak.ZetKleur(veld.Achtergrond);
}

void frmOnderhoud::ToonToestand() {
  const bool invoer = onderhoud_.Invoer;
  for (const auto& [naam, vak] : besturing_) {
    vak->setVisible(OnderhoudZichtbaar(naam, invoer));
    vak->setEnabled(OnderhoudAan(naam, invoer));
  }
  for (InvoerVeld* const vak : velden_) vak->setEnabled(OnderhoudAan(vak->Veld().Naam, invoer));
  for (const auto& [naam, actie] : menus_) actie->setEnabled(OnderhoudAan(naam, invoer));
  paneel1_->setText(VanCp(OnderhoudPaneel1(onderhoud_)));
  paneel2_->setText(VanCp(OnderhoudPaneel2(omgeving_.Catalogi, onderhoud_.Soort)));
}

void frmOnderhoud::VulLijst() {
  QStringList rijen;
  for (const std::string& rij : OnderhoudRijen(omgeving_.Catalogi, onderhoud_.Soort))
    rijen.push_back(VanCp(TrimRechts(rij)));
  lstSpectrum->ZetRijen(rijen);
}

void frmOnderhoud::Toon(const OnderhoudUitkomst& uitkomst) {
  if (uitkomst.NieuweRijen) VulLijst();
  lstSpectrum->ZetRij(onderhoud_.Gekozen);
  ToonVelden();
  ToonToestand();
  if (uitkomst.Focus) findChild<QWidget*>(ObjectNaam(*uitkomst.Focus))->setFocus(Qt::TabFocusReason);
  if (uitkomst.Box) (void)omgeving_.Dialogen.Toon(*uitkomst.Box);
}

// ---- Fields ----

void frmOnderhoud::Verlaat(InvoerVeld& vak) {
  const bool waarde = vak.Veld().Index >= 0;
  if (!isVisible() || !onderhoud_.Invoer || !waarde || (terugNaar_ != nullptr && terugNaar_ != &vak)) return;
  VakVan(vak.Veld()) = OnderhoudVerlaat(vak.Veld(), NaarCp(vak.text()), omgeving_.Decimaal);
  ToonVak(vak);
  if (VakVan(vak.Veld()).Achtergrond == FoutKleur) GaTerug(&vak);
}

/// The focus can only be given back once the control that is getting it has it.
void frmOnderhoud::GaTerug(InvoerVeld* vak) {
  if (terugNaar_ != nullptr) return;
  terugNaar_ = vak;
  const auto terug = [this] {
    if (onderhoud_.Invoer) terugNaar_->setFocus();
    terugNaar_ = nullptr;
  };
  QMetaObject::invokeMethod(this, terug, Qt::QueuedConnection);
}

// ---- Commands ----

void frmOnderhoud::ToonVoortgang(int record, int meest) {
  ProgressBar1->setRange(0, meest);
  ProgressBar1->show();
  ProgressBar1->setValue(record);
}

std::optional<OverzichtUitslag> frmOnderhoud::MaakOverzicht(std::string_view naam) {
  const auto voortgang = [this](int record, int meest) { ToonVoortgang(record, meest); };
  const auto weg = qScopeGuard([this] { ProgressBar1->hide(); });
  const CatalogusSoort soort = onderhoud_.Soort;
  if (naam == "mnuZoekNaam")
    return mnuZoekNaam_Click(omgeving_.Catalogi, soort, omgeving_.Dialogen, omgeving_.Vandaag,
                             omgeving_.Decimaal, voortgang);
  return mnuZoekAlles_Click(omgeving_.Catalogi, soort, omgeving_.Dialogen, omgeving_.Vandaag,
                            omgeving_.Decimaal, voortgang);
}

void frmOnderhoud::ToonOverzicht(OverzichtUitslag overzicht) {
  overzicht.Map = omgeving_.Map;
  frmOverzicht venster(std::move(overzicht), omgeving_.Dialogen, this);
  (void)venster.exec();
}

OnderhoudUitkomst frmOnderhoud::Menu(std::string_view naam) {
  if (naam == "mnuSortNaam") return mnuSortNaam_Click(onderhoud_, omgeving_.Catalogi, omgeving_.Dialogen);
  auto overzicht = MaakOverzicht(naam);
  if (overzicht) ToonOverzicht(std::move(*overzicht));
  return {};
}

/// A window that is disabled loses its focus; it gets it back as if it had only stood behind another one.
OnderhoudUitkomst frmOnderhoud::Schat(const OnderhoudMenu& item) {
  const QPointer<QWidget> focus = focusWidget();
  if (item.ZetUit) setEnabled(false);
  const auto weerAan = qScopeGuard([this, &focus] {
    if (isEnabled()) return;
    setEnabled(true);
    if (focus != nullptr) focus->setFocus(Qt::ActiveWindowFocusReason);
  });
  const auto schatting = frmCalc::Vraag(SchatterVan(item.Schatter), omgeving_.SchatInvoer, omgeving_.Dialogen,
                                        omgeving_.Decimaal, this);
  if (schatting) NeemSchatting(onderhoud_, schatting->Omschrijving, schatting->Demping);
  return {};
}

void frmOnderhoud::Sluit() {
  if (cmdSluiten_Click(onderhoud_, omgeving_.Catalogi, omgeving_.Map, omgeving_.Dialogen)) accept();
}

void frmOnderhoud::reject() {
  if (onderhoud_.Invoer) static_cast<QPushButton*>(besturing_.at("cmdCancel"))->click();
}

/// The close button stores nothing in the file; what was changed stays in memory.
void frmOnderhoud::closeEvent(QCloseEvent* gebeurtenis) {
  QDialog::reject();
  gebeurtenis->accept();
}

/// Enter presses the button that has the focus, and there is no other that waits for it.
void frmOnderhoud::keyPressEvent(QKeyEvent* gebeurtenis) {
  auto* const knop = qobject_cast<QPushButton*>(focusWidget());
  const bool enter = gebeurtenis->key() == Qt::Key_Return || gebeurtenis->key() == Qt::Key_Enter;
  if (enter && knop != nullptr) return knop->click();
  QDialog::keyPressEvent(gebeurtenis);
}

}  // namespace murvane
