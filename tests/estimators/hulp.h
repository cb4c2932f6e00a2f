#pragma once
// Helpers of the estimators' tests.

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <variant>

#include "estimators/schatting.h"

namespace murvane::proef {

using Zeven = std::array<double, Banden>;

/// The expectations have ten significant digits.
inline void VerwachtZeven(const Zeven& uit, const Zeven& verwacht, const std::string& wat) {
  for (std::size_t b = 0; b < Banden; ++b) EXPECT_NEAR(uit[b], verwacht[b], 5e-9) << wat << " band " << b;
}

/// The field of a refusal whose text is the expected one; "" for an estimate.
inline std::string VeldVan(const SchatUitslag& uitslag, std::string_view melding) {
  const auto* const weigering = std::get_if<Weigering>(&uitslag);
  if (weigering == nullptr) return "";
  EXPECT_EQ(weigering->Melding, melding);
  return std::string(weigering->Veld);
}

inline std::string VeldVan(const SchatUitslag& uitslag) {
  return VeldVan(uitslag, "Geen geldige waarde(n) ingevuld");
}

/// The description; "" for a refusal.
inline std::string NaamVan(const SchatUitslag& uitslag) {
  const auto* const schatting = std::get_if<Schatting>(&uitslag);
  return schatting == nullptr ? "" : schatting->Omschrijving;
}

/// The seven texts with single blanks.
inline std::string Waarden(const SchatUitslag& uitslag) {
  const auto* const schatting = std::get_if<Schatting>(&uitslag);
  if (schatting == nullptr) return "";
  std::string uit;
  for (const std::string& tekst : schatting->Demping) uit += (uit.empty() ? "" : " ") + tekst;
  return uit;
}

}  // namespace murvane::proef
