// The program murvane-druk: a main function around its one command, off screen.

#include <QApplication>
#include <exception>
#include <iostream>

#include "cli/systeem.h"
#include "cli/vensters_druk.h"

namespace {

/// What the toolkit has to say about a screen that is not there is nothing for a user.
void Zwijg(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

int main(int argc, char** argv) {
  try {
    murvane::BereidUitvoerVoor();
    const auto argumenten = murvane::Argumenten(argc, argv);
    const auto voer = [&](const murvane::Keuzes& keuzes, murvane::Kanalen& kanalen) {
      qInstallMessageHandler(Zwijg);
      qputenv("QT_QPA_PLATFORM", "offscreen");
      int een = 1;  // the toolkit takes options of its own from a command line
      char* naam[] = {argv[0], nullptr};
      const QApplication toepassing(een, naam);
      return murvane::VoerDruk(keuzes, kanalen);
    };
    return murvane::VoerProgrammaUit(murvane::Opdracht::Druk, argumenten, murvane::Systeemkanalen(), voer);
  } catch (const std::exception&) {
    std::cerr << "murvane-druk: onverwachte fout\n";
    return 1;
  }
}
