#include "desktop/FormWindow.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
#include <QWindow>
#include <stdexcept>

#include "ShownForm.h"
#include "axioms/InductionForm.h"
#include "axioms/SubsetFrm.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "editing/Comment.h"
#include "editing/EditCaption.h"
#include "entry/MyInputBox.h"
#include "entry/TestParser.h"
#include "menu/StartProgram.h"
#include "view/Display.h"

using namespace tessaryn;

namespace {

// A dialogue with one control of each kind, and what happened to it.
struct EntryForm : Form {
    EntryForm() : Form("Entry", "An entry") {
        DefaultButton = &accept;
        accept.Click = [this] { End("accepted " + name.Text); };
        cancel.Click = [this] { End("cancelled"); };
        faulty.Click = [] { throw std::runtime_error("out of ink"); };
        MenuBar = {&menu};
        menu.Items = {&item, &line};
        item.Click = [this] { item.Checked = !item.Checked; };
    }
    ~EntryForm() override { ForgetWindows(); }

    void Activated() override { box.SetFocus(); }
    bool KeyPressed(const KeyEvent& key) override {
        if (key.key != Key::Esc) return false;
        End("cancelled");
        return true;
    }

    void End(const std::string& how) {
        ended = how;
        Hide();
    }

    // How the form ended by what was done in its window.
    std::string Run(const std::function<void(QWidget&)>& act) {
        ended = "closed";
        return ClosedBy(*this, act) ? ended : "left open";
    }

    RichTextBox box{*this, "box"};
    TextBox name{*this, "name"};
    Label message{*this, "message"};
    CheckBox tick{*this, "tick", "Tick"};
    Button accept{*this, "accept", "Continue..."};
    Button cancel{*this, "cancel", "Cancel"};
    Button hidden{*this, "hidden", "Hidden"};
    Button faulty{*this, "faulty", "Faulty"};
    MenuItem menu{*this, "menu", "&Menu"};
    MenuItem item{*this, "item", "'&&'     (And)", ""};
    MenuItem line{*this, "line", "-"};
    std::string ended;
};

// A key of its own for each character, those beyond ASCII included.
void Type(QWidget& widget, const QString& text) {
    for (const QChar c : text) {
        QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
    }
}

}  // namespace

TEST(EditBox, OfALongTextInOneLineTheBeginningAloneIsLaidOutAndNothingIsLost) {
    EntryForm form;
    form.box.MultiLine = false;
    std::string text;
    for (int line = 1000; line < 3000; ++line) text += std::to_string(line) + "\r\n";
    const int length = static_cast<int>(text.size());
    form.Run([&](QWidget& window) {
        auto& editor = Find<QTextEdit>(window, "box");
        const auto press = [&](Qt::Key key, Qt::KeyboardModifier with = Qt::NoModifier) {
            QTest::keyClick(&editor, key, with);
            return form.box.GetText();
        };
        const auto caretBehind = [&](Qt::Key key, Qt::KeyboardModifier with = Qt::NoModifier) {
            Dispatch([&] {
                form.box.SetText("");
                form.box.SetText(text);
            });
            EXPECT_LT(editor.document()->blockCount(), 500);
            press(key, with);
            Dispatch([] {});
            return form.box.GetSelStart();
        };
        EXPECT_EQ(caretBehind(Qt::Key_Right), 1);
        EXPECT_EQ(caretBehind(Qt::Key_Down), 6);
        EXPECT_EQ(caretBehind(Qt::Key_End, Qt::ControlModifier), length);
        EXPECT_EQ(press(Qt::Key_X), text + "x");
        EXPECT_EQ(caretBehind(Qt::Key_X), 1);
        EXPECT_EQ(form.box.GetText(), "x" + text);
        EXPECT_LT(editor.document()->blockCount(), 500) << "what is typed there changes no more";
        Dispatch([&] { form.box.SelStart = length; });
        EXPECT_EQ(editor.toPlainText().size(), 1 + length / 6 * 5) << "to here it is all there";
        // As often as what is held runs short.
        Dispatch([&] { form.box.SetText(text); });
        for (int gone = 900; gone < length; gone += 900) {
            Dispatch([&] { form.box.SelLength = 900; });
            ASSERT_EQ(press(Qt::Key_Delete), text.substr(static_cast<std::size_t>(gone)));
        }
    });
}

