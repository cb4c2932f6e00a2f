#include "bench/vensters/meting.h"

#include <algorithm>

namespace murvane::bench {

double Mediaan(std::vector<double> waarden) {
  const auto midden = waarden.begin() + static_cast<std::ptrdiff_t>(waarden.size() / 2);
  std::nth_element(waarden.begin(), midden, waarden.end());
  return *midden;
}

void Toon(benchmark::State& state, const Paar& paar, double grens, const std::string& wat) {
  state.SetIterationTime(paar.Duur / 1000);
  state.counters["vloer"] = paar.Vloer;
  state.counters["maal"] = paar.Maal();
  state.counters["grens"] = grens;
  state.SetLabel(wat + (paar.Maal() <= grens ? ": binnen de grens" : ": BOVEN DE GRENS"));
}

}  // namespace murvane::bench
