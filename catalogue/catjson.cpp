#include "catalogue/catjson.h"

#include <array>
#include <optional>

#include "basis/fout.h"
#include "basis/json.h"
#include "catalogue/velden.h"

namespace murvane {

namespace {

/// The keys of each kind: its list and the count that may stand beside it.
struct Sleutels {
  CatalogusSoort soort;
  std::string_view lijst, aantal;
};

constexpr std::array<Sleutels, 4> Soorten = {{
    {CatalogusSoort::Kanaalelementen, "CatElementen", "AantalElementen"},
    {CatalogusSoort::Ventilatoren, "CatFans", "AantalFans"},
    {CatalogusSoort::Luchtkanalen, "CatRduct", "AantalRduct"},
    {CatalogusSoort::Plafonds, "CatRplaf", "AantalRplaf"},
}};

template <typename Rec>
void SchrijfRecords(JsonSchrijver& json, const Catalogus<Rec>& catalogus) {
  if (catalogus.Aantal > MaxCatalogus) throw Fout(FoutNummer::IndexBuitenBereik);
  json.BeginLijst();
  for (int k = 1; k <= catalogus.Aantal; ++k) {
    json.BeginObject();
    CatalogusVelden(catalogus.Records[static_cast<std::size_t>(k)],
                    [&json](std::string_view naam, const auto& veld) { json.Veld(naam, veld); });
    json.EindObject();
  }
  json.EindLijst();
}

template <typename Rec>
Catalogus<Rec> LeesRecords(const JsonVeld& lijst, JsonObject& top, std::string_view aantal) {
  Catalogus<Rec> catalogus;
  std::size_t gelezen = 0;
  for (const JsonVeld& item : lijst.Lijst(MaxCatalogus)) {
    JsonObject object(item);
    CatalogusVelden(catalogus.Records[++gelezen],
                    [&object](std::string_view naam, auto& veld) { object.LeesOfLeeg(naam, veld); });
    object.Klaar();
  }
  catalogus.Aantal = LeesAantal(top, aantal, gelezen);
  return catalogus;
}

}  // namespace

std::string CatalogusNaarJson(const CatalogusInhoud& catalogus) {
  const Sleutels& sleutels = Soorten[static_cast<std::size_t>(catalogus.Soort)];
  JsonSchrijver json;
  json.BeginObject();
  std::visit(
      [&](const auto& inhoud) {
        if (inhoud.Aantal < 0) json.Veld(sleutels.aantal, inhoud.Aantal);
        json.Sleutel(sleutels.lijst);
        SchrijfRecords(json, inhoud);
      },
      catalogus.Inhoud);
  json.EindObject();
  return std::move(json).Klaar();
}

CatalogusInhoud CatalogusUitJson(std::string_view json) {
  const JsonWaarde waarde = LeesJson(json);
  JsonObject top(JsonVeld(waarde, ""));
  for (const Sleutels& sleutels : Soorten) {
    const std::optional<JsonVeld> lijst = top.Neem(sleutels.lijst);
    if (!lijst) continue;
    CatalogusInhoud catalogus{sleutels.soort, {}};
    if (sleutels.soort == CatalogusSoort::Kanaalelementen) {
      catalogus.Inhoud = LeesRecords<CatElementRec>(*lijst, top, sleutels.aantal);
    } else {
      catalogus.Inhoud = LeesRecords<SpectrumRec>(*lijst, top, sleutels.aantal);
    }
    top.Klaar();
    return catalogus;
  }
  top.Klaar();
  throw Fout(FoutNummer::OngeldigArgument, "CatElementen, CatFans, CatRduct of CatRplaf ontbreekt");
}

}  // namespace murvane
