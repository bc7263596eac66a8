// The events of the main window.
#include "menu/MainWindow.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "document/Document.h"
#include "editing/ToggleConclusion.h"
#include "entry/ExpressionEditor.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/Questions.h"
#include "menu/ClickTable.h"
#include "menu/MenuTable.h"
#include "output/ProofCommands.h"
#include "output/Recovery.h"
#include "output/Settings.h"
#include "output/StartUp.h"
#include "output/Tips.h"
#include "platform/Events.h"
#include "view/InsertMode.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

SelectionExtension Extension;

// Esc with nothing pending ends the program, by way of the save question.
void EscInMainWindow(const KeyEvent& key) {
    if (Proof.RTB.SelLength > 0) {
        Proof.RTB.SelLength = 0;
    } else if (RuleMode != 0) {
        RuleMode = 0;
        FirstClick = true;
        SetPrompt("");
    } else if (InsertMode && InsertLine == 0) {
        EndInsertMode();
        SetPrompt("");
    } else if (!key.spent) {
        ExitCommand();
    }
}

// Keys that desktop programs share, beside those that the menus show.
struct SharedKey {
    const char* text;
    MenuItem ProofForm::*item;
};
constexpr SharedKey SharedKeys[] = {
    {"N", &ProofForm::optNew},   {"O", &ProofForm::optOpen}, {"S", &ProofForm::optSave},
    {"P", &ProofForm::optPrint}, {"Q", &ProofForm::optExit},
};

bool PressSharedKey(const KeyEvent& key) {
    if (key.key != Key::Char || !key.ctrl) return false;
    const bool larger = key.text == "+" || key.text == "=";  // one key, with and without Shift
    if (larger || key.text == "-") {
        Zoom(larger);
        return true;
    }
    const auto* shared =
        std::find_if(std::begin(SharedKeys), std::end(SharedKeys),
                     [&](const SharedKey& other) { return other.text == key.text; });
    return shared != std::end(SharedKeys) && !key.shift && SendChoose(Proof.*shared->item);
}

void OpenNamedProof() {
    if (Proof.CommandLineFile.empty() || ProofChanged) return;  // a restored proof stays
    ReadProofFile(std::exchange(Proof.CommandLineFile, ""));
    Proof.RTB.SelStart = 0;
}

void AfterGreeting() {
    SetPrompt("Click Help** Button to start Tutorial");
    if (!TipWanted()) return OpenNamedProof();
    AskIn(Tips, OpenNamedProof);
}

void OfferUnsavedProof() {
    SetPrompt("");
    StartKeepingCopies();
    OfferRecovery(AfterGreeting);
}

void Activate() {
    Proof.StatusLine.SelAlignment = Alignment::Center;
    if (!std::exchange(Proof.FirstActivation, false)) return OpenNamedProof();
    Proof.RTB.SetFocus();
    if (AppPath.empty()) return OfferUnsavedProof();
    AskIn(StartUp, OfferUnsavedProof);
}

void ListenToDisplay() {
    Extension = {};
    Proof.RTB.Click = [] { RunHandler(ClickInDisplay); };
    Proof.RTB.DblClick = [] { RunHandler(ToggleDetailBlock); };
    Proof.RTB.MouseMove = [] { Extension.MouseMoved(Proof.RTB, Proof.Timer1); };
    Proof.Timer1.Tick = [] { Extension.Tick(Proof.RTB, Proof.Timer1); };
    Proof.RTB.MouseUp = [](MouseButton button) {
        Extension.ButtonUp(Proof.Timer1);
        if (Proof.DoubleClickPending) {
            // The detour through the end leaves the line near the top of the view.
            Proof.DoubleClickPending = false;
            Proof.RTB.SelStart = Proof.RTB.TextLength();
            Proof.RTB.SelStart = Proof.DoubleClickCaret;
            Proof.RTB.SelLength = 0;
        }
        if (button == MouseButton::Right) PopupMenu(Proof.mnuEdit);
    };
}

}  // namespace

void FillMainWindow() {
    BuildMenus();
    BuildButtons();
    ListenToDisplay();
    Proof.WhenActivated = [] { RunHandler(Activate); };
    Proof.WhenClosed = [] { RunHandler(ExitCommand); };
    Proof.WhenKeyPressed = [](const KeyEvent& key) {
        if (key.key != Key::Esc) return PressSharedKey(key);
        RunHandler([&key] { EscInMainWindow(key); });
        return true;
    };
}

void Zoom(bool larger) {
    RunHandler([larger] { StepTextSize(larger); });
}

void OpenFromElsewhere(const std::string& path) {
    RunHandler([&path] { OpenProof(path); }, OpenFailed);
}

void LoadMainWindow(const std::string& commandLine, const EventHandler& then) {
    if (commandLine.size() > 2) {
        Proof.CommandLineFile = commandLine.substr(1, commandLine.size() - 2);
    }
    Proof.FirstActivation = true;
    SetPrompt("Press any key to continue");
    IntroEnd = 0;
    LoadSettings([then] {
        Proof.Caption = " Tessaryn " TESSARYN_VERSION "  -  (Untitled)";
        then();
    });
}

}  // namespace tessaryn
