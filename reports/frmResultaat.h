#pragma once
// The result window: the text report after a run.

#include <QWidget>

#include "reports/rapport.h"

class QTextEdit;

namespace murvane {

class Werkbalk;
class Zoom;

class frmResultaat : public QWidget {
  Q_OBJECT

 public:
  /// Shows the report as it stands now; the text stays when the report changes.
  explicit frmResultaat(const Rapport& rapport, QWidget* ouder = nullptr);

  /// As wide as the text, and room for a scroll bar.
  [[nodiscard]] QSize sizeHint() const override;

 signals:
  /// A button of the toolbar, by its key.
  void ButtonClick(const QString& sleutel);

 protected:
  void showEvent(QShowEvent* gebeurtenis) override;
  void resizeEvent(QResizeEvent* gebeurtenis) override;
  bool focusNextPrevChild(bool verder) override;
  bool eventFilter(QObject* object, QEvent* gebeurtenis) override;

 private:
  void ZetMaat(int van, int tot, double punten);
  void ToonAntwoord();
  void PasZoomToe();
  [[nodiscard]] bool IsOpAntwoord() const;

  Werkbalk* Toolbar1;
  QTextEdit* tekst_;
  Zoom* zoom_;
  int tabellen_ = 0;       ///< where the small letters begin, in characters
  int antwoord_ = -1;      ///< where the last block begins; none without one
  int antwoordStand_ = 0;  ///< of the scroll bar, with that block in view
  bool getoond_ = false;
};

}  // namespace murvane
