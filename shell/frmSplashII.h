#pragma once
// The window that shows while the program starts.

#include <QTimer>

#include "shell/vensters_verloop.h"

namespace murvane {

class frmSplashII : public VerloopVlak {
  Q_OBJECT

 public:
  frmSplashII();

  /// Shows the window, draws it, and starts its two seconds.
  void Toon();
  [[nodiscard]] bool IsVoorbij() const { return voorbij_; }

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
