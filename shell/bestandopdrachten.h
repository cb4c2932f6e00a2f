#pragma once
// The commands of the main window that touch files: open, save, close and leave. Each tells the window what
// to do next and keeps the project in memory whole whatever fails.
//
// A failure shows its box. OK runs the failed step again; a refused file name (Fout 52) goes back to the
// dialog that gave it. Cancel, Escape or the box's close button ends the command.

#include <filesystem>
#include <functional>
#include <string>

#include "editor/dialogen.h"
#include "shell/programma.h"

namespace murvane {

/// A new project's part outside the window, behind Reset: today as its date, no file name.
void mnuNieuw_Click(Programma& programma);

/// Reads a project file into the program; the text for panel 1 of the status bar (UTF-8), its bare name.
/// Failures of LeesProject; the project then stays as it was.
std::string Openen(Programma& programma, Dialogen& dialogen, const std::filesystem::path& pad);

struct OpenUitkomst {
  bool Geopend = false;  ///< the window shows the project; otherwise it runs Settings: there is no project
  std::string Panel1;    ///< for panel 1, UTF-8, when a file was read; otherwise empty
};

/// Opens the file that the command line named, once and without a dialog, or the one that the user chooses.
[[nodiscard]] OpenUitkomst mnuOpen_Click(Programma& programma, Dialogen& dialogen);

enum class OpslagUitkomst {
  Gesloten,     ///< written, or no name chosen: the window closes the project (Settings, Reset)
  Geannuleerd,  ///< the dialog was cancelled: everything stays as it was
  Opgegeven,    ///< the user gave up after a failure, or will not overwrite: everything stays as it was
};

/// Asks for a name and saves the project under it. When the file that the project was read from was changed
/// by another program meanwhile, a project that was not changed leaves it alone, and for one that was the
/// user is asked: to overwrite, to give another name, or neither.
[[nodiscard]] OpslagUitkomst OpSlag(Programma& programma, Dialogen& dialogen);

/// Asks whether to close without saving. True: the window closes its other windows, then the project (Reset,
/// Settings).
[[nodiscard]] bool mnuSluiten_Click(Programma& programma, Dialogen& dialogen);

/// Leaves the program: asks first when a project is open, makes DataDir the current directory and writes the
/// settings there, unless only another program changed them. When both did the user is asked, and stays in
/// the program when he will not overwrite. A write that fails is told and keeps nobody in the program.
[[nodiscard]] Vervolg mnuExit_Click(Programma& programma, Dialogen& dialogen, bool projectOpen);

/// The project window closes with the program: makes DataDir the current directory and, when a project is
/// open, offers to save it. `bewaarVeld` stores the field that has the focus before a save; false holds the
/// save off. The end follows also when the user cancels the save; GaatDoor, the project still open, only when
/// the save was held off, or failed and the user gave it up.
[[nodiscard]] Vervolg Form_Unload(Programma& programma, Dialogen& dialogen, bool projectOpen,
                                  const std::function<bool()>& bewaarVeld);

/// Asks for the user's name; it reaches the settings file at mnuExit_Click.
void mnuGebruiker_Click(Programma& programma, Dialogen& dialogen);

}  // namespace murvane
