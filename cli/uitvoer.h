#pragma once
// Reading and writing as all commands do it.

#include <string>
#include <string_view>

#include "cli/uitslag.h"
#include "project/records.h"

namespace murvane {

/// The name that stands for standard output.
inline constexpr std::string_view Standaarduitvoer = "-";

/// Reads the project that a command line names. Fout 52 unless the name ends in "mrv", in any case.
[[nodiscard]] Project LeesProjectVan(const std::string& naam);

/// Writes bytes to a file, whole or not at all, or to standard output.
void SchrijfNaar(const std::string& naam, std::string_view bytes, Kanalen& kanalen);

/// Whether both names lead to one ordinary file, existing or not; never so for standard output and devices.
[[nodiscard]] bool ZelfdeBestand(const std::string& een, const std::string& ander);

/// Gebruiksfout when `uitvoer` would overwrite the file that is read.
void WeigerOverschrijven(const std::string& invoer, const std::string& uitvoer);

}  // namespace murvane
