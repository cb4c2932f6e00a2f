#pragma once
// UTF-8, one character at a time.

#include <cstddef>
#include <string_view>

namespace murvane {

/// The character at the front of a text that is not empty. Only shortest forms count, and no surrogates; what
/// is no UTF-8 has the length 0.
struct Utf8Teken {
  std::size_t Lengte = 0;  ///< in bytes
  char32_t Punt = 0;
};
[[nodiscard]] Utf8Teken EersteTeken(std::string_view utf8);

}  // namespace murvane
