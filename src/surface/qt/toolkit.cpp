// The start of the program inside the toolkit.
#include "surface/qt/toolkit.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocale>
#include <QScreen>
#include <QSessionManager>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "surface/app.h"
#include "surface/dispatch.h"
#include "surface/form.h"
#include "surface/host.h"
#include "surface/numbers.h"
#include "surface/qt/accessible.h"
#include "surface/qt/art.h"
#include "surface/qt/dialogs.h"
#include "surface/qt/factor.h"
#include "surface/qt/fonts.h"
#include "surface/qt/form_window.h"
#include "surface/qt/images.h"
#include "surface/qt/pointer.h"
#include "surface/qt/printing.h"
#include "surface/qt/system.h"
#include "surface/timer.h"

namespace surface::qt {
namespace {

std::int64_t milliseconds() {
  static QElapsedTimer clock = [] {
    QElapsedTimer started;
    started.start();
    return started;
  }();
  return clock.elapsed();
}

// One toolkit timer for all of the model's, set to the one that is due next.
void scheduleTimers() {
  static auto* alarm = [] {
    auto* made = new QTimer(QCoreApplication::instance());
    made->setSingleShot(true);
    made->setTimerType(Qt::PreciseTimer);
    QObject::connect(made, &QTimer::timeout, [] { fireDueTimer(); });
    return made;
  }();
  if (const auto due = nextTimerDue())
    alarm->start(static_cast<int>(std::max<std::int64_t>(0, *due - milliseconds())));
  else
    alarm->stop();
}

// Until the application stands: the toolkit would tell in English what it has tried, and abort.
void endWithoutScreen(QtMsgType type, const QMessageLogContext&, const QString&) {
  if (type != QtFatalMsg) return;
  std::fputs("KrasPret kan niet starten: er is geen scherm om vensters op te tonen.\n", stderr);
  std::_Exit(1);
}

}  // namespace

void install() {
  QApplication::setStyle("Fusion");
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  QApplication::setPalette(palette);
  QApplication::setQuitOnLastWindowClosed(false);
  installDutch();
  installExactPointer();
  installAccessibility();
  setDecimalSeparator(QLocale::system().decimalPoint() == "," ? ',' : '.');

  Host& seams = host();
  seams.makeForm = makeFormPeer;
  seams.msgBox = msgBox;
  seams.inputBox = inputBox;
  seams.fileDialog = fileDialog;
  seams.colorDialog = colorDialog;
  seams.printerDialog = printerDialog;
  seams.printPage = printPage;
  seams.loadPicture = loadPicture;
  seams.savePicture = savePicture;
  seams.artPicture = artPicture;
  seams.setClipboard = setClipboard;
  seams.getClipboard = getClipboard;
  seams.rasterText = rasterText;
  seams.screen = [] {
    const QSize size = QGuiApplication::primaryScreen()->size();
    return raster::Rect{0, 0, size.width(), size.height()};
  };
  seams.screenFonts = screenFonts;
  seams.clock = milliseconds;
  seams.seed = [] {
    return static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count());
  };
  seams.doEvents = [] { QCoreApplication::processEvents(); };
  seams.maximisedSize = maximisedSize;
  seams.timersChanged = scheduleTimers;
  seams.errorReport = errorReport;
  seams.errorReportBeforeLoss = errorReportBeforeLoss;
  seams.leaveEventLoop = [] { QCoreApplication::exit(0); };
}

void endFromOutside(const Program& program) {
  // Behind the report of an error no handler runs any more, but the drawing is still there.
  whenIdle([&program] { program.rescue(picturesFolder()); });
  showPending();
  dispatch([] { End(); });
}

int run(int argc, char** argv, const Program& program) {
  app() = startedAs(argc, argv);
  prepareToolkit();
  // The limit on a picture's memory is the program's own.
  qunsetenv("QT_IMAGEIO_MAXALLOC");
  // The toolkit gets none of the command line: all of it names a picture.
  int onlyName = 1;
  const auto usual = qInstallMessageHandler(endWithoutScreen);
  chooseFactor(onlyName, argv);
  QApplication application(onlyName, argv);
  qInstallMessageHandler(usual);
  installTypefaces(app().Path + "/Lettertypes");
  install();
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &application,
      [&program](QSessionManager& session) {
        if (!session.allowsInteraction()) return;
        dispatch(program.logOut);
        session.release();
      },
      Qt::DirectConnection);
  whenAskedToEnd([&program] {
    endFromOutside(program);
    QCoreApplication::exit(0);
  });
  QTimer::singleShot(0, [&program] { dispatch(program.start); });
  // Decoding the icon would hold the first window up; a tenth of a second later nobody waits.
  QTimer::singleShot(100, [] { QApplication::setWindowIcon(programIcon()); });
  const int status = QApplication::exec();
  FormRegistry::instance().clear();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  return status;
}

}  // namespace surface::qt
