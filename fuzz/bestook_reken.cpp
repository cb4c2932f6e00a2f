// Any project file through checks, calculation and report: a refusal, a Fout, or results that are all finite
// and the same in a second run.

#include <cmath>

#include "basis/fout.h"
#include "fuzz/bestook.h"
#include "project/projectfile.h"
#include "shell/run.h"

using namespace murvane;

namespace {

void EisEindig(const Spectrum& spectrum) {
  for (const double x : spectrum) Eis(std::isfinite(x));
}

void EisEindig(const Project& project, const Resultaten& r) {
  for (int i = 1; i <= project.ElementCount; ++i) EisEindig(r.Subtotaal[static_cast<std::size_t>(i)]);
  for (const Spectrum* s : {&r.LwKanaalwand, &r.LwEind, &r.FanNaDemping, &r.SysteemGeluid, &r.SysteemDemping,
                            &r.OverspraakDemping, &r.LpGalmveld, &r.LpEenMeter})
    EisEindig(*s);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t lengte) {
  try {
    Project project = ProjectUitBytes(AlsTekst(data, lengte));
    Resultaten resultaten;
    Rapport rapport;
    const Tekst<35> gebruiker{"Proef"};
    if (VoerUit(project, InvoerVan(project, ','), gebruiker, ',', resultaten, rapport)) return 0;
    EisEindig(project, resultaten);
    Resultaten nogEens;
    Rapport tweede;
    Eis(!VoerUit(project, InvoerVan(project, ','), gebruiker, ',', nogEens, tweede));
    Eis(PrnBytes(tweede) == PrnBytes(rapport));
  } catch (const Fout& fout) {
    Eis(fout.what()[0] != '\0');
  }
  return 0;
}
