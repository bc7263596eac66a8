// Every rule of the menus, and the two deletions, against a click at every place of several proofs:
// a click either writes, as one step that Undo takes back, or beeps with a reason and leaves the
// document as it was.
#include <gtest/gtest.h>

#include <map>

#include "Steps.h"
#include "Workbench.h"
#include "check/Check.h"
#include "cli/HeadlessPlatform.h"
#include "cli/Keyboard.h"
#include "document/Document.h"
#include "document/Invariants.h"
#include "document/ProofFile.h"
#include "expr/Lex.h"
#include "expr/RandomText.h"
#include "mainwindow/ProgramState.h"
#include "mainwindow/Proof.h"
#include "platform/Events.h"
#include "rules/Generalize.h"

namespace tessaryn {
namespace {

// --- the proofs

const std::string Quantifiers =
    "! ALL(a):ALL(b):[R(a,b) => EXIST(c):f(c)=a] ; ! EXIST(x):[P(x) & ALL(d):Q(x,d)]"
    " ; + ~EXIST(a):~P(a) ; + x @ s & R(x,y) ; Conclusion ; choose Continue"
    " ; + P(k) | ALL(b):[b=k => P(b)] ; Spec 2 ; < m";

struct Subject {
    const char* name;
    std::string steps;
};

void PrintTo(const Subject& subject, std::ostream* out) {
    *out << subject.name;
}

const Subject Proofs[] = {
    {"Rewrites",
     "+ P & Q | ~~[R => ~S] ; + [P <=> Q] & R => ~[~P & ~[~Q]] ; + [P => T] & [T => P]"
     " ; + P | R | S ; + [P => T] & [R => T] & [S => T] ; + P"
     " ; + Abcdefghij & Klmnopqrst\\r\\n=> Uvwxyz ; Conclusion ; + Q & ~Q"},
    {"Quantifiers", Quantifiers},
    {"Terms",
     "! ALL(a):[a @ s => a+2=f(a)] ; + m+k @ s & m @ s ; Split 2 ; + m+k=f(m)"
     " ; + (m,k) @ t & ~m+k=k ; + Set(s) & Set'(t) ; Split 7"
     " ; + m*k^2<=_k-1/m & f(m+k)=m"},
    // Lines that rules with two lines or two parts must not take together.
    {"NearMisses",
     "+ P | R ; + [Q => T] & [R => T] ; + [P => T] & [R => S] ; + [P => T] & [Q => P] & [P <=> Q]"
     " ; Split 4 ; + P ; + ALL(a):[P => R] & P ; + EXIST(a):R(a) | ~~P ; + k=m & R(m) ; Split 11 ; "
     "+ ~k=m"},
    // The insertion point in the middle: what stands behind it can't be used.
    {"Inserting", Quantifiers + " ; Insert 6.number"},
};

// --- what answers a dialogue

// Either cancels, or tries three entries, each time the next ones of the list, until the dialogue
// takes one.
class Answers {
  public:
    explicit Answers(bool accept) : accept_(accept) {}

    void Restart() { tries_ = 0; }

    void Reply() {
        Form& form = TopForm();
        // The empty entry stands for what the rule has filled in.
        static const std::vector<std::string> entries = {
            "", "2", "n", "c", "k", "a, b", "n, c", "m+k", "P(k)", "Q & Q(m,k)", "ALL(b):ALL(a):",
            "#"};
        if (!accept_ || tries_++ >= 3) {
            form.Close();
            form.Hide();
            return;
        }
        const std::string& entry = entries[next_++ % entries.size()];
        const std::size_t beeps = Headless.Beeps.size();
        if (!entry.empty()) Fill(form, entry);
        auto* picking = dynamic_cast<OccurrenceForm*>(&form);
        if (picking != nullptr && next_ % 2 == 0) {
            for (int place = 0; place < picking->RTB.TextLength(); place += 3) {
                SendClick(picking->RTB, place);
            }
        } else {
            Press(form, {"cmdSelectAll"});
        }
        if (Press(form, {"Continue", "cmdContinue"}) && form.Visible) {
            EXPECT_GT(Headless.Beeps.size(), beeps) << form.Name << " stays open for " << entry;
        }
    }

