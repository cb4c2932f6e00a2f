// Making the data files from their sources: what each source becomes, and what is refused.

#include "cli/databouw.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "catalogue/catfiles.h"
#include "project/projectfile.h"

namespace murvane {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

/// A fresh directory MAP with MAP/bron, removed at the end.
class Databouw : public testing::Test {
 protected:
  void SetUp() override {
    std::string sjabloon = (fs::temp_directory_path() / "data bouwen \xC3\xA9 XXXXXX").string();
    ASSERT_NE(mkdtemp(sjabloon.data()), nullptr);
    map_ = sjabloon;
    fs::create_directory(map_ / "bron");
  }
  void TearDown() override { fs::remove_all(map_); }

  void Bron(const char* naam, std::string_view json) { VervangBestand(map_ / "bron" / naam, json); }
  int Maak() {
    uit_.str("");
    fouten_.str("");
    const std::vector<std::string> argumenten = {PadTekst(map_)};
    return MaakData(argumenten, uit_, fouten_);
  }
  [[nodiscard]] std::string Pad(const char* naam) const { return PadTekst(map_ / naam); }

  fs::path map_;
  std::ostringstream uit_, fouten_;
};

FoutNummer NummerVan(const std::string& naam, std::string_view json) {
  try {
    (void)MaakDatabestand(naam, json);
  } catch (const Fout& fout) {
    EXPECT_EQ(fout.Bestand(), naam);
    return fout.Nummer();
  }
  ADD_FAILURE() << naam << " is not refused";
  return FoutNummer::PadToegang;
}

TEST_F(Databouw, SettingsBecomeSevenLines) {
  const Databestand bestand = MaakDatabestand("murvane.json", R"({
    "LettertypeNaam": "Courier", "LetterGrootte": 10, "KopStijl": 4, "BlokBovenStijl": 1, "BlokOnderStijl": -2,
    "GebruikerLabel": "Jan && zn", "Gebruikersnaam": "Jan & zn"})");
  EXPECT_EQ(bestand.Naam, "murvane.set");
  EXPECT_EQ(bestand.Bytes, "Courier\r\n 10 \r\n 4 \r\n 1 \r\n-2 \r\n" + ("Jan && zn" + std::string(26, ' ')) +
                               "\r\n" + ("Jan & zn" + std::string(27, ' ')) + "\r\n");
}

TEST_F(Databouw, CataloguesKeepTheirNames) {
  const struct {
    const char *bron, *json, *doel;
    std::size_t lengte;  // 2 for the count and 290 or 144 a record
  } rijen[] = {
      {"Duct.json", R"({"CatElementen": [{"CatNaam": "a"}, {"CatNaam": "b"}]})", "Duct.dat", 2 + 2 * 290},
      {"Fan.json", R"({"CatFans": [{"SpecNaam": "a"}]})", "Fan.dat", 2 + 144},
      {"Rduct.json", R"({"CatRduct": []})", "Rduct.dat", 2},
      {"Rplaf.json", R"({"CatRplaf": [{"SpecNaam": "a"}]})", "Rplaf.dat", 2 + 144},
  };
  for (const auto& rij : rijen) {
    const Databestand bestand = MaakDatabestand(rij.bron, rij.json);
    EXPECT_EQ(bestand.Naam, rij.doel);
    EXPECT_EQ(bestand.Bytes.size(), rij.lengte) << rij.bron;
  }
}

TEST_F(Databouw, AnyOtherNameIsAProject) {
  const Databestand bestand = MaakDatabestand("kantoor.json", R"({"ProjectRec": {"ProNaam": "Proef"}})");
  EXPECT_EQ(bestand.Naam, "kantoor.mrv");
  EXPECT_EQ(ProjectUitBytes(bestand.Bytes).Kop.ProNaam.Getrimd(), "Proef");
}

TEST_F(Databouw, RefusesWhatIsNotRight) {
  EXPECT_EQ(NummerVan("kantoor.txt", "{}"), FoutNummer::OngeldigeBestandsnaam);
  EXPECT_EQ(NummerVan("kantoor.json", R"({"Projectrec": {}})"), FoutNummer::OngeldigArgument);
  EXPECT_EQ(NummerVan("Fan.json", R"({"CatRduct": []})"), FoutNummer::OngeldigArgument);
  EXPECT_EQ(NummerVan("Duct.json", R"({"CatFans": []})"), FoutNummer::OngeldigArgument);
  EXPECT_EQ(NummerVan("murvane.json", R"({"Lettertype": "x"})"), FoutNummer::OngeldigArgument);
  EXPECT_EQ(NummerVan("murvane.json", R"({"KopStijl": "vet"})"), FoutNummer::GeenGetal);
}

TEST_F(Databouw, WritesAndNamesOnlyWhatChanged) {
  Bron("Rduct.json", R"({"CatRduct": [{"SpecNaam": "wand"}]})");
  Bron("kantoor.json", "{}");
  VervangBestand(map_ / "bron" / "leesmij.txt", "geen bron");
  EXPECT_EQ(Maak(), 0);
  EXPECT_EQ(uit_.str(), Pad("Rduct.dat") + "\n" + Pad("kantoor.mrv") + "\n");
  EXPECT_EQ(fouten_.str(), "");
  EXPECT_EQ(LeesSpectra(map_ / "Rduct.dat").Records[1].SpecNaam.Getrimd(), "wand");
  EXPECT_EQ(fs::file_size(map_ / "kantoor.mrv"), 886U);

  EXPECT_EQ(Maak(), 0);
  EXPECT_EQ(uit_.str(), "");
  Bron("Rduct.json", R"({"CatRduct": []})");
  EXPECT_EQ(Maak(), 0);
  EXPECT_EQ(uit_.str(), Pad("Rduct.dat") + "\n");
  EXPECT_EQ(fs::file_size(map_ / "Rduct.dat"), 2U);  // a made file has no old tail
}

TEST_F(Databouw, WritesNothingWhenOneSourceIsRefused) {
  Bron("Rduct.json", R"({"CatRduct": []})");
  Bron("Zolder.json", R"({"Elementen": 1})");
  EXPECT_EQ(Maak(), 1);
  EXPECT_THAT(fouten_.str(), HasSubstr("Zolder.json: Fout 13 - "));
  EXPECT_FALSE(fs::exists(map_ / "Rduct.dat"));
}

TEST_F(Databouw, ReportsADirectoryWithoutSources) {
  fs::remove(map_ / "bron");
  EXPECT_EQ(Maak(), 1);
  EXPECT_THAT(fouten_.str(), HasSubstr("Fout 76 - "));
}

TEST_F(Databouw, TellsItsUse) {
  for (const std::vector<std::string>& argumenten : {std::vector<std::string>{"--help"}, {"a", "b"}}) {
    std::ostringstream uit, fouten;
    EXPECT_EQ(MaakData(argumenten, uit, fouten), 64);
    EXPECT_THAT(fouten.str(), HasSubstr("Gebruik: murvane-maakdata [MAP]"));
  }
}

}  // namespace
}  // namespace murvane
