// What a user waits for in the window, 1200 x 900, with a proof of 32,000 statements that are all
// shown: the time of the window's thread from each click and key to the painted frame.
//
// speed_window --each: a row for every command in place of the slowest.
#include <QApplication>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QThreadPool>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "AllForms.h"
#include "LargeProofs.h"
#include "SpeedTable.h"
#include "UserHands.h"
#include "desktop/EscRun.h"
#include "desktop/InputWatch.h"
#include "desktop/Messages.h"
#include "desktop/PaintedText.h"
#include "document/ProofFile.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "menu/StartProgram.h"
#include "output/Settings.h"
#include "platform/Files.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/PutStmt.h"
#include "view/Undo.h"

using namespace tessaryn;

namespace {

constexpr int Statements = 32000;
constexpr int Rounds = 40;           // of the commands of the table below
constexpr int RoundsOfTheFew = 101;  // of those that have a row of their own

// The last lines of the proof: something to click for each rule.
const char* const LastLines[] = {
    "~~P(x,y)",                              // 31991
    "P(x,y) | ~P(x,y)",                      // 31992
    "P(x,y) => Q(y)",                        // 31993
    "P(x,y) <=> Q(y)",                       // 31994
    "ALL(a):ALL(b):[R(a,b) => P(a,b)]",      // 31995
    "Set(s)",                                // 31996
    "x=y",                                   // 31997
    "[P(x,y) => Q(y)] & [~P(x,y) => Q(y)]",  // 31998
    "P(x,y)",                                // 31999
    "P(x,y) & x+y=z",                        // 32000
};

// One command from its start to its end. Steps, " ; " between them; each is one event, and a text
// one for each key:
//
//   NAME               chooses a menu item or presses a button
//   N, N:SIGN, N.rule  clicks on statement N, on the first such sign in it, on its annotation
//   #N                 a double click on the number of statement N
//   = TEXT             the keys of a text
//   <Esc>              the key
//   |                  what stands ahead of it is done, but not measured
struct Command {
    const char* name;
    const char* steps;
};

const Command Commands[] = {
    {"New", "optNew"},
    {"Open, up to its box", "optOpen ; <Esc>"},
    {"Save", "optJoin ; 31999 ; 32000 ; | ; optSave"},
    {"Save As, up to its box", "optSaveAs ; <Esc>"},
    {"Make HTML File, up to its box", "optHTML ; <Esc>"},
    {"Print, up to its box", "optPrint ; cmdCancel"},
    {"Select Default Directory", "optSelectDir ; cmdCancel"},
    {"Exit, up to its question", "optJoin ; 31999 ; 32000 ; | ; optExit ; cmdCancel"},
    {"Undo", "optJoin ; 31999 ; 32000 ; | ; optUndo"},
    {"Undo of a line inserted at 3",
     "optInsert ; 3 ; optJoin ; 1 ; 2 ; | ; optUndo ; optRedo ; optInsert"},
    {"Redo", "optJoin ; 31999 ; 32000 ; optUndo ; | ; optRedo"},
    {"Insert Mode", "optInsert ; 3 ; optInsert"},
    {"Delete All References", "DeleteAllRef ; 10"},
    {"Delete All References to line 2", "DeleteAllRef ; 2 ; cmdContinue"},
    {"Delete Subsequent Lines", "DelAllSubsequent ; 16001"},
    {"Find", "optFind ; = x+y=z ; cmdFind"},
    {"Repeat Find", "optFind ; = x+y=z ; cmdFind ; | ; optRepeatFind"},
    {"Caption", "optCaption ; = A ; Continue"},
    {"Introduction", "optIntro ; = A ; Continue"},
    {"Comment", "32000 ; = A ; Continue"},
    {"Comment on line 2", "2 ; = A ; Continue"},
    {"Toggle Highlight", "optToggleHighlight ; 31994.number"},
    {"Rich Text Mode", "optRichTextMode ; optRichTextMode"},
    {"Hide All Details", "optHideDetails"},
    {"Show All Active Stmts", "optHideDetails ; | ; optShowDetails"},
    {"Show Last Active Stmts", "optHideDetails ; | ; optShowLastDetails"},
    {"Show / Hide Detail Block", "#16001"},
    {"Show / Hide Premise Block", "16008.rule ; 16008.rule"},
    {"Show All Stmts", "optHideDetails ; | ; optShowAllStmts"},
    {"Show Only Highlights", "optShowHighlights"},
    {"Text Size", "optLargeText ; optSmallText ; optMediumText"},
    {"Premise", "optPremise ; = Q(v) ; cmdContinue"},
    {"Create Axiom", "optInsert ; 1 ; | ; optAxiom ; = Q(v) ; cmdContinue"},
    {"Join", "optJoin ; 31999 ; 32000"},
    {"Split", "optSplit ; 32000"},
    {"Remove ~~", "optDNegRemove ; 31991:~"},
    {"Conclusion", "optPremise ; = Q(v) ; cmdContinue ; | ; optConclusion ; = c ; Continue"},
    {"Conclusion of the proof", "optConclusion"},
    {"Implies-And", "optImplies ; 31993:=>"},
    {"Implies-Or", "optImliesOr ; 31993:=>"},
    {"Iff-And", "optIff ; 31994:<=>"},
    {"De Morgan", "optDeMorgan ; 31992:|"},
    {"Detachment", "optDetachment ; 31993 ; 31999"},
    {"Contrapositive", "optContrapositive ; 31993:=>"},
    {"Cases", "optCases ; 31992 ; 31998"},
    {"Arb Ante", "optArbAntecedent ; 32000 ; = Q(y) ; cmdContinue"},
    {"Arb Cons", "optArbConsequent ; 32000 ; = Q(y) ; cmdContinue"},
    {"Arb Or, right", "optArbOrRight ; 32000 ; = Q(y) ; cmdContinue"},
    {"Arb Or, left", "optArbOrLeft ; 32000 ; = Q(y) ; cmdContinue"},
    {"Or Not", "optOrNot ; = Q(y) ; cmdContinue"},
    {"Quantifier Switch", "optQuantifierSwitch ; 31995:ALL"},
    {"Specify", "optSpec ; 31995 ; = x ; cmdContinue"},
    {"Existential Generalization", "optEGen ; 31999:x ; = c ; cmdSelectAll ; cmdContinue"},
    {"Rename", "optRename ; 31995 ; = c,d ; Continue"},
    {"Reorder", "optReorder ; 31995 ; Continue"},
    {"Copy statement", "optCopyStatement ; 32000"},
    {"Subset", "optSubset ; 31996 ; = v ; cmdCancel"},
    {"Cartesian Product", "optCartesianProd ; = 2 ; Continue"},
    {"Power Set", "optPowerSet ; = 2 ; Continue"},
    {"Set Equality", "optSetEquality ; = 2 ; Continue"},
    {"Reflexivity", "optReflexivity ; = x ; cmdContinue"},
    {"Symmetry", "optSymmetry ; 31997:="},
    {"Substitute", "optSubstitution ; 31997:y ; 31999:x ; cmdSelectAll ; cmdContinue"},
    {"Union, pairwise", "optPairwiseUnion"},
    {"Union, arbitrary", "optArbitraryUnion"},
    {"Choice", "optChoice"},
    {"Number Axioms at line 1", "optInsert ; 1 ; | ; optNumberAxioms ; optInsert"},
    {"Induction Shortcut", "optPremise ; = 1@n ; cmdContinue ; | ; optAdd ; = k ; cmdCancel"},
    {"Definitions", "optPremise ; = 1@n ; cmdContinue ; | ; OptLessThan"},
    {"Show Tip on Start-Up", "optShowTip"},
    {"User Manual", "optUserManual"},
    {"About", "optAbout ; cmdOK"},
};

// --- the window and its proof

Document KeptProof;

void AppendPremise(const char* text) {
    RuleMode = Rule::Premise;
    Arg1Pending = Arg2Pending = 0;
    NewStmtText = text;
    PutStmt();
    RuleMode = 0;
}

// Handles what waits, until nothing is left to be painted.
void Paint() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

[[noreturn]] void Fail(const std::string& why) {
    std::fprintf(stderr, "speed_window: %s\n", why.c_str());
    std::_Exit(1);
}

void CloseAllBoxes() {
    while (QWidget* box = QApplication::activeModalWidget()) {
        QTest::keyClick(box, Qt::Key_Escape);
        Paint();
    }
    for (Form* form : AllForms) {
        if (form != &Proof && form->Visible) Dispatch([form] { form->Hide(); });
    }
}

// The proof as it was, with the caret at its end and nothing pending. Not measured.
void PutBack() {
    CloseAllBoxes();
    ForgetNote();
    Doc = KeptProof;
    ProofFileName = AppPath + "/large.proof";
    Dispatch([] {
        RuleMode = 0;
        FirstClick = true;
        if (InsertMode) EndInsertMode();
        ResetUndo();
        SetUndoRedo(false, false);
        ResetFonts();
        Proof.RTB.SelStart = Proof.RTB.TextLength();
        Proof.RTB.SetFocus();
        SetPrompt("");
    });
    MainWindow()->activateWindow();
    if (!QTest::qWaitForWindowActive(MainWindow())) Fail("the window has not become active");
    Paint();
}

void ShowTheProof(const QString& directory) {
    StartProgram();
    RecoveryDir = FindRecoveryDir();
    ShowMainWindow(Proof);
    MainWindow()->showNormal();
    MainWindow()->setGeometry(0, 0, 1200, 900);
    Paint();
    CloseAllBoxes();
    FillWithLargeProof(Statements - static_cast<int>(std::size(LastLines)));
    for (const char* line : LastLines) AppendPremise(line);
    AppPath = directory.toStdString();
    KeptProof = Doc;
    PutBack();
}

// --- what a user does

// The time from an event to the frame that shows what it did.
template <class Act>
double TimeOf(Act act) {
    const double start = CpuTime();
    act();
    Paint();
    return CpuTime() - start;
}

QWidget* Receiver() {
    if (QWidget* box = QApplication::activeModalWidget()) {
        return box->focusWidget() != nullptr ? box->focusWidget() : box;
    }
    return QApplication::focusWidget();
}

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(Receiver(), key, modifiers);
}

