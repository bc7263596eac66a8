// The events of the main window.
#include "mainwindow/Proof.h"

#include <exception>
#include <utility>

#include "document/Document.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "expr/Expression.h"
#include "mainwindow/Commands.h"
#include "mainwindow/ExpressionEditor.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/RuleModes.h"
#include "menu/ClickTable.h"
#include "output/Settings.h"
#include "output/StartUp.h"
#include "output/Tips.h"
#include "view/InsertMode.h"
#include "view/ShowHide.h"

namespace tessaryn {
namespace {

SelectionExtension Extension;

void CheckInDebugBuild() {
#ifndef NDEBUG
    const std::string fault = CheckDocument();
    if (!fault.empty()) MsgBox(fault, "INTERNAL ERROR");
#endif
}

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

}  // namespace

void SetPrompt(const std::string& text) {
    Proof.StatusLine.SetText(text);
    Proof.StatusLine.SelAlignment = Alignment::Center;
}

void ReportParseError() {
    SetPrompt("PARSER ERROR: " + ParseError);
    Beep(ParseError);
}

void RunHandler(const EventHandler& handler, const std::string& message) {
    try {
        handler();
        CheckInDebugBuild();
    } catch (const ProgramEnded&) {
        throw;
    } catch (const std::exception& fault) {
        Beep(std::string("Something went wrong inside the program: ") + fault.what());
        RuleMode = 0;
        SetPrompt(message);
    }
}

ProofForm::ProofForm() : Form("Proof") {
    StatusLine.ReadOnly = true;
    StatusLine.MultiLine = false;
    RTB.ReadOnly = true;
    BuildMenus();
    BuildButtons();
    ListenToDisplay();
}

void ProofForm::ListenToDisplay() {
    RTB.Click = [] { RunHandler(ClickInDisplay); };
    RTB.DblClick = [] { RunHandler(ToggleDetailBlock); };
    RTB.MouseMove = [this] { Extension.MouseMoved(RTB, Timer1); };
    Timer1.Tick = [this] { Extension.Tick(RTB, Timer1); };
    RTB.MouseUp = [this](MouseButton button) {
        Extension.ButtonUp(Timer1);
        if (DoubleClickPending) {
            // The detour through the end leaves the line near the top of the view.
            DoubleClickPending = false;
            RTB.SelStart = RTB.TextLength();
            RTB.SelStart = DoubleClickCaret;
            RTB.SelLength = 0;
        }
        if (button == MouseButton::Right) PopupMenu(mnuEdit);
    };
}

void ProofForm::Load(const std::string& commandLine) {
    if (commandLine.size() > 2) CommandLineFile = commandLine.substr(1, commandLine.size() - 2);
    FirstActivation = true;
    SetPrompt("Press any key to continue");
    IntroEnd = 0;
    LoadSettings();
    Caption = " Tessaryn 2.0  -  (Untitled)";
}

void ProofForm::Activated() {
    StatusLine.SelAlignment = Alignment::Center;
    if (FirstActivation) {
        FirstActivation = false;
        RTB.SetFocus();
        if (!AppPath.empty()) ShowModal(StartUp);
        SetPrompt("Click Help** Button to start Tutorial");
        if (TipWanted()) ShowModal(Tips);
    }
    if (CommandLineFile.empty()) return;
    RunHandler([this] { ReadProofFile(std::exchange(CommandLineFile, "")); });
    RTB.SelStart = 0;
}

bool ProofForm::KeyPressed(const KeyEvent& key) {
    if (key.key != Key::Esc) return false;
    RunHandler([&key] { EscInMainWindow(key); });
    return true;
}

void ProofForm::Close() {
    RunHandler(ExitCommand);
}

}  // namespace tessaryn
