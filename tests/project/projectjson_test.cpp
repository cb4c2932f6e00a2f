#include "project/projectjson.h"

#include <gtest/gtest.h>

#include <bit>
#include <nlohmann/json.hpp>
#include <random>
#include <vector>

#include "basis/fout.h"
#include "project/projectfile.h"

namespace murvane {
namespace {

std::string BytesVan(std::string_view json) {
  return ProjectBytes(ProjectUitJson(json));
}

std::string MeldingVan(std::string_view json) {
  try {
    (void)ProjectUitJson(json);
  } catch (const Fout& fout) {
    return fout.Melding();
  }
  return {};
}

std::string DubbelBytes(double getal) {
  const auto bits = std::bit_cast<std::uint64_t>(getal);
  std::string bytes;
  for (unsigned i = 0; i < 8; ++i) bytes += static_cast<char>(bits >> (8 * i) & 0xFF);
  return bytes;
}

/// `json` around the members of one record.
std::string In(std::string_view record, const std::string& leden) {
  if (record == "Elementen") return "{\"Elementen\": [{" + leden + "}]}";
  return record.empty() ? "{" + leden + "}" : "{\"" + std::string(record) + "\": {" + leden + "}}";
}

enum class Soort { Tekst, Getal, Geheel, Spectrum };

/// A field with its offset in the image of a project of one element (of none for what stands before the
/// elements) and, for a text, its length.
struct Plek {
  const char* record;
  const char* naam;
  Soort soort;
  std::size_t offset;
  std::size_t lengte = 0;
};

// Offsets: the fan from 424, the count at 610, the element from 612, the room behind one element from 612 +
// 588 = 1200.
constexpr Plek Plekken[] = {
    {"ProjectRec", "ProNaam", Soort::Tekst, 0, 80},
    {"ProjectRec", "ProNum", Soort::Tekst, 80, 12},
    {"ProjectRec", "Omschrijving", Soort::Tekst, 92, 80},
    {"ProjectRec", "Toelichting1", Soort::Tekst, 172, 80},
    {"ProjectRec", "Toelichting2", Soort::Tekst, 252, 80},
    {"ProjectRec", "Toelichting3", Soort::Tekst, 332, 80},
    {"ProjectRec", "MyDate", Soort::Tekst, 412, 10},
    {"ProjectRec", "RekenType", Soort::Geheel, 422},
    {"FanRec", "FanNaam", Soort::Tekst, 424, 80},
    {"FanRec", "Lw", Soort::Spectrum, 504},
    {"FanRec", "FanDebiet", Soort::Getal, 568},
    {"FanRec", "FanDruk", Soort::Getal, 576},
    {"FanRec", "FanToeren", Soort::Getal, 584},
    {"FanRec", "FanSchoepen", Soort::Getal, 592},
    {"FanRec", "FanVermogen", Soort::Getal, 600},
    {"FanRec", "FanType", Soort::Geheel, 608},
    {"Elementen", "Naam", Soort::Tekst, 612, 80},
    {"Elementen", "Kanaal", Soort::Tekst, 692, 80},
    {"Elementen", "demp", Soort::Spectrum, 772},
    {"Elementen", "ruis", Soort::Spectrum, 836},
    {"Elementen", "LAeq", Soort::Spectrum, 900},
    {"Elementen", "Instraling", Soort::Spectrum, 964},
    {"Elementen", "Rkanaalwand", Soort::Spectrum, 1028},
    {"Elementen", "ElementType", Soort::Geheel, 1092},
    {"Elementen", "Lengte", Soort::Getal, 1094},
    {"Elementen", "LDoorsnee", Soort::Getal, 1094},
    {"Elementen", "Debiet", Soort::Getal, 1102},
    {"Elementen", "QAftak", Soort::Getal, 1110},
    {"Elementen", "Hoogte", Soort::Getal, 1118},
    {"Elementen", "HAftak", Soort::Getal, 1118},
    {"Elementen", "Breedte", Soort::Getal, 1126},
    {"Elementen", "BAftak", Soort::Getal, 1126},
    {"Elementen", "HHoofd", Soort::Getal, 1134},
    {"Elementen", "H1Doorsnee", Soort::Getal, 1134},
    {"Elementen", "BHoofd", Soort::Getal, 1142},
    {"Elementen", "B1Doorsnee", Soort::Getal, 1142},
    {"Elementen", "HDoor", Soort::Getal, 1150},
    {"Elementen", "H2Doorsnee", Soort::Getal, 1150},
    {"Elementen", "BDoor", Soort::Getal, 1158},
    {"Elementen", "B2Doorsnee", Soort::Getal, 1158},
    {"Elementen", "Snetto", Soort::Getal, 1166},
    {"Elementen", "Weerstand", Soort::Getal, 1174},
    {"Elementen", "ElRDI", Soort::Geheel, 1182},
    {"Elementen", "RAftak", Soort::Getal, 1184},
    {"Elementen", "ElRAantal", Soort::Getal, 1192},
    // Without elements: the room from 612, FanPrognose and VrijVeld behind 270 bytes of room.
    {"RuimteRec", "RNaam", Soort::Tekst, 612, 80},
    {"RuimteRec", "RLengte", Soort::Getal, 692},
    {"RuimteRec", "RBreedte", Soort::Getal, 700},
    {"RuimteRec", "RHoogte", Soort::Getal, 708},
    {"RuimteRec", "RVolume", Soort::Getal, 716},
    {"RuimteRec", "RDI", Soort::Geheel, 724},
    {"RuimteRec", "RNagalm", Soort::Getal, 726},
    {"RuimteRec", "RNR", Soort::Getal, 734},
    {"RuimteRec", "RAantal", Soort::Getal, 742},
    {"RuimteRec", "Rkanaal", Soort::Spectrum, 750},
    {"RuimteRec", "Rplafond", Soort::Spectrum, 814},
    {"", "FanPrognose", Soort::Geheel, 882},
    {"", "VrijVeld", Soort::Geheel, 884},
};

/// A value of the field as JSON.
std::string WaardeJson(const Plek& plek) {
  switch (plek.soort) {
    case Soort::Tekst:
      return "\" x²\"";
    case Soort::Getal:
      return "-1.25";
    case Soort::Geheel:
      return "-2";
    case Soort::Spectrum:
      return "[-1.25, 0, 0, 0, 0, 0, 0, 7]";
  }
  return {};
}

/// The bytes of that value.
std::string WaardeBytes(const Plek& plek) {
  switch (plek.soort) {
    case Soort::Tekst:
      return " x\xB2" + std::string(plek.lengte - 3, ' ');
    case Soort::Getal:
      return DubbelBytes(-1.25);
    case Soort::Geheel:
      return "\xFE\xFF";
    case Soort::Spectrum:
      return DubbelBytes(-1.25) + std::string(48, '\0') + DubbelBytes(7);
  }
  return {};
}

/// The field with a value, as the only member of its record.
std::string MetVeld(const Plek& plek, std::string_view waarde) {
  std::string lid = "\"";
  lid.append(plek.naam).append("\": ").append(waarde);
  return In(plek.record, lid);
}

TEST(ProjectJson, EveryFieldHasItsNameAndItsPlaceInTheFile) {
  for (const Plek& plek : Plekken) {
    std::string verwacht = BytesVan(In(plek.record, ""));
    const std::string waarde = WaardeBytes(plek);
    verwacht.replace(plek.offset, waarde.size(), waarde);
    EXPECT_EQ(BytesVan(MetVeld(plek, WaardeJson(plek))), verwacht) << plek.naam;
  }
}

/// What a field of this kind says of a value of another.
const char* Weigering(Soort soort) {
  switch (soort) {
    case Soort::Tekst:
      return "Geen tekst";
    case Soort::Getal:
      return "Geen geldig getal";
    case Soort::Geheel:
      return "Geen geheel getal van -32768 tot en met 32767";
    case Soort::Spectrum:
      return "Geen lijst";
  }
  return "";
}

TEST(ProjectJson, EveryFieldRefusesAnotherTypeWithItsPath) {
  for (const Plek& plek : Plekken) {
    std::string pad = plek.record;
    if (pad == "Elementen") pad += "[1]";
    if (!pad.empty()) pad += ".";
    pad += plek.naam;
    std::string melding = "Fout 13 - ";
    melding.append(Weigering(plek.soort)).append(" (").append(pad).append(").");
    EXPECT_EQ(MeldingVan(MetVeld(plek, "true")), melding);
  }
}

TEST(ProjectJson, AnEmptyObjectIsABlankProjectOf886Bytes) {
  // 422 bytes of texts and the name of the fan and of the room are blanks, everything else zero.
  std::string verwacht(886, '\0');
  for (const auto& [offset, lengte] : {std::pair{0, 422}, std::pair{424, 80}, std::pair{612, 80}}) {
    verwacht.replace(static_cast<std::size_t>(offset), static_cast<std::size_t>(lengte),
                     std::string(static_cast<std::size_t>(lengte), ' '));
  }
  EXPECT_EQ(BytesVan("{}"), verwacht);
  EXPECT_EQ(BytesVan(R"({"ProjectRec": {}, "FanRec": {}, "Elementen": [], "RuimteRec": {}})"), verwacht);
}

TEST(ProjectJson, AnEmptyElementIsBlank) {
  const std::string bytes = BytesVan(R"({"Elementen": [{}, {}]})");
  ASSERT_EQ(bytes.size(), 886U + 2 * 588U);
  EXPECT_EQ(bytes.substr(610, 2), std::string("\2\0", 2));
  const std::string element = std::string(160, ' ') + std::string(428, '\0');
  EXPECT_EQ(bytes.substr(612, 1176), element + element);
}

TEST(ProjectJson, RoomTextsAreTakenExactly) {
  const std::string bytes =
      BytesVan(R"({"RuimteRec": {"RkanaalNaam": " a\u0000 ", "RplafondNaam": "€"}, "VrijVeld": 1})");
  // Behind the fixed fields of the room: 612 + 266.
  EXPECT_EQ(bytes.substr(878), std::string("\4\0 a\0 \1\0\x80\0\0\1\0", 13));
  EXPECT_EQ(BytesVan(R"({"RuimteRec": {"RkanaalNaam": null}})"), BytesVan("{}"));
}

TEST(ProjectJson, AFixedTextIsCutAtItsLengthAndNullIsNeverAssigned) {
  const Project project =
      ProjectUitJson(R"({"ProjectRec": {"ProNum": "1234567890123", "MyDate": null, "ProNaam": ""}})");
  EXPECT_EQ(project.Kop.ProNum.Heel(), "123456789012");
  EXPECT_EQ(project.Kop.MyDate, Tekst<10>());
  EXPECT_EQ(project.Kop.ProNaam, Tekst<80>(""));
}

TEST(ProjectJson, AShortSpectrumIsFilledWithZeros) {
  EXPECT_EQ(ProjectUitJson(R"({"FanRec": {"Lw": [80, 81.5]}})").Fan.Lw,
            (Spectrum{80, 81.5, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(ProjectUitJson(R"({"FanRec": {"Lw": []}})").Fan.Lw, Spectrum{});
}

TEST(ProjectJson, BothNamesOfASharedFieldMaySayTheSame) {
  const struct {
    const char *eerste, *tweede;
  } paren[] = {{"Lengte", "LDoorsnee"},  {"Hoogte", "HAftak"},     {"Breedte", "BAftak"},
               {"HHoofd", "H1Doorsnee"}, {"BHoofd", "B1Doorsnee"}, {"HDoor", "H2Doorsnee"},
               {"BDoor", "B2Doorsnee"}};
  for (const auto& paar : paren) {
    const std::string eerste = paar.eerste, tweede = paar.tweede;
    const auto beide = [&](const char* a, const char* b) {
      return std::string("{\"Elementen\": [{\"") + eerste + "\": " + a + ", \"" + tweede + "\": " + b + "}]}";
    };
    EXPECT_EQ(MeldingVan(beide("2", "2.0")), "");
    EXPECT_EQ(MeldingVan(beide("\"NaN\"", "\"NaN\"")), "");
    const std::string verschil =
        std::string("Fout 5 - Dubbel veld: ") + eerste + " en " + tweede + " verschillen (Elementen[1]).";
    EXPECT_EQ(MeldingVan(beide("2", "3")), verschil);
    EXPECT_EQ(MeldingVan(beide("0", "3")), verschil);
    EXPECT_EQ(MeldingVan(beide("3", "0")), verschil);
  }
}

TEST(ProjectJson, ASectionChangeKeepsItsOutletApartFromItsHeight) {
  const Project project = ProjectUitJson(
      R"({"Elementen": [{"ElementType": 6, "Hoogte": 1, "Breedte": 2, "H2Doorsnee": 3, "B2Doorsnee": 4}]})");
  EXPECT_EQ(project.Elementen[1].Hoogte, 1);
  EXPECT_EQ(project.Elementen[1].Breedte, 2);
  EXPECT_EQ(project.Elementen[1].HDoor, 3);
  EXPECT_EQ(project.Elementen[1].BDoor, 4);
}

/// The keys of an object in the order in which the text has them.
std::vector<std::string> SleutelsVan(const nlohmann::ordered_json& object) {
  std::vector<std::string> sleutels;
  for (const auto& lid : object.items()) sleutels.push_back(lid.key());
  return sleutels;
}

/// The keys of an element of this type as written.
std::vector<std::string> ElementSleutels(int type) {
  Project project;
  project.ElementCount = 1;
  project.Elementen[1].ElementType = static_cast<std::int16_t>(type);
  return SleutelsVan(nlohmann::ordered_json::parse(ProjectNaarJson(project))["Elementen"][0]);
}

TEST(ProjectJson, WritesEveryFieldInDeclaredOrder) {
  using Namen = std::vector<std::string>;
  const auto json = nlohmann::ordered_json::parse(ProjectNaarJson(Project()));
  EXPECT_EQ(SleutelsVan(json),
            (Namen{"ProjectRec", "FanRec", "Elementen", "RuimteRec", "FanPrognose", "VrijVeld"}));
  EXPECT_EQ(SleutelsVan(json["ProjectRec"]), (Namen{"ProNaam", "ProNum", "Omschrijving", "Toelichting1",
                                                    "Toelichting2", "Toelichting3", "MyDate", "RekenType"}));
  EXPECT_EQ(SleutelsVan(json["FanRec"]), (Namen{"FanNaam", "Lw", "FanDebiet", "FanDruk", "FanToeren",
                                                "FanSchoepen", "FanVermogen", "FanType"}));
  EXPECT_EQ(SleutelsVan(json["RuimteRec"]),
            (Namen{"RNaam", "RLengte", "RBreedte", "RHoogte", "RVolume", "RDI", "RNagalm", "RNR", "RAantal",
                   "Rkanaal", "Rplafond", "RkanaalNaam", "RplafondNaam"}));
}

TEST(ProjectJson, NamesSharedFieldsAfterTheElementType) {
  const std::vector<std::string> gewoon = {
      "Naam",   "Kanaal", "demp",      "ruis",   "LAeq",    "Instraling", "Rkanaalwand", "ElementType",
      "Lengte", "Debiet", "QAftak",    "Hoogte", "Breedte", "HHoofd",     "BHoofd",      "HDoor",
      "BDoor",  "Snetto", "Weerstand", "ElRDI",  "RAftak",  "ElRAantal"};
  std::vector<std::string> aftak = gewoon;
  aftak[11] = "HAftak", aftak[12] = "BAftak";
  std::vector<std::string> doorsnee = gewoon;
  doorsnee[8] = "LDoorsnee";
  doorsnee[13] = "H1Doorsnee", doorsnee[14] = "B1Doorsnee", doorsnee[15] = "H2Doorsnee",
  doorsnee[16] = "B2Doorsnee";
  for (const int type : {-1, 0, 3, 4, 5, 8, 9, 10, 11, 12, 99}) EXPECT_EQ(ElementSleutels(type), gewoon);
  for (const int type : {1, 2}) EXPECT_EQ(ElementSleutels(type), aftak);
  for (const int type : {6, 7}) EXPECT_EQ(ElementSleutels(type), doorsnee);
}

TEST(ProjectJson, WritesTextsTrimmedAndSpectraOnOneLine) {
  Project project;
  project.Kop.ProNaam = " Kantoor";
  project.Fan.Lw = {80, 0.1, -0.0, 0, 0, 0, 0, 1e23};
  project.Ruimte.RkanaalNaam = "Staal 1,0 mm  ";
  const std::string json = ProjectNaarJson(project);
  EXPECT_TRUE(
      json.starts_with("{\n  \"ProjectRec\": {\n    \"ProNaam\": \" Kantoor\",\n    \"ProNum\": null,\n"));
  EXPECT_NE(json.find("\n    \"Lw\": [80, 0.1, -0.0, 0, 0, 0, 0, 1e+23],\n"), std::string::npos);
  EXPECT_NE(json.find("\n    \"RkanaalNaam\": \"Staal 1,0 mm  \",\n"), std::string::npos);
  EXPECT_TRUE(json.ends_with("\n  \"FanPrognose\": 0,\n  \"VrijVeld\": 0\n}\n"));
}

TEST(ProjectJson, WritesTheCountOnlyWhenItIsNegative) {
  Project project;
  project.ElementCount = -7;
  const std::string json = ProjectNaarJson(project);
  EXPECT_NE(json.find("\n  \"ElementCount\": -7,\n  \"Elementen\": [],\n"), std::string::npos);
  EXPECT_EQ(ProjectUitJson(json).ElementCount, -7);
  project.ElementCount = 2;
  EXPECT_EQ(ProjectNaarJson(project).find("ElementCount"), std::string::npos);
}

std::string Elementen(int aantal) {
  std::string json = "{\"Elementen\": [";
  for (int i = 0; i < aantal; ++i) json += i == 0 ? "{}" : ", {}";
  return json + "]}";
}

TEST(ProjectJson, HoldsAtMost500Elements) {
  EXPECT_EQ(ProjectUitJson(Elementen(500)).ElementCount, 500);
  EXPECT_EQ(MeldingVan(Elementen(501)), "Fout 9 - De lijst is langer dan 500 (Elementen).");
  Project project;
  project.ElementCount = 501;
  try {
    (void)ProjectNaarJson(project);
    FAIL() << "501 elements were written";
  } catch (const Fout& fout) {
    EXPECT_EQ(fout.Nummer(), FoutNummer::IndexBuitenBereik);
  }
}

TEST(ProjectJson, RefusesWithThePlace) {
  const struct {
    const char *json, *melding;
  } rijen[] = {
      {"", "Fout 5 - Geen geldige JSON (regel 1, kolom 1)."},
      {"{\n\"Elementen\": [}", "Fout 5 - Geen geldige JSON (regel 2, kolom 15)."},
      {"[]", "Fout 13 - Geen object."},
      {R"({"elementen": []})", "Fout 5 - Onbekende sleutel \"elementen\"."},
      {R"({"ProjectRec": {"Naam": ""}})", "Fout 5 - Onbekende sleutel \"Naam\" (ProjectRec)."},
      {R"({"FanRec": {"LW": []}})", "Fout 5 - Onbekende sleutel \"LW\" (FanRec)."},
      {R"({"RuimteRec": {"LpGalm": 1}})", "Fout 5 - Onbekende sleutel \"LpGalm\" (RuimteRec)."},
      {R"({"Elementen": [{}, {"Hoogte ": 1}]})", "Fout 5 - Onbekende sleutel \"Hoogte \" (Elementen[2])."},
      {R"({"Elementen": [{}, {"Debiet": 1, "Debiet": 1}]})",
       "Fout 5 - Dubbele sleutel \"Debiet\" (Elementen[2])."},
      {R"({"ProjectRec": []})", "Fout 13 - Geen object (ProjectRec)."},
      {R"({"FanRec": null})", "Fout 13 - Geen object (FanRec)."},
      {R"({"RuimteRec": 1})", "Fout 13 - Geen object (RuimteRec)."},
      {R"({"Elementen": {}})", "Fout 13 - Geen lijst (Elementen)."},
      {R"({"Elementen": [{}, 3]})", "Fout 13 - Geen object (Elementen[2])."},
      {R"({"Elementen": [{}, {"Hoogte": "400"}]})", "Fout 13 - Geen geldig getal (Elementen[2].Hoogte)."},
      {R"({"Elementen": [{}, {"HAftak": "400"}]})", "Fout 13 - Geen geldig getal (Elementen[2].HAftak)."},
      {R"({"Elementen": [{"demp": [1, [2]]}]})", "Fout 13 - Geen geldig getal (Elementen[1].demp[2])."},
      {R"({"Elementen": [{"demp": [1, 2, 3, 4, 5, 6, 7, 8, 9]}]})",
       "Fout 9 - De lijst is langer dan 8 (Elementen[1].demp)."},
      {R"({"Elementen": [{"demp": [0, 1e400]}]})", "Fout 6 - Het getal is te groot (Elementen[1].demp[2])."},
      {R"({"ProjectRec": {"RekenType": 32768}})",
       "Fout 13 - Geen geheel getal van -32768 tot en met 32767 (ProjectRec.RekenType)."},
      {R"({"ProjectRec": {"RekenType": 1.5}})",
       "Fout 13 - Geen geheel getal van -32768 tot en met 32767 (ProjectRec.RekenType)."},
      {R"({"ElementCount": 1})", "Fout 5 - Het aantal klopt niet met de lengte van de lijst (ElementCount)."},
      {R"({"Elementen": [{}], "ElementCount": 0})",
       "Fout 5 - Het aantal klopt niet met de lengte van de lijst (ElementCount)."},
      {R"({"Elementen": [{}], "ElementCount": -1})",
       "Fout 5 - Het aantal klopt niet met de lengte van de lijst (ElementCount)."},
  };
  for (const auto& rij : rijen) EXPECT_EQ(MeldingVan(rij.json), rij.melding) << rij.json;
  EXPECT_EQ(MeldingVan("{\"RuimteRec\": {\"RplafondNaam\": \"" + std::string(65536, 'x') + "\"}}"),
            "Fout 5 - De tekst is langer dan 65535 tekens (RuimteRec.RplafondNaam).");
  const std::string teken = MeldingVan(R"({"Elementen": [{}, {"Naam": "☃"}]})");
  EXPECT_TRUE(teken.starts_with("Fout 5 - ") && teken.ends_with("(Elementen[2].Naam).")) << teken;
}

// Lossless, whatever the bytes.

class Beeld {
 public:
  explicit Beeld(std::uint64_t zaad) : toeval_(zaad) {}

  /// A random project image with this many elements and room texts of these lengths.
  std::string Project(std::int16_t elementen, std::size_t kanaal, std::size_t plafond) {
    std::string uit = Velden({80, 12, 80, 80, 80, 80, 10}, 2) + Velden({80}, 13 * 8) + Bytes(2);
    uit += Geheel(static_cast<std::uint16_t>(elementen));
    for (int i = 0; i < elementen; ++i) {
      uit +=
          Velden({80, 80}, 40 * 8) + Geheel(static_cast<std::uint16_t>(toeval_() % 12)) + Velden({}, 11 * 8);
      uit += Bytes(2) + Velden({}, 16);
    }
    uit += Velden({80}, 32) + Bytes(2) + Velden({}, 24 + 128);
    uit += Geheel(static_cast<std::uint16_t>(kanaal)) + Bytes(kanaal);
    uit += Geheel(static_cast<std::uint16_t>(plafond)) + Bytes(plafond);
    return uit + Bytes(4);
  }

 private:
  static std::string Geheel(std::uint16_t getal) {
    return {static_cast<char>(getal & 0xFF), static_cast<char>(getal >> 8)};
  }

  std::string Bytes(std::size_t n) {
    std::string uit(n, '\0');
    for (char& c : uit) c = static_cast<char>(toeval_() & 0xFF);
    return uit;
  }

  /// A text of length n: any bytes, ending in blanks or NULs more often than chance would have it.
  std::string Tekst(std::size_t n) {
    std::string uit = Bytes(n);
    const std::size_t vanaf = toeval_() % (n + 1);
    const std::uint64_t soort = toeval_() % 4;
    if (soort == 0) return std::string(n, '\0');
    if (soort < 3)
      std::fill(uit.begin() + static_cast<std::ptrdiff_t>(vanaf), uit.end(), soort == 1 ? ' ' : '\0');
    return uit;
  }

  /// Texts, then that many bytes of numbers, the odd ones among them.
  std::string Velden(std::initializer_list<std::size_t> teksten, std::size_t getalBytes) {
    std::string uit;
    for (const std::size_t n : teksten) uit += Tekst(n);
    if (getalBytes % 8 != 0) return uit + Bytes(getalBytes);
    constexpr std::uint64_t vreemd[] = {0,
                                        0x8000000000000000,  // -0
                                        1,                   // least denormal
                                        0x800FFFFFFFFFFFFF,  // largest denormal, negative
                                        0x7FEFFFFFFFFFFFFF,  // largest number
                                        0x7FF0000000000000,
                                        0xFFF0000000000000,
                                        0x7FF0000000000001,  // signalling
                                        0x7FF8000000000000,
                                        0xFFF8000000000000,
                                        0x7FFFFFFFFFFFFFFF};
    for (std::size_t i = 0; i < getalBytes / 8; ++i) {
      const std::uint64_t keuze = toeval_() % (2 * std::size(vreemd));
      uit += keuze < std::size(vreemd) ? DubbelBytes(std::bit_cast<double>(vreemd[keuze])) : Bytes(8);
    }
    return uit;
  }

  std::mt19937_64 toeval_;
};

void VerwachtZonderVerlies(const std::string& bytes) {
  const Project project = ProjectUitBytes(bytes);
  ASSERT_EQ(ProjectBytes(project), bytes);
  const std::string json = ProjectNaarJson(project);
  EXPECT_TRUE(nlohmann::json::accept(json));
  EXPECT_EQ(BytesVan(json), bytes);
  EXPECT_EQ(ProjectNaarJson(ProjectUitJson(json)), json);
}

TEST(ProjectJson, AnyFileImageComesBackByteForByte) {
  Beeld beeld(20240518);
  for (std::int16_t i = 0; i < 60; ++i) {
    SCOPED_TRACE(i);
    VerwachtZonderVerlies(beeld.Project(static_cast<std::int16_t>(i % 5),
                                        static_cast<std::size_t>(i * 7 % 300),
                                        static_cast<std::size_t>(i * 3 % 41)));
  }
  for (const int aantal : {-1, -500, -32768}) {
    SCOPED_TRACE(aantal);
    VerwachtZonderVerlies(beeld.Project(static_cast<std::int16_t>(aantal), 3, 0));
  }
  VerwachtZonderVerlies(beeld.Project(500, 65535, 65535));
}

TEST(ProjectJson, ANeverAssignedProjectComesBackByteForByte) {
  VerwachtZonderVerlies(std::string(886, '\0'));
}

TEST(ProjectJson, EveryByteValueOfATextComesBack) {
  std::string bytes(886, '\0');
  for (std::size_t i = 0; i < 256; ++i) {
    // ProNaam: the byte in front, between, and at the end of the text, each once.
    for (const std::size_t plek : {std::size_t{0}, std::size_t{1}, std::size_t{79}}) {
      std::string naam(80, 'x');
      naam[plek] = static_cast<char>(i);
      bytes.replace(0, 80, naam);
      EXPECT_EQ(BytesVan(ProjectNaarJson(ProjectUitBytes(bytes))), bytes) << i;
    }
  }
}

}  // namespace
}  // namespace murvane
