#include "tests/help/bladen.h"

#include <algorithm>
#include <filesystem>
#include <sstream>

#include "tests/hulp/bestanden.h"
#include "tests/hulp/paden.h"

namespace murvane::proef {

namespace {

constexpr std::pair<std::string_view, std::string_view> Entiteiten[] = {
    {"&lt;", "<"},          {"&gt;", ">"},          {"&nbsp;", " "},        {"&minus;", "\u2212"},
    {"&middot;", "\u00B7"}, {"&quot;", "\""},       {"&larr;", "\u2190"},   {"&rarr;", "\u2192"},
    {"&#x27;", "'"},        {"&eacute;", "\u00E9"}, {"&euml;", "\u00EB"},   {"&iuml;", "\u00EF"},
    {"&oacute;", "\u00F3"}, {"&ouml;", "\u00F6"},   {"&times;", "\u00D7"},  {"&sup2;", "\u00B2"},
    {"&sup3;", "\u00B3"},   {"&ndash;", "\u2013"},  {"&rsaquo;", "\u203A"}, {"&Delta;", "\u0394"},
    {"&alpha;", "\u03B1"},  {"&theta;", "\u03B8"},  {"&pi;", "\u03C0"},     {"&radic;", "\u221A"},
    {"&amp;", "&"}};

std::string ZonderEntiteiten(std::string tekst) {
  for (const auto& [code, teken] : Entiteiten) {
    for (std::size_t i = 0; (i = tekst.find(code, i)) != std::string::npos; i += teken.size())
      tekst.replace(i, code.size(), teken);
  }
  return tekst;
}

bool IsNaam(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-';
}

Merk LeesMerk(const std::string& html, std::size_t begin) {
  Merk merk;
  std::size_t i = begin + 1;
  while (IsNaam(html[i])) merk.Naam += html[i++];
  while (i < html.size() && html[i] != '>') {
    std::string naam;
    while (IsNaam(html[i])) naam += html[i++];
    if (naam.empty()) {
      ++i;
    } else if (html.compare(i, 2, "=\"") == 0) {
      const std::size_t einde = html.find('"', i + 2);
      merk.Kenmerken[naam] = ZonderEntiteiten(html.substr(i + 2, einde - i - 2));
      i = einde + 1;
    } else {
      merk.Kenmerken[naam] = "";
    }
  }
  merk.Eind = i + 1;
  return merk;
}

std::vector<Blad> LeesBladen() {
  std::vector<Blad> uit;
  for (const auto& bestand : std::filesystem::directory_iterator(proef::BronMap() / "help")) {
    if (bestand.path().extension() != ".html") continue;
    const std::string html = Lees(bestand.path());
    uit.push_back({bestand.path().filename().string(), html, Merken(html)});
  }
  std::sort(uit.begin(), uit.end(), [](const Blad& a, const Blad& b) { return a.Bestand < b.Bestand; });
  return uit;
}

}  // namespace

std::vector<Merk> Merken(const std::string& html) {
  std::vector<Merk> uit;
  for (std::size_t i = 0; (i = html.find('<', i)) != std::string::npos; ++i) {
    if (i + 1 < html.size() && IsNaam(html[i + 1])) uit.push_back(LeesMerk(html, i));
  }
  return uit;
}

std::string ZonderMerken(std::string_view html) {
  std::string uit;
  bool binnen = false;
  for (const char c : html) {
    if (c == '<') binnen = true;
    if (!binnen) uit += c;
    if (c == '>') binnen = false;
  }
  return ZonderEntiteiten(uit);
}

std::string Gelezen(const std::string& tekst) {
  std::istringstream in(tekst);
  std::string uit;
  for (std::string woord; in >> woord;) uit += (uit.empty() ? "" : " ") + woord;
  return uit;
}

std::string Blad::Binnen(const Merk& merk) const {
  return Html.substr(merk.Eind, Html.find("</" + merk.Naam + ">", merk.Eind) - merk.Eind);
}

std::string Blad::Tekst(const Merk& merk) const {
  return ZonderMerken(Binnen(merk));
}

bool Blad::HeeftAnker(const std::string& naam) const {
  return std::any_of(Merken.begin(), Merken.end(),
                     [&naam](const Merk& merk) { return merk.Kenmerk("id") == naam; });
}

const std::vector<Blad>& Bladen() {
  static const std::vector<Blad> bladen = LeesBladen();
  return bladen;
}

const Blad* ZoekBlad(const std::string& bestand) {
  const auto blad = std::find_if(Bladen().begin(), Bladen().end(),
                                 [&bestand](const Blad& een) { return een.Bestand == bestand; });
  return blad == Bladen().end() ? nullptr : &*blad;
}

const std::string& AlleTekst() {
  static const std::string tekst = [] {
    std::string uit;
    for (const Blad& blad : Bladen()) uit += Gelezen(ZonderMerken(blad.Html)) + " ";
    return uit;
  }();
  return tekst;
}

}  // namespace murvane::proef
