#pragma once
// What the program murvane answers on its command line without starting. UTF-8.

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace murvane {

struct Programmawoord {
  std::string_view Woord;
  std::string_view Uitleg;
};

/// The words of its command line that are no project.
inline constexpr std::array Programmawoorden = {
    Programmawoord{"--help", "toont deze hulp"},
    Programmawoord{"--version", "toont de versie van het programma"},
};

inline constexpr std::string_view ProgrammaUitleg =
    "Berekent geluidsniveaus van luchttechnische installaties volgens ISSO-publicatie 24 en VDI 2081. "
    "Zonder project opent het programma leeg. De hele opdrachtregel is de naam van één project, met of "
    "zonder "
    "aanhalingstekens. De instellingen en catalogi staan in de map waarin het programma wordt gestart; vanaf "
    "het bureaublad gestart werkt het in de eigen gegevensmap van de gebruiker, die bij de eerste keer met "
    "de "
    "meegeleverde bestanden wordt gevuld.";

/// The answer when the arguments behind the program's name are one of those words and nothing else. Any other
/// command line is the path of a project, or empty.
[[nodiscard]] std::optional<std::string> ProgrammaAntwoord(std::span<const std::string> argumenten);

}  // namespace murvane
