#include "rules/UniversalPrefix.h"

#include "document/PutStmt.h"
#include "expr/Parse.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/MyInputBox.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "rules/Operands.h"
#include "rules/modConclusion.h"

namespace tessaryn {

bool TakeUniversalStatement(int& line, const char* needs) {
    GetActiveStmt(line, NewStmtText);
    if (line == 0) {
        BeepNoActiveStmt();
        return false;
    }
    if (!ParseOrReport()) {
        RuleMode = 0;
        return false;
    }
    if (Root(ParseTable).Rule != Node::ALL) {
        BeepAtLine(line,
                   "does not begin with ALL over the whole of it: " + std::string(needs) + ".");
        return false;
    }
    Arg1Pending = line;
    Arg2Pending = 0;
    KeepAsSecond();
    ConclusionUVars.clear();
    for (const ParseRec* node = &Root(ParseTable); node->Rule == Node::ALL;
         node = &NodeAt(ParseTable, node->Ptr2)) {
        ConclusionUVars.push_back(NodeAt(ParseTable, node->Ptr1).Name);
    }
    return true;
}

void EditPrefix(const std::string& captionStart, int line, const std::string& prompt,
                const std::string& preset) {
    MyInputBox.Caption = captionStart + ", Line " + std::to_string(line) + ":  " + preset;
    MyInputBox.Label1.Caption = prompt;
    MyInputBox.Label2.Caption.clear();
    MyInputBox.Text1.Text = preset;
    ShowModal(MyInputBox);
    SetPrompt("");
}

void WriteEdited(const std::string& text) {
    NewStmtText = text;
    Parse();
    if (!ParseError.empty()) return RefuseEntry(ParseError);
    if (!WriteStatement()) return ShowEntryFault(ParseError);
    RuleMode = 0;
    MyInputBox.Hide();
}

}  // namespace tessaryn
