#include "editor/melding.h"

#include <utility>

#include "basis/tekst.h"

namespace murvane {

Melding OnverwachteFout(std::string_view procedure, std::string_view venster, const Fout& fout) {
  std::string tekst = "Onverwachte fout in procedure ";
  tekst.append(procedure).append(" van Form ").append(venster).append(".\n");
  tekst.append(NaarCp1252Getoond(fout.Melding()));
  return {MeldingSoort::Kritiek, std::string(ProgrammaTitel), std::move(tekst)};
}

}  // namespace murvane
