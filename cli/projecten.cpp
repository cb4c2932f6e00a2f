// The commands controleer, toon and maak.

#include "basis/bestand.h"
#include "basis/fout.h"
#include "cli/namen.h"
#include "cli/opdrachten.h"
#include "cli/uitvoer.h"
#include "editor/validate.h"
#include "project/projectfile.h"
#include "project/projectjson.h"

namespace murvane {

namespace {

Uitslag Controleer(const std::string& naam, char decimaal, Kanalen& kanalen) {
  return Bewaakt(InvoerNaam(naam), [&]() -> Uitslag {
    Project project = LeesGenoemd(naam, kanalen);
    if (const auto bevinding = CheckIt(project, InvoerVan(project, decimaal), decimaal))
      return {status::Geweigerd, InvoerNaam(naam) + ": " + NaarUtf8(bevinding->Melding)};
    SchrijfUit(NaamInUitvoer(InvoerNaam(naam), kanalen) + ": in orde\n", kanalen);
    return {};
  });
}

Project LeesProjectJson(const std::string& naam) {
  return OverBestand(naam, [&naam] { return ProjectUitJson(LeesJsonVan(naam)); });
}

}  // namespace

int VoerControleer(const Keuzes& keuzes, Kanalen& kanalen) {
  const char decimaal = Decimaalteken(keuzes);
  int code = status::Klaar;
  for (const std::string& naam : keuzes.Bestanden) {
    const Uitslag uitslag = Controleer(naam, decimaal, kanalen);
    Meld(uitslag, kanalen);
    code = Zwaarste(code, uitslag.Status);
  }
  return code;
}

int VoerToon(const Keuzes& keuzes, Kanalen& kanalen) {
  const std::string& naam = keuzes.Bestanden.front();
  const std::string uitvoer = keuzes.Waarde(Optie::UitvoerToon).value_or(std::string(Standaardstroom));
  WeigerOverschrijven(naam, uitvoer);
  SchrijfNaar(uitvoer, ProjectNaarJson(LeesProjectVan(naam, kanalen)), kanalen);
  return status::Klaar;
}

int VoerMaak(const Keuzes& keuzes, Kanalen& kanalen) {
  const std::string& naam = keuzes.Bestanden.front();
  const std::string uitvoer = *keuzes.Waarde(Optie::UitvoerMaak);
  WeigerOverschrijven(naam, uitvoer);
  const Project project = LeesProjectJson(naam);
  if (uitvoer == Standaardstroom) {
    SchrijfUit(OverBestand(naam, [&project] { return ProjectBytes(project); }), kanalen);
  } else {
    SchrijfProject(project, PadVan(uitvoer));
  }
  return status::Klaar;
}

}  // namespace murvane
