#include "cli/vensters_druk.h"

#include <QImage>
#include <filesystem>
#include <vector>

#include "basis/bestand.h"
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

void Schrijf(const Keuzes& keuzes, const Formulier& formulier, Kanalen& kanalen) {
  const std::int16_t keuze = GrafiekVan(keuzes);
  Grafiek grafiek;
  const PdfBytes pdf = MaakPdf(formulier, 1, keuze, grafiek);
  EisGrafiek(pdf.DeGrafiek);
  std::vector<std::string> bitmaps;
  std::vector<fs::path> namen;
  if (const auto& bmp = keuzes.Waarde(Optie::Bmp)) {
    bitmaps = MaakBitmaps(formulier, keuze);
    namen = OverBestand(*bmp,
                        [&] { return BitmapNamen(PadVan(*bmp), static_cast<std::int16_t>(bitmaps.size())); });
  }
  SchrijfNaar(*keuzes.Waarde(Optie::Pdf), pdf.Bytes, kanalen);
  for (std::size_t i = 0; i < namen.size(); ++i) VervangBestand(namen[i], bitmaps[i]);
}

}  // namespace

int VoerDruk(const Keuzes& keuzes, Kanalen& kanalen) {
  const std::string& naam = keuzes.Bestanden.front();
  WeigerOverschrijven(naam, *keuzes.Waarde(Optie::Pdf));
  const auto& data = keuzes.Waarde(Optie::Data);
  const Instellingen instellingen =
      LeesInstellingen((data ? PadVan(*data) : StandaardDataMap()) / InstellingenNaam);
  const char decimaal = Decimaalteken(keuzes);
  const Uitslag uitslag = Bewaakt(naam, [&]() -> Uitslag {
    Project project = LeesProjectVan(naam);
    Resultaten resultaten;
    Rapport rapport;
    const ProjectInvoer invoer = InvoerVan(project, decimaal);
    const auto bevinding =
        VoerUit(project, invoer, instellingen.Gebruikersnaam, decimaal, resultaten, rapport);
    if (bevinding) return {status::Geweigerd, naam + ": " + NaarUtf8(bevinding->Melding)};
    Schrijf(keuzes, {project, resultaten, instellingen.Gebruikersnaam, instellingen.Druk, decimaal}, kanalen);
    return {};
  });
  Meld(uitslag, kanalen);
  return uitslag.Status;
}

}  // namespace murvane
