#include "calc/reken.h"

#include <functional>
#include <thread>

#include "calc/elementen.h"
#include "calc/spectrum.h"
#include "tests/calc/hulp.h"

namespace murvane {
namespace {

using namespace proef;

// ---- builders ----

ElementRec Element(int type, double hoogte, double breedte, double debiet) {
  ElementRec e;
  e.ElementType = static_cast<std::int16_t>(type);
  e.Hoogte = hoogte, e.Breedte = breedte, e.Debiet = debiet;
  e.Kanaal = GeenKanaalwand;
  return e;
}

ElementRec Duct(int type, double hoogte, double breedte, double debiet, double lengte) {
  ElementRec e = Element(type, hoogte, breedte, debiet);
  e.Lengte = lengte;
  return e;
}

ElementRec Tak(int type, double h, double b, double qAftak, double qHoofd, double afronding) {
  ElementRec e = Element(type, h, b, qHoofd);
  e.QAftak = qAftak, e.RAftak = afronding;
  return e;
}

ElementRec Verloop(int type, double h1, double b1, double h2, double b2, double lengte, double debiet) {
  ElementRec e = Element(type, h2, b2, debiet);
  e.HHoofd = h1, e.BHoofd = b1, e.HDoor = h2, e.BDoor = b2, e.Lengte = lengte;
  return e;
}

ElementRec Weerstand(int type, double h, double b, double debiet, double druk, double snetto = 0) {
  ElementRec e = Element(type, h, b, debiet);
  e.Weerstand = druk, e.Snetto = snetto;
  return e;
}

ElementRec Demper(const Spectrum& demp, const Spectrum& ruis) {
  ElementRec e = Element(99, 400, 500, 0.8);
  e.demp = demp, e.ruis = ruis;
  return e;
}

Project Keten(int type, const std::vector<ElementRec>& elementen) {
  Project p;
  p.Kop.RekenType = static_cast<std::int16_t>(type);
  p.ElementCount = static_cast<std::int16_t>(elementen.size());
  for (std::size_t i = 0; i < elementen.size(); ++i) p.Elementen[i + 1] = elementen[i];
  return p;
}

void ZetFan(Project& p, const Bandwaarden& Lw) {
  for (std::size_t b = 0; b < Banden; ++b) p.Fan.Lw[b] = Lw[b];
  p.Fan.Lw[7] = EnergetischeSom(p.Fan.Lw, true);
}

void ZetKamer(Project& p, double l, double b, double h, double T, int Q, double N) {
  p.Ruimte.RLengte = l, p.Ruimte.RBreedte = b, p.Ruimte.RHoogte = h;
  p.Ruimte.RNagalm = T, p.Ruimte.RAantal = N;
  p.Ruimte.RDI = static_cast<std::int16_t>(Q);
}

/// A duct with break-in, a sharp bend, an attenuator, a branch, a widening, a damper and an outlet; 5 x 4 x 3
/// m.
Project Kantoor(int type = 1) {
  ElementRec kanaal = Duct(8, 400, 500, 0.8, 6);
  kanaal.Kanaal = "staal";
  kanaal.LAeq = {40, 45, 50, 50, 45, 40, 0, 0};
  kanaal.Rkanaalwand = {5, 7, 9, 12, 15, 18, 20, 0};
  ElementRec tak = Tak(2, 200, 0, 0.15, 0.8, 0.1);
  tak.HHoofd = 400, tak.BHoofd = 500, tak.HDoor = 400, tak.BDoor = 400;
  Project p = Keten(type, {kanaal, Element(3, 400, 500, 0.8),
                           Demper({5, 9, 18, 28, 35, 30, 22, 0}, {30, 28, 25, 20, 18, 15, 0, 27}), tak,
                           Verloop(7, 200, 0, 250, 0, 0.2, 0.15), Weerstand(10, 250, 0, 0.15, 30),
                           Weerstand(11, 250, 0, 0.15, 20, 300)});
  ZetFan(p, {86, 88, 90, 87, 84, 80, 75});
  ZetKamer(p, 5, 4, 3, 0.5, 2, 2);
  return p;
}

/// A round duct, a round bend and a rectangular duct above the ceiling of a room of 6 x 5 x 3 m.
Project BovenPlafond() {
  Project p = Keten(2, {Duct(9, 400, 0, 1, 3), Element(5, 400, 0, 1), Duct(8, 300, 600, 1, 4)});
  ZetFan(p, {86, 88, 90, 87, 84, 80, 75});
  ZetKamer(p, 6, 5, 3, 0.6, 4, 0);
  p.Ruimte.Rkanaal = {10, 12, 15, 18, 20, 22, 25, 0};
  p.Ruimte.Rplafond = {5, 8, 10, 15, 20, 22, 24, 0};
  return p;
}

/// From one room of 4 x 4 x 3 m to another: a duct, a branch, a widening and an outlet.
Project TweeKamers() {
  ElementRec tak = Tak(1, 200, 250, 0.1, 0.3, 0.05);
  tak.HHoofd = 315, tak.HDoor = 250;
  Project p = Keten(3, {Duct(9, 315, 0, 0.3, 5), tak, Verloop(6, 200, 250, 300, 300, 0.5, 0.1),
                        Weerstand(11, 300, 300, 0.1, 10, 150)});
  ZetKamer(p, 4, 4, 3, 0.8, 1, 2);
  return p;
}

struct Stap {
  Spectrum demp, ruis, Instraling, Subtotaal;
};

void VerwachtStappen(const Project& p, const Resultaten& r, const std::vector<Stap>& stappen) {
  for (std::size_t i = 1; i <= stappen.size(); ++i) {
    const std::string wat = "element " + std::to_string(i);
    VerwachtSpectrum(p.Elementen[i].demp, stappen[i - 1].demp, wat + " demp");
    VerwachtSpectrum(p.Elementen[i].ruis, stappen[i - 1].ruis, wat + " ruis");
    VerwachtSpectrum(p.Elementen[i].Instraling, stappen[i - 1].Instraling, wat + " Instraling");
    VerwachtSpectrum(r.Subtotaal[i], stappen[i - 1].Subtotaal, wat + " Subtotaal");
  }
}

bool Gelijk(const Resultaten& a, const Resultaten& b) {
  return a.Subtotaal == b.Subtotaal && a.ElementTekst == b.ElementTekst &&
         a.HeeftInstraling == b.HeeftInstraling && a.LwKanaalwand == b.LwKanaalwand && a.LwEind == b.LwEind &&
         a.FanNaDemping == b.FanNaDemping && a.SysteemGeluid == b.SysteemGeluid &&
         a.SysteemDemping == b.SysteemDemping && a.OverspraakDemping == b.OverspraakDemping &&
         a.LpGalmveld == b.LpGalmveld && a.LpEenMeter == b.LpEenMeter;
}

// ---- whole chains ----

TEST(Reken, InstallatiegeluidFromFanToRoom) {
  // Every number was worked out by a calculation of its own from the formulas:
  //   level behind an element  10 lg (10^((before - demp)/10) + 10^(ruis/10) + 10^(Instraling/10))
  //   1 duct      demp 6 m · {0.5 0.4 0.3 0.1 ...}; ruis 50 lg 4 + 7 + 10 lg 0.2 + shape;
  //               Instraling LAeq - A - R + 10 lg (10.8 / 4) - 3
  //   2 bend      class 250 < 500 <= 500; ruis 10 lg B + K + 5 + 30 lg 0.5046 + 50 lg 4, x = f · 0.5046 / 4
  //   4 branch    demp -10 lg (0.031416 / (0.031416 + 0.16)); va = 4.7746, vh = 4
  //   5 widening  m = 1.5625, x = 0.2 f / 340
  //   6, 7        ruis 30 lg Dp + 17 + 10 lg 0.049087 - K(0.09 f / (Dp · 0.049087)); end reflection x = f
  //   sqrt 0.03 end         LpGalmveld LwEind + 10 lg (4/20) + 10 lg 2; LpEenMeter LwEind + 10 lg (2/(4 pi) +
  //   4/20)
  Project p = Kantoor();
  Resultaten r;
  Reken(p, r, ',');
  VerwachtStappen(p, r,
                  {{{3, 2.4, 1.8, 0.6, 0.6, 0.6, 0.6, 0},
                    {25.113299523, 24.113299523, 23.113299523, 22.113299523, 21.113299523, 20.113299523,
                     16.113299523, 26.326740082},
                    {62.5136376416, 55.4136376416, 50.9136376416, 42.5136376416, 31.3136376416, 22.1136376416,
                     0, 46.0161497463},
                    {83.0386627303, 85.6041616139, 88.2008125078, 86.4001790943, 83.4000294277, 79.4000132305,
                     74.4000064434, 88.3111914246}},
                   {{0, 0, 1, 5, 7, 5, 3, 0},
                    {35.8421003879, 31.2852994785, 25.1733610906, 19.2453703539, 13.1316839504, 7.20457961943,
                     1.21498579571, 21.9597178603},
                    {},
                    {83.0387455482, 85.6041776795, 87.2008152308, 81.4001817385, 76.4000314739, 74.4000140589,
                     71.4000068596, 83.896465029}},
                   {{5, 9, 18, 28, 35, 30, 22, 0},
                    {30, 28, 25, 20, 18, 15, 0, 27},
                    {},
                    {78.0388137673, 76.6042375707, 69.2009803108, 53.4021663107, 41.4198371878, 44.4049975503,
                     49.4000068596, 64.2957000426}},
                   {{7.84828197209, 7.84828197209, 7.84828197209, 7.84828197209, 7.84828197209, 7.84828197209,
                     7.84828197209, 0},
                    {32.8173066277, 28.8532323102, 23.7691030733, 18.1224891618, 11.799363248, 5.45337989659,
                     0, 20.2996063771},
                    {},
                    {70.1913268957, 68.7563997079, 61.3534558461, 45.5617231965, 33.6003374965, 36.5600828825,
                     41.5517248875, 56.4484723371}},
                   {{0.205358478382, 0.196938244709, 0.17225872081, 0.0972437242605, 0, 0, 0, 0},
                    {},
                    {},
                    {69.9859684174, 68.5594614631, 61.1811971253, 45.4644794723, 33.6003374965, 36.5600828825,
                     41.5517248875, 56.2774685037}},
                   {{},
                    {38.8217568499, 40.6024723274, 41.3233366287, 41.2666433544, 40.0962043293, 35.3056056587,
                     26.6152863677, 43.7755417724},
                    {},
                    {69.9892888687, 68.5664075154, 61.2258412327, 46.8644625116, 40.9743210613, 38.9882827322,
                     41.6888963702, 56.514967923}},
                   {{16.2419764637, 10.2905871926, 4.57394707942, 1.31234684152, 0, 0, 0, 0},
                    {34.7674403297, 35.9163963064, 36.040598857, 35.8669130826, 32.7660978051, 25.3431678813,
                     15.2489385885, 36.8927836651},
                    {},
                    {53.8018963659, 58.3009729683, 56.6894584458, 45.9956222095, 41.5853376849, 39.1719604906,
                     41.6987431925, 51.5997291826}}});
  VerwachtSpectrum(r.LwEind, {53.8018963659, 58.3009729683, 56.6894584458, 45.9956222095, 41.5853376849,
                              39.1719604906, 41.6987431925, 51.5997291826});
  VerwachtSpectrum(r.SysteemDemping, {32.2956169142, 29.7358074094, 33.3944877723, 42.8578725379,
                                      50.4482819721, 43.4482819721, 33.4482819721, 38.3735549427});
  VerwachtSpectrum(r.FanNaDemping, {53.7043830858, 58.2641925906, 56.6055122277, 44.1421274621, 33.5517180279,
                                    36.5517180279, 41.5517180279, 50.7496750204});
  VerwachtSpectrum(r.SysteemGeluid, {37.2660254936, 37.5609145012, 39.5097211855, 41.4038554317,
                                     40.8422368837, 35.7330822463, 26.9215116265, 44.0982553823});
  VerwachtSpectrum(r.LpGalmveld, {49.8224962792, 54.3215728816, 52.7100583591, 42.0162221228, 37.6059375982,
                                  35.1925604038, 37.7193431057, 47.6203290959});
  VerwachtSpectrum(r.LpEenMeter, {49.3547148465, 53.8537914489, 52.2422769263, 41.5484406901, 37.1381561655,
                                  34.7247789711, 37.251561673, 47.1525476632});
  EXPECT_EQ(r.LwKanaalwand, Spectrum{});
  EXPECT_EQ(r.OverspraakDemping, Spectrum{});
  EXPECT_TRUE(r.HeeftInstraling[1]);
  for (std::size_t i = 2; i <= 7; ++i) EXPECT_FALSE(r.HeeftInstraling[i]) << i;
}

TEST(Reken, GeluidsuitstralingThroughTheLastDuct) {
  //   end  LwEind (level before + level behind the last duct) / 2; y = Rkanaal - 10 lg (7.2 / 0.18), at least
  //   3;
  //        LwKanaalwand LwEind - y - Rplafond; A = 90 / 3.6 = 25;
  //        LpGalmveld + 10 lg (4/25); LpEenMeter + 10 lg (4 / (2 pi · 4) + 4/25)
  Project p = BovenPlafond();
  Resultaten r;
  Reken(p, r, ',');
  VerwachtStappen(p, r,
                  {{{0.15, 0.3, 0.3, 0.3, 0.6, 0.6, 0.6, 0},
                    {38.0316054391, 37.0316054391, 36.0316054391, 35.0316054391, 34.0316054391, 33.0316054391,
                     29.0316054391, 39.2450459981},
                    {},
                    {85.8500717697, 87.7000372343, 89.7000186614, 86.7000295763, 83.4000502276, 79.4001002166,
                     74.4001261649, 88.6708290638}},
                   {{0, 0, 1, 2, 3, 3, 3, 0},
                    {51.9072518944, 48.338075396, 43.6527301533, 38.1026189843, 31.9889325807, 26.0618282497,
                     20.072234426, 40.2451107269},
                    {},
                    {85.8518232883, 87.7005402285, 88.700154508, 84.7001246452, 80.4001128413, 76.4001403916,
                     71.4001581534, 86.4693775327}},
                   {{2, 1.6, 1.2, 0.4, 0.4, 0.4, 0.4, 0},
                    {31.7890997959, 30.7890997959, 29.7890997959, 28.7890997959, 27.7890997959, 26.7890997959,
                     22.7890997959, 33.0025403548},
                    {},
                    {83.8518502974, 86.1005530117, 87.5001618646, 84.3001368542, 80.0001389438, 76.0001924724,
                     71.0002237188, 85.8588496214}}});
  VerwachtSpectrum(r.LwKanaalwand, {76.8518367929, 75.9005466201, 75.1001581863, 66.5001307497, 56.2207258058,
                                    48.2207663452, 38.2207908494, 69.133404676});
  VerwachtSpectrum(r.LwEind, {84.8518367929, 86.9005466201, 88.1001581863, 84.5001307497, 80.2001258925,
                              76.200166432, 71.2001909361, 86.1600753061});
  VerwachtSpectrum(r.SysteemDemping, {2.15, 1.9, 2.5, 2.7, 4, 4, 4, 3.26454731139});
  VerwachtSpectrum(r.FanNaDemping, {83.85, 86.1, 87.5, 84.3, 80, 76, 71, 85.8586826518});
  VerwachtSpectrum(r.SysteemGeluid, {77.9906701714, 79.1624433603, 79.2083484727, 71.0357447436,
                                     66.7356368922, 62.7365369774, 57.7370809493, 74.423733969});
  VerwachtSpectrum(r.LpGalmveld, {68.8930366194, 67.9417464466, 67.1413580128, 58.5413305762, 48.2619256324,
                                  40.2619661718, 30.261990676, 61.1746045026});
  VerwachtSpectrum(r.LpEenMeter, {71.8918525448, 70.9405623721, 70.1401739382, 61.5401465017, 51.2607415578,
                                  43.2607820972, 33.2608066014, 64.173420428});
  EXPECT_EQ(r.OverspraakDemping, Spectrum{});
}

TEST(Reken, OverspraakBetweenTwoRooms) {
  //   end  SysteemDemping - 10 lg (S1 / 4) - 10 lg (4 / A) - 10 lg 2, S1 = 0.077931, A = 48 / 4.8 = 10
  Project p = TweeKamers();
  p.Elementen[4].ruis = Gevuld(17);
  Resultaten r;
  Reken(p, r, ',');
  VerwachtStappen(p, r,
                  {{{0.25, 0.5, 0.5, 0.5, 1, 1, 1, 0},
                    {20.1876231782, 19.1876231782, 18.1876231782, 17.1876231782, 16.1876231782, 15.1876231782,
                     11.1876231782, 21.4010637371},
                    {},
                    {}},
                   {{2.97048363758, 2.97048363758, 2.97048363758, 2.97048363758, 2.97048363758, 2.97048363758,
                     2.97048363758, 0},
                    {22.1984172885, 19.2177130947, 12.7903831415, 6.23160927435, 0, 0, 0, 8.50176279056},
                    {},
                    {}},
                   {{0.330497787618, 0.27013602155, 0.0884283441951, 0, 0, 0, 0, 0}, {}, {}, {}},
                   {{22.2522764204, 16.3008871493, 10.280287236, 4.69476549204, 1.58965777854, 0, 0, 0},
                    Gevuld(17),
                    {},
                    {}}});
  VerwachtSpectrum(r.SysteemDemping, {25.8032578456, 20.0415068084, 13.8391992178, 8.16524912962,
                                      5.56014141612, 3.97048363758, 3.97048363758, 0});
  VerwachtSpectrum(r.OverspraakDemping, {43.8758479995, 38.1140969623, 31.9117893717, 26.2378392835,
                                         23.63273157, 22.0430737915, 22.0430737915, 0});
  for (const Spectrum* s :
       {&r.LwKanaalwand, &r.LwEind, &r.FanNaDemping, &r.SysteemGeluid, &r.LpGalmveld, &r.LpEenMeter})
    EXPECT_EQ(*s, Spectrum{});
}

// ---- TussenResult ----

TEST(TussenResult, TheFirstElementStartsFromTheFan) {
  Project p = Keten(1, {Demper({}, {})});
  ZetFan(p, {60, -5, 40, 0, 33.3, 20, 10});
  Resultaten r;
  TussenResult(p, 1, r);
  VerwachtBanden(r.Subtotaal[1], {60, -5, 40, 0, 33.3, 20, 10});  // 0 dB too: it stands for a power of 1
  EXPECT_NEAR(r.Subtotaal[1][7], p.Fan.Lw[7], Marge);
}

TEST(TussenResult, AddsNoiseAndBreakInUnlessTheyAreZero) {
  Project p = Keten(1, {Demper({0, 10, 60, 60, 60, 60, 60, 0}, {60, 50, 0, -3, 0, 0, 0, 0})});
  p.Elementen[1].Instraling = {60, 0, 0, 0, 0, 10, -3, 0};
  p.Fan.Lw = Gevuld(60);
  Resultaten r;
  TussenResult(p, 1, r);
  // three times 60; twice 50; 0 dB alone: 10 lg 1; 10 lg (1 + 10^-0.3); 0; 10 lg 11; 10 lg (1 + 10^-0.3)
  VerwachtBanden(r.Subtotaal[1],
                 {64.771212547197, 53.010299956640, 0, 1.764348624364, 0, 10.413926851582, 1.764348624364});
}

TEST(TussenResult, ALaterElementStartsFromTheOneBefore) {
  Project p = Keten(1, {Demper({}, {}), Demper({1, 2, 3, 4, 5, 6, 7, 0}, {})});
  p.Fan.Lw = Gevuld(99);
  Resultaten r;
  r.Subtotaal[1] = {50, 50, 50, 50, 50, 50, 50, 77};
  TussenResult(p, 2, r);
  VerwachtBanden(r.Subtotaal[2], {49, 48, 47, 46, 45, 44, 43});
  EXPECT_EQ(r.Subtotaal[1][7], 77);
}

TEST(TussenResult, ANegativeLevelStaysAndALevelOfZeroIsLeftOutOfTheSum) {
  Project p = Keten(1, {Demper({70, 60, 60, 60, 60, 60, 60, 0}, {})});
  p.Fan.Lw = Gevuld(60);
  Resultaten r;
  TussenResult(p, 1, r);
  VerwachtSpectrum(r.Subtotaal[1], {-10, 0, 0, 0, 0, 0, 0, -36.2});  // -10 - 26.2 alone
  p.Elementen[1].demp = Gevuld(60);
  TussenResult(p, 1, r);
  EXPECT_EQ(r.Subtotaal[1], Spectrum{});
}

TEST(TussenResult, ASumThatUnderflowsIsZero) {
  Project p = Keten(1, {Demper({}, {})});
  p.Fan.Lw = {-3230};  // 10^-323 is one of the last powers above 0; weighted with -26.2 dB nothing is left
  Resultaten r;
  TussenResult(p, 1, r);
  EXPECT_LT(r.Subtotaal[1][0], -3220);
  EXPECT_EQ(r.Subtotaal[1][7], 0);
}

TEST(TussenResult, FaultsEndTheRun) {
  const auto fout = [](double Lw, double demp, double ruis, double Instraling) {
    Project p = Keten(1, {Demper(Gevuld(demp), Gevuld(ruis))});
    p.Elementen[1].Instraling = Gevuld(Instraling);
    p.Fan.Lw = Gevuld(Lw);
    Resultaten r;
    const int nummer = FoutVan([&] { TussenResult(p, 1, r); });
    EXPECT_TRUE(IsEindig(r.Subtotaal[1]));
    return nummer;
  };
  EXPECT_EQ(fout(60, 10, 20, 20), 0);
  EXPECT_EQ(fout(-4000, 0, 0, 0), 5) << "a power of 0";
  EXPECT_EQ(fout(60, 4000, 0, 0), 5);
  EXPECT_EQ(fout(60, 4000, 10, 0), 0) << "the noise remains";
  EXPECT_EQ(fout(3090, 0, 0, 0), 6);
  EXPECT_EQ(fout(60, 0, 3090, 0), 6);
  EXPECT_EQ(fout(60, 0, 0, 3090), 6);
  EXPECT_EQ(fout(3082.5, 0, 3082.5, 0), 6) << "only the sum is too large";
  for (const double w : NietEindig) {
    EXPECT_EQ(fout(w, 0, 0, 0), 6) << w;
    EXPECT_EQ(fout(60, w, 0, 0), 6) << w;
    EXPECT_EQ(fout(60, 0, w, 0), 6) << w;
    EXPECT_EQ(fout(60, 0, 0, w), 6) << w;
  }
}

// ---- the loop ----

TEST(Reken, EveryElementTypeHasItsReportTexts) {
  ElementRec tak = Tak(1, 200, 250, 0.1, 0.3, 0.05);
  tak.HHoofd = 315, tak.HDoor = 250;
  ElementRec rondeTak = tak;
  rondeTak.ElementType = 2, rondeTak.Breedte = 0;
  struct Rij {
    ElementRec element;
    std::array<std::string_view, 4> tekst;
  };
  const Rij rijen[] = {
      {tak, {"h×b = 200×250 mm"_cp, "q = 0,1 m³/s"_cp, "r/da = 0,05", ""}},
      {rondeTak, {"diam = 200 mm", "q = 0,1 m³/s"_cp, "r/da = 0,05", ""}},
      {Element(3, 200, 250, 0.1), {"h×b = 200×250 mm"_cp, "q = 0,1 m³/s"_cp, "", ""}},
      {Element(4, 200, 250, 0.1), {"h×b = 200×250 mm"_cp, "q = 0,1 m³/s"_cp, "", ""}},
      {Element(5, 200, 0, 0.1), {"diam = 200 mm", "q = 0,1 m³/s"_cp, "", ""}},
      {Verloop(6, 100, 100, 200, 250, 0.5, 0.1), {"h×b = 200×250 mm"_cp, "q = 0,1 m³/s"_cp, "l = 0,5 m", ""}},
      {Verloop(7, 100, 0, 200, 0, 0.5, 0.1), {"diam = 200 mm", "q = 0,1 m³/s"_cp, "l = 0,5 m", ""}},
      {Duct(8, 200, 250, 0.1, 2.5), {"h×b = 200×250 mm"_cp, "q = 0,1 m³/s"_cp, "l = 2,5 m", ""}},
      {Duct(9, 200, 0, 0.1, 2.5), {"diam = 200 mm", "q = 0,1 m³/s"_cp, "l = 2,5 m", ""}},
      {Weerstand(10, 200, 250, 0.1, 7.5), {"h×b = 200×250 mm"_cp, "q = 0,1 m³/s"_cp, "Dp = 7,5 Pa", ""}},
      {Weerstand(10, 200, 0, 0.1, 7.5), {"diam = 200 mm", "q = 0,1 m³/s"_cp, "Dp = 7,5 Pa", ""}},
      {Weerstand(11, 200, 250, 0.1, 7.5, 99.5),
       {"h×b = 200×250 mm"_cp, "q = 0,1 m³/s"_cp, "Seff = 99,5 cm²"_cp, "Dp = 7,5 Pa"}},
      {Weerstand(11, 200, 0, 0.1, 7.5, 99.5),
       {"diam = 200 mm", "q = 0,1 m³/s"_cp, "Seff = 99,5 cm²"_cp, "Dp = 7,5 Pa"}},
      {Element(99, 200, 250, 0.1), {"", "", "", ""}},
      {Element(12, 200, 250, 0.1), {"", "", "", ""}},
      {Element(0, 200, 250, 0.1), {"", "", "", ""}},
      {Element(-1, 200, 250, 0.1), {"", "", "", ""}},
  };
  std::vector<ElementRec> elementen;
  for (const Rij& rij : rijen) elementen.push_back(rij.element);
  Project p = Keten(1, elementen);
  ZetFan(p, {86, 88, 90, 87, 84, 80, 75});
  ZetKamer(p, 5, 4, 3, 0.5, 2, 2);
  Resultaten r;
  for (auto& tekst : r.ElementTekst) tekst.fill(Tekst<20>("oud"));
  Reken(p, r, ',');
  for (std::size_t i = 0; i < std::size(rijen); ++i) {
    SCOPED_TRACE("element " + std::to_string(i + 1));
    VerwachtTekst(r.ElementTekst[i + 1], rijen[i].tekst);
  }
  EXPECT_EQ(r.ElementTekst[0][0].Getrimd(), "oud") << "element 0 is unused";
  EXPECT_EQ(r.ElementTekst[std::size(rijen) + 1][0].Getrimd(), "oud")
      << "nothing behind the chain is touched";
}

TEST(Reken, TellsEachElementBeforeItCalculatesIt) {
  Project p = Kantoor();
  p.Elementen[2].demp = {1e300};
  p.Elementen[2].ElementType = elementtype::Catalogus;
  Resultaten r;
  std::vector<int> gemeld;
  EXPECT_THROW(Reken(p, r, '.', [&](int element) { gemeld.push_back(element); }), Fout);
  EXPECT_EQ(gemeld, (std::vector{1, 2})) << "the element that failed was told, the next was not";
  Project heel = Kantoor();
  gemeld.clear();
  Reken(heel, r, '.', [&](int element) { gemeld.push_back(element); });
  ASSERT_EQ(gemeld.size(), static_cast<std::size_t>(heel.ElementCount));
  EXPECT_EQ(gemeld.back(), heel.ElementCount);
}

TEST(Reken, AnElementWithoutModelKeepsItsAttenuationAndNoise) {
  for (const int type : {99, 12, 0, -1, 100}) {
    Project p = Kantoor();
    ElementRec& e = p.Elementen[3];
    e.ElementType = static_cast<std::int16_t>(type);
    e.demp[7] = 12, e.Instraling = {40, 0, 0, 0, 0, 0, 0, 13};
    const ElementRec ervoor = e;
    Resultaten r;
    Reken(p, r, '.');
    EXPECT_EQ(e.demp, ervoor.demp);
    EXPECT_EQ(e.ruis, ervoor.ruis);
    EXPECT_EQ(e.Instraling, ervoor.Instraling);
    EXPECT_FALSE(r.HeeftInstraling[3]);
    // Its stored break-in counts: 10 lg (10^7.80387 - noise and all, + 10^4)
    EXPECT_NEAR(r.Subtotaal[3][0], 10 * std::log10(std::pow(10, (r.Subtotaal[2][0] - 5) / 10) + 1E+3 + 1E+4),
                Marge);
  }
}

TEST(Reken, InstraalRunsBeforeTheModelAndAlsoForShortDucts) {
  Project p = Kantoor();
  p.Elementen[1].Lengte = 0.4;
  Resultaten r;
  Reken(p, r, '.');
  EXPECT_EQ(p.Elementen[1].ruis, Spectrum{});
  EXPECT_TRUE(r.HeeftInstraling[1]);
  // Sw = 2 · 0.9 · 0.4 = 0.72: 40 + 26.2 - 5 + 10 lg 0.18 - 3
  EXPECT_NEAR(p.Elementen[1].Instraling[0], 50.7527250510, Marge);
}

TEST(Reken, OldResultsOfAnotherProjectDoNotMatter) {
  for (const auto& bouw :
       {std::function<Project()>([] { return Kantoor(); }), std::function<Project()>(BovenPlafond)}) {
    Project vers = bouw(), na = bouw();
    Resultaten schoon, gebruikt;
    Project ander = Kantoor();
    Reken(ander, gebruikt, '.');
    for (std::size_t i = 1; i <= 3; ++i) gebruikt.HeeftInstraling[i] = true;
    Reken(vers, schoon, '.');
    Reken(na, gebruikt, '.');
    for (std::size_t i = 1; i <= static_cast<std::size_t>(vers.ElementCount); ++i) {
      EXPECT_EQ(schoon.Subtotaal[i], gebruikt.Subtotaal[i]);
      EXPECT_EQ(schoon.ElementTekst[i], gebruikt.ElementTekst[i]);
      EXPECT_EQ(schoon.HeeftInstraling[i], gebruikt.HeeftInstraling[i]);
    }
    EXPECT_EQ(schoon.LwKanaalwand, gebruikt.LwKanaalwand);
    EXPECT_EQ(schoon.LwEind, gebruikt.LwEind);
    EXPECT_EQ(schoon.LpGalmveld, gebruikt.LpGalmveld);
    EXPECT_EQ(schoon.LpEenMeter, gebruikt.LpEenMeter);
  }
}

TEST(Reken, ASecondRunYieldsTheSameAsTheFirst) {
  for (const auto& bouw : {std::function<Project()>([] { return Kantoor(); }),
                           std::function<Project()>(BovenPlafond), std::function<Project()>(TweeKamers)}) {
    Project p = bouw();
    Resultaten eerste;
    Reken(p, eerste, '.');
    const std::vector<ElementRec> elementen = p.Elementen;
    Resultaten tweede = eerste;
    Reken(p, tweede, '.');
    EXPECT_TRUE(Gelijk(eerste, tweede));
    for (std::size_t i = 0; i < elementen.size(); ++i) {
      EXPECT_EQ(p.Elementen[i].demp, elementen[i].demp) << i;
      EXPECT_EQ(p.Elementen[i].ruis, elementen[i].ruis) << i;
      EXPECT_EQ(p.Elementen[i].Instraling, elementen[i].Instraling) << i;
    }
  }
}

TEST(Reken, AnOverspraakRunLeavesRunningLevelsAndOutletNoiseOfTheRunBefore) {
  Project p = Kantoor();
  Resultaten r;
  Reken(p, r, '.');
  const auto niveaus = r.Subtotaal;
  const Spectrum ruis = p.Elementen[7].ruis;
  p.Kop.RekenType = rekentype::Overspraak;
  p.Elementen[7].Weerstand = 100;
  p.Ruimte.RDI = 4, p.Ruimte.RAantal = 9;
  Reken(p, r, '.');
  EXPECT_EQ(r.Subtotaal, niveaus);
  EXPECT_EQ(p.Elementen[7].ruis, ruis);
  EXPECT_EQ(p.Elementen[7].ElRDI, 4);
  EXPECT_EQ(p.Elementen[7].ElRAantal, 9);
  EXPECT_EQ(r.LwEind, Spectrum{});
  EXPECT_EQ(r.LpGalmveld, Spectrum{});
  EXPECT_NE(r.OverspraakDemping, Spectrum{});
}

TEST(Reken, TheDamperMakesNoiseInEveryType) {
  for (const int type : {1, 2, 3}) {
    Project p = Kantoor(type);
    p.ElementCount = type == 2 ? 6 : 7;
    p.Elementen[6].Lengte = 1;  // the room of type 2 reads a length of the last element
    Resultaten r;
    Reken(p, r, '.');
    EXPECT_NEAR(p.Elementen[6].ruis[7], 43.7755417724, Marge) << type;
  }
}

TEST(Reken, ATypeOutsideOneToThreeWorksOutAttenuationsOnly) {
  for (const int type : {0, 4, -1}) {
    Project p = Kantoor(type);
    Resultaten r;
    r.Subtotaal[1] = Gevuld(8);
    Reken(p, r, '.');
    EXPECT_EQ(r.Subtotaal[1], Gevuld(8));
    EXPECT_NEAR(p.Elementen[7].ruis[7], 36.8927836651, Marge) << "outlet noise is calculated";
    EXPECT_NEAR(r.SysteemDemping[0], 32.2956169142, Marge);
    EXPECT_EQ(r.SysteemDemping[7], 0);
    for (const Spectrum* s : {&r.LwKanaalwand, &r.LwEind, &r.FanNaDemping, &r.SysteemGeluid, &r.LpGalmveld,
                              &r.LpEenMeter, &r.OverspraakDemping})
      EXPECT_EQ(*s, Spectrum{});
  }
}

TEST(Reken, ALongestChainFillsEveryElement) {
  Project p;
  p.Kop.RekenType = 1;
  p.ElementCount = MaxElementen;
  for (std::size_t i = 1; i <= MaxElementen; ++i) p.Elementen[i] = Demper(Gevuld(0.125), {});
  p.Fan.Lw = Gevuld(100);
  ZetKamer(p, 5, 4, 3, 0.5, 2, 2);
  Resultaten r;
  Reken(p, r, '.');
  EXPECT_NEAR(r.LwEind[3], 37.5, Marge);  // 100 - 500 · 0.125
  EXPECT_NEAR(r.SysteemDemping[3], 62.5, Marge);
}

TEST(Reken, RunsSideBySideDoNotTouchEachOther) {
  const auto bouw = [](std::size_t k) {
    return k % 3 == 0 ? Kantoor() : k % 3 == 1 ? BovenPlafond() : TweeKamers();
  };
  std::vector<Resultaten> los(3), naastElkaar(6);
  for (std::size_t k = 0; k < los.size(); ++k) {
    Project p = bouw(k);
    Reken(p, los[k], ',');
  }
  std::vector<std::thread> draden;
  for (std::size_t k = 0; k < naastElkaar.size(); ++k) {
    draden.emplace_back([&, k] {
      for (int keer = 0; keer < 20; ++keer) {
        Project p = bouw(k);
        Reken(p, naastElkaar[k], ',');
      }
    });
  }
  for (std::thread& draad : draden) draad.join();
  for (std::size_t k = 0; k < naastElkaar.size(); ++k) EXPECT_TRUE(Gelijk(naastElkaar[k], los[k % 3])) << k;
}

// ---- faults ----

TEST(Reken, AFaultNamesTheElementAndEndsTheRun) {
  Project p = Kantoor();
  p.Elementen[2].Breedte = 0;
  Resultaten r;
  r.LwEind = Gevuld(3);
  try {
    Reken(p, r, '.');
    FAIL() << "no Fout";
  } catch (const Fout& fout) {
    EXPECT_EQ(fout.Nummer(), FoutNummer::DelingDoorNul);
    EXPECT_EQ(fout.Plaats(), "kanaalelement 2");
    EXPECT_EQ(fout.Melding(), "Fout 11 - Deling door nul (kanaalelement 2).");
  }
  EXPECT_NEAR(r.Subtotaal[1][0], 83.0386627303, Marge) << "what was worked out before stays";
  EXPECT_EQ(r.Subtotaal[3], Spectrum{});
  EXPECT_EQ(r.LwEind, Gevuld(3));
}

TEST(Reken, ACountOutsideTheArrayIsAFault) {
  for (const int aantal : {501, 32767, -1, -32768}) {
    for (const int type : {1, 2, 3}) {
      Project p = Kantoor(type);
      p.ElementCount = static_cast<std::int16_t>(aantal);
      Resultaten r;
      EXPECT_EQ(FoutVan([&] { Reken(p, r, '.'); }), 9) << aantal << ", type " << type;
    }
  }
  Project p = Kantoor(2);
  p.ElementCount = 0;
  Resultaten r;
  EXPECT_EQ(FoutVan([&] { Reken(p, r, '.'); }), 9) << "no last duct";
}

TEST(Reken, EveryFanAndElementLevelHasToBeFinite) {
  for (const double w : NietEindig) {
    for (std::size_t b = 0; b < Banden; ++b) {
      const auto fout = [&](int type, auto verander) {
        Project p = Kantoor(type);
        verander(p);
        Resultaten r;
        return FoutVan([&] { Reken(p, r, '.'); });
      };
      EXPECT_EQ(fout(1, [&](Project& p) { p.Fan.Lw[b] = w; }), 6);
      EXPECT_EQ(fout(1, [&](Project& p) { p.Elementen[3].demp[b] = w; }), 6);
      EXPECT_EQ(fout(1, [&](Project& p) { p.Elementen[3].ruis[b] = w; }), 6);
      EXPECT_EQ(fout(1, [&](Project& p) { p.Elementen[3].Instraling[b] = w; }), 6);
      EXPECT_EQ(fout(1, [&](Project& p) { p.Elementen[2].Instraling[b] = w; }), 6);
      EXPECT_EQ(fout(3, [&](Project& p) { p.Elementen[3].demp[b] = w; }), 6);
      EXPECT_EQ(fout(3, [&](Project& p) { p.Fan.Lw[b] = w; }), 0) << "the fan plays no part";
      EXPECT_EQ(fout(3, [&](Project& p) { p.Elementen[3].ruis[b] = w; }), 0) << "no running level";
    }
    Project p = Kantoor();
    p.Fan.Lw[7] = w;
    Resultaten r;
    EXPECT_EQ(FoutVan([&] { Reken(p, r, '.'); }), 6);
  }
}

}  // namespace
}  // namespace murvane
