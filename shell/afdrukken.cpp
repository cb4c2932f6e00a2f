#include "shell/afdrukken.h"

#include <filesystem>
#include <memory>
#include <string_view>
#include <vector>

#include "basis/bestand.h"
#include "reports/preview.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view UitvoerFilter = "Uitvoerbestanden (*.prn)|*.prn";
constexpr std::string_view BitmapFilter = "Bitmap-bestanden (*.bmp)|*.bmp";
constexpr std::string_view PdfFilter = "PDF-bestanden (*.pdf)|*.pdf";

/// A command of a window, by which its failures are told.
struct Opdrachtnaam {
  std::string_view Procedure, Venster;
};
constexpr Opdrachtnaam Printopdracht{"AfdrukPrinter", "frmMurvane"};
constexpr Opdrachtnaam Prnopdracht{"Afdruk", "frmResultaat"};
constexpr Opdrachtnaam Pdfopdracht{"OpslaanAlsPdf", "frmResultaat"};
constexpr Opdrachtnaam Bitmapopdracht{"Opslaan", "frmPreView"};
constexpr Opdrachtnaam F8opdracht{"Form_KeyDown", "frmGrafiek"};

enum class Afloop : std::uint8_t { Goed, Geannuleerd, Mislukt };

/// Does a step; a cancelled dialog is silent, any other failure is told.
template <typename Stap>
Afloop Doe(Dialogen& dialogen, const Opdrachtnaam& naam, Stap stap) {
  const auto fout = Probeer(stap);
  if (!fout) return Afloop::Goed;
  if (fout->Nummer() == FoutNummer::DialoogGeannuleerd) return Afloop::Geannuleerd;
  (void)dialogen.Toon(OnverwachteFout(naam.Procedure, naam.Venster, *fout));
  return Afloop::Mislukt;
}

BestandVraag OpslaanVraag(std::string_view filter) {
  BestandVraag vraag;
  vraag.Titel = "Opslaan als";
  vraag.Filter = filter;
  vraag.BeginMap = ProgrammaMap();
  vraag.OverschrijfVraag = true;
  vraag.MapBlijft = true;
  return vraag;
}

BestandVraag PrnVraag() {
  BestandVraag vraag = OpslaanVraag(UitvoerFilter);
  vraag.Extensie = "prn";
  return vraag;
}

/// Beside the project and named after it, when it has a file.
BestandVraag PdfVraag(const Programma& programma) {
  BestandVraag vraag = OpslaanVraag(PdfFilter);
  vraag.BeginMap = programma.DataDir;
  vraag.Naam = programma.DialoogNaam;
  if (!vraag.Naam.empty()) vraag.Naam.replace_extension(".pdf");
  vraag.Extensie = "pdf";
  return vraag;
}

/// What is overwritten are the files of the pages, not the one that is named.
BestandVraag BmpVraag(const Programma& programma) {
  BestandVraag vraag = OpslaanVraag(BitmapFilter);
  vraag.Extensie = "bmp";
  vraag.Bladen = programma.Voorbeeld.LaatstePagina;
  return vraag;
}

void BewaarTekst(const Programma& programma, Dialogen& dialogen, const Opdrachtnaam& naam) {
  (void)Doe(dialogen, naam, [&] {
    const fs::path bestand = dialogen.OpslaanDialoog(PrnVraag());
    if (bestand.empty()) return;
    const Zandloper zandloper(dialogen);
    VervangBestand(bestand, PrnBytes(programma.Rapport));
  });
}

/// What the user wants of a chart on the form.
struct Grafiekwens {
  std::int16_t Wens = 0, Keuze = 0;
};

Grafiekwens VraagGrafiek(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek) {
  const Melding vraag{MeldingSoort::Vraag, "Afdrukinstelling", "Afdrukken met grafiek?", Knoppen::YesNo};
  if (dialogen.Toon(vraag) != Antwoord::Yes) return {};
  programma.KiesGrafiek = kiesGrafiek();
  return {1, programma.KiesGrafiek};
}

void MeldGrafiekfout(Dialogen& dialogen) {
  (void)dialogen.Toon({MeldingSoort::Kritiek, "Waarschuwing", "Fout in verwerking grafiekdata"});
}

/// Draws the form under the wait cursor.
void Teken(Programma& programma, Dialogen& dialogen, const Grafiekwens& wens, Vlak& doel) {
  const auto uitkomst = [&] {
    const Zandloper zandloper(dialogen);
    return DrukRapport(doel, FormulierVan(programma), wens.Wens, wens.Keuze, programma.Voorbeeld,
                       programma.Grafiek);
  }();
  if (uitkomst == GrafiekUitkomst::Mislukt) MeldGrafiekfout(dialogen);
}

