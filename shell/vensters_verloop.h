#pragma once
// The gradient behind the splash and the information window.

#include <QWidget>

#include "shell/info.h"

namespace murvane {

/// A widget whose background runs from one colour at the top to another at the bottom. A label that stands on
/// it is light, whatever the theme; a box keeps the theme's colours.
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
