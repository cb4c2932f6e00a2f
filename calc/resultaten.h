#pragma once
// The results of a run. They outlive it; a run writes what its calculation type calls for and leaves the
// rest.

#include <array>
#include <vector>

#include "basis/tekst.h"
#include "project/records.h"

namespace murvane {

/// The four side texts of an element in the report: beside its attenuation, self-noise, break-in and
/// subtotal.
using ElementTekstRijen = std::array<Tekst<20>, 4>;
inline constexpr ElementTekstRijen BlankeRijen = {Tekst<20>{" "}, Tekst<20>{" "}, Tekst<20>{" "},
                                                  Tekst<20>{" "}};

struct Resultaten {
  // By element; index 0 stays unused.
  std::vector<Spectrum> Subtotaal = std::vector<Spectrum>(MaxElementen + 1);  ///< running level behind it, dB
  std::vector<ElementTekstRijen> ElementTekst = std::vector<ElementTekstRijen>(MaxElementen + 1);
  std::vector<bool> HeeftInstraling = std::vector<bool>(MaxElementen + 1);  ///< it has a calculated break-in

  // Sound power, dB.
  Spectrum LwKanaalwand{};   ///< through duct wall and ceiling
  Spectrum LwEind{};         ///< at the end of the chain
  Spectrum FanNaDemping{};   ///< the fan's, behind the system's attenuation
  Spectrum SysteemGeluid{};  ///< the system's own noise at the end of the chain
  // Attenuation, dB.
  Spectrum SysteemDemping{};     ///< sum over the elements
  Spectrum OverspraakDemping{};  ///< between two rooms
  // Sound pressure level, dB.
  Spectrum LpGalmveld{};  ///< in the reverberant field
  Spectrum LpEenMeter{};  ///< at 1 m from outlet or wall
};

}  // namespace murvane
