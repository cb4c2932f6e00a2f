// Calculating a mixed chain against a floor: the powers and logarithms that its formulas call for and nothing
// else.

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <thread>
#include <vector>

#include "basis/getal.h"
#include "bench/keten.h"
#include "calc/reken.h"
#include "project/projectfile.h"
#include "shell/run.h"

namespace murvane {
namespace {

const Tekst<35> Gebruiker{"Meetbureau"};

void Doorrekenen(benchmark::State& state) {
  Project project = GemengdeKeten(static_cast<int>(state.range(0)));
  Resultaten resultaten;
  for (auto _ : state) {
    Reken(project, resultaten, ',');
    benchmark::DoNotOptimize(resultaten.LpGalmveld);
  }
}
BENCHMARK(Doorrekenen)->Arg(99);

void Vloer(benchmark::State& state) {
  Project project = GemengdeKeten(static_cast<int>(state.range(0)));
  Resultaten resultaten;
  Reken(project, resultaten, ',');
  const Aanroepen aanroepen = TelAanroepen(project);
  // Levels of 10 to 99 dB as exponents, and numbers of that size for the logarithms.
  std::vector<double> niveaus(90);
  for (std::size_t k = 0; k < niveaus.size(); ++k) niveaus[k] = 1 + static_cast<double>(k) * 0.1;
  for (auto _ : state) {
    double som = 0;
    for (int k = 0; k < aanroepen.Machten; ++k)
      som += std::pow(10.0, niveaus[static_cast<std::size_t>(k) % 90]);
    for (int k = 0; k < aanroepen.Logaritmen; ++k) som += std::log(niveaus[static_cast<std::size_t>(k) % 90]);
    benchmark::DoNotOptimize(som);
  }
  state.counters["machten"] = aanroepen.Machten;
  state.counters["logaritmen"] = aanroepen.Logaritmen;
}
BENCHMARK(Vloer)->Arg(99);

/// File image in, bytes of the saved report out.
std::size_t VanBestandTotRapport(const std::string& bytes) {
  Project project = ProjectUitBytes(bytes);
  Resultaten resultaten;
  Rapport rapport;
  const auto bevinding = VoerUit(project, InvoerVan(project, ','), Gebruiker, ',', resultaten, rapport);
  return bevinding ? 0 : PrnBytes(rapport).size();
}

void Alles(benchmark::State& state) {
  const std::string bytes = ProjectBytes(GemengdeKeten(static_cast<int>(state.range(0))));
  for (auto _ : state) {
    const std::size_t lengte = VanBestandTotRapport(bytes);
    if (lengte == 0) state.SkipWithError("geweigerd");
    benchmark::DoNotOptimize(lengte);
  }
}
BENCHMARK(Alles)->Arg(99);

/// 1,000 projects of 99 elements, spread over a number of threads.
void Reeks(benchmark::State& state) {
  constexpr int Aantal = 1000;
  const std::string bytes = ProjectBytes(GemengdeKeten(99));
  const auto taken = static_cast<int>(state.range(0));
  for (auto _ : state) {
    std::vector<std::jthread> werkers;
    for (int taak = 0; taak < taken; ++taak) {
      werkers.emplace_back([&bytes, taak, taken] {
        for (int k = taak; k < Aantal; k += taken) benchmark::DoNotOptimize(VanBestandTotRapport(bytes));
      });
    }
  }
}
BENCHMARK(Reeks)->Arg(1)->Arg(2)->UseRealTime()->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime();

void GetalOpmaak(benchmark::State& state) {
  std::string uit;
  double x = 12.345;
  for (auto _ : state) {
    uit.clear();
    VoegOpmaakToe(uit, x, Formaat::Een, ',');
    benchmark::DoNotOptimize(uit.data());
    x = x < 100 ? x + 0.713 : 0.1;
  }
}
BENCHMARK(GetalOpmaak);

}  // namespace
}  // namespace murvane

BENCHMARK_MAIN();
