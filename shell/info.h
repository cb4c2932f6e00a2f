#pragma once
// What the splash window, the information window and the tray icon show, without a window.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shell/settings.h"

namespace murvane {

/// A colour; each component 0 to 255.
struct Verloopkleur {
  std::int16_t Rood = 0;
  std::int16_t Groen = 0;
  std::int16_t Blauw = 0;

  friend bool operator==(const Verloopkleur&, const Verloopkleur&) = default;
};

inline constexpr Verloopkleur SplashBegin{100, 0, 0};
inline constexpr Verloopkleur InfoBegin{120, 0, 0};
inline constexpr Verloopkleur VerloopEinde{0, 0, 0};
inline constexpr int SplashMs = 2000;  ///< how long the splash stands, unless a key or click ends it

/// The gradient's lines from y = 0 to y = hoogte, each a colour rounded to whole components, a half to the
/// even one. Fout 11 for a height of 0, Fout 5 for a negative one.
[[nodiscard]] std::vector<Verloopkleur> Verloop(Verloopkleur van, Verloopkleur naar, int hoogte);

/// The texts of the splash window, Windows-1252.
struct SplashTeksten {
  std::string Titel;
  std::string Omschrijving;
  std::string Versie;
};
[[nodiscard]] SplashTeksten SplashTekst();

/// The program's file version: major, minor in two digits, revision in four.
[[nodiscard]] std::string Bestandsversie(int hoofd, int sub, int revisie);

/// The texts of the information window, Windows-1252.
struct InfoTeksten {
  std::string Titel;
  std::string Omschrijving;
  std::string Product;  ///< name, version and user
};
[[nodiscard]] InfoTeksten InfoTekst(const Instellingen& instellingen);

/// The mail that the user may send: a mailto address with its subject, ready for the system's mail program.
[[nodiscard]] std::string MailAdres(std::string_view adres);

/// The notes on the delivered version, in the program directory.
inline constexpr std::string_view LeveringBestand = "levering.txt";

/// The manual in `map`: the help file or, where that is missing or cannot be shown, the manual's first page.
/// Empty when neither is there. `heeftHelpProgramma` tells whether help files can be shown; it is asked only
/// when there is one, as the answer takes the desktop a while.
[[nodiscard]] std::filesystem::path HandleidingIn(const std::filesystem::path& map,
                                                  const std::function<bool()>& heeftHelpProgramma);

// ---- The tray icon ----

inline constexpr int TrayTipLengte = 64;

/// The tip of the icon: the program's title, a NUL, and blanks up to 64 characters.
[[nodiscard]] std::string TrayTip();

}  // namespace murvane
