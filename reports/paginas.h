#pragma once
// The result of a run as a paged form: everything stands at a position in twips. The same routine draws on
// paper and on the preview.

#include <cstdint>
#include <string>
#include <string_view>

#include "basis/getal.h"
#include "basis/tekst.h"
#include "calc/resultaten.h"
#include "project/records.h"
#include "reports/grafiek.h"
#include "reports/lettertype.h"
#include "reports/vlak.h"

namespace murvane {

/// What the form shows and how; all of it outlives the drawing.
struct Formulier {
  const murvane::Project& Project;
  const murvane::Resultaten& Resultaten;
  const Tekst<35>& Gebruikersnaam;
  const DrukInstelling& Instelling;
  char Decimaal = ',';
};

/// The preview as far as drawing knows it.
struct VoorbeeldStand {
  bool Voorbeeld = false;            ///< the surface is the preview, not a printer
  std::int16_t VoorbeeldPagina = 1;  ///< while drawing the page being drawn, afterwards the page on show
  std::int16_t LaatstePagina = 1;    ///< pages that the preview holds

  friend bool operator==(const VoorbeeldStand&, const VoorbeeldStand&) = default;
};

/// The pages that a preview has room for.
inline constexpr std::int16_t MaxVoorbeeldPaginas = 5;

/// Whether the chart was filled: false when Grafiek2 failed, after which the former chart was drawn.
enum class GrafiekUitkomst : std::uint8_t { Goed, Mislukt };

/// Draws the form, with a chart at its end when `grafiekWens` is 1 and `grafiekKeuze` (kiesgrafiek) above 0;
/// the chart is filled first. A statement that fails is skipped and the next one runs: nothing is raised. The
/// caller ends a printer's document, or keeps the last page of a preview.
[[nodiscard]] GrafiekUitkomst DrukRapport(Vlak& doel, const Formulier& formulier, std::int16_t grafiekWens,
                                          std::int16_t grafiekKeuze, VoorbeeldStand& stand, Grafiek& grafiek);

// The layout helpers. A character column is 0.6 of the font size wide, whatever the font.

/// Moves to a column, without a margin; the empty text, to be printed with the caller's own.
std::string NaarKolom(Vlak& doel, int kolom);
/// Moves to where the number's text ends at column `kolom` + `breedte`; that text. Fout 6 when the value is
/// infinite or not a number.
std::string RechtsOpKolom(Vlak& doel, int kolom, double waarde, Formaat formaat, int breedte, char decimaal);

enum class LijnSoort : std::uint8_t { Enkel, Dubbel };  ///< a thin line, or a bar of 10 twips
/// A horizontal rule with 50 twips above and below.
void DrukLijn(Vlak& doel, LijnSoort soort);

}  // namespace murvane
