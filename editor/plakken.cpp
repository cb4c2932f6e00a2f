#include "editor/plakken.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "basis/tekst.h"

namespace murvane {

namespace {

struct Reeks {
  char32_t Van, Tot;  ///< both included
};

constexpr auto Regeleinden = std::to_array<Reeks>({{0x09, 0x0D}, {0x85, 0x85}, {0x2028, 0x2029}});
constexpr auto Blanken = std::to_array<Reeks>({{0x20, 0x20},
                                               {0xA0, 0xA0},
                                               {0x1680, 0x1680},
                                               {0x2000, 0x200A},
                                               {0x202F, 0x202F},
                                               {0x205F, 0x205F},
                                               {0x3000, 0x3000}});
/// Control characters, marks of zero width and of the direction of writing, variants and tags.
constexpr auto Onzichtbaren = std::to_array<Reeks>({{0x00, 0x1F},
                                                    {0x7F, 0x9F},
                                                    {0x034F, 0x034F},
                                                    {0x061C, 0x061C},
                                                    {0x180B, 0x180F},
                                                    {0x200B, 0x200F},
                                                    {0x202A, 0x202E},
                                                    {0x2060, 0x206F},
                                                    {0xFE00, 0xFE0F},
                                                    {0xFEFF, 0xFEFF},
                                                    {0xFFF9, 0xFFFB},
                                                    {0xE0000, 0xE0FFF}});

template <std::size_t N>
bool In(const std::array<Reeks, N>& reeksen, char32_t teken) {
  return std::any_of(reeksen.begin(), reeksen.end(),
                     [teken](Reeks reeks) { return teken >= reeks.Van && teken <= reeks.Tot; });
}

bool IsRegeleinde(char32_t teken) {
  return In(Regeleinden, teken);
}

bool IsWit(char32_t teken) {
  return IsRegeleinde(teken) || In(Blanken, teken);
}

std::u32string Zichtbaar(std::u32string_view tekst) {
  std::u32string uit;
  std::copy_if(tekst.begin(), tekst.end(), std::back_inserter(uit),
               [](char32_t teken) { return IsWit(teken) || !In(Onzichtbaren, teken); });
  return uit;
}

std::u32string OpEenRegel(std::u32string_view tekst) {
  std::u32string uit;
  while (!tekst.empty()) {
    const auto wit = std::find_if_not(tekst.begin(), tekst.end(), IsWit);
    if (std::any_of(tekst.begin(), wit, IsRegeleinde)) {
      uit += ' ';
    } else {
      uit.append(tekst.begin(), wit);
    }
    const auto volgend = std::find_if(wit, tekst.end(), IsWit);
    uit.append(wit, volgend);
    tekst.remove_prefix(static_cast<std::size_t>(volgend - tekst.begin()));
  }
  return uit;
}

std::u32string_view ZonderEinden(std::u32string_view tekst) {
  while (!tekst.empty() && IsWit(tekst.front())) tekst.remove_prefix(1);
  while (!tekst.empty() && IsWit(tekst.back())) tekst.remove_suffix(1);
  return tekst;
}

Plakuitslag InTekens(std::u32string_view tekst) {
  Plakuitslag uit;
  for (const char32_t punt : tekst) {
    if (const auto teken = TypbaarTeken(punt)) {
      uit.Tekst += *teken;
    } else {
      uit.Geweigerd = true;
    }
  }
  return uit;
}

}  // namespace

Plakuitslag NeemGeplakt(std::u32string_view tekst) {
  return InTekens(ZonderEinden(OpEenRegel(Zichtbaar(tekst))));
}

Plakuitslag NeemGeschreven(std::u32string_view tekst) {
  return InTekens(OpEenRegel(Zichtbaar(tekst)));
}

}  // namespace murvane