/// One document a copy: each is a print job of its own.
template <typename Tekenaar>
void DrukExemplaren(Dialogen& dialogen, const Opdrachtnaam& naam, const AfdrukKeuze& keuze, Tekenaar teken) {
  for (int exemplaar = 0; exemplaar < keuze.Exemplaren; ++exemplaar) {
    (void)Doe(dialogen, naam, [&] {
      const std::unique_ptr<Vlak> document = keuze.NieuwDocument();
      teken(*document);
      const Zandloper zandloper(dialogen);
      document->EndDoc();
    });
  }
}

}  // namespace

Formulier FormulierVan(const Programma& programma) {
  return {programma.Project, programma.Resultaten, programma.Instellingen.Gebruikersnaam,
          programma.Instellingen.Druk, programma.Decimaal};
}

void AfdrukPrinter(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek) {
  AfdrukKeuze keuze;
  const Afloop afloop = Doe(dialogen, Printopdracht, [&] { keuze = dialogen.AfdrukDialoog({}); });
  if (afloop == Afloop::Geannuleerd) return;
  if (keuze.NaarBestand) {
    BewaarTekst(programma, dialogen, Printopdracht);
    return;
  }
  programma.Voorbeeld.Voorbeeld = false;
  const Grafiekwens wens = VraagGrafiek(programma, dialogen, kiesGrafiek);
  DrukExemplaren(dialogen, Printopdracht, keuze,
                 [&](Vlak& document) { Teken(programma, dialogen, wens, document); });
}

void Afdruk(const Programma& programma, Dialogen& dialogen) {
  BewaarTekst(programma, dialogen, Prnopdracht);
}

void OpslaanAlsPdf(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek,
                   const PdfMaker& maakPdf) {
  const Grafiekwens wens = VraagGrafiek(programma, dialogen, kiesGrafiek);
  (void)Doe(dialogen, Pdfopdracht, [&] {
    const fs::path bestand = dialogen.OpslaanDialoog(PdfVraag(programma));
    if (bestand.empty()) return;
    const auto uitkomst = [&] {
      const Zandloper zandloper(dialogen);
      const PdfBytes pdf = maakPdf(wens.Wens, wens.Keuze);
      VervangBestand(bestand, pdf.Bytes);
      return pdf.DeGrafiek;
    }();
    if (uitkomst == GrafiekUitkomst::Mislukt) MeldGrafiekfout(dialogen);
  });
}

void LaadVoorbeeld(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek,
                   Vlak& document) {
  programma.Voorbeeld = NieuwVoorbeeld();
  const Grafiekwens wens = VraagGrafiek(programma, dialogen, kiesGrafiek);
  Teken(programma, dialogen, wens, document);
  programma.Voorbeeld.LaatstePagina = programma.Voorbeeld.VoorbeeldPagina;
  document.BewaarBlad(programma.Voorbeeld.LaatstePagina - 1);
}

void OpslaanAlsBitmap(const Programma& programma, Dialogen& dialogen, const BitmapMaker& maakBitmap) {
  std::vector<fs::path> namen;
  (void)Doe(dialogen, Bitmapopdracht, [&] {
    const fs::path naam = dialogen.OpslaanDialoog(BmpVraag(programma));
    if (naam.empty()) return;
    namen = OverBestand(PadTekst(naam), [&] { return BitmapNamen(naam, programma.Voorbeeld.LaatstePagina); });
  });
  int index = 0;
  for (const fs::path& naam : namen) {
    (void)Doe(dialogen, Bitmapopdracht, [&] {
      const Zandloper zandloper(dialogen);
      OverBestand(PadTekst(naam), [&] { VervangBestand(naam, maakBitmap(index)); });
    });
    ++index;
  }
}

bool VulGrafiek(Programma& programma, Dialogen& dialogen, const GrafiekKeuze& kiesGrafiek) {
  const std::int16_t type = programma.Project.Kop.RekenType;
  if (VraagtGrafiekKeuze(type)) programma.KiesGrafiek = kiesGrafiek();
  const auto fout = Probeer([&] {
    const Zandloper zandloper(dialogen);
    programma.Grafiek.As.Decimaal = programma.Decimaal;
    Grafiek2(programma.Project, programma.Resultaten, programma.KiesGrafiek, programma.Grafiek);
  });
  if (fout) MeldGrafiekfout(dialogen);
  return ToontGrafiek(type, programma.KiesGrafiek);
}

void DrukGrafiek(Dialogen& dialogen, const std::function<void(Vlak& blad)>& druk) {
  const Melding vraag{MeldingSoort::Vraag, "Afdrukken", "Grafiek afdrukken op printer?", Knoppen::YesNo};
  if (dialogen.Toon(vraag) != Antwoord::Yes) return;
  constexpr AfdrukVraag vel{.NaarBestandMogelijk = false, .Liggend = false, .Document = "Grafiek"};
  AfdrukKeuze keuze;
  (void)Doe(dialogen, F8opdracht, [&] { keuze = dialogen.AfdrukDialoog(vel); });
  DrukExemplaren(dialogen, F8opdracht, keuze, [&](Vlak& blad) {
    const Zandloper zandloper(dialogen);
    druk(blad);
  });
}

}  // namespace murvane
