#include "shell/bureaublad.h"

#include <algorithm>
#include <system_error>
#include <vector>

#include "basis/bestand.h"
#include "basis/tekst.h"
#include "shell/startup.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

/// How a directory is reached from another: "." when they are the same.
fs::path Vanaf(const fs::path& map, const fs::path& boven) {
  return map.lexically_normal().lexically_relative(boven.lexically_normal());
}

bool IsIn(const fs::path& map, const fs::path& boven) {
  const fs::path rest = Vanaf(map, boven);
  return !rest.empty() && *rest.begin() != "..";
}

fs::path GeleverdeData(const Startplaats& plaats) {
  return MeegeleverdeMap(plaats.ProgrammaMap) / "data";
}

/// The files of a directory, the settings last.
std::vector<fs::path> BestandenVan(const fs::path& map) {
  std::vector<fs::path> uit;
  for (const fs::directory_entry& ingang : fs::directory_iterator(map)) {
    if (ingang.is_regular_file() && ingang.path().filename() != InstellingenNaam) uit.push_back(ingang);
  }
  std::sort(uit.begin(), uit.end());
  uit.push_back(map / InstellingenNaam);
  return uit;
}

void MaakMap(const fs::path& map) {
  if (map.empty()) throw Fout(FoutNummer::PadNietGevonden);
  std::error_code code;
  fs::create_directories(map, code);
  if (code == std::errc::permission_denied || code == std::errc::read_only_file_system)
    throw Fout(FoutNummer::GeenToestemming);
  if (code == std::errc::no_space_on_device) throw Fout(FoutNummer::SchijfVol);
  if (code || !fs::is_directory(map, code)) throw Fout(FoutNummer::PadToegang);
}

void GaNaar(const fs::path& map) {
  std::error_code code;
  fs::current_path(map, code);
  if (code) throw Fout(FoutNummer::PadToegang).MetBestand(PadTekst(map));
}

Melding MisluktMelding(const fs::path& map, const Fout& fout) {
  std::string tekst = "De eigen gegevensmap kan niet worden gebruikt";
  if (!map.empty()) tekst += ":\n" + PadTekst(map);
  tekst += "\nMurVane werkt met de meegeleverde gegevens; wijzigingen daarin worden mogelijk niet bewaard.\n";
  Melding melding{MeldingSoort::Kritiek, "Opstartfout", NaarCp1252Getoond(tekst)};
  VoegFoutToe(melding, fout);
  return melding;
}

/// The command line as it is understood once the current directory is another one.
std::string VanUit(const fs::path& map, std::string_view opdrachtregel) {
  const fs::path project = PadVan(OpenBestandUit(opdrachtregel));
  return project.empty() ? std::string(opdrachtregel) : PadTekst(map / project);
}

}  // namespace

bool WerktInGebruikersmap(const Startplaats& plaats) {
  if (plaats.Bureaublad) return true;
  if (!IsGeinstalleerd(plaats.ProgrammaMap)) return false;
  return Vanaf(plaats.HuidigeMap, plaats.ProgrammaMap) == "." ||
         IsIn(plaats.HuidigeMap, MeegeleverdeMap(plaats.ProgrammaMap)) ||
         (plaats.ZonderVariabele && !HeeftInstellingen(plaats.HuidigeMap));
}

void VulGebruikersmap(const Startplaats& plaats) {
  const fs::path& doel = plaats.GebruikersMap;
  if (HeeftInstellingen(doel)) return;
  const fs::path bron = GeleverdeData(plaats);
  if (!HeeftInstellingen(bron))
    throw Fout(FoutNummer::BestandNietGevonden).MetBestand(PadTekst(bron / InstellingenNaam));
  MaakMap(doel);
  for (const fs::path& bestand : BestandenVan(bron)) {
    const fs::path kopie = doel / bestand.filename();
    if (!fs::exists(fs::symlink_status(kopie))) VervangBestand(kopie, LeesBestand(bestand));
  }
}

Werkplek KiesWerkplek(Dialogen& dialogen, const Startplaats& plaats, std::string_view opdrachtregel) {
  if (!WerktInGebruikersmap(plaats)) return {plaats.HuidigeMap, std::string(opdrachtregel)};
  fs::path map = plaats.GebruikersMap;
  const auto fout = Probeer([&] {
    VulGebruikersmap(plaats);
    GaNaar(map);
  });
  if (fout) {
    dialogen.Toon(MisluktMelding(map, *fout));
    map = GeleverdeData(plaats);
    if (Probeer([&] { GaNaar(map); })) map = plaats.HuidigeMap;
  }
  return {map, VanUit(plaats.HuidigeMap, opdrachtregel)};
}

}  // namespace murvane
