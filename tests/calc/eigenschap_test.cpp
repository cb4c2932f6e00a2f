// Whatever a file holds, a run ends in a Fout or leaves nothing but finite numbers.

#include <cstdint>
#include <map>
#include <random>

#include "calc/reken.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

/// Records with values that are mostly usable and now and then wild.
class Willekeur {
 public:
  explicit Willekeur(std::uint64_t zaad) : bron_(zaad) {}

  std::uint64_t Onder(std::uint64_t n) { return bron_() % n; }

  /// A usable value between laag and hoog, or once in `zeldzaam` times a wild one.
  double Getal(double laag, double hoog) {
    if (zeldzaam_ != 0 && Onder(zeldzaam_) == 0) return Wild();
    return laag + (hoog - laag) * static_cast<double>(Onder(1000001)) / 1E+6;
  }
  Spectrum Niveaus(double laag, double hoog) {
    Spectrum uit{};
    for (double& waarde : uit) waarde = Onder(5) == 0 ? 0 : Getal(laag, hoog);
    return uit;
  }

  Project EenProject() {
    static constexpr std::uint64_t Kansen[] = {0, 400, 60, 4};
    zeldzaam_ = Kansen[Onder(4)];
    Project p;
    p.Kop.RekenType = static_cast<std::int16_t>(Onder(20) == 0 ? Onder(7) : 1 + Onder(3));
    p.ElementCount = static_cast<std::int16_t>(Onder(100) == 0 ? static_cast<int>(Onder(1200)) - 600
                                                               : 1 + static_cast<int>(Onder(8)));
    p.VrijVeld = static_cast<std::int16_t>(Onder(3));
    p.Fan.Lw = Niveaus(40, 110);
    for (std::size_t i = 1; i <= 8; ++i) p.Elementen[i] = Element();
    if (p.Kop.RekenType == 2) p.Elementen[8].ElementType = 8;
    RuimteRec& r = p.Ruimte;
    r.RLengte = Getal(2, 30), r.RBreedte = Getal(2, 30), r.RHoogte = Getal(2, 10), r.RNagalm = Getal(0.1, 10);
    r.RAantal = Getal(1, 50);
    r.RDI = static_cast<std::int16_t>(Onder(10) == 0 ? Onder(65536) : 1ULL << Onder(4));
    r.Rkanaal = Niveaus(0, 60), r.Rplafond = Niveaus(0, 60);
    return p;
  }

 private:
  double Wild() {
    static constexpr double Vast[] = {0,      -0.0,   -1,   1E-320, 1E+308, -1E+308,  5E-324,
                                      1E-160, 1E+160, 3000, -3000,  Nan,    Oneindig, -Oneindig};
    if (Onder(3) == 0) return std::bit_cast<double>(bron_());  // any bit pattern
    return Vast[Onder(std::size(Vast))];
  }

  ElementRec Element() {
    static constexpr int Types[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 99, 8, 9, 0, 50};
    ElementRec e;
    e.ElementType = static_cast<std::int16_t>(Types[Onder(std::size(Types))]);
    if (Onder(2) == 0) e.Kanaal = "wand";
    e.demp = Niveaus(-5, 30), e.ruis = Niveaus(-20, 60), e.LAeq = Niveaus(10, 90);
    e.Instraling = Niveaus(-20, 60), e.Rkanaalwand = Niveaus(0, 50);
    e.Lengte = Getal(0, 20), e.Debiet = Getal(0.01, 10), e.QAftak = Getal(0.01, 5);
    e.Hoogte = Getal(100, 1500), e.Breedte = Onder(4) == 0 ? 0 : Getal(100, 1500);
    e.HHoofd = Getal(100, 1500), e.BHoofd = Onder(4) == 0 && e.ElementType != 6 ? 0 : Getal(100, 1500);
    e.HDoor = Getal(100, 1500), e.BDoor = Onder(4) == 0 ? 0 : Getal(100, 1500);
    e.Snetto = Getal(1, 5000), e.Weerstand = Getal(1, 500), e.RAftak = Getal(0, 1);
    if (e.ElementType == 1 || e.ElementType == 3 || e.ElementType == 4 || e.ElementType == 8)
      e.Breedte = e.Breedte == 0 ? 400 : e.Breedte;
    return e;
  }

  std::mt19937_64 bron_;
  std::uint64_t zeldzaam_ = 0;
};

bool MetFan(const Project& p) {
  return p.Kop.RekenType == 1 || p.Kop.RekenType == 2;
}

void VerwachtEindig(const Project& p, const Resultaten& r) {
  for (std::size_t i = 1; i <= static_cast<std::size_t>(p.ElementCount); ++i) {
    const ElementRec& e = p.Elementen[i];
    const int type = e.ElementType;
    const bool model = type >= 1 && type <= 11;
    // Noise that no model wrote counts in the running level only.
    const bool berekendeRuis = model && (type != 11 || p.Kop.RekenType != rekentype::Overspraak);
    for (std::size_t b = 0; b < Banden; ++b) {
      EXPECT_TRUE(std::isfinite(e.demp[b])) << "demp of element " << i;
      EXPECT_TRUE(std::isfinite(e.ruis[b]) || !(berekendeRuis || MetFan(p))) << "ruis of element " << i;
    }
    EXPECT_TRUE(std::isfinite(e.ruis[7]) || !berekendeRuis) << i;
    EXPECT_TRUE(IsEindig(e.Instraling) || (type != 8 && type != 9)) << i;
    EXPECT_TRUE(std::isfinite(e.ElRAantal) || type != 11) << i;
    EXPECT_TRUE(IsEindig(r.Subtotaal[i])) << i;
  }
  for (const Spectrum* s : {&r.LwKanaalwand, &r.LwEind, &r.FanNaDemping, &r.SysteemGeluid, &r.SysteemDemping,
                            &r.OverspraakDemping, &r.LpGalmveld, &r.LpEenMeter})
    EXPECT_TRUE(IsEindig(*s));
}

TEST(Eigenschap, ARunEndsInAFoutOrLeavesOnlyFiniteNumbers) {
  std::map<int, int> uitkomst;
  Willekeur willekeur(20240611);
  for (int ronde = 0; ronde < 3000 && !testing::Test::HasFailure(); ++ronde) {
    SCOPED_TRACE("round " + std::to_string(ronde));
    Project p = willekeur.EenProject();
    Resultaten r;
    const int fout = FoutVan([&] { Reken(p, r, ','); });
    ++uitkomst[fout];
    if (fout == 0) VerwachtEindig(p, r);
  }
  // Both ends of the road were travelled often, every fault of the arithmetic among them, and no other one.
  for (const int fout : {0, 5, 6, 9, 11}) EXPECT_GT(uitkomst[fout], 5) << fout;
  EXPECT_GT(uitkomst[0], 600);
  EXPECT_EQ(uitkomst.size(), 5U);
}

}  // namespace
}  // namespace murvane
