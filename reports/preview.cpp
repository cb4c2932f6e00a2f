#include "reports/preview.h"

#include "basis/bestand.h"
#include "basis/fout.h"

namespace murvane {

namespace {

constexpr double Rand = 150;  ///< around the page
constexpr double KleineStap = 100;

/// One direction: the part's place across and along the bar, its length, and the page's length.
Schuifbalk Balk(double dwars, double langs, double houder, double pagina) {
  Schuifbalk balk;
  balk.Zichtbaar = pagina >= houder - 2 * Rand;
  balk.Dwars = dwars;
  balk.Langs = langs;
  balk.Lengte = houder;
  balk.Minimum = balk.Waarde = -Rand;
  balk.Maximum = pagina + Rand - houder;
  balk.KleineStap = KleineStap;
  balk.GroteStap = houder;
  return balk;
}

}  // namespace

std::string VoorbeeldTitel(const VoorbeeldStand& stand) {
  return "Afdrukvoorbeeld, pagina " + std::to_string(stand.VoorbeeldPagina) + " van " +
         std::to_string(stand.LaatstePagina);
}

VoorbeeldStand NieuwVoorbeeld() {
  return {true, 1, 1};
}

Bladerknoppen ButtonEnabled(std::int16_t laatste, std::int16_t huidig) {
  if (laatste == 1) return {};
  const bool vooruit = huidig != laatste, terug = huidig != 1;
  return {terug, terug, vooruit, vooruit};
}

void Blader(VoorbeeldStand& stand, std::string_view sleutel) {
  if (sleutel == "begin") stand.VoorbeeldPagina = 1;
  if (sleutel == "volgende") ++stand.VoorbeeldPagina;
  if (sleutel == "terug") --stand.VoorbeeldPagina;
  if (sleutel == "eind") stand.VoorbeeldPagina = stand.LaatstePagina;
}

Schuifbalken SizeScrolls(const Rechthoek& houder, double breedte, double hoogte) {
  return {Balk(houder.Boven + houder.Hoogte, houder.Links, houder.Breedte, breedte),
          Balk(houder.Links + houder.Breedte, houder.Boven, houder.Hoogte, hoogte)};
}

double BladPlaats(const Schuifbalk& balk, double waarde, double pagina) {
  return balk.Zichtbaar ? -waarde : (balk.Lengte - pagina) / 2;
}

Rechthoek PlaatsHouder(double breedte, double hoogte, double werkbalk, double balkBreedte,
                       double balkHoogte) {
  return {0, werkbalk, breedte - balkBreedte, hoogte - werkbalk - balkHoogte};
}

std::vector<std::filesystem::path> BitmapNamen(const std::filesystem::path& naam, std::int16_t aantal) {
  constexpr std::string_view Extensie = ".bmp";
  std::string stam = PadTekst(naam);
  if (!stam.ends_with(Extensie)) throw Fout(FoutNummer::OngeldigeBestandsnaam);
  stam.resize(stam.size() - Extensie.size());
  std::vector<std::filesystem::path> uit;
  for (int i = 1; i <= aantal; ++i) uit.push_back(PadVan((stam + std::to_string(i)).append(Extensie)));
  return uit;
}

}  // namespace murvane
