#include "bench/vensters/opstelling.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QTabWidget>
#include <QTemporaryDir>

#include "bench/keten.h"
#include "catalogue/catfiles.h"
#include "project/projectfile.h"

namespace murvane::bench {

namespace {

Programma MetCatalogi() {
  Programma programma;
  programma.Catalogi = LeesCatalogi(MURVANE_BRON "/data");
  programma.Vandaag = std::string_view("20-11-2026");
  return programma;
}

}  // namespace

Opstelling::Opstelling() : programma_(MetCatalogi()), venster_(programma_, dialogen_) {
  venster_.resize(1024, 740);
  venster_.show();
  QApplication::processEvents();
}

void Opstelling::Open(int aantal, std::int16_t rekenType) {
  const QTemporaryDir map;
  programma_.OpenBestand = map.filePath("keten.mrv").toStdString();
  Project project = GemengdeKeten(aantal);
  project.Kop.RekenType = rekenType;
  SchrijfProject(project, programma_.OpenBestand);
  venster_.OpenVanOpdrachtregel();
  venster_.activateWindow();
  QApplication::processEvents();
}

void Opstelling::KiesTab(int tab) const {
  Zoek<QTabWidget>("SSTab1")->setCurrentIndex(tab);
  QApplication::processEvents();
}

void Opstelling::KiesElement(int n) const {
  auto* const lijst = Zoek<QListWidget>("lstProject");
  lijst->setCurrentRow(n - 1);
  QApplication::processEvents();
}

void Druk(QWidget& vak, int toets, const QString& tekst) {
  for (const QEvent::Type soort : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent gebeurtenis(soort, toets, Qt::NoModifier, tekst);
    QApplication::sendEvent(&vak, &gebeurtenis);
  }
  QApplication::processEvents();
}

}  // namespace murvane::bench
