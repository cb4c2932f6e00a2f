#include "shell/opstart.h"

#include <utility>

#include "basis/bestand.h"
#include "shell/startup.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view InstellingenFilter = "Bestand murvane.set (murvane.set)|murvane.set";

void Laad(Programma& programma, Dialogen& dialogen) {
  const Zandloper zandloper(dialogen);
  programma.Instellingen = LeesInstellingen(programma.DataDir / InstellingenNaam);
  programma.Catalogi = LeesCatalogi(programma.DataDir);
}

/// Asks for the settings file, proposing the one chosen before, and takes its directory.
void KiesDataDir(Programma& programma, Dialogen& dialogen, fs::path& naam) {
  BestandVraag vraag;
  vraag.Titel = "Openen";
  vraag.Filter = InstellingenFilter;
  vraag.BeginMap = programma.DataDir;
  vraag.Naam = naam;
  naam = dialogen.OpenDialoog(vraag);
  if (naam.empty()) return;
  if (!PadTekst(naam).ends_with("set")) throw Fout(FoutNummer::OngeldigeBestandsnaam);
  programma.DataDir = naam.parent_path();
}

Vervolg ZoekFile(Programma& programma, Dialogen& dialogen, fs::path& naam) {
  if (!Probeer([&] { KiesDataDir(programma, dialogen, naam); })) return Vervolg::GaatDoor;
  dialogen.Toon({MeldingSoort::Kritiek, "Opstartfout",
                 NaarCp1252Getoond(PadTekst(naam)) + " geen of onbruikbaar opstartbestand"});
  return Vervolg::Einde;
}

}  // namespace

Vervolg MDIForm_Load(Programma& programma, Dialogen& dialogen, const StartGegevens& start) {
  programma.Instellingen = Instellingen{};
  programma.DataDir = start.HuidigeMap;
  programma.Vandaag = start.Vandaag;
  programma.Decimaal = start.Decimaal;
  fs::path naam;  // of the settings file; the project dialogs must not propose it
  while (const auto fout = Probeer([&] { Laad(programma, dialogen); })) {
    if (fout->Nummer() != FoutNummer::BestandNietGevonden) {
      dialogen.Toon(OnverwachteFout("MDIForm_Load", "MDIMurvane", *fout));
      return Vervolg::Einde;
    }
    dialogen.Toon({MeldingSoort::Kritiek, "Foutmelding", "Opstartbestand(en) niet gevonden"});
    if (ZoekFile(programma, dialogen, naam) == Vervolg::Einde) return Vervolg::Einde;
  }
  programma.OpenBestand = PadVan(OpenBestandUit(start.Opdrachtregel));
  return Vervolg::GaatDoor;
}

}  // namespace murvane
