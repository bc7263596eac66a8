// The desktop editor.
#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QIcon>
#include <QSessionManager>
#include <QThreadPool>
#include <QTimer>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "desktop/Desktop.h"
#include "desktop/EscRun.h"
#include "desktop/FormWindow.h"
#include "desktop/InputWatch.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "desktop/Picture.h"
#include "desktop/WindowPlace.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "menu/MainWindow.h"
#include "menu/StartProgram.h"
#include "output/Recovery.h"
#include "output/Settings.h"
#include "platform/Files.h"
#include "platform/Platform.h"

namespace {

using namespace tessaryn;

const char* const Usage =
    "Usage: tessaryn [FILE.proof]\n"
    "Opens the proof editor, with a proof if one is named.\n"
    "\n"
    "  --help      this text\n"
    "  --version   the version of the program\n";

// Options of the program itself; those of the toolkit have been taken out before.
int Inform(const QString& option) {
    if (option == QStringLiteral("--help")) return std::puts(Usage) < 0 ? 1 : 0;
    if (option == QStringLiteral("--version"))
        return std::puts("tessaryn " TESSARYN_VERSION) < 0 ? 1 : 0;
    std::fprintf(stderr, "tessaryn: unknown option %s\n%s", option.toUtf8().constData(), Usage);
    return 2;
}

// With TESSARYN_MEASURE_START set, tells how long the window took to appear, and ends.
class FirstPaint : public QObject {
  public:
    FirstPaint() { clock_.start(); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool paints = event->type() == QEvent::Paint;
        const bool result = QObject::eventFilter(watched, event);
        if (paints && !told_) {
            told_ = true;
            // Behind the events at hand, the first activation among them.
            QMetaObject::invokeMethod(
                this,
                [this] {
                    std::fprintf(stderr, "first paint after %d ms\n",
                                 static_cast<int>(clock_.elapsed()));
                    EndProgram();
                },
                Qt::QueuedConnection);
        }
        return result;
    }

  private:
    QElapsedTimer clock_;
    bool told_ = false;
};

// The desktop session ends: the same question as at any other end.
void ListenToSession(QApplication& application) {
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &application,
        [](QSessionManager& session) {
            if (!session.allowsInteraction()) return;
            Dispatch([] { Proof.Close(); });
            while (QuestionsOpen() && !Ending()) {
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }
            if (OperationCancelled) session.cancel();
        },
        Qt::DirectConnection);
}

}  // namespace

int main(int argc, char* argv[]) {
    std::signal(SIGXFSZ, SIG_IGN);  // a file beyond the size limit can't be written, no more
    FirstPaint firstPaint;
    const auto informs = [](const char* argument) {
        const std::string text = argument;
        return text == "--help" || text == "--version";
    };
    for (int i = 1; i < argc; ++i) {  // these need no display
        if (informs(argv[i])) return Inform(QString::fromLocal8Bit(argv[i]));
    }
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tessaryn"));
    QApplication::setApplicationDisplayName(QString());
    QApplication::setDesktopFileName(QStringLiteral("tessaryn"));
    QApplication::setQuitOnLastWindowClosed(false);
    SubstituteFonts();
    WatchInput(FadeNote);
    WatchEsc();

    QApplication::setWindowIcon(QIcon(ProgramPicture(128)));

    const QStringList arguments = QApplication::arguments();
    std::string commandLine;
    if (arguments.size() > 1) {
        if (arguments[1].startsWith(QStringLiteral("--"))) return Inform(arguments[1]);
        // In full, so that it is found again when it is picked from the recent files.
        commandLine = '"' + QFileInfo(arguments[1]).absoluteFilePath().toStdString() + '"';
    }
    StartProgram();
    AppPath = FindAppPath(QApplication::applicationDirPath().toStdString());
    RecoveryDir = FindRecoveryDir();
    WindowPlaceFile = UserDirectory("XDG_STATE_HOME", "/.local/state");
    if (!WindowPlaceFile.empty()) WindowPlaceFile += "/tessaryn/window";
    const auto show = [&firstPaint] {
        ShowMainWindow(Proof);
        if (std::getenv("TESSARYN_MEASURE_START") == nullptr) return;
        WidgetOf(Proof.RTB)
            ->findChild<QWidget*>(QStringLiteral("qt_scrollarea_viewport"))
            ->installEventFilter(&firstPaint);
    };
    ListenToSession(application);
    // From the event loop, as it makes all windows anew.
    const auto showSoon = [&] { QTimer::singleShot(0, &application, show); };
    Dispatch([&] { LoadMainWindow(commandLine, showSoon); });
    if (!Ending()) QApplication::exec();
    QThreadPool::globalInstance()->waitForDone();
    EndKeepingCopies();
    ForgetNote();
    ForgetWindows();
    ReleasePrinter();  // of a job that the end has cut short
    return 0;
}
