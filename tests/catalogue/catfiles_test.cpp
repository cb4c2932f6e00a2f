#include "catalogue/catfiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "basis/bestand.h"
#include "tests/hulp/beeld.h"
#include "tests/hulp/bestanden.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using proef::BestandVan;
using proef::I16;
using proef::Keurder;
using proef::KleinEerst;
using proef::Lees;
using proef::NummerVan;
using proef::Schijfgrens;
using proef::Schrijf;
using proef::TijdelijkeMap;
using proef::Toeval;
using proef::Vuller;
using proef::Zet;
using testing::ElementsAre;
using testing::IsEmpty;

// The offsets of both records, each written out.

template <typename Stap>
void Velden(CatElementRec& rec, std::size_t begin, Stap&& stap) {
  stap(begin + 0, rec.CatNaam);
  stap(begin + 80, rec.CatDemp);
  stap(begin + 144, rec.CatRuis);
  stap(begin + 208, rec.PerMeter);
  stap(begin + 210, rec.CatExtra);
}

template <typename Stap>
void Velden(SpectrumRec& rec, std::size_t begin, Stap&& stap) {
  stap(begin + 0, rec.SpecNaam);
  stap(begin + 80, rec.SpecWaarde);
}

/// What the tests need to know of each of the two kinds of file.
struct ElementSoort {
  using Cat = ElementCatalogus;
  static constexpr std::size_t Lengte = 290;
  static Cat UitBytes(std::string_view bytes) { return ElementenUitBytes(bytes); }
  static Cat Lezen(const fs::path& pad) { return LeesElementen(pad); }
};
struct SpectrumSoort {
  using Cat = SpectrumCatalogus;
  static constexpr std::size_t Lengte = 144;
  static Cat UitBytes(std::string_view bytes) { return SpectraUitBytes(bytes); }
  static Cat Lezen(const fs::path& pad) { return LeesSpectra(pad); }
};

template <typename Soort>
class CatalogusBestand : public testing::Test {
 protected:
  using Cat = typename Soort::Cat;
  static constexpr std::size_t Lengte = Soort::Lengte;

  struct Paar {
    Cat catalogus;
    std::string beeld;
  };

  template <typename Stap>
  static void AlleVelden(Cat& catalogus, Stap&& stap) {
    for (std::size_t k = 1; k <= static_cast<std::size_t>(catalogus.Aantal); ++k)
      Velden(catalogus.Records[k], 2 + (k - 1) * Lengte, stap);
  }

  /// A catalogue in which every field has a value of its own, and its image made by hand.
  static Paar Voorbeeld(int aantal) {
    Paar uit;
    uit.catalogus.Aantal = static_cast<std::int16_t>(aantal);
    Zet(uit.beeld, 0, I16(aantal));
    AlleVelden(uit.catalogus, Vuller{uit.beeld});
    return uit;
  }

  /// `aanwezig` records of NULs under a count of its own.
  static std::string Nullen(int aantal, std::size_t aanwezig) {
    return I16(aantal) + std::string(aanwezig * Lengte, '\0');
  }

  static int Ontleed(std::string_view bytes) {
    return NummerVan([&] { return Soort::UitBytes(bytes); });
  }
  static int Bewaar(const Cat& catalogus, const fs::path& pad) {
    return NummerVan([&] {
      SchrijfCatalogus(catalogus, pad);
      return 0;
    });
  }
};

struct SoortNaam {
  template <typename Soort>
  static std::string GetName(int) {
    return Soort::Lengte == 290 ? "Element" : "Spectrum";
  }
};
using Soorten = testing::Types<ElementSoort, SpectrumSoort>;
TYPED_TEST_SUITE(CatalogusBestand, Soorten, SoortNaam);

TYPED_TEST(CatalogusBestand, PutsEveryFieldAtItsOffset) {
  for (const int aantal : {0, 1, 2, 11, 12}) {
    const auto [catalogus, beeld] = TestFixture::Voorbeeld(aantal);
    EXPECT_EQ(beeld.size(), 2 + static_cast<std::size_t>(aantal) * this->Lengte);
    EXPECT_EQ(CatalogusBytes(catalogus), beeld) << aantal;
  }
}

