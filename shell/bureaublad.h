#pragma once
// Where the program works: in the directory where it was started or, started from the desktop, in the user's
// own data directory, which the first start fills with the settings, catalogues and samples that came with
// the program.

#include <filesystem>
#include <string>
#include <string_view>

#include "editor/dialogen.h"

namespace murvane {

/// Set to 1 by the desktop entry: nobody chose the directory in which the program was started.
inline constexpr const char* BureaubladVariabele = "MURVANE_BUREAUBLAD";

[[nodiscard]] constexpr bool IsBureaublad(std::string_view waarde) {
  return waarde == "1";
}

struct Startplaats {
  std::filesystem::path HuidigeMap;
  std::filesystem::path ProgrammaMap;
  std::filesystem::path GebruikersMap;  ///< see EigenDataMap
  bool Bureaublad = false;              ///< started from the desktop, as the environment tells
  /// Double-clicked files start the program in their own directory, and the environment can tell nothing: an
  /// installed program that finds no settings there was started from the desktop.
  bool ZonderVariabele = false;
};

/// Whether the program works in the user's own data directory: started from the desktop, or in the directory
/// of the installed program or of its data, where nothing can be kept. Else it works where it was started.
[[nodiscard]] bool WerktInGebruikersmap(const Startplaats& plaats);

/// Copies the files that came with the program to the user's own data directory, which is made, unless that
/// has settings already: the settings last, so that a first start that broke off is done again. A file that
/// is there stays as it is. Fout 53 when nothing came with the program, 76 without a data directory, failures
/// of reading and VervangBestand.
void VulGebruikersmap(const Startplaats& plaats);

struct Werkplek {
  std::filesystem::path Map;  ///< where the program works: the current directory
  std::string Opdrachtregel;  ///< names the project in full once the current directory was changed
};

/// The place to work in, as the current directory. When the user's own data directory cannot be made, filled
/// or entered the user is told, and the program works with the data that came with it, or where it was
/// started when there is none. Raises nothing.
[[nodiscard]] Werkplek KiesWerkplek(Dialogen& dialogen, const Startplaats& plaats,
                                    std::string_view opdrachtregel);

}  // namespace murvane
