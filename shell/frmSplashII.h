#pragma once
// The window that shows while the program starts.

#include <QTimer>
#include <functional>

#include "shell/vensters_verloop.h"

namespace murvane {

class frmSplashII : public VerloopVlak {
  Q_OBJECT

 public:
  frmSplashII();

  /// Shows the window, draws it, and starts its two seconds.
  void Toon();
  /// Carries out a step for `ontvanger` once its time is over, or at once when it is over already.
  void Daarna(QObject& ontvanger, const std::function<void()>& stap);

 signals:
  /// The time is over, or the user clicked or pressed a key; the window closes behind it.
  void Voorbij();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Beeindig();

  QTimer Timer1;
  bool voorbij_ = false;
};

}  // namespace murvane
