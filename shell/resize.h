#pragma once
// Resizing of the project window without the window: the design geometry of its controls is recorded once,
// and each new size is worked out from it, so that nothing accumulates. Coordinates are twips.
//
// A control that lacks a property keeps 0 for it in the record and ignores what is put in it. A step that
// cannot be worked out (a value outside 16 bits, a division by zero) is skipped and leaves things as they
// were.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace murvane {

/// What a control stands in, as far as moving it differs.
enum class Houder : std::uint8_t { Anders, Frame, SSTab2 };

/// The geometry of one control. Of a line Top, Left, Height and Width are Y1, X1, Y2 and X2.
struct Stuurvlak {
  std::string Naam;
  bool IsLijn = false;
  murvane::Houder Houder = murvane::Houder::Anders;
  std::optional<double> Top, Left, Height, Width;
  std::optional<double> FontSize, RightMargin;
};

/// The form and its controls, in the order of the form's collection.
struct ResizeVenster {
  double BinnenHoogte = 0;
  double BinnenBreedte = 0;
  bool Geminimaliseerd = false;  ///< the form or the main window
  bool HertekentZelf = false;    ///< automatic repainting
  std::vector<Stuurvlak> Vlakken;
};

/// The design geometry, one entry a control.
struct Ontwerp {
  std::int16_t OrigHoogte = 0;
  std::int16_t OrigBreedte = 0;
  std::int16_t LaatsteControl = -1;  ///< number of controls minus 1
  std::int16_t ResizeKlaar = 0;      ///< -1 once the recording has run
  std::vector<std::int16_t> OrigTop, OrigLeft, OrigHeight, OrigWidth, OrigFontSize, OrigRightMargin;
};

/// A control of a tab that is not on show stands this far to the left of its place.
inline constexpr std::int32_t TabVerschuiving = 75000;

/// The left that a control has when its tab is on show.
[[nodiscard]] constexpr std::int32_t ZonderTabVerschuiving(std::int32_t left) {
  return left >= 0 ? left : left + TabVerschuiving;
}

/// Records the form as it is.
[[nodiscard]] Ontwerp ResizeInit(const ResizeVenster& venster);

/// Places the controls for the form's present size. With `verplaatsen` not 0 they keep their size and move by
/// half the difference to the design size; with 0 they are scaled, the strip of 400 twips at the top left out
/// (the first such call only arms the recording). SSTab1 is placed by the window itself.
void ResizeForm(Ontwerp& ontwerp, ResizeVenster& venster, std::int16_t verplaatsen);

}  // namespace murvane
