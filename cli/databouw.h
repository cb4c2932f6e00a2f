#pragma once
// The data files that come with the program, made from their readable sources: data/bron/NAME.json gives
// data/NAME.set, .dat or .mrv. A developer's program; the sources are kept by hand.

#include <filesystem>
#include <iosfwd>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace murvane {

struct Databestand {
  std::string Naam;
  std::string Bytes;
};

/// The data file of one source: of "murvane.json" the settings, of "Duct.json", "Fan.json", "Rduct.json" and
/// "Rplaf.json" a catalogue, of any other name a project. Fout 52 for a name that does not end in ".json",
/// Fout 5 for a catalogue of another kind than the name says; failures of the JSON readers. The Fout names
/// the source.
[[nodiscard]] Databestand MaakDatabestand(const std::string& bronNaam, std::string_view json);

/// The data files of all *.json in a directory, by name. Failures of MaakDatabestand and of reading.
[[nodiscard]] std::vector<Databestand> MaakDatabestanden(const std::filesystem::path& bronMap);

/// The program: makes the data files of MAP/bron in MAP (default: data in the current directory) and names on
/// `uit` those that changed. Nothing is written unless every source is right. Returns 0, 1 after a fault, 64
/// for wrong use.
int MaakData(std::span<const std::string> argumenten, std::ostream& uit, std::ostream& fouten);

}  // namespace murvane
