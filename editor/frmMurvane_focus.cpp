// Where the keyboard is in the project window: with a field whose text is invalid, and never with a control
// that does not show or is disabled.

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>

#include "basis/vensters_hulp.h"
#include "editor/frmMurvane.h"
#include "editor/vensters_veld.h"

namespace murvane {

namespace {

constexpr int TipNaMs = 250;  ///< a menu or box that goes away takes a tip along

void ToonTip(InvoerVeld* veld) {
  const auto toon = [veld] {
    if (veld->IsOngeldig() && veld->isVisible())
      QToolTip::showText(veld->mapToGlobal(QPoint(0, veld->height())), veld->toolTip(), veld);
  };
  QTimer::singleShot(TipNaMs, veld, toon);
}

}  // namespace

/// Gives a control the focus, and brings its tab into view; one that does not show does not get it.
bool frmMurvane::GaNaar(const QString& naam) {
  auto* const doel = naam.isEmpty() ? nullptr : findChild<QWidget*>(naam);
  if (doel == nullptr) return false;
  for (int blad = 0; blad < SSTab1->count(); ++blad) {
    if (!SSTab1->widget(blad)->isAncestorOf(doel)) continue;
    if (!SSTab1->isTabEnabled(blad)) return false;  // the fan's boxes between two rooms
    SSTab1->setCurrentIndex(blad);
  }
  if (!doel->isVisibleTo(this) || !doel->isEnabled()) return false;
  doel->setFocus(Qt::OtherFocusReason);
  // Whole also where the focus only comes once a message box has gone, or was here and a menu took the
  // selection.
  if (auto* const veld = qobject_cast<InvoerVeld*>(doel)) veld->selectAll();
  return true;
}

/// The focus can only be given back once the control that is getting it has it. Until then other fields are
/// not checked: two invalid ones would pass it to each other for ever.
void frmMurvane::GaTerug(InvoerVeld* veld) {
  if (terugNaar_ != nullptr) return;
  terugNaar_ = veld;
  const auto terug = [this] {
    if (terugNaar_ == nullptr) return;  // its project was left meanwhile
    if (!GaNaar(terugNaar_->objectName())) LaatLos(*terugNaar_);
    terugNaar_ = nullptr;
  };
  QMetaObject::invokeMethod(this, terug, Qt::QueuedConnection);
}

/// A field does not wait for its text to be mended any more: it shows what is stored, as Escape has it.
void frmMurvane::LaatLos(const InvoerVeld& veld) {
  const QScopedValueRollback<bool> vult(vult_, true);
  ZetTekst({veld.Veld(), HerstelTekst(project_, lijst_.HuidigElement, veld.Veld(), decimaal_)});
}

/// The project, the calculation type or the source of the fan became another one: no field waits, none is
/// red.
void frmMurvane::LaatLos() {
  terugNaar_ = nullptr;
  for (const auto& [sleutel, vak] : velden_) {
    if (vak->IsRood() || !vak->toolTip().isEmpty()) LaatLos(*vak);
  }
}

/// To a field that was refused, with what is wrong with it in view. False when there is none.
bool frmMurvane::NaarOngeldig() {
  for (const auto& [sleutel, vak] : velden_) {
    if (!vak->IsOngeldig() || !GaNaar(vak->objectName())) continue;
    ToonTip(vak);
    return true;
  }
  return false;
}

/// A control that was hidden or disabled has the keyboard neither now nor later. The toolkit gives it back to
/// the control of a tab or a window that had it last, whatever became of that one meanwhile, and what is
/// typed then changes a field that nobody sees. The tabs take turns in view; each keeps its own.
void frmMurvane::VergeetFocus(QWidget& vak) {
  const bool isVerborgen = vak.isHidden() && SSTab1->indexOf(&vak) < 0;
  if (!isVerborgen && vak.isEnabledTo(this)) return;
  const QWidget* const nu = QApplication::focusWidget();
  const bool hadHetNu = nu == &vak || vak.isAncestorOf(nu);
  for (QWidget* om = vak.parentWidget(); om != nullptr; om = om->parentWidget()) {
    QWidget* const had = om->focusWidget();
    if (had == &vak || vak.isAncestorOf(had)) had->clearFocus();
  }
  if (hadHetNu && !focusNextPrevChild(true)) setFocus();
}

/// To the next tab that is enabled, round and round. The field in hand is left first.
void frmMurvane::WandelTab(int richting) {
  if (!SSTab1->isVisible()) return;
  SSTab1->tabBar()->setFocus(Qt::TabFocusReason);
  int blad = SSTab1->currentIndex();
  do {
    blad = (blad + richting + SSTab1->count()) % SSTab1->count();
  } while (!SSTab1->isTabEnabled(blad));
  SSTab1->setCurrentIndex(blad);
}

/// Nothing that went keeps the keyboard; the wheel changes no tab; Escape closes the calendar.
bool frmMurvane::eventFilter(QObject* object, QEvent* event) {
  if (event->type() == QEvent::HideToParent || event->type() == QEvent::EnabledChange)
    VergeetFocus(*qobject_cast<QWidget*>(object));
  if (object == SSTab1->tabBar()) return event->type() == QEvent::Wheel;
  const bool escape =
      event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
  if (object != MonthView || !escape) return QWidget::eventFilter(object, event);
  GaNaar("txtMyDate");
  MonthView->hide();
  return true;
}

}  // namespace murvane
