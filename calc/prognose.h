#pragma once
// Prognosis of a fan's sound power from its type, flow, pressure and power (VDI 2081, ISSO publication 24).

#include "project/records.h"

namespace murvane {

/// Fills FanRec::Lw (dB, slot 7 the dB(A) sum) from FanDebiet, FanDruk, FanToeren, FanSchoepen, FanVermogen
/// and FanType. Fout 9 for a FanType outside 1 to 3, 11 for a power of 0, 5 for a pressure or flow of 0 or
/// less, 6 for a field that is not finite. Lw is written only when everything could be worked out.
void BerekenPrognose(FanRec& fan);

}  // namespace murvane
