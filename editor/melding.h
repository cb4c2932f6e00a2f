#pragma once
// A message box as data: what a command wants shown. Texts are Windows-1252; lines are parted by "\n".

#include <string>
#include <string_view>

#include "basis/fout.h"

namespace murvane {

/// The program's title: that of its windows, and of boxes that have no title of their own.
inline constexpr std::string_view ProgrammaTitel = "MurVane";

enum class MeldingSoort { Uitroep, Kritiek, Vraag };  ///< the icon
enum class Knoppen { OK, OkCancel, YesNo };

/// How a box was left. Escape and the close button are Cancel, also of a box with only OK; a Yes/No box is
/// only left by its buttons.
enum class Antwoord { OK, Cancel, Yes, No };

struct Melding {
  MeldingSoort Soort = MeldingSoort::Uitroep;
  std::string Titel;
  std::string Tekst;
  murvane::Knoppen Knoppen = murvane::Knoppen::OK;

  friend bool operator==(const Melding&, const Melding&) = default;
};

/// The box of a failure that no rule foresees: in which procedure of which window, number and description.
[[nodiscard]] Melding OnverwachteFout(std::string_view procedure, std::string_view venster, const Fout& fout);

}  // namespace murvane
