#pragma once
// The help texts, made from the table of opties.h. UTF-8, lines of at most 80 characters.

#include <string>

#include "cli/opties.h"

namespace murvane {

/// The help of one command; that of Programma lists the commands and the exit statuses.
[[nodiscard]] std::string HelpTekst(Opdracht opdracht);

/// The line that points a user who went wrong to the help.
[[nodiscard]] std::string HelpVerwijzing(Opdracht opdracht);

}  // namespace murvane
