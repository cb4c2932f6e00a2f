#include "reports/frmGrafiek.h"

#include <QGraphicsScene>
#include <QGraphicsView>
#include <QKeyEvent>
#include <algorithm>
#include <utility>

#include "basis/vensters_hulp.h"
#include "reports/vensters_grafiek.h"

namespace murvane {

namespace {

constexpr double TwipsPerPixel = 15;
constexpr double Kant = 432;  // twips that stay free beside the picture on a page

/// The chart in words, for who cannot see it: the values of its first series.
QString Beschrijving(const Grafiek& grafiek) {
  QString uit = grafiek.Titel.empty() ? QString() : VanCp(grafiek.Titel.front());
  for (std::size_t r = 0; r < grafiek.Rijen; ++r)
    uit += ", " + VanCp(Grafiek::RijLabels[r]) + ": " + QString::number(grafiek.Waarden[0][r]);
  return uit;
}

}  // namespace

frmGrafiek::frmGrafiek(const Grafiek& grafiek, Afdrukken afdrukken, QWidget* ouder)
    : QDialog(ouder), grafiek_(grafiek), afdrukken_(std::move(afdrukken)), MSChart1(new QGraphicsView(this)) {
  setObjectName("frmGrafiek");
  setWindowTitle(" Grafische weergave berekeningsresultaten");
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  MSChart1->setObjectName("MSChart1");
  MSChart1->setAccessibleName("Grafiek; F8 drukt hem af");
  MSChart1->setAccessibleDescription(Beschrijving(grafiek_));
  MSChart1->setFrameStyle(QFrame::NoFrame);
  MSChart1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  MSChart1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  MSChart1->setRenderHint(QPainter::Antialiasing);
  MSChart1->installEventFilter(this);
  resize(static_cast<int>(GrafiekBreedte / TwipsPerPixel), static_cast<int>(GrafiekHoogte / TwipsPerPixel));
  Teken();
}

frmGrafiek::~frmGrafiek() {
  MSChart1->setScene(nullptr);  // the scene goes before the view
}

void frmGrafiek::resizeEvent(QResizeEvent* gebeurtenis) {
  QDialog::resizeEvent(gebeurtenis);
  if (tafereel_ == nullptr || tafereel_->sceneRect().size() != size()) Teken();
}

void frmGrafiek::Teken() {
  MSChart1->setGeometry(rect());
  auto nieuw = MaakTafereel(grafiek_, size());
  MSChart1->setScene(nieuw.get());
  tafereel_ = std::move(nieuw);
}

/// The window sees the key before its parts do.
bool frmGrafiek::eventFilter(QObject* wie, QEvent* gebeurtenis) {
  if (gebeurtenis->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(gebeurtenis)->key() == Qt::Key_F8) {
    afdrukken_([this](Vlak& blad) { Druk(blad); });
    return true;
  }
  return QDialog::eventFilter(wie, gebeurtenis);
}

void frmGrafiek::Druk(Vlak& blad) const {
  const double breedte = width() * TwipsPerPixel;
  const double hoogte = height() * TwipsPerPixel;
  const double past =
      std::min({1.0, (blad.ScaleWidth() - 2 * Kant) / breedte, (blad.ScaleHeight() - 2 * Kant) / hoogte});
  blad.PaintPicture(grafiek_, Kant, Kant, breedte * past, hoogte * past);
}

}  // namespace murvane
