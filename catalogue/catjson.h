#pragma once
// A catalogue as JSON and back, without loss: {"CatElementen": [...]} or the list "CatFans", "CatRduct" or
// "CatRplaf" of records with their own field names; texts and numbers as in a project's JSON. A count that is
// not the number of records stands beside the list as "AantalElementen", "AantalFans", "AantalRduct" or
// "AantalRplaf".

#include <string>
#include <string_view>
#include <variant>

#include "catalogue/catfiles.h"

namespace murvane {

/// One catalogue of any of the four kinds.
struct CatalogusInhoud {
  CatalogusSoort Soort = CatalogusSoort::Kanaalelementen;
  std::variant<ElementCatalogus, SpectrumCatalogus> Inhoud;
};

/// The kinds but the first hold a SpectrumCatalogus. Fout 9 for a count above 500.
[[nodiscard]] std::string CatalogusNaarJson(const CatalogusInhoud& catalogus);

/// Absent fields are 0 or blank. Faults as ProjectUitJson, and Fout 5 without exactly one of the four lists.
[[nodiscard]] CatalogusInhoud CatalogusUitJson(std::string_view json);

}  // namespace murvane
