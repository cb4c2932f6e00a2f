#pragma once
// The models of the built-in elements (ISSO publication 24; VDI 2081). Each reads the fields of its own
// element and writes its attenuation `demp` (dB, slots 0 to 6), its self-noise `ruis` (sound power in dB,
// slot 7 the dB(A) sum) and the element's four report texts; none looks at a neighbour. Faults: 5 for a
// logarithm of zero or less, 11 for a division by zero (a section of 0), 6 for an overflow or a field that is
// not a finite number. Where a width of 0 or less, not the element type, makes a section round, the model
// says so.

#include <cstdint>

#include "calc/resultaten.h"
#include "project/records.h"

namespace murvane {

/// Branch, types 1 (rectangular) and 2 (round). The chain follows the branch; main and through duct are round
/// when their width is 0 or less. A branch of more than 80 % and at most 100 % of the main section splits
/// nothing.
void Aftak(ElementRec& element, ElementTekstRijen& tekst, char decimaal);

/// Bend, types 3 and 4 (rectangular; 3 is 5 dB noisier) and 5 (round). Noise below 0 dB becomes 0.
void Bocht(ElementRec& element, ElementTekstRijen& tekst, char decimaal);

/// Section change, types 6 (rectangular inlet) and 7 (round inlet); the outlet is round when its width is 0
/// or less. Attenuation from 0 to 8 dB, only where the section widens; no self-noise. Speed of sound 340 m/s.
void Drsnee(ElementRec& element, ElementTekstRijen& tekst, char decimaal);

/// Straight duct, types 8 (rectangular) and 9 (round). Shorter than 0.5 m it counts as not there. Noise may
/// be negative.
void ReKan(ElementRec& element, ElementTekstRijen& tekst, char decimaal);

/// Control damper, type 10; round when its width is 0 or less. No attenuation; noise below 0 dB becomes 0.
void RegelKlep(ElementRec& element, ElementTekstRijen& tekst, char decimaal);

/// Air outlet, type 11; round when its width is 0 or less. End reflection by the room's directivity factor
/// (1, 2, 4 or 8; any other value leaves `demp` as it is), never below 0. Takes the room's RDI and RAantal
/// over. Its noise is skipped in an Overspraak run, where `ruis` keeps what it had.
void Rooster(ElementRec& element, const RuimteRec& ruimte, std::int16_t rekenType, ElementTekstRijen& tekst,
             char decimaal);

}  // namespace murvane
