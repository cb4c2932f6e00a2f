#include "cli/databouw.h"

#include <algorithm>
#include <array>
#include <ostream>
#include <system_error>
#include <variant>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/json.h"
#include "catalogue/catjson.h"
#include "cli/uitslag.h"
#include "editor/elementpagina.h"
#include "project/projectfile.h"
#include "project/projectjson.h"
#include "shell/run.h"
#include "shell/settings.h"

namespace murvane {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view BronExtensie = ".json";

struct CatalogusNaam {
  std::string_view stam;
  CatalogusSoort soort;
};

constexpr std::array<CatalogusNaam, 4> CatalogusNamen = {{
    {"Duct", CatalogusSoort::Kanaalelementen},
    {"Fan", CatalogusSoort::Ventilatoren},
    {"Rduct", CatalogusSoort::Luchtkanalen},
    {"Rplaf", CatalogusSoort::Plafonds},
}};

std::string InstellingenImage(std::string_view json) {
  const JsonWaarde waarde = LeesJson(json);
  JsonObject object(JsonVeld(waarde, ""));
  Instellingen instellingen;
  object.Lees("LettertypeNaam", instellingen.Druk.LettertypeNaam);
  object.Lees("LetterGrootte", instellingen.Druk.LetterGrootte);
  object.Lees("KopStijl", instellingen.Druk.KopStijl);
  object.Lees("BlokBovenStijl", instellingen.Druk.BlokBovenStijl);
  object.Lees("BlokOnderStijl", instellingen.Druk.BlokOnderStijl);
  object.Lees("GebruikerLabel", instellingen.GebruikerLabel);
  object.Lees("Gebruikersnaam", instellingen.Gebruikersnaam);
  object.Klaar();
  return InstellingenBytes(instellingen);
}

std::string CatalogusImage(std::string_view json, CatalogusSoort soort) {
  const CatalogusInhoud inhoud = CatalogusUitJson(json);
  if (inhoud.Soort != soort) {
    throw Fout(FoutNummer::OngeldigArgument, "De catalogus is van een andere soort dan de naam zegt");
  }
  return std::visit([](const auto& catalogus) { return CatalogusBytes(catalogus); }, inhoud.Inhoud);
}

/// A sample as the program saves it after a run: every element was opened once, and the results stand in it.
/// A project that cannot be calculated is stored as its source says.
std::string ProjectImage(std::string_view json) {
  constexpr char Decimaal = ',';  // of the report, which is not kept
  Project project = ProjectUitJson(json);
  Project berekend = project;
  for (int n = 1; n <= berekend.ElementCount; ++n) (void)ProjectSettings(berekend, n, Decimaal);
  Resultaten resultaten;
  Rapport rapport;
  const ProjectInvoer invoer = InvoerVan(berekend, Decimaal);
  const bool geweigerd = VoerUit(berekend, invoer, {}, Decimaal, resultaten, rapport).has_value();
  return ProjectBytes(geweigerd ? project : berekend);
}

Databestand MaakVanStam(const std::string& stam, std::string_view json) {
  if (stam == "murvane") return {stam + ".set", InstellingenImage(json)};
  for (const CatalogusNaam& catalogus : CatalogusNamen) {
    if (stam == catalogus.stam) return {stam + ".dat", CatalogusImage(json, catalogus.soort)};
  }
  return {stam + ".mrv", ProjectImage(json)};
}

bool HeeftAl(const fs::path& pad, std::string_view bytes) {
  std::error_code fout;
  return fs::is_regular_file(pad, fout) && LeesBestand(pad) == bytes;
}

void SchrijfGewijzigde(const fs::path& map, std::ostream& uit) {
  for (const Databestand& bestand : MaakDatabestanden(map / "bron")) {
    const fs::path pad = map / PadVan(bestand.Naam);
    if (HeeftAl(pad, bestand.Bytes)) continue;
    VervangBestand(pad, bestand.Bytes);
    uit << PadTekst(pad) << '\n';
  }
}

}  // namespace

Databestand MaakDatabestand(const std::string& bronNaam, std::string_view json) {
  return OverBestand(bronNaam, [&] {
    if (!bronNaam.ends_with(BronExtensie)) throw Fout(FoutNummer::OngeldigeBestandsnaam);
    return MaakVanStam(bronNaam.substr(0, bronNaam.size() - BronExtensie.size()), json);
  });
}

std::vector<Databestand> MaakDatabestanden(const fs::path& bronMap) {
  std::error_code fout;
  fs::directory_iterator inMap(bronMap, fout);
  if (fout) throw Fout(FoutNummer::PadNietGevonden).MetBestand(PadTekst(bronMap));
  std::vector<Databestand> uit;
  for (const fs::directory_entry& bron : inMap) {
    if (bron.path().extension() != BronExtensie) continue;
    uit.push_back(MaakDatabestand(PadTekst(bron.path().filename()), LeesBestand(bron.path())));
  }
  std::sort(uit.begin(), uit.end(), [](const auto& a, const auto& b) { return a.Naam < b.Naam; });
  return uit;
}

int MaakData(std::span<const std::string> argumenten, std::ostream& uit, std::ostream& fouten) {
  if (argumenten.size() > 1 || (argumenten.size() == 1 && argumenten[0].starts_with('-'))) {
    fouten << "Gebruik: murvane-maakdata [MAP]\n"
              "Maakt de bestanden in MAP (standaard: data) uit de bronnen in MAP/bron.\n";
    return status::VerkeerdGebruik;
  }
  const Uitslag uitslag = Bewaakt("murvane-maakdata", [&] {
    SchrijfGewijzigde(argumenten.empty() ? fs::path("data") : PadVan(argumenten[0]), uit);
    return Uitslag{};
  });
  Kanalen kanalen{uit, fouten};
  Meld(uitslag, kanalen);
  return uitslag.Status;
}

}  // namespace murvane
