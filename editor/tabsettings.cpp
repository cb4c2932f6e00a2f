#include "editor/tabsettings.h"

#include <algorithm>

namespace murvane {

namespace {

template <typename Rec, std::size_t N>
std::vector<std::string> NamenVan(const Catalogus<Rec>& catalogus, Tekst<N> Rec::*naam) {
  std::vector<std::string> uit;
  for (std::size_t nummer = 1; static_cast<int>(nummer) <= catalogus.Aantal; ++nummer)
    uit.emplace_back(TrimRechts((catalogus.Records[nummer].*naam).Heel()));
  return uit;
}

std::vector<std::string> KetenRijen(const Project& project) {
  std::vector<std::string> uit;
  const int aantal = std::min<int>(project.ElementCount, MaxElementen);
  for (int nummer = 1; nummer <= aantal; ++nummer) {
    const ElementRec& element = project.Elementen[static_cast<std::size_t>(nummer)];
    uit.push_back((std::to_string(nummer) + ". ").append(TrimRechts(element.Naam.Heel())));
  }
  return uit;
}

std::array<std::string, Banden> BandTeksten(const Project& project, std::string_view naam, char decimaal) {
  std::array<std::string, Banden> uit;
  for (int band = 0; band < Banden; ++band)
    uit[static_cast<std::size_t>(band)] = HerstelTekst(project, 0, {naam, band}, decimaal);
  return uit;
}

}  // namespace

std::vector<std::string> CatalogusRijen(const SpectrumCatalogus& catalogus) {
  return NamenVan(catalogus, &SpectrumRec::SpecNaam);
}

VensterBeeld TabSettings(const Project& project, const Catalogi& catalogi, char decimaal) {
  VensterBeeld beeld;
  beeld.RekenType = project.Kop.RekenType;
  beeld.Velden = InvoerVan(project, decimaal);
  for (int i = 0; i < FanVakken; ++i)
    beeld.txtfan[static_cast<std::size_t>(i)] = HerstelTekst(project, 0, {"txtfan", i}, decimaal);
  beeld.lblLwA = LwATekst(project.Fan, decimaal);
  beeld.Fan = FanZichtVan(project);
  beeld.lstFan = CatalogusRijen(catalogi.CatFans);
  beeld.lstTotaal = NamenVan(catalogi.CatElementen, &CatElementRec::CatNaam);
  beeld.lstProject = KetenRijen(project);
  beeld.cmbKanaal = CatalogusRijen(catalogi.CatRduct);
  beeld.cmbRkanaal = beeld.cmbKanaal;
  beeld.cmbRplafond = CatalogusRijen(catalogi.CatRplaf);
  beeld.RkanaalTekst = RkanaalTekst(project.Ruimte);
  beeld.RplafondTekst = RplafondTekst(project.Ruimte);
  beeld.txtRkanaal = BandTeksten(project, "txtRkanaal", decimaal);
  beeld.txtRplafond = BandTeksten(project, "txtRplafond", decimaal);
  beeld.VrijVeld = project.VrijVeld != 0;
  beeld.Ruimte = RuimteZichtVan(project.Kop.RekenType, project.VrijVeld);
  return beeld;
}

}  // namespace murvane