  private:
    static void Fill(Form& form, const std::string& entry) {
        for (Control* control : form.Controls) {
            const auto* surface = dynamic_cast<RichTextBox*>(control);
            const bool isBox = surface != nullptr ? !surface->ReadOnly
                                                  : dynamic_cast<TextBox*>(control) != nullptr;
            if (isBox && control->Visible && control->Enabled) ReplaceByTyping(*control, entry);
        }
    }

    static bool Press(Form& form, std::initializer_list<const char*> names) {
        for (const char* name : names) {
            Control* button = form.Find(name);
            if (button != nullptr && SendChoose(*button)) return true;
        }
        return false;
    }

    bool accept_;
    int tries_ = 0;
    std::size_t next_ = 0;
};

// --- the clicks

void ListItems(const MenuItem& title, std::vector<MenuItem*>& items) {
    for (MenuItem* item : title.Items) {
        ListItems(*item, items);
        if (item->Enabled && item->Visible && item->Click) items.push_back(item);
    }
}

std::vector<MenuItem*> RuleItems() {
    std::vector<MenuItem*> items;
    for (const MenuItem* title : {&Proof.mnuLogic, &Proof.mnuSets, &Proof.mnuNumbers}) {
        ListItems(*title, items);
    }
    items.push_back(&Proof.DeleteAllRef);
    items.push_back(&Proof.DelAllSubsequent);
    return items;
}

// One place of the display for each sign, number and annotation, and the two ends.
std::vector<int> AllPlaces() {
    std::vector<int> places = {0, Proof.RTB.TextLength()};
    for (int line = 1; line <= StmtCount; ++line) {
        const Statement& stmt = StmtTable[line];
        if (!stmt.Visible) continue;
        const auto add = [&](int index) { places.push_back(index - ViewOffset(stmt) - 1); };
        add(NumberStart(stmt));
        add(stmt.StartRule + 1);
        for (const TokenRec& token : LexExpression(std::string(StoredText(line))).tokens) {
            if (token.Position > 0) add(stmt.StartStmt + token.Position - 1);
        }
    }
    return places;
}

std::vector<int> EveryNth(const std::vector<int>& places, std::size_t n) {
    std::vector<int> some;
    for (std::size_t k = 0; k < places.size(); k += n) some.push_back(places[k]);
    return some;
}

struct Watch {
    explicit Watch(bool accept) : answers(accept) {}

    // Begins a command or a click.
    void Begin(const MenuItem& item, int place) {
        where = item.Name + " at " + std::to_string(place);
        text = ProofText.View();
        beeps = Headless.Beeps.size();
        mode = RuleMode;
        first = FirstClick;
        forms = FormsShown;
        answers.Restart();
    }

    void CheckReasons() {
        for (; beepsChecked < Headless.Beeps.size(); ++beepsChecked) {
            const std::string& reason = Headless.Beeps[beepsChecked];
            EXPECT_FALSE(reason.empty()) << where;
            EXPECT_EQ(reason.find("Something went wrong"), reason.npos) << where << ": " << reason;
        }
    }

    // What must hold once it is over. True if a statement has been written.
    bool End() {
        CheckReasons();
        EXPECT_EQ(Proof.RTB.TextLength(), static_cast<int>(ProofText.size())) << where;
        if (ProofText == text) {
            const bool waits = RuleMode == mode && FirstClick == first && FormsShown == forms;
            EXPECT_TRUE(!waits || Headless.Beeps.size() > beeps) << where << ": no reason given";
            return false;
        }
        EXPECT_EQ(CheckDocument(), "") << where;
        EXPECT_EQ(check::CheckProof(WriteProof()).sentence, "") << where;
        EXPECT_EQ(RuleMode, 0) << where;
        const int rule = StmtCount > 0 ? StmtTable.back().Rule : 0;
        EXPECT_TRUE(SendChoose(Proof.optUndo)) << where;
        EXPECT_EQ(ProofText.View(), text) << where << ": Undo does not take it back";
        ++written;
        ++lastLines[rule];
        return true;
    }

