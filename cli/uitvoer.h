#pragma once
// Reading and writing as all commands do it.

#include <cstddef>
#include <string>
#include <string_view>

#include "cli/uitslag.h"
#include "project/records.h"

namespace murvane {

/// The name that stands for standard output.
inline constexpr std::string_view Standaarduitvoer = "-";

/// Reads the project that a command line names. Fout 52 unless the name ends in "mrv", in any case.
[[nodiscard]] Project LeesProjectVan(const std::string& naam);

/// Far more than the JSON of the longest project or catalogue has, with room to lay it out by hand.
inline constexpr std::size_t GrootsteJson = std::size_t{64} << 20;
/// The text of a JSON file. Fout 75 for one that is larger: such a file is something else, and would fill the
/// memory. Failures of LeesBestand.
[[nodiscard]] std::string LeesJsonVan(const std::string& naam);

/// Writes bytes to a file, whole or not at all, or to standard output.
void SchrijfNaar(const std::string& naam, std::string_view bytes, Kanalen& kanalen);

/// Whether both names lead to one ordinary file, existing or not; never so for standard output and devices.
[[nodiscard]] bool ZelfdeBestand(const std::string& een, const std::string& ander);

/// Gebruiksfout when `uitvoer` would overwrite the file that is read.
void WeigerOverschrijven(const std::string& invoer, const std::string& uitvoer);

}  // namespace murvane
