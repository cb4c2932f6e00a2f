#include "shell/afdrukken.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "basis/bestand.h"
#include "reports/preview.h"
#include "reports/rapport.h"
#include "tests/hulp/bestanden.h"
#include "tests/hulp/opnemer.h"
#include "tests/hulp/script.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::Opnemer;
using proef::Script;
using Regels = std::vector<std::string>;

Melding Onverwacht(const std::string& waar, const std::string& fout) {
  return {MeldingSoort::Kritiek, "MurVane",
          "Onverwachte fout in procedure " + waar + ".\nFout " + fout + "."};
}

const Melding GrafiekVraag{MeldingSoort::Vraag, "Afdrukinstelling", "Afdrukken met grafiek?", Knoppen::YesNo};
const Melding GrafiekFout{MeldingSoort::Kritiek, "Waarschuwing", "Fout in verwerking grafiekdata"};
const std::string TitelEenMeter =
    "Geluidsdrukniveau op 1 meter van rooster/kanaalwand (afgerond op gehele decibellen)";

/// A calculated project, a user and a printer.
class Afdrukken : public testing::Test {
 protected:
  Afdrukken() {
    programma_.DataDir = map_.Pad();
    programma_.Project.Kop.RekenType = rekentype::Installatiegeluid;
    programma_.Project.Kop.ProNaam = "Kantoor";
    programma_.Instellingen.Druk = StandaardDrukInstelling();
    programma_.Rapport = {"kop", "project", "ruimte", "hoofd", "elementen", "resultaat"};
  }

  static BestandVraag Opslaan(const std::string& filter) {
    return {"Opslaan als", filter, ProgrammaMap(), {}, true, false, true};
  }
  /// A name without an extension gets one.
  static BestandVraag PrnVraag() {
    BestandVraag vraag = Opslaan("Uitvoerbestanden (*.prn)|*.prn");
    vraag.Extensie = "prn";
    return vraag;
  }
  /// A name without an extension gets one; the files of the pages are what is overwritten.
  [[nodiscard]] BestandVraag BmpVraag() const {
    BestandVraag vraag = Opslaan("Bitmap-bestanden (*.bmp)|*.bmp");
    vraag.Extensie = "bmp";
    vraag.Bladen = programma_.Voorbeeld.LaatstePagina;
    return vraag;
  }

  /// The sheet that the printer's next document is drawn on stays here for the test to look at.
  struct Doorgeef final : Vlak {
    explicit Doorgeef(Opnemer& naar) : naar_(naar) {}
    double ScaleWidth() const override { return naar_.ScaleWidth(); }
    double ScaleHeight() const override { return naar_.ScaleHeight(); }
    void ZetStaand() override { naar_.ZetStaand(); }
    void ZetFontNaam(std::string_view naam) override { naar_.ZetFontNaam(naam); }
    void ZetFontSize(double punten) override { naar_.ZetFontSize(punten); }
    void ZetFontBold(bool vet) override { naar_.ZetFontBold(vet); }
    void ZetFontItalic(bool cursief) override { naar_.ZetFontItalic(cursief); }
    double FontSize() const override { return naar_.FontSize(); }
    double CurrentX() const override { return naar_.CurrentX(); }
    double CurrentY() const override { return naar_.CurrentY(); }
    void ZetCurrentX(double x) override { naar_.ZetCurrentX(x); }
    void ZetCurrentY(double y) override { naar_.ZetCurrentY(y); }
    double TextWidth(std::string_view tekst) const override { return naar_.TextWidth(tekst); }
    double TextHeight(std::string_view tekst) const override { return naar_.TextHeight(tekst); }
    void Print(std::string_view tekst) override { naar_.Print(tekst); }
    void PrintRegel(std::string_view tekst) override { naar_.PrintRegel(tekst); }
    void Lijn(double a, double b, double c, double d, Kleur k) override { naar_.Lijn(a, b, c, d, k); }
    void Doos(double a, double b, double c, double d, Kleur k) override { naar_.Doos(a, b, c, d, k); }
    void PaintPicture(const Grafiek& g, double x, double y, double b, double h) override {
      naar_.PaintPicture(g, x, y, b, h);
    }
    void NewPage() override { naar_.NewPage(); }
    int Page() const override { return naar_.Page(); }
    void EndDoc() override { naar_.EndDoc(); }
    void BewaarBlad(int index) override { naar_.BewaarBlad(index); }
    void Cls() override { naar_.Cls(); }
    Opnemer& naar_;
  };

