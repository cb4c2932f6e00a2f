#include "project/projectfile.h"

#include <algorithm>
#include <utility>

#include "basis/bestand.h"
#include "basis/bewaar.h"
#include "basis/fout.h"
#include "basis/stroom.h"
#include "project/velden.h"

namespace murvane {

namespace {

/// The whole file: `stap` for every field, in file order.
template <typename P, typename Stap>
void AlleVelden(P& project, Stap stap) {
  const auto zonderNaam = [&stap](std::string_view, auto& veld) { stap(veld); };
  ProjectVelden(project.Kop, zonderNaam);
  FanVelden(project.Fan, zonderNaam);
  stap(project.ElementCount);
  for (int i = 1; i <= project.ElementCount; ++i) {
    if (i > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
    ElementVelden(project.Elementen[static_cast<std::size_t>(i)], zonderNaam);
  }
  RuimteVelden(project.Ruimte, zonderNaam);
  stap(project.FanPrognose), stap(project.VrijVeld);
}

/// Only the letters of "mrv" matter, so bytes above 7F stay as they are.
char KleineLetter(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

bool IsProjectNaam(std::string_view naam) {
  constexpr std::string_view Einde = "mrv";
  return naam.size() >= Einde.size() &&
         std::equal(Einde.rbegin(), Einde.rend(), naam.rbegin(),
                    [](char klein, char c) { return klein == KleineLetter(c); });
}

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
  return OverBestand(PadTekst(pad), [&pad] { return ProjectUitBytes(LeesInhoud(pad).Bytes); });
}

GelezenProject LeesProjectBestand(const std::filesystem::path& pad) {
  return OverBestand(PadTekst(pad), [&pad]() -> GelezenProject {
    const Inhoud inhoud = LeesInhoud(pad);
    Project project = ProjectUitBytes(inhoud.Bytes);
    const Herinnering bestand = Onthoud(inhoud, ProjectBytes(project));
    return {std::move(project), bestand};
  });
}

void SchrijfProject(const Project& project, const std::filesystem::path& pad) {
  EisOpslagNaam(pad);
  OverBestand(PadTekst(pad), [&] { SchrijfBeeld(pad, ProjectBytes(project), Staart::Blijft); });
}

void EisOpslagNaam(const std::filesystem::path& pad) {
  const std::string naam = PadTekst(pad);
  if (naam.ends_with("mrv")) return;
  throw Fout(FoutNummer::OngeldigeBestandsnaam,
             "Ongeldige bestandsnaam: een projectbestand eindigt op mrv, in kleine letters", {}, naam);
}

}  // namespace murvane
