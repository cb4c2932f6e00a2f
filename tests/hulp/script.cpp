#include "tests/hulp/script.h"

#include <utility>

#include "basis/bestand.h"
#include "basis/tekst.h"

namespace murvane::proef {

namespace fs = std::filesystem;

namespace {

// Whole questions in words, UTF-8.

std::string Woorden(const Melding& m) {
  return "box " + std::to_string(static_cast<int>(m.Soort)) + "/" +
         std::to_string(static_cast<int>(m.Knoppen)) + " [" + NaarUtf8(m.Titel) + "] " + GetoondeTekst(m);
}
std::string Woorden(const InvoerVraag& v) {
  return NaarUtf8("input box [" + v.Titel + "] " + v.Tekst + " {" + v.Standaard + "}");
}
std::string Woorden(const BestandVraag& v) {
  return " dialog [" + NaarUtf8(v.Titel) + "] " + NaarUtf8(v.Filter) + " in {" + PadTekst(v.BeginMap) +
         "} name {" + PadTekst(v.Naam) + "}" + (v.OverschrijfVraag ? " overwrite-prompt" : "") +
         (v.BestandMoetBestaan ? " must-exist" : "") + (v.MapBlijft ? " keep-directory" : "") +
         (v.Extensie.empty() ? "" : " extension {" + NaarUtf8(v.Extensie) + "}") +
         (v.Bladen == 0 ? "" : " pages " + std::to_string(v.Bladen));
}
std::string Woorden(const AfdrukVraag& v) {
  return NaarUtf8(std::string("print dialog") + (v.NaarBestandMogelijk ? " to-file" : "") +
                  (v.Liggend ? " landscape" : "") + " {" + std::string(v.Document) + "}");
}

}  // namespace

Script& Script::Voeg(Stap stap) {
  stappen_.push_back(std::move(stap));
  return *this;
}

Script& Script::Box(const Melding& melding, Antwoord antwoord, Intussen intussen) {
  return Voeg({Woorden(melding), antwoord, {}, {}, std::move(intussen), {}});
}
Script& Script::InvoerBox(const InvoerVraag& vraag, const std::string& antwoord, Intussen intussen) {
  return Voeg({Woorden(vraag), {}, antwoord, {}, std::move(intussen), {}});
}
Script& Script::Open(const BestandVraag& vraag, std::optional<fs::path> antwoord, Intussen intussen) {
  return Voeg({"open" + Woorden(vraag), {}, {}, std::move(antwoord), std::move(intussen), {}});
}
Script& Script::Opslaan(const BestandVraag& vraag, std::optional<fs::path> antwoord, Intussen intussen) {
  return Voeg({"save" + Woorden(vraag), {}, {}, std::move(antwoord), std::move(intussen), {}});
}

Script& Script::Afdrukken(const AfdrukVraag& vraag, std::optional<AfdrukKeuze> antwoord, Intussen intussen) {
  return Voeg({Woorden(vraag), {}, {}, {}, std::move(intussen), std::move(antwoord)});
}

void Script::IsKlaar() {
  for (const Stap& stap : stappen_) meldFout_("never asked: " + stap.Vraag);
  stappen_.clear();
  if (wacht_) meldFout_("the wait cursor was left");
  wacht_ = false;
}

Script::Stap Script::Neem(const std::string& vraag) {
  if (wacht_) meldFout_("asked under the wait cursor: " + vraag);
  if (stappen_.empty() || stappen_.front().Vraag != vraag) {
    const std::string verwacht = stappen_.empty() ? "nothing" : stappen_.front().Vraag;
    meldFout_("asked: " + vraag + "\nexpected: " + verwacht);
    return {};
  }
  Stap stap = std::move(stappen_.front());
  stappen_.pop_front();
  if (stap.Onderwijl) stap.Onderwijl();
  return stap;
}

fs::path Script::NeemPad(const std::string& vraag) {
  const Stap stap = Neem(vraag);
  if (!stap.Pad) throw Fout(FoutNummer::DialoogGeannuleerd);
  return *stap.Pad;
}

Antwoord Script::Toon(const Melding& melding) {
  return Neem(Woorden(melding)).Gekozen;
}
std::string Script::Invoer(const InvoerVraag& vraag) {
  return Neem(Woorden(vraag)).Tekst;
}
fs::path Script::OpenDialoog(const BestandVraag& vraag) {
  return NeemPad("open" + Woorden(vraag));
}
fs::path Script::OpslaanDialoog(const BestandVraag& vraag) {
  return NeemPad("save" + Woorden(vraag));
}

AfdrukKeuze Script::AfdrukDialoog(const AfdrukVraag& vraag) {
  Stap stap = Neem(Woorden(vraag));
  if (!stap.Afdruk) throw Fout(FoutNummer::DialoogGeannuleerd);
  return std::move(*stap.Afdruk);
}

void Script::Wachten(bool aan) {
  if (aan == wacht_) meldFout_(aan ? "waits already" : "does not wait");
  wacht_ = aan;
  if (aan) ++keerGewacht_;
}

}  // namespace murvane::proef
