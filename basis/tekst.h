#pragma once
// Fixed texts and the Windows-1252 code page. Inside the program every text is Windows-1252, one byte a
// character; UTF-8 stands only at the edges (windows, terminal, JSON).

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace murvane {

/// The text without blanks and NULs at either end.
[[nodiscard]] std::string_view Trim(std::string_view tekst);
/// The text without blanks and NULs at its right-hand end.
[[nodiscard]] std::string_view TrimRechts(std::string_view tekst);

/// Exactly N characters, padded with blanks on the right when assigned and cut at N; N NULs before anything
/// was ever assigned.
template <std::size_t N>
class Tekst {
 public:
  static constexpr std::size_t Lengte = N;

  constexpr Tekst() = default;
  constexpr Tekst(std::string_view tekst) { *this = tekst; }  // NOLINT(google-explicit-constructor)

  constexpr Tekst& operator=(std::string_view tekst) {
    const std::size_t n = std::min(N, tekst.size());
    std::copy_n(tekst.data(), n, tekens_.begin());
    std::fill(tekens_.begin() + n, tekens_.end(), ' ');
    return *this;
  }

  /// All N characters.
  [[nodiscard]] std::string_view Heel() const { return {tekens_.data(), N}; }
  [[nodiscard]] std::string_view Getrimd() const { return Trim(Heel()); }
  /// The N bytes as they stand on file.
  [[nodiscard]] std::array<char, N>& Bytes() { return tekens_; }
  [[nodiscard]] const std::array<char, N>& Bytes() const { return tekens_; }

  friend bool operator==(const Tekst&, const Tekst&) = default;

 private:
  std::array<char, N> tekens_{};
};

/// A character of the code page as a small letter or as a capital; what has no other form stays as it is.
[[nodiscard]] char NaarKlein(char c);
[[nodiscard]] char NaarGroot(char c);
[[nodiscard]] std::string InKleineLetters(std::string_view cp1252);
[[nodiscard]] std::string InHoofdletters(std::string_view cp1252);

/// Windows-1252 to UTF-8. The five bytes that the code page leaves undefined (81, 8D, 8F, 90, 9D hexadecimal)
/// become the control characters of the same number, so that they come back unchanged.
[[nodiscard]] std::string NaarUtf8(std::string_view cp1252);
/// UTF-8 to Windows-1252. Fout 5 for text that is not UTF-8 or has a character outside the code page.
[[nodiscard]] std::string NaarCp1252(std::string_view utf8);
/// The same for a text that is only shown, as a file's name: "?" for each character outside the code page and
/// for each byte that is no part of UTF-8.
[[nodiscard]] std::string NaarCp1252Getoond(std::string_view utf8);

/// A character (a Unicode code point) that can be typed, in Windows-1252; nothing for one that the code page
/// lacks and for a control character.
[[nodiscard]] std::optional<char> TypbaarTeken(char32_t teken);

namespace intern {

/// A UTF-8 literal whose non-ASCII characters are all below U+0100 and above U+009F, where the code page
/// equals Unicode; anything else does not compile.
template <std::size_t N>
struct CpLiteraal {
  std::array<char, N> tekens{};
  std::size_t lengte = 0;

  consteval CpLiteraal(const char (&utf8)[N]) {  // NOLINT(google-explicit-constructor)
    for (std::size_t i = 0; i + 1 < N; ++i) {
      const auto c = static_cast<unsigned char>(utf8[i]);
      if (c < 0x80) {
        tekens[lengte++] = utf8[i];
      } else {
        if (c != 0xC2 && c != 0xC3) throw "character outside the code page";
        const auto volgend = static_cast<unsigned char>(utf8[++i]);
        const int punt = ((c & 0x03) << 6) | (volgend & 0x3F);
        if (punt < 0xA0) throw "character outside the code page";
        tekens[lengte++] = static_cast<char>(punt);
      }
    }
  }
};

}  // namespace intern

/// A literal in Windows-1252, written in the source as UTF-8: "h×b = "_cp.
template <intern::CpLiteraal L>
[[nodiscard]] constexpr std::string_view operator""_cp() {
  return {L.tekens.data(), L.lengte};
}

}  // namespace murvane
