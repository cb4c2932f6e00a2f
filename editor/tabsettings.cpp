#include "editor/tabsettings.h"

#include "editor/elementlijst.h"

namespace murvane {

namespace {

std::array<std::string, Banden> BandTeksten(const Project& project, std::string_view naam, char decimaal) {
  std::array<std::string, Banden> uit;
  for (int band = 0; band < Banden; ++band)
    uit[static_cast<std::size_t>(band)] = HerstelTekst(project, 0, {naam, band}, decimaal);
  return uit;
}

}  // namespace

std::vector<std::string> CatalogusRijen(const SpectrumCatalogus& catalogus) {
  std::vector<std::string> uit;
  for (int nummer = 1; nummer <= catalogus.Aantal; ++nummer)
    uit.emplace_back(TrimRechts(catalogus.Records[static_cast<std::size_t>(nummer)].SpecNaam.Heel()));
  return uit;
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
  beeld.lstTotaal = RijenTotaal(catalogi.CatElementen);
  beeld.lstProject = RijenProject(project);
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
