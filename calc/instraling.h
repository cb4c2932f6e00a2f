#pragma once
// Break-in: sound from the spaces along a straight duct that gets in through its wall (VDI 2081).

#include "project/records.h"

namespace murvane {

/// Works out `Instraling` (sound power in dB, slot 7 the dB(A) sum) of a straight duct from LAeq outside it
/// and the reduction Rkanaalwand of its wall; all 0 without a chosen wall. Other element types keep what they
/// have. Returns whether any band got a value. Fout 5 when the wall area is 0 or less, Fout 6 on overflow or
/// a field that is not finite.
[[nodiscard]] bool Instraal(ElementRec& element);

}  // namespace murvane
