#pragma once
// Everything that the project window shows of a project that was made or opened.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "catalogue/catfiles.h"
#include "editor/fantab.h"
#include "editor/ruimtetab.h"
#include "editor/validate.h"
#include "project/records.h"

namespace murvane {

/// The window's texts (Windows-1252) and what shows of it. Filling the window raises no change event and runs
/// no click handling, so that what was loaded stands.
struct VensterBeeld {
  std::int16_t RekenType = 0;  ///< the item to check in the menu (rekentype)
  ProjectInvoer Velden;        ///< the boxes that a run takes over, as InvoerVan gives them
  // fan
  std::array<std::string, FanVakken> txtfan;
  std::string lblLwA;
  FanZicht Fan{};
  std::vector<std::string> lstFan;
  // elements, the rows of both lists with the blanks of their fixed texts; no row is selected
  std::vector<std::string> lstTotaal, lstProject, cmbKanaal;
  int Element = 0;               ///< number of the element that is open
  bool SSTab2Zichtbaar = false;  ///< the page of an element shows only when one is opened
  // room
  std::vector<std::string> cmbRkanaal, cmbRplafond;
  std::string RkanaalTekst, RplafondTekst;  ///< what the combo boxes show
  std::array<std::string, Banden> txtRkanaal, txtRplafond;
  bool VrijVeld = false;  ///< checked
  RuimteZicht Ruimte{};
};

/// The rows of a list or combo box of fans, duct walls or ceilings: row r is record r + 1.
[[nodiscard]] std::vector<std::string> CatalogusRijen(const SpectrumCatalogus& catalogus);

/// The window of a project. Changes nothing.
[[nodiscard]] VensterBeeld TabSettings(const Project& project, const Catalogi& catalogi, char decimaal);

}  // namespace murvane
