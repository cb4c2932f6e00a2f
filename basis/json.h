#pragma once
// JSON: a writer whose numbers come back to the last bit, and a reader that refuses with the place of what it
// refuses. Texts are Windows-1252 inside and UTF-8 in the JSON; what JSON cannot say as a number is a text:
// "NaN", "Infinity", "-Infinity", and any other not-a-number as "NaN:" and the 16 hexadecimal digits of its
// bits.

#include <array>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "basis/tekst.h"

namespace murvane {

/// Writes one JSON text, two blanks an indent, keys in the order in which they come:
///
///     JsonSchrijver json;
///     json.BeginObject();
///     json.Veld("Naam", tekst).Veld("Lw", spectrum);
///     json.Sleutel("Elementen").BeginLijst();
///     ...
///     json.EindLijst();
///     json.EindObject();
///     return std::move(json).Klaar();
class JsonSchrijver {
 public:
  enum class Vorm : std::uint8_t { Regels, EenRegel };  ///< each value on its own line, or all on one

  JsonSchrijver& BeginObject() { return Begin('{', Vorm::Regels); }
  JsonSchrijver& EindObject() { return Eind('}'); }
  JsonSchrijver& BeginLijst(Vorm vorm = Vorm::Regels) { return Begin('[', vorm); }
  JsonSchrijver& EindLijst() { return Eind(']'); }

  /// The key (ASCII) of the value that comes next.
  JsonSchrijver& Sleutel(std::string_view sleutel);

  /// Shortest digits that read back as the same number; minus zero keeps its sign.
  JsonSchrijver& Waarde(double getal);
  JsonSchrijver& Waarde(std::same_as<bool> auto vlag) { return Kaal(vlag ? "true" : "false"); }
  template <std::integral T>
  requires(!std::same_as<T, bool>) JsonSchrijver& Waarde(T getal) { return Kaal(std::to_string(getal)); }
  /// A text in Windows-1252, whole.
  JsonSchrijver& Waarde(std::string_view tekst);
  /// A fixed text without the blanks that pad it; null when it was never assigned.
  template <std::size_t N>
  JsonSchrijver& Waarde(const Tekst<N>& tekst) {
    return VasteTekst(tekst.Heel());
  }
  /// Numbers in a list on one line.
  template <std::size_t N>
  JsonSchrijver& Waarde(const std::array<double, N>& getallen) {
    return Getallen(getallen);
  }
  JsonSchrijver& Null() { return Kaal("null"); }

  template <typename T>
  JsonSchrijver& Veld(std::string_view sleutel, const T& waarde) {
    return Sleutel(sleutel).Waarde(waarde);
  }

  /// The text in UTF-8 with its final line end, once every object and list is closed.
  [[nodiscard]] std::string Klaar() &&;

 private:
  struct Open {
    Vorm vorm;
    bool leeg = true;
  };

  JsonSchrijver& Begin(char teken, Vorm vorm);
  JsonSchrijver& Eind(char teken);
  JsonSchrijver& Kaal(std::string_view json);
  JsonSchrijver& VasteTekst(std::string_view heel);
  JsonSchrijver& Getallen(std::span<const double> getallen);
  void NieuweRegel();
  void Scheiding();

  std::string uit_;
  std::vector<Open> open_;
  bool naSleutel_ = false;
};

/// A JSON value as read. Texts and keys are still UTF-8; the members of an object stand in the order of the
/// file and no key comes twice.
struct JsonWaarde {
  struct Lid;
  using Lijst = std::vector<JsonWaarde>;
  using Object = std::vector<Lid>;
  std::variant<std::nullptr_t, bool, double, std::string, Lijst, Object> inhoud;
};

/// A member of an object.
struct JsonWaarde::Lid {
  std::string sleutel;
  JsonWaarde waarde;
};

/// Reads a JSON text. Fout 5 for what is not JSON (with line and column), for a key that comes twice in one
/// object and for more than 16 objects and lists within each other; Fout 6 for a number too large for a
/// double. The places of the last three are paths, as those of JsonVeld.
[[nodiscard]] JsonWaarde LeesJson(std::string_view json);

/// A value and its place: the path to it from the top, as "Elementen[2].Hoogte"; list items are counted
/// from 1. Every Fout that it raises carries that place. The JsonWaarde has to outlive it.
class JsonVeld {
 public:
  JsonVeld(const JsonWaarde& waarde, std::string plaats) : waarde_(&waarde), plaats_(std::move(plaats)) {}

