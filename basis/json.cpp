#include "basis/json.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>

#include "basis/fout.h"

namespace murvane {

namespace {

constexpr std::string_view Cijfers = "0123456789ABCDEF";
constexpr std::size_t MaxDiepte = 16;
constexpr std::size_t MaxVariabeleTekst = 0xFFFF;
constexpr std::uint64_t GewoneNaN = 0x7FF8000000000000;

/// A character that a terminal or an editor may act on instead of showing it: U+0000 to U+001F and U+007F to
/// U+009F.
bool IsStuurteken(std::string_view utf8, std::size_t i) {
  const auto c = static_cast<unsigned char>(utf8[i]);
  if (c < 0x20 || c == 0x7F) return true;
  return c == 0xC2 && i + 1 < utf8.size() && static_cast<unsigned char>(utf8[i + 1]) < 0xA0;
}

/// Appends UTF-8 as it stands between the quotes of a JSON text.
void VoegTekensToe(std::string& uit, std::string_view utf8) {
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    if (IsStuurteken(utf8, i)) {
      if (utf8[i] == '\xC2') ++i;
      const auto punt = static_cast<unsigned char>(utf8[i]);
      uit += "\\u00";
      uit += Cijfers[punt >> 4U];
      uit += Cijfers[punt & 0xFU];
    } else {
      if (utf8[i] == '"' || utf8[i] == '\\') uit += '\\';
      uit += utf8[i];
    }
  }
}

/// A key as messages show it: without characters that act on a terminal, and not endlessly long.
std::string Getoond(std::string_view sleutel) {
  constexpr std::size_t genoeg = 80;
  std::string uit;
  if (sleutel.size() <= genoeg) {
    VoegTekensToe(uit, sleutel);
    return uit;
  }
  std::size_t n = genoeg;
  while (n > 0 && (static_cast<unsigned char>(sleutel[n]) & 0xC0U) == 0x80U) --n;
  VoegTekensToe(uit, sleutel.substr(0, n));
  return uit + "…";
}

std::string Tussen(std::string_view sleutel) {
  return "\"" + Getoond(sleutel) + "\"";
}

std::string LidPlaats(const std::string& plaats, std::string_view sleutel) {
  return plaats.empty() ? Getoond(sleutel) : plaats + "." + Getoond(sleutel);
}

std::string ItemPlaats(const std::string& plaats, std::size_t nummer) {
  return plaats + "[" + std::to_string(nummer) + "]";
}

/// A number as JSON; what is not finite as a text, quotes included.
std::string GetalJson(double getal) {
  if (std::isnan(getal)) {
    const auto bits = std::bit_cast<std::uint64_t>(getal);
    if (bits == GewoneNaN) return "\"NaN\"";
    std::string uit = "\"NaN:";
    for (int schuif = 60; schuif >= 0; schuif -= 4) uit += Cijfers[bits >> schuif & 0xFU];
    return uit + "\"";
  }
  if (std::isinf(getal)) return getal > 0 ? "\"Infinity\"" : "\"-Infinity\"";
  // Without the point it would be read as a whole number, and those have no minus zero.
  if (getal == 0 && std::signbit(getal)) return "-0.0";
  std::array<char, 32> tekens{};
  const auto eind = std::to_chars(tekens.data(), tekens.data() + tekens.size(), getal);
  return {tekens.data(), eind.ptr};
}

/// The number that a text stands for.
std::optional<double> GetalUitTekst(std::string_view tekst) {
  if (tekst == "NaN") return std::bit_cast<double>(GewoneNaN);
  if (tekst == "Infinity") return std::numeric_limits<double>::infinity();
  if (tekst == "-Infinity") return -std::numeric_limits<double>::infinity();
  constexpr std::string_view kop = "NaN:";
  if (!tekst.starts_with(kop) || tekst.size() != kop.size() + 16) return {};
  std::uint64_t bits = 0;
  const char* const eind = tekst.data() + tekst.size();
  const auto gelezen = std::from_chars(tekst.data() + kop.size(), eind, bits, 16);
  if (gelezen.ec != std::errc() || gelezen.ptr != eind) return {};
  const auto getal = std::bit_cast<double>(bits);
  return std::isnan(getal) ? std::optional(getal) : std::nullopt;
}

/// Line and column, counted in characters, of a byte of the text.
std::string RegelKolom(std::string_view json, std::size_t plek) {
  const std::string_view ervoor = json.substr(0, plek);
  const auto regel = 1 + std::count(ervoor.begin(), ervoor.end(), '\n');
  const std::string_view begin = ervoor.substr(ervoor.rfind('\n') + 1);
  const auto kolom = 1 + std::count_if(begin.begin(), begin.end(), [](char c) {
                       return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
                     });
  return "regel " + std::to_string(regel) + ", kolom " + std::to_string(kolom);
}

[[noreturn]] void GeenJson(std::string_view json, std::size_t plek) {
  throw Fout(FoutNummer::OngeldigArgument, "Geen geldige JSON", RegelKolom(json, plek));
}

/// The first key of an object that one before it has, too. By sorting, whose cost no choice of keys can drive
/// up as that of a hash table, and which needs no copies.
const std::string* EersteDubbele(const JsonWaarde::Object& leden) {
  std::vector<const std::string*> sleutels;
  sleutels.reserve(leden.size());
  for (const JsonWaarde::Lid& lid : leden) sleutels.push_back(&lid.sleutel);
  std::sort(sleutels.begin(), sleutels.end(), [](const std::string* een, const std::string* ander) {
    const int volgorde = een->compare(*ander);
    return volgorde < 0 || (volgorde == 0 && een < ander);
  });
  const std::string* eerste = nullptr;
  for (std::size_t i = 1; i < sleutels.size(); ++i) {
    const bool dubbel = *sleutels[i - 1] == *sleutels[i];
    if (dubbel && (eerste == nullptr || sleutels[i] < eerste)) eerste = sleutels[i];
  }
  return eerste;
}

/// Builds the value from the events of the parser, which does not recurse; so nothing does before the depth
/// is known.
class Bouwer {
 public:
  Bouwer(std::string_view json, JsonWaarde& top) : json_(json), top_(&top) {}

