// Iff-And: exchanges, anywhere in a statement, P <=> Q for [P => Q] & [Q => P] and back.
//
// One click, on the <=> or on the & between the two implications.
#include <string>

#include "document/PutStmt.h"
#include "expr/Same.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/RuleModes.h"
#include "rules/Operands.h"
#include "rules/Rules.h"

namespace tessaryn {
namespace {

constexpr const char* Needs = "Iff-And needs <=>, or the & of [P => Q] & [Q => P]";
constexpr int LineLength = 50;  // from this length on the result is folded ahead of the sign

// The two halves with the connective ahead of the second one, on a line of its own if the whole is
// long.
std::string Halves(const std::string& first, const std::string& second, int length) {
    return "[" + first + (length < LineLength ? "" : "\r\n") + second + "]";
}

int Length(const std::string& text) {
    return static_cast<int>(text.size());
}

void WriteInPlaceOf(Span span, const std::string& piece) {
    NewStmtText = Splice(StmtText2, span, piece);
    FinishRule(WriteStatement());
}

void SplitIff(int sign) {
    const OperandSpans operands = OperandsOf(TokenTable, sign);
    const Span whole = {operands.left.start, operands.right.end};
    const std::string p = "[" + Cut(StmtText2, operands.left) + "]";
    const std::string q = "[" + Cut(StmtText2, operands.right) + "]";
    const int length = 2 * (Length(p) + Length(q)) + whole.start + Length(StmtText2) - whole.end;
    WriteInPlaceOf(whole, Halves("[" + p + "=>" + q + "]", "&[" + q + "=>" + p + "]", length));
}

struct Implication {
    bool found = false;
    std::string antecedent;
    std::string consequent;
};

Implication ImplicationAt(int bracket) {
    const ParseRec& node = NodeAt(ParseTable, TokenAt(TokenTable, bracket).DPtr);
    if (node.Rule != Node::Imply) return {};
    return {true, Cut(StmtText2, SpanOfNode(TokenTable, node.Ptr1)),
            Cut(StmtText2, SpanOfNode(TokenTable, node.Ptr2))};
}

void MergeImplications(int line, int sign) {
    const Implication left = ImplicationAt(sign - 1);
    const Implication right = ImplicationAt(sign + 1);
    if (!left.found || !right.found) {
        return BeepAtLine(line,
                          "has no implication on each side of this &: " + std::string(Needs) + ".");
    }
    if (!SameExpressions(left.antecedent, right.consequent) ||
        !SameExpressions(left.consequent, right.antecedent)) {
        return BeepAtLine(line, "has implications beside this & that are no converses: " +
                                    std::string(Needs) + ".");
    }
    const OperandSpans operands = OperandsOf(TokenTable, sign);
    const Span whole = {operands.left.start, operands.right.end};
    const int length = Length(left.antecedent) + Length(left.consequent) + whole.start +
                       Length(StmtText2) - whole.end;
    WriteInPlaceOf(whole,
                   Halves("[" + left.antecedent + "]", "<=>[" + left.consequent + "]", length));
}

}  // namespace

void IffSplit() {
    int line = 0;
    int token = 0;
    if (!TakeClickedToken(line, token, Needs)) return;
    const std::string& sign = TokenAt(TokenTable, token).Token;
    if (sign == "<=>") return SplitIff(token);
    if (sign == "&") return MergeImplications(line, token);
    BeepAtToken(line, token, Needs);
}

}  // namespace tessaryn
