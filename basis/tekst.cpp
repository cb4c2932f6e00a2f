#include "basis/tekst.h"

#include <algorithm>
#include <cstdint>

#include "basis/fout.h"
#include "basis/utf8.h"

namespace murvane {

namespace {

constexpr bool IsLeeg(char c) {
  return c == ' ' || c == '\0';
}

/// Code points of the bytes 80 to 9F hexadecimal; elsewhere byte and code point are equal.
constexpr std::array<char16_t, 32> HogeTekens = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void VoegUtf8Toe(std::string& uit, char32_t punt) {
  if (punt < 0x80) {
    uit += static_cast<char>(punt);
  } else if (punt < 0x800) {
    uit += static_cast<char>(0xC0 | (punt >> 6));
    uit += static_cast<char>(0x80 | (punt & 0x3F));
  } else {
    uit += static_cast<char>(0xE0 | (punt >> 12));
    uit += static_cast<char>(0x80 | ((punt >> 6) & 0x3F));
    uit += static_cast<char>(0x80 | (punt & 0x3F));
  }
}

/// Takes one code point off the front of `rest`.
char32_t NeemPunt(std::string_view& rest) {
  const Utf8Teken teken = EersteTeken(rest);
  if (teken.Lengte == 0) throw Fout(FoutNummer::OngeldigArgument, "De tekst is geen geldige UTF-8");
  rest.remove_prefix(teken.Lengte);
  return teken.Punt;
}

/// The byte of a code point, where the code page has one.
std::optional<char> ByteVan(char32_t punt) {
  if (punt < 0x80 || (punt >= 0xA0 && punt < 0x100)) return static_cast<char>(punt);
  for (std::size_t i = 0; i < HogeTekens.size(); ++i) {
    if (HogeTekens[i] == punt) return static_cast<char>(0x80 + i);
  }
  return std::nullopt;
}

char NaarByte(char32_t punt) {
  if (const auto byte = ByteVan(punt)) return *byte;
  std::string teken;
  VoegUtf8Toe(teken, punt > 0xFFFF ? char32_t{0xFFFD} : punt);
  throw Fout(FoutNummer::OngeldigArgument,
             "Het teken '" + teken + "' kan niet in een tekst van het project staan");
}

constexpr int Code(char c) {
  return static_cast<unsigned char>(c);
}
/// The distance of the small letter behind a capital of the code page; 0 for any other character.
constexpr int AfstandTotKlein(int c) {
  if ((c >= 'A' && c <= 'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7)) return 0x20;
  if (c == 0x8A || c == 0x8C || c == 0x8E) return 0x10;  // Š Œ Ž
  return c == 0x9F ? 0x60 : 0;                           // Ÿ
}

using Vormen = std::array<char, 256>;  ///< of every character of the code page

constexpr Vormen KleineVorm = [] {
  Vormen uit{};
  for (int c = 0; c < 256; ++c) uit[static_cast<std::size_t>(c)] = static_cast<char>(c + AfstandTotKlein(c));
  return uit;
}();

constexpr Vormen GroteVorm = [] {
  Vormen uit{};
  for (int c = 0; c < 256; ++c) uit[static_cast<std::size_t>(c)] = static_cast<char>(c);
  for (int c = 0; c < 256; ++c) {
    const int klein = c + AfstandTotKlein(c);
    if (klein > c) uit[static_cast<std::size_t>(klein)] = static_cast<char>(c);
  }
  return uit;
}();

}  // namespace

char NaarKlein(char c) {
  return KleineVorm[static_cast<std::size_t>(Code(c))];
}

char NaarGroot(char c) {
  return GroteVorm[static_cast<std::size_t>(Code(c))];
}

std::string InKleineLetters(std::string_view cp1252) {
  std::string uit(cp1252);
  std::transform(uit.begin(), uit.end(), uit.begin(), NaarKlein);
  return uit;
}

std::string InHoofdletters(std::string_view cp1252) {
  std::string uit(cp1252);
  std::transform(uit.begin(), uit.end(), uit.begin(), NaarGroot);
  return uit;
}

std::string_view TrimRechts(std::string_view tekst) {
  while (!tekst.empty() && IsLeeg(tekst.back())) tekst.remove_suffix(1);
  return tekst;
}

std::string_view Trim(std::string_view tekst) {
  tekst = TrimRechts(tekst);
  while (!tekst.empty() && IsLeeg(tekst.front())) tekst.remove_prefix(1);
  return tekst;
}

std::string NaarUtf8(std::string_view cp1252) {
  std::string uit;
  uit.reserve(cp1252.size() + cp1252.size() / 8);
  for (const char teken : cp1252) {
    const auto byte = static_cast<unsigned char>(teken);
    VoegUtf8Toe(uit, byte >= 0x80 && byte < 0xA0 ? HogeTekens[byte - 0x80U] : byte);
  }
  return uit;
}

std::string NaarCp1252(std::string_view utf8) {
  std::string uit;
  uit.reserve(utf8.size());
  while (!utf8.empty()) uit += NaarByte(NeemPunt(utf8));
  return uit;
}

std::string NaarCp1252Getoond(std::string_view utf8) {
  constexpr char Onbekend = '?';
  std::string uit;
  uit.reserve(utf8.size());
  while (!utf8.empty()) {
    try {
      uit += ByteVan(NeemPunt(utf8)).value_or(Onbekend);
    } catch (const Fout&) {
      uit += Onbekend;
      utf8.remove_prefix(1);
    }
  }
  return uit;
}

std::optional<char> TypbaarTeken(char32_t teken) {
  const bool bestuurt = teken < ' ' || (teken >= 0x7F && teken < 0xA0);
  return bestuurt ? std::nullopt : ByteVan(teken);
}

}  // namespace murvane