TYPED_TEST(CatalogusBestand, FindsEveryFieldAtItsOffset) {
  for (const int aantal : {1, 2, 11, 12}) {
    auto gelezen = TypeParam::UitBytes(TestFixture::Voorbeeld(aantal).beeld);
    EXPECT_EQ(gelezen.Aantal, aantal);
    Keurder keurder;
    TestFixture::AlleVelden(gelezen, keurder);
    EXPECT_EQ(keurder.Anders, -1);
  }
}

TYPED_TEST(CatalogusBestand, ReadsAsManyRecordsAsTheCountSays) {
  constexpr int TeVeel = 9, TeKort = 62;
  const struct {
    int aantal;
    std::size_t aanwezig;
    int nummer;
  } rijen[] = {
      {0, 0, 0},          {1, 1, 0},          {11, 11, 0},          {500, 500, 0},
      {501, 500, TeVeel}, {501, 501, TeVeel}, {32767, 600, TeVeel}, {501, 499, TeKort},
      {32767, 0, TeKort}, {500, 499, TeKort}, {1, 0, TeKort},
  };
  for (const auto& rij : rijen) {
    const std::string beeld = TestFixture::Nullen(rij.aantal, rij.aanwezig);
    EXPECT_EQ(TestFixture::Ontleed(beeld), rij.nummer) << rij.aantal << " of " << rij.aanwezig;
    if (rij.nummer == 0) {
      EXPECT_EQ(TypeParam::UitBytes(beeld).Aantal, rij.aantal);
      EXPECT_EQ(CatalogusBytes(TypeParam::UitBytes(beeld)), beeld);
    }
  }
}

TYPED_TEST(CatalogusBestand, ReadsNoRecordsForACountOfZeroOrBelowAndKeepsIt) {
  for (const int aantal : {0, -1, -32768}) {
    const std::string beeld = TestFixture::Nullen(aantal, 0);
    const auto catalogus = TypeParam::UitBytes(beeld + std::string(1000, 'x'));
    EXPECT_EQ(catalogus.Aantal, aantal);
    EXPECT_EQ(CatalogusBytes(catalogus), beeld);
    auto eerste = catalogus;
    eerste.Aantal = 1;
    EXPECT_EQ(CatalogusBytes(eerste).substr(2), std::string(this->Lengte, '\0'));
  }
}

TYPED_TEST(CatalogusBestand, IgnoresWhatStandsBehindTheLastRecord) {
  const std::string beeld = TestFixture::Voorbeeld(3).beeld;
  for (const std::string& staart : {std::string("x"), std::string(this->Lengte, '\xFF'), beeld})
    EXPECT_EQ(CatalogusBytes(TypeParam::UitBytes(beeld + staart)), beeld);
}

TYPED_TEST(CatalogusBestand, RefusesAnImageThatIsCutAnywhere) {
  const std::string beeld = TestFixture::Voorbeeld(3).beeld;
  for (std::size_t n = 0; n < beeld.size(); ++n) ASSERT_EQ(TestFixture::Ontleed(beeld.substr(0, n)), 62) << n;
  EXPECT_EQ(TestFixture::Ontleed(beeld), 0);
}

TYPED_TEST(CatalogusBestand, RefusesToWriteACountAbove500) {
  for (const int aantal : {501, 32767}) {
    typename TypeParam::Cat catalogus;
    catalogus.Aantal = static_cast<std::int16_t>(aantal);
    EXPECT_EQ(NummerVan([&] { return CatalogusBytes(catalogus); }), 9);
  }
}

