#pragma once
// The settings of the printed form, and the window that sets them (frmLettertype) without the window. Texts
// are Windows-1252.

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basis/fout.h"

namespace murvane {

/// Styles of a text area of the form; another number changes nothing in the style.
namespace stijl {
inline constexpr std::int16_t Normaal = 1;
inline constexpr std::int16_t Cursief = 2;
inline constexpr std::int16_t Vet = 3;
inline constexpr std::int16_t VetCursief = 4;
}  // namespace stijl

/// Font and styles of the form. A value that is empty or 0 was never set.
struct DrukInstelling {
  std::string LettertypeNaam;
  std::int16_t LetterGrootte = 0;   ///< points: head band, project and room lines
  std::int16_t KopStijl = 0;        ///< stijl of the head band
  std::int16_t BlokBovenStijl = 0;  ///< stijl of the project lines
  std::int16_t BlokOnderStijl = 0;  ///< stijl of the room lines

  friend bool operator==(const DrukInstelling&, const DrukInstelling&) = default;
};

inline constexpr std::string_view StandaardLettertype = "Courier New";
[[nodiscard]] DrukInstelling StandaardDrukInstelling();
/// Gives every value that was never set its default.
void VulAan(DrukInstelling& instelling);

/// One of the window's lists: its rows, its text and the selected row, -1 when none is.
struct Keuzelijst {
  std::vector<std::string> Rijen;
  std::string Tekst;
  int Rij = -1;
};

inline constexpr std::array<std::string_view, 4> LetterGrootten = {" 6", " 8", "10", "12"};
inline constexpr std::array<std::string_view, 4> Stijlnamen = {"Normaal    ", "Cursief    ", "Vet        ",
                                                               "Vet cursief"};

/// What the window holds.
struct LettertypeVenster {
  Keuzelijst cboLtype, cboLgrootte, cboKop, cboBody1, cboBody2;
};

/// Opens the window: fills in defaults, then the lists; `fonts` gives the fonts in the system's order. What
/// `fonts` raised is returned to be shown; the form's font is then the only entry and the setting.
[[nodiscard]] std::optional<Fout> LaadVenster(LettertypeVenster& venster, DrukInstelling& instelling,
                                              const std::function<std::vector<std::string>()>& fonts);
/// Sets the lists from the settings.
void LoadPropertySettings(LettertypeVenster& venster, const DrukInstelling& instelling);

/// OK: the settings take what the window holds. Fout 13 when the text of the size is no number, Fout 6 when
/// it is too large; the settings then stay as they were.
void NeemOver(const LettertypeVenster& venster, DrukInstelling& instelling);
/// Default: the settings become the defaults at once, whether or not the window is cancelled later.
void ZetStandaard(LettertypeVenster& venster, DrukInstelling& instelling);

}  // namespace murvane
