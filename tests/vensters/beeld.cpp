#include "tests/vensters/beeld.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QPixmap>

namespace murvane::proef {

Thema::Thema(const QPalette& palet) : was_(QApplication::palette()) {
  QApplication::setPalette(palet);
  QCoreApplication::processEvents();
}

Thema::~Thema() {
  QApplication::setPalette(was_);
}

QPalette Donker() {
  QPalette palet(QColor(45, 45, 48));
  palet.setColor(QPalette::Base, QColor(30, 30, 30));
  palet.setColor(QPalette::Highlight, QColor(70, 130, 200));
  return palet;
}

QPalette HoogContrast() {
  QPalette palet(Qt::white, Qt::black, Qt::white, Qt::darkGray, Qt::gray, Qt::white, Qt::white, Qt::black,
                 Qt::black);
  palet.setColor(QPalette::Highlight, Qt::yellow);
  palet.setColor(QPalette::HighlightedText, Qt::black);
  return palet;
}

void Fotografeer(QWidget& venster, const QString& naam) {
  const QPixmap beeld = venster.grab();
  EXPECT_FALSE(beeld.isNull());
  for (const QWidget* const vak : venster.findChildren<QWidget*>()) {
    const bool tekst =
        qobject_cast<const QLabel*>(vak) != nullptr || qobject_cast<const QAbstractButton*>(vak) != nullptr;
    if (!tekst || !vak->isVisible() || vak->window() != venster.window()) continue;
    EXPECT_GE(vak->width(), vak->sizeHint().width()) << vak->objectName().toStdString();
    EXPECT_GE(vak->height(), vak->sizeHint().height()) << vak->objectName().toStdString();
  }
  const QString map = qEnvironmentVariable("MURVANE_BEELDEN");
  if (map.isEmpty()) return;
  EXPECT_TRUE(beeld.save(map + "/" + naam + ".png"));
}

}  // namespace murvane::proef
