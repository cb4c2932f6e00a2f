#include "estimators/frmCalc.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "basis/fout.h"
#include "basis/vensters_hulp.h"
#include "editor/vensters_tekening.h"
#include "editor/vensters_veld.h"
#include "estimators/kanaalwand.h"
#include "estimators/vensters_staven.h"

namespace murvane {

namespace {

constexpr auto Uitleggen = std::to_array<Uitleg>({
    {"cmdOK", "Neemt de schatting over in de invoer van de lijst."},
    {"cmdCancel", "Sluit het venster zonder schatting."},
    {"Tekening", "De maten van de schatting; die van het veld in bewerking is geaccentueerd."},
    {"Staven", "Verandert mee met de invoer."},
});

QPushButton* MaakKnop(const char* naam, const QString& tekst, QWidget* ouder) {
  auto* const knop = new QPushButton(tekst, ouder);
  knop->setObjectName(naam);
  knop->setAutoDefault(false);  // Enter goes from field to field; see keyPressEvent
  return knop;
}

QString Grootheid(Schatter soort) {
  return soort == Schatter::Kanaalwand ? "R in dB" : "Demping in dB";
}

}  // namespace

std::optional<Schatting> frmCalc::Vraag(Schatter soort, SchatInvoer& invoer, Dialogen& dialogen,
                                        char decimaal, QWidget* ouder) {
  frmCalc venster(soort, invoer, dialogen, decimaal, ouder);
  (void)venster.exec();
  return venster.Uitkomst();
}

frmCalc::frmCalc(Schatter soort, SchatInvoer& invoer, Dialogen& dialogen, char decimaal, QWidget* ouder)
    : QDialog(ouder), soort_(soort), invoer_(invoer), dialogen_(dialogen), decimaal_(decimaal) {
  Form_Load(invoer_, soort_);
  BouwOp();
  ToonVoorproef();
  velden_.front()->setFocus();
}

// ---- The controls; the order in which they are made is the order of the Tab key ----

void frmCalc::BouwOp() {
  const SchatVenster& venster = VensterVan(soort_);
  setObjectName(VanCp(venster.Naam));
  setWindowTitle(VanCp(venster.Titel));
  auto* const indeling = new QVBoxLayout(this);
  indeling->setContentsMargins(Marge, Marge, Marge, Marge);
  indeling->setSpacing(Marge);
  auto* const boven = new QHBoxLayout;
  boven->setSpacing(2 * Marge);
  boven->addWidget(BouwInvoer());
  tekening_ = new Tekening(this);
  tekening_->setMinimumSize(320, 200);
  boven->addWidget(tekening_, 1);
  indeling->addLayout(boven, 1);
  indeling->addWidget(BouwVoorproef());
  indeling->addWidget(BouwKnoppen());
  ZetUitleg(*this, Uitleggen);
}

QWidget* frmCalc::BouwInvoer() {
  auto* const vak = new QWidget(this);
  auto* const kolom = new QVBoxLayout(vak);
  kolom->setContentsMargins(0, 0, 0, 0);
  kolom->setSpacing(Marge);
  if (soort_ == Schatter::Kanaalwand) kolom->addWidget(BouwMaterialen());
  auto* const maten = new QGridLayout;
  maten->setSpacing(Ruimte);
  int rij = 0;
  for (const SchatVeld& veld : VensterVan(soort_).Velden) VoegVeld(maten, rij++, veld);
  maten->setColumnStretch(2, 1);
  kolom->addLayout(maten);
  kolom->addStretch();
  return vak;
}

QWidget* frmCalc::BouwMaterialen() {
  auto* const vak = new QGroupBox("Materiaal kanaalwand", this);
  vak->setObjectName("frameMateriaal");
  auto* const indeling = new QVBoxLayout(vak);
  auto* const groep = new QButtonGroup(vak);
  for (const KanaalSoort& soort : KanaalSoorten) {
    auto* const optie = new Optieknop(VanCp(soort.Caption), vak);
    optie->setObjectName(VanCp(soort.Naam));
    optie->setAccessibleDescription("Materiaal van de kanaalwand.");
    groep->addButton(optie, soort.KanaalType);
    indeling->addWidget(optie);
  }
  groep->button(invoer_.Kanaalwand.KanaalType)->setChecked(true);
  connect(groep, &QButtonGroup::idToggled, this, [this](int kanaalType, bool aan) {
    if (!aan) return;
    invoer_.Kanaalwand.KanaalType = kanaalType;
    ToonVoorproef();
  });
  return vak;
}

void frmCalc::VoegVeld(QGridLayout* indeling, int rij, const SchatVeld& veld) {
  const QString naam = VanCp(veld.Regel.Naam);
  const QString eenheid = VanCp(veld.Eenheid);
  auto* const vak = new InvoerVeld({veld.Regel.Naam}, veld.Regel, VanCp(veld.Label) + " in " + eenheid, this);
  vak->setFixedWidth(vak->fontMetrics().horizontalAdvance("00000,00") + 3 * Ruimte);
  vak->setText(VanCp(ToonVeld(invoer_, veld, decimaal_)));
  indeling->addWidget(MaakLabel(VanCp(veld.Label), "lbl" + naam, vak, this), rij, 0);
  indeling->addWidget(vak, rij, 1);
  indeling->addWidget(MaakLabel(eenheid, "lblEenheid" + naam, vak, this), rij, 2);
  const std::size_t nummer = velden_.size();
  velden_.push_back(vak);
  connect(vak, &QLineEdit::textChanged, this, &frmCalc::ToonVoorproef);
  connect(vak, &InvoerVeld::Verlaten, this, [this, nummer] { Verlaat(nummer); });
  connect(vak, &InvoerVeld::Enter, this, [this, &veld] { Vak(veld.Regel.Opvolgers[0])->setFocus(); });
  connect(vak, &InvoerVeld::Escape, this, [vak] {
    vak->setText("0");
    vak->setToolTip({});
  });
  connect(vak, &InvoerVeld::Gekregen, this, [this, vak] { tekening_->Belicht(vak->objectName()); });
}

QWidget* frmCalc::BouwVoorproef() {
  auto* const vak = new QGroupBox(Grootheid(soort_) + " per octaafband in Hz", this);
  vak->setObjectName("frameVoorproef");
  auto* const kolom = new QVBoxLayout(vak);
  staven_ = new Staven(Grootheid(soort_), vak);
  kolom->addWidget(staven_);
  lblOmschrijving = new QLabel(vak);
  lblOmschrijving->setObjectName("lblOmschrijving");
  lblOmschrijving->setTextFormat(Qt::PlainText);
  kolom->addWidget(lblOmschrijving);
  return vak;
}

QWidget* frmCalc::BouwKnoppen() {
  auto* const vak = new QWidget(this);
  auto* const rij = new QHBoxLayout(vak);
  rij->setContentsMargins(0, 0, 0, 0);
  rij->addStretch();
  QPushButton* const cmdOK = MaakKnop("cmdOK", "&OK", vak);
  QPushButton* const cmdCancel = MaakKnop("cmdCancel", "&Annuleren", vak);
  // A click leaves the field as it is, so that a red one cannot hold its window open.
  cmdCancel->setFocusPolicy(Qt::TabFocus);
  rij->addWidget(cmdOK);
  rij->addWidget(cmdCancel);
  connect(cmdOK, &QPushButton::clicked, this, &frmCalc::cmdOK_Click);
  connect(cmdCancel, &QPushButton::clicked, this, &frmCalc::reject);
  return vak;
}

// ---- Fields ----

InvoerVeld* frmCalc::Vak(std::string_view naam) const {
  const auto vak =
      std::find_if(velden_.begin(), velden_.end(), [naam](auto* een) { return een->Veld().Naam == naam; });
  if (vak == velden_.end()) throw Fout(FoutNummer::OngeldigArgument);
  return *vak;
}

void frmCalc::Verlaat(std::size_t nummer) {
  if (!isVisible() || (terugNaar_ != nullptr && terugNaar_ != velden_[nummer])) return;
  InvoerVeld* const vak = velden_[nummer];
  const VeldUitslag uitslag =
      VerlaatVeld(invoer_, VensterVan(soort_).Velden[nummer], NaarCp(vak->text()), decimaal_);
  vak->setText(VanCp(uitslag.Tekst));
  vak->ZetKleur(uitslag.Achtergrond);
  vak->setToolTip(VanCp(uitslag.ToolTip));
  if (!uitslag.Geldig) GaTerug(vak);
}

/// The focus can only be given back once the control that is getting it has it. Until then other fields are
/// not checked: two invalid ones would pass it to each other for ever.
void frmCalc::GaTerug(InvoerVeld* veld) {
  if (terugNaar_ != nullptr) return;
  terugNaar_ = veld;
  const auto terug = [this] {
    terugNaar_->setFocus();
    terugNaar_ = nullptr;
  };
  QMetaObject::invokeMethod(this, terug, Qt::QueuedConnection);
}

/// Stores all fields. False when one of them is red: the first of those gets the focus.
bool frmCalc::BewaarVelden() {
  for (std::size_t i = 0; i < velden_.size(); ++i) Verlaat(i);
  return terugNaar_ == nullptr;
}

/// Loaded only when it is another one.
void frmCalc::ToonTekening(const QString& beeld) {
  if (std::exchange(beeld_, beeld) == beeld) return;
  tekening_->ZetBeeld(":/estimators/beelden/" + beeld + ".svg", windowTitle());
}

void frmCalc::ToonVoorproef() {
  Veilig("ToonVoorproef", [&] {
    std::vector<std::string> teksten;
    for (const InvoerVeld* const vak : velden_) teksten.push_back(NaarCp(vak->text()));
    ToonTekening(VanCp(BeeldVan(invoer_, soort_, teksten, decimaal_)));
    const auto schatting = Voorproef(invoer_, soort_, teksten, decimaal_);
    lblOmschrijving->setText(schatting ? VanCp(schatting->Omschrijving) : QString());
    staven_->Zet(schatting ? std::optional(schatting->Demping) : std::nullopt);
  });
}

// ---- Commands ----

/// Enter presses the button that has the focus, and there is no other that waits for it.
void frmCalc::keyPressEvent(QKeyEvent* event) {
  auto* const knop = qobject_cast<QPushButton*>(focusWidget());
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && knop != nullptr) return knop->click();
  QDialog::keyPressEvent(event);
}

void frmCalc::cmdOK_Click() {
  Veilig("cmdOK_Click", [&] {
    if (!BewaarVelden()) return;
    const SchatUitslag uitslag = murvane::cmdOK_Click(invoer_, soort_, decimaal_);
    if (const auto* const weigering = std::get_if<Weigering>(&uitslag)) {
      dialogen_.Toon(BoxVan(*weigering));
      Vak(weigering->Veld)->setFocus();
      Vak(weigering->Veld)->selectAll();  // the focus only comes once the box has gone
      return;
    }
    uitkomst_ = std::get<Schatting>(uitslag);
    accept();
  });
}

void frmCalc::reject() {
  Veilig("cmdCancel_Click", [&] { (void)BewaarVelden(); });
  QDialog::reject();
}

}  // namespace murvane
