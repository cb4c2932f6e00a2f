#include <gtest/gtest.h>

#include <QStyleFactory>
#include <iostream>

#include "basis/vensters_stijl.h"
#include "shell/vensters_toepassing.h"

namespace {

/// The off-screen platform tells at every pop-up what it cannot do.
void MeldBericht(QtMsgType, const QMessageLogContext&, const QString& bericht) {
  if (!bericht.startsWith("This plugin does not support")) std::cerr << bericht.toStdString() << '\n';
}

}  // namespace

int main(int aantal, char** argumenten) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(MeldBericht);
  murvane::Toepassing toepassing(aantal, argumenten);
  murvane::ZetStijl(toepassing, QStyleFactory::create("Fusion"));
  testing::InitGoogleTest(&aantal, argumenten);
  return RUN_ALL_TESTS();
}
