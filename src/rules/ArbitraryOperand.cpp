#include "rules/ArbitraryOperand.h"

#include "document/PutStmt.h"
#include "expr/Expression.h"
#include "expr/Parse.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/EntryChecks.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "mainwindow/TestParser.h"
#include "rules/Operands.h"

namespace tessaryn {

bool AskForOperand(const std::string& captionStart) {
    int line = 0;
    GetActiveStmt(line, NewStmtText);
    if (line == 0) {
        BeepNoActiveStmt();
        return true;
    }
    Arg1Pending = line;
    Arg2Pending = 0;
    if (!ParseOrReport()) return false;
    KeepAsSecond();
    SetPrompt("");
    TestParser.Caption = captionStart + std::to_string(line) + ":  Enter a logical expression";
    ShowModal(TestParser);
    RuleMode = 0;
    return true;
}

std::string CheckOperand() {
    if (!RootIsLogical()) return "Expecting a logical expression";
    const std::string name = FirstUnknownName({});
    return name.empty() ? "" : "Variable '" + name + "' not found in any active statement";
}

std::string WriteWithOperand(const std::string& text) {
    NewStmtText = text;
    Parse();
    if (!ParseError.empty()) return "Incompatible antecedent and consequent";
    if (WriteStatement()) RuleMode = 0;
    return "";
}

}  // namespace tessaryn
