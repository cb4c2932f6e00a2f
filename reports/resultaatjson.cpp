#include "reports/resultaatjson.h"

#include "basis/fout.h"
#include "basis/json.h"

namespace murvane {

namespace {

void SchrijfElement(JsonSchrijver& json, const Project& project, const Resultaten& resultaten,
                    std::size_t nummer) {
  const ElementRec& element = project.Elementen[nummer];
  json.BeginObject();
  json.Veld("Nummer", nummer).Veld("Naam", element.Naam.Getrimd()).Veld("ElementType", element.ElementType);
  json.Veld("demp", element.demp).Veld("ruis", element.ruis).Veld("Instraling", element.Instraling);
  json.Veld("Subtotaal", resultaten.Subtotaal[nummer]);
  json.Veld("HeeftInstraling", bool{resultaten.HeeftInstraling[nummer]});
  json.Sleutel("ElementTekst").BeginLijst(JsonSchrijver::Vorm::EenRegel);
  for (const auto& tekst : resultaten.ElementTekst[nummer]) json.Waarde(TrimRechts(tekst.Heel()));
  json.EindLijst();
  json.EindObject();
}

}  // namespace

std::string ResultaatNaarJson(const Project& project, const Resultaten& resultaten) {
  if (project.ElementCount > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  JsonSchrijver json;
  json.BeginObject();
  json.Sleutel("Elementen").BeginLijst();
  for (int i = 1; i <= project.ElementCount; ++i) {
    SchrijfElement(json, project, resultaten, static_cast<std::size_t>(i));
  }
  json.EindLijst();
  json.Veld("Lw", project.Fan.Lw);
  json.Veld("LwKanaalwand", resultaten.LwKanaalwand).Veld("LwEind", resultaten.LwEind);
  json.Veld("SysteemDemping", resultaten.SysteemDemping).Veld("FanNaDemping", resultaten.FanNaDemping);
  json.Veld("SysteemGeluid", resultaten.SysteemGeluid);
  json.Veld("LpGalmveld", resultaten.LpGalmveld).Veld("LpEenMeter", resultaten.LpEenMeter);
  json.Veld("OverspraakDemping", resultaten.OverspraakDemping);
  json.EindObject();
  return std::move(json).Klaar();
}

}  // namespace murvane
