#include "cli/ploeg.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace murvane {

namespace {

class Verdeling {
 public:
  Verdeling(std::size_t aantal, const std::function<void(const Uitslag&)>& meld)
      : aantal_(aantal), meld_(meld) {}

  /// One thread's share: takes file after file until there are none left.
  void Draai(const Werk& werk) noexcept {
    try {
      for (std::size_t i = volgende_++; i < aantal_ && !gestopt_; i = volgende_++) Lever(i, werk(i));
    } catch (...) {
      const std::lock_guard slot(slot_);
      if (!fout_) fout_ = std::current_exception();
      gestopt_ = true;
    }
  }

  void GooiFout() const {
    if (fout_) std::rethrow_exception(fout_);
  }

 private:
  /// Only ends that came too early are kept, so that memory does not grow with the number of files.
  void Lever(std::size_t i, Uitslag uitslag) {
    const std::lock_guard slot(slot_);
    wachtend_.emplace(i, std::move(uitslag));
    while (!wachtend_.empty() && wachtend_.begin()->first == gemeld_) {
      const Uitslag eerste = std::move(wachtend_.begin()->second);
      wachtend_.erase(wachtend_.begin());
      ++gemeld_;
      meld_(eerste);
    }
  }

  std::size_t aantal_;
  const std::function<void(const Uitslag&)>& meld_;
  std::atomic<std::size_t> volgende_ = 0;
  std::atomic<bool> gestopt_ = false;
  std::mutex slot_;
  std::map<std::size_t, Uitslag> wachtend_;
  std::size_t gemeld_ = 0;
  std::exception_ptr fout_;
};

}  // namespace

void VerdeelWerk(std::size_t aantal, unsigned taken, const std::function<Werk()>& nieuwWerk,
                 const std::function<void(const Uitslag&)>& meld) {
  const std::size_t n = std::min<std::size_t>(std::max(taken, 1U), std::max<std::size_t>(aantal, 1));
  Verdeling verdeling(aantal, meld);
  std::vector<Werk> werken;
  for (std::size_t i = 0; i < n; ++i) werken.push_back(nieuwWerk());
  {
    std::vector<std::jthread> draden;
    draden.reserve(n - 1);
    try {
      for (std::size_t i = 1; i < n; ++i)
        draden.emplace_back([&verdeling, &werk = werken[i]] { verdeling.Draai(werk); });
    } catch (const std::system_error&) {  // no more threads to be had: go on with those that started
    }
    verdeling.Draai(werken.front());
  }
  verdeling.GooiFout();
}

}  // namespace murvane
