#include "reports/rapport.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "basis/fout.h"
#include "calc/rekenkunde.h"
#include "calc/spectrum.h"
#include "versie.h"

namespace murvane {

namespace {

constexpr std::string_view Nl = "\r\n";
constexpr std::size_t CelBreedte = 6;
constexpr std::size_t NaarBand = 2;            ///< blanks before the number of a band cell
constexpr std::size_t NaarSom = 4;             ///< blanks before the number of a sum cell
constexpr std::size_t Halverwege = 48;         ///< column of the right half of a room line
constexpr std::size_t TekensPerElement = 960;  ///< at most, with numbers that fit their cells

/// A rule across the table, with its margin and line end.
template <char Teken>
constexpr auto LijnTekens = [] {
  std::array<char, 6 + 119 + 2> lijn{};
  std::fill(lijn.begin(), lijn.begin() + 6, ' ');
  std::fill(lijn.begin() + 6, lijn.end() - 2, Teken);
  lijn[125] = '\r';
  lijn[126] = '\n';
  return lijn;
}();

template <char Teken>
constexpr std::string_view Lijn{LijnTekens<Teken>.data(), LijnTekens<Teken>.size()};

/// A block in the making; its calls follow a line of the report from left to right.
class Blok {
 public:
  Blok(std::string& uit, char decimaal) : uit_(uit), decimaal_(decimaal) {}

  Blok& Tekst(std::string_view tekst) {
    uit_.append(tekst);
    return *this;
  }
  Blok& Wit(std::size_t n) {
    uit_.append(n, ' ');
    return *this;
  }
  Blok& NieuweRegel() { return Tekst(Nl); }
  Blok& Getal(double waarde, Formaat formaat, std::size_t breedte = 0) {
    VoegRechtsToe(uit_, Eindig(waarde), formaat, breedte, decimaal_);
    return *this;
  }
  Blok& Cel(double waarde, std::size_t voor = NaarBand) {
    return Wit(voor).Getal(waarde, Formaat::Een, CelBreedte);
  }
  Blok& BandCellen(const Spectrum& spectrum) {
    for (std::size_t b = 0; b < Banden; ++b) Cel(spectrum[b]);
    return *this;
  }
  Blok& MetSom(const Spectrum& spectrum) { return BandCellen(spectrum).Cel(spectrum[SomPlaats], NaarSom); }
  /// As MetSom; a level below 0 is nothing that anyone hears.
  Blok& ResultaatMetSom(const Spectrum& spectrum) {
    for (std::size_t b = 0; b < Banden; ++b) {
      if (Eindig(spectrum[b]) < 0) {
        Tekst("     -.-");
      } else {
        Cel(spectrum[b]);
      }
    }
    return Cel(spectrum[SomPlaats], NaarSom);
  }
  /// Blanks up to `kolom` characters behind `begin`; none when the text is longer already.
  Blok& Tot(std::size_t begin, std::size_t kolom) {
    const std::size_t lengte = uit_.size() - begin;
    return Wit(lengte < kolom ? kolom - lengte : 0);
  }
  [[nodiscard]] std::size_t Lengte() const { return uit_.size(); }

