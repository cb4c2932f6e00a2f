#pragma once
// Makes chosen system calls of the code under test fail. The test program is linked with --wrap for each of
// them (tests/CMakeLists.txt).

#include <sys/types.h>

#include <cstddef>
#include <functional>
#include <string>

namespace murvane::proef {

enum class Aanroep {
  Open,
  Zoek,
  Lees,
  Schrijf,
  Leeg,
  Sluit,
  Hernoem,
  Rechten,
  Eigenaar,
  Stat,
  FStat,
  LStat,
  LeesLink,
  Grendel,
  Lijst
};

/// While it lives, `besluit` is asked at every watched system call of this thread: 0 lets it happen, any
/// other value is the errno with which it fails. A close that fails does close, as it does on the real
/// system.
class Ingreep {
 public:
  using Besluit = std::function<int(Aanroep)>;

  explicit Ingreep(Besluit besluit);
  Ingreep(const Ingreep&) = delete;
  Ingreep& operator=(const Ingreep&) = delete;
  ~Ingreep();

  std::size_t GrootsteStuk = static_cast<std::size_t>(-1);  ///< no read or write gets more than this at once
  uid_t AndereEigenaar = 0;                                 ///< added to the owner that stat() tells
  gid_t AndereGroep = 0;                                    ///< added to the group that stat() tells
  std::string Lijst;         ///< when not empty: the access list that files have
  std::string GezetteLijst;  ///< the access list that was set on a file
  int DubbelGesloten = 0;    ///< closes of a number that was not open, which may be another thread's by then

  [[nodiscard]] int Vraag(Aanroep wat) { return besluit_(wat); }

 private:
  Besluit besluit_;
};

}  // namespace murvane::proef
