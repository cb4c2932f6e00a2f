#include "cli/vensters_druk.h"

#include <QImage>
#include <array>
#include <filesystem>
#include <vector>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "cli/namen.h"
#include "cli/partij.h"
#include "cli/uitvoer.h"
#include "reports/paginas.h"
#include "reports/preview.h"
#include "reports/vensters_pdf.h"
#include "reports/vensters_vlak.h"
#include "shell/run.h"
#include "shell/settings.h"
#include "shell/startup.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

std::int16_t GrafiekVan(const Keuzes& keuzes) {
  const std::string naam = keuzes.Waarde(Optie::Grafiek).value_or("geen");
  if (naam == "geen") return kiesgrafiek::Geen;
  return naam == "1m" ? kiesgrafiek::EenMeter : kiesgrafiek::Galmveld;
}

/// A chart that could not be filled is a fault: the form would show another one.
void EisGrafiek(GrafiekUitkomst uitkomst) {
  if (uitkomst == GrafiekUitkomst::Mislukt)
    throw Fout(FoutNummer::Overloop, "Fout in verwerking grafiekdata");
}

std::vector<std::string> MaakBitmaps(const Formulier& formulier, std::int16_t grafiekKeuze) {
  Schildervlak blad(VoorbeeldBreedte, VoorbeeldHoogte, VoorbeeldDpi);
  VoorbeeldStand stand = NieuwVoorbeeld();
  Grafiek grafiek;
  EisGrafiek(DrukRapport(blad, formulier, 1, grafiekKeuze, stand, grafiek));
  blad.BewaarBlad(stand.VoorbeeldPagina - 1);
  std::vector<std::string> uit;
  for (const QImage& beeld : blad.Bladen()) uit.push_back(BitmapBytes(beeld));
  return uit;
}

/// What holds for every form of a command.
struct Voorschrift {
  Instellingen DeInstellingen;
  char Decimaal;
  std::int16_t GrafiekKeuze;
};

Voorschrift VoorschriftVan(const Keuzes& keuzes) {
  return {LeesInstellingen(Instellingenbestand(keuzes)), Decimaalteken(keuzes), GrafiekVan(keuzes)};
}

void Schrijf(const std::string& naarPdf, const std::optional<std::string>& naarBmp,
             const Formulier& formulier, std::int16_t grafiekKeuze, Kanalen& kanalen) {
  Grafiek grafiek;
  const PdfBytes pdf = MaakPdf(formulier, 1, grafiekKeuze, grafiek);
  EisGrafiek(pdf.DeGrafiek);
  std::vector<std::string> bitmaps;
  std::vector<fs::path> namen;
  if (naarBmp) {
    bitmaps = MaakBitmaps(formulier, grafiekKeuze);
    const auto aantal = static_cast<std::int16_t>(bitmaps.size());
    namen = OverBestand(*naarBmp, [&] { return BitmapNamen(PadVan(*naarBmp), aantal); });
  }
  SchrijfNaar(naarPdf, pdf.Bytes, kanalen);
  for (std::size_t i = 0; i < namen.size(); ++i) VervangBestand(namen[i], bitmaps[i]);
}

/// Checks and calculates one project and hands its form to `schrijf`.
template <typename Schrijver>
Uitslag Druk(const std::string& naam, const Voorschrift& voorschrift, const Kanalen& kanalen,
             Schrijver schrijf) {
  return Bewaakt(InvoerNaam(naam), [&]() -> Uitslag {
    const Instellingen& instellingen = voorschrift.DeInstellingen;
    const char decimaal = voorschrift.Decimaal;
    Project project = LeesGenoemd(naam, kanalen);
    Resultaten resultaten;
    Rapport rapport;
    const ProjectInvoer invoer = InvoerVan(project, decimaal);
    const auto bevinding =
        VoerUit(project, invoer, instellingen.Gebruikersnaam, decimaal, resultaten, rapport);
    if (bevinding) return {status::Geweigerd, InvoerNaam(naam) + ": " + NaarUtf8(bevinding->Melding)};
    schrijf(Formulier{project, resultaten, instellingen.Gebruikersnaam, instellingen.Druk, decimaal});
    return {};
  });
}

/// Of the bitmaps all that there can be count: how many pages a form has shows only when it is drawn.
void ControleerSamenhang(const Keuzes& keuzes) {
  const auto& pdf = keuzes.Waarde(Optie::Pdf);
  const auto& bmp = keuzes.Waarde(Optie::Bmp);
  if (keuzes.Heeft(Optie::UitDruk)) {
    if (pdf || bmp) throw Gebruiksfout("--pdf en --bmp gaan niet samen met --uit.");
    return;
  }
  if (keuzes.Bestanden.size() > 1)
    throw Gebruiksfout("--pdf en --bmp zijn er voor één project; gebruik --uit MAP voor meer projecten.");
  Bestandenplan plan = PlanVan(keuzes);
  plan.Leest(keuzes.Bestanden.front());
  plan.Schrijft(*pdf);
  if (!bmp || !bmp->ends_with(".bmp")) return;
  for (const fs::path& blad : BitmapNamen(PadVan(*bmp), MaxVoorbeeldPaginas)) plan.Schrijft(PadTekst(blad));
}

/// Every project to NAME.pdf in one directory. One after the other: the toolkit draws in one thread.
int DrukNaarMap(const Keuzes& keuzes, Kanalen& kanalen) {
  static constexpr std::array<std::string_view, 1> Extensies = {".pdf"};
  const Partij partij{*keuzes.Waarde(Optie::UitDruk), Extensies};
  ControleerPartij(keuzes, partij, PlanVan(keuzes));
  const Voorschrift voorschrift = VoorschriftVan(keuzes);
  const auto een = [&](const std::string& naam, const fs::path& doel) {
    return Druk(naam, voorschrift, kanalen, [&](const Formulier& formulier) {
      Schrijf(PadTekst(doel).append(Extensies[0]), {}, formulier, voorschrift.GrafiekKeuze, kanalen);
    });
  };
  return VoerPartij(
      keuzes, partij, [&een] { return Partijwerk(een); }, kanalen);
}

}  // namespace

int VoerDruk(const Keuzes& keuzes, Kanalen& kanalen) {
  ControleerSamenhang(keuzes);
  if (keuzes.Heeft(Optie::UitDruk)) return DrukNaarMap(keuzes, kanalen);
  const Voorschrift voorschrift = VoorschriftVan(keuzes);
  const Uitslag uitslag =
      Druk(keuzes.Bestanden.front(), voorschrift, kanalen, [&](const Formulier& formulier) {
        Schrijf(*keuzes.Waarde(Optie::Pdf), keuzes.Waarde(Optie::Bmp), formulier, voorschrift.GrafiekKeuze,
                kanalen);
      });
  Meld(uitslag, kanalen);
  return uitslag.Status;
}

}  // namespace murvane
