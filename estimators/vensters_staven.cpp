#include "estimators/vensters_staven.h"

#include <QPainter>
#include <algorithm>

#include "basis/getal.h"
#include "basis/vensters_hulp.h"

namespace murvane {

namespace {

constexpr std::array<const char*, Banden> BandNamen = {"63", "125", "250", "500", "1000", "2000", "4000"};
constexpr double MinstBereik = 20;  ///< dB: small values stay small bars
const char* const NogNiets = "Het voorbeeld verschijnt zodra de waarden geldig zijn.";

double Hoogste(const std::array<std::string, Banden>& waarden) {
  double uit = MinstBereik;
  for (const std::string& waarde : waarden) uit = std::max(uit, LeesGetal(waarde));
  return uit;
}

/// "63 Hz 5, 125 Hz 7 ...", as it is read aloud.
QString InWoorden(const std::array<std::string, Banden>& waarden) {
  QStringList uit;
  for (std::size_t b = 0; b < Banden; ++b)
    uit += QString(BandNamen[b]) + " Hz " + QString::fromStdString(waarden[b]);
  return uit.join(", ");
}

}  // namespace

Staven::Staven(const QString& grootheid, QWidget* ouder) : QWidget(ouder), grootheid_(grootheid) {
  setObjectName("Staven");
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  Zet(std::nullopt);
}

void Staven::Zet(const std::optional<std::array<std::string, Banden>>& waarden) {
  waarden_ = waarden;
  setAccessibleName(grootheid_ + ": " + (waarden_ ? InWoorden(*waarden_) : QString(NogNiets)));
  update();
}

QSize Staven::sizeHint() const {
  return {fontMetrics().horizontalAdvance("00000") * 9, fontMetrics().height() * 8};
}

QSize Staven::minimumSizeHint() const {
  return sizeHint();
}

void Staven::paintEvent(QPaintEvent* /*event*/) {
  QPainter schilder(this);
  schilder.setPen(palette().color(QPalette::WindowText));
  if (!waarden_) {
    schilder.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, NogNiets);
    return;
  }
  const int regel = fontMetrics().height();
  const int bodem = height() - regel - 4;
  const double schaal = (bodem - regel - 4) / Hoogste(*waarden_);
  const int kolom = width() / Banden;
  for (int b = 0; b < Banden; ++b) {
    const std::string& waarde = (*waarden_)[static_cast<std::size_t>(b)];
    const int hoogte = static_cast<int>(std::max(LeesGetal(waarde), 0.0) * schaal);
    const int links = b * kolom;
    schilder.fillRect(links + kolom / 5, bodem - hoogte, kolom - 2 * (kolom / 5), hoogte,
                      palette().color(QPalette::Highlight));
    schilder.drawText(links, bodem - hoogte - regel - 2, kolom, regel, Qt::AlignCenter,
                      QString::fromStdString(waarde));
    schilder.drawText(links, bodem + 3, kolom, regel, Qt::AlignCenter,
                      BandNamen[static_cast<std::size_t>(b)]);
  }
  schilder.drawLine(0, bodem, kolom * Banden - 1, bodem);
}

}  // namespace murvane
