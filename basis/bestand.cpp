#include "basis/bestand.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>

#include "basis/fout.h"

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace murvane {

namespace fs = std::filesystem;

namespace {

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
    case EINVAL:
      return FoutNummer::OngeldigeBestandsnaam;
    case ENOSPC:
    case EFBIG:
#ifdef EDQUOT
    case EDQUOT:
#endif
      return FoutNummer::SchijfVol;
    case EACCES:
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

#ifdef _WIN32

int Open(const fs::path& pad, int vlaggen) {
  int nummer = -1;
  const errno_t code = _wsopen_s(&nummer, pad.c_str(), vlaggen | _O_BINARY, _SH_DENYNO, _S_IREAD | _S_IWRITE);
  errno = code;
  return nummer;
}
long long Lees(int nummer, char* naar, std::size_t n) {
  return _read(nummer, naar, static_cast<unsigned>(std::min<std::size_t>(n, 1U << 20)));
}
long long Schrijf(int nummer, const char* van, std::size_t n) {
  return _write(nummer, van, static_cast<unsigned>(std::min<std::size_t>(n, 1U << 20)));
}
int Sluit(int nummer) {
  return _close(nummer);
}
int Leeg(int nummer) {
  return _commit(nummer);
}
constexpr int OpenLezen = _O_RDONLY;
constexpr int OpenSchrijven = _O_WRONLY;
constexpr int OpenNieuw = _O_WRONLY | _O_CREAT | _O_EXCL;

#else

int Open(const fs::path& pad, int vlaggen) {
  return ::open(pad.c_str(), vlaggen | O_CLOEXEC, 0666);
}
ssize_t Lees(int nummer, char* naar, std::size_t n) {
  return ::read(nummer, naar, n);
}
ssize_t Schrijf(int nummer, const char* van, std::size_t n) {
  return ::write(nummer, van, n);
}
int Sluit(int nummer) {
  return ::close(nummer);
}
int Leeg(int nummer) {
  return ::fsync(nummer);
}
constexpr int OpenLezen = O_RDONLY;
constexpr int OpenSchrijven = O_WRONLY;
constexpr int OpenNieuw = O_WRONLY | O_CREAT | O_EXCL;

#endif

/// An open file that closes itself; Sluit() closes it and reports a failure.
class Bestandsgreep {
 public:
  Bestandsgreep(const fs::path& pad, int vlaggen) : nummer_(Open(pad, vlaggen)) {}
  Bestandsgreep(const Bestandsgreep&) = delete;
  Bestandsgreep& operator=(const Bestandsgreep&) = delete;
  ~Bestandsgreep() {
    if (nummer_ >= 0) murvane::Sluit(nummer_);
  }
  [[nodiscard]] bool Gelukt() const { return nummer_ >= 0; }
  [[nodiscard]] int Nummer() const { return nummer_; }
  bool Sluit() {
    const int nummer = nummer_;
    nummer_ = -1;
    return murvane::Sluit(nummer) == 0;
  }

 private:
  int nummer_;
};

/// Writes all bytes; the error code, or 0.
int SchrijfAlles(int nummer, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto n = Schrijf(nummer, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) return ENOSPC;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return 0;
}

void SchrijfDirect(const fs::path& pad, std::string_view bytes) {
  Bestandsgreep bestand(pad, OpenSchrijven);
  if (!bestand.Gelukt()) Faal(errno, pad);
  if (const int code = SchrijfAlles(bestand.Nummer(), bytes)) Faal(code, pad);
  if (!bestand.Sluit()) Faal(errno, pad);
}

/// The file that a path stands for, behind all its symbolic links; the last one may not exist yet.
fs::path AchterLinks(const fs::path& pad) {
  fs::path doel = pad;
  std::error_code code;
  for (int i = 0; i < 40 && fs::is_symlink(fs::symlink_status(doel, code)); ++i) {
    const fs::path verder = fs::read_symlink(doel, code);
    if (code) Faal(code.value(), pad);
    doel = verder.is_absolute() ? verder : doel.parent_path() / verder;
  }
  return doel;
}

/// A new, empty file beside `doel`, which removes itself unless it was renamed.
class Buurbestand {
 public:
  explicit Buurbestand(const fs::path& doel) : pad_(Naam(doel)), bestand_(std::in_place, pad_, OpenNieuw) {
    for (int i = 1; !bestand_->Gelukt() && errno == EEXIST && i < 100; ++i) {
      pad_ = Naam(doel, i);
      bestand_.emplace(pad_, OpenNieuw);
    }
  }
  Buurbestand(const Buurbestand&) = delete;
  Buurbestand& operator=(const Buurbestand&) = delete;
  ~Buurbestand() {
    if (!opruimen_) return;
    bestand_.reset();
    std::error_code geen;
    fs::remove(pad_, geen);
  }

  [[nodiscard]] Bestandsgreep& Bestand() { return *bestand_; }
  void Start() { opruimen_ = true; }
  /// Takes the place of `doel`; the error code, or 0.
  int HernoemNaar(const fs::path& doel);

 private:
  static fs::path Naam(const fs::path& doel, int i = 0) {
#ifdef _WIN32
    const auto eigen = std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(i);
#else
    const auto eigen = std::to_string(::getpid()) + "-" + std::to_string(i);
#endif
    fs::path naam = doel;
    naam.replace_filename(fs::path("~murvane-") += eigen);
    return naam;
  }

  fs::path pad_;
  std::optional<Bestandsgreep> bestand_;
  bool opruimen_ = false;
};

#ifdef _WIN32

int Buurbestand::HernoemNaar(const fs::path& doel) {
  if (!MoveFileExW(pad_.c_str(), doel.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
    return GetLastError() == ERROR_ACCESS_DENIED ? EACCES : EIO;
  opruimen_ = false;
  return 0;
}

int NeemRechtenOver(const fs::path&, int) {
  return 0;
}  // the directory's rules give a file its rights here

#else

int Buurbestand::HernoemNaar(const fs::path& doel) {
  if (::rename(pad_.c_str(), doel.c_str()) != 0) return errno;
  opruimen_ = false;
  // The name is safe only when the directory is on disk too. Some file systems cannot flush one; the file
  // itself stands there whole then, so that is not the save's failure.
  Bestandsgreep map(doel.has_parent_path() ? doel.parent_path() : fs::path("."), O_RDONLY | O_DIRECTORY);
  if (map.Gelukt()) Leeg(map.Nummer());
  return 0;
}

int NeemRechtenOver(const fs::path& oud, int nummer) {
  struct stat was {};
  if (::stat(oud.c_str(), &was) != 0) return errno == ENOENT ? 0 : errno;
  // The owner can be kept only by a privileged user; the group perhaps. What is refused changes nothing.
  if (::fchown(nummer, was.st_uid, was.st_gid) != 0 &&
      ::fchown(nummer, static_cast<uid_t>(-1), was.st_gid) != 0)
    errno = 0;
  return ::fchmod(nummer, was.st_mode & 07777) == 0 ? 0 : errno;
}

#endif

void VervangDoel(const fs::path& doel, std::string_view bytes, std::string_view staart) {
  Buurbestand buur(doel);
  if (!buur.Bestand().Gelukt()) {
    const int code = errno;
    Faal(code, doel);
  }
  buur.Start();
  const int nummer = buur.Bestand().Nummer();
  int code = NeemRechtenOver(doel, nummer);
  if (code == 0) code = SchrijfAlles(nummer, bytes);
  if (code == 0) code = SchrijfAlles(nummer, staart);
  if (code == 0 && Leeg(nummer) != 0) code = errno;
  if (!buur.Bestand().Sluit() && code == 0) code = errno;
  if (code == 0) code = buur.HernoemNaar(doel);
  if (code != 0) Faal(code, doel);
}

/// A rename needs no right to the file that it replaces; a file that is not ours to write stays as it is.
void EisSchrijfbaar(const fs::path& doel) {
  Bestandsgreep bestand(doel, OpenSchrijven);
  if (!bestand.Gelukt()) Faal(errno, doel);
}

}  // namespace

std::string LeesBestand(const fs::path& pad, std::size_t hoogstens) {
  Bestandsgreep bestand(pad, OpenLezen);
  if (!bestand.Gelukt()) Faal(errno, pad);
  std::string uit;
  while (uit.size() < hoogstens) {
    constexpr std::size_t Brok = std::size_t{1} << 16;
    const std::size_t had = uit.size();
    uit.resize(had + std::min(Brok, hoogstens - had));
    const auto n = Lees(bestand.Nummer(), uit.data() + had, uit.size() - had);
    const int code = errno;
    uit.resize(had + static_cast<std::size_t>(n < 0 ? 0 : n));
    if (n < 0 && code == EINTR) continue;
    if (n < 0) Faal(code, pad);
    if (n == 0) break;
  }
  return uit;
}

void VervangBestand(const fs::path& pad, std::string_view bytes, Staart staart) {
  const fs::path doel = AchterLinks(pad);
  std::error_code geen;
  const auto soort = fs::status(doel, geen).type();
  if (soort == fs::file_type::directory) Faal(EISDIR, pad);
  if (soort != fs::file_type::regular && soort != fs::file_type::not_found && soort != fs::file_type::none) {
    SchrijfDirect(doel, bytes);
    return;
  }
  try {
    std::string oud;
    if (soort == fs::file_type::regular) {
      EisSchrijfbaar(doel);
      if (staart == Staart::Blijft) oud = LeesBestand(doel);
    }
    const auto rest =
        oud.size() > bytes.size() ? std::string_view(oud).substr(bytes.size()) : std::string_view();
    VervangDoel(doel, bytes, rest);
  } catch (const Fout& fout) {
    throw Fout(fout.Nummer(), Beschrijving(fout.Nummer()), {}, PadTekst(pad));
  }
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
