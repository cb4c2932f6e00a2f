// What people type and small text files: the settings, the command line, input fields, the code page.

#include <cmath>

#include "basis/fout.h"
#include "basis/getal.h"
#include "basis/tekst.h"
#include "editor/invoer.h"
#include "fuzz/bestook.h"
#include "shell/settings.h"
#include "shell/startup.h"

using namespace murvane;

namespace {

template <typename Lees>
void Probeer(Lees lees) {
  try {
    lees();
  } catch (const Fout& fout) {
    Eis(fout.what()[0] != '\0');
  }
}

void Instelling(std::string_view bytes) {
  const Instellingen gelezen = InstellingenUitBytes(bytes);
  const std::string terug = InstellingenBytes(gelezen);
  Eis(InstellingenBytes(InstellingenUitBytes(terug)) == terug);
}

void Veld(std::string_view tekst) {
  for (const auto* naam : {"txtRBreedte", "txtRDI", "txtMyDate", "txtProNaam"}) {
    const Validatie uit = ValiDate(tekst, Regel(naam), "20-11-2026", ',');
    if (!uit.Geldig || naam == std::string_view("txtProNaam")) continue;
    const Validatie nogEens = ValiDate(uit.Tekst, Regel(naam), "20-11-2026", ',');
    Eis(nogEens.Geldig && nogEens.Tekst == uit.Tekst);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte) {
  const std::string_view tekst = AlsTekst(data, lengte);
  Probeer([tekst] { Instelling(tekst); });
  Probeer([tekst] { Eis(NaarUtf8(NaarCp1252(tekst)) == tekst); });
  Probeer([tekst] { Eis(std::isfinite(LeesGetal(tekst))); });
  Probeer([tekst] { Veld(tekst); });
  Eis(NaarCp1252(NaarUtf8(tekst)) == tekst);
  const std::string bestand = OpenBestandUit(tekst);
  Eis(bestand.empty() || bestand.size() >= 3);
  return 0;
}
