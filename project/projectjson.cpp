#include "project/projectjson.h"

#include <algorithm>
#include <bit>
#include <type_traits>

#include "basis/fout.h"
#include "basis/json.h"
#include "project/velden.h"

namespace murvane {

namespace {

/// A field of an element that carries a second name for branches or for section changes.
struct DubbeleNaam {
  std::string_view eerste, tweede;
  std::array<std::int16_t, 2> types;  ///< element types to which the second name belongs
};

constexpr std::array<std::int16_t, 2> Aftakkingen = {elementtype::AftakRecht, elementtype::AftakRond};
constexpr std::array<std::int16_t, 2> Doorsneden = {elementtype::DrsneeRecht, elementtype::DrsneeRond};

constexpr std::array<DubbeleNaam, 7> DubbeleNamen = {{
    {"Lengte", "LDoorsnee", Doorsneden},
    {"Hoogte", "HAftak", Aftakkingen},
    {"Breedte", "BAftak", Aftakkingen},
    {"HHoofd", "H1Doorsnee", Doorsneden},
    {"BHoofd", "B1Doorsnee", Doorsneden},
    {"HDoor", "H2Doorsnee", Doorsneden},
    {"BDoor", "B2Doorsnee", Doorsneden},
}};

const DubbeleNaam* ZoekDubbel(std::string_view eerste) {
  const auto* const gevonden = std::find_if(DubbeleNamen.begin(), DubbeleNamen.end(),
                                            [eerste](const DubbeleNaam& d) { return d.eerste == eerste; });
  return gevonden == DubbeleNamen.end() ? nullptr : gevonden;
}

std::string_view NaamVoor(std::string_view eerste, std::int16_t type) {
  const DubbeleNaam* dubbel = ZoekDubbel(eerste);
  if (dubbel == nullptr) return eerste;
  return std::find(dubbel->types.begin(), dubbel->types.end(), type) == dubbel->types.end() ? eerste
                                                                                            : dubbel->tweede;
}

void SchrijfElement(JsonSchrijver& json, const ElementRec& element) {
  json.BeginObject();
  ElementVelden(element, [&](std::string_view naam, const auto& veld) {
    json.Veld(NaamVoor(naam, element.ElementType), veld);
  });
  json.EindObject();
}

void SchrijfElementen(JsonSchrijver& json, const Project& project) {
  if (project.ElementCount > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  if (project.ElementCount < 0) json.Veld("ElementCount", project.ElementCount);
  json.Sleutel("Elementen").BeginLijst();
  for (int i = 1; i <= project.ElementCount; ++i) {
    SchrijfElement(json, project.Elementen[static_cast<std::size_t>(i)]);
  }
  json.EindLijst();
}

/// Reads the second name of a shared field; `eersteGelezen` tells whether the first name stood there too.
void LeesTweede(JsonObject& object, const DubbeleNaam& dubbel, bool eersteGelezen, double& veld) {
  double tweede = 0;
  if (!object.Lees(dubbel.tweede, tweede)) return;
  if (eersteGelezen && std::bit_cast<std::uint64_t>(veld) != std::bit_cast<std::uint64_t>(tweede)) {
    throw Fout(
        FoutNummer::OngeldigArgument,
        "Dubbel veld: " + std::string(dubbel.eerste) + " en " + std::string(dubbel.tweede) + " verschillen",
        object.Plaats());
  }
  veld = tweede;
}

ElementRec LeesElement(const JsonVeld& item) {
  JsonObject object(item);
  ElementRec element;
  ElementVelden(element, [&object](std::string_view naam, auto& veld) {
    if constexpr (std::is_same_v<decltype(veld), double&>) {
      const bool gelezen = object.Lees(naam, veld);
      if (const DubbeleNaam* dubbel = ZoekDubbel(naam)) LeesTweede(object, *dubbel, gelezen, veld);
    } else {
      object.LeesOfLeeg(naam, veld);
    }
  });
  object.Klaar();
  return element;
}

void LeesElementen(JsonObject& top, Project& project) {
  std::size_t aantal = 0;
  if (const std::optional<JsonVeld> lijst = top.Neem("Elementen")) {
    for (const JsonVeld& item : lijst->Lijst(MaxElementen)) project.Elementen[++aantal] = LeesElement(item);
  }
  project.ElementCount = LeesAantal(top, "ElementCount", aantal);
}

}  // namespace

std::string ProjectNaarJson(const Project& project) {
  JsonSchrijver json;
  const auto schrijf = [&json](std::string_view naam, const auto& veld) { json.Veld(naam, veld); };
  json.BeginObject();
  json.Sleutel("ProjectRec").BeginObject();
  ProjectVelden(project.Kop, schrijf);
  json.EindObject();
  json.Sleutel("FanRec").BeginObject();
  FanVelden(project.Fan, schrijf);
  json.EindObject();
  SchrijfElementen(json, project);
  json.Sleutel("RuimteRec").BeginObject();
  RuimteVelden(project.Ruimte, schrijf);
  json.EindObject();
  json.Veld("FanPrognose", project.FanPrognose).Veld("VrijVeld", project.VrijVeld);
  json.EindObject();
  return std::move(json).Klaar();
}

Project ProjectUitJson(std::string_view json) {
  const JsonWaarde waarde = LeesJson(json);
  JsonObject top(JsonVeld(waarde, ""));
  Project project;
  const auto lezer = [](JsonObject& object) {
    return [&object](std::string_view naam, auto& veld) { object.LeesOfLeeg(naam, veld); };
  };
  JsonObject kop = top.Deel("ProjectRec");
  ProjectVelden(project.Kop, lezer(kop));
  kop.Klaar();
  JsonObject fan = top.Deel("FanRec");
  FanVelden(project.Fan, lezer(fan));
  fan.Klaar();
  LeesElementen(top, project);
  JsonObject ruimte = top.Deel("RuimteRec");
  RuimteVelden(project.Ruimte, lezer(ruimte));
  ruimte.Klaar();
  top.LeesOfLeeg("FanPrognose", project.FanPrognose);
  top.LeesOfLeeg("VrijVeld", project.VrijVeld);
  top.Klaar();
  return project;
}

}  // namespace murvane
