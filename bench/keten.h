#pragma once
// The project that the benchmarks calculate: a mixed chain of every element type.

#include "project/records.h"

namespace murvane {

/// A project of calculation type 1 with `aantal` elements (2 to 500) that passes the checks: a duct first, an
/// outlet last, every other type in turn between them, break-in on some of the ducts.
[[nodiscard]] Project GemengdeKeten(int aantal);

/// How often the rules of a run call for a power of ten and for a logarithm whose argument is not a constant,
/// for a calculated project of type 1, each value that is the same for all bands worked out once.
struct Aanroepen {
  int Machten = 0;
  int Logaritmen = 0;
};
[[nodiscard]] Aanroepen TelAanroepen(const Project& berekend);

}  // namespace murvane
