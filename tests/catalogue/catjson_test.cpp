#include "catalogue/catjson.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <random>

#include "basis/fout.h"

namespace murvane {
namespace {

std::string BytesVan(const CatalogusInhoud& inhoud) {
  return std::visit([](const auto& catalogus) { return CatalogusBytes(catalogus); }, inhoud.Inhoud);
}
std::string BytesVan(std::string_view json) {
  return BytesVan(CatalogusUitJson(json));
}

template <typename Doe>
std::string Melding(Doe doe) {
  try {
    doe();
  } catch (const Fout& fout) {
    return fout.Melding();
  }
  return {};
}
std::string MeldingVan(std::string_view json) {
  return Melding([json] { (void)CatalogusUitJson(json); });
}

CatalogusInhoud UitBytes(CatalogusSoort soort, std::string_view bytes) {
  if (soort == CatalogusSoort::Kanaalelementen) return {soort, ElementenUitBytes(bytes)};
  return {soort, SpectraUitBytes(bytes)};
}

constexpr struct {
  CatalogusSoort soort;
  const char *lijst, *aantal;
} Soorten[] = {
    {CatalogusSoort::Kanaalelementen, "CatElementen", "AantalElementen"},
    {CatalogusSoort::Ventilatoren, "CatFans", "AantalFans"},
    {CatalogusSoort::Luchtkanalen, "CatRduct", "AantalRduct"},
    {CatalogusSoort::Plafonds, "CatRplaf", "AantalRplaf"},
};

TEST(CatalogusJson, WritesAnElementCatalogue) {
  ElementCatalogus catalogus;
  catalogus.Aantal = 2;
  catalogus.Records[1].CatNaam = "Demper 1 m";
  catalogus.Records[1].CatDemp = {1, 2.5, 0, 0, 0, 0, 0, 9};
  catalogus.Records[1].CatRuis = {-0.0, 0.1, 0, 0, 0, 0, 0, 0};
  catalogus.Records[1].PerMeter = 1;
  catalogus.Records[1].CatExtra = "\xB2";
  EXPECT_EQ(CatalogusNaarJson({CatalogusSoort::Kanaalelementen, catalogus}),
            "{\n"
            "  \"CatElementen\": [\n"
            "    {\n"
            "      \"CatNaam\": \"Demper 1 m\",\n"
            "      \"CatDemp\": [1, 2.5, 0, 0, 0, 0, 0, 9],\n"
            "      \"CatRuis\": [-0.0, 0.1, 0, 0, 0, 0, 0, 0],\n"
            "      \"PerMeter\": 1,\n"
            "      \"CatExtra\": \"²\"\n"
            "    },\n"
            "    {\n"
            "      \"CatNaam\": null,\n"
            "      \"CatDemp\": [0, 0, 0, 0, 0, 0, 0, 0],\n"
            "      \"CatRuis\": [0, 0, 0, 0, 0, 0, 0, 0],\n"
            "      \"PerMeter\": 0,\n"
            "      \"CatExtra\": null\n"
            "    }\n"
            "  ]\n"
            "}\n");
}

TEST(CatalogusJson, EachSpectrumCatalogueHasItsOwnKey) {
  for (const auto& s : Soorten) {
    if (s.soort == CatalogusSoort::Kanaalelementen) continue;
    SpectrumCatalogus catalogus;
    catalogus.Aantal = 1;
    catalogus.Records[1].SpecNaam = "a";
    catalogus.Records[1].SpecWaarde = {1, 2, 3, 4, 5, 6, 7, 8};
    EXPECT_EQ(CatalogusNaarJson({s.soort, catalogus}),
              "{\n  \"" + std::string(s.lijst) +
                  "\": [\n    {\n      \"SpecNaam\": \"a\",\n"
                  "      \"SpecWaarde\": [1, 2, 3, 4, 5, 6, 7, 8]\n    }\n  ]\n}\n");
  }
}

TEST(CatalogusJson, EveryFieldHasItsPlaceInTheFile) {
  // Offsets in the file: 2 for the count, then those of the record.
  const std::string leeg =
      std::string("\1\0", 2) + std::string(80, ' ') + std::string(130, '\0') + std::string(80, ' ');
  const std::string een = std::string("\0\0\0\0\0\0\xF0\x3F", 8);  // 1.0
  const struct {
    const char* veld;
    std::size_t offset;
    std::string bytes;
  } rijen[] = {
      {R"("CatNaam": "a²")", 2, "a\xB2"},  {R"("CatDemp": [1])", 82, een},
      {R"("CatRuis": [0, 1])", 154, een},  {R"("PerMeter": -2)", 210, "\xFE\xFF"},
      {R"("CatExtra": "€")", 212, "\x80"},
  };
  EXPECT_EQ(BytesVan(R"({"CatElementen": [{}]})"), leeg);
  for (const auto& rij : rijen) {
    std::string verwacht = leeg;
    verwacht.replace(rij.offset, rij.bytes.size(), rij.bytes);
    EXPECT_EQ(BytesVan("{\"CatElementen\": [{" + std::string(rij.veld) + "}]}"), verwacht) << rij.veld;
  }
  const std::string spectrum =
      std::string("\1\0", 2) + "b" + std::string(79, ' ') + een + std::string(56, '\0');
  for (const auto& s : Soorten) {
    if (s.soort == CatalogusSoort::Kanaalelementen) continue;
    const CatalogusInhoud inhoud =
        CatalogusUitJson("{\"" + std::string(s.lijst) + R"(": [{"SpecWaarde": [1], "SpecNaam": "b"}]})");
    EXPECT_EQ(inhoud.Soort, s.soort);
    EXPECT_EQ(BytesVan(inhoud), spectrum);
  }
}

TEST(CatalogusJson, WritesTheCountOnlyWhenItIsNegative) {
  for (const auto& s : Soorten) {
    const std::string bytes = "\xFD\xFF";  // -3
    const std::string json = CatalogusNaarJson(UitBytes(s.soort, bytes));
    EXPECT_EQ(json, "{\n  \"" + std::string(s.aantal) + "\": -3,\n  \"" + s.lijst + "\": []\n}\n");
    EXPECT_EQ(BytesVan(json), bytes);
    EXPECT_EQ(CatalogusNaarJson(UitBytes(s.soort, std::string(2, '\0'))),
              "{\n  \"" + std::string(s.lijst) + "\": []\n}\n");
  }
}

TEST(CatalogusJson, AnyFileComesBackByteForByte) {
  std::mt19937_64 toeval(20240519);
  for (const auto& s : Soorten) {
    const std::size_t record = s.soort == CatalogusSoort::Kanaalelementen ? 290 : 144;
    for (const std::size_t aantal : {0U, 1U, 2U, 11U, 60U, 500U}) {
      std::string bytes = {static_cast<char>(aantal & 0xFF), static_cast<char>(aantal >> 8)};
      for (std::size_t i = 0; i < aantal * record; ++i) bytes += static_cast<char>(toeval() & 0xFF);
      const std::string json = CatalogusNaarJson(UitBytes(s.soort, bytes));
      EXPECT_TRUE(nlohmann::json::accept(json));
      const CatalogusInhoud terug = CatalogusUitJson(json);
      EXPECT_EQ(terug.Soort, s.soort);
      EXPECT_TRUE(BytesVan(terug) == bytes) << s.lijst << " " << aantal;
    }
  }
}

TEST(CatalogusJson, OddNumbersAndTextsComeBack) {
  // -0, a signalling NaN, infinity, a denormal; a text of NULs, one that ends in NULs.
  std::string bytes = std::string("\2\0", 2) + std::string(80, '\0');
  bytes += std::string(
      "\0\0\0\0\0\0\0\x80"
      "\1\0\0\0\0\0\xF0\x7F"
      "\0\0\0\0\0\0\xF0\xFF"
      "\1\0\0\0\0\0\0\0",
      32);
  bytes += std::string(32, '\0') + "naam" + std::string(76, '\0') + std::string(64, '\0');
  const std::string json = CatalogusNaarJson(UitBytes(CatalogusSoort::Plafonds, bytes));
  EXPECT_NE(json.find("[-0.0, \"NaN:7FF0000000000001\", \"-Infinity\", 5e-324, 0, 0, 0, 0]"),
            std::string::npos);
  EXPECT_EQ(BytesVan(json), bytes);
}

std::string Records(int aantal) {
  std::string json = "{\"CatRplaf\": [";
  for (int i = 0; i < aantal; ++i) json += i == 0 ? "{}" : ", {}";
  return json + "]}";
}

TEST(CatalogusJson, HoldsAtMost500Records) {
  EXPECT_EQ(std::get<SpectrumCatalogus>(CatalogusUitJson(Records(500)).Inhoud).Aantal, 500);
  EXPECT_EQ(MeldingVan(Records(501)), "Fout 9 - De lijst is langer dan 500 (CatRplaf).");
  SpectrumCatalogus catalogus;
  catalogus.Aantal = 501;
  EXPECT_EQ(Melding([&] {
              (void)CatalogusNaarJson({CatalogusSoort::Plafonds, catalogus});
            }),
            "Fout 9 - Index buiten het bereik.");
}

TEST(CatalogusJson, RefusesWithThePlace) {
  const std::string ontbreekt = "Fout 5 - CatElementen, CatFans, CatRduct of CatRplaf ontbreekt.";
  const struct {
    std::string json, melding;
  } rijen[] = {
      {"{", "Fout 5 - Geen geldige JSON (regel 1, kolom 2)."},
      {"[]", "Fout 13 - Geen object."},
      {"{}", ontbreekt},
      {R"({"Elementen": []})", "Fout 5 - Onbekende sleutel \"Elementen\"."},
      {R"({"CatFans": [], "CatRduct": []})", "Fout 5 - Onbekende sleutel \"CatRduct\"."},
      {R"({"CatFans": [], "AantalRduct": 0})", "Fout 5 - Onbekende sleutel \"AantalRduct\"."},
      {R"({"CatFans": {}})", "Fout 13 - Geen lijst (CatFans)."},
      {R"({"CatFans": [{}, 1]})", "Fout 13 - Geen object (CatFans[2])."},
      {R"({"CatFans": [{"CatNaam": ""}]})", "Fout 5 - Onbekende sleutel \"CatNaam\" (CatFans[1])."},
      {R"({"CatElementen": [{}, {"SpecNaam": ""}]})",
       "Fout 5 - Onbekende sleutel \"SpecNaam\" (CatElementen[2])."},
      {R"({"CatElementen": [{"PerMeter": true}]})",
       "Fout 13 - Geen geheel getal van -32768 tot en met 32767 (CatElementen[1].PerMeter)."},
      {R"({"CatElementen": [{"CatNaam": 1}]})", "Fout 13 - Geen tekst (CatElementen[1].CatNaam)."},
      {R"({"CatElementen": [{"CatExtra": 1}]})", "Fout 13 - Geen tekst (CatElementen[1].CatExtra)."},
      {R"({"CatElementen": [{"CatDemp": 1}]})", "Fout 13 - Geen lijst (CatElementen[1].CatDemp)."},
      {R"({"CatElementen": [{"CatRuis": ["a"]}]})",
       "Fout 13 - Geen geldig getal (CatElementen[1].CatRuis[1])."},
      {R"({"CatRduct": [{"SpecWaarde": [1, 2, 3, 4, 5, 6, 7, 8, 9]}]})",
       "Fout 9 - De lijst is langer dan 8 (CatRduct[1].SpecWaarde)."},
      {R"({"CatRduct": [{"SpecWaarde": [1e999]}]})",
       "Fout 6 - Het getal is te groot (CatRduct[1].SpecWaarde[1])."},
      {R"({"CatRduct": [], "AantalRduct": 1})",
       "Fout 5 - Het aantal klopt niet met de lengte van de lijst (AantalRduct)."},
      {R"({"CatRduct": [], "CatRduct": []})", "Fout 5 - Dubbele sleutel \"CatRduct\"."},
  };
  for (const auto& rij : rijen) EXPECT_EQ(MeldingVan(rij.json), rij.melding) << rij.json;
}

}  // namespace
}  // namespace murvane