int PlaceOf(const std::string& target) {
    const int line = std::stoi(target);
    const auto end = target.find_first_not_of("0123456789");
    if (end == target.npos) return PositionOf(line, At(line).StartStmt);
    if (target[end] == ':') {
        const auto sign = StoredText(line).find(target.substr(end + 1));
        return PositionOf(line, At(line).StartStmt + static_cast<int>(sign));
    }
    return PositionOf(line,
                      target.substr(end) == ".rule" ? At(line).StartRule : NumberStart(At(line)));
}

// So that it can be clicked; whoever scrolls there has waited for it already.
int ScrollTo(const std::string& target) {
    const int place = PlaceOf(target);
    ShownProof().EnsureVisible(place);
    Paint();
    return place;
}

// The control of that name in the forms that are shown; nullptr if there is none.
Control* ShownControl(const std::string& name) {
    for (const Form* form : AllForms) {
        if (!form->Visible) continue;
        for (Control* control : form->Controls) {
            if (control->Name == name && control->Visible) return control;
        }
    }
    return nullptr;
}

double Choose(const std::string& name) {
    Control* control = ShownControl(name);
    if (control == nullptr) Fail("there is no " + name);
    if (auto* item = dynamic_cast<MenuItem*>(control)) {
        QAction* action = ActionOf(*item);
        if (!action->isEnabled()) Fail(name + " can't be chosen");
        return TimeOf([&] { action->trigger(); });
    }
    return TimeOf([&] { QTest::mouseClick(WidgetOf(*control), Qt::LeftButton); });
}

