#pragma once
// A sheet of the project window. The content of every sheet has the same place: it keeps its size for reading
// and stands in the middle of a larger window.

#include <QWidget>

#include "shell/resize.h"

namespace murvane {

class Blad : public QWidget {
  Q_OBJECT

 public:
  explicit Blad(QWidget* ouder);

  /// What the sheet's controls stand in.
  [[nodiscard]] QWidget* Blok() { return blok_; }
  [[nodiscard]] QSize minimumSizeHint() const override;
  [[nodiscard]] QSize sizeHint() const override;

  static constexpr int Marge = 12;  ///< pixels around the content

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void LegVast();
  void Plaats();

  QWidget* blok_;
  QSize maat_;  ///< of the content at its design size
  Ontwerp ontwerp_;
};

}  // namespace murvane
