#pragma once
// Sound reduction of a duct wall by the mass law, from its material, thickness and added mass.

#include "basis/tekst.h"
#include "estimators/schatting.h"

namespace murvane {

/// The fields of frmDuctCalc.
inline constexpr std::array KanaalwandVelden = {
    SchatVeld{SchatRegel("txtDikte", 100, Formaat::Heel, HeelToetsen, "txtMassa"), "dikte kanaalwand", "mm",
              &KanaalwandInvoer::Dikte},
    SchatVeld{SchatRegel("txtMassa", 100, Formaat::Een, GetalToetsen, "txtDikte"), "massa ontdreuning",
              "kg/m²"_cp, &KanaalwandInvoer::Massa},
};

/// The options of frmDuctCalc.
struct KanaalSoort {
  std::int32_t KanaalType;   ///< kanaaltype
  std::string_view Naam;     ///< of the control
  std::string_view Caption;  ///< also in the description
  double Massa;              ///< kg/m² per mm
};

inline constexpr std::array KanaalSoorten = {
    KanaalSoort{kanaaltype::Zink, "optZink", "verzinkt staal", 7.8},
    KanaalSoort{kanaaltype::RVS, "optRVS", "rvs staal", 7.8},
    KanaalSoort{kanaaltype::Alu, "optAlu", "aluminium", 2.7},
    KanaalSoort{kanaaltype::Kunststof, "optKunststof", "kunststof", 1.3},
};

/// Sound reduction in dB, unrounded, from the wall's mass in kg/m² and its product with the frequency in
/// kHz·kg/m², above 0. The pieces include their upper bounds and do not join: a jump is part of the model.
[[nodiscard]] double Isolatie(double Massakan, double mf);

/// The opening of the window: a material that is none of the four becomes galvanised steel.
void Form_Load(KanaalwandInvoer& invoer);

/// The estimate of an input that cmdOK_Click has passed; a thin light wall has a negative value at 63 Hz.
/// Fout 9 for a material that is none of the four.
[[nodiscard]] Schatting Bereken(const KanaalwandInvoer& invoer, char decimaal);

/// The estimate, or a refusal of a wall without thickness.
[[nodiscard]] SchatUitslag cmdOK_Click(const KanaalwandInvoer& invoer, char decimaal);

}  // namespace murvane
