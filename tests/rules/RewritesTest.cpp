// The rules that rewrite a statement at one sign, against truth tables: whatever sign is clicked,
// what is written means the same.
#include <gtest/gtest.h>

#include <map>

#include "Workbench.h"
#include "cli/HeadlessPlatform.h"
#include "document/Statement.h"
#include "expr/Parse.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "platform/Events.h"

namespace tessaryn {
namespace {

using Truths = std::map<std::string, bool>;

bool Value(const NodeList& nodes, int n, const Truths& truths) {
    const ParseRec& node = nodes[static_cast<std::size_t>(n)];
    if (node.Rule == Node::Prop) return truths.at(node.Name);
    const bool p = Value(nodes, node.Ptr1, truths);
    if (node.Rule == Node::LNeg) return !p;
    const bool q = Value(nodes, node.Ptr2, truths);
    switch (node.Rule) {
        case Node::LAnd:
            return p && q;
        case Node::LOr:
            return p || q;
        case Node::Imply:
            return !p || q;
        default:
            return p == q;
    }
}

std::string TruthTable(const std::string& text) {
    const NodeList nodes = ParseExpression(text).nodes;
    std::string table;
    for (unsigned row = 0; row < 16; ++row) {
        const Truths truths = {{"P", (row & 1U) != 0},
                               {"Q", (row & 2U) != 0},
                               {"R", (row & 4U) != 0},
                               {"S", (row & 8U) != 0}};
        table += Value(nodes, static_cast<int>(nodes.size()) - 1, truths) ? '1' : '0';
    }
    return table;
}

class Random {
  public:
    explicit Random(unsigned seed) : state_(seed) {}

    std::size_t Below(std::size_t limit) {
        state_ = state_ * 1664525U + 1013904223U;
        return (state_ >> 8) % limit;
    }

    std::string Formula(int depth) {
        static const char* const names[] = {"P", "Q", "R", "S"};
        static const char* const signs[] = {"&", "|", "=>", "<=>"};
        if (depth == 0 || Below(6) == 0) return names[Below(4)];
        if (Below(4) == 0) return (Below(2) == 0 ? "~[" : "~~[") + Formula(depth - 1) + "]";
        if (Below(8) == 0) return Converses(Formula(depth - 1), Formula(0));
        return "[" + Formula(depth - 1) + "]" + signs[Below(4)] + "[" + Formula(depth - 1) + "]";
    }

  private:
    static std::string Converses(const std::string& p, const std::string& q) {
        return "[[" + p + "]=>[" + q + "]]&[[" + q + "]=>[" + p + "]]";
    }

    unsigned state_;
};

TEST(Rewrites, KeepTheMeaning) {
    std::map<int, int> written;
    for (unsigned seed = 1; seed <= 60; ++seed) {
        ASSERT_EQ(Build(EnterPremise(Random(seed).Formula(4))), "");
        const std::string text = StmtText(1);
        const std::string table = TruthTable(text);
        for (const MenuItem* rule :
             {&Proof.optImplies, &Proof.optImliesOr, &Proof.optContrapositive, &Proof.optDeMorgan,
              &Proof.optIff, &Proof.optDNegRemove}) {
            for (int place = StmtTable[1].StartStmt - 1; place < StmtTable[1].EndStmt; ++place) {
                rule->Click();
                const int number = RuleMode;
                SendClick(Proof.RTB, place);
                if (StmtCount == 1) continue;
                ASSERT_EQ(TruthTable(StmtText(2)), table) << rule->Name << " on " << text;
                ++written[number];
                Proof.optUndo.Click();
            }
        }
    }
    EXPECT_EQ(written.size(), 6U);
    for (const auto& [rule, count] : written) EXPECT_GT(count, 20) << "rule " << rule;
}

}  // namespace
}  // namespace tessaryn
