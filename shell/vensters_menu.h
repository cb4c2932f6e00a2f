#pragma once
// A menu with its heading as a bar along its side, and the icon in the desktop's notification area.

#include <QElapsedTimer>
#include <QMenu>
#include <QSystemTrayIcon>

namespace murvane {

/// A menu whose heading, an action of its own, stands as a vertical bar at its left side.
class ZijbalkMenu : public QMenu {
  Q_OBJECT

 public:
  ZijbalkMenu(const QString& opschrift, QWidget* ouder);

  /// Shows the heading's caption in the bar instead of as an entry.
  void ZetKop(QAction* kop);
  [[nodiscard]] QString Kop() const { return kop_; }
  [[nodiscard]] int BalkBreedte() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  QString kop_;
};

/// The icon in the notification area. Only a double click opens its menu.
class Taakbalk : public QObject {
  Q_OBJECT

 public:
  explicit Taakbalk(QWidget* venster);
  ~Taakbalk() override;

  [[nodiscard]] QMenu* Menu() { return menu_; }
  [[nodiscard]] QAction* Info() { return info_; }
  [[nodiscard]] QAction* Exit() { return exit_; }
  [[nodiscard]] QSystemTrayIcon* Icoontje() { return icoon_; }

 private:
  void Geactiveerd(QSystemTrayIcon::ActivationReason reden);

  QMenu* menu_;
  QAction* info_;
  QAction* exit_;
  QSystemTrayIcon* icoon_;
  QElapsedTimer sindsKlik_;
};

}  // namespace murvane
