#pragma once
// The bar chart of the results as data: what a window shows and a printed form holds. Texts are Windows-1252.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calc/resultaten.h"
#include "project/records.h"
#include "reports/vlak.h"

namespace murvane {

/// Which result a chart shows, the values of KiesGrafiek.
namespace kiesgrafiek {
inline constexpr std::int16_t Geen = 0;      ///< the choice was cancelled
inline constexpr std::int16_t EenMeter = 1;  ///< level at 1 m
inline constexpr std::int16_t Galmveld = 2;  ///< level in the reverberant field
}  // namespace kiesgrafiek

/// Size of the chart on paper, twips.
inline constexpr double GrafiekBreedte = 10205;
inline constexpr double GrafiekHoogte = 5669;

/// How the values stand at the bars of the first series.
struct LabelOpmaak {
  std::int16_t Plaats = 1;  ///< 1 is above the bar
  std::string_view FontNaam = "Arial";
  double FontSize = 8;     ///< points
  std::int16_t Stijl = 1;  ///< 1 is bold
  murvane::Kleur Kleur{0, 0, 150};

  friend bool operator==(const LabelOpmaak&, const LabelOpmaak&) = default;
};

struct VerticaleAs {
  std::string Titel = "dB(A)";
  int Minimum = 0;
  int Maximum = 0;
  int Verdelingen = 0;  ///< major divisions
  char Decimaal = ',';  ///< the decimal sign of a division that is not whole

  friend bool operator==(const VerticaleAs&, const VerticaleAs&) = default;
};

struct Grafiek {
  static constexpr std::size_t MaxKolommen = 3, MaxRijen = 8;
  static constexpr std::array<std::string_view, MaxKolommen> KolomLabels = {"Totaal", "Ventilator",
                                                                            "Systeem"};
  static constexpr std::array<std::string_view, MaxRijen> RijLabels = {"63",   "125",  "250",  "500",
                                                                       "1000", "2000", "4000", "dB(A)"};
  static constexpr std::string_view HorizontaleTitel = "Frequentie in Hz";

  std::vector<std::string> Titel;  ///< lines
  std::string Voetnoot;
  bool VoetnootTerugloop = false;  ///< the footnote wraps
  VerticaleAs As;
  std::size_t Kolommen = 3;  ///< series in use, from the first
  std::size_t Rijen = 8;     ///< groups of bars in use, from the first
  bool Legenda = true;
  std::array<std::array<std::int16_t, MaxRijen>, MaxKolommen> Waarden{};  ///< by column, then row
  std::optional<LabelOpmaak> Labels;                                      ///< of the first series only

  friend bool operator==(const Grafiek&, const Grafiek&) = default;
};

/// Fills the chart by the project's calculation type and `kiesGrafiek`; an unknown type changes nothing. Fout
/// 6 when a value lies above 32767 or is no number; the chart then stays as it was.
void Grafiek2(const Project& project, const Resultaten& resultaten, std::int16_t kiesGrafiek,
              Grafiek& grafiek);

// The window that asks which result a chart shows (frmSelGraf): KiesGrafiek after each of its events.
[[nodiscard]] constexpr std::int16_t SelGrafGeladen() {
  return kiesgrafiek::EenMeter;
}
[[nodiscard]] constexpr std::int16_t SelGrafOptie(int optie) {
  return optie == 1 ? kiesgrafiek::EenMeter : kiesgrafiek::Galmveld;
}
[[nodiscard]] constexpr std::int16_t SelGrafCancel() {
  return kiesgrafiek::Geen;
}

/// The chart command: whether frmSelGraf asks first, and whether the chart is shown after Grafiek2.
[[nodiscard]] constexpr bool VraagtGrafiekKeuze(std::int16_t rekenType) {
  return rekenType != rekentype::Overspraak;
}
[[nodiscard]] constexpr bool ToontGrafiek(std::int16_t rekenType, std::int16_t kiesGrafiek) {
  return rekenType == rekentype::Overspraak || kiesGrafiek >= 1;
}

}  // namespace murvane
