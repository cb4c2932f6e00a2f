#include "basis/stuurtekens.h"

#include "basis/utf8.h"

namespace murvane {

namespace {

bool IsRichting(char32_t punt) {
  return punt == 0x061C || punt == 0x200E || punt == 0x200F || (punt >= 0x202A && punt <= 0x202E) ||
         (punt >= 0x2066 && punt <= 0x2069);
}

bool IsStuurteken(char32_t punt) {
  return punt < 0x20 || (punt >= 0x7F && punt < 0xA0) || IsRichting(punt);
}

void VoegNummerToe(std::string& uit, char32_t punt) {
  constexpr std::string_view Cijfers = "0123456789abcdef";
  uit += punt > 0xFF ? "\\u" : "\\x";
  for (int schuif = punt > 0xFF ? 12 : 4; schuif >= 0; schuif -= 4) uit += Cijfers[punt >> schuif & 0xFU];
}

}  // namespace

std::string Toonbaar(std::string_view utf8, std::string_view regeleinde) {
  std::string uit;
  uit.reserve(utf8.size());
  while (!utf8.empty()) {
    Utf8Teken teken = EersteTeken(utf8);
    if (teken.Lengte == 0) teken = {1, static_cast<unsigned char>(utf8.front())};
    if (!regeleinde.empty() && utf8.starts_with(regeleinde)) {
      teken.Lengte = regeleinde.size();
      uit += regeleinde;
    } else if (IsStuurteken(teken.Punt)) {
      VoegNummerToe(uit, teken.Punt);
    } else {
      uit += utf8.substr(0, teken.Lengte);
    }
    utf8.remove_prefix(teken.Lengte);
  }
  return uit;
}

}  // namespace murvane