// By the box's own keys and by what the toolkit brings along: its keys, the middle button, a drop.
TEST(EditBox, EveryWayInAndOutKnowsTheElementSign) {
    StartProgram();
    QClipboard& clipboard = *QGuiApplication::clipboard();
    using Act = std::function<void(QTextEdit&)>;
    const auto key = [](Qt::Key pressed, Qt::KeyboardModifier with) -> Act {
        return [=](QTextEdit& editor) { QTest::keyClick(&editor, pressed, with); };
    };
    const Act drop = [&](QTextEdit& editor) {
        QDragEnterEvent entering(QPoint(1, 1), Qt::CopyAction, clipboard.mimeData(), Qt::LeftButton,
                                 {});
        QApplication::sendEvent(editor.viewport(), &entering);
        QDropEvent dropped(QPointF(1, 1), Qt::CopyAction, clipboard.mimeData(), Qt::LeftButton, {});
        QApplication::sendEvent(editor.viewport(), &dropped);
    };
    const Act waysIn[] = {key(Qt::Key_V, Qt::ControlModifier),
                          key(Qt::Key_Insert, Qt::ShiftModifier), &QTextEdit::paste, drop};
    const Act waysOut[] = {key(Qt::Key_C, Qt::ControlModifier),
                           key(Qt::Key_Insert, Qt::ControlModifier), &QTextEdit::copy,
                           key(Qt::Key_X, Qt::ControlModifier),
                           key(Qt::Key_Delete, Qt::ShiftModifier)};
    ClosedBy(TestParser, [&](QWidget& window) {
        auto& editor = Find<QTextEdit>(window, "RTB");
        Type(editor, QStringLiteral("x@S"));
        QTest::keyClick(&editor, Qt::Key_Return);
        Type(editor, QStringLiteral("e\u00E9"));
        QTest::keyClick(&editor, Qt::Key_Backspace);
        EXPECT_EQ(editor.toPlainText(), QStringLiteral("x\u03B5S\ne"));
        EXPECT_EQ(ConvertEpsilon(TestParser.RTB), "x@S\r\ne");
        for (const Act& takeIn : waysIn) {
            clipboard.setText(QStringLiteral("\tx @ \u2208\n"));
            SendChoose(TestParser.Tools.Clear);
            SyncWindows();
            takeIn(editor);
            EXPECT_EQ(editor.toPlainText(), QStringLiteral("x \u03B5 \u03B5\n"));
            EXPECT_EQ(ConvertEpsilon(TestParser.RTB), "x @ @\r\n");
        }
        for (const Act& handOut : waysOut) {
            clipboard.clear();
            editor.selectAll();
            handOut(editor);
            EXPECT_EQ(clipboard.text(), QStringLiteral("x @ @\n"));
            EXPECT_TRUE(ClipboardContent().rtf.starts_with("{\\rtf1"));
            if (editor.toPlainText().isEmpty()) SendChoose(TestParser.Tools.Undo);
            EXPECT_EQ(ConvertEpsilon(TestParser.RTB), "x @ @\r\n") << "a cut can be undone";
            SyncWindows();
        }
    });
    ClosedBy(MyInputBox, [](QWidget& window) {
        auto& entry = Find<QLineEdit>(window, "Text1");
        entry.paste();
        EXPECT_EQ(entry.text(), QStringLiteral("x @ @"));
    });
}

