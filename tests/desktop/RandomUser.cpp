#include "RandomUser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <QTextEdit>
#include <QThread>
#include <QThreadPool>
#include <QWheelEvent>
#include <QWindow>
#include <cstring>
#include <filesystem>
#include <vector>

#include "UserHands.h"
#include "desktop/Desktop.h"
#include "desktop/FormWindow.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "menu/MainWindow.h"
#include "menu/StartProgram.h"
#include "output/Recovery.h"
#include "output/Settings.h"

namespace tessaryn {
namespace {

namespace fs = std::filesystem;

const char* const Entries[] = {
    "P",
    "Q",
    "P => Q",
    "Q & R & P",
    "x=y",
    "f(x)=y",
    "P(x) & ~P(x)",
    "ALL(a):[a @ s => P(a)]",
    "ALL(a):Q(a,y)",
    "EXIST(b):f(b)=x",
    "x",
    "u",
    "3",
    "Set(s)",
    "a b",
    "x+1",
    "(",
    "",
    "~~P | P => ALL(x):P(x)",
    "LongName(x) => AnotherLongName(y) & P",
    "証明の方法、証明の方法、証明の方法、証明の方法、証明の方法、証明の方法",
    "abc עבר, a\u0301\u0302, \U0001F468\u200D\U0001F469",
    "Premise"};
const char* const Pasted[] = {"P & Q",
                              "ALL(a):\r\n\t[a \xCE\xB5 s]",
                              "\xE2\x88\x88\xF0\x9F\x98\x80",
                              "<b>bold</b> {\\rtf1 \\b}",
                              "",
                              "1\tP\r\n\tPremise\r\n\r\n"};
const char* const FileNames[] = {"a.proof",    "b.proof",     "c d.proof",    "b",
                                 "ü.proof",    "page.html",   "print.pdf",    "damaged.proof",
                                 "link.proof", "sub/e.proof", "gone/f.proof", "sub",
                                 "a.html"};

// What is likely to lead somewhere, as often as it stands here.
std::vector<MenuItem*> UsualCommands() {
    std::vector<MenuItem*> items = {
        &Proof.optPremise, &Proof.optPremise,    &Proof.optPremise,       &Proof.optConclusion,
        &Proof.optJoin,    &Proof.optJoin,       &Proof.optSplit,         &Proof.optDetachment,
        &Proof.optSpec,    &Proof.optUGen,       &Proof.optEGen,          &Proof.optRename,
        &Proof.optReorder, &Proof.optInsert,     &Proof.optUndo,          &Proof.optRedo,
        &Proof.optAxiom,   &Proof.optArbOrRight, &Proof.optCopyStatement, &Proof.optSubstitution,
        &Proof.optSave,    &Proof.optOpen,       &Proof.optSubset,        &Proof.DeleteAllRef};
    return items;
}

std::vector<QWidget*> ShownIn(QWidget& window) {
    std::vector<QWidget*> shown{&window};
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const bool here = widget->isVisible() && widget->window() == &window;
        if (here && !widget->size().isEmpty()) shown.push_back(widget);
    }
    return shown;
}

std::string NameOf(const QWidget& widget) {
    return widget.objectName().toStdString() + " (" + widget.metaObject()->className() + ")";
}

// Of the keyboard's own; the toolkit's tests know no text for some of the keys.
void Press(QWindow& window, int key, Qt::KeyboardModifiers held) {
    QString text;
    if (key < 0x7F && (held & Qt::ControlModifier) == 0) {
        const QChar sign(static_cast<char16_t>(key));
        text = (held & Qt::ShiftModifier) != 0 ? sign : sign.toLower();
    }
    if (key == Qt::Key_Return || key == Qt::Key_Enter) text = QStringLiteral("\r");
    const QPointer<QWindow> alive(&window);
    qt_handleKeyEvent(&window, QEvent::KeyPress, key, held, text);
    QApplication::processEvents();
    if (alive) qt_handleKeyEvent(&window, QEvent::KeyRelease, key, held, text);
    QApplication::processEvents();
}

// The first = of a text from a place on, or else its beginning.
std::size_t NextEqualsSign(const std::string& text, std::size_t place) {
    place = text.find('=', place);
    while (place != text.npos && text.compare(place, 2, "=>") == 0)
        place = text.find('=', place + 1);
    return place == text.npos ? 0 : place;
}

QString PathIn(const QString& directory, const char* name) {
    return directory + QLatin1Char('/') + QString::fromUtf8(name);
}

}  // namespace