  AfdrukKeuze Keuze(int exemplaren, bool naarBestand = false) {
    return {exemplaren, naarBestand, [this]() -> std::unique_ptr<Vlak> {
              if (begin_) begin_();
              documenten_.push_back(std::make_unique<Opnemer>());
              documenten_.back()->Faalt = faalt_;
              return std::make_unique<Doorgeef>(*documenten_.back());
            }};
  }
  /// frmSelGraf, which may be shown once.
  GrafiekKeuze Kiest(std::int16_t keuze) {
    return [this, keuze] {
      ++keerGekozen_;
      return keuze;
    };
  }
  void Print(std::int16_t grafiekKeuze = 0) {
    AfdrukPrinter(programma_, script_, Kiest(grafiekKeuze));
    script_.IsKlaar();
  }

  proef::TijdelijkeMap map_;
  Script script_{[](const std::string& fout) { ADD_FAILURE() << fout; }};
  Programma programma_;
  std::vector<std::unique_ptr<Opnemer>> documenten_;
  std::function<void()> begin_;
  std::function<bool(std::string_view, int)> faalt_;
  int keerGekozen_ = 0;
};

using Printopdracht = Afdrukken;

TEST_F(Printopdracht, PrintsEachCopyAsADocumentOfItsOwn) {
  programma_.Voorbeeld = {true, 2, 3};
  programma_.Project.ElementCount = 12;
  script_.Afdrukken({true}, Keuze(3)).Box(GrafiekVraag, Antwoord::No);
  Print();
  ASSERT_EQ(documenten_.size(), 3U);
  for (const auto& document : documenten_) {
    EXPECT_EQ(document->Gebeurtenissen(), (Regels{"staand", "NewPage", "EndDoc"}));
    EXPECT_EQ(document->Zoek("Pagina 2").size(), 1U);
    EXPECT_TRUE(document->Plaatjes().empty());
  }
  EXPECT_EQ(keerGekozen_, 0);
  EXPECT_EQ(programma_.Voorbeeld, (VoorbeeldStand{false, 2, 3}));  // printing is not previewing
}

TEST_F(Printopdracht, PrintsTheChosenChart) {
  script_.Afdrukken({true}, Keuze(1)).Box(GrafiekVraag, Antwoord::Yes);
  Print(kiesgrafiek::EenMeter);
  EXPECT_EQ(keerGekozen_, 1);
  EXPECT_EQ(programma_.KiesGrafiek, 1);
  ASSERT_EQ(documenten_.at(0)->Plaatjes().size(), 1U);
  EXPECT_EQ(documenten_[0]->Plaatjes()[0].Grafiek.Titel.at(0), TitelEenMeter);
  EXPECT_EQ(programma_.Grafiek.Titel.at(0), TitelEenMeter);
}

TEST_F(Printopdracht, PrintsNoChartWhenItsChoiceWasCancelled) {
  script_.Afdrukken({true}, Keuze(1)).Box(GrafiekVraag, Antwoord::Yes);
  Print(kiesgrafiek::Geen);
  EXPECT_TRUE(documenten_.at(0)->Plaatjes().empty());
  EXPECT_EQ(documenten_[0]->Gebeurtenissen(), (Regels{"staand", "EndDoc"}));
}

TEST_F(Printopdracht, AsksForTheChartOfCrosstalkAsWell) {
  programma_.Project.Kop.RekenType = rekentype::Overspraak;
  script_.Afdrukken({true}, Keuze(1)).Box(GrafiekVraag, Antwoord::Yes);
  Print(kiesgrafiek::Galmveld);
  EXPECT_EQ(keerGekozen_, 1);
  EXPECT_EQ(documenten_.at(0)->Plaatjes().size(), 1U);
}

TEST_F(Printopdracht, CancelledDoesNothing) {
  programma_.Voorbeeld.Voorbeeld = true;
  script_.Afdrukken({true}, std::nullopt);
  Print();
  EXPECT_TRUE(programma_.Voorbeeld.Voorbeeld);
}

