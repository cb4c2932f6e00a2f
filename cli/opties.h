#pragma once
// cli/: the command-line programs, without a toolkit. murvane-cli is a main function around the commands in
// opdrachten.h, which tests call in-process.
// This header: every command and option in one table. It feeds the parser, the help texts, the manual page
// and the completion of the shells. Texts are UTF-8.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

namespace murvane {

/// The commands. Programma stands for a command line without one; Druk is the program murvane-druk, which has
/// no other.
enum class Opdracht : std::uint8_t {
  Programma,
  Reken,
  Controleer,
  Toon,
  Maak,
  CatalogusToon,
  CatalogusMaak,
  CatalogusSorteer,
  Overzicht,
  SchatBekleed,
  SchatKwartLambda,
  SchatPlenum,
  SchatKanaalwand,
  SchatVentilator,
  Druk
};

struct OpdrachtRegel {
  Opdracht Code;
  std::string_view Naam;      ///< as typed, one or two words; empty for a whole program
  std::string_view Argument;  ///< what its file argument is called; empty when it has none
  bool Meer;                  ///< takes more than one file
  std::string_view Kort;      ///< one line for the list of commands
  std::string_view Uitleg;    ///< a paragraph for its own help
};

inline constexpr std::array Opdrachten = {
    OpdrachtRegel{
        Opdracht::Programma, "", "", false, "",
        "Berekent geluidsniveaus van luchttechnische installaties volgens ISSO-publicatie 24 en VDI 2081."},
    OpdrachtRegel{
        Opdracht::Reken, "reken", "PROJECT.mrv", true, "controleert en berekent projecten",
        "Controleert en berekent projecten. Zonder opties verschijnt het rapport van elk project op de "
        "standaarduitvoer, met de bestandsnaam erboven als het er meer zijn. Een map staat voor alle "
        "projecten (*.mrv) die erin staan, een - voor een project op de standaardinvoer. Een - achter --prn "
        "of --json is de standaarduitvoer."},
    OpdrachtRegel{
        Opdracht::Controleer, "controleer", "PROJECT.mrv", true, "controleert projecten zonder te rekenen",
        "Controleert projecten zoals voor een berekening, zonder te rekenen. Elk project dat berekend kan "
        "worden, wordt gemeld als \"in orde\". Een map staat voor alle projecten (*.mrv) die erin staan, een "
        "- voor een project op de standaardinvoer."},
    OpdrachtRegel{Opdracht::Toon, "toon", "PROJECT.mrv", false, "toont een project als JSON",
                  "Toont een project als JSON, zonder verlies. Een - is een project op de standaardinvoer."},
    OpdrachtRegel{
        Opdracht::Maak, "maak", "PROJECT.json", false, "maakt een project uit JSON",
        "Maakt een projectbestand uit JSON; de naam ervan eindigt op mrv. Velden die ontbreken, zijn 0 of "
        "leeg."},
    OpdrachtRegel{Opdracht::CatalogusToon, "catalogus toon", "BESTAND.dat", false,
                  "toont een catalogus als JSON",
                  "Toont een catalogus als JSON, zonder verlies. De soort volgt uit de bestandsnaam "
                  "(Duct.dat, Fan.dat, "
                  "Rduct.dat of Rplaf.dat), uit --soort of, als het kan, uit de lengte van het bestand."},
    OpdrachtRegel{Opdracht::CatalogusMaak, "catalogus maak", "BESTAND.json", false,
                  "maakt een catalogus uit JSON",
                  "Maakt een catalogusbestand uit JSON. De soort volgt uit de lijst in de JSON."},
    OpdrachtRegel{
        Opdracht::CatalogusSorteer, "catalogus sorteer", "BESTAND.dat", false,
        "sorteert een catalogus op naam",
        "Sorteert een catalogus op naam, zoals het venster ervan dat doet, en bewaart haar onder de "
        "naam achter -o, die dezelfde mag zijn. De elf ingebouwde kanaalelementen blijven op hun "
        "plaats. De soort volgt als bij catalogus toon."},
    OpdrachtRegel{Opdracht::Overzicht, "overzicht", "SOORT", false, "toont het overzicht van een catalogus",
                  "Toont het overzicht van een catalogus; SOORT is kanaalelementen, ventilatoren, "
                  "luchtkanalen of plafonds. Met -o komen de bytes van het bewaarde overzicht (Windows-1252) "
                  "in het bestand."},
    OpdrachtRegel{Opdracht::SchatBekleed, "schat bekleed", "", false,
                  "schat de demping van een bekleed kanaal",
                  "Schat de demping van een kanaal met geluidsabsorberende bekleding. "
                  "De omschrijving en de zeven octaafbanden verschijnen elk op een regel. Een optie die "
                  "ontbreekt, is 0."},
    OpdrachtRegel{Opdracht::SchatKwartLambda, "schat kwartlambda", "", false,
                  "schat de demping van een kwartlambda-demper",
                  "Schat de demping van een kwartlambda-demper: een verwijding in een kanaal. "
                  "De omschrijving en de zeven octaafbanden verschijnen elk op een regel. Een optie die "
                  "ontbreekt, is 0."},
    OpdrachtRegel{Opdracht::SchatPlenum, "schat plenum", "", false, "schat de demping van een plenumdemper",
                  "Schat de demping van een bekleed plenum waarin een kanaal uitkomt. "
                  "De omschrijving en de zeven octaafbanden verschijnen elk op een regel. Een optie die "
                  "ontbreekt, is 0."},
    OpdrachtRegel{Opdracht::SchatKanaalwand, "schat kanaalwand", "", false,
                  "schat de geluidsisolatie van een kanaalwand",
                  "Schat de geluidsisolatie van een kanaalwand met de massawet. "
                  "De omschrijving en de zeven octaafbanden verschijnen elk op een regel. Een optie die "
                  "ontbreekt, is 0."},
    OpdrachtRegel{Opdracht::SchatVentilator, "schat ventilator", "", false,
                  "schat het geluidsvermogen van een ventilator",
                  "Schat het geluidsvermogen van een ventilator. De naam, de zeven octaafbanden en het "
                  "niveau in dB(A) verschijnen elk op een regel. Een optie die ontbreekt, is 0."},
    OpdrachtRegel{
        Opdracht::Druk, "", "PROJECT.mrv", true, "",
        "Controleert en berekent projecten en zet van elk het berekeningsformulier in een PDF-bestand, met "
        "lettertype en stijlen van murvane.set. Een map staat voor alle projecten (*.mrv) die erin staan, "
        "een - voor een project op de standaardinvoer."},
};

enum class Optie : std::uint8_t {
  Prn,
  Json,
  Uit,
  Taken,
  Lijst,
  UitvoerToon,
  UitvoerMaak,
  Soort,
  Zoek,
  Datum,
  H,
  B,
  DikteBekleding,
  L,
  S2,
  Hdemper,
  Bdemper,
  KanaalType,
  DikteWand,
  Massa,
  FanType,
  FanDebiet,
  FanDruk,
  FanToeren,
  FanSchoepen,
  FanVermogen,
  JsonSchatting,
  Data,
  Decimaal,
  Versie,
  Help,
  Pdf,
  UitDruk,
  Bmp,
  Grafiek
};

/// The commands that know an option, a bit for each.
using Opdrachtenset = std::uint32_t;

constexpr Opdrachtenset Bij(std::initializer_list<Opdracht> opdrachten) {
  Opdrachtenset uit = 0;
  for (const Opdracht opdracht : opdrachten) uit |= 1U << static_cast<unsigned>(opdracht);
  return uit;
}
inline constexpr Opdrachtenset BijAlle = ~Opdrachtenset{0};

struct OptieRegel {
  Optie Code;
  Opdrachtenset Van;
  std::string_view Namen;     ///< separated by commas, as "-h,--help"
  std::string_view Argument;  ///< what its value is called; empty for an option without one
  bool Verplicht;
  std::string_view Uitleg;
  std::string_view Waarden = {};  ///< the values it may have, separated by "|"; empty for any
  std::string_view Anders = {};   ///< of an option that is required: the one that may stand in its place
};

/// In the order of Optie.
inline constexpr std::array Opties = {
    OptieRegel{Optie::Prn, Bij({Opdracht::Reken}), "--prn", "BESTAND", false,
               "schrijft het rapport als *.prn-bestand (Windows-1252); alleen bij één project"},
    OptieRegel{Optie::Json, Bij({Opdracht::Reken}), "--json", "BESTAND", false,
               "schrijft de resultaten onafgerond als JSON; alleen bij één project"},
    OptieRegel{Optie::Uit, Bij({Opdracht::Reken}), "--uit", "MAP", false,
               "schrijft van elk project NAAM.prn en NAAM.json in deze map, die zo nodig wordt gemaakt"},
    OptieRegel{Optie::Taken, Bij({Opdracht::Reken}), "--taken", "AANTAL", false,
               "rekent met --uit aan zoveel projecten tegelijk; zonder deze optie met alle processorkernen"},
    OptieRegel{
        Optie::Lijst, Bij({Opdracht::Reken, Opdracht::Controleer, Opdracht::Druk}), "--lijst", "BESTAND",
        false,
        "neemt ook de projecten en mappen waarvan de namen in dit bestand staan, elk op een regel of met "
        "een NUL erachter; een - is de standaardinvoer"},
    OptieRegel{Optie::UitvoerToon, Bij({Opdracht::Toon, Opdracht::CatalogusToon, Opdracht::Overzicht}), "-o",
               "BESTAND", false, "schrijft naar dit bestand in plaats van naar de standaarduitvoer"},
    OptieRegel{Optie::UitvoerMaak, Bij({Opdracht::Maak, Opdracht::CatalogusMaak, Opdracht::CatalogusSorteer}),
               "-o", "BESTAND", true, "het bestand dat wordt geschreven; een - is de standaarduitvoer"},
    OptieRegel{Optie::Soort, Bij({Opdracht::CatalogusToon, Opdracht::CatalogusSorteer}), "--soort", "SOORT",
               false, "kanaalelementen, ventilatoren, luchtkanalen of plafonds; gaat voor de bestandsnaam",
               "kanaalelementen|ventilatoren|luchtkanalen|plafonds"},
    OptieRegel{Optie::Zoek, Bij({Opdracht::Overzicht}), "--zoek", "TEKST", false,
               "alleen wat deze tekst in zijn naam heeft, in hoofdletters of kleine letters"},
    OptieRegel{Optie::Datum, Bij({Opdracht::Overzicht}), "--datum", "DD-MM-JJJJ", false,
               "de datum op het overzicht; zonder deze optie die van vandaag"},
    OptieRegel{Optie::H, Bij({Opdracht::SchatBekleed, Opdracht::SchatKwartLambda, Opdracht::SchatPlenum}),
               "--h", "MM", false, "hoogte van het kanaal, of de diameter als het rond is"},
    OptieRegel{Optie::B, Bij({Opdracht::SchatBekleed, Opdracht::SchatKwartLambda, Opdracht::SchatPlenum}),
               "--B", "MM", false, "breedte van het kanaal; 0 is een rond kanaal"},
    OptieRegel{Optie::DikteBekleding, Bij({Opdracht::SchatBekleed, Opdracht::SchatPlenum}), "--Dikte", "MM",
               false, "dikte van het bekledingsmateriaal"},
    OptieRegel{Optie::L, Bij({Opdracht::SchatBekleed, Opdracht::SchatKwartLambda, Opdracht::SchatPlenum}),
               "--L", "M", false, "lengte van het kanaal of de demper"},
    OptieRegel{Optie::S2, Bij({Opdracht::SchatKwartLambda}), "--S2", "M2", false, "doorsnede van de demper"},
    OptieRegel{Optie::Hdemper, Bij({Opdracht::SchatPlenum}), "--Hdemper", "MM", false,
               "hoogte van de plenumdemper"},
    OptieRegel{Optie::Bdemper, Bij({Opdracht::SchatPlenum}), "--Bdemper", "MM", false,
               "breedte van de plenumdemper"},
    OptieRegel{Optie::KanaalType, Bij({Opdracht::SchatKanaalwand}), "--KanaalType", "TYPE", false,
               "1 verzinkt staal, 2 rvs staal, 3 aluminium, 4 kunststof; elk ander getal telt als 1"},
    OptieRegel{Optie::DikteWand, Bij({Opdracht::SchatKanaalwand}), "--Dikte", "MM", false,
               "dikte van de kanaalwand"},
    OptieRegel{Optie::Massa, Bij({Opdracht::SchatKanaalwand}), "--Massa", "KG", false,
               "massa van de ontdreuning per m²"},
    OptieRegel{Optie::FanType, Bij({Opdracht::SchatVentilator}), "--FanType", "TYPE", false,
               "1 axiaal, 2 centrifugaal voorwaarts, 3 centrifugaal achterwaarts"},
    OptieRegel{Optie::FanDebiet, Bij({Opdracht::SchatVentilator}), "--FanDebiet", "M3/S", false,
               "luchtdebiet"},
    OptieRegel{Optie::FanDruk, Bij({Opdracht::SchatVentilator}), "--FanDruk", "PA", false, "totale druk"},
    OptieRegel{Optie::FanToeren, Bij({Opdracht::SchatVentilator}), "--FanToeren", "AANTAL", false,
               "toerental per minuut"},
    OptieRegel{Optie::FanSchoepen, Bij({Opdracht::SchatVentilator}), "--FanSchoepen", "AANTAL", false,
               "aantal schoepen"},
    OptieRegel{Optie::FanVermogen, Bij({Opdracht::SchatVentilator}), "--FanVermogen", "W", false,
               "asvermogen; bij 0 wordt het berekend met een rendement van 70 %"},
    OptieRegel{Optie::JsonSchatting,
               Bij({Opdracht::SchatBekleed, Opdracht::SchatKwartLambda, Opdracht::SchatPlenum,
                    Opdracht::SchatKanaalwand, Opdracht::SchatVentilator}),
               "--json", "", false, "geeft de schatting als JSON"},
    OptieRegel{Optie::Data, BijAlle, "--data", "MAP", false,
               "de map van murvane.set en de catalogi; zonder deze optie de huidige map als die een "
               "murvane.set heeft, anders de "
               "eigen gegevensmap van de gebruiker als die er is, anders de meegeleverde map data"},
    OptieRegel{Optie::Decimaal, BijAlle, "--decimaal", "punt|komma", false,
               "het decimaalteken in rapporten en schattingen; zonder deze optie dat van de landinstelling",
               "punt|komma"},
    OptieRegel{Optie::Versie, BijAlle, "--versie,--version", "", false, "toont de versie van het programma"},
    OptieRegel{Optie::Help, BijAlle, "-h,--help", "", false, "toont deze hulp"},
    OptieRegel{Optie::Pdf,
               Bij({Opdracht::Druk}),
               "--pdf",
               "BESTAND",
               true,
               "het PDF-bestand dat wordt geschreven; een - is de standaarduitvoer; alleen bij één project",
               {},
               "--uit"},
    OptieRegel{Optie::UitDruk, Bij({Opdracht::Druk}), "--uit", "MAP", false,
               "schrijft van elk project NAAM.pdf in deze map, die zo nodig wordt gemaakt"},
    OptieRegel{
        Optie::Bmp, Bij({Opdracht::Druk}), "--bmp", "BESTAND.bmp", false,
        "schrijft ook de eerste vijf pagina's als bitmap, met het paginanummer voor de punt: BESTAND1.bmp; "
        "alleen bij één project"},
    OptieRegel{Optie::Grafiek, Bij({Opdracht::Druk}), "--grafiek", "1m|galmveld|geen", false,
               "de grafiek onder het formulier; zonder deze optie geen", "1m|galmveld|geen"},
};

inline constexpr std::size_t AantalOpties = Opties.size();

constexpr bool Kent(const OptieRegel& optie, Opdracht opdracht) {
  return (optie.Van >> static_cast<unsigned>(opdracht) & 1U) != 0;
}

constexpr const OpdrachtRegel& RegelVan(Opdracht opdracht) {
  return Opdrachten[static_cast<std::size_t>(opdracht)];
}
constexpr const OptieRegel& RegelVan(Optie optie) {
  return Opties[static_cast<std::size_t>(optie)];
}

/// The program that has a command.
constexpr std::string_view Programmanaam(Opdracht opdracht) {
  return opdracht == Opdracht::Druk ? "murvane-druk" : "murvane-cli";
}

/// The first of an option's names.
constexpr std::string_view EersteNaam(const OptieRegel& optie) {
  return optie.Namen.substr(0, optie.Namen.find(','));
}

/// The parts of a text between the signs `teken`; none of an empty text.
inline std::vector<std::string_view> Delen(std::string_view tekst, char teken) {
  std::vector<std::string_view> uit;
  while (!tekst.empty()) {
    const std::size_t einde = tekst.find(teken);
    uit.push_back(tekst.substr(0, einde));
    tekst = einde == std::string_view::npos ? std::string_view() : tekst.substr(einde + 1);
  }
  return uit;
}

/// Whether `naam` is one of an option's names.
inline bool Heet(const OptieRegel& optie, std::string_view naam) {
  const std::vector<std::string_view> namen = Delen(optie.Namen, ',');
  return std::find(namen.begin(), namen.end(), naam) != namen.end();
}

}  // namespace murvane
