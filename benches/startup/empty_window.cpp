// The least that a program with a window can be: what the toolkit costs by itself. The start-up
// benchmark runs it beside KrasPret.
#include <QApplication>
#include <QScreen>
#include <QWidget>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QWidget window;
  window.setFixedSize(508, 406);
  window.move(application.primaryScreen()->geometry().center() - window.rect().center());
  window.show();
  return QApplication::exec();
}
