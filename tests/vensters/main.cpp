#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>

int main(int aantal, char** argumenten) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  const QApplication toepassing(aantal, argumenten);
  testing::InitGoogleTest(&aantal, argumenten);
  return RUN_ALL_TESTS();
}
