#pragma once
// Files in tests: a fresh directory with blanks and accents in its name, plain reading and writing that does
// not go through the code under test, the number of a Fout, and a device that is full after so many bytes.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "basis/fout.h"

namespace murvane::proef {

/// A new directory, open to every user, that is removed with everything in it.
class TijdelijkeMap {
 public:
  TijdelijkeMap();
  TijdelijkeMap(const TijdelijkeMap&) = delete;
  TijdelijkeMap& operator=(const TijdelijkeMap&) = delete;
  ~TijdelijkeMap();
  [[nodiscard]] const std::filesystem::path& Pad() const { return pad_; }
  [[nodiscard]] std::filesystem::path operator/(std::string_view naam) const { return pad_ / naam; }
  /// The names in the directory, in order.
  [[nodiscard]] std::vector<std::string> Namen() const;

 private:
  std::filesystem::path pad_;
};

void Schrijf(const std::filesystem::path& pad, std::string_view bytes);
[[nodiscard]] std::string Lees(const std::filesystem::path& pad);

/// The number of the Fout that a call raises, or 0.
template <typename Roep>
int NummerVan(Roep roep) {
  try {
    static_cast<void>(roep());
    return 0;
  } catch (const Fout& fout) {
    return static_cast<int>(fout.Nummer());
  }
}

/// The file that the Fout of a call names; "geen Fout" when it raises none.
template <typename Roep>
std::string BestandVan(Roep roep) {
  try {
    static_cast<void>(roep());
    return "geen Fout";
  } catch (const Fout& fout) {
    return fout.Bestand();
  }
}

/// While it lives no file of this process can grow past `bytes`: a write really fails there.
class Schijfgrens {
 public:
  explicit Schijfgrens(std::size_t bytes);
  Schijfgrens(const Schijfgrens&) = delete;
  Schijfgrens& operator=(const Schijfgrens&) = delete;
  ~Schijfgrens();

 private:
  std::uint64_t oud_;
  void (*oudSignaal_)(int);
};

/// What `roep` gives (0 to 255) in a process of its own without special rights; -1 when that process dies.
int AlsGewoneGebruiker(const std::function<int()>& roep);

}  // namespace murvane::proef
