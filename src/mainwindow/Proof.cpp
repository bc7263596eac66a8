#include "mainwindow/Proof.h"

#include <exception>
#include <utility>

#include "document/Document.h"
#include "document/Invariants.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"

namespace tessaryn {
namespace {

void CheckInDebugBuild() {
#ifndef NDEBUG
    const std::string fault = CheckDocument();
    if (!fault.empty()) MsgBox({fault, "INTERNAL ERROR"});
#endif
}

}  // namespace

ProofForm::ProofForm() : Form("Proof") {
    StatusLine.ReadOnly = true;
    StatusLine.MultiLine = false;
    RTB.ReadOnly = true;
}

std::string TitleOf(const std::string& caption, const std::string& fileName) {
    if (fileName.empty()) {
        if (caption.empty()) return " Tessaryn " TESSARYN_VERSION "  -  (Untitled)";
        return " " + caption + " - (Untitled)";
    }
    if (caption.empty()) return " Tessaryn " TESSARYN_VERSION "  -  " + fileName;
    return " " + caption + "  -  " + fileName;
}

std::string ProofTitle() {
    return TitleOf(ProofCaption, ProofFileName);
}

void SetPrompt(const std::string& text) {
    Proof.StatusLine.SetText(text);
    Proof.StatusLine.SelAlignment = Alignment::Center;
}

void ReportParseError() {
    SetPrompt("PARSER ERROR: " + ParseError);
    Beep(ParseError);
}

bool ParseOrReport() {
    Parse();
    if (ParseError.empty()) return true;
    ReportParseError();
    return false;
}

void RunHandler(const EventHandler& handler, const std::function<void(const char*)>& failed) {
    try {
        handler();
        CheckInDebugBuild();
    } catch (const std::exception& fault) {
        failed(fault.what());
    }
}

void RunHandler(const EventHandler& handler, const std::string& message) {
    const std::string outer = std::exchange(FailureMessage, message);
    RunHandler(handler, [&](const char* what) {
        Beep(std::string("Something went wrong inside the program: ") + what);
        RuleMode = 0;
        SetPrompt(message);
    });
    FailureMessage = outer;
}

}  // namespace tessaryn
