#include "shell/startup.h"

#include <array>
#include <system_error>

#include "basis/bestand.h"
#include "project/projectfile.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <langinfo.h>
#include <locale.h>
#if defined(__SANITIZE_ADDRESS__)
#define MURVANE_LEKZOEKER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MURVANE_LEKZOEKER
#endif
#endif
#ifdef MURVANE_LEKZOEKER
#include <sanitizer/lsan_interface.h>
#endif
#endif

namespace murvane {

namespace fs = std::filesystem;

bool HeeftInstellingen(const fs::path& map) {
  std::error_code geen;
  return fs::is_regular_file(map / InstellingenNaam, geen);
}

fs::path MeegeleverdeMap(const fs::path& programmaMap) {
  fs::path gedeeld = (programmaMap / ".." / "share" / "murvane").lexically_normal();
  if (HeeftInstellingen(programmaMap / "data") || !HeeftInstellingen(gedeeld / "data")) return programmaMap;
  return gedeeld;
}

fs::path DataMapVan(const fs::path& huidigeMap, const fs::path& programmaMap) {
  return HeeftInstellingen(huidigeMap) ? huidigeMap : MeegeleverdeMap(programmaMap) / "data";
}

fs::path StandaardDataMap() {
  std::error_code geen;
  return DataMapVan(fs::current_path(geen), ProgrammaMap());
}

std::string OpenBestandUit(std::string_view opdrachtregel) {
  std::string_view pad = opdrachtregel;
  if (pad.size() >= 2 && pad.front() == '"' && pad.back() == '"') pad = pad.substr(1, pad.size() - 2);
  return IsProjectNaam(pad) ? std::string(pad) : std::string();
}

#ifdef _WIN32

char RegionaalDecimaalteken() {
  std::array<wchar_t, 8> teken{};
  const int lengte = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, teken.data(),
                                     static_cast<int>(teken.size()));
  return lengte == 2 && teken[0] == L',' ? ',' : '.';  // the length counts the closing NUL
}

#else

namespace {

/// The region of the environment's numbers; none when the environment names one that is not installed.
locale_t OpenRegio() {
#ifdef MURVANE_LEKZOEKER
  const __lsan::ScopedDisabler geen;  // the C library loses its copy of LOCPATH, when that is set
#endif
  return newlocale(LC_NUMERIC_MASK, "", locale_t{});
}

}  // namespace

char RegionaalDecimaalteken() {
  const locale_t regio = OpenRegio();
  if (regio == locale_t{}) return '.';
  const bool komma = std::string_view(nl_langinfo_l(RADIXCHAR, regio)) == ",";
  freelocale(regio);
  return komma ? ',' : '.';
}

#endif

}  // namespace murvane
