#pragma once
// Work on many files by several threads, with the messages in the order of the files.

#include <cstddef>
#include <functional>

#include "cli/uitslag.h"

namespace murvane {

/// The work on file number i, from 0. One Werk serves one thread and may keep its buffers from file to file.
using Werk = std::function<Uitslag(std::size_t i)>;

/// Does the work on `aantal` files with `taken` threads (at least 1; never more than files), each with a Werk
/// of its own. `meld` gets every end, one at a time and in the order of the files, as soon as all earlier
/// ones are there. Where the system refuses a thread the others do its share. What a Werk or `meld` throws
/// stops the work and comes out here.
void VerdeelWerk(std::size_t aantal, unsigned taken, const std::function<Werk()>& nieuwWerk,
                 const std::function<void(const Uitslag&)>& meld);

}  // namespace murvane
