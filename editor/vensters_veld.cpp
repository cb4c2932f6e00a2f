#include "editor/vensters_veld.h"

#include <QApplication>
#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QTextCharFormat>
#include <QVBoxLayout>
#include <QWheelEvent>

#include "basis/vensters_hulp.h"
#include "basis/vensters_stijl.h"
#include "editor/elementlijst.h"
#include "editor/vensters_plakken.h"

namespace murvane {

namespace {

constexpr std::array<const char*, Banden> BandNamen = {"63", "125", "250", "500", "1000", "2000", "4000"};

bool BlijftInVeld(Qt::FocusReason reden) {
  return reden == Qt::ActiveWindowFocusReason || reden == Qt::PopupFocusReason ||
         reden == Qt::MenuBarFocusReason;
}

/// The window inside the main window, or the dialog, that a control stands in.
const QWidget* VensterVan(const QWidget* vak) {
  while (vak != nullptr && !vak->isWindow() && vak->windowType() != Qt::SubWindow) vak = vak->parentWidget();
  return vak;
}

/// Whether a control that loses the focus is left for another one of its window. In its own window it stays
/// the control in hand when a menu, a pop-up or another window comes in front; the frame hides a window
/// behind a maximised one, and the focus then wanders inside it.
bool WordtVerlaten(const QWidget& vak, Qt::FocusReason reden) {
  const QWidget* const venster = VensterVan(&vak);
  if (BlijftInVeld(reden) || (venster != nullptr && !venster->isVisible())) return false;
  const QWidget* const nieuw = QApplication::focusWidget();
  return nieuw == nullptr ? !vak.isVisible() : VensterVan(nieuw) == venster;
}

bool IsEnter(int toets) {
  return toets == Qt::Key_Return || toets == Qt::Key_Enter;
}

/// Alt and a letter belong to a button or a menu, also when that is disabled; AltGr types, and is Ctrl and
/// Alt where it is no key of its own.
bool IsMnemonic(const QKeyEvent& event) {
  return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == Qt::AltModifier &&
         TypTeken(event) != 0;
}

int VakBreedte(const QWidget& vak) {
  return vak.fontMetrics().horizontalAdvance("0000,00") + 14;
}

/// The chosen one of the options that exclude each other, and this one among them; none when none is.
QAbstractButton* Gekozene(const QRadioButton& optie) {
  if (optie.group() != nullptr) return optie.group()->checkedButton();
  for (auto* const ander : optie.parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly)) {
    if (ander->group() == nullptr && ander->isChecked()) return ander;
  }
  return nullptr;
}

QHBoxLayout* Regelindeling(QWidget* ouder) {
  auto* const indeling = new QHBoxLayout(ouder);
  indeling->setContentsMargins(0, 0, 0, 0);
  indeling->setSpacing(6);
  return indeling;
}

QLabel* Bandnaam(int band, QWidget* ouder) {
  auto* const label = new QLabel(BandNamen[static_cast<std::size_t>(band)], ouder);
  label->setAlignment(Qt::AlignHCenter | Qt::AlignBottom);
  label->setFixedWidth(VakBreedte(*label));
  return label;
}

}  // namespace

QString ObjectNaam(VeldId veld) {
  const QString naam = VanCp(veld.Naam);
  return veld.Index < 0 ? naam : naam + "_" + QString::number(veld.Index);
}

InvoerVeld::InvoerVeld(VeldId veld, const QString& naam, QWidget* ouder)
    : InvoerVeld(veld, Regel(veld), naam, ouder) {}

InvoerVeld::InvoerVeld(VeldId veld, const VeldRegel& regel, const QString& naam, QWidget* ouder)
    : QLineEdit(ouder), veld_(veld), regel_(regel) {
  setObjectName(ObjectNaam(veld));
  setAccessibleName(naam);
  if (const int meest = MaxTekens(regel_); meest > 0) setMaxLength(meest);
  if (regel_.Soort == VeldSoort::Numeriek || regel_.Aantal > 0) setAlignment(Qt::AlignRight);
  setReadOnly(regel_.AlleenLezen);
  Beschrijf();
  Kleur();
  BewaakPlakken(*this, [this](std::uint32_t bgr) { ZetKleur(bgr); });
}

