#include "basis/stempel.h"

namespace murvane {

std::uint64_t HashVan(std::string_view bytes) {
  std::uint64_t hash = 0xCBF29CE484222325U;  // the 64-bit hash of Fowler, Noll and Vo, 1a
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
  return hash;
}

bool IsOngewijzigd(const Stempel& toen, const Stempel& nu) {
  if (toen.Grootte != nu.Grootte || toen.Gelezen != nu.Gelezen || toen.Hash != nu.Hash) return false;
  return nu.Gelezen == nu.Grootte || toen.Tijd == nu.Tijd;
}

}  // namespace murvane
