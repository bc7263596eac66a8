#include "Steps.h"

#include <benchmark/benchmark.h>

#include <algorithm>

#include "LargeProofs.h"
#include "expr/Expression.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "platform/Events.h"
#include "view/PutStmt.h"

namespace tessaryn {

void MakeLargeProof(int count) {
    StartHeadless();
    FillWithLargeProof(count);
}

void Write(const std::string& text) {
    RuleMode = Rule::Axiom;
    Arg1Pending = Arg2Pending = 0;
    NewStmtText = text;
    PutStmt();
}

void Click(int line, int index, int length) {
    SendClick(Proof.RTB, index - ViewOffset(At(line)) - 1, length);
}

void ClickStatement(int line, int length) {
    Click(line, At(line).StartStmt, length);
}

void KeptProof::PutBack() const {
    Doc = document_;
}

void LookAtScreen() {
    benchmark::DoNotOptimize(Proof.RTB.TakeChange());
    const int caret = Proof.RTB.SelStart;
    benchmark::DoNotOptimize(Proof.RTB.RunsIn(std::max(0, caret - 4000),
                                              std::min(Proof.RTB.TextLength(), caret + 1000)));
}

}  // namespace tessaryn
