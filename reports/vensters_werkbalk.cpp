#include "reports/vensters_werkbalk.h"

#include <QAction>
#include <QApplication>
#include <QEvent>

#include "basis/vensters_hulp.h"
#include "editor/vensters_tekening.h"

namespace murvane {

namespace {

QString ActieNaam(std::string_view sleutel) {
  return "Toolbar1_" + VanCp(sleutel);
}

}  // namespace

Werkbalk::Werkbalk(std::span<const Werkknop> knoppen, QWidget* ouder) : QToolBar(ouder), knoppen_(knoppen) {
  setObjectName("Toolbar1");
  setAccessibleName("Werkbalk");
  setIconSize(QSize(20, 20));
  int plaats = 1;
  for (const Werkknop& knop : knoppen_) {
    if (knop.Positie > plaats && plaats > 1) addSeparator();
    plaats = knop.Positie + 1;
    QAction* actie = addAction(VanCp(knop.Tip));
    actie->setObjectName(ActieNaam(knop.Sleutel));
    widgetForAction(actie)->setFocusPolicy(Qt::TabFocus);
    connect(actie, &QAction::triggered, this, [this, knop] { emit ButtonClick(VanCp(knop.Sleutel)); });
  }
  ZetIconen();
}

QAction* Werkbalk::Knop(std::string_view sleutel) const {
  return findChild<QAction*>(ActieNaam(sleutel));
}

void Werkbalk::ZetIconen() {
  for (const Werkknop& knop : knoppen_) Knop(knop.Sleutel)->setIcon(Icoon(VanCp(knop.Beeld), palette()));
}

void Werkbalk::changeEvent(QEvent* gebeurtenis) {
  QToolBar::changeEvent(gebeurtenis);
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
