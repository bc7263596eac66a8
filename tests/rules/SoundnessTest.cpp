// Proofs that a random user builds, judged by what they mean. In every structure in which the
// axioms hold, all lines must hold for whatever values the names of the premises have, and for some
// values of the names that E Spec brings in. A rule that lets a false line in shows here.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

#include "cli/HeadlessPlatform.h"
#include "document/Statement.h"
#include "expr/NameList.h"
#include "expr/Parse.h"
#include "expr/Same.h"
#include "mainwindow/ActiveStmts.h"
#include "mainwindow/MyInputBox.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "mainwindow/RuleModes.h"
#include "mainwindow/TestParser.h"
#include "platform/Events.h"
#include "view/InsertMode.h"
#include "view/Warning.h"

namespace tessaryn {
namespace {

// Some things have P and others Q, none both, so that a mixed-up name is soon a contradiction.
const std::vector<std::string> Axioms = {"EXIST(a):P(a)", "EXIST(a):Q(a)", "ALL(a):[Q(a) => ~P(a)]",
                                         "ALL(a):EXIST(b):R(a,b)", "ALL(a):[P(a) => S(a)]"};

unsigned Mix(unsigned seed, const std::string& text) {
    for (const char c : text) seed = (seed ^ static_cast<unsigned char>(c)) * 16777619U;
    seed ^= seed >> 15;
    seed *= 2246822519U;
    return seed ^ (seed >> 13);
}

// A few things, numbered from 0, and predicates drawn by lot.
class Structure {
  public:
    Structure(unsigned seed, int size) : seed_(seed), size_(size) {}

    bool Holds(const Expression& expression) { return Holds(expression.nodes, Root(expression)); }

    // Does a test succeed for all values of the names, or for some?
    bool Try(const std::vector<std::string>& names, bool all, const std::function<bool()>& test,
             std::size_t first = 0) {
        if (first == names.size()) return test();
        const std::map<std::string, int> before = values;
        bool result = all;
        for (int value = 0; value < size_ && result == all; ++value) {
            values[names[first]] = value;
            result = Try(names, all, test, first + 1);
        }
        values = before;
        return result;
    }

    std::map<std::string, int> values;

  private:
    static std::size_t Root(const Expression& expression) { return expression.nodes.size() - 1; }

    std::string ValueOf(const NodeList& nodes, int n) {
        const ParseRec& node = nodes[static_cast<std::size_t>(n)];
        if (node.Rule == Node::Atom) return std::to_string(values.at(node.Name));
        return ValueOf(nodes, node.Ptr1) + "," + ValueOf(nodes, node.Ptr2);
    }

    bool Holds(const NodeList& nodes, std::size_t n) {
        const ParseRec& node = nodes[n];
        const auto left = static_cast<std::size_t>(node.Ptr1);
        const auto right = static_cast<std::size_t>(node.Ptr2);
        switch (node.Rule) {
            case Node::Prop:
                return (Mix(seed_, node.Name) & 1U) != 0;
            case Node::Pred:
                return (Mix(seed_, nodes[left].Name + ValueOf(nodes, node.Ptr2)) & 1U) != 0;
            case Node::EQ:
                return ValueOf(nodes, node.Ptr1) == ValueOf(nodes, node.Ptr2);
            case Node::LNeg:
                return !Holds(nodes, left);
            case Node::LAnd:
                return Holds(nodes, left) && Holds(nodes, right);
            case Node::Imply:
                return !Holds(nodes, left) || Holds(nodes, right);
            default:
                EXPECT_TRUE(node.Rule == Node::ALL || node.Rule == Node::EXIST);
                return Try({nodes[left].Name}, node.Rule == Node::ALL,
                           [&] { return Holds(nodes, right); });
        }
    }

    unsigned seed_;
    int size_;
};

// The lines from `line` to `end`, with the values that the names ahead of them have.
bool LinesHold(Structure& structure, const std::vector<Expression>& lines, int line, int end) {
    if (line > end) return true;
    const Statement& stmt = StmtTable[static_cast<std::size_t>(line)];
    const Expression& text = lines[static_cast<std::size_t>(line)];
    std::vector<std::string> fresh = NamesOf(stmt.FreeVars);
    std::erase_if(fresh, [&](const auto& name) { return structure.values.contains(name); });
    const auto rest = [&](int from, int to) { return LinesHold(structure, lines, from, to); };
    if (stmt.Rule == Rule::Premise) {
        const int last = IsOpenPremise(stmt) ? end : stmt.Arg1 - 1;
        const auto block = [&] { return !structure.Holds(text) || rest(line + 1, last); };
        return structure.Try(fresh, true, block) && (last == end || rest(stmt.Arg1, end));
    }
    // A name from an E Spec that a premise was put ahead of later outlives its block.
    const bool isSpecified = std::any_of(
        StmtTable.begin() + 1, StmtTable.begin() + line + 1, [&](const Statement& above) {
            return above.Rule == Rule::ESpec && fresh == std::vector{above.SpecName};
        });
    return structure.Try(fresh, !isSpecified,
                         [&] { return structure.Holds(text) && rest(line + 1, end); });
}

bool ProofHolds(Structure& structure) {
    std::vector<Expression> lines(1);
    for (int line = 1; line <= StmtCount; ++line) lines.push_back(ParseExpression(StmtText(line)));
    return LinesHold(structure, lines, 1, StmtCount);
}

std::vector<Structure> StructuresOfTheAxioms() {
    std::vector<Structure> found;
    for (unsigned seed = 1; found.size() < 8; ++seed) {
        Structure structure(seed, found.size() < 5 ? 2 : 3);
        if (std::ranges::all_of(Axioms, [&](const std::string& axiom) {
                return structure.Holds(ParseExpression(axiom));
            })) {
            found.push_back(structure);
        }
    }
    return found;
}

class User {
  public:
    explicit User(unsigned seed) : seed_(seed) {
        StartHeadless();
        for (const std::string& axiom : Axioms) {
            Headless.NextStep = [&] {
                TestParser.RTB.SetText(axiom);
                return SendChoose(TestParser.cmdContinue);
            };
            SendChoose(Proof.optAxiom);
        }
        Headless.NextStep = [this] {
            AnswerForm();
            return true;
        };
    }

