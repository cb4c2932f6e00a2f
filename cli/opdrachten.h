#pragma once
// The commands of murvane-cli as functions of arguments and channels that return the exit status. They keep
// no state, so that tests call them in-process. Arguments and messages are UTF-8.

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "cli/ontleed.h"
#include "cli/uitslag.h"
#include "cli/uitvoer.h"
#include "estimators/schatters.h"

namespace murvane {

/// A whole command line without the program's name. Never throws: whatever goes wrong becomes a message and
/// an exit status. A kanalen.uit that cannot be written is Fout 61.
[[nodiscard]] int VoerOpdrachtUit(std::vector<std::string> argumenten, Kanalen kanalen);

/// The work of a command once its command line was understood; its exit status.
using Uitvoerder = std::function<int(const Keuzes& keuzes, Kanalen& kanalen)>;
/// The same for a program that is one command.
[[nodiscard]] int VoerProgrammaUit(Opdracht opdracht, const std::vector<std::string>& argumenten,
                                   Kanalen kanalen, const Uitvoerder& voer);

// One function for each command; what goes wrong before the first file is an exception. The files of a
// command with --lijst are the projects of NoemProjecten.
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
/// The directory of the settings and catalogues: --data, else StandaardDataMap.
[[nodiscard]] std::filesystem::path Gegevensmap(const Keuzes& keuzes);
/// The settings in it.
[[nodiscard]] std::filesystem::path Instellingenbestand(const Keuzes& keuzes);
/// The files that a run reads beside its projects: settings and list.
[[nodiscard]] Bestandenplan PlanVan(const Keuzes& keuzes);

}  // namespace murvane
