#pragma once
// Reading and writing as all commands do it.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "cli/uitslag.h"
#include "project/records.h"

namespace murvane {

/// The name that stands for standard input and standard output.
inline constexpr std::string_view Standaardstroom = "-";

/// A file that is read, as messages name it.
[[nodiscard]] std::string InvoerNaam(const std::string& naam);

/// Reads the project that a command line names, or that of standard input. Fout 52 unless the name ends in
/// "mrv", in any case.
[[nodiscard]] Project LeesProjectVan(const std::string& naam, const Kanalen& kanalen);

/// Far more than the JSON of the longest project or catalogue has, with room to lay it out by hand.
inline constexpr std::size_t GrootsteJson = std::size_t{16} << 20;
/// The text of a JSON file. Fout 75 for one that is larger: such a file is something else, and would fill the
/// memory. Failures of LeesBestand.
[[nodiscard]] std::string LeesJsonVan(const std::string& naam);

/// Writes bytes to a file, whole or not at all, or to standard output.
void SchrijfNaar(const std::string& naam, std::string_view bytes, Kanalen& kanalen);

/// Whether both names lead to one ordinary file, existing or not; never so for standard input and output and
/// for devices.
[[nodiscard]] bool ZelfdeBestand(const std::string& een, const std::string& ander);

/// Gebruiksfout when `uitvoer` would overwrite the file that is read.
void WeigerOverschrijven(const std::string& invoer, const std::string& uitvoer);

/// The files of one command, told before the first is written, so that none takes the place of another. Files
/// are told apart by what they are, not by their names.
class Bestandenplan {
 public:
  void Leest(const std::string& naam);
  /// Gebruiksfout when it is a file that is read, or one that is written already.
  void Schrijft(const std::string& naam);

 private:
  using Namen = std::unordered_map<std::string, std::string>;  ///< by what tells files apart
  Namen leest_, schrijft_, inKleineLetters_;
};

}  // namespace murvane
