#pragma once
// What the program knows before it shows anything: its data directory, the decimal sign, the command line.

#include <filesystem>
#include <string>
#include <string_view>

namespace murvane {

/// The name of the settings file, by which a data directory is known.
inline constexpr const char* InstellingenNaam = "murvane.set";

/// The directory of the settings and catalogues when none is named: the current directory when it holds a
/// murvane.set, else the data directory that came with the program.
[[nodiscard]] std::filesystem::path StandaardDataMap();
/// The rule behind it: the first of the current directory, "data" in the program's directory and
/// "../share/murvane/data" beside it that holds the settings file; the program's "data" when none does.
[[nodiscard]] std::filesystem::path DataMapVan(const std::filesystem::path& huidigeMap,
                                               const std::filesystem::path& programmaMap);

/// Where the files stand that came with the program and are no programs (data/, help/, levering.txt): the
/// program's directory or, of an installed program, "../share/murvane" beside it.
[[nodiscard]] std::filesystem::path MeegeleverdeMap(const std::filesystem::path& programmaMap);

/// Whether a directory holds a settings file.
[[nodiscard]] bool HeeftInstellingen(const std::filesystem::path& map);

/// The project file that a command line names, taken whole as one path, in double quotes or not (UTF-8 in and
/// out). Empty unless its last three characters are "mrv" in any case.
[[nodiscard]] std::string OpenBestandUit(std::string_view opdrachtregel);

/// The decimal sign of the system's regional setting, ',' or '.'; a sign of more than one byte counts as '.'.
/// Does not change the process locale.
[[nodiscard]] char RegionaalDecimaalteken();

}  // namespace murvane
