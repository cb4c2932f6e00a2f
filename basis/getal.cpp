#include "basis/getal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>

#include "basis/fout.h"
#include "basis/tekst.h"

namespace murvane {

namespace {

constexpr int Cijfers = 15;

const char* NietEindig(double waarde) {
  if (std::isnan(waarde)) return "NaN";
  return waarde < 0 ? "-INF" : "INF";
}

/// The 15 significant decimal digits of a finite number and the position of its decimal point: the value is
/// 0.d1d2...d15 times ten to the power `punt`.
struct Decimalen {
  std::array<char, Cijfers> cijfers;
  int punt;
};

Decimalen NaarDecimalen(double grootte) {
  std::array<char, 32> buffer;  // "d.dddddddddddddde-308"
  const auto einde = std::to_chars(buffer.data(), buffer.data() + buffer.size(), grootte,
                                   std::chars_format::scientific, Cijfers - 1)
                         .ptr;
  Decimalen uit{};
  uit.cijfers[0] = buffer[0];
  for (int i = 1; i < Cijfers; ++i)
    uit.cijfers[static_cast<std::size_t>(i)] = buffer[static_cast<std::size_t>(i) + 1];
  const char* exponent = buffer.data() + Cijfers + 2;  // behind "d.dd...de"
  if (*exponent == '+') ++exponent;
  std::from_chars(exponent, einde, uit.punt);
  ++uit.punt;
  return uit;
}

/// Rounds to the first `n` digits, halves up (the sign is kept elsewhere), and blanks the rest to '0'. `n`
/// may be 0 or less: then the whole number is at most a half of the last place kept. Carries into a new first
/// digit.
void RondAf(Decimalen& d, int n) {
  if (n >= Cijfers) return;
  bool op = n >= 0 && d.cijfers[static_cast<std::size_t>(n)] >= '5';
  for (int i = n > 0 ? n : 0; i < Cijfers; ++i) d.cijfers[static_cast<std::size_t>(i)] = '0';
  for (int i = n - 1; op && i >= 0; --i) {
    char& cijfer = d.cijfers[static_cast<std::size_t>(i)];
    op = cijfer == '9';
    cijfer = op ? '0' : static_cast<char>(cijfer + 1);
  }
  if (op) {  // all kept digits were nines, or none was kept
    d.cijfers[0] = '1';
    ++d.punt;
  }
}

/// Powers of ten by the number of decimals of a format.
constexpr std::array<double, 3> Schaal = {1, 10, 100};
/// Up to here a scaled number is off by less than 1E-5, by its multiplication and by the rounding to 15
/// digits together. Farther from a half than that, neither can change to which side it rounds, and
/// whole-number arithmetic gives its digits. That is nearly every number; the others take the long way.
constexpr double SnelTot = 1e9;
constexpr double HalveMarge = 1e-4;

/// The number in a display format at the end of `blanco`, whose characters are blanks; where it begins. Null
/// when its rounding has to be looked at digit by digit.
char* SchrijfSnel(std::array<char, 32>& blanco, double waarde, int decimalen, char decimaal) {
  const double t = std::fabs(waarde) * Schaal[static_cast<std::size_t>(decimalen)];
  if (!(t < SnelTot)) return nullptr;  // so too for not-a-number
  auto n = static_cast<std::uint32_t>(t);
  const double rest = t - n;
  if (std::fabs(rest - 0.5) <= HalveMarge) return nullptr;
  if (rest > 0.5) ++n;
  const bool min = waarde < 0 && n != 0;
  char* p = blanco.data() + blanco.size();
  for (int i = 0; i < decimalen; ++i, n /= 10) *--p = static_cast<char>('0' + n % 10);
  if (decimalen > 0) *--p = decimaal;
  do {
    *--p = static_cast<char>('0' + n % 10);
    n /= 10;
  } while (n != 0);
  if (min) *--p = '-';
  return p;
}

/// The rule of the display formats as it stands, digit by digit.
void VoegAfgerondToe(std::string& uit, double waarde, int decimalen, char decimaal) {
  if (!std::isfinite(waarde)) {
    uit += NietEindig(waarde);
    return;
  }
  Decimalen d = NaarDecimalen(std::fabs(waarde));
  RondAf(d, d.punt + decimalen);
  const auto cijfer = [&d](int plaats) {  // the digit at 10^-plaats-1 behind the decimal point
    const int i = d.punt + plaats;
    return i >= 0 && i < Cijfers ? d.cijfers[static_cast<std::size_t>(i)] : '0';
  };
  const std::size_t begin = uit.size();
  bool nul = true;
  const auto voegToe = [&](char c) {
    nul = nul && c == '0';
    uit += c;
  };
  if (d.punt <= 0) {
    uit += '0';
  } else {
    for (int i = -d.punt; i < 0; ++i) voegToe(cijfer(i));
  }
  if (decimalen > 0) uit += decimaal;
  for (int i = 0; i < decimalen; ++i) voegToe(cijfer(i));
  if (waarde < 0 && !nul) uit.insert(begin, 1, '-');
}

/// The default text form of a number with at most three decimals and nine digits before them, which is nearly
/// every typed one; null for any other. A double that is the nearest one to such a decimal number reads as
/// that number at 15 digits.
char* SchrijfKort(char* naar, double waarde, char decimaal) {
  constexpr std::array<double, 4> Macht = {1, 10, 100, 1000};
  const double grootte = std::fabs(waarde);
  if (!(grootte < SnelTot)) return nullptr;
  for (std::size_t decimalen = 0; decimalen < Macht.size(); ++decimalen) {
    // A wrong rounding fails the comparison below. NOLINTNEXTLINE(bugprone-incorrect-roundings)
    auto n = static_cast<std::uint64_t>(grootte * Macht[decimalen] + 0.5);
    if (static_cast<double>(n) / Macht[decimalen] != grootte) continue;
    std::array<char, 16> cijfers;
    char* const einde = cijfers.data() + cijfers.size();
    char* p = einde;
    for (std::size_t i = 0; i < decimalen; ++i, n /= 10) *--p = static_cast<char>('0' + n % 10);
    if (decimalen > 0) *--p = decimaal;
    do {
      *--p = static_cast<char>('0' + n % 10);
      n /= 10;
    } while (n != 0);
    if (waarde < 0) *--p = '-';
    while (p != einde) *naar++ = *p++;
    return naar;
  }
  return nullptr;
}

bool IsCijfer(char c) {
  return c >= '0' && c <= '9';
}

std::size_t SlaCijfersOver(std::string_view& rest) {
  std::size_t n = 0;
  while (n < rest.size() && IsCijfer(rest[n])) ++n;
  rest.remove_prefix(n);
  return n;
}

void SlaTekenOver(std::string_view& rest) {
  if (!rest.empty() && (rest.front() == '+' || rest.front() == '-')) rest.remove_prefix(1);
}

bool HeeftExponent(std::string_view& rest) {
  if (rest.empty()) return true;
  if (rest.front() != 'e' && rest.front() != 'E') return false;
  rest.remove_prefix(1);
  SlaTekenOver(rest);
  return SlaCijfersOver(rest) > 0 && rest.empty();
}

std::string MetPunt(std::string_view tekst) {
  std::string uit(Trim(tekst));
  if (const auto komma = uit.find(','); komma != std::string::npos) uit[komma] = '.';
  return uit;
}

bool IsNumeriekMetPunt(std::string_view rest) {
  SlaTekenOver(rest);
  std::size_t cijfers = SlaCijfersOver(rest);
  if (!rest.empty() && rest.front() == '.') {
    rest.remove_prefix(1);
    cijfers += SlaCijfersOver(rest);
  }
  return cijfers > 0 && HeeftExponent(rest);
}

/// For a numeric text outside the range of a double: whether it is too large, by the power of ten of its
/// first digit that is not 0.
bool TeGroot(std::string_view getal) {
  const auto e = std::min(getal.find_first_of("eE"), getal.size());
  const auto eerste = getal.find_first_of("123456789");
  if (eerste >= e) return false;
  const auto punt = std::min(getal.find('.'), e);
  const auto plaats = static_cast<std::ptrdiff_t>(punt) - static_cast<std::ptrdiff_t>(eerste);
  if (e == getal.size()) return plaats > 0;
  const char* begin = getal.data() + e + 1;
  if (*begin == '+') ++begin;
  std::ptrdiff_t exponent = 0;
  if (std::from_chars(begin, getal.data() + getal.size(), exponent).ec == std::errc::result_out_of_range)
    return *begin != '-';
  return exponent > -plaats;
}

}  // namespace

void VoegRechtsToe(std::string& uit, double waarde, Formaat formaat, std::size_t breedte, char decimaal) {
  const int decimalen = static_cast<int>(formaat);
  std::array<char, 32> buffer;
  buffer.fill(' ');
  const char* const einde = buffer.data() + buffer.size();
  if (const char* begin = SchrijfSnel(buffer, waarde, decimalen, decimaal);
      begin && breedte <= buffer.size()) {
    uit.append(std::min(begin, einde - breedte), einde);
    return;
  }
  const std::size_t begin = uit.size();
  VoegAfgerondToe(uit, waarde, decimalen, decimaal);
  const std::size_t lengte = uit.size() - begin;
  if (lengte < breedte) uit.insert(begin, breedte - lengte, ' ');
}

void VoegOpmaakToe(std::string& uit, double waarde, Formaat formaat, char decimaal) {
  VoegRechtsToe(uit, waarde, formaat, 0, decimaal);
}

std::string Opmaak(double waarde, Formaat formaat, char decimaal) {
  std::string uit;
  VoegOpmaakToe(uit, waarde, formaat, decimaal);
  return uit;
}

char* SchrijfStandaard(char* naar, double waarde, char decimaal) {
  if (!std::isfinite(waarde)) {
    const std::string_view tekst = NietEindig(waarde);
    return std::copy(tekst.begin(), tekst.end(), naar);
  }
  if (char* const einde = SchrijfKort(naar, waarde, decimaal)) return einde;
  char* const einde =
      std::to_chars(naar, naar + StandaardLengte, waarde, std::chars_format::general, Cijfers).ptr;
  std::replace(naar, einde, '.', decimaal);
  std::replace(naar, einde, 'e', 'E');
  return einde;
}

std::string StandaardTekst(double waarde, char decimaal) {
  std::array<char, StandaardLengte> tekst;
  return {tekst.data(), SchrijfStandaard(tekst.data(), waarde, decimaal)};
}

double RondEven(double waarde) {
  const double onder = std::floor(waarde);
  const double rest = waarde - onder;
  if (rest != 0.5) return rest < 0.5 ? onder : onder + 1;
  return std::fmod(onder, 2) == 0 ? onder : onder + 1;
}

bool IsNumeriek(std::string_view tekst) {
  return IsNumeriekMetPunt(MetPunt(tekst));
}

double LeesGetal(std::string_view tekst) {
  const std::string metPunt = MetPunt(tekst);
  if (!IsNumeriekMetPunt(metPunt)) throw Fout(FoutNummer::GeenGetal);
  const char* begin = metPunt.data();
  const char* einde = begin + metPunt.size();
  if (*begin == '+') ++begin;
  double waarde = 0;
  if (std::from_chars(begin, einde, waarde).ec == std::errc::result_out_of_range) {
    if (TeGroot(metPunt)) throw Fout(FoutNummer::Overloop);
    return *begin == '-' ? -0.0 : 0.0;  // the nearest double of a tiny number
  }
  return waarde;
}

}  // namespace murvane
