#include "LargeProofs.h"

#include <string>

#include "document/Document.h"
#include "expr/Parse.h"
#include "expr/Same.h"
#include "view/Display.h"
#include "view/Undo.h"

namespace tessaryn {
namespace {

struct Line {
    const char* text;
    int rule;
    int back1;  // references, as distances; 0 none
    int back2;
    int depth = 0;
};

// One round of ten lines; the lines 5 to 7 are a closed block, line 8 its Conclusion.
const Line Round[] = {
    {"ALL(a):[a @ s => EXIST(b):[b @ t & R(a,b)]]", 1, 0, 0},
    {"P(x,y) & Q(f(x)) & x+y=z", 1, 0, 0},
    {"P(x,y)", 15, 1, 0},
    {"x+y=z", 15, 2, 0},
    {"P(x,y) & x @ s", 1, 0, 0, 1},
    {"x @ s", 15, 1, 0, 1},
    {"x @ s & x+y=z", 14, 1, 3, 1},
    {"P(x,y) & x @ s => x @ s & x+y=z", 7, 3, 0},
    {"P(x,y) & [ALL(a):[a @ s => R(a,a)] | ~Q(f(z))]", 1, 0, 0},
    {"P(x,y) & x+y=z", 14, 7, 6},
};

void Append(int number, const Line& line) {
    const std::string indent(static_cast<std::size_t>(line.depth), '\t');
    const Expression parsed = ParseExpression(line.text);
    Statement stmt;
    stmt.Rule = line.rule;
    stmt.Arg1 = line.back1 > 0 ? number - line.back1 : 0;
    stmt.Arg2 = line.back2 > 0 ? number - line.back2 : 0;
    if (line.rule == 7) EditAt(stmt.Arg1).Arg1 = number;
    stmt.FreeVars = FreeVarsOf(parsed);
    stmt.FixedVars = stmt.FreeVars;
    stmt.Visible = true;
    stmt.Highlight = line.rule == 1;
    const auto end = [] { return static_cast<int>(ProofText.size()); };
    stmt.StartLine = end() + 1;
    ProofText += indent + std::to_string(number) + "\t";
    stmt.StartStmt = end() + 1;
    ProofText += line.text;
    stmt.EndStmt = end();
    ProofText += "\r\n\t" + indent;
    stmt.StartRule = end() + 1;
    ProofText += RuleAnnotation(stmt.Rule, stmt.Rule == 1 ? 0 : stmt.Arg1, stmt.Arg2);
    stmt.EndRule = end();
    ProofText += "\r\n\r\n";
    StmtTable.Append(stmt);
    ++StmtCount;
}

}  // namespace

void FillWithLargeProof(int count) {
    for (int number = 1; number <= count; ++number) {
        Append(number, Round[static_cast<std::size_t>(number - 1) % std::size(Round)]);
    }
    RelayoutViewer();
    ResetFonts();
    ProofChanged = false;
}

}  // namespace tessaryn
