#pragma once
// Attenuation of a lined plenum box that a duct enters: direct and reverberant sound (VDI 2081).

#include "basis/tekst.h"
#include "estimators/schatting.h"

namespace murvane {

/// The fields of frmCalc3.
inline constexpr std::array PlenumVelden = {
    SchatVeld{SchatRegel("Text1", 5000, Formaat::Heel, HeelToetsen, "Text2"), "Hoogte plenumdemper", "mm",
              &PlenumInvoer::Hdemper},
    SchatVeld{SchatRegel("Text2", 5000, Formaat::Heel, HeelToetsen, "Text3"), "Breedte plenumdemper", "mm",
              &PlenumInvoer::Bdemper},
    SchatVeld{SchatRegel("Text3", 5000, Formaat::Een, GetalToetsen, "Text4"), "Lengte plenumdemper", "m",
              &PlenumInvoer::L},
    SchatVeld{SchatRegel("Text4", 5000, Formaat::Heel, HeelToetsen, "Text5"), "Hoogte/diameter kanaal",
              "mm (intredekanaal)", &PlenumInvoer::h},
    SchatVeld{SchatRegel("Text5", 5000, Formaat::Heel, HeelToetsen, "Text6"), "Breedte kanaal",
              "mm (= 0 bij rond kanaal)", &PlenumInvoer::B},
    SchatVeld{SchatRegel("Text6", 5000, Formaat::Heel, HeelToetsen, "Text1"), "Dikte bekledingsmateriaal",
              "mm", &PlenumInvoer::Dikte},
};

/// Attenuation per octave band in dB, unrounded, of an input that cmdOK_Click has passed. A band that the
/// formula makes louder gets 0.
[[nodiscard]] std::array<double, Banden> Demping(const PlenumInvoer& invoer);

/// The estimate of such an input.
[[nodiscard]] Schatting Bereken(const PlenumInvoer& invoer, char decimaal);

/// The estimate, or a refusal: without a box, with an inlet as high as the box or higher, or wider than it
/// (an equal width passes), or with a lining under 1 mm or one that leaves no passage.
[[nodiscard]] SchatUitslag cmdOK_Click(const PlenumInvoer& invoer, char decimaal);

}  // namespace murvane
