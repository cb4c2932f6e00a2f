#pragma once
// A message box as data: what a command wants shown. Texts are Windows-1252; lines are parted by "\n".

#include <filesystem>
#include <string>
#include <string_view>

#include "basis/fout.h"

namespace murvane {

/// The program's title: that of its windows, and of boxes that have no title of their own.
inline constexpr std::string_view ProgrammaTitel = "MurVane";

enum class MeldingSoort { Uitroep, Kritiek, Vraag };  ///< the icon
/// The buttons; the first is the default one, but of the last two boxes it is Cancel.
enum class Knoppen {
  OK,
  OkCancel,
  YesNo,
  OverschrijvenCancel,       ///< "Overschrijven" and Cancel
  OverschrijvenAndersCancel  ///< the same with "Anders opslaan…" between them
};

/// How a box was left. Escape and the close button are Cancel, also of a box with only OK; a Yes/No box is
/// only left by its buttons.
enum class Antwoord { OK, Cancel, Yes, No, Overschrijven, Anders };

/// Stands in a box's text for the name of a file, which the code page may not have.
inline constexpr char NaamPlaats = '\x1A';

struct Melding {
  MeldingSoort Soort = MeldingSoort::Uitroep;
  std::string Titel;
  std::string Tekst;
  murvane::Knoppen Knoppen = murvane::Knoppen::OK;
  std::string Naam{};  ///< UTF-8; its place is the last NaamPlaats of `Tekst`

  friend bool operator==(const Melding&, const Melding&) = default;
};

/// The text as it is shown (UTF-8), with the name in its place.
[[nodiscard]] std::string GetoondeTekst(const Melding& melding);

/// The box of a failure that no rule foresees: in which procedure of which window, number and description.
/// The description names the file that the failure is about. A handler that tries again has `knoppen` with
/// Cancel, which ends its command.
[[nodiscard]] Melding OnverwachteFout(std::string_view procedure, std::string_view venster, const Fout& fout,
                                      Knoppen knoppen = Knoppen::OK);

/// Puts the line of a failure, with the file that it is about, at the end of a box's text.
void VoegFoutToe(Melding& melding, const Fout& fout);

/// The question whether to overwrite a file that another program changed since it was read; `anders` offers
/// to give another name.
[[nodiscard]] Melding GewijzigdVraag(const std::filesystem::path& bestand, bool anders);

}  // namespace murvane
