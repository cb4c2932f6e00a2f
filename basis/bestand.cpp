#include "basis/bestand.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <optional>
#include <system_error>
#include <vector>

#include "basis/fout.h"
#include "basis/greep.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace murvane {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t Brok = std::size_t{1} << 16;  // bytes at a time
constexpr std::string_view RestNaam = "~murvane-";

FoutNummer NummerVan(int code, const fs::path& pad) {
  switch (code) {
    case ENOENT: {
      std::error_code geen;
      const fs::path map = pad.has_parent_path() ? pad.parent_path() : fs::path(".");
      return fs::is_directory(map, geen) ? FoutNummer::BestandNietGevonden : FoutNummer::PadNietGevonden;
    }
    case ENOTDIR:
      return FoutNummer::PadNietGevonden;
    case ENAMETOOLONG:
    case EILSEQ:
    case EINVAL:
      return FoutNummer::OngeldigeBestandsnaam;
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return FoutNummer::SchijfVol;
    case EACCES:
    case EROFS:
    case EPERM:
      return FoutNummer::GeenToestemming;
    default:
      return FoutNummer::PadToegang;
  }
}

[[noreturn]] void Faal(int code, const fs::path& pad) {
  const FoutNummer nummer = NummerVan(code, pad);
  throw Fout(nummer, Beschrijving(nummer), {}, PadTekst(pad));
}

/// The errno of a failure of the standard library, whose own codes differ between systems.
int Errno(const std::error_code& code) {
  const std::error_condition algemeen = code.default_error_condition();
  return algemeen.category() == std::generic_category() ? algemeen.value() : EIO;
}

/// A name that no file can have: without characters, or with a NUL, at which the system would cut it.
void EisNaam(const fs::path& pad) {
  if (pad.empty() || pad.native().find(fs::path::value_type{}) != fs::path::string_type::npos)
    Faal(EINVAL, pad);
}

std::string LeesTot(int nummer, const fs::path& pad, std::size_t hoogstens) {
  std::string uit;
  while (uit.size() < hoogstens) {
    const std::size_t had = uit.size();
    uit.resize(had + std::min(Brok, hoogstens - had));
    const auto n = LeesStuk(nummer, uit.data() + had, uit.size() - had);
    if (n < 0) Faal(errno, pad);
    uit.resize(had + static_cast<std::size_t>(n));
    if (n == 0) break;
  }
  return uit;
}

/// Appends what `oud` holds from `vanaf` on; the error code, or 0.
int KopieerStaart(const fs::path& oud, std::size_t vanaf, int nummer) {
  Bestandsgreep bron(oud, Toegang::Lezen);
  if (!bron.Gelukt() || !GaNaar(bron.Nummer(), vanaf)) return errno;
  std::string stuk(Brok, '\0');
  for (;;) {
    const auto n = LeesStuk(bron.Nummer(), stuk.data(), stuk.size());
    if (n <= 0) return n < 0 ? errno : 0;
    const auto gelezen = std::string_view(stuk).substr(0, static_cast<std::size_t>(n));
    if (const int code = SchrijfAlles(nummer, gelezen)) return code;
  }
}

void SchrijfDirect(const fs::path& pad, std::string_view bytes) {
  Bestandsgreep bestand(pad, Toegang::Schrijven);
  if (!bestand.Gelukt()) Faal(errno, pad);
  if (const int code = SchrijfAlles(bestand.Nummer(), bytes)) Faal(code, pad);
  if (!bestand.Sluit()) Faal(errno, pad);
}

fs::path MapVan(const fs::path& pad) {
  return pad.has_parent_path() ? pad.parent_path() : fs::path(".");
}

/// A new, empty file beside `doel`, locked, which removes itself unless it took the place of `doel`.
class Buurbestand {
 public:
  Buurbestand(const fs::path& doel, Rechten rechten) {
    constexpr int Pogingen = 100;  // at names that are taken
    for (int i = 0; i < Pogingen && !bestaat_; ++i) {
      pad_ = doel;
      pad_.replace_filename(std::string(RestNaam) + EigenNaam());
      bestand_.emplace(pad_, Toegang::Nieuw, rechten);
      bestaat_ = bestand_->Gelukt();
      if (!bestaat_ && errno != EEXIST) break;
    }
    if (!bestaat_) Faal(errno, doel);
    static_cast<void>(Grendel(Nummer()));  // where there are no locks its age protects it
  }
  Buurbestand(const Buurbestand&) = delete;
  Buurbestand& operator=(const Buurbestand&) = delete;
  ~Buurbestand() {
    if (!bestaat_) return;
    bestand_.reset();
    std::error_code geen;
    fs::remove(pad_, geen);
  }

  [[nodiscard]] int Nummer() const { return bestand_->Nummer(); }
  /// Flushes to disk, closes and takes the place of `doel`; the error code, or 0.
  int Wordt(const fs::path& doel) {
    int code = Leeg(Nummer());
    if (!bestand_->Sluit() && code == 0) code = errno;
    if (code == 0) code = Hernoem(pad_, doel);
    if (code == 0) bestaat_ = false;
    return code;
  }

 private:
  fs::path pad_;
  std::optional<Bestandsgreep> bestand_;
  bool bestaat_ = false;
};

void MaakNieuw(const fs::path& doel, std::string_view bytes) {
  Buurbestand buur(doel, Rechten::Gewoon);
  int code = SchrijfAlles(buur.Nummer(), bytes);
  if (code == 0) code = buur.Wordt(doel);
  if (code != 0) Faal(code, doel);
}