  [[nodiscard]] const std::string& Plaats() const { return plaats_; }

  /// A number or one of the texts that stand for one. Fout 13 for anything else.
  void Lees(double& getal) const;
  /// Fout 13 for what is not a whole number from -32768 to 32767.
  void Lees(std::int16_t& getal) const;
  /// A list of up to N numbers, the missing ones 0. Fout 13 for what is not a list, Fout 9 for a longer one.
  template <std::size_t N>
  void Lees(std::array<double, N>& getallen) const {
    LeesGetallen(getallen);
  }
  /// A text, cut or padded with blanks to its length; null is a text that was never assigned. Fout 13 for
  /// anything else, Fout 5 for a character that the code page lacks.
  template <std::size_t N>
  void Lees(Tekst<N>& tekst) const {
    if (const std::optional<std::string> gelezen = LeesTekst()) {
      tekst = *gelezen;
    } else {
      tekst = Tekst<N>();
    }
  }
  /// A text of any length up to 65535 characters, null an empty one. Fout 13 and 5 as for a fixed text, and
  /// Fout 5 for a longer one.
  void Lees(std::string& tekst) const;

  /// The items of a list. Fout 13 for anything else, Fout 9 for more than `hoogstens`.
  [[nodiscard]] std::vector<JsonVeld> Lijst(std::size_t hoogstens) const;

 private:
  friend class JsonObject;

  void LeesGetallen(std::span<double> getallen) const;
  [[nodiscard]] std::optional<std::string> LeesTekst() const;

  const JsonWaarde* waarde_;
  std::string plaats_;
};

/// The members of an object, taken off one by one; a member that nobody took is unknown.
class JsonObject {
 public:
  /// Fout 13 when the value is no object.
  explicit JsonObject(const JsonVeld& veld);

  /// The value of a key; nothing when the key is absent.
  [[nodiscard]] std::optional<JsonVeld> Neem(std::string_view sleutel);
  /// The object of a key; one without members when the key is absent.
  [[nodiscard]] JsonObject Deel(std::string_view sleutel);
  /// Reads a field as JsonVeld does; says whether it was there.
  template <typename T>
  bool Lees(std::string_view sleutel, T& doel) {
    const std::optional<JsonVeld> veld = Neem(sleutel);
    if (veld) veld->Lees(doel);
    return veld.has_value();
  }
  /// Reads a field of a record: absent, a text is blank and anything else stays as it is.
  template <typename T>
  void LeesOfLeeg(std::string_view sleutel, T& doel) {
    const bool gelezen = Lees(sleutel, doel);
    if constexpr (std::assignable_from<T&, std::string_view>) {
      if (!gelezen) doel = std::string_view();
    }
  }
  [[nodiscard]] const std::string& Plaats() const { return plaats_; }

  /// Fout 5 for the first key that was not taken.
  void Klaar() const;

 private:
  std::string plaats_;
  const JsonWaarde::Object* leden_;
  std::vector<bool> genomen_;
};

/// The count of a list of records that may stand beside it under `sleutel`; without one it is the list's
/// length. Fout 5 for a count that contradicts the list; a negative one is right beside an empty list.
[[nodiscard]] std::int16_t LeesAantal(JsonObject& object, std::string_view sleutel, std::size_t lengte);

}  // namespace murvane
