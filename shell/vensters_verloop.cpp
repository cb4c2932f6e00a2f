#include "shell/vensters_verloop.h"

#include <QPainter>
#include <algorithm>

namespace murvane {

VerloopVlak::VerloopVlak(Verloopkleur van, Verloopkleur naar, QWidget* ouder)
    : QWidget(ouder), van_(van), naar_(naar) {
  QPalette palet = palette();
  for (const auto rol : {QPalette::WindowText, QPalette::Link, QPalette::LinkVisited})
    palet.setColor(rol, Qt::white);
  setPalette(palet);
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