TYPED_TEST(CatalogusBestand, NeitherWritesNorReadsRecordZero) {
  auto [catalogus, beeld] = TestFixture::Voorbeeld(2);
  catalogus.Records[0] = catalogus.Records[1];
  catalogus.Records[3] = catalogus.Records[1];
  EXPECT_EQ(CatalogusBytes(catalogus), beeld);
  const auto gelezen = TypeParam::UitBytes(beeld);
  ASSERT_EQ(gelezen.Records.size(), 501U);
  for (const std::size_t plaats : {0U, 3U, 500U}) {
    typename TypeParam::Cat een;
    een.Aantal = 1;
    een.Records[1] = gelezen.Records[plaats];
    EXPECT_EQ(CatalogusBytes(een).substr(2), std::string(this->Lengte, '\0')) << plaats;
  }
}

TYPED_TEST(CatalogusBestand, CarriesEveryBitOfANumber) {
  const std::uint64_t rijen[] = {0x8000000000000000, 0x7FF0000000000000, 0xFFF0000000000000,
                                 0x7FF8000000000000, 0x7FF0000000000001, 0x7FFFDEADBEEF0123,
                                 0x0000000000000001, 0x7FEFFFFFFFFFFFFF};
  for (const std::uint64_t bits : rijen) {
    std::string beeld = TestFixture::Nullen(2, 2);
    for (const std::size_t plaats : {2U + 80, 2U + 136, 2U + static_cast<unsigned>(this->Lengte) + 88})
      Zet(beeld, plaats, KleinEerst(bits, 8));
    EXPECT_EQ(CatalogusBytes(TypeParam::UitBytes(beeld)), beeld) << std::hex << bits;
  }
}

TYPED_TEST(CatalogusBestand, CarriesEveryByteOfAName) {
  std::string beeld = TestFixture::Nullen(4, 4);
  for (std::size_t i = 0; i < 256; ++i) beeld[2 + i / 64 * this->Lengte + i % 64] = static_cast<char>(i);
  EXPECT_EQ(CatalogusBytes(TypeParam::UitBytes(beeld)), beeld);
}

TYPED_TEST(CatalogusBestand, GivesAnyImageBack) {
  std::mt19937 bron(20260102);
  for (int ronde = 0; ronde < 200; ++ronde) {
    const int aantal = static_cast<int>(bron() % 30) - 2;  // -2 to 27
    const std::size_t records = aantal < 0 ? 0 : static_cast<std::size_t>(aantal);
    const std::string beeld = I16(aantal) + Toeval(bron, records * this->Lengte);
    EXPECT_EQ(CatalogusBytes(TypeParam::UitBytes(beeld + Toeval(bron, bron() % 400))), beeld)
        << "round " << ronde;
  }
}

// Files.

TYPED_TEST(CatalogusBestand, IsReadFromAFileThatIsNamedWhenItCannotBe) {
  const TijdelijkeMap map;
  const std::string beeld = TestFixture::Voorbeeld(12).beeld;
  Schrijf(map / "goed é.dat", beeld + "een oude staart");
  Schrijf(map / "kort.dat", beeld.substr(0, beeld.size() - 1));
  Schrijf(map / "veel.dat", TestFixture::Nullen(501, 501));
  Schrijf(map / "leeg.dat", "");
  EXPECT_EQ(CatalogusBytes(TypeParam::Lezen(map / "goed é.dat")), beeld);
  const struct {
    fs::path pad;
    int nummer;
  } rijen[] = {{map / "kort.dat", 62},           {map / "veel.dat", 9},
               {map / "leeg.dat", 62},           {map / "is er niet.dat", 53},
               {map / "geen map" / "a.dat", 76}, {map.Pad(), 75}};
  for (const auto& rij : rijen) {
    EXPECT_EQ(NummerVan([&] { return TypeParam::Lezen(rij.pad); }), rij.nummer) << rij.pad;
    EXPECT_EQ(BestandVan([&] { return TypeParam::Lezen(rij.pad); }), PadTekst(rij.pad));
  }
}