// Does one step; gives the time of each event of it.
std::vector<double> Do(const std::string& step) {
    std::vector<double> times;
    if (step.starts_with("= ")) {
        for (const char letter : step.substr(2)) {
            times.push_back(TimeOf([&] { QTest::keyClick(Receiver(), letter); }));
        }
    } else if (step == "<Esc>") {
        times.push_back(TimeOf([] { PressKey(Qt::Key_Escape); }));
    } else if (step.find_first_of("0123456789") == 0) {
        const int place = ScrollTo(step);
        times.push_back(TimeOf([&] { ClickInProof(place); }));
    } else if (step.starts_with("#")) {
        const int place = ScrollTo(step.substr(1) + ".number");
        times.push_back(TimeOf([&] { ClickInProof(place); }));
        times.push_back(TimeOf([&] { DoubleClickInProof(place); }));
    } else {
        times.push_back(Choose(step));
    }
    // It would be the reason of a refusal, but where it stands beside a question.
    if (NoteStands() && !QuestionsOpen()) Fail("at " + step + ": " + NoteShown().toStdString());
    return times;
}

void Do(const std::string& steps, Samples& all) {
    std::vector<double> times;
    for (std::size_t at = 0; at < steps.size();) {
        const std::size_t end = std::min(steps.find(" ; ", at), steps.size());
        const std::string step = steps.substr(at, end - at);
        if (step == "|") {
            times.clear();
        } else {
            const std::vector<double> more = Do(step);
            times.insert(times.end(), more.begin(), more.end());
        }
        at = end + 3;
    }
    if (QuestionsOpen()) Fail("a question is open behind " + steps);
    for (const double time : times) all.Add(time);
}

