#pragma once
// Answers the real dialogs: each step of a script gets the next dialog that appears, once it is active. A
// dialog that no step awaits, one that a step leaves open, and a step without a dialog fail the test.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QPointer>
#include <QTest>
#include <QWindow>
#include <deque>
#include <functional>

namespace murvane::proef {

class Robot : public QObject {
 public:
  using Stap = std::function<void(QDialog&)>;

  Robot() { qApp->installEventFilter(this); }
  ~Robot() override { EXPECT_EQ(stappen_.size(), 0U) << "dialogs that never came"; }

  Robot& Dan(Stap stap) {
    stappen_.push_back(std::move(stap));
    return *this;
  }
  /// Waits until a dialog has the keys; the window before which it stands counts as active meanwhile.
  static void Activeer(QDialog& dialoog) {
    if (QApplication::activeWindow() != &dialoog) dialoog.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &dialoog; }));
  }
  /// A key to a window, as the window system sends it.
  static void Druk(const QWidget& venster, Qt::Key toets, const QString& tekst = {}) {
    QTest::sendKeyEvent(QTest::Click, venster.windowHandle(), toets, tekst, Qt::NoModifier);
  }

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* const dialoog = event->type() == QEvent::Show ? qobject_cast<QDialog*>(object) : nullptr;
    if (dialoog == nullptr) return false;
    const auto speel = [this, wijzer = QPointer<QDialog>(dialoog)] { Speel(wijzer); };
    QMetaObject::invokeMethod(this, speel, Qt::QueuedConnection);
    return false;
  }

 private:
  void Speel(const QPointer<QDialog>& dialoog) {
    if (dialoog == nullptr || !dialoog->isVisible()) return;
    Activeer(*dialoog);
    if (stappen_.empty()) {
      ADD_FAILURE() << "not awaited: " << dialoog->windowTitle().toStdString();
    } else {
      const Stap stap = std::move(stappen_.front());
      stappen_.pop_front();
      stap(*dialoog);
      EXPECT_FALSE(dialoog != nullptr && dialoog->isVisible()) << "left open";
    }
    if (dialoog != nullptr && dialoog->isVisible()) dialoog->reject();
  }

  std::deque<Stap> stappen_;
};

}  // namespace murvane::proef
