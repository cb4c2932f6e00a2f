#pragma once
// Attenuation of a duct with an absorbent lining (ISSO publication 24), and the absorption of such a lining.

#include "basis/tekst.h"
#include "estimators/schatting.h"

namespace murvane {

/// The fields of frmCalc1.
inline constexpr std::array BekleedVelden = {
    SchatVeld{SchatRegel("Text1", 5000, Formaat::Heel, HeelToetsen, "Text2"), "Hoogte/diameter kanaal", "mm",
              &BekleedInvoer::h},
    SchatVeld{SchatRegel("Text2", 5000, Formaat::Heel, HeelToetsen, "Text3"), "Breedte kanaal",
              "mm (= 0 bij rond kanaal)", &BekleedInvoer::B},
    SchatVeld{SchatRegel("Text3", 5000, Formaat::Heel, HeelToetsen, "Text4"), "Dikte bekledingsmateriaal",
              "mm", &BekleedInvoer::Dikte},
    SchatVeld{SchatRegel("Text4", 5000, Formaat::Een, GetalToetsen, "Text1"), "Lengte kanaal", "m",
              &BekleedInvoer::L},
};

/// Absorption coefficient of a lining per octave band, 0.01 to 1, by its thickness in mm (not negative):
/// between the rows of the table a straight line, above the last one levelling off.
[[nodiscard]] std::array<double, Banden> ExtraPolatie(double dikte);

/// Attenuation per octave band in dB, unrounded, of an input that cmdOK_Click has passed. The section is that
/// of the full duct: the lining takes nothing off it.
[[nodiscard]] std::array<double, Banden> Demping(const BekleedInvoer& invoer);

/// The estimate of such an input.
[[nodiscard]] Schatting Bereken(const BekleedInvoer& invoer, char decimaal);

/// The estimate, or a refusal: without height, without length, or with a lining that leaves no passage.
[[nodiscard]] SchatUitslag cmdOK_Click(const BekleedInvoer& invoer, char decimaal);

}  // namespace murvane
