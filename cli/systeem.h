#pragma once
// What the main function needs of the operating system.

#include <chrono>
#include <string>
#include <vector>

#include "cli/uitslag.h"

namespace murvane {

/// The arguments behind the program's name, as UTF-8 where the system has its own form for them.
[[nodiscard]] std::vector<std::string> Argumenten(int argc, char** argv);

/// Makes standard output and error fit to write to: bytes as they are, UTF-8, and never a file that was
/// opened later where they had been closed. A limit on the size of files becomes a fault of the write.
void BereidUitvoerVoor();

/// The date of the system's clock in its time zone.
[[nodiscard]] std::chrono::year_month_day Vandaag();

/// The channels of the process.
[[nodiscard]] Kanalen Systeemkanalen();

}  // namespace murvane
