#include "project/projectfile.h"

#include <algorithm>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/stroom.h"

namespace murvane {

namespace {

// The field order of each record, once for reading and writing: `stap` is called for every field.

template <typename Rec, typename Stap>
void ProjectVelden(Rec& p, Stap stap) {
  stap(p.ProNaam), stap(p.ProNum), stap(p.Omschrijving);
  stap(p.Toelichting1), stap(p.Toelichting2), stap(p.Toelichting3);
  stap(p.MyDate), stap(p.RekenType);
}

template <typename Rec, typename Stap>
void FanVelden(Rec& f, Stap stap) {
  stap(f.FanNaam), stap(f.Lw), stap(f.FanDebiet), stap(f.FanDruk), stap(f.FanToeren);
  stap(f.FanSchoepen), stap(f.FanVermogen), stap(f.FanType);
}

template <typename Rec, typename Stap>
void ElementVelden(Rec& e, Stap stap) {
  stap(e.Naam), stap(e.Kanaal);
  stap(e.demp), stap(e.ruis), stap(e.LAeq), stap(e.Instraling), stap(e.Rkanaalwand);
  stap(e.ElementType), stap(e.Lengte), stap(e.Debiet), stap(e.QAftak), stap(e.Hoogte), stap(e.Breedte);
  stap(e.HHoofd), stap(e.BHoofd), stap(e.HDoor), stap(e.BDoor), stap(e.Snetto), stap(e.Weerstand);
  stap(e.ElRDI), stap(e.RAftak), stap(e.ElRAantal);
}

template <typename Rec, typename Stap>
void RuimteVelden(Rec& r, Stap stap) {
  stap(r.RNaam), stap(r.RLengte), stap(r.RBreedte), stap(r.RHoogte), stap(r.RVolume);
  stap(r.RDI), stap(r.RNagalm), stap(r.RNR), stap(r.RAantal);
  stap(r.Rkanaal), stap(r.Rplafond), stap(r.RkanaalNaam), stap(r.RplafondNaam);
}

/// The whole file: `stap` for every field, in file order.
template <typename P, typename Stap>
void AlleVelden(P& project, Stap stap) {
  ProjectVelden(project.Kop, stap);
  FanVelden(project.Fan, stap);
  stap(project.ElementCount);
  for (int i = 1; i <= project.ElementCount; ++i) {
    if (i > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
    ElementVelden(project.Elementen[static_cast<std::size_t>(i)], stap);
  }
  RuimteVelden(project.Ruimte, stap);
  stap(project.FanPrognose), stap(project.VrijVeld);
}

/// More bytes than any project has: what stands behind them need not be read.
constexpr std::size_t MaxBytes = std::size_t{1} << 20;

}  // namespace

Project ProjectUitBytes(std::string_view bytes) {
  Project project;
  Lezer lezer(bytes);
  AlleVelden(project, [&lezer](auto& veld) { lezer.Lees(veld); });
  return project;
}

std::string ProjectBytes(const Project& project) {
  std::string bytes;
  Schrijver schrijver(bytes);
  AlleVelden(project, [&schrijver](const auto& veld) { schrijver.Schrijf(veld); });
  return bytes;
}

Project LeesProject(const std::filesystem::path& pad) {
  try {
    return ProjectUitBytes(LeesBestand(pad, MaxBytes));
  } catch (const Fout& fout) {
    throw fout.MetBestand(PadTekst(pad));
  }
}

void SchrijfProject(const Project& project, const std::filesystem::path& pad) {
  const std::string naam = PadTekst(pad);
  try {
    if (!naam.ends_with("mrv")) throw Fout(FoutNummer::OngeldigeBestandsnaam);
    VervangBestand(pad, ProjectBytes(project), Staart::Blijft);
  } catch (const Fout& fout) {
    throw fout.MetBestand(naam);
  }
}

}  // namespace murvane
