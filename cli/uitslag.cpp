#include "cli/uitslag.h"

#include <new>
#include <ostream>

#include "basis/fout.h"
#include "basis/stuurtekens.h"

namespace murvane {

Uitslag UitslagVanFout(const std::string& naam) {
  try {
    throw;
  } catch (const Gebruiksfout& fout) {
    return {status::VerkeerdGebruik, fout.what()};
  } catch (const Fout& fout) {
    return {status::Fout, fout.MetBestand(naam).Bestand() + ": " + fout.Melding()};
  } catch (const std::bad_alloc&) {
    return {status::Fout, naam + ": " + Fout(FoutNummer::OnvoldoendeGeheugen).Melding()};
  } catch (...) {
    return {status::Fout, naam + ": " + Fout(FoutNummer::InterneFout).Melding()};
  }
}

int Zwaarste(int een, int ander) {
  if (een == status::Fout || ander == status::Fout) return status::Fout;
  return een == status::Klaar ? ander : een;
}

void SchrijfUit(std::string_view bytes, Kanalen& kanalen) {
  if (kanalen.UitTerminal) {
    constexpr std::string_view CrLf = "\r\n";
    kanalen.uit << Toonbaar(bytes, bytes.find(CrLf) == std::string_view::npos ? "\n" : CrLf);
  } else {
    kanalen.uit << bytes;
  }
}

std::string NaamInUitvoer(const std::string& naam, const Kanalen& kanalen) {
  return kanalen.UitTerminal ? Toonbaar(naam) : naam;
}

void Meld(const Uitslag& uitslag, Kanalen& kanalen) {
  if (uitslag.Melding.empty()) return;
  kanalen.uit.flush();  // on a terminal both stand in the order in which they came about
  kanalen.err << Toonbaar(uitslag.Melding) + "\n" << std::flush;
}

}  // namespace murvane
