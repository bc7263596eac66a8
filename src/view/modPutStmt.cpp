// The one door through which a statement enters the open proof.
#include <string>
#include <vector>

#include "document/Writer.h"
#include "expr/Blanks.h"
#include "expr/Parse.h"
#include "expr/PrintExpression.h"
#include "expr/Same.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "view/Display.h"
#include "view/InsertMode.h"
#include "view/PutStmt.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

struct Canonical {
    std::string text;
    std::string freeVars;
};

// Brings NewStmtText into canonical form, with its tables. False if it does not parse.
bool MakeCanonical(Canonical& stmt) {
    NewStmtText = Trim(NewStmtText);
    Parse();
    if (!ParseError.empty()) return false;
    NewStmtText = PrintExpression();
    Parse();
    if (!ParseError.empty()) return false;
    stmt = {NewStmtText, CollectFreeVars()};
    return true;
}

// Enters the statements one behind the other.
void PutCanonical(const std::vector<Canonical>& texts) {
    const bool names = RuleMode == Rule::ESpec || RuleMode == Rule::USpec;
    std::vector<NewStatement> stmts;
    stmts.reserve(texts.size());
    for (const Canonical& each : texts) {
        stmts.push_back(
            {RuleMode, Arg1Pending, Arg2Pending, names ? SpecName : "", each.text, each.freeVars});
    }
    const int line = InsertionLimit();
    const int count = static_cast<int>(texts.size());
    EnterStatements(Doc, line, stmts);
    if (InsertMode) {
        InsertLine += count;
        ShowInsertLine();
    }
    ResetFonts();
    Proof.RTB.SelStart = 0;
    Proof.RTB.SelStart = ViewerEndRule(At(line + count - 1));
}

}  // namespace

bool StatementsFit(int count) {
    if (count <= MaxStatements - StmtCount) return true;
    ParseError = "Unable to process request";
    SetPrompt(ParseError);
    Beep("A proof holds at most " + std::to_string(MaxStatements) + " statements.");
    return false;
}

void PutStmt() {
    if (!StatementsFit(1)) return;
    Canonical stmt;
    if (!MakeCanonical(stmt)) return ReportParseError();
    PutCanonical({stmt});
}

bool WriteStatements(const std::vector<std::string>& texts) {
    if (!StatementsFit(static_cast<int>(texts.size()))) return false;
    std::vector<Canonical> stmts(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        NewStmtText = texts[i];
        if (MakeCanonical(stmts[i])) continue;
        ReportParseError();
        return false;
    }
    BackUpUndo();
    PutCanonical(stmts);
    return true;
}

bool WriteStatement() {
    return WriteStatements({NewStmtText});
}

}  // namespace tessaryn
