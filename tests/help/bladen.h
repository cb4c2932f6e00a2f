#pragma once
// The manual as its reader meets it: pages, their tags and their text.

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace murvane::proef {

/// An opening tag of a page.
struct Merk {
  std::string Naam;
  std::map<std::string, std::string> Kenmerken;  ///< without entities
  std::size_t Eind = 0;                          ///< behind its ">"

  [[nodiscard]] std::string Kenmerk(const std::string& naam) const {
    const auto gevonden = Kenmerken.find(naam);
    return gevonden == Kenmerken.end() ? std::string() : gevonden->second;
  }
  [[nodiscard]] bool Heeft(const std::string& naam) const { return Kenmerken.contains(naam); }
};

struct Blad {
  std::string Bestand;
  std::string Html;  ///< UTF-8
  std::vector<Merk> Merken;

  /// What stands in an element, with its tags; up to the first end tag of its name.
  [[nodiscard]] std::string Binnen(const Merk& merk) const;
  /// The same without tags and entities.
  [[nodiscard]] std::string Tekst(const Merk& merk) const;
  [[nodiscard]] bool HeeftAnker(const std::string& naam) const;
};

[[nodiscard]] std::vector<Merk> Merken(const std::string& html);
[[nodiscard]] std::string ZonderMerken(std::string_view html);
/// Every run of blanks as one, none at the ends.
[[nodiscard]] std::string Gelezen(const std::string& tekst);

/// All pages of help/, by name.
[[nodiscard]] const std::vector<Blad>& Bladen();
[[nodiscard]] const Blad* ZoekBlad(const std::string& bestand);
/// The text of all pages together, read.
[[nodiscard]] const std::string& AlleTekst();

}  // namespace murvane::proef
