#include <gtest/gtest.h>

#include <QStyleFactory>

#include "shell/vensters_toepassing.h"

int main(int aantal, char** argumenten) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  const murvane::Toepassing toepassing(aantal, argumenten);
  testing::InitGoogleTest(&aantal, argumenten);
  return RUN_ALL_TESTS();
}