  // NOLINTBEGIN(readability-identifier-naming): the parser's names.
  bool null() { return Zet(nullptr); }
  bool boolean(bool vlag) { return Zet(vlag); }
  bool number_integer(std::int64_t getal) { return Zet(static_cast<double>(getal)); }
  bool number_unsigned(std::uint64_t getal) { return Zet(static_cast<double>(getal)); }
  bool number_float(double getal, const std::string& /*tekst*/) { return Zet(getal); }
  bool string(std::string& tekst) { return Zet(std::move(tekst)); }
  bool binary(nlohmann::json::binary_t& /*bytes*/) { return false; }  // never in a JSON text
  bool start_object(std::size_t /*aantal*/) { return Open(JsonWaarde::Object()); }
  bool end_object() {
    const auto& leden = std::get<JsonWaarde::Object>(open_.back()->inhoud);
    if (EersteDubbele(leden) != nullptr) EisEenmalig();
    return Sluit();
  }
  bool start_array(std::size_t /*aantal*/) { return Open(JsonWaarde::Lijst()); }
  bool end_array() { return Sluit(); }

  bool key(std::string& sleutel) {
    std::get<JsonWaarde::Object>(open_.back()->inhoud).emplace_back().sleutel = std::move(sleutel);
    return true;
  }

  bool parse_error(std::size_t gelezen, const std::string& /*teken*/, const nlohmann::json::exception& fout) {
    constexpr int teGroot = 406;
    EisEenmalig();
    if (fout.id != teGroot) GeenJson(json_, gelezen > 0 ? gelezen - 1 : 0);
    (void)Volgende();
    throw Fout(FoutNummer::Overloop, "Het getal is te groot", Plaats(open_.size()));
  }
  // NOLINTEND(readability-identifier-naming)

 private:
  /// Where the next value goes: behind its key, at the end of the list, or at the top.
  JsonWaarde& Volgende() {
    if (open_.empty()) return *top_;
    auto& inhoud = open_.back()->inhoud;
    if (auto* object = std::get_if<JsonWaarde::Object>(&inhoud)) return object->back().waarde;
    return std::get<JsonWaarde::Lijst>(inhoud).emplace_back();
  }

  template <typename T>
  bool Zet(T&& inhoud) {
    Volgende().inhoud = std::forward<T>(inhoud);
    return true;
  }

  template <typename T>
  bool Open(T&& inhoud) {
    JsonWaarde& nieuw = Volgende();
    if (open_.size() == MaxDiepte) {
      EisEenmalig();
      throw Fout(FoutNummer::OngeldigArgument, "Te veel objecten en lijsten in elkaar", Plaats(open_.size()));
    }
    nieuw.inhoud = std::forward<T>(inhoud);
    open_.push_back(&nieuw);
    return true;
  }

  bool Sluit() {
    open_.pop_back();
    return true;
  }

