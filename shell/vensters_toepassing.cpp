#include "shell/vensters_toepassing.h"

#include "editor/melding.h"

namespace murvane {

bool Toepassing::notify(QObject* ontvanger, QEvent* gebeurtenis) {
  if (dialogen_ == nullptr) return QApplication::notify(ontvanger, gebeurtenis);
  try {
    return QApplication::notify(ontvanger, gebeurtenis);
  } catch (...) {
    (void)dialogen_->Toon(OnverwachteFout("notify", "MDIMurvane", HuidigeFout()));
  }
  return false;
}

}  // namespace murvane
