#include "calc/reken.h"

#include <string>

#include "calc/elementen.h"
#include "calc/instraling.h"
#include "calc/rekenkunde.h"
#include "calc/ruimte.h"
#include "calc/spectrum.h"
#include "calc/uitstraal.h"

namespace murvane {

namespace {

void RekenModel(Project& project, ElementRec& element, ElementTekstRijen& tekst, char decimaal) {
  switch (element.ElementType) {
    case elementtype::AftakRecht:
    case elementtype::AftakRond:
      Aftak(element, tekst, decimaal);
      break;
    case elementtype::BochtHaaks:
    case elementtype::BochtRecht:
    case elementtype::BochtRond:
      Bocht(element, tekst, decimaal);
      break;
    case elementtype::DrsneeRecht:
    case elementtype::DrsneeRond:
      Drsnee(element, tekst, decimaal);
      break;
    case elementtype::KanaalRecht:
    case elementtype::KanaalRond:
      ReKan(element, tekst, decimaal);
      break;
    case elementtype::Klep:
      RegelKlep(element, tekst, decimaal);
      break;
    case elementtype::Rooster:
      Rooster(element, project.Ruimte, project.Kop.RekenType, tekst, decimaal);
      break;
    default:
      break;  // a catalogue element keeps the attenuation and noise that it was given
  }
}

void RekenElement(Project& project, int i, Resultaten& r, char decimaal) {
  const auto n = static_cast<std::size_t>(i);
  ElementRec& element = project.Elementen[n];
  r.HeeftInstraling[n] = Instraal(element);
  r.ElementTekst[n] = BlankeRijen;
  RekenModel(project, element, r.ElementTekst[n], decimaal);
  const std::int16_t type = project.Kop.RekenType;
  if (type == rekentype::Installatiegeluid || type == rekentype::Geluidsuitstraling)
    TussenResult(project, i, r);
}

/// What comes behind the last element. Its faults, too, say where the user has to look.
void RekenEinde(const Project& project, Resultaten& r) {
  const char* plaats = "einde van de keten";
  try {
    UitStraal(project, r);
    EindResult(project, r);
    plaats = "ruimtegegevens";
    RuimteDemping(project, r);
  } catch (const Fout& fout) {
    throw fout.MetPlaats(plaats);
  }
}

}  // namespace

void TussenResult(const Project& project, int i, Resultaten& r) {
  const auto n = static_cast<std::size_t>(i);
  const ElementRec& element = project.Elementen[n];
  const Spectrum& ervoor = i == 1 ? project.Fan.Lw : r.Subtotaal[n - 1];
  Spectrum& niveau = r.Subtotaal[n];
  // One loop a function, so that the processor works on all bands at once.
  Spectrum s{};
  for (std::size_t b = 0; b < Banden; ++b) {
    s[b] = Macht10((ervoor[b] - element.demp[b]) / 10);
    if (element.ruis[b] != 0) s[b] += Macht10(element.ruis[b] / 10);
    if (element.Instraling[b] != 0) s[b] += Macht10(element.Instraling[b] / 10);
  }
  for (std::size_t b = 0; b < Banden; ++b) niveau[b] = 10 * Log10(s[b]);
  double t = 0;
  for (std::size_t b = 0; b < Banden; ++b) {
    if (niveau[b] != 0) t += Macht10((niveau[b] + AWeging[b]) / 10);
  }
  niveau[SomPlaats] = t == 0 ? 0 : 10 * Log10(t);
}

void Reken(Project& project, Resultaten& r, char decimaal, const std::function<void(int)>& voortgang) {
  if (project.ElementCount > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  for (int i = 1; i <= project.ElementCount; ++i) {
    if (voortgang) voortgang(i);
    try {
      RekenElement(project, i, r, decimaal);
    } catch (const Fout& fout) {
      throw fout.MetPlaats("kanaalelement " + std::to_string(i));
    }
  }
  RekenEinde(project, r);
}

}  // namespace murvane
