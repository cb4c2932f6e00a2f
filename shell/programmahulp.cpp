#include "shell/programmahulp.h"

#include "basis/kolommen.h"
#include "versie.h"

namespace murvane {

namespace {

std::string Hulp() {
  std::string uit = "Gebruik: murvane [PROJECT.mrv]\n\n";
  VoegAfgebrokenToe(uit, ProgrammaUitleg, 0);
  uit += "\nOpties:\n";
  for (const Programmawoord& woord : Programmawoorden) VoegRegelToe(uit, woord.Woord, woord.Uitleg);
  return uit + "\nVoor scripts: murvane-cli --help en murvane-druk --help\n";
}

}  // namespace

std::optional<std::string> ProgrammaAntwoord(std::span<const std::string> argumenten) {
  if (argumenten.size() != 1) return std::nullopt;
  if (argumenten[0] == "--help") return Hulp();
  if (argumenten[0] == "--version") return "MurVane " + std::string(VersieTekst) + "\n";
  return std::nullopt;
}

}  // namespace murvane