    Answers answers;
    std::string where;
    std::string text;
    std::size_t beeps = 0;
    std::size_t beepsChecked = 0;
    int mode = 0;
    bool first = false;
    int forms = 0;
    int written = 0;
    std::map<int, int> lastLines;  // by rule
};

void Choose(Watch& watch, MenuItem& item) {
    SendChoose(item);
    AnswerForms([&] { watch.answers.Reply(); });
}

void ClickPlace(Watch& watch, int place) {
    SendClick(Proof.RTB, place);
    AnswerForms([&] { watch.answers.Reply(); });
}

// Makes the rule pending again where the last click has ended it. False if it is no click rule.
bool MakePending(Watch& watch, MenuItem& item) {
    if (RuleMode == 0) Choose(watch, item);
    return RuleMode != 0;
}

void ClickAt(Watch& watch, const MenuItem& item, int place) {
    watch.Begin(item, place);
    ClickPlace(watch, place);
    watch.End();
}

void TryItem(Watch& watch, MenuItem& item, const std::vector<int>& places) {
    watch.Begin(item, -1);
    Choose(watch, item);
    watch.End();
    std::size_t begin = 0;
    for (const int place : places) {
        if (!MakePending(watch, item)) return;
        const bool awaitsFirst = FirstClick;
        ClickAt(watch, item, place);
        if (RuleMode == 0 || FirstClick == awaitsFirst) continue;
        // The first of two clicks has been taken. The second ones begin elsewhere each time.
        for (std::size_t k = begin++ % 7; k < places.size(); k += 7) {
            ClickAt(watch, item, places[k]);
            if (RuleMode != 0) continue;
            Choose(watch, item);
            ClickPlace(watch, place);
        }
        RuleMode = 0;
    }
    RuleMode = 0;
}

class EveryClick : public testing::TestWithParam<Subject> {};

TEST_P(EveryClick, WritesOrTellsWhyNot) {
    for (const bool accept : {false, true}) {
        ASSERT_EQ(Do(GetParam().steps), "");
        Watch watch(accept);
        const std::vector<int> places = EveryNth(AllPlaces(), accept ? 1 : 5);
        for (MenuItem* item : RuleItems()) {
            TryItem(watch, *item, places);
            ASSERT_FALSE(HasFailure()) << "with " << item->Name;
        }
        EXPECT_GT(watch.written, accept ? 100 : 5);
    }
}

INSTANTIATE_TEST_SUITE_P(Proofs, EveryClick, testing::ValuesIn(Proofs),
                         [](const auto& proof) { return std::string(proof.param.name); });

// Names are few, so that those that are put in meet others of the statement.
TEST(EveryFormula, BecomesNothingThatDoesNotFollow) {
    Random random(20261123);
    Watch watch(true);
    for (int round = 0; round < 100; ++round) {
        std::string formula = RandomFormula(random, 3);
        const std::string no = round % 6 == 0 ? "" : "~";
        if (round % 3 == 0) formula = "[[" + formula + "]=>P]&[P=>" + no + "[" + formula + "]]";
        if (round % 3 == 1) formula = "Q|~~[" + formula + "]";
        if (!Build(EnterPremise(formula) + EnterPremise("x=f(y)")).empty()) continue;
        const std::vector<int> places = AllPlaces();
        for (MenuItem* item : RuleItems()) {
            TryItem(watch, *item, places);
            ASSERT_FALSE(HasFailure()) << "with " << item->Name << " on " << formula;
        }
    }
    for (const int rule :
         {Rule::ImplyAnd, Rule::ImplyOr, Rule::Contra, Rule::DeMorgan, Rule::IffAnd, Rule::RemDNeg,
          Rule::Quant, Rule::Sym, Rule::EGen, Rule::Substitute}) {
        EXPECT_GE(watch.lastLines[rule], 10) << RuleName(rule);
    }
}

}  // namespace
}  // namespace tessaryn
