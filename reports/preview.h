#pragma once
// The print preview (frmPreView) and the toolbar of the result window (frmResultaat) without the windows:
// buttons, captions, browsing, scroll bars and file names. Texts are Windows-1252, lengths in twips.

#include <array>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "reports/paginas.h"

namespace murvane {

/// A button of a toolbar. Positions count from 1; one that no button has is a gap.
struct Werkknop {
  int Positie;
  std::string_view Sleutel;
  std::string_view Tip;
  std::string_view Beeld;  ///< its icon
  std::string_view Naam;   ///< in a word, for a screen reader
};

inline constexpr std::string_view PdfTip = "Berekeningsformulier opslaan als PDF";

inline constexpr auto ResultaatKnoppen = std::to_array<Werkknop>({
    {1, "Printen", "Berekeningsresultaten afdrukken op printer", "printen", "Afdrukken"},
    {2, "Opslaan", "Berekeningsresultaten opslaan in bestand", "opslaan", "Opslaan"},
    {3, "Grafiek", "Grafische weergave berekeningsresultaten", "grafiek", "Grafiek"},
    {4, "preview", "Afdrukvoorbeeld berekeningsresultaten", "voorbeeld", "Afdrukvoorbeeld"},
    {6, "PDF", PdfTip, "pdf", "PDF"},
});

inline constexpr auto VoorbeeldKnoppen = std::to_array<Werkknop>({
    {2, "printen", "Afdrukken op printer", "printen", "Afdrukken"},
    {3, "save", "Afdrukvoorbeeld opslaan als bitmap-bestand", "opslaan", "Opslaan"},
    {5, "begin", "Naar beginpagina", "begin", "Eerste"},
    {6, "terug", "Naar vorige pagina", "terug", "Vorige"},
    {7, "volgende", "Naar volgende pagina", "volgende", "Volgende"},
    {8, "eind", "Naar laatste pagina", "eind", "Laatste"},
    {10, "PDF", PdfTip, "pdf", "PDF"},
});

/// The page of the preview: 21.0 by 29.1 cm, 1440 twips to the inch.
inline constexpr double VoorbeeldBreedte = 21.0 / 2.54 * 1440;
inline constexpr double VoorbeeldHoogte = 29.1 / 2.54 * 1440;

/// The caption while the pages are being drawn, and with a page on show.
inline constexpr std::string_view VoorbeeldTitelBegin = "Afdrukvoorbeeld - Pagina ";
[[nodiscard]] std::string VoorbeeldTitel(const VoorbeeldStand& stand);

/// A new preview: page 1 of 1, drawn on the preview.
[[nodiscard]] VoorbeeldStand NieuwVoorbeeld();

/// Which of the browsing buttons can be pressed.
struct Bladerknoppen {
  bool Begin = false, Terug = false, Volgende = false, Eind = false;

  friend bool operator==(const Bladerknoppen&, const Bladerknoppen&) = default;
};
[[nodiscard]] Bladerknoppen ButtonEnabled(std::int16_t laatste, std::int16_t huidig);

/// Turns to the page that a browsing button means; another key changes nothing.
void Blader(VoorbeeldStand& stand, std::string_view sleutel);

/// A scroll bar in one direction; `Langs` and `Lengte` lie along it, `Dwars` across.
struct Schuifbalk {
  bool Zichtbaar = false;
  double Dwars = 0, Langs = 0, Lengte = 0;
  double Minimum = 0, Maximum = 0, Waarde = 0;
  double KleineStap = 0, GroteStap = 0;

  friend bool operator==(const Schuifbalk&, const Schuifbalk&) = default;
};

struct Rechthoek {
  double Links = 0, Boven = 0, Breedte = 0, Hoogte = 0;

  friend bool operator==(const Rechthoek&, const Rechthoek&) = default;
};

struct Schuifbalken {
  Schuifbalk Horizontaal, Verticaal;
};
/// The scroll bars beside the visible part (`houder`) of a page of the given size. With value v the page
/// stands at -v.
[[nodiscard]] Schuifbalken SizeScrolls(const Rechthoek& houder, double breedte, double hoogte);
/// Where a page of the given length stands along a bar with a value: in the middle of its room while the bar
/// is hidden.
[[nodiscard]] double BladPlaats(const Schuifbalk& balk, double waarde, double pagina);
/// The visible part of the page inside a window: under the toolbar, beside the bars.
[[nodiscard]] Rechthoek PlaatsHouder(double breedte, double hoogte, double werkbalk, double balkBreedte,
                                     double balkHoogte);

/// The files that `aantal` pages are saved in: the name, the page's number and ".bmp". Fout 52 unless the
/// name ends in ".bmp", not in capitals.
[[nodiscard]] std::vector<std::filesystem::path> BitmapNamen(const std::filesystem::path& naam,
                                                             std::int16_t aantal);

}  // namespace murvane
