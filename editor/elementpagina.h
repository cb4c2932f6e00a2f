#pragma once
// The input page of the element that is open: which page and fields its type has, what they show, and how
// they go back into the record. Texts are Windows-1252.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catfiles.h"
#include "editor/veldhandlers.h"
#include "project/records.h"

namespace murvane {

/// The pages of SSTab2, in their order.
enum class Pagina { Geen = -1, Kanaal = 0, Aftakking = 1, Doorsnee = 2, Weerstand = 3, VastSpectrum = 4 };

/// The page of an element type; Geen for a number that is none.
[[nodiscard]] Pagina PaginaVan(std::int16_t elementType);

/// The field that gets the focus when an element of this type is opened; empty for none.
[[nodiscard]] std::string_view EersteFocus(std::int16_t elementType);

/// The fields of a page in their order; an array stands as its first field, the combo box as "cmbKanaal".
[[nodiscard]] std::vector<VeldId> PaginaVelden(Pagina pagina);

/// Whether a field of the page shows for element n; an array goes by its first field. A field that does not
/// show takes its labels with it. Fout 9 for an n outside 0 to 500.
[[nodiscard]] bool ElementVeldZichtbaar(const Project& project, int n, VeldId veld);

/// The caption of a height for an element type: what is round has a diameter. Empty for any other field, and
/// for the ducts of a branch whose width field tells their shape. Windows-1252.
[[nodiscard]] std::string_view MaatOpschrift(std::int16_t elementType, std::string_view veld);

struct VeldStand {
  VeldId Veld;
  bool Zichtbaar;

  friend bool operator==(const VeldStand&, const VeldStand&) = default;
};

/// What an element's page shows. Filling it raises no change event.
struct ElementBeeld {
  Pagina OpPagina = Pagina::Geen;  ///< the only page that is available
  std::vector<VeldTekst> Teksten;  ///< of every box of the page, the hidden ones too
  std::string cmbKanaal;           ///< on page 0
  std::vector<VeldStand> Stand;    ///< of every entry of PaginaVelden
};

/// The placeholders of the combo boxes, 80 characters with their blanks.
[[nodiscard]] std::string GeenKanaalwandTekst();
[[nodiscard]] std::string GeenPlafondTekst();

/// Fills the page of element n; n = 0 does nothing. On page 0 an element without a duct wall gets the
/// placeholder for its name. Fout 9 for an n outside 0 to 500.
[[nodiscard]] ElementBeeld ProjectSettings(Project& project, int n, char decimaal);

/// What opening an element shows.
struct ElementOpening {
  ElementBeeld Beeld;            ///< first, without change events
  std::vector<VeldTekst> Zet;    ///< then these, with them
  std::string_view Focus;        ///< last, with SSTab2 shown; empty for no field
  bool SSTab2Zichtbaar = false;  ///< false when nothing is open or the type has no page
};

/// Opens element n, as a click on its row does: inherits flow and section, fills its page, and gives a branch
/// its defaults: a rounding of 0 becomes 0.15, and between two rooms the branch flow is 0.01 m³/s.
[[nodiscard]] ElementOpening OpenElement(Project& project, int n, char decimaal);

/// The texts of an element's page.
struct ElementInvoer {
  std::vector<VeldTekst> Teksten;  ///< at least those of AcceptVelden
  std::string cmbKanaal;
};

/// The boxes that Accept reads for an element type, in its order; none for other types than 1 to 11.
[[nodiscard]] std::vector<VeldId> AcceptVelden(std::int16_t elementType);

/// Takes the page over into element n; n = 0 does nothing. Returns what became of each box. What the user
/// cannot see does not change: a hidden box that shows the stored value leaves it unrounded. Fout 5 for a box
/// without a text, Fout 9 for an n outside 0 to 500.
std::vector<VeldUitslag> Accept(Project& project, int n, const ElementInvoer& invoer, char decimaal);

/// The choice of a row (from 0) in cmbKanaal: the wall's name and bands go into element n; slot 7 stays.
/// True when another wall was chosen: then Berekend is called with false and WandBerekend. No row (-1) or
/// n = 0 changes nothing; Fout 9 for a row that the catalogue does not have.
[[nodiscard]] bool cmbKanaal_Click(Project& project, int n, int rij, const SpectrumCatalogus& CatRduct);
inline constexpr std::string_view WandBerekend = "50";

/// The text that replaces an edited one: the placeholder when it has become empty.
[[nodiscard]] std::optional<std::string> cmbKanaal_Change(std::string_view tekst);

/// The box is left: its text is the wall of element n from now on; a blank one the placeholder, on screen
/// too. A name typed over another one is a change. n = 0 stores nothing. Fout 9 for an n outside 0 to 500.
[[nodiscard]] KeuzeUitslag cmbKanaal_LostFocus(Project& project, int n, std::string_view tekst);

}  // namespace murvane
