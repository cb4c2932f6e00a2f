#include "basis/fout.h"

#include <filesystem>
#include <new>
#include <utility>

namespace murvane {

const char* Beschrijving(FoutNummer nummer) {
  switch (nummer) {
    case FoutNummer::OngeldigArgument:
      return "Ongeldig argument";
    case FoutNummer::Overloop:
      return "Overloop: een getal is te groot of onbepaald";
    case FoutNummer::OnvoldoendeGeheugen:
      return "Onvoldoende geheugen";
    case FoutNummer::IndexBuitenBereik:
      return "Index buiten het bereik";
    case FoutNummer::DelingDoorNul:
      return "Deling door nul";
    case FoutNummer::GeenGetal:
      return "Geen geldig getal";
    case FoutNummer::InterneFout:
      return "Interne fout";
    case FoutNummer::OngeldigeBestandsnaam:
      return "Ongeldige bestandsnaam";
    case FoutNummer::BestandNietGevonden:
      return "Bestand niet gevonden";
    case FoutNummer::SchijfVol:
      return "Schijf vol";
    case FoutNummer::VoorbijEinde:
      return "Het bestand eindigt te vroeg";
    case FoutNummer::GeenToestemming:
      return "Geen toestemming";
    case FoutNummer::PadToegang:
      return "Geen toegang tot het bestand of de map";
    case FoutNummer::PadNietGevonden:
      return "Map niet gevonden";
    case FoutNummer::DialoogGeannuleerd:
      return "Dialoog geannuleerd";
  }
  return "Onbekende fout";
}

Fout::Fout(FoutNummer nummer) : Fout(nummer, Beschrijving(nummer)) {}

Fout::Fout(FoutNummer nummer, std::string omschrijving, std::string plaats, std::string bestand)
    : nummer_(nummer),
      omschrijving_(std::move(omschrijving)),
      plaats_(std::move(plaats)),
      bestand_(std::move(bestand)),
      tekst_(plaats_.empty() ? omschrijving_ : omschrijving_ + " (" + plaats_ + ")") {}

std::string Fout::Melding() const {
  return "Fout " + std::to_string(static_cast<int>(nummer_)) + " - " + tekst_ + ".";
}

Fout Fout::MetPlaats(std::string plaats) const {
  return plaats_.empty() ? Fout(nummer_, omschrijving_, std::move(plaats), bestand_) : *this;
}

Fout Fout::MetBestand(std::string bestand) const {
  return bestand_.empty() ? Fout(nummer_, omschrijving_, plaats_, std::move(bestand)) : *this;
}

Fout HuidigeFout() {
  try {
    throw;
  } catch (const Fout& fout) {
    return fout;
  } catch (const std::bad_alloc&) {
    return Fout(FoutNummer::OnvoldoendeGeheugen);
  } catch (const std::filesystem::filesystem_error& fout) {
    const std::u8string pad = fout.path1().u8string();
    return Fout(FoutNummer::PadToegang).MetBestand({pad.begin(), pad.end()});
  } catch (...) {
    return Fout(FoutNummer::InterneFout);
  }
}

}  // namespace murvane