TEST_F(Printopdracht, ToAFileSavesTheTextReport) {
  programma_.Voorbeeld.Voorbeeld = true;
  script_.Afdrukken({true}, Keuze(2, true)).Opslaan(PrnVraag(), map_ / "één.prn");
  Print();
  EXPECT_EQ(proef::Lees(map_ / "één.prn"), "kop\r\nproject\r\nruimte\r\nhoofd\r\nelementen\r\nresultaat\r\n");
  EXPECT_TRUE(documenten_.empty());
  EXPECT_TRUE(programma_.Voorbeeld.Voorbeeld);  // the chart was not asked for either
}

TEST_F(Printopdracht, ToAFileTellsWhatFailsUnderItsOwnName) {
  script_.Afdrukken({true}, Keuze(1, true))
      .Opslaan(PrnVraag(), map_ / "weg/x.prn")
      .Box(Onverwacht("AfdrukPrinter van Form frmMurvane", "76 - De map 'weg' is niet gevonden"));
  Print();
  script_.Afdrukken({true}, Keuze(1, true)).Opslaan(PrnVraag(), std::nullopt);
  Print();
  script_.Afdrukken({true}, Keuze(1, true)).Opslaan(PrnVraag(), fs::path());
  Print();
  EXPECT_TRUE(map_.Namen().empty());
}

TEST_F(Printopdracht, GoesOnWithTheNextCopyWhenADocumentFails) {
  faalt_ = [](std::string_view naam, int) { return naam == "EndDoc"; };
  const Melding box = Onverwacht("AfdrukPrinter van Form frmMurvane", "51 - Interne fout");
  script_.Afdrukken({true}, Keuze(2)).Box(GrafiekVraag, Antwoord::No).Box(box).Box(box);
  Print();
  EXPECT_EQ(documenten_.size(), 2U);
}

TEST_F(Printopdracht, TellsOfAPrinterThatCannotBegin) {
  begin_ = [] { throw Fout(FoutNummer::GeenToestemming); };
  script_.Afdrukken({true}, Keuze(1))
      .Box(GrafiekVraag, Antwoord::No)
      .Box(Onverwacht("AfdrukPrinter van Form frmMurvane", "70 - Geen toestemming"));
  Print();
}

TEST_F(Printopdracht, TellsOfAChartThatFailsOnceACopy) {
  programma_.Resultaten.LpEenMeter[4] = 40000;
  programma_.Grafiek.Titel = {"vorige"};
  script_.Afdrukken({true}, Keuze(2)).Box(GrafiekVraag, Antwoord::Yes).Box(GrafiekFout).Box(GrafiekFout);
  Print(kiesgrafiek::EenMeter);
  ASSERT_EQ(documenten_.size(), 2U);
  EXPECT_EQ(documenten_[1]->Plaatjes().at(0).Grafiek.Titel, Regels{"vorige"});
  EXPECT_EQ(documenten_[1]->Gebeurtenissen().back(), "EndDoc");
}

TEST_F(Printopdracht, TellsOfADialogThatFailsAndPrintsNothing) {
  struct Stuk final : Dialogen {
    explicit Stuk(Script& naar) : naar_(naar) {}
    Antwoord Toon(const Melding& m) override { return naar_.Toon(m); }
    std::string Invoer(const InvoerVraag& v) override { return naar_.Invoer(v); }
    fs::path OpenDialoog(const BestandVraag& v) override { return naar_.OpenDialoog(v); }
    fs::path OpslaanDialoog(const BestandVraag& v) override { return naar_.OpslaanDialoog(v); }
    AfdrukKeuze AfdrukDialoog(const AfdrukVraag&) override {
      throw Fout(FoutNummer::PadToegang, "Geen printer");
    }
    void Wachten(bool aan) override { naar_.Wachten(aan); }
    Script& naar_;
  } stuk(script_);
  programma_.Voorbeeld.Voorbeeld = true;
  script_.Box(Onverwacht("AfdrukPrinter van Form frmMurvane", "75 - Geen printer"))
      .Box(GrafiekVraag, Antwoord::No);  // it goes on behind what failed, with nothing to print
  AfdrukPrinter(programma_, stuk, Kiest(0));
  script_.IsKlaar();
  EXPECT_FALSE(programma_.Voorbeeld.Voorbeeld);
}

using Prnopdracht = Afdrukken;