void StartAtHome(const QString& home) {
    qputenv("XDG_CONFIG_HOME", (home + QStringLiteral("/config")).toUtf8());
    qputenv("XDG_STATE_HOME", (home + QStringLiteral("/state")).toUtf8());
    // An end of the program before this one would still end every loop.
    QTimer::singleShot(0, qApp, [] { QCoreApplication::exit(); });
    QApplication::exec();
    StartProgram();
    AppPath = FindAppPath(home.toStdString());
    RecoveryDir = FindRecoveryDir();
    Dispatch([] { LoadMainWindow("", [] { ShowMainWindow(Proof); }); });
    QApplication::processEvents();
}

void EndAtHome() {
    QThreadPool::globalInstance()->waitForDone();
    EndKeepingCopies();
    ForgetNote();
    ForgetWindows();
    QApplication::processEvents();
}

RandomUser::RandomUser(unsigned seed, QString directory, const std::string& log)
    : random_(seed), directory_(std::move(directory)), log_(log) {
    QDir().mkpath(directory_ + QStringLiteral("/sub"));
    clock_.start();
    // A timer that is under way does not come again in a loop within.
    inside_.setSingleShot(true);
    QObject::connect(&inside_, &QTimer::timeout, [this] {
        inside_.start(1);
        const int loops = QThread::currentThread()->loopLevel();
        if (loops > loops_) ActInside(loops);
    });
    inside_.start(1);
}

std::size_t RandomUser::Below(std::size_t limit) {
    return random_() % limit;
}

void RandomUser::Log(const std::string& action) {
    log_ << actions_ << " (" << clock_.elapsed() << " ms) " << action << std::endl;
}

void RandomUser::ActInside(int loops) {
    const int outer = std::exchange(loops_, loops);
    Act();
    loops_ = outer;
}

void RandomUser::LookForFindings() {
    std::string shown = NoteShown().toStdString();
    if (const auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        if (box->windowTitle() == QStringLiteral("INTERNAL ERROR")) {
            finding_ = box->text().toStdString();
        }
        shown += box->text().toStdString();
    }
    if (shown.find("Something went wrong inside the program") != shown.npos) finding_ = shown;
}

void RandomUser::Act() {
    ++actions_;
    QWidget* window = QApplication::activePopupWidget();
    if (window == nullptr) window = QApplication::activeModalWidget();
    if (window == nullptr) window = QApplication::activeWindow();
    if (window == nullptr) window = MainWindow();
    if (window == nullptr || Ending()) return;
    if (QApplication::activeModalWidget() == nullptr && Below(4) == 0) window = MainWindow();
    seen_.insert(window->objectName().toStdString());
    WorkIn(*window);
    QApplication::processEvents();
    if (!Ending()) LookForFindings();
}

void RandomUser::WorkIn(QWidget& window) {
    if (qobject_cast<QFileDialog*>(&window) != nullptr) return AnswerFileDialogue(window);
    const bool isProof = &window == MainWindow();
    QWidget* target = nullptr;
    switch (const std::size_t what = Below(24); what) {
        case 0:
            return PressAnyKey(window);
        case 1:
        case 2:
            target = OneOf(ShownIn(window));
            return UseMouse(*target, PlaceIn(*target), Below(5));
        case 3:
            if (Below(4) == 0) return ChangeWindow(window);
            if (Below(2) == 0) return ChangeFile();
            return CopyElsewhere();
        default:
            if (!isProof) return AnswerBox(window);
            return what < (RuleMode == 0 ? 12U : 6U) ? Command() : ClickInProof();
    }
}

void RandomUser::Command() {
    static const std::vector<MenuItem*> usual = UsualCommands();
    MenuItem* item = OneOf(usual);
    while (Below(4) == 0) item = dynamic_cast<MenuItem*>(OneOf(Proof.Controls));
    if (item == nullptr || !item->Items.empty()) return;
    if (item == &Proof.optExit && Below(8) != 0) return;
    QAction* action = ActionOf(*item);
    if (action == nullptr || !action->isEnabled() || !action->isVisible()) return;
    seen_.insert(item->Name);
    Log("choose " + item->Name);
    action->trigger();
}

void RandomUser::ClickInProof() {
    QWidget* display = ShownProof().viewport();
    if (Below(3) == 0) return UseMouse(*display, PlaceIn(*display), Below(30));
    const std::string& shown = Proof.RTB.GetText();
    std::size_t place = Below(shown.size() + 1);
    // By chance alone the two clicks hardly ever meet an equation.
    if (RuleMode == Rule::Substitute && Below(2) == 0) place = NextEqualsSign(shown, place);
    const auto position = static_cast<int>(place);
    ShownProof().EnsureVisible(position);
    UseMouse(*display, PlaceInProof(position), Below(30));
}

