#pragma once
// Reading a file whole and replacing a file so that at no moment half of it stands on disk.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "basis/stempel.h"

namespace murvane {

/// More bytes than a project, a catalogue or the settings ever have: what stands behind them in a file need
/// not be read, and a wrong file does not fill the memory.
inline constexpr std::size_t RuimGenoeg = std::size_t{1} << 20;

/// At most the first `hoogstens` bytes of a file. Fout 53 when it does not exist, 76 when its directory does
/// not, 70 without permission, 52 for an impossible name, 75 for any other failure (a directory, a broken
/// disk, links that go round); the Fout names the file.
[[nodiscard]] std::string LeesBestand(const std::filesystem::path& pad,
                                      std::size_t hoogstens = std::string::npos);

/// The first RuimGenoeg bytes of a project, a catalogue or the settings. Only a regular file is read:
/// anything else (a pipe, a device, a directory) is Fout 75 at once. Else as LeesBestand.
[[nodiscard]] Inhoud LeesInhoud(const std::filesystem::path& pad);

/// What becomes of the bytes of an existing longer file behind the new ones.
enum class Staart { Vervalt, Blijft };

/// What becomes of the files that killed saves left beside the file. Who saves thousands of files in one
/// directory clears it once.
enum class Resten { Weg, Blijven };

/// Gives the file these bytes: written beside it, flushed to disk and renamed over it, so that a failure or a
/// crash at any moment leaves the old file whole. Permissions, owner and group (where allowed) and symbolic
/// links stay; a second name of the same file (a hard link) keeps the old bytes. A new file gets the
/// permissions of any new file. With Staart::Blijft an existing longer file keeps its length and its old
/// bytes behind the new ones. What is not a regular file (a terminal, a pipe) is written to directly. The
/// system itself follows the links of a path, so that its rules for links in shared directories hold; behind
/// a link to nothing the new file stands empty until it is whole. Fout 61 on a full disk or quota, 70 without
/// permission to the file or its directory, 76 when the directory does not exist, 52 for an impossible name,
/// 75 for any other failure (a directory, a broken disk, links that go round); the Fout names the file as it
/// was given. A failure leaves nothing beside the file, a killed program at most one file `~murvane-*`.
void VervangBestand(const std::filesystem::path& pad, std::string_view bytes, Staart staart = Staart::Vervalt,
                    Resten resten = Resten::Weg);

/// Removes from a directory the files `~murvane-*` that killed saves left: those that are older than a day
/// and that no program is writing. One that cannot be removed stays. Raises nothing.
void RuimRestenOp(const std::filesystem::path& map);

/// The path as UTF-8, for messages.
[[nodiscard]] std::string PadTekst(const std::filesystem::path& pad);
/// The path of a UTF-8 text, as the command line and JSON hold it.
[[nodiscard]] std::filesystem::path PadVan(std::string_view utf8);

/// The directory of the running program; empty when the system does not tell.
[[nodiscard]] std::filesystem::path ProgrammaMap();

}  // namespace murvane
