#pragma once
// editor/: what the project window decides, without the window: its states, the element list, the input
// fields and the checks before a run. This header: the chain of elements.

#include "project/records.h"

namespace murvane {

/// Hands air flow and cross-section down to element n from its predecessor (or the fan's flow to element 1);
/// n = 0 does nothing. What is inherited overwrites what stood there; a predecessor with a width of exactly 0
/// is round and hands down no width. Fout 9 for an n below 0 or above 500.
void VoorGanger(Project& project, int n);

}  // namespace murvane
