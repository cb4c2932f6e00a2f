#pragma once
// Input fields: the rules of each field in one table, and the check that every field goes through.

#include <string>
#include <string_view>

#include "basis/getal.h"

namespace murvane {

/// What a field holds; it decides how ValiDate treats its text.
enum class VeldSoort { Tekst, Numeriek, Datum, Hoofdletters, KleineLetters };

/// The rule of one input field. `Onder` and `Boven` apply to numeric fields only.
struct VeldRegel {
  std::string_view Naam;  ///< the control's name; an index only where the rules differ by it (txtfan)
  VeldSoort Soort;
  double Onder;
  double Boven;
  Formaat Weergave;
};

/// The rule of a field by its control's name; Fout 5 for a name without a rule.
[[nodiscard]] const VeldRegel& Regel(std::string_view naam);

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
