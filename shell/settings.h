#pragma once
// shell/: start-up, settings, main window, and what binds the other folders into one program.
// This header: the settings file murvane.set, seven lines of Windows-1252 text.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "basis/stempel.h"
#include "basis/tekst.h"
#include "reports/lettertype.h"

namespace murvane {

inline constexpr std::string_view StandaardGebruiker = "..Gebruikersnaam..";

struct Instellingen {
  DrukInstelling Druk;                           ///< font and styles of the printed form
  Tekst<35> GebruikerLabel{StandaardGebruiker};  ///< user name for labels: its first "&" doubled
  Tekst<35> Gebruikersnaam{StandaardGebruiker};  ///< user name as printed
  std::optional<Herinnering> Gelezen{};          ///< of the file that they were read from
};

/// The settings of a file image. Lines end with CR LF or LF; a number line holds one integer with blanks
/// around it, empty counts as 0, what follows a blank behind the number is passed over. Fout 62 for fewer
/// than seven lines, 13 for text in a number line, 6 for a number outside -32768 to 32767; the Fout's place
/// is the line.
[[nodiscard]] Instellingen InstellingenUitBytes(std::string_view bytes);

/// The file image: seven lines ended by CR LF, numbers with one blank behind them and a blank or minus before
/// them.
[[nodiscard]] std::string InstellingenBytes(const Instellingen& instellingen);

/// Reading and writing the file; failures of LeesInhoud and VervangBestand, with the file's name. Writing
/// overwrites whatever stands there.
[[nodiscard]] Instellingen LeesInstellingen(const std::filesystem::path& pad);
void SchrijfInstellingen(const Instellingen& instellingen, const std::filesystem::path& pad);

/// Sets the user name, trimmed and cut to 35 characters, and its label. An empty answer changes nothing.
void ZetGebruikersnaam(Instellingen& instellingen, std::string_view antwoord);

}  // namespace murvane
