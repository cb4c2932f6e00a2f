#include "reports/pdf.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "basis/fout.h"
#include "basis/tekst.h"

namespace murvane {

namespace {

[[noreturn]] void GeenPdf() {
  throw Fout(FoutNummer::InterneFout);
}

/// The text between two marks, the first of them sought from the end.
std::string_view Tussen(std::string_view in, std::string_view begin, std::string_view einde) {
  const std::size_t plaats = in.rfind(begin);
  if (plaats == std::string_view::npos) GeenPdf();
  const std::size_t van = plaats + begin.size();
  const std::size_t tot = in.find(einde, van);
  if (tot == std::string_view::npos) GeenPdf();
  return in.substr(van, tot - van);
}

/// The number behind a key.
std::size_t Getal(std::string_view in, std::string_view sleutel) {
  const std::size_t plaats = in.find(sleutel);
  if (plaats == std::string_view::npos) GeenPdf();
  std::string_view rest = in.substr(plaats + sleutel.size());
  rest.remove_prefix(std::min(rest.find_first_not_of(" \r\n"), rest.size()));
  std::size_t getal = 0;
  if (std::from_chars(rest.data(), rest.data() + rest.size(), getal).ec != std::errc{}) GeenPdf();
  return getal;
}

void VoegHexToe(std::string& uit, unsigned eenheid) {
  constexpr std::string_view Cijfers = "0123456789ABCDEF";
  for (const unsigned schuif : {12U, 8U, 4U, 0U}) uit += Cijfers[eenheid >> schuif & 0xF];
}

/// A text string: UTF-16 in hexadecimal. Every character of the code page is one unit of it.
std::string TekstString(std::string_view cp1252) {
  const std::string utf8 = NaarUtf8(cp1252);
  std::string uit = "<FEFF";
  for (std::size_t i = 0; i < utf8.size();) {
    const auto eerste = static_cast<unsigned char>(utf8[i]);
    const auto volgend = [&](std::size_t n) { return static_cast<unsigned>(utf8[i + n]) & 0x3FU; };
    if (eerste < 0x80) {
      VoegHexToe(uit, eerste);
      i += 1;
    } else if (eerste < 0xE0) {
      VoegHexToe(uit, (eerste & 0x1FU) << 6 | volgend(1));
      i += 2;
    } else {
      VoegHexToe(uit, (eerste & 0x0FU) << 12 | volgend(1) << 6 | volgend(2));
      i += 3;
    }
  }
  return uit + ">";
}

/// A line of a cross-reference table, 20 bytes.
std::string Verwijzing(std::size_t plaats) {
  const std::string cijfers = std::to_string(plaats);
  return std::string(10 - std::min<std::size_t>(10, cijfers.size()), '0') + cijfers + " 00000 n \n";
}

}  // namespace

std::string MetAuteur(std::string pdf, std::string_view auteur) {
  if (auteur.empty()) return pdf;
  const std::size_t vorige = Getal(pdf.substr(std::min(pdf.rfind("startxref"), pdf.size())), "startxref");
  const std::string trailer(Tussen(pdf, "trailer", "startxref"));
  const std::size_t info = Getal(trailer, "/Info");
  const std::string nummer = std::to_string(info);
  const std::string gegevens(Tussen(pdf, "\n" + nummer + " 0 obj\n<<", "endobj"));
  if (pdf.back() != '\n') pdf += '\n';
  const std::size_t plaats = pdf.size();
  pdf += nummer + " 0 obj\n<< /Author " + TekstString(auteur) + gegevens + "endobj\n";
  const std::size_t tabel = pdf.size();
  pdf += "xref\n" + nummer + " 1\n" + Verwijzing(plaats);
  pdf += "trailer\n<< /Size " + std::to_string(Getal(trailer, "/Size")) + " /Info " + nummer + " 0 R /Root " +
         std::to_string(Getal(trailer, "/Root")) + " 0 R /Prev " + std::to_string(vorige) +
         " >>\nstartxref\n" + std::to_string(tabel) + "\n%%EOF\n";
  return pdf;
}

}  // namespace murvane
