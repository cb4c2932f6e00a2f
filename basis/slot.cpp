#include "basis/slot.h"

#include <cerrno>
#include <string>
#include <system_error>
#include <thread>

#include "basis/bestand.h"
#include "basis/fout.h"
#include "basis/stempel.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace murvane {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void Bezet(const fs::path& pad) {
  throw Fout(FoutNummer::GeenToestemming, "Geen toestemming: een ander programma houdt het bestand bezet", {},
             PadTekst(pad));
}

/// Opening a pipe would tell its reader that a writer came and went.
bool KanOpSlot(const fs::path& pad) {
  std::error_code geen;
  return fs::is_regular_file(pad, geen);
}

}  // namespace

#ifdef _WIN32

// A file that is open cannot be replaced here, so what is locked is a name made of its path.
Bestandsslot::Bestandsslot(const fs::path& pad, std::chrono::milliseconds geduld) {
  if (!KanOpSlot(pad)) return;
  std::error_code geen;
  std::wstring volledig = fs::canonical(pad, geen).wstring();
  CharLowerBuffW(volledig.data(), static_cast<DWORD>(volledig.size()));
  const std::wstring naam = L"Local\\murvane-" + std::to_wstring(HashVan(PadTekst(volledig)));
  mutex_ = CreateMutexW(nullptr, FALSE, naam.c_str());
  if (mutex_ == nullptr || WaitForSingleObject(mutex_, static_cast<DWORD>(geduld.count())) != WAIT_TIMEOUT)
    return;
  CloseHandle(mutex_);
  Bezet(pad);
}

Bestandsslot::~Bestandsslot() {
  if (mutex_ == nullptr) return;
  ReleaseMutex(mutex_);
  CloseHandle(mutex_);
}

#else

// Whoever had the slot may have put another file in the place of the one that was opened: then it is no slot
// of ours, and the new file is tried.
Bestandsslot::Bestandsslot(const fs::path& pad, std::chrono::milliseconds geduld) {
  constexpr std::chrono::milliseconds Tussen{2};
  const auto einde = std::chrono::steady_clock::now() + geduld;
  const auto opTijd = [einde] { return std::chrono::steady_clock::now() < einde; };
  for (bool weer = KanOpSlot(pad); weer; weer = opTijd() && KanOpSlot(pad)) {
    greep_.emplace(pad, Toegang::SchrijvenNu);
    if (!greep_->Gelukt()) return;
    int code = Grendel(greep_->Nummer());
    for (; code == EWOULDBLOCK; code = Grendel(greep_->Nummer())) {
      if (!opTijd()) Bezet(pad);
      std::this_thread::sleep_for(Tussen);
    }
    if (code != 0 || LeidtNaar(pad, greep_->Nummer())) return;
  }
}

Bestandsslot::~Bestandsslot() = default;

#endif

}  // namespace murvane