void InvoerVeld::ZetKleur(std::uint32_t bgr) {
  if (bgr == kleur_) return;
  kleur_ = bgr;
  Kleur();
}

/// Only what can be typed in has the colour of a field. A value of a band without one stands under its
/// caption.
void InvoerVeld::Kleur() {
  if (veld_.Index >= 0) setAlignment(IsWaarde(*this) ? Qt::AlignHCenter : Qt::AlignRight);
  if (!IsWaarde(*this)) return ZetAchtergrond(*this, kleur_);
  QPalette palet;
  palet.setColor(QPalette::Base, palet.color(QPalette::Active, QPalette::Window));
  palet.setColor(QPalette::Text, palet.color(QPalette::Active, QPalette::WindowText));
  setPalette(palet);
}

void InvoerVeld::Beschrijf() {
  const QString wat = VanCp(RegelUitleg(regel_));
  setAccessibleDescription(toolTip().isEmpty() ? wat : toolTip() + ". " + wat);
}

/// The tool tip says what is wrong with the text.
bool InvoerVeld::event(QEvent* event) {
  if (event->type() == QEvent::ToolTipChange) Beschrijf();
  return QLineEdit::event(event);
}

void InvoerVeld::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) Kleur();
}

void InvoerVeld::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event->key())) return emit Enter();
  if (IsMnemonic(*event)) return event->ignore();
  if (event->key() == Qt::Key_Escape) {
    ZetKleur(MagToets(regel_, 27).Achtergrond);
    return emit Escape();
  }
  const char32_t teken = event->key() == Qt::Key_Backspace ? 8 : TypTeken(*event);
  if (teken != 0 && !isReadOnly()) {
    const murvane::Toets toets = MagToets(regel_, teken);
    ZetKleur(toets.Achtergrond);
    if (!toets.Toegestaan) return;
  }
  QLineEdit::keyPressEvent(event);
}

void InvoerVeld::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (!BlijftInVeld(event->reason())) selectAll();
  kiesAlles_ = event->reason() == Qt::MouseFocusReason;
  emit Gekregen();
}

void InvoerVeld::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  if (WordtVerlaten(*this, event->reason())) emit Verlaten();
}

void InvoerVeld::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  if (kiesAlles_ && !hasSelectedText()) selectAll();  // the press has dropped the selection of the entry
  kiesAlles_ = false;
}

BandRij::BandRij(std::string_view naam, int eerste, const QString& omschrijving, QWidget* ouder)
    : BandRij(naam, eerste, Regel(VeldId{naam, eerste}), omschrijving, ouder) {}

BandRij::BandRij(std::string_view naam, int eerste, const VeldRegel& regel, const QString& omschrijving,
                 QWidget* ouder)
    : QWidget(ouder) {
  auto* const indeling = Regelindeling(this);
  for (int band = 0; band < Banden; ++band) {
    const QString bandNaam = BandNamen[static_cast<std::size_t>(band)];
    auto* const vak =
        new InvoerVeld({naam, eerste + band}, regel, omschrijving + ", " + bandNaam + " Hz", this);
    vak->setFixedWidth(VakBreedte(*vak));
    vakken_[static_cast<std::size_t>(band)] = vak;
    auto* const kolom = new QVBoxLayout;
    kolom->setSpacing(2);
    QLabel* const kop = Bandnaam(band, this);
    kop->setObjectName("lblBand_" + vak->objectName());
    kop->setBuddy(vak);
    kolom->addWidget(kop);
    kolom->addWidget(vak);
    indeling->addLayout(kolom);
  }
  indeling->addStretch();
}

