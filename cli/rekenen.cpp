// The command reken: projects to reports, one after the other or as a batch.

#include <array>
#include <filesystem>
#include <memory>
#include <ostream>
#include <thread>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "cli/namen.h"
#include "cli/opdrachten.h"
#include "cli/partij.h"
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
  return {LeesInstellingen(Instellingenbestand(keuzes)).Gebruikersnaam, Decimaalteken(keuzes)};
}

/// Calculates project after project in the same buffers.
class Rekenaar {
 public:
  explicit Rekenaar(const Voorschrift& voorschrift) : voorschrift_(voorschrift) {}

  /// Reads, checks and calculates one project and hands it to `schrijf`.
  template <typename Schrijf>
  Uitslag Doe(const std::string& naam, const Kanalen& kanalen, Schrijf schrijf) {
    return Bewaakt(InvoerNaam(naam), [&]() -> Uitslag {
      project_ = LeesGenoemd(naam, kanalen);
      if (const auto bevinding = Reken())
        return {status::Geweigerd, InvoerNaam(naam) + ": " + NaarUtf8(bevinding->Melding)};
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

/// One report, headed by its file's name where there are more.
void SchrijfRapport(const Rapport& rapport, const std::string& kop, Kanalen& kanalen) {
  if (!kop.empty()) SchrijfUit("==> " + NaamInUitvoer(kop, kanalen) + " <==\r\n", kanalen);
  for (const std::string* blok : {&rapport.RapKop, &rapport.RapProject, &rapport.RapRuimte, &rapport.RapHoofd,
                                  &rapport.RapElementen, &rapport.RapResultaat})
    SchrijfUit(NaarUtf8(*blok), kanalen);
}

/// Reports on standard output, or one project to the files of --prn and --json.
int RekenAchtereen(const Keuzes& keuzes, Kanalen& kanalen) {
  const auto& prn = keuzes.Waarde(Optie::Prn);
  const auto& json = keuzes.Waarde(Optie::Json);
  Rekenaar rekenaar(VoorschriftVan(keuzes));
  int code = status::Klaar;
  for (const std::string& naam : keuzes.Bestanden) {
    const Uitslag uitslag = rekenaar.Doe(naam, kanalen, [&](const Rekenaar& klaar) {
      const std::string prnBytes = prn ? klaar.Prn() : std::string();
      const std::string jsonBytes = json ? klaar.Json() : std::string();
      if (prn) SchrijfNaar(*prn, prnBytes, kanalen);
      if (json) SchrijfNaar(*json, jsonBytes, kanalen);
      if (prn || json) return;
      SchrijfRapport(klaar.HetRapport(), keuzes.Bestanden.size() > 1 ? InvoerNaam(naam) : "", kanalen);
    });
    Meld(uitslag, kanalen);
    code = Zwaarste(code, uitslag.Status);
    if (!kanalen.uit) break;  // nobody can read the rest
  }
  return code;
}

/// Every project to NAME.prn and NAME.json in one directory.
int RekenNaarMap(const Keuzes& keuzes, Kanalen& kanalen) {
  static constexpr std::array<std::string_view, 2> Extensies = {".prn", ".json"};
  const unsigned taken = keuzes.Heeft(Optie::Taken) ? keuzes.Taken() : std::thread::hardware_concurrency();
  const Partij partij{*keuzes.Waarde(Optie::Uit), Extensies, taken};
  ControleerPartij(keuzes, partij, PlanVan(keuzes));
  const Voorschrift voorschrift = VoorschriftVan(keuzes);
  const auto nieuwWerk = [&]() -> Partijwerk {
    return [&, rekenaar = std::make_shared<Rekenaar>(voorschrift)](const std::string& naam,
                                                                   const fs::path& doel) {
      return rekenaar->Doe(naam, kanalen, [&](const Rekenaar& klaar) {
        VervangBestand(fs::path(doel) += Extensies[0], klaar.Prn(), Staart::Vervalt, Resten::Blijven);
        VervangBestand(fs::path(doel) += Extensies[1], klaar.Json(), Staart::Vervalt, Resten::Blijven);
      });
    };
  };
  return VoerPartij(keuzes, partij, nieuwWerk, kanalen);
}

void ControleerSamenhang(const Keuzes& keuzes) {
  const auto& prn = keuzes.Waarde(Optie::Prn);
  const auto& json = keuzes.Waarde(Optie::Json);
  const bool enkel = prn || json;
  if (enkel && keuzes.Heeft(Optie::Uit)) throw Gebruiksfout("--prn en --json gaan niet samen met --uit.");
  if (enkel && keuzes.Bestanden.size() > 1)
    throw Gebruiksfout("--prn en --json zijn er voor één project; gebruik --uit MAP voor meer projecten.");
  if (prn && json && *prn == Standaardstroom && *json == Standaardstroom)
    throw Gebruiksfout("--prn en --json kunnen niet allebei naar de standaarduitvoer.");
  if (prn && json && ZelfdeBestand(*prn, *json))
    throw Gebruiksfout("--prn en --json noemen hetzelfde bestand.");
  if (keuzes.Heeft(Optie::Taken) && !keuzes.Heeft(Optie::Uit))
    throw Gebruiksfout("--taken gaat alleen samen met --uit.");
  Bestandenplan plan = PlanVan(keuzes);
  plan.Leest(keuzes.Bestanden.front());
  for (const auto& uitvoer : {prn, json})
    if (uitvoer) plan.Schrijft(*uitvoer);
}

}  // namespace

int VoerReken(const Keuzes& keuzes, Kanalen& kanalen) {
  ControleerSamenhang(keuzes);
  return keuzes.Heeft(Optie::Uit) ? RekenNaarMap(keuzes, kanalen) : RekenAchtereen(keuzes, kanalen);
}

}  // namespace murvane
