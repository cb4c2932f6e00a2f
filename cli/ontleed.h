#pragma once
// A command line taken apart by the table of opties.h.

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "cli/opties.h"

namespace murvane {

/// What the user asked for. The values have passed the rules of their options.
struct Keuzes {
  Opdracht Wat = Opdracht::Programma;
  std::vector<std::string> Bestanden;
  std::array<std::optional<std::string>, AantalOpties>
      Waarden;  ///< by Optie; an option without value holds ""

  [[nodiscard]] const std::optional<std::string>& Waarde(Optie optie) const {
    return Waarden[static_cast<std::size_t>(optie)];
  }
  [[nodiscard]] bool Heeft(Optie optie) const { return Waarde(optie).has_value(); }
  /// --taken; 0 when it was not given.
  [[nodiscard]] unsigned Taken() const;
};

/// Which command the arguments name, and takes its words out of them. Options may stand in front of it.
/// Programma when there is none or only the first word of one.
[[nodiscard]] Opdracht NeemOpdracht(std::vector<std::string>& argumenten);

/// Takes the arguments of a command apart. With --help or --versie nothing else is checked. Gebruiksfout with
/// a Dutch text for an unknown option, a missing, doubled or impossible value, a missing or superfluous file.
[[nodiscard]] Keuzes Ontleed(Opdracht opdracht, const std::vector<std::string>& argumenten);

}  // namespace murvane
