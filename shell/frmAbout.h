#pragma once
// The information window: what the program calculates by which rules, its version, its user, and the notes on
// the delivered version.

#include <QDialog>
#include <filesystem>

#include "editor/dialogen.h"
#include "shell/settings.h"

namespace murvane {

class frmAbout : public QDialog {
  Q_OBJECT

 public:
  /// Reads the notes; that they are missing is told, and the window opens without them.
  frmAbout(const Instellingen& instellingen, const std::filesystem::path& levering, Dialogen& dialogen,
           QWidget* ouder);
};

}  // namespace murvane