TEST(EditBox, SelectionIsTheSameOnBothSides) {
    EntryForm form;
    form.Run([&](QWidget& window) {
        auto& editor = Find<QTextEdit>(window, "box");
        form.box.SetText("\xC3\xA9 a\r\nb");
        form.box.SelStart = 6;
        form.box.SelLength = 1;
        SyncWindows();
        EXPECT_EQ(editor.textCursor().selectedText(), QStringLiteral("b"));
        QTest::keyClick(&editor, Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClick(&editor, Qt::Key_Right, Qt::ShiftModifier);
        Dispatch([] {});
        EXPECT_EQ(form.box.GetSelText(), "\xC3\xA9");
        // What is typed behind a red mark goes on in red.
        CharFormat red;
        red.Color = Rgb(255, 0, 0);
        form.box.SetFormat(3, 1, red);
        SyncWindows();
        QTest::keyClick(&editor, Qt::Key_End);
        Type(editor, QStringLiteral("c"));
        EXPECT_EQ(form.box.FormatAt(3).Color, red.Color);
    });
}

TEST(FormWindow, KeyboardAcceptsAndCancels) {
    EntryForm form;
    const struct {
        const char* focus;
        Qt::Key key;
        const char* end;
    } rows[] = {{"name", Qt::Key_Return, "accepted \xC3\xA9x"},
                {"box", Qt::Key_Escape, "cancelled"},
                {"cancel", Qt::Key_Return, "cancelled"},
                {"tick", Qt::Key_Return, "accepted \xC3\xA9x"}};
    for (const auto& row : rows) {
        EXPECT_EQ(form.Run([&](QWidget& window) {
            auto& widget = Find<QWidget>(window, row.focus);
            widget.setFocus();
            if (form.name.Text.empty()) Type(widget, QStringLiteral("\u00E9x"));
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(&widget, &held);
            QTest::keyClick(&widget, row.key);
        }),
                  row.end)
            << row.focus;
    }
    EXPECT_FALSE(form.tick.Value);
    EXPECT_EQ(form.Run([](QWidget& window) { window.close(); }), "closed");
}

// On a slow machine a double click or a second Enter finds the box closed by the first.
TEST(FormWindow, WhatComesBehindItsEndIsForNobody) {
    EntryForm form;
    int presses = 0;
    form.accept.Click = [&] { presses += form.Visible ? 1 : 10, form.Hide(); };
    EXPECT_TRUE(ClosedBy(form, [](QWidget& window) {
        const auto& accept = Find<QPushButton>(window, "accept");
        QTest::mouseDClick(window.windowHandle(), Qt::LeftButton, {},
                           accept.mapTo(&window, accept.rect().center()));
    }));
    EXPECT_EQ(presses, 1);
    EXPECT_TRUE(ClosedBy(form, [](QWidget& window) {
        Find<QWidget>(window, "name").setFocus();
        QWindow* handle = window.windowHandle();
        for (int i = 0; i < 2; ++i)
            QTest::sendKeyEvent(QTest::Press, handle, Qt::Key_Return, QString(), Qt::NoModifier);
    }));
    EXPECT_EQ(presses, 2);
    form.ended.clear();
    QTest::keyClick(WindowOf(form).Window().windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(form.ended, "");
}

// A note says what no label says, and hides nothing of the box, wherever the user has clicked.
TEST(FormWindow, NoteAddsToABoxAndHidesNothingOfIt) {
    StartProgram();
    const auto noteAt = []() -> QRect {
        QCoreApplication::processEvents();
        if (NoteShown().isEmpty()) return {};
        for (const QWidget* widget : QApplication::topLevelWidgets()) {
            const auto* label = qobject_cast<const QLabel*>(widget);
            if (label == nullptr || label->text() != NoteShown()) continue;
            EXPECT_EQ(label->accessibleName(), NoteShown());
            EXPECT_EQ(label->font(), TellingFont());
            return label->frameGeometry();
        }
        return {};
    };
    RuleFontSize = 12;
    ClosedBy(TestParser, [&](QWidget& window) {
        auto& editor = Find<QTextEdit>(window, "RTB");
        QTest::mouseClick(editor.viewport(), Qt::LeftButton);
        Type(editor, QStringLiteral("x+"));
        Find<QPushButton>(window, "cmdContinue").click();
        EXPECT_NE(TestParser.StatusLine.Caption, "");
        EXPECT_EQ(noteAt(), QRect()) << "the label has told the reason";
        const QRect screen = window.screen()->availableGeometry();
        for (const QPoint place : {screen.topLeft(), screen.bottomLeft(), screen.topRight()}) {
            window.move(place.x() > 0 ? place.x() - window.width() : 0,
                        place.y() > 0 ? place.y() - window.height() : 0);
            QTest::mouseClick(&Find<QPushButton>(window, "cmdCut"), Qt::LeftButton);
            EXPECT_TRUE(screen.contains(noteAt()));
            EXPECT_FALSE(window.frameGeometry().intersects(noteAt()));
        }
        window.setGeometry(screen);
        Find<QPushButton>(window, "cmdCut").click();
        EXPECT_NE(noteAt(), QRect());
        EXPECT_FALSE(noteAt().intersects({editor.mapToGlobal(QPoint()), editor.size()}));
    });
}

TEST(FormWindow, MenusOfABoxOpenByKeys) {
    StartProgram();
    ClosedBy(TestParser, [](QWidget& window) {
        auto& editor = Find<QTextEdit>(window, "RTB");
        QStringList titles;
        for (const QAction* title : window.findChild<QMenuBar*>()->actions())
            titles += title->text();
        EXPECT_EQ(titles, (QStringList{QStringLiteral("&Edit"), QStringLiteral("&Notation")}));
        EXPECT_EQ(TestParser.Menus.mnuEdit.Caption, "Edit");
        QMenu& edit = *WindowOf(TestParser).MenuOf(TestParser.Menus.mnuEdit);
        QString letters;
        for (const QAction* item : edit.actions()) {
            letters += QKeySequence::mnemonic(item->text()).toString().right(1);
        }
        EXPECT_EQ(letters, QStringLiteral("URCOPDL"));

        QTest::keyClick(&editor, Qt::Key_F10);
        EXPECT_EQ(QApplication::activePopupWidget(), &edit);
        EXPECT_EQ(edit.activeAction(), edit.actions()[2]) << "the first that is not greyed";
        edit.close();

        Type(editor, QStringLiteral("x+y"));
        QTest::mouseClick(editor.viewport(), Qt::LeftButton, {}, QPoint(90, 60));
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, {}, {}, {});
        QApplication::sendEvent(editor.viewport(), &menuKey);
        const QPoint caret = editor.viewport()->mapToGlobal(editor.cursorRect().bottomLeft());
        EXPECT_LT((edit.pos() - caret).manhattanLength(), 4);
        edit.close();
    });
    FormWindow& window = WindowOf(Comment);
    for (const QAction* item : window.MenuOf(Comment.Menus.mnuNotation)->actions()) {
        EXPECT_TRUE(item->text().contains(QLatin1Char('&'))) << item->text().toStdString();
    }
}

// A small screen is one of 960 x 540 points, less what the frame takes.
TEST(FormWindow, TabGoesFromTheTextToContinueInABoxThatFitsASmallScreen) {
    const struct {
        Form& form;
        const char* text;
        Control& accept;
    } rows[] = {
        {TestParser, "RTB", TestParser.cmdContinue},
        {Comment, "CommentBox", Comment.Continue},
        {EditCaption, "RTB", EditCaption.Continue},
        {SubsetFrm, "SelectExpression", SubsetFrm.cmdContinue},
        {InductionForm, "RTB", InductionForm.cmdContinue},
    };
    for (const auto& row : rows) {
        FormWindow& window = WindowOf(row.form);
        const auto* next = Find<QTextEdit>(window.Window(), row.text).nextInFocusChain();
        while (next->isHidden() || next->focusPolicy() == Qt::NoFocus) {
            next = next->nextInFocusChain();
        }
        EXPECT_EQ(next, window.WidgetOf(row.accept)) << row.form.Name;
        const QSize size = window.Window().size().expandedTo(window.Window().minimumSizeHint());
        EXPECT_EQ(size, size.boundedTo(QSize(944, 492))) << row.form.Name;
    }
}

TEST(FormWindow, ShowsWhatTheLogicHasSet) {
    EntryForm form;
    form.hidden.Visible = false;
    form.Run([&](QWidget& window) {
        EXPECT_EQ(window.focusWidget(), &Find<QTextEdit>(window, "box"));
        EXPECT_TRUE(Find<QPushButton>(window, "hidden").isHidden());
        Dispatch([&] {
            form.Caption = "Other [*] [*][*]";
            form.message.Caption = "P & Q <b>";
            form.accept.Enabled = false;
            form.name.Text = "abc";
            form.name.SetFocus();
            form.name.SelStart = 1;
            form.name.SelLength = 2;
        });
        EXPECT_EQ(window.windowHandle()->title(), ToQt(form.Caption));
        EXPECT_EQ(Find<QLabel>(window, "message").text(), QStringLiteral("P & Q <b>"));
        EXPECT_FALSE(Find<QPushButton>(window, "accept").isEnabled());
        EXPECT_EQ(Find<QLineEdit>(window, "name").selectedText(), QStringLiteral("bc"));
        EXPECT_EQ(window.focusWidget(), &Find<QLineEdit>(window, "name"));

        auto& tick = Find<QCheckBox>(window, "tick");
        tick.click();
        EXPECT_TRUE(form.tick.Value);
        EXPECT_TRUE(tick.isChecked());

        const auto actions = WindowOf(form).MenuOf(form.menu)->actions();
        EXPECT_EQ(actions[0]->text(), QStringLiteral("'&&'\t(And)"));
        EXPECT_TRUE(actions[1]->isSeparator());
        actions[0]->trigger();
        EXPECT_TRUE(actions[0]->isChecked());
    });
}

TEST(FormWindow, AFaultInTheLogicIsToldAndLeavesTheWindowUsable) {
    EntryForm form;
    EXPECT_EQ(form.Run([&](QWidget& window) {
        Find<QPushButton>(window, "faulty").click();
        QCoreApplication::processEvents();
        EXPECT_TRUE(NoteShown().contains(QStringLiteral("out of ink")));
        EXPECT_EQ(QApplication::activeModalWidget(), &window);
        Find<QPushButton>(window, "cancel").click();
    }),
              "cancelled");
}

TEST(Messages, AQuestionHasItsReasonBesideItUntilEscWhichMeansNo) {
    Answer answer = Answer::Yes;
    Beep("why");
    MsgBox({"Go on?", "WARNING", Buttons::YesNo, Answer::Yes}, [&](Answer a) { answer = a; });
    QApplication::processEvents();
    EXPECT_EQ(NoteShown(), QStringLiteral("why"));
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Tab);
    FadeNote();  // its time is over
    EXPECT_TRUE(NoteStands());
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    EXPECT_EQ(answer, Answer::No);
    EXPECT_FALSE(NoteStands());
}