// A form of the program, a message, a menu, the manual.
void RandomUser::AnswerBox(QWidget& window) {
    std::vector<QWidget*> boxes;
    std::vector<QAbstractButton*> buttons;
    for (QWidget* widget : ShownIn(window)) {
        if (!widget->isEnabled()) continue;
        if (auto* button = qobject_cast<QAbstractButton*>(widget)) buttons.push_back(button);
        const auto* text = qobject_cast<QTextEdit*>(widget);
        const bool isText = text != nullptr && !text->isReadOnly();
        if (isText || qobject_cast<QLineEdit*>(widget) != nullptr) boxes.push_back(widget);
    }
    if (!boxes.empty() && Below(2) == 0) return Enter(*OneOf(boxes));
    if (buttons.empty() || Below(6) == 0) {
        Log("Esc in " + NameOf(window));
        return QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    }
    QAbstractButton* button = OneOf(buttons);
    for (QAbstractButton* other : buttons) {
        if (other->text().contains(QStringLiteral("ontinue")) && Below(2) == 0) button = other;
    }
    Log("press " + NameOf(*button) + " in " + NameOf(window));
    QTest::mouseClick(button->window()->windowHandle(), Qt::LeftButton, {},
                      button->mapTo(button->window(), button->rect().center()));
}

void RandomUser::Enter(QWidget& box) {
    const char* const entry = OneOf(Entries);
    Log(std::string("enter ") + entry + " into " + NameOf(box));
    box.setFocus();
    QWindow* window = box.window()->windowHandle();
    if (Below(2) == 0) QTest::keyClick(window, Qt::Key_A, Qt::ControlModifier);
    if (std::strlen(entry) > 6 && Below(4) != 0) {  // typing takes its time
        QApplication::clipboard()->setText(QString::fromUtf8(entry));
        return QTest::keyClick(window, Qt::Key_V, Qt::ControlModifier);
    }
    for (const char32_t c : QString::fromUtf8(entry).toUcs4()) {
        if (c < 128) {
            QTest::keyClick(window, static_cast<char>(c));
        } else {
            QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, QString::fromUcs4(&c, 1),
                                Qt::NoModifier);
        }
    }
}

// Never anything else in there: it could leave the directory.
void RandomUser::AnswerFileDialogue(QWidget& window) {
    auto& dialogue = static_cast<QFileDialog&>(window);
    if (Below(4) == 0) {
        Log("cancel " + dialogue.windowTitle().toStdString());
        return dialogue.reject();
    }
    const char* const name = OneOf(FileNames);
    Log(dialogue.windowTitle().toStdString() + " " + name);
    dialogue.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
        ->setText(PathIn(directory_, name));
    static_cast<QDialog&>(dialogue).accept();
}

void RandomUser::PressAnyKey(QWidget& window) {
    const int special[] = {Qt::Key_Escape, Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Backspace,
                           Qt::Key_Return, Qt::Key_Enter, Qt::Key_Insert,  Qt::Key_Delete,
                           Qt::Key_Home,   Qt::Key_End,   Qt::Key_Left,    Qt::Key_Up,
                           Qt::Key_Right,  Qt::Key_Down,  Qt::Key_PageUp,  Qt::Key_PageDown,
                           Qt::Key_Menu,   Qt::Key_Space, Qt::Key_Alt};
    const Qt::KeyboardModifiers modifiers[] = {Qt::NoModifier,
                                               Qt::NoModifier,
                                               Qt::NoModifier,
                                               Qt::ShiftModifier,
                                               Qt::ControlModifier,
                                               Qt::AltModifier,
                                               Qt::ControlModifier | Qt::ShiftModifier};
    const QPointer<QWidget> alive = &window;  // a key may close it
    for (std::size_t keys = 1 + Below(5); keys > 0 && alive; --keys) {
        int key = OneOf(special);
        if (Below(3) == 0) key = Qt::Key_F1 + static_cast<int>(Below(12));
        if (Below(3) == 0) key = Qt::Key_Space + static_cast<int>(Below(95));
        const Qt::KeyboardModifiers held = OneOf(modifiers);
        Log("key " + QKeySequence(key | static_cast<int>(held)).toString().toStdString());
        QWidget* popup = QApplication::activePopupWidget();
        QWidget& receiver = popup != nullptr ? *popup : window;
        if (!receiver.isVisible() || receiver.windowHandle() == nullptr || Ending()) return;
        if (qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr) return;
        Press(*receiver.windowHandle(), key, held);
    }
}

