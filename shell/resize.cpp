#include "shell/resize.h"

#include <cmath>
#include <cstddef>
#include <limits>

#include "basis/getal.h"

namespace murvane {

namespace {

constexpr double Strook = 400;  ///< twips at the top that scaling leaves out

/// The value as a 16-bit integer, a half to the even one; what was there when it does not fit.
std::int16_t AlsI16(double waarde, std::int16_t anders) {
  const double heel = RondEven(waarde);
  if (!(heel >= std::numeric_limits<std::int16_t>::min() && heel <= std::numeric_limits<std::int16_t>::max()))
    return anders;
  return static_cast<std::int16_t>(heel);
}

std::int16_t Vastgelegd(const std::optional<double>& waarde) {
  return waarde ? AlsI16(*waarde, 0) : std::int16_t{0};
}

std::int16_t VastgelegdLinks(const Stuurvlak& vlak) {
  constexpr std::int32_t Verst = std::numeric_limits<std::int32_t>::max() / 2;
  if (!vlak.Left || !(std::abs(*vlak.Left) <= Verst)) return 0;
  if (vlak.IsLijn) return AlsI16(*vlak.Left, 0);
  return AlsI16(ZonderTabVerschuiving(static_cast<std::int32_t>(RondEven(*vlak.Left))), 0);
}

void Zet(std::optional<double>& eigenschap, double waarde) {
  if (eigenschap && std::isfinite(waarde)) eigenschap = waarde;
}

/// A factor of the scaling. One that cannot be worked out is 0, so that what it divides is skipped too.
double Factor(double ontwerp, double nu) {
  return nu == 0 ? 0 : ontwerp / nu;
}

/// A control of a hidden tab stays hidden.
double MetTabVerschuiving(const Stuurvlak& vlak, double left) {
  return vlak.Left.value_or(0) < 0 ? left - TabVerschuiving : left;
}

void Verplaats(const Ontwerp& o, std::size_t i, Stuurvlak& vlak, double dY, double dX) {
  if (vlak.IsLijn) {
    Zet(vlak.Top, o.OrigTop[i] + dY);
    Zet(vlak.Left, o.OrigLeft[i] + dX);
    Zet(vlak.Height, o.OrigHeight[i] + dY);
    Zet(vlak.Width, o.OrigWidth[i] + dX);
    return;
  }
  if (vlak.Houder == Houder::Frame) {  // it moves with the frame
    Zet(vlak.Top, o.OrigTop[i]);
    Zet(vlak.Left, o.OrigLeft[i]);
    return;
  }
  const bool binnen = vlak.Houder == Houder::SSTab2;  // that tab control moves as a whole
  Zet(vlak.Top, o.OrigTop[i] + (binnen ? 0 : dY));
  Zet(vlak.Left, MetTabVerschuiving(vlak, o.OrigLeft[i] + (binnen ? 0 : dX)));
}

void Schaal(const Ontwerp& o, std::size_t i, Stuurvlak& vlak, double sY, double sX) {
  const double left = std::floor(o.OrigLeft[i] / sX);
  Zet(vlak.Top, std::floor(o.OrigTop[i] / sY));
  Zet(vlak.Left, vlak.IsLijn ? left : MetTabVerschuiving(vlak, left));
  Zet(vlak.Height, std::floor(o.OrigHeight[i] / sY));
  Zet(vlak.Width, std::floor(o.OrigWidth[i] / sX));
  Zet(vlak.FontSize, o.OrigFontSize[i] / sX);
  Zet(vlak.RightMargin, o.OrigRightMargin[i] / sY);
}

}  // namespace

Ontwerp ResizeInit(const ResizeVenster& venster) {
  Ontwerp o;
  o.OrigHoogte = AlsI16(venster.BinnenHoogte, 0);
  o.OrigBreedte = AlsI16(venster.BinnenBreedte, 0);
  o.LaatsteControl = AlsI16(static_cast<double>(venster.Vlakken.size()) - 1, -1);
  for (const Stuurvlak& vlak : venster.Vlakken) {
    o.OrigTop.push_back(Vastgelegd(vlak.Top));
    o.OrigLeft.push_back(VastgelegdLinks(vlak));
    o.OrigHeight.push_back(Vastgelegd(vlak.Height));
    o.OrigWidth.push_back(Vastgelegd(vlak.Width));
    o.OrigFontSize.push_back(Vastgelegd(vlak.FontSize));
    o.OrigRightMargin.push_back(Vastgelegd(vlak.RightMargin));
  }
  o.ResizeKlaar = -1;
  return o;
}

void ResizeForm(Ontwerp& ontwerp, ResizeVenster& venster, std::int16_t verplaatsen) {
  if (verplaatsen == 0 && ontwerp.ResizeKlaar != 0) {
    ontwerp.ResizeKlaar = 0;
    return;
  }
  if (venster.Geminimaliseerd) return;
  const double dY = std::floor((venster.BinnenHoogte - ontwerp.OrigHoogte) / 2);
  const double dX = std::floor((venster.BinnenBreedte - ontwerp.OrigBreedte) / 2);
  const double sY = Factor(ontwerp.OrigHoogte - Strook, venster.BinnenHoogte - Strook);
  const double sX = Factor(ontwerp.OrigBreedte, venster.BinnenBreedte);
  const std::size_t bekend = ontwerp.OrigTop.size();
  for (std::size_t i = 0; i < venster.Vlakken.size() && i < bekend; ++i) {
    Stuurvlak& vlak = venster.Vlakken[i];
    if (vlak.Naam == "SSTab1") continue;
    if (verplaatsen != 0) {
      Verplaats(ontwerp, i, vlak, dY, dX);
    } else {
      Schaal(ontwerp, i, vlak, sY, sX);
    }
  }
  venster.HertekentZelf = true;
}

}  // namespace murvane
