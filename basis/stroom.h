#pragma once
// Little-endian reading and writing of binary files in memory.

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

#include "basis/fout.h"
#include "basis/tekst.h"

namespace murvane {

/// Reads fields off the front of a file image. Every read past its end raises Fout 62.
class Lezer {
 public:
  explicit Lezer(std::string_view bytes) : rest_(bytes) {}

  [[nodiscard]] std::string_view Bytes(std::size_t n) {
    if (rest_.size() < n) throw Fout(FoutNummer::VoorbijEinde);
    const std::string_view uit = rest_.substr(0, n);
    rest_.remove_prefix(n);
    return uit;
  }

  template <std::size_t N>
  void Lees(Tekst<N>& tekst) {
    std::memcpy(tekst.Bytes().data(), Bytes(N).data(), N);
  }
  void Lees(std::int16_t& getal) {
    getal = std::bit_cast<std::int16_t>(static_cast<std::uint16_t>(Klein(2)));
  }
  void Lees(double& getal) { getal = std::bit_cast<double>(Klein(8)); }
  template <typename T, std::size_t N>
  void Lees(std::array<T, N>& rij) {
    for (T& waarde : rij) Lees(waarde);
  }
  /// A variable-length text: a 16-bit unsigned length and that many bytes.
  void Lees(std::string& tekst) { tekst = Bytes(static_cast<std::size_t>(Klein(2))); }

 private:
  std::uint64_t Klein(std::size_t n) {
    const std::string_view bytes = Bytes(n);
    std::uint64_t uit = 0;
    for (std::size_t i = n; i-- > 0;) uit = uit << 8 | static_cast<unsigned char>(bytes[i]);
    return uit;
  }

  std::string_view rest_;
};

/// Appends fields to a file image.
class Schrijver {
 public:
  explicit Schrijver(std::string& uit) : uit_(uit) {}

  template <std::size_t N>
  void Schrijf(const Tekst<N>& tekst) {
    uit_.append(tekst.Heel());
  }
  void Schrijf(std::int16_t getal) { Klein(std::bit_cast<std::uint16_t>(getal), 2); }
  void Schrijf(double getal) { Klein(std::bit_cast<std::uint64_t>(getal), 8); }
  template <typename T, std::size_t N>
  void Schrijf(const std::array<T, N>& rij) {
    for (const T& waarde : rij) Schrijf(waarde);
  }
  /// A variable-length text. Fout 5 when it is longer than 65535 characters, which its length field cannot
  /// hold.
  void Schrijf(const std::string& tekst) {
    if (tekst.size() > 0xFFFF)
      throw Fout(FoutNummer::OngeldigArgument, "De tekst is langer dan 65535 tekens");
    Klein(tekst.size(), 2);
    uit_.append(tekst);
  }

 private:
  void Klein(std::uint64_t getal, std::size_t n) {
    for (std::size_t i = 0; i < n; ++i) uit_ += static_cast<char>(getal >> (8 * i) & 0xFF);
  }

  std::string& uit_;
};

}  // namespace murvane
