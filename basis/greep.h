#pragma once
// The system calls below basis/bestand and basis/slot, in one form for every system. A failure is an errno.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace murvane {

enum class Toegang {
  Lezen,        ///< an existing file
  LezenNu,      ///< the same, and never waits for whoever holds the other end of a pipe
  Schrijven,    ///< an existing file; its bytes stay
  SchrijvenNu,  ///< the same, and never waits
  Doel,         ///< as SchrijvenNu; makes an empty file where there is none
  Nieuw,        ///< a file that does not exist yet
  Rest          ///< as LezenNu, but no symbolic link
};
enum class Rechten { Gewoon, AlleenEigenaar };  ///< of a file that is made

/// An open file that closes itself; Sluit() closes it and reports a failure.
class Bestandsgreep {
 public:
  /// Whether it succeeded tells Gelukt(), and why not errno.
  Bestandsgreep(const std::filesystem::path& pad, Toegang toegang, Rechten rechten = Rechten::Gewoon);
  Bestandsgreep(const Bestandsgreep&) = delete;
  Bestandsgreep& operator=(const Bestandsgreep&) = delete;
  ~Bestandsgreep();

  [[nodiscard]] bool Gelukt() const { return nummer_ >= 0; }
  [[nodiscard]] int Nummer() const { return nummer_; }
  bool Sluit();

 private:
  int nummer_;
};

/// Reads at most n bytes; how many, 0 at the end, negative when it failed.
[[nodiscard]] long long LeesStuk(int nummer, char* naar, std::size_t n);
/// Writes all bytes; the error code, or 0.
[[nodiscard]] int SchrijfAlles(int nummer, std::string_view bytes);
[[nodiscard]] bool GaNaar(int nummer, std::size_t plaats);
/// Flushes to disk; the error code, or 0.
[[nodiscard]] int Leeg(int nummer);

struct Kenmerk {
  bool Gewoon = false;  ///< a regular file
  std::uint64_t Grootte = 0;
  std::int64_t Tijd = 0;  ///< of the last change, ns since 1970
};
/// What the system tells of an open file; the error code, or 0.
[[nodiscard]] int LeesKenmerk(int nummer, Kenmerk& uit);

/// Where an open file really stands, behind all the links of the path by which the system opened it. Empty
/// when it has no name any more, another file stands there by now, or the system does not tell.
[[nodiscard]] std::filesystem::path EchtPad(int nummer, const std::filesystem::path& pad);

/// Locks an open file against all others that lock it; 0, EWOULDBLOCK while another has it, another code
/// where there are no locks. Closing the file, or the end of the program in any way, unlocks it.
[[nodiscard]] int Grendel(int nummer);
/// Whether the path still leads to the open file.
[[nodiscard]] bool LeidtNaar(const std::filesystem::path& pad, int nummer);

/// Gives a new file the owner, group and permissions of `oud`; the error code, or 0. Where the owner or group
/// cannot be kept, nobody gets more rights than before.
[[nodiscard]] int NeemRechtenOver(const std::filesystem::path& oud, int nummer);
/// Gives a whole file its name, over another one when there is one; the error code, or 0.
[[nodiscard]] int Hernoem(const std::filesystem::path& van, const std::filesystem::path& naar);

/// A name that no other process, thread or machine makes: the number of the process, and one of chance.
[[nodiscard]] std::string EigenNaam();

}  // namespace murvane
