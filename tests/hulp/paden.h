#pragma once
// Where a test finds the sources of the project and the programs that were built from them.

#include <filesystem>
#include <string_view>

namespace murvane::proef {

/// The directory of the sources.
[[nodiscard]] std::filesystem::path BronMap();
/// A program of this build, as "murvane-cli".
[[nodiscard]] std::filesystem::path Programma(std::string_view naam);

}  // namespace murvane::proef
