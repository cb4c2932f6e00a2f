// Opening the preview of a long chain, against drawing its pages once.

#include <QApplication>
#include <sstream>
#include <string>

#include "bench/keten.h"
#include "bench/vensters/meting.h"
#include "bench/vensters/opstelling.h"
#include "calc/reken.h"
#include "reports/frmPreView.h"
#include "reports/preview.h"
#include "reports/vensters_vlak.h"
#include "shell/afdrukken.h"
#include "shell/rookproef.h"

namespace murvane::bench {
namespace {

constexpr int Keer = 15;
constexpr int Elementen = 99;

double TekenEenKeer(Programma& programma) {
  return Duur([&] {
    Schildervlak blad(VoorbeeldBreedte, VoorbeeldHoogte, VoorbeeldDpi);
    VoorbeeldStand stand = NieuwVoorbeeld();
    (void)DrukRapport(blad, FormulierVan(programma), 0, 0, stand, programma.Grafiek);
    blad.BewaarBlad(stand.VoorbeeldPagina - 1);
  });
}

double OpenVoorbeeld(Programma& programma, Dialogen& dialogen) {
  return Duur([&] {
    frmPreView venster(programma.Voorbeeld);
    LaadVoorbeeld(
        programma, dialogen, [] { return kiesgrafiek::Geen; }, venster.Document());
    venster.ToonBlad();
    venster.resize(1024, 700);
    venster.show();
    QApplication::processEvents();
  });
}

void Voorbeeld(benchmark::State& state) {
  Programma programma;
  programma.Project = GemengdeKeten(Elementen);
  programma.Instellingen.Druk = StandaardDrukInstelling();
  murvane::Reken(programma.Project, programma.Resultaten, programma.Decimaal);
  std::ostringstream stil;
  StilleDialogen dialogen(stil);  // no chart
  for (auto _ : state) {
    const Paar paar = InBeurten(
        Keer, [&] { return TekenEenKeer(programma); }, [&] { return OpenVoorbeeld(programma, dialogen); });
    Toon(state, paar, 1.5, std::to_string(Elementen) + " elementen");
  }
}
BENCHMARK(Voorbeeld)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace murvane::bench
