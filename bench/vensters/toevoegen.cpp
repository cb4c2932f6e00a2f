// Adding the 99th element to the chain, against adding the second: Enter in the catalogue's list, and the
// page of the new element shown.

#include <QApplication>
#include <QListWidget>
#include <string>

#include "bench/vensters/meting.h"
#include "bench/vensters/opstelling.h"
#include "editor/validate.h"

namespace murvane::bench {
namespace {

constexpr int Keer = 15;
constexpr int Records = 12;  // the built-in elements, and the first of the fixed spectra

double VoegToe(benchmark::State& state, Opstelling& opstelling, int aantal, int record) {
  opstelling.Open(aantal - 1);
  opstelling.KiesTab(static_cast<int>(Tab::Kanaalelementen));
  auto* const lijst = opstelling.Zoek<QListWidget>("lstTotaal");
  lijst->setFocus(Qt::TabFocusReason);
  lijst->setCurrentRow(record - 1);
  QApplication::processEvents();
  const double duur = Duur([&] { Druk(*lijst, Qt::Key_Return, "\r"); });
  if (opstelling.Aantal() != aantal) state.SkipWithError("er kwam geen element bij");
  return duur;
}

void Toevoegen(benchmark::State& state) {
  for (auto _ : state) {
    Opstelling opstelling;
    Paar ergste;
    std::string wat;
    for (int record = 1; record <= Records; ++record) {
      const Paar paar = InBeurten(
          Keer, [&] { return VoegToe(state, opstelling, 2, record); },
          [&] { return VoegToe(state, opstelling, 99, record); });
      if (ergste.Vloer != 0 && paar.Maal() <= ergste.Maal()) continue;
      ergste = paar;
      wat = "het traagste, record " + std::to_string(record);
    }
    Toon(state, ergste, 3, wat);
  }
}
BENCHMARK(Toevoegen)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace murvane::bench