  /// The open objects have every key once. Whatever else is wrong came later than a key that comes twice; and
  /// so did, in an inner object, any key behind the doubled one of an outer object.
  void EisEenmalig() const {
    for (std::size_t i = 0; i < open_.size(); ++i) {
      const auto* object = std::get_if<JsonWaarde::Object>(&open_[i]->inhoud);
      const std::string* dubbel = object == nullptr ? nullptr : EersteDubbele(*object);
      if (dubbel == nullptr) continue;
      throw Fout(FoutNummer::OngeldigArgument, "Dubbele sleutel " + Tussen(*dubbel), Plaats(i));
    }
  }

  /// The path through the outermost `diepte` levels, by their last member or item.
  [[nodiscard]] std::string Plaats(std::size_t diepte) const {
    std::string plaats;
    for (std::size_t i = 0; i < diepte; ++i) {
      const auto& inhoud = open_[i]->inhoud;
      if (const auto* object = std::get_if<JsonWaarde::Object>(&inhoud)) {
        plaats = LidPlaats(plaats, object->back().sleutel);
      } else {
        plaats = ItemPlaats(plaats, std::get<JsonWaarde::Lijst>(inhoud).size());
      }
    }
    return plaats;
  }

  std::string_view json_;
  JsonWaarde* top_;
  std::vector<JsonWaarde*> open_;
};

[[noreturn]] void GeenGetal(const std::string& plaats, const char* omschrijving) {
  throw Fout(FoutNummer::GeenGetal, omschrijving, plaats);
}

}  // namespace

JsonSchrijver& JsonSchrijver::Sleutel(std::string_view sleutel) {
  Scheiding();
  uit_ += '"';
  VoegTekensToe(uit_, sleutel);
  uit_ += "\": ";
  naSleutel_ = true;
  return *this;
}

JsonSchrijver& JsonSchrijver::Waarde(double getal) {
  return Kaal(GetalJson(getal));
}

JsonSchrijver& JsonSchrijver::Waarde(std::string_view tekst) {
  std::string json = "\"";
  VoegTekensToe(json, NaarUtf8(tekst));
  return Kaal(json + '"');
}

JsonSchrijver& JsonSchrijver::VasteTekst(std::string_view heel) {
  if (heel.find_first_not_of('\0') == std::string_view::npos) return Null();
  // Only the blanks: NULs behind a text are bytes of the file.
  return Waarde(heel.substr(0, heel.find_last_not_of(' ') + 1));
}

JsonSchrijver& JsonSchrijver::Getallen(std::span<const double> getallen) {
  BeginLijst(Vorm::EenRegel);
  for (const double getal : getallen) Waarde(getal);
  return EindLijst();
}

JsonSchrijver& JsonSchrijver::Begin(char teken, Vorm vorm) {
  Kaal({&teken, 1});
  open_.push_back({vorm});
  return *this;
}

JsonSchrijver& JsonSchrijver::Eind(char teken) {
  const Open dicht = open_.back();
  open_.pop_back();
  if (!dicht.leeg && dicht.vorm == Vorm::Regels) NieuweRegel();
  uit_ += teken;
  return *this;
}

JsonSchrijver& JsonSchrijver::Kaal(std::string_view json) {
  if (!naSleutel_) Scheiding();
  naSleutel_ = false;
  uit_ += json;
  return *this;
}

void JsonSchrijver::NieuweRegel() {
  uit_ += '\n';
  uit_.append(2 * open_.size(), ' ');
}

/// What stands before the next member or item.
void JsonSchrijver::Scheiding() {
  if (open_.empty()) return;
  Open& om = open_.back();
  if (!om.leeg) uit_ += ',';
  if (om.vorm == Vorm::Regels) {
    NieuweRegel();
  } else if (!om.leeg) {
    uit_ += ' ';
  }
  om.leeg = false;
}

std::string JsonSchrijver::Klaar() && {
  uit_ += '\n';
  return std::move(uit_);
}

JsonWaarde LeesJson(std::string_view json) {
  constexpr std::string_view bom = "\xEF\xBB\xBF";
  if (json.starts_with(bom)) json.remove_prefix(bom.size());
  JsonWaarde top;
  Bouwer bouwer(json, top);
  nlohmann::json::sax_parse(json, &bouwer);
  // The parser takes a NUL for the end of the text.
  const std::size_t nul = json.find('\0');
  if (nul != std::string_view::npos) GeenJson(json, nul);
  return top;
}

