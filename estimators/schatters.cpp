#include "estimators/schatters.h"

#include <array>
#include <cstddef>

#include "basis/fout.h"
#include "estimators/bekleed.h"
#include "estimators/kanaalwand.h"
#include "estimators/kwartlambda.h"
#include "estimators/plenum.h"

namespace murvane {

namespace {

/// In the order of Schatter.
constexpr std::array Vensters = {
    SchatVenster{Schatter::Bekleed, "frmCalc1", "Geluiddemping beklede luchtkanalen", "bekleed-kanaal",
                 BekleedVelden},
    SchatVenster{Schatter::KwartLambda, "frmCalc2", "Geluiddemping kwartlambda-demper", "kwartlambda-demper",
                 KwartLambdaVelden},
    SchatVenster{Schatter::Plenum, "frmCalc3", "Geluiddemping plenumdemper", "plenumdemper", PlenumVelden},
    SchatVenster{Schatter::Kanaalwand, "frmDuctCalc", "Geluidsisolatie kanaalwand (massawet)", "kanaalwand",
                 KanaalwandVelden},
};

}  // namespace

const SchatVenster& VensterVan(Schatter soort) {
  return Vensters[static_cast<std::size_t>(soort)];
}

void Form_Load(SchatInvoer& invoer, Schatter soort) {
  if (soort == Schatter::Kanaalwand) Form_Load(invoer.Kanaalwand);
}

SchatUitslag cmdOK_Click(const SchatInvoer& invoer, Schatter soort, char decimaal) {
  switch (soort) {
    case Schatter::Bekleed:
      return cmdOK_Click(invoer.Bekleed, decimaal);
    case Schatter::KwartLambda:
      return cmdOK_Click(invoer.KwartLambda, decimaal);
    case Schatter::Plenum:
      return cmdOK_Click(invoer.Plenum, decimaal);
    case Schatter::Kanaalwand:
      return cmdOK_Click(invoer.Kanaalwand, decimaal);
  }
  throw Fout(FoutNummer::InterneFout);
}

std::optional<Schatting> Voorproef(const SchatInvoer& invoer, Schatter soort,
                                   std::span<const std::string> teksten, char decimaal) {
  const std::span<const SchatVeld> velden = VensterVan(soort).Velden;
  if (teksten.size() != velden.size()) throw Fout(FoutNummer::IndexBuitenBereik);
  SchatInvoer proef = invoer;
  for (std::size_t i = 0; i < velden.size(); ++i)
    if (!VerlaatVeld(proef, velden[i], teksten[i], decimaal).Geldig) return std::nullopt;
  const SchatUitslag uitslag = cmdOK_Click(proef, soort, decimaal);
  const auto* const schatting = std::get_if<Schatting>(&uitslag);
  return schatting == nullptr ? std::nullopt : std::optional(*schatting);
}

std::string_view BeeldVan(const SchatInvoer& invoer, Schatter soort, std::span<const std::string> teksten,
                          char decimaal) {
  constexpr std::size_t Breedte = 1;
  const SchatVenster& venster = VensterVan(soort);
  if (soort != Schatter::KwartLambda) return venster.Beeld;
  if (teksten.size() <= Breedte) throw Fout(FoutNummer::IndexBuitenBereik);
  SchatInvoer proef = invoer;
  const bool geldig = VerlaatVeld(proef, venster.Velden[Breedte], teksten[Breedte], decimaal).Geldig;
  return geldig && proef.KwartLambda.B == 0 ? "kwartlambda-demper-rond" : venster.Beeld;
}

}  // namespace murvane
