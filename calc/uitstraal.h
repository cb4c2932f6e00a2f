#pragma once
// The end of the chain: what leaves the last element, or radiates through its wall and the ceiling (VDI
// 2081).

#include "calc/resultaten.h"
#include "project/records.h"

namespace murvane {

/// Fills LwEind and, for Geluidsuitstraling, LwKanaalwand (sound power in dB, slot 7 the dB(A) sum); both
/// stay 0 for any other calculation type than Installatiegeluid and Geluidsuitstraling. The wall's effective
/// reduction is at least 3 dB. Fout 9 for a negative ElementCount; 5, 6 and 11 as the element models.
void UitStraal(const Project& project, Resultaten& resultaten);

}  // namespace murvane
