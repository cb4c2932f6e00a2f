#pragma once
// The command of murvane-druk: a project's printed form without a screen.

#include "cli/opdrachten.h"

namespace murvane {

/// Checks and calculates projects and writes the form of each as PDF and, if asked of a single one, its pages
/// as bitmaps. Needs an application object of the toolkit.
[[nodiscard]] int VoerDruk(const Keuzes& keuzes, Kanalen& kanalen);

}  // namespace murvane
