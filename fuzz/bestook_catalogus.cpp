// The catalogue files, both record shapes, and their JSON.

#include "basis/fout.h"
#include "catalogue/catfiles.h"
#include "catalogue/catjson.h"
#include "fuzz/bestook.h"

using namespace murvane;

namespace {

template <typename Cat>
void Rond(std::string_view bytes, const Cat& catalogus, CatalogusSoort soort) {
  const std::string terug = CatalogusBytes(catalogus);
  Eis(bytes.starts_with(terug));
  const CatalogusInhoud inhoud = CatalogusUitJson(CatalogusNaarJson({soort, catalogus}));
  Eis(inhoud.Soort == soort);
  Eis(CatalogusBytes(std::get<Cat>(inhoud.Inhoud)) == terug);
}

template <typename Lees>
void Probeer(Lees lees) {
  try {
    lees();
  } catch (const Fout& fout) {
    Eis(fout.Nummer() == FoutNummer::VoorbijEinde || fout.Nummer() == FoutNummer::IndexBuitenBereik);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte) {
  const std::string_view bytes = AlsTekst(data, lengte);
  Probeer([bytes] { Rond(bytes, ElementenUitBytes(bytes), CatalogusSoort::Kanaalelementen); });
  Probeer([bytes] { Rond(bytes, SpectraUitBytes(bytes), CatalogusSoort::Luchtkanalen); });
  return 0;
}
