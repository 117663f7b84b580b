// The least that a Qt program with a window can be: what Loquitor's start is measured against.

#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.resize(423, 151);
  window.show();
  return QApplication::exec();
}