// --- the rows

void JoinRows() {
    PutBack();
    Samples times;
    for (int round = 0; round < RoundsOfTheFew; ++round) {
        const std::string last = std::to_string(StmtCount);
        Do("optJoin ; 31999 ; | ; " + last, times);
    }
    PrintRow("Join at the end", times.Median(), "ms", 5);
    PutBack();
    Samples inserting;
    Samples unused;
    Do("optInsert ; 3", unused);
    for (int round = 0; round < RoundsOfTheFew; ++round) Do("optJoin ; 1 ; | ; 2", inserting);
    PrintRow("Join in insert mode at line 3", inserting.Median(), "ms", 6);
}

void FindRows() {
    Samples opening;
    Samples typing;
    Samples copying;
    for (int round = 0; round < Rounds; ++round) {
        PutBack();
        const double selecting = TimeOf([] { PressKey(Qt::Key_A, Qt::ControlModifier); });
        copying.Add(TimeOf([] { PressKey(Qt::Key_C, Qt::ControlModifier); }));
        opening.Add(selecting + TimeOf([] { PressKey(Qt::Key_F, Qt::ControlModifier); }));
        if (!Find.Visible) Fail("Ctrl+F has not opened Find");
        Do("= P(x,y)", typing);
    }
    PrintRow("Ctrl+A, then Ctrl+F", opening.Median(), "ms", 16);
    PrintRow("each key then typed into Find", typing.Median(), "ms", 16);
    PrintRow("Ctrl+C of all", copying.Median(), "ms", 16);
}

void OpenRow() {
    if (!ReplaceFile(ProofFileName, WriteProof(KeptProof)).empty()) Fail("no file can be written");
    UpdateRecentFiles();
    Samples times;
    for (int round = 0; round < Rounds; ++round) {
        PutBack();
        Do("optFile1", times);
        QThreadPool::globalInstance()->waitForDone();
        Paint();
    }
    PrintRow("opening", times.Median(), "ms", 30);
}

void OtherRows(bool each) {
    double slowest = 0;
    const char* name = "";
    for (const Command& command : Commands) {
        Samples times;
        for (int round = 0; round < Rounds; ++round) {
            PutBack();
            Do(command.steps, times);
        }
        const double time = times.Percentile99();
        if (each) PrintRow(std::string("  ") + command.name, time, "ms", 16);
        if (time > slowest) {
            slowest = time;
            name = command.name;
        }
    }
    PutBack();
    const std::string count = std::to_string(std::size(Commands));
    PrintRow("99th percentile of the slowest of " + count + " other commands, " + name, slowest,
             "ms", 16);
}

}  // namespace

int main(int argc, char* argv[]) {
    const QTemporaryDir directory;
    const QByteArray path = directory.path().toLocal8Bit();
    for (const char* name : {"XDG_STATE_HOME", "XDG_CONFIG_HOME"}) qputenv(name, path);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_LOGGING_RULES", "default.warning=false");  // of what that platform can't do
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    SubstituteFonts();
    WatchInput(FadeNote);
    WatchEsc();
    ShowTheProof(directory.path());
    JoinRows();
    FindRows();
    OpenRow();
    OtherRows(argc > 1 && std::string(argv[1]) == "--each");
    PrintRow("peak memory of the window over all of these", PeakMemory(), "MB", 150);
    QThreadPool::globalInstance()->waitForDone();
    ForgetNote();
    ForgetWindows();
    return 0;
}
