#pragma once
// The result window: the text report after a run.

#include <QWidget>

#include "reports/rapport.h"

class QTextEdit;

namespace murvane {

class Werkbalk;

class frmResultaat : public QWidget {
  Q_OBJECT

 public:
  /// Shows the report as it stands now; the text stays when the report changes.
  explicit frmResultaat(const Rapport& rapport, QWidget* ouder = nullptr);

 signals:
  /// A button of the toolbar, by its key.
  void ButtonClick(const QString& sleutel);

 protected:
  void showEvent(QShowEvent* gebeurtenis) override;
  void resizeEvent(QResizeEvent* gebeurtenis) override;
  bool focusNextPrevChild(bool verder) override;

 private:
  Werkbalk* Toolbar1;
  QTextEdit* tekst_;
  bool getoond_ = false;
};

}  // namespace murvane
