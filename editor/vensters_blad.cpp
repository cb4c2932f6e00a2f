#include "editor/vensters_blad.h"

#include <QEvent>
#include <algorithm>

#include "shell/hoofdvenster.h"

namespace murvane {

namespace {

constexpr int MeestePixels = 2000;  // in twips it stays within 16 bits

constexpr QSize Randen{2 * Blad::Marge, 2 * Blad::Marge};

double Twips(int pixels) {
  return static_cast<double>(pixels) * TwipsPerPixel;
}

/// Pixels of a place in twips; never off the sheet's margin.
int Pixels(double twips) {
  return std::max(static_cast<int>(twips) / TwipsPerPixel, Blad::Marge);
}

Stuurvlak VlakVan(const QSize& maat) {
  Stuurvlak vlak;
  vlak.Naam = "Blok";
  vlak.Left = vlak.Top = Twips(Blad::Marge);
  vlak.Width = Twips(maat.width());
  vlak.Height = Twips(maat.height());
  return vlak;
}

}  // namespace

Blad::Blad(QWidget* ouder) : QWidget(ouder), blok_(new QWidget(this)) {
  blok_->installEventFilter(this);
  LegVast();
}

/// The design: as wide and high as the letters make it pleasant to read, two lists beside each other
/// included.
void Blad::LegVast() {
  maat_ = QSize(190 * fontMetrics().averageCharWidth(), 60 * fontMetrics().lineSpacing())
              .boundedTo({MeestePixels, MeestePixels});
  ResizeVenster venster;
  venster.BinnenBreedte = Twips(maat_.width() + Randen.width());
  venster.BinnenHoogte = Twips(maat_.height() + Randen.height());
  venster.Vlakken = {VlakVan(maat_)};
  ontwerp_ = ResizeInit(venster);
}

/// A sheet that is larger than the design has the content in its middle; a smaller one is filled by it. What
/// happened to its size while the window was minimised is made good when the window is restored, of which
/// only the window is told.
void Blad::Plaats() {
  ResizeVenster venster;
  venster.BinnenBreedte = Twips(width());
  venster.BinnenHoogte = Twips(height());
  venster.Geminimaliseerd = window()->isMinimized();
  venster.Vlakken = {VlakVan(maat_)};
  ResizeForm(ontwerp_, venster, -1);
  if (venster.Geminimaliseerd) return window()->installEventFilter(this);
  const Stuurvlak& vlak = venster.Vlakken.front();
  const QSize maat = (size() - Randen).boundedTo(maat_).expandedTo(blok_->minimumSizeHint());
  blok_->setGeometry(QRect(QPoint(Pixels(*vlak.Left), Pixels(*vlak.Top)), maat));
}

QSize Blad::minimumSizeHint() const {
  return blok_->minimumSizeHint() + Randen;
}

QSize Blad::sizeHint() const {
  return blok_->sizeHint() + Randen;
}

void Blad::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Plaats();
}

void Blad::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  LegVast();
  Plaats();
}

bool Blad::eventFilter(QObject* object, QEvent* event) {
  if (object == blok_ && event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    Plaats();
  }
  if (object == window() && event->type() == QEvent::WindowStateChange && !window()->isMinimized()) {
    window()->removeEventFilter(this);
    Plaats();
  }
  return QWidget::eventFilter(object, event);
}

}  // namespace murvane
