#pragma once
// basis/: what every subsystem needs: fixed text and its code page, number formats, error numbers,
// little-endian streams and crash-safe file replacement. Only the standard library.
// This header: the one exception type, with the error number by which the rules tell cases apart.

#include <exception>
#include <string>

namespace murvane {

enum class FoutNummer : int {
  OngeldigArgument = 5,  ///< logarithm of zero or less, root of a negative number
  Overloop = 6,          ///< a result, or a number met, is infinite or not a number
  OnvoldoendeGeheugen = 7,
  IndexBuitenBereik = 9,  ///< a count above the size of its array
  DelingDoorNul = 11,
  GeenGetal = 13,    ///< a text or a JSON value that should be a number and is not
  InterneFout = 51,  ///< what should not happen
  OngeldigeBestandsnaam = 52,
  BestandNietGevonden = 53,
  SchijfVol = 61,
  VoorbijEinde = 62,  ///< a file that ends before its last field
  GeenToestemming = 70,
  PadToegang = 75,  ///< any other failure of the file system
  PadNietGevonden = 76,
  DialoogGeannuleerd = 32755,
};

/// The usual Dutch description of an error number, without a full stop.
const char* Beschrijving(FoutNummer nummer);

/// One failure. `what()` is the description with, where known, the place between brackets; the number, place
/// and file stay apart so that whoever shows the failure can choose the wording around them.
class Fout : public std::exception {
 public:
  explicit Fout(FoutNummer nummer);
  /// `omschrijving` (UTF-8, Dutch, no full stop) replaces the usual description; `plaats` says where in the
  /// input the failure was met, as "kanaalelement 3" or "regel 2, kolom 5"; `bestand` names the file.
  Fout(FoutNummer nummer, std::string omschrijving, std::string plaats = {}, std::string bestand = {});

  [[nodiscard]] FoutNummer Nummer() const { return nummer_; }
  [[nodiscard]] const std::string& Plaats() const { return plaats_; }
  [[nodiscard]] const std::string& Bestand() const { return bestand_; }
  [[nodiscard]] const char* what() const noexcept override { return tekst_.c_str(); }

  /// "Fout N - description.", the form in which every failure is shown.
  [[nodiscard]] std::string Melding() const;

  /// The same failure with its place or file named, unless it named one already.
  [[nodiscard]] Fout MetPlaats(std::string plaats) const;
  [[nodiscard]] Fout MetBestand(std::string bestand) const;

 private:
  FoutNummer nummer_;
  std::string omschrijving_, plaats_, bestand_, tekst_;
};

/// Does `werk`; a Fout that it raises names `bestand`, unless it named a file already.
template <typename Werk>
auto OverBestand(const std::string& bestand, Werk werk) {
  try {
    return werk();
  } catch (const Fout& fout) {
    throw fout.MetBestand(bestand);
  }
}

/// The exception that is being handled, as a Fout: a Fout itself, 7 for a lack of memory, 75 for a failure of
/// the file system, 51 for anything else. Only to be called where an exception was caught.
[[nodiscard]] Fout HuidigeFout();

}  // namespace murvane
