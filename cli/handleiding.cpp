#include "cli/handleiding.h"

#include <algorithm>
#include <filesystem>
#include <ostream>
#include <system_error>

#include "basis/bestand.h"
#include "cli/uitslag.h"
#include "shell/programmahulp.h"
#include "versie.h"

namespace murvane {

namespace fs = std::filesystem;

namespace {

Hulpoptie VanRegel(const OptieRegel& regel) {
  return {Delen(regel.Namen, ','), regel.Argument, Delen(regel.Waarden, '|'), regel.Uitleg,
          regel.Verplicht,         regel.Anders};
}

Hulpopdracht VanRegel(const OpdrachtRegel& regel) {
  Hulpopdracht uit{regel.Naam, regel.Argument, regel.Meer, regel.Kort, regel.Uitleg, {}, {}};
  const OptieRegel& soort = RegelVan(Optie::Soort);
  if (regel.Argument == soort.Argument) uit.Woorden = Delen(soort.Waarden, '|');
  for (const OptieRegel& optie : Opties)
    if (Kent(optie, regel.Code)) uit.Opties.push_back(VanRegel(optie));
  return uit;
}

// ---- The manual page ----

/// A text as man(7) takes it: minus signs that may be copied, and nothing that it reads as a command.
std::string Roff(std::string_view tekst) {
  std::string uit;
  if (tekst.starts_with('.') || tekst.starts_with('\'')) uit = "\\&";
  for (const char c : tekst) {
    if (c == '\\') uit += "\\e";
    if (c == '-') uit += '\\';
    if (c != '\\') uit += c;
  }
  return uit;
}

std::string Vet(std::string_view tekst) {
  return "\\fB" + Roff(tekst) + "\\fR";
}
std::string Schuin(std::string_view tekst) {
  return "\\fI" + Roff(tekst) + "\\fR";
}

std::string RoffNamen(const Hulpoptie& optie) {
  std::string uit;
  for (const std::string_view naam : optie.Namen) uit += (uit.empty() ? "" : ", ") + Vet(naam);
  return optie.Argument.empty() ? uit : uit + " " + Schuin(optie.Argument);
}

std::string RoffVerplicht(const Hulpoptie& optie, const Hulpopdracht& opdracht) {
  for (const Hulpoptie& anders : opdracht.Opties)
    if (anders.Namen.front() == optie.Anders) return "(" + RoffNamen(optie) + " | " + RoffNamen(anders) + ")";
  return RoffNamen(optie);
}

std::string RoffGebruik(const Hulpprogramma& programma, const Hulpopdracht& opdracht) {
  std::string uit = Vet(programma.Naam);
  if (!opdracht.Naam.empty()) uit += " " + Vet(opdracht.Naam);
  if (!opdracht.Argument.empty()) uit += " " + Schuin(opdracht.Argument);
  if (opdracht.Meer) uit += "...";
  for (const Hulpoptie& optie : opdracht.Opties)
    if (optie.Verplicht) uit += " " + RoffVerplicht(optie, opdracht);
  if (!opdracht.Opties.empty()) uit += " [" + Schuin("OPTIES") + "]";
  return uit;
}

std::string RoffRegel(const std::string& woord, std::string_view uitleg) {
  return ".TP\n" + woord + "\n" + Roff(uitleg) + "\n";
}

std::string RoffOpties(const Hulpopdracht& opdracht) {
  std::string uit;
  for (const Hulpoptie& optie : opdracht.Opties) uit += RoffRegel(RoffNamen(optie), optie.Uitleg);
  return uit;
}

std::string RoffOverzicht(const Hulpprogramma& programma) {
  std::string uit = ".SH OVERZICHT\n";
  const bool metOpdrachten = programma.Opdrachten.size() > 1;
  for (const Hulpopdracht& opdracht : programma.Opdrachten) {
    if (metOpdrachten && opdracht.Naam.empty()) continue;
    if (!uit.ends_with("OVERZICHT\n")) uit += ".br\n";
    uit += RoffGebruik(programma, opdracht) + "\n";
  }
  return uit;
}

/// The commands, each with its own options: those that the program itself has are told once, at the end.
std::string RoffOpdrachten(const Hulpprogramma& programma) {
  std::string uit = ".SH OPDRACHTEN\n";
  const std::vector<Hulpoptie>& algemeen = programma.Opdrachten.front().Opties;
  for (const Hulpopdracht& opdracht : programma.Opdrachten) {
    if (opdracht.Naam.empty()) continue;
    uit += ".SS " + Roff(opdracht.Naam) + "\n" + Roff(opdracht.Uitleg) + "\n";
    Hulpopdracht eigen = opdracht;
    std::erase_if(eigen.Opties, [&](const Hulpoptie& optie) {
      return std::any_of(algemeen.begin(), algemeen.end(),
                         [&](const Hulpoptie& andere) { return andere.Namen == optie.Namen; });
    });
    uit += RoffOpties(eigen);
  }
  return uit;
}

std::string RoffKop(const Hulpkop& kop) {
  std::string uit = ".SH " + std::string(kop.Kop) + "\n";
  for (const Hulpregel& regel : kop.Regels) uit += RoffRegel(Vet(regel.Woord), regel.Uitleg);
  return uit;
}

std::string RoffZieOok(const Hulpprogramma& programma) {
  std::string uit;
  for (const std::string_view naam : programma.ZieOok)
    uit += (uit.empty() ? ".SH ZIE OOK\n" : ",\n") + Vet(naam) + "(1)";
  return uit.empty() ? uit : uit + "\n";
}

std::string Hoofdletters(std::string_view naam) {
  std::string uit(naam);
  for (char& c : uit)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return uit;
}

// ---- Completion ----

/// What completes a value or a file.
enum class Soort { Niets, Woorden, Map, Bestand };

Soort SoortVan(const Hulpoptie& optie) {
  if (!optie.Waarden.empty()) return Soort::Woorden;
  if (optie.Argument == "MAP") return Soort::Map;
  return optie.Argument.starts_with("BESTAND") ? Soort::Bestand : Soort::Niets;
}

/// The extension in "PROJECT.mrv"; empty for any file.
std::string_view Extensie(std::string_view argument) {
  const std::size_t punt = argument.rfind('.');
  return punt == std::string_view::npos ? std::string_view() : argument.substr(punt + 1);
}

std::string Aaneen(const std::vector<std::string_view>& woorden, std::string_view tussen) {
  std::string uit;
  for (const std::string_view woord : woorden) uit.append(uit.empty() ? "" : tussen).append(woord);
  return uit;
}

std::string_view EersteWoord(std::string_view naam) {
  return naam.substr(0, naam.find(' '));
}

/// The first words of the commands, each once.
std::vector<std::string_view> EersteWoorden(const Hulpprogramma& programma) {
  std::vector<std::string_view> uit;
  for (const Hulpopdracht& opdracht : programma.Opdrachten) {
    const std::string_view woord = EersteWoord(opdracht.Naam);
    if (!woord.empty() && std::find(uit.begin(), uit.end(), woord) == uit.end()) uit.push_back(woord);
  }
  return uit;
}

/// The second words of the commands that start with `eerste`.
std::vector<std::string_view> TweedeWoorden(const Hulpprogramma& programma, std::string_view eerste) {
  std::vector<std::string_view> uit;
  for (const Hulpopdracht& opdracht : programma.Opdrachten) {
    if (EersteWoord(opdracht.Naam) == eerste && opdracht.Naam.size() > eerste.size())
      uit.push_back(opdracht.Naam.substr(eerste.size() + 1));
  }
  return uit;
}

std::string FunctieNaam(const Hulpprogramma& programma) {
  std::string uit = "_" + std::string(programma.Naam);
  std::replace(uit.begin(), uit.end(), '-', '_');
  return uit;
}

// ---- bash ----

std::string BashWoorden(const std::vector<std::string_view>& woorden) {
  return "COMPREPLY=($(compgen -W '" + Aaneen(woorden, " ") + "' -- \"$cur\"))";
}

std::string BashWaarde(const Hulpoptie& optie) {
  switch (SoortVan(optie)) {
    case Soort::Woorden:
      return BashWoorden(optie.Waarden) + "; return";
    case Soort::Map:
      return "_filedir -d; return";
    case Soort::Bestand:
      return "_filedir; return";
    case Soort::Niets:
      break;
  }
  return "return";
}

std::vector<std::string_view> AlleNamen(const Hulpopdracht& opdracht) {
  std::vector<std::string_view> uit;
  for (const Hulpoptie& optie : opdracht.Opties)
    uit.insert(uit.end(), optie.Namen.begin(), optie.Namen.end());
  return uit;
}

/// What completes behind one command: the value of an option, an option, or `anders`.
std::string BashOpdracht(const Hulpopdracht& opdracht, const std::string& anders) {
  std::string uit = "    '" + std::string(opdracht.Naam) + "')\n      case $prev in\n";
  for (const Hulpoptie& optie : opdracht.Opties) {
    if (!optie.Argument.empty())
      uit += "        " + Aaneen(optie.Namen, " | ") + ") " + BashWaarde(optie) + " ;;\n";
  }
  uit += "        '') ;;\n      esac\n      $split && return\n";
  if (!opdracht.Opties.empty())
    uit += "      if [[ $cur == -* ]]; then " + BashWoorden(AlleNamen(opdracht)) + "; return; fi\n";
  return uit + "      " + anders + "\n      ;;\n";
}

std::string BashBestand(const Hulpopdracht& opdracht) {
  if (opdracht.Argument.empty()) return ":";
  if (!opdracht.Woorden.empty()) return BashWoorden(opdracht.Woorden);
  const std::string_view extensie = Extensie(opdracht.Argument);
  return "_filedir" + (extensie.empty() ? "" : " " + std::string(extensie));
}

/// The words before the cursor that name the command; the values of the program's options are passed over.
std::string BashZoekOpdracht(const Hulpprogramma& programma) {
  std::string waarden;
  for (const Hulpoptie& optie : programma.Opdrachten.front().Opties)
    if (!optie.Argument.empty()) waarden += (waarden.empty() ? "" : " | ") + Aaneen(optie.Namen, " | ");
  std::string dubbel;
  for (const std::string_view woord : EersteWoorden(programma))
    if (!TweedeWoorden(programma, woord).empty()) dubbel.append(dubbel.empty() ? "" : " | ").append(woord);
  std::string uit = "  for ((i = 1; i < cword; i++)); do\n    case ${words[i]} in\n";
  if (!waarden.empty()) uit += "      " + waarden + ") ((i++)) ;;\n";
  uit += "      -*) ;;\n";
  if (!dubbel.empty()) uit += "      " + dubbel + ") [[ -z $opdracht ]] || break; opdracht=${words[i]} ;;\n";
  return uit + "      *) opdracht+=${opdracht:+ }${words[i]}; break ;;\n    esac\n  done\n";
}

std::string BashGevallen(const Hulpprogramma& programma) {
  if (programma.Opdrachten.size() == 1)
    return BashOpdracht(programma.Opdrachten.front(), BashBestand(programma.Opdrachten.front()));
  std::string uit;
  for (const Hulpopdracht& opdracht : programma.Opdrachten) {
    uit += BashOpdracht(
        opdracht, opdracht.Naam.empty() ? BashWoorden(EersteWoorden(programma)) : BashBestand(opdracht));
  }
  for (const std::string_view woord : EersteWoorden(programma)) {
    const std::vector<std::string_view> tweede = TweedeWoorden(programma, woord);
    if (!tweede.empty()) uit += "    '" + std::string(woord) + "') " + BashWoorden(tweede) + " ;;\n";
  }
  return uit;
}

// ---- zsh ----

/// A text within single quotes, with what _arguments and _describe read as a sign made plain.
std::string ZshTekst(std::string_view tekst) {
  std::string uit;
  for (const char c : tekst) {
    if (c == '\'') uit += "'\\''";
    if (c == '[' || c == ']' || c == ':' || c == '\\') uit += '\\';
    if (c != '\'') uit += c;
  }
  return uit;
}

std::string ZshActie(const Hulpoptie& optie) {
  switch (SoortVan(optie)) {
    case Soort::Woorden:
      return "(" + Aaneen(optie.Waarden, " ") + ")";
    case Soort::Map:
      return "_files -/";
    case Soort::Bestand:
      return "_files";
    case Soort::Niets:
      break;
  }
  return " ";
}

/// A long option takes its value behind a blank or a "=".
std::string ZshNaam(const Hulpoptie& optie, std::string_view naam) {
  return std::string(naam) + (!optie.Argument.empty() && naam.starts_with("--") ? "=" : "");
}

std::string ZshOptie(const Hulpoptie& optie) {
  std::string namen;
  for (const std::string_view naam : optie.Namen)
    namen.append(namen.empty() ? "" : ",").append(ZshNaam(optie, naam));
  std::string uit = "    '" + namen;
  if (optie.Namen.size() > 1) uit = "    '(" + Aaneen(optie.Namen, " ") + ")'{" + namen + "}'";
  uit += "[" + ZshTekst(optie.Uitleg) + "]";
  if (!optie.Argument.empty()) uit += ":" + ZshTekst(optie.Argument) + ":" + ZshActie(optie);
  return uit + "' \\\n";
}

std::string ZshOpties(const Hulpopdracht& opdracht) {
  std::string uit;
  for (const Hulpoptie& optie : opdracht.Opties) uit += ZshOptie(optie);
  return uit;
}

std::string ZshBestand(const Hulpopdracht& opdracht) {
  if (opdracht.Argument.empty()) return "";
  const std::string_view extensie = Extensie(opdracht.Argument);
  std::string uit =
      "    '" + std::string(opdracht.Meer ? "*" : "1") + ":" + ZshTekst(opdracht.Argument) + ":";
  if (!opdracht.Woorden.empty()) return uit + "(" + Aaneen(opdracht.Woorden, " ") + ")' \\\n";
  uit += "_files";
  if (!extensie.empty()) uit += " -g \"(#i)*." + std::string(extensie) + "(-.)\"";
  return uit + "' \\\n";
}

std::string ZshArgumenten(const Hulpopdracht& opdracht) {
  return "  _arguments -s \\\n" + ZshOpties(opdracht) + ZshBestand(opdracht) + "    && return\n";
}

/// What the commands do that start with these words.
std::string KortVan(const Hulpprogramma& programma, const std::string& begin) {
  std::string uit;
  for (const Hulpopdracht& opdracht : programma.Opdrachten) {
    if (opdracht.Naam == begin || opdracht.Naam.starts_with(begin + " "))
      uit.append(uit.empty() ? "" : "; ").append(opdracht.Kort);
  }
  return uit;
}

/// The words that may stand behind `begin`, with what they do.
std::string ZshWoorden(const Hulpprogramma& programma, const std::string& begin,
                       const std::vector<std::string_view>& woorden) {
  std::string uit = "    woorden=(";
  for (const std::string_view woord : woorden) {
    const std::string naam = begin + (begin.empty() ? "" : " ") + std::string(woord);
    uit += "\n      '" + std::string(woord) + ":" + ZshTekst(KortVan(programma, naam)) + "'";
  }
  return uit + ")\n    _describe opdracht woorden\n    return\n";
}

std::string ZshTweede(const Hulpprogramma& programma) {
  std::string uit;
  for (const std::string_view woord : EersteWoorden(programma)) {
    const std::vector<std::string_view> tweede = TweedeWoorden(programma, woord);
    if (tweede.empty()) continue;
    uit += "  if [[ $opdracht == " + std::string(woord) + " ]] && (( CURRENT == 2 )); then\n" +
           ZshWoorden(programma, std::string(woord), tweede) + "  fi\n" +
           "  if [[ $opdracht == " + std::string(woord) +
           " ]]; then\n    opdracht+=\" $words[2]\"\n    shift words\n" + "    (( CURRENT-- ))\n  fi\n";
  }
  return uit;
}

std::string ZshOpdrachten(const Hulpprogramma& programma) {
  std::string uit = "  local curcontext=\"$curcontext\" state opdracht\n  local -a line woorden\n" +
                    std::string("  _arguments -C \\\n") + ZshOpties(programma.Opdrachten.front()) +
                    "    '1:opdracht:->opdracht' \\\n    '*::argument:->argument' && return\n" +
                    "  if [[ $state == opdracht ]]; then\n" +
                    ZshWoorden(programma, "", EersteWoorden(programma)) + "  fi\n  opdracht=$words[1]\n" +
                    ZshTweede(programma) + "  case $opdracht in\n";
  for (const Hulpopdracht& opdracht : programma.Opdrachten) {
    if (!opdracht.Naam.empty())
      uit += "  '" + std::string(opdracht.Naam) + "')\n" + ZshArgumenten(opdracht) + "  ;;\n";
  }
  return uit + "  esac\n";
}

// ---- The programs ----

Hulpkop Eindstatus() {
  return {"EINDSTATUS",
          {{"0", "klaar"}, {"1", "fout"}, {"2", "afgekeurd door de controle"}, {"64", "verkeerd gebruik"}}};
}

Hulpregel EigenGegevensmap() {
  return {"XDG_DATA_HOME", "waar de eigen gegevensmap murvane staat; zonder deze variabele ~/.local/share"};
}

Hulpkop Gegevensbestanden() {
  return {
      "BESTANDEN",
      {{"murvane.set", "de instellingen: lettertype en opmaak van het formulier, gebruikersnaam"},
       {"Duct.dat, Fan.dat, Rduct.dat, Rplaf.dat",
        "de catalogi: kanaalelementen, ventilatoren, luchtkanalen en plafonds; ze staan in dezelfde map als "
        "murvane.set"},
       {"*.mrv", "een project"}}};
}

void SchrijfHulp(const fs::path& map) {
  std::error_code blijkt;  // when the files are written
  for (const char* deel : {"man", "bash", "zsh"}) fs::create_directories(map / deel, blijkt);
  for (const Hulpprogramma& programma : Hulpprogrammas()) {
    const std::string naam(programma.Naam);
    VervangBestand(map / "man" / (naam + ".1"), ManPagina(programma));
    VervangBestand(map / "bash" / naam, BashAanvulling(programma));
    VervangBestand(map / "zsh" / ("_" + naam), ZshAanvulling(programma));
  }
}

}  // namespace

std::string ManPagina(const Hulpprogramma& programma) {
  std::string uit = ".TH " + Hoofdletters(programma.Naam) + " 1 " + VersieDatum + " \"MurVane " +
                    VersieTekst + "\" \"Gebruikersopdrachten\"\n.SH NAAM\n" + Roff(programma.Naam) + " \\- " +
                    Roff(programma.Kort) + "\n";
  const Hulpopdracht& zelf = programma.Opdrachten.front();
  uit += RoffOverzicht(programma) + ".SH BESCHRIJVING\n" + Roff(zelf.Uitleg) + "\n";
  if (programma.Opdrachten.size() > 1) uit += RoffOpdrachten(programma);
  if (!zelf.Opties.empty()) uit += ".SH OPTIES\n" + RoffOpties(zelf);
  for (const Hulpkop& kop : programma.Koppen) uit += RoffKop(kop);
  return uit + RoffZieOok(programma);
}

std::string BashAanvulling(const Hulpprogramma& programma) {
  const std::string functie = FunctieNaam(programma);
  return "# Aanvulling van " + std::string(programma.Naam) + " voor bash.\n" + functie + "() {\n" +
         "  local cur prev words cword split opdracht= i\n  _init_completion -s || return\n" +
         (programma.Opdrachten.size() > 1 ? BashZoekOpdracht(programma) : "") + "  case $opdracht in\n" +
         BashGevallen(programma) + "  esac\n} &&\n  complete -F " + functie + " " +
         std::string(programma.Naam) + "\n";
}

std::string ZshAanvulling(const Hulpprogramma& programma) {
  const std::string functie = FunctieNaam(programma);
  return "#compdef " + std::string(programma.Naam) + "\n" + functie + "() {\n" +
         (programma.Opdrachten.size() > 1 ? ZshOpdrachten(programma)
                                          : ZshArgumenten(programma.Opdrachten.front())) +
         "}\n" + functie + " \"$@\"\n";
}

Hulpprogramma HulpVanCli() {
  Hulpprogramma uit{"murvane-cli", "berekent geluidsniveaus van luchttechnische installaties", {}, {}, {}};
  for (const OpdrachtRegel& regel : Opdrachten)
    if (regel.Code == Opdracht::Programma || !regel.Naam.empty()) uit.Opdrachten.push_back(VanRegel(regel));
  uit.Koppen = {Eindstatus(),
                {"OMGEVING", {EigenGegevensmap()}},
                Gegevensbestanden(),
                {"VOORBEELDEN",
                 {{"murvane-cli reken kantoor.mrv", "het rapport op de standaarduitvoer"},
                  {"murvane-cli reken *.mrv --uit resultaten",
                   "van elk project een rapport en de resultaten als JSON, op alle processorkernen"},
                  {"murvane-cli toon kantoor.mrv -o kantoor.json", "een project als leesbare tekst"}}}};
  uit.ZieOok = {"murvane", "murvane-druk"};
  return uit;
}

Hulpprogramma HulpVanDruk() {
  Hulpprogramma uit{"murvane-druk",
                    "zet het berekeningsformulier van projecten in PDF-bestanden",
                    {VanRegel(RegelVan(Opdracht::Druk))},
                    {Eindstatus(), {"OMGEVING", {EigenGegevensmap()}}, Gegevensbestanden()},
                    {"murvane", "murvane-cli"}};
  return uit;
}

Hulpprogramma HulpVanMurvane() {
  Hulpopdracht zelf;
  zelf.Argument = "PROJECT.mrv";
  zelf.Uitleg = ProgrammaUitleg;
  for (const Programmawoord& woord : Programmawoorden)
    zelf.Opties.push_back({{woord.Woord}, "", {}, woord.Uitleg});
  Hulpprogramma uit{"murvane", "geluid in luchtkanalen, van ventilator tot vertrek", {zelf}, {}, {}};
  uit.Koppen = {
      {"OMGEVING",
       {{"MURVANE_BUREAUBLAD=1", "werkt in de eigen gegevensmap, waar ook gestart"},
        {"MURVANE_ROOKPROEF=1",
         "start het programma in zijn geheel, opent het project en eindigt: met status 0 als er niets "
         "te melden was, anders met 1"},
        EigenGegevensmap()}},
      Gegevensbestanden()};
  uit.ZieOok = {"murvane-cli", "murvane-druk"};
  return uit;
}

std::vector<Hulpprogramma> Hulpprogrammas() {
  return {HulpVanMurvane(), HulpVanCli(), HulpVanDruk()};
}

int MaakHulp(std::span<const std::string> argumenten, std::ostream& fouten) {
  if (argumenten.size() != 1 || argumenten[0].starts_with('-')) {
    fouten << "Gebruik: murvane-maakhulp MAP\n"
              "Maakt de handleidingen (man) en de aanvulling voor bash en zsh in MAP.\n";
    return status::VerkeerdGebruik;
  }
  const Uitslag uitslag = Bewaakt("murvane-maakhulp", [&] {
    SchrijfHulp(PadVan(argumenten[0]));
    return Uitslag{};
  });
  Kanalen kanalen{fouten, fouten};
  Meld(uitslag, kanalen);
  return uitslag.Status;
}

}  // namespace murvane
