#pragma once
// One run from records to report, as every user of the core does it: checks, calculation, report.

#include <optional>

#include "calc/resultaten.h"
#include "editor/validate.h"
#include "project/records.h"
#include "reports/rapport.h"

namespace murvane {

/// Checks a project with the given fields and, when no rule fails, calculates it and writes the report.
/// Returns the failed rule; results and report then stay as they were. Faults travel as Fout.
[[nodiscard]] std::optional<Bevinding> VoerUit(Project& project, const ProjectInvoer& invoer,
                                               const Tekst<35>& gebruikersnaam, char decimaal,
                                               Resultaten& resultaten, Rapport& rapport);

}  // namespace murvane
