// Conclusion: closes the innermost open premise P with the last statement Q above the insertion
// point.
//
//   Q no contradiction: writes ALL(x):[P => EXIST(y):Q], where x are the names that the premise
//                       introduced and y those introduced inside the block and free in Q
//   Q a contradiction:  writes ~EXIST(x):P
//
// No click. The user may rename the bound variables. The block is indented and stops being active.
#include "rules/modConclusion.h"

#include <string>
#include <unordered_set>
#include <vector>

#include "document/ActiveLines.h"
#include "document/Writer.h"
#include "entry/ClickPatterns.h"
#include "entry/EntryChecks.h"
#include "entry/MyInputBox.h"
#include "expr/NameList.h"
#include "expr/Parse.h"
#include "inference/Conclusion.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "rules/Rules.h"
#include "rules/VariableNames.h"
#include "view/InsertMode.h"
#include "view/PutStmt.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

void Refuse(const std::string& message, const std::string& reason) {
    Beep(reason);
    SetPrompt(message);
}

void Refuse(const std::string& message) {
    Refuse(message, message);
}

// The innermost open premise, if the line above the insertion point is in force; 0 otherwise.
int FindPremise(int line) {
    return line > 1 && IsActive(line - 1, InsertionLimit()) ? InnermostOpenPremise(InsertionLimit())
                                                            : 0;
}

bool ParseLine(int line) {
    NewStmtText = StmtText(line);
    return ParseOrReport();
}

// --- the statement

void CollectNames(int premise, int last, bool contradiction) {
    ResetConclusion();
    for (const std::string& name : NamesOf(At(premise).FreeVars)) {
        if (IsGreen(name, premise)) ConclusionUVars.push_back(name);
    }
    if (contradiction) return;
    for (const std::string& name : NamesOf(At(last).FreeVars)) {
        if (IsGreen(name, last) && !HoldsName(At(premise).FreeVars, name)) {
            ConclusionEVars.push_back(name);
        }
    }
}

// --- insert mode: what stands behind the new Conclusion must survive it

// Calls visit for each line from `line` on, up to an open Premise; closed blocks are stepped over.
// Stops at the first message.
template <class Visit>
std::string WalkLaterLines(int line, Visit visit) {
    for (int i = line; i <= StmtCount && !IsOpenPremise(At(i)); i = LineBehind(i)) {
        if (IsClosedPremise(At(i))) continue;
        for (const std::string& name : NamesOf(At(i).FreeVars)) {
            if (!visit(name, i)) continue;
            return "Conclusion Rule: Inconsistent usage of variable '" + name + "' on line " +
                   std::to_string(i) + ". Consider deleting that line.";
        }
    }
    return "";
}

// The names that are green on an active line above the premise, up to the next open one.
std::unordered_set<std::string> GreenNamesAbove(int premise) {
    std::unordered_set<std::string> green;
    for (int j = premise - 1; j > 0 && !IsOpenPremise(At(j)); j = LineAhead(j)) {
        for (const std::string& name : NamesOf(At(j).FreeVars)) {
            if (IsGreen(name, j)) green.insert(name);
        }
    }
    return green;
}

std::string CheckReferences(int premise, int line) {
    for (int i = line; i <= StmtCount; ++i) {
        for (const int reference : {At(i).Arg1, At(i).Arg2}) {
            if (reference < premise || reference >= line) continue;
            return "Conclusion Rule: Invalid reference to line " + std::to_string(reference) +
                   " on subsequent line " + std::to_string(i);
        }
    }
    return "";
}

std::string CheckLaterLines(int premise, int line) {
    std::string message = CheckReferences(premise, line);
    if (message.empty()) message = WalkLaterLines(line, IsGreen);
    if (!message.empty()) return message;
    const std::unordered_set<std::string> greenAbove = GreenNamesAbove(premise);
    return WalkLaterLines(line, [&](const std::string& name, int i) {
        return greenAbove.contains(name) && HoldsName(At(i).FixedVars, name);
    });
}

// --- the names of the bound variables

std::vector<std::string> BoundNames() {
    std::vector<std::string> names = ConclusionUVars;
    names.insert(names.end(), ConclusionEVars.begin(), ConclusionEVars.end());
    return names;
}

void ContinueConclusion() {
    const std::string text = RenamedAsEntered(
        BoundNames(), "New bound variable already used in premise or last statement");
    if (text.empty()) return;
    NewStmtText = text;
    Parse();
    if (!ParseError.empty()) return RefuseEntry(ParseError);
    MyInputBox.Hide();
}

// --- the steps

// Builds the statement in NewStmtText and tests it. False after a refusal.
bool BuildStatement(int premise, int line) {
    if (!ParseLine(premise)) return false;
    const Expression premiseStatement = InHand;
    if (!ParseLine(line - 1)) return false;
    const Expression last = InHand;
    CollectNames(premise, line - 1, IsContradiction(last));
    NewStmtText = Conclude(premiseStatement, last, ConclusionUVars, ConclusionEVars).texts[0];
    Parse();
    if (!ParseError.empty()) {
        Refuse("Conclusion Rule: Inconsistent usage of same variable name in lines " +
                   std::to_string(premise) + " and " + std::to_string(line - 1) +
                   ". Try letters a-j for bound variables, k-z for free variables.",
               ParseError);
        return false;
    }
    const std::string fault = InsertMode ? CheckLaterLines(premise, line) : "";
    if (!fault.empty()) Refuse(fault);
    return fault.empty();
}

void EndConclusion() {
    EndRule();
    Proof.RTB.SetFocus();
}

void CloseBlock(int premise, int line) {
    if (StatementsFit(1)) {
        BackUpUndo();
        EditAt(premise).Arg1 = line;
        IndentStatements(premise, line - 1);
        Arg2Pending = 0;
        PutStmt();
    }
    EndConclusion();
}

}  // namespace

void ResetConclusion() {
    ConclusionUVars.clear();
    ConclusionEVars.clear();
}

void Conclusion() {
    Proof.RTB.SetFocus();
    SetPrompt("");
    RuleMode = Rule::Conclusion;
    const int line = InsertionLimit();
    const int premise = FindPremise(line);
    Arg1Pending = premise;
    if (premise == 0) {
        Refuse("Conclusion Rule: No active premise found");
        return EndConclusion();
    }
    if (!BuildStatement(premise, line)) return EndConclusion();
    const std::vector<std::string> names = BoundNames();
    if (names.empty()) return CloseBlock(premise, line);
    Second = InHand;
    AskInBox({"Conclusion Rule: Generalizing on " + CommaList(names), AskForNamesText(names.size()),
              ContinueConclusion, "", CommaList(names)},
             [premise, line] {
                 if (!OperationCancelled) CloseBlock(premise, line);
             });
}

}  // namespace tessaryn
