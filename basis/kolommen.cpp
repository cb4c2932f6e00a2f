#include "basis/kolommen.h"

#include <algorithm>

namespace murvane {

namespace {

constexpr std::size_t Regellengte = 80;

/// Characters, not bytes, of UTF-8.
std::size_t Breedte(std::string_view utf8) {
  return static_cast<std::size_t>(std::count_if(
      utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

}  // namespace

void VoegAfgebrokenToe(std::string& uit, std::string_view tekst, std::size_t inspringing) {
  std::size_t kolom = inspringing;
  while (!tekst.empty()) {
    const std::string_view woord = tekst.substr(0, tekst.find(' '));
    tekst.remove_prefix(std::min(tekst.size(), woord.size() + 1));
    if (kolom > inspringing && kolom + 1 + Breedte(woord) > Regellengte) {
      uit.append("\n").append(inspringing, ' ');
      kolom = inspringing;
    } else if (kolom > inspringing) {
      uit += ' ';
      ++kolom;
    }
    uit += woord;
    kolom += Breedte(woord);
  }
  uit += '\n';
}

void VoegRegelToe(std::string& uit, std::string_view naam, std::string_view uitleg) {
  constexpr std::size_t Kolom = 26;
  uit.append("  ").append(naam);
  const std::size_t tot = 2 + Breedte(naam);
  if (tot + 2 > Kolom)
    uit.append("\n").append(Kolom, ' ');
  else
    uit.append(Kolom - tot, ' ');
  VoegAfgebrokenToe(uit, uitleg, Kolom);
}

}  // namespace murvane
