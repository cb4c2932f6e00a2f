#pragma once
// Two durations held against each other: both sides are measured in turn, so that a busy machine slows both,
// and their medians are compared.

#include <benchmark/benchmark.h>

#include <chrono>
#include <string>
#include <vector>

namespace murvane::bench {

/// Milliseconds that a call takes.
template <typename Stap>
[[nodiscard]] double Duur(Stap stap) {
  const auto begin = std::chrono::steady_clock::now();
  stap();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

[[nodiscard]] double Mediaan(std::vector<double> waarden);

struct Paar {
  double Vloer = 0;  ///< ms
  double Duur = 0;   ///< ms

  [[nodiscard]] double Maal() const { return Duur / Vloer; }
};

/// The medians of `keer` measurements of each, in turn.
template <typename Vloer, typename Stap>
[[nodiscard]] Paar InBeurten(int keer, Vloer vloer, Stap stap) {
  std::vector<double> vloeren;
  std::vector<double> duren;
  for (int k = 0; k < keer; ++k) {
    vloeren.push_back(vloer());
    duren.push_back(stap());
  }
  return {Mediaan(std::move(vloeren)), Mediaan(std::move(duren))};
}

/// Shows a pair with the bound that holds for it: the counters "vloer" (ms), "maal" (times the floor) and
/// "grens" (at most so many times), and `wat` with the word that tells on which side of the bound it is.
void Toon(benchmark::State& state, const Paar& paar, double grens, const std::string& wat);

}  // namespace murvane::bench