    void Step() {
        const std::pair<MenuItem*, int> commands[] = {
            {&Proof.optPremise, 0}, {&Proof.optPremise, 0},       {&Proof.optConclusion, 0},
            {&Proof.optSpec, 1},    {&Proof.optSpec, 1},          {&Proof.optSpec, 1},
            {&Proof.optJoin, 2},    {&Proof.optSplit, 1},         {&Proof.optDetachment, 9},
            {&Proof.optRename, 1},  {&Proof.optCopyStatement, 1}, {&Proof.optInsert, 1},
            {&Proof.optUndo, 0},    {&Proof.DeleteAllRef, 1}};
        // Seldom at the end of the list.
        const std::size_t most = Random(4) == 0 ? std::size(commands) : std::size(commands) - 2;
        const auto& [item, clicks] = commands[Random(most)];
        SendChoose(*item);
        for (int click = 0; click < clicks && RuleMode != 0; ++click) ClickALine();
        RuleMode = 0;
    }

  private:
    std::size_t Random(std::size_t limit) {
        seed_ = seed_ * 1664525U + 1013904223U;
        return (seed_ >> 8) % limit;
    }

    void ClickALine() {
        const std::vector<int> lines = ActiveLines();
        if (lines.empty()) return;
        const bool isRecent = Random(2) == 0 && lines.size() > 5;
        const std::size_t line = isRecent ? lines.size() - 1 - Random(5) : Random(lines.size());
        const Statement& stmt = StmtTable[static_cast<std::size_t>(lines[line])];
        SendClick(Proof.RTB, stmt.StartStmt - ViewOffset(stmt) - 1);
    }

    void AnswerForm() {
        static const char* const names[] = {"x", "y", "k", "m"};
        static const char* const premises[] = {"P(x)",        "Q(x)",         "P(y)", "Q(k)",
                                               "P(k)",        "Q(m)",         "x=k",  "R(x,y)",
                                               "P(x) & Q(y)", "ALL(b):R(b,x)"};
        static const char* const lists[] = {"x", "a", "b", "a, b", "y, x", "k, a, b"};
        Form& form = TopForm();
        if (&form == &TestParser) {
            const bool isTerm = RuleMode == Rule::USpec;
            TestParser.RTB.SetText(isTerm ? names[Random(4)] : premises[Random(10)]);
            SendChoose(TestParser.cmdContinue);
            if (TestParser.Visible) SendChoose(TestParser.cmdCancel);
        } else if (&form == &MyInputBox) {
            if (RuleMode == Rule::ESpec) MyInputBox.Text1.Text = names[Random(4)];
            if (RuleMode != Rule::ESpec && Random(2) == 0) MyInputBox.Text1.Text = lists[Random(6)];
            SendChoose(MyInputBox.Continue);
            if (MyInputBox.Visible) SendChoose(MyInputBox.Cancel);
        } else {
            SendChoose(Warning.cmdContinue);
        }
    }

    unsigned seed_;
};

TEST(Soundness, NoRuleLetsAFalseLineIn) {
    std::vector<Structure> structures = StructuresOfTheAxioms();
    std::map<int, int> written;
    for (unsigned seed = 1; seed <= 200; ++seed) {
        User user(seed);
        for (int step = 1; step <= 60 && StmtCount < 30; ++step) {
            user.Step();
            if (step % 15 != 0) continue;
            for (Structure& structure : structures) {
                ASSERT_TRUE(ProofHolds(structure)) << "seed " << seed << "\n" << ProofText;
            }
        }
        for (int line = 1; line <= StmtCount; ++line) {
            ++written[StmtTable[static_cast<std::size_t>(line)].Rule];
        }
    }
    for (const int rule :
         {Rule::Conclusion, Rule::ESpec, Rule::USpec, Rule::Detach, Rule::Rename}) {
        EXPECT_GT(written[rule], 20) << RuleName(rule);
    }
}

}  // namespace
}  // namespace tessaryn
