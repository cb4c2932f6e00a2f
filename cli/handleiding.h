#pragma once
// The manual pages of the programs and their completion for bash and zsh, made from the same table as the
// help. Texts are UTF-8.

#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "cli/opties.h"

namespace murvane {

struct Hulpoptie {
  std::vector<std::string_view> Namen;
  std::string_view Argument;              ///< what its value is called; empty for an option without one
  std::vector<std::string_view> Waarden;  ///< the values it may have; empty for any
  std::string_view Uitleg;
  bool Verplicht = false;
  std::string_view Anders = {};  ///< of a required one: the option that may stand in its place
};

struct Hulpopdracht {
  std::string_view Naam;      ///< as typed, one or two words; empty for the program without a command
  std::string_view Argument;  ///< as "PROJECT.mrv": the files that complete; empty when it has none
  bool Meer = false;
  std::string_view Kort;
  std::string_view Uitleg;
  std::vector<std::string_view> Woorden;  ///< what its argument may be, when that is no file
  std::vector<Hulpoptie> Opties;
};

struct Hulpregel {
  std::string_view Woord;
  std::string_view Uitleg;
};

struct Hulpkop {
  std::string_view Kop;
  std::vector<Hulpregel> Regels;
};

/// One program: the first command is the program itself.
struct Hulpprogramma {
  std::string_view Naam;
  std::string_view Kort;
  std::vector<Hulpopdracht> Opdrachten;
  std::vector<Hulpkop> Koppen;  ///< what else its manual page tells
  std::vector<std::string_view> ZieOok;
};

/// The programs that have a manual page.
[[nodiscard]] std::vector<Hulpprogramma> Hulpprogrammas();
/// murvane-cli, from the table of opties.h.
[[nodiscard]] Hulpprogramma HulpVanCli();
/// murvane-druk, from the same table.
[[nodiscard]] Hulpprogramma HulpVanDruk();
/// murvane, whose command line is one project.
[[nodiscard]] Hulpprogramma HulpVanMurvane();

/// The manual page, for man(1), section 1.
[[nodiscard]] std::string ManPagina(const Hulpprogramma& programma);
/// The completion for bash, which uses the functions of bash-completion.
[[nodiscard]] std::string BashAanvulling(const Hulpprogramma& programma);
/// The completion for zsh, as an autoloaded function.
[[nodiscard]] std::string ZshAanvulling(const Hulpprogramma& programma);

/// The program: writes man/NAME.1, bash/NAME and zsh/_NAME of every program in the directory that is its
/// argument. Returns 0, 1 after a fault, 64 for wrong use.
int MaakHulp(std::span<const std::string> argumenten, std::ostream& fouten);

}  // namespace murvane