TEST_F(Prnopdracht, ReplacesTheFileWithTheSixBlocks) {
  proef::Schrijf(map_ / "rapport", std::string(1000, 'x'));
  script_.Opslaan(PrnVraag(), map_ / "rapport");  // any name will do
  Afdruk(programma_, script_);
  EXPECT_EQ(proef::Lees(map_ / "rapport"), PrnBytes(programma_.Rapport));
  EXPECT_EQ(script_.KeerGewacht(), 1);
}

TEST_F(Prnopdracht, EndsInSilenceWhenCancelledOrWithoutAName) {
  script_.Opslaan(PrnVraag(), std::nullopt).Opslaan(PrnVraag(), fs::path());
  Afdruk(programma_, script_);
  Afdruk(programma_, script_);
  EXPECT_TRUE(map_.Namen().empty());
}

TEST_F(Prnopdracht, TellsWhatFailsAndKeepsTheOldFile) {
  proef::Schrijf(map_ / "oud.prn", "oud");
  programma_.Rapport.RapElementen = std::string(5000, 'e');
  script_.Opslaan(PrnVraag(), map_ / "oud.prn")
      .Box(Onverwacht("Afdruk van Form frmResultaat",
                      "61 - De schijf is vol; het bestand 'oud.prn' is niet geschreven"));
  {
    const proef::Schijfgrens vol(1000);
    Afdruk(programma_, script_);
  }
  EXPECT_EQ(proef::Lees(map_ / "oud.prn"), "oud");
}

using Pdfopdracht = Afdrukken;

TEST_F(Pdfopdracht, AsksForTheChartAndANameBesideTheProject) {
  programma_.DialoogNaam = map_ / "één kantoor.mrv";
  BestandVraag vraag{
      "Opslaan als", "PDF-bestanden (*.pdf)|*.pdf", map_.Pad(), map_ / "één kantoor.pdf", true, false, true,
      "pdf"};
  script_.Box(GrafiekVraag, Antwoord::Yes).Opslaan(vraag, map_ / "uit.pdf");
  OpslaanAlsPdf(programma_, script_, Kiest(kiesgrafiek::Galmveld), [](std::int16_t wens, std::int16_t keuze) {
    return PdfBytes{"pdf " + std::to_string(wens) + std::to_string(keuze), GrafiekUitkomst::Goed};
  });
  EXPECT_EQ(proef::Lees(map_ / "uit.pdf"), "pdf 12");
  script_.IsKlaar();
  programma_.DialoogNaam.clear();
  vraag.Naam.clear();
  script_.Box(GrafiekVraag, Antwoord::No).Opslaan(vraag, map_ / "uit.pdf");
  OpslaanAlsPdf(programma_, script_, Kiest(1), [](std::int16_t wens, std::int16_t keuze) {
    return PdfBytes{"pdf " + std::to_string(wens) + std::to_string(keuze), GrafiekUitkomst::Goed};
  });
  EXPECT_EQ(proef::Lees(map_ / "uit.pdf"), "pdf 00");
}

TEST_F(Pdfopdracht, TellsWhatFailsAndKeepsTheOldFile) {
  proef::Schrijf(map_ / "oud.pdf", "oud");
  const BestandVraag vraag{"Opslaan als", "PDF-bestanden (*.pdf)|*.pdf", map_.Pad(), {}, true, false, true,
                           "pdf"};
  script_.Box(GrafiekVraag, Antwoord::No)
      .Opslaan(vraag, map_ / "oud.pdf")
      .Box(Onverwacht("OpslaanAlsPdf van Form frmResultaat", "7 - Onvoldoende geheugen"));
  OpslaanAlsPdf(programma_, script_, Kiest(1),
                [](std::int16_t, std::int16_t) -> PdfBytes { throw std::bad_alloc(); });
  EXPECT_EQ(proef::Lees(map_ / "oud.pdf"), "oud");
  script_.IsKlaar();
  script_.Box(GrafiekVraag, Antwoord::No).Opslaan(vraag, std::nullopt);
  OpslaanAlsPdf(programma_, script_, Kiest(1), [](std::int16_t, std::int16_t) { return PdfBytes{}; });
}

TEST_F(Pdfopdracht, TellsOfAChartThatFails) {
  const BestandVraag vraag{"Opslaan als", "PDF-bestanden (*.pdf)|*.pdf", map_.Pad(), {}, true, false, true,
                           "pdf"};
  script_.Box(GrafiekVraag, Antwoord::Yes).Opslaan(vraag, map_ / "uit.pdf").Box(GrafiekFout);
  OpslaanAlsPdf(programma_, script_, Kiest(1), [](std::int16_t, std::int16_t) {
    return PdfBytes{"pdf", GrafiekUitkomst::Mislukt};
  });
  EXPECT_EQ(proef::Lees(map_ / "uit.pdf"), "pdf");
}

