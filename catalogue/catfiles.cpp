#include "catalogue/catfiles.h"

#include "basis/bestand.h"
#include "basis/bewaar.h"
#include "basis/fout.h"
#include "basis/stroom.h"
#include "catalogue/velden.h"

namespace murvane {

namespace {

template <typename Cat, typename Stap>
void AlleVelden(Cat& catalogus, Stap stap) {
  stap(catalogus.Aantal);
  for (int k = 1; k <= catalogus.Aantal; ++k) {
    if (k > MaxCatalogus) throw Fout(FoutNummer::IndexBuitenBereik);
    CatalogusVelden(catalogus.Records[static_cast<std::size_t>(k)],
                    [&stap](std::string_view, auto& veld) { stap(veld); });
  }
}

template <typename Cat>
Cat UitBytes(std::string_view bytes) {
  Cat catalogus;
  Lezer lezer(bytes);
  AlleVelden(catalogus, [&lezer](auto& veld) { lezer.Lees(veld); });
  return catalogus;
}

template <typename Cat>
std::string Bytes(const Cat& catalogus) {
  std::string bytes;
  Schrijver schrijver(bytes);
  AlleVelden(catalogus, [&schrijver](const auto& veld) { schrijver.Schrijf(veld); });
  return bytes;
}

template <typename Cat>
Cat UitInhoud(const Inhoud& inhoud) {
  Cat catalogus = UitBytes<Cat>(inhoud.Bytes);
  catalogus.Gelezen = Onthoud(inhoud, Bytes(catalogus));
  return catalogus;
}

template <typename Cat>
Cat LeesFile(const std::filesystem::path& pad) {
  return OverBestand(PadTekst(pad), [&pad] { return UitInhoud<Cat>(LeesInhoud(pad)); });
}

template <typename Cat>
void SchrijfFile(const Cat& catalogus, const std::filesystem::path& pad) {
  OverBestand(PadTekst(pad), [&] { SchrijfBeeld(pad, Bytes(catalogus), Staart::Blijft); });
}

}  // namespace

ElementCatalogus ElementenUitBytes(std::string_view bytes) {
  return UitBytes<ElementCatalogus>(bytes);
}
SpectrumCatalogus SpectraUitBytes(std::string_view bytes) {
  return UitBytes<SpectrumCatalogus>(bytes);
}

std::string CatalogusBytes(const ElementCatalogus& catalogus) {
  return Bytes(catalogus);
}
std::string CatalogusBytes(const SpectrumCatalogus& catalogus) {
  return Bytes(catalogus);
}

ElementCatalogus LeesElementen(const std::filesystem::path& pad) {
  return LeesFile<ElementCatalogus>(pad);
}
SpectrumCatalogus LeesSpectra(const std::filesystem::path& pad) {
  return LeesFile<SpectrumCatalogus>(pad);
}

void SchrijfCatalogus(const ElementCatalogus& catalogus, const std::filesystem::path& pad) {
  SchrijfFile(catalogus, pad);
}
void SchrijfCatalogus(const SpectrumCatalogus& catalogus, const std::filesystem::path& pad) {
  SchrijfFile(catalogus, pad);
}

void LeesUit(ElementCatalogus& catalogus, const Inhoud& inhoud) {
  catalogus = UitInhoud<ElementCatalogus>(inhoud);
}
void LeesUit(SpectrumCatalogus& catalogus, const Inhoud& inhoud) {
  catalogus = UitInhoud<SpectrumCatalogus>(inhoud);
}

Catalogi LeesCatalogi(const std::filesystem::path& map) {
  Catalogi catalogi;
  catalogi.CatElementen = LeesElementen(map / "Duct.dat");
  catalogi.CatFans = LeesSpectra(map / "Fan.dat");
  catalogi.CatRduct = LeesSpectra(map / "Rduct.dat");
  catalogi.CatRplaf = LeesSpectra(map / "Rplaf.dat");
  return catalogi;
}

}  // namespace murvane
