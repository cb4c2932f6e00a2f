#pragma once
// The results of a run as JSON, for other programs: unrounded, shortest round-trip.

#include <string>

#include "calc/resultaten.h"
#include "project/records.h"

namespace murvane {

/// An object with the list "Elementen" ("Nummer" from 1, "Naam", "ElementType", "demp", "ruis", "Instraling",
/// "Subtotaal", "HeeftInstraling", "ElementTekst") and the spectra "Lw" (of the fan), "LwKanaalwand",
/// "LwEind", "SysteemDemping", "FanNaDemping", "SysteemGeluid", "LpGalmveld", "LpEenMeter" and
/// "OverspraakDemping"; spectra have all 8 slots, dB. UTF-8 with a final line end. Fout 9 for an ElementCount
/// above 500; a negative one has no elements.
[[nodiscard]] std::string ResultaatNaarJson(const Project& project, const Resultaten& resultaten);

}  // namespace murvane
