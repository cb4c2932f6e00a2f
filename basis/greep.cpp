#include "basis/greep.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <random>
#include <string>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#ifdef __linux__
#include <sys/xattr.h>
#endif
#endif

namespace murvane {

namespace fs = std::filesystem;

namespace {

/// A number of chance. Where the system has none the time will do: a name that is taken is tried again.
std::uint64_t Toeval() {
  try {
    std::random_device bron;
    return std::uint64_t{bron()} << 32U | bron();
  } catch (...) {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  }
}

#ifdef _WIN32

constexpr unsigned HoogstensTegelijk = 1U << 20;  // bytes

int Vlaggen(Toegang toegang) {
  switch (toegang) {
    case Toegang::Lezen:
    case Toegang::LezenNu:
    case Toegang::Rest:
      return _O_RDONLY;
    case Toegang::Doel:
      return _O_WRONLY | _O_CREAT;
    case Toegang::Nieuw:
      return _O_WRONLY | _O_CREAT | _O_EXCL;
    default:
      return _O_WRONLY;
  }
}

int Open(const fs::path& pad, Toegang toegang, Rechten) {
  int nummer = -1;
  errno_t code = _wsopen_s(&nummer, pad.c_str(), Vlaggen(toegang) | _O_BINARY | _O_NOINHERIT, _SH_DENYNO,
                           _S_IREAD | _S_IWRITE);
  std::error_code geen;
  if (code == EACCES && fs::is_directory(pad, geen)) code = EISDIR;
  errno = code;
  return nummer;
}

long long SchrijfStuk(int nummer, const char* van, std::size_t n) {
  return _write(nummer, van, static_cast<unsigned>(std::min<std::size_t>(n, HoogstensTegelijk)));
}

bool SluitNummer(int nummer) {
  return _close(nummer) == 0;
}

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

unsigned long Proces() {
  return GetCurrentProcessId();
}

}  // namespace

long long LeesStuk(int nummer, char* naar, std::size_t n) {
  return _read(nummer, naar, static_cast<unsigned>(std::min<std::size_t>(n, HoogstensTegelijk)));
}

bool GaNaar(int nummer, std::size_t plaats) {
  return _lseeki64(nummer, static_cast<long long>(plaats), SEEK_SET) >= 0;
}

int Leeg(int nummer) {
  return _commit(nummer) == 0 ? 0 : errno;
}

int LeesKenmerk(int nummer, Kenmerk& uit) {
  constexpr std::int64_t NsPerSeconde = 1'000'000'000;
  struct _stat64 is {};
  if (_fstat64(nummer, &is) != 0) return errno;
  uit = {(is.st_mode & _S_IFMT) == _S_IFREG, static_cast<std::uint64_t>(is.st_size),
         is.st_mtime * NsPerSeconde};
  return 0;
}

fs::path EchtPad(int nummer, const fs::path& pad) {
  std::error_code geen;
  std::wstring naam(32768, L'\0');
  auto* const greep = reinterpret_cast<HANDLE>(_get_osfhandle(nummer));
  naam.resize(GetFinalPathNameByHandleW(greep, naam.data(), static_cast<DWORD>(naam.size()), 0));
  return naam.empty() ? fs::canonical(pad, geen) : fs::path(naam);
}

int Grendel(int) {
  return 0;  // a file that is open cannot be removed here
}

bool LeidtNaar(const fs::path& pad, int) {
  std::error_code geen;
  return fs::exists(pad, geen);
}

int NeemRechtenOver(const fs::path&, int) {
  return 0;  // the directory's rules give a file its rights here
}

int Hernoem(const fs::path& van, const fs::path& naar) {
  const bool gelukt =
      MoveFileExW(van.c_str(), naar.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
  return gelukt ? 0 : ErrnoVan(GetLastError());
}

#else

/// A system call once more for as long as a signal cuts it short.
template <typename Roep>
auto Herhaald(Roep roep) {
  for (;;) {
    const auto uit = roep();
    if (uit >= 0 || errno != EINTR) return uit;
  }
}

int Vlaggen(Toegang toegang) {
  constexpr int Nu = O_NONBLOCK | O_NOCTTY;
  switch (toegang) {
    case Toegang::Lezen:
      return O_RDONLY;
    case Toegang::LezenNu:
      return O_RDONLY | Nu;
    case Toegang::Schrijven:
      return O_WRONLY | O_NOCTTY;
    case Toegang::SchrijvenNu:
      return O_WRONLY | Nu;
    case Toegang::Doel:
      return O_WRONLY | O_CREAT | Nu;
    case Toegang::Nieuw:
      return O_WRONLY | O_CREAT | O_EXCL;
    default:
      return O_RDONLY | O_NOFOLLOW | Nu;
  }
}

int Open(const fs::path& pad, Toegang toegang, Rechten rechten) {
  const mode_t wie = rechten == Rechten::Gewoon ? 0666 : 0600;
  const int vlaggen = Vlaggen(toegang) | O_CLOEXEC;
  const int nummer = Herhaald([&] { return ::open(pad.c_str(), vlaggen, wie); });
  if (nummer >= 0 || errno != EWOULDBLOCK) return nummer;
  // A file server has the file on lease and is asked to give it back, which takes a moment.
  return Herhaald([&] { return ::open(pad.c_str(), vlaggen & ~O_NONBLOCK, wie); });
}

ssize_t SchrijfStuk(int nummer, const char* van, std::size_t n) {
  return Herhaald([&] { return ::write(nummer, van, n); });
}

/// Not once more after a signal: the number is free then, and may already be another thread's file.
bool SluitNummer(int nummer) {
  return ::close(nummer) == 0 || errno == EINTR;
}

bool IsEen(const struct stat& een, const struct stat& ander) {
  return een.st_dev == ander.st_dev && een.st_ino == ander.st_ino;
}

/// The name by which the system knows an open file; empty where it does not tell.
fs::path NaamVan(int nummer) {
  std::array<char, PATH_MAX> naam{};
  const std::string greep = "/proc/self/fd/" + std::to_string(nummer);
  const ssize_t n = ::readlink(greep.c_str(), naam.data(), naam.size());
  return std::string(naam.data(), n > 0 ? static_cast<std::size_t>(n) : 0);
}

/// Whether the open file itself, and no link to it, stands under a name.
bool StaatOnder(const fs::path& naam, int nummer) {
  struct stat daar {};
  struct stat is {};
  return !naam.empty() && ::lstat(naam.c_str(), &daar) == 0 && ::fstat(nummer, &is) == 0 && IsEen(daar, is);
}

/// The name is safe only when the directory is on disk too. Some file systems cannot flush one; the file
/// itself stands there whole then, so that is not the save's failure.
void LeegMapVan(const fs::path& pad) {
  const fs::path map = pad.has_parent_path() ? pad.parent_path() : fs::path(".");
  const Bestandsgreep greep(map, Toegang::Lezen);
  if (greep.Gelukt()) static_cast<void>(Leeg(greep.Nummer()));
}

/// The access list of `oud`, where it has one beyond the nine permission bits; the error code, or 0. Without
/// it the group would get the rights that the list gives to all that it names together.
int NeemToegangslijstOver([[maybe_unused]] const fs::path& oud, [[maybe_unused]] int nummer) {
#ifdef __linux__
  constexpr const char* Lijst = "system.posix_acl_access";
  std::string inhoud(65536, '\0');  // the longest that the system allows
  const ssize_t n = ::getxattr(oud.c_str(), Lijst, inhoud.data(), inhoud.size());
  if (n > 0 && ::fsetxattr(nummer, Lijst, inhoud.data(), static_cast<std::size_t>(n), 0) != 0) return errno;
#endif
  return 0;
}

pid_t Proces() {
  return ::getpid();
}

}  // namespace

long long LeesStuk(int nummer, char* naar, std::size_t n) {
  return Herhaald([&] { return ::read(nummer, naar, n); });
}

bool GaNaar(int nummer, std::size_t plaats) {
  return ::lseek(nummer, static_cast<off_t>(plaats), SEEK_SET) >= 0;
}

int Leeg(int nummer) {
  return Herhaald([&] { return ::fsync(nummer); }) == 0 ? 0 : errno;
}

int LeesKenmerk(int nummer, Kenmerk& uit) {
  constexpr std::int64_t NsPerSeconde = 1'000'000'000;
  struct stat is {};
  if (::fstat(nummer, &is) != 0) return errno;
  uit = {S_ISREG(is.st_mode), static_cast<std::uint64_t>(is.st_size),
         is.st_mtim.tv_sec * NsPerSeconde + is.st_mtim.tv_nsec};
  return 0;
}

fs::path EchtPad(int nummer, const fs::path& pad) {
  fs::path naam = NaamVan(nummer);
  if (StaatOnder(naam, nummer)) return naam;
  std::error_code geen;  // without /proc, or behind a directory that it shows elsewhere
  naam = fs::canonical(pad, geen);
  return StaatOnder(naam, nummer) ? naam : fs::path();
}

int Grendel(int nummer) {
  return Herhaald([&] { return ::flock(nummer, LOCK_EX | LOCK_NB); }) == 0 ? 0 : errno;
}

bool LeidtNaar(const fs::path& pad, int nummer) {
  struct stat daar {};
  struct stat is {};
  return ::stat(pad.c_str(), &daar) == 0 && ::fstat(nummer, &is) == 0 && IsEen(daar, is);
}

// Only a privileged user can give a file away.
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

int Hernoem(const fs::path& van, const fs::path& naar) {
  if (::rename(van.c_str(), naar.c_str()) != 0) return errno;
  LeegMapVan(naar);
  return 0;
}

#endif

Bestandsgreep::Bestandsgreep(const fs::path& pad, Toegang toegang, Rechten rechten)
    : nummer_(Open(pad, toegang, rechten)) {}

Bestandsgreep::~Bestandsgreep() {
  if (nummer_ >= 0) static_cast<void>(SluitNummer(nummer_));
}

bool Bestandsgreep::Sluit() {
  const int nummer = nummer_;
  nummer_ = -1;
  return SluitNummer(nummer);
}

int SchrijfAlles(int nummer, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto n = SchrijfStuk(nummer, bytes.data(), bytes.size());
    if (n < 0) return errno;
    if (n == 0) return ENOSPC;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return 0;
}

std::string EigenNaam() {
  constexpr std::string_view Cijfers = "0123456789abcdef";
  std::string uit = std::to_string(Proces()) + "-";
  std::uint64_t toeval = Toeval();
  for (int i = 0; i < 16; ++i, toeval >>= 4U) uit += Cijfers[toeval & 15U];
  return uit;
}

}  // namespace murvane
