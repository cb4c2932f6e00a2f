// The commands schat ...: the estimators, and the prognosis of a fan.

#include <array>
#include <charconv>
#include <span>
#include <stdexcept>
#include <string_view>
#include <variant>

#include "basis/json.h"
#include "basis/tekst.h"
#include "cli/opdrachten.h"
#include "editor/fantab.h"
#include "estimators/kanaalwand.h"

namespace murvane {

namespace {

/// A value that its field would hold red. what() is a Dutch sentence, UTF-8.
class Veldfout : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// A material and a type of fan are chosen, not typed: whole numbers that some rule reads.
constexpr VeldRegel Keuze = SchatRegel("", 32767, Formaat::Heel, HeelToetsen, "");

constexpr std::array BekleedOpties = {Optie::H, Optie::B, Optie::DikteBekleding, Optie::L};
constexpr std::array KwartLambdaOpties = {Optie::H, Optie::B, Optie::L, Optie::S2};
constexpr std::array PlenumOpties = {Optie::Hdemper, Optie::Bdemper, Optie::L,
                                     Optie::H,       Optie::B,       Optie::DikteBekleding};
constexpr std::array KanaalwandOpties = {Optie::DikteWand, Optie::Massa};
constexpr std::array FanOpties = {Optie::FanDebiet, Optie::FanDruk, Optie::FanToeren, Optie::FanSchoepen,
                                  Optie::FanVermogen};

/// The options of an estimator, in the order of its fields.
std::span<const Optie> OptiesVan(Schatter soort) {
  switch (soort) {
    case Schatter::Bekleed:
      return BekleedOpties;
    case Schatter::KwartLambda:
      return KwartLambdaOpties;
    case Schatter::Plenum:
      return PlenumOpties;
    case Schatter::Kanaalwand:
      return KanaalwandOpties;
  }
  return {};
}

std::string TekstVan(const Keuzes& keuzes, Optie optie) {
  return keuzes.Waarde(optie).value_or("0");
}

void EisGeldig(bool geldig, Optie optie, std::string_view melding) {
  if (!geldig) throw Veldfout(std::string(EersteNaam(RegelVan(optie))) + ": " + NaarUtf8(melding));
}

std::int16_t KeuzeVan(const Keuzes& keuzes, Optie optie) {
  const std::string tekst = TekstVan(keuzes, optie);
  try {
    const Validatie validatie = ValiDate(tekst, Keuze, {}, '.');
    EisGeldig(validatie.Geldig, optie, validatie.ToolTip);
    return static_cast<std::int16_t>(validatie.Getal);
  } catch (const Fout&) {  // a number too large for a double is none of the choices
    return static_cast<std::int16_t>(Keuze.Boven);
  }
}

SchatInvoer InvoerVan(const Keuzes& keuzes, Schatter soort, char decimaal) {
  SchatInvoer invoer;
  const std::span<const SchatVeld> velden = VensterVan(soort).Velden;
  const std::span<const Optie> opties = OptiesVan(soort);
  for (std::size_t i = 0; i < velden.size(); ++i) {
    const VeldUitslag veld = VerlaatVeld(invoer, velden[i], TekstVan(keuzes, opties[i]), decimaal);
    EisGeldig(veld.Geldig, opties[i], veld.ToolTip);
  }
  if (soort == Schatter::Kanaalwand) invoer.Kanaalwand.KanaalType = KeuzeVan(keuzes, Optie::KanaalType);
  Form_Load(invoer, soort);
  return invoer;
}

template <typename Waarden>
std::string Regels(std::string_view naam, const Waarden& waarden) {
  std::string uit = NaarUtf8(naam);
  char scheiding = '\n';
  for (const std::string& waarde : waarden) {
    uit.append(1, scheiding).append(waarde);
    scheiding = ' ';
  }
  return uit + '\n';
}

/// The whole decibels of an estimate as numbers.
std::array<double, Banden> Getallen(const std::array<std::string, Banden>& teksten) {
  std::array<double, Banden> uit{};
  for (std::size_t i = 0; i < uit.size(); ++i)
    std::from_chars(teksten[i].data(), teksten[i].data() + teksten[i].size(), uit[i]);
  return uit;
}

std::string SchattingNaarJson(const Schatting& schatting, Schatter soort) {
  JsonSchrijver json;
  json.BeginObject();
  json.Veld("Omschrijving", std::string_view(schatting.Omschrijving));
  json.Veld(soort == Schatter::Kanaalwand ? "Isolatie" : "Demping", Getallen(schatting.Demping));
  json.EindObject();
  return std::move(json).Klaar();
}

std::string FanNaarJson(const FanRec& fan) {
  JsonSchrijver json;
  json.BeginObject();
  json.Veld("FanNaam", fan.FanNaam).Veld("Lw", fan.Lw);
  json.EindObject();
  return std::move(json).Klaar();
}

/// A refusal of the estimator: its message, and which option it is about.
[[noreturn]] void Weiger(std::string_view melding, Optie optie, const Keuzes& keuzes) {
  const OptieRegel& regel = RegelVan(optie);
  const auto& waarde = keuzes.Waarde(optie);
  throw Veldfout(NaarUtf8(melding) + ": " + std::string(EersteNaam(regel)) + " " +
                 (waarde ? *waarde : "ontbreekt") + " (" + std::string(regel.Uitleg) + ")");
}

/// The option of the field that an estimator sends the user to.
Optie OptieVan(std::string_view veld, Schatter soort) {
  const std::span<const SchatVeld> velden = VensterVan(soort).Velden;
  std::size_t i = 0;
  while (i + 1 < velden.size() && velden[i].Regel.Naam != veld) ++i;
  return OptiesVan(soort)[i];
}

/// Shows an estimate; a value that is refused ends it as a refusal.
template <typename Werk>
int Schat(Kanalen& kanalen, Werk werk) {
  try {
    SchrijfUit(werk(), kanalen);
    return status::Klaar;
  } catch (const Veldfout& fout) {
    Meld({status::Geweigerd, fout.what()}, kanalen);
    return status::Geweigerd;
  }
}

std::array<std::string, FanVakken> FanTeksten(const Keuzes& keuzes) {
  std::array<std::string, FanVakken> uit;
  for (std::size_t i = 0; i < uit.size(); ++i) uit[i] = TekstVan(keuzes, FanOpties[i]);
  return uit;
}

/// A refusal of the fan tab: a box, or else a field that is red.
void EisPrognose(const FanUitslag& uitslag, const Keuzes& keuzes) {
  if (uitslag.Box) {
    const auto vak = static_cast<std::size_t>(uitslag.Focus ? uitslag.Focus->Index : 0);
    Weiger(uitslag.Box->Tekst, uitslag.Focus ? FanOpties.at(vak) : Optie::FanType, keuzes);
  }
  if (!uitslag.Focus) return;
  for (std::size_t i = 0; i < uitslag.Velden.size(); ++i)
    EisGeldig(uitslag.Velden[i].Geldig, FanOpties[i], uitslag.Velden[i].ToolTip);
}

std::string FanRegels(const Project& project, const FanUitslag& uitslag, char decimaal) {
  std::array<std::string, Banden> Lw;
  for (int band = 0; band < Banden; ++band)
    Lw[static_cast<std::size_t>(band)] = HerstelTekst(project, 0, {"txtLw", band}, decimaal);
  return Regels(project.Fan.FanNaam.Getrimd(), Lw) + NaarUtf8(uitslag.lblLwA.value_or("")) + '\n';
}

}  // namespace

int VoerSchat(const Keuzes& keuzes, Schatter soort, Kanalen& kanalen) {
  return Schat(kanalen, [&] {
    const char decimaal = Decimaalteken(keuzes);
    const SchatUitslag uitslag = cmdOK_Click(InvoerVan(keuzes, soort, decimaal), soort, decimaal);
    if (const auto* const weigering = std::get_if<Weigering>(&uitslag))
      Weiger(weigering->Melding, OptieVan(weigering->Veld, soort), keuzes);
    const auto& schatting = std::get<Schatting>(uitslag);
    return keuzes.Heeft(Optie::JsonSchatting) ? SchattingNaarJson(schatting, soort)
                                              : Regels(schatting.Omschrijving, schatting.Demping);
  });
}

int VoerSchatVentilator(const Keuzes& keuzes, Kanalen& kanalen) {
  return Schat(kanalen, [&] {
    const char decimaal = Decimaalteken(keuzes);
    Project project;
    project.Fan.FanType = KeuzeVan(keuzes, Optie::FanType);
    const FanUitslag uitslag = cmdFanOK_Click(project, FanTeksten(keuzes), decimaal);
    EisPrognose(uitslag, keuzes);
    return keuzes.Heeft(Optie::JsonSchatting) ? FanNaarJson(project.Fan)
                                              : FanRegels(project, uitslag, decimaal);
  });
}

}  // namespace murvane
