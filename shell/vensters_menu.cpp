#include "shell/vensters_menu.h"

#include <QApplication>
#include <QCursor>
#include <QPainter>

#include "basis/vensters_hulp.h"
#include "editor/melding.h"
#include "editor/vensters_tekening.h"
#include "shell/hoofdvenster.h"
#include "shell/info.h"

namespace murvane {

ZijbalkMenu::ZijbalkMenu(const QString& opschrift, QWidget* ouder) : QMenu(opschrift, ouder) {}

int ZijbalkMenu::BalkBreedte() const {
  return kop_.isEmpty() ? 0 : fontMetrics().height() + 10;
}

void ZijbalkMenu::ZetKop(QAction* kop) {
  kop_ = kop->text();
  kop->setVisible(false);
  setContentsMargins(BalkBreedte(), 0, 0, 0);
}

void ZijbalkMenu::paintEvent(QPaintEvent* event) {
  QMenu::paintEvent(event);
  if (kop_.isEmpty()) return;
  QPainter schilder(this);
  const QRect balk(1, 1, BalkBreedte() - 2, height() - 2);
  QLinearGradient verloop(balk.topLeft(), balk.bottomLeft());
  verloop.setColorAt(0, QColor(SplashBegin.Rood, SplashBegin.Groen, SplashBegin.Blauw));
  verloop.setColorAt(1, QColor(VerloopEinde.Rood, VerloopEinde.Groen, VerloopEinde.Blauw));
  schilder.fillRect(balk, verloop);
  QFont letter = font();
  letter.setBold(true);
  const int ruimte = balk.height() - 8;  // a short menu gets a smaller caption
  const int lengte = QFontMetrics(letter).horizontalAdvance(kop_);
  if (lengte > ruimte) letter.setPointSizeF(letter.pointSizeF() * ruimte / lengte);
  schilder.setFont(letter);
  schilder.setPen(Qt::white);
  schilder.translate(balk.left(), balk.bottom());
  schilder.rotate(-90);
  schilder.drawText(QRect(4, 0, ruimte, balk.width()), Qt::AlignLeft | Qt::AlignVCenter, kop_);
}

void ZijbalkMenu::changeEvent(QEvent* event) {
  QMenu::changeEvent(event);
  if (event->type() == QEvent::FontChange) setContentsMargins(BalkBreedte(), 0, 0, 0);
}

Taakbalk::Taakbalk(QWidget* venster)
    : QObject(venster), menu_(new QMenu("TaakBar", venster)), icoon_(new QSystemTrayIcon(this)) {
  menu_->setObjectName("mnuTaakBar");
  for (const MenuItem& item : TaakBalk)
    menu_->addAction(VanCp(item.Opschrift))->setObjectName(VanCp(item.Naam));
  info_ = menu_->actions().at(0);
  exit_ = menu_->actions().at(1);
  menu_->setDefaultAction(exit_);
  icoon_->setObjectName("Picture1");
  icoon_->setIcon(Icoon("murvane"));
  icoon_->setToolTip(VanCp(TrayTip().c_str()));  // up to its NUL
  connect(icoon_, &QSystemTrayIcon::activated, this, &Taakbalk::Geactiveerd);
  icoon_->show();  // where there is no place for it yet, it comes when there is
}

Taakbalk::~Taakbalk() {
  icoon_->hide();
}

/// Some desktops tell of single clicks only: two within the time of a double click are one. A window that
/// waits for an answer is not passed by.
void Taakbalk::Geactiveerd(QSystemTrayIcon::ActivationReason reden) {
  bool dubbel = reden == QSystemTrayIcon::DoubleClick;
  if (reden == QSystemTrayIcon::Trigger) {
    dubbel = sindsKlik_.isValid() && sindsKlik_.elapsed() <= QApplication::doubleClickInterval();
    if (dubbel) {
      sindsKlik_.invalidate();
    } else {
      sindsKlik_.start();
    }
  }
  if (dubbel && QApplication::activeModalWidget() == nullptr) menu_->popup(QCursor::pos());
}

}  // namespace murvane
