// The least that a Qt program with a window can be, empty or with the text that it is given: what
// Loquitor's start is measured against. Most of the difference between the two is Qt's reading of
// the system's fonts, which nothing that shows a letter can do without.

#include <QApplication>
#include <QLabel>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(423, 151);
  if (argc > 1) {
    new QLabel(QString::fromLocal8Bit(argv[1]), &window);
  }
  window.show();
  return QApplication::exec();
}
