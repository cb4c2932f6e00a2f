#pragma once
// The command of murvane-druk: a project's printed form without a screen.

#include "cli/opdrachten.h"

namespace murvane {

/// Checks and calculates a project and writes its form as PDF and, if asked, its pages as bitmaps. Needs an
/// application object of the toolkit.
[[nodiscard]] int VoerDruk(const Keuzes& keuzes, Kanalen& kanalen);

}  // namespace murvane
