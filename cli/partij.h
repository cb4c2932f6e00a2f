#pragma once
// Many projects at once: the files of each in one directory, named after it.

#include <filesystem>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "cli/ontleed.h"
#include "cli/uitslag.h"
#include "cli/uitvoer.h"

namespace murvane {

/// The work on one project; its files are `doel` and an extension. May throw nothing.
using Partijwerk = std::function<Uitslag(const std::string& naam, const std::filesystem::path& doel)>;

struct Partij {
  std::string Map;                              ///< is made when needed
  std::span<const std::string_view> Extensies;  ///< of the files of each project, as ".prn"
  unsigned Taken = 1;                           ///< threads, as VerdeelWerk has them
};

/// Gebruiksfout when two projects would share a file, when a file would be written that is read (those of
/// `plan` count), and for standard input, which has no name.
void ControleerPartij(const Keuzes& keuzes, const Partij& partij, Bestandenplan plan);

/// Does the work on every project of a command that passed ControleerPartij, with a line of progress on a
/// terminal; the exit status. Of a project that is refused or fails the files of an earlier run go, and its
/// message says so.
[[nodiscard]] int VoerPartij(const Keuzes& keuzes, const Partij& partij,
                             const std::function<Partijwerk()>& nieuwWerk, Kanalen& kanalen);

}  // namespace murvane
