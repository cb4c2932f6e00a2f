#pragma once
// The toolbars of the result window and the preview, from their tables.

#include <QToolBar>
#include <functional>
#include <span>
#include <string_view>

#include "reports/preview.h"

namespace murvane {

/// Its buttons are actions named Toolbar1_ and their key; Tab reaches them.
class Werkbalk : public QToolBar {
  Q_OBJECT

 public:
  Werkbalk(std::span<const Werkknop> knoppen, QWidget* ouder);

  [[nodiscard]] QAction* Knop(std::string_view sleutel) const;

 signals:
  void ButtonClick(const QString& sleutel);

 protected:
  void changeEvent(QEvent* gebeurtenis) override;

 private:
  void ZetIconen();

  std::span<const Werkknop> knoppen_;
};

/// Gives the keys to the next or the previous control of a window inside the main window, round and round:
/// Tab does not wander off to a window behind it.
void FocusBinnen(const QWidget& venster, bool verder);

}  // namespace murvane
