#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>

#include "basis/vensters_stijl.h"

int main(int aantal, char** argumenten) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication toepassing(aantal, argumenten);
  murvane::ZetStijl(toepassing, QStyleFactory::create("Fusion"));
  testing::InitGoogleTest(&aantal, argumenten);
  return RUN_ALL_TESTS();
}