 private:
  std::string& uit_;
  char decimaal_;
};

bool IsBekend(std::int16_t rekenType) {
  return !RekenTypeNaam(rekenType).empty();
}

void MaakKop(Blok blok, const ProjectRec& kop, const Tekst<35>& gebruikersnaam) {
  blok.NieuweRegel().NieuweRegel().NieuweRegel().Wit(3).Tekst(gebruikersnaam.Heel()).Tot(0, 72);
  blok.Tekst("MurVane ").Getal(VersieHoofd, Formaat::Heel).Tekst(".").Getal(VersieSub, Formaat::Heel);
  blok.NieuweRegel().Wit(3).Tekst(RekenTypeNaam(kop.RekenType)).NieuweRegel();
}

void MaakProject(Blok blok, const ProjectRec& kop) {
  blok.NieuweRegel();
  blok.Tekst("   Projectnummer       : ").Tekst(kop.ProNum.Heel()).Wit(22);
  blok.Tekst("Datum : ").Tekst(kop.MyDate.Heel()).NieuweRegel();
  blok.Tekst("   Projectnaam         : ").Tekst(kop.ProNaam.Heel()).NieuweRegel();
  blok.Tekst("   Projectomschrijving : ").Tekst(kop.Omschrijving.Heel()).NieuweRegel();
  blok.Tekst("   Toelichting         : ").Tekst(kop.Toelichting1.Heel()).NieuweRegel();
  blok.Wit(25).Tekst(kop.Toelichting2.Heel()).NieuweRegel();
  blok.Wit(25).Tekst(kop.Toelichting3.Heel()).NieuweRegel();
  blok.NieuweRegel();
}

/// The left half of a room line, filled up to its right half.
void LinkerHelft(Blok& blok, std::string_view label, double maat) {
  const std::size_t begin = blok.Lengte();
  blok.Tekst(label).Getal(maat, Formaat::Een).Tekst(" m").Tot(begin, Halverwege);
}

void MaakRuimte(Blok blok, const Project& project) {
  const std::int16_t type = project.Kop.RekenType;
  const RuimteRec& ruimte = project.Ruimte;
  if (project.VrijVeld != 0 && type != rekentype::Overspraak) {
    blok.Tekst("   Vrij-veld situatie").NieuweRegel().NieuweRegel();
    return;
  }
  LinkerHelft(blok, "   Lengte ruimte       : ", ruimte.RLengte);
  blok.Tekst("Nagalmtijd ruimte  : ").Getal(ruimte.RNagalm, Formaat::Een).Tekst(" sec").NieuweRegel();
  LinkerHelft(blok, "   Breedte ruimte      : ", ruimte.RBreedte);
  blok.Tekst("Richtingsfactor    : ").Getal(ruimte.RDI, Formaat::Heel).NieuweRegel();
  LinkerHelft(blok, "   Hoogte ruimte       : ", ruimte.RHoogte);
  if (type == rekentype::Installatiegeluid || type == rekentype::Overspraak)
    blok.Tekst("Aantal roosters    : ").Getal(ruimte.RAantal, Formaat::Heel);
  blok.NieuweRegel().NieuweRegel();
}

void MaakHoofd(Blok blok, const Project& project) {
  blok.Tekst(Lijn<'='>);
  blok.Tekst("       octaafbanden                               [Hz]       63     125     250     500");
  blok.Tekst("    1000    2000    4000      dB(A)").NieuweRegel();
  blok.Tekst(Lijn<'='>);
  if (project.Kop.RekenType != rekentype::Overspraak) {
    blok.Tekst("       VENTILATOR : ").Tekst(project.Fan.FanNaam.Heel()).NieuweRegel();
    blok.Tekst("       geluidsproductie Lw ventilator             [dB] ")
        .MetSom(project.Fan.Lw)
        .NieuweRegel();
    blok.Tekst(Lijn<'-'>);
  }
  blok.Tekst("       SYSTEEMDEMPING :").NieuweRegel();
}

/// The level around the duct and the wall that it came through, under a duct with break-in. The level was
/// entered A-weighted: its bands are shown without the weighting, its sum needs no other one.
void VoegInstralingToe(Blok& blok, const ElementRec& element) {
  blok.NieuweRegel().Wit(32).Tekst("*geluidsniveau    [dB] ");
  for (std::size_t b = 0; b < Banden; ++b) blok.Cel(element.LAeq[b] - AWeging[b]);
  blok.Cel(EnergetischeSom(element.LAeq, false), NaarSom).NieuweRegel();
  blok.Wit(32).Tekst(" Rkanaalwand      [dB] ").BandCellen(element.Rkanaalwand).NieuweRegel();
  blok.Wit(33).Tekst("(").Tekst(element.Kanaal.Getrimd()).Tekst(")").NieuweRegel();
}

void VoegElementToe(Blok& blok, const Project& project, const Resultaten& resultaten, std::size_t i) {
  const ElementRec& element = project.Elementen[i];
  const ElementTekstRijen& tekst = resultaten.ElementTekst[i];
  const bool instraling = resultaten.HeeftInstraling[i];
  blok.Wit(7)
      .Getal(static_cast<double>(i), Formaat::Heel, 2)
      .Tekst(" ")
      .Tekst(element.Naam.Getrimd())
      .NieuweRegel();
  blok.Wit(10)
      .Tekst(tekst[0].Heel())
      .Tekst("  geluiddemping     [dB] ")
      .BandCellen(element.demp)
      .NieuweRegel();
  if (project.Kop.RekenType == rekentype::Overspraak) {
    blok.Wit(10).Tekst(tekst[2].Heel()).NieuweRegel().NieuweRegel();
    return;
  }
  blok.Wit(10).Tekst(tekst[1].Heel()).Tekst("  geluidsproductie  [dB] ").MetSom(element.ruis).NieuweRegel();
  blok.Wit(10).Tekst(tekst[2].Heel()).Tekst("  geluidsinstraling [dB]").Tekst(instraling ? "*" : " ");
  blok.MetSom(element.Instraling).NieuweRegel();
  blok.Wit(10).Tekst(tekst[3].Heel()).Tekst("  subtotaal         [dB] ");
  blok.MetSom(resultaten.Subtotaal[i]).NieuweRegel();
  if (instraling) VoegInstralingToe(blok, element);
  blok.NieuweRegel();
}

/// What stands between the last duct and the room of a radiation calculation.
void VoegUitstralingToe(Blok& blok, const RuimteRec& ruimte, const Spectrum& lwKanaalwand) {
  blok.Wit(32).Tekst("Rkanaalwand       [dB] ").BandCellen(ruimte.Rkanaal).NieuweRegel();
  blok.Wit(32).Tekst("(").Tekst(Trim(ruimte.RkanaalNaam)).Tekst(")").NieuweRegel();
  blok.Wit(32).Tekst("Rplafond          [dB] ").BandCellen(ruimte.Rplafond).NieuweRegel();
  blok.Wit(32).Tekst("(").Tekst(Trim(ruimte.RplafondNaam)).Tekst(")").NieuweRegel();
  blok.Wit(32).Tekst("Lw,kanaalwand     [dB] ").MetSom(lwKanaalwand).NieuweRegel();
}

void MaakElementen(Blok blok, const Project& project, const Resultaten& resultaten) {
  for (int i = 1; i <= project.ElementCount; ++i) {
    try {
      VoegElementToe(blok, project, resultaten, static_cast<std::size_t>(i));
    } catch (const Fout& fout) {
      throw fout.MetPlaats("kanaalelement " + std::to_string(i));
    }
  }
  if (project.Kop.RekenType == rekentype::Geluidsuitstraling)
    VoegUitstralingToe(blok, project.Ruimte, resultaten.LwKanaalwand);
  blok.Tekst(Lijn<'-'>);
}

void MaakResultaat(Blok blok, const Project& project, const Resultaten& resultaten) {
  if (project.Kop.RekenType == rekentype::Overspraak) {
    blok.Tekst("       GELUIDDEMPING:").NieuweRegel();
    blok.Tekst("       Totale systeemdemping                      [dB] ");
    blok.BandCellen(resultaten.SysteemDemping).NieuweRegel();
    blok.Tekst("       Overspraakdemping (Lpz - Lpo)              [dB] ");
    blok.BandCellen(resultaten.OverspraakDemping).NieuweRegel();
  } else {
    blok.Tekst("       GELUIDSDRUKNIVEAU:").NieuweRegel();
    blok.Tekst("       Lp op 1 m afstand van rooster/kanaalwand   [dB] ");
    blok.ResultaatMetSom(resultaten.LpEenMeter).NieuweRegel();
    if (project.VrijVeld == 0) {
      blok.Tekst("       Lp in galmveld ruimte                      [dB] ");
      blok.ResultaatMetSom(resultaten.LpGalmveld).NieuweRegel();
    }
  }
  blok.Tekst(Lijn<'='>).NieuweRegel();
}

}  // namespace

std::string_view RekenTypeNaam(std::int16_t rekenType) {
  switch (rekenType) {
    case rekentype::Installatiegeluid:
      return "Installatiegeluid";
    case rekentype::Geluidsuitstraling:
      return "Geluidsuitstraling";
    case rekentype::Overspraak:
      return "Overspraak";
    default:
      return "";
  }
}

void Afdruk(const Project& project, const Resultaten& resultaten, const Tekst<35>& gebruikersnaam,
            char decimaal, Rapport& rapport) {
  if (project.ElementCount > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  const bool bekend = IsBekend(project.Kop.RekenType);
  Rapport nieuw;
  MaakKop({nieuw.RapKop, decimaal}, project.Kop, gebruikersnaam);
  MaakProject({nieuw.RapProject, decimaal}, project.Kop);
  MaakRuimte({nieuw.RapRuimte, decimaal}, project);
  if (bekend) {
    const auto elementen = static_cast<std::size_t>(std::max<int>(project.ElementCount, 0));
    nieuw.RapElementen.reserve((elementen + 1) * TekensPerElement);
    MaakHoofd({nieuw.RapHoofd, decimaal}, project);
    MaakElementen({nieuw.RapElementen, decimaal}, project, resultaten);
    MaakResultaat({nieuw.RapResultaat, decimaal}, project, resultaten);
  } else {
    nieuw.RapHoofd.swap(rapport.RapHoofd);
    nieuw.RapElementen.swap(rapport.RapElementen);
    nieuw.RapResultaat.swap(rapport.RapResultaat);
  }
  rapport = std::move(nieuw);
}

std::string PrnBytes(const Rapport& rapport) {
  const std::array<const std::string*, 6> blokken = {&rapport.RapKop,       &rapport.RapProject,
                                                     &rapport.RapRuimte,    &rapport.RapHoofd,
                                                     &rapport.RapElementen, &rapport.RapResultaat};
  std::size_t lengte = 0;
  for (const std::string* blok : blokken) lengte += blok->size() + Nl.size();
  std::string uit;
  uit.reserve(lengte);
  for (const std::string* blok : blokken) uit.append(*blok).append(Nl);
  return uit;
}

std::string RechtsUitlijnen(double waarde, Formaat formaat, std::size_t breedte, char decimaal) {
  std::string uit;
  VoegRechtsToe(uit, Eindig(waarde), formaat, breedte, decimaal);
  return uit;
}

}  // namespace murvane
