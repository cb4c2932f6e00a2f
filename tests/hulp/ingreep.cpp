#include "tests/hulp/ingreep.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <utility>

namespace murvane::proef {

namespace {

thread_local Ingreep* bezig = nullptr;

/// Whether the call must fail; errno tells with what then.
bool Faalt(Aanroep wat) {
  const int code = bezig == nullptr ? 0 : bezig->Vraag(wat);
  if (code != 0) errno = code;
  return code != 0;
}

std::size_t Stuk(std::size_t n) {
  return bezig == nullptr ? n : std::min(n, bezig->GrootsteStuk);
}

}  // namespace

Ingreep::Ingreep(Besluit besluit) : besluit_(std::move(besluit)) {
  bezig = this;
}
Ingreep::~Ingreep() {
  bezig = nullptr;
}

}  // namespace murvane::proef

using murvane::proef::Aanroep;
using murvane::proef::bezig;
using murvane::proef::Faalt;
using murvane::proef::Stuk;

// NOLINTBEGIN(bugprone-reserved-identifier): the names are the linker's.
extern "C" {

int __real_open(const char* pad, int vlaggen, ...);
off_t __real_lseek(int nummer, off_t plaats, int vanaf);
ssize_t __real_read(int nummer, void* naar, size_t n);
ssize_t __real_write(int nummer, const void* van, size_t n);
int __real_fsync(int nummer);
int __real_close(int nummer);
int __real_rename(const char* van, const char* naar);
int __real_fchmod(int nummer, mode_t rechten);
int __real_fchown(int nummer, uid_t eigenaar, gid_t groep);
int __real_stat(const char* pad, struct stat* uit);
int __real_fstat(int nummer, struct stat* uit);
int __real_lstat(const char* pad, struct stat* uit);
ssize_t __real_readlink(const char* pad, char* naar, size_t n);
int __real_flock(int nummer, int wat);
ssize_t __real_getxattr(const char* pad, const char* naam, void* naar, size_t n);
int __real_fsetxattr(int nummer, const char* naam, const void* van, size_t n, int vlaggen);

int __wrap_open(const char* pad, int vlaggen, ...) {
  std::va_list rest;
  va_start(rest, vlaggen);
  const mode_t rechten = (vlaggen & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  return Faalt(Aanroep::Open) ? -1 : __real_open(pad, vlaggen, rechten);
}
off_t __wrap_lseek(int nummer, off_t plaats, int vanaf) {
  return Faalt(Aanroep::Zoek) ? -1 : __real_lseek(nummer, plaats, vanaf);
}
ssize_t __wrap_read(int nummer, void* naar, size_t n) {
  return Faalt(Aanroep::Lees) ? -1 : __real_read(nummer, naar, Stuk(n));
}
ssize_t __wrap_write(int nummer, const void* van, size_t n) {
  return Faalt(Aanroep::Schrijf) ? -1 : __real_write(nummer, van, Stuk(n));
}
int __wrap_fsync(int nummer) {
  return Faalt(Aanroep::Leeg) ? -1 : __real_fsync(nummer);
}
int __wrap_close(int nummer) {
  const int uit = __real_close(nummer);
  if (bezig != nullptr && uit != 0 && errno == EBADF) ++bezig->DubbelGesloten;
  return Faalt(Aanroep::Sluit) ? -1 : uit;
}
int __wrap_rename(const char* van, const char* naar) {
  return Faalt(Aanroep::Hernoem) ? -1 : __real_rename(van, naar);
}
int __wrap_fchmod(int nummer, mode_t rechten) {
  return Faalt(Aanroep::Rechten) ? -1 : __real_fchmod(nummer, rechten);
}
int __wrap_fchown(int nummer, uid_t eigenaar, gid_t groep) {
  return Faalt(Aanroep::Eigenaar) ? -1 : __real_fchown(nummer, eigenaar, groep);
}
int __wrap_stat(const char* pad, struct stat* uit) {
  if (Faalt(Aanroep::Stat)) return -1;
  const int gelukt = __real_stat(pad, uit);
  if (gelukt == 0 && bezig != nullptr)
    uit->st_uid += bezig->AndereEigenaar, uit->st_gid += bezig->AndereGroep;
  return gelukt;
}
int __wrap_fstat(int nummer, struct stat* uit) {
  return Faalt(Aanroep::FStat) ? -1 : __real_fstat(nummer, uit);
}
int __wrap_lstat(const char* pad, struct stat* uit) {
  return Faalt(Aanroep::LStat) ? -1 : __real_lstat(pad, uit);
}
ssize_t __wrap_readlink(const char* pad, char* naar, size_t n) {
  return Faalt(Aanroep::LeesLink) ? -1 : __real_readlink(pad, naar, n);
}
int __wrap_flock(int nummer, int wat) {
  return Faalt(Aanroep::Grendel) ? -1 : __real_flock(nummer, wat);
}
ssize_t __wrap_getxattr(const char* pad, const char* naam, void* naar, size_t n) {
  if (bezig == nullptr || bezig->Lijst.empty()) return __real_getxattr(pad, naam, naar, n);
  std::memcpy(naar, bezig->Lijst.data(), std::min(n, bezig->Lijst.size()));
  return static_cast<ssize_t>(bezig->Lijst.size());
}
int __wrap_fsetxattr(int nummer, const char* naam, const void* van, size_t n, int vlaggen) {
  if (bezig == nullptr) return __real_fsetxattr(nummer, naam, van, n, vlaggen);
  if (Faalt(Aanroep::Lijst)) return -1;
  bezig->GezetteLijst.assign(static_cast<const char*>(van), n);
  return 0;
}

}  // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
