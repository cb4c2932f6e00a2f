#pragma once
// The fields of a project's records by their names, in declared order, which is also their order on file.
// Each procedure calls `stap(name, field)` for every field of a record that may be const.

#include "project/records.h"

namespace murvane {

template <typename Rec, typename Stap>
void ProjectVelden(Rec& p, Stap stap) {
  stap("ProNaam", p.ProNaam), stap("ProNum", p.ProNum), stap("Omschrijving", p.Omschrijving);
  stap("Toelichting1", p.Toelichting1), stap("Toelichting2", p.Toelichting2),
      stap("Toelichting3", p.Toelichting3);
  stap("MyDate", p.MyDate), stap("RekenType", p.RekenType);
}

template <typename Rec, typename Stap>
void FanVelden(Rec& f, Stap stap) {
  stap("FanNaam", f.FanNaam), stap("Lw", f.Lw);
  stap("FanDebiet", f.FanDebiet), stap("FanDruk", f.FanDruk), stap("FanToeren", f.FanToeren);
  stap("FanSchoepen", f.FanSchoepen), stap("FanVermogen", f.FanVermogen), stap("FanType", f.FanType);
}

/// Shared fields under their first name.
template <typename Rec, typename Stap>
void ElementVelden(Rec& e, Stap stap) {
  stap("Naam", e.Naam), stap("Kanaal", e.Kanaal);
  stap("demp", e.demp), stap("ruis", e.ruis), stap("LAeq", e.LAeq);
  stap("Instraling", e.Instraling), stap("Rkanaalwand", e.Rkanaalwand);
  stap("ElementType", e.ElementType), stap("Lengte", e.Lengte), stap("Debiet", e.Debiet),
      stap("QAftak", e.QAftak);
  stap("Hoogte", e.Hoogte), stap("Breedte", e.Breedte), stap("HHoofd", e.HHoofd), stap("BHoofd", e.BHoofd);
  stap("HDoor", e.HDoor), stap("BDoor", e.BDoor), stap("Snetto", e.Snetto), stap("Weerstand", e.Weerstand);
  stap("ElRDI", e.ElRDI), stap("RAftak", e.RAftak), stap("ElRAantal", e.ElRAantal);
}

template <typename Rec, typename Stap>
void RuimteVelden(Rec& r, Stap stap) {
  stap("RNaam", r.RNaam), stap("RLengte", r.RLengte), stap("RBreedte", r.RBreedte),
      stap("RHoogte", r.RHoogte);
  stap("RVolume", r.RVolume), stap("RDI", r.RDI), stap("RNagalm", r.RNagalm), stap("RNR", r.RNR);
  stap("RAantal", r.RAantal), stap("Rkanaal", r.Rkanaal), stap("Rplafond", r.Rplafond);
  stap("RkanaalNaam", r.RkanaalNaam), stap("RplafondNaam", r.RplafondNaam);
}

}  // namespace murvane
