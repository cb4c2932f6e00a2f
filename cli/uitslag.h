#pragma once
// How a command, or its work on one file, ended: exit status and message; and the channels that it has.

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <stdexcept>
#include <string>
#include <string_view>

namespace murvane {

/// Exit statuses of the program.
namespace status {
inline constexpr int Klaar = 0;
inline constexpr int Fout = 1;
inline constexpr int Geweigerd = 2;  ///< by the checks before a run
inline constexpr int VerkeerdGebruik = 64;
}  // namespace status

/// Wrong use of the program; what() is a Dutch sentence, UTF-8.
class Gebruiksfout : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct Uitslag {
  int Status = status::Klaar;
  std::string Melding;  ///< UTF-8, without a line end; empty when there is nothing to say
};

/// The exception that is being handled as an end: "FILE: Fout N - description." with the file that a Fout
/// names, else with `naam`. Never shows a text of the standard library.
[[nodiscard]] Uitslag UitslagVanFout(const std::string& naam);

/// Does `werk` and turns whatever it throws into an end.
template <typename Werk>
[[nodiscard]] Uitslag Bewaakt(const std::string& naam, Werk werk) {
  try {
    return werk();
  } catch (...) {
    return UitslagVanFout(naam);
  }
}

/// The exit status of several files: a fault goes before a refusal, a refusal before success.
[[nodiscard]] int Zwaarste(int een, int ander);

/// Where a command writes: results to `uit`, everything else to `err`.
struct Kanalen {
  std::ostream& uit;
  std::ostream& err;
  bool Terminal = false;     ///< err is a terminal: progress is shown there
  bool UitTerminal = false;  ///< uit is one: what would act on it is shown instead
  /// Reads at most so many bytes of standard input; Fout 75 when it cannot be read. Empty: there is none.
  std::function<std::string(std::size_t hoogstens)> Invoer = {};
};

/// Writes a result (UTF-8 or bytes), whole lines of it, to uit: as it is, but on a terminal as Toonbaar shows
/// it. Its line ends are "\r\n" when it has one of those, else "\n".
void SchrijfUit(std::string_view bytes, Kanalen& kanalen);
/// A name within such a result: on a terminal it has no line ends either.
[[nodiscard]] std::string NaamInUitvoer(const std::string& naam, const Kanalen& kanalen);

/// Writes the message, if any, as a line to err, behind what already stands in uit, as Toonbaar shows it.
void Meld(const Uitslag& uitslag, Kanalen& kanalen);

}  // namespace murvane
