#include "cli/opdrachten.h"

#include <ostream>
#include <utility>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "cli/help.h"
#include "cli/namen.h"
#include "shell/startup.h"
#include "versie.h"

namespace murvane {

namespace {

int Voer(const Keuzes& keuzes, Kanalen& kanalen) {
  switch (keuzes.Wat) {
    case Opdracht::Programma:
    case Opdracht::Druk:
      break;
    case Opdracht::Reken:
      return VoerReken(keuzes, kanalen);
    case Opdracht::Controleer:
      return VoerControleer(keuzes, kanalen);
    case Opdracht::Toon:
      return VoerToon(keuzes, kanalen);
    case Opdracht::Maak:
      return VoerMaak(keuzes, kanalen);
    case Opdracht::CatalogusToon:
      return VoerCatalogusToon(keuzes, kanalen);
    case Opdracht::CatalogusMaak:
      return VoerCatalogusMaak(keuzes, kanalen);
    case Opdracht::CatalogusSorteer:
      return VoerCatalogusSorteer(keuzes, kanalen);
    case Opdracht::Overzicht:
      return VoerOverzicht(keuzes, kanalen);
    case Opdracht::SchatBekleed:
      return VoerSchat(keuzes, Schatter::Bekleed, kanalen);
    case Opdracht::SchatKwartLambda:
      return VoerSchat(keuzes, Schatter::KwartLambda, kanalen);
    case Opdracht::SchatPlenum:
      return VoerSchat(keuzes, Schatter::Plenum, kanalen);
    case Opdracht::SchatKanaalwand:
      return VoerSchat(keuzes, Schatter::Kanaalwand, kanalen);
    case Opdracht::SchatVentilator:
      return VoerSchatVentilator(keuzes, kanalen);
  }
  return status::Klaar;
}

int OntleedEnVoer(Opdracht opdracht, const std::vector<std::string>& argumenten, Kanalen& kanalen,
                  const Uitvoerder& voer) {
  Keuzes keuzes = Ontleed(opdracht, argumenten);
  if (keuzes.Heeft(Optie::Help)) {
    SchrijfUit(HelpTekst(opdracht), kanalen);
  } else if (keuzes.Heeft(Optie::Versie)) {
    SchrijfUit("MurVane " + std::string(VersieTekst) + "\n", kanalen);
  } else {
    const bool noemt = Kent(RegelVan(Optie::Lijst), opdracht);
    if (noemt) keuzes.Bestanden = NoemProjecten(keuzes, kanalen);
    // A list without names asks for nothing.
    return noemt && keuzes.Bestanden.empty() ? status::Klaar : voer(keuzes, kanalen);
  }
  return status::Klaar;
}

/// Results that did not arrive are a fault, whatever the command itself made of it.
void EisGeschreven(std::ostream& uit) {
  if (!uit.flush())
    throw Fout(FoutNummer::SchijfVol, "Schijf vol of uitvoer gesloten", {}, "standaarduitvoer");
}

/// Ends a program: what went wrong becomes a message and an exit status.
int Beeindig(Opdracht opdracht, const Uitslag& uitslag, Kanalen& kanalen) {
  Meld(uitslag, kanalen);
  if (uitslag.Status == status::VerkeerdGebruik) Meld({uitslag.Status, HelpVerwijzing(opdracht)}, kanalen);
  const Uitslag geschreven = Bewaakt(std::string(Programmanaam(opdracht)), [&kanalen] {
    EisGeschreven(kanalen.uit);
    return Uitslag{};
  });
  Meld(geschreven, kanalen);
  return Zwaarste(uitslag.Status, geschreven.Status);
}

}  // namespace

int VoerOpdrachtUit(std::vector<std::string> argumenten, Kanalen kanalen) {
  Opdracht opdracht = Opdracht::Programma;
  const Uitslag uitslag = Bewaakt("murvane-cli", [&] {
    opdracht = NeemOpdracht(argumenten);
    return Uitslag{OntleedEnVoer(opdracht, argumenten, kanalen, Voer), {}};
  });
  return Beeindig(opdracht, uitslag, kanalen);
}

int VoerProgrammaUit(Opdracht opdracht, const std::vector<std::string>& argumenten, Kanalen kanalen,
                     const Uitvoerder& voer) {
  const Uitslag uitslag = Bewaakt(std::string(Programmanaam(opdracht)), [&] {
    return Uitslag{OntleedEnVoer(opdracht, argumenten, kanalen, voer), {}};
  });
  return Beeindig(opdracht, uitslag, kanalen);
}

char Decimaalteken(const Keuzes& keuzes) {
  const auto& keuze = keuzes.Waarde(Optie::Decimaal);
  if (!keuze) return RegionaalDecimaalteken();
  return *keuze == "komma" ? ',' : '.';
}

std::filesystem::path Gegevensmap(const Keuzes& keuzes) {
  const auto& data = keuzes.Waarde(Optie::Data);
  return data ? PadVan(*data) : StandaardDataMap();
}

std::filesystem::path Instellingenbestand(const Keuzes& keuzes) {
  return Gegevensmap(keuzes) / InstellingenNaam;
}

Bestandenplan PlanVan(const Keuzes& keuzes) {
  Bestandenplan plan;
  plan.Leest(PadTekst(Instellingenbestand(keuzes)));
  if (const auto& lijst = keuzes.Waarde(Optie::Lijst)) plan.Leest(*lijst);
  return plan;
}

}  // namespace murvane