void Optieknop::focusInEvent(QFocusEvent* event) {
  QRadioButton::focusInEvent(event);
  const bool gewezen = event->reason() == Qt::MouseFocusReason;
  QAbstractButton* const gekozen = Gekozene(*this);
  if (!gewezen && gekozen != nullptr && gekozen != this && gekozen->isVisible())
    gekozen->setFocus(event->reason());
}

void Balkknop::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event->key())) return click();
  QToolButton::keyPressEvent(event);
}

Lijstvak::Lijstvak(const QString& objectNaam, const QString& naam, QWidget* ouder) : QListWidget(ouder) {
  setObjectName(objectNaam);
  setAccessibleName(naam);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setTextElideMode(Qt::ElideRight);
  setViewportMargins(Ringruimte, Ringruimte, Ringruimte, Ringruimte);
  connect(this, &QListWidget::currentRowChanged, this, [this](int rij) {
    if (!stil_) emit Geklikt(rij);
  });
}

void Lijstvak::ZetRijen(const QStringList& rijen) {
  const QScopedValueRollback<bool> stil(stil_, true);
  clear();
  addItems(
      rijen);  // all at once: the view is told of new rows one time only, and of their tool tips not at all
  const QSignalBlocker nietVerteld(model());
  for (int rij = 0; rij < count(); ++rij) item(rij)->setToolTip(rijen[rij]);
}

void Lijstvak::VoegRij(const QString& tekst) {
  auto* const rij = new QListWidgetItem(tekst, this);
  rij->setToolTip(tekst);  // whole, where the list is too narrow for it
}

void Lijstvak::ZetRij(int rij) {
  const QScopedValueRollback<bool> stil(stil_, true);
  setCurrentRow(rij);
  if (rij < 0) clearSelection();
}

/// In a dark theme the colour of the active list would blind: it is a thin line there, and a shade of the
/// ground.
void Lijstvak::ZetActief(bool actief) {
  QPalette palet;
  strook_ = actief && IsDonker(palet);
  if (actief && !strook_) return ZetAchtergrond(*this, ActieveKleur);
  if (strook_) {
    palet.setColor(QPalette::Base, Meng(KleurVan(ActieveKleur), palet.color(QPalette::Base), 0.15));
  } else {
    const QColor letters = palet.color(QPalette::ButtonText);
    const QColor grond = palet.color(QPalette::Button);
    palet.setColor(QPalette::Base, grond);
    palet.setColor(QPalette::Text, letters);
    palet.setColor(QPalette::Highlight, Meng(letters, grond, 0.2));  // its row is not what the buttons act on
    palet.setColor(QPalette::HighlightedText, letters);
  }
  setPalette(palet);
}

void Lijstvak::paintEvent(QPaintEvent* event) {
  constexpr int Dikte = 2;
  QListWidget::paintEvent(event);
  if (strook_) QPainter(viewport()).fillRect(0, 0, Dikte, viewport()->height(), KleurVan(ActieveKleur));
}

void Lijstvak::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;  // only a click selects
  const bool opRij = itemAt(event->position().toPoint()) != nullptr;
  if (!opRij && count() > 0) return;  // the blank space behind the rows
  {
    const QScopedValueRollback<bool> stil(stil_, true);
    QListWidget::mousePressEvent(event);
  }
  emit Geklikt(currentRow());
}

/// A row that is pressed stays selected: Ctrl would clear it, at the press or at the release.
QItemSelectionModel::SelectionFlags Lijstvak::selectionCommand(const QModelIndex& index,
                                                               const QEvent* /*event*/) const {
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void Lijstvak::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) QListWidget::mouseDoubleClickEvent(event);
}

