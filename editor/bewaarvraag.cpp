#include "editor/bewaarvraag.h"

#include <utility>

namespace murvane {

BewaarAntwoord BewaarMetVraag(Bewaardoel doel, std::string_view beeld, Dialogen& dialogen) {
  for (;;) {
    Bewaring bewaring = [&] {
      const Zandloper zandloper(dialogen);
      return BewaarBeeld(doel.Pad, beeld, doel.Staart, doel.Gelezen);
    }();
    if (bewaring.Besluit != Bewaarbesluit::Vraag) return {Antwoord::Overschrijven, std::move(bewaring)};
    const Antwoord antwoord = dialogen.Toon(GewijzigdVraag(doel.Pad, doel.AndereNaam));
    if (antwoord != Antwoord::Overschrijven) return {antwoord, std::move(bewaring)};
    doel.Gelezen = bewaring.Daarna;
  }
}

}  // namespace murvane
