#include "reports/vensters_zoom.h"

#include <QKeySequence>
#include <QShortcut>
#include <QWheelEvent>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace murvane {

namespace {

constexpr double Stap = 1.1;
constexpr int Kerf = 120;  ///< of the wheel

}  // namespace

Zoom::Zoom(QWidget* venster, QWidget* vlak, int minst, int meest)
    : QObject(venster), minst_(minst), meest_(meest) {
  VoegToets("Ctrl++", 1);
  VoegToets("Ctrl+=", 1);  // the same key without Shift
  VoegToets("Ctrl+-", -1);
  VoegToets("Ctrl+0", 0);
  vlak->installEventFilter(this);
}

double Zoom::Maal() const {
  return std::pow(Stap, stap_);
}

void Zoom::VoegToets(const char* toets, int richting) {
  auto* const sneltoets = new QShortcut(QKeySequence(toets), qobject_cast<QWidget*>(parent()));
  sneltoets->setContext(Qt::WidgetWithChildrenShortcut);
  connect(sneltoets, &QShortcut::activated, this,
          [this, richting] { Zet(richting == 0 ? 0 : stap_ + richting); });
}

void Zoom::Zet(int stap) {
  stap = std::clamp(stap, minst_, meest_);
  if (stap == stap_) return;
  stap_ = stap;
  emit Gewijzigd();
}

bool Zoom::eventFilter(QObject* object, QEvent* gebeurtenis) {
  if (gebeurtenis->type() != QEvent::Wheel) return QObject::eventFilter(object, gebeurtenis);
  const auto& wiel = *static_cast<QWheelEvent*>(gebeurtenis);
  if (!(wiel.modifiers() & Qt::ControlModifier)) return false;
  rest_ += wiel.angleDelta().y();
  const int kerven = rest_ / Kerf;
  rest_ -= kerven * Kerf;
  Zet(stap_ + kerven);
  gebeurtenis->accept();
  return true;
}

}  // namespace murvane