using Previewopdracht = Afdrukken;

TEST_F(Previewopdracht, DrawsOnceAndOpensOnTheLastPage) {
  programma_.Voorbeeld = {false, 4, 4};
  programma_.Project.ElementCount = 12;
  Opnemer document;
  script_.Box(GrafiekVraag, Antwoord::No);
  LaadVoorbeeld(programma_, script_, Kiest(1), document);
  EXPECT_EQ(programma_.Voorbeeld, (VoorbeeldStand{true, 2, 2}));
  EXPECT_EQ(document.Gebeurtenissen(), (Regels{"BewaarBlad 0", "Cls", "BewaarBlad 1"}));
  EXPECT_EQ(VoorbeeldTitel(programma_.Voorbeeld), "Afdrukvoorbeeld, pagina 2 van 2");
  EXPECT_EQ(keerGekozen_, 0);
}

TEST_F(Previewopdracht, HoldsNoMoreThanFivePages) {
  programma_.Project.ElementCount = 99;
  Opnemer document;
  script_.Box(GrafiekVraag, Antwoord::Yes);
  LaadVoorbeeld(programma_, script_, Kiest(kiesgrafiek::EenMeter), document);
  EXPECT_EQ(programma_.Voorbeeld, (VoorbeeldStand{true, 5, 5}));
  EXPECT_EQ(document.Gebeurtenissen().back(), "BewaarBlad 4");
  EXPECT_EQ(document.Gebeurtenissen().size(), 9U);
}

TEST_F(Previewopdracht, ShowsTheChosenChart) {
  Opnemer document;
  script_.Box(GrafiekVraag, Antwoord::Yes);
  LaadVoorbeeld(programma_, script_, Kiest(kiesgrafiek::EenMeter), document);
  EXPECT_EQ(document.Plaatjes().at(0).Grafiek.Titel.at(0), TitelEenMeter);
}

using Bitmapopdracht = Afdrukken;

std::string Beeld(int index) {
  return "beeld " + std::to_string(index);
}

TEST_F(Bitmapopdracht, WritesEachPageUnderItsNumberAndNotTheNameItself) {
  programma_.Voorbeeld = {true, 1, 3};
  script_.Opslaan(BmpVraag(), map_ / "één.bmp");
  OpslaanAlsBitmap(programma_, script_, Beeld);
  EXPECT_EQ(map_.Namen(), (Regels{"één1.bmp", "één2.bmp", "één3.bmp"}));
  EXPECT_EQ(proef::Lees(map_ / "één2.bmp"), "beeld 1");
}

TEST_F(Bitmapopdracht, RefusesAnotherExtension) {
  programma_.Voorbeeld = {true, 1, 2};
  script_.Opslaan(BmpVraag(), map_ / "x.BMP")
      .Box(Onverwacht("Opslaan van Form frmPreView", "52 - De bestandsnaam 'x.BMP' is ongeldig"));
  OpslaanAlsBitmap(programma_, script_, Beeld);
  script_.Opslaan(BmpVraag(), fs::path()).Opslaan(BmpVraag(), std::nullopt);
  OpslaanAlsBitmap(programma_, script_, Beeld);
  OpslaanAlsBitmap(programma_, script_, Beeld);
  EXPECT_TRUE(map_.Namen().empty());
}

TEST_F(Bitmapopdracht, GoesOnWithTheNextPageWhenOneFails) {
  programma_.Voorbeeld = {true, 1, 3};
  fs::create_directory(map_ / "x2.bmp");
  script_.Opslaan(BmpVraag(), map_ / "x.bmp")
      .Box(Onverwacht("Opslaan van Form frmPreView", "75 - Geen toegang tot het bestand of de map 'x2.bmp'"));
  OpslaanAlsBitmap(programma_, script_, Beeld);
  EXPECT_EQ(map_.Namen(), (Regels{"x1.bmp", "x2.bmp", "x3.bmp"}));
}

using Grafiekopdracht = Afdrukken;

