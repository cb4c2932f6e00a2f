#pragma once
// The toolbars of the result window and the preview, from their tables.

#include <QWidget>
#include <functional>
#include <span>
#include <string_view>

#include "reports/preview.h"

class QHBoxLayout;
class QToolButton;

namespace murvane {

/// Its buttons are named Toolbar1_ and their key; Tab reaches them, Enter presses them.
class Werkbalk : public QWidget {
  Q_OBJECT

 public:
  Werkbalk(std::span<const Werkknop> knoppen, QWidget* ouder);

  [[nodiscard]] QToolButton* Knop(std::string_view sleutel) const;

 signals:
  void ButtonClick(const QString& sleutel);

 protected:
  void changeEvent(QEvent* gebeurtenis) override;
  bool eventFilter(QObject* knop, QEvent* gebeurtenis) override;

 private:
  void VoegStreepToe();
  void VoegToe(const Werkknop& knop);
  void ZetIconen();

  std::span<const Werkknop> knoppen_;
  QHBoxLayout* rij_;
};

/// Gives the keys to the next or the previous control of a window inside the main window, round and round:
/// Tab does not wander off to a window behind it.
void FocusBinnen(const QWidget& venster, bool verder);

}  // namespace murvane
