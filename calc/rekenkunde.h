#pragma once
// The arithmetic of the calculation, checked: a fault stops the run where it happens and never travels on as
// not-a-number or infinity. Logarithms are ln x / ln 10 and ln x / ln 2, powers the ordinary double power.

#include <cmath>
#include <initializer_list>
#include <numbers>

#include "basis/fout.h"

namespace murvane {

/// The value itself; Fout 6 when it is infinite or not a number.
inline double Eindig(double x) {
  if (!std::isfinite(x)) throw Fout(FoutNummer::Overloop);
  return x;
}

/// Fout 6 when one of the values that a rule reads is infinite or not a number.
inline void EisEindig(std::initializer_list<double> waarden) {
  for (const double x : waarden) Eindig(x);
}

/// a / b; Fout 11 when b is 0, Fout 6 when the quotient is too large.
inline double Deel(double a, double b) {
  if (b == 0) throw Fout(FoutNummer::DelingDoorNul);
  return Eindig(a / Eindig(b));
}

/// ln x; Fout 6 when x is infinite or not a number, Fout 5 when it is 0 or less.
inline double Ln(double x) {
  if (Eindig(x) <= 0) throw Fout(FoutNummer::OngeldigArgument);
  return std::log(x);
}

inline double Log10(double x) {
  return Ln(x) / std::numbers::ln10;
}
inline double Log2(double x) {
  return Ln(x) / std::numbers::ln2;
}

/// 10 to the power y; Fout 6 when it is too large.
inline double Macht10(double y) {
  return Eindig(std::pow(10.0, Eindig(y)));
}

/// Square root; Fout 6 when x is infinite or not a number, Fout 5 when it is negative.
inline double Wortel(double x) {
  if (Eindig(x) < 0) throw Fout(FoutNummer::OngeldigArgument);
  return std::sqrt(x);
}

}  // namespace murvane
