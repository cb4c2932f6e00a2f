#include "editor/elementlijst.h"

#include "basis/fout.h"

namespace murvane {

namespace {

void ErfDebiet(ElementRec& element, const ElementRec& vorig) {
  switch (vorig.ElementType) {
    case elementtype::AftakRecht:
    case elementtype::AftakRond:
      element.Debiet = vorig.QAftak;  // the chain goes on along the branch
      break;
    case elementtype::BochtHaaks:
    case elementtype::BochtRecht:
    case elementtype::BochtRond:
    case elementtype::DrsneeRecht:
    case elementtype::DrsneeRond:
    case elementtype::KanaalRecht:
    case elementtype::KanaalRond:
    case elementtype::Klep:
    case elementtype::Rooster:
    case elementtype::Catalogus:
      element.Debiet = vorig.Debiet;
      break;
    default:
      break;
  }
}

void ErfDoorsnee(ElementRec& element, const ElementRec& vorig) {
  const bool rond = vorig.Breedte == 0;
  switch (element.ElementType) {
    case elementtype::AftakRecht:
    case elementtype::AftakRond:
    case elementtype::DrsneeRecht:
    case elementtype::DrsneeRond:
      element.HHoofd = vorig.Hoogte;
      if (!rond) element.BHoofd = vorig.Breedte;
      break;
    case elementtype::BochtHaaks:
    case elementtype::BochtRecht:
    case elementtype::Klep:
    case elementtype::Rooster:
    case elementtype::Catalogus:
      element.Hoogte = vorig.Hoogte;
      if (!rond) element.Breedte = vorig.Breedte;
      break;
    case elementtype::BochtRond:
      element.Hoogte = vorig.Hoogte;
      break;
    default:
      break;  // a straight duct keeps its own section
  }
}

}  // namespace

void VoorGanger(Project& project, int n) {
  if (n < 0 || n > MaxElementen) throw Fout(FoutNummer::IndexBuitenBereik);
  if (n == 0) return;
  ElementRec& element = project.Elementen[static_cast<std::size_t>(n)];
  if (n == 1) {
    if (project.FanPrognose == fanbron::Prognose) element.Debiet = project.Fan.FanDebiet;
    return;
  }
  const ElementRec& vorig = project.Elementen[static_cast<std::size_t>(n) - 1];
  ErfDebiet(element, vorig);
  ErfDoorsnee(element, vorig);
}

}  // namespace murvane
