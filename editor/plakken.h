#pragma once
// What comes into a one-line box all at once: pasted, dropped, or written by an input method.

#include <string>
#include <string_view>

namespace murvane {

struct Plakuitslag {
  std::string Tekst;       ///< what the box takes, Windows-1252; may be empty
  bool Geweigerd = false;  ///< a character was refused, as a typed one is that the code page lacks

  friend bool operator==(const Plakuitslag&, const Plakuitslag&) = default;
};

/// A pasted text (Unicode code points) on one line, without blanks at its ends: line ends and tabs, with the
/// blanks around them, become one blank. Control characters and marks that nobody sees (of zero width, or for
/// the direction of writing) are left out in silence.
[[nodiscard]] Plakuitslag NeemGeplakt(std::u32string_view tekst);

/// The same of what an input method writes. That is typed: blanks at its ends stay.
[[nodiscard]] Plakuitslag NeemGeschreven(std::u32string_view tekst);

}  // namespace murvane
