// The command reken: projects to reports, one after the other or as a batch.

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <map>
#include <memory>
#include <ostream>
#include <system_error>
#include <thread>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "cli/opdrachten.h"
#include "cli/ploeg.h"
#include "cli/uitvoer.h"
#include "reports/resultaatjson.h"
#include "shell/run.h"
#include "shell/settings.h"
#include "shell/startup.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

/// What holds for every project of a run.
struct Voorschrift {
  Tekst<35> Gebruikersnaam;
  char Decimaal;
};

Voorschrift VoorschriftVan(const Keuzes& keuzes) {
  const auto& data = keuzes.Waarde(Optie::Data);
  const fs::path map = data ? PadVan(*data) : StandaardDataMap();
  return {LeesInstellingen(map / InstellingenNaam).Gebruikersnaam, Decimaalteken(keuzes)};
}

/// Calculates project after project in the same buffers.
class Rekenaar {
 public:
  explicit Rekenaar(const Voorschrift& voorschrift) : voorschrift_(voorschrift) {}

  /// Reads, checks and calculates one project and hands it to `schrijf`.
  template <typename Schrijf>
  Uitslag Doe(const std::string& naam, Schrijf schrijf) {
    return Bewaakt(naam, [&]() -> Uitslag {
      project_ = LeesProjectVan(naam);
      if (const auto bevinding = Reken())
        return {status::Geweigerd, naam + ": " + NaarUtf8(bevinding->Melding)};
      schrijf(*this);
      return {};
    });
  }

  [[nodiscard]] const Rapport& HetRapport() const { return rapport_; }
  [[nodiscard]] std::string Prn() const { return PrnBytes(rapport_); }
  [[nodiscard]] std::string Json() const { return ResultaatNaarJson(project_, resultaten_); }

 private:
  std::optional<Bevinding> Reken() {
    resultaten_ =
        leeg_;  // a run leaves alone what its type does not calculate: nothing of an earlier project
    for (std::string* blok : {&rapport_.RapKop, &rapport_.RapProject, &rapport_.RapRuimte, &rapport_.RapHoofd,
                              &rapport_.RapElementen, &rapport_.RapResultaat})
      blok->clear();
    const ProjectInvoer invoer = InvoerVan(project_, voorschrift_.Decimaal);
    return VoerUit(project_, invoer, voorschrift_.Gebruikersnaam, voorschrift_.Decimaal, resultaten_,
                   rapport_);
  }

  Voorschrift voorschrift_;
  Project project_;
  Resultaten resultaten_;
  Resultaten leeg_;
  Rapport rapport_;
};

void SchrijfBlokken(const Rapport& rapport, std::ostream& uit) {
  for (const std::string* blok : {&rapport.RapKop, &rapport.RapProject, &rapport.RapRuimte, &rapport.RapHoofd,
                                  &rapport.RapElementen, &rapport.RapResultaat})
    uit << NaarUtf8(*blok);
}

/// Reports on standard output, or one project to the files of --prn and --json.
int RekenAchtereen(const Keuzes& keuzes, Kanalen& kanalen) {
  const auto& prn = keuzes.Waarde(Optie::Prn);
  const auto& json = keuzes.Waarde(Optie::Json);
  const auto schrijf = [&](const Rekenaar& rekenaar) {
    const std::string prnBytes = prn ? rekenaar.Prn() : std::string();
    const std::string jsonBytes = json ? rekenaar.Json() : std::string();
    if (prn) SchrijfNaar(*prn, prnBytes, kanalen);
    if (json) SchrijfNaar(*json, jsonBytes, kanalen);
    if (!prn && !json) SchrijfBlokken(rekenaar.HetRapport(), kanalen.uit);
  };
  Rekenaar rekenaar(VoorschriftVan(keuzes));
  int code = status::Klaar;
  for (const std::string& naam : keuzes.Bestanden) {
    const Uitslag uitslag = rekenaar.Doe(naam, schrijf);
    Meld(uitslag, kanalen);
    code = Zwaarste(code, uitslag.Status);
    if (!kanalen.uit) break;  // nobody can read the rest
  }
  return code;
}

