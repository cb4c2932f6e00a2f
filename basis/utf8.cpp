#include "basis/utf8.h"

namespace murvane {

namespace {

/// By a first byte: how many bytes the character has, its first bits, and the least that it may stand for.
struct Begin {
  std::size_t Lengte;
  char32_t Bits;
  char32_t Kleinste;
};

Begin BeginVan(unsigned char c) {
  if (c < 0x80) return {1, c, 0};
  if (c >= 0xC0 && c < 0xE0) return {2, c & 0x1FU, 0x80};
  if (c >= 0xE0 && c < 0xF0) return {3, c & 0x0FU, 0x800};
  if (c >= 0xF0 && c < 0xF8) return {4, c & 0x07U, 0x10000};
  return {0, 0, 0};
}

bool IsPunt(char32_t punt) {
  return punt <= 0x10FFFF && (punt < 0xD800 || punt >= 0xE000);
}

}  // namespace

Utf8Teken EersteTeken(std::string_view utf8) {
  const Begin begin = BeginVan(static_cast<unsigned char>(utf8.front()));
  if (begin.Lengte == 0 || utf8.size() < begin.Lengte) return {};
  char32_t punt = begin.Bits;
  for (const char teken : utf8.substr(1, begin.Lengte - 1)) {
    const auto c = static_cast<unsigned char>(teken);
    if ((c & 0xC0U) != 0x80U) return {};
    punt = (punt << 6U) | (c & 0x3FU);
  }
  if (punt < begin.Kleinste || !IsPunt(punt)) return {};
  return {begin.Lengte, punt};
}

}  // namespace murvane
