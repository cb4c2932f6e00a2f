#include "cli/partij.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <ostream>
#include <system_error>
#include <vector>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "cli/ploeg.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

/// "NAME.mrv" of any directory gives "NAME" in the directory of the results.
fs::path Basisnaam(const std::string& project) {
  return PadVan(project).stem();
}

fs::path MetExtensie(fs::path doel, std::string_view extensie) {
  return doel += extensie;
}

/// "a, b en c"
std::string Opsomming(const std::vector<std::string>& namen) {
  std::string uit;
  for (std::size_t i = 0; i < namen.size(); ++i) {
    if (i > 0) uit += i + 1 == namen.size() ? " en " : ", ";
    uit += namen[i];
  }
  return uit;
}

/// A key by which names that the file system takes for one are equal.
std::string Sleutel(const fs::path& naam) {
  std::string sleutel = PadTekst(naam);
#ifdef _WIN32
  std::transform(sleutel.begin(), sleutel.end(), sleutel.begin(), [](unsigned char c) {
    return c < 0x80 ? static_cast<char>(std::tolower(c)) : static_cast<char>(c);
  });
#endif
  return sleutel;
}

void WeigerGelijkeNamen(const std::vector<std::string>& projecten, const Partij& partij) {
  std::map<std::string, std::string> eerder;
  for (const std::string& project : projecten) {
    const auto [plaats, nieuw] = eerder.emplace(Sleutel(Basisnaam(project)), project);
    if (nieuw) continue;
    std::vector<std::string> namen;
    for (const std::string_view extensie : partij.Extensies)
      namen.push_back(PadTekst(MetExtensie(Basisnaam(project), extensie)));
    throw Gebruiksfout(plaats->second + " en " + project + " geven allebei " + Opsomming(namen) +
                       "; geef ze verschillende namen of een eigen map.");
  }
}

void WeigerZelfdeBestanden(const std::vector<std::string>& projecten, const Partij& partij,
                           Bestandenplan plan) {
  for (const std::string& project : projecten) plan.Leest(project);
  for (const std::string& project : projecten)
    for (const std::string_view extensie : partij.Extensies)
      plan.Schrijft(PadTekst(MetExtensie(PadVan(partij.Map) / Basisnaam(project), extensie)));
}

void WeigerInvoer(const std::vector<std::string>& projecten) {
  if (std::find(projecten.begin(), projecten.end(), Standaardstroom) != projecten.end())
    throw Gebruiksfout("Een project op de standaardinvoer heeft geen naam voor de bestanden van --uit.");
}

void MaakMap(const fs::path& map) {
  std::error_code code;
  fs::create_directories(map, code);
  if (!code && fs::is_directory(map, code)) return;
  FoutNummer nummer = FoutNummer::PadToegang;
  if (code == std::errc::permission_denied || code == std::errc::operation_not_permitted)
    nummer = FoutNummer::GeenToestemming;
  if (code == std::errc::no_space_on_device) nummer = FoutNummer::SchijfVol;
  if (code == std::errc::filename_too_long) nummer = FoutNummer::OngeldigeBestandsnaam;
  throw Fout(nummer).MetBestand(PadTekst(map));
}

/// The files of an earlier run go: next to a project that is refused now they would pass for its results.
Uitslag ZonderOude(Uitslag uitslag, const fs::path& doel, const Partij& partij) {
  std::vector<std::string> weg, gebleven;
  for (const std::string_view extensie : partij.Extensies) {
    const fs::path oud = MetExtensie(doel, extensie);
    std::error_code code;
    if (!fs::is_regular_file(oud, code)) continue;
    (fs::remove(oud, code) ? weg : gebleven).push_back(PadTekst(oud));
  }
  if (weg.empty() && gebleven.empty()) return uitslag;
  if (!uitslag.Melding.ends_with('.')) uitslag.Melding += '.';
  if (!weg.empty()) uitslag.Melding += " Oude resultaten verwijderd: " + Opsomming(weg) + ".";
  if (gebleven.empty()) return uitslag;
  uitslag.Melding += " Oude resultaten die niet verwijderd kunnen worden: " + Opsomming(gebleven) + ".";
  uitslag.Status = status::Fout;
  return uitslag;
}

/// The line "12/1000" on a terminal; messages take its place for as long as they are written.
class Voortgang {
 public:
  Voortgang(std::size_t totaal, Kanalen& kanalen) : totaal_(std::to_string(totaal)), kanalen_(kanalen) {}
  void Toon(std::size_t gedaan) {
    if (kanalen_.Terminal) kanalen_.err << "\r" + std::to_string(gedaan) + "/" + totaal_ << std::flush;
  }
  void Wis() {
    if (kanalen_.Terminal)
      kanalen_.err << "\r" + std::string(2 * totaal_.size() + 1, ' ') + "\r" << std::flush;
  }

 private:
  std::string totaal_;
  Kanalen& kanalen_;
};

/// The work on all projects, by their number.
Werk WerkVan(const std::vector<std::string>& projecten, const Partij& partij, const Partijwerk& een) {
  return [&projecten, &partij, een](std::size_t i) {
    const fs::path doel = PadVan(partij.Map) / Basisnaam(projecten[i]);
    Uitslag uitslag = een(projecten[i], doel);
    return uitslag.Status == status::Klaar ? uitslag : ZonderOude(std::move(uitslag), doel, partij);
  };
}

}  // namespace

void ControleerPartij(const Keuzes& keuzes, const Partij& partij, Bestandenplan plan) {
  WeigerInvoer(keuzes.Bestanden);
  WeigerGelijkeNamen(keuzes.Bestanden, partij);
  WeigerZelfdeBestanden(keuzes.Bestanden, partij, std::move(plan));
}

int VoerPartij(const Keuzes& keuzes, const Partij& partij, const std::function<Partijwerk()>& nieuwWerk,
               Kanalen& kanalen) {
  const std::vector<std::string>& projecten = keuzes.Bestanden;
  MaakMap(PadVan(partij.Map));
  RuimRestenOp(PadVan(partij.Map));  // once, and not at each of the thousands of files
  int code = status::Klaar;
  std::size_t gedaan = 0;
  Voortgang voortgang(projecten.size(), kanalen);
  const auto meld = [&](const Uitslag& uitslag) {
    if (!uitslag.Melding.empty()) voortgang.Wis();
    Meld(uitslag, kanalen);
    code = Zwaarste(code, uitslag.Status);
    voortgang.Toon(++gedaan);
  };
  VerdeelWerk(
      projecten.size(), partij.Taken, [&] { return WerkVan(projecten, partij, nieuwWerk()); }, meld);
  voortgang.Wis();
  return code;
}

}  // namespace murvane