/// "NAME.mrv" of any directory gives "NAME" in the directory of the reports.
fs::path Basisnaam(const std::string& project) {
  return PadVan(project).stem();
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

void WeigerGelijkeNamen(const std::vector<std::string>& projecten) {
  std::map<std::string, std::string> eerder;
  for (const std::string& project : projecten) {
    const auto [plaats, nieuw] = eerder.emplace(Sleutel(Basisnaam(project)), project);
    if (nieuw) continue;
    const std::string naam = PadTekst(Basisnaam(project));
    std::string melding = plaats->second;
    melding.append(" en ")
        .append(project)
        .append(" geven allebei ")
        .append(naam)
        .append(".prn en ")
        .append(naam);
    throw Gebruiksfout(melding + ".json; geef ze verschillende namen of een eigen map.");
  }
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

/// Every project to NAME.prn and NAME.json in one directory.
int RekenNaarMap(const Keuzes& keuzes, Kanalen& kanalen) {
  WeigerGelijkeNamen(keuzes.Bestanden);
  const Voorschrift voorschrift = VoorschriftVan(keuzes);
  const fs::path map = PadVan(*keuzes.Waarde(Optie::Uit));
  MaakMap(map);
  const auto nieuwWerk = [&]() -> Werk {
    return [&, rekenaar = std::make_shared<Rekenaar>(voorschrift)](std::size_t i) {
      return rekenaar->Doe(keuzes.Bestanden[i], [&](const Rekenaar& klaar) {
        const fs::path doel = map / Basisnaam(keuzes.Bestanden[i]);
        VervangBestand(fs::path(doel) += ".prn", klaar.Prn());
        VervangBestand(fs::path(doel) += ".json", klaar.Json());
      });
    };
  };
  int code = status::Klaar;
  std::size_t gedaan = 0;
  Voortgang voortgang(keuzes.Bestanden.size(), kanalen);
  const auto meld = [&](const Uitslag& uitslag) {
    if (!uitslag.Melding.empty()) voortgang.Wis();
    Meld(uitslag, kanalen);
    code = Zwaarste(code, uitslag.Status);
    voortgang.Toon(++gedaan);
  };
  const unsigned taken = keuzes.Heeft(Optie::Taken) ? keuzes.Taken() : std::thread::hardware_concurrency();
  VerdeelWerk(keuzes.Bestanden.size(), taken, nieuwWerk, meld);
  voortgang.Wis();
  return code;
}

void ControleerSamenhang(const Keuzes& keuzes) {
  const auto& prn = keuzes.Waarde(Optie::Prn);
  const auto& json = keuzes.Waarde(Optie::Json);
  const bool enkel = prn || json;
  if (enkel && keuzes.Heeft(Optie::Uit)) throw Gebruiksfout("--prn en --json gaan niet samen met --uit.");
  if (enkel && keuzes.Bestanden.size() > 1)
    throw Gebruiksfout("--prn en --json zijn er voor één project; gebruik --uit MAP voor meer projecten.");
  if (prn && json && *prn == Standaarduitvoer && *json == Standaarduitvoer)
    throw Gebruiksfout("--prn en --json kunnen niet allebei naar de standaarduitvoer.");
  if (prn && json && ZelfdeBestand(*prn, *json))
    throw Gebruiksfout("--prn en --json noemen hetzelfde bestand.");
  if (keuzes.Heeft(Optie::Taken) && !keuzes.Heeft(Optie::Uit))
    throw Gebruiksfout("--taken gaat alleen samen met --uit.");
  for (const auto& uitvoer : {prn, json})
    if (uitvoer) WeigerOverschrijven(keuzes.Bestanden.front(), *uitvoer);
}

}  // namespace

int VoerReken(const Keuzes& keuzes, Kanalen& kanalen) {
  ControleerSamenhang(keuzes);
  return keuzes.Heeft(Optie::Uit) ? RekenNaarMap(keuzes, kanalen) : RekenAchtereen(keuzes, kanalen);
}

}  // namespace murvane
