#include <gtest/gtest.h>

#include <QStyleFactory>
#include <iostream>

#include "basis/vensters_stijl.h"
#include "shell/vensters_toepassing.h"

namespace {

/// The off-screen platform tells at every pop-up and tray icon what it cannot do.
void MeldBericht(QtMsgType, const QMessageLogContext&, const QString& bericht) {
  const bool bekend =
      bericht.startsWith("This plugin does not support") || bericht.contains("systemTrayWindowChanged");
  if (!bekend) std::cerr << bericht.toStdString() << '\n';
}

}  // namespace

/// What the toolkit's libraries keep until the process ends, and the C library of the path in LOCPATH when
/// the print system asks for the locale. Own code has no such exception.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:libfontconfig\nleak:libQt6Gui\nleak:libQt6XcbQpa\nleak:libglib\nleak:argz_add_sep\n";
}
extern "C" const char* __lsan_default_options();
extern "C" const char* __lsan_default_options() {
  return "print_suppressions=0";
}

int main(int aantal, char** argumenten) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(MeldBericht);
  murvane::Toepassing toepassing(aantal, argumenten);
  murvane::ZetStijl(toepassing, QStyleFactory::create("Fusion"));
  testing::InitGoogleTest(&aantal, argumenten);
  return RUN_ALL_TESTS();
}
