#include "shell/vensters_taal.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QStringList>
#include <array>
#include <string_view>
#include <utility>

namespace murvane {

namespace {

/// The kinds of the rows in a file dialog.
constexpr auto Bestandssoorten = std::to_array<std::pair<std::string_view, const char*>>({
    {"Drive", "Station"},
    {"Folder", "Map"},
    {"File Folder", "Map"},
    {"Alias", "Snelkoppeling"},
    {"Shortcut", "Snelkoppeling"},
    {"Unknown", "Onbekend"},
});

}  // namespace

QString Vertaling::translate(const char* context, const char* bron, const char* uitleg, int aantal) const {
  QString tekst = QTranslator::translate(context, bron, uitleg, aantal);
  if (!tekst.isEmpty() || std::string_view(context) != "QAbstractFileIconProvider") return tekst;
  for (const auto& [engels, nederlands] : Bestandssoorten)
    if (engels == bron) return nederlands;
  return tekst;
}

bool LaadVertaling(QTranslator& vertaling) {
  const QStringList mappen = {QCoreApplication::applicationDirPath() + "/translations",
                              QCoreApplication::applicationDirPath(),
                              QLibraryInfo::path(QLibraryInfo::TranslationsPath)};
  for (const QString& map : mappen) {
    // What the toolkit's own packages call qt_nl only leads to this and to texts of parts that the program
    // does not use.
    for (const auto* naam : {"qtbase_nl", "qt_nl"}) {
      if (vertaling.load(naam, map) && !vertaling.isEmpty()) return true;
    }
  }
  return false;
}

}  // namespace murvane
