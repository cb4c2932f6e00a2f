#include "cli/help.h"

#include <string_view>

#include "basis/kolommen.h"

namespace murvane {

namespace {

std::string OptieNaam(const OptieRegel& optie) {
  std::string naam(optie.Namen);
  for (std::size_t i = 0; (i = naam.find(',', i)) != std::string::npos; i += 2) naam.replace(i, 1, ", ");
  if (!optie.Argument.empty()) naam.append(" ").append(optie.Argument);
  return naam;
}

/// A required option in the line of its usage, with the one that may stand in its place.
std::string Gebruiksnaam(const OptieRegel& optie, Opdracht opdracht) {
  for (const OptieRegel& anders : Opties)
    if (Kent(anders, opdracht) && anders.Namen == optie.Anders)
      return "(" + OptieNaam(optie) + " | " + OptieNaam(anders) + ")";
  return OptieNaam(optie);
}

std::string Gebruik(const OpdrachtRegel& regel) {
  std::string uit = "Gebruik: " + std::string(Programmanaam(regel.Code));
  if (regel.Code == Opdracht::Programma) return uit + " OPDRACHT [OPTIES]\n\n";
  if (!regel.Naam.empty()) uit.append(" ").append(regel.Naam);
  if (!regel.Argument.empty()) uit.append(" ").append(regel.Argument);
  if (regel.Meer) uit += "...";
  for (const OptieRegel& optie : Opties)
    if (Kent(optie, regel.Code) && optie.Verplicht) uit += " " + Gebruiksnaam(optie, regel.Code);
  return uit + " [OPTIES]\n\n";
}

void VoegOpdrachtenToe(std::string& uit) {
  uit += "\nOpdrachten:\n";
  for (const OpdrachtRegel& regel : Opdrachten)
    if (!regel.Naam.empty()) VoegRegelToe(uit, regel.Naam, regel.Kort);
  uit += "\nHulp bij een opdracht: murvane-cli OPDRACHT --help\n";
}

}  // namespace

std::string HelpTekst(Opdracht opdracht) {
  const OpdrachtRegel& regel = RegelVan(opdracht);
  std::string uit = Gebruik(regel);
  VoegAfgebrokenToe(uit, regel.Uitleg, 0);
  if (opdracht == Opdracht::Programma) VoegOpdrachtenToe(uit);
  uit += "\nOpties:\n";
  for (const OptieRegel& optie : Opties)
    if (Kent(optie, opdracht)) VoegRegelToe(uit, OptieNaam(optie), optie.Uitleg);
  uit += "\nEindstatus: 0 klaar, 1 fout, 2 afgekeurd door de controle, 64 verkeerd gebruik.\n";
  return uit;
}

std::string HelpVerwijzing(Opdracht opdracht) {
  const std::string naam(RegelVan(opdracht).Naam);
  return "Hulp: " + std::string(Programmanaam(opdracht)) + " " + (naam.empty() ? "" : naam + " ") + "--help";
}

}  // namespace murvane
