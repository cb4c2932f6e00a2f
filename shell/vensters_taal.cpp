#include "shell/vensters_taal.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QStringList>
#include <QTranslator>

namespace murvane {

bool LaadVertaling(QTranslator& vertaling) {
  const QStringList mappen = {QCoreApplication::applicationDirPath() + "/translations",
                              QCoreApplication::applicationDirPath(),
                              QLibraryInfo::path(QLibraryInfo::TranslationsPath)};
  for (const QString& map : mappen) {
    for (const auto* naam : {"qt_nl", "qtbase_nl"}) {
      if (vertaling.load(naam, map) && !vertaling.isEmpty()) return true;
    }
  }
  return false;
}

}  // namespace murvane