TEST_F(Grafiekopdracht, AsksAndShows) {
  EXPECT_TRUE(VulGrafiek(programma_, script_, Kiest(kiesgrafiek::EenMeter)));
  EXPECT_EQ(keerGekozen_, 1);
  EXPECT_EQ(programma_.KiesGrafiek, 1);
  EXPECT_EQ(programma_.Grafiek.Titel.at(0), TitelEenMeter);
  EXPECT_EQ(script_.KeerGewacht(), 1);
}

TEST_F(Grafiekopdracht, TakesTheDecimalSignOfTheProgram) {
  for (const char decimaal : {'.', ','}) {
    programma_.Decimaal = decimaal;
    EXPECT_TRUE(VulGrafiek(programma_, script_, Kiest(kiesgrafiek::EenMeter)));
    EXPECT_EQ(programma_.Grafiek.As.Decimaal, decimaal);
  }
}

TEST_F(Grafiekopdracht, WaitsForTheChartAndNotForTheUser) {
  const auto kies = [this]() -> std::int16_t {
    EXPECT_EQ(script_.KeerGewacht(), 0);
    return kiesgrafiek::EenMeter;
  };
  EXPECT_TRUE(VulGrafiek(programma_, script_, kies));
  EXPECT_EQ(script_.KeerGewacht(), 1);
}

TEST_F(Grafiekopdracht, FillsTheChartEvenWhenTheChoiceWasCancelled) {
  EXPECT_FALSE(VulGrafiek(programma_, script_, Kiest(kiesgrafiek::Geen)));
  EXPECT_EQ(programma_.Grafiek.Titel.size(), 4U);
}

TEST_F(Grafiekopdracht, OfCrosstalkAsksNothing) {
  programma_.Project.Kop.RekenType = rekentype::Overspraak;
  EXPECT_TRUE(VulGrafiek(programma_, script_, Kiest(kiesgrafiek::EenMeter)));
  EXPECT_EQ(keerGekozen_, 0);
  EXPECT_EQ(programma_.KiesGrafiek, 0);
}

TEST_F(Grafiekopdracht, TellsOfAFailureAndShowsTheFormerChart) {
  programma_.Resultaten.LpEenMeter[4] = 40000;
  programma_.Grafiek.Titel = {"vorige"};
  script_.Box(GrafiekFout);
  EXPECT_TRUE(VulGrafiek(programma_, script_, Kiest(kiesgrafiek::EenMeter)));
  EXPECT_EQ(programma_.Grafiek.Titel, Regels{"vorige"});
}

using F8opdracht = Afdrukken;

const Melding F8Vraag{MeldingSoort::Vraag, "Afdrukken", "Grafiek afdrukken op printer?", Knoppen::YesNo};

TEST_F(F8opdracht, PrintsTheWindowAsOftenAsAsked) {
  int getekend = 0;
  const auto druk = [&](Vlak& blad) {
    // The wait cursor comes for the drawing, and again for the end of each document.
    EXPECT_EQ(script_.KeerGewacht(), 2 * getekend++ + 1);
    blad.Print("venster");
  };
  script_.Box(F8Vraag, Antwoord::No);
  DrukGrafiek(script_, druk);
  EXPECT_TRUE(documenten_.empty());
  script_.Box(F8Vraag, Antwoord::Yes).Afdrukken({false, false, "Grafiek"}, std::nullopt);
  DrukGrafiek(script_, druk);
  EXPECT_TRUE(documenten_.empty());
  script_.Box(F8Vraag, Antwoord::Yes).Afdrukken({false, false, "Grafiek"}, Keuze(2));
  DrukGrafiek(script_, druk);
  ASSERT_EQ(documenten_.size(), 2U);
  EXPECT_EQ(documenten_[1]->Zoek("venster").size(), 1U);
  EXPECT_EQ(documenten_[1]->Gebeurtenissen(), Regels{"EndDoc"});
}

TEST_F(F8opdracht, TellsWhatFails) {
  faalt_ = [](std::string_view naam, int) { return naam == "EndDoc"; };
  script_.Box(F8Vraag, Antwoord::Yes)
      .Afdrukken({false, false, "Grafiek"}, Keuze(1))
      .Box(Onverwacht("Form_KeyDown van Form frmGrafiek", "51 - Interne fout"));
  DrukGrafiek(script_, [](Vlak&) {});
}

}  // namespace
}  // namespace murvane
