// The program murvane.

#include <QDate>
#include <QLocale>
#include <QTranslator>
#include <chrono>
#include <filesystem>
#include <system_error>

#include "editor/vensters_dialogen.h"
#include "shell/MDIMurvane.h"
#include "shell/opstart.h"
#include "shell/startup.h"
#include "shell/vensters_taal.h"
#include "shell/vensters_toepassing.h"

namespace {

std::chrono::year_month_day Vandaag() {
  const QDate datum = QDate::currentDate();
  return {std::chrono::year(datum.year()), std::chrono::month(static_cast<unsigned>(datum.month())),
          std::chrono::day(static_cast<unsigned>(datum.day()))};
}

}  // namespace

int main(int argc, char** argv) {
  const char decimaal = murvane::RegionaalDecimaalteken();
  murvane::Toepassing toepassing(argc, argv);
  QApplication::setApplicationName("MurVane");
  QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
  QTranslator vertaling;
  if (murvane::LaadVertaling(vertaling)) QCoreApplication::installTranslator(&vertaling);

  murvane::Programma programma;
  murvane::SchermDialogen dialogen;
  toepassing.ZetDialogen(&dialogen);
  const std::string opdrachtregel = QApplication::arguments().mid(1).join(' ').toStdString();
  std::error_code geen;
  const murvane::StartGegevens start{std::filesystem::current_path(geen), murvane::DatumTekst(Vandaag()),
                                     opdrachtregel, decimaal};
  if (murvane::MDIForm_Load(programma, dialogen, start) == murvane::Vervolg::Einde) return 0;
  murvane::MDIMurvane hoofdvenster(programma, dialogen);
  hoofdvenster.resize(1024, 740);
  hoofdvenster.show();
  hoofdvenster.OpenVanOpdrachtregel();
  return QApplication::exec();
}