/// Gives the file that stands at `doel`, which is no link, other bytes.
void VervangDoel(const fs::path& doel, std::string_view bytes, Staart staart) {
  // Nobody may open the new file who may not open the old one, so it starts closed to all others.
  Buurbestand buur(doel, Rechten::AlleenEigenaar);
  int code = NeemRechtenOver(doel, buur.Nummer());
  if (code == 0) code = SchrijfAlles(buur.Nummer(), bytes);
  if (code == 0 && staart == Staart::Blijft) code = KopieerStaart(doel, bytes.size(), buur.Nummer());
  if (code == 0) code = buur.Wordt(doel);
  if (code != 0) Faal(code, doel);
}

/// What a path stands for, as the system follows it. A rename needs no right to the file that it replaces;
/// one that is not ours to write stays as it is.
fs::path OpenDoel(const fs::path& pad) {
  constexpr int Pogingen = 100;  // at a file in whose place another save puts its own at the same moment
  for (int i = 0; i < Pogingen; ++i) {
    const Bestandsgreep doel(pad, Toegang::Doel);
    // Where a new file cannot be made for want of a name, it is the directory that is missing.
    if (!doel.Gelukt()) Faal(errno == ENOENT ? ENOTDIR : errno, pad);
    fs::path echt = EchtPad(doel.Nummer(), pad);
    if (!echt.empty()) return echt;
  }
  Faal(EIO, pad);
}

/// A link to nothing: the system makes the file behind it, which goes again when the save fails.
void VulNieuwDoel(const fs::path& pad, std::string_view bytes) {
  try {
    VervangDoel(OpenDoel(pad), bytes, Staart::Vervalt);
  } catch (...) {
    std::error_code geen;
    const fs::path doel = fs::canonical(pad, geen);
    if (fs::file_size(doel, geen) == 0) fs::remove(doel, geen);
    throw;
  }
}

/// Writes to what a path stands for.
void Bewaar(const fs::path& pad, std::string_view bytes, Staart staart, Resten resten) {
  std::error_code code;
  const fs::file_type zelf = fs::symlink_status(pad, code).type();
  if (zelf == fs::file_type::none) Faal(Errno(code), pad);
  // Behind /dev/stdout a terminal or pipe stands under a link whose text names no file.
  if (fs::is_other(pad, code)) return SchrijfDirect(pad, bytes);
  if (zelf == fs::file_type::symlink && !fs::exists(pad, code) && !code) return VulNieuwDoel(pad, bytes);
  const fs::path doel = zelf == fs::file_type::not_found ? pad : OpenDoel(pad);
  if (resten == Resten::Weg) RuimRestenOp(MapVan(doel));
  if (zelf == fs::file_type::not_found) return MaakNieuw(doel, bytes);
  VervangDoel(doel, bytes, staart);
}

/// A file that a killed save left: nobody wrote to it for a day, and nobody has it locked now.
bool IsVerlaten(const fs::path& pad) {
  std::error_code code;
  const auto tijd = fs::last_write_time(pad, code);
  if (code || fs::file_time_type::clock::now() - tijd <= std::chrono::hours(24)) return false;
  const Bestandsgreep greep(pad, Toegang::Rest);
  Kenmerk kenmerk;
  return greep.Gelukt() && LeesKenmerk(greep.Nummer(), kenmerk) == 0 && kenmerk.Gewoon &&
         Grendel(greep.Nummer()) == 0;
}

}  // namespace

std::string LeesBestand(const fs::path& pad, std::size_t hoogstens) {
  EisNaam(pad);
  const Bestandsgreep bestand(pad, Toegang::Lezen);
  if (!bestand.Gelukt()) Faal(errno, pad);
  return LeesTot(bestand.Nummer(), pad, hoogstens);
}

Inhoud LeesInhoud(const fs::path& pad) {
  EisNaam(pad);
  const Bestandsgreep bestand(pad, Toegang::LezenNu);
  Kenmerk kenmerk;
  if (!bestand.Gelukt()) Faal(errno, pad);
  if (const int code = LeesKenmerk(bestand.Nummer(), kenmerk)) Faal(code, pad);
  if (!kenmerk.Gewoon) Faal(EIO, pad);
  Inhoud uit{LeesTot(bestand.Nummer(), pad, RuimGenoeg), {}};
  uit.Stempel = {kenmerk.Grootte, kenmerk.Tijd, HashVan(uit.Bytes), uit.Bytes.size()};
  return uit;
}

void VervangBestand(const fs::path& pad, std::string_view bytes, Staart staart, Resten resten) {
  EisNaam(pad);
  try {
    Bewaar(pad, bytes, staart, resten);
  } catch (const Fout& fout) {
    // The name that the caller knows, not what stands behind its links.
    throw Fout(fout.Nummer(), Beschrijving(fout.Nummer()), {}, PadTekst(pad));
  }
}

void RuimRestenOp(const fs::path& map) {
  std::error_code code;
  std::vector<fs::path> verlaten;
  for (fs::directory_iterator ingang(map, code), einde; !code && ingang != einde; ingang.increment(code)) {
    const fs::path& pad = ingang->path();
    if (PadTekst(pad.filename()).starts_with(RestNaam) && IsVerlaten(pad)) verlaten.push_back(pad);
  }
  for (const fs::path& pad : verlaten) fs::remove(pad, code);
}

std::string PadTekst(const fs::path& pad) {
  const auto tekst = pad.u8string();
  return {tekst.begin(), tekst.end()};
}

fs::path PadVan(std::string_view utf8) {
  return {std::u8string(utf8.begin(), utf8.end())};
}

fs::path ProgrammaMap() {
#ifdef _WIN32
  std::wstring naam(32768, L'\0');
  naam.resize(GetModuleFileNameW(nullptr, naam.data(), static_cast<DWORD>(naam.size())));
  return fs::path(naam).parent_path();
#else
  std::error_code geen;
  return fs::read_symlink("/proc/self/exe", geen).parent_path();
#endif
}

}  // namespace murvane
