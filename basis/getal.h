#pragma once
// Number formats: how a double becomes text on screen and on paper, and how typed text becomes a double.
// The decimal sign is always handed in; nothing here looks at the process locale.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace murvane {

/// The display formats; the value is the number of decimals.
enum class Formaat : std::uint8_t {
  Heel = 0,  ///< "#0"
  Een = 1,   ///< "#0.0"
  Twee = 2,  ///< "#0.00"
};

/// The number in a display format: the decimal text at 15 significant digits, rounded at the format's last
/// decimal with halves away from zero, at least one digit before the decimal sign, no thousands separator, no
/// minus sign on a zero. Not a number and infinity read "NaN", "INF" and "-INF".
[[nodiscard]] std::string Opmaak(double waarde, Formaat formaat, char decimaal);
/// The same, appended to `uit`.
void VoegOpmaakToe(std::string& uit, double waarde, Formaat formaat, char decimaal);
/// The same, with blanks in front up to `breedte` characters; a longer text is not cut.
void VoegRechtsToe(std::string& uit, double waarde, Formaat formaat, std::size_t breedte, char decimaal);

/// The default text form: at most 15 significant digits, no trailing zeros (as %.15G), e.g. "0.125", "1E+20".
[[nodiscard]] std::string StandaardTekst(double waarde, char decimaal);
/// The same, written at `naar`, where at least StandaardLengte characters fit; the end of the text.
char* SchrijfStandaard(char* naar, double waarde, char decimaal);
inline constexpr std::size_t StandaardLengte = 24;

/// The nearest whole number, a half to the even one. Used only where the rules say so (fan efficiency).
[[nodiscard]] double RondEven(double waarde);

/// Whether the text is a number: trimmed and with its first comma made a point it is an optional sign, digits
/// with at most one point (at least one digit), and an optional exponent.
[[nodiscard]] bool IsNumeriek(std::string_view tekst);

/// The value of a numeric text; comma and point both act as decimal sign. Fout 13 when the text is not
/// numeric, Fout 6 when its value is too large for a double.
[[nodiscard]] double LeesGetal(std::string_view tekst);

}  // namespace murvane
