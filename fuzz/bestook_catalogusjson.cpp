// Hand-written catalogue JSON.

#include "basis/fout.h"
#include "catalogue/catjson.h"
#include "fuzz/bestook.h"

using namespace murvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte) {
  try {
    const CatalogusInhoud inhoud = CatalogusUitJson(AlsTekst(data, lengte));
    const auto bytes = [](const CatalogusInhoud& c) {
      return std::visit([](const auto& catalogus) { return CatalogusBytes(catalogus); }, c.Inhoud);
    };
    Eis(bytes(CatalogusUitJson(CatalogusNaarJson(inhoud))) == bytes(inhoud));
  } catch (const Fout& fout) {
    Eis(fout.what()[0] != '\0');
  }
  return 0;
}
