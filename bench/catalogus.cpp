// Sorting and listing a full catalogue against reading it and against formatting its numbers alone.

#include <benchmark/benchmark.h>

#include <string>

#include "basis/getal.h"
#include "catalogue/overzicht.h"

namespace murvane {
namespace {

/// 500 records in order, the names as long as they can be and alike up to their end.
Catalogi VolleCatalogi() {
  Catalogi uit;
  uit.CatElementen.Aantal = MaxCatalogus;
  for (int k = 1; k <= MaxCatalogus; ++k) {
    CatElementRec& rec = uit.CatElementen.Records[static_cast<std::size_t>(k)];
    rec.CatNaam = "Coulissedemper 600×1200×1500 mm, coulissen 200 mm, spleet 100 mm nummer "_cp;
    const std::string nummer = std::to_string(1000 + k);
    std::copy(nummer.begin(), nummer.end(), rec.CatNaam.Bytes().begin() + 74);
    for (std::size_t b = 0; b < rec.CatDemp.size(); ++b) {
      rec.CatDemp[b] = static_cast<double>(k % 50) + 0.1 * static_cast<double>(b);
      rec.CatRuis[b] = static_cast<double>(k % 40) + 0.35 * static_cast<double>(b);
    }
  }
  return uit;
}

void CatalogusLezen(benchmark::State& state) {
  const std::string bytes = CatalogusBytes(VolleCatalogi().CatElementen);
  for (auto _ : state) {
    ElementCatalogus catalogus = ElementenUitBytes(bytes);
    benchmark::DoNotOptimize(catalogus.Records.data());
  }
}
BENCHMARK(CatalogusLezen);

/// At most 5 times CatalogusLezen.
void GeordendSorteren(benchmark::State& state) {
  Catalogi catalogi = VolleCatalogi();
  for (auto _ : state) {
    Sorteren(catalogi.CatElementen);
    benchmark::DoNotOptimize(catalogi.CatElementen.Records.data());
  }
}
BENCHMARK(GeordendSorteren);

void GetallenOpmaken(benchmark::State& state) {
  const Catalogi catalogi = VolleCatalogi();
  std::string uit;
  for (auto _ : state) {
    for (int k = IngebouwdeElementen + 1; k <= MaxCatalogus; ++k) {
      const CatElementRec& rec = catalogi.CatElementen.Records[static_cast<std::size_t>(k)];
      uit.clear();
      for (std::size_t b = 0; b < Banden; ++b) VoegOpmaakToe(uit, rec.CatDemp[b], Formaat::Een, ',');
      for (const double waarde : rec.CatRuis) VoegOpmaakToe(uit, waarde, Formaat::Een, ',');
      benchmark::DoNotOptimize(uit.data());
    }
  }
}
BENCHMARK(GetallenOpmaken);

/// At most 10 times GetallenOpmaken.
void OverzichtMaken(benchmark::State& state) {
  const Catalogi catalogi = VolleCatalogi();
  for (auto _ : state) {
    const OverzichtUitslag overzicht = Overzicht(catalogi, CatalogusSoort::Kanaalelementen,
                                                 OverzichtWijze::Alles, ZoekAlles, "20-11-2026", ',');
    benchmark::DoNotOptimize(overzicht.OverzichtTekst.data());
  }
}
BENCHMARK(OverzichtMaken);

}  // namespace
}  // namespace murvane
