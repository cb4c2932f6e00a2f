#pragma once
// The commands of murvane-cli as functions of arguments and channels that return the exit status. They keep
// no state, so that tests call them in-process. Arguments and messages are UTF-8.

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "cli/ontleed.h"
#include "cli/uitslag.h"
#include "estimators/schatters.h"

namespace murvane {

/// A whole command line without the program's name. Results go to `uit`, everything else to `err`; `terminal`
/// says that err is one. Never throws: whatever goes wrong becomes a message and an exit status. A `uit` that
/// cannot be written is Fout 61.
[[nodiscard]] int VoerOpdrachtUit(std::vector<std::string> argumenten, std::ostream& uit, std::ostream& err,
                                  bool terminal = false);

/// The work of a command once its command line was understood; its exit status.
using Uitvoerder = std::function<int(const Keuzes& keuzes, Kanalen& kanalen)>;
/// The same for a program that is one command.
[[nodiscard]] int VoerProgrammaUit(Opdracht opdracht, const std::vector<std::string>& argumenten,
                                   std::ostream& uit, std::ostream& err, const Uitvoerder& voer);

// One function for each command; what goes wrong before the first file is an exception.
[[nodiscard]] int VoerReken(const Keuzes& keuzes, Kanalen& kanalen);
[[nodiscard]] int VoerControleer(const Keuzes& keuzes, Kanalen& kanalen);
[[nodiscard]] int VoerToon(const Keuzes& keuzes, Kanalen& kanalen);
[[nodiscard]] int VoerMaak(const Keuzes& keuzes, Kanalen& kanalen);
[[nodiscard]] int VoerCatalogusToon(const Keuzes& keuzes, Kanalen& kanalen);
[[nodiscard]] int VoerCatalogusMaak(const Keuzes& keuzes, Kanalen& kanalen);
[[nodiscard]] int VoerCatalogusSorteer(const Keuzes& keuzes, Kanalen& kanalen);
[[nodiscard]] int VoerOverzicht(const Keuzes& keuzes, Kanalen& kanalen);
[[nodiscard]] int VoerSchat(const Keuzes& keuzes, Schatter soort, Kanalen& kanalen);
[[nodiscard]] int VoerSchatVentilator(const Keuzes& keuzes, Kanalen& kanalen);

/// The decimal sign: --decimaal, else that of the regional setting.
[[nodiscard]] char Decimaalteken(const Keuzes& keuzes);

}  // namespace murvane
