#pragma once
// reports/: the result of a run as text, as a paged form and as chart data.
// This header: the text report, six blocks of Windows-1252 text with CR LF as line end.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "basis/getal.h"
#include "basis/tekst.h"
#include "calc/resultaten.h"
#include "project/records.h"

namespace murvane {

/// The six blocks of the last run, in the order in which they are saved.
struct Rapport {
  std::string RapKop;        ///< user name, program version, calculation type
  std::string RapProject;    ///< project data
  std::string RapRuimte;     ///< room data or the free-field remark
  std::string RapHoofd;      ///< table head and fan
  std::string RapElementen;  ///< the elements
  std::string RapResultaat;  ///< the final results
};

/// The name of a calculation type as a report shows it; empty for an unknown type.
[[nodiscard]] std::string_view RekenTypeNaam(std::int16_t rekenType);

/// Writes the report of a calculated project. A calculation type outside 1 to 3 leaves the blocks from
/// RapHoofd on as they were. Fout 6 when a value to print is infinite or not a number; the report then stays
/// as it was.
void Afdruk(const Project& project, const Resultaten& resultaten, const Tekst<35>& gebruikersnaam,
            char decimaal, Rapport& rapport);

/// The bytes of a saved report (*.prn): the six blocks, each followed by one more CR LF.
[[nodiscard]] std::string PrnBytes(const Rapport& rapport);

/// The number in a display format, right-aligned with blanks to `breedte` characters; a longer text is not
/// cut. Fout 6 when the value is infinite or not a number.
[[nodiscard]] std::string RechtsUitlijnen(double waarde, Formaat formaat, std::size_t breedte, char decimaal);

}  // namespace murvane
