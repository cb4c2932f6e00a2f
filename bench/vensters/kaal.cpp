// An empty main window that ends its program once it has been painted: what every program with windows costs.

#include <QApplication>
#include <QEvent>
#include <QMainWindow>

namespace {

class NaEersteBeeld : public QObject {
 protected:
  bool eventFilter(QObject* venster, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    venster->removeEventFilter(this);
    QMetaObject::invokeMethod(
        venster, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
    return false;
  }
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication toepassing(argc, argv);
  QMainWindow venster;
  NaEersteBeeld naEersteBeeld;
  venster.installEventFilter(&naEersteBeeld);
  venster.resize(1024, 740);
  venster.show();
  return QApplication::exec();
}
