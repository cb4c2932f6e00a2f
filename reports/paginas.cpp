#include "reports/paginas.h"

#include <algorithm>
#include <exception>

#include "calc/rekenkunde.h"
#include "calc/spectrum.h"
#include "reports/rapport.h"
#include "versie.h"

namespace murvane {

namespace {

constexpr double Marge = 432;           ///< left and right of rules and footer
constexpr double MargeVerticaal = 850;  ///< above the head band's text, below the footer line
constexpr double PuntenTabel = 7.2;
constexpr double PuntenVoet = 10;
constexpr double RuimteElement = 2100;  ///< what the tallest element needs above the footer
constexpr double RuimteUitstraling = 1700;
constexpr double GrafiekMidden = 11340;  ///< twice the centre line of the chart
constexpr Kleur Lijngrijs{70, 70, 70};
constexpr Kleur Randgrijs{200, 200, 200};

constexpr int NummerKolom = 7, NaamKolom = 10, GrootheidKolom = 32, EenheidKolom = 51;
constexpr int BandKolom = 58, BandStap = 8, SomKolom = 117, GetalBreedte = 6;

/// One statement: when it fails the next one runs.
template <typename Werk>
void Opdracht(Werk werk) {
  try {
    werk();
  } catch (const std::exception&) {
    // The form is drawn as far as its surface allows.
  }
}

/// One form being drawn on one surface.
class Drukker {
 public:
  Drukker(Vlak& doel, const Formulier& formulier, VoorbeeldStand& stand, Grafiek& grafiek)
      : doel_(doel), f_(formulier), stand_(stand), grafiek_(grafiek) {}

  GrafiekUitkomst Druk(bool metGrafiek, std::int16_t grafiekKeuze);

 private:
  /// Whether the page changed; a full preview ends the drawing.
  enum class Breuk : std::uint8_t { Gelukt, Einde };

  void Begin();
  Breuk Inhoud();
  void Kop();
  void Kopband();
  void Projectregels();
  void Kamerregels();
  void Tabelkop();
  void Voet();
  Breuk NieuwBlad();
  Breuk Vervolg();
  Breuk VervolgOnder(double ruimte);

  Breuk Elementen();
  void Nummer(std::size_t i);
  void ElementRijen(std::size_t i);
  void ElementOverspraak(std::size_t i);
  void InstralingRijen(const ElementRec& element);
  Breuk Uitstraling();
  void Geluidsdrukniveau();
  void Geluiddemping();
  Breuk DrukGrafiek();

  // At a column, text and perhaps a line end are one statement.
  void Op(int kolom, std::string_view tekst) {
    Opdracht([&] { doel_.Print(NaarKolom(doel_, kolom).append(tekst)); });
  }
  void RegelOp(int kolom, std::string_view tekst) {
    Opdracht([&] { doel_.PrintRegel(NaarKolom(doel_, kolom).append(tekst)); });
  }
  void Leeg() {
    Opdracht([&] { doel_.PrintRegel(""); });
  }
  void Lijn(LijnSoort soort) {
    Opdracht([&] { DrukLijn(doel_, soort); });
  }
  void Zak() {
    Opdracht([&] { doel_.ZetCurrentY(doel_.CurrentY() + 50); });
  }
  void GetalOp(int kolom, double waarde, Formaat formaat, int breedte) {
    Opdracht([&] { doel_.Print(RechtsOpKolom(doel_, kolom, waarde, formaat, breedte, f_.Decimaal)); });
  }
  void Cellen(const Spectrum& spectrum) {
    for (std::size_t b = 0; b < Banden; ++b)
      GetalOp(BandKolom + BandStap * static_cast<int>(b), spectrum[b], Formaat::Een, GetalBreedte);
  }
  void SomRegel(double som) {
    Opdracht([&] {
      doel_.PrintRegel(RechtsOpKolom(doel_, SomKolom, som, Formaat::Een, GetalBreedte, f_.Decimaal));
    });
  }
  void ZonderSom(const Spectrum& spectrum) {
    Cellen(spectrum);
    Leeg();
  }
  void MetSom(const Spectrum& spectrum) {
    Cellen(spectrum);
    SomRegel(spectrum[SomPlaats]);
  }
  /// A final result: a level below 0 is nothing that anyone hears.
  void ResultaatMetSom(Spectrum spectrum) {
    for (std::size_t b = 0; b < Banden; ++b)
      if (spectrum[b] < 0) spectrum[b] = 0;
    MetSom(spectrum);
  }
  void Grootheid(std::string_view naam, std::string_view eenheid = "[dB]") {
    Op(GrootheidKolom, naam);
    Op(EenheidKolom, eenheid);
  }
  void Grootte(double punten) {
    Opdracht([&] { doel_.ZetFontSize(punten); });
  }
  void Vet(bool vet) {
    Opdracht([&] { doel_.ZetFontBold(vet); });
  }
  void Cursief(bool cursief) {
    Opdracht([&] { doel_.ZetFontItalic(cursief); });
  }
  void Stijl(std::int16_t nummer);
  [[nodiscard]] std::string Getal(double waarde, Formaat formaat) const {
    return Opmaak(Eindig(waarde), formaat, f_.Decimaal);
  }
  [[nodiscard]] bool HeeftFan() const {
    const std::int16_t type = f_.Project.Kop.RekenType;
    return type == rekentype::Installatiegeluid || type == rekentype::Geluidsuitstraling;
  }
  [[nodiscard]] bool IsOverspraak() const { return f_.Project.Kop.RekenType == rekentype::Overspraak; }

