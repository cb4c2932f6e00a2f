#pragma once
// The window that shows the chart; F8 prints it.

#include <QDialog>
#include <functional>
#include <memory>

#include "reports/grafiek.h"

class QGraphicsScene;
class QGraphicsView;

namespace murvane {

class Vlak;

class frmGrafiek : public QDialog {
  Q_OBJECT

 public:
  /// Shows the chart as it stands now. `afdrukken` is what F8 does: it is handed the drawing of one copy.
  using Afdrukken = std::function<void(const std::function<void(Vlak& blad)>& druk)>;
  frmGrafiek(const Grafiek& grafiek, Afdrukken afdrukken, QWidget* ouder = nullptr);
  ~frmGrafiek() override;

  /// Draws the window on a page, as large as it is on screen or as the page allows.
  void Druk(Vlak& blad) const;

 protected:
  void resizeEvent(QResizeEvent* gebeurtenis) override;
  bool eventFilter(QObject* wie, QEvent* gebeurtenis) override;

 private:
  void Teken();

  Grafiek grafiek_;
  Afdrukken afdrukken_;
  std::unique_ptr<QGraphicsScene> tafereel_;
  QGraphicsView* MSChart1;
};

}  // namespace murvane
