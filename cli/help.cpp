#include "cli/help.h"

#include <algorithm>
#include <string_view>

namespace murvane {

namespace {

constexpr std::size_t Regellengte = 80;

/// Characters, not bytes, of UTF-8.
std::size_t Breedte(std::string_view utf8) {
  return static_cast<std::size_t>(std::count_if(
      utf8.begin(), utf8.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

/// Appends a text word by word; lines after the first start with `inspringing` blanks. The cursor stands
/// there.
void VoegAfgebrokenToe(std::string& uit, std::string_view tekst, std::size_t inspringing) {
  std::size_t kolom = inspringing;
  while (!tekst.empty()) {
    const std::string_view woord = tekst.substr(0, tekst.find(' '));
    tekst.remove_prefix(std::min(tekst.size(), woord.size() + 1));
    if (kolom > inspringing && kolom + 1 + Breedte(woord) > Regellengte) {
      uit.append("\n").append(inspringing, ' ');
      kolom = inspringing;
    } else if (kolom > inspringing) {
      uit += ' ';
      ++kolom;
    }
    uit += woord;
    kolom += Breedte(woord);
  }
  uit += '\n';
}

/// A name with its explanation in a second column.
void VoegRegelToe(std::string& uit, std::string_view naam, std::string_view uitleg) {
  constexpr std::size_t Kolom = 26;
  uit.append("  ").append(naam);
  const std::size_t tot = 2 + Breedte(naam);
  if (tot + 2 > Kolom)
    uit.append("\n").append(Kolom, ' ');
  else
    uit.append(Kolom - tot, ' ');
  VoegAfgebrokenToe(uit, uitleg, Kolom);
}

std::string OptieNaam(const OptieRegel& optie) {
  std::string naam(optie.Namen);
  for (std::size_t i = 0; (i = naam.find(',', i)) != std::string::npos; i += 2) naam.replace(i, 1, ", ");
  if (!optie.Argument.empty()) naam.append(" ").append(optie.Argument);
  return naam;
}

std::string Gebruik(const OpdrachtRegel& regel) {
  std::string uit = "Gebruik: " + std::string(Programmanaam(regel.Code));
  if (regel.Code == Opdracht::Programma) return uit + " OPDRACHT [OPTIES]\n\n";
  if (!regel.Naam.empty()) uit.append(" ").append(regel.Naam);
  if (!regel.Argument.empty()) uit.append(" ").append(regel.Argument);
  if (regel.Meer) uit += "...";
  for (const OptieRegel& optie : Opties)
    if (Kent(optie, regel.Code) && optie.Verplicht) uit += " " + OptieNaam(optie);
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
