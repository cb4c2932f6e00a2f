#include "shell/startup.h"

#include <array>
#include <cstdlib>
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

bool IsGeinstalleerd(const fs::path& programmaMap) {
  return MeegeleverdeMap(programmaMap) != programmaMap;
}

fs::path GebruikersDataMap(const Gebruikersmappen& mappen) {
  if (!mappen.AppData.empty()) return mappen.AppData / "MurVane";
  if (mappen.XdgDataHome.is_absolute()) return mappen.XdgDataHome / "murvane";
  return mappen.Thuis.empty() ? fs::path() : mappen.Thuis / ".local" / "share" / "murvane";
}

fs::path DataMapVan(const fs::path& huidigeMap, const fs::path& programmaMap, const fs::path& gebruikersMap) {
  if (HeeftInstellingen(huidigeMap)) return huidigeMap;
  if (IsGeinstalleerd(programmaMap) && !gebruikersMap.empty() && HeeftInstellingen(gebruikersMap))
    return gebruikersMap;
  return MeegeleverdeMap(programmaMap) / "data";
}

fs::path StandaardDataMap() {
  std::error_code geen;
  return DataMapVan(fs::current_path(geen), ProgrammaMap(), EigenDataMap());
}

std::string OpenBestandUit(std::string_view opdrachtregel) {
  std::string_view pad = opdrachtregel;
  if (pad.size() >= 2 && pad.front() == '"' && pad.back() == '"') pad = pad.substr(1, pad.size() - 2);
  return IsProjectNaam(pad) ? std::string(pad) : std::string();
}

#ifdef _WIN32

fs::path EigenDataMap() {
  const wchar_t* appData = _wgetenv(L"APPDATA");
  return GebruikersDataMap({appData ? fs::path(appData) : fs::path(), {}, {}});
}

char RegionaalDecimaalteken() {
  std::array<wchar_t, 8> teken{};
  const int lengte = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, teken.data(),
                                     static_cast<int>(teken.size()));
  return lengte == 2 && teken[0] == L',' ? ',' : '.';  // the length counts the closing NUL
}

#else

namespace {

fs::path Omgeving(const char* naam) {
  const char* waarde = std::getenv(naam);
  return waarde ? PadVan(waarde) : fs::path();
}

/// The region of the environment's numbers; none when the environment names one that is not installed.
locale_t OpenRegio() {
#ifdef MURVANE_LEKZOEKER
  const __lsan::ScopedDisabler geen;  // the C library loses its copy of LOCPATH, when that is set
#endif
  return newlocale(LC_NUMERIC_MASK, "", locale_t{});
}

}  // namespace

fs::path EigenDataMap() {
  return GebruikersDataMap({{}, Omgeving("XDG_DATA_HOME"), Omgeving("HOME")});
}

char RegionaalDecimaalteken() {
  const locale_t regio = OpenRegio();
  if (regio == locale_t{}) return '.';
  const bool komma = std::string_view(nl_langinfo_l(RADIXCHAR, regio)) == ",";
  freelocale(regio);
  return komma ? ',' : '.';
}

#endif

}  // namespace murvane