int RandomUser::Between(int first, int last) {
    return first + static_cast<int>(Below(static_cast<std::size_t>(last - first + 1)));
}

QPoint RandomUser::PlaceIn(const QWidget& target) {
    return {Between(0, std::max(0, target.width() - 1)),
            Between(0, std::max(0, target.height() - 1))};
}

// Kind 0: a double click, 1: a drag, 2: the wheel, else a click.
void RandomUser::UseMouse(QWidget& target, const QPoint& place, std::size_t kind) {
    const QPoint there = target.mapTo(target.window(), place);
    QWindow* window = target.window()->windowHandle();
    const Qt::MouseButton button = Below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    const Qt::KeyboardModifiers held = Below(8) == 0 ? Qt::ShiftModifier : Qt::NoModifier;
    Log("mouse " + std::to_string(kind) + " in " + NameOf(target) + " of " +
        NameOf(*target.window()) + " at " + std::to_string(place.x()) + ',' +
        std::to_string(place.y()) + (button == Qt::RightButton ? ", the right button" : ""));
    if (window == nullptr) return;
    if (kind == 0) return QTest::mouseDClick(window, button, held, there);
    if (kind == 1) {
        const QPoint end = there + QPoint(Between(-100, 100), Between(-20, 20));
        QTest::mousePress(window, button, held, there);
        QTest::mouseMove(window, there + QPoint(5, 1));
        QTest::mouseMove(window, end);
        return QTest::mouseRelease(window, button, held, end);
    }
    if (kind == 2) {
        QWheelEvent wheel(place, target.mapToGlobal(place), {}, {0, Between(-2, 2) * 120},
                          Qt::NoButton, held, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&target, &wheel);
        return;
    }
    QTest::mouseClick(window, button, held, there);
}

void RandomUser::ChangeWindow(QWidget& window) {
    switch (Below(3)) {
        case 0:
            Log("resize " + NameOf(window));
            return window.resize(50 + static_cast<int>(Below(1200)),
                                 50 + static_cast<int>(Below(800)));
        case 1:
            Log("close " + NameOf(window));
            window.close();
            return;
        default:
            Log("wait");
            return QTest::qWait(static_cast<int>(Below(60)));
    }
}

// Another program at work.
void RandomUser::ChangeFile() {
    const fs::path path = PathIn(directory_, OneOf(FileNames)).toStdString();
    const fs::path other = PathIn(directory_, OneOf(FileNames)).toStdString();
    std::error_code error;
    const std::size_t kind = Below(7);
    Log("another program: " + std::to_string(kind) + ' ' + path.filename().string() + ' ' +
        other.filename().string());
    if (path.filename() == "sub") return;
    const auto size = fs::file_size(path, error);
    switch (kind) {
        case 0:
            fs::copy_file(other, path, fs::copy_options::overwrite_existing, error);
            break;
        case 1:
            if (!error) fs::resize_file(path, size / 2, error);
            break;
        case 2:
            fs::remove(path, error);
            break;
        case 3:
            std::ofstream(path, std::ios::app) << "more";
            break;
        case 4:
            fs::remove(PathIn(directory_, "link.proof").toStdString(), error);
            fs::create_symlink(path, PathIn(directory_, "link.proof").toStdString(), error);
            break;
        case 5:
            fs::permissions(path, Below(2) == 0 ? fs::perms::none : fs::perms::owner_all, error);
            break;
        default:
            std::ofstream(path) << "Tessaryn 1 and no more";
    }
}

void RandomUser::CopyElsewhere() {
    auto* data = new QMimeData;
    data->setText(QString::fromUtf8(OneOf(Pasted)));
    Log("elsewhere: copy " + data->text().toStdString());
    if (Below(3) == 0) data->setData(QStringLiteral("text/rtf"), "{\\rtf1 P \\b & {\\f1 e} Q}");
    if (Below(3) == 0) data->setHtml(QStringLiteral("<b>P</b> &amp; <i>Q</i>"));
    QApplication::clipboard()->setMimeData(data);
}

void RandomUser::ComeToRest() {
    inside_.stop();
    for (int tries = 0; tries < 100 && !Ending(); ++tries) {
        QWidget* top = QApplication::activePopupWidget();
        if (top == nullptr) top = QApplication::activeModalWidget();
        if (top == nullptr) break;
        top->close();
        QApplication::processEvents();
    }
}

}  // namespace tessaryn
