#include "shell/rookproef.h"

#include <ostream>

#include "basis/stuurtekens.h"
#include "basis/tekst.h"

namespace murvane {

void StilleDialogen::Schrijf(std::string_view titel, std::string_view utf8) {
  gevraagd_ = true;
  uit_ << Toonbaar(NaarUtf8(titel)) << ": " << Toonbaar(utf8, "\n") << '\n';
}

Antwoord StilleDialogen::Toon(const Melding& melding) {
  Schrijf(melding.Titel, GetoondeTekst(melding));
  return Antwoord::Cancel;
}

std::string StilleDialogen::Invoer(const InvoerVraag& vraag) {
  Schrijf(vraag.Titel, NaarUtf8(vraag.Tekst));
  return {};
}

std::filesystem::path StilleDialogen::OpenDialoog(const BestandVraag& vraag) {
  Schrijf(vraag.Titel, NaarUtf8(vraag.Filter));
  throw Fout(FoutNummer::DialoogGeannuleerd);
}

std::filesystem::path StilleDialogen::OpslaanDialoog(const BestandVraag& vraag) {
  return OpenDialoog(vraag);
}

AfdrukKeuze StilleDialogen::AfdrukDialoog(const AfdrukVraag& /*vraag*/) {
  Schrijf("Afdrukken", "");
  throw Fout(FoutNummer::DialoogGeannuleerd);
}

}  // namespace murvane
