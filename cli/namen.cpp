#include "cli/namen.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <system_error>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "cli/uitvoer.h"
#include "project/projectfile.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

/// Room for millions of names; more is not a list.
constexpr std::size_t GrootsteLijst = std::size_t{256} << 20;

bool IsMap(const std::string& naam) {
  std::error_code geen;
  return naam != Standaardstroom && fs::is_directory(PadVan(naam), geen);
}

bool IsProjectIn(const fs::directory_entry& ingang) {
  std::error_code geen;
  const std::string extensie = PadTekst(ingang.path().extension());
  return extensie.size() == 4 && IsProjectNaam(extensie) && !ingang.is_directory(geen);
}

/// The projects in a directory, by name.
std::vector<std::string> ProjectenIn(const std::string& map, std::error_code& code) {
  std::vector<std::string> uit;
  fs::directory_iterator ingang(PadVan(map), code);
  for (; !code && ingang != fs::directory_iterator(); ingang.increment(code))
    if (IsProjectIn(*ingang)) uit.push_back(PadTekst(ingang->path()));
  std::sort(uit.begin(), uit.end());
  return uit;
}

void VoegToe(std::vector<std::string>& uit, const std::string& naam) {
  std::vector<std::string> in;
  std::error_code code;
  if (IsMap(naam)) in = ProjectenIn(naam, code);
  if (in.empty() || code) in = {naam};
  std::move(in.begin(), in.end(), std::back_inserter(uit));
}

std::string LeesLijst(const std::string& naam, const Kanalen& kanalen) {
  std::string bytes = naam == Standaardstroom ? kanalen.Invoer(GrootsteLijst + 1)
                                              : LeesBestand(PadVan(naam), GrootsteLijst + 1);
  if (bytes.size() > GrootsteLijst)
    throw Fout(FoutNummer::PadToegang, "Het bestand is te groot voor een lijst van namen", {},
               InvoerNaam(naam));
  return bytes;
}

void WeigerTweemaalInvoer(const Keuzes& keuzes) {
  const auto projecten = std::count(keuzes.Bestanden.begin(), keuzes.Bestanden.end(), Standaardstroom);
  if (projecten + (keuzes.Waarde(Optie::Lijst) == Standaardstroom ? 1 : 0) > 1)
    throw Gebruiksfout("De standaardinvoer kan maar één keer worden gelezen.");
}

}  // namespace

std::vector<std::string> NamenUit(std::string_view lijst) {
  const char einde = lijst.find('\0') == std::string_view::npos ? '\n' : '\0';
  std::vector<std::string> uit;
  for (std::string_view naam : Delen(lijst, einde)) {
    if (einde == '\n' && naam.ends_with('\r')) naam.remove_suffix(1);
    if (!naam.empty()) uit.emplace_back(naam == Standaardstroom ? "./-" : naam);
  }
  return uit;
}

std::vector<std::string> NoemProjecten(const Keuzes& keuzes, const Kanalen& kanalen) {
  WeigerTweemaalInvoer(keuzes);
  std::vector<std::string> uit;
  for (const std::string& naam : keuzes.Bestanden) VoegToe(uit, naam);
  if (const auto& lijst = keuzes.Waarde(Optie::Lijst))
    for (const std::string& naam : NamenUit(LeesLijst(*lijst, kanalen))) VoegToe(uit, naam);
  return uit;
}

Project LeesGenoemd(const std::string& naam, const Kanalen& kanalen) {
  if (!IsMap(naam) || IsProjectNaam(naam)) return LeesProjectVan(naam, kanalen);
  std::error_code code;
  if (ProjectenIn(naam, code).empty() && !code)
    throw Fout(FoutNummer::BestandNietGevonden, "Geen projecten (*.mrv) in deze map", {}, naam);
  const FoutNummer nummer =
      code == std::errc::permission_denied ? FoutNummer::GeenToestemming : FoutNummer::PadToegang;
  throw Fout(nummer).MetBestand(naam);
}

}  // namespace murvane
