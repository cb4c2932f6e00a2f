#pragma once
// The result window: the text report after a run.

#include <QWidget>

#include "reports/rapport.h"

class QTextEdit;

namespace murvane {

class frmResultaat : public QWidget {
  Q_OBJECT

 public:
  /// Shows the report as it stands now; the text stays when the report changes.
  explicit frmResultaat(const Rapport& rapport, QWidget* ouder = nullptr);

 protected:
  void resizeEvent(QResizeEvent* gebeurtenis) override;

 private:
  QTextEdit* tekst_;
};

}  // namespace murvane
