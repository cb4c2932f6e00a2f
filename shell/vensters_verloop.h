#pragma once
// The gradient behind the splash and the information window.

#include <QWidget>
#include <string>

#include "shell/info.h"

class QLabel;

namespace murvane {

/// A widget whose background runs from one colour at the top to another at the bottom.
class VerloopVlak : public QWidget {
  Q_OBJECT

 public:
  VerloopVlak(Verloopkleur van, Verloopkleur naar, QWidget* ouder);

  /// A label on it, with text in Windows-1252: light, whatever the theme. All else keeps the theme's colours.
  QLabel* MaakLabel(const char* naam, const std::string& tekst);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Verloopkleur van_, naar_;
};

}  // namespace murvane