  Vlak& doel_;
  const Formulier& f_;
  VoorbeeldStand& stand_;
  Grafiek& grafiek_;
  double margeRechts_ = 0, margeOnder_ = 0;
  bool kamerOverslaan_ = false;
};

GrafiekUitkomst Drukker::Druk(bool metGrafiek, std::int16_t grafiekKeuze) {
  auto uitkomst = GrafiekUitkomst::Goed;
  Begin();
  if (Inhoud() == Breuk::Einde) return uitkomst;
  if (metGrafiek) {
    try {
      grafiek_.As.Decimaal = f_.Decimaal;
      Grafiek2(f_.Project, f_.Resultaten, grafiekKeuze, grafiek_);
    } catch (const std::exception&) {
      uitkomst = GrafiekUitkomst::Mislukt;
    }
    if (DrukGrafiek() == Breuk::Einde) return uitkomst;
  }
  Voet();
  Grootte(f_.Instelling.LetterGrootte);
  return uitkomst;
}

void Drukker::Begin() {
  Opdracht([&] { margeRechts_ = doel_.ScaleWidth() - Marge; });
  Opdracht([&] { margeOnder_ = doel_.ScaleHeight() - MargeVerticaal; });
  Opdracht([&] { doel_.ZetFontNaam(f_.Instelling.LettertypeNaam); });
  Grootte(f_.Instelling.LetterGrootte);
  if (!stand_.Voorbeeld) Opdracht([&] { doel_.ZetStaand(); });
  Kop();
}

Drukker::Breuk Drukker::Inhoud() {
  if (HeeftFan()) {
    if (Elementen() == Breuk::Einde) return Breuk::Einde;
    if (f_.Project.Kop.RekenType == rekentype::Geluidsuitstraling && Uitstraling() == Breuk::Einde)
      return Breuk::Einde;
    Geluidsdrukniveau();
  } else if (IsOverspraak()) {
    if (Elementen() == Breuk::Einde) return Breuk::Einde;
    Geluiddemping();
  }
  return Breuk::Gelukt;
}

void Drukker::Stijl(std::int16_t nummer) {
  if (nummer < stijl::Normaal || nummer > stijl::VetCursief) return;
  Vet(nummer == stijl::Vet || nummer == stijl::VetCursief);
  Cursief(nummer == stijl::Cursief || nummer == stijl::VetCursief);
}

void Drukker::Kop() {
  Grootte(f_.Instelling.LetterGrootte);
  Vet(false);
  Cursief(false);
  Stijl(f_.Instelling.KopStijl);
  Kopband();
  Stijl(f_.Instelling.BlokBovenStijl);
  Leeg();
  Leeg();
  Projectregels();
  Leeg();
  if (kamerOverslaan_) {
    Cursief(false);
    Vet(false);
    return;
  }
  Stijl(f_.Instelling.BlokOnderStijl);
  Kamerregels();
  Leeg();
  Cursief(false);
  Vet(false);
  Grootte(PuntenTabel);
  Tabelkop();
}

/// The user's name and the calculation type in a white band with a grey border.
void Drukker::Kopband() {
  const std::string_view naam = f_.Gebruikersnaam.Heel();
  const std::string_view type = RekenTypeNaam(f_.Project.Kop.RekenType);
  double h = 0;
  Opdracht([&] { h = doel_.TextHeight(naam); });
  Opdracht(
      [&] { doel_.Doos(Marge, MargeVerticaal - 150, margeRechts_, MargeVerticaal + h + 150, Randgrijs); });
  Opdracht(
      [&] { doel_.Doos(Marge + 50, MargeVerticaal - 80, margeRechts_ - 50, MargeVerticaal + h + 80, Wit); });
  Opdracht([&] { doel_.ZetCurrentX(Marge + 100); });
  Opdracht([&] { doel_.ZetCurrentY(MargeVerticaal); });
  Opdracht([&] { doel_.Print(naam); });
  Opdracht([&] { doel_.ZetCurrentX(margeRechts_ - doel_.TextWidth(type) - 100); });
  Opdracht([&] { doel_.PrintRegel(type); });
}

void Drukker::Projectregels() {
  const ProjectRec& kop = f_.Project.Kop;
  const auto begin = [&](std::string_view label) {
    Op(3, label);
    Op(23, ":");
  };
  begin("Projectnummer");
  Op(25, kop.ProNum.Heel());
  Op(57, "Datum");
  Op(63, ":");
  RegelOp(65, kop.MyDate.Heel());
  begin("Projectnaam");
  RegelOp(25, kop.ProNaam.Heel());
  begin("Projectomschrijving");
  RegelOp(25, kop.Omschrijving.Heel());
  begin("Toelichting");
  RegelOp(25, kop.Toelichting1.Heel());
  RegelOp(25, kop.Toelichting2.Heel());
  RegelOp(25, kop.Toelichting3.Heel());
}

void Drukker::Kamerregels() {
  if (f_.Project.VrijVeld != 0 && !IsOverspraak()) {
    RegelOp(3, "Vrij-veldsituatie");
    return;
  }
  const RuimteRec& ruimte = f_.Project.Ruimte;
  const auto links = [&](std::string_view label, double maat) {
    Op(3, label);
    Op(23, ":");
    Opdracht([&] { doel_.Print(NaarKolom(doel_, 25) + Getal(maat, Formaat::Een) + " m"); });
  };
  const auto rechts = [&](std::string_view label, double waarde, Formaat formaat, std::string_view eenheid) {
    Op(48, label);
    Op(67, ":");
    Opdracht([&] { doel_.PrintRegel((NaarKolom(doel_, 69) + Getal(waarde, formaat)).append(eenheid)); });
  };
  links("Lengte ruimte", ruimte.RLengte);
  rechts("Nagalmtijd ruimte", ruimte.RNagalm, Formaat::Een, " s");
  links("Breedte ruimte", ruimte.RBreedte);
  rechts("Richtingsfactor", ruimte.RDI, Formaat::Heel, "");
  links("Hoogte ruimte", ruimte.RHoogte);
  if (f_.Project.Kop.RekenType == rekentype::Installatiegeluid || IsOverspraak()) {
    rechts("Aantal roosters", ruimte.RAantal, Formaat::Heel, "");
  } else {
    RegelOp(48, "");
  }
}

void Drukker::Tabelkop() {
  Lijn(LijnSoort::Dubbel);
  Op(NummerKolom, "octaafbanden");
  Op(EenheidKolom, "[Hz]");
  for (std::size_t b = 0; b < Banden; ++b)
    GetalOp(BandKolom + BandStap * static_cast<int>(b), Frequentie[b], Formaat::Heel, GetalBreedte);
  RegelOp(119, "dB(A)");
  Lijn(LijnSoort::Dubbel);
  if (HeeftFan()) {
    RegelOp(NummerKolom, std::string("VENTILATOR : ").append(f_.Project.Fan.FanNaam.Heel()));
    Op(NummerKolom, "geluidsproductie Lw ventilator");
    Op(EenheidKolom, "[dB]");
    MetSom(f_.Project.Fan.Lw);
    Lijn(LijnSoort::Enkel);
  }
  if (HeeftFan() || IsOverspraak()) RegelOp(NummerKolom, "SYSTEEMDEMPING :");
}

void Drukker::Voet() {
  Opdracht([&] { doel_.ZetCurrentX(Marge); });
  Opdracht([&] { doel_.ZetCurrentY(margeOnder_); });
  Opdracht([&] { doel_.Lijn(Marge, margeOnder_, margeRechts_, margeOnder_, Zwart); });
  Opdracht([&] { doel_.ZetCurrentX(Marge); });
  Opdracht([&] { doel_.ZetCurrentY(margeOnder_ + 50); });
  Grootte(PuntenVoet);
  Vet(true);
  Opdracht([&] {
    doel_.Print("MurVane " + Opmaak(VersieHoofd, Formaat::Heel, f_.Decimaal) + "." +
                Opmaak(VersieSub, Formaat::Heel, f_.Decimaal));
  });
  const auto tekst = [&] {
    return "Pagina " + std::to_string(stand_.Voorbeeld ? stand_.VoorbeeldPagina : doel_.Page());
  };
  Opdracht([&] { doel_.ZetCurrentX(margeRechts_ - doel_.TextWidth(tekst())); });
  Opdracht([&] { doel_.PrintRegel(tekst()); });
}

/// The footer and another page. A full preview tells so there and ends, without restoring the font.
Drukker::Breuk Drukker::NieuwBlad() {
  Voet();
  if (!stand_.Voorbeeld) {
    Opdracht([&] { doel_.NewPage(); });
    return Breuk::Gelukt;
  }
  if (stand_.VoorbeeldPagina == MaxVoorbeeldPaginas) {
    Opdracht([&] { doel_.ZetCurrentX(Marge); });
    Opdracht([&] { doel_.PrintRegel("Afdrukvoorbeeld is helaas gelimiteerd op 5 pagina's!"); });
    return Breuk::Einde;
  }
  Opdracht([&] { doel_.BewaarBlad(stand_.VoorbeeldPagina - 1); });
  ++stand_.VoorbeeldPagina;
  Opdracht([&] { doel_.Cls(); });
  return Breuk::Gelukt;
}

Drukker::Breuk Drukker::Vervolg() {
  Lijn(LijnSoort::Dubbel);
  RegelOp(115, "<vervolg>");
  if (NieuwBlad() == Breuk::Einde) return Breuk::Einde;
  Kop();
  return Breuk::Gelukt;
}

/// A continuation break when less than `ruimte` is left above the footer.
Drukker::Breuk Drukker::VervolgOnder(double ruimte) {
  bool vol = false;
  Opdracht([&] { vol = doel_.CurrentY() > margeOnder_ - ruimte; });
  return vol ? Vervolg() : Breuk::Gelukt;
}

Drukker::Breuk Drukker::Elementen() {
  const int aantal = std::min<int>(f_.Project.ElementCount, MaxElementen);
  for (std::size_t i = 1; static_cast<int>(i) <= aantal; ++i) {
    if (VervolgOnder(RuimteElement) == Breuk::Einde) return Breuk::Einde;
    Nummer(i);
    if (IsOverspraak()) {
      ElementOverspraak(i);
    } else {
      ElementRijen(i);
    }
  }
  return Breuk::Gelukt;
}

void Drukker::Nummer(std::size_t i) {
  GetalOp(NummerKolom, static_cast<double>(i), Formaat::Heel, 2);
  RegelOp(NaamKolom, f_.Project.Elementen[i].Naam.Getrimd());
}

void Drukker::ElementRijen(std::size_t i) {
  const ElementRec& element = f_.Project.Elementen[i];
  const ElementTekstRijen& tekst = f_.Resultaten.ElementTekst[i];
  const bool instraling = f_.Resultaten.HeeftInstraling[i];
  Op(NaamKolom, tekst[0].Heel());
  Grootheid("geluiddemping");
  ZonderSom(element.demp);
  Op(NaamKolom, tekst[1].Heel());
  Grootheid("geluidsproductie");
  MetSom(element.ruis);
  Op(NaamKolom, tekst[2].Heel());
  Grootheid("geluidsinstraling", instraling ? "[dB]*" : "[dB]");
  MetSom(element.Instraling);
  Op(NaamKolom, tekst[3].Heel());
  Grootheid("subtotaal");
  MetSom(f_.Resultaten.Subtotaal[i]);
  Zak();
  if (instraling) InstralingRijen(element);
}

/// The level around the duct, its bands without the weighting that it was entered with, and the duct's wall.
void Drukker::InstralingRijen(const ElementRec& element) {
  Spectrum niveau = element.LAeq;
  for (std::size_t b = 0; b < Banden; ++b) niveau[b] -= AWeging[b];
  Grootheid("*geluidsniveau");
  Cellen(niveau);
  Opdracht([&] {
    const double som = EnergetischeSom(element.LAeq, false);
    doel_.PrintRegel(RechtsOpKolom(doel_, SomKolom, som, Formaat::Een, GetalBreedte, f_.Decimaal));
  });
  Op(GrootheidKolom + 1, "Rkanaalwand");
  Op(EenheidKolom, "[dB]");
  ZonderSom(element.Rkanaalwand);
  RegelOp(GrootheidKolom + 1, std::string("(").append(element.Kanaal.Getrimd()).append(")"));
  Zak();
}

/// What stands between the last duct and the room of a radiation calculation.
Drukker::Breuk Drukker::Uitstraling() {
  if (VervolgOnder(RuimteUitstraling) == Breuk::Einde) return Breuk::Einde;
  const RuimteRec& ruimte = f_.Project.Ruimte;
  const auto wand = [&](std::string_view grootheid, const Spectrum& isolatie, std::string_view naam) {
    Grootheid(grootheid);
    ZonderSom(isolatie);
    RegelOp(GrootheidKolom, std::string("(").append(Trim(naam)).append(")"));
  };
  wand("Rkanaalwand", ruimte.Rkanaal, ruimte.RkanaalNaam);
  wand("Rplafond", ruimte.Rplafond, ruimte.RplafondNaam);
  Grootheid("Lw,kanaalwand");
  MetSom(f_.Resultaten.LwKanaalwand);
  Zak();
  return Breuk::Gelukt;
}

void Drukker::Geluidsdrukniveau() {
  Lijn(LijnSoort::Enkel);
  RegelOp(NummerKolom, "GELUIDSDRUKNIVEAU:");
  Op(NummerKolom, "Lp op 1 m afstand van rooster/kanaalwand");
  Op(EenheidKolom, "[dB]");
  ResultaatMetSom(f_.Resultaten.LpEenMeter);
  if (f_.Project.VrijVeld == 0) {
    Op(NummerKolom, "Lp in galmveld ruimte");
    Op(EenheidKolom, "[dB]");
    ResultaatMetSom(f_.Resultaten.LpGalmveld);
  }
  Lijn(LijnSoort::Dubbel);
}

/// The unit of this row, and of no other, has no brackets.
void Drukker::ElementOverspraak(std::size_t i) {
  const ElementTekstRijen& tekst = f_.Resultaten.ElementTekst[i];
  Op(NaamKolom, tekst[0].Heel());
  Grootheid("geluiddemping", "dB");
  ZonderSom(f_.Project.Elementen[i].demp);
  RegelOp(NaamKolom, tekst[2].Heel());
  Zak();
}

void Drukker::Geluiddemping() {
  const auto rij = [&](std::string_view naam, const Spectrum& demping) {
    Op(NummerKolom, naam);
    Op(EenheidKolom, "[dB]");
    ZonderSom(demping);
  };
  Lijn(LijnSoort::Enkel);
  RegelOp(NummerKolom, "GELUIDDEMPING:");
  rij("Totale systeemdemping", f_.Resultaten.SysteemDemping);
  rij("Overspraakdemping (Lpz - Lpo)", f_.Resultaten.OverspraakDemping);
  Lijn(LijnSoort::Dubbel);
}

/// A chart that does not fit goes to a page with the short head.
Drukker::Breuk Drukker::DrukGrafiek() {
  double past = 0;
  Opdracht([&] { past = (margeOnder_ - doel_.CurrentY()) / GrafiekHoogte; });
  if (past < 1) {
    if (NieuwBlad() == Breuk::Einde) return Breuk::Einde;
    kamerOverslaan_ = true;
    Kop();
  }
  Opdracht([&] {
    doel_.PaintPicture(grafiek_, (GrafiekMidden - GrafiekBreedte) / 2, doel_.CurrentY(), GrafiekBreedte,
                       GrafiekHoogte);
  });
  return Breuk::Gelukt;
}

}  // namespace

GrafiekUitkomst DrukRapport(Vlak& doel, const Formulier& formulier, std::int16_t grafiekWens,
                            std::int16_t grafiekKeuze, VoorbeeldStand& stand, Grafiek& grafiek) {
  return Drukker(doel, formulier, stand, grafiek).Druk(grafiekWens == 1 && grafiekKeuze > 0, grafiekKeuze);
}

std::string NaarKolom(Vlak& doel, int kolom) {
  doel.ZetCurrentX(doel.FontSize() * 12 * kolom);
  return {};
}

std::string RechtsOpKolom(Vlak& doel, int kolom, double waarde, Formaat formaat, int breedte, char decimaal) {
  std::string tekst = Opmaak(Eindig(waarde), formaat, decimaal);
  doel.ZetCurrentX((kolom + breedte) * 12 * doel.FontSize() - doel.TextWidth(tekst));
  return tekst;
}

void DrukLijn(Vlak& doel, LijnSoort soort) {
  doel.ZetCurrentY(doel.CurrentY() + 50);
  const double y = doel.CurrentY();
  const double rechts = doel.ScaleWidth() - Marge;
  if (soort == LijnSoort::Dubbel) {
    doel.Doos(Marge, y - 10, rechts, y, Lijngrijs);
  } else {
    doel.Lijn(Marge, y, rechts, y, Lijngrijs);
  }
  doel.ZetCurrentY(doel.CurrentY() + 50);
}

}  // namespace murvane