void JsonVeld::Lees(double& getal) const {
  std::optional<double> gelezen;
  if (const auto* direct = std::get_if<double>(&waarde_->inhoud)) gelezen = *direct;
  if (const auto* tekst = std::get_if<std::string>(&waarde_->inhoud)) gelezen = GetalUitTekst(*tekst);
  if (!gelezen) GeenGetal(plaats_, Beschrijving(FoutNummer::GeenGetal));
  getal = *gelezen;
}

void JsonVeld::Lees(std::int16_t& getal) const {
  using Grens = std::numeric_limits<std::int16_t>;
  const auto* gelezen = std::get_if<double>(&waarde_->inhoud);
  if (gelezen == nullptr || *gelezen != std::floor(*gelezen) || *gelezen < Grens::min() ||
      *gelezen > Grens::max()) {
    GeenGetal(plaats_, "Geen geheel getal van -32768 tot en met 32767");
  }
  getal = static_cast<std::int16_t>(*gelezen);
}

void JsonVeld::Lees(std::string& tekst) const {
  std::string gelezen = LeesTekst().value_or("");
  if (gelezen.size() > MaxVariabeleTekst) {
    throw Fout(FoutNummer::OngeldigArgument, "De tekst is langer dan 65535 tekens", plaats_);
  }
  tekst = std::move(gelezen);
}

std::optional<std::string> JsonVeld::LeesTekst() const {
  if (std::holds_alternative<std::nullptr_t>(waarde_->inhoud)) return {};
  const auto* tekst = std::get_if<std::string>(&waarde_->inhoud);
  if (tekst == nullptr) GeenGetal(plaats_, "Geen tekst");
  try {
    return NaarCp1252(*tekst);
  } catch (const Fout& fout) {
    throw fout.MetPlaats(plaats_);
  }
}

std::vector<JsonVeld> JsonVeld::Lijst(std::size_t hoogstens) const {
  const auto* lijst = std::get_if<JsonWaarde::Lijst>(&waarde_->inhoud);
  if (lijst == nullptr) GeenGetal(plaats_, "Geen lijst");
  if (lijst->size() > hoogstens) {
    throw Fout(FoutNummer::IndexBuitenBereik, "De lijst is langer dan " + std::to_string(hoogstens), plaats_);
  }
  std::vector<JsonVeld> items;
  items.reserve(lijst->size());
  for (const JsonWaarde& item : *lijst) items.emplace_back(item, ItemPlaats(plaats_, items.size() + 1));
  return items;
}

void JsonVeld::LeesGetallen(std::span<double> getallen) const {
  std::fill(getallen.begin(), getallen.end(), 0.0);
  auto doel = getallen.begin();
  for (const JsonVeld& item : Lijst(getallen.size())) item.Lees(*doel++);
}

JsonObject::JsonObject(const JsonVeld& veld)
    : plaats_(veld.plaats_), leden_(std::get_if<JsonWaarde::Object>(&veld.waarde_->inhoud)) {
  if (leden_ == nullptr) GeenGetal(plaats_, "Geen object");
  genomen_.resize(leden_->size());
}

std::optional<JsonVeld> JsonObject::Neem(std::string_view sleutel) {
  for (std::size_t i = 0; i < leden_->size(); ++i) {
    if ((*leden_)[i].sleutel != sleutel) continue;
    genomen_[i] = true;
    return JsonVeld((*leden_)[i].waarde, LidPlaats(plaats_, sleutel));
  }
  return {};
}

JsonObject JsonObject::Deel(std::string_view sleutel) {
  static const JsonWaarde leeg{JsonWaarde::Object()};
  return JsonObject(Neem(sleutel).value_or(JsonVeld(leeg, LidPlaats(plaats_, sleutel))));
}

void JsonObject::Klaar() const {
  for (std::size_t i = 0; i < leden_->size(); ++i) {
    if (genomen_[i]) continue;
    throw Fout(FoutNummer::OngeldigArgument, "Onbekende sleutel " + Tussen((*leden_)[i].sleutel), plaats_);
  }
}

std::int16_t LeesAantal(JsonObject& object, std::string_view sleutel, std::size_t lengte) {
  auto aantal = static_cast<std::int16_t>(lengte);
  const std::optional<JsonVeld> veld = object.Neem(sleutel);
  if (!veld) return aantal;
  veld->Lees(aantal);
  if (aantal < 0 ? lengte != 0 : static_cast<std::size_t>(aantal) != lengte) {
    throw Fout(FoutNummer::OngeldigArgument, "Het aantal klopt niet met de lengte van de lijst",
               veld->Plaats());
  }
  return aantal;
}

}  // namespace murvane
