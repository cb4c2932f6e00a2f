#pragma once
// Texts of strangers on a terminal.

#include <string>
#include <string_view>

namespace murvane {

/// A text (UTF-8) as a terminal may show it: a character that would act on the terminal, or turn what stands
/// around it, stands there by its number, as "\x1b" or "\u202e". That are U+0000 to U+001F, U+007F to U+009F,
/// the marks of the direction of writing (U+061C, U+200E, U+200F, U+202A to U+202E, U+2066 to U+2069), and
/// the bytes 80 to 9F hexadecimal that are no part of UTF-8. Only a line end that is exactly `regeleinde`
/// stays; of an empty one none does.
[[nodiscard]] std::string Toonbaar(std::string_view utf8, std::string_view regeleinde = {});

}  // namespace murvane
