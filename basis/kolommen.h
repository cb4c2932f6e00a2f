#pragma once
// Help texts in two columns, for a terminal of 80 characters. UTF-8.

#include <cstddef>
#include <string>
#include <string_view>

namespace murvane {

/// Appends a text word by word, and a line end; lines after the first start with `inspringing` blanks. The
/// cursor stands there. A word that is longer than a line stays whole.
void VoegAfgebrokenToe(std::string& uit, std::string_view tekst, std::size_t inspringing);

/// Appends a name with its explanation in a second column; under it when the name leaves no room.
void VoegRegelToe(std::string& uit, std::string_view naam, std::string_view uitleg);

}  // namespace murvane
