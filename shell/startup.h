#pragma once
// What the program knows before it shows anything: its data directory, the decimal sign, the command line.

#include <filesystem>
#include <string>
#include <string_view>

namespace murvane {

/// The name of the settings file, by which a data directory is known.
inline constexpr const char* InstellingenNaam = "murvane.set";

/// What the system tells of the user's directories; empty where it tells nothing.
struct Gebruikersmappen {
  std::filesystem::path AppData;      ///< of Windows
  std::filesystem::path XdgDataHome;  ///< counts only when it is absolute
  std::filesystem::path Thuis;
};

/// The user's own data directory: MurVane in AppData, else murvane in XdgDataHome or in ~/.local/share. Empty
/// when the system tells of none.
[[nodiscard]] std::filesystem::path GebruikersDataMap(const Gebruikersmappen& mappen);
/// The same by what the environment tells.
[[nodiscard]] std::filesystem::path EigenDataMap();

/// The directory of the settings and catalogues for programs that are not told of one and show no window: the
/// current directory when it holds a murvane.set, else that of the user, else what came with the program.
[[nodiscard]] std::filesystem::path StandaardDataMap();
/// The rule behind it: the first that holds the settings file of the current directory, "data" in the
/// program's directory, `gebruikersMap` (see EigenDataMap) and "../share/murvane/data" beside the program;
/// the program's "data" when none does. So the programs of one installation, with and without a window, have
/// the same settings and catalogues, and a program that was only built keeps to those beside it.
[[nodiscard]] std::filesystem::path DataMapVan(const std::filesystem::path& huidigeMap,
                                               const std::filesystem::path& programmaMap,
                                               const std::filesystem::path& gebruikersMap);

/// Where the files stand that came with the program and are no programs (data/, help/, levering.txt): the
/// program's directory or, of an installed program, "../share/murvane" beside it.
[[nodiscard]] std::filesystem::path MeegeleverdeMap(const std::filesystem::path& programmaMap);
/// Whether it is the latter.
[[nodiscard]] bool IsGeinstalleerd(const std::filesystem::path& programmaMap);

/// Whether a directory holds a settings file.
[[nodiscard]] bool HeeftInstellingen(const std::filesystem::path& map);

/// The project file that a command line names, taken whole as one path, in double quotes or not (UTF-8 in and
/// out). Empty unless its last three characters are "mrv" in any case.
[[nodiscard]] std::string OpenBestandUit(std::string_view opdrachtregel);

/// The decimal sign of the system's regional setting, ',' or '.'; a sign of more than one byte counts as '.'.
/// Does not change the process locale.
[[nodiscard]] char RegionaalDecimaalteken();

}  // namespace murvane
