// How quick the windows are, each against a floor in the same run, off screen.

#include <benchmark/benchmark.h>

#include <QApplication>

#include "shell/rookproef.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv(murvane::RookproefVariabele, "1");  // for the programs that are started
  const QApplication toepassing(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
