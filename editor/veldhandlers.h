#pragma once
// What a field of the project window does when it changes, restores its value and is left. The window carries
// out what comes back: it sets the texts in their order, and each text that differs from what stood there
// raises the change event of its field, as if the user had typed it. Texts are Windows-1252.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "editor/invoer.h"
#include "editor/validate.h"
#include "project/records.h"

namespace murvane {

/// A text for a field.
struct VeldTekst {
  VeldId Veld;
  std::string Tekst;

  friend bool operator==(const VeldTekst&, const VeldTekst&) = default;
};

/// A field after it was checked.
struct VeldUitslag {
  VeldId Veld;
  bool Geldig = true;  ///< false: the focus goes back to the field
  std::string Tekst;   ///< the field's new text; as typed when invalid
  std::uint32_t Achtergrond = VeldKleur;
  std::string_view ToolTip;
  std::optional<std::string> lblLwA;  ///< the label's new text, where it changes
};

/// What a change of a field's text brings about.
struct VeldGevolg {
  std::string Berekend;        ///< the caller's number for Berekend with false; empty without a number
  std::vector<VeldTekst> Zet;  ///< other fields' new texts
  std::optional<std::string> lblLwA;
};

/// What a combo box brings about.
struct KeuzeUitslag {
  std::optional<std::string> Tekst;  ///< the combo box's new text
  std::vector<VeldTekst> Zet;        ///< the band boxes, with their change events
  std::string_view Berekend;         ///< the caller's number for Berekend with false; empty: not called
};

/// The text of lblLwA: the fan's sound power in dB(A).
[[nodiscard]] std::string LwATekst(const FanRec& fan, char decimaal);

/// The stored value of a field as the field shows it: a number in the field's format, a text without its
/// right-hand blanks. It fills the field, and Escape puts it back. `element` is the number of the element
/// that is open, 0 for none, which reads as a blank one. Fout 5 for an unknown field, Fout 9 for an element
/// outside 0 to 500.
[[nodiscard]] std::string HerstelTekst(const Project& project, int element, VeldId veld, char decimaal);

/// The change event.
[[nodiscard]] VeldGevolg VeldGewijzigd(VeldId veld);

/// The leaving of a field: checks its text and stores the value in the record of the project, fan, room or
/// open element. An invalid number stores 0 where the field is tagged as a number, and nothing elsewhere; a
/// number too large for a double is invalid. The directivity factor is snapped to 1, 2, 4 or 8; a band of the
/// fan brings its dB(A) sum up to date; the outlet of a section change becomes the element's own section at
/// once, so that the next element inherits it. With `element` 0 no element is changed. Throws as
/// HerstelTekst.
[[nodiscard]] VeldUitslag VerlaatVeld(Project& project, int element, VeldId veld, std::string_view tekst,
                                      std::string_view vandaag, char decimaal);

/// The first txtLw whose text a run cannot take over, turned red; nothing when all seven are numbers.
[[nodiscard]] std::optional<VeldUitslag> OngeldigeLw(const ProjectInvoer& invoer);

}  // namespace murvane
