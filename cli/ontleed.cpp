#include "cli/ontleed.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>
#include <string_view>

#include "cli/uitslag.h"

namespace murvane {

namespace {

bool IsOptie(std::string_view argument) {
  return argument.size() > 1 && argument.front() == '-';
}

const OptieRegel* ZoekOptie(Opdracht opdracht, std::string_view naam) {
  const auto* regel = std::find_if(Opties.begin(), Opties.end(), [&](const OptieRegel& optie) {
    return Kent(optie, opdracht) && Heet(optie, naam);
  });
  return regel == Opties.end() ? nullptr : regel;
}

[[noreturn]] void Ontbreekt(const OptieRegel& optie) {
  throw Gebruiksfout("Achter " + std::string(EersteNaam(optie)) + " ontbreekt " +
                     std::string(optie.Argument) + ".");
}

/// Where the first argument stands that is neither an option nor the value of one.
std::size_t EersteWoord(const std::vector<std::string>& argumenten) {
  std::size_t i = 0;
  while (i < argumenten.size() && IsOptie(argumenten[i])) {
    const OptieRegel* optie = ZoekOptie(Opdracht::Programma, argumenten[i]);
    i += optie != nullptr && !optie->Argument.empty() ? 2 : 1;
  }
  return std::min(i, argumenten.size());
}

using CliOpties = std::array<CLI::Option*, AantalOpties>;

CliOpties VoegOptiesToe(CLI::App& app, Opdracht opdracht) {
  CliOpties uit{};
  for (std::size_t i = 0; i < AantalOpties; ++i) {
    const OptieRegel& optie = Opties[i];
    if (!Kent(optie, opdracht)) continue;
    const std::string namen(optie.Namen);
    uit[i] = optie.Argument.empty() ? app.add_flag(namen) : app.add_option(namen);
  }
  return uit;
}

/// The parser lets "--prn=" swallow the next argument, and takes "--help=nee" for --help.
void ControleerGelijktekens(Opdracht opdracht, const std::vector<std::string>& argumenten) {
  for (const std::string_view argument : argumenten) {
    if (argument == "--") return;
    const std::size_t gelijk = argument.find('=');
    if (!IsOptie(argument) || gelijk == std::string_view::npos) continue;
    const OptieRegel* optie = ZoekOptie(opdracht, argument.substr(0, gelijk));
    if (optie == nullptr) continue;
    if (optie->Argument.empty())
      throw Gebruiksfout("Bij " + std::string(argument.substr(0, gelijk)) + " hoort geen waarde.");
    if (gelijk + 1 == argument.size()) Ontbreekt(*optie);
  }
}

/// Which option the parser stumbled over: one that was given twice, or the last argument without its value.
[[noreturn]] void MeldAantal(Opdracht opdracht, const CliOpties& opties,
                             const std::vector<std::string>& argumenten) {
  for (std::size_t i = 0; i < AantalOpties; ++i) {
    if (opties[i] != nullptr && opties[i]->count() > 1)
      throw Gebruiksfout("Optie " + std::string(EersteNaam(Opties[i])) + " staat er meer dan één keer.");
  }
  const OptieRegel* laatste = ZoekOptie(opdracht, argumenten.back());
  if (laatste != nullptr) Ontbreekt(*laatste);
  throw Gebruiksfout("Een optie heeft een onverwachte waarde.");
}

void LaatOntleden(CLI::App& app, Opdracht opdracht, const CliOpties& opties,
                  const std::vector<std::string>& argumenten) {
  try {
    app.parse(std::vector<std::string>(argumenten.rbegin(), argumenten.rend()));
  } catch (const CLI::ArgumentMismatch&) {
    MeldAantal(opdracht, opties, argumenten);
  } catch (const CLI::ParseError&) {
    throw Gebruiksfout("Een optie heeft een onverwachte waarde.");
  }
}

void NeemWaarden(Keuzes& keuzes, const CliOpties& opties) {
  for (std::size_t i = 0; i < AantalOpties; ++i) {
    if (opties[i] == nullptr || opties[i]->count() == 0) continue;
    keuzes.Waarden[i] = Opties[i].Argument.empty() ? std::string() : opties[i]->results().front();
  }
}

/// "toon of maak": the second words of the commands of two words that start with this one.
std::string Vervolgwoorden(const std::string& eerste) {
  std::vector<std::string_view> woorden;
  for (const OpdrachtRegel& regel : Opdrachten)
    if (regel.Naam.starts_with(eerste + " ")) woorden.push_back(regel.Naam.substr(eerste.size() + 1));
  std::string uit;
  for (std::size_t i = 0; i < woorden.size(); ++i) {
    if (i > 0) uit += i + 1 == woorden.size() ? " of " : ", ";
    uit += woorden[i];
  }
  return uit;
}

/// A command line whose command is not known: whatever else it holds can only mislead.
[[noreturn]] void MeldOpdracht(const std::vector<std::string>& rest) {
  const auto woord = std::find_if_not(rest.begin(), rest.end(), IsOptie);
  if (woord == rest.end())
    throw Gebruiksfout(rest.empty() ? "Geen opdracht opgegeven." : "Onbekende optie: " + rest[0]);
  const std::string vervolg = Vervolgwoorden(*woord);
  if (!vervolg.empty()) throw Gebruiksfout("Achter " + *woord + " hoort " + vervolg + ".");
  throw Gebruiksfout("Onbekende opdracht: " + *woord);
}

/// What the parser left over: files, and options that it does not know. Behind "--" everything is a file.
void NeemBestanden(Keuzes& keuzes, const std::vector<std::string>& rest) {
  bool alleenBestanden = false;
  for (const std::string& argument : rest) {
    if (!alleenBestanden && argument == "--") {
      alleenBestanden = true;
    } else if (!alleenBestanden && IsOptie(argument)) {
      throw Gebruiksfout("Onbekende optie: " + argument.substr(0, argument.find('=')));
    } else {
      keuzes.Bestanden.push_back(argument);
    }
  }
}

/// Whether the option was given that may stand in the place of this one.
bool HeeftAnders(const Keuzes& keuzes, const OptieRegel& optie) {
  const OptieRegel* anders = ZoekOptie(keuzes.Wat, optie.Anders);
  return anders != nullptr && keuzes.Heeft(anders->Code);
}

/// A value that is missing, because the next option stands in its place, or empty; an option that is missing.
void ControleerAanwezig(const Keuzes& keuzes) {
  for (const OptieRegel& optie : Opties) {
    if (!Kent(optie, keuzes.Wat)) continue;
    const auto& waarde = keuzes.Waarde(optie.Code);
    if (waarde && !optie.Argument.empty() && (waarde->empty() || ZoekOptie(keuzes.Wat, *waarde) != nullptr))
      Ontbreekt(optie);
    if (!waarde && optie.Verplicht && !HeeftAnders(keuzes, optie))
      throw Gebruiksfout("Optie " + std::string(EersteNaam(optie)) + " " + std::string(optie.Argument) +
                         " ontbreekt.");
  }
}

void ControleerBestanden(const Keuzes& keuzes) {
  const OpdrachtRegel& regel = RegelVan(keuzes.Wat);
  const std::vector<std::string>& bestanden = keuzes.Bestanden;
  const std::size_t minst = regel.Argument.empty() ? 0 : 1;
  if (bestanden.size() < minst && !keuzes.Heeft(Optie::Lijst))
    throw Gebruiksfout(std::string(regel.Argument) + " ontbreekt.");
  if (!regel.Meer && bestanden.size() > minst) throw Gebruiksfout("Onverwacht argument: " + bestanden[minst]);
  if (std::find(bestanden.begin(), bestanden.end(), "") != bestanden.end())
    throw Gebruiksfout("Een bestandsnaam is leeg.");
}

/// "a, b of c"
std::string Opsomming(const std::vector<std::string_view>& woorden) {
  std::string uit;
  for (std::size_t i = 0; i < woorden.size(); ++i) {
    if (i > 0) uit += i + 1 == woorden.size() ? " of " : ", ";
    uit += woorden[i];
  }
  return uit;
}

void ControleerWaarden(const Keuzes& keuzes) {
  const auto weiger = [&keuzes](const OptieRegel& optie, const std::string& vraagt) {
    throw Gebruiksfout(std::string(EersteNaam(optie)) + " vraagt " + vraagt + ", niet \"" +
                       *keuzes.Waarde(optie.Code) + "\".");
  };
  for (const OptieRegel& optie : Opties) {
    const std::vector<std::string_view> mag = Delen(optie.Waarden, '|');
    const auto& waarde = keuzes.Waarde(optie.Code);
    if (waarde && !mag.empty() && std::find(mag.begin(), mag.end(), *waarde) == mag.end())
      weiger(optie, Opsomming(mag));
  }
  if (keuzes.Heeft(Optie::Taken) && keuzes.Taken() == 0)
    weiger(RegelVan(Optie::Taken), "een geheel getal vanaf 1");
}

}  // namespace

unsigned Keuzes::Taken() const {
  const std::string tekst = Waarde(Optie::Taken).value_or("");
  unsigned taken = 0;
  const auto [einde, code] = std::from_chars(tekst.data(), tekst.data() + tekst.size(), taken);
  return code == std::errc() && einde == tekst.data() + tekst.size() ? taken : 0;
}

Opdracht NeemOpdracht(std::vector<std::string>& argumenten) {
  const auto woord = argumenten.begin() + static_cast<std::ptrdiff_t>(EersteWoord(argumenten));
  if (woord == argumenten.end()) return Opdracht::Programma;
  const bool tweede = woord + 1 != argumenten.end();
  for (const OpdrachtRegel& regel : Opdrachten) {
    if (regel.Naam.empty()) continue;
    const bool een = *woord == regel.Naam;
    if (!een && !(tweede && *woord + " " + woord[1] == regel.Naam)) continue;
    argumenten.erase(woord, woord + (een ? 1 : 2));
    return regel.Code;
  }
  return Opdracht::Programma;
}

Keuzes Ontleed(Opdracht opdracht, const std::vector<std::string>& argumenten) {
  CLI::App app;
  app.set_help_flag();
  app.allow_extras();
  app.allow_windows_style_options(false);
  const CliOpties opties = VoegOptiesToe(app, opdracht);
  ControleerGelijktekens(opdracht, argumenten);
  LaatOntleden(app, opdracht, opties, argumenten);
  Keuzes keuzes;
  keuzes.Wat = opdracht;
  NeemWaarden(keuzes, opties);
  if (keuzes.Heeft(Optie::Help) || keuzes.Heeft(Optie::Versie)) return keuzes;
  if (opdracht == Opdracht::Programma) MeldOpdracht(app.remaining());
  NeemBestanden(keuzes, app.remaining());
  ControleerAanwezig(keuzes);
  ControleerBestanden(keuzes);
  ControleerWaarden(keuzes);
  return keuzes;
}

}  // namespace murvane
