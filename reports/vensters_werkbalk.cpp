#include "reports/vensters_werkbalk.h"

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

#include "basis/vensters_hulp.h"
#include "editor/vensters_tekening.h"

namespace murvane {

namespace {

QString KnopNaam(std::string_view sleutel) {
  return "Toolbar1_" + VanCp(sleutel);
}

}  // namespace

Werkbalk::Werkbalk(std::span<const Werkknop> knoppen, QWidget* ouder)
    : QWidget(ouder), knoppen_(knoppen), rij_(new QHBoxLayout(this)) {
  setObjectName("Toolbar1");
  setAccessibleName("Werkbalk");
  rij_->setContentsMargins(4, 0, 4, 0);  // the strip above the report is no higher than a button
  rij_->setSpacing(2);
  int plaats = 1;
  for (const Werkknop& knop : knoppen_) {
    if (knop.Positie > plaats && plaats > 1) VoegStreepToe();
    plaats = knop.Positie + 1;
    VoegToe(knop);
  }
  rij_->addStretch();
  ZetIconen();
}

void Werkbalk::VoegStreepToe() {
  auto* streep = new QFrame(this);
  streep->setFrameStyle(QFrame::VLine | QFrame::Sunken);
  rij_->addWidget(streep);
}

void Werkbalk::VoegToe(const Werkknop& knop) {
  auto* vak = new QToolButton(this);
  vak->setObjectName(KnopNaam(knop.Sleutel));
  vak->setToolTip(VanCp(knop.Tip));
  vak->setAccessibleName(VanCp(knop.Naam));
  vak->setAccessibleDescription(VanCp(knop.Tip));
  vak->setIconSize(QSize(20, 20));
  vak->setAutoRaise(true);
  vak->setFocusPolicy(Qt::TabFocus);
  vak->installEventFilter(this);
  connect(vak, &QToolButton::clicked, this, [this, knop] { emit ButtonClick(VanCp(knop.Sleutel)); });
  rij_->addWidget(vak);
}

QToolButton* Werkbalk::Knop(std::string_view sleutel) const {
  return findChild<QToolButton*>(KnopNaam(sleutel));
}

bool Werkbalk::eventFilter(QObject* knop, QEvent* gebeurtenis) {
  if (gebeurtenis->type() != QEvent::KeyPress) return QWidget::eventFilter(knop, gebeurtenis);
  const int toets = static_cast<QKeyEvent*>(gebeurtenis)->key();
  if (toets != Qt::Key_Return && toets != Qt::Key_Enter) return false;
  static_cast<QToolButton*>(knop)->click();
  return true;
}

void Werkbalk::ZetIconen() {
  for (const Werkknop& knop : knoppen_) Knop(knop.Sleutel)->setIcon(Icoon(VanCp(knop.Beeld), palette()));
}

void Werkbalk::changeEvent(QEvent* gebeurtenis) {
  QWidget::changeEvent(gebeurtenis);
  if (gebeurtenis->type() == QEvent::PaletteChange) ZetIconen();
}

void FocusBinnen(const QWidget& venster, bool verder) {
  QWidget* const nu = QApplication::focusWidget();
  if (nu == nullptr || !venster.isAncestorOf(nu)) return;
  const auto volgende = [verder](QWidget* w) {
    return verder ? w->nextInFocusChain() : w->previousInFocusChain();
  };
  for (QWidget* w = volgende(nu); w != nu; w = volgende(w)) {
    const bool bereikbaar = (w->focusPolicy() & Qt::TabFocus) != 0 && w->isEnabled() && w->isVisible();
    if (!bereikbaar || !venster.isAncestorOf(w)) continue;
    w->setFocus(verder ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return;
  }
}

}  // namespace murvane
