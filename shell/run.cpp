#include "shell/run.h"

#include "calc/reken.h"

namespace murvane {

std::optional<Bevinding> VoerUit(Project& project, const ProjectInvoer& invoer,
                                 const Tekst<35>& gebruikersnaam, char decimaal, Resultaten& resultaten,
                                 Rapport& rapport) {
  if (auto bevinding = CheckIt(project, invoer, decimaal)) return bevinding;
  Reken(project, resultaten, decimaal);
  Afdruk(project, resultaten, gebruikersnaam, decimaal, rapport);
  return std::nullopt;
}

}  // namespace murvane
