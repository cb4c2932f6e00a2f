#pragma once
// Which projects a command line names: files, directories, and a list of more of them.

#include <string>
#include <string_view>
#include <vector>

#include "cli/ontleed.h"
#include "cli/uitslag.h"
#include "project/records.h"

namespace murvane {

/// The names in a list: those before each NUL or, in a list without any, those on each line ("\n" or "\r\n").
/// Empty ones do not count. A "-" is a file of that name: "./-".
[[nodiscard]] std::vector<std::string> NamenUit(std::string_view lijst);

/// The projects that a command with --lijst works on: those of its command line, then those of the list. In
/// the place of a directory stand the projects in it (*.mrv in any case, by name); one without projects
/// stays, and is what LeesGenoemd refuses. Gebruiksfout when standard input is asked for twice; failures of
/// reading the list. No project at all when the list has no names.
[[nodiscard]] std::vector<std::string> NoemProjecten(const Keuzes& keuzes, const Kanalen& kanalen);

/// Reads one of those projects, as LeesProjectVan. Fout 53 for a directory without projects, 70 or 75 for one
/// that cannot be read.
[[nodiscard]] Project LeesGenoemd(const std::string& naam, const Kanalen& kanalen);

}  // namespace murvane
