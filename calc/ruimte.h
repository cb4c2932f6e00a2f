#pragma once
// Final results: the system's attenuation and own noise, and the levels in the room (ISSO publication 24).

#include "calc/resultaten.h"
#include "project/records.h"

namespace murvane {

/// Fills SysteemDemping and, except for Overspraak, FanNaDemping and SysteemGeluid (dB, slot 7 the dB(A)
/// value). Bands of the last two below 0 become 0 after their dB(A) sums are taken. Faults 6 and 9.
void EindResult(const Project& project, Resultaten& resultaten);

/// Fills LpGalmveld and LpEenMeter, or for Overspraak OverspraakDemping; unclamped. A free field (VrijVeld
/// exactly 1, not for Overspraak) counts as an absorption of 1E+20 m² and one outlet. A reverberation time of
/// exactly 0 is taken as 1E-20 s. Faults 5, 6, 9 and 11.
void RuimteDemping(const Project& project, Resultaten& resultaten);

}  // namespace murvane