void Lijstvak::keyPressEvent(QKeyEvent* event) {
  if (IsEnter(event->key())) return emit Toets(Qt::Key_Return);
  if (event->key() == Qt::Key_Space && ZoektNog()) return keyboardSearch(event->text());  // names have blanks
  if (event->key() == Qt::Key_Space) return emit Geklikt(currentRow());  // also the row selected already
  if (event->key() == Qt::Key_Insert || event->key() == Qt::Key_Delete) return emit Toets(event->key());
  QListWidget::keyPressEvent(event);
}

void Lijstvak::keyboardSearch(const QString& tekens) {
  gezocht_.start();
  QListWidget::keyboardSearch(tekens);
}

/// Whether a character typed now still belongs to the name that is being typed.
bool Lijstvak::ZoektNog() const {
  return gezocht_.isValid() && gezocht_.elapsed() < QApplication::keyboardInputInterval();
}

/// The toolkit makes the first row current on entry; entering a list clicks no row.
void Lijstvak::focusInEvent(QFocusEvent* event) {
  const int rij = currentRow();
  {
    const QScopedValueRollback<bool> stil(stil_, true);
    QListWidget::focusInEvent(event);
  }
  if (rij < 0) ZetRij(rij);
}

Kalender::Kalender(QWidget* ouder) : QCalendarWidget(ouder) {
  setLocale(QLocale(QLocale::Dutch, QLocale::Netherlands));
  setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  setAutoFillBackground(true);
  setContentsMargins(2, 2, 2, 2);
  for (const Qt::DayOfWeek dag : {Qt::Saturday, Qt::Sunday}) setWeekdayTextFormat(dag, {});  // red on dark
  connect(qApp, &QApplication::focusChanged, this, qOverload<>(&QWidget::update));
}

void Kalender::paintEvent(QPaintEvent* event) {
  QCalendarWidget::paintEvent(event);
  const bool heeftFocus = isAncestorOf(QApplication::focusWidget());
  QPainter schilder(this);
  schilder.setPen(QPen(palette().color(heeftFocus ? QPalette::Highlight : QPalette::PlaceholderText), 2));
  schilder.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
}

Keuzevak::Keuzevak(const QString& objectNaam, const QString& naam, QWidget* ouder) : QComboBox(ouder) {
  setObjectName(objectNaam);
  setAccessibleName(naam);
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  setMinimumContentsLength(30);
  setMaxVisibleItems(20);
  ZetAchtergrond(*this, VeldKleur);  // its box follows, also when the theme changes
  lineEdit()->setAccessibleName(naam);
  BewaakTekst(*this);
}

void Keuzevak::ZetRijen(const QStringList& rijen) {
  const QSignalBlocker stil(this);
  const QString tekst = currentText();
  clear();
  addItems(rijen);
  ZetTekst(tekst);
}

/// The arrow keys walk on from the row that the text names, not from the one chosen before.
void Keuzevak::ZetTekst(const QString& tekst) {
  {
    const QSignalBlocker stil(this);
    setCurrentIndex(findText(tekst.trimmed(), Qt::MatchExactly | Qt::MatchCaseSensitive));
  }
  setEditText(tekst);
  lineEdit()->setCursorPosition(0);
  ZetAchtergrond(*this, VeldKleur);  // what the program puts in a box is right
}

void Keuzevak::changeEvent(QEvent* event) {
  QComboBox::changeEvent(event);
  if (event->type() != QEvent::PaletteChange) return;
  const bool rood = palette().color(QPalette::Base) == KleurVan(FoutKleur);
  ZetAchtergrond(*this,
                 rood ? FoutKleur : VeldKleur);  // the colour of a selection may not show in this theme
}

void Keuzevak::wheelEvent(QWheelEvent* event) {
  event->ignore();
}

void Keuzevak::focusOutEvent(QFocusEvent* event) {
  QComboBox::focusOutEvent(event);
  if (!WordtVerlaten(*this, event->reason())) return;
  ZetAchtergrond(*this, VeldKleur);
  emit Verlaten();
}

}  // namespace murvane