TYPED_TEST(CatalogusBestand, LeavesTheCatalogueInMemoryWhenTheFileIsCutAnywhere) {
  const TijdelijkeMap map;
  const std::string beeld = TestFixture::Voorbeeld(2).beeld;
  auto [catalogus, was] = TestFixture::Voorbeeld(3);
  for (std::size_t n = 0; n < beeld.size(); ++n) {
    Schrijf(map / "a.dat", beeld.substr(0, n));
    ASSERT_EQ(NummerVan([&, &c = catalogus] { return c = TypeParam::Lezen(map / "a.dat"); }), 62) << n;
    ASSERT_EQ(CatalogusBytes(catalogus), was) << n;
  }
}

TYPED_TEST(CatalogusBestand, ReadsTheLongestFileWithATailOfAnyLength) {
  const TijdelijkeMap map;
  const std::string beeld = TestFixture::Voorbeeld(500).beeld;
  Schrijf(map / "a.dat", beeld);
  fs::resize_file(map / "a.dat", std::uintmax_t{5} << 30);  // the bytes behind it need not be read
  EXPECT_EQ(CatalogusBytes(TypeParam::Lezen(map / "a.dat")), beeld);
}

TYPED_TEST(CatalogusBestand, KeepsTheLengthOfTheFileWhenHalfTheRecordsAreDeleted) {
  const TijdelijkeMap map;
  const std::string vol = TestFixture::Voorbeeld(500).beeld;
  EXPECT_EQ(TestFixture::Bewaar(TestFixture::Voorbeeld(500).catalogus, map / "a.dat"), 0);
  EXPECT_EQ(Lees(map / "a.dat"), vol);
  auto catalogus = TypeParam::Lezen(map / "a.dat");
  catalogus.Aantal = 250;
  EXPECT_EQ(TestFixture::Bewaar(catalogus, map / "a.dat"), 0);
  EXPECT_EQ(Lees(map / "a.dat"), I16(250) + vol.substr(2));
  const auto weer = TypeParam::Lezen(map / "a.dat");
  EXPECT_EQ(weer.Aantal, 250);
  EXPECT_EQ(CatalogusBytes(weer), I16(250) + vol.substr(2, 250 * this->Lengte));
  EXPECT_THAT(map.Namen(), ElementsAre("a.dat"));
}

TYPED_TEST(CatalogusBestand, LeavesAFileWhoseCountBecomesZeroItsRecords) {
  const TijdelijkeMap map;
  const std::string vol = TestFixture::Voorbeeld(3).beeld;
  Schrijf(map / "a.dat", vol);
  EXPECT_EQ(TestFixture::Bewaar({}, map / "a.dat"), 0);
  EXPECT_EQ(Lees(map / "a.dat"), I16(0) + vol.substr(2));
}

TYPED_TEST(CatalogusBestand, LeavesTheFileWhenTheCatalogueHasNoImage) {
  const TijdelijkeMap map;
  Schrijf(map / "a.dat", "oud");
  typename TypeParam::Cat teVeel;
  teVeel.Aantal = 501;
  EXPECT_EQ(TestFixture::Bewaar(teVeel, map / "a.dat"), 9);
  EXPECT_EQ(BestandVan([&] { return SchrijfCatalogus(teVeel, map / "a.dat"), 0; }), PadTekst(map / "a.dat"));
  EXPECT_EQ(Lees(map / "a.dat"), "oud");
}

TYPED_TEST(CatalogusBestand, LeavesFileAndCatalogueWhenTheDiskIsFullAtAnyByte) {
  const TijdelijkeMap map;
  const auto [catalogus, beeld] = TestFixture::Voorbeeld(1);
  const std::string oud = TestFixture::Voorbeeld(2).beeld;
  Schrijf(map / "a.dat", oud);
  for (std::size_t n = 0; n < oud.size(); ++n) {
    const Schijfgrens grens(n);
    ASSERT_EQ(TestFixture::Bewaar(catalogus, map / "a.dat"), 61) << n;
    ASSERT_EQ(Lees(map / "a.dat"), oud) << n;
    ASSERT_EQ(CatalogusBytes(catalogus), beeld) << n;
    ASSERT_THAT(map.Namen(), ElementsAre("a.dat")) << n;
  }
  const Schijfgrens grens(oud.size());
  EXPECT_EQ(TestFixture::Bewaar(catalogus, map / "a.dat"), 0);
  EXPECT_EQ(Lees(map / "a.dat"), beeld + oud.substr(beeld.size()));
}

