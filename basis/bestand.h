#pragma once
// Reading a file whole and replacing a file so that at no moment half of it stands on disk.

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace murvane {

/// More bytes than a project, a catalogue or the settings ever have: what stands behind them in a file need
/// not be read, and a wrong file does not fill the memory.
inline constexpr std::size_t RuimGenoeg = std::size_t{1} << 20;

/// At most the first `hoogstens` bytes of a file. Fout 53 when it does not exist, 76 when its directory does
/// not, 70 without permission, 52 for an impossible name, 75 for any other failure (a directory, a broken
/// disk, links that go round); the Fout names the file.
[[nodiscard]] std::string LeesBestand(const std::filesystem::path& pad,
                                      std::size_t hoogstens = std::string::npos);

/// What becomes of the bytes of an existing longer file behind the new ones.
enum class Staart { Vervalt, Blijft };

/// Gives the file these bytes: written beside it, flushed to disk and renamed over it, so that a failure or a
/// crash at any moment leaves the old file whole. Permissions, owner and group (where allowed) and symbolic
/// links stay; a second name of the same file (a hard link) keeps the old bytes. A new file gets the
/// permissions of any new file. With Staart::Blijft an existing longer file keeps its length and its old
/// bytes behind the new ones. What is not a regular file (a terminal, a pipe) is written to directly. Fout 61
/// on a full disk or quota, 70 without permission to the file or its directory, 76 when the directory does
/// not exist, 52 for an impossible name, 75 for any other failure (a directory, a broken disk, links that go
/// round); the Fout names the file as it was given. A failure leaves nothing beside the file, a killed
/// program at most one file `~murvane-*`.
void VervangBestand(const std::filesystem::path& pad, std::string_view bytes,
                    Staart staart = Staart::Vervalt);

/// The path as UTF-8, for messages.
[[nodiscard]] std::string PadTekst(const std::filesystem::path& pad);
/// The path of a UTF-8 text, as the command line and JSON hold it.
[[nodiscard]] std::filesystem::path PadVan(std::string_view utf8);

/// The directory of the running program; empty when the system does not tell.
[[nodiscard]] std::filesystem::path ProgrammaMap();

}  // namespace murvane
