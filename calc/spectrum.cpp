#include "calc/spectrum.h"

#include "calc/rekenkunde.h"

namespace murvane {

double EnergetischeSom(const Spectrum& spectrum, bool metA) {
  double s = 0;
  for (std::size_t b = 0; b < Banden; ++b) {
    const double niveau = spectrum[b];
    if (niveau != 0) s += Macht10((metA ? niveau + AWeging[b] : niveau) / 10);
  }
  if (s == 0) return 0;
  return 10 * Ln(s) / std::numbers::ln10;
}

double Oppervlak(double h, double b, bool rond) {
  return Eindig(rond ? (h / 2000) * Pi * (h / 2000) : (h / 1000) * (b / 1000));
}

double EquivDiameter(double h, double b) {
  return Wortel(4 * h * b / Pi);
}

double BochtKromme(double x) {
  const double lg = Log10(x);
  if (x <= 1) return -15.613 * lg + 12.2;
  if (x <= 2) return -17.606 * lg + 12.2;
  if (x <= 3) return -23.283 * lg + 13.909;
  if (x <= 4) return -22.411 * lg + 13.493;
  if (x <= 6) return -21.58 * lg + 12.993;
  if (x <= 10) return -25.242 * lg + 15.842;
  if (x <= 15) return -24.987 * lg + 15.587;
  return -29.897 * lg + 21.362;
}

double RoosterKromme(double x) {
  const double l2 = Log2(x);
  if (x <= 6.3) return -2.1 * l2 + 13.486;
  if (x <= 12.5) return -1.02 * l2 + 10.613;
  if (x <= 25) return 6.9;
  if (x <= 50) return 0.2 * l2 + 5.97;
  if (x <= 100) return 3.5 * l2 - 12.64;
  if (x <= 200) return 8 * l2 - 42.55;
  if (x <= 400) return 10.4 * l2 - 60.9;
  return 11 * l2 - 66.08;
}

const std::array<double, Banden>& BandBreedteNiveau() {
  static const std::array<double, Banden> niveau = [] {
    std::array<double, Banden> uit{};
    for (std::size_t b = 0; b < Banden; ++b) uit[b] = 10 * Log10(BandBreedte[b]);
    return uit;
  }();
  return niveau;
}

}  // namespace murvane
