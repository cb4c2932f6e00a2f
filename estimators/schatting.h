#pragma once
// estimators/: small calculators that fill a catalogue entry with an indicative spectrum: lined duct
// (bekleed), quarter-wave silencer (kwartlambda), plenum silencer (plenum) and duct wall (kanaalwand).
// This header: what they share: what the user entered, the fields it is entered in, and what comes out.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "editor/invoer.h"
#include "editor/melding.h"
#include "editor/veldhandlers.h"
#include "project/records.h"

namespace murvane {

// The inputs of each estimator, as its fields hold them: not negative, rounded to the field's format.

struct BekleedInvoer {
  double h = 0;      ///< mm, height, or diameter of a round duct
  double B = 0;      ///< mm, width; 0 means round
  double Dikte = 0;  ///< mm, of the lining
  double L = 0;      ///< m, of the duct
};

struct KwartLambdaInvoer {
  double h = 0;   ///< mm, height, or diameter of a round duct
  double B = 0;   ///< mm, width; 0 means round
  double L = 0;   ///< m, of the chamber
  double S2 = 0;  ///< m², cross-section of the chamber
};

struct PlenumInvoer {
  double Hdemper = 0;  ///< mm, height of the box
  double Bdemper = 0;  ///< mm, width of the box
  double L = 0;        ///< m, length of the box
  double h = 0;        ///< mm, height of the inlet duct, or its diameter
  double B = 0;        ///< mm, width of the inlet duct; 0 means round
  double Dikte = 0;    ///< mm, of the lining
};

/// Wall materials, the values of KanaalwandInvoer::KanaalType.
namespace kanaaltype {
inline constexpr std::int32_t Zink = 1;  ///< galvanised steel
inline constexpr std::int32_t RVS = 2;   ///< stainless steel
inline constexpr std::int32_t Alu = 3;
inline constexpr std::int32_t Kunststof = 4;
}  // namespace kanaaltype

struct KanaalwandInvoer {
  std::int32_t KanaalType = 0;  ///< kanaaltype
  double Dikte = 0;             ///< mm, of the wall
  double Massa = 0;             ///< kg/m², added against drumming
};

/// The inputs that each estimator had last. The program keeps them for as long as it runs, so that a window
/// opens with them again.
struct SchatInvoer {
  BekleedInvoer Bekleed;
  KwartLambdaInvoer KwartLambda;
  PlenumInvoer Plenum;
  KanaalwandInvoer Kanaalwand;
};

/// What an estimate writes into the open entry fields of a catalogue window; Windows-1252.
struct Schatting {
  std::string Omschrijving;                 ///< for txtSpectrum
  std::array<std::string, Banden> Demping;  ///< for txtdemp(0..6): whole decibels

  friend bool operator==(const Schatting&, const Schatting&) = default;
};

/// Why there is no estimate, and which field the user has to look at.
struct Weigering {
  std::string_view Melding;
  std::string_view Veld;

  friend bool operator==(const Weigering&, const Weigering&) = default;
};

using SchatUitslag = std::variant<Weigering, Schatting>;

inline constexpr std::string_view GeenGeldigeWaarden = "Geen geldige waarde(n) ingevuld";

/// The box of a refusal.
[[nodiscard]] Melding BoxVan(const Weigering& weigering);

/// Where a field's value is kept.
using SchatWaarde = std::variant<double BekleedInvoer::*, double KwartLambdaInvoer::*, double PlenumInvoer::*,
                                 double KanaalwandInvoer::*>;

/// One field of an estimator's window; texts are Windows-1252.
struct SchatVeld {
  VeldRegel Regel;
  std::string_view Label;
  std::string_view Eenheid;  ///< the note behind the field
  SchatWaarde Waarde;
};

/// The keys of a field for a whole number and of one with decimals.
inline constexpr std::string_view HeelToetsen = "1234567890";
inline constexpr std::string_view GetalToetsen = "1234567890,.";

/// The rule of an estimator's field: a number from 0 to `boven`; Enter goes to `volgende`.
constexpr VeldRegel SchatRegel(std::string_view naam, double boven, Formaat weergave,
                               std::string_view toetsen, std::string_view volgende) {
  return {.Naam = naam,
          .Soort = VeldSoort::Numeriek,
          .Onder = 0,
          .Boven = boven,
          .Weergave = weergave,
          .Toetsen = toetsen,
          .Opvolgers = {volgende}};
}

/// The stored value of a field, as the window shows it when it opens.
[[nodiscard]] std::string ToonVeld(const SchatInvoer& invoer, const SchatVeld& veld, char decimaal);

/// The leaving of a field: checks its text and stores the value, 0 for a text that is no number or too large
/// a one.
[[nodiscard]] VeldUitslag VerlaatVeld(SchatInvoer& invoer, const SchatVeld& veld, std::string_view tekst,
                                      char decimaal);

// What the estimates share.

/// Seven levels, whole, halves away from zero.
[[nodiscard]] std::array<std::string, Banden> HeleDecibels(const std::array<double, Banden>& niveaus);

/// Cross-section of a duct in m² from height or diameter h and width B, both mm; a B of 0 means round.
[[nodiscard]] double KanaalDoorsnede(double h, double B);

/// Wavelength in m at a frequency in Hz.
[[nodiscard]] double Golflengte(double frequentie);

}  // namespace murvane
