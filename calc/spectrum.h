#pragma once
// calc/: the acoustic calculation after ISSO publication 24 (1990) and VDI 2081 (1983), on plain records.
// This header: the octave bands, the energetic sum of a spectrum, duct sections and the two flow-noise curves
// that several elements share. A band at exactly 0 dB holds no sound and takes no part in a sum.

#include <array>
#include <numbers>
#include <string_view>

#include "project/records.h"

namespace murvane {

inline constexpr double Pi = std::numbers::pi;

/// Octave-band centre frequencies, Hz.
inline constexpr std::array<double, Banden> Frequentie = {63, 125, 250, 500, 1000, 2000, 4000};
/// Band widths, Hz. The 690 of the 1000 Hz band is the value of the method, not a slip for 710.
inline constexpr std::array<double, Banden> BandBreedte = {45, 90, 175, 355, 690, 1400, 2800};
/// A-weighting, dB.
inline constexpr std::array<double, Banden> AWeging = {-26.2, -16.1, -8.6, -3.2, 0, 1.2, 1.0};
/// Column headings; the last one stands over the A-weighted sum.
inline constexpr std::array<std::string_view, 8> BandLabel = {"   63 ", "  125 ", "  250 ", "  500 ",
                                                              " 1000 ", " 2000 ", " 4000 ", " dB(A)"};

/// Energetic sum of bands 0 to 6, dB, or dB(A) with `metA`; 0 when no band holds sound. Fout 6 when a band is
/// not finite or its power is too large.
[[nodiscard]] double EnergetischeSom(const Spectrum& spectrum, bool metA);

/// Cross-section in m² from height or diameter h and width b, both mm; b is not read for a round section.
[[nodiscard]] double Oppervlak(double h, double b, bool rond);

/// Diameter of the circle with the area of a rectangle h x b; all mm. Fout 5 when h·b is negative.
[[nodiscard]] double EquivDiameter(double h, double b);

/// Flow-noise curve of bends and branches, dB, of the Strouhal number x > 0; pieces include their upper
/// bound.
[[nodiscard]] double BochtKromme(double x);

/// Flow-noise curve of outlets and dampers, dB, of x > 0; pieces include their upper bound.
[[nodiscard]] double RoosterKromme(double x);

/// 10·log10 of each band width, dB.
[[nodiscard]] const std::array<double, Banden>& BandBreedteNiveau();

}  // namespace murvane
