#pragma once
// Sorting a catalogue by name, and its overview: a wide text listing of all records or of those whose name
// holds a search text, as one text to show and save and as pages to print. Texts are Windows-1252.

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue/catfiles.h"
#include "editor/dialogen.h"

namespace murvane {

/// How the overviews of the four catalogues differ.
struct OverzichtVerschil {
  CatalogusSoort Soort;
  std::string_view Titel;      ///< of the whole list
  std::string_view ZoekTitel;  ///< of a search
  std::string_view Label;      ///< in frmOverzicht
  std::string_view Kolomkop;
  std::size_t KopBlanco;  ///< blanks behind it
  std::size_t Bandkoppen;
  std::string_view Rijlabel;
  std::size_t LabelBlanco;  ///< blanks behind it
  std::size_t Waarden;      ///< values in the first row
  std::string_view Tweede;  ///< row label of CatRuis; empty without a second row
  std::size_t PerPagina;    ///< entries on a printed page
  std::string_view Filter;  ///< of the file dialog; its last three characters tell the catalogue
};

[[nodiscard]] const OverzichtVerschil& OverzichtVan(CatalogusSoort soort);

/// The mode of Overzicht.
enum class OverzichtWijze { Zoeken = 1, Alles = 2 };

/// What stands for a search text over a listing of all records.
inline constexpr std::string_view ZoekAlles = "Totaal ";

/// An overview.
struct OverzichtUitslag {
  CatalogusSoort Soort = CatalogusSoort::Kanaalelementen;
  std::string OverzichtTitel;
  std::string Zoek;                          ///< the search text, or ZoekAlles
  std::string Vandaag;                       ///< dd-mm-yyyy
  std::string OverzichtTekst;                ///< the whole listing; its last line has no end
  std::vector<std::string> OverzichtRegels;  ///< the entries, each with the end of its last line
  std::string OverzichtFilter;
  std::filesystem::path Map{};  ///< where the save dialog opens

  /// The number of records listed.
  [[nodiscard]] std::size_t Aantal() const { return OverzichtRegels.size(); }
};

/// How far a listing has got: the number of the record, 0 before the first one, and the most it can become.
using OverzichtVoortgang = std::function<void(int record, int meest)>;

/// Lists the records of a catalogue, built-in ones left out. Zoeken takes those whose name holds `zoek`, in
/// whatever case; a `zoek` of blanks is searched too. Alles takes every record and shows `zoek`. `voortgang`
/// is told of every record that is looked at, taken or not.
[[nodiscard]] OverzichtUitslag Overzicht(const Catalogi& catalogi, CatalogusSoort soort, OverzichtWijze wijze,
                                         std::string_view zoek, std::string_view vandaag, char decimaal,
                                         const OverzichtVoortgang& voortgang = {});

/// The commands: the whole list; those whose name holds what the user enters, nothing when that is empty. The
/// wait cursor shows while the list is made.
[[nodiscard]] OverzichtUitslag mnuZoekAlles_Click(const Catalogi& catalogi, CatalogusSoort soort,
                                                  Dialogen& dialogen, std::string_view vandaag, char decimaal,
                                                  const OverzichtVoortgang& voortgang = {});
[[nodiscard]] std::optional<OverzichtUitslag> mnuZoekNaam_Click(const Catalogi& catalogi,
                                                                CatalogusSoort soort, Dialogen& dialogen,
                                                                std::string_view vandaag, char decimaal,
                                                                const OverzichtVoortgang& voortgang = {});

/// The bytes of a saved overview: the listing and a line end.
[[nodiscard]] std::string OverzichtBytes(const OverzichtUitslag& overzicht);

/// Asks for a name and saves the overview. A failure is told.
void Opslaan(const OverzichtUitslag& overzicht, Dialogen& dialogen);

/// A printed page, its lines from the top.
using OverzichtPagina = std::vector<std::string>;

/// The most characters of a printed line, unless a title or a value is wider than its place.
inline constexpr std::size_t OverzichtBreedte = 185;

/// The overview as the window of a catalogue prints it. Its head is four characters narrower than the
/// listing's.
[[nodiscard]] std::vector<OverzichtPagina> Uitvoer(const OverzichtUitslag& overzicht, CatalogusSoort soort);

/// Asks for a printer and prints the overview on sheets that lie on their long side, a document for each
/// copy. The end of its filter tells which window prints it; one of another kind prints nothing. A failure is
/// told.
void Printer(const OverzichtUitslag& overzicht, Dialogen& dialogen);

/// Whether frmOverzicht can print a listing with this filter: a list of projects has no printed form.
[[nodiscard]] bool PrintknopAan(std::string_view filter);
/// The filter that is left when frmOverzicht closes.
[[nodiscard]] std::string_view FilterNaSluiten(std::string_view filter);
/// Which catalogue's listing has this filter; nothing for a listing of another kind.
[[nodiscard]] std::optional<CatalogusSoort> SoortVanFilter(std::string_view filter);

/// Sorts the records of a catalogue by name, the built-in ones left alone: by all 80 characters in small
/// letters, byte by byte; equal names stay in their order. An element that moves down past another loses its
/// self-noise at 63 Hz, CatRuis(0), to its CatDemp(7); nothing else changes and nothing is worked out anew.
void Sorteren(ElementCatalogus& catalogus);
void Sorteren(SpectrumCatalogus& catalogus);
void Sorteren(Catalogi& catalogi, CatalogusSoort soort);

}  // namespace murvane
