#pragma once
// The calculation run: the chain in flow order, its end, and the room. It works on the records handed to it
// and on nothing else, so that several runs go side by side.

#include <functional>

#include "calc/resultaten.h"
#include "project/records.h"

namespace murvane {

/// Carries the running level past element i (1 or above): the level behind the previous element, or the fan's
/// Lw, less this element's attenuation, plus energetically its self-noise and break-in. Fills Subtotaal(i),
/// dB, slot 7 the dB(A) sum; levels below 0 are kept. Fout 5 when the power underflows to 0, Fout 6 on
/// overflow.
void TussenResult(const Project& project, int i, Resultaten& resultaten);

/// Calculates a project whose records are complete (checked and with inherited fields). Writes `demp`,
/// `ruis`, `Instraling`, `ElRDI` and `ElRAantal` of the elements and the results. A fault in the arithmetic
/// ends the run as Fout 5, 6, 9 or 11, with the element, the end of the chain or the room as its place;
/// results written so far stay.
/// `decimaal` is the decimal sign of the report texts. `voortgang`, where there is one, is told the number of
/// each element before it is calculated.
void Reken(Project& project, Resultaten& resultaten, char decimaal,
           const std::function<void(int)>& voortgang = nullptr);

}  // namespace murvane
