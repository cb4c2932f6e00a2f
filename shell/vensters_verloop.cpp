#include "shell/vensters_verloop.h"

#include <QLabel>
#include <QPainter>
#include <algorithm>

#include "basis/vensters_hulp.h"

namespace murvane {

VerloopVlak::VerloopVlak(Verloopkleur van, Verloopkleur naar, QWidget* ouder)
    : QWidget(ouder), van_(van), naar_(naar) {}

QLabel* VerloopVlak::MaakLabel(const char* naam, const std::string& tekst) {
  auto* const label = new QLabel(VanCp(tekst).remove('\r'), this);
  label->setObjectName(naam);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  QPalette palet = label->palette();
  palet.setColor(QPalette::WindowText, Qt::white);
  label->setPalette(palet);
  return label;
}

void VerloopVlak::paintEvent(QPaintEvent* /*event*/) {
  QPainter schilder(this);
  const std::vector<Verloopkleur> lijnen = Verloop(van_, naar_, std::max(height(), 1));
  for (int y = 0; y < static_cast<int>(lijnen.size()); ++y) {
    const Verloopkleur& kleur = lijnen[static_cast<std::size_t>(y)];
    schilder.fillRect(0, y, width(), 1, QColor(kleur.Rood, kleur.Groen, kleur.Blauw));
  }
}

}  // namespace murvane
