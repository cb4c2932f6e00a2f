// The program murvane-cli: a main function around the commands.

#include <exception>
#include <iostream>

#include "cli/opdrachten.h"
#include "cli/systeem.h"

int main(int argc, char** argv) {
  try {
    murvane::BereidUitvoerVoor();
    return murvane::VoerOpdrachtUit(murvane::Argumenten(argc, argv), murvane::Systeemkanalen());
  } catch (const std::exception&) {
    std::cerr << "murvane-cli: onverwachte fout\n";
    return 1;
  }
}
