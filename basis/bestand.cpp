#include "basis/bestand.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <system_error>

#include "basis/fout.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#ifdef __linux__
#include <sys/xattr.h>
#endif
#endif

namespace murvane {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t Brok = std::size_t{1} << 16;  // bytes at a time

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

#ifdef _WIN32

enum class Rechten : int { Gewoon = _S_IREAD | _S_IWRITE, AlleenEigenaar = _S_IREAD | _S_IWRITE };

int Open(const fs::path& pad, int vlaggen, Rechten rechten) {
  int nummer = -1;
  errno_t code = _wsopen_s(&nummer, pad.c_str(), vlaggen | _O_BINARY | _O_NOINHERIT, _SH_DENYNO,
                           static_cast<int>(rechten));
  std::error_code geen;
  if (code == EACCES && fs::is_directory(pad, geen)) code = EISDIR;
  errno = code;
  return nummer;
}
long long Lees(int nummer, char* naar, std::size_t n) {
  return _read(nummer, naar, static_cast<unsigned>(std::min<std::size_t>(n, 1U << 20)));
}
long long Schrijf(int nummer, const char* van, std::size_t n) {
  return _write(nummer, van, static_cast<unsigned>(std::min<std::size_t>(n, 1U << 20)));
}
bool GaNaar(int nummer, std::size_t plaats) {
  return _lseeki64(nummer, static_cast<long long>(plaats), SEEK_SET) >= 0;
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

enum class Rechten : mode_t { Gewoon = 0666, AlleenEigenaar = 0600 };

/// A system call once more for as long as a signal cuts it short.
template <typename Roep>
auto Herhaald(Roep roep) {
  for (;;) {
    const auto uit = roep();
    if (uit >= 0 || errno != EINTR) return uit;
  }
}

int Open(const fs::path& pad, int vlaggen, Rechten rechten) {
  return Herhaald([&] { return ::open(pad.c_str(), vlaggen | O_CLOEXEC, static_cast<mode_t>(rechten)); });
}
ssize_t Lees(int nummer, char* naar, std::size_t n) {
  return Herhaald([&] { return ::read(nummer, naar, n); });
}
ssize_t Schrijf(int nummer, const char* van, std::size_t n) {
  return Herhaald([&] { return ::write(nummer, van, n); });
}
bool GaNaar(int nummer, std::size_t plaats) {
  return ::lseek(nummer, static_cast<off_t>(plaats), SEEK_SET) >= 0;
}
/// Not once more after a signal: the number is free then, and may already be another thread's file.
int Sluit(int nummer) {
  return ::close(nummer) == 0 || errno == EINTR ? 0 : -1;
}
int Leeg(int nummer) {
  return Herhaald([&] { return ::fsync(nummer); });
}
constexpr int OpenLezen = O_RDONLY;
constexpr int OpenSchrijven = O_WRONLY | O_NOCTTY;
constexpr int OpenNieuw = O_WRONLY | O_CREAT | O_EXCL;

#endif

/// An open file that closes itself; Sluit() closes it and reports a failure.
class Bestandsgreep {
 public:
  Bestandsgreep(const fs::path& pad, int vlaggen, Rechten rechten = Rechten::Gewoon)
      : nummer_(Open(pad, vlaggen, rechten)) {}
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
    if (n < 0) return errno;
    if (n == 0) return ENOSPC;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return 0;
}

/// Appends what `oud` holds from `vanaf` on; the error code, or 0.
int KopieerStaart(const fs::path& oud, std::size_t vanaf, int nummer) {
  Bestandsgreep bron(oud, OpenLezen);
  if (!bron.Gelukt() || !GaNaar(bron.Nummer(), vanaf)) return errno;
  std::string stuk(Brok, '\0');
  for (;;) {
    const auto n = Lees(bron.Nummer(), stuk.data(), stuk.size());
    if (n <= 0) return n < 0 ? errno : 0;
    const auto gelezen = std::string_view(stuk).substr(0, static_cast<std::size_t>(n));
    if (const int code = SchrijfAlles(nummer, gelezen)) return code;
  }
}

void SchrijfDirect(const fs::path& pad, std::string_view bytes) {
  Bestandsgreep bestand(pad, OpenSchrijven);
  if (!bestand.Gelukt()) Faal(errno, pad);
  if (const int code = SchrijfAlles(bestand.Nummer(), bytes)) Faal(code, pad);
  if (!bestand.Sluit()) Faal(errno, pad);
}

/// The file that a path stands for, behind all its symbolic links; the last one may not exist yet.
fs::path AchterLinks(const fs::path& pad) {
  constexpr int MaxLinks = 40;  // as many as the system itself follows
  fs::path doel = pad;
  std::error_code code;
  for (int i = 0; fs::is_symlink(fs::symlink_status(doel, code)); ++i) {
    if (i == MaxLinks) Faal(ELOOP, pad);
    const fs::path verder = fs::read_symlink(doel, code);
    if (code) Faal(Errno(code), pad);
    doel = doel.parent_path() / verder;
  }
  return doel;
}

/// A new, empty file beside `doel`, which removes itself unless it was renamed.
class Buurbestand {
 public:
  Buurbestand(const fs::path& doel, Rechten rechten) {
    for (int i = 0; i < 100; ++i) {  // a killed save of an earlier process may have left such a name
      pad_ = Naam(doel, i);
      bestand_.emplace(pad_, OpenNieuw, rechten);
      opruimen_ = bestand_->Gelukt();
      if (opruimen_ || errno != EEXIST) break;
    }
    if (!opruimen_) Faal(errno, doel);
  }
  Buurbestand(const Buurbestand&) = delete;
  Buurbestand& operator=(const Buurbestand&) = delete;
  ~Buurbestand() {
    if (!opruimen_) return;
    bestand_.reset();
    std::error_code geen;
    fs::remove(pad_, geen);
  }

  [[nodiscard]] int Nummer() const { return bestand_->Nummer(); }
  /// Flushes to disk and closes; the error code, or 0.
  int LeegEnSluit() {
    int code = Leeg(Nummer()) == 0 ? 0 : errno;
    if (!bestand_->Sluit() && code == 0) code = errno;
    return code;
  }
  /// Takes the place of `doel`; the error code, or 0.
  int HernoemNaar(const fs::path& doel);

 private:
  static fs::path Naam(const fs::path& doel, int i) {
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

int ErrnoVan(DWORD code) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return ENOENT;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:  // another program holds the file open
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
      return EACCES;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
      return ENOSPC;
    case ERROR_INVALID_NAME:
    case ERROR_FILENAME_EXCED_RANGE:
      return EINVAL;
    default:
      return EIO;
  }
}

int Buurbestand::HernoemNaar(const fs::path& doel) {
  if (!MoveFileExW(pad_.c_str(), doel.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
    return ErrnoVan(GetLastError());
  opruimen_ = false;
  return 0;
}

int NeemRechtenOver(const fs::path&, int) {
  return 0;  // the directory's rules give a file its rights here
}

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

/// The access list of `oud`, where it has one beyond the nine permission bits; the error code, or 0. Without
/// it the group would get the rights that the list gives to all that it names together.
int NeemToegangslijstOver([[maybe_unused]] const fs::path& oud, [[maybe_unused]] int nummer) {
#ifdef __linux__
  constexpr const char* Lijst = "system.posix_acl_access";
  std::string inhoud(Brok, '\0');  // the longest that the system allows
  const ssize_t n = ::getxattr(oud.c_str(), Lijst, inhoud.data(), inhoud.size());
  if (n > 0 && ::fsetxattr(nummer, Lijst, inhoud.data(), static_cast<std::size_t>(n), 0) != 0) return errno;
#endif
  return 0;
}

/// Gives the new file the owner, group and permissions of `oud`; the error code, or 0. Only a privileged user
/// can give a file away; where the owner or group changes, nobody gets more rights than before.
int NeemRechtenOver(const fs::path& oud, int nummer) {
  struct stat was {};
  struct stat is {};
  if (::stat(oud.c_str(), &was) != 0 || ::fstat(nummer, &is) != 0) return errno;
  mode_t rechten = was.st_mode & 07777U;
  if (is.st_gid != was.st_gid && ::fchown(nummer, static_cast<uid_t>(-1), was.st_gid) != 0)
    rechten = (rechten & 05707U) | (rechten & 07U) << 3;
  if (is.st_uid != was.st_uid && ::fchown(nummer, was.st_uid, static_cast<gid_t>(-1)) != 0) rechten &= 01777U;
  if (::fchmod(nummer, rechten) != 0) {
    // A file system without permissions of its own refuses, and shows the same ones for every file.
    const int code = errno;
    if (::fstat(nummer, &is) != 0 || (is.st_mode & 07777U) != rechten) return code;
  }
  return NeemToegangslijstOver(oud, nummer);
}

#endif

/// A rename needs no right to the file that it replaces; a file that is not ours to write stays as it is.
void EisSchrijfbaar(const fs::path& doel) {
  Bestandsgreep bestand(doel, OpenSchrijven);
  if (!bestand.Gelukt()) Faal(errno, doel);
}

void MaakNieuw(const fs::path& doel, std::string_view bytes) {
  Buurbestand buur(doel, Rechten::Gewoon);
  int code = SchrijfAlles(buur.Nummer(), bytes);
  if (code == 0) code = buur.LeegEnSluit();
  if (code == 0) code = buur.HernoemNaar(doel);
  if (code != 0) Faal(code, doel);
}

void Vervang(const fs::path& doel, std::string_view bytes, Staart staart) {
  EisSchrijfbaar(doel);
  // Nobody may open the new file who may not open the old one, so it starts closed to all others.
  Buurbestand buur(doel, Rechten::AlleenEigenaar);
  int code = NeemRechtenOver(doel, buur.Nummer());
  if (code == 0) code = SchrijfAlles(buur.Nummer(), bytes);
  if (code == 0 && staart == Staart::Blijft) code = KopieerStaart(doel, bytes.size(), buur.Nummer());
  if (code == 0) code = buur.LeegEnSluit();
  if (code == 0) code = buur.HernoemNaar(doel);
  if (code != 0) Faal(code, doel);
}

/// A terminal, a pipe or the like. Behind /dev/stdout such a thing stands under a link whose text names no
/// file, so the system has to follow it.
bool IsApparaat(const fs::path& pad) {
  std::error_code geen;
  return fs::is_other(pad, geen);
}

/// Writes to what a path stands for, which is not a link any more.
void Bewaar(const fs::path& doel, std::string_view bytes, Staart staart) {
  std::error_code code;
  switch (fs::status(doel, code).type()) {
    case fs::file_type::regular:
      return Vervang(doel, bytes, staart);
    case fs::file_type::not_found:
      return MaakNieuw(doel, bytes);
    case fs::file_type::directory:
      Faal(EISDIR, doel);
    case fs::file_type::none:
      Faal(Errno(code), doel);
    default:
      return SchrijfDirect(doel, bytes);
  }
}

}  // namespace

std::string LeesBestand(const fs::path& pad, std::size_t hoogstens) {
  EisNaam(pad);
  Bestandsgreep bestand(pad, OpenLezen);
  if (!bestand.Gelukt()) Faal(errno, pad);
  std::string uit;
  while (uit.size() < hoogstens) {
    const std::size_t had = uit.size();
    uit.resize(had + std::min(Brok, hoogstens - had));
    const auto n = Lees(bestand.Nummer(), uit.data() + had, uit.size() - had);
    if (n < 0) Faal(errno, pad);
    uit.resize(had + static_cast<std::size_t>(n));
    if (n == 0) break;
  }
  return uit;
}

void VervangBestand(const fs::path& pad, std::string_view bytes, Staart staart) {
  EisNaam(pad);
  try {
    Bewaar(IsApparaat(pad) ? pad : AchterLinks(pad), bytes, staart);
  } catch (const Fout& fout) {
    // The name that the caller knows, not what stands behind its links.
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