TYPED_TEST(CatalogusBestand, LeavesNothingWhenTheDiskIsFullAtAnyByteOfANewFile) {
  const TijdelijkeMap map;
  const auto [catalogus, beeld] = TestFixture::Voorbeeld(1);
  for (std::size_t n = 0; n < beeld.size(); ++n) {
    const Schijfgrens grens(n);
    ASSERT_EQ(TestFixture::Bewaar(catalogus, map / "a.dat"), 61) << n;
    ASSERT_THAT(map.Namen(), IsEmpty()) << n;
  }
}

// The four files of a directory.

constexpr const char* Vier[] = {"Duct.dat", "Fan.dat", "Rduct.dat", "Rplaf.dat"};

std::string Element(const std::string& naam) {
  std::string beeld = I16(1) + std::string(290, '\0');
  Zet(beeld, 2, naam);
  return beeld;
}
std::string Spectra(const std::string& naam) {
  std::string beeld = I16(1) + std::string(144, '\0');
  Zet(beeld, 2, naam);
  return beeld;
}

void SchrijfVier(const TijdelijkeMap& map) {
  Schrijf(map / "Duct.dat", Element("demper"));
  Schrijf(map / "Fan.dat", Spectra("ventilator"));
  Schrijf(map / "Rduct.dat", Spectra("kanaalwand"));
  Schrijf(map / "Rplaf.dat", Spectra("plafond"));
}

TEST(LeesCatalogi, GivesEachFileItsOwnPlace) {
  const TijdelijkeMap map;
  SchrijfVier(map);
  const Catalogi catalogi = LeesCatalogi(map.Pad());
  EXPECT_EQ(catalogi.CatElementen.Records[1].CatNaam.Getrimd(), "demper");
  EXPECT_EQ(catalogi.CatFans.Records[1].SpecNaam.Getrimd(), "ventilator");
  EXPECT_EQ(catalogi.CatRduct.Records[1].SpecNaam.Getrimd(), "kanaalwand");
  EXPECT_EQ(catalogi.CatRplaf.Records[1].SpecNaam.Getrimd(), "plafond");
}

TEST(LeesCatalogi, NamesTheFileThatIsMissing) {
  for (const char* weg : Vier) {
    const TijdelijkeMap map;
    SchrijfVier(map);
    fs::remove(map / weg);
    EXPECT_EQ(NummerVan([&] { return LeesCatalogi(map.Pad()); }), 53) << weg;
    EXPECT_EQ(BestandVan([&] { return LeesCatalogi(map.Pad()); }), PadTekst(map / weg));
  }
}

TEST(LeesCatalogi, StopsAtTheFirstFileInOrderThatCannotBeRead) {
  const TijdelijkeMap map;
  for (std::size_t i = 4; i-- > 0;) {  // one bad file more at each step, in front of the others
    if (i == 3) SchrijfVier(map);
    Schrijf(map / Vier[i], I16(501));
    EXPECT_EQ(NummerVan([&] { return LeesCatalogi(map.Pad()); }), 62);
    EXPECT_EQ(BestandVan([&] { return LeesCatalogi(map.Pad()); }), PadTekst(map / Vier[i]));
  }
}

TEST(LeesCatalogi, IsFout76WithoutTheDirectory) {
  const TijdelijkeMap map;
  EXPECT_EQ(NummerVan([&] { return LeesCatalogi(map / "geen map"); }), 76);
  EXPECT_EQ(BestandVan([&] { return LeesCatalogi(map / "geen map"); }),
            PadTekst(map / "geen map" / "Duct.dat"));
}

}  // namespace
}  // namespace murvane
