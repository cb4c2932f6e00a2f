#pragma once
// What stood in a file when it was read, by which a change by another program is known.

#include <cstdint>
#include <string>
#include <string_view>

namespace murvane {

/// Any bytes as one number; the same for the same bytes only, but for chance.
[[nodiscard]] std::uint64_t HashVan(std::string_view bytes);

/// A file at a moment.
struct Stempel {
  std::uint64_t Grootte = 0;
  std::int64_t Tijd = 0;      ///< of its last change, ns
  std::uint64_t Hash = 0;     ///< of the bytes that were read
  std::uint64_t Gelezen = 0;  ///< how many those are, from the start

  friend bool operator==(const Stempel&, const Stempel&) = default;
};

/// Whether the file holds what it held then. Its time counts only for what was not read: a file that was
/// written again with the same bytes did not change.
[[nodiscard]] bool IsOngewijzigd(const Stempel& toen, const Stempel& nu);

/// The bytes of a file, as far as they were read, and the file's stamp.
struct Inhoud {
  std::string Bytes;
  murvane::Stempel Stempel;
};

/// What the program remembers of a file whose records it has in memory.
struct Herinnering {
  Stempel Bestand;          ///< as it was read
  std::uint64_t Beeld = 0;  ///< HashVan the image that the records had then

  friend bool operator==(const Herinnering&, const Herinnering&) = default;
};

}  // namespace murvane
