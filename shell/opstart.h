#pragma once
// The start of the program: the data directory, the settings, the catalogues and the command line, with the
// search for the settings file when they are not found.

#include <filesystem>
#include <string_view>

#include "editor/dialogen.h"
#include "shell/programma.h"

namespace murvane {

/// What the start finds outside the program.
struct StartGegevens {
  std::filesystem::path HuidigeMap;  ///< becomes DataDir
  DatumVeld Vandaag;
  std::string_view Opdrachtregel;  ///< the whole argument text (UTF-8): one project path, in quotes or not
  char Decimaal = ',';
};

/// Fills the program from murvane.set and the four catalogues of DataDir, and OpenBestand from the command
/// line. A missing file is told, and the user asked for another directory, as often as it takes. Returns
/// Einde when the program has to end, which the user has been told then. Raises nothing.
[[nodiscard]] Vervolg MDIForm_Load(Programma& programma, Dialogen& dialogen, const StartGegevens& start);

}  // namespace murvane
