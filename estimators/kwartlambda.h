#pragma once
// Attenuation of a quarter-wave silencer: an expansion chamber in a duct (VDI 2081).

#include "basis/tekst.h"
#include "estimators/schatting.h"

namespace murvane {

/// The fields of frmCalc2.
inline constexpr std::array KwartLambdaVelden = {
    SchatVeld{SchatRegel("Text1", 5000, Formaat::Heel, HeelToetsen, "Text2"), "Hoogte/diameter kanaal", "mm",
              &KwartLambdaInvoer::h},
    SchatVeld{SchatRegel("Text2", 5000, Formaat::Heel, HeelToetsen, "Text3"), "Breedte kanaal",
              "mm (= 0 bij rond kanaal)", &KwartLambdaInvoer::B},
    SchatVeld{SchatRegel("Text3", 5000, Formaat::Een, GetalToetsen, "Text4"), "Lengte demper", "m",
              &KwartLambdaInvoer::L},
    SchatVeld{SchatRegel("Text4", 5000, Formaat::Twee, GetalToetsen, "Text1"), "Doorsnede demper", "m²"_cp,
              &KwartLambdaInvoer::S2},
};

/// Attenuation per octave band in dB, unrounded, by the ratio m of the cross-sections of chamber and duct, at
/// least 1, and the length of the chamber in m. It is greatest where the length is an odd number of quarter
/// wavelengths, and 0 where it is a whole number of half ones.
[[nodiscard]] std::array<double, Banden> Demping(double m, double L);

/// The estimate of an input that the other checks of cmdOK_Click have passed; a refusal for a chamber that is
/// narrower than the duct. An equal one attenuates nothing.
[[nodiscard]] SchatUitslag Bereken(const KwartLambdaInvoer& invoer, char decimaal);

/// The estimate, or a refusal: also without height, length or chamber.
[[nodiscard]] SchatUitslag cmdOK_Click(const KwartLambdaInvoer& invoer, char decimaal);

}  // namespace murvane
