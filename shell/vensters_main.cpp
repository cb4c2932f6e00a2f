// The program murvane.

#include <QDate>
#include <QEvent>
#include <QLocale>
#include <QScreen>
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <iostream>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/vensters_stijl.h"
#include "editor/vensters_dialogen.h"
#include "shell/MDIMurvane.h"
#include "shell/bureaublad.h"
#include "shell/frmSplashII.h"
#include "shell/hoofdvenster.h"
#include "shell/opstart.h"
#include "shell/programmahulp.h"
#include "shell/rookproef.h"
#include "shell/startup.h"
#include "shell/vensters_taal.h"
#include "shell/vensters_toepassing.h"

namespace {

std::chrono::year_month_day Vandaag() {
  const QDate datum = QDate::currentDate();
  return {std::chrono::year(datum.year()), std::chrono::month(static_cast<unsigned>(datum.month())),
          std::chrono::day(static_cast<unsigned>(datum.day()))};
}

murvane::Startplaats Plaats() {
  std::error_code geen;
  murvane::Startplaats plaats;
  plaats.HuidigeMap = std::filesystem::current_path(geen);
  plaats.ProgrammaMap = murvane::ProgrammaMap();
  plaats.GebruikersMap = murvane::EigenDataMap();
#ifdef Q_OS_WIN
  plaats.ZonderVariabele = true;
#endif
  plaats.Bureaublad = murvane::IsBureaublad(qEnvironmentVariable(murvane::BureaubladVariabele).toStdString());
  qunsetenv(murvane::BureaubladVariabele);  // it says nothing of the programs that this one starts
  return plaats;
}

/// Ends the program as soon as a window has been painted, with all that is in it.
class NaEersteBeeld : public QObject {
 protected:
  bool eventFilter(QObject* venster, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    venster->removeEventFilter(this);
    QMetaObject::invokeMethod(
        venster, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    return false;
  }
};

/// From the start to the end of the program; the exit status. The program loads behind the splash, which
/// then gives way to the main window: after its time, or at once at a click or key.
int Draai(murvane::Dialogen& dialogen, const murvane::StartGegevens& start, bool rookproef) {
  std::optional<murvane::frmSplashII> splash;
  if (!rookproef) splash.emplace().Toon();
  murvane::Programma programma;
  programma.ProgrammaBestanden = murvane::MeegeleverdeMap(murvane::ProgrammaMap());
  if (murvane::MDIForm_Load(programma, dialogen, start) == murvane::Vervolg::Einde) return 0;
  murvane::MDIMurvane hoofdvenster(programma, dialogen);
  NaEersteBeeld naEersteBeeld;
  if (rookproef) hoofdvenster.installEventFilter(&naEersteBeeld);
  const QSize vrij = hoofdvenster.screen()->availableSize();
  const murvane::Maat maat = murvane::OpenMaat({vrij.width(), vrij.height()});
  hoofdvenster.resize(maat.Breedte, maat.Hoogte);
  const auto toon = [&] {
    hoofdvenster.show();
    hoofdvenster.OpenVanOpdrachtregel();
  };
  if (splash) {
    splash->Daarna(hoofdvenster, toon);
  } else {
    toon();
  }
  return QApplication::exec();
}

}  // namespace

namespace {

/// Answers a command line that asks the program to tell something; its exit status. Without a display.
std::optional<int> Antwoord(const std::vector<std::string>& argumenten) {
  const auto antwoord = murvane::ProgrammaAntwoord(argumenten);
  if (!antwoord) return std::nullopt;
  if (std::cout << *antwoord << std::flush) return 0;
  const murvane::Fout fout(murvane::FoutNummer::SchijfVol, "Schijf vol of uitvoer gesloten");
  std::cerr << "standaarduitvoer: " << fout.Melding() << '\n';
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (const auto status = Antwoord({argv + std::min(argc, 1), argv + argc})) return *status;
  const char decimaal = murvane::RegionaalDecimaalteken();
  murvane::Toepassing toepassing(argc, argv);
  QApplication::setApplicationName("MurVane");
  QApplication::setDesktopFileName("murvane");
  murvane::ZetStijl(toepassing);
  QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
  murvane::Vertaling vertaling;
  if (murvane::LaadVertaling(vertaling)) QCoreApplication::installTranslator(&vertaling);

  const bool rookproef = murvane::IsRookproef(qgetenv(murvane::RookproefVariabele).toStdString());
  murvane::SchermDialogen scherm;
  murvane::StilleDialogen stil(std::cerr);
  murvane::Dialogen& dialogen = rookproef ? static_cast<murvane::Dialogen&>(stil) : scherm;
  toepassing.ZetDialogen(&dialogen);
  const std::string opdrachtregel = QApplication::arguments().mid(1).join(' ').toStdString();
  const murvane::Werkplek werkplek = murvane::KiesWerkplek(dialogen, Plaats(), opdrachtregel);
  const murvane::StartGegevens start{werkplek.Map, murvane::DatumTekst(Vandaag()), werkplek.Opdrachtregel,
                                     decimaal};
  const int status = Draai(dialogen, start, rookproef);
  return stil.IetsGevraagd() ? 1 : status;
}
