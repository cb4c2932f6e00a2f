#pragma once
// The gradient behind the splash and the information window.

#include <QWidget>

#include "shell/info.h"

namespace murvane {

/// A widget whose background runs from one colour at the top to another at the bottom. What stands on it is
/// light, whatever the theme.
class VerloopVlak : public QWidget {
  Q_OBJECT

 public:
  VerloopVlak(Verloopkleur van, Verloopkleur naar, QWidget* ouder);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Verloopkleur van_, naar_;
};

}  // namespace murvane
