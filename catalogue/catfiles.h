#pragma once
// catalogue/: the four reference catalogues on file and in memory, their maintenance and their listings.
// This header: records, arrays and file images of Duct.dat, Fan.dat, Rduct.dat and Rplaf.dat.

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "basis/stempel.h"
#include "project/records.h"

namespace murvane {

inline constexpr int MaxCatalogus = 500;  ///< highest record number of a catalogue
inline constexpr int IngebouwdeElementen =
    11;  ///< the first records of Duct.dat, one for each built-in element type

/// A record of Duct.dat.
struct CatElementRec {
  Tekst<80> CatNaam;
  Spectrum CatDemp{};         ///< attenuation, dB; slot 7 comes from the file
  Spectrum CatRuis{};         ///< self-noise, dB; slot 7 the dB(A) sum
  std::int16_t PerMeter = 0;  ///< 1: CatDemp is per running metre
  Tekst<80> CatExtra;         ///< nothing shows it; it travels with its record
};

/// A record of Fan.dat (sound power), Rduct.dat or Rplaf.dat (sound reduction), dB.
struct SpectrumRec {
  Tekst<80> SpecNaam;
  Spectrum SpecWaarde{};  ///< slot 7: in Fan.dat the dB(A) sum, elsewhere what the file holds
};

/// One catalogue: records 1 to Aantal are in use; slot 0 exists and stays unused. The file's count is kept as
/// it was read, also when it is negative.
template <typename Rec>
struct Catalogus {
  std::int16_t Aantal = 0;
  std::vector<Rec> Records = std::vector<Rec>(MaxCatalogus + 1);
  std::optional<Herinnering> Gelezen{};  ///< of the file that it was read from or saved to last
};

using ElementCatalogus = Catalogus<CatElementRec>;
using SpectrumCatalogus = Catalogus<SpectrumRec>;

/// The four catalogues, in the order in which they are loaded.
enum class CatalogusSoort { Kanaalelementen, Ventilatoren, Luchtkanalen, Plafonds };

/// The four catalogues in the order in which they are loaded.
struct Catalogi {
  ElementCatalogus CatElementen;  ///< Duct.dat
  SpectrumCatalogus CatFans;      ///< Fan.dat
  SpectrumCatalogus CatRduct;     ///< Rduct.dat
  SpectrumCatalogus CatRplaf;     ///< Rplaf.dat
};

/// Does `stap` with the catalogue of a kind.
template <typename Alle, typename Stap>
decltype(auto) MetCatalogus(Alle& catalogi, CatalogusSoort soort, Stap stap) {
  switch (soort) {
    case CatalogusSoort::Kanaalelementen:
      return stap(catalogi.CatElementen);
    case CatalogusSoort::Ventilatoren:
      return stap(catalogi.CatFans);
    case CatalogusSoort::Luchtkanalen:
      return stap(catalogi.CatRduct);
    default:
      return stap(catalogi.CatRplaf);
  }
}

/// What the two kinds of record have in common: a name and a row of band values.
[[nodiscard]] inline auto& NaamVan(CatElementRec& rec) {
  return rec.CatNaam;
}
[[nodiscard]] inline const auto& NaamVan(const CatElementRec& rec) {
  return rec.CatNaam;
}
[[nodiscard]] inline auto& NaamVan(SpectrumRec& rec) {
  return rec.SpecNaam;
}
[[nodiscard]] inline const auto& NaamVan(const SpectrumRec& rec) {
  return rec.SpecNaam;
}
[[nodiscard]] inline auto& WaardenVan(CatElementRec& rec) {
  return rec.CatDemp;
}
[[nodiscard]] inline const auto& WaardenVan(const CatElementRec& rec) {
  return rec.CatDemp;
}
[[nodiscard]] inline auto& WaardenVan(SpectrumRec& rec) {
  return rec.SpecWaarde;
}
[[nodiscard]] inline const auto& WaardenVan(const SpectrumRec& rec) {
  return rec.SpecWaarde;
}

/// The first record that the user may change, sort and list: behind the built-in ones of Duct.dat.
[[nodiscard]] constexpr int EersteRecord(CatalogusSoort soort) {
  return soort == CatalogusSoort::Kanaalelementen ? IngebouwdeElementen + 1 : 1;
}

/// The catalogue of a file image; what stands behind its last record is ignored. Fout 62 when it ends too
/// early, Fout 9 when its count is above 500 and it does hold 500 records; a count of 0 or below reads none.
[[nodiscard]] ElementCatalogus ElementenUitBytes(std::string_view bytes);
[[nodiscard]] SpectrumCatalogus SpectraUitBytes(std::string_view bytes);

/// The file image up to its last record. Fout 9 for a count above 500.
[[nodiscard]] std::string CatalogusBytes(const ElementCatalogus& catalogus);
[[nodiscard]] std::string CatalogusBytes(const SpectrumCatalogus& catalogus);

/// Reading and saving one file; an existing longer file keeps its length and its old bytes behind the last
/// record. Saving overwrites whatever stands there. Failures of LeesInhoud, VervangBestand and of the images,
/// with the file's name.
[[nodiscard]] ElementCatalogus LeesElementen(const std::filesystem::path& pad);
[[nodiscard]] SpectrumCatalogus LeesSpectra(const std::filesystem::path& pad);
void SchrijfCatalogus(const ElementCatalogus& catalogus, const std::filesystem::path& pad);
void SchrijfCatalogus(const SpectrumCatalogus& catalogus, const std::filesystem::path& pad);

/// The catalogue of what was read of a file, which it remembers. Failures of the images.
void LeesUit(ElementCatalogus& catalogus, const Inhoud& inhoud);
void LeesUit(SpectrumCatalogus& catalogus, const Inhoud& inhoud);

/// Loads the four files of a directory, Duct.dat first.
[[nodiscard]] Catalogi LeesCatalogi(const std::filesystem::path& map);

}  // namespace murvane
