#pragma once
// Input fields: the rules of each field in one table, and the check that every field goes through.

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "basis/getal.h"
#include "project/records.h"

namespace murvane {

/// What a field holds; it decides how ValiDate treats its text.
enum class VeldSoort { Tekst, Numeriek, Datum, Hoofdletters, KleineLetters };

/// Background colours of a field, blue-green-red.
inline constexpr std::uint32_t VeldKleur = 0xC0FFFF;  ///< light yellow
inline constexpr std::uint32_t FoutKleur = 255;       ///< red

inline constexpr std::string_view GeenGeldigGetal = "Voer geldig getal in";
inline constexpr std::string_view GeenGeldigeDatum = "Voer geldige datum in (dd-mm-yyyy)";

/// A field of the project window. The name has static storage: a literal, or one of the table's.
struct VeldId {
  std::string_view Naam;  ///< of the control or of its array, without an index
  int Index = -1;         ///< in an array; -1 for a single control

  friend bool operator==(const VeldId&, const VeldId&) = default;
};

/// Where a field's value is kept: a number, a band of a spectrum, or a text of one of the records.
using RecordVeld = std::variant<std::monostate, double ElementRec::*, Spectrum ElementRec::*,
                                double RuimteRec::*, std::int16_t RuimteRec::*, Spectrum RuimteRec::*,
                                double FanRec::*, Spectrum FanRec::*, Tekst<80> FanRec::*,
                                Tekst<80> ProjectRec::*, Tekst<12> ProjectRec::*, Tekst<10> ProjectRec::*>;

/// The rule of one input field. `Onder` and `Boven` apply to numeric fields only.
struct VeldRegel {
  std::string_view Naam;  ///< the control's name; an index only where the rules differ by it (txtfan)
  VeldSoort Soort;
  double Onder;
  double Boven;
  Formaat Weergave;
  std::string_view Toetsen = {};  ///< the characters it accepts; empty: any
  int Berekend = 0;               ///< number of its change event with Berekend; 0: it calls it without one
  RecordVeld Record = {};         ///< where its value is kept
  std::array<std::string_view, 4> Opvolgers = {};  ///< Enter: the first one that can be reached
  int Eerste = 0;                                  ///< first index of an array
  int Aantal = 0;                                  ///< fields of an array; 0: a single control
  bool AlleenLezen = false;                        ///< shown, never typed in
};

/// All rules, of which an array is one.
[[nodiscard]] std::span<const VeldRegel> VeldRegels();
/// The rule of a field by its control's name; Fout 5 for a name without a rule.
[[nodiscard]] const VeldRegel& Regel(std::string_view naam);
/// The same of one field of an array too; Fout 5 for an index that the array does not have.
[[nodiscard]] const VeldRegel& Regel(VeldId veld);

/// What a typed character does.
struct Toets {
  bool Toegestaan;            ///< otherwise it is swallowed
  std::uint32_t Achtergrond;  ///< the field's new background
};

/// Whether a field takes a typed character (a Unicode code point; 8 is backspace, 27 Escape, both always
/// allowed). A field without a key filter takes whatever the code page has. Enter is VolgendVeld's; what is
/// pasted goes through NeemGeplakt and is judged when the field is left.
[[nodiscard]] Toets MagToets(const VeldRegel& regel, char32_t teken);

/// Where Enter goes: the first successor that is `beschikbaar` (shown and enabled); a successor that is not
/// and has no alternative is passed over to its own successors. In an array the next index, from the last one
/// back to the first. Nothing when the focus stays where it is. Fout 5 for a field without a rule.
[[nodiscard]] std::optional<VeldId> VolgendVeld(VeldId veld, const std::function<bool(VeldId)>& beschikbaar);

/// The most characters that a text field's record holds; 0 for a field without such a limit.
[[nodiscard]] int MaxTekens(const VeldRegel& regel);

/// What may be typed in a field, in a sentence for who does not see its box; Windows-1252.
[[nodiscard]] std::string RegelUitleg(const VeldRegel& regel);

/// What became of a field's text.
struct Validatie {
  bool Geldig = true;
  std::string Tekst;         ///< the field's new text; as typed when invalid
  double Getal = 0;          ///< of a numeric field: the value of Tekst; 0 when invalid
  std::string_view ToolTip;  ///< Windows-1252; empty when valid
};

/// Checks and normalises the text of one field. A numeric text is clamped to its limits in silence and shown
/// in its display format; an empty numeric field counts as 0, an empty date field as `vandaag` (dd-mm-yyyy);
/// a field of plain text is trimmed. Fout 6 for a numeric text too large for a double.
[[nodiscard]] Validatie ValiDate(std::string_view tekst, const VeldRegel& regel, std::string_view vandaag,
                                 char decimaal);

}  // namespace murvane
