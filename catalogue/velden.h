#pragma once
// The fields of the catalogue records by their names, in declared order, which is also their order on file:
// calls `stap(name, field)` for every field of a record that may be const.

#include "catalogue/catfiles.h"

namespace murvane {

template <typename Stap>
void CatalogusVelden(auto& rec, Stap stap) requires requires {
  rec.CatNaam;
}
{
  stap("CatNaam", rec.CatNaam), stap("CatDemp", rec.CatDemp), stap("CatRuis", rec.CatRuis);
  stap("PerMeter", rec.PerMeter), stap("CatExtra", rec.CatExtra);
}

template <typename Stap>
void CatalogusVelden(auto& rec, Stap stap) requires requires {
  rec.SpecNaam;
}
{ stap("SpecNaam", rec.SpecNaam), stap("SpecWaarde", rec.SpecWaarde); }

}  // namespace murvane
