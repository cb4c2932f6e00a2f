#pragma once
// The application around the windows: what an event raises and no handler told is told here, and the program
// runs on with the project open.

#include <QApplication>

#include "editor/dialogen.h"

namespace murvane {

class Toepassing : public QApplication {
 public:
  using QApplication::QApplication;

  /// Where a failure is shown from now on; it outlives the last event. Without one a failure travels on.
  void ZetDialogen(Dialogen* dialogen) { dialogen_ = dialogen; }

  bool notify(QObject* ontvanger, QEvent* gebeurtenis) override;

 private:
  Dialogen* dialogen_ = nullptr;
};

}  // namespace murvane
