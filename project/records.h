#pragma once
// project/: the records of one project, their file image and their JSON form. No calculation and no toolkit.
// This header: every record of a project. Numbers are unrounded; dimensions in mm, lengths in m, flows in
// m³/s, pressures in Pa, levels in dB. A spectrum has the octave bands 63 to 4000 Hz in slots 0 to 6 and,
// where its owner keeps one, the A-weighted sum in slot 7.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "basis/tekst.h"

namespace murvane {

using Spectrum = std::array<double, 8>;

inline constexpr int Banden = 7;          ///< octave bands, slots 0 to 6 of a Spectrum
inline constexpr int SomPlaats = 7;       ///< the slot of the A-weighted sum
inline constexpr int MaxElementen = 500;  ///< highest index of the element array
inline constexpr int MaxKeten = 99;       ///< longest chain that the editor builds

inline constexpr std::string_view GeenKanaalwand = "<geen kanaalwand geselecteerd>";
inline constexpr std::string_view GeenPlafond = "<geen plafond geselecteerd>";

/// Calculation types, the values of ProjectRec::RekenType.
namespace rekentype {
inline constexpr std::int16_t Installatiegeluid = 1;  ///< fan and chain in a room through the air outlets
inline constexpr std::int16_t Geluidsuitstraling =
    2;                                         ///< last duct into a room through its wall and the ceiling
inline constexpr std::int16_t Overspraak = 3;  ///< attenuation between two rooms
}  // namespace rekentype

/// Element types, the values of ElementRec::ElementType.
namespace elementtype {
inline constexpr std::int16_t AftakRecht = 1;
inline constexpr std::int16_t AftakRond = 2;
inline constexpr std::int16_t BochtHaaks = 3;  ///< rectangular bend with the higher attenuation and noise
inline constexpr std::int16_t BochtRecht = 4;  ///< rectangular bend
inline constexpr std::int16_t BochtRond = 5;
inline constexpr std::int16_t DrsneeRecht = 6;
inline constexpr std::int16_t DrsneeRond = 7;
inline constexpr std::int16_t KanaalRecht = 8;
inline constexpr std::int16_t KanaalRond = 9;
inline constexpr std::int16_t Klep = 10;
inline constexpr std::int16_t Rooster = 11;
inline constexpr std::int16_t Catalogus = 99;
}  // namespace elementtype

/// Fan types, the values of FanRec::FanType.
namespace fantype {
inline constexpr std::int16_t Geen = 0;
inline constexpr std::int16_t Axiaal = 1;
inline constexpr std::int16_t CentrifugaalVoorwaarts = 2;
inline constexpr std::int16_t CentrifugaalAchterwaarts = 3;
}  // namespace fantype

/// Values of Project::FanPrognose.
namespace fanbron {
inline constexpr std::int16_t Lijst = 0;
inline constexpr std::int16_t Prognose = -1;
}  // namespace fanbron

struct ProjectRec {
  Tekst<80> ProNaam;
  Tekst<12> ProNum;
  Tekst<80> Omschrijving;
  Tekst<80> Toelichting1;
  Tekst<80> Toelichting2;
  Tekst<80> Toelichting3;
  Tekst<10> MyDate;            ///< dd-mm-yyyy
  std::int16_t RekenType = 0;  ///< rekentype
};

struct FanRec {
  Tekst<80> FanNaam;
  Spectrum Lw{};             ///< sound power, dB; slot 7 the dB(A) sum
  double FanDebiet = 0;      ///< m³/s
  double FanDruk = 0;        ///< total pressure, Pa
  double FanToeren = 0;      ///< revolutions per minute
  double FanSchoepen = 0;    ///< number of blades
  double FanVermogen = 0;    ///< shaft power, W
  std::int16_t FanType = 0;  ///< fantype
};

/// One element of the chain. Some fields carry a second name for other element types; the field is one.
struct ElementRec {
  Tekst<80> Naam;
  Tekst<80> Kanaal;              ///< name of the chosen duct wall, or GeenKanaalwand
  Spectrum demp{};               ///< attenuation, dB
  Spectrum ruis{};               ///< self-noise, sound power in dB; slot 7 the dB(A) sum
  Spectrum LAeq{};               ///< level outside the duct, dB(A) per band
  Spectrum Instraling{};         ///< break-in, sound power in dB; slot 7 the dB(A) sum
  Spectrum Rkanaalwand{};        ///< sound reduction of the duct wall, dB
  std::int16_t ElementType = 0;  ///< elementtype
  double Lengte = 0;             ///< m
  double Debiet = 0;             ///< m³/s; of a branch: of the main duct
  double QAftak = 0;             ///< m³/s into the branch
  double Hoogte = 0;             ///< mm, height or diameter, downstream
  double Breedte = 0;            ///< mm, width, downstream; 0 means round
  double HHoofd = 0;             ///< mm, main duct
  double BHoofd = 0;             ///< mm
  double HDoor = 0;              ///< mm, through duct
  double BDoor = 0;              ///< mm
  double Snetto = 0;             ///< cm², net free area of an outlet
  double Weerstand = 0;          ///< Pa, pressure loss of a damper or outlet
  std::int16_t ElRDI = 0;        ///< outlet's copy of RDI
  double RAftak = 0;             ///< rounding of a branch, r/da, 0 to 1
  double ElRAantal = 0;          ///< outlet's copy of RAantal

  [[nodiscard]] double LDoorsnee() const { return Lengte; }   ///< m, length of a section change
  [[nodiscard]] double HAftak() const { return Hoogte; }      ///< mm, branch
  [[nodiscard]] double BAftak() const { return Breedte; }     ///< mm
  [[nodiscard]] double H1Doorsnee() const { return HHoofd; }  ///< mm, inlet of a section change
  [[nodiscard]] double B1Doorsnee() const { return BHoofd; }  ///< mm
  [[nodiscard]] double H2Doorsnee() const { return HDoor; }   ///< mm, outlet of a section change
  [[nodiscard]] double B2Doorsnee() const { return BDoor; }   ///< mm
};

struct RuimteRec {
  Tekst<80> RNaam;           ///< nothing reads it; it travels through the file
  double RLengte = 0;        ///< m
  double RBreedte = 0;       ///< m
  double RHoogte = 0;        ///< m
  double RVolume = 0;        ///< reserved; it travels through the file
  std::int16_t RDI = 0;      ///< directivity factor: 0 unset, else 1, 2, 4 or 8
  double RNagalm = 0;        ///< reverberation time, s
  double RNR = 0;            ///< allowed sound level, dB(A)
  double RAantal = 0;        ///< number of outlets
  Spectrum Rkanaal{};        ///< sound reduction of the duct wall in the room, dB
  Spectrum Rplafond{};       ///< sound reduction of the ceiling, dB
  std::string RkanaalNaam;   ///< Windows-1252, at most 65535 characters
  std::string RplafondNaam;  ///< as RkanaalNaam
};

/// One project whole. Elements are numbered from 1; slot 0 of Elementen exists and stays unused.
struct Project {
  ProjectRec Kop;
  FanRec Fan;
  std::int16_t ElementCount = 0;
  std::vector<ElementRec> Elementen = std::vector<ElementRec>(MaxElementen + 1);
  RuimteRec Ruimte;
  std::int16_t FanPrognose = 0;  ///< fanbron
  std::int16_t VrijVeld = 0;     ///< 1 checked, 0 unchecked
};

}  // namespace murvane
