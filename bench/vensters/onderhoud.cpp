// Opening a maintenance window with 500 records against opening it with none, up to its first picture.

#include <QApplication>
#include <iostream>
#include <string>

#include "bench/vensters/meting.h"
#include "catalogue/frmOnderhoud.h"
#include "shell/rookproef.h"

namespace murvane::bench {
namespace {

constexpr int Keer = 15;

Catalogi MetRecords(CatalogusSoort soort, int aantal) {
  Catalogi uit;
  MetCatalogus(uit, soort, [aantal](auto& catalogus) {
    catalogus.Aantal = static_cast<std::int16_t>(aantal);
    for (int k = 1; k <= aantal; ++k)
      NaamVan(catalogus.Records[static_cast<std::size_t>(k)]) =
          "Coulissedemper 600x1200x1500 mm, spleet 100 mm, nummer " + std::to_string(k);
  });
  return uit;
}

double Open(CatalogusSoort soort, Catalogi& catalogi) {
  StilleDialogen dialogen(std::cerr);
  SchatInvoer invoer;
  return Duur([&] {
    frmOnderhoud venster(soort, {catalogi, invoer, dialogen, {}, "20-11-2026", ','});
    venster.show();
    QApplication::processEvents();
    venster.hide();
  });
}

void OnderhoudOpenen(benchmark::State& state) {
  for (auto _ : state) {
    Paar ergste;
    std::string wat;
    for (const CatalogusSoort soort : {CatalogusSoort::Kanaalelementen, CatalogusSoort::Ventilatoren,
                                       CatalogusSoort::Luchtkanalen, CatalogusSoort::Plafonds}) {
      Catalogi leeg = MetRecords(soort, EersteRecord(soort) - 1);
      Catalogi vol = MetRecords(soort, MaxCatalogus);
      const Paar paar = InBeurten(
          Keer, [&] { return Open(soort, leeg); }, [&] { return Open(soort, vol); });
      if (ergste.Vloer != 0 && paar.Maal() <= ergste.Maal()) continue;
      ergste = paar;
      wat = "het traagste, " + std::string(OnderhoudVan(soort).Venster);
    }
    Toon(state, ergste, 3, wat);
  }
}
BENCHMARK(OnderhoudOpenen)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace murvane::bench