// The selection grows at each tick while the pointer is held at the right edge, and the display
// follows it.
TEST(ProofWindow, DragPastTheRightEdgeGoesOnToTheEndOfTheLine) {
    struct : Form {
        using Form::Form;
        RichTextBox display{*this, "RTB"};
        RichTextBox status{*this, "StatusLine"};
        Timer timer{*this, "Timer1"};
    } form("Proof");
    form.display.SetText(std::string(200, 'x') + "\r\nnext");
    form.display.MouseMove = [&] { form.timer.Enabled = PointerBeyondRightEdge(form.display); };
    form.timer.Interval = 1;
    form.timer.Tick = [&] {
        form.display.SelLength = form.display.SelLength + 1;
        form.timer.Enabled = form.display.GetSelText().back() != '\n';
    };
    ShowMainWindow(form);
    auto* area = static_cast<QAbstractScrollArea*>(WidgetOf(form.display));
    QWidget* viewport = area->viewport();
    const QPoint start(20, 15);
    const QPoint edge(viewport->width() - 1, 15);
    QTest::mousePress(viewport, Qt::LeftButton, {}, start);
    QCursor::setPos(viewport->mapToGlobal(edge));
    QMouseEvent move(QEvent::MouseMove, edge, viewport->mapToGlobal(edge), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(viewport, &move);
    EXPECT_TRUE(QTest::qWaitFor([&] { return form.display.GetSelText().back() == '\n'; }, 60000));
    EXPECT_GT(area->horizontalScrollBar()->value(), 300);
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, edge);
    ForgetWindows();
}
